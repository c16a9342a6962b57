#include "WallZoom.h"

#include "WallGeometry.h"

namespace UICommonMdl::WallZoom {

namespace {

constexpr float LargestZoom = 10.0F;
constexpr float Step = 1.5F;

Axis WithExtent(Axis axis, float wanted)
{
    axis.wall = Pixel(LimitedExtent(wanted, axis.view));
    return axis;
}

Axis WithOffset(Axis axis, float wanted)
{
    axis.offset = LimitedOffset(wanted, float(axis.wall), axis.view);
    return axis;
}

} // namespace

float LimitedExtent(float wanted, float view)
{
    if (!(wanted > view)) // NaN as well
        return view;
    if (!(view > 0.0F))
        return 0.0F;
    return wanted / view > LargestZoom ? LargestZoom * view : wanted;
}

float LimitedOffset(float wanted, float wall, float view)
{
    if (!(wanted <= 0.0F)) // NaN as well
        return 0.0F;
    return view > wall + wanted ? view - wall : wanted;
}

int Pixel(float position) { return WallGeometry::Truncated(double(position + 0.5F)); }

Axis Resized(Axis axis, float view)
{
    const float ratio = axis.view > 0.0F ? view / axis.view : 1.0F;
    axis.view = view;
    axis = WithExtent(axis, float(axis.wall) * ratio);
    return WithOffset(axis, axis.offset);
}

Axis Zoomed(Axis axis, int position, bool larger)
{
    if (axis.wall <= 0)
        return axis;
    const auto extent = float(axis.wall);
    const float fraction = float(position) / extent;
    axis = WithExtent(axis, larger ? extent * Step : extent / Step);
    return WithOffset(axis, axis.offset - (float(axis.wall) - extent) * fraction);
}

Axis Located(Axis axis, float start) { return WithOffset(axis, -float(axis.wall) * start); }

float ViewStart(const Axis& axis) { return axis.wall > 0 ? -axis.offset / float(axis.wall) : 0.0F; }

float ViewExtent(const Axis& axis) { return axis.wall > 0 ? axis.view / float(axis.wall) : 0.0F; }

} // namespace UICommonMdl::WallZoom
