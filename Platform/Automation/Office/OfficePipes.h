#pragma once

#include <QString>

/// What an office leaves behind, by the folder of its profile. The plugin and the host clear it up: whichever
/// of the two is left.
namespace Office {

/// The name of the pipe on which the office of this profile listens for its host.
QString PipeName(const QString& profile);

/// The address of the office's part of the profile folder, as the office is told it.
QString ProfileUrl(const QString& profile);

/// Removes the profile and the socket files of its office, which has to be dead.
void RemoveProfile(const QString& profile);

} // namespace Office
