#include "excel/RecordedObject.h"
#include "support/StrictMain.h"

#include <UI/Spreadsheet/AxExcelFunction.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <climits>
#include <memory>

using namespace UICommonMdl;

namespace {

using Texts = QStringList;

/// The protected helpers.
class OpenExcelFunction : public AxExcelFunction
{
public:
    using AxExcelFunction::convertToColName;
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
Texts Probe() { return {QStringLiteral("app.Version"), QStringLiteral("app.Quit(void)()")}; }

/// What opening asks up to the point where a workbook is wanted.
Texts Start()
{
    return Probe()
        + Texts{
            QStringLiteral("app.SetVisible(bool)(false)"), QStringLiteral("app.DisplayAlerts=false"),
            QStringLiteral("app.WorkBooks")};
}

Texts Create()
{
    return Start() + Texts{QStringLiteral("books.Add()"), QStringLiteral("app.ActiveWorkBook")};
}

Texts FirstSheet()
{
    return {
        QStringLiteral("book.Sheets"), QStringLiteral("sheets.Count"),
        QStringLiteral("book.WorkSheets(int)(1)")};
}

} // namespace

class TestExcel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void ProbesVersions_data();
    void ProbesVersions();
    void OffersFilesByVersion_data();
    void OffersFilesByVersion();
    void OpensStepByStep_data();
    void OpensStepByStep();
    void LeavesNothingOpenAfterAFailure_data();
    void LeavesNothingOpenAfterAFailure();
    void LooksAtTheFileFirst();
    void ReleasesThePreviousWorkbook();
    void ReadsTheUsedRange_data();
    void ReadsTheUsedRange();
    void ReachesCellsInclusively();
    void WritesBlocks();
    void WritesMergedCells();
    void AppliesStyles_data();
    void AppliesStyles();
    void PassesOverMissingParts();
    void CollectsBatches();
    void MarksDigits_data();
    void MarksDigits();
    void SavesBySuffix_data();
    void SavesBySuffix();
    void SavesOnlyWhatIsOpenForWriting();
    void NamesColumns_data();
    void NamesColumns();

private:
    QString Path(const QString& name = QStringLiteral("a.xlsx")) const { return m_folder->filePath(name); }
    bool OpenNew(AxExcelFunction& excel, const QString& name = QStringLiteral("a.xlsx"));
    QString MakeFile();

    Recording m_recording;
    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestExcel::init()
{
    m_recording = Recording();
    m_recording.answers = {
        {QStringLiteral("Version"), QStringLiteral("16.0")},
        {QStringLiteral("Count"), 3},
        {QStringLiteral("Value"), Rows({{1.5, QStringLiteral(" x ")}, {true, QVariant(), 7.0}})},
    };
    m_folder = std::make_unique<QTemporaryDir>();
    RecordedObject::Provide(m_recording);
}

void TestExcel::cleanup()
{
    RecordedObject::Forget();
    QCOMPARE(m_recording.living, 0);
}

/// Opens a new workbook and forgets what that asked.
bool TestExcel::OpenNew(AxExcelFunction& excel, const QString& name)
{
    const bool opened = excel.OpenExcel(Path(name), true);
    m_recording.calls.clear();
    return opened;
}

QString TestExcel::MakeFile()
{
    QFile file(Path());
    return file.open(QIODevice::WriteOnly) && file.write("x") == 1 ? file.fileName() : QString();
}

void TestExcel::ProbesVersions_data()
{
    QTest::addColumn<QVariant>("version");
    QTest::addColumn<int>("expected");
    QTest::newRow("not told") << QVariant() << 0;
    QTest::newRow("too old") << QVariant(QStringLiteral("10.99")) << 1;
    QTest::newRow("first with xlsx") << QVariant(QStringLiteral("11.0")) << 2;
    QTest::newRow("number") << QVariant(16.0) << 2;
    QTest::newRow("no number") << QVariant(QStringLiteral("new")) << 1;
    QTest::newRow("beyond an int") << QVariant(QStringLiteral("1e30")) << 2;
}

// Catches a version taken for another one, and a probe that leaves the application running.
void TestExcel::ProbesVersions()
{
    QFETCH(QVariant, version);
    m_recording.answers.insert(QStringLiteral("Version"), version);
    QTEST(static_cast<int>(AxExcelFunction::CheckExcelVersion()), "expected");
    QCOMPARE(m_recording.calls, Probe());
}

void TestExcel::OffersFilesByVersion_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<bool>("toExport");
    QTest::addColumn<QString>("filter");
    const QString xls = QStringLiteral("EXCEL files (*.xls)");
    const QString both = QStringLiteral("EXCEL files (*.xlsx);;") + xls;
    QTest::newRow("old, import") << "9" << false << xls;
    QTest::newRow("old, export") << "9" << true << xls;
    QTest::newRow("new, import") << "12" << false << both;
    QTest::newRow("new, export") << "12" << true
                                 << both + QStringLiteral(";;CSV files (*.csv);;PDF files (*.pdf)");
    QTest::newRow("none") << QString() << true << QString();
}

