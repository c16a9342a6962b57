#include "JpegTransform.h"

#include "JpegVectors.h"

namespace UICommonMdl {

namespace {

constexpr size_t Side = 8;
constexpr int Middle = 128; // of the samples' range
constexpr int FactorBits = 13; // fractional bits of the factors
constexpr int PassBits = 2; // fractional bits kept between the two passes

using Lanes = std::array<qint16, Side>;
using Matrix = std::array<Lanes, Side>;

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

/// One pass along the first index, for all eight lanes at a time. 16 bits hold every sum, and let the
/// compiler multiply eight lanes in one instruction. The first pass gives PassBits fractional bits, the
/// second takes them away again.
template <bool First>
void Pass(const Matrix& in, Matrix& out)
{
    constexpr int Bits = First ? FactorBits - PassBits : FactorBits + PassBits;
    for (size_t i = 0; i < Side; ++i) {
        const auto sum0 = static_cast<qint16>(in[0][i] + in[7][i]);
        const auto sum1 = static_cast<qint16>(in[1][i] + in[6][i]);
        const auto sum2 = static_cast<qint16>(in[2][i] + in[5][i]);
        const auto sum3 = static_cast<qint16>(in[3][i] + in[4][i]);
        const auto outer = static_cast<qint16>(sum0 + sum3);
        const auto inner = static_cast<qint16>(sum1 + sum2);
        const auto outerTurn = static_cast<qint16>(sum0 - sum3);
        const auto innerTurn = static_cast<qint16>(sum1 - sum2);
        const int mean = outer + inner;
        const int turn = outer - inner;
        out[0][i] = static_cast<qint16>(First ? mean * (1 << PassBits) : Rounded(mean, PassBits));
        out[4][i] = static_cast<qint16>(First ? turn * (1 << PassBits) : Rounded(turn, PassBits));
        out[2][i] = static_cast<qint16>(Rounded(outerTurn * 10703 + innerTurn * 4433, Bits));
        out[6][i] = static_cast<qint16>(Rounded(outerTurn * 4433 - innerTurn * 10704, Bits));

        const auto a = static_cast<qint16>(in[0][i] - in[7][i]);
        const auto b = static_cast<qint16>(in[1][i] - in[6][i]);
        const auto c = static_cast<qint16>(in[2][i] - in[5][i]);
        const auto d = static_cast<qint16>(in[3][i] - in[4][i]);
        out[1][i] = static_cast<qint16>(Rounded(a * 11363 + b * 9633 + c * 6437 + d * 2260, Bits));
        out[3][i] = static_cast<qint16>(Rounded(a * 9633 - b * 2259 - c * 11362 - d * 6436, Bits));
        out[5][i] = static_cast<qint16>(Rounded(a * 6437 - b * 11362 + c * 2261 + d * 9633, Bits));
        out[7][i] = static_cast<qint16>(Rounded(a * 2260 - b * 6436 + c * 9633 - d * 11363, Bits));
    }
}

Matrix Transposed(const Matrix& matrix)
{
    Matrix result;
    for (size_t i = 0; i < Side; ++i)
        for (size_t k = 0; k < Side; ++k)
            result[k][i] = matrix[i][k];
    return result;
}

} // namespace

const std::array<quint8, JpegBlockSize> JpegZigzag = MakeZigzag();

JPEG_WIDE_VECTORS
JpegCoefficients JpegTransform(const quint8* samples, int stride)
{
    Matrix columns; // rows first: a lane is a row of samples
    for (size_t y = 0; y < Side; ++y, samples += stride)
        for (size_t x = 0; x < Side; ++x)
            columns[x][y] = static_cast<qint16>(samples[x] - Middle);
    Matrix half;
    Pass<true>(columns, half);
    half = Transposed(half);
    Matrix whole;
    Pass<false>(half, whole);

    JpegCoefficients result;
    for (size_t i = 0; i < JpegBlockSize; ++i)
        result[i] = whole[i / Side][i % Side];
    return result;
}

} // namespace UICommonMdl
