#include "WallSelection.h"

namespace UICommonMdl::WallSelection {

State Clicked(State state, int target, const Click& click)
{
    if (target < 0 || target >= state.selected.size())
        return state;
    const bool wasSelected = state.selected.at(target);
    if (click.mode == SingleMode) {
        state.selected.fill(false);
        state.selected[target] = true;
    } else if (click.fromPress) {
        state.selectOnly = !wasSelected;
    } else {
        state.selected[target] = !wasSelected || (state.selectOnly && click.bandDragging);
    }
    return state;
}

bool TakesPart(int mode, Qt::MouseButton button, bool windowSelected)
{
    if (mode != SingleMode && mode != MultiMode)
        return false;
    return button == Qt::LeftButton || (button == Qt::RightButton && !windowSelected);
}

} // namespace UICommonMdl::WallSelection
