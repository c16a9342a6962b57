#include <gallery/StoredText.h>

#include <Common/CIniFile.h>
#include <Common/CommonFun.h>

#include <QDir>
#include <QFileInfo>

namespace OperatorClient {

using UICommonMdl::CIniFile;
using UICommonMdl::CommonFun;

StoredText::StoredText(const QString& path, const QString& section, const QString& key)
    : m_strPath(path)
    , m_strSection(section)
    , m_strKey(key)
{ }

QStringList StoredText::Read() const
{
    // A file that was cut in its middle still has data and is not restored by the first of these calls.
    const QString paths[]
        = {CommonFun::GetHasBackupConfigFileName(m_strPath), m_strPath + QLatin1String(".usertmp")};
    QStringList texts;
    for (const QString& path : paths)
        texts << CIniFile(path).ReadValue(m_strSection, m_strKey, QString()).toString();
    return texts;
}

void StoredText::Write(const QString& text) const
{
    QFileInfo(m_strPath).absoluteDir().mkpath(QStringLiteral("."));
    CIniFile(m_strPath).WriteValue(m_strSection, m_strKey, text);
    CommonFun::BackupConfigFile(m_strPath);
}

} // namespace OperatorClient
