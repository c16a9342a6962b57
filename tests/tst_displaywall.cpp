// The display wall as its clients and its operators use it.

#include "support/StrictMain.h"

#include <Platform/BasicUIComponents/KvSkin.h>
#include <UI/TVWall/KvTVWallDisplayWnd.h>

#include <QAccessible>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDir>
#include <QDropEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMimeData>
#include <QPushButton>
#include <QRubberBand>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>
#include <QtTest/qtestspontaneevent.h>
#include <cmath>
#include <limits>
#include <memory>

using KvGUI::StructScaleRect;
using Wall = UICommonMdl::KvTVWallDisplayWnd;

Q_DECLARE_METATYPE(KvGUI::StructScaleRect)
Q_DECLARE_METATYPE(Qt::MouseButton)

namespace {

constexpr StructScaleRect Whole{0.0, 0.0, 1.0, 1.0, true};
constexpr StructScaleRect LeftUpper{0.1, 0.1, 0.4, 0.5, true};
constexpr StructScaleRect RightUpper{0.6, 0.1, 0.9, 0.5, true};

const QPoint OnVideo(60, 100);
const QPoint OnTitle(40, 12);

/// One wall of 1000 x 600 pixels, shown, with one screen of 2 x 2 cells over all of it.
struct Fixture
{
    Fixture()
    {
        wall->resize(1000, 600);
        wall->SetTVWallGridCount(2, 2);
        wall->AddScreen(Whole, QVariant());
        wall->show();
        QVERIFY(QTest::qWaitForWindowExposed(wall.get()));
    }

    QMdiArea* Screen(int index = 0) const { return wall->findChildren<QMdiArea*>().at(index); }
    QWidget* Empty() const { return Screen()->viewport(); }
    QWidget* Window(int window, int screen = 0) const
    {
        return wall->GetWindowWidget(screen, window)->parentWidget();
    }
    QPushButton* Button(int window, const char* name) const
    {
        return Window(window)->findChild<QPushButton*>(QLatin1String(name));
    }
    StructScaleRect Scale(int window) const
    {
        StructScaleRect rect;
        wall->GetWindowScale(0, window, rect);
        return rect;
    }
    void Drag(QWidget* widget, const QPoint& from, const QPoint& to, Qt::KeyboardModifiers keys = {}) const
    {
        QTest::mousePress(widget, Qt::LeftButton, keys, from);
        MoveHeld(widget, (from + to) / 2, keys);
        MoveHeld(widget, to, keys);
        QTest::mouseRelease(widget, Qt::LeftButton, keys, to);
    }
    static void MoveHeld(QWidget* widget, const QPoint& pos, Qt::KeyboardModifiers keys = {})
    {
        QMouseEvent move(
            QEvent::MouseMove, pos, widget->mapToGlobal(pos), Qt::NoButton, Qt::LeftButton, keys);
        QApplication::sendEvent(widget, &move);
    }

    std::unique_ptr<Wall> wall = std::make_unique<Wall>();
};

void CompareRects(const StructScaleRect& a, const StructScaleRect& b, double tolerance = 1e-9)
{
    QVERIFY(std::abs(a.dLeft - b.dLeft) <= tolerance);
    QVERIFY(std::abs(a.dTop - b.dTop) <= tolerance);
    QVERIFY(std::abs(a.dRight - b.dRight) <= tolerance);
    QVERIFY(std::abs(a.dBottom - b.dBottom) <= tolerance);
    QCOMPARE(a.bEditable, b.bEditable);
}

/// Windows of a screen from the lowest to the highest, by index.
QList<int> Stacking(const Fixture& f)
{
    QList<int> order;
    const QObjectList children = f.Empty()->children();
    for (QObject* child : children) {
        for (int w = 0; w < f.wall->GetWindowCount(0); ++w) {
            if (f.Window(w) == child)
                order << w;
        }
    }
    return order;
}

/// Turns the wheel as the window system does: Qt passes an event made by a program to no parent.
bool TurnWheel(QWidget* widget, const QPoint& pos, int angle)
{
    QWheelEvent turn(
        pos, widget->mapToGlobal(pos), {}, QPoint(0, angle), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
        false);
    QSpontaneKeyEvent::setSpontaneous(&turn);
    qApp->notify(widget, &turn);
    return turn.isAccepted();
}

QRgb PixelAt(QWidget& widget, const QPoint& pos) { return widget.grab().toImage().pixel(pos); }

} // namespace

class tst_DisplayWall : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qRegisterMetaType<KvGUI::StructScaleRect>("KvGUI::StructScaleRect");
        qRegisterMetaType<QEvent*>("QEvent*");
    }

    void wrongIndicesGiveTheirDefaults_data();
    void wrongIndicesGiveTheirDefaults();
    void screensNeedAGrid();
    void shortFormDropsUserData();
    void screensArePlaced();
    void windowsFollowTheirScreen();
    void precisionDecidesAboutChange();
    void aWindowsOwnRectangleMayBePassed();
    void windowsAreNumberedWhenOpened();
    void zOrder();
    void zOrderOfASingleWindow();

    void maximiseAndRestore();
    void snapAndRestore();
    void settingEndsTheMaximisedState();
    void doubleClickOfEditableWindow();
    void doubleClickOfFixedWindow();
    void buttonsReport();
    void volumeButtonFollowsItsState();

    void clickInMode_data();
    void clickInMode();
    void draggedClickSelectsNothing();
    void pressOnEmptyPart();
    void selectionByCall();
    void selectionModeSingleDeselects();
    void bandSelects();
    void areaIsDrawn_data();
    void areaIsDrawn();
    void escapeCancelsDrawing();
    void positioningFrame();

    void windowIsMovedByItsTitle();
    void windowIsResizedByItsEdge();
    void escapeTakesADragBack();
    void hidingEndsADrag();
    void shiftKeepsToCells();
    void fixedWindowStays();

    void nothingOfTheBaseClassActs();
    void wheelIsReported();
    void keysSelectAndAreReported();
    void dragAndDropIsReported();
    void contextMenus();

    void overlaysAreShown();
    void overlaysAreReused();
    void overlaysRoll();
    void backgroundHidesOverlays();
    void baseMapIsPainted();
    void paintedColours();
    void skinChangeRestyles();

    void slotsMayDeleteAnything_data();
    void slotsMayDeleteAnything();
    void wildRectanglesArePainted();
};

