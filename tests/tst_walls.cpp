// Walls of both families, as clients use them through the operate wall and operators use them by hand. Every
// test runs once for each family; where the families differ, the difference stands in the test.

#include "support/AtEvent.h"
#include "support/StrictMain.h"
#include "support/WallDefaults.h"
#include "support/WallMouse.h"

#include <Platform/BasicUIComponents/KvSkin.h>
#include <UI/TVWall/KvTVWallOperateWnd.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QGraphicsItem>
#include <QGraphicsView>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QRubberBand>
#include <QSignalSpy>
#include <QTest>
#include <QWindow>
#include <cmath>
#include <functional>
#include <limits>
#include <memory>

using KvGUI::StructScaleRect;
using Wall = UICommonMdl::KvTVWallOperateWnd;

Q_DECLARE_METATYPE(KvGUI::StructScaleRect)
Q_DECLARE_METATYPE(Qt::MouseButton)

namespace {

constexpr StructScaleRect Whole{0.0, 0.0, 1.0, 1.0, true};
constexpr StructScaleRect LeftUpper{0.1, 0.1, 0.4, 0.5, true}; // 300 x 240 pixels at 100, 60
constexpr StructScaleRect RightUpper{0.6, 0.1, 0.9, 0.5, true};
constexpr StructScaleRect Fixed{0.1, 0.1, 0.4, 0.5, false};
const QPoint OnEmpty(500, 500);

/// A wall of 1000 x 600 pixels that fills its client's window, with one screen of 2 x 2 cells over all of it.
struct Fixture
{
    Fixture()
    {
        QFETCH_GLOBAL(int, family);
        display = family == Wall::DisplayMode;
        client.resize(1000, 600);
        wall->resize(1000, 600);
        wall->SetShowMode(family);
        wall->SetTVWallGridCount(2, 2);
        wall->AddScreen(Whole, QVariant());
        client.show();
        QVERIFY(QTest::qWaitForWindowExposed(&client));
    }
    ~Fixture() { delete wall; }

    StructScaleRect Scale(int window, int screen = 0) const
    {
        StructScaleRect rect;
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
};

void CompareRects(const StructScaleRect& a, const StructScaleRect& b, double tolerance = 1e-9)
{
    QVERIFY(std::abs(a.dLeft - b.dLeft) <= tolerance);
    QVERIFY(std::abs(a.dTop - b.dTop) <= tolerance);
    QVERIFY(std::abs(a.dRight - b.dRight) <= tolerance);
    QVERIFY(std::abs(a.dBottom - b.dBottom) <= tolerance);
    QCOMPARE(a.bEditable, b.bEditable);
}

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

} // namespace

class tst_Walls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void initTestCase();

    void wrongIndicesGiveTheirDefaults_data();
    void wrongIndicesGiveTheirDefaults();
    void screensNeedAGrid();
    void indicesShift();
    void windowsFollowTheirScreen();
    void precisionDecidesAboutChange();
    void aWindowsOwnRectangleMayBePassed();
    void zValuesStackWindows();

    void maximiseAndRestore();
    void snapAndRestore();
    void settingEndsTheMaximisedState();
    void doubleClick_data();
    void doubleClick();
    void buttonsReport();
    void volumeButtonFollowsItsState();

    void clickInMode_data();
    void clickInMode();
    void pressOnEmptyPart();
    void selectionByCall();
    void bandSelects();
    void areaIsDrawn_data();
    void areaIsDrawn();
    void escapeCancelsDrawing();

    void windowIsDragged_data();
    void windowIsDragged();
    void dragMovesPixelsOnly();
    void escapeTakesADragBack();

    void wheelKeepsThePointUnderTheCursor();
    void eventsAreReported();
    void dragAndDropIsReported();
    void overlaysAreShown();
    void selectionIsSeen();
    void skinChangeRestyles();

    void slotsMayDeleteAnything_data();
    void slotsMayDeleteAnything();
    void videosMayChangeTheWall_data();
    void videosMayChangeTheWall();
    void lostFocusMayChangeTheWall_data();
    void lostFocusMayChangeTheWall();
    void wildRectanglesArePainted();
};

void tst_Walls::initTestCase_data()
{
    QTest::addColumn<int>("family");
    QTest::newRow("normal") << int(Wall::NormalMode);
    QTest::newRow("display") << int(Wall::DisplayMode);
}

void tst_Walls::initTestCase()
{
    qRegisterMetaType<KvGUI::StructScaleRect>("KvGUI::StructScaleRect");
    qRegisterMetaType<QEvent*>("QEvent*");
}

void tst_Walls::wrongIndicesGiveTheirDefaults_data()
{
    QTest::addColumn<int>("screen");
    QTest::addColumn<int>("window");
    QTest::newRow("negative screen") << -1 << 0;
    QTest::newRow("screen count") << 1 << 0;
    QTest::newRow("negative window") << 0 << -1;
    QTest::newRow("window count") << 0 << 1;
    QTest::newRow("largest") << std::numeric_limits<int>::max() << std::numeric_limits<int>::max();
}

// Catches range tests that are off by one, among them a DeleteWindow that takes the count for an index.
void tst_Walls::wrongIndicesGiveTheirDefaults()
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

