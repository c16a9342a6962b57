#include <Platform/Automation/Office/Host/HostLink.h>

#include <Platform/Automation/Office/OfficePipes.h>

#include <cerrno>
#include <chrono>
#include <ctime>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace Office {

namespace {

constexpr int WatchInterval = 100; // milliseconds
constexpr int ReportInterval = 5; // in watch intervals
constexpr auto TimeToSave = std::chrono::seconds(2);
constexpr int PieceSize = 256 * 1024;

/// The processor time of a thread, in milliseconds.
long long ThreadTime(pthread_t thread)
{
    clockid_t clock = 0;
    timespec time = {};
    if (pthread_getcpuclockid(thread, &clock) != 0 || clock_gettime(clock, &time) != 0)
        return 0;
    return time.tv_sec * 1000LL + time.tv_nsec / 1000000;
}

} // namespace

HostLink::HostLink(int socket, OfficeProcess& office, QString profileFolder)
    : m_socket(socket)
    , m_office(office)
    , m_profile(std::move(profileFolder))
    , m_mainThread(pthread_self())
    , m_watch([this] { Watch(); })
{ }

std::optional<Request> HostLink::Next(int milliseconds)
{
    std::unique_lock<std::mutex> lock(m_requestsMutex);
    m_busy = false;
    const bool came = m_requestCame.wait_for(
        lock, std::chrono::milliseconds(milliseconds), [this] { return !m_requests.empty(); });
    if (!came)
        return std::nullopt;
    m_busy = true;
    Request request = std::move(m_requests.front());
    m_requests.pop_front();
    return request;
}

void HostLink::Send(const Answer& answer)
{
    const QByteArray frame = ToFrame(answer);
    const std::lock_guard<std::mutex> lock(m_sendMutex);
    int sent = 0;
    while (sent < frame.size()) {
        const auto size = static_cast<size_t>(frame.size() - sent);
        const ssize_t written = send(m_socket, frame.constData() + sent, size, MSG_NOSIGNAL);
        if (written < 0 && errno != EINTR)
            return; // the client has gone: the watch sees it, too
        sent += static_cast<int>(qMax<ssize_t>(written, 0));
    }
}

void HostLink::OfficeIsReady()
{
    Answer started;
    started.kind = Answer::Started;
    started.officeProcess = m_office.Id();
    Send(started);
    m_officeReady = true;
}

void HostLink::Watch()
{
    for (int turn = 1;; ++turn) {
        pollfd poller = {m_socket, POLLIN, 0};
        if (poll(&poller, 1, WatchInterval) > 0 && !Receive())
            End();
        if (m_officeReady && m_office.HasEnded())
            End();
        if (turn % ReportInterval == 0 && m_busy)
            ReportActivity();
    }
}

bool HostLink::Receive()
{
    static char piece[PieceSize];
    const ssize_t size = recv(m_socket, piece, sizeof piece, 0);
    if (size <= 0)
        return size < 0 && errno == EINTR;
    m_buffer.Add(piece, static_cast<int>(size));
    while (const auto message = m_buffer.Take()) {
        const std::optional<Request> request = ToRequest(*message);
        if (!request)
            return false;
        const std::lock_guard<std::mutex> lock(m_requestsMutex);
        m_requests.push_back(*request);
        m_requestCame.notify_one();
    }
    return !m_buffer.IsBroken();
}

/// A hung office uses no processor time, and neither does a main thread that waits for it. While the office
/// starts, the main thread looks for it all the time, which is no progress.
void HostLink::ReportActivity()
{
    const long long office = m_office.Activity();
    const long long activity = office + (m_officeReady ? ThreadTime(m_mainThread) : 0);
    if (office >= 0 && activity == m_activity)
        return;
    m_activity = activity;
    Answer working;
    working.kind = Answer::Working;
    Send(working);
}

void HostLink::End()
{
    // Whichever thread comes first; the other waits for the end of the process.
    m_endMutex.lock();
    const bool saved = m_saving.try_lock_for(TimeToSave);
    Q_UNUSED(saved)
    m_office.Kill();
    RemoveProfile(m_profile);
    _exit(0);
}

} // namespace Office
