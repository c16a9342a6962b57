#include <Platform/Automation/HostedControl.h>

namespace Automation {

HostedControl::HostedControl() = default;
HostedControl::~HostedControl() = default;

} // namespace Automation
