#pragma once

#include <QByteArray>
#include <QString>
#include <UIComponentsExport.h>

namespace KvGUI {

/// Reading small files, on disk or in the resources.
class UICOMPONENTS_EXPORT KvFile
{
public:
    KvFile() = delete;

    /// Reads the file @p fileName of @p folder as a whole.
    ///
    /// Folder and file name are joined with exactly one "/", whether or not the folder ends or the name
    /// begins with one; with an empty folder the name is the path.
    /// @return the bytes; empty but not null for an empty file; null when there is no such file or it
    ///         cannot be read
    static QByteArray ReadAll(const QString& fileName, const QString& folder);
};

} // namespace KvGUI
