#include "CalendarMonthView.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QWheelEvent>

namespace KvGUI {

namespace {

// Pixels, at least: large letters take more.
constexpr int CellWidth = 36;
constexpr int CellHeight = 28;
constexpr int HeaderHeight = 26;
constexpr int Gap = 8; // pixels between texts
constexpr int Radius = 4; // pixels, of the corners of marks
constexpr int WheelStep = 120; // eighths of a degree, one click of a wheel

class DayDelegate : public QStyledItemDelegate
{
public:
    explicit DayDelegate(CalendarMonthView* view)
        : QStyledItemDelegate(view)
        , m_pView(view)
    { }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        m_pView->PaintDay(*painter, option.rect, index);
    }

private:
    CalendarMonthView* m_pView;
};

} // namespace

CalendarMonthView::CalendarMonthView(const CalendarSelection& selection, QWidget* parent)
    : QTableView(parent)
    , m_selection(selection)
    , m_pDays(new CalendarMonthModel(selection, this))
{
    setModel(m_pDays);
    setItemDelegate(new DayDelegate(this));
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    SetUpHeaders();
    connect(this, &QAbstractItemView::entered, this, [this](const QModelIndex& index) {
        const bool reachable = index.flags() & Qt::ItemIsEnabled;
        emit SignalHovered(reachable ? m_pDays->Day(index) : QDate());
    });
    connect(this, &QAbstractItemView::viewportEntered, this, [this] { emit SignalHovered(QDate()); });
    connect(this, &QAbstractItemView::clicked, this, [this](const QModelIndex& index) {
        if (index.flags() & Qt::ItemIsEnabled)
            m_clicked = m_pDays->Day(index);
    });
}

void CalendarMonthView::SetUpHeaders()
{
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(1);
    QHeaderView* header = horizontalHeader();
    header->setMinimumSectionSize(1);
    header->setSectionResizeMode(QHeaderView::Fixed);
    header->setSectionsClickable(false);
    header->setHighlightSections(false);
    header->setFixedHeight(qMax(HeaderHeight, fontMetrics().height() + Gap));
}

QSize CalendarMonthView::sizeHint() const
{
    int width = CellWidth;
    for (int column = 0; column < CalendarColumns; ++column) {
        const QString day = m_pDays->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        width = qMax(width, fontMetrics().horizontalAdvance(day) + Gap);
    }
    const int height = qMax(CellHeight, fontMetrics().height() + Gap);
    return {CalendarColumns * width, horizontalHeader()->height() + CalendarRows * height};
}

QSize CalendarMonthView::minimumSizeHint() const { return sizeHint(); }

void CalendarMonthView::resizeEvent(QResizeEvent* event)
{
    LayOutCells();
    QTableView::resizeEvent(event);
}

void CalendarMonthView::LayOutCells()
{
    for (int column = 0; column < CalendarColumns; ++column)
        setColumnWidth(column, viewport()->width() / CalendarColumns);
    for (int row = 0; row < CalendarRows; ++row)
        setRowHeight(row, viewport()->height() / CalendarRows);
}

void CalendarMonthView::SetCurrentDay(const QDate& day)
{
    setCurrentIndex(m_pDays->IndexOf(day));
    viewport()->update();
}

void CalendarMonthView::focusInEvent(QFocusEvent* event)
{
    emit SignalEntered(); // before the base class would mark the first cell
    QTableView::focusInEvent(event);
}

/// The day that a key leads to; invalid for other keys.
QDate CalendarMonthView::KeyTarget(const QKeyEvent& event, const QDate& from) const
{
    const int forward = isRightToLeft() ? -1 : 1;
    const bool years = event.modifiers() & Qt::ControlModifier;
    switch (event.key()) {
    case Qt::Key_Left:
        return from.addDays(-forward);
    case Qt::Key_Right:
        return from.addDays(forward);
    case Qt::Key_Up:
        return from.addDays(-CalendarColumns);
    case Qt::Key_Down:
        return from.addDays(CalendarColumns);
    case Qt::Key_PageUp:
        return years ? from.addYears(-1) : from.addMonths(-1);
    case Qt::Key_PageDown:
        return years ? from.addYears(1) : from.addMonths(1);
    case Qt::Key_Home:
        return MonthOf(from);
    case Qt::Key_End:
        return {from.year(), from.month(), from.daysInMonth()};
    default:
        return {};
    }
}

