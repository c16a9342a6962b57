#include <Platform/Automation/AutomationProvider.h>

namespace Automation {

AutomationProvider::AutomationProvider() = default;
AutomationProvider::~AutomationProvider() = default;

} // namespace Automation
