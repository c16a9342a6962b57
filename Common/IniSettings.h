#pragma once

#include <QSettings>
#include <QVariant>
#include <memory>

/// What the INI classes have in common: one way to open a file, to name a value and to read it.

/// Opens the INI file @p path, read and written as UTF-8. A missing file reads as empty.
std::unique_ptr<QSettings> OpenIniFile(const QString& path);

/// The value of @p key in @p section, or @p defaultValue when there is none. A list of texts (QSettings
/// splits "1,2,3" into one) becomes one text again, joined by ",", also when it is the default.
QVariant ReadIniValue(
    const QSettings* settings, const QString& section, const QString& key, const QVariant& defaultValue);

/// Sets the value and writes the file at once. Without a section and a key nothing happens.
void WriteIniValue(QSettings* settings, const QString& section, const QString& key, const QVariant& value);

/// Removes the value, or the whole group when the name is that of a group, and writes the file at once.
/// Without a section and a key nothing happens.
void RemoveIniValue(QSettings* settings, const QString& section, const QString& key);
