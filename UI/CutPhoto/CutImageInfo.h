#pragma once

#include <QImage>
#include <QString>

namespace UICommonMdl {

/// What a crop canvas or a crop dialog holds and gives back: a picture and where it came from.
///
/// Before the operator's choice was found valid, `image` is the full source picture; after it, the cut.
struct CutImageInfo
{
    bool bHasImage = false; ///< a source picture was set, from which a crop can be taken
    QImage image; ///< in the source's own resolution; null when there is none
    QString strFilePath; ///< the file that was read; empty for a picture handed over in memory

    /// Back to "no picture": no flag, a null image, an empty path.
    void Clear() { *this = CutImageInfo(); }
};

} // namespace UICommonMdl
