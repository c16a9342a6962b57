#pragma once

#include <Platform/Automation/Office/Host/OfficeProcess.h>
#include <Platform/Automation/Office/OfficeMessage.h>

#include <atomic>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

namespace Office {

/// The host's end of the socket, and the watch over the office.
///
/// A thread of its own reads requests, tells the client that the office is at work, and ends the host when
/// the client has gone or the office has died, also while the main thread waits for an office that hangs.
class HostLink
{
public:
    HostLink(int socket, OfficeProcess& office, QString profileFolder);

    /// The next request; nothing when none has come for @p milliseconds.
    std::optional<Request> Next(int milliseconds);

    void Send(const Answer& answer);

    /// Tells the client that the office has started. From now on it is watched: its end is the host's.
    void OfficeIsReady();

    /// Kills the office, removes its profile and what else it leaves, and ends this process.
    [[noreturn]] void End();

    /// Held while a file is written to its place, so that the host's end leaves no half of it.
    std::timed_mutex& Saving() { return m_saving; }

private:
    void Watch();
    bool Receive();
    void ReportActivity();

    const int m_socket;
    OfficeProcess& m_office;
    const QString m_profile;
    const pthread_t m_mainThread;
    std::atomic<bool> m_officeReady{false};
    std::atomic<bool> m_busy{true}; // starting the office is work, too
    long long m_activity = 0;
    FrameBuffer m_buffer;
    std::deque<Request> m_requests;
    std::mutex m_requestsMutex;
    std::condition_variable m_requestCame;
    std::mutex m_sendMutex;
    std::mutex m_endMutex;
    std::timed_mutex m_saving;
    std::thread m_watch;
};

} // namespace Office
