#include <UI/FormInputs/KvImpPushButton.h>

#include <Common/CommonFun.h>

namespace UICommonMdl {

KvImpPushButton::KvImpPushButton(QWidget* parent)
    : KvImpPushButton(QIcon(), QString(), parent)
{ }

KvImpPushButton::KvImpPushButton(const QString& text, QWidget* parent)
    : KvImpPushButton(QIcon(), text, parent)
{ }

KvImpPushButton::KvImpPushButton(const QIcon& icon, const QString& text, QWidget* parent)
    : KvPushButton(icon, text, parent)
{
    CommonFun::SetStyleSheet(this, QStringLiteral("Button"), QString(), QString());
}

} // namespace UICommonMdl
