#include <Platform/Automation/AutomationProvider.h>

namespace Automation {

AutomationProvider::AutomationProvider() = default;
AutomationProvider::~AutomationProvider() = default;

std::unique_ptr<AutomationObject> AutomationProvider::CreateObject(const QString&) { return nullptr; }

std::unique_ptr<HostedControl> AutomationProvider::CreateControl(QWidget*) { return nullptr; }

} // namespace Automation
