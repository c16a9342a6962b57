#include <Platform/Automation/Office/OfficeFolders.h>

#include <Platform/Automation/Office/OfficePipes.h>

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace Office {

namespace {

const QString Program = QStringLiteral("soffice.bin");
const QString ProfilePrefix = QStringLiteral("uicomponents-office-");
const QString LockName = QStringLiteral("lock");

bool HasProgram(const QString& folder) { return QFileInfo(folder, Program).isExecutable(); }

/// The folder of the binary behind the command "soffice", which is a link into the program folder.
QString CommandFolder()
{
    const QString command = QStandardPaths::findExecutable(QStringLiteral("soffice"));
    return command.isEmpty() ? QString() : QFileInfo(QFileInfo(command).canonicalFilePath()).absolutePath();
}

/// Opens and locks the file; -1 when another process holds it.
int LockFile(const QString& path, int flags)
{
    const int file = open(QFile::encodeName(path).constData(), flags | O_RDWR | O_CLOEXEC, 0600);
    if (file >= 0 && flock(file, LOCK_EX | LOCK_NB) != 0) {
        close(file);
        return -1;
    }
    return file;
}

} // namespace

QString ProgramFolder()
{
    if (qEnvironmentVariableIsSet("UICOMPONENTS_OFFICE_PATH")) {
        const QString folder = qEnvironmentVariable("UICOMPONENTS_OFFICE_PATH");
        return HasProgram(folder) ? folder : QString();
    }
    const QString places[]
        = {CommandFolder(), QStringLiteral("/usr/lib/libreoffice/program"),
           QStringLiteral("/usr/lib64/libreoffice/program"), QStringLiteral("/opt/libreoffice/program")};
    for (const QString& place : places) {
        if (!place.isEmpty() && HasProgram(place))
            return place;
    }
    return QString();
}

QString MakeProfileFolder(int& lockFile)
{
    QTemporaryDir folder(QDir::tempPath() + QLatin1Char('/') + ProfilePrefix + QLatin1String("XXXXXX"));
    if (!folder.isValid())
        return QString();
    // Locked before it has its name: a lock file that is there and free is abandoned.
    const QString made = folder.filePath(QStringLiteral("lock.new"));
    lockFile = LockFile(made, O_CREAT);
    if (lockFile < 0 || !QFile::rename(made, folder.filePath(LockName)))
        return QString();
    folder.setAutoRemove(false);
    return folder.path();
}

void RemoveAbandonedProfiles()
{
    const QFileInfoList folders
        = QDir(QDir::tempPath()).entryInfoList({ProfilePrefix + QLatin1Char('*')}, QDir::Dirs);
    for (const QFileInfo& folder : folders) {
        if (folder.isSymLink() || folder.ownerId() != getuid())
            continue;
        const int lock = LockFile(folder.filePath() + QLatin1Char('/') + LockName, 0);
        if (lock < 0)
            continue;
        RemoveProfile(folder.filePath());
        close(lock);
    }
}

} // namespace Office
