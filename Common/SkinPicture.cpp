#include <Common/SkinPicture.h>

QPixmap SkinPicture(const QString& path, qreal density)
{
    const QPixmap dense = density > 1.0 ? QPixmap(path + QLatin1String("@2x.png")) : QPixmap();
    return dense.isNull() ? QPixmap(path + QLatin1String(".png")) : dense;
}

QSize LogicalSize(const QPixmap& picture) { return picture.size() / picture.devicePixelRatio(); }
