#include "VirtualDisplay.h"

#include <QByteArray>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace TestSupport {

namespace {

[[noreturn]] void RunServer(int displayNumberTo)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    const int silence = open("/dev/null", O_WRONLY | O_CLOEXEC);
    dup2(silence, STDERR_FILENO); // it complains about the keyboard's symbols
    const QByteArray number = QByteArray::number(displayNumberTo);
    execlp(
        "Xvfb", "Xvfb", "-displayfd", number.constData(), "-screen", "0", "1600x1200x24", "-nolisten", "tcp",
        "-dpi", "96", static_cast<char*>(nullptr));
    _exit(127);
}

/// What the server writes when it is ready; empty when it ended instead.
QByteArray ReadLine(int from)
{
    QByteArray line;
    char character = 0;
    while (read(from, &character, 1) == 1 && character != '\n')
        line.append(character);
    return line;
}

} // namespace

VirtualDisplay::VirtualDisplay()
{
    int ends[2] = {-1, -1};
    if (pipe(ends) != 0)
        abort();
    m_iProcess = fork();
    if (m_iProcess == 0) {
        close(ends[0]);
        RunServer(ends[1]);
    }
    close(ends[1]);
    const QByteArray number = ReadLine(ends[0]);
    close(ends[0]);
    if (number.isEmpty()) {
        fprintf(stderr, "FAIL: Xvfb does not start (Debian's package is xvfb)\n");
        exit(1);
    }
    qputenv("DISPLAY", ':' + number);
    qputenv("QT_QPA_PLATFORM", "xcb");
}

VirtualDisplay::~VirtualDisplay()
{
    kill(m_iProcess, SIGTERM);
    waitpid(m_iProcess, nullptr, 0);
}

} // namespace TestSupport