void tst_DisplayWall::wrongIndicesGiveTheirDefaults_data()
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
void tst_DisplayWall::wrongIndicesGiveTheirDefaults()
{
    QFETCH(int, screen);
    QFETCH(int, window);
    const Fixture f;
    f.wall->OpenWindow(0, LeftUpper, 1);
    QVERIFY(!f.wall->DeleteWindow(screen, window));
    StructScaleRect rect = Whole;
    QVERIFY(!f.wall->SetWindowScale(screen, window, RightUpper));
    QVERIFY(!f.wall->GetWindowScale(screen, window, rect));
    CompareRects(rect, Whole);
    QVERIFY(!f.wall->SetWindowZValue(screen, window, 1, true));
    QCOMPARE(f.wall->GetWindowZValue(screen, window), -1);
    QVERIFY(!f.wall->GetWindowUserData(screen, window).isValid());
    QVERIFY(!f.wall->SetWindowContentText(screen, window, QStringLiteral("x")));
    QVERIFY(!f.wall->SetWindowVolumeBtn(screen, window, true));
    QVERIFY(!f.wall->GetWindowVolumeBtnStatus(screen, window));
    QCOMPARE(f.wall->GetWindowWidget(screen, window), nullptr);
    QVERIFY(!f.wall->DeleteWindowWidget(screen, window));
    QVERIFY(!f.wall->SetWindowVideoWidgetText(screen, window, QStringLiteral("x")));
    f.wall->SetWindowUserData(screen, window, 5);
    f.wall->SetSelectedWindowIndexs(screen, window, true);
    QCOMPARE(f.wall->GetWindowCount(0), 1);
    QCOMPARE(f.wall->GetWindowUserData(0, 0), QVariant(1));
    if (screen == 0)
        return;
    std::vector<KvGUI::StructOSDInfo> infos(1);
    QCOMPARE(f.wall->OpenWindow(screen, Whole, QVariant()), -1);
    QCOMPARE(f.wall->GetWindowCount(screen), 0);
    QCOMPARE(f.wall->GetMaxWindowZValue(screen), 1);
    QVERIFY(f.wall->GetAllWindowIndexs(screen).isEmpty());
    QVERIFY(!f.wall->GetScreenScale(screen, rect));
    QVERIFY(!f.wall->SetScreenTitle(screen, QString()));
    QVERIFY(!f.wall->SetScreenContentText(screen, QString()));
    QVERIFY(!f.wall->SetScreenOSDInfo(screen, infos));
    QVERIFY(!f.wall->SetScreenWindowBackgroudColor(screen, Qt::red, true));
    QVERIFY(!f.wall->SetScreenBaseMapShow(screen, "x", true));
    QVERIFY(!f.wall->GetScreenUserData(screen).isValid());
    f.wall->SetSelectedScreenIndex(screen);
    f.wall->SetPtzFrameSelectedEnable(true);
    QCOMPARE(f.wall->GetSelectedScreenIndex(), -1);
}

void tst_DisplayWall::screensNeedAGrid()
{
    Wall wall;
    QTest::ignoreMessage(QtWarningMsg, "---KvGUI--- KvTVWallDisplayWnd::AddScreen: iRows = 0, iCols = 0");
    QCOMPARE(wall.AddScreen(Whole, QVariant()), -1);
    wall.SetTVWallGridCount(3, 0);
    QTest::ignoreMessage(QtWarningMsg, "---KvGUI--- KvTVWallDisplayWnd::AddScreen: iRows = 3, iCols = 0");
    QCOMPARE(wall.AddScreen(Whole, QIcon(), QString(), QVariant()), -1);
    QCOMPARE(wall.GetScreenCount(), 0);
    wall.SetTVWallGridCount(3, 1);
    QCOMPARE(wall.AddScreen(Whole, QVariant()), 0);
    QVERIFY(wall.DeleteAllScreen());
    QVERIFY(wall.DeleteAllScreen());
    QCOMPARE(wall.GetScreenCount(), 0);
}

void tst_DisplayWall::shortFormDropsUserData()
{
    Fixture f;
    QVERIFY(!f.wall->GetScreenUserData(f.wall->AddScreen(Whole, 5)).isValid());
    QCOMPARE(f.wall->GetScreenUserData(f.wall->AddScreen(Whole, QIcon(), QString(), 5)), QVariant(5));
}

// Catches a layout that waits for the first show, for a resize, or for the screens added after SetDeviceType.
void tst_DisplayWall::screensArePlaced()
{
    Wall wall;
    wall.resize(1000, 600);
    wall.SetTVWallGridCount(2, 2);
    wall.AddScreen({0.0, 0.0, 0.5, 0.5}, QVariant());
    const auto screens = [&wall] { return wall.findChildren<QMdiArea*>(); };
    QCOMPARE(screens().at(0)->geometry(), QRect(QPoint(0, 0), QPoint(495, 295)));
    wall.SetDeviceType(true);
    QCOMPARE(screens().at(0)->geometry(), QRect(QPoint(0, 0), QPoint(499, 299)));
    wall.AddScreen({0.5, 0.0, 0.9, 0.5}, QVariant());
    QCOMPARE(screens().at(1)->geometry(), QRect(QPoint(500, 0), QPoint(895, 295)));
    wall.show();
    wall.resize(500, 300);
    QCOMPARE(screens().at(0)->geometry(), QRect(QPoint(0, 0), QPoint(249, 149)));
}

// Catches pixels that are computed back into the rectangle, and windows of a hidden wall that are not placed.
void tst_DisplayWall::windowsFollowTheirScreen()
{
    Wall wall;
    wall.resize(1000, 600);
    wall.SetTVWallGridCount(1, 1);
    wall.AddScreen(Whole, QVariant());
    const StructScaleRect scale{0.3333, 0.25, 0.6667, 0.75, true};
    wall.OpenWindow(0, scale, QVariant());
    QWidget* window = wall.GetWindowWidget(0, 0)->parentWidget();
    QCOMPARE(window->geometry(), QRect(333, 150, 333, 300));
    QCOMPARE(wall.GetWindowWidget(0, 0)->geometry(), QRect(1, 26, 329, 276)); // for a player made now
    wall.show();
    wall.resize(7, 5);
    wall.resize(2000, 1200);
    QCOMPARE(window->geometry(), QRect(667, 300, 667, 600));
    QCOMPARE(wall.GetWindowWidget(0, 0)->geometry(), QRect(1, 26, 663, 576));
    StructScaleRect now;
    wall.GetWindowScale(0, 0, now);
    CompareRects(now, scale, 0.0);
}

void tst_DisplayWall::precisionDecidesAboutChange()
{
    const Fixture f;
    f.wall->OpenWindow(0, {0.5, 0.5, 0.9, 0.9, true}, QVariant());
    QSignalSpy changed(f.wall.get(), SIGNAL(SignalWindowGeoChanged(int, int, KvGUI::StructScaleRect)));
    QVERIFY(f.wall->SetWindowScale(0, 0, {0.501, 0.499, 0.901, 0.899, true}));
    QCOMPARE(changed.count(), 0);
    CompareRects(f.Scale(0), {0.5, 0.5, 0.9, 0.9, true}, 0.0);
    QVERIFY(f.wall->SetWindowScale(0, 0, {0.5, 0.5, 0.9, 0.9011, false}));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).toInt(), 0);
    QCOMPARE(changed.at(0).at(1).toInt(), 0);
    CompareRects(changed.at(0).at(2).value<StructScaleRect>(), {0.5, 0.5, 0.9, 0.9011, false}, 0.0);
}

// Catches the current rectangle overwriting the one it is compared with, through a shared reference.
void tst_DisplayWall::aWindowsOwnRectangleMayBePassed()
{
    const Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    QTest::mouseClick(f.Button(0, "pWindowMaxBtn"), Qt::LeftButton);
    StructScaleRect rect = f.Scale(0);
    connect(f.wall.get(), &Wall::SignalWindowGeoChanged, f.wall.get(), [&](int, int, const auto& changed) {
        rect = Whole;
        f.wall->SetWindowScale(0, 0, changed); // of the running emission
    });
    rect.dLeft = 0.3;
    f.wall->SetWindowScale(0, 0, rect);
    CompareRects(f.Scale(0), {0.3, 0.0, 1.0, 1.0, true});
}

