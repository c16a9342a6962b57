#include "CropFrame.h"

#include <QString>

namespace UICommonMdl::CropFrame {

namespace {

constexpr int TipDistance = 30;

int Bounded(int pixel) { return qBound(-MaximumPixel, pixel, MaximumPixel); }

bool IsWithin(int value, int from, int to) { return value >= from && value <= to; }

/// The number without its sign, which is taken off its text: the smallest int has no positive counterpart
/// and becomes 0 this way.
int WithoutSign(int number)
{
    QString text = QStringLiteral("%1").arg(number, 0, 10, QLatin1Char(' '));
    return text.remove(QLatin1Char('-')).toInt();
}

} // namespace

QPoint Bounded(const QPoint& pos) { return {Bounded(pos.x()), Bounded(pos.y())}; }

QRect Bounded(const QRect& rect) { return {Bounded(rect.topLeft()), Bounded(rect.bottomRight())}; }

bool IsNear(const QPoint& pos, const QPoint& corner)
{
    return IsWithin(pos.x(), corner.x() - GripReach, corner.x() + GripReach)
        && IsWithin(pos.y(), corner.y() - GripReach, corner.y() + GripReach);
}

QPoint MoveHandle(const QRect& crop) { return crop.topLeft(); }

QPoint ScaleHandle(const QRect& crop) { return {crop.x() + crop.width(), crop.y()}; }

QPoint SearchHandle(const QRect& crop) { return {crop.x() + crop.width(), crop.y() + crop.height()}; }

QPoint Anchor(const QRect& crop) { return {crop.x(), crop.y() + crop.height()}; }

QRect Normalized(const QRect& crop)
{
    const QPoint past = SearchHandle(crop);
    const QPoint topLeft(qMin(crop.x(), past.x()), qMin(crop.y(), past.y()));
    return {topLeft, QSize(qAbs(crop.width()), qAbs(crop.height()))};
}

QRect FinishedCrop(const QRect& crop, const QSize& drag, const QRect& photo)
{
    return drag.width() < MinimumExtent || drag.height() < MinimumExtent ? photo : crop;
}

QRect BackwardsRect(const QRect& crop, const QSize& drag)
{
    const QSize size(WithoutSign(drag.width()), WithoutSign(drag.height()));
    QRect rect = crop;
    if (drag.width() < 0)
        rect = QRect(ScaleHandle(crop), size);
    if (drag.height() < 0)
        rect = QRect(Anchor(crop), size);
    return rect;
}

bool CanMoveTo(const QPoint& target, const QRect& crop, const QSize& display)
{
    return target.x() >= 0 && target.y() >= 0 && target.x() + crop.width() <= display.width()
        && target.y() + crop.height() <= display.height();
}

bool CanResizeTo(const QPoint& pos, const QRect& crop)
{
    return pos.x() - crop.x() >= MinimumHandleDistance
        && crop.y() + crop.height() - pos.y() >= MinimumHandleDistance;
}

QRect ResizedTo(const QPoint& pos, const QRect& crop, const QPoint& anchor)
{
    QRect resized = crop;
    resized.setBottomRight(anchor);
    const int width = resized.width();
    const int height = resized.height();
    resized.setWidth(width + (pos.x() - resized.x() - width));
    resized.setHeight(height + (pos.y() - resized.y()));
    resized.setTopRight(pos);
    return resized;
}

QRect Spanned(const QPoint& press, const QPoint& pos, int photoHeight, int widgetHeight)
{
    QRect crop(
        QPoint(qMin(press.x(), pos.x()), qMin(press.y(), pos.y())),
        QPoint(qMax(press.x(), pos.x()), qMax(press.y(), pos.y())));
    if (crop.y() + crop.height() > widgetHeight)
        crop.setHeight(qAbs(photoHeight - crop.y()));
    return crop;
}

QPoint ClampedTo(const QRect& photo, const QPoint& pos)
{
    return {
        qBound(photo.x(), pos.x(), photo.x() + qMax(0, photo.width())),
        qBound(photo.y(), pos.y(), photo.y() + qMax(0, photo.height()))};
}

QPoint TipPosition(const QRect& canvas, int displayHeight, int tipWidth)
{
    const QPoint middle = canvas.center();
    const int top = middle.y() - displayHeight / 2 - TipDistance;
    return {middle.x() - tipWidth / 2, qMax(0, top)};
}

Qt::CursorShape HoverCursor(const QPoint& pos, const QRect& crop, const QRect& photo)
{
    const bool onMoveHandle = IsWithin(pos.x(), crop.x() - GripReach, crop.x() + photo.width())
        && IsWithin(pos.y(), crop.y() - GripReach, crop.y() + GripReach);
    if (onMoveHandle)
        return Qt::SizeAllCursor;
    if (IsNear(pos, ScaleHandle(photo)))
        return Qt::SizeBDiagCursor;
    if (IsNear(pos, SearchHandle(photo)))
        return Qt::OpenHandCursor;
    return Qt::ArrowCursor;
}

} // namespace UICommonMdl::CropFrame
