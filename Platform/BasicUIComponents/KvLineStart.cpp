#include <Platform/BasicUIComponents/KvLineStart.h>

namespace KvGUI {

Qt::Alignment LineStart(Qt::LayoutDirection direction)
{
    const Qt::Alignment side = direction == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft;
    return side | Qt::AlignAbsolute | Qt::AlignVCenter;
}

} // namespace KvGUI
