#pragma once

#include "JpegBits.h"
#include "JpegTables.h"

#include <QtAlgorithms>
#include <QtGlobal>
#include <array>
#include <cstdlib>
#include <vector>

namespace UICommonMdl {

/// A coefficient that is not rounded to zero, eight times too large, or the end of a block.
struct JpegDetail
{
    quint16 magnitude;
    quint8 place; ///< in zigzag order, 1 to 63; 64 at the end
    quint8 negative; ///< 0 or 1
};

/// The coefficients of blocks beside their means, each block with its end.
using JpegDetails = std::vector<JpegDetail>;

/// The end of a block: it is counted like a value that is longer than any and never rounded to zero.
constexpr int JpegEndLength = 14;
constexpr JpegDetail JpegBlockEnd{1 << (JpegEndLength - 1), JpegBlockSize, 0};

/// Divides the coefficients of a component by its divisors, counts the bits that they then take, and writes
/// them.
class JpegQuantiser
{
public:
    explicit JpegQuantiser(const JpegCoding& coding);

    /// The magnitudes in zigzag order from which on coefficients, eight times too large, are not rounded to
    /// zero.
    const std::array<qint16, JpegBlockSize>& Least() const { return m_least; }

    /// A block's mean, eight times too large, divided.
    int Mean(int mean) const
    {
        const auto magnitude = static_cast<int>(Doubled(static_cast<quint32>(std::abs(mean)), 0) / 2);
        return mean < 0 ? -magnitude : magnitude;
    }

    /// Bits of a divided mean that differs by @p difference from the one before it.
    quint32 MeanBits(int difference) const { return m_meanBits[Length(difference)]; }
    /// Bits of all @p details; takes those out of them that are rounded to zero.
    qint64 DetailBits(JpegDetails& details) const;
    /// Bits of a block without details that has the mean of the one before it.
    quint32 EmptyBits() const;

    void PutMean(JpegBits& bits, int difference) const;
    /// Adds the details from @p next to the end of a block; none may be rounded to zero.
    /// @return those of the next block
    const JpegDetail* PutDetails(JpegBits& bits, const JpegDetail* next) const;
    void PutEmpty(JpegBits& bits) const;

private:
    static constexpr size_t Lengths = 16; // in bits, of divided values, 0 included

    static quint32 Length(int value) { return HalfLength(static_cast<quint32>(std::abs(value)) * 2); }
    /// How many bits a value takes of which the double is given; the double's lowest bit says nothing.
    static quint32 HalfLength(quint32 value) { return 31 - qCountLeadingZeroBits(value | 1); }
    /// Twice the magnitude divided and rounded to the nearest, or one more; exact for all that fits into 16
    /// bits.
    quint32 Doubled(quint32 magnitude, size_t place) const
    {
        constexpr quint64 Half = quint64(1) << 31;
        return static_cast<quint32>((quint64(magnitude) * m_reciprocals[place] + Half) >> 31);
    }

    const JpegCoding m_coding;
    std::array<qint16, JpegBlockSize> m_least{};
    std::array<quint32, JpegBlockSize + 1> m_reciprocals{}; ///< of 32 fractional bits
    std::array<quint32, Lengths> m_meanBits{}; ///< by length
    /// By (zeros before it * Lengths + length).
    std::array<quint32, JpegBlockSize * Lengths> m_detailBits{};
};

} // namespace UICommonMdl