// Catches a format offered that the application cannot save.
void TestExcel::OffersFilesByVersion()
{
    QFETCH(QString, version);
    QFETCH(bool, toExport);
    m_recording.answers.insert(QStringLiteral("Version"), version.isEmpty() ? QVariant() : QVariant(version));
    QTEST(AxExcelFunction::GetExcelFileFilter(toExport), "filter");
}

void TestExcel::OpensStepByStep_data()
{
    QTest::addColumn<bool>("create");
    QTest::addColumn<Texts>("calls");
    const Texts release{QStringLiteral("book.Close (Boolean)(false)"), QStringLiteral("app.Quit()()")};
    QTest::newRow("create") << true << Create() + FirstSheet() + release;
    QTest::newRow("import") << false
                            << Start() + Texts{QStringLiteral("books.Open(const QString &)(FILE)")}
            + FirstSheet() + Texts{QStringLiteral("sheet.UsedRange"), QStringLiteral("used.Value()")}
            + release;
}

// Catches a member, an argument or an order that the application would not know.
void TestExcel::OpensStepByStep()
{
    QFETCH(bool, create);
    QFETCH(Texts, calls);
    const QString path = MakeFile();
    calls.replaceInStrings(QStringLiteral("FILE"), QDir::toNativeSeparators(path));
    {
        AxExcelFunction excel;
        QVERIFY(excel.OpenExcel(path, create));
        QVERIFY(!excel.IsHasError());
        QCOMPARE(QFile::exists(path), !create);
    }
    QCOMPARE(m_recording.calls, calls);
}

void TestExcel::LeavesNothingOpenAfterAFailure_data()
{
    QTest::addColumn<QString>("step");
    QTest::addColumn<bool>("null");
    QTest::addColumn<Texts>("calls");
    QTest::addColumn<QString>("message");
    const Texts quit{QStringLiteral("app.Quit(void)()")};
    const Texts close{QStringLiteral("book.Close (Boolean)(false)")};
    const QString notFound = QStringLiteral("The excel application is not found.");
    const QString failed = QStringLiteral("Open excel file failed.");
    QTest::newRow("no application") << "Excel.Application" << false << Texts() << notFound;
    QTest::newRow("null application") << "Excel.Application" << true << quit << notFound;
    QTest::newRow("no workbooks") << "WorkBooks" << false << Start() + quit << failed;
    QTest::newRow("null workbooks") << "WorkBooks" << true << Start() + quit << failed;
    QTest::newRow("no workbook") << "ActiveWorkBook" << false << Create() + quit << failed;
    QTest::newRow("null workbook") << "ActiveWorkBook" << true << Create() + quit << failed;
    const Texts sheets = Create() + Texts{QStringLiteral("book.Sheets")};
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
void TestExcel::LeavesNothingOpenAfterAFailure()
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
    QVERIFY(!excel.SetSheetName(QStringLiteral("x")));
    QVERIFY(!excel.SetMultiCellValue(1, 1, {{QStringLiteral("x")}}));
    QVERIFY(!excel.SetMergeCellValue(1, 1, 1, 2, QStringLiteral("x")));
    QVERIFY(!excel.SaveExcel());
    excel.FreeExcel();
    QCOMPARE(m_recording.calls, Texts());
}

