#include "JpegBlocks.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace UICommonMdl {

namespace {

constexpr int Side = 8; // of a block
constexpr int GroupSide = 16; // of four luminance blocks, which share one block of each chrominance
constexpr int Scale = 8; // the transform's results are larger than the coefficients by this

using Samples = std::array<std::array<int, Side>, Side>;
using Transformed = std::array<int, JpegBlockSize>; // in zigzag order

/// Where the coefficient of zigzag place i is found: row * 8 + column.
constexpr std::array<quint8, JpegBlockSize> Zigzag = [] {
    std::array<quint8, JpegBlockSize> order{};
    int row = 0;
    int column = 0;
    for (auto& place : order) {
        place = static_cast<quint8>(row * Side + column);
        const bool up = (row + column) % 2 == 0;
        int& ahead = up ? column : row;
        int& back = up ? row : column;
        if (ahead == Side - 1)
            ++back;
        else {
            ++ahead;
            back = back > 0 ? back - 1 : 0;
        }
    }
    return order;
}();

// ---- The cosine transform, with factors of 13 fractional bits

constexpr int FactorBits = 13;
constexpr int PassBits = 2; // fractional bits kept between the two passes

// Rows: coefficients 1, 3, 5, 7; columns: differences of the samples 3-4, 2-5, 1-6, 0-7.
constexpr int OddFactors[4][4] = {
    {2260, 6437, 9633, 11363},
    {-6436, -11362, -2259, 9633},
    {9633, 2261, -11362, 6437},
    {-11363, 9633, -6436, 2260},
};

int Rounded(int value, int bits) { return (value + (1 << (bits - 1))) >> bits; }

/// One pass over the eight columns of @p in, all at the same time; the results of a column stand in a row of
/// @p out. The first pass gives PassBits fractional bits, the second takes them away again.
template <bool First>
void Transform(const Samples& in, Samples& out)
{
    constexpr int Bits = First ? FactorBits - PassBits : FactorBits + PassBits;
    for (size_t i = 0; i < Side; ++i) {
        const int sum0 = in[0][i] + in[7][i];
        const int sum1 = in[1][i] + in[6][i];
        const int sum2 = in[2][i] + in[5][i];
        const int sum3 = in[3][i] + in[4][i];
        const int outer = sum0 + sum3;
        const int inner = sum1 + sum2;
        const int outerDifference = sum0 - sum3;
        const int innerDifference = sum1 - sum2;
        out[i][0] = First ? (outer + inner) * (1 << PassBits) : Rounded(outer + inner, PassBits);
        out[i][4] = First ? (outer - inner) * (1 << PassBits) : Rounded(outer - inner, PassBits);
        out[i][2] = Rounded(outerDifference * 10703 + innerDifference * 4433, Bits);
        out[i][6] = Rounded(outerDifference * 4433 - innerDifference * 10704, Bits);
        const int difference3 = in[3][i] - in[4][i];
        const int difference2 = in[2][i] - in[5][i];
        const int difference1 = in[1][i] - in[6][i];
        const int difference0 = in[0][i] - in[7][i];
        for (size_t k = 0; k < 4; ++k)
            out[i][2 * k + 1] = Rounded(
                difference3 * OddFactors[k][0] + difference2 * OddFactors[k][1]
                    + difference1 * OddFactors[k][2] + difference0 * OddFactors[k][3],
                Bits);
    }
}

Transformed TransformBlock(const quint8* samples, int stride)
{
    constexpr int Middle = 128;
    Samples columns; // the first pass runs along the rows: sample x of all eight rows
    for (int y = 0; y < Side; ++y)
        for (int x = 0; x < Side; ++x)
            columns[static_cast<size_t>(x)][static_cast<size_t>(y)] = samples[y * stride + x] - Middle;
    Samples rows;
    Transform<true>(columns, rows);
    Transform<false>(rows, columns); // now by horizontal, then vertical frequency
    Transformed result;
    for (size_t i = 0; i < JpegBlockSize; ++i)
        result[i] = columns[Zigzag[i] % Side][Zigzag[i] / Side];
    return result;
}

int BitLength(unsigned value)
{
    int bits = 0;
    for (; value != 0; value >>= 1)
        ++bits;
    return bits;
}

int Blocks(int pixels) { return (pixels + Side - 1) / Side; }

// ---- The picture's samples

/// Rows of pixels of any picture as the encoder takes them.
class Rows
{
public:
    explicit Rows(const QImage& image)
        : m_image(image)
        , m_direct(
              image.format() == QImage::Format_RGB32 || image.format() == QImage::Format_ARGB32
              || image.format() == QImage::Format_ARGB32_Premultiplied)
    { }

