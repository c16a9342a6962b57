#include "support/Columns.h"
#include "support/Deletion.h"
#include "support/StrictMain.h"

#include <Common/CommonFun.h>
#include <Platform/BasicUIComponents/KvCheckBox.h>
#include <Platform/BasicUIComponents/KvCustomDialog.h>
#include <Platform/BasicUIComponents/KvDir.h>
#include <Platform/BasicUIComponents/KvHorScrollBar.h>
#include <Platform/BasicUIComponents/KvLanguage.h>
#include <Platform/BasicUIComponents/KvMenu.h>
#include <Platform/BasicUIComponents/KvMessageNotify.h>
#include <Platform/BasicUIComponents/KvPushButton.h>
#include <Platform/BasicUIComponents/KvSkin.h>
#include <Platform/BasicUIComponents/KvVerScrollBar.h>
#include <Platform/BasicUIComponents/NotificationPlaces.h>
#include <Platform/BasicUIComponents/NotificationPopup.h>
#include <Platform/BasicUIComponents/PlatformLook.h>
#include <Platform/BasicUIComponents/StyledWidgets.h>
#include <QtTest>
#include <QtWidgets>
#include <cstdlib>
#include <functional>
#include <memory>

using namespace KvGUI;

namespace {

const QString kBlack = QStringLiteral("Black");
const QString kWhite = QStringLiteral("White");

/// What a client asks before there is an application object.
struct Early
{
    Early()
    {
        const auto usual = qInstallMessageHandler([](auto, const auto&, const auto&) { std::abort(); });
        path = KvDir::GetCurrentPath();
        language = KvGUI::SetLanguage(QStringLiteral("zh_CN"));
        qInstallMessageHandler(usual);
    }
    QString path;
    bool language = true;
} const early;

constexpr int kOk = QDialogButtonBox::Ok;
constexpr int kCancel = QDialogButtonBox::Cancel;
constexpr int kOpen = QDialogButtonBox::Open;

QWidget* Part(const QWidget& dialog, const char* name)
{
    return dialog.findChild<QWidget*>(QString::fromLatin1(name));
}

void Show(QWidget& widget)
{
    widget.show();
    QVERIFY(QTest::qWaitForWindowActive(&widget));
}

/// Runs @p act once the modal loop of @p dialog runs, and gives the loop's result.
int ExecAnd(QDialog* dialog, const std::function<void()>& act)
{
    QTimer::singleShot(0, dialog, act);
    return dialog->exec();
}

/// A mouse event through the window system, so that modality and grabs count.
void ClickOn(QWidget* widget)
{
    QTest::mouseClick(
        widget->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
        widget->mapTo(widget->window(), widget->rect().center()));
}

QList<NotificationPopup*> Messages()
{
    QList<NotificationPopup*> messages;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* popup = qobject_cast<NotificationPopup*>(widget);
        if (popup != nullptr && popup->isVisible())
            messages.append(popup);
    }
    std::sort(messages.begin(), messages.end(), [](auto* a, auto* b) { return a->y() < b->y(); });
    return messages;
}

QStringList Texts()
{
    QStringList texts;
    for (const NotificationPopup* message : Messages())
        texts.append(message->Text());
    return texts;
}

void Notify(const char* text, QWidget* parent)
{
    KvMessageNotify::Instance()->AddTextNotification(QString::fromLatin1(text), parent);
}

/// A window in front. Under a layout, as windows of clients are.
struct Window : public QWidget
{
    explicit Window(const QRect& place = {})
    {
        setLayout(new QVBoxLayout);
        if (place.isValid())
            setGeometry(place);
        Show(*this);
    }
};

class NotingDialog : public KvCustomDialog
{
public:
    using KvCustomDialog::KvCustomDialog;
    int m_closes = 0;

    void OnCloseBtmClicked() override { ++m_closes; }
};

using DialogAct = std::function<void(KvCustomDialog&, QWidget*)>;

} // namespace