void tst_DisplayWall::windowsAreNumberedWhenOpened()
{
    const Fixture f;
    const auto title
        = [&f](int w) { return f.Window(w)->findChild<QLabel*>(QStringLiteral("pWindowTitleText"))->text(); };
    f.wall->OpenWindow(0, LeftUpper, 10);
    f.wall->SetWindowTitleShow(true);
    f.wall->OpenWindow(0, LeftUpper, 11);
    f.wall->OpenWindow(0, LeftUpper, 12);
    f.wall->SetWindowContentText(0, 2, QStringLiteral("Gate"));
    QCOMPARE(title(0), QString());
    QVERIFY(f.wall->DeleteWindow(0, 0));
    QCOMPARE(title(0), QStringLiteral("Window 2"));
    QCOMPARE(title(1), QStringLiteral("Window 3  Gate"));
    QCOMPARE(f.wall->GetWindowUserData(0, 1), QVariant(12));
    f.wall->OpenWindow(0, LeftUpper, 13);
    QCOMPARE(title(2), QStringLiteral("Window 3"));
    const QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(f.Window(2));
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Window 3"));
    QVERIFY(accessible->childCount() > 0); // or its buttons cannot be found
}

void tst_DisplayWall::zOrder()
{
    const Fixture f;
    for (int w = 0; w < 4; ++w)
        f.wall->OpenWindow(0, LeftUpper, QVariant());
    for (int w = 0; w < 4; ++w)
        f.wall->SetWindowZValue(0, w, w + 1, false);
    QCOMPARE(Stacking(f), (QList<int>{0, 1, 2, 3})); // only numbers so far
    f.wall->SetWindowZValue(0, 1, 5, true);
    QCOMPARE(f.wall->GetWindowZValue(0, 0), 1);
    QCOMPARE(f.wall->GetWindowZValue(0, 2), 2);
    QCOMPARE(f.wall->GetWindowZValue(0, 3), 3);
    QCOMPARE(f.wall->GetMaxWindowZValue(0), 5);
    QCOMPARE(Stacking(f), (QList<int>{0, 2, 3, 1}));
    // Of the two windows with 5 only the later one takes part; the lowest of the list is left in place.
    f.wall->SetWindowZValue(0, 0, 5, true);
    QCOMPARE(f.wall->GetWindowZValue(0, 1), 4);
    QCOMPARE(Stacking(f), (QList<int>{2, 3, 1, 0}));
    QCOMPARE(f.wall->GetMaxWindowZValue(0), 5);
}

void tst_DisplayWall::zOrderOfASingleWindow()
{
    const Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    auto* foreign = new QWidget(f.Empty()); // the client may put widgets of its own over the screen
    foreign->show();
    f.wall->SetWindowZValue(0, 0, -3, false);
    QCOMPARE(f.Empty()->children().last(), f.Window(0));
    QCOMPARE(f.wall->GetMaxWindowZValue(0), 0);
}

void tst_DisplayWall::maximiseAndRestore()
{
    const Fixture f;
    StructScaleRect fixed = LeftUpper;
    fixed.bEditable = false;
    f.wall->OpenWindow(0, fixed, QVariant());
    QPushButton* button = f.Button(0, "pWindowMaxBtn");
    QCOMPARE(button->toolTip(), QStringLiteral("Max"));
    QTest::mouseClick(button, Qt::LeftButton);
    CompareRects(f.Scale(0), Whole); // editable now
    QCOMPARE(f.Window(0)->geometry(), f.Empty()->rect());
    QCOMPARE(button->toolTip(), QStringLiteral("Restore"));
    QTest::mouseClick(button, Qt::LeftButton);
    CompareRects(f.Scale(0), fixed);
    QCOMPARE(button->toolTip(), QStringLiteral("Max"));
}

void tst_DisplayWall::snapAndRestore()
{
    const Fixture f;
    f.wall->OpenWindow(0, {0.26, 0.1, 0.74, 0.6, true}, QVariant());
    QPushButton* snap = f.Button(0, "pWindowSelfAdaptionBtn");
    QTest::mouseClick(snap, Qt::LeftButton);
    CompareRects(f.Scale(0), Whole);
    QCOMPARE(snap->toolTip(), QStringLiteral("Restore"));
    QCOMPARE(f.Button(0, "pWindowMaxBtn")->toolTip(), QStringLiteral("Max"));
    QTest::mouseClick(f.Button(0, "pWindowMaxBtn"), Qt::LeftButton); // restores what is snapped, too
    CompareRects(f.Scale(0), {0.26, 0.1, 0.74, 0.6, true});
    QCOMPARE(snap->toolTip(), QStringLiteral("SelfAdaption"));
    QTest::mouseClick(snap, Qt::LeftButton);
    QTest::mouseClick(snap, Qt::LeftButton);
    CompareRects(f.Scale(0), {0.26, 0.1, 0.74, 0.6, true});
}

void tst_DisplayWall::settingEndsTheMaximisedState()
{
    const Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    QPushButton* button = f.Button(0, "pWindowMaxBtn");
    QTest::mouseClick(button, Qt::LeftButton);
    QString toolTipInSlot;
    connect(f.wall.get(), &Wall::SignalWindowGeoChanged, f.wall.get(), [&] {
        toolTipInSlot = button->toolTip();
    });
    f.wall->SetWindowScale(0, 0, RightUpper);
    QCOMPARE(toolTipInSlot, QStringLiteral("Max")); // set before the slot is called
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::mouseClick(button, Qt::LeftButton);
    CompareRects(f.Scale(0), RightUpper);
}

// Catches a double-click whose two clicks report selections of their own.
void tst_DisplayWall::doubleClickOfEditableWindow()
{
    const Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    QSignalSpy selected(f.wall.get(), SIGNAL(SignalWindowSelectedChanged(int)));
    QSignalSpy doubleClicked(f.wall.get(), SIGNAL(SignalWindowDoubleClicked(int)));
    QSignalSpy screenSelected(f.wall.get(), SIGNAL(SignalScreenSelectedChanged(int)));
    QTest::mouseDClick(f.wall->GetWindowWidget(0, 0), Qt::LeftButton, {}, OnVideo);
    CompareRects(f.Scale(0), Whole);
    QCOMPARE(f.wall->GetSelectedWindowIndexs(), QList<int>{0});
    QCOMPARE(selected.count(), 1);
    QCOMPARE(doubleClicked.count(), 0);
    QCOMPARE(screenSelected.count(), 1);
}

void tst_DisplayWall::doubleClickOfFixedWindow()
{
    const Fixture f;
    StructScaleRect fixed = LeftUpper;
    fixed.bEditable = false;
    f.wall->OpenWindow(0, fixed, QVariant());
    QSignalSpy selected(f.wall.get(), SIGNAL(SignalWindowSelectedChanged(int)));
    QSignalSpy doubleClicked(f.wall.get(), SIGNAL(SignalWindowDoubleClicked(int)));
    QTest::mouseDClick(f.wall->GetWindowWidget(0, 0), Qt::LeftButton, {}, OnVideo);
    CompareRects(f.Scale(0), fixed);
    QCOMPARE(selected.count(), 0);
    QCOMPARE(doubleClicked.count(), 1);
    QCOMPARE(f.wall->GetSelectedWindowIndexs(), QList<int>{0});
}

