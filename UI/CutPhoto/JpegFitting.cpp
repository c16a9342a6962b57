#include "JpegFitting.h"

#include "JpegForecast.h"

#include <QBuffer>

namespace UICommonMdl {

namespace {

constexpr int HighestQuality = 100;
constexpr int LowestQuality = 0;

} // namespace

int NextLowerQuality(int quality) { return quality < 10 ? quality - 1 : quality - quality / 10; }

QByteArray JpegBytes(const QImage& image, int quality)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG", quality);
    return bytes;
}

JpegFit FitJpeg(const QImage& image, int maximum)
{
    const int largest = JpegBytes(image, HighestQuality).size();
    int quality = NextLowerQuality(HighestQuality);
    if (largest <= maximum)
        return {largest, quality};

    JpegForecast forecast(image);
    while (true) {
        const int next = NextLowerQuality(quality);
        // The size at the lowest quality is a result also when it does not fit.
        if (quality == LowestQuality || !forecast.Exceeds(quality, maximum)) {
            const int bytes = JpegBytes(image, quality).size();
            if (quality == LowestQuality || bytes <= maximum)
                return {bytes, next};
        }
        quality = next;
    }
}

} // namespace UICommonMdl
