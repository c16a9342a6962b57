#pragma once

#include "JpegTables.h"

#include <QtGlobal>
#include <array>

namespace UICommonMdl {

/// The coefficients of a block by vertical, then horizontal frequency, eight times too large.
using JpegCoefficients = std::array<qint16, JpegBlockSize>;

/// The coefficients' places in zigzag order: vertical frequency * 8 + horizontal frequency.
extern const std::array<quint8, JpegBlockSize> JpegZigzag;

/// The cosine transform of the 8 x 8 samples at @p samples, whose rows are @p stride apart. The rounding is
/// that of the usual "slow" integer transform, to the last bit.
JpegCoefficients JpegTransform(const quint8* samples, int stride);

} // namespace UICommonMdl
