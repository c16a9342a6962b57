#pragma once

#include <QString>

/// The resource path ":/<application>/<folder>/<skin>/<module>/<file>" of the skin in use.
QString SkinResourcePath(const QString& folder, const QString& module, const QString& file);

/// The path "<current path>/Skin/<file>" on disk.
QString SkinFilePath(const QString& file);

/// The part of @p path before its first "/", which is empty when it begins with one.
QString FirstSegment(const QString& path);

/// Reads the whole file @p path into @p out, each byte as one character (Latin-1).
/// @return false when the file cannot be opened; @p out is unchanged then
bool ReadLatin1File(const QString& path, QString& out);
