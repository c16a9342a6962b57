#include <Common/IniCodec.h>

#include <QTextCodec>
#include <utility>

namespace {

class PairingUtf8 : public QTextCodec
{
public:
    /// Qt finds codecs by these two: they must not be those of its own UTF-8 codec.
    QByteArray name() const override { return QByteArrayLiteral("UTF-8-of-INI-files"); }
    int mibEnum() const override { return -106; }

protected:
    QString convertToUnicode(const char* bytes, int size, ConverterState* state) const override
    {
        return m_utf8->toUnicode(bytes, size, state);
    }

    QByteArray convertFromUnicode(const QChar* text, int size, ConverterState* state) const override
    {
        thread_local QChar firstHalf; // files may be written by several threads
        const QChar first = std::exchange(firstHalf, QChar());
        if (size == 1 && text->isHighSurrogate()) {
            firstHalf = *text;
            return QByteArray();
        }
        if (size == 1 && text->isLowSurrogate() && first.isHighSurrogate()) {
            const QChar pair[] = {first, *text};
            return m_utf8->fromUnicode(pair, 2, state);
        }
        return m_utf8->fromUnicode(text, size, state);
    }

private:
    QTextCodec* m_utf8 = QTextCodec::codecForName("UTF-8");
};

} // namespace

QTextCodec* IniCodec()
{
    static QTextCodec* const codec = new PairingUtf8; // Qt owns every codec
    return codec;
}
