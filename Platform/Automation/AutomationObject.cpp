#include <Platform/Automation/AutomationObject.h>

namespace Automation {

AutomationObject::AutomationObject() = default;
AutomationObject::~AutomationObject() = default;

} // namespace Automation
