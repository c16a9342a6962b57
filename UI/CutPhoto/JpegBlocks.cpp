#include "JpegBlocks.h"

#include <QtAlgorithms>
#include <algorithm>
#include <cstdlib>
#include <functional>

namespace UICommonMdl {

namespace {

constexpr int Side = 8; // of a block
constexpr int GroupSide = 2; // of the luminance blocks that share one block of each chrominance

/// Of a band's row.
size_t ComponentOf(size_t row) { return row < GroupSide ? 0 : row - 1; }

int BlocksFor(int pixels) { return (pixels + Side - 1) / Side; }

} // namespace

JpegBlocks::JpegBlocks(const QImage& image, bool colored)
    : m_size(image.size())
    , m_colored(colored)
    , m_samples(image, colored)
    , m_found(static_cast<size_t>(BlocksFor(m_size.width())) * JpegBlockSize)
{ }

bool JpegBlocks::CanCount(const JpegTables& tables) const
{
    const auto coarser = [](const JpegCoding& one, const JpegCoding& other) {
        return std::equal(
            one.divisors.begin(), one.divisors.end(), other.divisors.begin(), std::greater_equal<>());
    };
    return !m_tables
        || (coarser(tables.luminance, m_tables->luminance)
            && coarser(tables.chrominance, m_tables->chrominance));
}

/// Transforms the next rows of the picture; false when there are none.
bool JpegBlocks::AddBand(const Quantisers& quantisers)
{
    const int top = static_cast<int>(m_bands.size()) * JpegSamples::BandRows;
    if (top >= m_size.height())
        return false;
    m_samples.ConvertBand(top);
    const int columns = BlocksFor(m_size.width());
    Band& band = m_bands.emplace_back();
    band[0] = Transformed(m_samples.Luminance(), 0, columns, quantisers[0]);
    if (m_size.height() - top > Side)
        band[1] = Transformed(m_samples.Luminance(), 1, columns, quantisers[0]);
    if (m_colored) {
        const int groups = (columns + 1) / GroupSide;
        band[2] = Transformed(m_samples.Blueness(), 0, groups, quantisers[1]);
        band[3] = Transformed(m_samples.Redness(), 0, groups, quantisers[1]);
    }
    return true;
}

/// The blocks of a row of @p plane without what is rounded to zero.
JpegBlocks::Row
JpegBlocks::Transformed(const JpegPlane& plane, int row, int columns, const JpegQuantiser& quantiser)
{
    Row result;
    result.means.reserve(static_cast<size_t>(columns));
    JpegDetail* found = m_found.data();
    JpegCoefficients transformed;
    for (int left = 0; left < columns; left += JpegLanes) {
        JpegTransform(plane.At(left * Side, row * Side), plane.Stride(), transformed);
        const std::array<quint64, JpegLanes> places = JpegPlaces(transformed, quantiser.Least());
        for (size_t i = 0; i < static_cast<size_t>(qMin(JpegLanes, columns - left)); ++i) {
            result.means.push_back(transformed[0][i]);
            // The lowest bit is the mean's.
            for (quint64 rest = places[i] & ~quint64(1); rest != 0; rest &= rest - 1) {
                const auto place = static_cast<quint8>(qCountTrailingZeroBits(rest));
                const int value = transformed[JpegZigzag[place]][i];
                *found++ = {static_cast<quint16>(std::abs(value)), place, value < 0};
            }
            *found++ = JpegBlockEnd;
        }
    }
    result.details.assign(m_found.data(), found);
    return result;
}

/// Calls @p visit(row, column) in the order of writing: row after row, in a coloured picture group after
/// group. A group at the picture's edge is filled up: such a block has a column after the row's end.
template <typename Visit>
void JpegBlocks::ForEachBlock(const Band& band, Visit visit) const
{
    const size_t columns = band[0].means.size();
    const size_t step = m_colored ? GroupSide : columns;
    for (size_t left = 0; left < columns; left += step) {
        for (size_t row = 0; row < GroupSide; ++row)
            for (size_t column = left; column < left + step; ++column)
                if (m_colored || !band[row].means.empty())
                    visit(row, column);
        for (size_t row = GroupSide; m_colored && row < band.size(); ++row)
            visit(row, left / GroupSide);
    }
}

/// Bits of the means, each written as the difference to the one before it, and of the blocks that fill up.
qint64 JpegBlocks::MeanBits(const Band& band, const Quantisers& quantisers, Means& previous) const
{
    qint64 bits = 0;
    ForEachBlock(band, [&](size_t row, size_t column) {
        const JpegQuantiser& quantiser = quantisers[row / GroupSide];
        const std::vector<qint16>& means = band[row].means;
        if (column >= means.size()) {
            bits += quantiser.EmptyBits();
            return;
        }
        int& before = previous[ComponentOf(row)];
        const int mean = quantiser.Mean(means[column]);
        bits += quantiser.MeanBits(mean - before);
        before = mean;
    });
    return bits;
}

/// All bits; any number above @p enough when there are more than that.
qint64 JpegBlocks::Bits(const Quantisers& quantisers, qint64 enough)
{
    Means previous{};
    qint64 bits = 0;
    for (size_t i = 0; bits <= enough && (i < m_bands.size() || AddBand(quantisers)); ++i) {
        bits += MeanBits(m_bands[i], quantisers, previous);
        for (size_t row = 0; row < m_bands[i].size(); ++row)
            bits += quantisers[row / GroupSide].DetailBits(m_bands[i][row].details);
    }
    return bits;
}

void JpegBlocks::Write(const Band& band, const Quantisers& quantisers, Means& previous, JpegBits& bits) const
{
    std::array<const JpegDetail*, 4> next{};
    for (size_t row = 0; row < band.size(); ++row)
        next[row] = band[row].details.data();
    ForEachBlock(band, [&](size_t row, size_t column) {
        const JpegQuantiser& quantiser = quantisers[row / GroupSide];
        const std::vector<qint16>& means = band[row].means;
        if (column >= means.size()) {
            quantiser.PutEmpty(bits);
            return;
        }
        int& before = previous[ComponentOf(row)];
        const int mean = quantiser.Mean(means[column]);
        quantiser.PutMean(bits, mean - before);
        next[row] = quantiser.PutDetails(bits, next[row]);
        before = mean;
    });
}

std::optional<QByteArray> JpegBlocks::Written(const JpegTables& tables, qint64 enough)
{
    m_tables = tables;
    const Quantisers quantisers{JpegQuantiser(tables.luminance), JpegQuantiser(tables.chrominance)};
    if (Bits(quantisers, enough * 8) > enough * 8)
        return std::nullopt;
    JpegBits bits;
    Means previous{};
    for (const Band& band : m_bands)
        Write(band, quantisers, previous, bits);
    return bits.Finished();
}

} // namespace UICommonMdl
