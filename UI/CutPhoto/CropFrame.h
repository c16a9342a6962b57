#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <Qt>

/// A crop frame under the operator's hand, on plain values, in widget coordinates.
///
/// A frame is a QRect that may be empty or, while it is dragged out to the left or up, of negative size.
namespace UICommonMdl::CropFrame {

constexpr int GripReach = 10; ///< pixels around a corner in which a press takes hold of it, inclusive
constexpr int MinimumHandleDistance = 20; ///< pixels that a resize keeps between pointer and opposite edges
constexpr int MinimumExtent = 6; ///< pixels that a drag must run right and down to be taken as a frame
constexpr int MaximumPixel = (1 << 24) - 1; ///< the largest coordinate that a widget can have

/// @p pos and @p rect kept within +-MaximumPixel, so that nothing that is calculated from them overflows.
QPoint Bounded(const QPoint& pos);
QRect Bounded(const QRect& rect);

/// Whether @p pos is within reach of @p corner in both directions.
bool IsNear(const QPoint& pos, const QPoint& corner);

QPoint MoveHandle(const QRect& crop); ///< top left
QPoint ScaleHandle(const QRect& crop); ///< top right, one column past the frame
QPoint SearchHandle(const QRect& crop); ///< bottom right, one column and one row past the frame
QPoint Anchor(const QRect& crop); ///< bottom left, one row past the frame

/// @p crop between the same two edges in each direction, with width and height of at least 0.
QRect Normalized(const QRect& crop);

/// The frame left behind by a drag whose signed extents were @p drag: the whole @p photo when it ran less
/// than MinimumExtent to the right or down, which a drag to the left or up always does.
QRect FinishedCrop(const QRect& crop, const QSize& drag, const QRect& photo);

/// What a backwards drag covers: @p crop turned around where its extent @p drag is negative, the vertical
/// direction last.
QRect BackwardsRect(const QRect& crop, const QSize& drag);

/// Whether a frame of the size of @p crop with its top left corner at @p target lies in a picture shown with
/// @p display pixels at the widget's top left corner.
bool CanMoveTo(const QPoint& target, const QRect& crop, const QSize& display);

/// Whether @p pos is far enough from the left and bottom edges to put the top right corner there.
bool CanResizeTo(const QPoint& pos, const QRect& crop);

/// @p crop with its top right corner at @p pos. @p anchor is where the bottom left corner was when the frame
/// was last finished or moved. The bottom edge follows one event behind: each step of a drag sets the height
/// that the step before had asked for.
QRect ResizedTo(const QPoint& pos, const QRect& crop, const QPoint& anchor);

/// The frame between @p press and @p pos, in whatever direction; the two points are its corners. One that
/// ends below a widget of @p widgetHeight ends where a photo of @p photoHeight at its top does.
QRect Spanned(const QPoint& press, const QPoint& pos, int photoHeight, int widgetHeight);

/// @p pos inside @p photo; the right and bottom edges are one past the last column and row.
QPoint ClampedTo(const QRect& photo, const QPoint& pos);

/// Where a bubble of @p tipWidth pixels stands in a canvas: in its middle, 30 pixels above a picture shown
/// with a height of @p displayHeight, at the canvas's upper edge when there is no room.
QPoint TipPosition(const QRect& canvas, int displayHeight, int tipWidth);

/// The cursor that tells what the place @p pos would do. (The corners of the photo count, not those of the
/// frame, except for the first one, whose reach to the right is the photo's width.)
Qt::CursorShape HoverCursor(const QPoint& pos, const QRect& crop, const QRect& photo);

} // namespace UICommonMdl::CropFrame
