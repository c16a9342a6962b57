#include <gallery/LastFolders.h>

#include <gallery/StoredText.h>

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace OperatorClient {

namespace {

QString& SettingsFile()
{
    static QString file;
    return file;
}

StoredText Stored() { return {SettingsFile(), QStringLiteral("Client"), QStringLiteral("Folders")}; }

QJsonObject Folders()
{
    if (SettingsFile().isEmpty())
        return {};
    const QStringList texts = Stored().Read();
    for (const QString& text : texts) {
        QJsonObject folders = QJsonDocument::fromJson(text.toUtf8()).object();
        if (!folders.isEmpty())
            return folders;
    }
    return {};
}

QString NameOf(FileUse use)
{
    switch (use) {
    case FileUse::Photo:
        return QStringLiteral("photo");
    case FileUse::Cut:
        return QStringLiteral("cut");
    case FileUse::Workbook:
        return QStringLiteral("workbook");
    case FileUse::WallPicture:
        return QStringLiteral("wallPicture");
    case FileUse::WallVideo:
        return QStringLiteral("wallVideo");
    }
    return {};
}

} // namespace

void LastFolders::Remember(const QString& settingsFile) { SettingsFile() = settingsFile; }

QString LastFolders::Of(FileUse use, const QString& otherwise)
{
    const QString folder = Folders().value(NameOf(use)).toString();
    return !folder.isEmpty() && QFileInfo(folder).isDir() ? folder : otherwise;
}

void LastFolders::Note(FileUse use, const QString& file)
{
    if (SettingsFile().isEmpty() || file.isEmpty())
        return;
    QJsonObject folders = Folders();
    const QString folder = QFileInfo(file).absolutePath();
    if (folders.value(NameOf(use)).toString() == folder)
        return;
    folders.insert(NameOf(use), folder);
    Stored().Write(QString::fromUtf8(QJsonDocument(folders).toJson(QJsonDocument::Compact)));
}

} // namespace OperatorClient
