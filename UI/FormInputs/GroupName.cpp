#include "GroupName.h"

#include <Common/CommonFun.h>

namespace UICommonMdl {

namespace {

/// The range at the end was meant to reach to the last Chinese character, which the last two bytes are in
/// GBK. They are kept as they stand, because names in use passed this very expression: read as UTF-8 they
/// end the range at U+FFFD. (And QRegExp knows no \u: the range begins at the digit 0.)
constexpr char DefaultExpression[] = "^[a-zA-Z0-9._!@()\\[\\]{};',=+&^%~`\\- \\u0370-\xFD\x9B]*$";

} // namespace

QRegExp GroupNameExpression(const QRegExp& wanted)
{
    if (wanted.isValid() && !wanted.isEmpty())
        return wanted;
    return QRegExp(QString::fromUtf8(DefaultExpression), Qt::CaseSensitive, QRegExp::RegExp);
}

QString FittingGroupName(const QString& name, int maxLength, bool checkCharacters)
{
    const int count = checkCharacters ? name.toLatin1().size() : name.toLocal8Bit().size();
    if (count < maxLength)
        return name;
    return checkCharacters ? CommonFun::GetUtf8ValidByteLenString(name, qMax(maxLength, 1) - 1)
                           : CommonFun::GetLocal8BitValidByteLenString(name, maxLength);
}

} // namespace UICommonMdl