// Catches indices fixed at opening, and buttons of windows that are not editable.
void tst_DisplayWall::buttonsReport()
{
    const Fixture f;
    StructScaleRect fixed = LeftUpper;
    fixed.bEditable = false;
    f.wall->OpenWindow(0, fixed, QVariant());
    f.wall->OpenWindow(0, fixed, QVariant());
    f.wall->OpenWindow(0, RightUpper, QVariant());
    f.wall->DeleteWindow(0, 0);
    QSignalSpy close(f.wall.get(), SIGNAL(SignalWindowCloseBtnClicked(int, int)));
    QSignalSpy volume(f.wall.get(), SIGNAL(SignalWindowVolumeBtnClicked(int, int)));
    for (const int window : {0, 1}) {
        QTest::mouseClick(f.Button(window, "pWindowCloseBtn"), Qt::LeftButton);
        QTest::mouseClick(f.Button(window, "pWindowVolumeOffBtn"), Qt::LeftButton);
    }
    QCOMPARE(close.count(), 1);
    QCOMPARE(close.at(0), (QVariantList{0, 1}));
    QCOMPARE(volume.count(), 1);
    QCOMPARE(volume.at(0), (QVariantList{0, 1}));
    QCOMPARE(f.wall->GetWindowCount(0), 2); // closing is the client's decision
}

void tst_DisplayWall::volumeButtonFollowsItsState()
{
    const Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    QPushButton* button = f.Button(0, "pWindowVolumeOffBtn");
    const QImage off = button->grab().toImage();
    QCOMPARE(button->toolTip(), QStringLiteral("Open Volume"));
    QVERIFY(f.wall->SetWindowVolumeBtn(0, 0, true));
    QCOMPARE(button->objectName(), QStringLiteral("pWindowVolumeOnBtn"));
    QCOMPARE(button->toolTip(), QStringLiteral("Close Volume"));
    QVERIFY(f.wall->GetWindowVolumeBtnStatus(0, 0));
    QVERIFY(button->grab().toImage() != off); // the sheet's other image
    f.wall->SetWindowVolumeBtn(0, 0, false);
    QVERIFY(button->grab().toImage() == off);
}

void tst_DisplayWall::clickInMode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<bool>("selectedBefore"); // the clicked window; the other one always is
    QTest::addColumn<QList<int>>("selectedAfter");
    QTest::addColumn<int>("changes");
    QTest::addColumn<int>("clicks");
    using L = QList<int>;
    QTest::newRow("0 left") << 0 << Qt::LeftButton << false << L{1} << 0 << 0;
    QTest::newRow("1 left") << 1 << Qt::LeftButton << false << L{0} << 1 << 0;
    QTest::newRow("1 right on unselected") << 1 << Qt::RightButton << false << L{0} << 1 << 0;
    QTest::newRow("1 middle") << 1 << Qt::MiddleButton << false << L{1} << 0 << 0;
    QTest::newRow("2 left") << 2 << Qt::LeftButton << false << L{0, 1} << 1 << 0;
    QTest::newRow("2 left on selected") << 2 << Qt::LeftButton << true << L{1} << 1 << 0;
    QTest::newRow("2 right on unselected") << 2 << Qt::RightButton << false << L{0, 1} << 1 << 0;
    QTest::newRow("2 right on selected") << 2 << Qt::RightButton << true << L{0, 1} << 0 << 0;
    QTest::newRow("unknown mode") << 9 << Qt::LeftButton << false << L{1} << 0 << 0;
}

// Catches a routine that runs twice a click and takes back what it did, and signals without a change.
void tst_DisplayWall::clickInMode()
{
    QFETCH(int, mode);
    QFETCH(Qt::MouseButton, button);
    QFETCH(bool, selectedBefore);
    const Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    f.wall->OpenWindow(0, RightUpper, QVariant());
    f.wall->SetSelectedScreenIndex(0);
    f.wall->SetSelectedWindowIndexs(0, 1, true);
    f.wall->SetWindowSelectionMode(Wall::MultiSelection);
    if (selectedBefore)
        QTest::mouseClick(f.wall->GetWindowWidget(0, 0), Qt::LeftButton, {}, OnVideo);
    f.wall->SetSelectedScreenIndex(0);
    if (mode != 1)
        f.wall->SetWindowSelectionMode(Wall::SelectionMode(mode));
    QSignalSpy changed(f.wall.get(), SIGNAL(SignalWindowSelectedChanged(int)));
    QSignalSpy clicked(f.wall.get(), SIGNAL(SignalWindowClicked()));
    if (mode == 1) { // setting it deselects all
        f.wall->SetWindowSelectionMode(Wall::SingleSelection);
        f.wall->SetSelectedWindowIndexs(0, 1, true);
    }
    QTest::mouseClick(f.wall->GetWindowWidget(0, 0), button, {}, OnVideo);
    QTEST(f.wall->GetSelectedWindowIndexs(), "selectedAfter");
    QTEST(changed.count(), "changes");
    QTEST(clicked.count(), "clicks");
    if (mode == 1 && button == Qt::LeftButton) { // again: no change left
        QTest::mouseClick(f.wall->GetWindowWidget(0, 0), button, {}, OnVideo);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(clicked.count(), 1);
    }
}

void tst_DisplayWall::draggedClickSelectsNothing()
{
    const Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    f.wall->SetWindowSelectionMode(Wall::SingleSelection);
    QSignalSpy changed(f.wall.get(), SIGNAL(SignalWindowSelectedChanged(int)));
    f.Drag(f.wall->GetWindowWidget(0, 0), OnVideo, OnVideo + QPoint(1, 0));
    QCOMPARE(changed.count(), 0);
    QVERIFY(f.wall->GetSelectedWindowIndexs().isEmpty());
    QCOMPARE(f.wall->GetSelectedScreenIndex(), -1);
}

void tst_DisplayWall::pressOnEmptyPart()
{
    Fixture f;
    f.wall->AddScreen({0.5, 0.5, 1.0, 1.0}, QVariant());
    f.wall->OpenWindow(1, LeftUpper, QVariant());
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    f.wall->SetSelectedWindowIndexs(0, 0, true);
    f.wall->SetSelectedWindowIndexs(1, 0, true);
    QSignalSpy selected(f.wall.get(), SIGNAL(SignalScreenSelectedChanged(int)));
    QTest::mouseClick(f.Empty(), Qt::LeftButton, {}, QPoint(5, 5));
    QTest::mouseClick(f.Empty(), Qt::RightButton, {}, QPoint(5, 5));
    QCOMPARE(selected.count(), 2); // each time
    QCOMPARE(f.wall->GetSelectedScreenIndex(), 0);
    QVERIFY(f.wall->GetSelectedWindowIndexs().isEmpty());
    f.wall->SetSelectedScreenIndex(1); // was not selected, yet its windows lost their selection
    QVERIFY(f.wall->GetSelectedWindowIndexs().isEmpty());
    QCOMPARE(selected.count(), 2);
}

void tst_DisplayWall::selectionByCall()
{
    const Fixture f;
    for (int w = 0; w < 3; ++w)
        f.wall->OpenWindow(0, LeftUpper, QVariant());
    QVERIFY(f.wall->GetUnSelectedWindowIndexs().isEmpty()); // no screen is selected
    f.wall->SetSelectedScreenIndex(0);
    f.wall->SetSelectedWindowIndexs(0, 0, true);
    f.wall->SetSelectedWindowIndexs(0, 2, true);
    QCOMPARE(f.wall->GetSelectedWindowIndexs(), QList<int>{2});
    QCOMPARE(f.wall->GetUnSelectedWindowIndexs(), (QList<int>{0, 1}));
    f.wall->SetSelectedWindowIndexs(0, 0, false);
    QVERIFY(f.wall->GetSelectedWindowIndexs().isEmpty());
}