void tst_Walls::screensNeedAGrid()
{
    QFETCH_GLOBAL(int, family);
    const auto warning = [family](const char* counts) {
        const char* name = family == Wall::DisplayMode ? "KvTVWallDisplayWnd" : "KvTVWallNormalWnd";
        const QString text = QStringLiteral("---KvGUI--- %1::AddScreen: %2");
        return text.arg(QLatin1String(name), QLatin1String(counts)).toUtf8();
    };
    Wall wall;
    wall.SetShowMode(family);
    QTest::ignoreMessage(QtWarningMsg, warning("iRows = 0, iCols = 0").constData());
    QCOMPARE(wall.AddScreen(Whole, QVariant()), -1);
    wall.SetTVWallGridCount(3, 0);
    QTest::ignoreMessage(QtWarningMsg, warning("iRows = 3, iCols = 0").constData());
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

void tst_Walls::indicesShift()
{
    const Fixture f;
    for (int w = 0; w < 3; ++w)
        QCOMPARE(f.wall->OpenWindow(0, LeftUpper, 10 + w), w);
    QVERIFY(f.wall->DeleteWindow(0, 0));
    QCOMPARE(f.wall->GetWindowUserData(0, 1), QVariant(12));
    QCOMPARE(f.wall->GetAllWindowIndexs(0), (QList<int>{0, 1}));
    QCOMPARE(f.wall->OpenWindow(0, LeftUpper, QVariant()), 2);
    f.wall->DeleteAllWindows();
    QCOMPARE(f.wall->GetWindowCount(0), 0);
    QCOMPARE(f.wall->GetMaxWindowZValue(0), 0);
}

// Catches pixels that are computed back into the rectangle.
void tst_Walls::windowsFollowTheirScreen()
{
    const Fixture f;
    const StructScaleRect scale{0.3333, 0.25, 0.6667, 0.75, true};
    f.wall->OpenWindow(0, scale, QVariant());
    QCOMPARE(f.Pixels(0), QRect(333, 150, 333, 300));
    f.wall->resize(7, 5);
    f.wall->resize(2000, 1200);
    QCOMPARE(f.Pixels(0), QRect(667, 300, 667, 600));
    CompareRects(f.Scale(0), scale, 0.0);
}

void tst_Walls::precisionDecidesAboutChange()
{
    const Fixture f;
    const double p = f.wall->GetWindowScalePrecision();
    const StructScaleRect start{0.5, 0.5, 0.9, 0.9, true};
    f.wall->OpenWindow(0, start, QVariant());
    QSignalSpy changed(f.wall.data(), SIGNAL(SignalWindowGeoChanged(int, int, KvGUI::StructScaleRect)));
    QVERIFY(f.wall->SetWindowScale(0, 0, {0.5 + p, 0.5 - p, 0.9 + p, 0.9 - p, true}));
    QCOMPARE(changed.count(), 0);
    CompareRects(f.Scale(0), start, 0.0);
    const StructScaleRect other{0.5, 0.5, 0.9, 0.9 + p + 0.0001, false};
    QVERIFY(f.wall->SetWindowScale(0, 0, other));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).mid(0, 2), (QVariantList{0, 0}));
    CompareRects(changed.at(0).at(2).value<StructScaleRect>(), other, 0.0);
}

// Catches the current rectangle overwriting the one it is compared with, through a shared reference.
void tst_Walls::aWindowsOwnRectangleMayBePassed()
{
    Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    f.Press(0, "Max");
    StructScaleRect rect = f.Scale(0);
    connect(f.wall, &Wall::SignalWindowGeoChanged, f.wall, [&](int, int, const auto& changed) {
        rect = Whole;
        f.wall->SetWindowScale(0, 0, changed); // of the running emission
    });
    rect.dLeft = 0.3;
    f.wall->SetWindowScale(0, 0, rect);
    CompareRects(f.Scale(0), {0.3, 0.0, 1.0, 1.0, true});
}

// Catches values that are stored and not seen: the click reaches the highest window.
void tst_Walls::zValuesStackWindows()
{
    Fixture f;
    const QPoint overlap(300, 200);
    f.wall->SetWindowSelectionMode(Wall::SingleSelection);
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    f.wall->OpenWindow(0, {0.2, 0.2, 0.5, 0.6, true}, QVariant());
    f.wall->OpenWindow(0, RightUpper, QVariant());
    for (int w = 0; w < 3; ++w)
        f.wall->SetWindowZValue(0, w, w + 1, true);
    f.mouse.Click(overlap);
    QCOMPARE(f.wall->GetSelectedWindowIndexs(), QList<int>{1});
    f.wall->SetWindowZValue(0, 0, 7, true);
    f.mouse.Click(overlap);
    QCOMPARE(f.wall->GetSelectedWindowIndexs(), QList<int>{0});
    QCOMPARE(f.wall->GetMaxWindowZValue(0), 7);
}

void tst_Walls::maximiseAndRestore()
{
    Fixture f;
    f.wall->OpenWindow(0, Fixed, QVariant());
    f.Press(0, "Max");
    CompareRects(f.Scale(0), Whole); // editable now
    QCOMPARE(f.Pixels(0), QRect(0, 0, 1000, 600));
    QVERIFY(f.Button(0, "Max").isNull());
    f.Press(0, "Restore");
    CompareRects(f.Scale(0), Fixed);
    QVERIFY(!f.Button(0, "Max").isNull());
}

