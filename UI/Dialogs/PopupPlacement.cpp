#include <UI/Dialogs/PopupPlacement.h>

#include <algorithm>
#include <limits>

namespace UICommonMdl::PopupPlacement {

namespace {

/// How far @p value lies outside of @p low to @p high.
qint64 Outside(qint64 value, qint64 low, qint64 high)
{
    return std::max<qint64>({low - value, value - high, 0});
}

double SquaredDistance(const QPoint& point, const QRect& rect)
{
    const auto dx = double(Outside(point.x(), rect.left(), rect.right()));
    const auto dy = double(Outside(point.y(), rect.top(), rect.bottom()));
    return dx * dx + dy * dy;
}

qint64 Area(const QRect& rect) { return rect.isEmpty() ? 0 : qint64(rect.width()) * rect.height(); }

int NearestScreen(const QPoint& point, const QVector<ScreenArea>& screens)
{
    int nearest = -1;
    double shortest = std::numeric_limits<double>::infinity();
    for (int i = 0; i < screens.size(); ++i) {
        const double distance = SquaredDistance(point, screens.at(i).full);
        if (distance < shortest) {
            shortest = distance;
            nearest = i;
        }
    }
    return nearest;
}

/// @p point when it lies in the available area of any monitor, of which there has to be one. Else the point
/// of the nearest monitor's available area that is nearest to it.
QPoint AvailablePoint(const QPoint& point, const QVector<ScreenArea>& screens)
{
    const bool onScreen = std::any_of(screens.begin(), screens.end(), [&](const ScreenArea& screen) {
        return screen.available.contains(point);
    });
    if (onScreen)
        return point;
    const QRect area = screens.at(NearestScreen(point, screens)).available;
    return {
        std::min(std::max(area.left(), point.x()), area.right()),
        std::min(std::max(area.top(), point.y()), area.bottom())};
}

} // namespace

QPoint CentredAbove(const QRect& anchor, const QSize& popup)
{
    return {anchor.left() + (anchor.width() - popup.width()) / 2, anchor.top() - popup.height()};
}

int ScreenHolding(const QRect& widget, const QVector<ScreenArea>& screens)
{
    int holding = -1;
    qint64 largest = 0;
    for (int i = 0; i < screens.size(); ++i) {
        const qint64 area = Area(screens.at(i).full & widget);
        if (area > largest) {
            largest = area;
            holding = i;
        }
    }
    return holding >= 0 ? holding : NearestScreen(widget.center(), screens);
}

QRect AvailableGeometry(const QRect& popup, const QRect& widget, const QVector<ScreenArea>& screens)
{
    if (screens.isEmpty())
        return popup;
    QRect placed(AvailablePoint(popup.topLeft(), screens), popup.size());
    const QRect screen = screens.at(ScreenHolding(widget, screens)).full;
    if (placed.x() + placed.width() > screen.right())
        placed.setLeft(screen.right() - placed.width());
    if (placed.y() + placed.height() > screen.bottom())
        placed.setTop(screen.bottom() - placed.height());
    return placed;
}

} // namespace UICommonMdl::PopupPlacement
