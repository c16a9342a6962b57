#include "CropPainting.h"

#include "CropFrame.h"

#include <Common/CommonFun.h>

#include <QImageReader>
#include <QPainter>

namespace UICommonMdl::CropPainting {

namespace {

constexpr qreal DimOpacity = 0.5;
constexpr qreal PenWidth = 2.0;
constexpr int OutlineReach = 2; // pixels on both sides of the outline that the pen can touch

QRegion Outline(const QRect& frame)
{
    const QRect outer = frame.adjusted(-OutlineReach, -OutlineReach, OutlineReach, OutlineReach);
    const QRect inner = frame.adjusted(OutlineReach, OutlineReach, -OutlineReach, -OutlineReach);
    return inner.isValid() ? QRegion(outer).subtracted(inner) : QRegion(outer);
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

QPixmap SkinPicture(const QString& file, const QSize& size, qreal ratio)
{
    QImageReader reader(CommonFun::GetSkinPath(QStringLiteral("UICommonModule"), file));
    reader.setScaledSize((QSizeF(size) * ratio).toSize());
    QPixmap picture = QPixmap::fromImageReader(&reader);
    picture.setDevicePixelRatio(ratio);
    return picture;
}

void PaintFrame(QPainter& painter, const QRect& photo, const QRect& crop)
{
    const QRect frame = CropFrame::Normalized(crop);
    painter.setOpacity(DimOpacity);
    for (const QRect& dimmed : QRegion(photo).subtracted(frame))
        painter.fillRect(dimmed, Qt::black);
    painter.setOpacity(1.0);

    painter.setPen(QPen(QColor(0x40, 0xC4, 0xFF), PenWidth, Qt::DotLine, Qt::SquareCap, Qt::BevelJoin));
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
