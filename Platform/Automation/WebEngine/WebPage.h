#pragma once

#include <Platform/Automation/WebEngine/PageBridge.h>
#include <Platform/Automation/WebEngine/RestrictedPage.h>

#include <QWebChannel>

namespace WebEngine {

/// The page of a control: a restricted page with a bridge to the client. A new page is made for each
/// address that the client sets, with a render process of its own: one that hangs, has died or still calls
/// is left behind with its page.
class WebPage : public RestrictedPage
{
    Q_OBJECT

public:
    explicit WebPage(const Allowances& allowances);
    ~WebPage() override;

    /// Loads @p url, unless its scheme is refused.
    void Open(const QUrl& url);

    /// Runs @p script in the page: now, or after those that wait when the page is complete. A page whose
    /// render process has died runs none.
    void RunWhenReady(const QString& script);

Q_SIGNALS:
    /// A call for the client. A slot may delete the page.
    void SignalCalled(const QString& name, const QString& param);

private:
    enum class State
    {
        Loading,
        Ready,
        Dead
    };

    void AddScripts();
    void ConnectBridge();
    void OnReady();
    void OnLoadFinished(bool ok);
    void OnTerminated(RenderProcessTerminationStatus status);

    QWebChannel m_channel;
    PageBridge m_bridge;
    QStringList m_waitingScripts;
    State m_state = State::Loading;
};

} // namespace WebEngine
