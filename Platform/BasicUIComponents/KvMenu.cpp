#include <Platform/BasicUIComponents/KvMenu.h>

#include <Platform/BasicUIComponents/PlatformLook.h>

namespace KvGUI {

KvMenu::KvMenu(QWidget* parent)
    : KvMenu(QString(), parent)
{ }

KvMenu::KvMenu(const QString& title, QWidget* parent)
    : QMenu(title, parent)
{
    UsePlatformSheet(this, QStringLiteral("KvMenu.css"));
    UseSkinPalette(this);
}

} // namespace KvGUI
