#include <gallery/SkinIcon.h>

#include <Common/CommonFun.h>

namespace OperatorClient {

QIcon SkinIcon(const QString& name)
{
    return QIcon(UICommonMdl::CommonFun::GetSkinPath(
        QStringLiteral("OperatorClient"), QStringLiteral("ToolBar/%1.svg").arg(name)));
}

} // namespace OperatorClient
