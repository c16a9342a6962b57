#pragma once

#include <Platform/Automation/AutomationProvider.h>

namespace ActiveX {

/// The plugin that takes automation objects and hosted controls from COM. On Windows only.
class ActiveXProvider : public QObject, public Automation::AutomationProvider
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID UICOMPONENTS_AUTOMATION_PROVIDER FILE "activex.json")
    Q_INTERFACES(Automation::AutomationProvider)

public:
    std::unique_ptr<Automation::AutomationObject> CreateObject(const QString& programId) override;
    std::unique_ptr<Automation::HostedControl> CreateControl(QWidget* parent) override;
};

} // namespace ActiveX
