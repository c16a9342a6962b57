#pragma once

#include <UIComponentsExport.h>

#include <Qt>

namespace KvGUI {

/// The alignment of a text that stands where the lines of a layout start, centred in height: at the left, and
/// at the right in a mirrored layout. For labels whose text may run the other way than the layout, as the
/// name of a camera in Latin letters does in a mirrored window: a QLabel goes by its text alone, and would
/// put the name at the end of the line.
///
/// A label is given it again when its direction changes (QEvent::LayoutDirectionChange).
///
/// @param direction of the layout; what is not Qt::RightToLeft counts as left to right
/// @return an absolute alignment, which Qt does not turn round again
UICOMPONENTS_EXPORT Qt::Alignment LineStart(Qt::LayoutDirection direction);

} // namespace KvGUI
