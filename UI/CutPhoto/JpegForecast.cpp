#include "JpegForecast.h"

#include "JpegFitting.h"

#include <limits>

namespace UICommonMdl {

namespace {

constexpr int SampleSide = 64;
constexpr int EndBytes = 2; // after the picture's bits

/// Smaller pictures are encoded as quickly; larger ones would take too much memory.
constexpr qint64 FewestPixels = qint64(4) * SampleSide * SampleSide;
constexpr qint64 MostPixels = qint64(1) << 26;

bool IsWorthwhile(const QSize& size)
{
    const qint64 pixels = qint64(size.width()) * size.height();
    return pixels >= FewestPixels && pixels <= MostPixels;
}

QImage MiddlePart(const QImage& image)
{
    QRect part(0, 0, qMin(SampleSide, image.width()), qMin(SampleSide, image.height()));
    part.moveCenter(image.rect().center());
    return image.copy(part);
}

} // namespace

JpegForecast::JpegForecast(const QImage& image)
    : m_image(image)
    , m_sample(MiddlePart(image))
    , m_covered(IsWorthwhile(image.size()))
{ }

bool JpegForecast::Exceeds(int quality, int maximum)
{
    if (!m_covered)
        return false;
    const std::optional<JpegTables> tables = ReadJpegTables(JpegBytes(m_sample, quality));
    m_covered = tables && Prepare(*tables)
        && m_sampleBlocks->Bytes(*tables, std::numeric_limits<int>::max()) == tables->scanBytes;
    if (!m_covered)
        return false;
    const qint64 room = qint64(maximum) - tables->headerBytes - EndBytes;
    // Stuffed zeros can only add to what is counted.
    return m_blocks->Bytes(*tables, room) > room;
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
