#include <gallery/SkinIcon.h>

#include <Common/CommonFun.h>

#include <QFile>

namespace OperatorClient {

QIcon SkinIcon(const QString& folder, const QString& name)
{
    const QString path = UICommonMdl::CommonFun::GetSkinPath(
        QStringLiteral("OperatorClient"), QStringLiteral("%1/%2.svg").arg(folder, name));
    if (!QFile::exists(path))
        return {};
    QIcon icon(path);
    icon.addFile(path, {}, QIcon::Selected);
    return icon;
}

} // namespace OperatorClient
