#pragma once

#include "JpegBlocks.h"

#include <QImage>
#include <optional>

namespace UICommonMdl {

/// Tells quickly, of one quality after the other, how many bytes a picture takes as a JPEG.
///
/// It never guesses: a small part of the picture is really encoded at each quality, which gives the encoder's
/// tables and shows that what is written with them here is the same, bit for bit. Where it is not (another
/// encoder, a format that is not covered) it says nothing.
class JpegForecast
{
public:
    JpegForecast(const QImage& image, int maximum);

    /// The bytes of the picture at @p quality, any number above the maximum when there are more than that;
    /// nothing when it cannot be told. Ask from high to low qualities.
    std::optional<qint64> Bytes(int quality);

private:
    bool Prepare(const JpegTables& tables);

    const QImage m_image;
    const QImage m_sample;
    const qint64 m_maximum;
    bool m_covered; ///< nothing has spoken against counting yet
    std::optional<JpegBlocks> m_blocks;
    std::optional<JpegBlocks> m_sampleBlocks;
};

} // namespace UICommonMdl
