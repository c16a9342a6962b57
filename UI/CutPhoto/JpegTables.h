#pragma once

#include <QByteArray>
#include <QtGlobal>
#include <array>
#include <optional>

namespace UICommonMdl {

/// Coefficients and samples of a block.
constexpr int JpegBlockSize = 64;

/// A Huffman code; no bits for a symbol that is not written.
struct JpegCode
{
    quint16 code = 0;
    quint8 length = 0; ///< in bits
};

/// How the coefficients of a component are written.
struct JpegCoding
{
    std::array<int, JpegBlockSize> divisors{}; ///< quantisation, in zigzag order
    std::array<JpegCode, 16> dc; ///< by the bits of a DC difference, which follow
    std::array<JpegCode, 256> ac; ///< by (zeros before a value << 4 | bits of the value, which follow)
};

/// What an encoder has written into a baseline JPEG: enough to say how many bytes it makes of another
/// picture.
struct JpegTables
{
    int headerBytes = 0; ///< all before the picture's bits
    int scanBytes = 0; ///< the picture's bits; the mark at the end follows
    bool colored = false; ///< luminance and two chrominances of half its size, otherwise luminance only
    JpegCoding luminance;
    JpegCoding chrominance;
};

constexpr int JpegEndBytes = 2; ///< the mark at the end of a JPEG

/// Reads the tables of @p jpeg; nothing when it is of another kind: progressive, restarted, with other
/// components, subsampling or precision, or damaged.
std::optional<JpegTables> ReadJpegTables(const QByteArray& jpeg);

} // namespace UICommonMdl
