#include <Common/OrphanedLock.h>

#ifdef Q_OS_UNIX
#include <QFile>
#include <QThread>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int Looks = 10;
constexpr unsigned long Pause = 10; // milliseconds between two looks

bool IsUnsigned(const char* lock)
{
    struct stat status = {};
    return stat(lock, &status) == 0 && status.st_size == 0;
}

/// False for a lock that has been signed meanwhile, or is another one now.
bool IsStill(const char* lock, int file)
{
    struct stat named = {};
    struct stat opened = {};
    return stat(lock, &named) == 0 && fstat(file, &opened) == 0 && named.st_ino == opened.st_ino
        && named.st_dev == opened.st_dev && opened.st_size == 0;
}

} // namespace

void RemoveOrphanedLock(const QString& path)
{
    const QByteArray lock = QFile::encodeName(path + QLatin1String(".lock"));
    for (int look = 0; look < Looks; ++look) {
        if (!IsUnsigned(lock.constData()))
            return;
        QThread::msleep(Pause); // a writer that lives signs it in this moment
    }
    const int file = open(lock.constData(), O_RDWR | O_CLOEXEC);
    if (file < 0)
        return;
    // A writer that lives, if only stopped, keeps its lock locked, too.
    if (flock(file, LOCK_EX | LOCK_NB) == 0 && IsStill(lock.constData(), file))
        unlink(lock.constData());
    close(file);
}
#else
void RemoveOrphanedLock(const QString&) { } // a lock goes with its writer there
#endif
