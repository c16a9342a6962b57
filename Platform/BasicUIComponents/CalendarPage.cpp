#include "CalendarPage.h"

#include "CalendarMonthView.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

namespace KvGUI {

namespace {

constexpr int MonthsOfAYear = 12;

void Name(QToolButton* button, const QString& text)
{
    button->setToolTip(text);
    button->setAccessibleName(text);
}

} // namespace

CalendarPage::CalendarPage(const CalendarSelection& selection, QWidget* parent)
    : QWidget(parent)
    , m_pView(new CalendarMonthView(selection, this))
    , m_pTitle(new QLabel(this))
    , m_btnPreviousYear(AddButton(QStringLiteral("kvCalendarPreviousYear"), -MonthsOfAYear))
    , m_btnPreviousMonth(AddButton(QStringLiteral("kvCalendarPreviousMonth"), -1))
    , m_btnNextMonth(AddButton(QStringLiteral("kvCalendarNextMonth"), 1))
    , m_btnNextYear(AddButton(QStringLiteral("kvCalendarNextYear"), MonthsOfAYear))
{
    m_pTitle->setObjectName(QStringLiteral("kvCalendarTitle"));
    m_pTitle->setAlignment(Qt::AlignCenter);
    auto* head = new QHBoxLayout;
    head->setSpacing(2);
    head->addWidget(m_btnPreviousYear);
    head->addWidget(m_btnPreviousMonth);
    head->addWidget(m_pTitle, 1);
    head->addWidget(m_btnNextMonth);
    head->addWidget(m_btnNextYear);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(4);
    all->addLayout(head);
    all->addWidget(m_pView);
    connect(m_pView, &CalendarMonthView::SignalTurned, this, [this](int months) {
        emit SignalMonthWanted(MonthsLater(Month(), months));
    });
    ShowTexts();
    ShowArrows();
}

/// Arrows point where the button stands, on the other side where the layout is mirrored.
void CalendarPage::ShowArrows()
{
    for (QToolButton* button : {m_btnPreviousYear, m_btnPreviousMonth, m_btnNextMonth, m_btnNextYear}) {
        button->setProperty("mirrored", isRightToLeft());
        button->style()->unpolish(button);
        button->style()->polish(button);
    }
}

QToolButton* CalendarPage::AddButton(const QString& objectName, int months)
{
    auto* button = new QToolButton(this);
    button->setObjectName(objectName);
    button->setAutoRaise(true);
    button->setAutoRepeat(true);
    connect(button, &QToolButton::clicked, this, [this, months] {
        emit SignalMonthWanted(MonthsLater(Month(), months));
    });
    return button;
}

QDate CalendarPage::Month() const { return m_pView->Days()->Month(); }

void CalendarPage::SetMonth(const QDate& month)
{
    m_pView->Days()->SetMonth(month);
    ShowTexts();
}

void CalendarPage::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LocaleChange || event->type() == QEvent::LanguageChange)
        ShowTexts();
    else if (event->type() == QEvent::LayoutDirectionChange)
        ShowArrows();
}

void CalendarPage::ShowTexts()
{
    m_pView->Days()->SetLocale(locale());
    m_pTitle->setText(Title());
    m_pView->setAccessibleName(Title());
    Name(m_btnPreviousYear, tr("Previous year"));
    Name(m_btnPreviousMonth, tr("Previous month"));
    Name(m_btnNextMonth, tr("Next month"));
    Name(m_btnNextYear, tr("Next year"));
}

/// Month and year in the order in which the language writes them in a date.
QString CalendarPage::Title() const
{
    const QString format = locale().dateFormat(QLocale::LongFormat);
    const QString month = locale().standaloneMonthName(Month().month());
    const QString year = locale().toString(Month(), QStringLiteral("yyyy"));
    const bool yearFirst = format.indexOf(QLatin1Char('y')) < format.indexOf(QLatin1Char('M'));
    return yearFirst ? tr("%1 %2", "year, month").arg(year, month)
                     : tr("%1 %2", "month, year").arg(month, year);
}

} // namespace KvGUI
