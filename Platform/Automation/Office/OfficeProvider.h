#pragma once

#include <Platform/Automation/AutomationProvider.h>
#include <Platform/Automation/Office/OfficeSession.h>

namespace Office {

/// The plugin that makes "Excel.Application" of an installed LibreOffice.
///
/// All application objects of this process share one private office process, started at the first use and
/// again when it has ended: it goes away when it has not been used for half a minute.
class OfficeProvider : public QObject, public Automation::AutomationProvider
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID UICOMPONENTS_AUTOMATION_PROVIDER FILE "office.json")
    Q_INTERFACES(Automation::AutomationProvider)

public:
    std::unique_ptr<Automation::AutomationObject> CreateObject(const QString& programId) override;

private:
    std::shared_ptr<OfficeSession> m_pSession;
};

} // namespace Office
