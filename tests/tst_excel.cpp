#include "excel/RecordedObject.h"
#include "support/Columns.h"
#include "support/StrictMain.h"
#include "support/Text.h"

#include <UI/Spreadsheet/AxExcelFunction.h>

#include <QtTest>
#include <QtWidgets>
#include <climits>
#include <memory>

using namespace UICommonMdl;
using namespace TestSupport;

namespace {

using Texts = QStringList;

/// The protected helpers.
class OpenExcelFunction : public AxExcelFunction
{
public:
    using AxExcelFunction::convertToColName;
    using AxExcelFunction::ReadAll;
    using AxExcelFunction::ReadSheets;
    using AxExcelFunction::to26AlphatString;
};

QVariant Rows(const QList<QVariantList>& rows)
{
    QVariantList list;
    for (const QVariantList& row : rows)
        list << QVariant(row);
    return list;
}

/// What a version probe asks.
Texts Probe() { return {"app.Version"_s, "app.Quit(void)()"_s}; }

/// What opening asks up to the point where a workbook is wanted.
Texts Start()
{
    return Probe() + Texts{"app.SetVisible(bool)(false)"_s, "app.DisplayAlerts=false"_s, "app.WorkBooks"_s};
}

Texts Create() { return Start() + Texts{"books.Add()"_s, "app.ActiveWorkBook"_s}; }

Texts FirstSheet() { return {"book.Sheets"_s, "sheets.Count"_s, "book.WorkSheets(int)(1)"_s}; }

} // namespace

