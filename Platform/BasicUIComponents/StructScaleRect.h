#pragma once

namespace KvGUI {

/// A rectangle as fractions of the area that contains it.
///
/// A screen's rectangle is a part of the whole wall, a window's rectangle a part of its screen: the left
/// half of the containing area is {0, 0, 0.5, 1}. Values are normally within 0 to 1 with left < right and
/// top < bottom; nothing clamps or reorders them. A plain value: copy it freely.
struct StructScaleRect
{
    double dLeft = 0.0; ///< left edge, fraction of the containing area's width
    double dTop = 0.0; ///< top edge, fraction of the containing area's height
    double dRight = 0.0; ///< right edge, fraction of the containing area's width
    double dBottom = 0.0; ///< bottom edge, fraction of the containing area's height
    bool bEditable = false; ///< the operator may move, resize and close the window; not read for screens
};

} // namespace KvGUI
