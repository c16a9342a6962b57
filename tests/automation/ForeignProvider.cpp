#include "ProbeObject.h"

#include <QCoreApplication>

/// A provider plugin for a window system that is never there. It would be asked first.
class ForeignProvider : public QObject, public Automation::AutomationProvider
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID UICOMPONENTS_AUTOMATION_PROVIDER FILE "foreign.json")
    Q_INTERFACES(Automation::AutomationProvider)

public:
    ForeignProvider() { QCoreApplication::instance()->setProperty("foreignProviderLoaded", true); }

    std::unique_ptr<Automation::AutomationObject> CreateObject(const QString& programId) override
    {
        return std::make_unique<ProbeObject>(QStringLiteral("foreign:") + programId);
    }
};

#include "ForeignProvider.moc"
