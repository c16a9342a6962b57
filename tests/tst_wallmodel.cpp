// The rules of a video wall on plain values.

#include "support/StrictMain.h"

#include <UI/TVWall/ScreenOverlay.h>
#include <UI/TVWall/WallGeometry.h>
#include <UI/TVWall/WallMiniature.h>
#include <UI/TVWall/WallSelection.h>
#include <UI/TVWall/WallStacking.h>
#include <UI/TVWall/WallZoom.h>
#include <UI/TVWall/WindowDrag.h>
#include <UI/TVWall/WindowPlacement.h>

#include <QApplication>
#include <QTest>
#include <limits>

using namespace UICommonMdl;
using KvGUI::StructScaleRect;

namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NaN = std::numeric_limits<double>::quiet_NaN();

void Compare(const StructScaleRect& actual, const StructScaleRect& expected)
{
    QVERIFY2(
        WallGeometry::IsEqual(actual, expected, 0.0),
        qPrintable(QStringLiteral("%1 %2 %3 %4")
                       .arg(actual.dLeft)
                       .arg(actual.dTop)
                       .arg(actual.dRight)
                       .arg(actual.dBottom)));
    QCOMPARE(actual.bEditable, expected.bEditable);
}

} // namespace

Q_DECLARE_METATYPE(KvGUI::StructScaleRect)
Q_DECLARE_METATYPE(Qt::Edges)

class tst_WallModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void equality_data();
    void equality();
    void screenPlacement_data();
    void screenPlacement();
    void windowPlacement_data();
    void windowPlacement();
    void spans_data();
    void spans();
    void snapping_data();
    void snapping();
    void snappingWithoutCells();
    void drawnAreas_data();
    void drawnAreas();
    void siteUnits();
    void grips_data();
    void grips();
    void drags_data();
    void drags();
    void draggedEdgesOnlyChange();
    void zoomLimits_data();
    void zoomLimits();
    void zoomSteps_data();
    void zoomSteps();
    void zoomedPointStays();
    void zoomedWallIsResized();
    void miniatureIsCut();
    void dragsBoundToCells();
    void placementStates();
    void placementByItsOwnRectangle();
    void stacking_data();
    void stacking();
    void clicks_data();
    void clicks();
    void buttonsThatSelect();
    void overlayPlacement_data();
    void overlayPlacement();
    void overlayLook();
    void overlayPadding();
    void baseMapFiles_data();
    void baseMapFiles();
};

void tst_WallModel::equality_data()
{
    QTest::addColumn<StructScaleRect>("other");
    QTest::addColumn<bool>("equal");
    QTest::newRow("decimal edge on doubles") << StructScaleRect{0.501, 0.5, 1.0, 1.0} << true;
    QTest::newRow("below the edge") << StructScaleRect{0.499, 0.501, 0.999, 1.001} << true;
    QTest::newRow("a tenth beyond") << StructScaleRect{0.5, 0.5, 1.0011, 1.0} << false;
    QTest::newRow("editable takes no part") << StructScaleRect{0.5, 0.5, 1.0, 1.0, true} << true;
    QTest::newRow("NaN equals no number") << StructScaleRect{0.5, NaN, 1.0, 1.0} << false;
    QTest::newRow("infinite edge") << StructScaleRect{0.5, 0.5, Infinity, 1.0} << false;
}

// Catches a bare comparison of doubles, which makes 0.5 and 0.501 unequal within 0.001.
void tst_WallModel::equality()
{
    QFETCH(StructScaleRect, other);
    const StructScaleRect base{0.5, 0.5, 1.0, 1.0};
    QTEST(WallGeometry::IsEqual(base, other, WallGeometry::DisplayPrecision), "equal");
    QTEST(WallGeometry::IsEqual(other, base, WallGeometry::DisplayPrecision), "equal");
    QVERIFY(WallGeometry::IsEqual({NaN, 0, 1, 1}, {NaN, 0, 1, 1}, 0.001)); // or a slot that echoes never ends
}

