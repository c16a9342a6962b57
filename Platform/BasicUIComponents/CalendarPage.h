#pragma once

#include <QDate>
#include <QWidget>

class QLabel;
class QToolButton;

namespace KvGUI {

struct CalendarSelection;
class CalendarMonthView;

/// One month of a range calendar: its title with the buttons that turn to other months and years, and its
/// days.
class CalendarPage : public QWidget
{
    Q_OBJECT

public:
    /// @param selection shown by the page; must outlive it
    CalendarPage(const CalendarSelection& selection, QWidget* parent);

    CalendarMonthView* View() const { return m_pView; }
    QDate Month() const; ///< first day of the month
    void SetMonth(const QDate& month);

Q_SIGNALS:
    void SignalMonthWanted(const QDate& month); ///< the page shows the old month still

protected:
    void changeEvent(QEvent* event) override;

private:
    QToolButton* AddButton(const QString& objectName, int months);
    void ShowTexts();
    void ShowArrows();
    QString Title() const;

    CalendarMonthView* m_pView;
    QLabel* m_pTitle;
    QToolButton* m_btnPreviousYear;
    QToolButton* m_btnPreviousMonth;
    QToolButton* m_btnNextMonth;
    QToolButton* m_btnNextYear;
};

} // namespace KvGUI
