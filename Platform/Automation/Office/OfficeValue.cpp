#include <Platform/Automation/Office/OfficeValue.h>

#include <QColor>
#include <QDataStream>
#include <QDateTime>
#include <QIODevice>
#include <QStringList>

namespace Office {

namespace {

enum class Tag : quint8
{
    Nothing,
    False,
    True,
    Integer,
    Unsigned,
    Double,
    Text,
    Date,
    Moment,
    Color,
    List
};

// A call's arguments, of which one is a block, of rows, of cells.
constexpr int DeepestList = 4;

QDataStream& operator<<(QDataStream& stream, Tag tag) { return stream << static_cast<quint8>(tag); }

/// A moment of the calendar: zones other than the local one and UTC do not cross.
void WriteMoment(QDataStream& stream, const QDateTime& moment)
{
    stream << Tag::Moment << moment.date() << moment.time() << (moment.timeSpec() == Qt::UTC);
}

QVariant ReadMoment(QDataStream& stream)
{
    QDate date;
    QTime time;
    bool utc = false;
    stream >> date >> time >> utc;
    return QDateTime(date, time, utc ? Qt::UTC : Qt::LocalTime);
}

// In the machine's order, as both ends have it.
void WriteText(QDataStream& stream, const QString& text)
{
    stream << Tag::Text << quint32(text.size());
    stream.writeRawData(
        reinterpret_cast<const char*>(text.constData()), text.size() * static_cast<int>(sizeof(QChar)));
}

void WriteColor(QDataStream& stream, const QColor& color)
{
    if (color.isValid())
        stream << Tag::Color << quint32(color.rgba());
    else
        stream << Tag::Nothing;
}

void WriteNested(QDataStream& stream, const QVariant& value, int depth);

void WriteList(QDataStream& stream, const QVariantList& list, int depth)
{
    if (depth > DeepestList) {
        stream << Tag::Nothing;
        return;
    }
    stream << Tag::List << static_cast<quint32>(list.size());
    for (const QVariant& value : list)
        WriteNested(stream, value, depth);
}

void WriteNested(QDataStream& stream, const QVariant& value, int depth)
{
    switch (static_cast<QMetaType::Type>(value.type())) {
    case QMetaType::UnknownType:
        stream << Tag::Nothing;
        break;
    case QMetaType::Bool:
        stream << (value.toBool() ? Tag::True : Tag::False);
        break;
    case QMetaType::Int:
    case QMetaType::LongLong:
        stream << Tag::Integer << value.toLongLong();
        break;
    case QMetaType::UInt:
    case QMetaType::ULongLong:
        stream << Tag::Unsigned << value.toULongLong();
        break;
    case QMetaType::Float:
    case QMetaType::Double:
        stream << Tag::Double << value.toDouble();
        break;
    case QMetaType::QDate:
        stream << Tag::Date << value.toDate();
        break;
    case QMetaType::QDateTime:
        WriteMoment(stream, value.toDateTime());
        break;
    case QMetaType::QColor:
        WriteColor(stream, value.value<QColor>());
        break;
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        WriteList(stream, value.toList(), depth + 1);
        break;
    default:
        WriteText(stream, value.toString());
    }
}

template <typename Value>
QVariant Read(QDataStream& stream)
{
    Value value{};
    stream >> value;
    return QVariant::fromValue(value);
}

QVariant Refuse(QDataStream& stream)
{
    stream.setStatus(QDataStream::ReadCorruptData);
    return QVariant();
}

QVariant ReadText(QDataStream& stream)
{
    quint32 size = 0;
    stream >> size;
    if (size > stream.device()->bytesAvailable() / static_cast<qint64>(sizeof(QChar)))
        return Refuse(stream);
    QString text(static_cast<int>(size), Qt::Uninitialized);
    stream.readRawData(reinterpret_cast<char*>(text.data()), text.size() * static_cast<int>(sizeof(QChar)));
    return text;
}

QVariant ReadNested(QDataStream& stream, int depth);

QVariant ReadList(QDataStream& stream, int depth)
{
    quint32 count = 0;
    stream >> count;
    if (depth > DeepestList)
        return Refuse(stream);
    QVariantList list;
    for (quint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i)
        list << ReadNested(stream, depth);
    return list;
}

QVariant ReadNested(QDataStream& stream, int depth)
{
    quint8 tag = 0;
    stream >> tag;
    switch (static_cast<Tag>(tag)) {
    case Tag::Nothing:
        return QVariant();
    case Tag::False:
        return false;
    case Tag::True:
        return true;
    case Tag::Integer:
        return Read<qlonglong>(stream);
    case Tag::Unsigned:
        return Read<qulonglong>(stream);
    case Tag::Double:
        return Read<double>(stream);
    case Tag::Text:
        return ReadText(stream);
    case Tag::Date:
        return Read<QDate>(stream);
    case Tag::Moment:
        return ReadMoment(stream);
    case Tag::Color:
        return QColor::fromRgba(Read<quint32>(stream).toUInt());
    case Tag::List:
        return ReadList(stream, depth + 1);
    }
    return Refuse(stream);
}

} // namespace

void WriteValue(QDataStream& stream, const QVariant& value) { WriteNested(stream, value, 0); }

QVariant ReadValue(QDataStream& stream) { return ReadNested(stream, 0); }

} // namespace Office
