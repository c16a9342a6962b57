#include <Platform/Automation/Office/OfficeObject.h>

namespace Office {

using Automation::AutomationObject;

std::unique_ptr<AutomationObject>
OfficeObject::CreateApplication(const std::shared_ptr<OfficeSession>& session)
{
    const Answer answer = session->Ask(Request());
    if (answer.status != Answer::Done)
        return nullptr;
    return std::unique_ptr<AutomationObject>(new OfficeObject(session, answer.object));
}

OfficeObject::OfficeObject(std::shared_ptr<OfficeSession> session, Handle handle)
    : m_pSession(std::move(session))
    , m_handle(handle)
{ }

OfficeObject::~OfficeObject()
{
    Request request;
    request.kind = Request::Release;
    request.object = m_handle;
    m_pSession->Tell(request);
}

bool OfficeObject::isNull() const { return m_gone || !m_pSession->IsAlive(); }

Answer OfficeObject::Ask(Request::Kind kind, const QString& member, const QVariantList& arguments) const
{
    Request request;
    request.kind = kind;
    request.object = m_handle;
    request.member = member;
    request.arguments = arguments;
    Answer answer = m_pSession->Ask(request);
    m_gone = m_gone || answer.status == Answer::Gone;
    return answer;
}

QVariant OfficeObject::dynamicCall(const QString& member, const QVariantList& arguments)
{
    return Ask(Request::Call, member, arguments).value;
}

std::unique_ptr<AutomationObject>
OfficeObject::querySubObject(const QString& member, const QVariantList& arguments)
{
    const Answer answer = Ask(Request::SubObject, member, arguments);
    if (answer.object == 0)
        return nullptr;
    return std::unique_ptr<AutomationObject>(new OfficeObject(m_pSession, answer.object));
}

QVariant OfficeObject::property(const QString& name) const { return Ask(Request::Read, name, {}).value; }

bool OfficeObject::setProperty(const QString& name, const QVariant& value)
{
    return Ask(Request::Write, name, {value}).status == Answer::Done;
}

} // namespace Office
