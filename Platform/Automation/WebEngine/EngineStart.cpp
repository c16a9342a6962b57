#include <Platform/Automation/WebEngine/EngineStart.h>

#include <Platform/Automation/WebEngine/EngineLog.h>

#include <utility>

#ifdef Q_OS_LINUX
#include <sched.h>
#include <sys/statvfs.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace WebEngine {

namespace {

void AddFlag(const QByteArray& flag)
{
    const QByteArray flags = qgetenv("QTWEBENGINE_CHROMIUM_FLAGS");
    if (!flags.split(' ').contains(flag))
        qputenv("QTWEBENGINE_CHROMIUM_FLAGS", flags.isEmpty() ? flag : flags + ' ' + flag);
}

#ifdef Q_OS_LINUX

constexpr quint64 LeastSharedMemory = quint64(256) << 20; // bytes; a few large pages fill less

/// Tries in a process of its own what the sandbox does with each render process.
bool CanMakeNamespaces()
{
    const pid_t child = fork();
    if (child == 0)
        _exit(unshare(CLONE_NEWUSER | CLONE_NEWPID | CLONE_NEWNET) == 0 ? 0 : 1);
    int status = 0;
    return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

/// Why the sandbox cannot work; null when it can.
const char* SandboxObstacle()
{
    if (qEnvironmentVariableIsSet("QTWEBENGINE_DISABLE_SANDBOX"))
        return "QTWEBENGINE_DISABLE_SANDBOX is set";
    if (qgetenv("QTWEBENGINE_CHROMIUM_FLAGS").contains("--no-sandbox"))
        return "QTWEBENGINE_CHROMIUM_FLAGS says so";
    if (geteuid() == 0)
        return "the program runs as root";
    return CanMakeNamespaces() ? nullptr : "this system or container allows no user namespaces";
}

bool IsSharedMemorySmall()
{
    struct statvfs memory = {};
    return statvfs("/dev/shm", &memory) != 0 || access("/dev/shm", W_OK) != 0
        || quint64(memory.f_blocks) * memory.f_frsize < LeastSharedMemory;
}

#else

const char* SandboxObstacle() { return nullptr; }
bool IsSharedMemorySmall() { return false; }

#endif

} // namespace

void PrepareEngine()
{
    // The engine reads its environment once in the life of a process.
    static bool prepared = false;
    if (std::exchange(prepared, true))
        return;
    if (const char* obstacle = SandboxObstacle()) {
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
        qCWarning(EngineLog, "The browser engine runs without its sandbox: %s.", obstacle);
    }
    if (IsSharedMemorySmall())
        AddFlag("--disable-dev-shm-usage");
}

} // namespace WebEngine
