#include "RenderProcesses.h"

#include <QDir>
#include <QFile>
#include <unistd.h>

namespace {

QByteArray Read(int process, const char* file)
{
    QFile source(QStringLiteral("/proc/%1/%2").arg(process).arg(QLatin1String(file)));
    return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
}

/// 0 when there is none, or the process has gone.
int ParentOf(int process)
{
    // "pid (name) state parent ...", where the name may hold anything.
    const QByteArray stat = Read(process, "stat");
    return stat.mid(stat.lastIndexOf(')') + 2).split(' ').value(1).toInt();
}

bool IsOwn(int process)
{
    while (process > 1 && process != getpid())
        process = ParentOf(process);
    return process == getpid();
}

bool IsOfEngine(int process) { return Read(process, "cmdline").contains("QtWebEngineProcess"); }

} // namespace

QVector<int> RenderProcesses()
{
    // They are forked from a process that the engine keeps for this, and carry its command line.
    QVector<int> found;
    for (const QString& name : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
        const int process = name.toInt();
        if (process > 0 && IsOfEngine(process) && IsOfEngine(ParentOf(process)) && IsOwn(process))
            found.append(process);
    }
    return found;
}
