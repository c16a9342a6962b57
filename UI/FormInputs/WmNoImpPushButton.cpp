#include <UI/FormInputs/WmNoImpPushButton.h>

#include <Common/CommonFun.h>

namespace UICommonMdl {

WmNoImpPushButton::WmNoImpPushButton(QWidget* parent)
    : WmNoImpPushButton(QIcon(), QString(), parent)
{ }

WmNoImpPushButton::WmNoImpPushButton(const QString& text, QWidget* parent)
    : WmNoImpPushButton(QIcon(), text, parent)
{ }

WmNoImpPushButton::WmNoImpPushButton(const QIcon& icon, const QString& text, QWidget* parent)
    : KvPushButton(icon, text, parent)
{
    CommonFun::SetStyleSheet(this, QStringLiteral("Button"), QString(), QString());
}

} // namespace UICommonMdl
