#include <Platform/Automation/Office/OfficeSession.h>

#include <Platform/Automation/Office/OfficeFolders.h>
#include <Platform/Automation/Office/OfficePipes.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QSocketNotifier>
#include <QThread>
#include <cerrno>
#include <csignal>
#include <dlfcn.h>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Office {

namespace {

constexpr int DefaultLimit = 20000; // without any progress, milliseconds
constexpr int LongestCall = 10 * 60 * 1000; // even with progress, milliseconds
constexpr int TimeToEnd = 3000; // for the host or a killed office, milliseconds
constexpr int HostSocket = 3; // descriptors in the host process
constexpr int HostLock = 4;
constexpr int PieceSize = 256 * 1024;

int LimitFromEnvironment()
{
    bool given = false;
    const int limit = qEnvironmentVariableIntValue("UICOMPONENTS_OFFICE_TIMEOUT", &given);
    return given && limit > 0 ? limit : DefaultLimit;
}

/// The host program, which lies beside this plugin.
QString HostProgram()
{
    static const char anchor = 0; // an address inside this plugin
    Dl_info info;
    if (dladdr(&anchor, &info) == 0 || !info.dli_fname)
        return QString();
    const QFileInfo plugin(QFile::decodeName(info.dli_fname));
    const QFileInfo host(plugin.absolutePath() + QLatin1String("/uicomponents-office-host"));
    return host.isExecutable() ? host.absoluteFilePath() : QString();
}

/// Moves the descriptor above those that the host gets, so that giving them overwrites none of ours.
int MovedAbove(int descriptor, int lowest)
{
    const int moved = fcntl(descriptor, F_DUPFD_CLOEXEC, lowest);
    close(descriptor);
    return moved;
}

/// Starts the host with the two descriptors and nothing on its standard streams: a test that waits for the
/// end of the client's output must not wait for the host. Its process id, or -1.
pid_t Spawn(const QStringList& arguments, int socket, int lock)
{
    QList<QByteArray> bytes;
    for (const QString& argument : arguments)
        bytes << QFile::encodeName(argument);
    std::vector<char*> argv;
    for (QByteArray& argument : bytes)
        argv.push_back(argument.data());
    argv.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    for (const int stream : {0, 1, 2})
        posix_spawn_file_actions_addopen(&actions, stream, "/dev/null", O_RDWR, 0);
    posix_spawn_file_actions_adddup2(&actions, socket, HostSocket);
    posix_spawn_file_actions_adddup2(&actions, lock, HostLock);
    pid_t process = -1;
    if (posix_spawn(&process, argv.front(), &actions, nullptr, argv.data(), environ) != 0)
        process = -1;
    posix_spawn_file_actions_destroy(&actions);
    return process;
}

} // namespace

std::shared_ptr<OfficeSession> OfficeSession::Start()
{
    const QString program = ProgramFolder();
    const QString host = HostProgram();
    if (program.isEmpty() || host.isEmpty())
        return nullptr;
    RemoveAbandonedProfiles();
    int lock = -1;
    const QString profile = MakeProfileFolder(lock);
    int sockets[2] = {-1, -1};
    if (profile.isEmpty() || socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, sockets) != 0) {
        close(lock);
        return nullptr;
    }
    sockets[1] = MovedAbove(sockets[1], HostLock + 1);
    lock = MovedAbove(lock, HostLock + 1);
    const pid_t process = Spawn({host, program, profile}, sockets[1], lock);
    close(sockets[1]);
    close(lock);
    if (process < 0) {
        close(sockets[0]);
        QDir(profile).removeRecursively();
        return nullptr;
    }
    fcntl(sockets[0], F_SETFL, O_NONBLOCK);
    return std::shared_ptr<OfficeSession>(new OfficeSession(sockets[0], process, profile));
}

