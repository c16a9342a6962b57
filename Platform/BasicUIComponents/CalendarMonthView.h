#pragma once

#include <Platform/BasicUIComponents/CalendarMonthModel.h>

#include <QColor>
#include <QTableView>

namespace KvGUI {

/// The days of a month, on which a range is picked by mouse or keyboard. The view reports picks and moves;
/// the calendar that owns the selection decides on them. Its colours come from style sheets.
class CalendarMonthView : public QTableView
{
    Q_OBJECT
    Q_PROPERTY(QColor textColor MEMBER m_textColor)
    Q_PROPERTY(QColor disabledTextColor MEMBER m_disabledTextColor)
    Q_PROPERTY(QColor rangeColor MEMBER m_rangeColor)
    Q_PROPERTY(QColor endColor MEMBER m_endColor)
    Q_PROPERTY(QColor endTextColor MEMBER m_endTextColor)
    Q_PROPERTY(QColor lineColor MEMBER m_lineColor)

public:
    /// @param selection shown by the view; must outlive it
    CalendarMonthView(const CalendarSelection& selection, QWidget* parent);

    CalendarMonthModel* Days() const { return m_pDays; }

    /// Puts the keyboard's mark on the day, or takes it away when the day is of another month.
    void SetCurrentDay(const QDate& day);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// Paints the cell of one day, in the view's colours.
    void PaintDay(QPainter& painter, const QRect& cell, const QModelIndex& index) const;

Q_SIGNALS:
    void SignalPicked(const QDate& day); ///< by a click or by the keyboard
    void SignalHovered(const QDate& day); ///< invalid where the mouse is on no day that can be picked
    void SignalMoveWanted(const QDate& day); ///< the keyboard goes to this day, perhaps of another month
    void SignalTurned(int months); ///< the wheel turns the page
    void SignalEntered(); ///< the view got the focus

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void SetUpHeaders();
    void LayOutCells();
    QDate KeyTarget(const QKeyEvent& event, const QDate& from) const;
    void PaintRange(QPainter& painter, const QRect& cell, const QDate& day) const;
    QColor TextColor(const QDate& day, const QModelIndex& index) const;

    const CalendarSelection& m_selection;
    CalendarMonthModel* m_pDays;
    QDate m_clicked; ///< by the mouse event that is being handled
    int m_iWheelAngle = 0; ///< turned since the last page, in eighths of a degree
    QColor m_textColor = Qt::black;
    QColor m_disabledTextColor = Qt::gray;
    QColor m_rangeColor = Qt::lightGray;
    QColor m_endColor = Qt::darkBlue;
    QColor m_endTextColor = Qt::white;
    QColor m_lineColor = Qt::blue; ///< today's ring and the keyboard's mark
};

} // namespace KvGUI
