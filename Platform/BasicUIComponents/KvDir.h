#pragma once

#include <QString>
#include <UIComponentsExport.h>

namespace KvGUI {

/// The folder in which the application keeps its own files (settings, skins on disk).
class UICOMPONENTS_EXPORT KvDir
{
public:
    KvDir() = delete;

    /// The folder, absolute and with exactly one "/" at its end: the folder of the running program until
    /// SetCurrentPath() names another one. Without an application object it is the working directory.
    static QString GetCurrentPath();

    /// Names the folder; it need not exist. A relative path is taken from the working directory of this
    /// moment, and doubled, missing and trailing "/" are put right. An empty path goes back to the folder
    /// of the running program.
    static void SetCurrentPath(const QString& path);
};

} // namespace KvGUI
