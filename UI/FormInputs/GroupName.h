#pragma once

#include <QRegExp>
#include <QString>

namespace UICommonMdl {

/// The expression that the names of groups must match: @p wanted, or the default one when @p wanted is
/// invalid or empty.
QRegExp GroupNameExpression(const QRegExp& wanted);

/// What is left of a group's name by its budget.
///
/// The name is counted, and cut when the count reaches the budget. Counting and cutting go by different
/// encodings when the characters are checked; names stored under these rules must stay the same.
/// @param maxLength the budget
/// @param checkCharacters false: counted and cut in bytes of the local 8-bit encoding, to the budget. true:
///        counted in UTF-16 units, and cut to fewer bytes of UTF-8 than the budget.
QString FittingGroupName(const QString& name, int maxLength, bool checkCharacters);

} // namespace UICommonMdl
