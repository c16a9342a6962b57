#pragma once

#include "JpegBlocks.h"

#include <QImage>
#include <optional>

namespace UICommonMdl {

/// Tells of one quality after the other, quickly, that a picture is too large as a JPEG.
///
/// It never guesses: a small part of the picture is really encoded at each quality, which gives the encoder's
/// tables and shows that counting with them comes to the true size. Where that is not so (another encoder, a
/// format that is not covered) it says nothing.
class JpegForecast
{
public:
    explicit JpegForecast(const QImage& image);

    /// True when @p image surely takes more than @p maximum bytes at @p quality; false when it does not or
    /// that cannot be told. Ask from high to low qualities.
    bool Exceeds(int quality, int maximum);

private:
    bool Prepare(const JpegTables& tables);

    const QImage m_image;
    const QImage m_sample;
    bool m_covered; ///< nothing has spoken against counting yet
    std::optional<JpegBlocks> m_blocks;
    std::optional<JpegBlocks> m_sampleBlocks;
};

} // namespace UICommonMdl