void tst_WallModel::screenPlacement_data()
{
    QTest::addColumn<QRect>("wall");
    QTest::addColumn<StructScaleRect>("scale");
    QTest::addColumn<bool>("noGap");
    QTest::addColumn<QPoint>("topLeft");
    QTest::addColumn<QPoint>("bottomRight");
    const QRect wall(0, 0, 1000, 600);
    QTest::newRow("no gutter on the wall's edges")
        << wall << StructScaleRect{0.5, 0.5, 1.0, 1.0} << false << QPoint(500, 300) << QPoint(999, 599);
    QTest::newRow("gutter to the neighbours")
        << wall << StructScaleRect{0.0, 0.0, 0.5, 0.5} << false << QPoint(0, 0) << QPoint(495, 295);
    QTest::newRow("no gap") << wall << StructScaleRect{0.0, 0.0, 0.5, 0.5} << true << QPoint(0, 0)
                            << QPoint(499, 299);
    QTest::newRow("truncated, not rounded")
        << QRect(0, 0, 999, 599) << StructScaleRect{1.0 / 3, 0.0, 2.0 / 3, 1.0} << true << QPoint(333, 0)
        << QPoint(665, 598);
    QTest::newRow("nearly 1 is not 1")
        << wall << StructScaleRect{0.0, 0.0, 0.9999999, 1.0} << false << QPoint(0, 0) << QPoint(994, 599);
}

// Catches rounding in place of truncation, exclusive corners and a gutter compared within a tolerance.
void tst_WallModel::screenPlacement()
{
    QFETCH(QRect, wall);
    QFETCH(StructScaleRect, scale);
    QFETCH(bool, noGap);
    const QRect rect = WallGeometry::ScreenRect(wall, scale, noGap);
    QTEST(rect.topLeft(), "topLeft");
    QTEST(rect.bottomRight(), "bottomRight");
}

void tst_WallModel::windowPlacement_data()
{
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<StructScaleRect>("scale");
    QTest::addColumn<QRect>("pixels");
    const QSize screen(1000, 600);
    QTest::newRow("width from the difference")
        << screen << StructScaleRect{0.3333, 0.25, 0.6667, 0.75} << QRect(333, 150, 333, 300);
    QTest::newRow("halves up") << QSize(3, 3) << StructScaleRect{0.5, 0.5, 1.0, 1.0} << QRect(2, 2, 2, 2);
    QTest::newRow("negative towards zero")
        << screen << StructScaleRect{-0.2, 0.0, 0.5, 0.5} << QRect(-199, 0, 700, 300);
    QTest::newRow("NaN and infinity")
        << screen << StructScaleRect{NaN, 0.0, Infinity, 1e300} << QRect(0, 0, 0, WallGeometry::MaximumPixel);
}

// Catches edges rounded one by one (336 pixels instead of 333) and the undefined conversion of wild values.
void tst_WallModel::windowPlacement()
{
    QFETCH(QSize, screen);
    QFETCH(StructScaleRect, scale);
    QTEST(WallGeometry::WindowRect(screen, scale), "pixels");
}

void tst_WallModel::spans_data()
{
    QTest::addColumn<int>("cells");
    QTest::addColumn<double>("to");
    QTest::addColumn<int>("span");
    QTest::newRow("half of four") << 4 << 0.5 << 2;
    QTest::newRow("1.2 cells") << 4 << 0.3 << 1;
    QTest::newRow("1.5 cells") << 3 << 0.5 << 2;
    QTest::newRow("nothing") << 4 << 0.1 << 0;
    QTest::newRow("NaN") << 4 << NaN << 0;
}

void tst_WallModel::spans()
{
    QFETCH(int, cells);
    QFETCH(double, to);
    QTEST(WallGeometry::CellSpan(cells, 0.0, to), "span");
}

void tst_WallModel::snapping_data()
{
    QTest::addColumn<StructScaleRect>("scale");
    QTest::addColumn<StructScaleRect>("snapped");
    QTest::newRow("widened to all cells")
        << StructScaleRect{0.26, 0.1, 0.74, 0.6, true} << StructScaleRect{0.0, 0.0, 1.0, 1.0, true};
    QTest::newRow("within the tolerance")
        << StructScaleRect{0.5004, 0.0, 1.0, 0.5} << StructScaleRect{0.5, 0.0, 1.0, 0.5};
    // 0.9996 and 0.9984 cells: the first is within 0.001 of the border, the second only within 0.002.
    QTest::newRow("left just inside")
        << StructScaleRect{0.4998, 0.0, 1.0, 0.5} << StructScaleRect{0.5, 0.0, 1.0, 0.5};
    QTest::newRow("left outside, top inside twice the tolerance")
        << StructScaleRect{0.4992, 0.4992, 1.0, 1.0} << StructScaleRect{0.0, 0.5, 1.0, 1.0};
    QTest::newRow("right beyond the border")
        << StructScaleRect{0.0, 0.0, 0.502, 0.5} << StructScaleRect{0.0, 0.0, 1.0, 0.5};
}

