// The whole example client: its window, what it remembers, its command line, and what holds for all pages.

#include "support/Columns.h"
#include "support/CropCanvas.h"
#include "support/StrictMain.h"

#include <Platform/BasicUIComponents/KvSkin.h>
#include <gallery/Client.h>
#include <gallery/LastFolders.h>
#include <gallery/SkinIcon.h>

#include <QtTest>
#include <QtWidgets>
#include <numeric>

using namespace OperatorClient;

namespace {

constexpr int LookInterval = 20; // milliseconds
constexpr int LongestWait = 10000; // milliseconds
constexpr int LongestChain = 300; // presses of the Tab key
constexpr int LargeLetters = 19; // pixels, 14 points on a usual display
const QSize SmallDisplay(1024, 700);

QByteArray ReadAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Hears the class of every widget that is shown, with those it is derived from.
class WidgetWatch : public QObject
{
public:
    WidgetWatch() { qApp->installEventFilter(this); }

    QSet<QString> classes;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show) {
            for (const QMetaObject* meta = watched->metaObject(); meta != nullptr; meta = meta->superClass())
                classes.insert(QString::fromLatin1(meta->className()).section(QStringLiteral("::"), -1));
        }
        return QObject::eventFilter(watched, event);
    }
};

/// The classes of the library's public headers that are widgets.
QStringList PublicWidgets()
{
    const QRegularExpression declaration(QStringLiteral(
        R"(class UICOMPONENTS_EXPORT (\w+)\s*:\s*public (?:\w+::)?+(?!QObject\b)(?:Q|Kv|C)\w+)"));
    QStringList names;
    const QStringList headers = QStringLiteral(PUBLIC_HEADERS).split(QLatin1Char('|'));
    for (const QString& header : headers) {
        const auto match
            = declaration.match(QString::fromUtf8(ReadAll(QStringLiteral(SOURCE_TREE "/") + header)));
        if (match.hasMatch())
            names << match.captured(1);
    }
    return names;
}

/// Brings the page into a state and out of it as screenshots do, without their pauses.
void Visit(const Page::Picture& picture)
{
    bool there = false;
    bool done = false;
    QElapsedTimer waited;
    waited.start();
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, qApp, [&] {
        if (!picture.isThere() && waited.elapsed() < LongestWait)
            return;
        there = picture.isThere();
        look.stop();
        picture.leave();
        done = true;
    });
    look.start(LookInterval);
    picture.enter();
    QTRY_VERIFY_WITH_TIMEOUT(done, 2 * LongestWait);
    QVERIFY2(there, qPrintable(picture.suffix));
}

/// What the operator works with: the buttons, inputs and lists that are there and can be used.
QWidgetList Controls(const QWidget& window)
{
    QWidgetList controls;
    const auto all = window.findChildren<QWidget*>();
    for (QWidget* widget : all) {
        const bool input = qobject_cast<QAbstractButton*>(widget) || qobject_cast<QLineEdit*>(widget)
            || qobject_cast<QAbstractSpinBox*>(widget) || qobject_cast<QComboBox*>(widget)
            || qobject_cast<QAbstractItemView*>(widget) || qobject_cast<QPlainTextEdit*>(widget);
        // Parts of a control, and what lies in a window of the wall or shows one, have no stop of their own.
        const bool part = qobject_cast<QAbstractSpinBox*>(widget->parentWidget())
            || qobject_cast<QLineEdit*>(widget->parentWidget())
            || qobject_cast<QAbstractItemView*>(widget->parentWidget()) || qobject_cast<QHeaderView*>(widget)
            || widget->objectName().startsWith(QLatin1String("qt_"))
            || widget->objectName().startsWith(QLatin1String("pWindow"));
        if (input && !part && widget->isVisible() && widget->isEnabled())
            controls << widget;
    }
    return controls;
}

/// By the switch in the side bar.
void ChooseLanguage(Client& client, const QString& name)
{
    const auto actions = client.Window().findChildren<QAction*>();
    for (QAction* action : actions) {
        if (action->text() == Language::OwnName(name) && action->isCheckable())
            return action->trigger();
    }
    QFAIL("no such language");
}

