#include "JpegSamples.h"

#include "JpegTransform.h"
#include "JpegVectors.h"

#include <algorithm>

namespace UICommonMdl {

namespace {

// Colour conversion with factors of 16 fractional bits.
constexpr int ColorBits = 16;
constexpr int Half = 1 << (ColorBits - 1);
constexpr int ChromaOffset = (128 << ColorBits) + Half - 1;

/// Columns of whole transforms, of the halved chrominances too.
int BandColumns(int width)
{
    constexpr int Whole = 2 * JpegLanes * 8;
    return (width + Whole - 1) / Whole * Whole;
}

/// Formats of which the encoder takes red, green and blue as they stand in memory.
bool IsDirect(QImage::Format format)
{
    return format == QImage::Format_RGB32 || format == QImage::Format_ARGB32
        || format == QImage::Format_ARGB32_Premultiplied;
}

/// Repeats the last of @p width samples up to the end of the row.
void FillRow(JpegPlane& plane, int y, int width)
{
    quint8* const row = plane.Row(y);
    std::fill(row + width, row + plane.Stride(), row[width - 1]);
}

/// Means of 2 x 2 samples; halves are rounded down and up in turns.
JPEG_WIDE_VECTORS
void HalveRows(const quint8* upper, const quint8* lower, int width, quint8* half)
{
    for (int x = 0; x < width; ++x, upper += 2, lower += 2) {
        const int sum = upper[0] + upper[1] + lower[0] + lower[1];
        half[x] = static_cast<quint8>((sum + 1 + x % 2) >> 2);
    }
}

/// Luminance and chrominances of a row; the three do not overlap.
JPEG_WIDE_VECTORS
void ConvertRow(
    const QRgb* pixels, int width, quint8* __restrict luminance, quint8* __restrict blueness,
    quint8* __restrict redness)
{
    for (int x = 0; x < width; ++x) {
        // Factors and colours of 16 bits, some doubled for it, are multiplied eight or sixteen at a time.
        const auto red = static_cast<qint16>(qRed(pixels[x]));
        const auto green = static_cast<qint16>(qGreen(pixels[x]));
        const auto blue = static_cast<qint16>(qBlue(pixels[x]));
        const auto red2 = static_cast<qint16>(2 * red);
        const auto green2 = static_cast<qint16>(2 * green);
        const auto blue2 = static_cast<qint16>(2 * blue);
        const int y = 19595 * red + 19235 * green2 + 7471 * blue + Half;
        const int cb = 16384 * blue2 - 11059 * red - 21709 * green + ChromaOffset;
        const int cr = 16384 * red2 - 27439 * green - 5329 * blue + ChromaOffset;
        luminance[x] = static_cast<quint8>(y >> ColorBits);
        blueness[x] = static_cast<quint8>(cb >> ColorBits);
        redness[x] = static_cast<quint8>(cr >> ColorBits);
    }
}

} // namespace

JpegPlane::JpegPlane(int columns, int rows)
    : m_stride(columns)
    , m_samples(static_cast<size_t>(columns) * static_cast<size_t>(rows))
{ }

JpegSamples::JpegSamples(const QImage& image, bool colored)
    : m_image(image)
    , m_colored(colored)
    , m_direct(IsDirect(image.format()))
    , m_luminance(BandColumns(image.width()), BandRows)
    , m_blueness(BandColumns(image.width()), BandRows)
    , m_redness(BandColumns(image.width()), BandRows)
    , m_halfBlueness(BandColumns(image.width()) / 2, BandRows / 2)
    , m_halfRedness(BandColumns(image.width()) / 2, BandRows / 2)
{ }

void JpegSamples::ConvertBand(int top)
{
    for (int bandRow = 0; bandRow < BandRows; ++bandRow) {
        const int row = qMin(top + bandRow, m_image.height() - 1);
        if (m_colored)
            ConvertColored(row, bandRow);
        else
            ConvertGrey(row, bandRow);
    }
    if (m_colored)
        Halve(top);
}

/// Row @p row as 32-bit pixels, valid until the next call, which must not ask for a row above it.
const QRgb* JpegSamples::Pixels(int row)
{
    if (m_direct)
        return reinterpret_cast<const QRgb*>(m_image.constScanLine(row));
    if (row >= m_stripTop + m_strip.height()) {
        m_stripTop = row;
        m_strip = m_image.copy(0, row, m_image.width(), qMin(BandRows, m_image.height() - row));
        // The encoder takes the upper 8 of 16 bits of grey, which is not how they become colours.
        if (m_strip.format() == QImage::Format_Grayscale16)
            m_strip = m_strip.convertToFormat(QImage::Format_Grayscale8);
        m_strip = m_strip.convertToFormat(QImage::Format_RGB32);
    }
    return reinterpret_cast<const QRgb*>(m_strip.constScanLine(row - m_stripTop));
}

void JpegSamples::ConvertColored(int row, int bandRow)
{
    const QRgb* const pixels = Pixels(row);
    quint8* const luminance = m_luminance.Row(bandRow);
    quint8* const blueness = m_blueness.Row(bandRow);
    quint8* const redness = m_redness.Row(bandRow);
    const int width = m_image.width();
    ConvertRow(pixels, width, luminance, blueness, redness);
    for (JpegPlane* plane : {&m_luminance, &m_blueness, &m_redness})
        FillRow(*plane, bandRow, width);
}

void JpegSamples::ConvertGrey(int row, int bandRow)
{
    const QRgb* const pixels = Pixels(row);
    quint8* const luminance = m_luminance.Row(bandRow);
    for (int x = 0; x < m_image.width(); ++x)
        luminance[x] = static_cast<quint8>(qRed(pixels[x]));
    FillRow(m_luminance, bandRow, m_image.width());
}

/// Below the picture the last halved row is repeated, not the halves of its last row.
void JpegSamples::Halve(int top)
{
    const int lastRow = (m_image.height() - top + 1) / 2 - 1;
    for (int i = 0; i < BandRows / 2; ++i) {
        const int row = 2 * qMin(i, lastRow);
        const int columns = m_halfBlueness.Stride();
        HalveRows(m_blueness.Row(row), m_blueness.Row(row + 1), columns, m_halfBlueness.Row(i));
        HalveRows(m_redness.Row(row), m_redness.Row(row + 1), columns, m_halfRedness.Row(i));
    }
}

} // namespace UICommonMdl
