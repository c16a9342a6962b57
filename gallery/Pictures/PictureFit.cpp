#include <gallery/Pictures/PictureFit.h>

#include <QPainter>
#include <QPixmapCache>

namespace OperatorClient {

namespace {

// Video is dark in every skin.
const QColor NoPictureColor(0x10, 0x11, 0x14);
const QColor MessageColor(0xa6, 0xab, 0xb5);

QSizeF ScaledToArea(const QSize& picture, const QRect& area, Qt::AspectRatioMode mode)
{
    if (picture.isEmpty() || area.isEmpty())
        return QSizeF();
    return QSizeF(picture).scaled(QSizeF(area.size()), mode);
}

} // namespace

QRect FitInside(const QSize& picture, const QRect& area)
{
    const QSizeF size = ScaledToArea(picture, area, Qt::KeepAspectRatio);
    if (size.isEmpty())
        return QRect();
    QRect fitted(QPoint(), size.toSize().expandedTo(QSize(1, 1)));
    fitted.moveCenter(area.center());
    return fitted;
}

QRectF FillOver(const QSize& picture, const QRect& area)
{
    const QSizeF size = ScaledToArea(picture, area, Qt::KeepAspectRatioByExpanding);
    if (size.isEmpty())
        return QRectF();
    QRectF filled(QPointF(), size);
    filled.moveCenter(QRectF(area).center());
    return filled;
}

QPixmap CachedPixmap(
    const QString& key, const QSize& size, double pixelRatio, const std::function<void(QPainter&)>& paint)
{
    const QString fullKey
        = QStringLiteral("%1@%2x%3@%4").arg(key).arg(size.width()).arg(size.height()).arg(pixelRatio);
    QPixmap pixmap;
    if (QPixmapCache::find(fullKey, &pixmap))
        return pixmap;
    pixmap = QPixmap((QSizeF(size) * pixelRatio).toSize().expandedTo(QSize(1, 1)));
    pixmap.setDevicePixelRatio(pixelRatio);
    pixmap.fill(NoPictureColor);
    QPainter painter(&pixmap);
    paint(painter);
    painter.end();
    QPixmapCache::insert(fullKey, pixmap);
    return pixmap;
}

void PaintNoPicture(QPainter& painter, const QRect& area) { painter.fillRect(area, NoPictureColor); }

void PaintMessage(QPainter& painter, const QRect& area, const QString& text)
{
    PaintNoPicture(painter, area);
    painter.setPen(MessageColor);
    painter.drawText(area.adjusted(8, 4, -8, -4), Qt::AlignCenter | Qt::TextWordWrap, text);
}

} // namespace OperatorClient
