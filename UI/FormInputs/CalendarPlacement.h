#pragma once

#include <QPoint>
#include <QRect>

namespace UICommonMdl {

/// Where a calendar pops up beside its button: to the right of the button, its lower edge level with the
/// button's, or its upper edge where the screen has no room above.
/// @param corner the button's lower right corner, in global coordinates
/// @param available the part of the screen that windows can use
/// @return the calendar's upper left corner
QPoint CalendarPosition(const QPoint& corner, int buttonHeight, int calendarHeight, const QRect& available);

} // namespace UICommonMdl
