#pragma once

#include <QDateTime>
#include <QPushButton>
#include <UIComponentsExport.h>

namespace KvGUI {
class KvCalendarEx;
}

namespace UICommonMdl {

/// A push button that shows a range of dates and opens a calendar (KvGUI::KvCalendarEx) to choose another.
/// @code
/// auto* range = new WmDateCalendar(this);
/// range->SetRestrcitDateRange(31);
/// range->SetSelDate(QDateTime::currentDateTime().addDays(-7), QDateTime::currentDateTime());
/// connect(range, &WmDateCalendar::SgnDateTimeChanged, this, &Records::Search);
/// @endcode
/// A press, or Space with the focus, opens and closes the calendar; a click elsewhere and Escape close it.
/// The button is checked while the calendar is open. Any slot may delete the button, or the window around it.
class UICOMPONENTS_EXPORT WmDateCalendar : public QPushButton
{
    Q_OBJECT

public:
    explicit WmDateCalendar(QWidget* parent = nullptr);
    ~WmDateCalendar() override;

    /// Shows the range on the button and chooses it in the calendar, which puts it in order and shortens it
    /// when need be; then the button shows what the calendar holds and SgnDateTimeChanged() is emitted.
    void SetSelDate(const QDateTime& start, const QDateTime& end);

    /// Reads the chosen range; both are invalid while nothing is chosen.
    void DateTimeRange(QDateTime& start, QDateTime& end);

    /// Limits the length of the range to so many days, both ends counted; 0 for no limit.
    void SetRestrcitDateRange(int iDays);

    /// Shows or hides the calendar's time edits; hidden at first.
    void SetTimeEditVisible(bool bVisible);

    /// The text that the button shows for a range: "2024/01/05-2024/02/01". An invalid date is left out.
    QString DtConvToString(const QDateTime& start, const QDateTime& end);

    /// Where the calendar opens: its upper left corner, in global coordinates.
    QPoint GetCalendarPos();

    QSize sizeHint() const override; ///< with room for the skin's picture behind the text
    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void SgnDateTimeChanged(const QDateTime& start, const QDateTime& end); ///< another range is chosen
    void SgnStartYearMonthChanged(int year, int month); ///< the range starts in this month now
    void SgnEndYearMonthChanged(int year, int month); ///< the range ends in this month now

public Q_SLOTS:
    void OnDateTimeChanged(); ///< shows the calendar's range and reports it
    void OnStartYearMonthChanged(); ///< reports the month in which the calendar's range starts
    void OnEndYearMonthChanged(); ///< reports the month in which the calendar's range ends
    void OnCalendarHide(); ///< unchecks the button

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void nextCheckState() override; ///< opens or closes the calendar

private:
    void ToggleCalendar();
    void Check(bool checked);
    void UncheckAtHide();

    KvGUI::KvCalendarEx* m_pCalendar;
    int m_iHiding = 0; ///< reports of a hiding calendar that are under way
    bool m_bClosedByButton = false;
};

} // namespace UICommonMdl
