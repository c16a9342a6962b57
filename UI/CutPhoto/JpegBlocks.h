#pragma once

#include "JpegSamples.h"
#include "JpegTables.h"
#include "JpegTransform.h"

#include <QImage>
#include <QtGlobal>
#include <optional>
#include <vector>

namespace UICommonMdl {

/// A picture as a JPEG encoder sees it before it quantises: the cosine transforms of its 8 x 8 blocks in the
/// order in which they are written, from which the size at one quality after the other is counted.
///
/// Samples and transform are those of the JPEG library that Qt writes with, to the last bit. Count from fine
/// to coarse tables: what a count rounds to zero is forgotten, as a coarser one would round it to zero too.
/// Each part of the picture is transformed when a count first comes to it.
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
    /// A coefficient that is not rounded to zero.
    struct Coefficient
    {
        qint16 magnitude;
        quint8 place; ///< in zigzag order, 1 to 63
    };
    struct Block
    {
        quint32 first; ///< of its coefficients
        qint16 dc;
        quint8 count;
        quint8 component; ///< 0 luminance, 1 and 2 chrominance
        quint8 repeats; ///< blocks after this one that fill up its group at the picture's edge
    };
    struct Quantiser;

    bool AddBand();
    void AddColoredGroup(int left, int blockColumns, int blockRows);
    void Add(const JpegPlane& plane, int left, int top, int component);
    qint64 AcBits(Block& block, const Quantiser& quantiser);

    const QSize m_size;
    const bool m_colored;
    JpegSamples m_samples;
    int m_nextTop = 0; ///< of the part of the picture that is not transformed yet
    std::optional<JpegTables> m_tables; ///< counted with last
    std::vector<Coefficient> m_coefficients;
    std::vector<Block> m_blocks;
};

} // namespace UICommonMdl
