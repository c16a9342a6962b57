#include "KvTVWallDisplayFrame.h"

#include <QPainter>

namespace UICommonMdl {

namespace {

constexpr int LineWidth = 2; // pixels

} // namespace

KvTVWallDisplayFrame::KvTVWallDisplayFrame(QWidget* parent, const QColor& color)
    : QWidget(parent)
    , m_color(color)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
}

void KvTVWallDisplayFrame::SetColor(const QColor& color)
{
    m_color = color;
    update();
}

void KvTVWallDisplayFrame::FitTo(const QSize& size)
{
    const QRect whole(QPoint(0, 0), size);
    setGeometry(whole);
    setMask(QRegion(whole) - QRegion(whole.adjusted(LineWidth, LineWidth, -LineWidth, -LineWidth)));
}

void KvTVWallDisplayFrame::paintEvent(QPaintEvent*) { QPainter(this).fillRect(rect(), m_color); }

} // namespace UICommonMdl
