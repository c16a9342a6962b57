#pragma once

#include <QString>

/// The folders of the office: its program, and the profiles that each private process gets for itself.
namespace Office {

/// The folder of the installed office's program "soffice.bin": that of the environment variable
/// UICOMPONENTS_OFFICE_PATH when it is set, else of the "soffice" that is found as a command, else one of
/// the usual places. Empty when there is none.
QString ProgramFolder();

/// A new, empty folder for an office's profile. It is locked through @p lockFile, a descriptor to be kept
/// open for as long as the folder is in use; the profiles of clients and hosts that were all killed are
/// recognised by their free locks. Empty when it cannot be made.
QString MakeProfileFolder(int& lockFile);

/// Removes the profile folders that nobody uses any more, and the socket files of their offices.
void RemoveAbandonedProfiles();

} // namespace Office
