#pragma once

#include <QByteArray>
#include <QtEndian>
#include <QtGlobal>
#include <array>

namespace UICommonMdl {

/// Bits as they stand in a JPEG: the highest of a byte first, and a zero after each byte of 255.
class JpegBits
{
public:
    /// Adds the lowest @p length bits of @p value, at most 32; the others have to be 0.
    void Put(quint32 value, quint32 length)
    {
        m_waiting = m_waiting << length | value;
        m_count += length;
        if (m_count >= WordBits)
            PutWord();
    }

    /// All bytes, the last one filled up with ones. Nothing can be added then.
    QByteArray Finished()
    {
        const quint32 missing = (WordBits - m_count) % 8;
        Put((1U << missing) - 1, missing);
        Flush();
        for (; m_count > 0; m_count -= 8)
            PutByte(m_waiting >> (m_count - 8));
        Flush();
        return m_bytes;
    }

private:
    static constexpr quint32 WordBits = 32;

    void PutWord()
    {
        m_count -= WordBits;
        const auto word = static_cast<quint32>(m_waiting >> m_count);
        if (m_used + 2 * sizeof(word) > m_buffer.size())
            Flush();
        // A byte of 255 has its highest bit set and loses it when one is added.
        if ((word & ~(word + 0x01010101) & 0x80808080) == 0) {
            qToBigEndian(word, &m_buffer[m_used]);
            m_used += sizeof(word);
            return;
        }
        for (quint32 rest = WordBits; rest > 0; rest -= 8)
            PutByte(word >> (rest - 8));
    }

    void PutByte(quint64 value)
    {
        const auto byte = static_cast<char>(value & 0xFF);
        m_buffer[m_used++] = byte;
        if (byte == '\xFF')
            m_buffer[m_used++] = '\0';
    }

    void Flush()
    {
        m_bytes.append(m_buffer.data(), static_cast<int>(m_used));
        m_used = 0;
    }

    QByteArray m_bytes;
    std::array<char, 4096> m_buffer{}; ///< bytes that are not added to the others yet
    size_t m_used = 0;
    quint64 m_waiting = 0; ///< the lowest m_count bits are not written yet
    quint32 m_count = 0;
};

} // namespace UICommonMdl
