#pragma once

#include <Platform/Automation/HostedControl.h>

#include <QAxWidget>
#include <QPointer>

namespace ActiveX {

/// A COM control in a window of its own.
class ActiveXControl : public Automation::HostedControl
{
public:
    explicit ActiveXControl(QWidget* parent);
    ~ActiveXControl() override;

    QWidget* widget() const override;
    bool setControl(const QString& classId) override;
    QVariant dynamicCall(const QString& member, const QVariantList& arguments) override;
    WId winId() const override;
    void show() override;
    void clear() override;

private:
    const QPointer<QAxWidget> m_pWidget; ///< gone when the parent has deleted it
};

} // namespace ActiveX