Q_DECLARE_METATYPE(DialogAct)
Q_DECLARE_METATYPE(Qt::MouseButton)
Q_DECLARE_METATYPE(std::function<void(KvCustomDialog*)>)
Q_DECLARE_METATYPE(std::function<QWidget*()>)

class TestBasicUi : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { TestSupport::SpoilFreedMemory(); }

    void init()
    {
        KvGUI::SetSkinVersion(kBlack);
        KvMessageNotify::Instance()->SetDisplayTime(60000);
    }

    void cleanup() { KvMessageNotify::Instance()->CloseAll(); }

    /// Catches a client's early question that crashes or makes Qt warn.
    void BeforeTheApplicationObject()
    {
        QCOMPARE(early.path, QDir::currentPath() + QLatin1Char('/'));
        QVERIFY(!early.language);
    }

    void TitleBarDragsTheDialog_data()
    {
        TestSupport::Columns<Qt::MouseButton, Qt::MouseButton, QPoint>("pressed", "held", "moved");
        QTest::newRow("drag") << Qt::LeftButton << Qt::LeftButton << QPoint(35, -20);
        QTest::newRow("other button") << Qt::RightButton << Qt::RightButton << QPoint(0, 0);
        QTest::newRow("other button, the release went to another window")
            << Qt::LeftButton << Qt::RightButton << QPoint(0, 0);
    }

    /// Catches a frameless dialog that cannot be moved, jumps when it is grabbed, follows any button, or
    /// sticks to the pointer.
    void TitleBarDragsTheDialog()
    {
        QFETCH(Qt::MouseButton, pressed);
        QFETCH(Qt::MouseButton, held);
        KvDialog dialog;
        dialog.setGeometry(100, 100, 300, 200);
        Show(dialog);
        const QPoint before = dialog.pos();
        QWidget* bar = Part(dialog, "kvDialogTitleBar");
        const QPoint grip(60, 10);
        const QPoint to = grip + QPoint(35, -20);
        QTest::mousePress(bar, pressed, Qt::NoModifier, grip);
        QMouseEvent move(QEvent::MouseMove, to, bar->mapToGlobal(to), Qt::NoButton, held, Qt::NoModifier);
        QApplication::sendEvent(bar, &move);
        QTEST(dialog.pos() - before, "moved");
        const QPoint there = dialog.pos();
        QTest::mouseRelease(bar, pressed, Qt::NoModifier, to);
        const QPoint further = bar->mapToGlobal(to) + QPoint(40, 40);
        QMouseEvent late(QEvent::MouseMove, to, further, Qt::NoButton, held, Qt::NoModifier);
        QApplication::sendEvent(bar, &late);
        QCOMPARE(dialog.pos(), there);
    }

    /// Catches a long title that makes the dialog wider, and one that stays short when there is room again.
    void LongTitlesAreShortened()
    {
        KvDialog dialog;
        const QString title = QStringLiteral("The title of a dialog, rather long");
        dialog.SetTitle(title);
        QCOMPARE(dialog.windowTitle(), title);
        dialog.resize(150, 100);
        Show(dialog);
        QCOMPARE(dialog.width(), 150);
        auto* label = qobject_cast<QLabel*>(Part(dialog, "kvDialogTitle"));
        QVERIFY(label->text() != title);
        dialog.resize(600, 100);
        QTRY_COMPARE(label->text(), title);
    }

    /// Catches signals that Qt's dialogs have not, in another order, or with the result of before.
    void EndsAsQtsDialogsDo()
    {
        QDialog plain;
        KvDialog own;
        QStringList logs;
        for (QDialog* dialog : {&plain, static_cast<QDialog*>(&own)}) {
            QString log;
            const auto note = [&log, dialog](const char* what) {
                log += QStringLiteral("%1 %2 %3;")
                           .arg(QLatin1String(what))
                           .arg(dialog->result())
                           .arg(dialog->isVisible());
            };
            connect(dialog, &QDialog::accepted, dialog, [&] { note("accepted"); });
            connect(dialog, &QDialog::rejected, dialog, [&] { note("rejected"); });
            connect(dialog, &QDialog::finished, dialog, [&] { note("finished"); });
            for (const int result : {int(QDialog::Accepted), int(QDialog::Rejected), 7}) {
                dialog->show();
                dialog->done(result);
            }
            dialog->open();
            dialog->close();
            note(dialog->isModal() ? "modal" : "not modal");
            logs << log;
            dialog->disconnect();
        }
        QCOMPARE(logs.at(1), logs.at(0));
    }

    /// Catches a way to close the dialog that goes past a subclass's own handler.
    void ClosingCanBeOverridden()
    {
        NotingDialog dialog;
        Show(dialog);
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QTest::keyClick(dialog.GetButton(kOk), Qt::Key_Escape);
        QTest::mouseClick(Part(dialog, "kvDialogCloseButton"), Qt::LeftButton);
        QCOMPARE(dialog.m_closes, 3);
        QVERIFY(dialog.isVisible());
    }

    void Buttons_data()
    {
        TestSupport::Columns<int, QList<int>>("flags", "there");
        QTest::newRow("none") << 0 << QList<int>{};
        QTest::newRow("OK") << kOk << QList<int>{kOk};
        QTest::newRow("three") << 1024 + 4194304 + 8192 << QList<int>{kOk, kCancel, kOpen};
        QTest::newRow("another") << kCancel + int(QDialogButtonBox::Help)
                                 << QList<int>{kCancel, QDialogButtonBox::Help};
        QTest::newRow("too many") << kOpen + int(QDialogButtonBox::Help) << QList<int>{kOpen};
        QTest::newRow("no button's") << 1 << QList<int>{};
    }

    /// Catches flags that give another button, and a value without a button that crashes.
    void Buttons()
    {
        QFETCH(int, flags);
        QFETCH(QList<int>, there);
        KvCustomDialog dialog(nullptr, flags, KvDialog::NoFlag);
        QVERIFY(Part(dialog, "kvDialogCloseButton") == nullptr);
        QCOMPARE(dialog.findChildren<KvPushButton*>().size(), there.size());
        for (const int value : {kOk, kCancel, kOpen, int(QDialogButtonBox::Help), 0, -1}) {
            KvPushButton* button = dialog.GetButton(value);
            QCOMPARE(button != nullptr, there.contains(value));
            QVERIFY(button == nullptr || !button->text().isEmpty());
            dialog.SetButtonVisible(value, false);
            dialog.SetButtonText(value, QStringLiteral("x"));
            dialog.SetButtonEnabled(value, false);
            QVERIFY(button == nullptr || (button->isHidden() && button->text() == QLatin1String("x")));
        }
    }

    void ButtonsReport_data()
    {
        TestSupport::Columns<DialogAct, QString>("act", "log");
        const auto row = [](const char* name, const char* log, const DialogAct& act) {
            QTest::newRow(name) << act << QString::fromLatin1(log);
        };
        row("clicks", "other ok cancel ", [](KvCustomDialog& dialog, QWidget*) {
            for (const int button : {kOpen, kOk, kCancel})
                QTest::mouseClick(dialog.GetButton(button), Qt::LeftButton);
        });
        row("Return in an input", "ok ",
            [](KvCustomDialog&, QWidget* input) { QTest::keyClick(input, Qt::Key_Return); });
        row("Enter on another button", "cancel ", [](KvCustomDialog& dialog, QWidget*) {
            dialog.GetButton(kCancel)->setFocus();
            QTest::keyClick(dialog.GetButton(kCancel), Qt::Key_Enter);
        });
        row("Return, OK disabled", "", [](KvCustomDialog& dialog, QWidget* input) {
            dialog.SetButtonEnabled(kOk, false);
            QTest::keyClick(input, Qt::Key_Return);
        });
        row("Return, OK hidden and shown again", "ok ", [](KvCustomDialog& dialog, QWidget* input) {
            dialog.SetButtonVisible(kOk, false);
            QTest::keyClick(input, Qt::Key_Return);
            dialog.SetButtonVisible(kOk, true);
            QTest::keyClick(input, Qt::Key_Return);
        });
        row("a button that the client has deleted", "ok ", [](KvCustomDialog& dialog, QWidget* input) {
            delete dialog.GetButton(kCancel);
            QVERIFY(dialog.GetButton(kCancel) == nullptr);
            dialog.SetButtonText(kCancel, QStringLiteral("No"));
            QTest::keyClick(input, Qt::Key_Return);
        });
    }

    /// Catches swapped signals, buttons that close the dialog before the client has looked at its input, an
    /// Enter key that presses nothing, the first button of the row, or one that cannot be seen or pressed,
    /// and the use of a button that is gone.
    void ButtonsReport()
    {
        QFETCH(DialogAct, act);
        KvCustomDialog dialog(nullptr, kOk | kCancel | kOpen);
        auto* input = new QLineEdit(dialog.GetCentralWidget());
        QString log;
        connect(&dialog, &KvCustomDialog::SignalOkButtonClicked, [&] { log += QStringLiteral("ok "); });
        connect(
            &dialog, &KvCustomDialog::SignalCancelButtonClicked, [&] { log += QStringLiteral("cancel "); });
        connect(&dialog, &KvCustomDialog::SignalOtherButtonClicked, [&] { log += QStringLiteral("other "); });
        Show(dialog);
        input->setFocus();
        act(dialog, input);
        QTEST(log, "log");
        QVERIFY(dialog.isVisible());
    }

    void SlotDeletesTheDialog_data()
    {
        using Act = std::function<void(KvCustomDialog*)>;
        TestSupport::Columns<Act, Act>("connectTo", "act");
        const auto row = [](const char* name, auto signal, const Act& act) {
            QTest::newRow(name) << Act([signal](KvCustomDialog* dialog) {
                TestSupport::DeleteAt(dialog, signal);
            }) << act;
        };
        // The release of a key would go to a window that is gone.
        const auto press = [](Qt::Key key) {
            return [key](KvCustomDialog* dialog) { QTest::keyPress(dialog->windowHandle(), key); };
        };
        const auto close = [](KvCustomDialog* dialog) { ClickOn(Part(*dialog, "kvDialogCloseButton")); };
        row("OK clicked", &KvCustomDialog::SignalOkButtonClicked,
            [](KvCustomDialog* dialog) { ClickOn(dialog->GetButton(kOk)); });
        row("Enter", &KvCustomDialog::SignalOkButtonClicked, press(Qt::Key_Return));
        row("rejected by Escape", &QDialog::rejected, press(Qt::Key_Escape));
        row("rejected by the close button", &QDialog::rejected, close);
        row("rejected by the desktop", &QDialog::rejected, [](KvCustomDialog* dialog) { dialog->close(); });
        row("finished", &QDialog::finished, close);
        row("accepted", &QDialog::accepted, [](KvCustomDialog* dialog) { dialog->accept(); });
    }

    /// Catches any use of the dialog after the signal in whose slot the client deleted it.
    void SlotDeletesTheDialog()
    {
        QFETCH(std::function<void(KvCustomDialog*)>, connectTo);
        QFETCH(std::function<void(KvCustomDialog*)>, act);
        const QPointer<KvCustomDialog> dialog(new KvCustomDialog);
        connectTo(dialog);
        QCOMPARE(ExecAnd(dialog, [=] { act(dialog); }), int(QDialog::Rejected)); // what exec() says then
        QVERIFY(dialog.isNull());
    }

    /// Catches a modal loop that touches its dialog after the parent took it along.
    void ParentDestroyedInsideTheLoop()
    {
        auto* parent = new Window;
        auto* outer = new KvCustomDialog(parent);
        auto* inner = new KvCustomDialog(outer);
        int innerResult = -1;
        const int outerResult = ExecAnd(outer, [&] {
            innerResult = ExecAnd(inner, [&] {
                Notify("about to go", inner);
                delete parent;
            });
        });
        QCOMPARE(innerResult, int(QDialog::Rejected));
        QCOMPARE(outerResult, int(QDialog::Rejected));
        QCOMPARE(Messages().size(), 0);
    }

    /// Catches a dialog that keeps its size when the client leaves the size to the layout, or cuts buttons
    /// off.
    void SmallDialogsFitTheirContent()
    {
        KvCustomDialog dialog(nullptr, kOk | kCancel | kOpen);
        auto* layout = new QVBoxLayout(dialog.GetCentralWidget());
        auto* content = new QWidget;
        content->setMinimumSize(120, 50);
        layout->addWidget(content);
        dialog.resize(1, 1);
        Show(dialog);
        QVERIFY(dialog.width() < 500 && dialog.height() < 200);
        QVERIFY(content->height() >= 50);
        for (const int value : {kOk, kCancel, kOpen}) {
            const KvPushButton* button = dialog.GetButton(value);
            QVERIFY(dialog.rect().contains(QRect(button->mapTo(&dialog, QPoint()), button->size())));
            QVERIFY(button->width() >= button->sizeHint().width());
        }
    }

    /// Catches a dialog whose title bar and buttons lose their look when a subclass sets a sheet.
    void OwnSheetLeavesTheFrame()
    {
        KvCustomDialog dialog;
        dialog.resize(300, 200);
        Show(dialog);
        const auto parts = [&] {
            const QImage image = dialog.grab().toImage();
            return QVector<QRgb>{image.pixel(150, 3), image.pixel(3, 197), image.pixel(0, 10)};
        };
        const QVector<QRgb> before = parts();
        dialog.setStyleSheet(QStringLiteral("QLabel { color: red } QWidget { background-color: lime }"));
        QCOMPARE(parts(), before);
    }

    void WidgetsFollowTheSkin_data()
    {
        using Make = std::function<QWidget*()>;
        QTest::addColumn<Make>("make");
        const auto row = [](const char* name, const Make& make) { QTest::newRow(name) << make; };
        row("button", [] { return new KvPushButton(QStringLiteral("OK")); });
        row("check box", [] { return new KvCheckBox(QStringLiteral("Keep")); });
        row("menu", [] { return new KvMenu(QStringLiteral("Menu")); });
        row("bar", [] { return new KvHorScrollBar; });
        row("bars", [] { return new KvVerScrollBar; });
        row("dialog", [] { return new KvDialog; });
        row("message", [] { return new NotificationPopup(QStringLiteral("Saved"), 1000, nullptr); });
    }

    /// Catches a widget that has no look, the same in both skins, or keeps the old one.
    void WidgetsFollowTheSkin()
    {
        QFETCH(std::function<QWidget*()>, make);
        const std::unique_ptr<QWidget> widget(make());
        widget->setAttribute(Qt::WA_DeleteOnClose, false);
        widget->resize(300, 120);
        const auto look = [&] {
            QImage image(widget->size(), QImage::Format_ARGB32);
            image.fill(Qt::transparent);
            widget->render(&image);
            return image;
        };
        const QImage black = look();
        KvGUI::SetSkinVersion(kWhite);
        const QImage white = look();
        QVERIFY(white != black);
        KvGUI::SetSkinVersion(kBlack);
        QCOMPARE(look(), black);
    }

    /// Catches a base class's look that comes over a client's own sheet, at first or with the next skin.
    void OwnSheetsTakeThePlace()
    {
        const QString own = QStringLiteral("QPushButton { color: red }");
        KvPushButton before(QStringLiteral("OK"));
        before.setStyleSheet(own);
        before.ensurePolished();
        QCOMPARE(before.styleSheet(), own);
        KvPushButton after(QStringLiteral("OK"));
        after.ensurePolished();
        QVERIFY(!after.styleSheet().isEmpty());
        after.setStyleSheet(own);
        KvGUI::SetSkinVersion(kWhite);
        QCOMPARE(before.styleSheet(), own);
        QCOMPARE(after.styleSheet(), own);
        before.setStyleSheet(QString()); // back to the library's
        KvGUI::SetSkinVersion(kBlack);
        QVERIFY(!before.styleSheet().isEmpty());
        KvPushButton bare(QStringLiteral("OK"));
        StyledWidgets::Instance().Forget(&bare);
        bare.ensurePolished();
        QVERIFY(bare.styleSheet().isEmpty());
    }

    /// Catches a dialog in the look of its base class: Qt does not parse a second sheet by itself when
    /// children have asked for the first before the dialog is shown.
    void SecondSheetReachesTheChildren()
    {
        QWidget widget;
        UICommonMdl::CommonFun::SetStyleSheet(
            &widget, QStringLiteral("BasicUIComponents"), QStringLiteral("KvMenu.css"), QString());
        QLabel label(QStringLiteral("x"), &widget);
        label.setObjectName(QStringLiteral("hint"));
        label.ensurePolished();
        UICommonMdl::CommonFun::SetStyleSheet(
            &widget, QStringLiteral("CutPhotoWnd"), QStringLiteral("CCutPhotoDlg.qss"), QString());
        widget.show();
        QCOMPARE(label.font().pixelSize(), 12);
    }

    /// Catches a light menu in the dark skin: the crop canvas gives its menu a sheet for the chosen item
    /// only.
    void MenuWithAClientsSheetKeepsTheSkin()
    {
        QWidget host;
        host.setLayout(new QVBoxLayout);
        for (const QString& skin : {kBlack, kWhite, kBlack}) {
            KvGUI::SetSkinVersion(skin);
            KvMenu menu(&host);
            menu.setStyleSheet(QStringLiteral("QMenu::item:selected { color: red }"));
            menu.addAction(QStringLiteral("Search"));
            menu.ensurePolished();
            menu.resize(200, menu.sizeHint().height());
            const int lightness = menu.grab().toImage().pixelColor(190, menu.height() / 2).lightness();
            QCOMPARE(lightness < 128, skin == kBlack);
        }
    }

    void PaletteLines_data()
    {
        TestSupport::Columns<QString, QColor, QColor>("text", "active", "disabled");
        const QColor blue(Qt::blue);
        const QColor red(Qt::red);
        QTest::newRow("both") << QStringLiteral("Text #ff0000") << red << red;
        QTest::newRow("disabled only") << QStringLiteral("DisabledText red") << blue << red;
        QTest::newRow("disabled after") << QStringLiteral("Text red\nDisabledText blue\n") << red << blue;
        QTest::newRow("blanks") << QStringLiteral(" Text\t #ff0000 \r\n\n") << red << red;
        QTest::newRow("no colour") << QStringLiteral("Text reddish") << blue << blue;
        QTest::newRow("no role") << QStringLiteral("Txet red\nNColorRoles red\n red red") << blue << blue;
        QTest::newRow("too many words") << QStringLiteral("Text red blue") << blue << blue;
        QTest::newRow("nothing") << QString() << blue << blue;
    }

    /// Catches a line that changes more than it says, and a bad one that changes anything.
    void PaletteLines()
    {
        QFETCH(QString, text);
        QFETCH(QColor, active);
        QFETCH(QColor, disabled);
        QPalette base;
        base.setColor(QPalette::Text, Qt::blue);
        const QPalette palette = PaletteFromText(text, base);
        QCOMPARE(palette.color(QPalette::Active, QPalette::Text), active);
        QCOMPARE(palette.color(QPalette::Inactive, QPalette::Text), active);
        QCOMPARE(palette.color(QPalette::Disabled, QPalette::Text), disabled);
        QCOMPARE(palette.color(QPalette::Window), base.color(QPalette::Window));
    }

    void MessagePlaces_data()
    {
        TestSupport::Columns<QRect, QVector<QPoint>>("window", "places");
        const QRect usual(100, 100, 600, 400);
        QTest::newRow("in the window") << usual << QVector<QPoint>{{484, 176}, {584, 224}};
        QTest::newRow("window off to the left")
            << QRect(-500, 100, 600, 400) << QVector<QPoint>{{20, 176}, {20, 224}};
        QTest::newRow("window off to the right")
            << QRect(700, 100, 600, 400) << QVector<QPoint>{{620, 176}, {720, 224}};
        QTest::newRow("window above") << QRect(100, -300, 600, 400) << QVector<QPoint>{{484, 10}, {584, 58}};
        QTest::newRow("window below") << QRect(100, 900, 600, 400) << QVector<QPoint>{{484, 522}, {584, 570}};
    }

    /// Catches messages outside the screen, on each other, or far from their window.
    void MessagePlaces()
    {
        QFETCH(QRect, window);
        QFETCH(QVector<QPoint>, places);
        const QRect available(20, 10, 800, 600);
        QCOMPARE(NotificationPlaces(window, available, {QSize(200, 40), QSize(100, 40)}), places);
        QVERIFY(NotificationPlaces(window, available, {}).isEmpty());
        const auto huge = NotificationPlaces(window, available, {QSize(2000, 2000)});
        QCOMPARE(huge, QVector<QPoint>{available.topLeft()});
    }

    /// Catches messages that cover each other, cut their text or leave the screen.
    void MessagesStackInsideTheScreen()
    {
        Window window({500, 550, 290, 200});
        Notify("Saved", &window);
        Notify(
            "A message that is a good deal longer than one line can be, so that its words are wrapped, "
            "with\na line end of its own in it as well",
            &window);
        Notify(
            "\"main_gate_camera_12_at_2026-03-14_10-24-36_third_visitor_with_a_red_coat.jpg\" was saved",
            &window);
        const auto messages = Messages();
        QCOMPARE(messages.size(), 3);
        QRect before;
        for (NotificationPopup* message : messages) {
            QVERIFY(QGuiApplication::primaryScreen()->availableGeometry().contains(message->geometry()));
            QVERIFY(message->geometry().top() > before.bottom());
            before = message->geometry();
            const auto* text = message->findChild<QLabel*>(QStringLiteral("kvNotificationText"));
            QVERIFY(text->heightForWidth(text->width()) <= text->height());
            const QRect drawn
                = text->fontMetrics().boundingRect(text->rect(), Qt::TextWordWrap, text->text());
            QVERIFY(drawn.width() <= text->width());
        }
        QVERIFY(messages.at(1)->height() > messages.at(0)->height());
        messages.at(1)->close();
        QCOMPARE(Messages().size(), 2);
        QVERIFY(Messages().at(1)->y() <= Messages().at(0)->geometry().bottom() + 20);
    }

    /// Catches a message that goes while it is read.
    void PointerKeepsAMessage()
    {
        Window window;
        Notify("Saved", &window);
        const QPointer<NotificationPopup> message(Messages().at(0));
        QVERIFY(QTest::qWaitForWindowExposed(message));
        QEvent enter(QEvent::Enter);
        QApplication::sendEvent(message, &enter);
        KvMessageNotify::Instance()->SetDisplayTime(60);
        Notify("Saved", &window); // the same again does not start the clock under the pointer
        QTest::qWait(150);
        QVERIFY(!message.isNull());
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(message, &leave);
        QTRY_VERIFY(message.isNull());
    }

    /// Catches a message that takes the keyboard from an operator who is typing.
    void MessageTakesNoFocus()
    {
        Window window;
        auto* edit = new QLineEdit;
        window.layout()->addWidget(edit);
        edit->setFocus();
        Notify("Saved", &window);
        QVERIFY(QTest::qWaitForWindowExposed(Messages().at(0)));
        QTest::mouseClick(Messages().at(0)->windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(30, 10));
        QTest::qWait(20);
        QCOMPARE(QApplication::activeWindow(), &window);
        QCOMPARE(QApplication::focusWidget(), edit);
        QTest::keyClick(QApplication::focusWindow(), Qt::Key_A);
        QCOMPARE(edit->text(), QStringLiteral("a"));
    }

    /// Catches a message that a modal dialog makes dead.
    void MessageClosesInsideAModalLoop()
    {
        KvCustomDialog dialog;
        int left = -1;
        ExecAnd(&dialog, [&] {
            Notify("Please select a valid area to cut.", &dialog);
            QVERIFY(QTest::qWaitForWindowExposed(Messages().at(0)));
            ClickOn(Part(*Messages().at(0), "kvNotificationClose"));
            left = Messages().size();
            dialog.reject();
        });
        QCOMPARE(left, 0);
    }

    /// Catches a message that a screen reader takes for a window like any other, and one without its text.
    void MessageIsAnAlert()
    {
        Window window;
        Notify("Saved", &window);
        const QAccessibleInterface* message = QAccessible::queryAccessibleInterface(Messages().at(0));
        QCOMPARE(message->role(), QAccessible::AlertMessage);
        QCOMPARE(message->text(QAccessible::Name), QStringLiteral("Saved"));
        const QAccessibleInterface* close
            = QAccessible::queryAccessibleInterface(Part(*Messages().at(0), "kvNotificationClose"));
        QVERIFY(!close->text(QAccessible::Name).isEmpty());
    }

    /// Catches a pile of equal messages after as many clicks, equal texts that are held back elsewhere, a
    /// screen that fills with messages, and the newest as the one that goes.
    void RepeatedMessages()
    {
        QWidget window;
        window.setLayout(new QVBoxLayout);
        KvDialog dialog(&window);
        for (int i = 0; i < 3; ++i)
            Notify("Saved", &window);
        QCOMPARE(Messages().size(), 1);
        Notify("Saved", &dialog);
        QCOMPARE(Messages().size(), 2);
        Notify("", &window);
        QCOMPARE(Messages().size(), 2);
        KvMessageNotify::Instance()->CloseAll();
        for (const char* text : {"a", "b", "c", "d", "e", "f", "g"})
            Notify(text, &window);
        QCOMPARE(Texts().join(QString()), QStringLiteral("cdefg"));
    }

    /// Catches a message that vanishes together with the menu in whose action it was shown.
    void MessageOfAMenuBelongsToItsWindow()
    {
        Window window;
        {
            KvMenu menu(&window);
            menu.addAction(QStringLiteral("Search"));
            menu.popup(window.pos());
            Notify("Nothing found", &menu);
        }
        QCOMPARE(Texts(), QStringList(QStringLiteral("Nothing found")));
    }

    /// Catches messages without a window that are lost, and a crash where no window is active.
    void MessagesOfNoWindow()
    {
        KvMenu menu; // a pop-up of no window
        Notify("Connected", &menu);
        QCOMPARE(Texts(), QStringList(QStringLiteral("Connected")));
        {
            Window window;
            Notify("Saved", nullptr);
            QCOMPARE(Messages().size(), 2);
        }
        for (int i = 0; i < 2; ++i)
            Notify("Lost", nullptr);
        QCOMPARE(Texts().count(QStringLiteral("Lost")), 1);
        KvMessageNotify::Instance()->CloseAll();
        QCOMPARE(Messages().size(), 0);
    }

    /// Catches messages that stay behind when the window is dragged away, outlive it, or touch it on the way
    /// out, whatever goes first.
    void MessagesGoWithTheirWindow()
    {
        auto* window = new Window({10, 10, 300, 200});
        Notify("a", window);
        const QPoint before = Messages().at(0)->pos();
        window->move(window->pos() + QPoint(200, 150));
        QTRY_COMPARE(Messages().at(0)->pos(), before + QPoint(200, 150));
        Notify("b", window);
        Notify("c", window);
        delete Messages().at(1); // as a client could that looks through the windows
        QCOMPARE(Texts().join(QString()), QStringLiteral("ac"));
        delete window;
        QCOMPARE(Messages().size(), 0);
    }
};

STRICT_TEST_MAIN(TestBasicUi)
#include "tst_basicui.moc"