// Catches one tolerance for both directions, and the lost increase of the last cell.
void tst_WallModel::snapping()
{
    QFETCH(StructScaleRect, scale);
    QFETCH(StructScaleRect, snapped);
    const auto result = WallGeometry::SnappedToCells(scale, 2, 2, WallGeometry::DisplayPrecision);
    QVERIFY(result.has_value());
    Compare(*result, snapped);
}

void tst_WallModel::snappingWithoutCells()
{
    QVERIFY(!WallGeometry::SnappedToCells({0.1, 0.1, 0.2, 0.2}, 0, 2, 0.001));
    QVERIFY(!WallGeometry::SnappedToCells({0.1, 0.1, 0.2, 0.2}, 2, -1, 0.001));
}

void tst_WallModel::drawnAreas_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<bool>("drawn");
    QTest::addColumn<StructScaleRect>("scale");
    const StructScaleRect none;
    QTest::newRow("2 pixels wide") << QPoint(10, 10) << QPoint(12, 90) << false << none;
    QTest::newRow("2 pixels high") << QPoint(10, 10) << QPoint(90, 8) << false << none;
    QTest::newRow("3 by 3") << QPoint(10, 10) << QPoint(13, 13) << true
                            << StructScaleRect{0.1, 0.05, 0.13, 0.065, true};
    QTest::newRow("up and left") << QPoint(50, 100) << QPoint(10, 20) << true
                                 << StructScaleRect{0.1, 0.1, 0.5, 0.5, true};
}

// Catches a normalisation that loses a pixel when the area is drawn backwards.
void tst_WallModel::drawnAreas()
{
    QFETCH(QPoint, from);
    QFETCH(QPoint, to);
    QFETCH(StructScaleRect, scale);
    const auto area = WallGeometry::DrawnScale(from, to, QSize(100, 200));
    QTEST(area.has_value(), "drawn");
    if (area)
        Compare(*area, scale);
}

void tst_WallModel::siteUnits()
{
    QCOMPARE(WallGeometry::InSiteUnits({500, 150}, {1000, 600}), QPoint(4096, 2048));
    QCOMPARE(WallGeometry::InSiteUnits({5, 5}, {0, 600}), QPoint(0, 0)); // no division by zero
}

void tst_WallModel::grips_data()
{
    QTest::addColumn<QPoint>("pos");
    QTest::addColumn<Qt::Edges>("edges");
    QTest::newRow("inside") << QPoint(50, 50) << Qt::Edges();
    QTest::newRow("left") << QPoint(2, 50) << Qt::Edges(Qt::LeftEdge);
    QTest::newRow("bottom") << QPoint(50, 98) << Qt::Edges(Qt::BottomEdge);
    QTest::newRow("corner reached along an edge") << QPoint(10, 1) << (Qt::TopEdge | Qt::LeftEdge);
    QTest::newRow("outside") << QPoint(100, 50) << Qt::Edges();
}

void tst_WallModel::grips()
{
    QFETCH(QPoint, pos);
    QTEST(WallGeometry::EdgesAt({100, 100}, pos, 5), "edges");
}

