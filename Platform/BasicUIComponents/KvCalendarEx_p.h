#pragma once

#include <Platform/BasicUIComponents/CalendarRange.h>
#include <Platform/BasicUIComponents/KvCalendarEx.h>

class QLabel;
class QTimeEdit;

namespace KvGUI {

class CalendarPage;

class KvCalendarExPrivate
{
public:
    /// What the client was told last.
    struct Moments
    {
        QDateTime start;
        QDateTime end;
    };

    explicit KvCalendarExPrivate(KvCalendarEx* calendar);

    void Build();
    void Connect();

    void Pick(const QDate& day);
    void Hover(const QDate& day);
    void CancelPick();
    void FollowTime(bool startChanged);

    void SetRange(const Moments& moments);
    Moments Shortened(const Moments& moments) const;
    void Report(const Moments& before);

    void ShowPages(const PagePair& pages);
    void ShowSelection();
    void ShowTexts();
    void ShowTimes();
    void MoveTo(const QDate& day);
    QDate CurrentDayOf(const CalendarPage& page) const;

    KvCalendarEx* const q;
    CalendarSelection selection;
    Moments chosen; ///< invalid while nothing is
    PagePair pages;
    QDate current; ///< the day with the keyboard's mark
    CalendarPage* startPage = nullptr;
    CalendarPage* endPage = nullptr;
    QLabel* hint = nullptr;
    QWidget* times = nullptr;
    QLabel* startLabel = nullptr;
    QLabel* endLabel = nullptr;
    QTimeEdit* startTime = nullptr;
    QTimeEdit* endTime = nullptr;
    bool changing = false; ///< Qt is showing or hiding it
    bool shallBeVisible = false; ///< asked for last

private:
    void ShowHint();
    QTimeEdit* MakeTimeEdit(const QString& name);
    bool TimesShown() const;
};

} // namespace KvGUI
