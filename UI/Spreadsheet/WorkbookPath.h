#pragma once

#include <QString>

/// How the path of a workbook tells the format to save it in.
namespace UICommonMdl::WorkbookPath {

/// The text after the last "." of @p path, as it is written; empty when there is none, or when the path
/// begins with it.
QString Suffix(const QString& path);

/// The path under which an application that knows nothing but xls saves @p path: without suffix, ".xls" is
/// added; another suffix than "xls" is replaced together with its dot: "report.xlsx" becomes "reportxls".
QString ForXlsOnly(const QString& path);

} // namespace UICommonMdl::WorkbookPath
