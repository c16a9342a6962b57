#include "WindowTitle.h"

#include <QPainter>

namespace UICommonMdl {

namespace {

constexpr int BarHeight = 24; // pixels
constexpr int BarMargin = 2; // pixels
constexpr int VideoTop = 26; // pixels
constexpr int TextIndent = 4; // pixels

} // namespace

QString WindowTitle::ToolTip(Button button, bool on)
{
    switch (button) {
    case Button::Volume:
        return on ? tr("Close Volume") : tr("Open Volume");
    case Button::Snap:
        return on ? tr("Restore") : tr("SelfAdaption");
    case Button::Max:
        return on ? tr("Restore") : tr("Max");
    case Button::Close:
        break;
    }
    return tr("Close");
}

QString WindowTitle::Numbered(int number)
{
    if (number <= 0)
        return QString();
    return QStringLiteral("%1 %2").arg(tr("Window"), QString::number(number));
}

QString WindowTitle::Joined(const QString& title, const QString& content)
{
    const bool both = !title.isEmpty() && !content.isEmpty();
    return both ? title + QStringLiteral("  ") + content : title + content;
}

QRect WindowTitle::BarRect(const QSize& window)
{
    return {BarMargin, BarMargin, qMax(0, window.width() - 2 * BarMargin), BarHeight};
}

QRect WindowTitle::VideoRect(const QSize& window)
{
    return {1, VideoTop, qMax(0, window.width() - 2 * BarMargin), qMax(0, window.height() - BarHeight)};
}

void WindowTitle::Draw(QPainter& painter, const QRect& bar, const QString& text, const QColor& color)
{
    const QRect area = bar.adjusted(TextIndent, 0, 0, 0);
    if (text.isEmpty() || area.isEmpty())
        return;
    const QFontMetrics metrics = painter.fontMetrics();
    if (m_measuredText != text || m_measuredFont != painter.font()) {
        m_measuredText = text;
        m_measuredFont = painter.font();
        m_textWidth = metrics.horizontalAdvance(text);
    }
    const bool fits = m_textWidth <= area.width();
    painter.setPen(color);
    // A painter goes by the program's direction, not by that of the wall; the ellipsis would come first.
    const Qt::LayoutDirection direction = painter.layoutDirection();
    painter.setLayoutDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    painter.drawText(
        area, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
        fits ? text : metrics.elidedText(text, Qt::ElideRight, area.width()));
    painter.setLayoutDirection(direction);
}

} // namespace UICommonMdl
