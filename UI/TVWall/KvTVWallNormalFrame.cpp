#include "KvTVWallNormalFrame.h"

#include <QPainter>

namespace UICommonMdl {

namespace {

constexpr int LineWidth = 2; // pixels

} // namespace

KvTVWallNormalFrame::KvTVWallNormalFrame(QGraphicsItem* parent)
    : QGraphicsItem(parent)
{
    setZValue(1.0); // its siblings have 0
    setAcceptedMouseButtons(Qt::NoButton);
}

QRect KvTVWallNormalFrame::Inside(const QSize& size)
{
    return QRect(QPoint(0, 0), size).adjusted(LineWidth, LineWidth, -LineWidth, -LineWidth);
}

void KvTVWallNormalFrame::FitTo(const QSize& size)
{
    prepareGeometryChange();
    m_size = size;
}

void KvTVWallNormalFrame::SetColor(const QColor& color)
{
    if (m_color == color)
        return;
    m_color = color;
    update();
}

void KvTVWallNormalFrame::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*)
{
    const int width = m_size.width();
    const int height = m_size.height();
    painter->fillRect(0, 0, width, LineWidth, m_color);
    painter->fillRect(0, height - LineWidth, width, LineWidth, m_color);
    painter->fillRect(0, 0, LineWidth, height, m_color);
    painter->fillRect(width - LineWidth, 0, LineWidth, height, m_color);
}

} // namespace UICommonMdl