void tst_WallModel::drags_data()
{
    QTest::addColumn<QRect>("start");
    QTest::addColumn<QPoint>("way");
    QTest::addColumn<Qt::Edges>("edges");
    QTest::addColumn<QRect>("end");
    const QRect start(100, 100, 200, 100);
    const Qt::Edges move;
    QTest::newRow("moved") << start << QPoint(30, -20) << move << QRect(130, 80, 200, 100);
    QTest::newRow("stopped at the corner")
        << start << QPoint(5000, 5000) << move << QRect(800, 500, 200, 100);
    QTest::newRow("stopped at the origin") << start << QPoint(-5000, -5000) << move << QRect(0, 0, 200, 100);
    QTest::newRow("brought inside") << QRect(-50, 100, 200, 100) << QPoint(10, 0) << move
                                    << QRect(0, 100, 200, 100);
    QTest::newRow("larger than the screen")
        << QRect(0, 0, 2000, 100) << QPoint(40, 40) << move << QRect(0, 40, 2000, 100);
    QTest::newRow("right edge") << start << QPoint(50, 70) << Qt::Edges(Qt::RightEdge)
                                << QRect(100, 100, 250, 100);
    QTest::newRow("left edge not past the smallest size")
        << start << QPoint(500, 0) << Qt::Edges(Qt::LeftEdge) << QRect(236, 100, 64, 100);
    QTest::newRow("bottom edge not out of the screen")
        << start << QPoint(0, 5000) << Qt::Edges(Qt::BottomEdge) << QRect(100, 100, 200, 500);
    QTest::newRow("a small window keeps its size")
        << QRect(100, 100, 20, 20) << QPoint(0, 0) << (Qt::LeftEdge | Qt::TopEdge) << QRect(100, 100, 20, 20);
    QTest::newRow("an edge outside stays where it is")
        << QRect(-50, 0, 200, 100) << QPoint(0, 0) << Qt::Edges(Qt::LeftEdge) << QRect(-50, 0, 200, 100);
}

// Catches windows dragged out of their screen, turned inside out, or jumping when they are taken hold of.
void tst_WallModel::drags()
{
    QFETCH(QRect, start);
    QFETCH(QPoint, way);
    QFETCH(Qt::Edges, edges);
    QTEST(WallGeometry::DraggedRect(start, way, edges, QRect(0, 0, 1000, 600), QSize(64, 48)), "end");
}

// Catches a rectangle computed back from pixels, which drifts with every drag.
void tst_WallModel::draggedEdgesOnlyChange()
{
    const StructScaleRect scale{0.12345, 0.2, 0.54321, 0.6, true};
    const StructScaleRect dragged = WallGeometry::DraggedScale(
        scale, QRect(123, 120, 420, 240), QRect(123, 120, 430, 240), QSize(1000, 600));
    Compare(dragged, {0.12345, 0.2, 0.54321 + 0.01, 0.6, true});
}

void tst_WallModel::zoomLimits_data()
{
    QTest::addColumn<float>("wanted"); // extent
    QTest::addColumn<float>("view");
    QTest::addColumn<float>("extent");
    QTest::newRow("smaller than the view") << 799.0F << 800.0F << 800.0F;
    QTest::newRow("just ten times") << 8000.0F << 800.0F << 8000.0F;
    QTest::newRow("more than ten times") << 8001.0F << 800.0F << 8000.0F;
    QTest::newRow("no view") << 100.0F << 0.0F << 0.0F;
    QTest::newRow("nothing at all") << 0.0F << 0.0F << 0.0F;
    QTest::newRow("NaN") << float(NaN) << 800.0F << 800.0F;
    QTest::newRow("infinite") << float(Infinity) << 800.0F << 8000.0F;
}

// Catches limits off by one and a division by a view without a size.
void tst_WallModel::zoomLimits()
{
    QFETCH(float, wanted);
    QFETCH(float, view);
    QTEST(WallZoom::LimitedExtent(wanted, view), "extent");
    QCOMPARE(WallZoom::LimitedOffset(-200.0F, 1200.0F, 800.0F), -200.0F);
    QCOMPARE(WallZoom::LimitedOffset(-401.0F, 1200.0F, 800.0F), -400.0F);
    QCOMPARE(WallZoom::LimitedOffset(1.0F, 1200.0F, 800.0F), 0.0F);
    QCOMPARE(WallZoom::LimitedOffset(float(NaN), 1200.0F, 800.0F), 0.0F);
    QCOMPARE(WallZoom::Pixel(-200.0F), -199); // towards zero, also below it
    QCOMPARE(WallZoom::Pixel(-200.6F), -200);
    QCOMPARE(WallZoom::Pixel(199.5F), 200);
}

