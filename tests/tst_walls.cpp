// Walls of both families, as clients use them through the operate wall and operators use them by hand. Every
// test runs once for each family; where the families differ, the difference stands in the test.

#include "support/AtEvent.h"
#include "support/Columns.h"
#include "support/ScaleRects.h"
#include "support/StrictMain.h"
#include "support/WallDefaults.h"
#include "support/WallMouse.h"

#include <Platform/BasicUIComponents/KvSkin.h>
#include <UI/TVWall/KvTVWallOperateWnd.h>

#include <QtTest>
#include <QtWidgets>
#include <functional>
#include <limits>
#include <memory>

using Rect = KvGUI::StructScaleRect;
using Wall = UICommonMdl::KvTVWallOperateWnd;

Q_DECLARE_METATYPE(Qt::MouseButton)

namespace {

constexpr Rect Whole{0.0, 0.0, 1.0, 1.0, true};
constexpr Rect LeftUpper{0.1, 0.1, 0.4, 0.5, true}; // 300 x 240 pixels at 100, 60
constexpr Rect RightUpper{0.6, 0.1, 0.9, 0.5, true};
constexpr Rect Fixed{0.1, 0.1, 0.4, 0.5, false};
const QPoint OnEmpty(500, 500);

/// A wall of 1000 x 600 pixels that fills its client's window, with one screen of 2 x 2 cells over all of it.
struct Fixture
{
    explicit Fixture(std::initializer_list<Rect> windows = {})
    {
        QFETCH_GLOBAL(int, family);
        display = family == Wall::DisplayMode;
        client.resize(1000, 600);
        wall->resize(1000, 600);
        wall->SetShowMode(family);
        wall->SetTVWallGridCount(2, 2);
        wall->AddScreen(Whole, QVariant());
        for (const Rect& rect : windows)
            wall->OpenWindow(0, rect, QVariant());
        client.show();
        QVERIFY(QTest::qWaitForWindowExposed(&client));
    }
    ~Fixture() { delete wall; }

    Rect Scale(int window, int screen = 0) const
    {
        Rect rect;
        wall->GetWindowScale(screen, window, rect);
        return rect;
    }
    /// A window's pixels on the wall, seen from its video widget.
    QRect Pixels(int window, int screen = 0) const
    {
        const QWidget* video = wall->GetWindowWidget(screen, window);
        const QPoint corner = wall->mapFromGlobal(video->mapToGlobal(QPoint(0, 0)));
        return {corner - QPoint(1, 26), video->size() + QSize(4, 24)};
    }
    QPoint OnTitle(int window) const { return Pixels(window).topLeft() + QPoint(40, 12); }
    QPoint OnVideo(int window) const { return Pixels(window).topLeft() + QPoint(60, 120); }

    /// The middle of the title bar button that offers an action; null when none does.
    QPoint Button(int window, const char* toolTip) const
    {
        const QString wanted = QLatin1String(toolTip);
        const QRect area = Pixels(window);
        const auto buttons = wall->findChildren<QPushButton*>();
        for (const QPushButton* button : buttons) {
            const QPoint middle = button->mapTo(wall, button->rect().center());
            if (button->toolTip() == wanted && area.contains(middle))
                return middle;
        }
        const auto views = wall->findChildren<QGraphicsView*>();
        for (const QGraphicsView* view : views) {
            const auto items = view->items();
            for (const QGraphicsItem* item : items) {
                const QPoint middle
                    = view->viewport()->mapTo(wall, view->mapFromScene(item->sceneBoundingRect().center()));
                if (item->toolTip() == wanted && item->isVisible() && area.contains(middle))
                    return middle;
            }
        }
        return {};
    }
    void Press(int window, const char* toolTip)
    {
        const QPoint button = Button(window, toolTip);
        QVERIFY2(!button.isNull(), toolTip);
        mouse.Click(button);
    }
    /// By hand, as the display family knows no other way; its windows are deselected by it.
    void SelectScreen() { mouse.Click(OnEmpty); }
    QRgb PixelAt(const QPoint& at) { return client.grab().toImage().pixel(at); }