OfficeSession::OfficeSession(int socket, qint64 host, const QString& profile)
    : m_socket(socket)
    , m_host(host)
    , m_profile(profile)
    , m_limit(LimitFromEnvironment())
    , m_pEnd(std::make_unique<QSocketNotifier>(socket, QSocketNotifier::Read))
{
    // Between requests nothing comes but the end.
    connect(m_pEnd.get(), &QSocketNotifier::activated, this, [this] {
        if (!Receive())
            Close();
    });
}

OfficeSession::~OfficeSession() { Close(); }

Answer OfficeSession::Ask(const Request& request)
{
    Answer gone;
    gone.status = Answer::Gone;
    if (!IsAlive())
        return gone;
    QElapsedTimer timer;
    timer.start();
    if (!Send(ToFrame(request)))
        return gone;
    while (timer.elapsed() < LongestCall) {
        while (const auto message = m_buffer.Take()) {
            const std::optional<Answer> answer = ToAnswer(*message);
            if (!answer) {
                Kill();
                return gone;
            }
            if (answer->kind == Answer::Result)
                return *answer;
            if (answer->kind == Answer::Started)
                m_office = answer->officeProcess;
        }
        if (m_buffer.IsBroken() || !WaitFor(POLLIN))
            break;
        if (!Receive()) {
            Close();
            return gone;
        }
    }
    Kill();
    return gone;
}

void OfficeSession::Tell(const Request& request)
{
    if (IsAlive())
        Send(ToFrame(request));
}

bool OfficeSession::Send(const QByteArray& frame)
{
    int sent = 0;
    while (sent < frame.size()) {
        const auto size = static_cast<size_t>(frame.size() - sent);
        const ssize_t written = send(m_socket, frame.constData() + sent, size, MSG_NOSIGNAL);
        if (written > 0)
            sent += static_cast<int>(written);
        else if (errno == EAGAIN) {
            if (!WaitFor(POLLOUT)) {
                Kill();
                return false;
            }
        } else if (errno != EINTR) {
            Close();
            return false;
        }
    }
    return true;
}

/// Takes what has arrived. False at the end of the connection.
bool OfficeSession::Receive()
{
    static char piece[PieceSize];
    for (;;) {
        const ssize_t size = recv(m_socket, piece, sizeof piece, 0);
        if (size > 0)
            m_buffer.Add(piece, static_cast<int>(size));
        else if (size == 0)
            return false;
        else if (errno != EINTR)
            return errno == EAGAIN;
    }
}

/// False when the socket is not ready within the limit.
bool OfficeSession::WaitFor(short events)
{
    QElapsedTimer timer;
    timer.start();
    pollfd poller = {m_socket, events, 0};
    for (;;) {
        const int left = m_limit - static_cast<int>(timer.elapsed());
        const int ready = left > 0 ? poll(&poller, 1, left) : 0;
        if (ready >= 0 || errno != EINTR)
            return ready > 0;
    }
}

/// Ends a host or an office that no longer answers. The office dies with the host.
void OfficeSession::Kill()
{
    kill(static_cast<pid_t>(m_host), SIGKILL);
    Close();
}

void OfficeSession::WaitForOfficeToEnd() const
{
    QElapsedTimer timer;
    timer.start();
    while (m_office > 0 && kill(static_cast<pid_t>(m_office), 0) == 0 && timer.elapsed() < TimeToEnd)
        QThread::msleep(1);
}

bool OfficeSession::WaitForHost(int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    const auto host = static_cast<pid_t>(m_host);
    int status = 0;
    while (waitpid(host, &status, WNOHANG) == 0) {
        if (timer.elapsed() > milliseconds)
            return false;
        QThread::msleep(1);
    }
    return true;
}

/// The host ends when its socket does, and clears up; what a killed one left is cleared up here.
void OfficeSession::Close()
{
    if (!IsAlive())
        return;
    m_pEnd.reset();
    close(m_socket);
    m_socket = -1;
    if (!WaitForHost(TimeToEnd)) {
        kill(static_cast<pid_t>(m_host), SIGKILL);
        WaitForHost(TimeToEnd);
    }
    if (!QFileInfo::exists(m_profile))
        return;
    WaitForOfficeToEnd();
    RemoveProfile(m_profile);
}

} // namespace Office
