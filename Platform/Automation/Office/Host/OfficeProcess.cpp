#include <Platform/Automation/Office/Host/OfficeProcess.h>

#include <Platform/Automation/Office/OfficePipes.h>

#include <QDir>
#include <QFile>
#include <csignal>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace Office {

namespace {

constexpr int RestartCode = 81; // exit code of an office that has set up its profile

QStringList OfficeArguments(const QString& program, const QString& profile)
{
    return {
        program + QLatin1String("/soffice.bin"),
        QLatin1String("-env:UserInstallation=") + ProfileUrl(profile),
        QStringLiteral("--headless"),
        QStringLiteral("--invisible"),
        QStringLiteral("--nologo"),
        QStringLiteral("--nodefault"),
        QStringLiteral("--norestore"),
        QStringLiteral("--nolockcheck"),
        QStringLiteral("--nofirststartwizard"),
        QStringLiteral("--accept=pipe,name=%1;urp;").arg(PipeName(profile)),
    };
}

/// The office's environment: no display, a locale in which every file name can be said, and a folder for its
/// temporary files that goes with the profile: an office that is killed leaves them, also large ones.
QList<QByteArray> OfficeEnvironment(const QString& temporaryFolder)
{
    QList<QByteArray> variables;
    for (char** variable = environ; *variable; ++variable) {
        const QByteArray text(*variable);
        const bool replaced = text.startsWith("LC_") || text.startsWith("LANG") || text.startsWith("DISPLAY=")
            || text.startsWith("WAYLAND_DISPLAY=") || text.startsWith("URE_BOOTSTRAP=")
            || text.startsWith("TMPDIR=");
        if (!replaced)
            variables << text;
    }
    return variables << "LC_ALL=C.UTF-8"
                     << "SAL_USE_VCLPLUGIN=svp"
                     << "SAL_ENABLE_FILE_LOCKING=1"
                     << "TMPDIR=" + QFile::encodeName(temporaryFolder);
}

std::vector<char*> Pointers(QList<QByteArray>& texts)
{
    std::vector<char*> pointers;
    for (QByteArray& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

/// In the child between fork and exec: nothing that allocates.
[[noreturn]] void BecomeOffice(pid_t parent, char* const* arguments, char* const* environment)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent)
        _exit(1);
    execve(arguments[0], arguments, environment);
    _exit(1);
}

QByteArray ReadProc(pid_t process, const char* name)
{
    QFile file(QStringLiteral("/proc/%1/%2").arg(process).arg(QLatin1String(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

OfficeProcess::OfficeProcess(QString programFolder, QString profileFolder)
    : m_program(std::move(programFolder))
    , m_profile(std::move(profileFolder))
{ }

bool OfficeProcess::Start()
{
    QList<QByteArray> arguments;
    const QStringList texts = OfficeArguments(m_program, m_profile);
    for (const QString& text : texts)
        arguments << QFile::encodeName(text);
    const QString temporaryFolder = m_profile + QLatin1String("/temporary");
    if (!QDir().mkpath(temporaryFolder))
        return false;
    QList<QByteArray> environment = OfficeEnvironment(temporaryFolder);
    const std::vector<char*> argv = Pointers(arguments);
    const std::vector<char*> envp = Pointers(environment);
    const pid_t parent = getpid();
    const pid_t child = fork();
    if (child == 0)
        BecomeOffice(parent, argv.data(), envp.data());
    m_id = child;
    m_ended = child < 0;
    return child > 0;
}

QString OfficeProcess::PipeName() const { return Office::PipeName(m_profile); }

bool OfficeProcess::HasEnded()
{
    if (!m_ended && waitpid(m_id, &m_status, WNOHANG) != 0)
        m_ended = true;
    return m_ended;
}

bool OfficeProcess::WantsRestart() const
{
    return m_ended && WIFEXITED(m_status) && WEXITSTATUS(m_status) == RestartCode;
}

long long OfficeProcess::Activity() const
{
    // "id (name) state ...", of which the 14th and 15th field are the times in user and system mode.
    const QByteArray stat = ReadProc(m_id, "stat");
    const QList<QByteArray> fields = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
    constexpr int UserTime = 11; // counted from the state on
    if (fields.size() <= UserTime + 1)
        return 0;
    if (fields.at(0) == "D")
        return -1;
    return fields.at(UserTime).toLongLong() + fields.at(UserTime + 1).toLongLong();
}

void OfficeProcess::Kill()
{
    if (m_ended)
        return;
    kill(m_id, SIGKILL);
    waitpid(m_id, &m_status, 0);
    m_ended = true;
}

} // namespace Office