void tst_Walls::snapAndRestore()
{
    Fixture f;
    const StructScaleRect start{0.26, 0.1, 0.74, 0.6, true};
    f.wall->OpenWindow(0, start, QVariant());
    f.Press(0, "SelfAdaption");
    CompareRects(f.Scale(0), Whole);
    QVERIFY(f.Button(0, "SelfAdaption").isNull());
    f.Press(0, "Max"); // restores what is snapped, too
    CompareRects(f.Scale(0), start);
    f.Press(0, "SelfAdaption");
    f.Press(0, "Restore");
    CompareRects(f.Scale(0), start);
}

void tst_Walls::settingEndsTheMaximisedState()
{
    Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    f.Press(0, "Max");
    bool endedInSlot = false;
    connect(f.wall, &Wall::SignalWindowGeoChanged, f.wall, [&] {
        endedInSlot = !f.Button(0, "Max").isNull(); // before the slot is called
    });
    f.wall->SetWindowScale(0, 0, RightUpper);
    QVERIFY(endedInSlot);
    f.Press(0, "Max");
    f.Press(0, "Restore");
    CompareRects(f.Scale(0), RightUpper);
}

void tst_Walls::doubleClick_data()
{
    QTest::addColumn<bool>("editable");
    QTest::newRow("editable") << true;
    QTest::newRow("fixed") << false;
}

// Catches a double-click whose two clicks report selections of their own.
void tst_Walls::doubleClick()
{
    QFETCH(bool, editable);
    Fixture f;
    const StructScaleRect start = editable ? LeftUpper : Fixed;
    f.wall->OpenWindow(0, start, QVariant());
    QSignalSpy selected(f.wall.data(), SIGNAL(SignalWindowSelectedChanged(int)));
    QSignalSpy doubleClicked(f.wall.data(), SIGNAL(SignalWindowDoubleClicked(int)));
    QSignalSpy screenSelected(f.wall.data(), SIGNAL(SignalScreenSelectedChanged(int)));
    f.mouse.DoubleClick(f.OnVideo(0));
    CompareRects(f.Scale(0), editable ? Whole : start);
    QCOMPARE(f.wall->GetSelectedWindowIndexs(), QList<int>{0});
    QCOMPARE(selected.count(), editable ? 1 : 0);
    QCOMPARE(doubleClicked.count(), !editable && f.display ? 1 : 0);
    QCOMPARE(screenSelected.count(), 1);
}

// Catches indices fixed at opening, and buttons of windows that are not editable.
void tst_Walls::buttonsReport()
{
    Fixture f;
    f.wall->OpenWindow(0, Fixed, QVariant());
    f.wall->OpenWindow(0, Fixed, QVariant());
    f.wall->OpenWindow(0, RightUpper, QVariant());
    f.wall->DeleteWindow(0, 0);
    QSignalSpy close(f.wall.data(), SIGNAL(SignalWindowCloseBtnClicked(int, int)));
    QSignalSpy volume(f.wall.data(), SIGNAL(SignalWindowVolumeBtnClicked(int, int)));
    for (const int window : {0, 1}) {
        f.Press(window, "Close");
        f.Press(window, "Open Volume");
    }
    QCOMPARE(close.count(), 1);
    QCOMPARE(close.at(0), (QVariantList{0, 1}));
    QCOMPARE(volume.count(), 1);
    QCOMPARE(volume.at(0), (QVariantList{0, 1}));
    QCOMPARE(f.wall->GetWindowCount(0), 2); // closing is the client's decision
}

void tst_Walls::volumeButtonFollowsItsState()
{
    Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    const QRect place = QRect(QPoint(), QSize(18, 18)).translated(f.Button(0, "Open Volume") - QPoint(9, 9));
    const QImage off = f.wall->grab(place).toImage();
    QVERIFY(f.wall->SetWindowVolumeBtn(0, 0, true));
    QVERIFY(!f.Button(0, "Close Volume").isNull());
    QVERIFY(f.wall->GetWindowVolumeBtnStatus(0, 0));
    QVERIFY(f.wall->grab(place).toImage() != off); // another image
    f.wall->SetWindowVolumeBtn(0, 0, false);
    QVERIFY(f.wall->grab(place).toImage() == off);
    f.wall->SetAudioBtnVisible(false);
    QCOMPARE(f.Button(0, "Open Volume").isNull(), !f.display);
}

void tst_Walls::clickInMode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<bool>("selectedBefore"); // the clicked window; the other one always is
    QTest::addColumn<QList<int>>("selectedAfter");
    using L = QList<int>;
    QTest::newRow("0 left") << 0 << Qt::LeftButton << false << L{1};
    QTest::newRow("1 left") << 1 << Qt::LeftButton << false << L{0};
    QTest::newRow("1 right on unselected") << 1 << Qt::RightButton << false << L{0};
    QTest::newRow("1 middle") << 1 << Qt::MiddleButton << false << L{1};
    QTest::newRow("2 left") << 2 << Qt::LeftButton << false << L{0, 1};
    QTest::newRow("2 left on selected") << 2 << Qt::LeftButton << true << L{1};
    QTest::newRow("2 right on unselected") << 2 << Qt::RightButton << false << L{0, 1};
    QTest::newRow("2 right on selected") << 2 << Qt::RightButton << true << L{0, 1};
    QTest::newRow("unknown mode") << 9 << Qt::LeftButton << false << L{1};
}

