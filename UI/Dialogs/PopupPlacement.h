#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QVector>

/// Where a pop-up panel stands on a desktop of several monitors, on plain rectangles in global coordinates.
namespace UICommonMdl::PopupPlacement {

/// A monitor: all of it, and what docks and task bars leave free.
struct ScreenArea
{
    QRect full;
    QRect available;
};

/// The top left corner of a popup of @p popup pixels that stands centred directly above @p anchor. May lie
/// on no monitor.
QPoint CentredAbove(const QRect& anchor, const QSize& popup);

/// Index of the monitor that shows most of @p widget, of equals the first; the one nearest to its centre
/// when none shows any of it; -1 without monitors.
int ScreenHolding(const QRect& widget, const QVector<ScreenArea>& screens);

/// @p popup with its top left corner moved to the nearest available area, unless it lies in one, and then
/// left and up, so that it ends at least a pixel before the right and the lower edge of the monitor that
/// holds @p widget; @p popup itself without monitors. Only the corner is a place for the popup: the far
/// edges stay behind, so the rectangle may have grown.
QRect AvailableGeometry(const QRect& popup, const QRect& widget, const QVector<ScreenArea>& screens);

} // namespace UICommonMdl::PopupPlacement
