#pragma once

#include <QString>
#include <QVariant>
#include <UIComponentsExport.h>

namespace UICommonMdl {

/// Single values of INI files in the current folder (KvGUI::KvDir::GetCurrentPath()), found by the file's
/// name. Each call opens and closes the file; for several values at once use a CIniFile.
class UICOMPONENTS_EXPORT CLocalIniFile
{
public:
    CLocalIniFile() = delete;

    /// The value of @p key in @p section of the file @p fileName, as CIniFile::ReadValue() gives it;
    /// invalid when there is none.
    static QVariant ReadValue(const QString& section, const QString& key, const QString& fileName);

    /// Sets the value and writes the file at once.
    static void
    WriteValue(const QString& section, const QString& key, QVariant value, const QString& fileName);
};

} // namespace UICommonMdl