void tst_WallModel::zoomSteps_data()
{
    QTest::addColumn<int>("wall");
    QTest::addColumn<float>("offset");
    QTest::addColumn<int>("position");
    QTest::addColumn<bool>("larger");
    QTest::addColumn<int>("wallAfter");
    QTest::addColumn<float>("offsetAfter");
    QTest::newRow("about the middle") << 800 << 0.0F << 400 << true << 1200 << -200.0F;
    QTest::newRow("about the start") << 800 << 0.0F << 0 << true << 1200 << 0.0F;
    QTest::newRow("back") << 1200 << -200.0F << 600 << false << 800 << 0.0F;
    QTest::newRow("out, at the smallest") << 800 << 0.0F << 700 << false << 800 << 0.0F;
    QTest::newRow("in, at the largest") << 8000 << -7200.0F << 7900 << true << 8000 << -7200.0F;
    QTest::newRow("the last step is shorter") << 6075 << 0.0F << 0 << true << 8000 << 0.0F;
    QTest::newRow("rounded up") << 1001 << 0.0F << 0 << true << 1502 << 0.0F;
    QTest::newRow("kept over its end") << 1200 << 0.0F << 1200 << false << 800 << 0.0F;
}

void tst_WallModel::zoomSteps()
{
    QFETCH(int, wall);
    QFETCH(float, offset);
    QFETCH(int, position);
    QFETCH(bool, larger);
    const WallZoom::Axis axis = WallZoom::Zoomed({800.0F, wall, offset}, position, larger);
    QTEST(axis.wall, "wallAfter");
    QTEST(axis.offset, "offsetAfter");
    const WallZoom::Axis nothing = WallZoom::Zoomed(WallZoom::Axis(), position, larger);
    QCOMPARE(nothing.wall, 0);
    QCOMPARE(nothing.offset, 0.0F);
}

// Catches a point that wanders away from the cursor because rounded offsets add up.
void tst_WallModel::zoomedPointStays()
{
    const int cursor = 617; // in the view
    WallZoom::Axis axis{1000.0F, 1000, 0.0F};
    for (const bool larger : {true, true, true, true, true, false, false, false, true, true}) {
        const float before = (float(cursor) - axis.offset) / float(axis.wall);
        axis = WallZoom::Zoomed(axis, qRound(float(cursor) - axis.offset), larger);
        const float after = (float(cursor) - axis.offset) / float(axis.wall);
        QVERIFY(std::abs(before - after) * float(axis.wall) < 1.5F);
    }
    QVERIFY(std::abs((float(cursor) - axis.offset) / float(axis.wall) - 0.617F) < 0.002F);
}

// Catches a zoom lost at a resize, an offset left outside its limits, and a wall that starts with a size of
// its own instead of its view's.
void tst_WallModel::zoomedWallIsResized()
{
    const WallZoom::Axis halved = WallZoom::Resized({800.0F, 2400, -1600.0F}, 400.0F);
    QCOMPARE(halved.wall, 1200);
    QCOMPARE(halved.offset, -800.0F); // not scaled, but limited
    const WallZoom::Axis grown = WallZoom::Resized({800.0F, 1200, -300.0F}, 801.0F);
    QCOMPARE(grown.wall, 1202); // 1201.5
    QCOMPARE(grown.offset, -300.0F);
    WallZoom::Axis gone = WallZoom::Resized({800.0F, 2400, -1600.0F}, 0.0F);
    QCOMPARE(gone.wall, 0);
    QCOMPARE(gone.offset, 0.0F);
    QCOMPARE(WallZoom::ViewStart(gone), 0.0F);
    gone = WallZoom::Resized(gone, 640.0F);
    QCOMPARE(gone.wall, 640);
    QCOMPARE(WallZoom::Located(halved, 0.5F).offset, -600.0F);
    QCOMPARE(WallZoom::Located(halved, -3.0F).offset, 0.0F);
    QCOMPARE(WallZoom::ViewStart(halved), 2.0F / 3.0F);
    QCOMPARE(WallZoom::ViewExtent(halved), 1.0F / 3.0F);
}

