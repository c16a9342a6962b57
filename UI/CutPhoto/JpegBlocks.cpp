#include "JpegBlocks.h"

#include <QtAlgorithms>
#include <algorithm>
#include <cstdlib>
#include <functional>

namespace UICommonMdl {

namespace {

constexpr int Side = 8; // of a block
constexpr int GroupSide = 2; // of the luminance blocks that share one block of each chrominance
constexpr int Scale = 8; // the transform's results are larger than the coefficients by this
constexpr int BlockEnd = JpegBlockSize; // the place after the last coefficient
constexpr int Lengths = 16; // in bits, of quantised values, 0 included

/// The end of a block is counted like a value that is longer than any and never rounded to zero.
constexpr int EndLength = 14;
constexpr quint16 EndMagnitude = 1 << (EndLength - 1);

/// How many bits an unsigned value takes whose double is given; the double's lowest bit says nothing.
quint32 HalfLength(quint32 value) { return 31 - qCountLeadingZeroBits(value | 1); }

int BlocksFor(int pixels) { return (pixels + Side - 1) / Side; }

} // namespace

/// What quantising and writing one component takes, ready for speed.
struct JpegBlocks::Quantiser
{
    explicit Quantiser(const JpegCoding& coding);

    /// Twice the magnitude divided and rounded to the nearest, or one more; exact for all that fits into 16
    /// bits.
    quint32 Doubled(quint32 magnitude, size_t place) const
    {
        constexpr quint64 Half = quint64(1) << 31;
        return static_cast<quint32>((quint64(magnitude) * reciprocals[place] + Half) >> 31);
    }

