#include "CropPicture.h"

#include "JpegFitting.h"

#include <QImageReader>

namespace UICommonMdl::CropPicture {

namespace {

/// Pictures with more pixels than this are not made: 1 GB, which no camera needs and few clients have.
constexpr qint64 MaximumPixels = qint64(1) << 28;

constexpr float MaximumCoordinate = 1 << 24; // exact as a float, and leaves room for adding two of them

/// Towards zero; what no picture can have is cut off.
int Truncated(float value) { return static_cast<int>(qBound(-MaximumCoordinate, value, MaximumCoordinate)); }

int Scaled(qint64 value, float ratio) { return Truncated(static_cast<float>(value) * ratio); }

float Ratio(int numerator, int denominator)
{
    return denominator == 0 ? 0.0F : static_cast<float>(numerator) / static_cast<float>(denominator);
}

/// The distance of two edges of a rectangle, of any rectangle a client can pass.
qint64 Width(const QRect& rect) { return qint64(rect.right()) - rect.left() + 1; }
qint64 Height(const QRect& rect) { return qint64(rect.bottom()) - rect.top() + 1; }

bool Exceeds(const QSize& size, const QSize& maximum)
{
    return size.height() > maximum.height() || size.width() > maximum.width();
}

bool CanBeMade(const QSize& size)
{
    return size.isEmpty() || qint64(size.width()) * size.height() <= MaximumPixels;
}

QImage ReadWith(QImageReader& reader)
{
    reader.setDecideFormatFromContent(true);
    QImage image;
    // A damaged header can promise more pixels than there is memory.
    if (!reader.canRead() || !CanBeMade(reader.size()) || !reader.read(&image))
        return QImage();
    return image;
}

} // namespace

QImage ReadPicture(const QString& path)
{
    if (path.isEmpty())
        return QImage(); // Qt would warn of it
    // Given the path and not an open file, the reader finds a name without its ending too.
    QImageReader reader(path, QByteArray());
    return ReadWith(reader);
}

QImage ReadPicture(QIODevice& file)
{
    QImageReader reader(&file, QByteArray());
    return ReadWith(reader);
}

QRect PhotoRect(const QSize& widget, const QSize& display)
{
    const int x = display.width() < widget.width() ? (widget.width() - display.width()) / 2 : 0;
    const int y = display.height() < widget.height() ? (widget.height() - display.height()) / 2 : 0;
    return QRect(QPoint(x, y), display);
}

QRect FollowedCrop(const QRect& crop, const QRect& before, const QRect& now)
{
    if (before.width() == 0 || before.height() == 0)
        return crop;
    const float xRatio = Ratio(now.width(), before.width());
    const float yRatio = Ratio(now.height(), before.height());
    return QRect(
        Scaled(crop.x(), xRatio), Scaled(crop.y(), yRatio), Scaled(Width(crop), xRatio),
        Scaled(Height(crop), yRatio));
}

QRect SourceRect(const QRect& crop, const QRect& photo, const QSize& display, const QSize& source)
{
    const float xRatio = Ratio(source.width(), display.width());
    const float yRatio = Ratio(source.height(), display.height());
    return QRect(
        Scaled(qint64(crop.x()) - photo.x(), xRatio), Scaled(qint64(crop.y()) - photo.y(), yRatio),
        Scaled(Width(crop), xRatio), Scaled(Height(crop), yRatio));
}

QImage GetCutImage(const CutImageInfo& info, const QRect& crop, const QRect& photo, const QSize& display)
{
    if (!info.bHasImage)
        return info.image;
    const QRect source = SourceRect(crop, photo, display, info.image.size());
    if (source == info.image.rect())
        return info.image;
    return CanBeMade(source.size()) ? info.image.copy(source) : QImage();
}

QImage ChanageImageByAspectRatio(const QImage& image, const QSize& maximum)
{
    QImage result = image;
    if (maximum.isEmpty())
        return result;
    while (Exceeds(result.size(), maximum)) {
        const QSize half(result.width() / 2, result.height() / 2);
        const QImage halved
            = half.isEmpty() ? QImage() : result.scaled(half, Qt::KeepAspectRatio, Qt::FastTransformation);
        if (halved.isNull())
            break;
        result = halved;
    }
    return result;
}

CheckedCut CheckCut(
    const CutImageInfo& info, const QRect& crop, const QRect& photo, const QSize& display,
    const Limits& limits)
{
    if (Width(crop) == 0 || Height(crop) == 0)
        return {};
    if (info.bHasImage && !CanBeMade(SourceRect(crop, photo, display, info.image.size()).size()))
        return {};

    QImage image = GetCutImage(info, crop, photo, display);
    if (limits.iMaxCapacity <= 0)
        return {Verdict::Valid, image, std::nullopt};

    const QSize maximum = limits.maximum.expandedTo(QSize(0, 0));
    if (maximum != QSize(0, 0) && Exceeds(image.size(), maximum)) {
        if (!limits.bKeepAspectRatio)
            return {Verdict::TooManyPixels, QImage(), std::nullopt};
        image = ChanageImageByAspectRatio(image, maximum);
    }

    const JpegFit fit = FitJpeg(image, limits.iMaxCapacity);
    if (fit.bytes > limits.iMaxCapacity)
        return {Verdict::TooManyBytes, QImage(), fit.ratio};
    return {Verdict::Valid, image, fit.ratio};
}

} // namespace UICommonMdl::CropPicture
