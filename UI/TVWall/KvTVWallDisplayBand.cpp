#include "KvTVWallDisplayBand.h"

#include <QPainter>

namespace UICommonMdl {

namespace {

constexpr int FillAlpha = 48; // of 255; the picture below stays readable

} // namespace

KvTVWallDisplayBand::KvTVWallDisplayBand(QWidget* parent)
    : QRubberBand(QRubberBand::Rectangle, parent)
{ }

void KvTVWallDisplayBand::ShowBetween(const QPoint& a, const QPoint& b, const QColor& color)
{
    m_color = color;
    const QPoint topLeft(qMin(a.x(), b.x()), qMin(a.y(), b.y()));
    const QPoint bottomRight(qMax(a.x(), b.x()), qMax(a.y(), b.y()));
    setGeometry(QRect(topLeft, bottomRight));
    show();
    raise();
}

void KvTVWallDisplayBand::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QColor fill = m_color;
    fill.setAlpha(FillAlpha);
    painter.fillRect(rect(), fill);
    painter.setPen(m_color);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

// NOLINTBEGIN(bugprone-parent-virtual-call)
// The base class would cut the band to the mask of the platform's style, which leaves the outline only.
void KvTVWallDisplayBand::resizeEvent(QResizeEvent* event) { QWidget::resizeEvent(event); }

void KvTVWallDisplayBand::changeEvent(QEvent* event) { QWidget::changeEvent(event); }
// NOLINTEND(bugprone-parent-virtual-call)

} // namespace UICommonMdl
