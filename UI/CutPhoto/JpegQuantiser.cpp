#include "JpegQuantiser.h"

namespace UICommonMdl {

namespace {

constexpr int Scale = 8; // coefficients are too large by this
constexpr size_t LongestRun = 16; // of zeros, written as a symbol of its own
constexpr size_t SixteenZeros = (LongestRun - 1) << 4;
constexpr size_t RestZero = 0;

/// Adds a value's code and then the value itself with as many bits as it has, of a negative one the opposite
/// bits.
void Put(JpegBits& bits, const JpegCode& code, quint32 magnitude, quint32 length, bool negative)
{
    const quint32 value = negative ? (1U << length) - 1 - magnitude : magnitude;
    bits.Put(quint32(code.code) << length | value, code.length + length);
}

} // namespace

JpegQuantiser::JpegQuantiser(const JpegCoding& coding)
    : m_coding(coding)
{
    for (size_t i = 0; i < JpegBlockSize; ++i) {
        const int divisor = coding.divisors[i] * Scale;
        m_least[i] = static_cast<qint16>(divisor / 2);
        m_reciprocals[i] = static_cast<quint32>((quint64(1) << 32) / static_cast<quint64>(divisor) + 1);
    }
    m_reciprocals[JpegBlockEnd.place] = ~quint32(0);
    for (quint32 length = 0; length < Lengths; ++length)
        m_meanBits[length] = coding.dc[length].length + length;
    for (size_t zeros = 0; zeros < JpegBlockSize; ++zeros) {
        const auto runs = static_cast<quint32>(zeros / LongestRun) * coding.ac[SixteenZeros].length;
        quint32* const bits = &m_detailBits[zeros * Lengths];
        for (quint32 length = 1; length < JpegEndLength; ++length)
            bits[length] = runs + coding.ac[zeros % LongestRun << 4 | length].length + length;
        bits[JpegEndLength] = zeros == 0 ? 0 : coding.ac[RestZero].length; // told unless the block is full
    }
}

qint64 JpegQuantiser::DetailBits(JpegDetails& details) const
{
    qint64 bits = 0;
    JpegDetail* kept = details.data();
    quint32 next = 1; // place that may follow the last one without zeros between
    // Without branches: which values are kept cannot be predicted.
    for (const JpegDetail detail : details) {
        const quint32 place = detail.place;
        const quint32 length = HalfLength(Doubled(detail.magnitude, place));
        bits += m_detailBits[(place - next) * Lengths + length];
        const quint32 taken = length == 0 ? 0 : 1;
        *kept = detail;
        kept += taken;
        next = taken ? place % JpegBlockEnd.place + 1 : next;
    }
    details.resize(static_cast<size_t>(kept - details.data()));
    if (details.size() < details.capacity() / 2)
        details.shrink_to_fit();
    return bits;
}

quint32 JpegQuantiser::EmptyBits() const { return m_meanBits[0] + m_coding.ac[RestZero].length; }

void JpegQuantiser::PutMean(JpegBits& bits, int difference) const
{
    const quint32 length = Length(difference);
    Put(bits, m_coding.dc[length], static_cast<quint32>(std::abs(difference)), length, difference < 0);
}

const JpegDetail* JpegQuantiser::PutDetails(JpegBits& bits, const JpegDetail* next) const
{
    size_t place = 1;
    for (; next->place != JpegBlockEnd.place; ++next) {
        size_t zeros = next->place - place;
        for (; zeros >= LongestRun; zeros -= LongestRun)
            Put(bits, m_coding.ac[SixteenZeros], 0, 0, false);
        const quint32 magnitude = Doubled(next->magnitude, next->place) / 2;
        const quint32 length = HalfLength(2 * magnitude);
        Put(bits, m_coding.ac[zeros << 4 | length], magnitude, length, next->negative != 0);
        place = next->place + 1U;
    }
    if (place != JpegBlockEnd.place)
        Put(bits, m_coding.ac[RestZero], 0, 0, false);
    return next + 1;
}

void JpegQuantiser::PutEmpty(JpegBits& bits) const
{
    PutMean(bits, 0);
    Put(bits, m_coding.ac[RestZero], 0, 0, false);
}

} // namespace UICommonMdl
