#pragma once

#include <QRect>

class QWidget;

namespace UICommonMdl {

/// The part that windows can use of the screen on which the middle of @p widget lies, in global coordinates;
/// of its window's screen when the middle is off every screen.
QRect ScreenOf(const QWidget* widget);

} // namespace UICommonMdl
