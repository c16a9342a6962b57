#include "support/AtEvent.h"
#include "support/Columns.h"
#include "support/SmallVideo.h"
#include "support/StrictMain.h"
#include "support/WallMouse.h"

#include <Platform/BasicUIComponents/KvSkin.h>
#include <UI/Dialogs/KvVolumeButton.h>
#include <gallery/Pictures/CameraTile.h>
#include <gallery/Pictures/PictureFit.h>
#include <gallery/Wall/WallPage.h>
#include <gallery/Wall/WallRules.h>

#include <QtTest>
#include <QtWidgets>
#include <memory>

using namespace OperatorClient;
using Command = WallToolBar::Command;

namespace {

const QColor PhotoColor(12, 200, 34);
constexpr int UnseenVideo = 2500; // milliseconds until a video pauses that nobody sees
constexpr int AfterSaving = 500; // longer than the page waits before it saves

/// A wall page on the display with its layout in a file of its own folder.
struct Client
{
    explicit Client(
        const QString& path, const WallLayout& layout = FirstWall(), const QVector<SourceSpec>& files = {})
        : file(path)
        , page(pool, clock, file, layout, files, &host)
        , mouse(page.Cameras()->Wall())
    {
        // A window without a layout sends no size hints, which the offscreen platform would warn of.
        host.resize(1000, 700);
        page.resize(host.size());
        host.show();
        QVERIFY(QTest::qWaitForWindowExposed(&host));
    }

    WallWidget* Wall() const { return page.Cameras()->Wall(); }
    QAction* Action(Command command) const { return page.findChild<WallToolBar*>()->Action(command); }

    /// A point of a screen, given by fractions, in wall pixels.
    QPoint OnScreen(int screen, double x, double y) const
    {
        KvGUI::StructScaleRect rect;
        Wall()->GetScreenScale(screen, rect);
        return QPointF(
                   Wall()->width() * (rect.dLeft + x * (rect.dRight - rect.dLeft)),
                   Wall()->height() * (rect.dTop + y * (rect.dBottom - rect.dTop)))
            .toPoint();
    }

    /// The widget that shows the video of a window; null elsewhere.
    QWidget* VideoAt(const QPoint& at) const { return Wall()->childAt(at); }

    bool Drop(const QPoint& at, const QMimeData& data)
    {
        if (!mouse.DragEnter(at, data))
            return false;
        mouse.Drop(at, data);
        return true;
    }

    QPushButton* Button(int screen, int window, const char* name) const
    {
        const QWidget* video = Wall()->GetWindowWidget(screen, window);
        return video->parentWidget()->findChild<QPushButton*>(QLatin1String(name));
    }

    int SavedWindows(int screen) const
    {
        const auto layout = file.Read();
        return layout && screen < layout->screens.size() ? layout->screens.at(screen).windows.size() : -1;
    }

    SourcePool pool;
    FrameClock clock;
    WallLayoutFile file;
    QWidget host;
    WallPage page;
    TestSupport::WallMouse mouse;
};

void WriteRaw(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

QByteArray ReadRaw(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString ManyWindows(int count)
{
    QStringList windows;
    for (int i = 0; i < count; ++i)
        windows << QStringLiteral("{\"rect\":[0,0,1,1],\"z\":%1}").arg(i);
    return QStringLiteral("{\"screens\":[{\"rect\":[0,0,1,1],\"windows\":[%1]}]}")
        .arg(windows.join(QLatin1Char(',')));
}

QString ManyScreens(int count)
{
    QStringList screens;
    for (int i = 0; i < count; ++i)
        screens << QStringLiteral(
            "{\"rect\":[0,0,0.1,0.1],\"windows\":[{\"rect\":[0,0,1,1]},{\"rect\":[0,0,1,1]}]}");
    return QStringLiteral("{\"screens\":[%1]}").arg(screens.join(QLatin1Char(',')));
}

bool IsInside(const KvGUI::StructScaleRect& rect)
{
    return rect.dLeft >= 0 && rect.dTop >= 0 && rect.dRight <= 1 && rect.dBottom <= 1
        && rect.dLeft < rect.dRight && rect.dTop < rect.dBottom;
}

} // namespace

class tst_gallery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_strLayout = m_folder.filePath(QStringLiteral("case%1/wall.ini").arg(++m_iCase));
        KvGUI::SetSkinVersion(QStringLiteral("Black"));
    }

