#include "TipPlacement.h"

namespace UICommonMdl {

namespace {

constexpr int SmallestWidth = 200;
constexpr int LargestWidth = 300;
constexpr int OneLineHeight = 26;
constexpr int Gap = 1; // pixels between the anchor and the arrow's tip

bool IsBeside(CTipLabel::DisplayPosition side) { return side == CTipLabel::Left || side == CTipLabel::Right; }

CTipLabel::DisplayPosition Opposite(CTipLabel::DisplayPosition side)
{
    switch (side) {
    case CTipLabel::Left:
        return CTipLabel::Right;
    case CTipLabel::Right:
        return CTipLabel::Left;
    case CTipLabel::Top:
        return CTipLabel::Bottom;
    case CTipLabel::Bottom:
        return CTipLabel::Top;
    default:
        return CTipLabel::None;
    }
}

QSize BubbleSize(const QSize& body, CTipLabel::DisplayPosition side)
{
    if (side == CTipLabel::None)
        return body;
    return body + (IsBeside(side) ? QSize(TipArrowLength, 0) : QSize(0, TipArrowLength));
}

/// Where the bubble would stand on a screen without end. Beside the anchor the arrow points at its middle,
/// above and below it the bubble begins where the anchor begins.
QRect WantedRect(const QRect& anchor, const QSize& body, CTipLabel::DisplayPosition side)
{
    const QSize size = BubbleSize(body, side);
    constexpr int tip = TipArrowStart + TipArrowWidth / 2;
    const int alongMiddle = anchor.center().y() - tip;
    const int alongLeft = qMin(anchor.left(), anchor.center().x() - tip);
    switch (side) {
    case CTipLabel::Left:
        return {QPoint(anchor.right() + 1 + Gap, alongMiddle), size};
    case CTipLabel::Right:
        return {QPoint(anchor.left() - Gap - size.width(), alongMiddle), size};
    case CTipLabel::Bottom:
        return {QPoint(alongLeft, anchor.top() - Gap - size.height()), size};
    default:
        return {QPoint(alongLeft, anchor.bottom() + 1 + Gap), size};
    }
}

/// Whether the bubble keeps its distance to the anchor on this screen.
bool HasRoom(const QRect& bubble, CTipLabel::DisplayPosition side, const QRect& screen)
{
    if (IsBeside(side))
        return bubble.left() >= screen.left() && bubble.right() <= screen.right();
    return bubble.top() >= screen.top() && bubble.bottom() <= screen.bottom();
}

QRect MovedInto(QRect rect, const QRect& screen)
{
    rect.moveLeft(qMax(screen.left(), qMin(rect.left(), screen.right() + 1 - rect.width())));
    rect.moveTop(qMax(screen.top(), qMin(rect.top(), screen.bottom() + 1 - rect.height())));
    return rect;
}

} // namespace

int TipLines(int textWidth)
{
    return textWidth < LargestWidth ? 1 : textWidth / LargestWidth + (textWidth % LargestWidth > 0 ? 1 : 0);
}

QSize TipBodySize(int textWidth, int lineSpacing, int leading)
{
    const int width = qBound(SmallestWidth, textWidth, LargestWidth);
    if (width < LargestWidth)
        return {width, OneLineHeight};
    const int lines = TipLines(textWidth);
    return {width, lines * lineSpacing + 2 * leading * lines};
}

TipPlacement
PlaceTip(const QRect& anchor, const QSize& body, CTipLabel::DisplayPosition side, const QRect& screen)
{
    QRect wanted = WantedRect(anchor, body, side);
    if (!HasRoom(wanted, side, screen)) {
        const QRect other = WantedRect(anchor, body, Opposite(side));
        if (HasRoom(other, Opposite(side), screen)) {
            wanted = other;
            side = Opposite(side);
        }
    }
    const QRect bubble = MovedInto(wanted, screen);
    const QPoint moved = wanted.topLeft() - bubble.topLeft();
    const int length = IsBeside(side) ? bubble.height() : bubble.width();
    const int arrowStart = TipArrowStart + (IsBeside(side) ? moved.y() : moved.x());
    const int lastStart = qMax(TipCornerRadius, length - TipArrowWidth - TipCornerRadius);
    return {bubble, side, qBound(TipCornerRadius, arrowStart, lastStart)};
}

QRect TipBody(const QSize& bubble, CTipLabel::DisplayPosition side)
{
    const QRect all(QPoint(0, 0), bubble);
    switch (side) {
    case CTipLabel::Left:
        return all.adjusted(TipArrowLength, 0, 0, 0);
    case CTipLabel::Top:
        return all.adjusted(0, TipArrowLength, 0, 0);
    case CTipLabel::Right:
        return all.adjusted(0, 0, -TipArrowLength, 0);
    case CTipLabel::Bottom:
        return all.adjusted(0, 0, 0, -TipArrowLength);
    default:
        return all;
    }
}

QPolygon TipArrow(const QSize& bubble, CTipLabel::DisplayPosition side, int arrowStart)
{
    if (side == CTipLabel::None)
        return {};
    // Across: from the body to the tip. Along: from the arrow's start to its end.
    const bool atStart = side == CTipLabel::Left || side == CTipLabel::Top;
    const int extent = IsBeside(side) ? bubble.width() : bubble.height();
    const int base = atStart ? TipArrowLength : extent - TipArrowLength;
    const int tip = atStart ? 0 : extent;
    const auto corner = [side](int across, int along) {
        return IsBeside(side) ? QPoint(across, along) : QPoint(along, across);
    };
    return QPolygon(
        {corner(base, arrowStart), corner(tip, arrowStart + TipArrowWidth / 2),
         corner(base, arrowStart + TipArrowWidth)});
}

} // namespace UICommonMdl