// Catches a routine that runs twice a click and takes back what it did, signals without a change, and a drag
// that selects.
void tst_Walls::clickInMode()
{
    QFETCH(int, mode);
    QFETCH(Qt::MouseButton, button);
    QFETCH(bool, selectedBefore);
    QFETCH(QList<int>, selectedAfter);
    Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    f.wall->OpenWindow(0, RightUpper, QVariant());
    f.SelectScreen();
    f.wall->SetWindowSelectionMode(Wall::SelectionMode(mode)); // 1 deselects all
    f.wall->SetSelectedWindowIndexs(0, 1, true);
    if (selectedBefore)
        f.mouse.Click(f.OnVideo(0));
    const QList<int> before = f.wall->GetSelectedWindowIndexs();
    QSignalSpy changed(f.wall.data(), SIGNAL(SignalWindowSelectedChanged(int)));
    QSignalSpy clicked(f.wall.data(), SIGNAL(SignalWindowClicked()));
    QSignalSpy screenSelected(f.wall.data(), SIGNAL(SignalScreenSelectedChanged(int)));
    f.mouse.Drag(f.OnVideo(0), f.OnVideo(0) + QPoint(1, 0));
    QCOMPARE(f.wall->GetSelectedWindowIndexs(), before);
    f.mouse.Click(f.OnVideo(0), button);
    QCOMPARE(f.wall->GetSelectedWindowIndexs(), selectedAfter);
    QCOMPARE(changed.count(), before == selectedAfter ? 0 : 1);
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(screenSelected.count(), 0); // it was selected
    if (mode == 1 && button == Qt::LeftButton) { // again: no change left
        f.mouse.Click(f.OnVideo(0), button);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(clicked.count(), f.display ? 1 : 0);
    }
}

void tst_Walls::pressOnEmptyPart()
{
    Fixture f;
    f.wall->AddScreen({0.5, 0.5, 1.0, 1.0}, QVariant());
    f.wall->OpenWindow(1, LeftUpper, QVariant());
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    f.wall->SetSelectedWindowIndexs(0, 0, true);
    f.wall->SetSelectedWindowIndexs(1, 0, true);
    QSignalSpy selected(f.wall.data(), SIGNAL(SignalScreenSelectedChanged(int)));
    f.mouse.Click({5, 5});
    f.mouse.Click({5, 5}, Qt::RightButton);
    QCOMPARE(selected.count(), 2); // each time
    QCOMPARE(f.wall->GetSelectedScreenIndex(), 0);
    QVERIFY(f.wall->GetSelectedWindowIndexs().isEmpty());
    f.wall->SetWindowSelectionMode(Wall::MultiSelection);
    f.mouse.Click({700, 310}); // the other screen, beside its window
    QCOMPARE(f.wall->GetSelectedScreenIndex(), 1);
    QCOMPARE(f.wall->GetUnSelectedWindowIndexs(), QList<int>{0}); // deselected with the screen's own loss
    QCOMPARE(selected.count(), 3);
}

void tst_Walls::selectionByCall()
{
    Fixture f;
    for (int w = 0; w < 3; ++w)
        f.wall->OpenWindow(0, LeftUpper, QVariant());
    QVERIFY(f.wall->GetUnSelectedWindowIndexs().isEmpty()); // no screen is selected
    f.SelectScreen();
    QSignalSpy changed(f.wall.data(), SIGNAL(SignalWindowSelectedChanged(int)));
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
    QCOMPARE(changed.count(), 0);
}

void tst_Walls::bandSelects()
{
    Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    f.wall->OpenWindow(0, RightUpper, QVariant());
    f.wall->OpenWindow(0, {0.1, 0.7, 0.4, 0.9, true}, QVariant());
    f.wall->SetWindowSelectionMode(Wall::MultiSelection);
    QSignalSpy changed(f.wall.data(), SIGNAL(SignalWindowSelectedChanged(int)));
    QSignalSpy drawn(f.wall.data(), SIGNAL(SignalDrawAreaOpenWindow(int, KvGUI::StructScaleRect)));
    f.mouse.Drag({950, 350}, {350, 250}); // backwards over the two upper windows
    QCOMPARE(f.wall->GetSelectedWindowIndexs(), (QList<int>{0, 1}));
    QCOMPARE(changed.count(), 1);
    f.mouse.Drag({950, 350}, {960, 400}); // over nothing
    QVERIFY(f.wall->GetSelectedWindowIndexs().isEmpty());
    QCOMPARE(changed.count(), 1);
    QCOMPARE(drawn.count(), 0);
    const auto bands = f.wall->findChildren<QRubberBand*>();
    QVERIFY(std::none_of(bands.begin(), bands.end(), [](auto* band) { return band->isVisible(); }));
}

void tst_Walls::areaIsDrawn_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<bool>("drawn");
    QTest::addColumn<StructScaleRect>("area");
    QTest::newRow("mode 0") << 0 << QPoint(600, 500) << true
                            << StructScaleRect{0.5, 0.6, 0.6, 500 / 600.0, true};
    QTest::newRow("mode 1, up and left")
        << 1 << QPoint(400, 300) << true << StructScaleRect{0.4, 0.5, 0.5, 0.6, true};
    QTest::newRow("too flat") << 0 << QPoint(600, 362) << false << StructScaleRect();
    QTest::newRow("band mode") << 2 << QPoint(600, 500) << false << StructScaleRect();
    QTest::newRow("cut at the edge") << 0 << QPoint(5000, 5000) << true
                                     << StructScaleRect{0.5, 0.6, 0.999, 599 / 600.0, true};
}

