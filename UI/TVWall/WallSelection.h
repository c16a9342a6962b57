#pragma once

#include <QVector>
#include <Qt>

/// What clicks and bands select among the windows of one screen, on plain values.
namespace UICommonMdl::WallSelection {

constexpr int SingleMode = 1; ///< a click selects one window and deselects the others
constexpr int MultiMode = 2; ///< clicks toggle, a drag over the empty area is a selection band

/// What a mouse event on a window adds to the wall's own state.
struct Click
{
    int mode = 0; ///< the wall's selection mode
    bool fromPress = false; ///< the button went down; false at its release and for a band
    bool bandDragging = false; ///< a selection band is being drawn
};

/// The selected flags of a screen's windows by list position, and what the last press found.
struct State
{
    QVector<bool> selected;
    /// The window pressed last was not selected then, so that a band must not deselect it again.
    bool selectOnly = false;
};

/// Runs the selection routine for the window at position @p target. In SingleMode it becomes the only
/// selected one; in any other mode a press only notes selectOnly, and a release or band toggles the target,
/// except that a band after a press on an unselected window only selects.
State Clicked(State state, int target, const Click& click);

/// Whether @p button on a window that is selected or not takes part in selection in @p mode: the left one
/// always, the right one only on an unselected window, so that a right click never deselects.
bool TakesPart(int mode, Qt::MouseButton button, bool windowSelected);

} // namespace UICommonMdl::WallSelection
