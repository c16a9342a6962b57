#include <Platform/BasicUIComponents/KvDir.h>

#include <QCoreApplication>
#include <QDir>

namespace KvGUI {

namespace {

/// Empty while the folder of the running program is meant.
QString& ChosenPath()
{
    static QString path;
    return path;
}

QString Normalised(const QString& path)
{
    QString folder = QDir::cleanPath(QDir::current().absoluteFilePath(QDir::fromNativeSeparators(path)));
    if (!folder.endsWith(QLatin1Char('/')))
        folder += QLatin1Char('/');
    return folder;
}

} // namespace

QString KvDir::GetCurrentPath()
{
    if (!ChosenPath().isEmpty())
        return ChosenPath();
    return Normalised(
        QCoreApplication::instance() != nullptr ? QCoreApplication::applicationDirPath()
                                                : QDir::currentPath());
}

void KvDir::SetCurrentPath(const QString& path)
{
    ChosenPath() = path.isEmpty() ? QString() : Normalised(path);
}

} // namespace KvGUI
