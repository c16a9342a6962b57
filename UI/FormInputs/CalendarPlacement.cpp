#include "CalendarPlacement.h"

namespace UICommonMdl {

QPoint CalendarPosition(const QPoint& corner, int buttonHeight, int calendarHeight, const QRect& available)
{
    int y = corner.y();
    const bool roomAbove = y - calendarHeight >= available.top();
    y -= roomAbove ? calendarHeight : buttonHeight;
    if (y > available.bottom())
        y -= calendarHeight;
    return {corner.x(), y};
}

} // namespace UICommonMdl
