// The rules of a video wall on plain values.

#include "support/Columns.h"
#include "support/ScaleRects.h"
#include "support/StrictMain.h"
#include "support/Text.h"

#include <UI/TVWall/QOSDShowLabel.h>
#include <UI/TVWall/ScreenOverlay.h>
#include <UI/TVWall/WallGeometry.h>
#include <UI/TVWall/WallMiniature.h>
#include <UI/TVWall/WallSelection.h>
#include <UI/TVWall/WallStacking.h>
#include <UI/TVWall/WallZoom.h>
#include <UI/TVWall/WindowPlacement.h>

#include <QApplication>
#include <QBitmap>
#include <QTest>
#include <limits>

using namespace UICommonMdl;
using Rect = KvGUI::StructScaleRect;
using namespace TestSupport;

namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NaN = std::numeric_limits<double>::quiet_NaN();

} // namespace

Q_DECLARE_METATYPE(WallSelection::Click)

class tst_WallModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Catches a bare comparison of doubles, which makes 0.5 and 0.501 unequal within 0.001.
    void equality()
    {
        const auto equal = [](const Rect& a, const Rect& b) {
            const bool forth = WallGeometry::IsEqual(a, b, WallGeometry::DisplayPrecision);
            const bool back = WallGeometry::IsEqual(b, a, WallGeometry::DisplayPrecision);
            QTest::qVerify(forth == back, "forth == back", "", __FILE__, __LINE__);
            return forth;
        };
        const Rect base{0.5, 0.5, 1.0, 1.0};
        QVERIFY(equal(base, {0.501, 0.5, 1.0, 1.0}));
        QVERIFY(equal(base, {0.499, 0.501, 0.999, 1.001}));
        QVERIFY(!equal(base, {0.5, 0.5, 1.0011, 1.0}));
        QVERIFY(equal(base, {0.5, 0.5, 1.0, 1.0, true}));
        QVERIFY(!equal(base, {0.5, NaN, 1.0, 1.0}));
        QVERIFY(!equal(base, {0.5, 0.5, Infinity, 1.0}));
        QVERIFY(equal({NaN, 0, 1, 1}, {NaN, 0, 1, 1})); // or a slot that echoes never ends
    }

    // Catches rounding in place of truncation, exclusive corners and a gutter compared within a tolerance.
    void screenPlacement()
    {
        const auto corners = [](const QSize& wall, const Rect& scale, bool noGap) {
            const QRect rect = WallGeometry::ScreenRect(QRect(QPoint(0, 0), wall), scale, noGap);
            return qMakePair(rect.topLeft(), rect.bottomRight());
        };
        const auto at = [](int left, int top, int right, int bottom) {
            return qMakePair(QPoint(left, top), QPoint(right, bottom));
        };
        const QSize wall(1000, 600);
        QCOMPARE(corners(wall, {0.5, 0.5, 1.0, 1.0}, false), at(500, 300, 999, 599)); // no gutter at the end
        QCOMPARE(corners(wall, {0.0, 0.0, 0.5, 0.5}, false), at(0, 0, 495, 295));
        QCOMPARE(corners(wall, {0.0, 0.0, 0.5, 0.5}, true), at(0, 0, 499, 299));
        QCOMPARE(corners({999, 599}, {1.0 / 3, 0.0, 2.0 / 3, 1.0}, true), at(333, 0, 665, 598));
        QCOMPARE(corners(wall, {0.0, 0.0, 0.9999999, 1.0}, false), at(0, 0, 994, 599)); // nearly 1 is not 1
    }

    // Catches edges rounded one by one (336 pixels instead of 333) and the undefined conversion of wild
    // values.
    void windowPlacement()
    {
        const auto pixels = WallGeometry::WindowRect;
        QCOMPARE(pixels({1000, 600}, {0.3333, 0.25, 0.6667, 0.75}), QRect(333, 150, 333, 300));
        QCOMPARE(pixels({3, 3}, {0.5, 0.5, 1.0, 1.0}), QRect(2, 2, 2, 2)); // halves up
        QCOMPARE(pixels({1000, 600}, {-0.2, 0.0, 0.5, 0.5}), QRect(-199, 0, 700, 300)); // towards zero
        QCOMPARE(
            pixels({1000, 600}, {NaN, 0.0, Infinity, 1e300}), QRect(0, 0, 0, WallGeometry::MaximumPixel));
    }

    // Catches one tolerance for both directions, and the lost increase of the last cell.
    void snapping()
    {
        QCOMPARE(WallGeometry::CellSpan(4, 0.0, 0.5), 2);
        QCOMPARE(WallGeometry::CellSpan(4, 0.0, 0.3), 1); // 1.2 cells
        QCOMPARE(WallGeometry::CellSpan(3, 0.0, 0.5), 2); // 1.5 cells
        QCOMPARE(WallGeometry::CellSpan(4, 0.0, 0.1), 0);
        QCOMPARE(WallGeometry::CellSpan(4, 0.0, NaN), 0);
        const auto snapped = [](const Rect& scale) {
            return WallGeometry::SnappedToCells(scale, 2, 2, WallGeometry::DisplayPrecision).value_or(Rect());
        };
        QCOMPARE(snapped({0.26, 0.1, 0.74, 0.6, true}), (Rect{0.0, 0.0, 1.0, 1.0, true}));
        QCOMPARE(snapped({0.5004, 0.0, 1.0, 0.5}), (Rect{0.5, 0.0, 1.0, 0.5}));
        // 0.9996 and 0.9984 cells: the first is within 0.001 of the border, the second only within 0.002.
        QCOMPARE(snapped({0.4998, 0.0, 1.0, 0.5}), (Rect{0.5, 0.0, 1.0, 0.5}));
        QCOMPARE(snapped({0.4992, 0.4992, 1.0, 1.0}), (Rect{0.0, 0.5, 1.0, 1.0}));
        QCOMPARE(snapped({0.0, 0.0, 0.502, 0.5}), (Rect{0.0, 0.0, 1.0, 0.5}));
        QCOMPARE(snapped({-0.8, 0.0, -0.3, 0.5}), (Rect{-0.5, 0.0, 0.0, 0.5})); // towards zero, also below it
        QVERIFY(!WallGeometry::SnappedToCells({0.1, 0.1, 0.2, 0.2}, 0, 2, 0.001));
        QVERIFY(!WallGeometry::SnappedToCells({0.1, 0.1, 0.2, 0.2}, 2, -1, 0.001));
    }

    // Catches a normalisation that loses a pixel when the area is drawn backwards, and a division by no size.
    void drawnAreas()
    {
        const auto drawn = [](const QPoint& from, const QPoint& to) {
            return WallGeometry::DrawnScale(from, to, {100, 200});
        };
        QVERIFY(!drawn({10, 10}, {12, 90})); // 2 pixels wide
        QVERIFY(!drawn({10, 10}, {90, 8}));
        QCOMPARE(drawn({10, 10}, {13, 13}).value_or(Rect()), (Rect{0.1, 0.05, 0.13, 0.065, true}));
        QCOMPARE(drawn({50, 100}, {10, 20}).value_or(Rect()), (Rect{0.1, 0.1, 0.5, 0.5, true}));
        QVERIFY(!WallGeometry::DrawnScale({10, 10}, {50, 50}, {0, 200}));
        QCOMPARE(WallGeometry::InSiteUnits({500, 150}, {1000, 600}), QPoint(4096, 2048));
        QCOMPARE(WallGeometry::InSiteUnits({5, 5}, {0, 600}), QPoint(0, 0));
    }

    void grips()
    {
        const auto edges = [](int x, int y) { return WallGeometry::EdgesAt({100, 100}, {x, y}, 5); };
        QCOMPARE(edges(50, 50), Qt::Edges());
        QCOMPARE(edges(2, 50), Qt::Edges(Qt::LeftEdge));
        QCOMPARE(edges(50, 98), Qt::Edges(Qt::BottomEdge));
        QCOMPARE(edges(10, 1), Qt::TopEdge | Qt::LeftEdge); // a corner reached along an edge
        QCOMPARE(edges(100, 50), Qt::Edges()); // outside
    }

    // Catches windows dragged out of their screen, turned inside out, or jumping when they are taken hold of.
    void drags()
    {
        const auto dragged = [](const QRect& start, const QPoint& way, Qt::Edges edges = {}) {
            return WallGeometry::DraggedRect(start, way, edges, QRect(0, 0, 1000, 600), QSize(64, 48));
        };
        const QRect start(100, 100, 200, 100);
        QCOMPARE(dragged(start, {30, -20}), QRect(130, 80, 200, 100));
        QCOMPARE(dragged(start, {5000, 5000}), QRect(800, 500, 200, 100));
        QCOMPARE(dragged(start, {-5000, -5000}), QRect(0, 0, 200, 100));
        QCOMPARE(dragged({-50, 100, 200, 100}, {10, 0}), QRect(0, 100, 200, 100)); // brought inside
        QCOMPARE(dragged({0, 0, 2000, 100}, {40, 40}), QRect(0, 40, 2000, 100)); // larger than the screen
        QCOMPARE(dragged(start, {50, 70}, Qt::RightEdge), QRect(100, 100, 250, 100));
        QCOMPARE(dragged(start, {500, 0}, Qt::LeftEdge), QRect(236, 100, 64, 100)); // the smallest size
        QCOMPARE(dragged(start, {0, 5000}, Qt::BottomEdge), QRect(100, 100, 200, 500));
        const QRect small(100, 100, 20, 20);
        QCOMPARE(dragged(small, {0, 0}, Qt::LeftEdge | Qt::TopEdge), small);
        const QRect outside(-50, 0, 200, 100);
        QCOMPARE(dragged(outside, {0, 0}, Qt::LeftEdge), outside);
        // Only edges that were dragged change: computed back from pixels the others would drift.
        const Rect scale = WallGeometry::DraggedScale(
            {0.12345, 0.2, 0.54321, 0.6, true}, {123, 120, 420, 240}, {123, 120, 430, 240}, {1000, 600});
        QCOMPARE(scale, (Rect{0.12345, 0.2, 0.54321 + 0.01, 0.6, true}));
        QCOMPARE(WallGeometry::DraggedScale(scale, start, small, {0, 600}), scale);
    }

    // Catches a restore to the wrong rectangle, and states that survive the client's own rectangle.
    void placementStates()
    {
        using State = WindowPlacement::State;
        const Rect start{0.3, 0.1, 0.45, 0.4, false};
        const Rect whole{0.0, 0.0, 1.0, 1.0, true};
        WindowPlacement placement(start, 0.001);
        QVERIFY(placement.MaximizeOrRestore());
        QVERIFY(!placement.SnapOrRestore(4, 2)); // a whole screen stands on its cells
        QVERIFY(placement.GetState() == State::Maximized);
        QVERIFY(placement.MaximizeOrRestore());
        QVERIFY(placement.SnapOrRestore(4, 2));
        QCOMPARE(placement.Scale(), (Rect{0.25, 0.0, 0.5, 0.5, false}));
        QVERIFY(placement.Set({0.0, 0.0, 0.5, 0.5, true}));
        QVERIFY(placement.GetState() == State::Free);
        QVERIFY(!placement.SnapOrRestore(0, 0));
        QVERIFY(placement.Set(whole));
        QVERIFY(!placement.MaximizeOrRestore()); // it fills the screen already
        QVERIFY(placement.GetState() == State::Maximized);
        QVERIFY(!placement.MaximizeOrRestore());
        QCOMPARE(placement.Scale(), whole);
    }

    // Catches limits off by one and a division by a view without a size.
    void zoomLimits()
    {
        QCOMPARE(WallZoom::LimitedExtent(799.0F, 800.0F), 800.0F);
        QCOMPARE(WallZoom::LimitedExtent(8000.0F, 800.0F), 8000.0F);
        QCOMPARE(WallZoom::LimitedExtent(8001.0F, 800.0F), 8000.0F);
        QCOMPARE(WallZoom::LimitedExtent(100.0F, 0.0F), 0.0F);
        QCOMPARE(WallZoom::LimitedExtent(float(NaN), 800.0F), 800.0F);
        QCOMPARE(WallZoom::LimitedExtent(float(Infinity), 800.0F), 8000.0F);
        QCOMPARE(WallZoom::LimitedOffset(-200.0F, 1200.0F, 800.0F), -200.0F);
        QCOMPARE(WallZoom::LimitedOffset(-401.0F, 1200.0F, 800.0F), -400.0F);
        QCOMPARE(WallZoom::LimitedOffset(1.0F, 1200.0F, 800.0F), 0.0F);
        QCOMPARE(WallZoom::LimitedOffset(float(NaN), 1200.0F, 800.0F), 0.0F);
        QCOMPARE(WallZoom::Pixel(-200.0F), -199); // towards zero, also below it
        QCOMPARE(WallZoom::Pixel(-200.6F), -200);
        QCOMPARE(WallZoom::Pixel(199.5F), 200);
    }

    void zoomSteps()
    {
        const auto step = [](int wall, float offset, int position, bool larger) {
            const WallZoom::Axis axis = WallZoom::Zoomed({800.0F, wall, offset}, position, larger);
            return qMakePair(axis.wall, axis.offset);
        };
        QCOMPARE(step(800, 0.0F, 400, true), qMakePair(1200, -200.0F)); // about the middle
        QCOMPARE(step(800, 0.0F, 0, true), qMakePair(1200, 0.0F));
        QCOMPARE(step(1200, -200.0F, 600, false), qMakePair(800, 0.0F));
        QCOMPARE(step(800, 0.0F, 700, false), qMakePair(800, 0.0F));
        QCOMPARE(step(8000, -7200.0F, 7900, true), qMakePair(8000, -7200.0F));
        QCOMPARE(step(6075, 0.0F, 0, true), qMakePair(8000, 0.0F)); // the last step is shorter
        QCOMPARE(step(1001, 0.0F, 0, true), qMakePair(1502, 0.0F)); // rounded up
        QCOMPARE(step(1200, 0.0F, 1200, false), qMakePair(800, 0.0F)); // kept over its end
        const WallZoom::Axis nothing = WallZoom::Zoomed(WallZoom::Axis(), 5, true);
        QCOMPARE(qMakePair(nothing.wall, nothing.offset), qMakePair(0, 0.0F));
    }

    // Catches a zoom lost at a resize, an offset left outside its limits, and a wall that starts with a size
    // of its own instead of its view's.
    void zoomedWallIsResized()
    {
        const WallZoom::Axis halved = WallZoom::Resized({800.0F, 2400, -1600.0F}, 400.0F);
        QCOMPARE(halved.wall, 1200);
        QCOMPARE(halved.offset, -800.0F); // not scaled, but limited
        const WallZoom::Axis grown = WallZoom::Resized({800.0F, 1200, -300.0F}, 801.0F);
        QCOMPARE(grown.wall, 1202); // 1201.5
        QCOMPARE(grown.offset, -300.0F);
        const WallZoom::Axis gone = WallZoom::Resized({800.0F, 2400, -1600.0F}, 0.0F);
        QCOMPARE(gone.wall, 0);
        QCOMPARE(gone.offset, 0.0F);
        QCOMPARE(WallZoom::ViewStart(gone), 0.0F);
        QCOMPARE(WallZoom::Resized(gone, 640.0F).wall, 640);
        QCOMPARE(WallZoom::Located(halved, 0.5F).offset, -600.0F);
        QCOMPARE(WallZoom::Located(halved, -3.0F).offset, 0.0F);
        QCOMPARE(WallZoom::ViewStart(halved), 2.0F / 3.0F);
        QCOMPARE(WallZoom::ViewExtent(halved), 1.0F / 3.0F);
    }

    // Catches wild rectangles painted over their screen, and a window hidden by a lower one.
    void miniatureIsCut()
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
        QVERIFY(WallMiniature::Picture({left}, QSize(0, 50), 2.0, colors).isNull());
    }

    void stacking()
    {
        using V = QVector<int>;
        const auto closed = WallStacking::WithGapClosed; // values with the moved window's new one in place
        QCOMPARE(closed({4, 2, 3}, 0, 1), (V{4, 1, 2}));
        QCOMPARE(closed({4, 2, 3}, 0, 0), (V{4, 2, 3})); // no gap below 1
        QCOMPARE(closed({4, -1, 3}, 0, 1), (V{4, -1, 3})); // stops at a negative value
        QCOMPARE(closed({5, -1, 3}, 1, 2), (V{4, -1, 3})); // also its own
        QCOMPARE(WallStacking::AscendingOrder({4, -1, 3}), (V{1, 2, 0}));
        QCOMPARE(WallStacking::AscendingOrder({7, 7, 1}), (V{2, 1})); // the later of equal ones
    }

    void clicks_data()
    {
        TestSupport::Columns<WallSelection::Click, bool, bool>("click", "selectOnly", "targetSelected");
        QTest::addColumn<QVector<bool>>("selected"); // target, another one that is selected before
        QTest::addColumn<bool>("selectOnlyAfter");
        using Click = WallSelection::Click;
        using V = QVector<bool>;
        const Click press{2, true, false};
        const Click release{2, false, false};
        const Click band{2, false, true};
        QTest::newRow("single") << Click{1} << false << false << V{true, false} << false;
        QTest::newRow("single again") << Click{1} << false << true << V{true, false} << false;
        QTest::newRow("multi, press on unselected") << press << false << false << V{false, true} << true;
        QTest::newRow("multi, press on selected") << press << true << true << V{true, true} << false;
        QTest::newRow("multi, release selects") << release << true << false << V{true, true} << true;
        QTest::newRow("multi, release deselects") << release << true << true << V{false, true} << true;
        QTest::newRow("band keeps selected") << band << true << true << V{true, true} << true;
        QTest::newRow("band after a press on a selected one")
            << band << false << true << V{false, true} << false;
        QTest::newRow("unknown mode") << Click{7} << false << false << V{true, true} << false;
    }

    void clicks()
    {
        QFETCH(WallSelection::Click, click);
        QFETCH(bool, selectOnly);
        QFETCH(bool, targetSelected);
        const WallSelection::State before{{targetSelected, true}, selectOnly};
        const WallSelection::State after = WallSelection::Clicked(before, 0, click);
        QTEST(after.selected, "selected");
        QTEST(after.selectOnly, "selectOnlyAfter");
        for (const int nobody : {-1, 2})
            QCOMPARE(WallSelection::Clicked(before, nobody, click).selected, before.selected);
        QVERIFY(!WallSelection::TakesPart(3, Qt::LeftButton, false));
    }

    void overlayPlacement_data()
    {
        QTest::addColumn<QSize>("screen");
        QTest::addColumn<QRect>("units"); // left, top, width and height in 1/8192
        TestSupport::Columns<QString, int, QRect, int>("text", "percent", "geometry", "font");
        const QSize units(8192, 8192);
        const QSize screen(1000, 600);
        QTest::newRow("two lines") << units << QRect(10, 20, 400, 100) << "a\nb"_s << 50
                                   << QRect(10, 20, 400, 105) << 25;
        QTest::newRow("narrower than a line")
            << units << QRect(0, 0, 30, 100) << "a"_s << 100 << QRect(0, 0, 30, 105) << 30;
        QTest::newRow("truncating") << screen << QRect(4095, 4095, 4095, 1000) << "a"_s << 100
                                    << QRect(499, 299, 499, 78) << 73;
        QTest::newRow("font of at least 1")
            << screen << QRect(0, 0, 0, 0) << QString() << 100 << QRect(0, 0, 0, 5) << 1;
        QTest::newRow("units beyond an int's product")
            << screen << QRect(2000000000, 0, 100, 100) << "a"_s << 100
            << QRect(WallGeometry::MaximumPixel, 0, 12, 12) << 7;
    }

    // Catches 32-bit overflow of the product, and a font size of 0 that a label would ignore.
    void overlayPlacement()
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

    void overlayLook()
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
            "font-size: 25px;color: rgb(1, 255, 0);background-color: rgb(4, 5, 6)"_s);
        QVERIFY(ScreenOverlay::FaceOf("simHei").bold);
        QCOMPARE(ScreenOverlay::FaceOf("simKai").objectName, "KaiStyle"_s);
        QCOMPARE(ScreenOverlay::FaceOf("SIMKAI").objectName, "SongStyle"_s);
        QCOMPARE(ScreenOverlay::AlignmentOf(1), Qt::Alignment(Qt::AlignCenter));
        QVERIFY(ScreenOverlay::AlignmentOf(2) & Qt::AlignRight);
        QVERIFY(ScreenOverlay::AlignmentOf(9) & Qt::AlignLeft);
        const auto padded = [](int textWidth, int spaceWidth) {
            return ScreenOverlay::PaddedToWidth("text"_s, textWidth, spaceWidth, 100, Qt::AlignLeft);
        };
        QCOMPARE(padded(93, 4), "text"_s); // 7 pixels left
        QCOMPARE(padded(92, 4), "text  "_s);
        QCOMPARE(padded(10, 0), "text"_s); // a font without a space
        QCOMPARE(padded(200, 4), "text"_s);
    }

    void rollingTexts_data()
    {
        TestSupport::Columns<int, int, int>(
            "mode", "room", "milliseconds"); // room beside the text, in pixels
        TestSupport::Columns<bool, QPoint>("roll", "offset");
        using Label = QOSDShowLabel;
        QTest::newRow("to the left") << int(Label::RightToLeft) << 100 << 1000 << true << QPoint(-60, 0);
        QTest::newRow("an unknown mode") << 9 << 100 << 1000 << true << QPoint(-60, 0);
        QTest::newRow("to the right") << int(Label::LeftToRight) << 100 << 1000 << true << QPoint(60, 0);
        QTest::newRow("down") << int(Label::TopToBottom) << 100 << 500 << true << QPoint(0, 30);
        QTest::newRow("up") << int(Label::BottomToTop) << 100 << 500 << true << QPoint(0, -30);
        QTest::newRow("swinging") << int(Label::BackAndForth) << 100 << 1000 << true << QPoint(60, 0);
        QTest::newRow("swinging back") << int(Label::BackAndForth) << 100 << 2000 << true << QPoint(80, 0);
        QTest::newRow("swinging out") << int(Label::BackAndForth) << -100 << 1000 << true << QPoint(-60, 0);
        QTest::newRow("nowhere to swing") << int(Label::BackAndForth) << 0 << 1000 << true << QPoint(0, 0);
        QTest::newRow("at rest") << int(Label::LeftToRight) << 100 << 1000 << false << QPoint(0, 0);
        QTest::newRow("back in time") << int(Label::LeftToRight) << 100 << -40 << true << QPoint(0, 0);
    }

    // Catches a text that moves another way, jumps where it turns, or makes its label repaint for nothing.
    void rollingTexts()
    {
        QFETCH(int, mode);
        QFETCH(int, room);
        QFETCH(int, milliseconds);
        QFETCH(bool, roll);
        const QString text = QString(60, QLatin1Char('m'));
        QOSDShowLabel label(nullptr);
        QFont font = label.font();
        font.setPixelSize(20);
        label.resize(QFontMetrics(font).horizontalAdvance(text) + room, 100);
        label.SetContent({text, 20, Qt::white, Qt::black, roll, Qt::AlignLeft, mode});
        QCOMPARE(label.IsRolling(), roll && room != 0);
        label.Advance(milliseconds);
        QTEST(label.TextOffset(), "offset");
    }

    void rollingTextsAreAligned_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("program");
        TestSupport::Columns<QString, int, int, double>("text", "mode", "align", "place"); // 0 left, 1 right
        for (const int align : {0, 1, 2}) {
            QTest::addRow("%d", align)
                << Qt::LeftToRight << "##"_s << int(QOSDShowLabel::RightToLeft) << align << align / 2.0;
            QTest::addRow("%d, program from right to left", align)
                << Qt::RightToLeft << "##"_s << int(QOSDShowLabel::RightToLeft) << align << align / 2.0;
            QTest::addRow("%d, text from right to left", align)
                << Qt::LeftToRight << QStringLiteral("\u05d0\u05d0") << int(QOSDShowLabel::RightToLeft)
                << align << align / 2.0;
            QTest::addRow("%d, swings from the left", align)
                << Qt::LeftToRight << "##"_s << int(QOSDShowLabel::BackAndForth) << align << 0.0;
        }
    }

    // Catches spaces that push a text away from its side, or out of sight.
    void rollingTextsAreAligned()
    {
        QFETCH(Qt::LayoutDirection, program);
        QFETCH(QString, text);
        QFETCH(int, mode);
        QFETCH(int, align);
        QFETCH(double, place);
        QGuiApplication::setLayoutDirection(program);
        QOSDShowLabel label(nullptr);
        label.resize(600, 60);
        label.SetContent({text, 40, Qt::white, Qt::black, true, ScreenOverlay::AlignmentOf(align), mode});
        const QImage painted = label.grab().toImage();
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        const QBitmap letters = QBitmap::fromImage(painted.createMaskFromColor(qRgb(0, 0, 0)));
        const QRect ink = QRegion(letters).boundingRect();
        QVERIFY(!ink.isEmpty());
        QVERIFY(qAbs(ink.x() - place * (600 - ink.width())) < 10);
    }

    void baseMapFiles()
    {
        const auto file
            = [](const char* path) { return QString::fromStdString(ScreenOverlay::BaseMapFile(path)); };
        QCOMPARE(file("D:/map/a.b.yuv"), "D:/map/a.b.jpg"_s); // the last dot only
        QCOMPARE(file("D:/map/a.b.png"), "D:/map/a.b.png"_s);
        QCOMPARE(file("maps.yuv.d/site.png"), "maps.yuv.d/site.jpg"_s); // anywhere in the path
        QCOMPARE(file(""), QString());
    }
};

STRICT_TEST_MAIN(tst_WallModel)
#include "tst_wallmodel.moc"