// Catches an application started, or an error told wrongly, for a file that is not there or in the way.
void TestExcel::LooksAtTheFileFirst()
{
    AxExcelFunction excel;
    QVERIFY(!excel.OpenExcel(QString(), true));
    QCOMPARE(excel.GetErrorMsg(), QStringLiteral("Excel file non-existent."));
    QVERIFY(!excel.OpenExcel(Path(QStringLiteral("missing.xls")), false));
    QCOMPARE(excel.GetErrorMsg(), QStringLiteral("Excel file non-existent."));
    QVERIFY(!excel.OpenExcel(m_folder->path(), true)); // a folder cannot be removed as a file
    QCOMPARE(excel.GetErrorMsg(), QStringLiteral("Open excel file failed."));
    QCOMPARE(m_recording.calls, Texts());

    QVERIFY(excel.OpenExcel(MakeFile(), false));
    QVERIFY(!excel.IsHasError());
}

// Catches two workbooks open at once, one saved on the way, and data of the last file shown for this one.
void TestExcel::ReleasesThePreviousWorkbook()
{
    AxExcelFunction excel;
    QVERIFY(excel.OpenExcel(MakeFile(), false));
    QCOMPARE(excel.GetRowCout(), 2);
    QCOMPARE(excel.GetColumnCout(), 3);
    m_recording.calls.clear();
    QVERIFY(excel.OpenExcel(Path(QStringLiteral("b.xlsx")), true));
    QCOMPARE(
        m_recording.calls.mid(0, 3),
        (Texts{
            QStringLiteral("book.Close (Boolean)(false)"), QStringLiteral("app.Quit()()"),
            QStringLiteral("app.Version")}));
    QCOMPARE(excel.GetRowCout(), 0);
    QCOMPARE(excel.GetColumnCout(), 0);
}

void TestExcel::ReadsTheUsedRange_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("columns");
    QTest::newRow("invalid") << QVariant() << 0 << 0;
    QTest::newRow("one cell") << QVariant(QStringLiteral("x")) << 0 << 0;
    QTest::newRow("header only") << Rows({{1, 2}}) << 0 << 0;
    QTest::newRow("rows of two lengths") << Rows({{1}, {1, 2, 3}, {1, 2}}) << 3 << 3;
    QTest::newRow("rows that are no lists") << QVariant(QVariantList{1, 2}) << 2 << 0;
}

// Catches counts of data that is not there.
void TestExcel::ReadsTheUsedRange()
{
    QFETCH(QVariant, value);
    m_recording.answers.insert(QStringLiteral("Value"), value);
    OpenExcelFunction excel;
    QVERIFY(excel.OpenExcel(MakeFile(), false));
    QTEST(excel.GetRowCout(), "rows");
    QTEST(excel.GetColumnCout(), "columns");
    QCOMPARE(excel.ReadSheets(), excel.GetRowCout() > 0);
    m_recording.absent.insert(QStringLiteral("UsedRange"));
    QVERIFY(!excel.ReadSheets());
    QCOMPARE(excel.GetRowCout(), 0);
}

