#include "JpegFitting.h"

#include <QBuffer>

namespace UICommonMdl {

namespace {

constexpr int HighestQuality = 100;

} // namespace

int NextLowerQuality(int quality) { return quality < 10 ? quality - 1 : quality - quality / 10; }

int JpegBytes(const QImage& image, int quality)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG", quality);
    return bytes.size();
}

JpegFit FitJpeg(const QImage& image, int maximum)
{
    int quality = HighestQuality;
    while (true) {
        const int bytes = JpegBytes(image, quality);
        quality = NextLowerQuality(quality);
        if (quality < 0 || bytes <= maximum)
            return {bytes, quality};
    }
}

} // namespace UICommonMdl
