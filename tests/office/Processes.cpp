#include "Processes.h"

#include <QDir>
#include <QFile>

namespace {

/// "state parent ... " of "id (name) state parent ..."; empty when there is no such process.
QList<QByteArray> Stat(const QString& process)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(process));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray text = file.readAll();
    return text.mid(text.lastIndexOf(')') + 2).split(' ');
}

bool IsRunning(const QList<QByteArray>& stat)
{
    return stat.size() > 13 && stat.at(0) != "Z" && stat.at(0) != "X";
}

pid_t OnlyChild(pid_t parent)
{
    const QVector<pid_t> children = Processes::Children(parent);
    return children.size() == 1 ? children.first() : 0;
}

} // namespace

QVector<pid_t> Processes::Children(pid_t parent)
{
    QVector<pid_t> children;
    const QStringList processes
        = QDir(QStringLiteral("/proc")).entryList({QStringLiteral("[0-9]*")}, QDir::Dirs);
    for (const QString& process : processes) {
        const QList<QByteArray> stat = Stat(process);
        if (IsRunning(stat) && stat.at(1).toInt() == parent)
            children << process.toInt();
    }
    return children;
}

pid_t Processes::Host(pid_t client) { return OnlyChild(client); }

pid_t Processes::Office(pid_t client)
{
    const pid_t host = Host(client);
    return host ? OnlyChild(host) : 0;
}

bool Processes::Runs(pid_t process) { return IsRunning(Stat(QString::number(process))); }

long long Processes::Ticks(pid_t process)
{
    const QList<QByteArray> stat = Stat(QString::number(process));
    return IsRunning(stat) ? stat.at(11).toLongLong() + stat.at(12).toLongLong() : 0;
}