QString Describe(const QWidget* widget)
{
    return QStringLiteral("%1 \"%2\" in %3")
        .arg(
            QString::fromLatin1(widget->metaObject()->className()), widget->objectName(),
            QString::fromLatin1(widget->parentWidget()->metaObject()->className()));
}

/// The controls and the first row of tables on the page whose text has no room.
QStringList CutTexts(const QWidget& page)
{
    QStringList cut;
    for (QWidget* control : Controls(page)) {
        const bool shows = qobject_cast<QAbstractButton*>(control) || qobject_cast<QComboBox*>(control)
            || qobject_cast<QAbstractSpinBox*>(control);
        if (shows && control->width() < control->minimumSizeHint().width())
            cut << Describe(control)
                    + QStringLiteral(" %1 of %2")
                          .arg(control->width())
                          .arg(control->minimumSizeHint().width());
    }
    for (const QTableView* table : page.findChildren<QTableView*>()) {
        for (int column = 0; column < table->model()->columnCount(); ++column) {
            const QString text = table->model()->index(0, column).data().toString();
            if (table->columnWidth(column) <= table->fontMetrics().horizontalAdvance(text))
                cut << text;
        }
    }
    return cut;
}

} // namespace

class TestClient : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_strSettings = m_folder.filePath(QStringLiteral("case%1/settings.ini").arg(++m_iCase));
        KvGUI::SetSkinVersion(QStringLiteral("Black"));
    }

    void CommandLine_data()
    {
        TestSupport::Columns<QStringList, int, QStringList>("arguments", "code", "told");
        const auto row = [](const char* name, const QString& arguments, int code, const QStringList& told) {
            QTest::newRow(name) << arguments.split(QLatin1Char(' ')) << code << told;
        };
        row("help", QStringLiteral("--help"), 0,
            QStringList{
                QStringLiteral("--page"), QStringLiteral("--language"), QStringLiteral("--skin"),
                QStringLiteral("zh_CN"), QStringLiteral("White")}
                + PageNames());
        row("page", QStringLiteral("--page nowhere"), 2,
            {QStringLiteral("\"nowhere\""), QStringLiteral("alarms")});
        row("no page", QStringLiteral("--page="), 2, {QStringLiteral("alarms")});
        row("skin", QStringLiteral("--skin black"), 2,
            {QStringLiteral("\"black\""), QStringLiteral("White")});
        row("language", QStringLiteral("--language de"), 2,
            {QStringLiteral("\"de\""), QStringLiteral("zh_CN")});
        row("option", QStringLiteral("--pages wall"), 2, {QStringLiteral("pages")});
        row("argument", QStringLiteral("wall"), 2, {QStringLiteral("\"wall\"")});
        row("value", QStringLiteral("--page"), 2, {QStringLiteral("page")});
    }

    // Catches a word that the client does not know and starts without, and an option that --help forgets.
    void CommandLine()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QStringList, told);
        QProcess client;
        client.start(QStringLiteral(OPERATOR_CLIENT), arguments);
        QVERIFY(client.waitForFinished());
        QCOMPARE(client.exitStatus(), QProcess::NormalExit);
        QTEST(client.exitCode(), "code");
        const QByteArray output = client.readAllStandardOutput() + client.readAllStandardError();
        for (const QString& word : told)
            QVERIFY2(output.contains(word.toUtf8()), output.constData());
    }

    // Catches pictures of pages that nobody asked for, and of a state that is not there yet.
    void ScreenshotsOfOnePage()
    {
        const QDir folder(m_folder.filePath(QStringLiteral("pictures")));
        QProcess client;
        client.start(
            QStringLiteral(OPERATOR_CLIENT),
            {QStringLiteral("--screenshots"), folder.path(), QStringLiteral("--page"),
             QStringLiteral("pairing")});
        QVERIFY(client.waitForFinished(60000));
        QCOMPARE(client.exitCode(), 0);
        QCOMPARE(
            folder.entryList(QDir::Files),
            (QStringList{
                QStringLiteral("pairing-black-code.png"), QStringLiteral("pairing-black.png"),
                QStringLiteral("pairing-white-code.png"), QStringLiteral("pairing-white.png")}));
        QVERIFY(
            QImage(folder.filePath(QStringLiteral("pairing-black-code.png")))
            != QImage(folder.filePath(QStringLiteral("pairing-black.png"))));
    }

    // Catches what a restart forgets of the window, and a name of a page that --page does not know.
    void ComesBackAsItWasLeft()
    {
        const QRect place(120, 60, 640, 480); // of the offscreen display's 800 x 800
        for (const QString& page : PageNames()) {
            {
                Client client(Options());
                client.Show();
                client.Window().setMinimumSize(1, 1);
                client.Window().setGeometry(place);
                QVERIFY(client.Window().ShowPage(page));
                KvGUI::SetSkinVersion(QStringLiteral("White"));
                if (page == PageNames().first())
                    client.Window().showFullScreen(); // does not become the window's size
                // Ends before the delayed save.
            }
            KvGUI::SetSkinVersion(QStringLiteral("Black"));
            Client again(Options());
            again.Window().setMinimumSize(1, 1);
            again.Show();
            QCOMPARE(again.Window().CurrentPageName(), page);
            QCOMPARE(KvGUI::GetSkinVersion(), QStringLiteral("White"));
            QCOMPARE(again.Window().geometry(), place);
            again.Window().showMaximized();
        }
        {
            Client last(Options());
            last.Show();
            QVERIFY(last.Window().isMaximized());
        }
        const QString stored
            = StoredText(m_strSettings, QStringLiteral("Client"), QStringLiteral("State")).Read().first();
        QCOMPARE(ClientState::FromText(stored).window, place);
        QVERIFY(ClientState::FromText(stored).maximized);
    }

    // Catches a choice for one run that overwrites the operator's own, and one of the operator's that is lost
    // because the command line named another.
    void CommandLineIsNotRemembered()
    {
        {
            Client client(Options());
            client.Window().ShowPage(QStringLiteral("alarms"));
            KvGUI::SetSkinVersion(QStringLiteral("White"));
            ChooseLanguage(client, QStringLiteral("zh_CN"));
        }
        ClientOptions options = Options();
        options.page = QStringLiteral("device");
        options.skin = QStringLiteral("Black");
        options.language = QStringLiteral("en");
        {
            Client client(options);
            QCOMPARE(client.Window().windowTitle(), QStringLiteral("Operator client"));
            QCOMPARE(client.Window().CurrentPageName(), options.page);
            QCOMPARE(KvGUI::GetSkinVersion(), options.skin);
        }
        {
            Client client(Options());
            QCOMPARE(client.Window().CurrentPageName(), QStringLiteral("alarms"));
            QCOMPARE(KvGUI::GetSkinVersion(), QStringLiteral("White"));
            QVERIFY(client.Window().windowTitle() != QLatin1String("Operator client"));
        }
        {
            Client client(options);
            client.Window().ShowPage(QStringLiteral("photo"));
        }
        Client client(Options());
        QCOMPARE(client.Window().CurrentPageName(), QStringLiteral("photo"));
    }

    // Catches file dialogs that start anew in the folder of the program after each start, one that takes the
    // folder of another kind of file, and one that is sent to a folder that is gone.
    void FoldersOfFileDialogsAreRemembered()
    {
        QTemporaryDir photos;
        QTemporaryDir books;
        {
            const Client client(Options());
            LastFolders::Note(FileUse::Photo, photos.filePath(QStringLiteral("a.png")));
            LastFolders::Note(FileUse::Workbook, books.filePath(QStringLiteral("\u62a5\u8b66.csv")));
            LastFolders::Note(FileUse::Photo, QString()); // cancelled
        }
        QCOMPARE(LastFolders::Of(FileUse::Photo), QString());
        const Client again(Options());
        QVERIFY(books.remove());
        QCOMPARE(LastFolders::Of(FileUse::Photo), photos.path());
        QCOMPARE(LastFolders::Of(FileUse::Cut), QString());
        QCOMPARE(LastFolders::Of(FileUse::Workbook, photos.path()), photos.path());
    }

    void BrokenSettings_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("zeros") << QByteArray(4096, '\0');
        QTest::newRow("no settings") << QByteArray("\xff\xfe[[[\n=\n%%%\n\"", 14);
        QTest::newRow("wrong types") << QByteArray(
            "[Client]\nState=\"{\\\"window\\\":\\\"x\\\",\\\"page\\\":7,"
            "\\\"skin\\\":[],\\\"maximized\\\":{}}\"\n");
        QTest::newRow("unknown names") << QByteArray("[Client]\nState=\"{\\\"window\\\":[-1e9,1e300,5,1e12],"
                                                     "\\\"page\\\":\\\"x\\\",\\\"skin\\\":\\\"../x\\\"}\"\n");
        QTest::newRow("a folder") << QByteArray();
    }

    // Catches a start that fails, warns or shows nothing because of what is in the settings file, or that it
    // cannot be written.
    void BrokenSettings()
    {
        QFETCH(QByteArray, text);
        QVERIFY(QFileInfo(m_strSettings).absoluteDir().mkpath(QStringLiteral(".")));
        QFile file(m_strSettings);
        if (text.isEmpty())
            QVERIFY(QDir().mkpath(m_strSettings));
        else
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
        file.close();
        Client client(Options());
        client.Show();
        QVERIFY(QTest::qWaitForWindowExposed(&client.Window()));
        QCOMPARE(client.Window().CurrentPageName(), PageNames().first());
        QCOMPARE(KvGUI::GetSkinVersion(), QStringLiteral("Black"));
        QVERIFY(client.Window().geometry().intersects(QGuiApplication::primaryScreen()->availableGeometry()));
        client.Window().ShowPage(QStringLiteral("device")); // is saved, or not, in silence
    }

    void WindowIsPlacedOnScreens_data()
    {
        TestSupport::Columns<QRect, QVector<QRect>, QRect>("wanted", "screens", "placed");
        const QRect left(0, 0, 1920, 1040);
        const QRect right(1920, 0, 1280, 1000);
        const QVector<QRect> two{left, right};
        const QRect window(100, 100, 1200, 800);
        QTest::newRow("where it was") << window << two << window;
        QTest::newRow("across neighbours") << QRect(1500, 10, 1000, 800) << two << QRect(1500, 10, 1000, 800);
        QTest::newRow("its screen is gone")
            << QRect(2000, 100, 1200, 800) << QVector<QRect>{left} << QRect(720, 100, 1200, 800);
        QTest::newRow("the screen on the other side is gone")
            << QRect(-1800, 500, 1200, 800) << QVector<QRect>{left} << QRect(0, 240, 1200, 800);
        QTest::newRow("larger than the screen")
            << QRect(50, 50, 4000, 3000) << QVector<QRect>{left} << QRect(0, 30, 1920, 1010);
        QTest::newRow("its title bar would be off the screen")
            << QRect(0, -60, 800, 600) << two << QRect(0, 30, 800, 600);
        QTest::newRow("mostly on the second")
            << QRect(1800, 300, 1000, 800) << two << QRect(1920, 200, 1000, 800);
        QTest::newRow("no screen") << window << QVector<QRect>{} << window;
    }

    // Catches a window that comes up where no screen shows it, or not the bar that it is moved by.
    void WindowIsPlacedOnScreens()
    {
        QFETCH(QRect, wanted);
        QFETCH(QVector<QRect>, screens);
        QTEST(PlaceOnScreens(wanted, screens, 30), "placed");
    }

    // Catches commands that look as if they could be used, because a light desktop hardly changes the icons
    // of a dark skin when they are disabled.
    void DisabledIconsAreFaint()
    {
        const QIcon icon = SkinIcon(QStringLiteral("ToolBar"), QStringLiteral("WholeWall"));
        const auto ink = [&](QIcon::Mode mode) {
            const QImage image = icon.pixmap(20, mode).toImage().convertToFormat(QImage::Format_Alpha8);
            qint64 sum = 0;
            for (int y = 0; y < image.height(); ++y)
                sum = std::accumulate(image.scanLine(y), image.scanLine(y) + image.width(), sum);
            return sum;
        };
        QVERIFY(ink(QIcon::Normal) > 0);
        QCOMPARE(ink(QIcon::Selected), ink(QIcon::Normal));
        QVERIFY(ink(QIcon::Disabled) * 2 < ink(QIcon::Normal));
    }

    // Catches a start that makes pages nobody sees, a page that is made anew at each visit, and one made late
    // that has missed a change of the skin.
    void PagesAreMadeWhenFirstShown()
    {
        const QStringList stills{
            QStringLiteral("photo"), QStringLiteral("record"), QStringLiteral("pairing"),
            QStringLiteral("device")};
        Client early(Options());
        Client late(Options());
        for (Client* client : {&early, &late}) {
            client->Show();
            client->Window().resize(1280, 800); // no page needs more
        }
        const auto made = [](Client& client) { return client.Window().findChildren<Page*>().size(); };
        QCOMPARE(made(early), 1);
        for (const QString& page : stills)
            early.Window().ShowPage(page);
        KvGUI::SetSkinVersion(QStringLiteral("White"));
        QCoreApplication::processEvents();
        for (const QString& page : stills) {
            const auto picture = [&](Client& client) {
                client.Window().ShowPage(page);
                client.Window().findChild<QListWidget*>(QStringLiteral("pageList"))->setFocus();
                return client.Window().CurrentPage()->grab().toImage();
            };
            QVERIFY2(picture(early) == picture(late), qPrintable(page));
        }
        QCOMPARE(made(early), 1 + stills.size());
        QCOMPARE(made(late), 1 + stills.size());
    }

    // Catches keys that choose the wrong page or none, a report that stays on a page which it is not of, and
    // a page that cannot be left or entered by F6.
    void KeysChoosePagesAndAreas()
    {
        Client client(Options());
        MainWindow& window = client.Window();
        client.Show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const auto page = [&] { return PageNames().indexOf(window.CurrentPageName()); };
        window.statusBar()->showMessage(QStringLiteral("of the wall"));
        QTest::keyClick(&window, Qt::Key_7, Qt::AltModifier);
        QCOMPARE(page(), 6);
        QCOMPARE(window.statusBar()->currentMessage(), QString());
        QTest::keyClick(&window, Qt::Key_PageDown, Qt::ControlModifier);
        QCOMPARE(page(), 0);
        QTest::keyClick(&window, Qt::Key_PageUp, Qt::ControlModifier);
        QCOMPARE(page(), 6);
        QTest::keyClick(&window, Qt::Key_K, Qt::ControlModifier);
        QCOMPARE(KvGUI::GetSkinVersion(), QStringLiteral("White"));

        auto* edit = window.CurrentPage()->findChildren<QLineEdit*>().at(3);
        edit->setFocus();
        QTest::keyClick(&window, Qt::Key_F6);
        QCOMPARE(QApplication::focusWidget(), window.findChild<QListWidget*>(QStringLiteral("pageList")));
        QTest::keyClick(&window, Qt::Key_F6);
        QCOMPARE(QApplication::focusWidget(), edit);
        QTest::keyClick(&window, Qt::Key_F6);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
        QCOMPARE(page(), 5);
        QTest::keyClick(&window, Qt::Key_F6);
        QVERIFY(window.CurrentPage()->isAncestorOf(QApplication::focusWidget()));
    }

    // Catches a widget of the library that no page, dialog or menu of the client shows.
    void EveryWidgetIsShownSomewhere()
    {
        TestSupport::AnnounceCropCanvases(4);
        WidgetWatch watch;
        Client client(Options());
        client.Show();
        for (const QString& page : PageNames()) {
            client.Window().ShowPage(page);
            if (page == QLatin1String("map"))
                continue; // waits for an engine, which the offscreen display has not
            const QVector<Page::Picture> pictures = client.Window().CurrentPage()->Pictures();
            for (const Page::Picture& picture : pictures)
                Visit(picture);
        }
        client.Window().ShowKeys();
        QStringList missing;
        const QStringList wanted = PublicWidgets();
        QVERIFY(wanted.size() > 25);
        for (const QString& name : wanted) {
            if (!watch.classes.contains(name))
                missing << name;
        }
        QCOMPARE(missing.join(QLatin1Char(' ')), QString());
    }

    void ControlsAreNamedAndReached_data() { AddPagesInLanguages(); }

    // Catches a control without a name for who cannot see it, one that the Tab key does not reach, and one
    // that does not let it go on.
    void ControlsAreNamedAndReached()
    {
        QFETCH(QString, page);
        ClientOptions options = Options();
        options.page = page;
        QFETCH(QString, language);
        options.language = language;
        Client client(options);
        MainWindow& window = client.Window();
        client.Show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        window.findChild<QListWidget*>(QStringLiteral("pageList"))->setFocus();
        QWidgetList reached;
        do { // a wall drawn in a scene keeps the focus for several stops
            reached << QApplication::focusWidget();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        } while (reached.size() < LongestChain && QApplication::focusWidget() != reached.first());
        QVERIFY2( // the chain is closed
            QApplication::focusWidget() == reached.first(),
            qPrintable(Describe(QApplication::focusWidget())));
        const QWidgetList controls = Controls(window);
        QVERIFY(controls.size() >= 3);
        for (QWidget* control : controls) {
            const QAccessibleInterface* face = QAccessible::queryAccessibleInterface(control);
            QVERIFY2(
                face != nullptr && !face->text(QAccessible::Name).isEmpty(), qPrintable(Describe(control)));
            const bool hasStop = reached.contains(control) || reached.contains(control->focusProxy());
            QVERIFY2(hasStop, qPrintable(Describe(control)));
        }
    }

    void SmallDisplayHoldsEachPage_data()
    {
        QTest::addColumn<QString>("language");
        for (const QString& language : Language::Names())
            QTest::addRow("%s", qPrintable(language)) << language;
    }

    // Catches a page that a small display cuts off.
    void SmallDisplayHoldsEachPage()
    {
        ClientOptions options = Options();
        QFETCH(QString, language);
        options.language = language;
        Client client(options);
        client.Show();
        QString hints;
        for (const QString& page : PageNames()) {
            QVERIFY(client.Window().ShowPage(page));
            const QSize hint = client.Window().CurrentPage()->minimumSizeHint();
            hints += QStringLiteral("%1 %2 x %3, ").arg(page).arg(hint.width()).arg(hint.height());
        }
        const QSize least = client.Window().minimumSizeHint();
        QVERIFY2(
            least.width() <= SmallDisplay.width() && least.height() <= SmallDisplay.height(),
            qPrintable(hints));
    }

    void LargeLettersFit_data() { SmallDisplayHoldsEachPage_data(); }

    // Catches widths in pixels that cut texts where the desktop's letters are large.
    void LargeLettersFit()
    {
        const QFont usual = QApplication::font();
        const auto restore = qScopeGuard([&] { QApplication::setFont(usual); });
        QFont large = usual;
        large.setPixelSize(LargeLetters);
        QApplication::setFont(large);
        ClientOptions options = Options();
        QFETCH(QString, language);
        options.language = language;
        Client client(options);
        client.Show();
        QStringList cut;
        for (const QString& page : PageNames()) {
            QVERIFY(client.Window().ShowPage(page));
            QCoreApplication::processEvents();
            client.Window().resize(1, 1); // as small as it gets
            QCoreApplication::processEvents();
            cut << CutTexts(*client.Window().CurrentPage());
        }
        QCOMPARE(cut.join(QLatin1Char('\n')), QString());
    }

private:
    ClientOptions Options() const
    {
        ClientOptions options;
        options.layoutFile = m_strSettings;
        return options;
    }

    void AddPagesInLanguages() const
    {
        TestSupport::Columns<QString, QString>("page", "language");
        for (const QString& language : Language::Names()) {
            for (const QString& page : PageNames())
                QTest::addRow("%s %s", qPrintable(page), qPrintable(language)) << page << language;
        }
    }

    QTemporaryDir m_folder;
    QString m_strSettings;
    int m_iCase = 0;
};

STRICT_TEST_MAIN(TestClient)
#include "tst_client.moc"