    std::array<qint16, JpegBlockSize> least{}; ///< a smaller magnitude is rounded to zero
    std::array<quint32, BlockEnd + 1> reciprocals{};
    std::array<int, Lengths> meanBits; ///< by length
    /// By (zeros before it * Lengths + length).
    std::array<int, size_t(JpegBlockSize) * Lengths> detailBits{};
};

JpegBlocks::Quantiser::Quantiser(const JpegCoding& coding)
    : meanBits(coding.dcBits)
{
    for (size_t i = 0; i < JpegBlockSize; ++i) {
        const int divisor = coding.divisors[i] * Scale;
        least[i] = static_cast<qint16>(divisor / 2);
        reciprocals[i] = static_cast<quint32>((quint64(1) << 32) / static_cast<quint64>(divisor) + 1);
    }
    constexpr size_t LongestRun = 16; // of zeros; written as 15 zeros before a zero
    for (size_t zeros = 0; zeros < JpegBlockSize; ++zeros) {
        const int runs = static_cast<int>(zeros / LongestRun) * coding.acBits[(LongestRun - 1) << 4];
        int* const row = &detailBits[zeros * Lengths];
        for (size_t length = 1; length < EndLength; ++length)
            row[length] = runs + coding.acBits[zeros % LongestRun << 4 | length];
        row[EndLength] = zeros == 0 ? 0 : coding.acBits[0]; // told unless the block is full
    }
    reciprocals[BlockEnd] = ~quint32(0);
}

JpegBlocks::JpegBlocks(const QImage& image, bool colored)
    : m_size(image.size())
    , m_colored(colored)
    , m_samples(image, colored)
    , m_found(static_cast<size_t>(BlocksFor(m_size.width())) * GroupSide * (JpegBlockSize + 1))
{ }

bool JpegBlocks::CanCount(const JpegTables& tables) const
{
    const auto coarser = [](const JpegCoding& one, const JpegCoding& other) {
        return std::equal(
            one.divisors.begin(), one.divisors.end(), other.divisors.begin(), std::greater_equal<>());
    };
    if (tables.colored != m_colored)
        return false;
    return !m_tables
        || (coarser(tables.luminance, m_tables->luminance)
            && coarser(tables.chrominance, m_tables->chrominance));
}

/// Transforms the next rows of the picture; false when there are none.
bool JpegBlocks::AddBand(const Quantiser& luminance, const Quantiser& chrominance)
{
    const int top = static_cast<int>(m_bands.size()) * JpegSamples::BandRows;
    if (top >= m_size.height())
        return false;
    m_samples.ConvertBand(top);
    const int columns = BlocksFor(m_size.width());
    const int rows = qMin(GroupSide, BlocksFor(m_size.height() - top));
    Band& band = m_bands.emplace_back();
    band.channels[0] = Transformed(m_samples.Luminance(), QSize(columns, rows), luminance);
    if (m_colored) {
        const QSize groups((columns + 1) / GroupSide, 1);
        band.fillers = groups.width() * GroupSide * GroupSide - columns * rows;
        band.channels[1] = Transformed(m_samples.Blueness(), groups, chrominance);
        band.channels[2] = Transformed(m_samples.Redness(), groups, chrominance);
    }
    return true;
}

/// @p size blocks of @p plane without what is rounded to zero.
JpegBlocks::Channel
JpegBlocks::Transformed(const JpegPlane& plane, const QSize& size, const Quantiser& quantiser)
{
    Channel channel;
    channel.means.resize(static_cast<size_t>(size.width() * size.height()));
    Coefficient* found = m_found.data();
    JpegCoefficients transformed;
    for (int row = 0; row < size.height(); ++row)
        for (int left = 0; left < size.width(); left += JpegLanes) {
            JpegTransform(plane.At(left * Side, row * Side), plane.Stride(), transformed);
            const std::array<quint64, JpegLanes> places = JpegPlaces(transformed, quantiser.least);
            for (int i = 0; i < qMin(JpegLanes, size.width() - left); ++i) {
                const auto lane = static_cast<size_t>(i);
                channel.means[MeanIndex(left + i, row, size)] = transformed[0][lane];
                // The lowest bit is the mean's.
                for (quint64 rest = places[lane] & ~quint64(1); rest != 0; rest &= rest - 1) {
                    const auto place = static_cast<quint16>(qCountTrailingZeroBits(rest));
                    const int value = transformed[JpegZigzag[place]][lane];
                    *found++ = {static_cast<quint16>(std::abs(value)), place};
                }
                *found++ = {EndMagnitude, BlockEnd};
            }
        }
    channel.coefficients.assign(m_found.data(), found);
    return channel;
}

/// Where the mean of the block in @p column and @p row of a band of @p size blocks is written: row after row,
/// in a coloured picture group after group.
size_t JpegBlocks::MeanIndex(int column, int row, const QSize& size) const
{
    if (!m_colored)
        return static_cast<size_t>(row * size.width() + column);
    const int left = column / GroupSide * GroupSide;
    const int width = qMin(GroupSide, size.width() - left);
    return static_cast<size_t>(left * size.height() + row * width + column - left);
}

/// Bits of the values beside the means; forgets those that are rounded to zero.
qint64 JpegBlocks::DetailBits(Channel& channel, const Quantiser& quantiser)
{
    qint64 bits = 0;
    Coefficient* kept = channel.coefficients.data();
    quint32 next = 1; // place that may follow the last one without zeros between
    // Without branches: which values are kept cannot be predicted.
    for (const Coefficient coefficient : channel.coefficients) {
        const quint32 place = coefficient.place;
        const quint32 length = HalfLength(quantiser.Doubled(coefficient.magnitude, place));
        bits += quantiser.detailBits[(place - next) * Lengths + length];
        const quint32 taken = length == 0 ? 0 : 1;
        *kept = coefficient;
        kept += taken;
        next = taken ? place % BlockEnd + 1 : next;
    }
    channel.coefficients.resize(static_cast<size_t>(kept - channel.coefficients.data()));
    return bits;
}

/// Bits of the means, each written as the difference to the one before it.
qint64 JpegBlocks::MeanBits(const Channel& channel, const Quantiser& quantiser, int& previous)
{
    qint64 bits = 0;
    for (const qint16 mean : channel.means) {
        const auto magnitude
            = static_cast<int>(quantiser.Doubled(static_cast<quint32>(std::abs(mean)), 0) / 2);
        const int quantised = mean < 0 ? -magnitude : magnitude;
        const auto difference = static_cast<quint32>(std::abs(quantised - previous));
        bits += quantiser.meanBits[HalfLength(2 * difference)];
        previous = quantised;
    }
    return bits;
}

qint64 JpegBlocks::Bytes(const JpegTables& tables, qint64 enough)
{
    m_tables = tables;
    const Quantiser luminance(tables.luminance);
    const Quantiser chrominance(tables.chrominance);
    const qint64 fillerBits = tables.luminance.dcBits[0] + tables.luminance.acBits[0];
    std::array<int, 3> previous{};
    qint64 bits = 0;
    for (size_t i = 0; bits / 8 <= enough && (i < m_bands.size() || AddBand(luminance, chrominance)); ++i) {
        bits += m_bands[i].fillers * fillerBits;
        for (size_t c = 0; c < previous.size(); ++c) {
            const Quantiser& quantiser = c == 0 ? luminance : chrominance;
            Channel& channel = m_bands[i].channels[c];
            bits += DetailBits(channel, quantiser) + MeanBits(channel, quantiser, previous[c]);
        }
    }
    return (bits + 7) / 8;
}

} // namespace UICommonMdl
