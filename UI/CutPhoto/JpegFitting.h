#pragma once

#include <QImage>

namespace UICommonMdl {

/// What FitJpeg() found.
struct JpegFit
{
    int bytes = 0; ///< size of the picture as a JPEG at the last quality that was measured
    int ratio = 0; ///< one step below that quality; -1 below the lowest
};

/// The quality measured after @p quality: a tenth less, from 9 on one less. From 100 that is 90, 81, 73, 66,
/// 60, 54, 49, 45, 41, 37, 34, 31, 28, 26, 24, 22, 20, 18, 17 and from there every quality down to 0, then
/// -1.
int NextLowerQuality(int quality);

/// Bytes of @p image as a JPEG of @p quality, 0 to 100; 0 when it cannot be written as one.
int JpegBytes(const QImage& image, int quality);

/// Looks for the highest of the qualities 100, 90, 81 ... 0 at which @p image takes at most @p maximum bytes
/// as a JPEG; the lowest is taken in any case, its size tells whether it fits.
JpegFit FitJpeg(const QImage& image, int maximum);

} // namespace UICommonMdl