class TestExcel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_recording = Recording();
        m_recording.answers = {
            {"Version"_s, "16.0"_s},
            {"Count"_s, 3},
            {"Value"_s, Rows({{1.5, " x "_s}, {true, QVariant(), 7.0}})},
        };
        m_folder = std::make_unique<QTemporaryDir>();
        RecordedObject::Provide(m_recording);
    }

    void cleanup()
    {
        RecordedObject::Forget();
        QCOMPARE(m_recording.living, 0);
    }

    // Catches a version taken for another one, and a probe that leaves the application running.
    void ProbesVersions()
    {
        const auto probed = [this](const QVariant& version) {
            m_recording = Recording();
            m_recording.answers.insert("Version"_s, version);
            const int result = AxExcelFunction::CheckExcelVersion();
            return m_recording.calls == Probe() ? result : -1;
        };
        QCOMPARE(probed(QVariant()), 0); // not told
        QCOMPARE(probed("10.99"_s), 1); // before xlsx
        QCOMPARE(probed("11.0"_s), 2);
        QCOMPARE(probed(16.0), 2);
        QCOMPARE(probed("new"_s), 1); // no number
        QCOMPARE(probed("1e30"_s), 2); // beyond an int
    }

    // Catches a format offered that the application cannot save.
    void OffersFilesByVersion()
    {
        const auto offered = [this](const QVariant& version, bool toExport) {
            m_recording.answers.insert("Version"_s, version);
            return AxExcelFunction::GetExcelFileFilter(toExport);
        };
        const QString xls = "EXCEL files (*.xls)"_s;
        const QString both = "EXCEL files (*.xlsx);;"_s + xls;
        QCOMPARE(offered(9, false), xls);
        QCOMPARE(offered(9, true), xls);
        QCOMPARE(offered(12, false), both);
        QCOMPARE(offered(12, true), both + ";;CSV files (*.csv);;PDF files (*.pdf)"_s);
        QCOMPARE(offered(QVariant(), true), QString());
    }

    // Catches a member, an argument or an order that the application would not know.
    void OpensStepByStep()
    {
        const QString path = MakeFile();
        const Texts read{
            "books.Open(const QString &)(%1)"_s.arg(QDir::toNativeSeparators(path)), "sheet.UsedRange"_s,
            "used.Value()"_s};
        const Texts release{"book.Close (Boolean)(false)"_s, "app.Quit()()"_s};
        for (const bool create : {false, true}) {
            m_recording.calls.clear();
            {
                AxExcelFunction excel;
                QVERIFY(excel.OpenExcel(path, create));
                QVERIFY(!excel.IsHasError());
                QCOMPARE(QFile::exists(path), !create);
            }
            const Texts opened
                = create ? Create() + FirstSheet() : Start() + read.mid(0, 1) + FirstSheet() + read.mid(1);
            QCOMPARE(m_recording.calls, opened + release);
        }
    }

    void LeavesNothingOpenAfterAFailure_data()
    {
        Columns<QString, bool, Texts, QString>("step", "null", "calls", "message");
        const Texts quit{"app.Quit(void)()"_s};
        const Texts close{"book.Close (Boolean)(false)"_s};
        const QString notFound = "The excel application is not found."_s;
        const QString failed = "Open excel file failed."_s;
        QTest::newRow("no application") << "Excel.Application" << false << Texts() << notFound;
        QTest::newRow("null application") << "Excel.Application" << true << quit << notFound;
        const QString again = "Excel.Application again"_s; // it ends after the probe
        QTest::newRow("application gone") << again << false << Probe() << failed;
        QTest::newRow("application null") << again << true << Probe() + quit << failed;
        QTest::newRow("no workbooks") << "WorkBooks" << false << Start() + quit << failed;
        QTest::newRow("null workbooks") << "WorkBooks" << true << Start() + quit << failed;
        QTest::newRow("no workbook") << "ActiveWorkBook" << false << Create() + quit << failed;
        QTest::newRow("null workbook") << "ActiveWorkBook" << true << Create() + quit << failed;
        const Texts sheets = Create() + Texts{"book.Sheets"_s};
        QTest::newRow("no sheets") << "Sheets" << false << sheets + quit << failed;
        QTest::newRow("null sheets") << "Sheets" << true << sheets + quit << failed;
        QTest::newRow("no sheet") << "WorkSheets(int)" << false << Create() + FirstSheet() + close + quit
                                  << failed;
        QTest::newRow("null sheet") << "WorkSheets(int)" << true << Create() + FirstSheet() + close + quit
                                    << failed;
        const Texts counted = Create() + FirstSheet().mid(0, 2);
        QTest::newRow("zero sheets") << "Count" << false << counted + close + quit << failed;
    }

    // Catches an application or a workbook that a failed open leaves behind, and a client that goes on
    // writing into it.
    void LeavesNothingOpenAfterAFailure()
    {
        QFETCH(QString, step);
        QFETCH(bool, null);
        (null ? m_recording.null : m_recording.absent).insert(step);
        if (step == QLatin1String("Count"))
            m_recording.answers.insert(step, 0);
        AxExcelFunction excel;
        QVERIFY(!excel.OpenExcel(Path(), true));
        QTEST(excel.GetErrorMsg(), "message");
        QTEST(m_recording.calls, "calls");
        QCOMPARE(m_recording.living, 0);

        m_recording.calls.clear();
        QVERIFY(!excel.SetSheetName("x"_s));
        QVERIFY(!excel.SetMultiCellValue(1, 1, {{"x"_s}}));
        QVERIFY(!excel.SetMergeCellValue(1, 1, 1, 2, "x"_s));
        QVERIFY(!excel.SaveExcel());
        excel.FreeExcel();
        QCOMPARE(m_recording.calls, Texts());
    }

    // Catches an application started, or an error told wrongly, for a file that is not there or in the way.
    void LooksAtTheFileFirst()
    {
        AxExcelFunction excel;
        QVERIFY(!excel.OpenExcel(QString(), true));
        QCOMPARE(excel.GetErrorMsg(), "Excel file non-existent."_s);
        QVERIFY(!excel.OpenExcel(Path("missing.xls"_s), false));
        QCOMPARE(excel.GetErrorMsg(), "Excel file non-existent."_s);
        QVERIFY(!excel.OpenExcel(m_folder->path(), true)); // a folder cannot be removed as a file
        QCOMPARE(excel.GetErrorMsg(), "Open excel file failed."_s);
        QCOMPARE(m_recording.calls, Texts());

        QVERIFY(excel.OpenExcel(MakeFile(), false));
        QVERIFY(!excel.IsHasError());
    }

    // Catches two workbooks open at once, one saved on the way, and data of the last file shown for this one.
    void ReleasesThePreviousWorkbook()
    {
        AxExcelFunction excel;
        QVERIFY(excel.OpenExcel(MakeFile(), false));
        QCOMPARE(excel.GetRowCout(), 2);
        QCOMPARE(excel.GetColumnCout(), 3);
        m_recording.calls.clear();
        QVERIFY(excel.OpenExcel(Path("b.xlsx"_s), true));
        QCOMPARE(
            m_recording.calls.mid(0, 3),
            (Texts{"book.Close (Boolean)(false)"_s, "app.Quit()()"_s, "app.Version"_s}));
        QCOMPARE(excel.GetRowCout(), 0);
        QCOMPARE(excel.GetColumnCout(), 0);
    }

    // Catches counts of data that is not there.
    void ReadsTheUsedRange()
    {
        const auto size = [this](const QVariant& value) {
            m_recording.answers.insert("Value"_s, value);
            OpenExcelFunction excel;
            excel.OpenExcel(MakeFile(), false);
            const QSize read(excel.GetColumnCout(), excel.GetRowCout());
            const bool again = excel.ReadSheets();
            m_recording.absent = {"UsedRange"_s};
            const bool gone = !excel.ReadSheets() && excel.GetRowCout() == 0;
            m_recording.absent.clear();
            return gone && again == (read.height() > 0) ? read : QSize();
        };
        QCOMPARE(size(QVariant()), QSize(0, 0));
        QCOMPARE(OpenExcelFunction().ReadAll(), QVariant()); // of nothing
        QCOMPARE(size("x"_s), QSize(0, 0)); // one cell
        QCOMPARE(size(Rows({{1, 2}})), QSize(0, 0)); // a header only
        QCOMPARE(size(Rows({{1}, {1, 2, 3}, {1, 2}})), QSize(3, 3));
        QCOMPARE(size(QVariantList{1, 2}), QSize(0, 2)); // rows that are no lists
    }

    // Catches a read outside of the data, and a value lost at its edge.
    void ReachesCellsInclusively()
    {
        OpenExcelFunction excel;
        QVERIFY(excel.OpenExcel(MakeFile(), false));
        const QVariant none = QString();
        QCOMPARE(excel.GetCellVariantValue(1, 1), QVariant(1.5));
        QCOMPARE(excel.GetCellValue(1, 2), "x"_s);
        QCOMPARE(excel.GetCellVariantValue(1, 3), none); // past this row, inside the longest
        QCOMPARE(excel.GetCellVariantValue(2, 2), QVariant());
        QCOMPARE(excel.GetCellVariantValue(2, 3), QVariant(7.0));
        const int wrong[] = {INT_MIN, -1, 0, 3, 4, INT_MAX};
        for (const int index : wrong) {
            QCOMPARE(excel.GetCellVariantValue(index, 1), none);
            QStringList row{"old"_s};
            excel.GetRowValue(index, row);
            QCOMPARE(row, QStringList());
            if (index != 3)
                QCOMPARE(excel.GetCellVariantValue(2, index), none);
        }
        QStringList row;
        excel.GetRowValue(2, row);
        QCOMPARE(row, (QStringList{"true"_s, QString(), "7"_s}));

        // A single row is no table, but it is there.
        m_recording.answers.insert("Value"_s, Rows({{8.0, 9.0}}));
        QVERIFY(!excel.ReadSheets());
        QCOMPARE(excel.GetCellVariantValue(1, 1), QVariant(8.0));
        QCOMPARE(excel.GetCellVariantValue(1, 2), none);
        QCOMPARE(excel.GetCellVariantValue(2, 1), none);
    }

    // Catches a block that goes over the bridge cell by cell, to a wrong address or in a wrong order.
    void WritesBlocks()
    {
        AxExcelFunction excel;
        QVERIFY(OpenNew(excel));
        const QList<QList<QString>> rows{{"a"_s, "b"_s}, {"c"_s, "d"_s}};
        QVERIFY(excel.SetMultiCellValue(2, 3, rows));
        QCOMPARE(
            m_recording.calls.mid(0, 3),
            (Texts{
                "sheet.Range(const QString&)(C2:B3)"_s, "range.SetValue(const QVariant&)(block)"_s,
                "range.NumberFormatLocal=@"_s}));
        QCOMPARE(m_recording.blocks, QVariantList{Rows({{"a"_s, "b"_s}, {"c"_s, "d"_s}})});

        m_recording.calls.clear();
        QVERIFY(!excel.SetMultiCellValue(1, 1, {}));
        QVERIFY(!excel.SetMultiCellValue(1, 1, {{}, {"x"_s}}));
        QCOMPARE(m_recording.calls, Texts());
        for (QSet<QString>* failing : {&m_recording.absent, &m_recording.null}) {
            failing->insert("Range(const QString&)"_s);
            QVERIFY(!excel.SetMultiCellValue(1, 1, rows));
            failing->clear();
        }
        QCOMPARE(m_recording.calls.filter("range."_s), Texts());
        m_recording.calls.clear();
        QVERIFY(excel.SetMultiCellValue(INT_MAX, 1, rows)); // refused or not, an address
        QCOMPARE(m_recording.calls.first(), "sheet.Range(const QString&)(A2147483647:B2147483648)"_s);
    }

    // Catches the text of a merged cell written to the block, a first cell that is held while the block is
    // asked for, a style that is lost under the merge, and a merge that is said to be done although the
    // application does not know the other corner.
    void WritesMergedCells()
    {
        AxExcelFunction excel;
        QVERIFY(OpenNew(excel));
        m_recording.most = 0;
        const int opened = m_recording.living;
        QVERIFY(excel.SetMergeCellValue(1, 2, 3, 4, "title"_s));
        QCOMPARE(m_recording.most, opened + 2); // the block and a part of its look
        const Texts& calls = m_recording.calls;
        QCOMPARE(
            calls.mid(0, 4),
            (Texts{
                "sheet.Range(const QString&)(B1)"_s, "range.SetValue(const QVariant&)(title)"_s,
                "sheet.Range(const QString&)(B1:D3)"_s, "range.ColumnWidth=18"_s}));
        QCOMPARE(calls.last(), "range.MergeCells=true"_s);
        QVERIFY(calls.filter("NumberFormat"_s).isEmpty());
        m_recording.absent = {"Range(const QString&)(B1:A0)"_s};
        QVERIFY(!excel.SetMergeCellValue(1, 2, 0, 1, "title"_s));
    }

    void AppliesStyles_data()
    {
        Columns<QString, Texts, QString, Texts>("preset", "sizes", "background", "font");
        const QString width = "range.ColumnWidth=18"_s;
        const auto font = [](const char* bold, const char* size, const char* color) {
            Texts calls{"range.Font"_s, "font.Bold="_s + QLatin1String(bold)};
            if (*size)
                calls << "font.Size="_s + QLatin1String(size);
            return calls << "font.Italic=false"_s
                         << "font.Underline=-4142"_s
                         << "font.Color="_s + QLatin1String(color);
        };
        QTest::newRow("default") << "" << Texts{width} << "#f3f5b8" << font("false", "", "#000000");
        QTest::newRow("title") << "title" << Texts{"range.RowHeight=30"_s, width} << "#333399"
                               << font("false", "16", "#ffffff");
        QTest::newRow("by hand") << "by hand" << Texts{"range.RowHeight=5"_s, "range.ColumnWidth=6"_s}
                                 << "#010203"
                                 << Texts{"range.Font"_s,        "font.Name=Serif"_s,  "font.Bold=true"_s,
                                          "font.Size=7"_s,       "font.Italic=true"_s, "font.Underline=2"_s,
                                          "font.Color=#070809"_s};
    }

    // Catches a style that keeps parts of the one before, and a member that the application would not know.
    void AppliesStyles()
    {
        QFETCH(QString, preset);
        QFETCH(Texts, sizes);
        QFETCH(QString, background);
        QFETCH(Texts, font);
        AxExcelFunction excel;
        QVERIFY(OpenNew(excel));
        Texts alignment{
            "range.HorizontalAlignment=-4108"_s, "range.VerticalAlignment=-4108"_s, "range.WrapText=true"_s};
        QString borders = "#000000"_s;
        if (!preset.isEmpty()) {
            excel.SetCellRowHeight(5);
            excel.SetColumnWidth(6);
            excel.SetFontSize(7);
            excel.SetFontName("Serif"_s);
            excel.SetBackgroudColor(QColor(1, 2, 3));
            excel.SetBordersColor(QColor(4, 5, 6));
            excel.SetFontColor(QColor(7, 8, 9));
            excel.SetFontBold(true);
            excel.SetFontItalic(true);
            excel.SetFontUnderline(true);
            for (const auto side :
                 {AxExcelFunction::HAlign_Center, AxExcelFunction::HAlign_Right,
                  AxExcelFunction::HAlign_Left})
                QVERIFY(excel.SetCellHorizontalAlignment(side));
            for (const auto side :
                 {AxExcelFunction::VAlign_Center, AxExcelFunction::VAlign_Top,
                  AxExcelFunction::VAlign_Bottom})
                QVERIFY(excel.SetCellVerticalAlignment(side));
        }
        if (preset == QLatin1String("title")) {
            excel.SetExcelTitleProperty();
        } else if (!preset.isEmpty()) {
            borders = "#040506"_s;
            alignment[0] = "range.HorizontalAlignment=-4131"_s;
            alignment[1] = "range.VerticalAlignment=-4107"_s;
        }
        QVERIFY(
            !excel.SetCellHorizontalAlignment(static_cast<AxExcelFunction::ExcelHorizontalAlignment_e>(3)));
        QVERIFY(!excel.SetCellVerticalAlignment(static_cast<AxExcelFunction::ExcelVerticalAlignment_e>(3)));

        QVERIFY(excel.SetMultiCellValue(1, 1, {{"x"_s}}));
        const Texts colors{
            "range.Interior"_s, "interior.Color="_s + background, "range.Borders"_s,
            "borders.Color="_s + borders};
        QCOMPARE(m_recording.calls.mid(3), sizes + alignment + colors + font);
    }

    // Catches a call of a part of the style that the application does not have.
    void PassesOverMissingParts()
    {
        AxExcelFunction excel;
        QVERIFY(OpenNew(excel));
        m_recording.absent = {"Interior"_s, "Font"_s};
        m_recording.null = {"Borders"_s};
        excel.SetColumnWidth(0);
        QVERIFY(excel.SetMultiCellValue(1, 1, {{"x"_s}}));
        QCOMPARE(m_recording.calls.filter(QRegularExpression("^(interior|borders|font)|Width"_s)), Texts());
    }

    // Catches rows of a wrong length, and a batch that is written twice.
    void CollectsBatches()
    {
        AxExcelFunction excel;
        QVERIFY(OpenNew(excel));
        excel.BeginAddMemory(3, 5, 1);
        for (const QChar letter : "abcdefg"_s)
            excel.AddCellValue(letter);
        QVERIFY(excel.EndAddMemoryAndSave());
        QCOMPARE(m_recording.calls.first(), "sheet.Range(const QString&)(A5:C7)"_s);
        QVERIFY(m_recording.calls.filter("Save"_s).isEmpty());
        const QVariantList block = m_recording.blocks.first().toList();
        QCOMPARE(block.at(1).toList(), (QVariantList{"d"_s, "e"_s, "f"_s}));
        QCOMPARE(block.at(2).toList(), QVariantList{"g"_s});

        QVERIFY(!excel.EndAddMemoryAndSave());
        // Without a batch every cell is a row of its own.
        excel.AddCellValue("x"_s);
        excel.AddCellValue("y"_s);
        QVERIFY(excel.EndAddMemoryAndSave());
        QCOMPARE(m_recording.blocks.last().toList().size(), 2);
    }

    // Catches identifiers that lose their leading zeros.
    void MarksDigits()
    {
        const auto stored = [this](const QString& text) {
            m_recording.blocks.clear();
            AxExcelFunction excel;
            OpenNew(excel);
            excel.BeginAddMemory(2, 1, 1);
            excel.AddCellValue(text);
            excel.AddNoAutoTranCellValue(text);
            return excel.EndAddMemoryAndSave() ? m_recording.blocks : QVariantList();
        };
        const auto cells = [](const QString& first, const QString& second) {
            return QVariantList{Rows({{first, second}})};
        };
        QCOMPARE(stored(QString()), cells("'"_s, "'"_s));
        QCOMPARE(stored("0123"_s), cells("'0123"_s, "'0123"_s));
        QCOMPARE(stored("12a"_s), cells("12a"_s, "'12a"_s));
        QCOMPARE(stored("-1"_s), cells("-1"_s, "'-1"_s));
        QCOMPARE(stored("\u0661\uFF11"_s), cells("\u0661\uFF11"_s, "'\u0661\uFF11"_s)); // other digits
        QCOMPARE(stored("/:"_s), cells("/:"_s, "'/:"_s)); // neighbours of the digits
    }

    // Catches a file in another format than its name says, and a path that a second save has changed.
    void SavesBySuffix()
    {
        const auto saved = [this](const char* version, const char* name) {
            m_recording.answers.insert("Version"_s, QLatin1String(version));
            AxExcelFunction excel;
            OpenNew(excel, QLatin1String(name));
            QVector<bool> results;
            for (const QVariant& answer : {QVariant(true), QVariant(false), QVariant()}) {
                for (const char* member :
                     {"SaveAs(const QString &)", "SaveAs(const QString &, int)",
                      "ExportAsFixedFormat(int, const QString &)"})
                    m_recording.answers.insert(QLatin1String(member), answer);
                results << excel.SaveExcel();
            }
            const QString call = m_recording.calls.value(0);
            const bool each = m_recording.calls == Texts{call, call, call};
            const QString folder = QDir::toNativeSeparators(m_folder->path()) + QDir::separator();
            return each && results == QVector<bool>{true, false, false} ? QString(call).remove(folder)
                                                                        : QString();
        };
        QCOMPARE(saved("9", "a"), "book.SaveAs(const QString &)(a.xls)"_s);
        QCOMPARE(saved("9", "a.XLS"), "book.SaveAs(const QString &)(a.XLS)"_s);
        QCOMPARE(saved("9", "report.xlsx"), "book.SaveAs(const QString &)(reportxls)"_s); // loses its dot
        QCOMPARE(saved("16", "a"), "book.SaveAs(const QString &)(a.xlsx)"_s);
        QCOMPARE(saved("16", "a."), "book.SaveAs(const QString &)(a..xlsx)"_s);
        QCOMPARE(saved("16", "a.b.XlsX"), "book.SaveAs(const QString &)(a.b.XlsX)"_s);
        QCOMPARE(saved("16", "a.CSV"), "book.SaveAs(const QString &, int)(a.CSV, 6)"_s);
        QCOMPARE(saved("16", "a.xls"), "book.SaveAs(const QString &, int)(a.xls, 56)"_s);
        QCOMPARE(saved("16", "a.ods"), "book.SaveAs(const QString &, int)(a.ods, 56)"_s);
        QCOMPARE(saved("16", "a.pdf"), "book.ExportAsFixedFormat(int, const QString &)(0, a.pdf)"_s);
    }

    // Catches an imported file that is overwritten.
    void SavesOnlyWhatIsOpenForWriting()
    {
        AxExcelFunction excel;
        QVERIFY(!excel.SaveExcel());
        QVERIFY(excel.OpenExcel(MakeFile(), false));
        m_recording.calls.clear();
        QVERIFY(!excel.SaveExcel());
        QCOMPARE(m_recording.calls, Texts());
    }

    // Catches columns that are named otherwise than the application's addresses are built.
    void NamesColumns()
    {
        OpenExcelFunction excel;
        const auto name = [&excel](int column) {
            QString address = "12"_s;
            excel.convertToColName(column, address);
            return address;
        };
        QCOMPARE(name(1), "A12"_s);
        QCOMPARE(name(25), "Y12"_s);
        QCOMPARE(name(26), "A@12"_s);
        QCOMPARE(name(27), "AA12"_s);
        QCOMPARE(name(52), "B@12"_s);
        QCOMPARE(name(53), "BA12"_s);
        QCOMPARE(name(702), "AA@12"_s);
        QCOMPARE(name(704), "AAB12"_s);
        QCOMPARE(name(0), "@12"_s);
        QCOMPARE(excel.to26AlphatString(26), "Z"_s);
        for (const int wild : {INT_MIN, -27, -1, INT_MAX})
            name(wild); // no crash, whatever it is
    }

private:
    /// Opens a new workbook and forgets what that asked.
    bool OpenNew(AxExcelFunction& excel, const QString& name = "a.xlsx"_s)
    {
        const bool opened = excel.OpenExcel(Path(name), true);
        m_recording.calls.clear();
        return opened;
    }

    QString MakeFile()
    {
        QFile file(Path());
        return file.open(QIODevice::WriteOnly) && file.write("x") == 1 ? file.fileName() : QString();
    }

    QString Path(const QString& name = "a.xlsx"_s) const { return m_folder->filePath(name); }

    Recording m_recording;
    std::unique_ptr<QTemporaryDir> m_folder;
};

STRICT_TEST_MAIN(TestExcel)

#include "tst_excel.moc"
