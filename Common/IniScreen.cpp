#include <Common/IniScreen.h>

#include <QDataStream>
#include <QDateTime>
#include <QString>
#include <QTimeZone>
#include <QVariant>
#include <algorithm>
#include <iterator>

namespace {

constexpr int DeepestNesting = 16;
constexpr int ColorSize = 11; // in a stream
constexpr quint32 UserTypeInQt4 = 127; // is followed by the type's name
constexpr quint32 FirstExtendedTypeInQt4 = 128; // QMetaType::VoidStar

bool IsHexDigit(QChar character)
{
    return (character >= QLatin1Char('0') && character <= QLatin1Char('9'))
        || (character.toLower() >= QLatin1Char('a') && character.toLower() <= QLatin1Char('f'));
}
bool IsOctalDigit(QChar character) { return character >= QLatin1Char('0') && character <= QLatin1Char('7'); }

/// The character of the digits at @p at, as QSettings takes it: as many as there are.
template <typename IsDigit>
QString Number(const QString& text, int& at, uint base, IsDigit isDigit)
{
    if (at >= text.size() || !isDigit(text.at(at)))
        return QString();
    uint value = 0;
    for (; at < text.size() && isDigit(text.at(at)); ++at)
        value = value * base + static_cast<uint>(QString(text.at(at)).toInt(nullptr, 16));
    return QString(QChar(static_cast<ushort>(value)));
}

bool IsLineEnd(QChar character) { return character == QLatin1Char('\n') || character == QLatin1Char('\r'); }

/// What the character behind a backslash stands for, which @p at is moved over; empty for a line end, of one
/// character or two, and others.
QString Escaped(const QString& text, int& at)
{
    static const QString names = QStringLiteral("abfnrtv\"?'\\");
    static const QString meanings = QStringLiteral("\a\b\f\n\r\t\v\"?'\\");
    const QChar character = text.at(at);
    if (IsOctalDigit(character))
        return Number(text, at, 8, IsOctalDigit);
    ++at;
    if (IsLineEnd(character) && at < text.size() && IsLineEnd(text.at(at)) && text.at(at) != character)
        ++at;
    if (character == QLatin1Char('x'))
        return Number(text, at, 16, IsHexDigit);
    const int index = names.indexOf(character);
    return meanings.mid(index, index < 0 ? 0 : 1);
}

/// The text without its escapes and quotation marks, and without the byte order marks that QSettings skips:
/// it decodes what is between escapes, quotation marks and separators piece by piece.
QString Unescaped(const QString& text)
{
    constexpr QChar byteOrderMark(0xFEFF);
    QString plain;
    plain.reserve(text.size());
    bool isPieceBegin = true;
    for (int at = 0; at < text.size();) {
        const QChar character = text.at(at++);
        const bool isEscape = character == QLatin1Char('\\') && at < text.size();
        if (isEscape)
            plain += Escaped(text, at);
        else if (character != QLatin1Char('"') && !(isPieceBegin && character == byteOrderMark))
            plain += character;
        isPieceBegin
            = isEscape || QStringLiteral("\"=,").contains(character) || (isPieceBegin && character.isSpace());
    }
    return plain;
}

/// QSettings does not survive to write a time of a zone that this machine does not know.
bool HasKnownZone(const QDateTime& time)
{
    return time.timeSpec() != Qt::TimeZone || time.timeZone().isValid();
}

/// Walks through a streamed object without making any.
class Walker
{
public:
    Walker(const QByteArray& bytes, QDataStream::Version version)
        : m_size(bytes.size())
        , m_stream(bytes)
    {
        m_stream.setVersion(version);
    }

    bool IsSafe() { return IsSafeObject(0); }

private:
    bool IsSafeObject(int depth)
    {
        quint32 type = 0;
        m_stream >> type;
        if (m_stream.version() >= QDataStream::Qt_4_2)
            m_stream.skipRawData(1); // whether it is null
        // Kinds of numbers, from long to signed char, had other ids in Qt 4.
        if (m_stream.version() < QDataStream::Qt_5_0 && type >= FirstExtendedTypeInQt4)
            type -= FirstExtendedTypeInQt4 - QMetaType::VoidStar;
        switch (type) {
        case QMetaType::QVariantList:
            return depth < DeepestNesting && AreSafe(depth + 1, false);
        case QMetaType::QVariantMap:
        case QMetaType::QVariantHash:
            return depth < DeepestNesting && AreSafe(depth + 1, true);
        case QMetaType::QStringList:
            return SkipTexts();
        case QMetaType::QColor:
            m_stream.skipRawData(ColorSize);
            return true;
        case QMetaType::QFont: // whose reader needs an application
            return depth == 0;
        case UserTypeInQt4:
            return m_stream.version() < QDataStream::Qt_5_0 && IsUuid();
        default:
            return SkipPlain(type);
        }
    }

