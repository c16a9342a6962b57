#pragma once

#include <QImage>
#include <QtGlobal>
#include <vector>

namespace UICommonMdl {

/// A band of samples, as wide as the blocks of whole transforms.
class JpegPlane
{
public:
    JpegPlane(int columns, int rows);
    quint8* Row(int y) { return m_samples.data() + static_cast<ptrdiff_t>(y) * m_stride; }
    const quint8* At(int x, int y) const
    {
        return m_samples.data() + static_cast<ptrdiff_t>(y) * m_stride + x;
    }
    int Stride() const { return m_stride; }

private:
    int m_stride;
    std::vector<quint8> m_samples;
};

/// A picture's samples as a JPEG encoder has them, a band of 16 rows at a time: converted to luminance and,
/// when coloured, two chrominances of half the size, with the edges repeated up to whole transforms.
class JpegSamples
{
public:
    static constexpr int BandRows = 16;

    JpegSamples(const QImage& image, bool colored);

    /// Converts the band that begins with the picture's row @p top, a multiple of BandRows.
    void ConvertBand(int top);

    /// BandRows rows of luminance.
    const JpegPlane& Luminance() const { return m_luminance; }
    /// Half as many rows and columns of each chrominance; of a grey picture the values say nothing.
    const JpegPlane& Blueness() const { return m_halfBlueness; }
    const JpegPlane& Redness() const { return m_halfRedness; }

private:
    const QRgb* Pixels(int row);
    void ConvertColored(int row, int bandRow);
    void ConvertGrey(int row, int bandRow);
    void Halve(int top);

    const QImage m_image;
    const bool m_colored;
    const bool m_direct; ///< the picture's own pixels can be read
    QImage m_strip; ///< some rows of a picture whose pixels cannot
    int m_stripTop = 0;
    JpegPlane m_luminance;
    JpegPlane m_blueness;
    JpegPlane m_redness;
    JpegPlane m_halfBlueness;
    JpegPlane m_halfRedness;
};

} // namespace UICommonMdl
