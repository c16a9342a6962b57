#include <Common/CLocalIniFile.h>

#include <Common/CIniFile.h>
#include <Platform/BasicUIComponents/KvDir.h>

namespace UICommonMdl {

namespace {

QString LocalPath(const QString& fileName)
{
    return KvGUI::KvDir::GetCurrentPath() + QLatin1Char('/') + fileName;
}

} // namespace

QVariant CLocalIniFile::ReadValue(const QString& section, const QString& key, const QString& fileName)
{
    return CIniFile(LocalPath(fileName)).ReadValue(section, key, QVariant());
}

// The value comes by value because that is the interface that client applications were built against.
void CLocalIniFile::WriteValue(
    // NOLINTNEXTLINE(performance-unnecessary-value-param)
    const QString& section, const QString& key, QVariant value, const QString& fileName)
{
    CIniFile(LocalPath(fileName)).WriteValue(section, key, value);
}

} // namespace UICommonMdl