    /// Row @p y, the last row also below it. Valid until the next call.
    const QRgb* Row(int y)
    {
        const int row = qMin(y, m_image.height() - 1);
        if (m_direct)
            return reinterpret_cast<const QRgb*>(m_image.constScanLine(row));
        if (row < m_first || row >= m_first + m_strip.height()) {
            m_strip = m_image.copy(0, row, m_image.width(), qMin(GroupSide, m_image.height() - row));
            if (m_strip.format() == QImage::Format_Grayscale16)
                m_strip = m_strip.convertToFormat(QImage::Format_Grayscale8);
            m_strip = m_strip.convertToFormat(QImage::Format_RGB32);
            m_first = row;
        }
        return reinterpret_cast<const QRgb*>(m_strip.constScanLine(row - m_first));
    }

private:
    const QImage m_image;
    const bool m_direct;
    QImage m_strip; ///< some rows of a picture of another format
    int m_first = 0;
};

/// A band of samples, as wide as whole blocks.
struct Plane
{
    Plane(int columns, int rows)
        : stride(columns)
        , samples(static_cast<size_t>(columns) * static_cast<size_t>(rows))
    { }
    quint8* Row(int y) { return samples.data() + static_cast<ptrdiff_t>(y) * stride; }

    int stride;
    std::vector<quint8> samples;
};

/// Repeats the last of @p width samples up to the end of the row.
void FillRow(quint8* row, int width, int stride) { std::fill(row + width, row + stride, row[width - 1]); }

// Colour conversion with factors of 16 fractional bits.
constexpr int ColorBits = 16;
constexpr int Half = 1 << (ColorBits - 1);
constexpr int ChromaOffset = (128 << ColorBits) + Half - 1;

void ConvertRow(const QRgb* pixels, int width, quint8* y, quint8* cb, quint8* cr)
{
    for (int x = 0; x < width; ++x) {
        const int red = qRed(pixels[x]);
        const int green = qGreen(pixels[x]);
        const int blue = qBlue(pixels[x]);
        y[x] = static_cast<quint8>((19595 * red + 38470 * green + 7471 * blue + Half) >> ColorBits);
        cb[x] = static_cast<quint8>((32768 * blue - 11059 * red - 21709 * green + ChromaOffset) >> ColorBits);
        cr[x] = static_cast<quint8>((32768 * red - 27439 * green - 5329 * blue + ChromaOffset) >> ColorBits);
    }
}

/// Means of 2 x 2 samples; halves are rounded down and up in turns.
void HalveRows(const quint8* upper, const quint8* lower, int width, quint8* half)
{
    for (int x = 0; x < width; ++x) {
        const int sum = upper[2 * x] + upper[2 * x + 1] + lower[2 * x] + lower[2 * x + 1];
        half[x] = static_cast<quint8>((sum + 1 + x % 2) >> 2);
    }
}

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
        const auto dividend = static_cast<quint64>(magnitude + thresholds[place]);
        return static_cast<unsigned>((dividend * reciprocals[place]) >> 32);
    }

    const JpegCoding& coding;
    std::array<int, JpegBlockSize> thresholds; ///< less than this is rounded to zero
    std::array<quint64, JpegBlockSize> reciprocals;
};

JpegBlocks::JpegBlocks(const QImage& image, const JpegTables& finest)
    : m_tables(finest)
{
    if (finest.colored)
        AddColored(image);
    else
        AddGrey(image);
}

