// Exporting a table to xlsx through the office against libxlsxwriter writing the same cells, and where the
// time goes.

#include "Ratio.h"

#include <UI/Spreadsheet/AxExcelFunction.h>

#include <QApplication>
#include <QTemporaryDir>
#include <xlsxwriter.h>

using UICommonMdl::AxExcelFunction;

namespace {

constexpr int Rows = 100000;
constexpr int Columns = 10;
constexpr int RowsOfBlock = 5000;
constexpr int Rounds = 3;

/// Like the cells of a table of alarms: some texts come again and again, others never.
QString CellText(int row, int column)
{
    switch (column) {
    case 0:
        return QString::number(100000 + row);
    case 1:
        return QStringLiteral("2026-03-14 %1:%2:%3")
            .arg(row / 3600 % 24, 2, 10, QLatin1Char('0'))
            .arg(row / 60 % 60, 2, 10, QLatin1Char('0'))
            .arg(row % 60, 2, 10, QLatin1Char('0'));
    case 2:
        return QStringLiteral("Camera %1").arg(row % 500);
    default:
        return QStringLiteral("value %1").arg((row * 7 + column) % 1000);
    }
}

using Table = QList<QList<QString>>;

Table MakeTable()
{
    Table table;
    table.reserve(Rows);
    for (int row = 0; row < Rows; ++row) {
        QList<QString> cells;
        for (int column = 0; column < Columns; ++column)
            cells << CellText(row, column);
        table << cells;
    }
    return table;
}

struct Times
{
    std::vector<double> open, write, save, all;
};

bool ExportThroughOffice(const Table& table, const QString& path, Times& times)
{
    AxExcelFunction excel;
    bool done = true;
    const double open = Ratio::Milliseconds([&] { done = excel.OpenExcel(path, true); });
    excel.SetCellContextProperty();
    const double write = Ratio::Milliseconds([&] {
        for (int row = 0; row < Rows; row += RowsOfBlock)
            done = done && excel.SetMultiCellValue(row + 1, 1, table.mid(row, RowsOfBlock));
    });
    const double save = Ratio::Milliseconds([&] { done = done && excel.SaveExcel(); });
    times.open.push_back(open);
    times.write.push_back(write);
    times.save.push_back(save);
    times.all.push_back(open + write + save);
    return done;
}

/// The same cells with the same look.
bool ExportDirectly(const Table& table, const QString& path)
{
    lxw_workbook* workbook = workbook_new(QFile::encodeName(path).constData());
    lxw_worksheet* sheet = workbook_add_worksheet(workbook, nullptr);
    lxw_format* format = workbook_add_format(workbook);
    format_set_align(format, LXW_ALIGN_CENTER);
    format_set_align(format, LXW_ALIGN_VERTICAL_CENTER);
    format_set_text_wrap(format);
    format_set_bg_color(format, 0xF3F5B8);
    format_set_border(format, LXW_BORDER_THIN);
    format_set_font_size(format, 9);
    format_set_num_format(format, "@");
    worksheet_set_column(sheet, 0, Columns - 1, 18, nullptr);
    for (int row = 0; row < table.size(); ++row) {
        const auto line = static_cast<lxw_row_t>(row);
        worksheet_set_row(sheet, line, 20, nullptr);
        for (int column = 0; column < Columns; ++column)
            worksheet_write_string(
                sheet, line, static_cast<lxw_col_t>(column), table.at(row).at(column).toUtf8().constData(),
                format);
    }
    return workbook_close(workbook) == LXW_NO_ERROR;
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    const Table table = MakeTable();
    const QString ours = folder.filePath(QStringLiteral("ours.xlsx"));
    const QString theirs = folder.filePath(QStringLiteral("theirs.xlsx"));

    if (AxExcelFunction::CheckExcelVersion() == UICommonMdl::AxExcel_None) {
        std::fputs("there is no office to measure\n", stderr);
        return 1;
    }
    Times times;
    std::vector<double> direct;
    bool done = true;
    for (int round = 0; round < Rounds; ++round) {
        done = ExportThroughOffice(table, ours, times) && done;
        direct.push_back(Ratio::Milliseconds([&] { done = ExportDirectly(table, theirs) && done; }));
    }
    if (!done) {
        std::fputs("an export failed\n", stderr);
        return 1;
    }
    Ratio::PrintMedians("export-xlsx/100000x10", times.all, direct);
    Ratio::PrintMedians("export-xlsx/open", times.open, direct);
    Ratio::PrintMedians("export-xlsx/write", times.write, direct);
    Ratio::PrintMedians("export-xlsx/save", times.save, direct);
    return 0;
}
