#pragma once

/// Zooming and panning of a wall behind its view, one direction at a time, on plain values in pixels.
///
/// The wall always covers its view and is at most ten times as large. All of it is single precision, and
/// rounding is to add a half and cut the fraction, also below zero: an offset of -200 stands at pixel -199.
namespace UICommonMdl::WallZoom {

/// A wall and its view in one direction.
struct Axis
{
    float view = 0.0F; ///< extent of the view; 0 while it has none
    int wall = 0; ///< extent of the wall, never less than that of the view
    float offset = 0.0F; ///< of the wall's start from the view's, exact; never above 0
};

/// @p wanted within what a wall behind a view of @p view may have: its view's extent to ten times that.
float LimitedExtent(float wanted, float view);

/// @p wanted, so that a wall of extent @p wall covers its view.
float LimitedOffset(float wanted, float wall, float view);

/// The pixel at which something at @p position is placed.
int Pixel(float position);

/// The axis after its view got another extent: the wall grows and shrinks with the view, the offset stays
/// where it is within its limits. Behind the first view the wall fills it.
Axis Resized(Axis axis, float view);

/// The axis one step of one and a half times larger or smaller. The point of the wall at @p position (in
/// wall pixels) stays where it is on the screen, as far as the limits permit.
Axis Zoomed(Axis axis, int position, bool larger);

/// The axis with its view at the fraction @p start of the wall.
Axis Located(Axis axis, float start);

float ViewStart(const Axis& axis); ///< of the view, as a fraction of the wall; 0 without a wall
float ViewExtent(const Axis& axis); ///< of the view, as a fraction of the wall; 0 without a wall

} // namespace UICommonMdl::WallZoom
