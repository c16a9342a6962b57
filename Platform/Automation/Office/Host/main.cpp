// The host of a private office: a process between the client and the office, started by the provider
// plugin. It starts the office, talks to it over its bridge, and answers the plugin's requests.
//
//     uicomponents-office-host PROGRAM PROFILE
//
// PROGRAM is the folder of soffice.bin, PROFILE a folder for the office's profile. Descriptor 3 is the
// socket to the plugin, 4 the lock of the profile folder.

#include <Platform/Automation/Office/Host/ExcelApplication.h>
#include <Platform/Automation/Office/Host/ExcelUnits.h>
#include <Platform/Automation/Office/Host/HostLink.h>
#include <Platform/Automation/Office/Host/OfficeBridge.h>

#include <QFile>
#include <QHash>
#include <csignal>
#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

using namespace Office;

namespace {

constexpr int Socket = 3;
constexpr int Lock = 4;
constexpr int DefaultIdleTime = 30000; // milliseconds

int IdleTime()
{
    bool given = false;
    const int time = qEnvironmentVariableIntValue("UICOMPONENTS_OFFICE_IDLE", &given);
    return given && time > 0 ? time : DefaultIdleTime;
}

/// The client's files and windows are none of ours, nor of the office.
void CloseForeignDescriptors()
{
    std::vector<int> foreign;
    DIR* folder = opendir("/proc/self/fd");
    if (!folder)
        return;
    while (const dirent* entry = readdir(folder)) {
        const int descriptor = std::atoi(entry->d_name);
        if (descriptor > Lock && descriptor != dirfd(folder))
            foreign.push_back(descriptor);
    }
    closedir(folder);
    for (const int descriptor : foreign)
        close(descriptor);
    fcntl(Socket, F_SETFD, FD_CLOEXEC);
    fcntl(Lock, F_SETFD, FD_CLOEXEC);
}

/// The objects that the client holds, by their handles.
class Objects
{
public:
    explicit Objects(const OfficeContext& context)
        : m_context(context)
    { }

    bool IsEmpty() const { return m_objects.isEmpty(); }

    /// Does what the request asks. Throws Refused, or what the office's bridge throws.
    Answer Do(const Request& request)
    {
        Answer answer;
        if (request.kind == Request::Create) {
            AskForLife();
            answer.object = Add(std::make_shared<ExcelApplication>(m_context));
            return answer;
        }
        const std::shared_ptr<ExcelObject> object = m_objects.value(request.object);
        if (!object || object->IsGone()) {
            answer.status = Answer::Gone;
            return answer;
        }
        const QString member = MemberName(request.member);
        if (request.kind == Request::Call)
            answer.value = object->Call(member, request.arguments);
        else if (request.kind == Request::SubObject)
            answer.object = Add(object->SubObject(member, request.arguments));
        else if (request.kind == Request::Read)
            answer.value = object->Read(member);
        else
            object->Write(member, request.arguments.value(0));
        return answer;
    }

    /// An application that nobody holds any more closes its workbooks.
    void Release(Handle handle)
    {
        const auto application = std::dynamic_pointer_cast<ExcelApplication>(m_objects.take(handle));
        if (application && !application->IsGone())
            application->Quit();
    }

    /// Throws when the office does not answer any more.
    void AskForLife() const { m_context.desktop->getCurrentComponent(); }

private:
    Handle Add(const std::shared_ptr<ExcelObject>& object)
    {
        if (!object)
            return 0;
        m_objects.insert(++m_last, object);
        return m_last;
    }

    const OfficeContext& m_context;
    QHash<Handle, std::shared_ptr<ExcelObject>> m_objects;
    Handle m_last = 0;
};

/// Answers the request. False when the office has died of it.
bool Serve(Objects& objects, HostLink& link, const Request& request)
{
    try {
        Answer answer;
        try {
            if (request.kind == Request::Release) {
                objects.Release(request.object);
                return true;
            }
            answer = objects.Do(request);
        } catch (const Refused&) {
            answer.status = Answer::Failed;
        } catch (const com::sun::star::uno::Exception&) {
            objects.AskForLife();
            answer.status = Answer::Failed;
        }
        link.Send(answer);
        return true;
    } catch (const com::sun::star::uno::Exception&) {
        return false;
    }
}

[[noreturn]] void Run(HostLink& link, const OfficeContext& context)
{
    Objects objects(context);
    for (;;) {
        const std::optional<Request> request = link.Next(IdleTime());
        const bool unused = !request && objects.IsEmpty();
        if (unused || (request && !Serve(objects, link, *request)))
            link.End();
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3)
        return 2;
    CloseForeignDescriptors();
    setsid(); // a key pressed in the client's terminal is not for the office
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN); // a file too long for a limit is like a full disk
    std::signal(SIGCHLD, SIG_DFL); // ignored, as a client may hand it down, it hides how the office ended
    const QString program = QFile::decodeName(argv[1]);
    const QString profile = QFile::decodeName(argv[2]);
    OfficeProcess process(program, profile);
    HostLink link(Socket, process, profile);
    try {
        const OfficeContext context{ConnectOffice(process, program), profile, link.Saving()};
        if (!context.desktop.is())
            link.End();
        link.OfficeIsReady();
        Run(link, context);
    } catch (const com::sun::star::uno::Exception&) {
        link.End();
    }
}
