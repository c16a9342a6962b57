#include "JpegForecast.h"

#include "JpegFitting.h"

namespace UICommonMdl {

namespace {

constexpr int SampleSide = 64;

/// Smaller pictures are encoded as quickly.
constexpr qint64 FewestPixels = qint64(4) * SampleSide * SampleSide;

/// Larger pictures would take too much memory, unless most of their values are forgotten.
constexpr qint64 MostMemory = qint64(400) << 20;
constexpr qint64 BytesOfPixel = 6;
constexpr qint64 BytesOfWrittenByte = 24; // of 3 bits, the fewest of a value; half of the room may be empty

bool IsWorthwhile(const QSize& size, qint64 maximum)
{
    const qint64 pixels = qint64(size.width()) * size.height();
    return CanBeJpeg(size) && pixels >= FewestPixels
        && qMin(pixels * BytesOfPixel, maximum * BytesOfWrittenByte) <= MostMemory;
}

/// The middle, with the same parts of blocks at its edges as the whole picture has.
QImage MiddlePart(const QImage& image)
{
    const auto side = [](int length) { return qMin(length, SampleSide + length % JpegSamples::BandRows); };
    QRect part(0, 0, side(image.width()), side(image.height()));
    part.moveCenter(image.rect().center());
    return image.copy(part);
}

} // namespace

JpegForecast::JpegForecast(const QImage& image, int maximum)
    : m_image(image)
    , m_sample(MiddlePart(image))
    , m_maximum(maximum)
    , m_covered(IsWorthwhile(image.size(), maximum))
{ }

std::optional<qint64> JpegForecast::Bytes(int quality)
{
    if (!m_covered)
        return std::nullopt;
    const QByteArray sample = JpegBytes(m_sample, quality);
    const std::optional<JpegTables> tables = ReadJpegTables(sample);
    m_covered = tables && Prepare(*tables)
        && m_sampleBlocks->Written(*tables, sample.size())
            == sample.mid(tables->headerBytes, tables->scanBytes);
    if (!m_covered)
        return std::nullopt;
    const int frameBytes = tables->headerBytes + JpegEndBytes;
    const std::optional<QByteArray> written = m_blocks->Written(*tables, m_maximum - frameBytes);
    return written ? frameBytes + qint64(written->size()) : m_maximum + 1;
}

bool JpegForecast::Prepare(const JpegTables& tables)
{
    if (!m_blocks) {
        m_sampleBlocks.emplace(m_sample, tables.colored);
        m_blocks.emplace(m_image, tables.colored);
    }
    return m_blocks->CanCount(tables);
}

} // namespace UICommonMdl
