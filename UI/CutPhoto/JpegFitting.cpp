#include "JpegFitting.h"

#include "JpegForecast.h"

#include <QBuffer>

namespace UICommonMdl {

namespace {

constexpr int HighestQuality = 100;
constexpr int LowestQuality = 0;
constexpr int LongestSide = 65500; // pixels, that the encoder takes

/// Bits for each pixel into which most pictures fit at the highest quality.
constexpr qint64 ManyBits = 4;

/// Whether it is best to encode @p image at once, without looking whether it is too large.
bool IsLikelyToFit(const QImage& image, int quality, int maximum)
{
    const qint64 pixels = qint64(image.width()) * image.height();
    return quality == HighestQuality && qint64(maximum) * 8 > pixels * ManyBits;
}

} // namespace

int NextLowerQuality(int quality) { return quality < 10 ? quality - 1 : quality - quality / 10; }

bool CanBeJpeg(const QSize& size) { return qMax(size.width(), size.height()) <= LongestSide; }

QByteArray JpegBytes(const QImage& image, int quality)
{
    QByteArray bytes;
    if (!CanBeJpeg(image.size()))
        return bytes; // as the encoder gives it, without its warning
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG", quality);
    return bytes;
}

JpegFit FitJpeg(const QImage& image, int maximum)
{
    JpegForecast forecast(image, maximum);
    for (int quality = HighestQuality;; quality = NextLowerQuality(quality)) {
        // The size at the lowest quality is a result also when it does not fit.
        std::optional<qint64> bytes;
        if (quality != LowestQuality && !IsLikelyToFit(image, quality, maximum))
            bytes = forecast.Bytes(quality);
        if (!bytes)
            bytes = JpegBytes(image, quality).size();
        if (quality == LowestQuality || *bytes <= maximum)
            return {static_cast<int>(*bytes), NextLowerQuality(quality)};
    }
}

} // namespace UICommonMdl
