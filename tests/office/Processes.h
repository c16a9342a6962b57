#pragma once

#include <QStringList>
#include <QVector>
#include <sys/types.h>

/// The processes of this machine, by /proc.
namespace Processes {

/// The children of @p parent; a child that has ended and is not waited for yet is not among them.
QVector<pid_t> Children(pid_t parent);

/// The process that talks to the office for @p client, and the office itself; 0 when there is none.
pid_t Host(pid_t client);
pid_t Office(pid_t client);

bool Runs(pid_t process);

/// The files of the sockets that the process has opened under a name.
QStringList SocketFiles(pid_t process);

/// The processor time that the process has used, in clock ticks.
long long Ticks(pid_t process);

} // namespace Processes
