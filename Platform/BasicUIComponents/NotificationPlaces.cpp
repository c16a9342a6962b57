#include <Platform/BasicUIComponents/NotificationPlaces.h>

namespace {

constexpr int kBelowTheEdge = 76; // clear of a title bar and of what stands at the top
constexpr int kFromTheEdge = 16;
constexpr int kGap = 8;

/// The start nearest to @p start at which @p length fits into the room; the room's start when it is too long.
int MovedInside(int start, int length, int roomStart, int roomLength)
{
    return qMax(roomStart, qMin(start, roomStart + roomLength - length));
}

int HeightOf(const QVector<QSize>& sizes)
{
    int height = kGap * qMax(0, sizes.size() - 1);
    for (const QSize& size : sizes)
        height += size.height();
    return height;
}

} // namespace

QVector<QPoint> NotificationPlaces(const QRect& window, const QRect& available, const QVector<QSize>& sizes)
{
    QVector<QPoint> places;
    int y = MovedInside(window.top() + kBelowTheEdge, HeightOf(sizes), available.top(), available.height());
    for (const QSize& size : sizes) {
        const int x = window.left() + window.width() - kFromTheEdge - size.width();
        places.append({MovedInside(x, size.width(), available.left(), available.width()), y});
        y += size.height() + kGap;
    }
    return places;
}
