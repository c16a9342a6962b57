#include <UI/CutPhoto/CComTipWiget.h>

#include <Common/CommonFun.h>
#include <UI/CutPhoto/TipBubble.h>

namespace UICommonMdl {

CComTipWiget::CComTipWiget(QWidget* parent)
    : QWidget(parent)
    , m_pText(BuildTipBubble(this))
{
    setObjectName(QStringLiteral("CComTipWiget"));
    CommonFun::SetStyleSheet(
        this, QStringLiteral("CutPhotoWnd"), QStringLiteral("CComTipWiget.qss"), QString());
}

void CComTipWiget::SetTipText(const QString& strText) { SetTipBubbleText(this, m_pText, strText); }

} // namespace UICommonMdl
