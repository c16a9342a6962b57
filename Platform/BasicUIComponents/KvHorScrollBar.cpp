#include <Platform/BasicUIComponents/KvHorScrollBar.h>

#include <Platform/BasicUIComponents/PlatformLook.h>

namespace KvGUI {

KvHorScrollBar::KvHorScrollBar(QWidget* parent)
    : QScrollBar(Qt::Horizontal, parent)
{
    UsePlatformSheet(this, QStringLiteral("KvScrollBar.css"));
}

} // namespace KvGUI
