#pragma once

#include "JpegQuantiser.h"
#include "JpegSamples.h"
#include "JpegTables.h"
#include "JpegTransform.h"

#include <QByteArray>
#include <QImage>
#include <QtGlobal>
#include <array>
#include <optional>
#include <vector>

namespace UICommonMdl {

/// A picture as a JPEG encoder sees it before it quantises: the cosine transforms of its 8 x 8 blocks, from
/// which the bits at one quality after the other are counted, and written.
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

    /// The picture's bits as the encoder writes them; nothing when they surely take more than @p enough
    /// bytes.
    std::optional<QByteArray> Written(const JpegTables& tables, qint64 enough);

private:
    /// A row of blocks.
    struct Row
    {
        JpegDetails details;
        std::vector<qint16> means;
    };
    /// 16 rows of the picture: two rows of luminance and, when coloured, one of each chrominance.
    using Band = std::array<Row, 4>;
    using Means = std::array<int, 3>; ///< one of each component
    using Quantisers = std::array<JpegQuantiser, 2>; ///< of luminance and chrominance

    bool AddBand(const Quantisers& quantisers);
    Row Transformed(const JpegPlane& plane, int row, int columns, const JpegQuantiser& quantiser);
    template <typename Visit>
    void ForEachBlock(const Band& band, Visit visit) const;
    qint64 MeanBits(const Band& band, const Quantisers& quantisers, Means& previous) const;
    qint64 Bits(const Quantisers& quantisers, qint64 enough);
    void Write(const Band& band, const Quantisers& quantisers, Means& previous, JpegBits& bits) const;

    const QSize m_size;
    const bool m_colored;
    JpegSamples m_samples;
    JpegDetails m_found; ///< room for all of a row
    std::optional<JpegTables> m_tables; ///< counted with last
    std::vector<Band> m_bands;
};

} // namespace UICommonMdl
