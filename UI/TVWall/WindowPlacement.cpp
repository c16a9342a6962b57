#include "WindowPlacement.h"

#include "WallGeometry.h"

namespace UICommonMdl {

WindowPlacement::WindowPlacement(const KvGUI::StructScaleRect& scale, double precision)
    : m_scale(scale)
    , m_restoreScale(scale)
    , m_dPrecision(precision)
{ }

bool WindowPlacement::Change(const KvGUI::StructScaleRect& rect, State state)
{
    if (WallGeometry::IsEqual(m_scale, rect, m_dPrecision))
        return false;
    const KvGUI::StructScaleRect changed = rect; // may be a reference to a member
    m_restoreScale = m_scale;
    m_scale = changed;
    m_state = state;
    return true;
}

bool WindowPlacement::Set(const KvGUI::StructScaleRect& rect) { return Change(rect, State::Free); }

bool WindowPlacement::MaximizeOrRestore()
{
    if (m_state != State::Free) {
        const bool changed = Change(m_restoreScale, State::Free);
        m_state = State::Free;
        return changed;
    }
    if (Change({0.0, 0.0, 1.0, 1.0, true}, State::Maximized))
        return true;
    // A window that fills its screen already is maximised all the same, and restored to where it is.
    m_restoreScale = m_scale;
    m_state = State::Maximized;
    return false;
}

bool WindowPlacement::SnapOrRestore(int columns, int rows)
{
    if (m_state == State::Snapped)
        return MaximizeOrRestore();
    const auto snapped = WallGeometry::SnappedToCells(m_scale, columns, rows, m_dPrecision);
    return snapped && Change(*snapped, State::Snapped);
}

} // namespace UICommonMdl
