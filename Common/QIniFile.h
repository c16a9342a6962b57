#pragma once

#include <QVariant>
#include <UIComponentsExport.h>
#include <memory>

class QSettings;

namespace XCM {

/// A settings file in INI format, UTF-8, whose values are found by section and key: the smaller sister of
/// UICommonMdl::CIniFile, with the same rules.
///
/// Objects can be moved, not copied; one that was moved from reads as an empty file and writes nothing.
class UICOMPONENTS_EXPORT QIniFile
{
public:
    /// Opens the file @p path. A missing file reads as empty and is created by the first write.
    explicit QIniFile(const QString& path);
    ~QIniFile();

    QIniFile(QIniFile&& other) noexcept;
    QIniFile& operator=(QIniFile&& other) noexcept;
    QIniFile(const QIniFile&) = delete;
    QIniFile& operator=(const QIniFile&) = delete;

    /// The value of @p key in @p section, a list of texts joined by ","; invalid when there is none.
    QVariant ReadValue(const QString& section, const QString& key);

    /// Sets the value and writes the file at once. An empty section together with an empty key names
    /// nothing: nothing is written.
    void WriteValue(const QString& section, const QString& key, const QVariant& value);

private:
    std::unique_ptr<QSettings> m_settings;
};

} // namespace XCM
