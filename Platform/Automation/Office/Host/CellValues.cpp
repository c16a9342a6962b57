#include <Platform/Automation/Office/Host/CellValues.h>

#include <Platform/Automation/Office/Host/UnoText.h>

#include <algorithm>
#include <cmath>

namespace Office {

using com::sun::star::uno::Any;

namespace {

constexpr double MillisecondsOfDay = 24.0 * 60 * 60 * 1000;
constexpr double LastSerial = 2958466; // the year 10000, where calendars of spreadsheets end
const QLatin1Char TextMark('\'');

Any ToCell(const QVariant& value, QDate nullDate)
{
    switch (static_cast<QMetaType::Type>(value.type())) {
    case QMetaType::UnknownType:
        return Any(rtl::OUString()); // nothing at all would be an error value
    case QMetaType::Bool:
        return Any(value.toBool() ? 1.0 : 0.0);
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return Any(value.toDouble());
    case QMetaType::QDate:
    case QMetaType::QDateTime:
        return value.toDateTime().isValid() ? Any(ToSerial(value.toDateTime(), nullDate))
                                            : Any(rtl::OUString());
    default: {
        const QString text = value.toString();
        return Any(ToUno(text.startsWith(TextMark) ? text.mid(1) : text));
    }
    }
}

} // namespace

CellKind KindOf(const QVariant& value)
{
    switch (static_cast<QMetaType::Type>(value.type())) {
    case QMetaType::Bool:
        return CellKind::Boolean;
    case QMetaType::QDate:
    case QMetaType::QDateTime:
        return CellKind::DateTime;
    default:
        return CellKind::Number;
    }
}

bool HoldOnlyTexts(const QVariantList& rows)
{
    const auto isText
        = [](const QVariant& cell) { return !cell.isValid() || cell.type() == QVariant::String; };
    return std::all_of(rows.begin(), rows.end(), [&isText](const QVariant& row) {
        const QVariantList cells = row.toList();
        return std::all_of(cells.begin(), cells.end(), isText);
    });
}

UnoBlock ToBlock(const QVariant& value, int rows, int columns, QDate nullDate)
{
    const bool isBlock = value.type() == QVariant::List;
    const QVariantList lines = isBlock ? value.toList() : QVariantList();
    const Any same = ToCell(isBlock ? QVariant() : value, nullDate);
    UnoBlock block(rows);
    UnoRow* row = block.getArray();
    for (int r = 0; r < rows; ++r, ++row) {
        const QVariantList cells = r < lines.size() ? lines.at(r).toList() : QVariantList();
        row->realloc(columns);
        Any* cell = row->getArray();
        for (int c = 0; c < columns; ++c, ++cell)
            *cell = c < cells.size() ? ToCell(cells.at(c), nullDate) : same;
    }
    return block;
}

QVariant FromCell(const Any& cell, CellKind kind, QDate nullDate)
{
    double number = 0;
    if (cell >>= number) {
        if (kind == CellKind::Boolean)
            return number != 0;
        if (kind == CellKind::DateTime && number >= 0 && number < LastSerial)
            return FromSerial(number, nullDate);
        return number;
    }
    rtl::OUString text;
    if ((cell >>= text) && !text.isEmpty())
        return FromUno(text);
    return QVariant();
}

double ToSerial(const QDateTime& moment, QDate nullDate)
{
    const double days = static_cast<double>(nullDate.daysTo(moment.date()));
    return days + moment.time().msecsSinceStartOfDay() / MillisecondsOfDay;
}

QDateTime FromSerial(double serial, QDate nullDate)
{
    const double day = std::floor(serial);
    // The fraction of a second that a double cannot hold may round up to midnight.
    const auto milliseconds = static_cast<qint64>(std::llround((serial - day) * MillisecondsOfDay));
    const QDateTime midnight(nullDate.addDays(static_cast<qint64>(day)), QTime(0, 0), Qt::UTC);
    const QDateTime moment = midnight.addMSecs(milliseconds);
    const QDateTime local(moment.date(), moment.time());
    // An hour that daylight-saving time leaves out is not valid as local time, but it is in the cell.
    return local.isValid() ? local : moment;
}

} // namespace Office
