#pragma once

#include "WindowPlacement.h"

#include <QPoint>
#include <QRect>
#include <QSize>
#include <Qt>

namespace UICommonMdl {

/// A window held by the mouse, in every kind of wall: moved as a whole or by its edges, inside its screen.
///
/// While the drag lasts only pixels change; Scale() is what the release sets.
class WindowDrag
{
public:
    /// The screen that the window is dragged on.
    struct Field
    {
        QSize screen; ///< pixels
        int columns = 0; ///< of cells
        int rows = 0;
    };

    /// The edges of a window of @p window pixels that the mouse at @p pos takes hold of.
    static Qt::Edges EdgesAt(const QSize& window, const QPoint& pos);
    static Qt::CursorShape CursorFor(Qt::Edges edges); ///< the arrow for none

    bool IsActive() const { return m_bActive; }
    /// @param edges those held; none: the window is moved
    /// @param press place of the mouse, in any coordinates that the drag itself does not move
    /// @param start the window in its screen
    void Begin(Qt::Edges edges, const QPoint& press, const QRect& start);
    void End() { m_bActive = false; }
    void MoveTo(const QPoint& pos, const Field& field); ///< @p pos in the coordinates of the press
    bool HasMoved() const { return m_pixels != m_start; }

    /// The rectangle to which the drag has brought a window placed so; with @p keepToCells widened to the
    /// cells of the screen that it covers.
    KvGUI::StructScaleRect
    Scale(const WindowPlacement& placement, const Field& field, bool keepToCells) const;
    /// Where the window is shown meanwhile, in its screen.
    QRect Shown(const WindowPlacement& placement, const Field& field, bool keepToCells) const;

private:
    bool m_bActive = false;
    Qt::Edges m_edges;
    QPoint m_press;
    QRect m_start;
    QRect m_pixels;
};

} // namespace UICommonMdl