    QWidget client;
    QPointer<Wall> wall = new Wall(&client);
    TestSupport::WallMouse mouse{wall};
    bool display = false;
    QSignalSpy changed{wall.data(), &Wall::SignalWindowGeoChanged};
    QSignalSpy selected{wall.data(), &Wall::SignalWindowSelectedChanged};
    QSignalSpy clicked{wall.data(), &Wall::SignalWindowClicked};
    QSignalSpy screenSelected{wall.data(), &Wall::SignalScreenSelectedChanged};
    QSignalSpy drawn{wall.data(), &Wall::SignalDrawAreaOpenWindow};
};

/// At 500, 420, 300 x 60 pixels.
KvGUI::StructOSDInfo Overlay(bool roll)
{
    KvGUI::StructOSDInfo info;
    info.iLeft = 4096;
    info.iTop = 5735;
    info.iRight = 6554;
    info.iBottom = 6554;
    info.iBackG = 120;
    info.bRoll = roll;
    info.strText = "overlay";
    return info;
}

const QPoint OnOverlay(502, 460);

struct Action
{
    const char* name;
    std::function<void(Fixture&)> act;
};

/// As a slot does that opens a dialog, while which @p change comes: what is deleted for later goes in it.
std::function<void(Fixture&)> InADialog(const std::function<void(Fixture&)>& change)
{
    return [change](Fixture& f) {
        QEventLoop loop;
        QTimer::singleShot(0, &loop, [&] { change(f); });
        QTimer::singleShot(5, &loop, &QEventLoop::quit);
        loop.exec();
    };
}

/// What a client does to a wall with a window at the wrong moment.
const QVector<Action> Changes = {
    {"a video goes", [](Fixture& f) { f.wall->DeleteWindowWidget(0, 0); }},
    {"a window goes", [](Fixture& f) { f.wall->DeleteWindow(0, 0); }},
    {"all windows go", [](Fixture& f) { f.wall->DeleteAllWindows(); }},
    {"all screens go", [](Fixture& f) { f.wall->DeleteAllScreen(); }},
    {"windows and screens come",
     [](Fixture& f) {
         for (int i = 0; i < 50; ++i) {
             f.wall->AddScreen(Whole, QVariant());
             f.wall->OpenWindow(0, LeftUpper, QVariant());
         }
     }},
    {"the wall goes by its mode",
     [](Fixture& f) { f.wall->SetShowMode(f.display ? Wall::NormalMode : Wall::DisplayMode); }},
    {"the operate wall goes", [](Fixture& f) { delete f.wall; }},
    {"all screens go in a dialog", InADialog([](Fixture& f) { f.wall->DeleteAllScreen(); })},
    {"the operate wall goes in a dialog", InADialog([](Fixture& f) { delete f.wall; })},
    {"the operate wall goes and the mouse draws on", InADialog([](Fixture& f) {
         delete f.wall;
         f.mouse.Drag(OnEmpty, OnEmpty + QPoint(50, 30));
     })},
};
constexpr int FirstOfWindows = 1;
constexpr int FirstOfScreens = 3;
constexpr int FirstThatAdds = 4;
constexpr int FirstOfWalls = 5;
constexpr int ScreensInADialog = 7;

void DragOver(Fixture& f, const QPoint& at)
{
    const QMimeData data;
    f.mouse.DragEnter(at, data);
    f.mouse.DragLeave();
}

/// What an operator does meanwhile, in a wall with two upper windows in the mode of many.
const QVector<Action> Occasions = {
    {"a click", [](Fixture& f) { f.mouse.Click(f.OnVideo(0)); }},
    {"a right click on a title", [](Fixture& f) { f.mouse.Click(f.OnTitle(0), Qt::RightButton); }},
    {"a right click on a video", [](Fixture& f) { f.mouse.Click(f.OnVideo(0), Qt::RightButton); }},
    {"a right click on an empty part", [](Fixture& f) { f.mouse.Click(OnEmpty, Qt::RightButton); }},
    {"a band", [](Fixture& f) { f.mouse.Drag(QPoint(950, 400), QPoint(50, 30)); }},
    {"an area",
     [](Fixture& f) {
         f.wall->SetWindowSelectionMode(Wall::NoSelection);
         f.mouse.Drag(QPoint(450, 400), QPoint(550, 550));
     }},
    {"a double-click", [](Fixture& f) { f.mouse.DoubleClick(f.OnVideo(0)); }},
    {"the close button", [](Fixture& f) { f.Press(0, "Close"); }},
    {"the volume button", [](Fixture& f) { f.Press(0, "Open Volume"); }},
    {"the max button", [](Fixture& f) { f.Press(0, "Max"); }},
    {"the snap button", [](Fixture& f) { f.Press(0, "SelfAdaption"); }},
    {"a drag", [](Fixture& f) { f.mouse.Drag(f.OnTitle(0), f.OnTitle(0) + QPoint(90, 90)); }},
    {"a wheel over a window", [](Fixture& f) { f.mouse.Wheel(f.OnVideo(0), 120); }},
    {"a key",
     [](Fixture& f) {
         f.mouse.Click(f.OnVideo(0));
         QTest::keyClick(f.client.windowHandle(), Qt::Key_Space);
     }},
    {"a drag-and-drop over a window", [](Fixture& f) { DragOver(f, f.OnVideo(0)); }},
    {"a drag-and-drop over an empty part", [](Fixture& f) { DragOver(f, OnEmpty); }},
    {"a call", [](Fixture& f) { f.wall->SetWindowScale(0, 0, Whole); }},
    {"a press on an overlay",
     [](Fixture& f) {
         std::vector<KvGUI::StructOSDInfo> infos{Overlay(true)};
         f.wall->SetScreenOSDInfo(0, infos);
         f.mouse.Click(OnOverlay);
     }},
    {"a 3D frame",
     [](Fixture& f) {
         f.SelectScreen();
         f.wall->SetPtzFrameSelectedEnable(true);
         f.mouse.Drag(f.OnVideo(0), f.OnVideo(0) + QPoint(50, 50));
     }},
};
constexpr int DisplayOccasions = 2; // the last ones; the normal family does not report them

/// What ends a drag of the left button without its release.
const QVector<Action> Ends = {
    {"Escape", [](Fixture& f) { QTest::keyClick(f.client.windowHandle(), Qt::Key_Escape); }},
    {"a release elsewhere",
     [](Fixture& f) {
         f.mouse.LoseRelease(OnEmpty);
         f.mouse.Move(QPoint(150, 90)); // over the window that was dragged
     }},
    {"disabling",
     [](Fixture& f) {
         f.wall->setEnabled(false);
         f.wall->setEnabled(true);
     }},
    {"hiding",
     [](Fixture& f) {
         f.client.hide();
         f.client.show();
         QVERIFY(QTest::qWaitForWindowExposed(&f.client));
     }},
};

/// Calls @p slot for whatever the wall emits.
void ConnectAll(Wall* wall, const std::function<void()>& slot)
{
    QObject::connect(wall, &Wall::SignalScreenEvent, slot);
    QObject::connect(wall, &Wall::SignalScreenSelectedChanged, slot);
    QObject::connect(wall, &Wall::SignalScreenRightClick, slot);
    QObject::connect(wall, &Wall::SignalWindowEvent, slot);
    QObject::connect(wall, &Wall::SignalWindowSelectedChanged, slot);
    QObject::connect(wall, &Wall::SignalWindowDoubleClicked, slot);
    QObject::connect(wall, &Wall::SignalWindowClicked, slot);
    QObject::connect(wall, &Wall::SignalWindowCloseBtnClicked, slot);
    QObject::connect(wall, &Wall::SignalWindowVolumeBtnClicked, slot);
    QObject::connect(wall, &Wall::SignalWindowGeoChanged, slot);
    QObject::connect(wall, &Wall::SignalDrawAreaOpenWindow, slot);
    QObject::connect(wall, &Wall::SignalLabelEvent, slot);
    QObject::connect(wall, &Wall::SignalWindow3DSite, slot);
}

void DeleteLater()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}

} // namespace