// Catches a read outside of the data, and a value lost at its edge.
void TestExcel::ReachesCellsInclusively()
{
    OpenExcelFunction excel;
    QVERIFY(excel.OpenExcel(MakeFile(), false));
    const QVariant none = QString();
    QCOMPARE(excel.GetCellVariantValue(1, 1), QVariant(1.5));
    QCOMPARE(excel.GetCellValue(1, 2), QStringLiteral("x"));
    QCOMPARE(excel.GetCellVariantValue(1, 3), none); // past this row, inside the longest
    QCOMPARE(excel.GetCellVariantValue(2, 2), QVariant());
    QCOMPARE(excel.GetCellVariantValue(2, 3), QVariant(7.0));
    const int wrong[] = {INT_MIN, -1, 0, 3, 4, INT_MAX};
    for (const int index : wrong) {
        QCOMPARE(excel.GetCellVariantValue(index, 1), none);
        QStringList row{QStringLiteral("old")};
        excel.GetRowValue(index, row);
        QCOMPARE(row, QStringList());
        if (index != 3)
            QCOMPARE(excel.GetCellVariantValue(2, index), none);
    }
    QStringList row;
    excel.GetRowValue(2, row);
    QCOMPARE(row, (QStringList{QStringLiteral("true"), QString(), QStringLiteral("7")}));

    // A single row is no table, but it is there.
    m_recording.answers.insert(QStringLiteral("Value"), Rows({{8.0, 9.0}}));
    QVERIFY(!excel.ReadSheets());
    QCOMPARE(excel.GetCellVariantValue(1, 1), QVariant(8.0));
    QCOMPARE(excel.GetCellVariantValue(1, 2), none);
    QCOMPARE(excel.GetCellVariantValue(2, 1), none);
}

// Catches a block that goes over the bridge cell by cell, to a wrong address or in a wrong order.
void TestExcel::WritesBlocks()
{
    AxExcelFunction excel;
    QVERIFY(OpenNew(excel));
    const QList<QList<QString>> rows{
        {QStringLiteral("a"), QStringLiteral("b")}, {QStringLiteral("c"), QStringLiteral("d")}};
    QVERIFY(excel.SetMultiCellValue(2, 3, rows));
    QCOMPARE(
        m_recording.calls.mid(0, 3),
        (Texts{
            QStringLiteral("sheet.Range(const QString&)(C2:B3)"),
            QStringLiteral("range.SetValue(const QVariant&)(block)"),
            QStringLiteral("range.NumberFormatLocal=@")}));
    QCOMPARE(
        m_recording.blocks,
        QVariantList{
            Rows({{QStringLiteral("a"), QStringLiteral("b")}, {QStringLiteral("c"), QStringLiteral("d")}})});

    m_recording.calls.clear();
    QVERIFY(!excel.SetMultiCellValue(1, 1, {}));
    QVERIFY(!excel.SetMultiCellValue(1, 1, {{}, {QStringLiteral("x")}}));
    QCOMPARE(m_recording.calls, Texts());
    for (QSet<QString>* failing : {&m_recording.absent, &m_recording.null}) {
        failing->insert(QStringLiteral("Range(const QString&)"));
        QVERIFY(!excel.SetMultiCellValue(1, 1, rows));
        failing->clear();
    }
    QCOMPARE(m_recording.calls.filter(QStringLiteral("range.")), Texts());
    m_recording.calls.clear();
    QVERIFY(excel.SetMultiCellValue(INT_MAX, 1, rows)); // refused or not, an address
    QCOMPARE(
        m_recording.calls.first(), QStringLiteral("sheet.Range(const QString&)(A2147483647:B2147483648)"));
}

// Catches the text of a merged cell written to the block, and a style that is lost under the merge.
void TestExcel::WritesMergedCells()
{
    AxExcelFunction excel;
    QVERIFY(OpenNew(excel));
    QVERIFY(excel.SetMergeCellValue(1, 2, 3, 4, QStringLiteral("title")));
    const Texts& calls = m_recording.calls;
    QCOMPARE(
        calls.mid(0, 4),
        (Texts{
            QStringLiteral("sheet.Range(const QString&)(B1)"),
            QStringLiteral("range.SetValue(const QVariant&)(title)"),
            QStringLiteral("sheet.Range(const QString&)(B1:D3)"), QStringLiteral("range.ColumnWidth=18")}));
    QCOMPARE(calls.last(), QStringLiteral("range.MergeCells=true"));
    QVERIFY(calls.filter(QStringLiteral("NumberFormat")).isEmpty());
}

