#pragma once

#include <UI/CutPhoto/CutImageInfo.h>

#include <QIODevice>
#include <QImage>
#include <QRect>
#include <QSize>
#include <optional>

/// What happens to the picture behind a crop canvas, on plain values: where it stands in the widget, which
/// of its pixels a frame means, and whether a cut keeps to its limits.
///
/// Ratios between widget and picture are single precision and products lose their fraction (towards zero);
/// no value of any argument overflows.
namespace UICommonMdl::CropPicture {

/// The picture in the file @p path, whose name may lack its ending, the format told by the content, with its
/// pixels in the order in which the file stores them (a camera's note about its orientation is not applied).
/// Null when there is no such file, it cannot be read as a whole, or it has more than 268 million pixels.
QImage ReadPicture(const QString& path);

/// The same of what @p file, which is open, holds from its position on.
QImage ReadPicture(QIODevice& file);

/// Where a picture shown with @p display pixels stands in a widget of @p widget pixels: in its middle, or at
/// the upper left edge in a direction in which it is not smaller.
QRect PhotoRect(const QSize& widget, const QSize& display);

/// The frame @p crop on the photo @p before, carried over to the photo @p now; unchanged when @p before has
/// no width or no height.
QRect FollowedCrop(const QRect& crop, const QRect& before, const QRect& now);

/// The pixels of a source picture of @p source pixels, shown with @p display pixels at @p photo, that the
/// frame @p crop means. A picture without a size has none: the rectangle is 0 wide and high then.
QRect SourceRect(const QRect& crop, const QRect& photo, const QSize& display, const QSize& source);

/// What the frame @p crop cuts out of the picture of @p info; what the frame has outside it is black or
/// transparent. A frame that means less than one pixel in both directions gives the whole picture, one that
/// does so in one direction a null image. Without a source picture the image of @p info is returned as it is.
QImage GetCutImage(const CutImageInfo& info, const QRect& crop, const QRect& photo, const QSize& display);

/// @p image halved (integer halves, every second pixel) until it is at most @p maximum; as it is when
/// @p maximum has no width or no height (a negative one counts as 0). Stops before a side would become 0.
QImage ChanageImageByAspectRatio(const QImage& image, const QSize& maximum);

/// What a client wants of a cut.
struct Limits
{
    int iMaxCapacity = 0; ///< bytes as a JPEG; 0 or less for no limit of any kind
    QSize maximum = QSize(0, 0); ///< pixels; 0 x 0 for no limit, one of them 0 for a limit that nothing meets
    bool bKeepAspectRatio = false; ///< halve a cut with too many pixels instead of refusing it
};

enum class Verdict
{
    Valid,
    NoArea, ///< the frame is empty, or so large that its picture cannot be made
    TooManyPixels,
    TooManyBytes ///< at every quality
};

struct CheckedCut
{
    Verdict verdict = Verdict::NoArea;
    QImage image; ///< the cut, when it is valid
    std::optional<int> compressRatio; ///< set when the bytes were measured, see FitJpeg()
};

/// Cuts as GetCutImage() does and checks the cut against @p limits.
CheckedCut CheckCut(
    const CutImageInfo& info, const QRect& crop, const QRect& photo, const QSize& display,
    const Limits& limits);

} // namespace UICommonMdl::CropPicture
