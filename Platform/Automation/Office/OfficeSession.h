#pragma once

#include <Platform/Automation/Office/OfficeMessage.h>

#include <QObject>
#include <memory>

class QSocketNotifier;

namespace Office {

/// The connection of this process to its private office.
///
/// The office and its bridge live in a process of their own, the host (see Host/main.cpp): it ends with this
/// process however that ends, takes the office and its profile folder with it, and keeps the bridge's
/// threads and signal handlers out of the client. Here every request is written to the host's socket and
/// its answer is waited for, with a limit: while the office works, the host says so twice a second; when it
/// has said nothing for the limit, host and office are killed. A session that has died stays dead.
class OfficeSession : public QObject
{
    Q_OBJECT

public:
    /// Starts the host; null when there is no office or it cannot be started. The office itself starts
    /// with the first request.
    static std::shared_ptr<OfficeSession> Start();

    ~OfficeSession() override;

    bool IsAlive() const { return m_socket >= 0; }

    /// Sends the request and waits for its result; Gone when the session is dead or dies of it.
    Answer Ask(const Request& request);

    /// Sends a request that has no answer.
    void Tell(const Request& request);

private:
    OfficeSession(int socket, qint64 host, const QString& profile);
    bool Send(const QByteArray& frame);
    bool Receive();
    bool WaitFor(short events);
    void Kill();
    void WaitForOfficeToEnd() const;
    bool WaitForHost(int milliseconds);
    void Close();

    int m_socket;
    qint64 m_host; ///< process id
    const QString m_profile;
    qint64 m_office = 0; ///< process id, when it is known
    FrameBuffer m_buffer;
    const int m_limit; ///< without any progress, milliseconds
    std::unique_ptr<QSocketNotifier> m_pEnd;
};

} // namespace Office