void JpegBlocks::AddColored(const QImage& image)
{
    const int width = image.width();
    const int stride = (width + GroupSide - 1) / GroupSide * GroupSide;
    const int columns = Blocks(width);
    const int lastChromaRow = (image.height() + 1) / 2 - 1;
    Rows rows(image);
    Plane y(stride, GroupSide);
    Plane cb(stride, GroupSide);
    Plane cr(stride, GroupSide);
    Plane halfCb(stride / 2, Side);
    Plane halfCr(stride / 2, Side);

    for (int top = 0; top < image.height(); top += GroupSide) {
        for (int i = 0; i < GroupSide; ++i) {
            ConvertRow(rows.Row(top + i), width, y.Row(i), cb.Row(i), cr.Row(i));
            for (Plane* plane : {&y, &cb, &cr})
                FillRow(plane->Row(i), width, stride);
        }
        for (int i = 0; i < Side; ++i) {
            const int row = 2 * qMin(i, lastChromaRow - top / 2);
            HalveRows(cb.Row(row), cb.Row(row + 1), stride / 2, halfCb.Row(i));
            HalveRows(cr.Row(row), cr.Row(row + 1), stride / 2, halfCr.Row(i));
        }
        const int blockRows = qMin(2, Blocks(image.height() - top));
        for (int left = 0; left < stride; left += GroupSide) {
            const int blockColumns = qMin(2, columns - left / Side);
            for (int row = 0; row < blockRows; ++row)
                for (int column = 0; column < blockColumns; ++column) {
                    Add(y.Row(row * Side) + left + column * Side, stride, 0);
                    m_blocks.back().repeats
                        = static_cast<quint8>(column + 1 == blockColumns ? 2 - blockColumns : 0);
                }
            m_blocks.back().repeats = static_cast<quint8>(m_blocks.back().repeats + 2 * (2 - blockRows));
            Add(halfCb.Row(0) + left / 2, stride / 2, 1);
            Add(halfCr.Row(0) + left / 2, stride / 2, 2);
        }
    }
}

void JpegBlocks::AddGrey(const QImage& image)
{
    const int stride = Blocks(image.width()) * Side;
    Rows rows(image);
    Plane grey(stride, Side);
    for (int top = 0; top < image.height(); top += Side) {
        for (int i = 0; i < Side; ++i) {
            const QRgb* pixels = rows.Row(top + i);
            std::transform(pixels, pixels + image.width(), grey.Row(i), [](QRgb pixel) {
                return static_cast<quint8>(qRed(pixel));
            });
            FillRow(grey.Row(i), image.width(), stride);
        }
        for (int left = 0; left < stride; left += Side)
            Add(grey.Row(0) + left, stride, 0);
    }
}

void JpegBlocks::Add(const quint8* samples, int stride, int component)
{
    const JpegCoding& coding = component == 0 ? m_tables.luminance : m_tables.chrominance;
    const Transformed transformed = TransformBlock(samples, stride);
    Block block{
        static_cast<quint32>(m_coefficients.size()), 0, static_cast<quint8>(component), 0,
        static_cast<qint16>(transformed[0])};
    for (size_t place = 1; place < JpegBlockSize; ++place) {
        const int magnitude = std::abs(transformed[place]);
        if (magnitude >= coding.divisors[place] * Scale / 2)
            m_coefficients.push_back({static_cast<qint16>(magnitude), static_cast<quint8>(place)});
    }
    block.count = static_cast<quint8>(m_coefficients.size() - block.first);
    m_blocks.push_back(block);
}

bool JpegBlocks::CanCount(const JpegTables& tables) const
{
    const auto coarser = [](const JpegCoding& one, const JpegCoding& other) {
        return std::equal(
            one.divisors.begin(), one.divisors.end(), other.divisors.begin(), std::greater_equal<>());
    };
    return tables.colored == m_tables.colored && coarser(tables.luminance, m_tables.luminance)
        && coarser(tables.chrominance, m_tables.chrominance);
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
    const Quantiser luminance(m_tables.luminance);
    const Quantiser chrominance(m_tables.chrominance);
    std::array<int, 3> previous{};
    qint64 bits = 0;
    for (Block& block : m_blocks) {
        const Quantiser& quantiser = block.component == 0 ? luminance : chrominance;
        const auto magnitude = static_cast<int>(quantiser.Quantised(std::abs(int(block.dc)), 0));
        const int dc = block.dc < 0 ? -magnitude : magnitude;
        const auto difference = static_cast<unsigned>(std::abs(dc - previous[block.component]));
        previous[block.component] = dc;
        bits += quantiser.coding.dcBits[static_cast<size_t>(BitLength(difference))];
        bits += AcBits(block, quantiser);
        bits += block.repeats * (quantiser.coding.dcBits[0] + quantiser.coding.acBits[0]);
        if (bits / 8 > enough)
            break;
    }
    return (bits + 7) / 8;
}

} // namespace UICommonMdl
