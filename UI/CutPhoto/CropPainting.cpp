#include "CropPainting.h"

#include "CropFrame.h"

#include <QPainter>

namespace UICommonMdl::CropPainting {

namespace {

constexpr qreal DimOpacity = 0.5;
constexpr qreal PenWidth = 2.0;
constexpr int DotLength = 2; // as long as the pen is wide
constexpr int DotPeriod = 6; // dot and gap
constexpr int DotCap = 1; // a square cap of half the pen's width at both ends
constexpr int OutlineReach = 2; // pixels on both sides of the outline that the pen can touch

QRegion Outline(const QRect& frame)
{
    const QRect outer = frame.adjusted(-OutlineReach, -OutlineReach, OutlineReach, OutlineReach);
    const QRect inner = frame.adjusted(OutlineReach, OutlineReach, -OutlineReach, -OutlineReach);
    return inner.isValid() ? QRegion(outer).subtracted(inner) : QRegion(outer);
}

QPen FramePen(Qt::PenStyle style)
{
    return {QColor(0x40, 0xC4, 0xFF), PenWidth, style, Qt::SquareCap, Qt::BevelJoin};
}

/// A side of a frame, from one corner to the next.
struct Side
{
    QPoint from;
    QPoint step; ///< one pixel along the side
    int length;

    QPoint At(int offset) const { return from + step * offset; }
    int OffsetOf(const QPoint& pos) const { return QPoint::dotProduct(pos - from, step); }
};

/// The pixels of a dot that begins @p offset pixels along the side.
QRect Dot(const Side& side, int offset)
{
    const QPoint a = side.At(offset);
    const QPoint b = side.At(offset + DotLength);
    return QRect(
               QPoint(qMin(a.x(), b.x()), qMin(a.y(), b.y())), QPoint(qMax(a.x(), b.x()), qMax(a.y(), b.y())))
        .adjusted(-DotCap, -DotCap, DotCap - 1, DotCap - 1);
}

/// Draws those of the dots between the offsets @p from and @p to that can be seen in @p canvas: a frame may
/// be a million times longer.
void DrawDots(QPainter& painter, const QRect& canvas, const Side& side, int from, int to)
{
    const int oneEnd = side.OffsetOf(canvas.topLeft());
    const int otherEnd = side.OffsetOf(canvas.bottomRight());
    const int unseen = qMax(0, (qMin(oneEnd, otherEnd) - from) / DotPeriod - 1);
    const int last = qMin(to, qMax(oneEnd, otherEnd) + DotPeriod);
    for (int offset = from + unseen * DotPeriod; offset < last; offset += DotPeriod)
        painter.fillRect(Dot(side, offset), painter.pen().color());
}

/// Draws what a pen of dots draws along @p frame, in a fraction of its time: the dots run on around the
/// corners, and only one that bends around a corner is left to a pen. None is cut off at the end: the way
/// around has an even length, as have dots and gaps.
void DrawDottedOutline(QPainter& painter, const QRect& canvas, const QRect& frame)
{
    const QPoint past = CropFrame::SearchHandle(frame);
    const Side sides[] = {
        {frame.topLeft(), QPoint(1, 0), frame.width()},
        {QPoint(past.x(), frame.y()), QPoint(0, 1), frame.height()},
        {past, QPoint(-1, 0), frame.width()},
        {QPoint(frame.x(), past.y()), QPoint(0, -1), frame.height()},
    };
    painter.setPen(FramePen(Qt::SolidLine));
    int offset = 0;
    for (int i = 0; i < 4; ++i) {
        const Side& side = sides[i];
        const int dots = (side.length - DotLength - offset + DotPeriod) / DotPeriod; // that do not bend
        DrawDots(painter, canvas, side, offset, offset + dots * DotPeriod);
        offset += dots * DotPeriod;
        if (offset < side.length) {
            const int beyond = offset + DotLength - side.length;
            const QPoint bend[] = {side.At(offset), side.At(side.length), sides[(i + 1) % 4].At(beyond)};
            painter.drawPolyline(bend, 3);
            offset += DotPeriod;
        }
        offset -= side.length;
    }
}

} // namespace

QPixmap Stretched(const QImage& image, const QSize& size, qreal ratio)
{
    if (image.isNull() || size.isEmpty())
        return QPixmap();
    const QSize pixels = (QSizeF(size) * ratio).toSize().expandedTo(QSize(1, 1));
    QPixmap display = QPixmap::fromImage(image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::FastTransformation));
    display.setDevicePixelRatio(ratio);
    return display;
}

void PaintFrame(QPainter& painter, const QRect& canvas, const QRect& photo, const QRect& crop)
{
    const QRect frame = CropFrame::Normalized(crop);
    painter.setOpacity(DimOpacity);
    for (const QRect& dimmed : QRegion(photo).subtracted(frame))
        painter.fillRect(dimmed, Qt::black);
    painter.setOpacity(1.0);

    if (qMin(frame.width(), frame.height()) > DotPeriod) {
        DrawDottedOutline(painter, canvas, frame);
        return;
    }
    painter.setPen(FramePen(Qt::DotLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(frame);
}

QRegion ChangedRegion(const QRect& before, const QRect& now)
{
    const QRect from = CropFrame::Normalized(before);
    const QRect to = CropFrame::Normalized(now);
    return QRegion(from).xored(to) + Outline(from) + Outline(to);
}

} // namespace UICommonMdl::CropPainting
