#include <gallery/Wall/WallLayoutFile.h>

#include <Common/CIniFile.h>
#include <Common/CommonFun.h>

#include <QDir>
#include <QFileInfo>

namespace OperatorClient {

namespace {

std::optional<WallLayout> ReadLayout(const QString& path)
{
    UICommonMdl::CIniFile file(path);
    const QVariant text = file.ReadValue(QStringLiteral("Wall"), QStringLiteral("Layout"), QString());
    return WallLayout::FromText(text.toString());
}

} // namespace

WallLayoutFile::WallLayoutFile(const QString& path)
    : m_strPath(path)
{ }

std::optional<WallLayout> WallLayoutFile::Read() const
{
    const std::optional<WallLayout> layout
        = ReadLayout(UICommonMdl::CommonFun::GetHasBackupConfigFileName(m_strPath));
    // A file that was cut in its middle still has data and is not restored by the line above.
    return layout ? layout : ReadLayout(m_strPath + QLatin1String(".usertmp"));
}

void WallLayoutFile::Write(const WallLayout& layout) const
{
    QFileInfo(m_strPath).absoluteDir().mkpath(QStringLiteral("."));
    UICommonMdl::CIniFile file(m_strPath);
    file.WriteValue(QStringLiteral("Wall"), QStringLiteral("Layout"), layout.ToText());
    UICommonMdl::CommonFun::BackupConfigFile(m_strPath);
}

} // namespace OperatorClient
