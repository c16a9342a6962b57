#include <Platform/BasicUIComponents/StyleSheets.h>

#include <Platform/BasicUIComponents/KvFile.h>
#include <Platform/BasicUIComponents/KvSkin.h>
#include <QHash>
#include <QPair>

namespace {

struct SheetCache
{
    QString appName; ///< the skin that the sheets were read for
    QString skinVersion;
    QHash<QPair<QString, QString>, QString> sheets; ///< by folder and file name
};

SheetCache& CacheOfPresentSkin()
{
    static SheetCache cache;
    const QString appName = KvGUI::GetAppName();
    const QString skinVersion = KvGUI::GetSkinVersion();
    if (cache.appName != appName || cache.skinVersion != skinVersion)
        cache = SheetCache{appName, skinVersion, {}};
    return cache;
}

} // namespace

QString StyleSheetText(const QString& fileName, const QString& folder)
{
    auto& sheets = CacheOfPresentSkin().sheets;
    const auto key = qMakePair(folder, fileName);
    const auto known = sheets.constFind(key);
    if (known != sheets.constEnd())
        return *known;
    const QByteArray bytes = KvGUI::KvFile::ReadAll(fileName, folder);
    if (bytes.isNull())
        return {}; // not remembered: a client may register its skin later
    return *sheets.insert(key, QString::fromUtf8(bytes.constData(), bytes.size()));
}
