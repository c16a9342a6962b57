#pragma once

#include <QByteArray>
#include <QImage>

namespace UICommonMdl {

/// What FitJpeg() found.
struct JpegFit
{
    int bytes = 0; ///< size of the picture as a JPEG at the quality where the search ended
    int ratio = 0; ///< one step below that quality; -1 below the lowest
};

/// The quality tried after @p quality: a tenth less, from 9 on one less. From 100 that is 90, 81, 73, 66, 60,
/// 54, 49, 45, 41, 37, 34, 31, 28, 26, 24, 22, 20, 18, 17 and from there every quality down to 0, then -1.
int NextLowerQuality(int quality);

/// Whether a picture of @p size is not longer than a JPEG can be.
bool CanBeJpeg(const QSize& size);

/// @p image as a JPEG of @p quality, 0 to 100; empty when it cannot be written as one.
QByteArray JpegBytes(const QImage& image, int quality);

/// Looks for the first of the qualities 100, 90, 81 ... 0 at which @p image takes at most @p maximum bytes as
/// a JPEG; the lowest is taken in any case, and its size tells whether it fits.
///
/// Sizes do not always fall with the quality, so each is looked at; what JpegForecast can tell is not
/// encoded.
JpegFit FitJpeg(const QImage& image, int maximum);

} // namespace UICommonMdl
