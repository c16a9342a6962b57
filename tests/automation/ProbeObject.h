#pragma once

#include <Platform/Automation/AutomationProvider.h>

/// Tells where it comes from.
class ProbeObject : public Automation::AutomationObject
{
public:
    explicit ProbeObject(const QString& origin)
        : m_origin(origin)
    { }

    bool isNull() const override { return false; }
    QVariant dynamicCall(const QString&, const QVariantList&) override { return QVariant(); }
    std::unique_ptr<AutomationObject> querySubObject(const QString&, const QVariantList&) override
    {
        return nullptr;
    }
    QVariant property(const QString&) const override { return m_origin; }
    bool setProperty(const QString&, const QVariant&) override { return false; }

private:
    const QString m_origin;
};

/// A control that is a plain widget.
class ProbeControl : public Automation::HostedControl
{
public:
    explicit ProbeControl(QWidget* parent)
        : m_pWidget(new QWidget(parent))
    { }

    QWidget* widget() const override { return m_pWidget; }
    bool setControl(const QString&) override { return false; }
    QVariant dynamicCall(const QString&, const QVariantList&) override { return QVariant(); }
    WId winId() const override { return 0; }
    void show() override { m_pWidget->show(); }
    void clear() override { }

private:
    QWidget* m_pWidget;
};
