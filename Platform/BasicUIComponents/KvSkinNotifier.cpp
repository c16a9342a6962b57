#include <Platform/BasicUIComponents/KvSkinNotifier.h>

namespace KvGUI {

KvSkinNotifier* KvSkinNotifier::Instance()
{
    static KvSkinNotifier notifier;
    return &notifier;
}

} // namespace KvGUI
