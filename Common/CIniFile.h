#pragma once

#include <QStringList>
#include <QVariant>
#include <UIComponentsExport.h>
#include <memory>

class QSettings;

namespace UICommonMdl {

/// A settings file in INI format, UTF-8, whose values are found by section and key.
///
/// @code
/// UICommonMdl::CIniFile file(UICommonMdl::CommonFun::GetHasBackupConfigFileName(path));
/// file.WriteValue(QStringLiteral("Wall"), QStringLiteral("Rows"), 4);
/// UICommonMdl::CommonFun::BackupConfigFile(path);
/// @endcode
///
/// Objects can be moved, not copied; one that was moved from reads as an empty file and writes nothing.
/// No errors are reported: what cannot be read gives the default, what cannot be written is lost.
///
/// Values can be numbers, texts, bytes, bits, unique ids, dates, times, addresses, points, lines, sizes,
/// rectangles, colours, fonts, and lists and maps of them; others, such as pictures, are not written. A file
/// with a damaged value that would take the reader down is put away under its name with ".damaged" added,
/// when it is opened; its backup takes its place, if there is one.
class UICOMPONENTS_EXPORT CIniFile
{
public:
    /// Opens the file @p path. A missing file reads as empty and is created by the first write.
    explicit CIniFile(const QString& path);
    ~CIniFile();

    CIniFile(CIniFile&& other) noexcept;
    CIniFile& operator=(CIniFile&& other) noexcept;
    CIniFile(const CIniFile&) = delete;
    CIniFile& operator=(const CIniFile&) = delete;

    /// The value of @p key in @p section, or @p defaultValue when there is none.
    ///
    /// Values read from the file are texts. A list of texts comes back as one text joined by ",", so that
    /// a line such as "size=10,20" reads as the text "10,20"; this is so for a default as well.
    QVariant ReadValue(const QString& section, const QString& key, const QVariant& defaultValue);

    /// Sets the value and writes the file at once. An empty section together with an empty key names
    /// nothing: nothing is written.
    void WriteValue(const QString& section, const QString& key, const QVariant& value);

    /// Removes the value and writes the file at once. A key that names a whole group removes the group,
    /// and so does an empty key with its section. With both empty nothing is removed.
    void RemoveValue(const QString& section, const QString& key);

    /// The names of the sections.
    QStringList ReadAllSecName();

private:
    bool loadIniFile(const QString& path);

    std::unique_ptr<QSettings> m_settings;
};

} // namespace UICommonMdl
