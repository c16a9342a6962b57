#include <Platform/BasicUIComponents/KvCalendarEx.h>

#include "CalendarMonthView.h"
#include "CalendarPage.h"
#include "KvCalendarEx_p.h"

#include <Platform/BasicUIComponents/KvLineStart.h>
#include <Platform/BasicUIComponents/KvTranslatedText.h>
#include <Platform/BasicUIComponents/PlatformLook.h>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QSignalBlocker>
#include <QTimeEdit>
#include <QVBoxLayout>

namespace KvGUI {

namespace {

QTime DayStart() { return {0, 0, 0}; }
QTime DayEnd() { return {23, 59, 59}; }

} // namespace

KvCalendarExPrivate::KvCalendarExPrivate(KvCalendarEx* calendar)
    : q(calendar)
{ }

void KvCalendarExPrivate::Build()
{
    startPage = new CalendarPage(selection, q);
    endPage = new CalendarPage(selection, q);
    hint = new QLabel(q);
    hint->setObjectName(QStringLiteral("kvCalendarHint"));
    hint->setAlignment(LineStart(q->layoutDirection()));
    times = new QWidget(q);
    startLabel = new QLabel(times);
    endLabel = new QLabel(times);
    startTime = MakeTimeEdit(QStringLiteral("kvCalendarStartTime"));
    endTime = MakeTimeEdit(QStringLiteral("kvCalendarEndTime"));
    startLabel->setBuddy(startTime);
    endLabel->setBuddy(endTime);

    auto* timeRow = new QHBoxLayout(times);
    timeRow->setContentsMargins(0, 0, 0, 0);
    timeRow->setSpacing(8);
    timeRow->addWidget(startLabel);
    timeRow->addWidget(startTime);
    timeRow->addStretch(1);
    timeRow->addWidget(endLabel);
    timeRow->addWidget(endTime);
    auto* months = new QHBoxLayout;
    months->setSpacing(20);
    months->addWidget(startPage);
    months->addWidget(endPage);
    auto* all = new QVBoxLayout(q);
    all->setContentsMargins(13, 11, 13, 11);
    all->setSpacing(8);
    all->addLayout(months);
    all->addWidget(hint);
    all->addWidget(times);
    all->setSizeConstraint(QLayout::SetFixedSize);
}

QTimeEdit* KvCalendarExPrivate::MakeTimeEdit(const QString& name)
{
    auto* edit = new QTimeEdit(times);
    edit->setObjectName(name);
    edit->setDisplayFormat(QStringLiteral("HH:mm:ss"));
    return edit;
}

void KvCalendarExPrivate::Connect()
{
    for (CalendarPage* page : {startPage, endPage}) {
        CalendarMonthView* view = page->View();
        QObject::connect(view, &CalendarMonthView::SignalPicked, q, [this](const QDate& day) { Pick(day); });
        QObject::connect(
            view, &CalendarMonthView::SignalHovered, q, [this](const QDate& day) { Hover(day); });
        QObject::connect(
            view, &CalendarMonthView::SignalMoveWanted, q, [this](const QDate& day) { MoveTo(day); });
        QObject::connect(view, &CalendarMonthView::SignalEntered, q, [this, page] {
            page->View()->SetCurrentDay(CurrentDayOf(*page));
            current = CurrentDayOf(*page);
        });
    }
    QObject::connect(startPage, &CalendarPage::SignalMonthWanted, q, [this](const QDate& month) {
        ShowPages(WithStartPage(pages, month));
    });
    QObject::connect(endPage, &CalendarPage::SignalMonthWanted, q, [this](const QDate& month) {
        ShowPages(WithEndPage(pages, month));
    });
    QObject::connect(startTime, &QTimeEdit::timeChanged, q, [this] { FollowTime(true); });
    QObject::connect(endTime, &QTimeEdit::timeChanged, q, [this] { FollowTime(false); });
}

bool KvCalendarExPrivate::TimesShown() const { return !times->isHidden(); }

void KvCalendarExPrivate::Pick(const QDate& day)
{
    current = day;
    if (!selection.IsChoosing()) {
        selection.anchor = day;
        selection.hover = day;
        ShowSelection();
        return;
    }
    const DateRange range = OrderedRange(selection.anchor, day);
    selection.anchor = QDate();
    const QTime from = TimesShown() ? startTime->time() : DayStart();
    const QTime to = TimesShown() ? endTime->time() : DayEnd();
    const Moments before = chosen;
    SetRange({LocalMoment(range.start, from), LocalMoment(range.end, to)});
    Report(before);
}

void KvCalendarExPrivate::Hover(const QDate& day)
{
    // Off the days, the range keeps its last shape; the keyboard may have made it.
    if (!selection.IsChoosing() || !day.isValid())
        return;
    selection.hover = day;
    ShowSelection();
}

void KvCalendarExPrivate::CancelPick()
{
    selection.anchor = QDate();
    ShowSelection();
}

/// The time edit that was changed wins: the other end follows when it would lie on the wrong side.
void KvCalendarExPrivate::FollowTime(bool startChanged)
{
    if (!chosen.start.isValid())
        return;
    const Moments before = chosen;
    if (startChanged) {
        chosen.start = LocalMoment(chosen.start.date(), startTime->time());
        chosen.end = qMax(chosen.end, chosen.start);
    } else {
        chosen.end = LocalMoment(chosen.end.date(), endTime->time());
        chosen.start = qMin(chosen.start, chosen.end);
    }
    ShowTimes();
    // The time edit is not through with its event, and a slot may delete it.
    QMetaObject::invokeMethod(
        q, [this, before] { Report(before); }, Qt::QueuedConnection);
}

KvCalendarExPrivate::Moments KvCalendarExPrivate::Shortened(const Moments& moments) const
{
    const QDate lastDay = moments.start.date().addDays(selection.maxDays - 1);
    if (selection.maxDays <= 0 || moments.end.date() <= lastDay)
        return moments;
    return {moments.start, qMax(moments.start, LocalMoment(lastDay, moments.end.time()))};
}

/// Takes over a valid range: in order, and not longer than allowed.
void KvCalendarExPrivate::SetRange(const Moments& moments)
{
    const bool inOrder = moments.start <= moments.end;
    chosen = Shortened(inOrder ? moments : Moments{moments.end, moments.start});
    selection.range = {chosen.start.date(), chosen.end.date()};
    ShowTimes();
    ShowSelection();
}

/// Tells what is different now. Any of the slots may delete the calendar.
void KvCalendarExPrivate::Report(const Moments& before)
{
    const auto otherMonth = [](const QDateTime& one, const QDateTime& other) {
        return MonthOf(one.date()) != MonthOf(other.date());
    };
    if (before.start == chosen.start && before.end == chosen.end)
        return;
    const bool startMonth = otherMonth(before.start, chosen.start);
    const bool endMonth = otherMonth(before.end, chosen.end);
    const QPointer<KvCalendarEx> calendar(q);
    emit calendar->SgnDateTimeChanged();
    if (calendar && startMonth)
        emit calendar->SgnStartYearMonthChanged();
    if (calendar && endMonth)
        emit calendar->SngEndYearMonthChanged();
}

void KvCalendarExPrivate::ShowPages(const PagePair& wanted)
{
    pages = wanted;
    startPage->SetMonth(pages.start);
    endPage->SetMonth(pages.end);
}

void KvCalendarExPrivate::ShowSelection()
{
    for (const CalendarPage* page : {startPage, endPage}) {
        page->View()->Days()->SelectionChanged();
        page->View()->viewport()->update();
    }
    ShowHint();
}

void KvCalendarExPrivate::ShowTexts()
{
    startLabel->setText(KvCalendarEx::tr("Start time:"));
    endLabel->setText(KvCalendarEx::tr("End time:"));
    ShowHint();
}

void KvCalendarExPrivate::ShowHint()
{
    const DateRange shown = selection.Shown();
    const auto text = [this](const QDate& day) { return q->locale().toString(day, QLocale::ShortFormat); };
    if (!shown.IsValid()) {
        hint->setText(KvCalendarEx::tr("Choose the first and the last day"));
        return;
    }
    const QString days = QString::number(DayCount(shown));
    QString line = KvCalendarEx::tr("%1 to %2 (days: %3)").arg(text(shown.start), text(shown.end), days);
    if (selection.IsChoosing() && selection.maxDays > 0) {
        line = KvCalendarEx::tr("%1 to %2 (days: %3 of at most %4)")
                   .arg(text(shown.start), text(shown.end), days, QString::number(selection.maxDays));
    }
    hint->setText(line);
}

void KvCalendarExPrivate::ShowTimes()
{
    const QSignalBlocker startBlocker(startTime);
    const QSignalBlocker endBlocker(endTime);
    const bool any = chosen.start.isValid();
    startTime->setTime(any ? chosen.start.time() : DayStart());
    endTime->setTime(any ? chosen.end.time() : DayEnd());
}

/// The day that the keyboard begins with on a page.
QDate KvCalendarExPrivate::CurrentDayOf(const CalendarPage& page) const
{
    for (const QDate& day : {current, selection.range.start, selection.range.end, QDate::currentDate()}) {
        if (day.isValid() && MonthOf(day) == page.Month())
            return day;
    }
    return page.Month();
}

/// Moves the keyboard's mark, and the pages when the day is on neither.
void KvCalendarExPrivate::MoveTo(const QDate& day)
{
    const QDate month = MonthOf(day);
    if (MonthsLater(month, 0) != month)
        return; // beyond the calendar's years
    if (month != pages.start && month != pages.end)
        ShowPages(month > pages.end ? WithEndPage(pages, month) : WithStartPage(pages, month));
    current = day;
    const CalendarPage* page = month == pages.start ? startPage : endPage;
    page->View()->SetCurrentDay(day);
    page->View()->setFocus();
    Hover(day);
}

KvCalendarEx::KvCalendarEx(QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
    , d(new KvCalendarExPrivate(this))
{
    setAttribute(Qt::WA_StyledBackground);
    new KvTranslatedText(this, "accessibleName", [] { return tr("Calendar"); });
    d->Build();
    d->Connect();
    setFocusProxy(d->startPage->View());
    UsePlatformSheet(this, QStringLiteral("KvCalendarEx.css"));
    ClearRecord();
    d->ShowTexts();
    adjustSize();
}

KvCalendarEx::~KvCalendarEx()
{
    // The pages show what the private object holds.
    delete d->startPage;
    delete d->endPage;
}

void KvCalendarEx::ClearRecord()
{
    d->chosen = {};
    d->selection.range = {};
    d->selection.anchor = QDate();
    d->current = QDate();
    // What is looked for lies in the past more often than not.
    const QDate today = QDate::currentDate();
    d->ShowPages({MonthsLater(today, -1), MonthOf(today)});
    d->ShowTimes();
    d->ShowSelection();
}

void KvCalendarEx::SetSelDate(const QDateTime& start, const QDateTime& end)
{
    if (!start.isValid() || !end.isValid()) {
        ClearRecord();
        return;
    }
    d->selection.anchor = QDate();
    d->current = QDate();
    d->SetRange({start, end});
    const DateRange range = d->selection.range;
    d->ShowPages(WithStartPage({range.start, MonthOf(range.end)}, range.start));
    d->Report({start, end});
}

void KvCalendarEx::DateTimeRange(QDateTime& start, QDateTime& end) const
{
    start = d->chosen.start;
    end = d->chosen.end;
}

void KvCalendarEx::SetRestrcitDateRange(int days)
{
    d->selection.maxDays = qMax(0, days);
    d->ShowSelection();
    if (!d->chosen.start.isValid())
        return;
    const KvCalendarExPrivate::Moments before = d->chosen;
    d->SetRange(before);
    d->Report(before);
}

void KvCalendarEx::SetTimeEditVisible(bool visible)
{
    d->times->setVisible(visible);
    adjustSize();
}

/// A slot that shows or hides the calendar while Qt is still doing the other waits: it would come up without
/// its pages, or stay, hidden, in Qt's list of popups, which the next window closes until none is left.
void KvCalendarEx::setVisible(bool visible)
{
    d->shallBeVisible = visible;
    if (d->changing)
        return;
    d->changing = true;
    QWidget::setVisible(visible);
    d->changing = false;
    if (visible != d->shallBeVisible)
        QWidget::setVisible(!visible);
}

void KvCalendarEx::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (isWindow())
        d->startPage->View()->setFocus(Qt::PopupFocusReason);
}

void KvCalendarEx::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    d->CancelPick();
    // Qt is not through with hiding it, or the window around it, and a slot may delete either.
    QMetaObject::invokeMethod(this, &KvCalendarEx::SgnCalendarHide, Qt::QueuedConnection);
}

void KvCalendarEx::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Cancel) && d->selection.IsChoosing())
        d->CancelPick();
    else
        QWidget::keyPressEvent(event);
}

void KvCalendarEx::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::LocaleChange)
        d->ShowTexts();
    else if (event->type() == QEvent::LayoutDirectionChange)
        d->hint->setAlignment(LineStart(layoutDirection()));
}

} // namespace KvGUI