// Catches wild rectangles painted over their screen, and a window hidden by a lower one.
void tst_WallModel::miniatureIsCut()
{
    WallMiniature::Colors colors;
    colors.window = Qt::red;
    colors.selected = Qt::green;
    const WallMiniature::Screen left{
        {-1e300, 0.0, 0.5, Infinity}, false, {{{-1e300, 0.0, 1e300, 0.5}, false}}};
    const WallMiniature::Screen right{
        {0.5, 0.0, 1.0, 1.0}, false, {{{0.0, 0.0, 1.0, 1.0}, false}, {{0.0, 0.0, 1.0, 1.0}, true}}};
    const WallMiniature::Screen unknown{{NaN, NaN, NaN, NaN}, true, {{{NaN, 0.0, 1.0, 1.0}, true}}};
    const QImage picture
        = WallMiniature::Picture({left, right, unknown}, QSize(100, 50), 2.0, colors).toImage();
    QCOMPARE(picture.size(), QSize(200, 100));
    QCOMPARE(picture.pixel(50, 20), qRgb(255, 0, 0));
    QCOMPARE(picture.pixel(50, 80), qRgb(33, 34, 37)); // the screen below its window
    QCOMPARE(picture.pixelColor(99, 20), QColor(Qt::transparent)); // the gutter
    QCOMPARE(picture.pixel(150, 50), qRgb(0, 255, 0));
}

// Catches a drag that shows something else than its release sets, and one that snaps before it has moved.
void tst_WallModel::dragsBoundToCells()
{
    const WindowDrag::Field field{QSize(1000, 600), 4, 2};
    const WindowPlacement placement({0.3, 0.1, 0.45, 0.4, true}, 0.002);
    const QRect start = WallGeometry::WindowRect(field.screen, placement.Scale());
    WindowDrag drag;
    drag.Begin({}, QPoint(310, 70), start);
    QCOMPARE(drag.Shown(placement, field, true), start);
    drag.MoveTo(QPoint(330, 80), field);
    Compare(drag.Scale(placement, field, true), {0.25, 0.0, 0.5, 0.5, true});
    QCOMPARE(drag.Shown(placement, field, true), QRect(250, 0, 250, 300));
    QCOMPARE(drag.Shown(placement, field, false), start.translated(20, 10));
    drag.MoveTo(QPoint(310, 70), field);
    QVERIFY(!drag.HasMoved());
}

// Catches a restore to the wrong rectangle, and states that survive the client's own rectangle.
void tst_WallModel::placementStates()
{
    using State = WindowPlacement::State;
    const StructScaleRect start{0.3, 0.1, 0.45, 0.4, false};
    WindowPlacement placement(start, 0.001);
    QVERIFY(placement.MaximizeOrRestore());
    Compare(placement.Scale(), {0.0, 0.0, 1.0, 1.0, true});
    QVERIFY(placement.SnapOrRestore(4, 2) == false); // a whole screen stands on its cells
    QVERIFY(placement.GetState() == State::Maximized);
    QVERIFY(placement.MaximizeOrRestore());
    Compare(placement.Scale(), start);
    QVERIFY(placement.SnapOrRestore(4, 2));
    Compare(placement.Scale(), {0.25, 0.0, 0.5, 0.5, false});
    QVERIFY(placement.GetState() == State::Snapped);
    QVERIFY(placement.Set({0.0, 0.0, 0.5, 0.5, true}));
    QVERIFY(placement.GetState() == State::Free);
    QVERIFY(!placement.SnapOrRestore(0, 0));
    QVERIFY(placement.Set({0.0, 0.0, 1.0, 1.0, true}));
    QVERIFY(!placement.MaximizeOrRestore()); // it fills the screen already
    QVERIFY(placement.GetState() == State::Maximized);
    QVERIFY(!placement.MaximizeOrRestore());
    Compare(placement.Scale(), {0.0, 0.0, 1.0, 1.0, true});
}

// Catches a rectangle that is overwritten while it is still read through the reference.
void tst_WallModel::placementByItsOwnRectangle()
{
    WindowPlacement placement({0.1, 0.1, 0.2, 0.2, true}, 0.001);
    placement.Set({0.5, 0.5, 0.9, 0.9, true});
    QVERIFY(!placement.Set(placement.Scale()));
    Compare(placement.Scale(), {0.5, 0.5, 0.9, 0.9, true});
}

