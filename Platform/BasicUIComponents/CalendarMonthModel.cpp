#include "CalendarMonthModel.h"

namespace KvGUI {

CalendarMonthModel::CalendarMonthModel(const CalendarSelection& selection, QObject* parent)
    : QAbstractTableModel(parent)
    , m_selection(selection)
    , m_month(MonthOf(QDate::currentDate()))
{ }

void CalendarMonthModel::SetMonth(const QDate& month)
{
    if (m_month == MonthOf(month))
        return;
    beginResetModel();
    m_month = MonthOf(month);
    endResetModel();
}

void CalendarMonthModel::SetLocale(const QLocale& locale)
{
    beginResetModel();
    m_locale = locale;
    endResetModel();
}

void CalendarMonthModel::SelectionChanged()
{
    emit dataChanged(index(0, 0), index(CalendarRows - 1, CalendarColumns - 1));
}

QDate CalendarMonthModel::Day(const QModelIndex& index) const
{
    if (!index.isValid())
        return {};
    return DayInCell(m_month, m_locale.firstDayOfWeek(), index.row(), index.column());
}

QModelIndex CalendarMonthModel::IndexOf(const QDate& day) const
{
    if (MonthOf(day) != m_month)
        return {};
    const int cell = CellOfDay(day, m_locale.firstDayOfWeek());
    return index(cell / CalendarColumns, cell % CalendarColumns);
}

int CalendarMonthModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : CalendarRows;
}

int CalendarMonthModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : CalendarColumns;
}

QVariant CalendarMonthModel::data(const QModelIndex& index, int role) const
{
    const QDate day = Day(index);
    if (!day.isValid())
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return m_locale.toString(day.day());
    case Qt::AccessibleTextRole:
        return Description(day);
    default:
        return {};
    }
}

/// What a screen reader says of the day.
QString CalendarMonthModel::Description(const QDate& day) const
{
    QStringList parts(m_locale.toString(day, QLocale::LongFormat));
    const DateRange shown = m_selection.Shown();
    if (day == QDate::currentDate())
        parts << tr("today");
    if (day == shown.start)
        parts << tr("start of the range");
    if (day == shown.end)
        parts << tr("end of the range");
    else if (shown.Contains(day) && day != shown.start)
        parts << tr("in the range");
    return parts.join(QStringLiteral(", "));
}

QVariant CalendarMonthModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    const int day = (m_locale.firstDayOfWeek() - Qt::Monday + section) % CalendarColumns + Qt::Monday;
    switch (role) {
    case Qt::DisplayRole:
        return m_locale.standaloneDayName(day, QLocale::ShortFormat);
    case Qt::AccessibleTextRole:
        return m_locale.standaloneDayName(day, QLocale::LongFormat);
    default:
        return {};
    }
}

Qt::ItemFlags CalendarMonthModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags reachable = Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
    return m_selection.CanPick(Day(index)) ? reachable : Qt::ItemFlags();
}

} // namespace KvGUI
