#include <UI/FormInputs/WmDateCalendar.h>

#include "CalendarPlacement.h"
#include "WidgetScreen.h"

#include <Common/CommonFun.h>
#include <Platform/BasicUIComponents/KvCalendarEx.h>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QSignalBlocker>

namespace UICommonMdl {

namespace {

constexpr int LeastWidth = 198; // pixels
constexpr int PictureWidth = 24; // pixels; the style counts the text alone

} // namespace

WmDateCalendar::WmDateCalendar(QWidget* parent)
    : QPushButton(parent)
    , m_pCalendar(new KvGUI::KvCalendarEx(this, Qt::Popup | Qt::FramelessWindowHint))
{
    setCheckable(true);
    m_pCalendar->hide();
    m_pCalendar->installEventFilter(this);
    m_pCalendar->ClearRecord();
    m_pCalendar->SetTimeEditVisible(false);
    connect(m_pCalendar, SIGNAL(SgnDateTimeChanged()), this, SLOT(OnDateTimeChanged()));
    connect(m_pCalendar, SIGNAL(SgnStartYearMonthChanged()), this, SLOT(OnStartYearMonthChanged()));
    connect(m_pCalendar, SIGNAL(SngEndYearMonthChanged()), this, SLOT(OnEndYearMonthChanged()));
    connect(m_pCalendar, SIGNAL(SgnCalendarHide()), this, SLOT(OnCalendarHide()));
    CommonFun::SetStyleSheet(this, QStringLiteral("DateCalendar"), QString(), QString());
}

/// Not left to QObject: a calendar that is open reports its end to a button that is still one. And when a
/// client's slot deletes the button while the calendar hides, Qt goes on with the calendar: it lives until
/// the event loop comes round.
WmDateCalendar::~WmDateCalendar()
{
    disconnect(m_pCalendar, nullptr, this, nullptr);
    m_pCalendar->removeEventFilter(this);
    if (m_iHiding == 0)
        return;
    m_pCalendar->hide(); // the slot may have shown it again
    m_pCalendar->setParent(nullptr, m_pCalendar->windowFlags());
    m_pCalendar->deleteLater();
}

void WmDateCalendar::SetSelDate(const QDateTime& start, const QDateTime& end)
{
    setText(DtConvToString(start, end));
    m_pCalendar->SetSelDate(start, end);
}

void WmDateCalendar::DateTimeRange(QDateTime& start, QDateTime& end)
{
    m_pCalendar->DateTimeRange(start, end);
}

void WmDateCalendar::SetRestrcitDateRange(int iDays) { m_pCalendar->SetRestrcitDateRange(iDays); }

void WmDateCalendar::SetTimeEditVisible(bool bVisible) { m_pCalendar->SetTimeEditVisible(bVisible); }

QString WmDateCalendar::DtConvToString(const QDateTime& start, const QDateTime& end)
{
    const QString format = QStringLiteral("yyyy/MM/dd");
    return start.toString(format) + QLatin1Char('-') + end.toString(format);
}

QPoint WmDateCalendar::GetCalendarPos()
{
    const QPoint corner = mapToGlobal(QPoint(width(), height()));
    return CalendarPosition(corner, height(), m_pCalendar->height(), ScreenOf(this));
}

void WmDateCalendar::ToggleCalendar()
{
    const QPointer<WmDateCalendar> self(this); // unchecking it is a signal too
    m_bClosedByButton = m_pCalendar->isVisible();
    if (m_bClosedByButton) {
        m_pCalendar->hide();
    } else {
        m_pCalendar->adjustSize();
        m_pCalendar->setGeometry(QRect(GetCalendarPos(), m_pCalendar->size()));
        m_pCalendar->show();
    }
    if (self)
        Check(true);
}

/// Not by setChecked() alone, which goes on with the button after toggled(), whose slot may have deleted it.
void WmDateCalendar::Check(bool checked)
{
    if (isChecked() == checked)
        return;
    {
        const QSignalBlocker blocker(this);
        setChecked(checked);
    }
    emit toggled(checked);
}

/// Not less than a range of dates takes, so that a form keeps its shape when there is none.
QSize WmDateCalendar::sizeHint() const
{
    const QSize hint = QPushButton::sizeHint();
    return {qMax(LeastWidth, hint.width() + PictureWidth), hint.height()};
}

void WmDateCalendar::mousePressEvent(QMouseEvent*) { ToggleCalendar(); }

/// Reached by Space, a shortcut and assistive technology.
void WmDateCalendar::nextCheckState() { ToggleCalendar(); }

void WmDateCalendar::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter || event->key() == Qt::Key_Down)
        ToggleCalendar();
    else
        QPushButton::keyPressEvent(event);
}

bool WmDateCalendar::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_pCalendar) // a client may let the button watch others
        return QPushButton::eventFilter(watched, event);
    if (event->type() == QEvent::Hide)
        UncheckAtHide();
    // The second press of a double-click comes as the latter alone when the first one opened the calendar.
    if (event->type() != QEvent::MouseButtonPress && event->type() != QEvent::MouseButtonDblClick)
        return false;
    // While it is open the calendar gets every press. One on the button would close it and come back to the
    // button, which would open it again.
    const QPoint pos = static_cast<QMouseEvent*>(event)->globalPos();
    if (!rect().contains(mapFromGlobal(pos)) || m_pCalendar->geometry().contains(pos))
        return false;
    const QPointer<KvGUI::KvCalendarEx> calendar(m_pCalendar);
    calendar->setAttribute(Qt::WA_NoMouseReplay);
    ToggleCalendar();
    if (calendar)
        calendar->setAttribute(Qt::WA_NoMouseReplay, false);
    return true;
}

void WmDateCalendar::UncheckAtHide()
{
    const QPointer<WmDateCalendar> self(this);
    ++m_iHiding;
    Check(false);
    if (self)
        --m_iHiding;
}

void WmDateCalendar::OnDateTimeChanged()
{
    QDateTime start;
    QDateTime end;
    m_pCalendar->DateTimeRange(start, end);
    setText(DtConvToString(start, end));
    emit SgnDateTimeChanged(start, end);
}

void WmDateCalendar::OnStartYearMonthChanged()
{
    QDateTime start;
    QDateTime end;
    m_pCalendar->DateTimeRange(start, end);
    emit SgnStartYearMonthChanged(start.date().year(), start.date().month());
}

void WmDateCalendar::OnEndYearMonthChanged()
{
    QDateTime start;
    QDateTime end;
    m_pCalendar->DateTimeRange(start, end);
    emit SgnEndYearMonthChanged(end.date().year(), end.date().month());
}

/// The calendar tells it late: the button may have stayed checked, or have opened the calendar again.
void WmDateCalendar::OnCalendarHide()
{
    if (!m_bClosedByButton && !m_pCalendar->isVisible())
        Check(false);
}

} // namespace UICommonMdl
