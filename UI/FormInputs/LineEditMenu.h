#pragma once

class QAction;
class QMenu;

namespace UICommonMdl {

/// The "Paste" entry of a menu made by QLineEdit::createStandardContextMenu(); null when it has none, as in
/// the menu of a read-only edit.
QAction* PasteAction(const QMenu* menu);

} // namespace UICommonMdl
