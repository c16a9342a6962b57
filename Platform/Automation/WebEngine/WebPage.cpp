#include <Platform/Automation/WebEngine/WebPage.h>

#include <Platform/Automation/WebEngine/EngineLog.h>

#include <QFile>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>

namespace WebEngine {

namespace {

constexpr quint32 BridgeWorld = QWebEngineScript::ApplicationWorld;

// A page that never becomes complete does not fill the memory with the client's scripts.
constexpr int MostWaitingScripts = 1000;

QWebEngineScript MainFrameScript(const QString& file, quint32 world)
{
    QFile source(QStringLiteral(":/UIComponents/WebEngine/") + file);
    // Compiled in, so it can be opened.
    source.open(QIODevice::ReadOnly);
    QWebEngineScript script;
    script.setName(file);
    script.setSourceCode(QString::fromUtf8(source.readAll()));
    script.setWorldId(world);
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setRunsOnSubFrames(false);
    return script;
}

QString TextOf(QWebEnginePage::RenderProcessTerminationStatus status)
{
    switch (status) {
    case QWebEnginePage::AbnormalTerminationStatus:
        return QStringLiteral("abnormal");
    case QWebEnginePage::CrashedTerminationStatus:
        return QStringLiteral("crashed");
    case QWebEnginePage::KilledTerminationStatus:
        return QStringLiteral("killed");
    case QWebEnginePage::NormalTerminationStatus:
        break;
    }
    return QStringLiteral("normal");
}

} // namespace

WebPage::WebPage(const Allowances& allowances)
    : RestrictedPage(allowances)
{
    m_channel.registerObject(QStringLiteral("bridge"), &m_bridge);
    setWebChannel(&m_channel, BridgeWorld);
    AddScripts();
    ConnectBridge();
    connect(this, &QWebEnginePage::loadFinished, this, &WebPage::OnLoadFinished);
    connect(this, &QWebEnginePage::renderProcessTerminated, this, &WebPage::OnTerminated);
}

WebPage::~WebPage()
{
    // The engine may still report while the base class goes.
    disconnect(this, nullptr, this, nullptr);
    setWebChannel(nullptr);
}

void WebPage::AddScripts()
{
    scripts().insert(MainFrameScript(QStringLiteral("Bridge.js"), BridgeWorld));
    scripts().insert(MainFrameScript(QStringLiteral("Page.js"), QWebEngineScript::MainWorld));
}

void WebPage::ConnectBridge()
{
    connect(&m_bridge, &PageBridge::SignalBegun, this, [this] {
        if (m_state == State::Ready)
            m_state = State::Loading;
    });
    connect(&m_bridge, &PageBridge::SignalReady, this, &WebPage::OnReady);
    connect(&m_bridge, &PageBridge::SignalTaken, this, [this](int count) {
        runJavaScript(QStringLiteral("linkWebClient.taken(%1)").arg(count), BridgeWorld);
    });
    connect(&m_bridge, &PageBridge::SignalCalled, this, &WebPage::SignalCalled);
}

void WebPage::Open(const QUrl& url)
{
    // The engine asks for the pages that a page wants to go to, not for this one.
    if (acceptNavigationRequest(url, NavigationTypeTyped, true))
        load(url);
}

void WebPage::RunWhenReady(const QString& script)
{
    if (m_state == State::Ready)
        runJavaScript(script);
    else if (m_state == State::Loading && m_waitingScripts.size() < MostWaitingScripts)
        m_waitingScripts.append(script);
}

void WebPage::OnReady()
{
    if (m_state == State::Dead)
        return;
    m_state = State::Ready;
    const QStringList scripts = std::exchange(m_waitingScripts, {});
    for (const QString& script : scripts)
        runJavaScript(script);
}

void WebPage::OnLoadFinished(bool ok)
{
    if (ok)
        runJavaScript(QStringLiteral("if (window.linkWebClient) linkWebClient.loaded()"), BridgeWorld);
    else if (m_state == State::Loading) // otherwise the page is still there, and did not get away from it
        qCWarning(EngineLog).noquote() << "A page did not load:" << requestedUrl().toDisplayString();
}

void WebPage::OnTerminated(RenderProcessTerminationStatus status)
{
    m_state = State::Dead;
    m_waitingScripts.clear();
    // not translated: a line of the log
    qCWarning(EngineLog).noquote() << "The render process of a page has ended:" << TextOf(status);
    m_bridge.Report(QStringLiteral("webTerminated"), TextOf(status));
}

} // namespace WebEngine