void tst_DisplayWall::selectionModeSingleDeselects()
{
    const Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    f.wall->SetSelectedScreenIndex(0);
    f.wall->SetSelectedWindowIndexs(0, 0, true);
    f.wall->SetWindowSelectionMode(Wall::MultiSelection);
    QCOMPARE(f.wall->GetSelectedWindowIndexs().size(), 1);
    f.wall->SetWindowSelectionMode(Wall::SingleSelection);
    QVERIFY(f.wall->GetSelectedWindowIndexs().isEmpty());
}

void tst_DisplayWall::bandSelects()
{
    const Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    f.wall->OpenWindow(0, RightUpper, QVariant());
    f.wall->OpenWindow(0, {0.1, 0.7, 0.4, 0.9, true}, QVariant());
    f.wall->SetWindowSelectionMode(Wall::MultiSelection);
    QSignalSpy changed(f.wall.get(), SIGNAL(SignalWindowSelectedChanged(int)));
    QSignalSpy drawn(f.wall.get(), SIGNAL(SignalDrawAreaOpenWindow(int, KvGUI::StructScaleRect)));
    f.Drag(f.Empty(), QPoint(950, 350), QPoint(350, 250)); // backwards over the two upper windows
    QCOMPARE(f.wall->GetSelectedWindowIndexs(), (QList<int>{0, 1}));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(drawn.count(), 0);
    f.Drag(f.Empty(), QPoint(950, 350), QPoint(960, 400)); // over nothing
    QVERIFY(f.wall->GetSelectedWindowIndexs().isEmpty());
    QCOMPARE(changed.count(), 1);
    const auto bands = f.wall->findChildren<QRubberBand*>();
    QVERIFY(
        !bands.isEmpty() && std::none_of(bands.begin(), bands.end(), [](auto* b) { return b->isVisible(); }));
}

void tst_DisplayWall::areaIsDrawn_data()
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

void tst_DisplayWall::areaIsDrawn()
{
    QFETCH(int, mode);
    QFETCH(QPoint, to);
    QFETCH(bool, drawn);
    QFETCH(StructScaleRect, area);
    const Fixture f;
    f.wall->SetWindowSelectionMode(Wall::SelectionMode(mode));
    QSignalSpy spy(f.wall.get(), SIGNAL(SignalDrawAreaOpenWindow(int, KvGUI::StructScaleRect)));
    f.Drag(f.Empty(), QPoint(500, 360), to);
    QCOMPARE(spy.count(), int(drawn));
    if (drawn)
        CompareRects(spy.at(0).at(1).value<StructScaleRect>(), area);
    // Only the left button draws.
    QTest::mousePress(f.Empty(), Qt::RightButton, {}, QPoint(500, 360));
    QTest::mouseRelease(f.Empty(), Qt::RightButton, {}, QPoint(600, 460));
    QCOMPARE(spy.count(), int(drawn));
}

void tst_DisplayWall::escapeCancelsDrawing()
{
    const Fixture f;
    QSignalSpy spy(f.wall.get(), SIGNAL(SignalDrawAreaOpenWindow(int, KvGUI::StructScaleRect)));
    QTest::mousePress(f.Empty(), Qt::LeftButton, {}, QPoint(100, 100));
    Fixture::MoveHeld(f.Empty(), QPoint(300, 300));
    QTest::keyClick(f.Screen(), Qt::Key_Escape);
    QTest::mouseRelease(f.Empty(), Qt::LeftButton, {}, QPoint(300, 300));
    QCOMPARE(spy.count(), 0);
}

// Catches a frame normalised on its way, which loses the direction that the camera shall turn.
void tst_DisplayWall::positioningFrame()
{
    const Fixture f;
    f.wall->OpenWindow(0, {0.1, 0.1, 0.9, 0.9, true}, QVariant());
    QSignalSpy spy(f.wall.get(), SIGNAL(SignalWindow3DSite(int, int, int, int, int)));
    f.wall->SetPtzFrameSelectedEnable(true); // no screen is selected: nothing
    QWidget* video = f.wall->GetWindowWidget(0, 0);
    const QPoint origin = video->mapTo(f.Empty(), QPoint(0, 0));
    f.Drag(video, QPoint(500, 300) - origin, QPoint(250, 150) - origin);
    QCOMPARE(spy.count(), 0);
    f.wall->SetSelectedScreenIndex(0);
    f.wall->SetPtzFrameSelectedEnable(true);
    f.Drag(video, QPoint(500, 300) - origin, QPoint(250, 150) - origin);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0), (QVariantList{0, 4096, 4096, 2048, 2048}));
    CompareRects(f.Scale(0), {0.1, 0.1, 0.9, 0.9, true}, 0.0);
}

void tst_DisplayWall::windowIsMovedByItsTitle()
{
    const Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant()); // (100, 60) 300 x 240
    QSignalSpy changed(f.wall.get(), SIGNAL(SignalWindowGeoChanged(int, int, KvGUI::StructScaleRect)));
    auto* title = f.Window(0)->findChild<QWidget*>(QStringLiteral("pWindowTitleText"));
    QTest::mousePress(title, Qt::LeftButton, {}, OnTitle);
    Fixture::MoveHeld(title, OnTitle + QPoint(50, 30));
    QCOMPARE(f.Window(0)->geometry(), QRect(150, 90, 300, 240));
    QCOMPARE(changed.count(), 0);
    CompareRects(f.Scale(0), LeftUpper, 0.0); // only pixels so far
    QTest::mouseRelease(title, Qt::LeftButton, {}, OnTitle);
    QCOMPARE(changed.count(), 1);
    CompareRects(f.Scale(0), {0.15, 0.15, 0.45, 0.55, true});
    f.Drag(title, OnTitle, OnTitle + QPoint(5000, 5000)); // not out of the screen
    CompareRects(f.Scale(0), {0.7, 0.6, 1.0, 1.0, true});
    QCOMPARE(changed.count(), 2);
    QTest::mouseClick(title, Qt::LeftButton, {}, OnTitle); // no way at all
    QCOMPARE(changed.count(), 2);
}

void tst_DisplayWall::windowIsResizedByItsEdge()
{
    const Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    QSignalSpy changed(f.wall.get(), SIGNAL(SignalWindowGeoChanged(int, int, KvGUI::StructScaleRect)));
    QWidget* window = f.Window(0);
    f.Drag(window, QPoint(298, 120), QPoint(398, 150));
    CompareRects(f.Scale(0), {0.1, 0.1, 0.5, 0.5, true});
    QCOMPARE(changed.count(), 1);
    QHoverEvent hover(QEvent::HoverMove, QPoint(2, 120), QPoint(3, 120));
    QApplication::sendEvent(window, &hover);
    QCOMPARE(window->cursor().shape(), Qt::SizeHorCursor);
    QHoverEvent inside(QEvent::HoverMove, QPoint(100, 120), QPoint(2, 120));
    QApplication::sendEvent(window, &inside);
    QCOMPARE(window->cursor().shape(), Qt::ArrowCursor);
}