void tst_Walls::areaIsDrawn()
{
    QFETCH(int, mode);
    QFETCH(QPoint, to);
    QFETCH(bool, drawn);
    QFETCH(StructScaleRect, area);
    Fixture f;
    f.wall->SetWindowSelectionMode(Wall::SelectionMode(mode));
    QSignalSpy spy(f.wall.data(), SIGNAL(SignalDrawAreaOpenWindow(int, KvGUI::StructScaleRect)));
    f.mouse.Drag({500, 360}, to);
    QCOMPARE(spy.count(), int(drawn));
    if (drawn)
        CompareRects(spy.at(0).at(1).value<StructScaleRect>(), area);
    // Only the left button draws.
    f.mouse.Press({500, 360}, Qt::RightButton);
    f.mouse.Move({600, 460});
    f.mouse.Release({600, 460}, Qt::RightButton);
    QCOMPARE(spy.count(), int(drawn));
}

void tst_Walls::escapeCancelsDrawing()
{
    Fixture f;
    QSignalSpy spy(f.wall.data(), SIGNAL(SignalDrawAreaOpenWindow(int, KvGUI::StructScaleRect)));
    f.mouse.Press({100, 100});
    f.mouse.Move({300, 300});
    QTest::keyClick(f.client.windowHandle(), Qt::Key_Escape);
    f.mouse.Release({300, 300});
    QCOMPARE(spy.count(), 0);
}

void tst_Walls::windowIsDragged_data()
{
    QTest::addColumn<StructScaleRect>("start");
    QTest::addColumn<QPoint>("grip"); // in the window
    QTest::addColumn<QPoint>("way");
    QTest::addColumn<bool>("toCells"); // by the Shift key, or by the screen
    QTest::addColumn<StructScaleRect>("end");
    const QPoint title(40, 12);
    QTest::newRow("by its title") << LeftUpper << title << QPoint(50, 30) << false
                                  << StructScaleRect{0.15, 0.15, 0.45, 0.55, true};
    QTest::newRow("not out of the screen")
        << LeftUpper << title << QPoint(5000, 5000) << false << StructScaleRect{0.7, 0.6, 1.0, 1.0, true};
    QTest::newRow("by its edge") << LeftUpper << QPoint(298, 120) << QPoint(100, 30) << false
                                 << StructScaleRect{0.1, 0.1, 0.5, 0.5, true};
    QTest::newRow("by its corner") << LeftUpper << QPoint(298, 238) << QPoint(-100, -60) << false
                                   << StructScaleRect{0.1, 0.1, 0.3, 0.4, true};
    QTest::newRow("a fixed one") << Fixed << title << QPoint(50, 30) << false << Fixed;
    QTest::newRow("no way at all") << LeftUpper << title << QPoint(0, 0) << false << LeftUpper;
    QTest::newRow("to cells") << StructScaleRect{0.01, 0.01, 0.4, 0.4, true} << title << QPoint(530, 20)
                              << true << StructScaleRect{0.5, 0.0, 1.0, 0.5, true};
}

void tst_Walls::windowIsDragged()
{
    QFETCH(StructScaleRect, start);
    QFETCH(QPoint, grip);
    QFETCH(QPoint, way);
    QFETCH(bool, toCells);
    QFETCH(StructScaleRect, end);
    for (const bool byKey : {true, false}) {
        Fixture f;
        f.wall->OpenWindow(0, start, QVariant());
        QSignalSpy changed(f.wall.data(), SIGNAL(SignalWindowGeoChanged(int, int, KvGUI::StructScaleRect)));
        const QPoint from = f.Pixels(0).topLeft() + grip;
        const bool shift = toCells && (byKey || f.display); // which knows no bound screens
        f.wall->SetScreenFreeMode(0, shift || !toCells);
        f.mouse.Drag(from, from + way, shift ? Qt::ShiftModifier : Qt::NoModifier);
        CompareRects(f.Scale(0), end);
        const bool moved = std::abs(start.dLeft - end.dLeft) + std::abs(start.dRight - end.dRight) > 0;
        QCOMPARE(changed.count(), int(moved));
    }
}

void tst_Walls::dragMovesPixelsOnly()
{
    Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    QSignalSpy changed(f.wall.data(), SIGNAL(SignalWindowGeoChanged(int, int, KvGUI::StructScaleRect)));
    const QPoint press = f.OnTitle(0);
    f.mouse.Press(press);
    f.mouse.Move(press + QPoint(50, 30));
    QCOMPARE(f.Pixels(0), QRect(150, 90, 300, 240));
    CompareRects(f.Scale(0), LeftUpper, 0.0);
    QCOMPARE(changed.count(), 0);
    f.client.hide(); // ends the drag
    f.client.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.client));
    f.mouse.Move(press + QPoint(90, 90));
    QCOMPARE(f.Pixels(0), QRect(100, 60, 300, 240));
    f.mouse.Release(press);
    QCOMPARE(changed.count(), 0);
}