void TestExcel::AppliesStyles_data()
{
    QTest::addColumn<QString>("preset");
    QTest::addColumn<Texts>("sizes");
    QTest::addColumn<QString>("background");
    QTest::addColumn<Texts>("font");
    const QString width = QStringLiteral("range.ColumnWidth=18");
    const auto font = [](const char* bold, const char* size, const char* color) {
        Texts calls{QStringLiteral("range.Font"), QStringLiteral("font.Bold=") + QLatin1String(bold)};
        if (*size)
            calls << QStringLiteral("font.Size=") + QLatin1String(size);
        return calls << QStringLiteral("font.Italic=false") << QStringLiteral("font.Underline=-4142")
                     << QStringLiteral("font.Color=") + QLatin1String(color);
    };
    QTest::newRow("default") << "" << Texts{width} << "#f3f5b8" << font("false", "", "#000000");
    QTest::newRow("title") << "title" << Texts{QStringLiteral("range.RowHeight=30"), width} << "#333399"
                           << font("false", "16", "#ffffff");
    QTest::newRow("header") << "header" << Texts{QStringLiteral("range.RowHeight=20"), width} << "#ffffff"
                            << font("true", "9", "#000000");
    QTest::newRow("context") << "context" << Texts{QStringLiteral("range.RowHeight=20"), width} << "#f3f5b8"
                             << font("false", "9", "#000000");
    QTest::newRow("by hand")
        << "by hand" << Texts{QStringLiteral("range.RowHeight=5"), QStringLiteral("range.ColumnWidth=6")}
        << "#010203" << Texts{QStringLiteral("range.Font"),        QStringLiteral("font.Name=Serif"),
                              QStringLiteral("font.Bold=true"),    QStringLiteral("font.Size=7"),
                              QStringLiteral("font.Italic=true"),  QStringLiteral("font.Underline=2"),
                              QStringLiteral("font.Color=#070809")};
}

// Catches a style that keeps parts of the one before, and a member that the application would not know.
void TestExcel::AppliesStyles()
{
    QFETCH(QString, preset);
    QFETCH(Texts, sizes);
    QFETCH(QString, background);
    QFETCH(Texts, font);
    AxExcelFunction excel;
    QVERIFY(OpenNew(excel));
    Texts alignment{
        QStringLiteral("range.HorizontalAlignment=-4108"), QStringLiteral("range.VerticalAlignment=-4108"),
        QStringLiteral("range.WrapText=true")};
    QString borders = QStringLiteral("#000000");
    if (!preset.isEmpty()) {
        excel.SetCellRowHeight(5);
        excel.SetColumnWidth(6);
        excel.SetFontSize(7);
        excel.SetFontName(QStringLiteral("Serif"));
        excel.SetBackgroudColor(QColor(1, 2, 3));
        excel.SetBordersColor(QColor(4, 5, 6));
        excel.SetFontColor(QColor(7, 8, 9));
        excel.SetFontBold(true);
        excel.SetFontItalic(true);
        excel.SetFontUnderline(true);
        QVERIFY(excel.SetCellHorizontalAlignment(AxExcelFunction::HAlign_Left));
        QVERIFY(excel.SetCellVerticalAlignment(AxExcelFunction::VAlign_Bottom));
    }
    if (preset == QLatin1String("title"))
        excel.SetExcelTitleProperty();
    else if (preset == QLatin1String("header"))
        excel.SetCellHeaderProperty();
    else if (preset == QLatin1String("context"))
        excel.SetCellContextProperty();
    else if (!preset.isEmpty()) {
        borders = QStringLiteral("#040506");
        alignment[0] = QStringLiteral("range.HorizontalAlignment=-4131");
        alignment[1] = QStringLiteral("range.VerticalAlignment=-4107");
    }
    QVERIFY(!excel.SetCellHorizontalAlignment(static_cast<AxExcelFunction::ExcelHorizontalAlignment_e>(3)));
    QVERIFY(!excel.SetCellVerticalAlignment(static_cast<AxExcelFunction::ExcelVerticalAlignment_e>(3)));

    QVERIFY(excel.SetMultiCellValue(1, 1, {{QStringLiteral("x")}}));
    const Texts colors{
        QStringLiteral("range.Interior"), QStringLiteral("interior.Color=") + background,
        QStringLiteral("range.Borders"), QStringLiteral("borders.Color=") + borders};
    QCOMPARE(m_recording.calls.mid(3), sizes + alignment + colors + font);
}

