#pragma once

#include <QString>

namespace OperatorClient {

/// How strong a password is, by its length and the kinds of characters in it: lower case, upper case, digits
/// and all others.
/// @return 0 for no password, 1 weak, 2 medium (8 characters of two kinds), 3 strong (10 of three)
int RatePassword(const QString& password);

} // namespace OperatorClient
