#include "CalendarRange.h"

namespace KvGUI {

namespace {

constexpr int LastYear = 9999;

QDate FirstMonth() { return {1, 1, 1}; }
QDate LastMonth() { return {LastYear, 12, 1}; }

int ColumnOfFirst(const QDate& month, Qt::DayOfWeek firstDay)
{
    return (MonthOf(month).dayOfWeek() - firstDay + CalendarColumns) % CalendarColumns;
}

} // namespace

bool CalendarSelection::CanPick(const QDate& day) const
{
    if (!day.isValid())
        return false;
    return !IsChoosing() || maxDays <= 0 || DayCount(OrderedRange(anchor, day)) <= maxDays;
}

DateRange CalendarSelection::Shown() const
{
    if (!IsChoosing())
        return range;
    return OrderedRange(anchor, CanPick(hover) ? hover : anchor);
}

DateRange OrderedRange(const QDate& one, const QDate& other)
{
    return one <= other ? DateRange{one, other} : DateRange{other, one};
}

qint64 DayCount(const DateRange& range) { return range.start.daysTo(range.end) + 1; }

QDateTime LocalMoment(const QDate& day, const QTime& time)
{
    if (QDateTime(day, time).isValid())
        return QDateTime(day, time);
    // By the clock of the day before, which was not put forward yet.
    const int offset = QDateTime(day.addDays(-1), time).offsetFromUtc();
    return QDateTime(day, time, Qt::OffsetFromUTC, offset).toLocalTime();
}

QDate DayInCell(const QDate& month, Qt::DayOfWeek firstDay, int row, int column)
{
    const int day = row * CalendarColumns + column - ColumnOfFirst(month, firstDay) + 1;
    return day >= 1 && day <= month.daysInMonth() ? MonthOf(month).addDays(day - 1) : QDate();
}

int CellOfDay(const QDate& day, Qt::DayOfWeek firstDay)
{
    return ColumnOfFirst(day, firstDay) + day.day() - 1;
}

QDate MonthOf(const QDate& day) { return {day.year(), day.month(), 1}; }

QDate MonthsLater(const QDate& month, int months)
{
    return qBound(FirstMonth(), MonthOf(month).addMonths(months), LastMonth());
}

PagePair WithStartPage(const PagePair& pages, const QDate& month)
{
    const QDate start = qMin(MonthOf(month), MonthsLater(LastMonth(), -1));
    return {start, qMax(pages.end, MonthsLater(start, 1))};
}

PagePair WithEndPage(const PagePair& pages, const QDate& month)
{
    const QDate end = qMax(MonthOf(month), MonthsLater(FirstMonth(), 1));
    return {qMin(pages.start, MonthsLater(end, -1)), end};
}

} // namespace KvGUI
