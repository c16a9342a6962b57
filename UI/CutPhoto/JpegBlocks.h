#pragma once

#include "JpegTables.h"

#include <QImage>
#include <QtGlobal>
#include <vector>

namespace UICommonMdl {

/// A picture as a JPEG encoder sees it before it quantises: the cosine transforms of its 8 x 8 blocks in the
/// order in which they are written, from which the size at one quality after the other is counted without
/// looking at the picture again.
///
/// Colour conversion, subsampling, padding at the edges and the transform are those of the JPEG library that
/// Qt writes with ("slow" integer transform), to the last bit. Count from fine to coarse: what a count rounds
/// to zero is forgotten, as a coarser one would do so too.
class JpegBlocks
{
public:
    /// Transforms @p image for being counted with @p finest or coarser tables.
    JpegBlocks(const QImage& image, const JpegTables& finest);

    /// Whether @p tables divide by as much as all tables counted with so far, or by more.
    bool CanCount(const JpegTables& tables) const;

    /// Bytes of the picture's bits, without zeros stuffed after bytes of 255; any number above @p enough
    /// when there are more than that.
    qint64 Bytes(const JpegTables& tables, qint64 enough);

private:
    /// A coefficient that is not rounded to zero.
    struct Coefficient
    {
        qint16 magnitude;
        quint8 place; ///< in zigzag order, 1 to 63
    };
    struct Block
    {
        quint32 first; ///< of its coefficients
        quint8 count;
        quint8 component; ///< 0 luminance, 1 and 2 chrominance
        quint8 repeats; ///< blocks after this one that fill up its group at the picture's edge
        qint16 dc;
    };
    struct Quantiser;

    void AddColored(const QImage& image);
    void AddGrey(const QImage& image);
    void Add(const quint8* samples, int stride, int component);
    qint64 AcBits(Block& block, const Quantiser& quantiser);

    JpegTables m_tables; ///< counted with last
    std::vector<Coefficient> m_coefficients;
    std::vector<Block> m_blocks;
};

} // namespace UICommonMdl
