#include <Common/QIniFile.h>

#include <Common/IniSettings.h>

namespace XCM {

QIniFile::QIniFile(const QString& path)
    : m_settings(OpenIniFile(path))
{ }

QIniFile::~QIniFile() = default;
QIniFile::QIniFile(QIniFile&& other) noexcept = default;
QIniFile& QIniFile::operator=(QIniFile&& other) noexcept = default;

QVariant QIniFile::ReadValue(const QString& section, const QString& key)
{
    return ReadIniValue(m_settings.get(), section, key, QVariant());
}

void QIniFile::WriteValue(const QString& section, const QString& key, const QVariant& value)
{
    WriteIniValue(m_settings.get(), section, key, value);
}

} // namespace XCM
