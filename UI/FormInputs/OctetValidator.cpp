#include "OctetValidator.h"

#include "IpAddress.h"

namespace UICommonMdl {

OctetValidator::OctetValidator(QObject* parent)
    : QIntValidator(0, LargestOctet, parent)
{
    // Addresses are written with these digits and without separators in every language.
    setLocale(QLocale::c());
}

QValidator::State OctetValidator::validate(QString& input, int& position) const
{
    if (!AreOctetDigits(input))
        return Invalid;
    return QIntValidator::validate(input, position);
}

} // namespace UICommonMdl
