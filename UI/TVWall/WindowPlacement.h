#pragma once

#include <Platform/BasicUIComponents/StructScaleRect.h>

namespace UICommonMdl {

/// Where a window stands on its screen, on plain values: its scale rectangle, the one to restore, and
/// whether it was maximised or snapped to the cells.
///
/// Each change keeps the rectangle it replaces as the one to restore. A rectangle equal to the present one
/// within the precision is no change.
class WindowPlacement
{
public:
    enum class State
    {
        Free,
        Maximized,
        Snapped
    };

    WindowPlacement(const KvGUI::StructScaleRect& scale, double precision);

    const KvGUI::StructScaleRect& Scale() const { return m_scale; }
    State GetState() const { return m_state; }
    double Precision() const { return m_dPrecision; }

    /// @name Changes; each returns whether the rectangle is another one now
    /// @{

    /// Makes @p rect the rectangle, which frees the window. Without a change the state stays too.
    bool Set(const KvGUI::StructScaleRect& rect);
    /// Maximises a free window, which makes it editable; restores any other one.
    bool MaximizeOrRestore();
    /// Snaps the window to its screen's cells unless it stands on them; restores a snapped one.
    bool SnapOrRestore(int columns, int rows);
    /// @}

private:
    bool Change(const KvGUI::StructScaleRect& rect, State state);

    KvGUI::StructScaleRect m_scale;
    KvGUI::StructScaleRect m_restoreScale;
    double m_dPrecision;
    State m_state = State::Free;
};

} // namespace UICommonMdl
