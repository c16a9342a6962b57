#include <UI/Spreadsheet/WorkbookPath.h>

namespace UICommonMdl::WorkbookPath {

QString Suffix(const QString& path)
{
    const int dot = path.lastIndexOf(QLatin1Char('.'));
    return dot > 0 ? path.mid(dot + 1) : QString();
}

QString ForXlsOnly(const QString& path)
{
    const QString xls = QStringLiteral("xls");
    const QString suffix = Suffix(path);
    if (suffix.isEmpty())
        return path + QLatin1Char('.') + xls;
    if (suffix.toLower() == xls)
        return path;
    return path.left(path.lastIndexOf(QLatin1Char('.'))) + xls;
}

} // namespace UICommonMdl::WorkbookPath