    void LayoutComesBack_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("plain") << QStringLiteral("Reserve");
        QTest::newRow("list") << QStringLiteral("a,b, c;d");
        QTest::newRow("quotes") << QStringLiteral("\"x\\y\" = 'z'");
        QTest::newRow("lines") << QStringLiteral("one\ntwo\r\n\tthree");
        QTest::newRow("other letters") << QStringLiteral("Gro\u00dfe Stra\u00dfe \u4e2d\u6587 %1 [Wall]");
    }

    // Catches an INI reader that splits, unescapes or recodes the one value that holds the wall.
    void LayoutComesBack()
    {
        QFETCH(QString, text);
        WallLayout layout = FirstWall();
        layout.selectionMode = 2;
        layout.gutter = false;
        layout.titles = false;
        layout.sound = false;
        layout.volume = 73;
        layout.details = false;
        layout.screens[0].overlays = true;
        layout.screens[1].baseMap = true;
        layout.screens[3].text = text;
        layout.screens[0].windows[1].source = SourceSpec::Photo(QStringLiteral("/a/") + text);
        layout.screens[0].windows[2].source = SourceSpec::Video(text);
        WindowLayout& last = layout.screens[0].windows.last();
        last.rect.dLeft = 2.0 / 3;
        last.rect.dBottom = 0.7000000001;
        last.titled = false;

        WallLayoutFile(m_strLayout).Write(layout);
        const auto read = WallLayoutFile(m_strLayout).Read();
        QVERIFY(read.has_value());
        QCOMPARE(read->ToText(), layout.ToText());
        QCOMPARE(read->screens.at(3).text, text);
        QCOMPARE(read->screens.at(0).windows.at(1).source.path, QStringLiteral("/a/") + text);
    }

    void DamagedLayout_data()
    {
        TestSupport::Columns<QString, bool, int, int>("text", "readable", "screens", "windows");
        const auto row = [](const char* name, const QString& text, bool readable, int screens, int windows) {
            QTest::newRow(name) << text << readable << screens << windows;
        };
        const auto one = [](const QString& window) {
            return QStringLiteral("{\"screens\":[{\"rect\":[0,0,1,1],\"windows\":[%1]}]}").arg(window);
        };
        row("nothing", QString(), false, 0, 0);
        row("cut", FirstWall().ToText().left(300), false, 0, 0);
        row("screens are a number", QStringLiteral("{\"screens\":7}"), false, 0, 0);
        row("deeper than any wall", QString(200000, QLatin1Char('[')), false, 0, 0);
        row("wild grid",
            QStringLiteral("{\"rows\":1e300,\"columns\":-1e300,\"selectionMode\":99,\"screens\":[]}"), true,
            0, 0);
        row("not a number", QStringLiteral("{\"rows\":NaN,\"screens\":[]}"), false, 0, 0);
        row("screens of wrong types", QStringLiteral("{\"screens\":[1,\"x\",null,[],{}]}"), true, 0, 0);
        row("short rectangle", one(QStringLiteral("{\"rect\":[0,0,1]}")), true, 1, 0);
        row("turned rectangle", one(QStringLiteral("{\"rect\":[1,1,0,0]}")), true, 1, 0);
        row("rectangle outside", one(QStringLiteral("{\"rect\":[5,5,9,9]}")), true, 1, 0);
        row("huge rectangle", one(QStringLiteral("{\"rect\":[-1e308,-1e308,1e308,1e308],\"z\":-1e308}")),
            true, 1, 1);
        row("wild source",
            one(QStringLiteral("{\"rect\":[0,0,1,1],\"source\":\"camera:99999999999999999999\"}")), true, 1,
            1);
        row("too many windows", ManyWindows(5000), true, 1, WallLayout::MaxWindows);
        row("too many screens", ManyScreens(3000), true, WallLayout::MaxScreens, 2 * WallLayout::MaxScreens);
    }

    // Catches values of a damaged file that reach the wall: endless counts, NaN geometry, wrong types.
    void DamagedLayout()
    {
        QFETCH(QString, text);
        QFETCH(bool, readable);
        QFETCH(int, screens);
        QFETCH(int, windows);
        const auto layout = WallLayout::FromText(text);
        QCOMPARE(layout.has_value(), readable);
        if (!layout)
            return;
        QVERIFY(layout->rows >= 1 && layout->rows <= WallLayout::MaxGrid);
        QVERIFY(layout->columns >= 1 && layout->columns <= WallLayout::MaxGrid);
        QVERIFY(layout->selectionMode >= 0 && layout->selectionMode <= 2);
        QCOMPARE(layout->screens.size(), screens);
        int count = 0;
        for (const ScreenLayout& screen : layout->screens) {
            QVERIFY(IsInside(screen.rect));
            for (const WindowLayout& window : screen.windows) {
                QVERIFY(IsInside(window.rect));
                QVERIFY(window.z >= 0);
                QVERIFY(window.source.camera >= 1 && window.source.camera <= SourceSpec::MaxCamera);
                ++count;
            }
        }
        QCOMPARE(count, windows);

        Client client(m_strLayout, *layout);
        QCOMPARE(client.Wall()->GetScreenCount(), screens);
        QCOMPARE(client.page.Cameras()->Layout().screens.size(), screens);
    }

    void DamagedFile_data()
    {
        QTest::addColumn<int>("kept"); // bytes of the good file, -1: the file is gone
        QTest::addColumn<QByteArray>("instead"); // what follows them
        QTest::newRow("emptied") << 0 << QByteArray();
        QTest::newRow("gone") << -1 << QByteArray();
        QTest::newRow("cut in the value") << 200 << QByteArray();
        QTest::newRow("cut and filled with zeros") << 200 << QByteArray(4096, '\0');
        QTest::newRow("one endless line") << 7 << QByteArray(1 << 20, 'x');
    }

    // Catches a start that loses the wall after a power loss in the middle of a write, and a next save that
    // cannot get over the damaged file.
    void DamagedFile()
    {
        QFETCH(int, kept);
        QFETCH(QByteArray, instead);
        WallLayout layout = FirstWall();
        layout.screens[3].text = QStringLiteral("Before the crash");
        WallLayoutFile(m_strLayout).Write(layout);
        const QByteArray good = ReadRaw(m_strLayout);
        if (kept < 0)
            QVERIFY(QFile::remove(m_strLayout));
        else
            WriteRaw(m_strLayout, good.left(kept) + instead);

        const auto restored = WallLayoutFile(m_strLayout).Read();
        QVERIFY(restored.has_value());
        QCOMPARE(restored->ToText(), layout.ToText());

        layout.screens[3].text = QStringLiteral("After it");
        WallLayoutFile(m_strLayout).Write(layout);
        const auto saved = WallLayoutFile(m_strLayout).Read();
        QVERIFY(saved.has_value());
        QCOMPARE(saved->screens.at(3).text, QStringLiteral("After it"));
    }

    // Catches cells counted as taken by a screen that only touches them, and screens put on top of others.
    void FreeCells()
    {
        const auto free = [](int rows, int columns, const KvGUI::StructScaleRect& taken) {
            return OperatorClient::FreeCells(rows, columns, {taken}).size();
        };
        QCOMPARE(free(2, 2, {0, 0, 0.5, 0.5}), 3);
        QCOMPARE(free(3, 3, {0, 0, 1.0 / 3, 1}), 6); // its neighbours only touch
        QCOMPARE(free(4, 4, {0, 0, 0.5, 0.5}), 12);
        QCOMPARE(free(0, 0, {0, 0, 0.5, 0.5}), 0);
    }

    // Catches windows that change places among themselves when they are raised or lowered together.
    void StackingOrder()
    {
        using OperatorClient::StackingOrder;
        using V = QVector<int>;
        QCOMPARE(StackingOrder({}, {}, true), V());
        QCOMPARE(StackingOrder({1, 2, 3}, {0}, true), V({1, 2, 0}));
        QCOMPARE(StackingOrder({1, 2, 3}, {2}, false), V({2, 0, 1}));
        QCOMPARE(StackingOrder({4, 3, 2, 1}, {0, 2}, true), V({3, 1, 2, 0}));
        QCOMPARE(StackingOrder({0, 0, 0}, {1}, false), V({1, 0, 2}));
        QCOMPARE(StackingOrder({2, 1}, {7}, true), V({1, 0})); // a window that is not there
    }

    // Catches a dropped window that stands partly outside its screen, or nowhere.
    void DroppedWindowStaysInside()
    {
        for (const QPointF& centre :
             {QPointF(0.5, 0.5), QPointF(0, 1), QPointF(-3, 7), QPointF(qQNaN(), qInf())})
            QVERIFY(IsInside(PlaceAround(centre)));
    }

    // Catches what a restart forgets: places, stacking, sources, switches.
    void WallComesBack()
    {
        QString before;
        {
            Client client(m_strLayout);
            client.page.Cameras()->OpenWindow(3, {0.1, 0.1, 0.6, 0.6, true});
            client.page.Cameras()->OpenWindow(
                3, {0.3, 0.3, 0.9, 0.9, true}, SourceSpec::Photo(QStringLiteral("/no/such.png")));
            client.mouse.Click(client.OnScreen(3, 0.02, 0.02));
            client.Wall()->SetSelectedWindowIndexs(3, 0, true);
            client.Action(Command::Raise)->trigger();
            client.Action(Command::Titles)->trigger();
            client.Action(Command::Gutter)->trigger();
            client.Action(Command::SelectMany)->trigger();
            client.Action(Command::BaseMap)->trigger();
            client.Action(Command::Details)->trigger();
            client.page.findChild<WallToolBar*>()->VolumeButton()->SetVolumeValue(73);
            before = client.page.Cameras()->Layout().ToText();
            // Ends before the delayed save.
        }
        const auto stored = WallLayoutFile(m_strLayout).Read();
        QVERIFY(stored.has_value());
        Client again(m_strLayout, *stored);
        QCOMPARE(again.page.Cameras()->Layout().ToText(), before);
        QVERIFY(again.Action(Command::SelectMany)->isChecked());
        QVERIFY(!again.Action(Command::Titles)->isChecked() && !again.Action(Command::Details)->isChecked());
        QCOMPARE(again.page.findChild<WallToolBar*>()->VolumeButton()->GetVolumeValue(), 73);
        const QPoint overlap = again.OnScreen(3, 0.45, 0.5);
        QCOMPARE(again.VideoAt(overlap), again.Wall()->GetWindowWidget(3, 0));
    }

    // Catches a drawn area that opens no window, one elsewhere, one without a picture, or one that is not
    // saved.
    void DrawnAreaOpensWindow()
    {
        Client client(m_strLayout);
        const QPoint from = client.OnScreen(3, 0.2, 0.2);
        const QPoint to = client.OnScreen(3, 0.7, 0.6);
        client.mouse.Drag(from, to);
        QCOMPARE(client.Wall()->GetWindowCount(3), 1);
        QWidget* video = client.Wall()->GetWindowWidget(3, 0);
        const QRect place(video->mapTo(client.Wall(), QPoint()), video->size());
        QVERIFY(QRect(from, to).adjusted(-3, -3, 3, 30).contains(place));
        QVERIFY(video->findChild<CameraTile*>());
        // The mouse must reach the window through its picture.
        QCOMPARE(client.VideoAt(place.center()), video);
        QTRY_COMPARE_WITH_TIMEOUT(client.SavedWindows(3), 1, 5 * AfterSaving);
    }

    // Catches a close button that does nothing, closes a neighbour, or is forgotten by the layout file.
    void CloseButtonClosesWindow()
    {
        Client client(m_strLayout);
        const QString second = client.page.Cameras()->Layout().screens.at(0).windows.at(1).source.ToText();
        QTest::mouseClick(client.Button(0, 0, "pWindowCloseBtn"), Qt::LeftButton);
        QCOMPARE(client.Wall()->GetWindowCount(0), 3);
        QCOMPARE(client.page.Cameras()->Layout().screens.at(0).windows.at(0).source.ToText(), second);
        QTRY_COMPARE_WITH_TIMEOUT(client.SavedWindows(0), 3, 5 * AfterSaving);
    }

    // Catches stacking commands that only change numbers, or stack the wrong way round.
    void RaiseAndLower()
    {
        Client client(m_strLayout);
        // The second free window lies over the first where they overlap.
        const QPoint overlap = client.OnScreen(2, 0.4, 0.52);
        QCOMPARE(client.VideoAt(overlap), client.Wall()->GetWindowWidget(2, 1));
        client.Action(Command::SelectOne)->trigger();
        client.mouse.Click(client.OnScreen(2, 0.15, 0.3));
        QCOMPARE(client.Wall()->GetSelectedWindowIndexs(), QList<int>{0});
        client.Action(Command::Raise)->trigger();
        QCOMPARE(client.VideoAt(overlap), client.Wall()->GetWindowWidget(2, 0));
        client.Action(Command::Lower)->trigger();
        QCOMPARE(client.VideoAt(overlap), client.Wall()->GetWindowWidget(2, 1));
        client.Action(Command::CloseSelected)->trigger();
        QCOMPARE(client.Wall()->GetWindowCount(2), 2);
    }

    // Catches a drop that opens a window over a window instead of replacing its picture, or somewhere else,
    // or that is taken although it holds nothing that can be shown.
    void DropOnScreenAndWindow()
    {
        Client client(m_strLayout);
        const QString photo = WritePhoto();
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(photo)});

        QVERIFY(client.Drop(client.OnScreen(3, 0.9, 0.2), data));
        QCOMPARE(client.Wall()->GetWindowCount(3), 1);
        KvGUI::StructScaleRect rect;
        QVERIFY(client.Wall()->GetWindowScale(3, 0, rect));
        QVERIFY(IsInside(rect) && rect.dLeft > 0.5 && rect.dTop < 0.2);

        QVERIFY(client.Drop(client.OnScreen(1, 0.5, 0.5), data));
        QCOMPARE(client.Wall()->GetWindowCount(1), 1);
        QCOMPARE(client.page.Cameras()->Layout().screens.at(1).windows.at(0).source.path, photo);
        const QPoint middle = client.OnScreen(1, 0.5, 0.5);
        const QImage shown = client.Wall()->grab().toImage();
        QCOMPARE(shown.pixelColor(middle), PhotoColor);

        const QString text = m_folder.filePath(QStringLiteral("notes.txt"));
        WriteRaw(text, "no picture");
        data.setUrls({QUrl(QStringLiteral("https://example.org/a.png")), QUrl::fromLocalFile(text)});
        QVERIFY(!client.mouse.DragEnter(client.OnScreen(3, 0.5, 0.5), data));
        QVERIFY(!client.mouse.DragEnter(middle, data));
    }

    // Catches files of the command line that are lost when there are more of them than windows.
    void FilesTakeFirstWindows()
    {
        WallLayout layout = FirstWall();
        layout.screens.remove(2, 2);
        layout.screens.remove(0);
        const QVector<SourceSpec> files{
            SourceSpec::Photo(QStringLiteral("/no/1.png")), SourceSpec::Photo(QStringLiteral("/no/2.png"))};
        Client client(m_strLayout, layout, files);
        const auto source = [&](int window) {
            return client.page.Cameras()->Layout().screens.at(0).windows.at(window).source;
        };
        QVERIFY(source(0) == files.at(0));
        client.Action(Command::OpenWindow)->trigger();
        QVERIFY(source(1) == files.at(1));
        client.Action(Command::OpenWindow)->trigger();
        QVERIFY(source(2) == SourceSpec::Camera(1));
    }

    // Catches screens put on taken cells, a gutter that new screens do not follow, and commands that fail on
    // a wall without screens.
    void GridAndScreens()
    {
        Client client(m_strLayout);
        client.Action(Command::AddScreen)->trigger();
        QCOMPARE(client.Wall()->GetScreenCount(), 4); // no free cell
        client.Action(Command::RemoveAll)->trigger();
        QCOMPARE(client.Wall()->GetScreenCount(), 0);
        QVERIFY(!client.Action(Command::Overlays)->isEnabled());
        client.Action(Command::OpenWindow)->trigger();
        client.Action(Command::Raise)->trigger();
        client.Action(Command::CloseSelected)->trigger();
        client.Action(Command::Gutter)->trigger();
        client.page.Cameras()->SetGrid(2, 2);
        client.Action(Command::AddScreen)->trigger();
        client.Action(Command::FillGrid)->trigger();
        QCOMPARE(client.Wall()->GetScreenCount(), 4);
        // Without the gutter the first screen reaches to the second.
        const QPoint edge(client.Wall()->width() / 2 - 2, client.Wall()->height() / 4);
        QVERIFY(client.VideoAt(edge));
    }

    // Catches switches that show the state of another screen than the selected one.
    void SwitchesFollowSelectedScreen()
    {
        Client client(m_strLayout);
        client.mouse.Click(client.OnScreen(3, 0.5, 0.5));
        QCOMPARE(client.Wall()->GetSelectedScreenIndex(), 3);
        const QImage before = client.Wall()->grab().toImage();
        client.Action(Command::BaseMap)->trigger();
        client.Action(Command::Overlays)->trigger();
        QVERIFY(client.Action(Command::BaseMap)->isChecked());
        const QPoint onMap = client.OnScreen(3, 0.7, 0.3);
        const QImage after = client.Wall()->grab().toImage();
        QVERIFY(after.pixel(onMap) != before.pixel(onMap));
        client.mouse.Click(client.OnScreen(2, 0.01, 0.99));
        QVERIFY(!client.Action(Command::BaseMap)->isChecked());
        QVERIFY(!client.Action(Command::Overlays)->isChecked());
        client.mouse.Click(client.OnScreen(3, 0.5, 0.5));
        QVERIFY(client.Action(Command::BaseMap)->isChecked());
    }

    // Catches a switch of the family that loses a part of the wall, also after a restart, and tools of the
    // other family left on.
    void FamilySwitchCarriesTheWall()
    {
        WallLayout layout;
        {
            Client client(m_strLayout);
            layout = client.page.Cameras()->Layout();
            client.Action(Command::SceneFamily)->trigger();
            layout.family = WallLayout::NormalFamily;
            QCOMPARE(client.page.Cameras()->Layout().ToText(), layout.ToText());
            QVERIFY(client.Wall()->GetWindowWidget(0, 3)->findChild<CameraTile*>());
            QVERIFY(
                !client.Action(Command::Gutter)->isEnabled()
                && !client.Action(Command::BaseMap)->isEnabled());
            QVERIFY(client.Action(Command::Overlays)->isEnabled()); // the first screen is selected
            client.Action(Command::CellBound)->trigger();
            QVERIFY(!client.Wall()->IsScreenFreeMode(0));
            layout.screens[0].cellBound = true;
        }
        const auto stored = WallLayoutFile(m_strLayout).Read();
        QVERIFY(stored.has_value());
        Client again(m_strLayout, *stored);
        QVERIFY(
            again.Action(Command::SceneFamily)->isChecked() && again.Action(Command::CellBound)->isChecked());
        again.Action(Command::SceneFamily)->trigger();
        layout.family = WallLayout::DisplayFamily;
        QCOMPARE(again.page.Cameras()->Layout().ToText(), layout.ToText());
        QVERIFY(again.Action(Command::Gutter)->isEnabled() && !again.Action(Command::CellBound)->isEnabled());
    }

    void ScreensHaveAMenu_data()
    {
        TestSupport::Columns<int, int>("family", "usable");
        QTest::newRow("of widgets") << int(WallLayout::DisplayFamily) << 5;
        QTest::newRow("in a scene") << int(WallLayout::NormalFamily) << 3;
    }

    // Catches a family whose screens have no menu, and a menu whose commands this family only pretends to do.
    void ScreensHaveAMenu()
    {
        QFETCH(int, family);
        Client client(m_strLayout);
        client.page.Cameras()->SetFamily(family);
        client.mouse.Click(client.OnScreen(3, 0.2, 0.2), Qt::RightButton);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(menu != nullptr);
        const QList<QAction*> actions = menu->actions();
        const auto usable
            = [](const QAction* action) { return !action->isSeparator() && action->isEnabled(); };
        QTEST(int(std::count_if(actions.begin(), actions.end(), usable)), "usable");
        actions.first()->trigger();
        QCOMPARE(client.Wall()->GetWindowCount(3), 1);
        menu->close();
    }

    void ZoomedWallIsUsable_data()
    {
        QTest::addColumn<int>("family");
        QTest::newRow("normal") << WallLayout::NormalFamily;
        QTest::newRow("display") << WallLayout::DisplayFamily;
    }

    // Catches places computed for a wall that is not zoomed: of a drawn area, a drop, and texts on a screen.
    void ZoomedWallIsUsable()
    {
        QFETCH(int, family);
        WallLayout layout = FirstWall();
        layout.family = family;
        Client client(m_strLayout, layout);
        client.mouse.Click(client.OnScreen(3, 0.5, 0.5));
        client.Action(Command::Overlays)->trigger();
        const auto overlay = [&] {
            const auto labels = client.Wall()->findChildren<QLabel*>(QStringLiteral("SongStyle"));
            const auto shown
                = std::find_if(labels.begin(), labels.end(), [](auto* l) { return !l->isHidden(); });
            return shown == labels.end() ? 0 : (*shown)->width();
        };
        const int before = overlay();
        for (int i = 0; i < 2; ++i)
            client.mouse.Wheel(client.OnScreen(3, 0.5, 0.2), 120);
        QTRY_VERIFY(overlay() > 2 * before); // placed again when the zoom has come to rest

        const QPoint from(300, 300); // on the fourth screen, which reaches over the view now
        client.mouse.Drag(from, {600, 420});
        const QWidget* video = client.Wall()->GetWindowWidget(3, 0);
        const auto onWall
            = [&](const QPoint& at) { return client.Wall()->mapFromGlobal(video->mapToGlobal(at)); };
        QVERIFY((onWall(QPoint(0, 0)) - from).manhattanLength() < 32); // below its title bar
        QVERIFY(qAbs(video->width() - 300) < 8);

        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(WritePhoto())});
        const QPoint at(650, 540);
        QVERIFY(client.Drop(at, data));
        video = client.Wall()->GetWindowWidget(3, 1);
        QVERIFY((onWall(video->rect().center()) - at).manhattanLength() < 20);
    }

    // Catches a skin that reaches the wall but not its page's icons.
    void IconsFollowTheSkin()
    {
        Client client(m_strLayout);
        const auto icon = [&] { return client.Action(Command::AddScreen)->icon().pixmap(20, 20).toImage(); };
        const QImage dark = icon();
        QVERIFY(!dark.isNull());
        KvGUI::SetSkinVersion(QStringLiteral("White"));
        QVERIFY(icon() != dark);
    }

    void HiddenTilesRest_data()
    {
        TestSupport::Columns<int>("family");
        QTest::newRow("of widgets") << int(WallLayout::DisplayFamily);
        QTest::newRow("in a scene") << int(WallLayout::NormalFamily);
    }

    // Catches work spent on pictures that nobody sees, and pictures that stand still when they are seen.
    void HiddenTilesRest()
    {
        WallLayout layout = FirstWall();
        QFETCH(int, family);
        layout.family = family;
        Client client(m_strLayout, layout);
        auto* tile = client.Wall()->GetWindowWidget(0, 0)->findChild<CameraTile*>();
        for (int round = 0; round < 2; ++round) {
            QVERIFY(tile->CanBeSeen());
            for (int frame = 0; frame < 3; ++frame) {
                const TestSupport::AtEvent painted(tile, QEvent::Paint, [] {});
                QTRY_VERIFY(painted.HasActed());
            }
            client.page.hide();
            QVERIFY(!tile->CanBeSeen());
            QTRY_VERIFY(!client.clock.IsRunning());
            client.page.show();
        }
    }

    // Catches a video that is decoded while nobody sees it, and one that stays paused when it is seen again.
    void HiddenVideosPause()
    {
        const QString path = m_folder.filePath(QStringLiteral("video.avi"));
        QVERIFY(TestSupport::WriteSmallVideo(path));
        // The player warns where there is no sound device, in words of that machine.
        QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
        const auto rules = qScopeGuard([] { QLoggingCategory::setFilterRules(QString()); });
        Client client(m_strLayout, FirstWall(), {SourceSpec::Video(path)});
        const FrameSource& video = client.Wall()->GetWindowWidget(0, 0)->findChild<CameraTile*>()->Source();
        for (int round = 0; round < 2; ++round) {
            const qint64 before = video.FrameNumber({});
            QTRY_VERIFY(video.FrameNumber({}) > before + 30); // over its end, too
            client.page.hide();
            QTest::qWait(UnseenVideo);
            const qint64 paused = video.FrameNumber({});
            QTest::qWait(400);
            QCOMPARE(video.FrameNumber({}), paused);
            client.page.show();
        }
    }

    void UnreadableFileSaysWhy_data()
    {
        QTest::addColumn<QString>("source");
        QTest::newRow("photo") << QStringLiteral("photo:/no/such/file.png");
        QTest::newRow("video") << QStringLiteral("video:/no/such/file.avi");
        QTest::newRow("video that is a folder") << QStringLiteral("video:/");
    }

    // Catches a window that stays dark without a word when its file cannot be shown.
    void UnreadableFileSaysWhy()
    {
        QFETCH(QString, source);
        SourcePool pool;
        const auto shown = pool.Get(SourceSpec::FromText(source));
        QVERIFY(shown->IsReady());
        QImage image(320, 200, QImage::Format_RGB32);
        QImage empty(image);
        QPainter onEmpty(&empty);
        PaintNoPicture(onEmpty, empty.rect());
        QPainter painter(&image);
        shown->Paint(painter, image.rect(), QDateTime::currentDateTime());
        QVERIFY(image != empty);
        // Nothing may be painted at no size either.
        shown->Paint(painter, QRect(), QDateTime::currentDateTime());
    }

private:
    /// The path of a picture file in one colour.
    QString WritePhoto() const
    {
        QImage image(64, 48, QImage::Format_RGB32);
        image.fill(PhotoColor);
        QString path = m_folder.filePath(QStringLiteral("photo.png"));
        return image.save(path) ? path : QString();
    }

    QTemporaryDir m_folder;
    QString m_strLayout; ///< a layout file that does not exist yet
    int m_iCase = 0;
};

STRICT_TEST_MAIN(tst_gallery)

#include "tst_gallery.moc"
