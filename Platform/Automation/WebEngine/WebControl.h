#pragma once

#include <Platform/Automation/HostedControl.h>
#include <Platform/Automation/ILinkWebAPI.h>
#include <Platform/Automation/WebEngine/WebPage.h>

#include <QPointer>
#include <QWebEngineView>
#include <memory>

namespace WebEngine {

/// The hosted control "LinkWeb.PageControl": a view of the browser engine with one page at a time.
class WebControl : public Automation::HostedControl
{
public:
    explicit WebControl(QWidget* parent);
    ~WebControl() override;

    QWidget* widget() const override;
    bool setControl(const QString& classId) override;
    QVariant dynamicCall(const QString& member, const QVariantList& arguments = {}) override;
    WId winId() const override;
    void show() override;
    void clear() override;

private:
    void MakePage();
    void CallListener(const QString& name, const QString& param) const;

    QPointer<QWebEngineView> m_pView;
    std::unique_ptr<WebPage> m_pPage; // null while no control is bound
    LINKWEB::ILinkWebAPI* m_pListener = nullptr;
};

} // namespace WebEngine
