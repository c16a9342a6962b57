#include <UI/CutPhoto/CComTipWigetWithZoom.h>

#include <Common/CommonFun.h>
#include <UI/CutPhoto/TipBubble.h>

namespace UICommonMdl {

CComTipWigetWithZoom::CComTipWigetWithZoom(QWidget* parent)
    : QWidget(parent)
    , m_pText(BuildTipBubble(this))
{
    setObjectName(QStringLiteral("CComTipWigetWithZoom"));
    CommonFun::SetStyleSheet(
        this, QStringLiteral("CutPhotoWndWithZoom"), QStringLiteral("CComTipWigetWithZoom.qss"), QString());
}

void CComTipWigetWithZoom::SetTipText(const QString& strText) { SetTipBubbleText(this, m_pText, strText); }

} // namespace UICommonMdl