class tst_Walls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data()
    {
        QTest::addColumn<int>("family");
        QTest::newRow("normal") << int(Wall::NormalMode);
        QTest::newRow("display") << int(Wall::DisplayMode);
    }

    void initTestCase()
    {
        qRegisterMetaType<KvGUI::StructScaleRect>("KvGUI::StructScaleRect");
        qRegisterMetaType<QEvent*>("QEvent*");
    }

    void wrongIndicesGiveTheirDefaults_data()
    {
        TestSupport::Columns<int, int>("screen", "window");
        QTest::newRow("negative screen") << -1 << 0;
        QTest::newRow("screen count") << 1 << 0;
        QTest::newRow("negative window") << 0 << -1;
        QTest::newRow("window count") << 0 << 1;
        QTest::newRow("largest") << std::numeric_limits<int>::max() << std::numeric_limits<int>::max();
    }

    // Catches range tests that are off by one, among them a DeleteWindow that takes the count for an index.
    void wrongIndicesGiveTheirDefaults()
    {
        QFETCH(int, screen);
        QFETCH(int, window);
        const Fixture f;
        f.wall->OpenWindow(0, LeftUpper, 1);
        TestSupport::CompareWindowDefaults(*f.wall, screen, window);
        QCOMPARE(f.wall->GetWindowCount(0), 1);
        QCOMPARE(f.wall->GetWindowUserData(0, 0), QVariant(1));
        if (screen == 0)
            return;
        TestSupport::CompareScreenDefaults(*f.wall, screen);
        QCOMPARE(f.wall->GetMaxWindowZValue(screen), 1);
    }

    void screensNeedAGrid()
    {
        QFETCH_GLOBAL(int, family);
        const auto announce = [family](const char* counts) {
            const char* name = family == Wall::DisplayMode ? "KvTVWallDisplayWnd" : "KvTVWallNormalWnd";
            const QString text = QStringLiteral("---KvGUI--- %1::AddScreen: %2");
            QTest::ignoreMessage(
                QtWarningMsg, qPrintable(text.arg(QLatin1String(name), QLatin1String(counts))));
        };
        Wall wall;
        wall.SetShowMode(family);
        announce("iRows = 0, iCols = 0");
        QCOMPARE(wall.AddScreen(Whole, QVariant()), -1);
        wall.SetTVWallGridCount(3, 0);
        announce("iRows = 3, iCols = 0");
        QCOMPARE(wall.AddScreen(Whole, QIcon(), QString(), QVariant()), -1);
        QCOMPARE(wall.GetScreenCount(), 0);
        wall.SetTVWallGridCount(3, 1);
        QCOMPARE(wall.AddScreen(Whole, 5), 0);
        QVERIFY(!wall.GetScreenUserData(0).isValid()); // the short form drops it
        QCOMPARE(wall.AddScreen(Whole, QIcon(), QString(), 5), 1);
        QCOMPARE(wall.GetScreenUserData(1), QVariant(5));
        QVERIFY(wall.DeleteAllScreen());
        QVERIFY(wall.DeleteAllScreen());
        QCOMPARE(wall.GetScreenCount(), 0);
    }

    void indicesShift()
    {
        const Fixture f;
        for (int w = 0; w < 3; ++w)
            QCOMPARE(f.wall->OpenWindow(0, LeftUpper, 10 + w), w);
        QVERIFY(f.wall->DeleteWindow(0, 0));
        QCOMPARE(f.wall->GetWindowUserData(0, 1), QVariant(12));
        f.wall->SetWindowUserData(0, 1, 22);
        QCOMPARE(f.wall->GetWindowUserData(0, 0), QVariant(11));
        QCOMPARE(f.wall->GetWindowUserData(0, 1), QVariant(22));
        QCOMPARE(f.wall->GetAllWindowIndexs(0), (QList<int>{0, 1}));
        QCOMPARE(f.wall->OpenWindow(0, LeftUpper, QVariant()), 2);
        f.wall->DeleteAllWindows();
        QCOMPARE(f.wall->GetWindowCount(0), 0);
        QCOMPARE(f.wall->GetMaxWindowZValue(0), 0);
    }

    // Catches windows and overlays of a hidden wall that are placed when it is shown only, or anew then.
    void hiddenWallsAreLaidOut()
    {
        QFETCH_GLOBAL(int, family);
        Wall wall;
        wall.resize(1000, 600);
        wall.SetShowMode(family);
        wall.SetTVWallGridCount(1, 1);
        wall.AddScreen(Whole, QVariant());
        wall.OpenWindow(0, LeftUpper, QVariant());
        std::vector<KvGUI::StructOSDInfo> infos{Overlay(false)};
        wall.SetScreenOSDInfo(0, infos);
        for (int shown = 0; shown < 2; ++shown) {
            QCOMPARE(wall.GetWindowWidget(0, 0)->size(), QSize(296, 216)); // for a player made now
            QCOMPARE(wall.grab().toImage().pixel(OnOverlay), qRgb(0, 120, 0));
            wall.show();
            QApplication::processEvents();
        }
    }

    // Catches a text or a state that is lost because it came before the widget, a widget that does not follow
    // its window, and one that is used after the client has deleted it.
    void videoWidgets()
    {
        Fixture f({LeftUpper});
        const QImage without = f.client.grab().toImage();
        QVERIFY(f.wall->SetWindowVideoWidgetText(0, 0, QStringLiteral("Connecting")));
        const QImage painted = f.client.grab().toImage();
        QVERIFY(painted != without);
        QVERIFY(f.wall->SetWindowUpdateEnable(0, 0, false));
        QPointer<QWidget> video = f.wall->GetWindowWidget(0, 0);
        QVERIFY(!video->updatesEnabled());
        QVERIFY(f.wall->SetWindowUpdateEnable(0, 0, true));
        QCOMPARE(f.client.grab().toImage(), painted);
        f.wall->SetWindowScale(0, 0, RightUpper);
        QCOMPARE(f.Pixels(0), QRect(600, 60, 300, 240));
        const QRgb shown = f.PixelAt({700, 280});
        f.mouse.Press(f.OnTitle(0));
        delete video;
        f.mouse.Move({640, 172}); // 100 pixels down
        f.mouse.Release({640, 172});
        QCOMPARE(f.Scale(0).dTop, 0.1 + 100.0 / 600);
        f.wall->SetWindowScale(0, 0, {0.6, 0.1, 0.9, 0.7, true});
        QVERIFY(f.PixelAt({700, 280}) != shown);
        f.wall->OpenWindow(0, LeftUpper, QVariant());
        QVERIFY(f.wall->DeleteWindowWidget(0, 1)); // though nobody has asked for it
        for (const int window : {0, 1}) {
            QVERIFY(f.wall->GetWindowWidget(0, window) == nullptr);
            QVERIFY(!f.wall->SetWindowVideoWidgetText(0, window, QStringLiteral("text")));
            QVERIFY(!f.wall->SetWindowUpdateEnable(0, window, true));
            QVERIFY(!f.wall->DeleteWindowWidget(0, window));
        }
    }

    // Catches pixels that are computed back into the rectangle.
    void windowsFollowTheirScreen()
    {
        const Rect scale{0.3333, 0.25, 0.6667, 0.75, true};
        const Fixture f({scale});
        QCOMPARE(f.Pixels(0), QRect(333, 150, 333, 300));
        f.wall->resize(7, 5);
        f.wall->resize(2000, 1200);
        QCOMPARE(f.Pixels(0), QRect(667, 300, 667, 600));
        QCOMPARE(f.Scale(0), scale);
    }

    void precisionDecidesAboutChange()
    {
        const Rect start{0.5, 0.5, 0.9, 0.9, true};
        const Fixture f({start});
        const double p = f.wall->GetWindowScalePrecision();
        QVERIFY(f.wall->SetWindowScale(0, 0, {0.5 + p, 0.5 - p, 0.9 + p, 0.9 - p, true}));
        QCOMPARE(f.changed.count(), 0);
        QCOMPARE(f.Scale(0), start);
        const Rect other{0.5, 0.5, 0.9, 0.9 + p + 0.0001, false};
        QVERIFY(f.wall->SetWindowScale(0, 0, other));
        QCOMPARE(f.changed.count(), 1);
        QCOMPARE(f.changed.at(0).mid(0, 2), (QVariantList{0, 0}));
        QCOMPARE(f.changed.at(0).at(2).value<Rect>(), other);
    }

    // Catches the current rectangle overwriting the one it is compared with, through a shared reference.
    void aWindowsOwnRectangleMayBePassed()
    {
        Fixture f({LeftUpper});
        f.Press(0, "Max");
        Rect rect = f.Scale(0);
        connect(f.wall, &Wall::SignalWindowGeoChanged, f.wall, [&](int, int, const auto& changed) {
            rect = Whole;
            f.wall->SetWindowScale(0, 0, changed); // of the running emission
        });
        rect.dLeft = 0.3;
        f.wall->SetWindowScale(0, 0, rect);
        QCOMPARE(f.Scale(0), (Rect{0.3, 0.0, 1.0, 1.0, true}));
    }

    // Catches buttons that restore another rectangle, or that do not tell what they will do next.
    void buttonsPlaceTheWindow()
    {
        const Rect start{0.26, 0.1, 0.74, 0.6, true};
        Fixture f({Fixed});
        f.Press(0, "Max");
        QCOMPARE(f.Scale(0), Whole); // editable now
        QCOMPARE(f.Pixels(0), QRect(0, 0, 1000, 600));
        QVERIFY(f.Button(0, "Max").isNull());
        f.Press(0, "Restore");
        QCOMPARE(f.Scale(0), Fixed);
        f.wall->SetWindowScale(0, 0, start);
        f.Press(0, "SelfAdaption");
        QCOMPARE(f.Scale(0), Whole);
        QVERIFY(f.Button(0, "SelfAdaption").isNull());
        f.Press(0, "Max"); // restores what is snapped, too
        QCOMPARE(f.Scale(0), start);
        f.Press(0, "SelfAdaption");
        f.Press(0, "Restore");
        QCOMPARE(f.Scale(0), start);
    }

    // Catches a double-click of another button, and one whose two clicks report selections of their own.
    void doubleClick()
    {
        for (const bool editable : {true, false}) {
            Fixture f({editable ? LeftUpper : Fixed});
            const QSignalSpy doubleClicked(f.wall.data(), &Wall::SignalWindowDoubleClicked);
            f.mouse.DoubleClick(f.OnVideo(0), Qt::RightButton);
            QCOMPARE(f.Scale(0), editable ? LeftUpper : Fixed);
            f.mouse.DoubleClick(f.OnVideo(0));
            QCOMPARE(f.Scale(0), editable ? Whole : Fixed);
            QCOMPARE(f.wall->GetSelectedWindowIndexs(), QList<int>{0});
            QCOMPARE(f.selected.count(), editable ? 1 : 0);
            QCOMPARE(doubleClicked.count(), !editable && f.display ? 1 : 0);
            QCOMPARE(f.screenSelected.count(), 1);
        }
        Fixture f({LeftUpper});
        connect(f.wall, &Wall::SignalWindowGeoChanged, f.wall, [&f] { f.wall->DeleteWindow(0, 0); });
        f.mouse.DoubleClick(f.OnVideo(0));
        QCOMPARE(f.changed.count(), 1);
        QCOMPARE(f.selected.count() + f.screenSelected.count(), 0);
    }

    // Catches indices fixed at opening, and buttons of windows that are not editable.
    void buttonsReport()
    {
        Fixture f({Fixed, Fixed, RightUpper});
        f.wall->DeleteWindow(0, 0);
        const QSignalSpy close(f.wall.data(), &Wall::SignalWindowCloseBtnClicked);
        const QSignalSpy volume(f.wall.data(), &Wall::SignalWindowVolumeBtnClicked);
        for (const int window : {0, 1}) {
            f.Press(window, "Close");
            f.Press(window, "Open Volume");
        }
        for (const QSignalSpy* reported : {&close, &volume}) {
            QCOMPARE(reported->count(), 1);
            QCOMPARE(reported->at(0), (QVariantList{0, 1}));
        }
        QCOMPARE(f.wall->GetWindowCount(0), 2); // closing is the client's decision
    }

    void volumeButtonFollowsItsState()
    {
        const Fixture f({LeftUpper});
        const QRect place
            = QRect(QPoint(), QSize(18, 18)).translated(f.Button(0, "Open Volume") - QPoint(9, 9));
        const QImage off = f.wall->grab(place).toImage();
        QVERIFY(f.wall->SetWindowVolumeBtn(0, 0, true));
        QVERIFY(!f.Button(0, "Close Volume").isNull());
        QVERIFY(f.wall->GetWindowVolumeBtnStatus(0, 0));
        QVERIFY(f.wall->grab(place).toImage() != off); // another image
        f.wall->SetWindowVolumeBtn(0, 0, false);
        QVERIFY(f.wall->grab(place).toImage() == off);
    }

    void clickInMode_data()
    {
        TestSupport::Columns<int, Qt::MouseButton>("mode", "button");
        QTest::addColumn<bool>("selectedBefore"); // the clicked window; the other one always is
        QTest::addColumn<QList<int>>("selectedAfter");
        using L = QList<int>;
        QTest::newRow("0 left") << 0 << Qt::LeftButton << false << L{1};
        QTest::newRow("1 left") << 1 << Qt::LeftButton << false << L{0};
        QTest::newRow("1 right on unselected") << 1 << Qt::RightButton << false << L{0};
        QTest::newRow("1 middle") << 1 << Qt::MiddleButton << false << L{1};
        QTest::newRow("2 left") << 2 << Qt::LeftButton << false << L{0, 1};
        QTest::newRow("2 left on selected") << 2 << Qt::LeftButton << true << L{1};
        QTest::newRow("2 right on selected") << 2 << Qt::RightButton << true << L{0, 1};
    }

    // Catches a routine that runs twice a click and takes back what it did, signals without a change, and a
    // drag that selects.
    void clickInMode()
    {
        QFETCH(int, mode);
        QFETCH(Qt::MouseButton, button);
        QFETCH(bool, selectedBefore);
        QFETCH(QList<int>, selectedAfter);
        Fixture f({LeftUpper, RightUpper});
        f.SelectScreen();
        f.wall->SetWindowSelectionMode(Wall::SelectionMode(mode)); // 1 deselects all
        f.wall->SetSelectedWindowIndexs(0, 1, true);
        if (selectedBefore)
            f.mouse.Click(f.OnVideo(0));
        const QList<int> before = f.wall->GetSelectedWindowIndexs();
        f.selected.clear();
        f.screenSelected.clear();
        f.mouse.Drag(f.OnVideo(0), f.OnVideo(0) + QPoint(1, 0));
        f.mouse.Press(f.OnVideo(0));
        f.mouse.Release(f.OnVideo(0) + QPoint(1, 0));
        QCOMPARE(f.wall->GetSelectedWindowIndexs(), before);
        f.mouse.Click(f.OnVideo(0), button);
        QCOMPARE(f.wall->GetSelectedWindowIndexs(), selectedAfter);
        QCOMPARE(f.selected.count(), before == selectedAfter ? 0 : 1);
        QCOMPARE(f.clicked.count(), 0);
        QCOMPARE(f.screenSelected.count(), 0); // it was selected
        if (mode == 1 && button == Qt::LeftButton) { // again: no change left
            f.mouse.Click(f.OnVideo(0), button);
            QCOMPARE(f.selected.count(), 1);
            QCOMPARE(f.clicked.count(), f.display ? 1 : 0);
        }
    }

    void pressOnEmptyPart()
    {
        Fixture f({LeftUpper});
        f.wall->AddScreen({0.5, 0.5, 1.0, 1.0}, QVariant());
        f.wall->OpenWindow(1, LeftUpper, QVariant());
        f.wall->SetSelectedWindowIndexs(0, 0, true);
        f.wall->SetSelectedWindowIndexs(1, 0, true);
        f.mouse.Click({5, 5});
        f.mouse.Click({5, 5}, Qt::RightButton);
        QCOMPARE(f.screenSelected.count(), 2); // each time
        QCOMPARE(f.wall->GetSelectedScreenIndex(), 0);
        QVERIFY(f.wall->GetSelectedWindowIndexs().isEmpty());
        f.wall->SetWindowSelectionMode(Wall::MultiSelection);
        f.mouse.Click({700, 310}); // the other screen, beside its window
        QCOMPARE(f.wall->GetSelectedScreenIndex(), 1);
        QCOMPARE(f.wall->GetUnSelectedWindowIndexs(), QList<int>{0}); // deselected with the screen's own loss
        f.wall->DeleteAllScreen();
        f.mouse.Click({700, 310});
        QCOMPARE(f.screenSelected.count(), 3);
    }

    void selectionByCall()
    {
        Fixture f({LeftUpper, LeftUpper, LeftUpper});
        QVERIFY(f.wall->GetUnSelectedWindowIndexs().isEmpty()); // no screen is selected
        f.SelectScreen();
        f.wall->SetSelectedWindowIndexs(0, 0, true);
        f.wall->SetSelectedWindowIndexs(0, 2, true);
        QCOMPARE(f.wall->GetSelectedWindowIndexs(), QList<int>{2});
        QCOMPARE(f.wall->GetUnSelectedWindowIndexs(), (QList<int>{0, 1}));
        f.wall->SetSelectedWindowIndexs(0, 0, false);
        QVERIFY(f.wall->GetSelectedWindowIndexs().isEmpty());
        f.wall->SetSelectedWindowIndexs(0, 0, true);
        f.wall->SetWindowSelectionMode(Wall::MultiSelection);
        QCOMPARE(f.wall->GetSelectedWindowIndexs().size(), 1);
        f.wall->SetWindowSelectionMode(Wall::SingleSelection);
        QVERIFY(f.wall->GetSelectedWindowIndexs().isEmpty());
        QCOMPARE(f.selected.count(), 0);
    }

    void bandSelects()
    {
        Fixture f({LeftUpper, RightUpper, {0.1, 0.7, 0.4, 0.9, true}});
        f.wall->SetWindowSelectionMode(Wall::MultiSelection);
        f.mouse.Drag({950, 350}, {350, 250}); // backwards over the two upper windows
        QCOMPARE(f.wall->GetSelectedWindowIndexs(), (QList<int>{0, 1}));
        f.mouse.Drag({950, 350}, {960, 400}); // over nothing
        QVERIFY(f.wall->GetSelectedWindowIndexs().isEmpty());
        QCOMPARE(f.selected.count(), 1);
        QCOMPARE(f.drawn.count(), 0);
        const auto bands = f.wall->findChildren<QRubberBand*>();
        QVERIFY(std::none_of(bands.begin(), bands.end(), [](auto* band) { return band->isVisible(); }));
    }

    void areaIsDrawn_data()
    {
        TestSupport::Columns<int, QPoint>("mode", "to");
        QTest::addColumn<Rect>("area"); // empty: none
        QTest::newRow("mode 0") << 0 << QPoint(600, 500) << Rect{0.5, 0.6, 0.6, 500 / 600.0, true};
        QTest::newRow("mode 1, up and left") << 1 << QPoint(400, 300) << Rect{0.4, 0.5, 0.5, 0.6, true};
        QTest::newRow("too flat") << 0 << QPoint(600, 362) << Rect();
        QTest::newRow("band mode") << 2 << QPoint(600, 500) << Rect();
        QTest::newRow("cut at the edge")
            << 0 << QPoint(5000, 5000) << Rect{0.5, 0.6, 0.999, 599 / 600.0, true};
    }

    // Catches areas of another button or mode, one that is drawn on after its end, and an Escape key kept
    // from the client's dialog.
    void areaIsDrawn()
    {
        QFETCH(int, mode);
        QFETCH(QPoint, to);
        QFETCH(Rect, area);
        Fixture f;
        f.wall->SetWindowSelectionMode(Wall::SelectionMode(mode));
        const QPoint from(500, 360);
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
            f.mouse.Press(from, button);
            f.mouse.Click(to, button == Qt::LeftButton ? Qt::RightButton : Qt::MiddleButton);
            f.mouse.Move(to);
            f.mouse.Release(to, button);
        }
        QCOMPARE(f.drawn.count(), area.bEditable ? 1 : 0);
        if (area.bEditable)
            QCOMPARE(f.drawn.at(0).at(1).value<Rect>(), area);
        const TestSupport::AtEvent closes(&f.client, QEvent::KeyPress, [] {});
        for (const Action& end : Ends) {
            f.mouse.Press(from);
            f.mouse.Move(to);
            end.act(f);
            f.mouse.Move(to + QPoint(5, 5));
            f.mouse.Release(to);
            QVERIFY2(f.drawn.count() == (area.bEditable ? 1 : 0), end.name);
        }
        QVERIFY(!closes.HasActed());
        QTest::keyClick(f.client.windowHandle(), Qt::Key_Escape);
        QVERIFY(closes.HasActed());
    }

    void windowIsDragged_data()
    {
        QTest::addColumn<Rect>("start");
        QTest::addColumn<QPoint>("grip"); // in the window
        QTest::addColumn<QPoint>("way");
        QTest::addColumn<bool>("toCells"); // by the Shift key, or by the screen
        QTest::addColumn<Rect>("end");
        const QPoint title(40, 12);
        QTest::newRow("by its title")
            << LeftUpper << title << QPoint(50, 30) << false << Rect{0.15, 0.15, 0.45, 0.55, true};
        QTest::newRow("not out of the screen")
            << LeftUpper << title << QPoint(5000, 5000) << false << Rect{0.7, 0.6, 1.0, 1.0, true};
        QTest::newRow("by its corner")
            << LeftUpper << QPoint(298, 238) << QPoint(-100, -60) << false << Rect{0.1, 0.1, 0.3, 0.4, true};
        QTest::newRow("a fixed one") << Fixed << title << QPoint(50, 30) << false << Fixed;
        QTest::newRow("no way at all") << LeftUpper << title << QPoint(0, 0) << false << LeftUpper;
        QTest::newRow("too short a way") << LeftUpper << title << QPoint(1, 0) << false << LeftUpper;
        QTest::newRow("to cells") << Rect{0.01, 0.01, 0.4, 0.4, true} << title << QPoint(530, 20) << true
                                  << Rect{0.5, 0.0, 1.0, 0.5, true};
    }

    void windowIsDragged()
    {
        QFETCH(Rect, start);
        QFETCH(QPoint, grip);
        QFETCH(QPoint, way);
        QFETCH(bool, toCells);
        QFETCH(Rect, end);
        for (const bool byKey : {true, false}) {
            Fixture f({start});
            const QPoint from = f.Pixels(0).topLeft() + grip;
            const bool shift = toCells && (byKey || f.display); // which knows no bound screens
            f.wall->SetScreenFreeMode(0, shift || !toCells);
            f.mouse.Drag(from, from + way, shift ? Qt::ShiftModifier : Qt::NoModifier);
            QCOMPARE(f.Scale(0), end);
            QCOMPARE(f.Pixels(0).x(), qRound(end.dLeft * 1000));
            QCOMPARE(f.changed.count(), start == end ? 0 : 1);
        }
    }

    // Catches a rectangle set before the release, a drag that another button ends, and one that outlives its
    // end.
    void dragMovesPixelsOnly()
    {
        Fixture f({LeftUpper});
        const QRect start(100, 60, 300, 240);
        const QPoint press = f.OnTitle(0);
        for (const Action& end : Ends) {
            f.mouse.Press(press);
            f.mouse.Move(press + QPoint(50, 30));
            f.mouse.DoubleClick(press + QPoint(50, 30), Qt::RightButton);
            QVERIFY2(f.Pixels(0) == start.translated(50, 30), end.name);
            QCOMPARE(f.Scale(0), LeftUpper);
            end.act(f);
            f.mouse.Move(press + QPoint(90, 90));
            QVERIFY2(f.Pixels(0) == start, end.name);
            f.mouse.Release(press + QPoint(90, 90));
            QCOMPARE(f.Pixels(0), start);
        }
        QCOMPARE(f.changed.count(), 0);
        const TestSupport::AtEvent closes(&f.client, QEvent::KeyPress, [] {});
        QTest::keyClick(f.client.windowHandle(), Qt::Key_Escape); // the client's now
        QVERIFY(closes.HasActed());
    }

    // Catches a frame that moves the window, and one normalised on its way, which loses the direction that
    // the camera shall turn.
    void positioningFrame()
    {
        const Rect start{0.1, 0.1, 0.9, 0.9, true};
        Fixture f({start});
        const QObject* reports // the operate wall passes on those of the display family only
            = f.display ? f.wall.data() : f.wall->findChild<QGraphicsView*>()->parentWidget();
        const QSignalSpy site(reports, SIGNAL(SignalWindow3DSite(int, int, int, int, int)));
        const auto draw = [&f](const std::function<void()>& meanwhile) {
            f.mouse.Press({500, 300});
            f.mouse.Move({300, 200});
            meanwhile();
            f.mouse.Move({250, 150});
            f.mouse.Release({250, 150});
        };
        f.wall->SetPtzFrameSelectedEnable(true); // for no screen
        draw([] {});
        f.mouse.Click({5, 5});
        f.wall->SetPtzFrameSelectedEnable(true);
        f.mouse.Click({500, 300}, Qt::RightButton);
        draw([&f] { f.mouse.DoubleClick({300, 200}, Qt::RightButton); });
        QCOMPARE(site, (QList<QVariantList>{{0, 4096, 4096, 2048, 2048}}));
        draw([&f] { f.wall->SetPtzFrameSelectedEnable(false); });
        draw([] {});
        QCOMPARE(site.count(), 1);
        QCOMPARE(f.Scale(0), start);
    }

    // Catches a zoom about another point, and areas drawn on a zoomed wall as if it were not.
    void wheelKeepsThePointUnderTheCursor()
    {
        const Rect quarter{0.0, 0.0, 0.5, 0.5, true};
        Fixture f({quarter});
        const QPoint cursor(300, 200); // over the window
        const auto within = [&] {
            const QRect window = f.Pixels(0);
            const QPointF point = cursor - window.topLeft();
            return QPointF(point.x() / window.width(), point.y() / window.height());
        };
        const QPointF before = within();
        for (const int angle : {120, 120, 120, -120})
            f.mouse.Wheel(cursor, angle);
        QVERIFY(f.Pixels(0).width() > 1000);
        QVERIFY((within() - before).manhattanLength() < 0.01);
        QCOMPARE(f.Scale(0), quarter);
        f.wall->DeleteWindow(0, 0);
        f.mouse.Drag({100, 100}, {400, 300});
        QCOMPARE(f.drawn.count(), 1);
        f.wall->OpenWindow(0, f.drawn.at(0).at(1).value<Rect>(), QVariant());
        QVERIFY((f.Pixels(0).topLeft() - QPoint(100, 100)).manhattanLength() < 4);
        QVERIFY((f.Pixels(0).bottomRight() - QPoint(400, 300)).manhattanLength() < 4);
        for (int i = 0; i < 5; ++i)
            f.mouse.Wheel(cursor, -120);
        f.wall->RecoverEagleEye();
        f.wall->OpenWindow(0, LeftUpper, QVariant());
        QCOMPARE(f.Pixels(1), QRect(100, 60, 300, 240)); // the whole wall again
    }

    // Catches events that are reported twice, not at all, or for the screen below the window.
    void eventsAreReported()
    {
        Fixture f({LeftUpper});
        QList<QEvent::Type> onScreen;
        QList<QEvent::Type> onWindow;
        connect(f.wall, &Wall::SignalScreenEvent, f.wall, [&](int, QEvent* event) {
            onScreen << event->type();
            if (event->type() == QEvent::DragEnter)
                event->accept();
        });
        connect(f.wall, &Wall::SignalWindowEvent, f.wall, [&](int, int, QEvent* event) {
            onWindow << event->type();
            if (event->type() == QEvent::DragEnter)
                event->accept();
        });
        const QSignalSpy menu(f.wall.data(), &Wall::SignalScreenRightClick);
        for (const QPoint& at : {OnEmpty, f.OnVideo(0)}) {
            f.mouse.Click(at, Qt::RightButton);
            QCOMPARE(menu.count(), f.display ? 1 : 0); // a window's menu is not the screen's
        }
        QTest::keyClick(f.client.windowHandle(), Qt::Key_A);
        f.mouse.Wheel(f.OnVideo(0), 120);
        const QMimeData data;
        for (const QPoint& at : {OnEmpty, f.OnVideo(0)}) {
            QVERIFY(f.mouse.DragEnter(at, data));
            f.mouse.Drop(at, data);
        }
        for (const QEvent::Type type :
             {QEvent::ContextMenu, QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::KeyPress,
              QEvent::KeyRelease, QEvent::Wheel, QEvent::DragEnter, QEvent::Drop})
            QCOMPARE(onWindow.count(type), 1);
        for (const QEvent::Type type : {QEvent::DragEnter, QEvent::Drop})
            QCOMPARE(onScreen.count(type), 1);
    }

    // Catches overlays below a window, clicks that fall through them, and overlays that stay.
    void overlaysAreShown()
    {
        Fixture f({Whole});
        for (const bool roll : {false, true}) {
            std::vector<KvGUI::StructOSDInfo> infos(3, Overlay(roll));
            QVERIFY(f.wall->SetScreenOSDInfo(0, infos));
            f.wall->SetWindowZValue(0, 0, 9, true);
            QCOMPARE(f.PixelAt(OnOverlay), qRgb(0, 120, 0));
            const QSignalSpy pressed(f.wall.data(), &Wall::SignalWindowEvent);
            const QSignalSpy label(f.wall.data(), &Wall::SignalLabelEvent);
            const QSignalSpy menu(f.wall.data(), &Wall::SignalScreenRightClick);
            f.mouse.Click(OnOverlay);
            QCOMPARE(label.count(), f.display ? 2 : 0);
            f.mouse.Click(OnOverlay, Qt::RightButton);
            f.mouse.Wheel(OnOverlay, 120);
            QCOMPARE(f.screenSelected.count() + pressed.count() + menu.count(), 0);
            QCOMPARE(label.count(), f.display ? 6 : 0);
            QCOMPARE(f.Pixels(0).width(), 1500); // the wheel is the wall's
            f.mouse.Wheel({5, 5}, -120);
            infos.clear();
            f.wall->SetScreenOSDInfo(0, infos);
            QVERIFY(f.PixelAt(OnOverlay) != qRgb(0, 120, 0));
        }
    }

    // Catches frames that stay where they were, or in the colours of the old skin.
    void selectionIsSeen()
    {
        Fixture f({LeftUpper});
        const QRgb screenFrame = qRgb(219, 221, 225);
        QVERIFY(f.PixelAt({0, 300}) != screenFrame);
        f.SelectScreen();
        for (const QPoint& edge : {QPoint(0, 300), QPoint(999, 300), QPoint(300, 0), QPoint(300, 599)})
            QCOMPARE(f.PixelAt(edge), screenFrame);
        QCOMPARE(f.PixelAt({450, 30}), qRgb(33, 34, 37));
        const QPoint onFrame = f.Pixels(0).bottomLeft() + QPoint(150, 0);
        const QRgb unselected = f.PixelAt(onFrame);
        f.wall->SetSelectedWindowIndexs(0, 0, true);
        const QRgb black = f.PixelAt(onFrame);
        QVERIFY(black != unselected);
        KvGUI::SetSkinVersion(QStringLiteral("White"));
        const QRgb white = f.PixelAt(onFrame);
        const QRgb title = f.PixelAt(f.Pixels(0).topLeft() + QPoint(150, 14));
        KvGUI::SetSkinVersion(QStringLiteral("Black"));
        QVERIFY(white != black && white != unselected);
        QVERIFY(qGray(title) > 180 && qGray(f.PixelAt(f.Pixels(0).topLeft() + QPoint(150, 14))) < 90);
        f.wall->SetWindowScale(0, 0, {0.2, 0.1, 0.7, 0.7, true});
        QCOMPARE(f.PixelAt(f.Pixels(0).bottomLeft() + QPoint(150, 0)), black); // it follows the window
        f.wall->SetWindowScale(0, 0, LeftUpper);
        f.wall->SetSelectedWindowIndexs(0, 0, false);
        QCOMPARE(f.PixelAt(onFrame), unselected);
    }

    // Catches a wheel that turns what the client has put into a video, or has taken in a slot, and zooms too.
    void wheelsTakenByTheClient()
    {
        Fixture f({LeftUpper, RightUpper});
        auto* number = new QSpinBox(f.wall->GetWindowWidget(0, 0));
        number->setGeometry(20, 60, 100, 60);
        number->show();
        connect(f.wall, &Wall::SignalWindowEvent, f.wall, [](int, int window, QEvent* event) {
            event->setAccepted(window == 1);
        });
        const QRect unzoomed = f.Pixels(1);
        f.mouse.Wheel(f.OnVideo(0), 120);
        f.mouse.Wheel(f.OnVideo(1), 120);
        QCOMPARE(number->value(), 1);
        QCOMPARE(f.Pixels(1), unzoomed);
        f.mouse.Wheel(f.OnVideo(0) + QPoint(100, 0), 120); // beside it
        QVERIFY(f.Pixels(1) != unzoomed);
    }

    // Catches what a wall does by hand although it is disabled.
    void disabledWallsRest()
    {
        Fixture f({LeftUpper, Fixed});
        f.wall->SetWindowSelectionMode(Wall::SingleSelection);
        f.wall->setEnabled(false);
        int emissions = 0;
        ConnectAll(f.wall, [&emissions] { ++emissions; });
        const QRect place = f.Pixels(0);
        f.mouse.Drag(f.OnTitle(0), f.OnTitle(0) + QPoint(50, 30));
        f.mouse.Click(f.OnVideo(0));
        f.mouse.Click(f.OnVideo(0), Qt::RightButton);
        f.mouse.DoubleClick(f.OnVideo(1));
        f.mouse.Wheel(f.OnVideo(0), 120);
        f.mouse.Drag(OnEmpty, OnEmpty + QPoint(50, 30));
        QCOMPARE(emissions, 0);
        QCOMPARE(f.Pixels(0), place);
    }

    void slotsMayDeleteAnything_data()
    {
        TestSupport::Columns<int, int>("change", "occasion");
        QFETCH_GLOBAL(int, family);
        const int occasions = Occasions.size() - (family == Wall::DisplayMode ? 0 : DisplayOccasions);
        for (int c = FirstOfWindows; c < Changes.size(); ++c) {
            for (int o = 0; c != FirstThatAdds && o < occasions; ++o)
                QTest::addRow("%s in %s", Changes.at(c).name, Occasions.at(o).name) << c << o;
        }
    }

    // Catches any use of a window, screen or wall after one of its signals, and a wall that is gone before Qt
    // has done with the widget under the mouse; meant to be run under a sanitizer as well.
    void slotsMayDeleteAnything()
    {
        QFETCH(int, change);
        QFETCH(int, occasion);
        const bool atEach = change == FirstOfWindows || change >= ScreensInADialog;
        for (int nth = 0; nth == 0 || atEach; ++nth) { // the signal that brings the change
            Fixture f({LeftUpper, RightUpper});
            f.wall->SetWindowSelectionMode(Wall::MultiSelection);
            int emissions = 0;
            ConnectAll(f.wall, [&] {
                if (emissions++ >= nth && f.wall)
                    Changes.at(change).act(f);
            });
            Occasions.at(occasion).act(f);
            DeleteLater();
            if (nth > 0 && emissions <= nth)
                break;
            QVERIFY(emissions > 0);
            if (change == ScreensInADialog || (change >= FirstOfScreens && change <= FirstOfWalls))
                QCOMPARE(f.wall->GetScreenCount(), 0);
            else if (change > FirstOfWalls)
                QVERIFY(!f.wall && f.client.findChildren<QWidget*>().isEmpty());
        }
    }

    void videosMayChangeTheWall_data()
    {
        TestSupport::Columns<int, bool>("change", "byWheel");
        for (int c = 0; c < FirstOfWalls; ++c) {
            QTest::addRow("%s at a resize", Changes.at(c).name) << c << false;
            QTest::addRow("%s at a wheel", Changes.at(c).name) << c << true;
        }
    }

    // Catches lists of screens and windows that are walked while a video that gets another size changes them,
    // and windows forgotten in it; meant to be run under a sanitizer as well.
    void videosMayChangeTheWall()
    {
        QFETCH(int, change);
        QFETCH(bool, byWheel);
        Fixture f({LeftUpper, LeftUpper, LeftUpper});
        f.wall->AddScreen({0.5, 0.5, 1.0, 1.0}, QVariant());
        f.wall->OpenWindow(1, LeftUpper, QVariant());
        f.wall->GetWindowWidget(0, 2);
        const TestSupport::AtEvent atResize(
            f.wall->GetWindowWidget(0, 0), QEvent::Resize, [&] { Changes.at(change).act(f); });
        byWheel ? f.mouse.Wheel({0, 0}, 120) : f.wall->resize(1500, 900);
        DeleteLater();
        QVERIFY(atResize.HasActed());
        for (int w = 0; w < f.wall->GetWindowCount(0); ++w) {
            if (f.wall->GetWindowWidget(0, w) != nullptr)
                QCOMPARE(f.Pixels(w), QRect(150, 90, 450, 360));
        }
    }

    void lostFocusMayChangeTheWall_data()
    {
        TestSupport::Columns<int, int>("occasion", "change");
        for (int o = 0; o < FirstThatAdds; ++o) {
            for (int c = 0; c < FirstThatAdds; ++c)
                QTest::addRow("%s as %s", Changes.at(c).name, Changes.at(o).name) << o << c;
        }
    }

    // Catches a deletion that goes on with what was deleted by the focus that it moves.
    void lostFocusMayChangeTheWall()
    {
        QFETCH(int, occasion);
        QFETCH(int, change);
        Fixture f({LeftUpper, RightUpper});
        auto* edit = new QLineEdit(f.wall->GetWindowWidget(0, 0));
        edit->show();
        QApplication::setActiveWindow(&f.client);
        f.mouse.Click(f.Pixels(0).topLeft() + QPoint(10, 36));
        QVERIFY(edit->hasFocus());
        const TestSupport::AtEvent atLoss(edit, QEvent::FocusOut, [&] { Changes.at(change).act(f); });
        Changes.at(occasion).act(f);
        QVERIFY(atLoss.HasActed());
        DeleteLater();
        QVERIFY(f.wall->findChild<QLineEdit*>() == nullptr);
    }
};

STRICT_TEST_MAIN(tst_Walls)
#include "tst_walls.moc"
