#include "JpegTransform.h"

#include "JpegVectors.h"

namespace UICommonMdl {

namespace {

constexpr size_t Side = 8;
constexpr int Middle = 128; // of the samples' range
constexpr int FactorBits = 13; // fractional bits of the factors
constexpr int PassBits = 2; // fractional bits kept between the two passes

constexpr std::array<quint8, JpegBlockSize> MakeZigzag()
{
    std::array<quint8, JpegBlockSize> order{};
    int row = 0;
    int column = 0;
    const int last = static_cast<int>(Side) - 1;
    for (auto& place : order) {
        place = static_cast<quint8>(row * static_cast<int>(Side) + column);
        const bool upwards = (row + column) % 2 == 0;
        int& ahead = upwards ? column : row;
        int& back = upwards ? row : column;
        if (ahead == last)
            ++back;
        else {
            ++ahead;
            back = back > 0 ? back - 1 : 0;
        }
    }
    return order;
}

constexpr int Rounded(int value, int bits) { return (value + (1 << (bits - 1))) >> bits; }

/// One pass over eight values that are @p step apart, for all blocks at a time. 16 bits hold every sum, and
/// let the compiler multiply many in one instruction. The first pass gives PassBits fractional bits, the
/// second takes them away again.
template <bool First>
Q_ALWAYS_INLINE void Pass(JpegVector* values, size_t step)
{
    constexpr int Bits = First ? FactorBits - PassBits : FactorBits + PassBits;
    for (size_t i = 0; i < JpegLanes; ++i) {
        const auto at = [=](size_t k) -> qint16& { return values[k * step][i]; };
        const auto sum0 = static_cast<qint16>(at(0) + at(7));
        const auto sum1 = static_cast<qint16>(at(1) + at(6));
        const auto sum2 = static_cast<qint16>(at(2) + at(5));
        const auto sum3 = static_cast<qint16>(at(3) + at(4));
        const auto a = static_cast<qint16>(at(0) - at(7));
        const auto b = static_cast<qint16>(at(1) - at(6));
        const auto c = static_cast<qint16>(at(2) - at(5));
        const auto d = static_cast<qint16>(at(3) - at(4));

        const auto outer = static_cast<qint16>(sum0 + sum3);
        const auto inner = static_cast<qint16>(sum1 + sum2);
        const auto outerTurn = static_cast<qint16>(sum0 - sum3);
        const auto innerTurn = static_cast<qint16>(sum1 - sum2);
        const int mean = outer + inner;
        const int turn = outer - inner;
        at(0) = static_cast<qint16>(First ? mean * (1 << PassBits) : Rounded(mean, PassBits));
        at(4) = static_cast<qint16>(First ? turn * (1 << PassBits) : Rounded(turn, PassBits));
        at(2) = static_cast<qint16>(Rounded(outerTurn * 10703 + innerTurn * 4433, Bits));
        at(6) = static_cast<qint16>(Rounded(outerTurn * 4433 - innerTurn * 10704, Bits));
        at(1) = static_cast<qint16>(Rounded(a * 11363 + b * 9633 + c * 6437 + d * 2260, Bits));
        at(3) = static_cast<qint16>(Rounded(a * 9633 - b * 2259 - c * 11362 - d * 6436, Bits));
        at(5) = static_cast<qint16>(Rounded(a * 6437 - b * 11362 + c * 2261 + d * 9633, Bits));
        at(7) = static_cast<qint16>(Rounded(a * 2260 - b * 6436 + c * 9633 - d * 11363, Bits));
    }
}

} // namespace

const std::array<quint8, JpegBlockSize> JpegZigzag = MakeZigzag();

JPEG_WIDE_VECTORS
void JpegTransform(const quint8* samples, int stride, JpegCoefficients& coefficients)
{
    for (size_t y = 0; y < Side; ++y, samples += stride) {
        JpegVector* const row = &coefficients[y * Side];
        for (size_t i = 0; i < JpegLanes; ++i)
            for (size_t x = 0; x < Side; ++x)
                row[x][i] = static_cast<qint16>(samples[i * Side + x] - Middle);
        Pass<true>(row, 1);
    }
    for (size_t x = 0; x < Side; ++x)
        Pass<false>(&coefficients[x], Side);
}

JPEG_WIDE_VECTORS
std::array<quint64, JpegLanes>
JpegPlaces(const JpegCoefficients& coefficients, const std::array<qint16, JpegBlockSize>& least)
{
    constexpr size_t Part = 16; // bits, as many as a coefficient has
    std::array<quint64, JpegLanes> places{};
    for (size_t from = 0; from < JpegBlockSize; from += Part) {
        std::array<quint16, JpegLanes> part{};
        for (size_t k = 0; k < Part; ++k) {
            const JpegVector& values = coefficients[JpegZigzag[from + k]];
            const qint16 enough = least[from + k];
            for (size_t i = 0; i < JpegLanes; ++i) {
                const auto magnitude = static_cast<qint16>(values[i] < 0 ? -values[i] : values[i]);
                part[i] = static_cast<quint16>(part[i] | (magnitude >= enough ? 1U << k : 0U));
            }
        }
        for (size_t i = 0; i < JpegLanes; ++i)
            places[i] |= quint64(part[i]) << from;
    }
    return places;
}

} // namespace UICommonMdl