// Catches a call of a part of the style that the application does not have.
void TestExcel::PassesOverMissingParts()
{
    AxExcelFunction excel;
    QVERIFY(OpenNew(excel));
    m_recording.absent = {QStringLiteral("Interior"), QStringLiteral("Font")};
    m_recording.null = {QStringLiteral("Borders")};
    QVERIFY(excel.SetMultiCellValue(1, 1, {{QStringLiteral("x")}}));
    QCOMPARE(
        m_recording.calls.filter(QRegularExpression(QStringLiteral("^(interior|borders|font)"))), Texts());
}

// Catches rows of a wrong length, and a batch that is written twice.
void TestExcel::CollectsBatches()
{
    AxExcelFunction excel;
    QVERIFY(OpenNew(excel));
    excel.BeginAddMemory(3, 5, 1);
    for (const QChar letter : QStringLiteral("abcdefg"))
        excel.AddCellValue(letter);
    QVERIFY(excel.EndAddMemoryAndSave());
    QCOMPARE(m_recording.calls.first(), QStringLiteral("sheet.Range(const QString&)(A5:C7)"));
    QVERIFY(m_recording.calls.filter(QStringLiteral("Save")).isEmpty());
    const QVariantList block = m_recording.blocks.first().toList();
    QCOMPARE(
        block.at(1).toList(), (QVariantList{QStringLiteral("d"), QStringLiteral("e"), QStringLiteral("f")}));
    QCOMPARE(block.at(2).toList(), QVariantList{QStringLiteral("g")});

    QVERIFY(!excel.EndAddMemoryAndSave());
    // Without a batch every cell is a row of its own.
    excel.AddCellValue(QStringLiteral("x"));
    excel.AddCellValue(QStringLiteral("y"));
    QVERIFY(excel.EndAddMemoryAndSave());
    QCOMPARE(m_recording.blocks.last().toList().size(), 2);
}

void TestExcel::MarksDigits_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("storedAlways");
    QTest::newRow("empty") << ""
                           << "'"
                           << "'";
    QTest::newRow("leading zero") << "0123"
                                  << "'0123"
                                  << "'0123";
    QTest::newRow("letters") << "12a"
                             << "12a"
                             << "'12a";
    QTest::newRow("sign") << "-1"
                          << "-1"
                          << "'-1";
    QTest::newRow("other digits") << QStringLiteral("\u0661\uFF11") << QStringLiteral("\u0661\uFF11")
                                  << QStringLiteral("'\u0661\uFF11");
    QTest::newRow("neighbours of the digits") << "/:"
                                              << "/:"
                                              << "'/:";
}

// Catches identifiers that lose their leading zeros.
void TestExcel::MarksDigits()
{
    QFETCH(QString, text);
    QFETCH(QString, stored);
    QFETCH(QString, storedAlways);
    AxExcelFunction excel;
    QVERIFY(OpenNew(excel));
    excel.BeginAddMemory(2, 1, 1);
    QVERIFY(excel.AddCellValue(text));
    QVERIFY(excel.AddNoAutoTranCellValue(text));
    QVERIFY(excel.EndAddMemoryAndSave());
    QCOMPARE(m_recording.blocks, QVariantList{Rows({{stored, storedAlways}})});
}

