#pragma once

#include <QObject>
#include <QQueue>
#include <QTimer>

namespace WebEngine {

/// The calls of one page, on their way to the client. Its methods are called by Bridge.js over the web
/// channel; nothing else of the client can be reached from there.
///
/// Each call is passed on in a turn of the event loop of its own, never inside another one: a page that
/// calls without end leaves the client time for everything else, and a slot that opens a dialog gets the
/// next call when the dialog is closed.
class PageBridge : public QObject
{
    Q_OBJECT

public:
    explicit PageBridge(QObject* parent = nullptr);

    Q_INVOKABLE void Begin(); ///< a document begins
    Q_INVOKABLE void Call(const QString& name, const QString& param);

    /// Passes a report of the provider itself on, after the calls that have arrived.
    void Report(const QString& name, const QString& param);

Q_SIGNALS:
    void SignalBegun(); ///< the main frame has a new document
    void SignalReady(); ///< the page reports, or is reported, to be complete
    void SignalCalled(const QString& name, const QString& param); ///< a slot may delete the bridge
    void SignalTaken(int count); ///< so many calls were passed on; the page may send more

private:
    struct PageCall
    {
        QString name;
        QString param;
        bool fromPage = true;
    };

    void Enqueue(const PageCall& call);
    void PassOn();

    QQueue<PageCall> m_calls;
    QTimer m_next;
    bool m_bPassing = false;
};

} // namespace WebEngine
