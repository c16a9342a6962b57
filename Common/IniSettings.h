#pragma once

#include <QSettings>
#include <QVariant>
#include <memory>

/// What the INI classes have in common: one way to open a file, to name a value and to read it.

/// Opens the INI file @p path, read and written as UTF-8. A missing file reads as empty. A file that cannot
/// be read without harm (IsSafeIniText()) is put away under its name with ".damaged" added, and its backup,
/// if there is one, takes its place; null when it cannot be put away.
std::unique_ptr<QSettings> OpenIniFile(const QString& path);

/// The value of @p key in @p section, or @p defaultValue when there is none. A list of texts (QSettings
/// splits "1,2,3" into one) becomes one text again, joined by ",", also when it is the default.
QVariant ReadIniValue(
    const QSettings* settings, const QString& section, const QString& key, const QVariant& defaultValue);

/// Sets the value and writes the file at once. Without a section and a key, and for a value that could not be
/// read again (IsSafeIniValue()), nothing happens.
void WriteIniValue(QSettings* settings, const QString& section, const QString& key, const QVariant& value);

/// Removes the value, or the whole group when the name is that of a group, and writes the file at once.
/// Without a section and a key nothing happens.
void RemoveIniValue(QSettings* settings, const QString& section, const QString& key);
