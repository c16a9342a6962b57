#pragma once

#include <Platform/Automation/AutomationProvider.h>

#include <QObject>

namespace WebEngine {

/// Provides hosted controls that show web pages by Qt's browser engine. docs/web-engine.md tells what pages
/// and applications can expect of them.
class WebEngineProvider : public QObject, public Automation::AutomationProvider
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID UICOMPONENTS_AUTOMATION_PROVIDER FILE "WebEngineProvider.json")
    Q_INTERFACES(Automation::AutomationProvider)

public:
    std::unique_ptr<Automation::HostedControl> CreateControl(QWidget* parent) override;
};

} // namespace WebEngine