void tst_WallModel::stacking_data()
{
    QTest::addColumn<QVector<int>>("values"); // the moved window's new value in place
    QTest::addColumn<int>("moved");
    QTest::addColumn<int>("oldZ");
    QTest::addColumn<QVector<int>>("closed");
    QTest::addColumn<QVector<int>>("order");
    using V = QVector<int>;
    QTest::newRow("gap closed") << V{4, 2, 3} << 0 << 1 << V{4, 1, 2} << V{1, 2, 0};
    QTest::newRow("no gap below 1") << V{4, 2, 3} << 0 << 0 << V{4, 2, 3} << V{1, 2, 0};
    QTest::newRow("stops at a negative value") << V{4, -1, 3} << 0 << 1 << V{4, -1, 3} << V{1, 2, 0};
    QTest::newRow("stops at its own negative value") << V{5, -1, 3} << 1 << 2 << V{4, -1, 3} << V{1, 2, 0};
    QTest::newRow("later of equal ones") << V{7, 7, 1} << 0 << 0 << V{7, 7, 1} << V{2, 1};
}

void tst_WallModel::stacking()
{
    QFETCH(QVector<int>, values);
    QFETCH(int, moved);
    QFETCH(int, oldZ);
    const QVector<int> closed = WallStacking::WithGapClosed(values, moved, oldZ);
    QTEST(closed, "closed");
    QTEST(WallStacking::AscendingOrder(closed), "order");
}

void tst_WallModel::clicks_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("fromPress");
    QTest::addColumn<bool>("band");
    QTest::addColumn<bool>("selectOnly");
    QTest::addColumn<bool>("targetSelected");
    QTest::addColumn<QVector<bool>>("selected"); // target, another one that is selected before
    QTest::addColumn<bool>("selectOnlyAfter");
    using V = QVector<bool>;
    QTest::newRow("single") << 1 << false << false << false << false << V{true, false} << false;
    QTest::newRow("single again") << 1 << false << false << false << true << V{true, false} << false;
    QTest::newRow("multi, press on unselected")
        << 2 << true << false << false << false << V{false, true} << true;
    QTest::newRow("multi, press on selected") << 2 << true << false << true << true << V{true, true} << false;
    QTest::newRow("multi, release selects") << 2 << false << false << true << false << V{true, true} << true;
    QTest::newRow("multi, release deselects")
        << 2 << false << false << true << true << V{false, true} << true;
    QTest::newRow("band keeps selected") << 2 << false << true << true << true << V{true, true} << true;
    QTest::newRow("band toggles after a press on a selected one")
        << 2 << false << true << false << true << V{false, true} << false;
    QTest::newRow("unknown mode is none of the single one")
        << 7 << false << false << false << false << V{true, true} << false;
}

void tst_WallModel::clicks()
{
    QFETCH(int, mode);
    QFETCH(bool, fromPress);
    QFETCH(bool, band);
    QFETCH(bool, selectOnly);
    QFETCH(bool, targetSelected);
    const WallSelection::State before{{targetSelected, true}, selectOnly};
    const WallSelection::State after = WallSelection::Clicked(before, 0, {mode, fromPress, band});
    QTEST(after.selected, "selected");
    QTEST(after.selectOnly, "selectOnlyAfter");
    QCOMPARE(WallSelection::Clicked(before, 2, {mode, fromPress, band}).selected, before.selected);
}

// Catches a right click that takes a selection away.
void tst_WallModel::buttonsThatSelect()
{
    QVERIFY(WallSelection::TakesPart(2, Qt::LeftButton, true));
    QVERIFY(WallSelection::TakesPart(1, Qt::RightButton, false));
    QVERIFY(!WallSelection::TakesPart(2, Qt::RightButton, true));
    QVERIFY(!WallSelection::TakesPart(2, Qt::MiddleButton, false));
    QVERIFY(!WallSelection::TakesPart(0, Qt::LeftButton, false));
    QVERIFY(!WallSelection::TakesPart(3, Qt::LeftButton, false));
}