void tst_Walls::escapeTakesADragBack()
{
    Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    QSignalSpy changed(f.wall.data(), SIGNAL(SignalWindowGeoChanged(int, int, KvGUI::StructScaleRect)));
    const QPoint press = f.OnTitle(0);
    f.mouse.Press(press);
    f.mouse.Move(press + QPoint(80, 80));
    QTest::keyClick(f.client.windowHandle(), Qt::Key_Escape);
    QCOMPARE(f.Pixels(0), QRect(100, 60, 300, 240));
    f.mouse.Release(press + QPoint(80, 80));
    QCOMPARE(f.Pixels(0), QRect(100, 60, 300, 240));
    QCOMPARE(changed.count(), 0);
}

// Catches a zoom about another point, and areas drawn on a zoomed wall as if it were not.
void tst_Walls::wheelKeepsThePointUnderTheCursor()
{
    Fixture f;
    f.wall->OpenWindow(0, {0.0, 0.0, 0.5, 0.5, true}, QVariant());
    const QPoint cursor(300, 200); // over the window
    const auto within = [&] {
        const QRect window = f.Pixels(0);
        return QPointF(
            double(cursor.x() - window.x()) / window.width(),
            double(cursor.y() - window.y()) / window.height());
    };
    const QPointF before = within();
    for (const int angle : {120, 120, 120, -120})
        f.mouse.Wheel(cursor, angle);
    QVERIFY(f.Pixels(0).width() > 1000);
    QVERIFY((within() - before).manhattanLength() < 0.01);
    CompareRects(f.Scale(0), {0.0, 0.0, 0.5, 0.5, true}, 0.0);
    f.wall->DeleteWindow(0, 0);
    QSignalSpy drawn(f.wall.data(), SIGNAL(SignalDrawAreaOpenWindow(int, KvGUI::StructScaleRect)));
    f.mouse.Drag({100, 100}, {400, 300});
    QCOMPARE(drawn.count(), 1);
    f.wall->OpenWindow(0, drawn.at(0).at(1).value<StructScaleRect>(), QVariant());
    QVERIFY((f.Pixels(0).topLeft() - QPoint(100, 100)).manhattanLength() < 4);
    QVERIFY((f.Pixels(0).bottomRight() - QPoint(400, 300)).manhattanLength() < 4);
    for (int i = 0; i < 5; ++i)
        f.mouse.Wheel(cursor, -120);
    f.wall->RecoverEagleEye();
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    QCOMPARE(f.Pixels(1), QRect(100, 60, 300, 240)); // the whole wall again
}

void tst_Walls::eventsAreReported()
{
    Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    QList<QEvent::Type> types;
    connect(
        f.wall, &Wall::SignalWindowEvent, f.wall, [&](int, int, QEvent* event) { types << event->type(); });
    QSignalSpy menu(f.wall.data(), SIGNAL(SignalScreenRightClick(int)));
    f.mouse.Click(OnEmpty, Qt::RightButton);
    QCOMPARE(menu.count(), f.display ? 1 : 0);
    f.mouse.Click(f.OnVideo(0), Qt::RightButton);
    QCOMPARE(menu.count(), f.display ? 1 : 0); // a window's menu is not the screen's
    QTest::keyClick(f.client.windowHandle(), Qt::Key_A);
    f.mouse.Wheel(f.OnVideo(0), 120);
    for (const QEvent::Type type :
         {QEvent::ContextMenu, QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::KeyPress,
          QEvent::KeyRelease, QEvent::Wheel})
        QCOMPARE(types.count(type), 1); // each event once
}

void tst_Walls::dragAndDropIsReported()
{
    Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    const QMimeData data;
    QList<QEvent::Type> onScreen;
    QList<QEvent::Type> onWindow;
    connect(f.wall, &Wall::SignalScreenEvent, f.wall, [&](int, QEvent* event) {
        onScreen << event->type();
        event->accept();
    });
    connect(f.wall, &Wall::SignalWindowEvent, f.wall, [&](int, int, QEvent* event) {
        onWindow << event->type();
        event->accept();
    });
    for (const QPoint& at : {OnEmpty, f.OnVideo(0)}) {
        QVERIFY(f.mouse.DragEnter(at, data));
        f.mouse.Drop(at, data);
    }
    for (const QEvent::Type type : {QEvent::DragEnter, QEvent::Drop}) {
        QCOMPARE(onScreen.count(type), 1);
        QCOMPARE(onWindow.count(type), 1);
    }
}

void tst_Walls::overlaysAreShown()
{
    Fixture f;
    f.wall->OpenWindow(0, Whole, QVariant());
    for (const bool roll : {false, true}) {
        std::vector<KvGUI::StructOSDInfo> infos(3, Overlay(roll));
        QVERIFY(f.wall->SetScreenOSDInfo(0, infos));
        f.wall->SetWindowZValue(0, 0, 9, true);
        QCOMPARE(f.PixelAt(OnOverlay), qRgb(0, 120, 0)); // over the window
        QSignalSpy selected(f.wall.data(), SIGNAL(SignalScreenSelectedChanged(int)));
        QSignalSpy pressed(f.wall.data(), SIGNAL(SignalWindowEvent(int, int, QEvent*)));
        QSignalSpy label(f.wall.data(), SIGNAL(SignalLabelEvent(int, int, QEvent*)));
        f.mouse.Click(OnOverlay);
        QCOMPARE(selected.count() + pressed.count(), 0); // nothing falls through
        QCOMPARE(label.count(), f.display ? 2 : 0);
        infos.clear();
        f.wall->SetScreenOSDInfo(0, infos);
        QVERIFY(f.PixelAt(OnOverlay) != qRgb(0, 120, 0));
    }
}