void tst_DisplayWall::escapeTakesADragBack()
{
    const Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    QSignalSpy changed(f.wall.get(), SIGNAL(SignalWindowGeoChanged(int, int, KvGUI::StructScaleRect)));
    QWidget* window = f.Window(0);
    QTest::mousePress(window, Qt::LeftButton, {}, OnTitle);
    Fixture::MoveHeld(window, OnTitle + QPoint(80, 80));
    QTest::keyClick(window, Qt::Key_Escape);
    QCOMPARE(window->geometry(), QRect(100, 60, 300, 240));
    QTest::mouseRelease(window, Qt::LeftButton, {}, OnTitle + QPoint(80, 80));
    QCOMPARE(window->geometry(), QRect(100, 60, 300, 240));
    QCOMPARE(changed.count(), 0);
}

// Catches pixels left behind by a drag that was broken off, and a video widget that the client deleted.
void tst_DisplayWall::hidingEndsADrag()
{
    const Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    QWidget* window = f.Window(0);
    QTest::mousePress(window, Qt::LeftButton, {}, OnTitle);
    Fixture::MoveHeld(window, OnTitle + QPoint(80, 80));
    delete f.wall->GetWindowWidget(0, 0);
    f.wall->hide();
    f.wall->show();
    QVERIFY(QTest::qWaitForWindowExposed(f.wall.get()));
    Fixture::MoveHeld(window, OnTitle + QPoint(90, 90));
    QCOMPARE(window->geometry(), QRect(100, 60, 300, 240));
    QCOMPARE(f.wall->GetWindowWidget(0, 0), nullptr);
    QVERIFY(!f.wall->DeleteWindowWidget(0, 0));
    QCOMPARE(PixelAt(*window, {150, 150}), f.wall->WindowColor().rgb());
}

void tst_DisplayWall::shiftKeepsToCells()
{
    const Fixture f;
    f.wall->OpenWindow(0, {0.01, 0.01, 0.4, 0.4, true}, QVariant());
    QWidget* window = f.Window(0);
    f.Drag(window, OnTitle, OnTitle + QPoint(530, 20), Qt::ShiftModifier);
    CompareRects(f.Scale(0), {0.5, 0.0, 1.0, 0.5, true});
}

void tst_DisplayWall::fixedWindowStays()
{
    const Fixture f;
    StructScaleRect fixed = LeftUpper;
    fixed.bEditable = false;
    f.wall->OpenWindow(0, fixed, QVariant());
    f.Drag(f.Window(0), OnTitle, OnTitle + QPoint(80, 80));
    CompareRects(f.Scale(0), fixed, 0.0);
    QCOMPARE(f.Window(0)->geometry(), QRect(100, 60, 300, 240));
}

// Catches the conduct of MDI windows: closing by key or call while the list still holds the window, raising
// on click and activation, window states, and a second placement when the wall is shown.
void tst_DisplayWall::nothingOfTheBaseClassActs()
{
    const Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    f.wall->OpenWindow(0, {0.2, 0.2, 0.5, 0.6, false}, QVariant());
    auto* window = qobject_cast<QMdiSubWindow*>(f.Window(0));
    QVERIFY(window != nullptr);
    window->setFocus();
    for (const int key : {Qt::Key_F4, Qt::Key_W, Qt::Key_Tab, Qt::Key_Backtab})
        QTest::keyClick(window, Qt::Key(key), Qt::ControlModifier);
    QVERIFY(!window->close());
    window->showMaximized();
    window->showNormal();
    QTest::mouseClick(f.wall->GetWindowWidget(0, 0), Qt::LeftButton, {}, OnVideo);
    f.wall->GetWindowWidget(0, 0)->setFocus();
    f.Screen()->activateNextSubWindow();
    f.Screen()->closeAllSubWindows();
    QApplication::processEvents();
    QVERIFY(window->isVisible());
    QCOMPARE(Stacking(f), (QList<int>{0, 1}));
    QCOMPARE(window->geometry(), QRect(100, 60, 300, 240));
    QVERIFY(window->windowFlags() & Qt::FramelessWindowHint);
    QVERIFY(window->windowFlags() & Qt::CustomizeWindowHint);
    QCOMPARE(f.Empty()->size(), f.Screen()->size()); // no scroll bar takes room

    Wall hidden;
    hidden.resize(1000, 600);
    hidden.SetTVWallGridCount(1, 1);
    hidden.AddScreen(Whole, QVariant());
    hidden.OpenWindow(0, LeftUpper, QVariant());
    hidden.OpenWindow(0, LeftUpper, QVariant());
    hidden.show();
    QApplication::processEvents();
    QCOMPARE(hidden.GetWindowWidget(0, 1)->parentWidget()->geometry(), QRect(100, 60, 300, 240));
}

void tst_DisplayWall::wheelIsReported()
{
    const Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    QSignalSpy wheel(f.wall.get(), SIGNAL(SignalWheelEvent(int, QPoint)));
    QSignalSpy event(f.wall.get(), SIGNAL(SignalWindowEvent(int, int, QEvent*)));
    QWidget* video = f.wall->GetWindowWidget(0, 0);
    QVERIFY(TurnWheel(video, OnVideo, -240));
    QCOMPARE(wheel.count(), 1);
    QCOMPARE(wheel.at(0).at(0).toInt(), -240);
    QCOMPARE(wheel.at(0).at(1).toPoint(), video->mapTo(f.wall.get(), OnVideo));
    QCOMPARE(event.count(), 1);
}

void tst_DisplayWall::keysSelectAndAreReported()
{
    const Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    f.wall->SetWindowSelectionMode(Wall::MultiSelection);
    QList<QEvent::Type> types;
    connect(f.wall.get(), &Wall::SignalWindowEvent, f.wall.get(), [&](int, int, QEvent* event) {
        types << event->type();
    });
    f.Window(0)->setFocus(Qt::TabFocusReason);
    QTest::keyClick(f.Window(0), Qt::Key_Space);
    QCOMPARE(f.wall->GetSelectedWindowIndexs(), QList<int>{0});
    QTest::keyClick(f.Window(0), Qt::Key_Space);
    QVERIFY(f.wall->GetSelectedWindowIndexs().isEmpty());
    QCOMPARE(types.count(QEvent::KeyPress), 2); // each event once
}

void tst_DisplayWall::dragAndDropIsReported()
{
    const Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    QMimeData data;
    QList<QEvent::Type> onScreen;
    QList<QEvent::Type> onWindow;
    connect(f.wall.get(), &Wall::SignalScreenEvent, f.wall.get(), [&](int, QEvent* event) {
        onScreen << event->type();
        event->accept();
    });
    connect(f.wall.get(), &Wall::SignalWindowEvent, f.wall.get(), [&](int, int, QEvent* event) {
        onWindow << event->type();
        event->accept();
    });
    for (QWidget* target : {f.Empty(), f.Window(0)}) {
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &drop);
    }
    const QList<QEvent::Type> expected{QEvent::DragEnter, QEvent::Drop};
    QCOMPARE(onScreen, expected);
    QCOMPARE(onWindow, expected);
}

