#pragma once

#include <QString>

/// The spreadsheet application's units and names in those of the office.
namespace Office {

/// Hundredths of a millimetre of @p points.
int FromPoints(int points);

/// Hundredths of a millimetre of a column for @p characters digits of the standard font.
int FromCharacters(int characters);

/// The member of "Close (Boolean)" is "close": without its signature, and in lower case.
QString MemberName(const QString& text);

/// True for a name that a sheet may have: 1 to 31 characters, none of : \ / ? * [ ], no apostrophe at an
/// end.
bool IsSheetName(const QString& name);

/// The file of the client's that @p nativePath names; a relative path counts from the folder that the client
/// is in at present.
QString ClientPath(const QString& nativePath);

} // namespace Office
