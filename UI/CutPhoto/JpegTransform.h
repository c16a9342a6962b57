#pragma once

#include "JpegTables.h"

#include <QtGlobal>
#include <array>

namespace UICommonMdl {

/// Blocks that are transformed together, so that each step is a vector instruction for all of them.
constexpr int JpegLanes = 16;

/// One value of each of these blocks.
using JpegVector = std::array<qint16, JpegLanes>;

/// The coefficients of the blocks by vertical, then horizontal frequency, eight times too large.
using JpegCoefficients = std::array<JpegVector, JpegBlockSize>;

/// The coefficients' places in zigzag order: vertical frequency * 8 + horizontal frequency.
extern const std::array<quint8, JpegBlockSize> JpegZigzag;

/// The cosine transforms of JpegLanes blocks of 8 x 8 samples side by side, the first of them at @p samples,
/// whose rows are @p stride apart. The rounding is that of the usual "slow" integer transform, to the last
/// bit.
void JpegTransform(const quint8* samples, int stride, JpegCoefficients& coefficients);

/// For each block the places, as bits in zigzag order, where a coefficient's magnitude is at least that of
/// @p least, which has the same order.
std::array<quint64, JpegLanes>
JpegPlaces(const JpegCoefficients& coefficients, const std::array<qint16, JpegBlockSize>& least);

} // namespace UICommonMdl
