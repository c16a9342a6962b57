#pragma once

#include <Platform/BasicUIComponents/StructScaleRect.h>

#include <QPoint>
#include <QRect>
#include <QSize>
#include <Qt>
#include <optional>

/// The arithmetic of a video wall on plain values, shared by all its widgets.
///
/// Scale rectangles are fractions of a containing area, pixels are widget coordinates. Every function takes
/// any double, infinities and NaN included; pixels are kept within +-MaximumPixel, which is the largest
/// coordinate that a widget can have.
namespace UICommonMdl::WallGeometry {

constexpr double DisplayPrecision = 0.001; ///< precision of walls built from widgets
constexpr double NormalPrecision = 0.002; ///< precision of walls built on a graphics scene
constexpr int MaximumPixel = (1 << 24) - 1;

/// @p value without its fraction (towards zero), within +-MaximumPixel; 0 for NaN.
int Truncated(double value);

/// Whether each edge of @p a and @p b differs by @p precision at most. Inclusive as one reads the numbers:
/// 0.5 and 0.501 are equal within 0.001 although their difference as doubles is a hair larger. bEditable
/// takes no part. A NaN edge is equal to NaN only.
bool IsEqual(const KvGUI::StructScaleRect& a, const KvGUI::StructScaleRect& b, double precision);

/// How many of @p cells cells lie between the fractions @p from and @p to, rounded half up.
int CellSpan(int cells, double from, double to);

/// A screen's place in @p wall. Unless @p noGap, a gutter of 4 pixels is left on its right and bottom side
/// where that side is not the wall's own edge (exactly 1.0).
QRect ScreenRect(const QRect& wall, const KvGUI::StructScaleRect& scale, bool noGap);

/// A window's place in a screen of @p screen pixels. Width and height are rounded from the difference of
/// the edges, so that windows of equal scale size have equal pixel size.
QRect WindowRect(const QSize& screen, const KvGUI::StructScaleRect& scale);

/// @p rect with width and height of at least 0, as a widget takes it.
QRect Displayable(const QRect& rect);

/// @p scale widened to the screen's cells that it covers; edges that lie within @p precision cells
/// (vertically twice that) of a cell's border count as on it. Nothing when the screen has no cells.
std::optional<KvGUI::StructScaleRect>
SnappedToCells(const KvGUI::StructScaleRect& scale, int columns, int rows, double precision);

/// The scale rectangle that the operator drew from pixel @p from to pixel @p to, in either direction, on a
/// screen of @p screen pixels; editable. Nothing when it is 2 pixels or less wide or high.
std::optional<KvGUI::StructScaleRect> DrawnScale(const QPoint& from, const QPoint& to, const QSize& screen);

/// @p pixel in units of 1/8192 of @p screen's width and height; 0 for a screen without a size.
QPoint InSiteUnits(const QPoint& pixel, const QSize& screen);

/// The edges of a window of @p window pixels that a mouse at @p pos takes hold of: those nearer than
/// @p grip pixels, both near a corner.
Qt::Edges EdgesAt(const QSize& window, const QPoint& pos, int grip);

/// @p start after a drag by @p way: moved as a whole when @p edges is empty, else with those edges moved.
/// The result stays inside @p bounds as far as it fits and no edge is dragged nearer than @p minimum to
/// its opposite (a window that is smaller already is not enlarged by it).
QRect DraggedRect(
    const QRect& start, const QPoint& way, Qt::Edges edges, const QRect& bounds, const QSize& minimum);

/// The scale rectangle of a window at @p scale whose pixels were dragged from @p start to @p end on a screen
/// of @p screen pixels. Edges that did not move keep their exact value.
KvGUI::StructScaleRect
DraggedScale(const KvGUI::StructScaleRect& scale, const QRect& start, const QRect& end, const QSize& screen);

} // namespace UICommonMdl::WallGeometry
