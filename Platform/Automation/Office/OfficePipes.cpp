#include <Platform/Automation/Office/OfficePipes.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace Office {

namespace {

/// The pipe by which a second office would find the first one of the same profile: named by the digest of
/// the profile's address, whose bytes the office writes without leading zeros.
QString SinglePipeName(const QString& profile)
{
    const QString url = ProfileUrl(profile);
    const QByteArray characters(
        reinterpret_cast<const char*>(url.utf16()), url.size() * static_cast<int>(sizeof(ushort)));
    const QByteArray digest = QCryptographicHash::hash(characters, QCryptographicHash::Md5);
    QString name = QStringLiteral("SingleOfficeIPC_");
    for (const char byte : digest)
        name += QString::number(static_cast<uchar>(byte), 16);
    return name;
}

} // namespace

QString PipeName(const QString& profile) { return QFileInfo(profile).fileName(); }

QString ProfileUrl(const QString& profile)
{
    return QUrl::fromLocalFile(profile + QLatin1String("/user")).toString(QUrl::FullyEncoded);
}

void RemoveProfile(const QString& profile)
{
    // Named by the user, too, and in the first of these folders that can be written to.
    const QString prefix = QStringLiteral("OSL_PIPE_*_");
    const QStringList pipes{prefix + PipeName(profile), prefix + SinglePipeName(profile)};
    for (const char* place : {"/tmp", "/var/tmp"}) {
        QDir folder{QLatin1String(place)};
        const QStringList files = folder.entryList(pipes, QDir::System);
        for (const QString& file : files)
            folder.remove(file);
    }
    // Its lock goes last: as long as it is there, the next client takes up a removal that was cut short.
    QDir folder(profile);
    bool empty = true;
    const QStringList subfolders = folder.entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot);
    for (const QString& subfolder : subfolders)
        empty = QDir(folder.filePath(subfolder)).removeRecursively() && empty;
    if (empty)
        folder.removeRecursively();
}

} // namespace Office
