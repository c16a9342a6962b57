#include "JpegFitting.h"

#include "JpegForecast.h"

#include <QBuffer>

namespace UICommonMdl {

namespace {

constexpr int HighestQuality = 100;
constexpr int LowestQuality = 0;
constexpr int LongestSide = 65500; // pixels, that the encoder takes

/// Qualities at which most pictures fit into the bits for each pixel.
constexpr int FineQuality = 90;
constexpr qint64 FineBits = 2;

/// Whether it is not worth while to look whether @p image is too large before it is encoded.
bool IsLikelyToFit(const QImage& image, int quality, int maximum)
{
    const qint64 pixels = qint64(image.width()) * image.height();
    return quality >= FineQuality && qint64(maximum) * 8 > pixels * FineBits;
}

} // namespace

int NextLowerQuality(int quality) { return quality < 10 ? quality - 1 : quality - quality / 10; }

QByteArray JpegBytes(const QImage& image, int quality)
{
    QByteArray bytes;
    if (qMax(image.width(), image.height()) > LongestSide)
        return bytes; // as the encoder gives it, without its warning
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG", quality);
    return bytes;
}

JpegFit FitJpeg(const QImage& image, int maximum)
{
    JpegForecast forecast(image);
    int quality = HighestQuality;
    while (true) {
        const int next = NextLowerQuality(quality);
        // The size at the lowest quality is a result also when it does not fit.
        const bool tooLarge = quality != LowestQuality && !IsLikelyToFit(image, quality, maximum)
            && forecast.Exceeds(quality, maximum);
        if (!tooLarge) {
            const int bytes = JpegBytes(image, quality).size();
            if (quality == LowestQuality || bytes <= maximum)
                return {bytes, next};
        }
        quality = next;
    }
}

} // namespace UICommonMdl