void CalendarMonthView::keyPressEvent(QKeyEvent* event)
{
    const QDate day = m_pDays->Day(currentIndex());
    const QDate target = day.isValid() ? KeyTarget(*event, day) : QDate();
    const bool picks = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter
        || event->key() == Qt::Key_Space || event->key() == Qt::Key_Select;
    if (target.isValid())
        emit SignalMoveWanted(target);
    else if (picks && m_selection.CanPick(day))
        emit SignalPicked(day);
    else if (!picks)
        event->ignore(); // Escape and Tab are the window's
}

/// Reports the click when the base class is through with it: a client's slot may delete the calendar.
void CalendarMonthView::mouseReleaseEvent(QMouseEvent* event)
{
    m_clicked = QDate();
    QTableView::mouseReleaseEvent(event);
    if (m_clicked.isValid())
        emit SignalPicked(m_clicked);
}

void CalendarMonthView::wheelEvent(QWheelEvent* event)
{
    event->accept();
    m_iWheelAngle += event->angleDelta().y();
    const int months = -m_iWheelAngle / WheelStep;
    if (months == 0)
        return;
    m_iWheelAngle %= WheelStep;
    emit SignalTurned(months);
}

void CalendarMonthView::leaveEvent(QEvent* event)
{
    QTableView::leaveEvent(event);
    emit SignalHovered(QDate());
}

void CalendarMonthView::PaintDay(QPainter& painter, const QRect& cell, const QModelIndex& index) const
{
    const QDate day = m_pDays->Day(index);
    if (!day.isValid())
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    PaintRange(painter, cell, day);
    const QRectF mark = QRectF(cell).adjusted(1.5, 1.5, -1.5, -1.5);
    painter.setBrush(Qt::NoBrush);
    if (day == QDate::currentDate()) {
        painter.setPen(QPen(TextColor(day, index), 1));
        painter.drawEllipse(mark.center(), mark.height() / 2, mark.height() / 2);
    }
    painter.setPen(TextColor(day, index));
    painter.drawText(cell, Qt::AlignCenter, index.data().toString());
    if (index == currentIndex() && hasFocus()) {
        painter.setPen(QPen(m_lineColor, 2));
        painter.drawRoundedRect(mark, Radius, Radius);
    }
    painter.restore();
}

/// A band through the days of the range, its first and last day on a field of their own.
void CalendarMonthView::PaintRange(QPainter& painter, const QRect& cell, const QDate& day) const
{
    const DateRange shown = m_selection.Shown();
    if (!shown.Contains(day))
        return;
    painter.setPen(Qt::NoPen);
    const QRect band = cell.adjusted(0, 2, 0, -2);
    const bool mirrored = isRightToLeft();
    const QRect before(band.left(), band.top(), band.width() / 2, band.height());
    const QRect after(
        band.left() + band.width() / 2, band.top(), band.width() - band.width() / 2, band.height());
    if (day != shown.start)
        painter.fillRect(mirrored ? after : before, m_rangeColor);
    if (day != shown.end)
        painter.fillRect(mirrored ? before : after, m_rangeColor);
    if (day != shown.start && day != shown.end)
        return;
    painter.setBrush(m_endColor);
    painter.drawRoundedRect(band.adjusted(1, 0, -1, 0), Radius, Radius);
}

QColor CalendarMonthView::TextColor(const QDate& day, const QModelIndex& index) const
{
    const DateRange shown = m_selection.Shown();
    if (shown.IsValid() && (day == shown.start || day == shown.end))
        return m_endTextColor;
    return index.flags() & Qt::ItemIsEnabled ? m_textColor : m_disabledTextColor;
}

} // namespace KvGUI
