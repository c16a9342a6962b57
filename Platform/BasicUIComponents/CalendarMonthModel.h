#pragma once

#include <Platform/BasicUIComponents/CalendarRange.h>

#include <QAbstractTableModel>
#include <QLocale>

namespace KvGUI {

/// The days of one month as a table of weeks, with the names of the weekdays as its header. Days that cannot
/// be picked and the empty cells before and after the month are disabled.
class CalendarMonthModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// @param selection shown by the model; must outlive it
    CalendarMonthModel(const CalendarSelection& selection, QObject* parent);

    void SetMonth(const QDate& month); ///< any day of the month
    QDate Month() const { return m_month; } ///< its first day
    void SetLocale(const QLocale& locale); ///< names, digits and the first day of the week
    void SelectionChanged(); ///< call after the selection was changed

    QDate Day(const QModelIndex& index) const; ///< invalid for an empty cell
    QModelIndex IndexOf(const QDate& day) const; ///< invalid for a day of another month

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    QString Description(const QDate& day) const;

    const CalendarSelection& m_selection;
    QDate m_month;
    QLocale m_locale;
};

} // namespace KvGUI
