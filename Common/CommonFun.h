#pragma once

#include <QString>
#include <UIComponentsExport.h>

class QWidget;

namespace UICommonMdl {

/// Helpers that every widget of the library uses: paths and style sheets of the current skin, cutting a
/// text to a number of bytes, and the backup copy of a configuration file.
///
/// All functions are for the GUI thread, none throws or logs. The current skin is that of
/// KvGUI::GetAppName() and KvGUI::GetSkinVersion(), the current path that of KvGUI::KvDir.
class UICOMPONENTS_EXPORT CommonFun
{
public:
    CommonFun() = delete;

    /// @name Skin paths
    /// @{

    /// The resource path ":/<application>/<module>/<skin>/<module>/<file>".
    static QString GetSkinPath(const QString& module, const QString& file);

    /// The path "<current path>/Skin/<file>" on disk.
    static QString GetSkinPathEx(const QString& file);

    /// @}
    /// @name Style sheets
    /// @{

    /// Gives @p w the style sheet @p fileName of the current skin, and again after each change of skin
    /// for as long as @p w lives.
    ///
    /// A sheet that is missing or empty leaves the present style as it is, also when the skin changes.
    /// Each sheet is read once (as UTF-8) until the skin changes, so widgets can be styled by the
    /// thousand. Of several calls for one widget the last whose sheet exists counts.
    /// @param w the widget; null does nothing
    /// @param subDir folder of the sheet below the module's folder in the skin
    /// @param fileName name of the sheet; when empty, the class name of @p w at this moment, without its
    ///        namespace, and ".css". In a constructor that is the class being constructed.
    /// @param module module path; the first of its "/"-separated parts names the module's own folder.
    ///        When empty, this library's module "UICommonModule".
    static void
    SetStyleSheet(QWidget* w, const QString& subDir, const QString& fileName, const QString& module);

    /// Gives @p w the style sheet @p fileName of the folder "<current path>/Skin/<subDir>" on disk.
    ///
    /// These sheets belong to no skin: the widget keeps the sheet when the skin changes, also when
    /// SetStyleSheet() had styled it before. The file is read at each call; one that is missing or empty
    /// changes nothing.
    /// @param w the widget; null does nothing
    static void SetStyleSheetEx(QWidget* w, const QString& fileName, const QString& subDir);

    /// Reads the file @p path into @p out, each byte as one character (Latin-1, unlike SetStyleSheet()).
    /// @return false when the file cannot be opened; @p out is unchanged then
    static bool loadStyleSheet(const QString& path, QString& out);

    /// @}
    /// @name Texts
    /// @{

    /// The longest beginning of @p s with at most @p maxBytes bytes in UTF-8 (and at most as many UTF-16
    /// units). Ends on a whole character, never on half of a surrogate pair.
    /// @param maxBytes 0 or less gives the empty text
    static QString GetUtf8ValidByteLenString(const QString& s, int maxBytes);

    /// The same in the local 8-bit encoding, which is the codec of QTextCodec::codecForLocale().
    static QString GetLocal8BitValidByteLenString(const QString& s, int maxBytes);

    /// True when @p s is empty or holds nothing but blanks: the space, the ideographic space (U+3000) and
    /// the replacement character (U+FFFD). Tabs and line ends are no blanks.
    static bool IsQStrEmpty(const QString& s);

    /// @}
    /// @name Backup of a configuration file
    ///
    /// At start, open the file that GetHasBackupConfigFileName() returns; after each save that went well,
    /// call BackupConfigFile(). A file that a power loss has emptied or filled with zeros then comes back.
    /// The backup is the path with ".usertmp" appended. Both functions replace a file in one step: a
    /// program that is killed inside them leaves the old or the new file, never a part of it.
    /// @{

    /// True when the file holds text: one of the first ten bytes of its first line, without the line
    /// ending, is in 0x02 to 0x7F. A missing or unreadable file, a file with an empty first line, and
    /// one that begins with ten bytes of 0x00, 0x01 or from 0x80 on have no data.
    static bool CheckFileHasData(const QString& path);

    /// Copies the file @p path to its backup. A file without data leaves the backup alone.
    static void BackupConfigFile(const QString& path);

    /// Copies the backup to @p path when @p path has no data and the backup has.
    /// @return @p path, in every case
    static QString GetHasBackupConfigFileName(const QString& path);

    /// @}
};

} // namespace UICommonMdl
