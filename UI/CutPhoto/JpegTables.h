#pragma once

#include <QByteArray>
#include <QtGlobal>
#include <array>
#include <optional>

namespace UICommonMdl {

/// Coefficients and samples of a block.
constexpr int JpegBlockSize = 64;

/// How the coefficients of a component are written.
struct JpegCoding
{
    std::array<int, JpegBlockSize> divisors{}; ///< quantisation, in zigzag order
    std::array<int, 16> dcBits{}; ///< bits that a DC difference of so many bits takes, its code included
    std::array<int, 256> acBits{}; ///< the same for (zeros before it << 4 | bits of the value)
};

/// What an encoder has written into a baseline JPEG: enough to say how many bytes it makes of another
/// picture.
struct JpegTables
{
    int headerBytes = 0; ///< all before the first bit of the picture
    qint64 scanBytes = 0; ///< the bits of the picture, without the zeros stuffed after bytes of 255
    bool colored = false; ///< luminance and two chrominances of half its size, otherwise luminance only
    JpegCoding luminance;
    JpegCoding chrominance;
};

/// Reads the tables of @p jpeg; nothing when it is of another kind: progressive, restarted, with other
/// components, subsampling or precision, or damaged.
std::optional<JpegTables> ReadJpegTables(const QByteArray& jpeg);

} // namespace UICommonMdl
