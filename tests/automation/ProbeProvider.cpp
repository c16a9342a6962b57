#include "ProbeObject.h"

/// A provider plugin that knows "Probe.First" and "Probe.Both", and cannot deliver the latter.
class ProbeProvider : public QObject, public Automation::AutomationProvider
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID UICOMPONENTS_AUTOMATION_PROVIDER FILE "probe.json")
    Q_INTERFACES(Automation::AutomationProvider)

public:
    std::unique_ptr<Automation::AutomationObject> CreateObject(const QString& programId) override
    {
        if (programId == QLatin1String("Probe.Both"))
            return nullptr;
        return std::make_unique<ProbeObject>(QStringLiteral("probe:") + programId);
    }
    std::unique_ptr<Automation::HostedControl> CreateControl(QWidget* parent) override
    {
        return std::make_unique<ProbeControl>(parent);
    }
};

#include "ProbeProvider.moc"