void tst_Walls::selectionIsSeen()
{
    Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    const QRgb screenFrame = qRgb(219, 221, 225);
    QVERIFY(f.PixelAt({0, 300}) != screenFrame);
    f.SelectScreen();
    for (const QPoint& edge : {QPoint(0, 300), QPoint(999, 300), QPoint(300, 0), QPoint(300, 599)})
        QCOMPARE(f.PixelAt(edge), screenFrame);
    QCOMPARE(f.PixelAt({450, 30}), qRgb(33, 34, 37));
    const QPoint onFrame = f.Pixels(0).bottomLeft() + QPoint(150, 0);
    const QRgb unselected = f.PixelAt(onFrame);
    f.wall->SetSelectedWindowIndexs(0, 0, true);
    QVERIFY(f.PixelAt(onFrame) != unselected);
    f.wall->SetSelectedWindowIndexs(0, 0, false);
    QCOMPARE(f.PixelAt(onFrame), unselected);
}

void tst_Walls::skinChangeRestyles()
{
    Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    const QPoint onTitle = f.Pixels(0).topLeft() + QPoint(150, 14);
    QVERIFY(qGray(f.PixelAt(onTitle)) < 90);
    KvGUI::SetSkinVersion(QStringLiteral("White"));
    const QRgb white = f.PixelAt(onTitle);
    KvGUI::SetSkinVersion(QStringLiteral("Black"));
    QVERIFY(qGray(white) > 180);
    QVERIFY(qGray(f.PixelAt(onTitle)) < 90);
}

