#include <Common/DiskRoom.h>

#include <QFile>

#ifdef Q_OS_LINUX
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

bool HasRoomFor(const QString& folder, qint64 bytes)
{
    // A file without a name, which goes with its descriptor. Not every file system has them.
    const int file = open(QFile::encodeName(folder).constData(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0600);
    if (file < 0)
        return true;
    const int error = posix_fallocate(file, 0, static_cast<off_t>(bytes));
    close(file);
    return error != ENOSPC && error != EDQUOT && error != EFBIG;
}
#else
#include <QStorageInfo>

bool HasRoomFor(const QString& folder, qint64 bytes)
{
    const QStorageInfo disk(folder);
    return !disk.isValid() || disk.bytesAvailable() >= bytes;
}
#endif