    bool AreSafe(int depth, bool keys)
    {
        const quint32 count = Count();
        for (quint32 i = 0; i < count && !m_stream.atEnd(); ++i) {
            if (keys)
                Skip<QString>();
            if (!IsSafeObject(depth))
                return false;
        }
        return m_honest;
    }

    bool SkipTexts()
    {
        const quint32 count = Count();
        for (quint32 i = 0; i < count && !m_stream.atEnd(); ++i)
            Skip<QString>();
        return m_honest;
    }

    /// A name and sixteen bytes: what unique ids are written as.
    bool IsUuid()
    {
        QByteArray name;
        m_stream >> name;
        return qstrcmp(name.constData(), "QUuid") == 0 && SkipPlain(QMetaType::QUuid);
    }

    bool SkipPlain(quint32 type);

    /// A number of things, each of which takes four bytes at least.
    quint32 Count()
    {
        quint32 count = 0;
        m_stream >> count;
        m_honest = count <= static_cast<quint32>(m_size) / 4;
        return m_honest ? count : 0;
    }

    template <typename Value>
    void Skip()
    {
        Value value{};
        m_stream >> value;
    }

    const int m_size;
    QDataStream m_stream;
    bool m_honest = true;
};

bool Walker::SkipPlain(quint32 type)
{
    // Their readers take memory for what they find only.
    static const int plain[]
        = {QMetaType::UnknownType, QMetaType::Bool,       QMetaType::Int,     QMetaType::UInt,
           QMetaType::LongLong,    QMetaType::ULongLong,  QMetaType::Double,  QMetaType::QChar,
           QMetaType::Long,        QMetaType::ULong,      QMetaType::Short,   QMetaType::UShort,
           QMetaType::Char,        QMetaType::SChar,      QMetaType::UChar,   QMetaType::Float,
           QMetaType::QString,     QMetaType::QByteArray, QMetaType::QDate,   QMetaType::QTime,
           QMetaType::QDateTime,   QMetaType::QUrl,       QMetaType::QLocale, QMetaType::QRect,
           QMetaType::QRectF,      QMetaType::QSize,      QMetaType::QSizeF,  QMetaType::QLine,
           QMetaType::QLineF,      QMetaType::QPoint,     QMetaType::QPointF, QMetaType::QUuid,
           QMetaType::QBitArray};
    if (std::find(std::begin(plain), std::end(plain), static_cast<int>(type)) == std::end(plain))
        return false;
    if (type == QMetaType::UnknownType) { // written as an empty text
        Skip<QString>();
        return true;
    }
    void* value = QMetaType::create(static_cast<int>(type));
    QMetaType::load(m_stream, static_cast<int>(type), value);
    const bool isSafe = type != QMetaType::QDateTime || HasKnownZone(*static_cast<QDateTime*>(value));
    QMetaType::destroy(static_cast<int>(type), value);
    return isSafe;
}

/// Whether what stands at @p at goes on with a text: QSettings looks for marks at the beginning of a value
/// only, which is behind "=" or ",". In front of a text that begins with "@" it writes another one.
bool IsInsideText(const QString& text, int at)
{
    while (at > 0 && text.at(at - 1) == QLatin1Char(' '))
        --at;
    const QChar before = at > 0 ? text.at(at - 1) : QChar();
    return before.isLetterOrNumber() || (before.isPunct() && before != QLatin1Char(','));
}

/// Whether all objects behind the mark are safe. It is looked for everywhere, not just where values begin: a
/// damaged file has its values elsewhere.
bool AreSafe(const QString& text, QLatin1String mark, QDataStream::Version version)
{
    for (int at = text.indexOf(mark); at >= 0; at = text.indexOf(mark, at + 1)) {
        if (!IsInsideText(text, at) && !Walker(text.mid(at + mark.size()).toLatin1(), version).IsSafe())
            return false;
    }
    return true;
}

} // namespace

bool IsSafeIniText(const QByteArray& text)
{
    if (!text.contains('@') && !text.contains('\\'))
        return true; // no mark, however it is written
    const QString plain = Unescaped(QString::fromUtf8(text.constData(), text.size()));
    return AreSafe(plain, QLatin1String("@Variant("), QDataStream::Qt_4_0)
        && AreSafe(plain, QLatin1String("@DateTime("), QDataStream::Qt_5_6);
}

bool IsSafeIniValue(const QVariant& value)
{
    switch (static_cast<QMetaType::Type>(value.type())) {
    case QMetaType::QString: // are not streamed, and may be long
    case QMetaType::QStringList:
    case QMetaType::QByteArray:
    case QMetaType::QKeySequence:
        return true;
    case QMetaType::QDateTime:
        return HasKnownZone(value.toDateTime());
    case QMetaType::QVariantList: {
        const QVariantList list = value.toList();
        return std::all_of(list.begin(), list.end(), IsSafeIniValue);
    }
    default: {
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        stream.setVersion(QDataStream::Qt_4_0);
        stream << value;
        return Walker(bytes, QDataStream::Qt_4_0).IsSafe();
    }
    }
}
