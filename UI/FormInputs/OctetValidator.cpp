#include "OctetValidator.h"

#include <algorithm>

namespace UICommonMdl {

namespace {

constexpr int LargestOctet = 255;
constexpr int LongestOctet = 3; // digits

bool IsDigit(QChar character) { return character >= QLatin1Char('0') && character <= QLatin1Char('9'); }

} // namespace

OctetValidator::OctetValidator(QObject* parent)
    : QIntValidator(0, LargestOctet, parent)
{
    // Addresses are written with these digits and without separators in every language.
    setLocale(QLocale::c());
}

QValidator::State OctetValidator::validate(QString& input, int& position) const
{
    if (input.size() > LongestOctet || !std::all_of(input.cbegin(), input.cend(), IsDigit))
        return Invalid;
    return QIntValidator::validate(input, position);
}

} // namespace UICommonMdl
