#pragma once

#include <Platform/Automation/AutomationObject.h>
#include <Platform/Automation/Office/OfficeSession.h>

namespace Office {

/// An object of the office, named to the host by its handle.
class OfficeObject : public Automation::AutomationObject
{
public:
    /// A new application; null when the office does not start.
    static std::unique_ptr<AutomationObject> CreateApplication(const std::shared_ptr<OfficeSession>& session);

    ~OfficeObject() override;

    bool isNull() const override;
    QVariant dynamicCall(const QString& member, const QVariantList& arguments) override;
    std::unique_ptr<AutomationObject>
    querySubObject(const QString& member, const QVariantList& arguments) override;
    QVariant property(const QString& name) const override;
    bool setProperty(const QString& name, const QVariant& value) override;

private:
    OfficeObject(std::shared_ptr<OfficeSession> session, Handle handle);
    Answer Ask(Request::Kind kind, const QString& member, const QVariantList& arguments) const;

    const std::shared_ptr<OfficeSession> m_pSession;
    const Handle m_handle;
    mutable bool m_gone = false;
};

} // namespace Office
