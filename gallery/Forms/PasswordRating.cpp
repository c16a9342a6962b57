#include <gallery/Forms/PasswordRating.h>

namespace OperatorClient {

namespace {

constexpr int MediumLength = 8;
constexpr int StrongLength = 10;

int KindsIn(const QString& password)
{
    bool lower = false;
    bool upper = false;
    bool digit = false;
    bool other = false;
    for (const QChar character : password) {
        lower = lower || character.isLower();
        upper = upper || character.isUpper();
        digit = digit || character.isDigit();
        other = other || !(character.isLower() || character.isUpper() || character.isDigit());
    }
    return int(lower) + int(upper) + int(digit) + int(other);
}

} // namespace

int RatePassword(const QString& password)
{
    if (password.isEmpty())
        return 0;
    const int kinds = KindsIn(password);
    if (password.size() >= StrongLength && kinds >= 3)
        return 3;
    return password.size() >= MediumLength && kinds >= 2 ? 2 : 1;
}

} // namespace OperatorClient
