#include <Common/CIniFile.h>

#include <Common/IniSettings.h>

namespace UICommonMdl {

CIniFile::CIniFile(const QString& path) { loadIniFile(path); }

CIniFile::~CIniFile() = default;
CIniFile::CIniFile(CIniFile&& other) noexcept = default;
CIniFile& CIniFile::operator=(CIniFile&& other) noexcept = default;

QVariant CIniFile::ReadValue(const QString& section, const QString& key, const QVariant& defaultValue)
{
    return ReadIniValue(m_settings.get(), section, key, defaultValue);
}

void CIniFile::WriteValue(const QString& section, const QString& key, const QVariant& value)
{
    WriteIniValue(m_settings.get(), section, key, value);
}

void CIniFile::RemoveValue(const QString& section, const QString& key)
{
    RemoveIniValue(m_settings.get(), section, key);
}

QStringList CIniFile::ReadAllSecName() { return m_settings ? m_settings->childGroups() : QStringList(); }

bool CIniFile::loadIniFile(const QString& path)
{
    m_settings = OpenIniFile(path);
    return true;
}

} // namespace UICommonMdl