namespace {

using Action = std::function<void(Fixture&)>;

/// What a client deletes.
const QVector<QPair<const char*, Action>> Deletions = {
    {"a window", [](Fixture& f) { f.wall->DeleteWindow(0, 0); }},
    {"all windows", [](Fixture& f) { f.wall->DeleteAllWindows(); }},
    {"all screens", [](Fixture& f) { f.wall->DeleteAllScreen(); }},
    {"the wall by its mode",
     [](Fixture& f) { f.wall->SetShowMode(f.display ? Wall::NormalMode : Wall::DisplayMode); }},
    {"the operate wall", [](Fixture& f) { delete f.wall; }},
};

/// What an operator does meanwhile, in a wall with two upper windows in the mode of many.
const QVector<QPair<const char*, Action>> Occasions = {
    {"a click", [](Fixture& f) { f.mouse.Click(f.OnVideo(0)); }},
    {"a right click on a title", [](Fixture& f) { f.mouse.Click(f.OnTitle(0), Qt::RightButton); }},
    {"a right click on a video", [](Fixture& f) { f.mouse.Click(f.OnVideo(0), Qt::RightButton); }},
    {"a right click on an empty part", [](Fixture& f) { f.mouse.Click(OnEmpty, Qt::RightButton); }},
    {"a band",
     [](Fixture& f) {
         f.mouse.Drag({950, 400}, {50, 30});
     }},
    {"an area",
     [](Fixture& f) {
         f.wall->SetWindowSelectionMode(Wall::NoSelection);
         f.mouse.Drag({450, 400}, {550, 550});
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
    {"a drag-and-drop over a window",
     [](Fixture& f) {
         const QMimeData data;
         f.mouse.DragEnter(f.OnVideo(0), data);
         f.mouse.DragLeave();
     }},
    {"a drag-and-drop over an empty part",
     [](Fixture& f) {
         const QMimeData data;
         f.mouse.DragEnter(OnEmpty, data);
         f.mouse.DragLeave();
     }},
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

} // namespace

Q_DECLARE_METATYPE(Action)

void tst_Walls::slotsMayDeleteAnything_data()
{
    QTest::addColumn<int>("deletion");
    QTest::addColumn<int>("occasion");
    QFETCH_GLOBAL(int, family);
    const int occasions = Occasions.size() - (family == Wall::DisplayMode ? 0 : DisplayOccasions);
    for (int d = 0; d < Deletions.size(); ++d) {
        for (int o = 0; o < occasions; ++o)
            QTest::addRow("%s in %s", Deletions.at(d).first, Occasions.at(o).first) << d << o;
    }
}

// Catches any use of a window, screen or wall after its signal, and a wall that is gone before Qt has done
// with the widget under the mouse; meant to be run under a sanitizer as well.
void tst_Walls::slotsMayDeleteAnything()
{
    QFETCH(int, deletion);
    QFETCH(int, occasion);
    Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    f.wall->OpenWindow(0, RightUpper, QVariant());
    f.wall->SetWindowSelectionMode(Wall::MultiSelection);
    int emissions = 0;
    ConnectAll(f.wall, [&] {
        ++emissions;
        if (f.wall)
            Deletions.at(deletion).second(f);
    });
    Occasions.at(occasion).second(f);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
    QVERIFY(emissions > 0);
    if (deletion == Deletions.size() - 1)
        QVERIFY(!f.wall && f.client.findChildren<QWidget*>().isEmpty());
    else if (deletion >= 2)
        QCOMPARE(f.wall->GetScreenCount(), 0);
}

void tst_Walls::videosMayChangeTheWall_data()
{
    QTest::addColumn<Action>("change");
    QTest::addColumn<bool>("byWheel");
    const QVector<QPair<const char*, Action>> changes = {
        {"deletes itself", [](Fixture& f) { f.wall->DeleteWindow(0, 0); }},
        {"deletes all windows", [](Fixture& f) { f.wall->DeleteAllWindows(); }},
        {"deletes all screens", [](Fixture& f) { f.wall->DeleteAllScreen(); }},
        {"deletes a video", [](Fixture& f) { f.wall->DeleteWindowWidget(0, 0); }},
        {"opens windows",
         [](Fixture& f) {
             for (int i = 0; i < 50; ++i)
                 f.wall->OpenWindow(0, LeftUpper, QVariant());
         }},
        {"adds screens",
         [](Fixture& f) {
             for (int i = 0; i < 50; ++i)
                 f.wall->AddScreen(Whole, QVariant());
         }},
    };
    for (const auto& change : changes) {
        QTest::addRow("%s at a resize", change.first) << change.second << false;
        QTest::addRow("%s at a wheel", change.first) << change.second << true;
    }
}

// Catches lists of screens and windows that are walked while a video that gets another size changes them, and
// windows forgotten in it; meant to be run under a sanitizer as well.
void tst_Walls::videosMayChangeTheWall()
{
    QFETCH(Action, change);
    QFETCH(bool, byWheel);
    Fixture f;
    f.wall->AddScreen({0.5, 0.5, 1.0, 1.0}, QVariant());
    for (int w = 0; w < 3; ++w)
        f.wall->OpenWindow(0, LeftUpper, w);
    f.wall->OpenWindow(1, LeftUpper, QVariant());
    f.wall->GetWindowWidget(0, 2);
    const TestSupport::AtEvent atResize(f.wall->GetWindowWidget(0, 0), QEvent::Resize, [&] { change(f); });
    byWheel ? f.mouse.Wheel({0, 0}, 120) : f.wall->resize(1500, 900);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(atResize.HasActed());
    for (int w = 0; w < f.wall->GetWindowCount(0); ++w) {
        if (f.wall->GetWindowWidget(0, w) != nullptr)
            QCOMPARE(f.Pixels(w), QRect(150, 90, 450, 360));
    }
}

void tst_Walls::lostFocusMayChangeTheWall_data()
{
    QTest::addColumn<Action>("occasion");
    QTest::addColumn<Action>("change");
    const QVector<QPair<const char*, Action>> deletions = {
        {"a video", [](Fixture& f) { f.wall->DeleteWindowWidget(0, 0); }},
        {"a window", [](Fixture& f) { f.wall->DeleteWindow(0, 0); }},
        {"all windows", [](Fixture& f) { f.wall->DeleteAllWindows(); }},
        {"all screens", [](Fixture& f) { f.wall->DeleteAllScreen(); }},
    };
    for (const auto& occasion : deletions) {
        for (const auto& change : deletions)
            QTest::addRow("%s in that of %s", change.first, occasion.first)
                << occasion.second << change.second;
    }
}

// Catches a deletion that goes on with what was deleted by the focus that it moves.
void tst_Walls::lostFocusMayChangeTheWall()
{
    QFETCH(Action, occasion);
    QFETCH(Action, change);
    Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    f.wall->OpenWindow(0, RightUpper, QVariant());
    auto* edit = new QLineEdit(f.wall->GetWindowWidget(0, 0));
    edit->show();
    QApplication::setActiveWindow(&f.client);
    f.mouse.Click(f.Pixels(0).topLeft() + QPoint(10, 36));
    QVERIFY(edit->hasFocus());
    const TestSupport::AtEvent atLoss(edit, QEvent::FocusOut, [&] { change(f); });
    occasion(f);
    QVERIFY(atLoss.HasActed());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(f.wall->findChild<QLineEdit*>() == nullptr);
}

// Catches endless painting and undefined conversions; each wall below is painted at once.
void tst_Walls::wildRectanglesArePainted()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    const StructScaleRect wild[] = {{nan, nan, nan, nan, true}, {-infinity, 0.0, infinity, 1.0, true},
                                    {0.9, 0.9, 0.1, 0.1, true}, {-1e300, -1e300, 1e300, 1e300},
                                    {0.0, 0.0, 1e9, 1e9, true}, {0.5, 0.5, 0.5, 0.5, true}};
    for (const StructScaleRect& rect : wild) {
        Fixture f;
        f.wall->SetTVWallGridCount(std::numeric_limits<int>::max(), std::numeric_limits<int>::max());
        f.wall->AddScreen(rect, QVariant());
        for (int s = 0; s < 2; ++s) {
            f.wall->OpenWindow(s, LeftUpper, QVariant());
            f.wall->OpenWindow(s, rect, QVariant());
            f.wall->SetWindowScale(s, 0, rect);
            f.wall->SetSelectedWindowIndexs(s, 0, true);
            std::vector<KvGUI::StructOSDInfo> infos{Overlay(false), Overlay(true)};
            for (KvGUI::StructOSDInfo& info : infos) {
                info.iRight = std::numeric_limits<int>::max();
                info.iTop = std::numeric_limits<int>::min();
            }
            f.wall->SetScreenOSDInfo(s, infos);
        }
        QElapsedTimer timer;
        timer.start();
        f.wall->grab();
        f.mouse.Wheel({500, 300}, 120);
        f.wall->grab();
        f.wall->resize(300, 200);
        f.wall->grab();
        QVERIFY(timer.elapsed() < 20000);
    }
}

STRICT_TEST_MAIN(tst_Walls)
#include "tst_walls.moc"
