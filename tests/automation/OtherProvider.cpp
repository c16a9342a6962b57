#include "ProbeObject.h"

#include <QCoreApplication>

/// A provider plugin that knows "Probe.Second" and "Probe.Both". Tells by a property of the application
/// that it has been loaded.
class OtherProvider : public QObject, public Automation::AutomationProvider
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID UICOMPONENTS_AUTOMATION_PROVIDER FILE "other.json")
    Q_INTERFACES(Automation::AutomationProvider)

public:
    OtherProvider() { QCoreApplication::instance()->setProperty("otherProviderLoaded", true); }

    std::unique_ptr<Automation::AutomationObject> CreateObject(const QString& programId) override
    {
        return std::make_unique<ProbeObject>(QStringLiteral("other:") + programId);
    }
};

#include "OtherProvider.moc"
