#pragma once

#include <QString>

/// Whether a new file of so many bytes can be written into the folder. False only when the disk, the user's
/// quota or a limit of the process is known to be in the way; nothing stays in the folder.
bool HasRoomFor(const QString& folder, qint64 bytes);
