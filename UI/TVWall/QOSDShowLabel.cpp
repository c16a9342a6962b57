#include "QOSDShowLabel.h"

#include "ScreenOverlay.h"

#include <QPainter>
#include <cmath>

namespace UICommonMdl {

namespace {

constexpr double PixelsPerSecond = 60.0;

bool IsVertical(int rollMode)
{
    return rollMode == QOSDShowLabel::TopToBottom || rollMode == QOSDShowLabel::BottomToTop;
}

} // namespace

QOSDShowLabel::QOSDShowLabel(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

void QOSDShowLabel::SetContent(const Content& content)
{
    m_content = content;
    m_way = 0.0;
    m_lines.clear();
    int widest = 0;
    ensurePolished(); // the style sheet chooses the face
    const QFontMetrics metrics(TextFont());
    const int spaceWidth = metrics.horizontalAdvance(QLatin1Char(' '));
    const QStringList lines = content.text.split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        const int lineWidth = metrics.horizontalAdvance(line);
        widest = qMax(widest, lineWidth);
        m_lines << ScreenOverlay::PaddedToWidth(line, lineWidth, spaceWidth, width(), content.alignment);
    }
    // A text that swings takes its own width, so that it turns where it touches the label's edges.
    const bool swings = content.roll && content.rollMode == BackAndForth;
    m_textSize = QSize(swings ? widest : qMax(widest, width()), metrics.lineSpacing() * m_lines.size());
    setAlignment(content.alignment);
    setText(content.text); // what assistive technology reads
    update();
}

QFont QOSDShowLabel::TextFont() const
{
    QFont textFont = font();
    textFont.setPixelSize(m_content.fontPixelSize);
    return textFont;
}

// A text that swings and fills its label exactly has nowhere to go.
bool QOSDShowLabel::IsRolling() const { return m_content.roll && WayLength() >= 1.0; }

// Pixels of one round. A text leaves the label wholly before it comes in again from the other side; back
// and forth it moves as far as it sticks out of the label, or as it has room in it.
double QOSDShowLabel::WayLength() const
{
    if (m_content.rollMode == BackAndForth)
        return 2.0 * std::abs(m_textSize.width() - width());
    if (IsVertical(m_content.rollMode))
        return height() + m_textSize.height();
    return width() + m_textSize.width();
}

void QOSDShowLabel::Advance(int milliseconds)
{
    if (!IsRolling() || milliseconds <= 0)
        return;
    m_way = std::fmod(m_way + PixelsPerSecond * milliseconds / 1000.0, WayLength());
    update();
}

QPoint QOSDShowLabel::TextOffset() const
{
    if (!m_content.roll)
        return {};
    const int way = static_cast<int>(m_way);
    // The first round starts at rest; past the length that takes it out of the label, the text comes in
    // again from the other side.
    const auto wrapped = [way](int length, int whole) { return way < length ? way : way - whole; };
    const int whole = static_cast<int>(WayLength());
    switch (m_content.rollMode) {
    case LeftToRight:
        return {wrapped(width(), whole), 0};
    case TopToBottom:
        return {0, wrapped(whole / 2, whole)};
    case BottomToTop:
        return {0, -wrapped(whole / 2, whole)};
    case BackAndForth: {
        const int away = way < whole / 2 ? way : whole - way;
        return {m_textSize.width() > width() ? -away : away, 0};
    }
    default:
        return {-wrapped(m_textSize.width(), whole), 0};
    }
}

void QOSDShowLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), m_content.backColor);
    painter.setPen(m_content.textColor);
    painter.setFont(TextFont());
    const int lineHeight = painter.fontMetrics().lineSpacing();
    QRect line(0, (height() - m_textSize.height()) / 2, m_textSize.width(), lineHeight);
    line.translate(TextOffset());
    for (const QString& text : qAsConst(m_lines)) {
        if (line.intersects(rect())) {
            // A painter goes by the program's direction: the spaces would lie on the other side of the text.
            painter.setLayoutDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
            painter.drawText(line, int(m_content.alignment) | Qt::TextSingleLine, text);
        }
        line.translate(0, lineHeight);
    }
}

} // namespace UICommonMdl
