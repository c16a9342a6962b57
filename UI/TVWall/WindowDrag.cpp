#include "WindowDrag.h"

#include "WallGeometry.h"

namespace UICommonMdl {

namespace {

constexpr int Grip = 5; // pixels from an edge that take hold of it
constexpr QSize SmallestDragged(64, 48); // pixels; a drag makes no window smaller

} // namespace

Qt::Edges WindowDrag::EdgesAt(const QSize& window, const QPoint& pos)
{
    return WallGeometry::EdgesAt(window, pos, Grip);
}

Qt::CursorShape WindowDrag::CursorFor(Qt::Edges edges)
{
    if (edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge))
        return Qt::SizeFDiagCursor;
    if (edges == (Qt::RightEdge | Qt::TopEdge) || edges == (Qt::LeftEdge | Qt::BottomEdge))
        return Qt::SizeBDiagCursor;
    if (edges & (Qt::LeftEdge | Qt::RightEdge))
        return Qt::SizeHorCursor;
    return edges ? Qt::SizeVerCursor : Qt::ArrowCursor;
}

void WindowDrag::Begin(Qt::Edges edges, const QPoint& press, const QRect& start)
{
    m_bActive = true;
    m_edges = edges;
    m_press = press;
    m_start = start;
    m_pixels = start;
}

void WindowDrag::MoveTo(const QPoint& pos, const Field& field)
{
    m_pixels = WallGeometry::DraggedRect(
        m_start, pos - m_press, m_edges, QRect(QPoint(0, 0), field.screen), SmallestDragged);
}

KvGUI::StructScaleRect
WindowDrag::Scale(const WindowPlacement& placement, const Field& field, bool keepToCells) const
{
    const KvGUI::StructScaleRect dragged
        = WallGeometry::DraggedScale(placement.Scale(), m_start, m_pixels, field.screen);
    if (!keepToCells)
        return dragged;
    return WallGeometry::SnappedToCells(dragged, field.columns, field.rows, placement.Precision())
        .value_or(dragged);
}

QRect WindowDrag::Shown(const WindowPlacement& placement, const Field& field, bool keepToCells) const
{
    if (!keepToCells || !HasMoved())
        return m_pixels;
    return WallGeometry::WindowRect(field.screen, Scale(placement, field, true));
}

} // namespace UICommonMdl
