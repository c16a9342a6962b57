#pragma once

#include <QDate>
#include <QDateTime>
#include <QTime>

namespace KvGUI {

/// A range of days, both ends belonging to it. Either both are valid or, in a range without days, none.
struct DateRange
{
    QDate start;
    QDate end;

    bool IsValid() const { return start.isValid(); }
    bool Contains(const QDate& day) const { return IsValid() && start <= day && day <= end; }
    bool operator==(const DateRange& other) const { return start == other.start && end == other.end; }
};

/// What a range calendar shows: the chosen range, or the one that is being chosen.
struct CalendarSelection
{
    DateRange range; ///< chosen
    QDate anchor; ///< the day picked first while a range is being chosen; invalid otherwise
    QDate hover; ///< the day that the second pick would take
    int maxDays = 0; ///< longest range in days; 0: without limit

    bool IsChoosing() const { return anchor.isValid(); }
    /// Whether the day can be picked now.
    bool CanPick(const QDate& day) const;
    /// The chosen range, or while choosing the one from the anchor to the hovered day.
    DateRange Shown() const;
};

/// The range from the earlier to the later day.
DateRange OrderedRange(const QDate& one, const QDate& other);

/// Number of days of the range, both ends counted.
qint64 DayCount(const DateRange& range);

/// The local time @p time on @p day. A time that the clock skips on that day is taken as much later as the
/// clock is put forward; of a time that comes twice it is either.
QDateTime LocalMoment(const QDate& day, const QTime& time);

/// Rows and columns of the days of a month page.
constexpr int CalendarRows = 6;
constexpr int CalendarColumns = 7;

/// The day in a cell of the page of a month; invalid for a cell that the month leaves empty.
/// @param month any day of the month
/// @param firstDay day of the week in the first column
QDate DayInCell(const QDate& month, Qt::DayOfWeek firstDay, int row, int column);

/// The cell of a day on the page of its month: row * CalendarColumns + column.
int CellOfDay(const QDate& day, Qt::DayOfWeek firstDay);

/// The first day of the day's month.
QDate MonthOf(const QDate& day);

/// The first day of the month @p months later or earlier, in the years 1 to 9999.
QDate MonthsLater(const QDate& month, int months);

/// The months of two pages, the first always before the second.
struct PagePair
{
    QDate start;
    QDate end;
};

/// The pages after one of them has turned to another month: the other one gives way when they would meet.
PagePair WithStartPage(const PagePair& pages, const QDate& month);
PagePair WithEndPage(const PagePair& pages, const QDate& month);

} // namespace KvGUI
