#include "WallGeometry.h"

#include <algorithm>
#include <cmath>

namespace UICommonMdl::WallGeometry {

namespace {

constexpr int Gutter = 4; // pixels between neighbouring screens
constexpr int LargestClick = 2; // pixels; a drag of more in both directions draws an area
constexpr double SiteUnits = 8192.0;

// Covers the rounding of decimal fractions to doubles and nothing that a person would write down.
constexpr double DecimalNoise = 1e-9;

struct CellRange
{
    double first;
    double last;
};

CellRange CoveredCells(double from, double to, int cells, double tolerance)
{
    const double exactEnd = to * cells;
    double last = std::trunc(exactEnd - tolerance);
    if (exactEnd > last)
        last += 1.0;
    return {std::trunc(from * cells + tolerance), last};
}

int DraggedLow(int low, int way, int lowest, int highest)
{
    return std::max(std::min(low + way, highest), std::min(lowest, low));
}

int DraggedHigh(int high, int way, int lowest, int highest)
{
    return std::min(std::max(high + way, lowest), std::max(highest, high));
}

int MovedLow(int low, int size, int way, int lowest, int end)
{
    // Without a way nothing moves, also where rounding lets the window stick out of the bounds by a pixel.
    return way == 0 ? low : std::max(std::min(low + way, end - size), lowest);
}

} // namespace

int Truncated(double value)
{
    if (std::isnan(value))
        return 0;
    return static_cast<int>(std::clamp(value, -double(MaximumPixel), double(MaximumPixel)));
}

bool IsEqual(const KvGUI::StructScaleRect& a, const KvGUI::StructScaleRect& b, double precision)
{
    const auto equal = [precision](double x, double y) {
        const bool bothUnknown = std::isnan(x) && std::isnan(y);
        return x == y || bothUnknown || std::abs(x - y) <= precision + DecimalNoise;
    };
    return equal(a.dLeft, b.dLeft) && equal(a.dTop, b.dTop) && equal(a.dRight, b.dRight)
        && equal(a.dBottom, b.dBottom);
}

int CellSpan(int cells, double from, double to) { return Truncated(cells * (to - from) + 0.5); }

QRect ScreenRect(const QRect& wall, const KvGUI::StructScaleRect& scale, bool noGap)
{
    const QPoint topLeft(
        Truncated(wall.x() + wall.width() * scale.dLeft), Truncated(wall.y() + wall.height() * scale.dTop));
    QPoint bottomRight(
        Truncated(wall.x() + wall.width() * scale.dRight - 1.0),
        Truncated(wall.y() + wall.height() * scale.dBottom - 1.0));
    if (!noGap && scale.dRight != 1.0)
        bottomRight.rx() -= Gutter;
    if (!noGap && scale.dBottom != 1.0)
        bottomRight.ry() -= Gutter;
    return {topLeft, bottomRight};
}

QRect WindowRect(const QSize& screen, const KvGUI::StructScaleRect& scale)
{
    return {
        Truncated(screen.width() * scale.dLeft + 0.5), Truncated(screen.height() * scale.dTop + 0.5),
        Truncated(screen.width() * (scale.dRight - scale.dLeft) + 0.5),
        Truncated(screen.height() * (scale.dBottom - scale.dTop) + 0.5)};
}

QRect Displayable(const QRect& rect) { return {rect.topLeft(), rect.size().expandedTo(QSize(0, 0))}; }

std::optional<KvGUI::StructScaleRect>
SnappedToCells(const KvGUI::StructScaleRect& scale, int columns, int rows, double precision)
{
    if (columns <= 0 || rows <= 0)
        return std::nullopt;
    const CellRange across = CoveredCells(scale.dLeft, scale.dRight, columns, precision);
    // Vertically twice the tolerance: title bars make operators place upper edges less exactly.
    const CellRange down = CoveredCells(scale.dTop, scale.dBottom, rows, 2.0 * precision);
    return KvGUI::StructScaleRect{
        across.first / columns, down.first / rows, across.last / columns, down.last / rows, scale.bEditable};
}

std::optional<KvGUI::StructScaleRect> DrawnScale(const QPoint& from, const QPoint& to, const QSize& screen)
{
    const QPoint way = to - from;
    if (screen.isEmpty() || std::abs(way.x()) <= LargestClick || std::abs(way.y()) <= LargestClick)
        return std::nullopt;
    const double width = screen.width();
    const double height = screen.height();
    return KvGUI::StructScaleRect{
        std::min(from.x(), to.x()) / width, std::min(from.y(), to.y()) / height,
        std::max(from.x(), to.x()) / width, std::max(from.y(), to.y()) / height, true};
}

QPoint InSiteUnits(const QPoint& pixel, const QSize& screen)
{
    if (screen.isEmpty())
        return {};
    return {
        Truncated(pixel.x() * SiteUnits / screen.width()),
        Truncated(pixel.y() * SiteUnits / screen.height())};
}

Qt::Edges EdgesAt(const QSize& window, const QPoint& pos, int grip)
{
    if (!QRect(QPoint(0, 0), window).contains(pos))
        return {};
    // Near a corner both its edges are taken: the corner is three grips long on either side.
    const int corner = 3 * grip;
    const bool nearX = pos.x() < grip || pos.x() >= window.width() - grip;
    const bool nearY = pos.y() < grip || pos.y() >= window.height() - grip;
    const int reachX = nearY ? corner : grip;
    const int reachY = nearX ? corner : grip;
    Qt::Edges edges;
    if (nearX || nearY) {
        if (pos.x() >= window.width() - reachX)
            edges |= Qt::RightEdge;
        else if (pos.x() < reachX)
            edges |= Qt::LeftEdge;
        if (pos.y() >= window.height() - reachY)
            edges |= Qt::BottomEdge;
        else if (pos.y() < reachY)
            edges |= Qt::TopEdge;
    }
    return edges;
}

QRect DraggedRect(
    const QRect& start, const QPoint& way, Qt::Edges edges, const QRect& bounds, const QSize& minimum)
{
    if (!edges) {
        const int x = MovedLow(start.x(), start.width(), way.x(), bounds.x(), bounds.x() + bounds.width());
        const int y = MovedLow(start.y(), start.height(), way.y(), bounds.y(), bounds.y() + bounds.height());
        return {QPoint(x, y), start.size()};
    }
    const int minimumWidth = std::min(minimum.width(), start.width());
    const int minimumHeight = std::min(minimum.height(), start.height());
    QRect end = start;
    if (edges & Qt::LeftEdge)
        end.setLeft(DraggedLow(start.left(), way.x(), bounds.left(), start.right() + 1 - minimumWidth));
    if (edges & Qt::TopEdge)
        end.setTop(DraggedLow(start.top(), way.y(), bounds.top(), start.bottom() + 1 - minimumHeight));
    if (edges & Qt::RightEdge)
        end.setRight(DraggedHigh(start.right(), way.x(), start.left() - 1 + minimumWidth, bounds.right()));
    if (edges & Qt::BottomEdge)
        end.setBottom(DraggedHigh(start.bottom(), way.y(), start.top() - 1 + minimumHeight, bounds.bottom()));
    return end;
}

KvGUI::StructScaleRect
DraggedScale(const KvGUI::StructScaleRect& scale, const QRect& start, const QRect& end, const QSize& screen)
{
    KvGUI::StructScaleRect dragged = scale;
    if (screen.isEmpty())
        return dragged;
    const double width = screen.width();
    const double height = screen.height();
    dragged.dLeft += (end.left() - start.left()) / width;
    dragged.dRight += (end.right() - start.right()) / width;
    dragged.dTop += (end.top() - start.top()) / height;
    dragged.dBottom += (end.bottom() - start.bottom()) / height;
    return dragged;
}

} // namespace UICommonMdl::WallGeometry
