#include <Platform/Automation/ActiveX/ActiveXProvider.h>

#include <Platform/Automation/ActiveX/ActiveXControl.h>
#include <Platform/Automation/ActiveX/ActiveXObject.h>

namespace ActiveX {

std::unique_ptr<Automation::AutomationObject> ActiveXProvider::CreateObject(const QString& programId)
{
    return std::make_unique<ActiveXObject>(new QAxObject(programId));
}

std::unique_ptr<Automation::HostedControl> ActiveXProvider::CreateControl(QWidget* parent)
{
    return std::make_unique<ActiveXControl>(parent);
}

} // namespace ActiveX
