#pragma once

#include <UI/FormInputs/CTipLabel.h>

#include <QPolygon>
#include <QRect>
#include <QSize>

namespace UICommonMdl {

/// Sizes of a tip bubble in pixels.
constexpr int TipArrowLength = 5; ///< how far the arrow sticks out of the body
constexpr int TipArrowWidth = 10; ///< of the arrow's base
constexpr int TipArrowStart = 9; ///< from the bubble's corner to the arrow's base, when there is room
constexpr int TipCornerRadius = 4;

/// Where a bubble stands, in global coordinates.
struct TipPlacement
{
    QRect bubble; ///< body and arrow
    CTipLabel::DisplayPosition side = CTipLabel::None; ///< that carries the arrow
    int arrowStart = TipArrowStart; ///< from the bubble's left or upper edge to the arrow's base
};

/// Lines of a text in a bubble.
/// @param textWidth width of the whole text in one line, in pixels
int TipLines(int textWidth);

/// The size of the body of a bubble, without its arrow.
/// @param textWidth width of the whole text in one line, in pixels
/// @param lineSpacing, leading of the text's font, in pixels; the leading may be below zero
QSize TipBodySize(int textWidth, int lineSpacing, int leading);

/// Places a bubble beside its anchor, wholly on the screen: on the other side of the anchor when the wanted
/// one has no room and the other has, and moved along the anchor as far as needed. The arrow then still
/// points at the anchor, as far as the bubble's edge reaches. A bubble larger than the screen keeps its upper
/// left corner on it.
TipPlacement
PlaceTip(const QRect& anchor, const QSize& body, CTipLabel::DisplayPosition side, const QRect& screen);

/// The part of a bubble of the size @p bubble that is not arrow.
QRect TipBody(const QSize& bubble, CTipLabel::DisplayPosition side);

/// The arrow's three corners inside a bubble of the size @p bubble; empty without an arrow.
QPolygon TipArrow(const QSize& bubble, CTipLabel::DisplayPosition side, int arrowStart);

} // namespace UICommonMdl
