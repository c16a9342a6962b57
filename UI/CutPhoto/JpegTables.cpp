#include "JpegTables.h"

#include <algorithm>

namespace UICommonMdl {

namespace {

enum Marker
{
    StartOfImage = 0xD8,
    EndOfImage = 0xD9,
    StartOfFrame = 0xC0, // baseline
    HuffmanTables = 0xC4,
    QuantisationTables = 0xDB,
    StartOfScan = 0xDA,
    ApplicationFirst = 0xE0,
    ApplicationLast = 0xEF,
    Comment = 0xFE
};

constexpr int MarkerBytes = 2;
constexpr int LengthBytes = 2;
constexpr int LongestCode = 16;

using Codes = std::array<JpegCode, 256>; // by symbol

/// The bytes of a JPEG up to its picture, segment by segment.
class Reader
{
public:
    explicit Reader(const QByteArray& jpeg)
        : m_bytes(jpeg)
    { }

    std::optional<JpegTables> Read();

private:
    int Byte(int at) const { return at < m_bytes.size() ? static_cast<quint8>(m_bytes.at(at)) : 0; }
    int Word(int at) const { return Byte(at) * 256 + Byte(at + 1); }

    bool ReadSegment(int marker, int from, int to);
    bool ReadQuantisation(int from, int to);
    bool ReadHuffman(int from, int to);
    bool ReadFrame(int from, int to);
    bool ReadScan(int from, int to) const;
    std::optional<JpegCoding> Coding(int table) const;
    std::optional<JpegTables> Tables(int scanStart) const;

    const QByteArray m_bytes;
    int m_components = 0;
    std::array<std::optional<std::array<int, JpegBlockSize>>, 2> m_divisors;
    std::array<std::optional<Codes>, 2> m_dc;
    std::array<std::optional<Codes>, 2> m_ac;
};

std::optional<JpegTables> Reader::Read()
{
    if (Word(0) != 0xFF00 + StartOfImage)
        return std::nullopt;
    int at = MarkerBytes;
    while (at + MarkerBytes + LengthBytes <= m_bytes.size() && Byte(at) == 0xFF) {
        const int marker = Byte(at + 1);
        const int from = at + MarkerBytes + LengthBytes;
        at += MarkerBytes + Word(at + MarkerBytes);
        if (at < from || at > m_bytes.size() || !ReadSegment(marker, from, at))
            return std::nullopt;
        if (marker == StartOfScan)
            return Tables(at);
    }
    return std::nullopt;
}

bool Reader::ReadSegment(int marker, int from, int to)
{
    switch (marker) {
    case QuantisationTables:
        return ReadQuantisation(from, to);
    case HuffmanTables:
        return ReadHuffman(from, to);
    case StartOfFrame:
        return ReadFrame(from, to);
    case StartOfScan:
        return ReadScan(from, to);
    default:
        return marker == Comment || (marker >= ApplicationFirst && marker <= ApplicationLast);
    }
}

bool Reader::ReadQuantisation(int from, int to)
{
    for (int at = from; at < to; at += 1 + JpegBlockSize) {
        const int table = Byte(at); // the high half byte is the precision: 0 for 8 bits
        if (table > 1 || at + 1 + JpegBlockSize > to)
            return false;
        auto& divisors = m_divisors[static_cast<size_t>(table)].emplace();
        for (int i = 0; i < JpegBlockSize; ++i)
            divisors[static_cast<size_t>(i)] = Byte(at + 1 + i);
    }
    return true;
}

bool Reader::ReadHuffman(int from, int to)
{
    int at = from;
    while (at + 1 + LongestCode <= to) {
        const int kind = Byte(at) >> 4; // 0 for DC, 1 for AC
        const auto table = static_cast<size_t>(Byte(at) & 15);
        if (kind > 1 || table > 1)
            return false;
        Codes& codes = (kind == 0 ? m_dc : m_ac)[table].emplace();
        int symbol = at + 1 + LongestCode;
        quint16 code = 0;
        for (int length = 1; length <= LongestCode; ++length, code = static_cast<quint16>(code << 1))
            for (int i = Byte(at + length); i > 0; --i)
                codes[static_cast<size_t>(Byte(symbol++))] = {code++, static_cast<quint8>(length)};
        at = symbol;
    }
    return at == to;
}

bool Reader::ReadFrame(int from, int to)
{
    constexpr int ComponentsAt = 5;
    constexpr int ComponentBytes = 3;
    m_components = Byte(from + ComponentsAt);
    if (Byte(from) != 8 || to - from != ComponentsAt + 1 + ComponentBytes * m_components)
        return false;
    if (m_components == 1)
        return true; // whatever its sampling, blocks follow each other
    // Each has a number, its sampling factors as two half bytes, and its quantisation table.
    const int first = from + ComponentsAt + 1;
    return m_components == 3 && Word(first + 1) == 0x2200 && Word(first + 1 + ComponentBytes) == 0x1101
        && Word(first + 1 + 2 * ComponentBytes) == 0x1101;
}

bool Reader::ReadScan(int from, int to) const
{
    constexpr int ComponentBytes = 2;
    if (Byte(from) != m_components || to - from != 4 + ComponentBytes * m_components)
        return false;
    // Luminance uses the Huffman tables 0, chrominance the tables 1.
    if (Byte(from + 2) != 0)
        return false;
    return m_components == 1 || (Byte(from + 4) == 0x11 && Byte(from + 6) == 0x11);
}

std::optional<JpegCoding> Reader::Coding(int table) const
{
    const auto i = static_cast<size_t>(table);
    if (!m_divisors[i] || !m_dc[i] || !m_ac[i])
        return std::nullopt;
    JpegCoding coding;
    coding.divisors = *m_divisors[i];
    for (const int divisor : coding.divisors)
        if (divisor == 0)
            return std::nullopt;
    std::copy_n(m_dc[i]->begin(), coding.dc.size(), coding.dc.begin());
    coding.ac = *m_ac[i];
    return coding;
}

std::optional<JpegTables> Reader::Tables(int scanStart) const
{
    const std::optional<JpegCoding> luminance = Coding(0);
    const std::optional<JpegCoding> chrominance = m_components == 1 ? luminance : Coding(1);
    const int scanEnd = m_bytes.size() - JpegEndBytes;
    if (!luminance || !chrominance || scanEnd < scanStart || Word(scanEnd) != 0xFF00 + EndOfImage)
        return std::nullopt;
    return JpegTables{scanStart, scanEnd - scanStart, m_components == 3, *luminance, *chrominance};
}

} // namespace

std::optional<JpegTables> ReadJpegTables(const QByteArray& jpeg) { return Reader(jpeg).Read(); }

} // namespace UICommonMdl
