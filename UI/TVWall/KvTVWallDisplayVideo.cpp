#include "KvTVWallDisplayVideo.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace UICommonMdl {

namespace {

constexpr int TextMargin = 8; // pixels

} // namespace

KvTVWallDisplayVideo::KvTVWallDisplayVideo(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("pWindowVideo"));
}

void KvTVWallDisplayVideo::SetText(const QString& text)
{
    m_text = text;
    setAccessibleDescription(text);
    update();
}

void KvTVWallDisplayVideo::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    if (m_text.isEmpty())
        return;
    painter.setPen(palette().color(QPalette::WindowText));
    PaintText(painter, rect(), m_text);
}

void KvTVWallDisplayVideo::PaintText(QPainter& painter, const QRect& area, const QString& text)
{
    painter.drawText(area.adjusted(TextMargin, 0, -TextMargin, 0), Qt::AlignCenter | Qt::TextWordWrap, text);
}

} // namespace UICommonMdl
