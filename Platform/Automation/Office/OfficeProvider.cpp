#include <Platform/Automation/Office/OfficeProvider.h>

#include <Platform/Automation/Office/OfficeObject.h>

namespace Office {

std::unique_ptr<Automation::AutomationObject> OfficeProvider::CreateObject(const QString&)
{
    const bool reused = m_pSession && m_pSession->IsAlive();
    if (!reused)
        m_pSession = OfficeSession::Start();
    if (!m_pSession)
        return nullptr;
    auto application = OfficeObject::CreateApplication(m_pSession);
    if (application || !reused)
        return application;
    // The one that was there has died, or has just gone away.
    m_pSession = OfficeSession::Start();
    return m_pSession ? OfficeObject::CreateApplication(m_pSession) : nullptr;
}

} // namespace Office
