#include "JpegBlocks.h"

#include <QtAlgorithms>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <functional>

namespace UICommonMdl {

namespace {

constexpr int Side = 8; // of a block
constexpr int GroupSide = 2; // of the luminance blocks that share one block of each chrominance
constexpr int Scale = 8; // the transform's results are larger than the coefficients by this

int BitLength(unsigned value) { return 32 - static_cast<int>(qCountLeadingZeroBits(quint32(value))); }

int BlocksFor(int pixels) { return (pixels + Side - 1) / Side; }

} // namespace

/// What quantising and writing one component takes, ready for speed.
struct JpegBlocks::Quantiser
{
    explicit Quantiser(const JpegCoding& componentCoding)
        : coding(componentCoding)
    {
        for (size_t i = 0; i < JpegBlockSize; ++i) {
            const int divisor = coding.divisors[i] * Scale;
            thresholds[i] = divisor / 2;
            reciprocals[i] = (quint64(1) << 32) / static_cast<quint64>(divisor) + 1;
        }
    }

    /// The magnitude divided and rounded to the nearest; exact for all that fits into 16 bits.
    unsigned Quantised(int magnitude, size_t place) const
    {
        const auto dividend = static_cast<quint64>(magnitude) + static_cast<quint64>(thresholds[place]);
        return static_cast<unsigned>((dividend * reciprocals[place]) >> 32);
    }

    const JpegCoding& coding;
    std::array<int, JpegBlockSize> thresholds; ///< less than this is rounded to zero
    std::array<quint64, JpegBlockSize> reciprocals;
};

JpegBlocks::JpegBlocks(const QImage& image, bool colored)
    : m_size(image.size())
    , m_colored(colored)
    , m_samples(image, colored)
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
bool JpegBlocks::AddBand()
{
    if (m_nextTop >= m_size.height())
        return false;
    m_samples.ConvertBand(m_nextTop);
    const int columns = BlocksFor(m_size.width());
    const int rows = qMin(GroupSide, BlocksFor(m_size.height() - m_nextTop));
    m_nextTop += JpegSamples::BandRows;
    if (m_colored) {
        for (int left = 0; left < columns; left += GroupSide)
            AddColoredGroup(left, qMin(GroupSide, columns - left), rows);
        return true;
    }
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column)
            Add(m_samples.Luminance(), column, row, 0);
    return true;
}

/// Adds the blocks of 16 x 16 pixels, which at the picture's edges may have fewer than 2 x 2 of luminance.
void JpegBlocks::AddColoredGroup(int left, int blockColumns, int blockRows)
{
    for (int row = 0; row < blockRows; ++row) {
        for (int column = 0; column < blockColumns; ++column)
            Add(m_samples.Luminance(), left + column, row, 0);
        m_blocks.back().repeats = static_cast<quint8>(GroupSide - blockColumns);
    }
    const int missingRows = GroupSide - blockRows;
    m_blocks.back().repeats = static_cast<quint8>(m_blocks.back().repeats + missingRows * GroupSide);
    Add(m_samples.Blueness(), left / GroupSide, 0, 1);
    Add(m_samples.Redness(), left / GroupSide, 0, 2);
}

/// Adds the block in the given column and row of blocks.
void JpegBlocks::Add(const JpegPlane& plane, int column, int row, int component)
{
    const JpegCoding& coding = component == 0 ? m_tables->luminance : m_tables->chrominance;
    const JpegCoefficients transformed = JpegTransform(plane.At(column * Side, row * Side), plane.Stride());
    const auto first = static_cast<quint32>(m_coefficients.size());
    std::array<Coefficient, JpegBlockSize> kept;
    size_t count = 0;
    for (size_t place = 1; place < JpegBlockSize; ++place) {
        const int magnitude = std::abs(transformed[JpegZigzag[place]]);
        kept[count] = {static_cast<qint16>(magnitude), static_cast<quint8>(place)};
        count += magnitude >= coding.divisors[place] * Scale / 2 ? 1 : 0;
    }
    m_coefficients.insert(m_coefficients.end(), kept.begin(), kept.begin() + count);
    m_blocks.push_back(
        {first, transformed[0], static_cast<quint8>(count), static_cast<quint8>(component), 0});
}

qint64 JpegBlocks::AcBits(Block& block, const Quantiser& quantiser)
{
    constexpr int LongestRun = 15;
    constexpr size_t SixteenZeros = LongestRun << 4;
    constexpr size_t EndOfBlock = 0;
    const auto& acBits = quantiser.coding.acBits;
    Coefficient* const coefficients = m_coefficients.data() + block.first;
    qint64 bits = 0;
    int kept = 0;
    int last = 0;
    for (int i = 0; i < block.count; ++i) {
        const Coefficient coefficient = coefficients[i];
        if (coefficient.magnitude < quantiser.thresholds[coefficient.place])
            continue;
        coefficients[kept++] = coefficient;
        int zeros = coefficient.place - last - 1;
        for (; zeros > LongestRun; zeros -= LongestRun + 1)
            bits += acBits[SixteenZeros];
        const int length = BitLength(quantiser.Quantised(coefficient.magnitude, coefficient.place));
        bits += acBits[static_cast<size_t>(zeros << 4 | length)];
        last = coefficient.place;
    }
    block.count = static_cast<quint8>(kept);
    return last < JpegBlockSize - 1 ? bits + acBits[EndOfBlock] : bits;
}

qint64 JpegBlocks::Bytes(const JpegTables& tables, qint64 enough)
{
    m_tables = tables;
    const Quantiser luminance(tables.luminance);
    const Quantiser chrominance(tables.chrominance);
    std::array<int, 3> previous{};
    qint64 bits = 0;
    for (size_t i = 0; bits / 8 <= enough && (i < m_blocks.size() || AddBand()); ++i) {
        Block& block = m_blocks[i];
        const Quantiser& quantiser = block.component == 0 ? luminance : chrominance;
        const auto magnitude = static_cast<int>(quantiser.Quantised(std::abs(int(block.dc)), 0));
        const int dc = block.dc < 0 ? -magnitude : magnitude;
        const auto difference = static_cast<unsigned>(std::abs(dc - previous[block.component]));
        previous[block.component] = dc;
        bits += quantiser.coding.dcBits[static_cast<size_t>(BitLength(difference))];
        bits += AcBits(block, quantiser);
        bits += block.repeats * qint64(quantiser.coding.dcBits[0] + quantiser.coding.acBits[0]);
    }
    return (bits + 7) / 8;
}

} // namespace UICommonMdl
