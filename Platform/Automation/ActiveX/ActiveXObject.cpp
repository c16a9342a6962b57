#include <Platform/Automation/ActiveX/ActiveXObject.h>

namespace ActiveX {

ActiveXObject::ActiveXObject(QAxObject* object)
    : m_pObject(object)
{ }

ActiveXObject::~ActiveXObject() { delete m_pObject.data(); }

bool ActiveXObject::isNull() const { return !m_pObject || m_pObject->isNull(); }

QVariant ActiveXObject::dynamicCall(const QString& member, const QVariantList& arguments)
{
    if (isNull())
        return QVariant();
    QVariantList values = arguments; // the call may write into them
    return m_pObject->dynamicCall(member.toLatin1().constData(), values);
}

std::unique_ptr<Automation::AutomationObject>
ActiveXObject::querySubObject(const QString& member, const QVariantList& arguments)
{
    if (isNull())
        return nullptr;
    QVariantList values = arguments;
    QAxObject* object = m_pObject->querySubObject(member.toLatin1().constData(), values);
    return object ? std::make_unique<ActiveXObject>(object) : nullptr;
}

QVariant ActiveXObject::property(const QString& name) const
{
    return isNull() ? QVariant() : m_pObject->property(name.toLatin1().constData());
}

bool ActiveXObject::setProperty(const QString& name, const QVariant& value)
{
    return !isNull() && m_pObject->setProperty(name.toLatin1().constData(), value);
}

} // namespace ActiveX
