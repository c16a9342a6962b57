#pragma once

#include <QVector>

/// The z-order of the windows of one screen, on plain values: a window is its position in the screen's list.
namespace UICommonMdl::WallStacking {

/// The z-values after window @p moved, which had the value @p oldZ, has got its new one (already in
/// @p values): the values above the old one close the gap, each lowered by 1. The walk goes in list order
/// and ends at the first negative value, the moved window's own included; an old value below 1 left no gap.
QVector<int> WithGapClosed(QVector<int> values, int moved, int oldZ);

/// The windows' positions by ascending z-value; of several with the same value only the last is listed.
QVector<int> AscendingOrder(const QVector<int>& values);

} // namespace UICommonMdl::WallStacking
