#pragma once

#include <QMenu>
#include <UIComponentsExport.h>

namespace KvGUI {

/// A pop-up menu in the library's look, which follows the skin.
///
/// The colours are in its palette as well as in its sheet: a menu that a client gives a small sheet of
/// its own, say for the selected item only, keeps the skin's colours for the rest.
class UICOMPONENTS_EXPORT KvMenu : public QMenu
{
    Q_OBJECT

public:
    explicit KvMenu(QWidget* parent = nullptr);
    explicit KvMenu(const QString& title, QWidget* parent = nullptr);
};

} // namespace KvGUI
