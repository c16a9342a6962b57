#include "Processes.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <unistd.h>

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

QStringList Processes::SocketFiles(pid_t process)
{
    const QDir descriptors(QStringLiteral("/proc/%1/fd").arg(process));
    static const QRegularExpression socket(QStringLiteral("socket:\\[(\\d+)\\]"));
    QSet<QByteArray> inodes;
    const QStringList names = descriptors.entryList(QDir::System | QDir::Files | QDir::NoDotAndDotDot);
    for (const QString& name : names) {
        char target[64] = {};
        const QByteArray link = QFile::encodeName(descriptors.filePath(name));
        if (readlink(link.constData(), target, sizeof target - 1) < 0)
            continue;
        const auto match = socket.match(QString::fromLatin1(target));
        if (match.hasMatch())
            inodes << match.captured(1).toLatin1();
    }
    QFile table(QStringLiteral("/proc/%1/net/unix").arg(process));
    if (!table.open(QIODevice::ReadOnly))
        return {};
    QStringList files;
    // "address references protocol flags type state inode path"
    const QList<QByteArray> lines = table.readAll().split('\n');
    for (const QByteArray& line : lines) {
        const QList<QByteArray> fields = line.simplified().split(' ');
        if (fields.size() > 7 && fields.at(7).startsWith('/') && inodes.contains(fields.at(6)))
            files << QFile::decodeName(fields.at(7));
    }
    files.removeDuplicates();
    return files;
}

long long Processes::Ticks(pid_t process)
{
    const QList<QByteArray> stat = Stat(QString::number(process));
    return IsRunning(stat) ? stat.at(11).toLongLong() + stat.at(12).toLongLong() : 0;
}