void TestExcel::SavesBySuffix_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("call"); // %1 is the folder
    const QString plain = QStringLiteral("book.SaveAs(const QString &)(%1/");
    const QString coded = QStringLiteral("book.SaveAs(const QString &, int)(%1/");
    QTest::newRow("old, none") << "9"
                               << "a" << plain + QStringLiteral("a.xls)");
    QTest::newRow("old, xls") << "9"
                              << "a.XLS" << plain + QStringLiteral("a.XLS)");
    QTest::newRow("old, other loses its dot") << "9"
                                              << "report.xlsx" << plain + QStringLiteral("reportxls)");
    QTest::newRow("none") << "16"
                          << "a" << plain + QStringLiteral("a.xlsx)");
    QTest::newRow("dot at the end") << "16"
                                    << "a." << plain + QStringLiteral("a..xlsx)");
    QTest::newRow("xlsx") << "16"
                          << "a.b.XlsX" << plain + QStringLiteral("a.b.XlsX)");
    QTest::newRow("csv") << "16"
                         << "a.CSV" << coded + QStringLiteral("a.CSV, 6)");
    QTest::newRow("xls") << "16"
                         << "a.xls" << coded + QStringLiteral("a.xls, 56)");
    QTest::newRow("unknown") << "16"
                             << "a.ods" << coded + QStringLiteral("a.ods, 56)");
    QTest::newRow("pdf") << "16"
                         << "a.pdf"
                         << "book.ExportAsFixedFormat(int, const QString &)(0, %1/a.pdf)";
}

// Catches a file in another format than its name says, and a path that a second save has changed.
void TestExcel::SavesBySuffix()
{
    QFETCH(QString, version);
    QFETCH(QString, name);
    QFETCH(QString, call);
    m_recording.answers.insert(QStringLiteral("Version"), version);
    AxExcelFunction excel;
    QVERIFY(OpenNew(excel, name));
    const QString member = call.mid(5, call.indexOf(QLatin1Char(')')) - 4);
    m_recording.answers.insert(member, true);
    QVERIFY(excel.SaveExcel());
    m_recording.answers.insert(member, false);
    QVERIFY(!excel.SaveExcel());
    m_recording.answers.remove(member);
    QVERIFY(!excel.SaveExcel());
    const QString expected = call.arg(QDir::toNativeSeparators(m_folder->path()));
    QCOMPARE(m_recording.calls, (Texts{expected, expected, expected}));
}

// Catches an imported file that is overwritten.
void TestExcel::SavesOnlyWhatIsOpenForWriting()
{
    AxExcelFunction excel;
    QVERIFY(!excel.SaveExcel());
    QVERIFY(excel.OpenExcel(MakeFile(), false));
    m_recording.calls.clear();
    QVERIFY(!excel.SaveExcel());
    QVERIFY(OpenNew(excel));
    excel.FreeExcel();
    m_recording.calls.clear();
    QVERIFY(!excel.SaveExcel());
    QCOMPARE(m_recording.calls, Texts());
}

void TestExcel::NamesColumns_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("name");
    QTest::newRow("1") << 1 << "A";
    QTest::newRow("25") << 25 << "Y";
    QTest::newRow("26") << 26 << "A@";
    QTest::newRow("27") << 27 << "AA";
    QTest::newRow("52") << 52 << "B@";
    QTest::newRow("53") << 53 << "BA";
    QTest::newRow("702") << 702 << "AA@";
    QTest::newRow("704") << 704 << "AAB";
    QTest::newRow("0") << 0 << "@";
}

// Catches columns that are named otherwise than the application's addresses are built.
void TestExcel::NamesColumns()
{
    QFETCH(int, column);
    OpenExcelFunction excel;
    QFETCH(QString, name);
    QString address = QStringLiteral("12");
    excel.convertToColName(column, address);
    QCOMPARE(address, name + QStringLiteral("12"));
    QCOMPARE(excel.to26AlphatString(26), QStringLiteral("Z"));
    for (const int wild : {INT_MIN, -27, -1, INT_MAX})
        excel.convertToColName(wild, address); // no crash, whatever the name
}

STRICT_TEST_MAIN(TestExcel)

#include "tst_excel.moc"
