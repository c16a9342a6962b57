#include <Platform/Automation/WebEngine/PageBridge.h>

#include <QPointer>

namespace WebEngine {

namespace {

// Bridge.js sends no more; a render process that has been taken over might.
constexpr int MostWaiting = 64;

bool IsLoadReport(const QString& name)
{
    return name == QLatin1String("initComplete") || name == QLatin1String("initMComplete");
}

} // namespace

PageBridge::PageBridge(QObject* parent)
    : QObject(parent)
{
    m_next.setSingleShot(true);
    m_next.setInterval(0);
    connect(&m_next, &QTimer::timeout, this, &PageBridge::PassOn);
}

void PageBridge::Begin() { Q_EMIT SignalBegun(); }

void PageBridge::Call(const QString& name, const QString& param)
{
    if (m_calls.size() >= MostWaiting)
        return;
    if (IsLoadReport(name))
        Q_EMIT SignalReady();
    Enqueue({name, param, true});
}

void PageBridge::Report(const QString& name, const QString& param) { Enqueue({name, param, false}); }

void PageBridge::Enqueue(const PageCall& call)
{
    m_calls.enqueue(call);
    if (!m_bPassing)
        m_next.start();
}

void PageBridge::PassOn()
{
    const PageCall call = m_calls.dequeue();
    const QPointer<PageBridge> alive(this);
    m_bPassing = true;
    Q_EMIT SignalCalled(call.name, call.param);
    if (!alive)
        return;
    m_bPassing = false;
    if (call.fromPage)
        Q_EMIT SignalTaken(1);
    if (!m_calls.isEmpty())
        m_next.start();
}

} // namespace WebEngine
