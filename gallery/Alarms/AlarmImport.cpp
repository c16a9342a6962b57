#include <gallery/Alarms/AlarmImport.h>

#include <UI/Spreadsheet/AxExcelFunction.h>

#include <QCoreApplication>

namespace OperatorClient {

using UICommonMdl::AxExcelFunction;

namespace {

constexpr int LastTitleRow = 3; // above the titles there may be a headline

QString Translated(const char* text)
{
    return QCoreApplication::translate("OperatorClient::AlarmImport", text);
}

/// The row with the titles of the columns; 0 when there is none.
int TitleRow(AxExcelFunction& excel)
{
    for (int row = 1; row <= qMin(LastTitleRow, excel.GetRowCout()); ++row) {
        QStringList texts;
        excel.GetRowValue(row, texts);
        if (AlarmRecord::AreColumns(texts))
            return row;
    }
    return 0;
}

QVariantList Row(AxExcelFunction& excel, int row)
{
    QVariantList cells;
    for (int column = 1; column <= excel.GetColumnCout(); ++column)
        cells << excel.GetCellVariantValue(row, column);
    return cells;
}

} // namespace

AlarmImport AlarmImport::Read(const QString& path)
{
    AlarmImport import;
    AxExcelFunction excel;
    if (!excel.OpenExcel(path, false)) {
        import.error = excel.GetErrorMsg();
        return import;
    }
    const int titleRow = TitleRow(excel);
    if (titleRow == 0) {
        import.error = Translated(
            QT_TRANSLATE_NOOP("OperatorClient::AlarmImport", "The file has no columns of alarms."));
        return import;
    }
    for (int row = titleRow + 1; row <= excel.GetRowCout(); ++row) {
        if (const auto alarm = AlarmRecord::FromRow(Row(excel, row)))
            import.alarms << *alarm;
        else
            ++import.skipped;
    }
    return import;
}

} // namespace OperatorClient
