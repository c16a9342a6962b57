#include <Platform/BasicUIComponents/KvFile.h>

#include <QFile>

namespace KvGUI {

namespace {

QString Joined(const QString& folder, const QString& fileName)
{
    if (folder.isEmpty())
        return fileName;
    const QLatin1Char slash('/');
    int folderEnd = folder.size();
    while (folderEnd > 0 && folder.at(folderEnd - 1) == slash)
        --folderEnd;
    int nameStart = 0;
    while (nameStart < fileName.size() && fileName.at(nameStart) == slash)
        ++nameStart;
    return folder.left(folderEnd) + slash + fileName.mid(nameStart);
}

} // namespace

QByteArray KvFile::ReadAll(const QString& fileName, const QString& folder)
{
    if (fileName.isEmpty())
        return {};
    QFile file(Joined(folder, fileName));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray bytes = file.readAll();
    return bytes.isNull() ? QByteArray("") : bytes;
}

} // namespace KvGUI
