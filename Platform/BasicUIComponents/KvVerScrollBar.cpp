#include <Platform/BasicUIComponents/KvVerScrollBar.h>

#include <Platform/BasicUIComponents/PlatformLook.h>

namespace KvGUI {

KvVerScrollBar::KvVerScrollBar(QWidget* parent)
    : QScrollBar(Qt::Vertical, parent)
{
    UsePlatformSheet(this, QStringLiteral("KvScrollBar.css"));
}

} // namespace KvGUI