void tst_WallModel::overlayPlacement_data()
{
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<QRect>("units"); // left, top, width and height in 1/8192
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("percent");
    QTest::addColumn<QRect>("geometry");
    QTest::addColumn<int>("font");
    QTest::newRow("two lines") << QSize(8192, 8192) << QRect(10, 20, 400, 100) << QStringLiteral("a\nb") << 50
                               << QRect(10, 20, 400, 105) << 25;
    QTest::newRow("narrower than a line") << QSize(8192, 8192) << QRect(0, 0, 30, 100) << QStringLiteral("a")
                                          << 100 << QRect(0, 0, 30, 105) << 30;
    QTest::newRow("truncating") << QSize(1000, 600) << QRect(4095, 4095, 4095, 1000) << QStringLiteral("a")
                                << 100 << QRect(499, 299, 499, 78) << 73;
    QTest::newRow("font of at least 1")
        << QSize(1000, 600) << QRect(0, 0, 0, 0) << QString() << 100 << QRect(0, 0, 0, 5) << 1;
    QTest::newRow("units beyond an int's product")
        << QSize(1000, 600) << QRect(2000000000, 0, 100, 100) << QStringLiteral("a") << 100
        << QRect(WallGeometry::MaximumPixel, 0, 12, 12) << 7;
}

// Catches 32-bit overflow of the product, and a font size of 0 that a label would ignore.
void tst_WallModel::overlayPlacement()
{
    QFETCH(QSize, screen);
    QFETCH(QRect, units);
    QFETCH(QString, text);
    QFETCH(int, percent);
    KvGUI::StructOSDInfo info;
    info.iLeft = units.x();
    info.iTop = units.y();
    info.iRight = units.x() + units.width();
    info.iBottom = units.y() + units.height();
    info.strText = text.toStdString();
    info.iFontPercent = static_cast<unsigned char>(percent);
    const ScreenOverlay::Placement placement = ScreenOverlay::Placed(info, screen);
    QTEST(placement.geometry, "geometry");
    QTEST(placement.fontPixelSize, "font");
}

void tst_WallModel::overlayLook()
{
    KvGUI::StructOSDInfo info;
    info.iFontR = 1;
    info.iFontG = 300;
    info.iFontB = -7;
    info.iBackR = 4;
    info.iBackG = 5;
    info.iBackB = 6;
    QCOMPARE(
        ScreenOverlay::StyleSheet(info, 25),
        QStringLiteral("font-size: 25px;color: rgb(1, 255, 0);background-color: rgb(4, 5, 6)"));
    QVERIFY(ScreenOverlay::FaceOf("simHei").bold);
    QCOMPARE(ScreenOverlay::FaceOf("simKai").objectName, QStringLiteral("KaiStyle"));
    QCOMPARE(ScreenOverlay::FaceOf("SIMKAI").objectName, QStringLiteral("SongStyle"));
    QCOMPARE(ScreenOverlay::AlignmentOf(1), Qt::Alignment(Qt::AlignCenter));
    QVERIFY(ScreenOverlay::AlignmentOf(9) & Qt::AlignLeft);
}

void tst_WallModel::overlayPadding()
{
    const QString text = QStringLiteral("text");
    QCOMPARE(ScreenOverlay::PaddedToWidth(text, 93, 4, 100), text); // 7 pixels left
    QCOMPARE(ScreenOverlay::PaddedToWidth(text, 92, 4, 100), text + QStringLiteral("  "));
    QCOMPARE(ScreenOverlay::PaddedToWidth(text, 10, 0, 100), text); // a font without a space
    QCOMPARE(ScreenOverlay::PaddedToWidth(text, 200, 4, 100), text);
}

void tst_WallModel::baseMapFiles_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("file");
    QTest::newRow("last dot only") << "D:/map/a.b.yuv"
                                   << "D:/map/a.b.jpg";
    QTest::newRow("unchanged") << "D:/map/a.b.png"
                               << "D:/map/a.b.png";
    QTest::newRow("anywhere in the path") << "maps.yuv.d/site.png"
                                          << "maps.yuv.d/site.jpg";
    QTest::newRow("empty") << ""
                           << "";
}

void tst_WallModel::baseMapFiles()
{
    QFETCH(QString, path);
    QTEST(QString::fromStdString(ScreenOverlay::BaseMapFile(path.toStdString())), "file");
}

STRICT_TEST_MAIN(tst_WallModel)
#include "tst_wallmodel.moc"
