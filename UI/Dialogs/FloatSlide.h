#pragma once

#include <QPoint>
#include <QRect>
#include <QRegion>

/// How a panel slides in from the right edge of its window and out again, on plain values.
namespace UICommonMdl {

/// One slide of a panel.
struct FloatSlide
{
    QPoint start; ///< of the panel's top left corner, in its window
    QPoint end;
    int duration; ///< milliseconds

    /// A slide of a panel at rest that is @p width pixels wide.
    static FloatSlide FromRest(bool show, int width, int duration);

    /// The slide that turns back one that has run for @p elapsed milliseconds and brought the panel to
    /// @p x: it takes as long as that one has run.
    static FloatSlide TurnedBack(bool show, int width, int x, int elapsed);
};

/// The part of a window of @p window pixels that its panel covers; a region beside the window when it
/// covers none, since an empty mask would be no mask.
QRegion CoveredByPanel(const QSize& window, const QRect& panel);

} // namespace UICommonMdl
