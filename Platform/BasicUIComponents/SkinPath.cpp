#include <Platform/BasicUIComponents/SkinPath.h>

#include <Platform/BasicUIComponents/KvDir.h>
#include <Platform/BasicUIComponents/KvSkin.h>
#include <QFile>

QString SkinResourcePath(const QString& folder, const QString& module, const QString& file)
{
    // All marks are filled in one step: a name that holds "%1" itself stays as it is.
    return QStringLiteral(":/%1/%2/%3/%4/%5")
        .arg(KvGUI::GetAppName(), folder, KvGUI::GetSkinVersion(), module, file);
}

QString SkinFilePath(const QString& file)
{
    return QStringLiteral("%1/Skin/%2").arg(KvGUI::KvDir::GetCurrentPath(), file);
}

QString FirstSegment(const QString& path) { return path.left(path.indexOf(QLatin1Char('/'))); }

bool ReadLatin1File(const QString& path, QString& out)
{
    if (path.isEmpty())
        return false;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray bytes = file.readAll();
    out = QString::fromLatin1(bytes.constData(), bytes.size());
    return true;
}
