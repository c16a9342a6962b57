#pragma once

#include <QDateTime>
#include <QScopedPointer>
#include <QWidget>
#include <UIComponentsExport.h>

namespace KvGUI {

class KvCalendarExPrivate;

/// A calendar on which a range of days is chosen: two months side by side, the first click is one end of the
/// range, the second click the other. Between the two the range follows the mouse.
///
/// It can lie in a form, or be a pop-up with the flags Qt::Popup | Qt::FramelessWindowHint; it never closes
/// itself when a range was chosen. By the keyboard: the arrow keys go from day to day, Page Up and Page Down
/// by months (with Ctrl by years), Home and End within the month; Enter or Space picks the day; Escape takes
/// the first pick back, and closes a pop-up. The wheel turns a page.
///
/// Names, digits and the first day of the week are those of the widget's locale. Any slot may delete the
/// calendar, or the window around it.
class UICOMPONENTS_EXPORT KvCalendarEx : public QWidget
{
    Q_OBJECT

public:
    explicit KvCalendarEx(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~KvCalendarEx() override;

    /// Forgets the range: nothing is chosen, as at first. Emits nothing.
    void ClearRecord();

    /// Chooses the range from @p start to @p end and turns the pages to it.
    ///
    /// An end before the start is exchanged with it, and a range longer than allowed is shortened at its end;
    /// only then SgnDateTimeChanged() is emitted. An invalid start or end is ClearRecord().
    void SetSelDate(const QDateTime& start, const QDateTime& end);

    /// Reads the chosen range, whose start is never after its end. Both are invalid while nothing is chosen.
    ///
    /// A range picked by the operator runs from midnight to 23:59:59, or between the times of the time edits
    /// when they are shown, in local time. A time that the clock skips on that day is taken as much later as
    /// the clock is put forward.
    void DateTimeRange(QDateTime& start, QDateTime& end) const;

    /// Limits the length of the range.
    /// @param days largest number of days, both ends counted; 0 and less for no limit, as at first. A range
    ///        that is longer is shortened at its end, which emits SgnDateTimeChanged().
    void SetRestrcitDateRange(int days);

    /// Shows or hides the time edits for start and end; shown at first.
    void SetTimeEditVisible(bool visible);

    /// Shows or hides the calendar. Shown by a slot while it is being hidden, it comes up again after that.
    void setVisible(bool visible) override;

Q_SIGNALS:
    /// Another range is chosen. A change of a time edit is reported when the event loop comes round.
    void SgnDateTimeChanged();
    void SgnStartYearMonthChanged(); ///< the range starts in another month; follows SgnDateTimeChanged()
    void SngEndYearMonthChanged(); ///< the range ends in another month; comes last

    /// The calendar was hidden, by itself or with its window; reported when the event loop comes round.
    void SgnCalendarHide();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    friend class KvCalendarExPrivate;
    QScopedPointer<KvCalendarExPrivate> d;
};

} // namespace KvGUI
