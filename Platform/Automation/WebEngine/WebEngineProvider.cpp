#include <Platform/Automation/WebEngine/WebEngineProvider.h>

#include <Platform/Automation/WebEngine/WebControl.h>

namespace WebEngine {

std::unique_ptr<Automation::HostedControl> WebEngineProvider::CreateControl(QWidget* parent)
{
    return std::make_unique<WebControl>(parent);
}

} // namespace WebEngine