void tst_DisplayWall::contextMenus()
{
    const Fixture f;
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    QSignalSpy screen(f.wall.get(), SIGNAL(SignalScreenRightClick(int)));
    QSignalSpy window(f.wall.get(), SIGNAL(SignalWindowEvent(int, int, QEvent*)));
    QContextMenuEvent onEmpty(QContextMenuEvent::Mouse, QPoint(5, 5), f.Empty()->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(f.Empty(), &onEmpty);
    QCOMPARE(screen.count(), 1);
    QContextMenuEvent onVideo(QContextMenuEvent::Mouse, OnVideo, QPoint());
    QApplication::sendEvent(f.wall->GetWindowWidget(0, 0), &onVideo);
    QCOMPARE(screen.count(), 1); // a window's menu is not the screen's
    QCOMPARE(window.count(), 1);
}

namespace {

KvGUI::StructOSDInfo Overlay(const char* text, bool roll)
{
    KvGUI::StructOSDInfo info;
    info.iLeft = 819;
    info.iTop = 1000;
    info.iRight = 4915;
    info.iBottom = 2000;
    info.bRoll = roll;
    info.strText = text;
    info.iBackG = 120;
    return info;
}

QList<QLabel*> ShownOverlays(const Fixture& f)
{
    QList<QLabel*> labels = f.Empty()->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
    labels.erase(
        std::remove_if(labels.begin(), labels.end(), [](auto* label) { return label->isHidden(); }),
        labels.end());
    return labels;
}

} // namespace

void tst_DisplayWall::overlaysAreShown()
{
    const Fixture f;
    f.wall->OpenWindow(0, Whole, QVariant());
    std::vector<KvGUI::StructOSDInfo> infos;
    for (int i = 0; i < 10; ++i) {
        infos.push_back(Overlay("<b>plain</b>", false));
        infos.push_back(Overlay("rolling", true));
    }
    QVERIFY(f.wall->SetScreenOSDInfo(0, infos));
    QCOMPARE(ShownOverlays(f).size(), 16); // the first eight of each kind
    QLabel* plain = ShownOverlays(f).first();
    QCOMPARE(plain->geometry(), QRect(99, 73, 500, 78));
    QCOMPARE(plain->textFormat(), Qt::PlainText);
    QCOMPARE(plain->objectName(), QStringLiteral("SongStyle"));
    // Windows opened and raised later stay below the texts.
    f.wall->OpenWindow(0, Whole, QVariant());
    QCOMPARE(f.Empty()->childAt(300, 100)->inherits("QLabel"), true);
    QList<int> labels;
    connect(f.wall.get(), &Wall::SignalLabelEvent, f.wall.get(), [&](int, int label, QEvent*) {
        labels << label;
    });
    QSignalSpy selected(f.wall.get(), SIGNAL(SignalScreenSelectedChanged(int)));
    QTest::mouseClick(plain, Qt::LeftButton);
    QTest::mouseClick(ShownOverlays(f).last(), Qt::LeftButton);
    QCOMPARE(labels, (QList<int>{8, 8, 7, 7}));
    QCOMPARE(selected.count(), 0); // nothing falls through
    infos.clear();
    f.wall->SetScreenOSDInfo(0, infos);
    QTest::keyClick(plain, Qt::Key_A); // an event still under way to a removed overlay
    QCOMPARE(labels.size(), 4);
}

// Catches the look of the overlay that a label showed before.
void tst_DisplayWall::overlaysAreReused()
{
    const Fixture f;
    std::vector<KvGUI::StructOSDInfo> infos{Overlay("a", false), Overlay("b", false)};
    infos[0].strFontName = "simHei";
    infos[0].iFontPercent = 20;
    infos[1].strFontName = "simKai";
    f.wall->SetScreenOSDInfo(0, infos);
    const QList<QLabel*> first = ShownOverlays(f);
    QCOMPARE(first.size(), 2);
    QVERIFY(first.at(0)->font().bold());
    QCOMPARE(first.at(0)->objectName(), QString());
    QCOMPARE(first.at(0)->font().pixelSize(), 14);
    QCOMPARE(first.at(1)->objectName(), QStringLiteral("KaiStyle"));
    infos = {Overlay("c", false)};
    infos[0].strFontName = "other";
    f.wall->SetScreenOSDInfo(0, infos);
    const QList<QLabel*> second = ShownOverlays(f);
    QCOMPARE(second.size(), 1);
    QVERIFY(!second.at(0)->font().bold());
    QCOMPARE(second.at(0)->font().pixelSize(), 73);
    QCOMPARE(second.at(0)->objectName(), QStringLiteral("SongStyle"));
}

void tst_DisplayWall::overlaysRoll()
{
    const Fixture f;
    for (unsigned char mode = 0; mode < 6; ++mode) {
        std::vector<KvGUI::StructOSDInfo> infos{Overlay("rolling text", true)};
        infos[0].iRollMode = mode;
        f.wall->SetScreenOSDInfo(0, infos);
        QLabel* label = ShownOverlays(f).first();
        const QImage before = label->grab().toImage();
        QCOMPARE(before.pixel(1, 1), qRgb(0, 120, 0));
        QTRY_VERIFY(label->grab().toImage() != before);
    }
}

void tst_DisplayWall::backgroundHidesOverlays()
{
    const Fixture f;
    std::vector<KvGUI::StructOSDInfo> infos{Overlay("a", false), Overlay("b", true)};
    f.wall->SetScreenOSDInfo(0, infos);
    QVERIFY(f.wall->SetScreenWindowBackgroudColor(0, QColor(10, 90, 20), true));
    QCOMPARE(PixelAt(*f.wall, {50, 500}), qRgb(10, 90, 20));
    QCOMPARE(ShownOverlays(f).size(), 2);
    f.wall->SetScreenWindowBackgroudColor(0, QColor(10, 90, 20), false);
    QCOMPARE(ShownOverlays(f).size(), 0);
    QCOMPARE(PixelAt(*f.wall, {50, 500}), qRgb(33, 34, 37));
    f.wall->SetScreenWindowBackgroudColor(0, QColor(10, 90, 20), true);
    QCOMPARE(ShownOverlays(f).size(), 0); // only new records show them again
}

void tst_DisplayWall::baseMapIsPainted()
{
    QTemporaryDir folder;
    QImage map(40, 20, QImage::Format_RGB32);
    map.fill(QColor(200, 30, 40));
    QVERIFY(map.save(folder.filePath(QStringLiteral("site.jpg")), "JPG", 100));
    const Fixture f;
    const std::string raw = folder.filePath(QStringLiteral("site.yuv")).toStdString();
    QVERIFY(f.wall->SetScreenBaseMapShow(0, raw, true));
    QVERIFY(qAbs(qRed(PixelAt(*f.wall, {50, 500})) - 200) < 6);
    f.wall->SetScreenBaseMapShow(0, raw, false);
    QCOMPARE(PixelAt(*f.wall, {50, 500}), qRgb(33, 34, 37));
    f.wall->SetScreenBaseMapShow(0, "/no/such/file.png", true);
    QCOMPARE(PixelAt(*f.wall, {50, 500}), qRgb(33, 34, 37));
}

void tst_DisplayWall::paintedColours()
{
    const Fixture f;
    f.wall->OpenWindow(0, Whole, QVariant()); // covers the whole screen
    f.wall->SetSelectedScreenIndex(0);
    for (const QPoint& edge : {QPoint(0, 300), QPoint(999, 300), QPoint(500, 0), QPoint(500, 599)})
        QCOMPARE(PixelAt(*f.wall, edge), qRgb(219, 221, 225));
    f.wall->DeleteWindow(0, 0);
    QCOMPARE(PixelAt(*f.wall, {100, 100}), qRgb(33, 34, 37));
    const QImage painted = f.wall->grab().toImage();
    int dashes = 0; // on the line between the two columns of cells
    for (int y = 10; y < 290; ++y)
        dashes += painted.pixel(500, y) != qRgb(33, 34, 37);
    QVERIFY(dashes > 70 && dashes < 210);
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    f.wall->SetSelectedWindowIndexs(0, 0, true);
    QCOMPARE(PixelAt(*f.Window(0), {150, 239}), f.wall->WindowSelectedFrameColor().rgb()); // over the video
}

void tst_DisplayWall::skinChangeRestyles()
{
    Fixture f;
    f.wall->AddScreen({0.5, 0.5, 1.0, 1.0}, QVariant());
    f.wall->OpenWindow(0, LeftUpper, QVariant());
    const QColor black = f.wall->WindowColor();
    KvGUI::SetSkinVersion(QStringLiteral("White"));
    const QColor white = f.wall->WindowColor();
    const QRgb titleBar = PixelAt(*f.Window(0), {150, 14});
    KvGUI::SetSkinVersion(QStringLiteral("Black"));
    QVERIFY(qGray(white.rgb()) > qGray(black.rgb()));
    QVERIFY(qGray(titleBar) > 180);
    QCOMPARE(f.wall->WindowColor(), black);
}

void tst_DisplayWall::slotsMayDeleteAnything_data()
{
    QTest::addColumn<int>("deletion");
    QTest::addColumn<int>("occasion");
    const char* deletions[] = {"window", "all windows", "all screens", "wall"};
    const char* occasions[]
        = {"click",         "band",       "area",        "empty press", "double-click", "close button",
           "volume button", "max button", "snap button", "drag",        "wheel",        "context menu",
           "3D frame",      "overlay",    "key",         "call"};
    for (int d = 0; d < 4; ++d) {
        for (int o = 0; o < 16; ++o)
            QTest::addRow("%s in %s", deletions[d], occasions[o]) << d << o;
    }
}

// Catches any use of a window, screen or wall after its signal; meant to be run under a sanitizer as well.
void tst_DisplayWall::slotsMayDeleteAnything()
{
    QFETCH(int, deletion);
    QFETCH(int, occasion);
    Fixture f;
    for (int w = 0; w < 2; ++w)
        f.wall->OpenWindow(0, w == 0 ? LeftUpper : RightUpper, QVariant());
    f.wall->SetWindowSelectionMode(occasion == 2 ? Wall::NoSelection : Wall::MultiSelection);
    std::vector<KvGUI::StructOSDInfo> infos{Overlay("a", false)};
    infos[0].iTop = 7000;
    infos[0].iBottom = 8000;
    f.wall->SetScreenOSDInfo(0, infos);
    if (occasion == 12) {
        f.wall->SetSelectedScreenIndex(0);
        f.wall->SetPtzFrameSelectedEnable(true);
    }
    int emissions = 0;
    const auto remove = [&] {
        ++emissions;
        if (!f.wall)
            return;
        if (deletion == 0)
            f.wall->DeleteWindow(0, 0);
        else if (deletion == 1)
            f.wall->DeleteAllWindows();
        else if (deletion == 2)
            f.wall->DeleteAllScreen();
        else
            f.wall.reset();
    };
    connect(f.wall.get(), &Wall::SignalScreenSelectedChanged, this, remove);
    connect(f.wall.get(), &Wall::SignalScreenRightClick, this, remove);
    connect(f.wall.get(), &Wall::SignalWindowEvent, this, remove);
    connect(f.wall.get(), &Wall::SignalWindowSelectedChanged, this, remove);
    connect(f.wall.get(), &Wall::SignalWindowClicked, this, remove);
    connect(f.wall.get(), &Wall::SignalWindowCloseBtnClicked, this, remove);
    connect(f.wall.get(), &Wall::SignalWindowVolumeBtnClicked, this, remove);
    connect(f.wall.get(), &Wall::SignalWindowGeoChanged, this, remove);
    connect(f.wall.get(), &Wall::SignalDrawAreaOpenWindow, this, remove);
    connect(f.wall.get(), &Wall::SignalWindow3DSite, this, remove);
    connect(f.wall.get(), &Wall::SignalLabelEvent, this, remove);
    connect(f.wall.get(), &Wall::SignalWheelEvent, this, remove);

    const QPointer<QWidget> video = f.wall->GetWindowWidget(0, 0);
    const QPointer<QWidget> empty = f.Empty();
    const QPointer<QWidget> window = f.Window(0);
    const auto drag = [](const QPointer<QWidget>& widget, const QPoint& from, const QPoint& to) {
        QTest::mousePress(widget, Qt::LeftButton, {}, from);
        if (widget)
            Fixture::MoveHeld(widget, to);
        if (widget && widget->isVisible())
            QTest::mouseRelease(widget, Qt::LeftButton, {}, to);
    };
    const auto clickButton = [&](const char* name) { QTest::mouseClick(f.Button(0, name), Qt::LeftButton); };
    switch (occasion) {
    case 0:
        drag(video, OnVideo, OnVideo);
        break;
    case 1:
    case 2:
        drag(empty, QPoint(950, 400), QPoint(50, 30));
        break;
    case 3:
        drag(empty, QPoint(5, 5), QPoint(5, 5));
        break;
    case 4: {
        QMouseEvent event(
            QEvent::MouseButtonDblClick, OnVideo, video->mapToGlobal(OnVideo), Qt::LeftButton, Qt::LeftButton,
            Qt::NoModifier);
        QApplication::sendEvent(video, &event);
        break;
    }
    case 5:
        clickButton("pWindowCloseBtn");
        break;
    case 6:
        clickButton("pWindowVolumeOffBtn");
        break;
    case 7:
        clickButton("pWindowMaxBtn");
        break;
    case 8:
        clickButton("pWindowSelfAdaptionBtn");
        break;
    case 9:
        drag(window, OnTitle, OnTitle + QPoint(90, 90));
        break;
    case 10:
        TurnWheel(video, OnVideo, 120);
        break;
    case 11: {
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint());
        QApplication::sendEvent(empty, &event);
        break;
    }
    case 12:
        drag(video, OnVideo, OnVideo + QPoint(50, 50));
        break;
    case 13:
        drag(ShownOverlays(f).first(), QPoint(5, 5), QPoint(5, 5));
        break;
    case 14:
        QTest::keyClick(window, Qt::Key_Space);
        break;
    default:
        f.wall->SetWindowScale(0, 0, Whole);
        break;
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
    QVERIFY(emissions > 0);
    if (deletion == 2)
        QCOMPARE(f.wall->GetScreenCount(), 0);
    if (deletion == 3)
        QVERIFY(!f.wall && !video);
}

// Catches endless painting and undefined conversions; each wall below is painted at once.
void tst_DisplayWall::wildRectanglesArePainted()
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
            f.wall->SetWindowScale(s, 0, rect);
            f.wall->SetSelectedWindowIndexs(s, 0, true);
            QTest::mouseClick(
                f.Window(0, s)->findChild<QPushButton*>(QStringLiteral("pWindowSelfAdaptionBtn")),
                Qt::LeftButton);
            std::vector<KvGUI::StructOSDInfo> infos{Overlay("a", false), Overlay("b", true)};
            for (KvGUI::StructOSDInfo& info : infos) {
                info.iRight = std::numeric_limits<int>::max();
                info.iTop = std::numeric_limits<int>::min();
            }
            f.wall->SetScreenOSDInfo(s, infos);
        }
        f.wall->SetSelectedScreenIndex(1);
        QElapsedTimer timer;
        timer.start();
        f.wall->grab();
        f.wall->resize(300, 200);
        f.wall->grab();
        QVERIFY(timer.elapsed() < 20000);
    }
}

STRICT_TEST_MAIN(tst_DisplayWall)
#include "tst_displaywall.moc"
