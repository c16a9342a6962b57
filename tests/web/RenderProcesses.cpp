#include "RenderProcesses.h"

#include "office/Processes.h"

#include <QFile>
#include <unistd.h>

namespace {

bool IsOfEngine(pid_t process)
{
    QFile file(QStringLiteral("/proc/%1/cmdline").arg(process));
    return file.open(QIODevice::ReadOnly) && file.readAll().contains("QtWebEngineProcess");
}

void FindBelow(pid_t parent, QVector<int>& found)
{
    const QVector<pid_t> children = Processes::Children(parent);
    for (const pid_t child : children) {
        // They are forked from a process that the engine keeps for this, and carry its command line.
        if (IsOfEngine(parent) && IsOfEngine(child))
            found << child;
        FindBelow(child, found);
    }
}

} // namespace

QVector<int> RenderProcesses()
{
    QVector<int> found;
    FindBelow(getpid(), found);
    return found;
}
