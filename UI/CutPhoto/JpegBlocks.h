#pragma once

#include "JpegSamples.h"
#include "JpegTables.h"
#include "JpegTransform.h"

#include <QImage>
#include <QtGlobal>
#include <array>
#include <optional>
#include <vector>

namespace UICommonMdl {

/// A picture as a JPEG encoder sees it before it quantises: the cosine transforms of its 8 x 8 blocks, from
/// which the size at one quality after the other is counted.
///
/// Samples and transform are those of the JPEG library that Qt writes with, to the last bit. Count from fine
/// to coarse tables: what a count rounds to zero is forgotten, as a coarser one would round it to zero too.
/// Each band of the picture is transformed when a count first comes to it.
class JpegBlocks
{
public:
    JpegBlocks(const QImage& image, bool colored);

    /// Whether @p tables divide by as much as all tables counted with so far, or by more.
    bool CanCount(const JpegTables& tables) const;

    /// Bytes of the picture's bits, without zeros stuffed after bytes of 255; any number above @p enough
    /// when there are more than that.
    qint64 Bytes(const JpegTables& tables, qint64 enough);

private:
    /// A coefficient that is not rounded to zero, or the end of a block.
    struct Coefficient
    {
        quint16 magnitude;
        quint16 place; ///< in zigzag order, 1 to 63; 64 at the end
    };
    /// One component of a band.
    struct Channel
    {
        std::vector<Coefficient> coefficients; ///< block after block, in any order
        std::vector<qint16> means; ///< of the blocks, in the order of writing
    };
    /// 16 rows of the picture.
    struct Band
    {
        std::array<Channel, 3> channels; ///< luminance, and when coloured two chrominances
        int fillers = 0; ///< blocks of luminance that fill up groups at the picture's edges
    };
    struct Quantiser;

    bool AddBand(const Quantiser& luminance, const Quantiser& chrominance);
    Channel Transformed(const JpegPlane& plane, const QSize& size, const Quantiser& quantiser);
    size_t MeanIndex(int column, int row, const QSize& size) const;
    static qint64 DetailBits(Channel& channel, const Quantiser& quantiser);
    static qint64 MeanBits(const Channel& channel, const Quantiser& quantiser, int& previous);

    const QSize m_size;
    const bool m_colored;
    JpegSamples m_samples;
    std::vector<Coefficient> m_found; ///< room for all of a channel
    std::optional<JpegTables> m_tables; ///< counted with last
    std::vector<Band> m_bands;
};

} // namespace UICommonMdl
