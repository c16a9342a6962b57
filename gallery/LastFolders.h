#pragma once

#include <QString>

namespace OperatorClient {

/// What the operator chooses files for. Each has a folder of its own.
enum class FileUse
{
    Photo,
    Cut,
    Workbook,
    WallPicture,
    WallVideo
};

/// The folders from which the operator took files last, for the next file dialog, also that of the next
/// start.
class LastFolders
{
public:
    LastFolders() = delete;

    /// From now on the folders are those of @p settingsFile; empty: none are known, and none are kept.
    static void Remember(const QString& settingsFile);

    /// @return the folder that was used last; @p otherwise when there was none or it is gone
    static QString Of(FileUse use, const QString& otherwise = QString());

    /// Notes the folder of a file that the operator chose or dropped. An empty path changes nothing.
    static void Note(FileUse use, const QString& file);
};

} // namespace OperatorClient
