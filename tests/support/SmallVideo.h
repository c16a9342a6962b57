#pragma once

#include <QBuffer>
#include <QDataStream>
#include <QFile>
#include <QImage>

namespace TestSupport {

/// A chunk of a RIFF file: its name, its length, its bytes.
inline QByteArray Chunk(const char* name, const QByteArray& bytes)
{
    QByteArray chunk(name);
    QDataStream stream(&chunk, QIODevice::WriteOnly | QIODevice::Append);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << quint32(bytes.size());
    return chunk + bytes + QByteArray(bytes.size() % 2, '\0');
}

inline QByteArray Numbers(std::initializer_list<quint32> numbers)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    for (const quint32 number : numbers)
        stream << number;
    return bytes;
}

/// Writes a second of small grey pictures as motion JPEG in an AVI file.
inline bool WriteSmallVideo(const QString& path)
{
    constexpr quint32 Side = 32;
    constexpr quint32 Frames = 25;
    QByteArray movie("movi");
    for (quint32 frame = 0; frame < Frames; ++frame) {
        QImage picture(Side, Side, QImage::Format_RGB32);
        picture.fill(qRgb(int(frame) * 10, int(frame) * 10, int(frame) * 10));
        QBuffer jpeg;
        if (!jpeg.open(QIODevice::WriteOnly) || !picture.save(&jpeg, "JPG"))
            return false;
        movie += Chunk("00dc", jpeg.data());
    }
    const QByteArray main = Numbers({1000000 / Frames, 0, 0, 0, Frames, 0, 1, 0, Side, Side, 0, 0, 0, 0});
    const QByteArray stream = "vidsMJPG" + Numbers({0, 0, 0, 1, Frames, 0, Frames, 0, 0, 0, 0, 0});
    const QByteArray format
        = Numbers({40, Side, Side, 24U << 16U | 1U}) + "MJPG" + Numbers({Side * Side * 3, 0, 0, 0, 0});
    const QByteArray head = "hdrl" + Chunk("avih", main)
        + Chunk("LIST", "strl" + Chunk("strh", stream) + Chunk("strf", format));
    QFile file(path);
    return file.open(QIODevice::WriteOnly)
        && file.write(Chunk("RIFF", "AVI " + Chunk("LIST", head) + Chunk("LIST", movie))) > 0;
}

} // namespace TestSupport
