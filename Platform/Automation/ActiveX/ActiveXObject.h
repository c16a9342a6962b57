#pragma once

#include <Platform/Automation/AutomationObject.h>

#include <QAxObject>
#include <QPointer>

namespace ActiveX {

/// A COM object.
class ActiveXObject : public Automation::AutomationObject
{
public:
    /// Takes @p object. One that belongs to another object ends with it, if that goes first.
    explicit ActiveXObject(QAxObject* object);
    ~ActiveXObject() override;

    bool isNull() const override;
    QVariant dynamicCall(const QString& member, const QVariantList& arguments) override;
    std::unique_ptr<AutomationObject>
    querySubObject(const QString& member, const QVariantList& arguments) override;
    QVariant property(const QString& name) const override;
    bool setProperty(const QString& name, const QVariant& value) override;

private:
    const QPointer<QAxObject> m_pObject;
};

} // namespace ActiveX
