// The spreadsheet classes with a real office: what it stores is read by libraries that have nothing to do
// with it, and it is stopped, killed and taken away.

#include "office/Processes.h"
#include "support/StrictMain.h"

#include <Platform/Automation/AutomationRegistry.h>
#include <UI/Spreadsheet/AxExcelFunction.h>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <atomic>
#include <csignal>
#include <cstdio>
#include <random>
#include <sys/file.h>
#include <thread>
#include <unistd.h>
#include <xlsxwriter.h>

using namespace UICommonMdl;
using Automation::AutomationObject;
using Automation::AutomationRegistry;

namespace {

using Rows = QList<QList<QString>>;

constexpr int ShortLimit = 3000; // for an office that hangs, milliseconds
constexpr int TimeToGo = 10000; // until a process and its files are gone, milliseconds
constexpr int LongestStore = 120000; // of a table that does not fit, on a busy machine, milliseconds

const QString Unicode = QStringLiteral("\u00C4\u4E2D\u6587 \U0001F600");

QJsonObject ReadWorkbook(const QString& path)
{
    QProcess reader;
    reader.start(QStringLiteral("/usr/bin/python3"), {QStringLiteral(OFFICE_READER), path});
    if (!reader.waitForFinished() || reader.exitCode() != 0)
        qWarning("%s", reader.readAllStandardError().constData());
    return QJsonDocument::fromJson(reader.readAllStandardOutput()).object();
}

QStringList Texts(const QJsonValue& row)
{
    QStringList texts;
    const QJsonArray cells = row.toArray();
    for (const QJsonValue& cell : cells)
        texts << cell.toVariant().toString();
    return texts;
}

QStringList RowOf(AxExcelFunction& excel, int row)
{
    QStringList texts;
    excel.GetRowValue(row, texts);
    return texts;
}

bool NoneExists(const QStringList& files)
{
    return std::none_of(files.begin(), files.end(), [](const QString& file) { return QFile::exists(file); });
}

std::unique_ptr<AutomationObject> Application()
{
    return AutomationRegistry::CreateObject(QStringLiteral("Excel.Application"));
}

std::unique_ptr<AutomationObject> NewSheet(AutomationObject& application)
{
    const auto books = application.querySubObject(QStringLiteral("WorkBooks"));
    books->dynamicCall(QStringLiteral("Add"));
    const auto book = application.querySubObject(QStringLiteral("ActiveWorkBook"));
    return book ? book->querySubObject(QStringLiteral("WorkSheets(int)"), {1}) : nullptr;
}

/// Texts that take as much room in a compressed file as here: about a megabyte.
Rows LargeTable()
{
    std::mt19937 random(7);
    Rows rows;
    for (int row = 0; row < 20000; ++row)
        rows << QList<QString>{QString::number(random(), 36) + QString::number(random(), 36)};
    return rows;
}

QByteArray NamesIn(const QDir& folder)
{
    const auto entries = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    return '[' + folder.entryList(entries).join(QLatin1Char(' ')).toUtf8() + ']';
}

/// Whether a workbook could be opened, filled and stored, as three digits.
QByteArray StoreInSteps(const QString& path, const Rows& rows)
{
    AxExcelFunction excel;
    const bool steps[]
        = {excel.OpenExcel(path, true), excel.SetMultiCellValue(1, 1, rows), excel.SaveExcel()};
    QByteArray digits;
    for (const bool step : steps)
        digits += step ? '1' : '0';
    return digits;
}

/// What a client does whose disk is full: stores what does not fit, and, when the office has gone, a small
/// table. Tells how far it came, and what is in the folder then and among the temporary files.
int StoreOnFullDisk(const QString& path)
{
    const QDir folder = QFileInfo(path).dir();
    QByteArray told = StoreInSteps(path, LargeTable());
    told += ' ' + NamesIn(folder);
    while (Processes::Host(getpid()) != 0)
        QTest::qWait(20);
    told += ' ' + NamesIn(QDir::temp());
    told += ' ' + StoreInSteps(path, {{QStringLiteral("x")}});
    std::puts(told.constData());
    return 0;
}

/// What a client does that is killed, or leaves, with a workbook open.
int HoldWorkbook(const QString& path, bool leave)
{
    AxExcelFunction excel;
    const bool open = excel.OpenExcel(path, true);
    std::puts(open ? "open" : "failed");
    std::fflush(stdout);
    if (!leave)
        pause();
    return 0;
}

} // namespace

class TestOffice : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void StoresStyledTables();
    void StoresOtherFormats_data();
    void StoresOtherFormats();
    void FitsPdfColumnsOnThePage();
    void ReadsWorkbooksOfOthers();
    void ReadsWhatItCannotReadAsNothing_data();
    void ReadsWhatItCannotReadAsNothing();
    void PassesValuesBothWays();
    void PassesLargeBlocks();
    void CopesWithUnusualPaths_data();
    void CopesWithUnusualPaths();
    void ReportsUnwritablePlaces_data();
    void ReportsUnwritablePlaces();
    void RefusesBadSheetNames();
    void KeepsTwoWorkbooksApart();
    void RefusesWhatItDoesNotKnow();
    void SharesOneOffice();
    void OutlivesItsOffice_data();
    void OutlivesItsOffice();
    void OutlivesAHostThatDiesEarly();
    void LeavesNoHalfFile();
    void StoresOnAFullDisk_data();
    void StoresOnAFullDisk();
    void StartsForAClientThatIgnoresItsChildren();
    void GivesUpOnABrokenOffice_data();
    void GivesUpOnABrokenOffice();
    void ClearsUpAbandonedProfilesOnly();
    void GoesAwayWhenUnused();
    void EndsWithTheClient_data();
    void EndsWithTheClient();

private:
    QString Path(const QString& name) const { return m_folder.filePath(name); }
    QStringList Profiles() const
    {
        return QDir(m_temporary.path()).entryList({QStringLiteral("uicomponents-office-*")}, QDir::Dirs);
    }
    bool IsAbandoned(const QString& profile) const;
    bool Store(const QString& path, const Rows& rows);
    void EndOffice();
    QString WriteForeignWorkbook() const;
    QString BrokenProgramFolder(const QByteArray& script) const;

    QTemporaryDir m_folder;
    QTemporaryDir m_temporary;
};

void TestOffice::initTestCase()
{
    // Apart from the profiles of other clients.
    qputenv("TMPDIR", QFile::encodeName(m_temporary.path()));
    // Found without the command "soffice", and times that are none are not taken.
    const QByteArray commands = qgetenv("PATH");
    qputenv("PATH", "/nonexistent");
    qputenv("UICOMPONENTS_OFFICE_TIMEOUT", "0");
    qputenv("UICOMPONENTS_OFFICE_IDLE", "-1");
    qputenv("TZ", "Europe/Berlin");
    QVERIFY2(AxExcelFunction::CheckExcelVersion() == AxExcel_Xlsx, "the office does not start");
    qputenv("PATH", commands);
}

void TestOffice::cleanup()
{
    for (const char* name :
         {"UICOMPONENTS_OFFICE_PATH", "UICOMPONENTS_OFFICE_TIMEOUT", "UICOMPONENTS_OFFICE_IDLE"})
        qunsetenv(name);
}

/// Whether no thread of a killed host is left that holds the profile: the last ones can outlive the office.
bool TestOffice::IsAbandoned(const QString& profile) const
{
    QFile lock(m_temporary.filePath(profile + QLatin1String("/lock")));
    return lock.open(QIODevice::ReadWrite) && flock(lock.handle(), LOCK_EX | LOCK_NB) == 0;
}

bool TestOffice::Store(const QString& path, const Rows& rows)
{
    AxExcelFunction excel;
    return excel.OpenExcel(path, true) && excel.SetMultiCellValue(1, 1, rows) && excel.SaveExcel();
}

/// So that the next use starts a new one, which takes the present environment.
void TestOffice::EndOffice()
{
    if (const pid_t office = Processes::Office(getpid()))
        kill(office, SIGKILL);
    QTRY_VERIFY_WITH_TIMEOUT(Profiles().isEmpty(), TimeToGo);
    QTRY_COMPARE_WITH_TIMEOUT(Processes::Host(getpid()), 0, TimeToGo);
}

// Catches values, merges and styles that are lost or converted on the way into the file.
void TestOffice::StoresStyledTables()
{
    const QString path = Path(QStringLiteral("styled.xlsx"));
    {
        AxExcelFunction excel;
        QVERIFY(excel.OpenExcel(path, true));
        QVERIFY(excel.SetSheetName(QStringLiteral("Alarms")));
        excel.SetExcelTitleProperty();
        excel.SetCellHorizontalAlignment(AxExcelFunction::HAlign_Left);
        excel.SetCellVerticalAlignment(AxExcelFunction::VAlign_Bottom);
        QVERIFY(excel.SetMergeCellValue(1, 1, 1, 3, Unicode));
        excel.SetCellHeaderProperty();
        QVERIFY(excel.SetMultiCellValue(
            2, 1, {{QStringLiteral("id"), QStringLiteral("n"), QStringLiteral("t")}}));
        excel.SetCellContextProperty();
        excel.SetFontName(QStringLiteral("DejaVu Serif"));
        excel.SetFontItalic(true);
        excel.SetFontUnderline(true);
        excel.SetBordersColor(QColor(255, 0, 0));
        excel.SetCellHorizontalAlignment(AxExcelFunction::HAlign_Right);
        excel.SetCellVerticalAlignment(AxExcelFunction::VAlign_Top);
        excel.BeginAddMemory(3, 3, 1);
        for (const char* text : {"007", "1.50", "2026-03-14", "", "=1+1"})
            excel.AddCellValue(QLatin1String(text));
        excel.AddNoAutoTranCellValue(QStringLiteral("'quoted'"));
        excel.AddCellValue(QStringLiteral("two\nlines"));
        QVERIFY(excel.EndAddMemoryAndSave());
        QVERIFY(excel.SaveExcel());
    }
    const QJsonObject book = ReadWorkbook(path);
    QCOMPARE(book.value(QStringLiteral("name")).toString(), QStringLiteral("Alarms"));
    QCOMPARE(book.value(QStringLiteral("merged")).toArray(), QJsonArray{QStringLiteral("A1:C1")});
    const QJsonObject cells = book.value(QStringLiteral("cells")).toObject();
    const auto cell = [&](const char* name) { return cells.value(QLatin1String(name)).toObject(); };
    const auto field
        = [&](const char* name, const char* key) { return cell(name).value(QLatin1String(key)).toVariant(); };

    QCOMPARE(field("A1", "value"), QVariant(Unicode));
    QCOMPARE(field("A1", "fill"), QVariant(QStringLiteral("333399")));
    QCOMPARE(field("A1", "color"), QVariant(QStringLiteral("ffffff")));
    QCOMPARE(field("A1", "size").toInt(), 16);
    QCOMPARE(field("A1", "horizontal"), QVariant(QStringLiteral("left")));
    QCOMPARE(field("A1", "vertical"), QVariant(QStringLiteral("bottom")));
    QCOMPARE(field("A2", "bold"), QVariant(true));
    QCOMPARE(field("A2", "fill"), QVariant(QStringLiteral("ffffff")));
    QCOMPARE(field("A2", "horizontal"), QVariant(QStringLiteral("center")));
    // Texts stay texts, whatever they look like.
    const char* names[] = {"A3", "B3", "C3", "B4", "C4", "A5"};
    const char* values[] = {"007", "1.50", "2026-03-14", "=1+1", "'quoted'", "two\nlines"};
    for (int i = 0; i < 6; ++i) {
        QCOMPARE(field(names[i], "value"), QVariant(QLatin1String(values[i])));
        QCOMPARE(field(names[i], "format"), QVariant(QStringLiteral("@")));
    }
    QVERIFY(field("A4", "value").isNull());
    QCOMPARE(field("A3", "fill"), QVariant(QStringLiteral("f3f5b8")));
    QCOMPARE(field("A3", "font"), QVariant(QStringLiteral("DejaVu Serif")));
    QCOMPARE(field("A3", "size").toInt(), 9);
    QCOMPARE(field("A3", "italic"), QVariant(true));
    QCOMPARE(field("A3", "underline"), QVariant(QStringLiteral("single")));
    QCOMPARE(field("A3", "bold"), QVariant(false));
    QCOMPARE(field("A3", "horizontal"), QVariant(QStringLiteral("right")));
    QCOMPARE(field("A3", "vertical"), QVariant(QStringLiteral("top")));
    QCOMPARE(field("A3", "wrap"), QVariant(true));
    const QString red = QStringLiteral("ff0000");
    QCOMPARE(Texts(cell("B4").value(QStringLiteral("borders"))), (QStringList{red, red, red, red}));
    QCOMPARE(field("B4", "line"), QVariant(QStringLiteral("thin")));
    const QJsonObject heights = book.value(QStringLiteral("heights")).toObject();
    QCOMPARE(qRound(heights.value(QStringLiteral("1")).toDouble()), 30);
    QCOMPARE(qRound(heights.value(QStringLiteral("4")).toDouble()), 20);
    const double width = book.value(QStringLiteral("width")).toDouble();
    QVERIFY2(qAbs(width - 18) < 1.5, qPrintable(QString::number(width)));
}

void TestOffice::StoresOtherFormats_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("mark");
    QTest::newRow("xls") << "table.xls" << false;
    QTest::newRow("csv") << "table.csv" << true;
}

// Catches a file that other programs open with wrong letters, split cells or lost zeros, and a text that
// comes back as the result of a formula.
void TestOffice::StoresOtherFormats()
{
    QFETCH(QString, name);
    QFETCH(bool, mark);
    const Rows rows{
        {QStringLiteral("007"), QStringLiteral("a,b"), QStringLiteral("say \"no\"")},
        {Unicode, QStringLiteral("two\nlines"), QStringLiteral("1;2")},
        {QStringLiteral("=1+1"), QStringLiteral("x")}};
    QVERIFY(Store(Path(name), rows));
    const QJsonObject book = ReadWorkbook(Path(name));
    QCOMPARE(book.value(QStringLiteral("mark")).toString(), mark ? QString(QChar(0xFEFF)) : QString());
    const QJsonArray stored = book.value(QStringLiteral("rows")).toArray();
    QCOMPARE(stored.size(), 3);
    QCOMPARE(Texts(stored.at(0)), rows.at(0));
    QCOMPARE(Texts(stored.at(1)), rows.at(1));
    QCOMPARE(Texts(stored.at(2)), rows.at(2) + QStringList{QString()});
    AxExcelFunction excel;
    QVERIFY(excel.OpenExcel(Path(name), false));
    QCOMPARE(RowOf(excel, 3).value(0), QStringLiteral("=1+1"));
    if (mark) { // quoted where needed only
        QFile file(Path(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readLine().endsWith("007,\"a,b\",\"say \"\"no\"\"\"\n"));
    }
}

// Catches columns that are printed on pages of their own.
void TestOffice::FitsPdfColumnsOnThePage()
{
    Rows rows;
    for (int row = 0; row < 120; ++row) {
        QList<QString> cells;
        for (int column = 0; column < 15; ++column)
            cells << QStringLiteral("r%1c%2").arg(row).arg(column);
        rows << cells;
    }
    QVERIFY(Store(Path(QStringLiteral("wide.pdf")), rows));
    const QJsonArray pages
        = ReadWorkbook(Path(QStringLiteral("wide.pdf"))).value(QStringLiteral("pages")).toArray();
    QVERIFY(pages.size() > 1);
    QStringList words;
    for (const QJsonValue& page : pages) {
        const QStringList onPage = Texts(page);
        QCOMPARE(
            onPage.filter(QStringLiteral("c14")).size(),
            onPage.filter(QRegularExpression(QStringLiteral("c0$"))).size());
        words << onPage;
    }
    for (const QList<QString>& row : rows)
        QVERIFY2(words.contains(row.first()) && words.contains(row.last()), qPrintable(row.first()));
}

/// With a title row, and in each column another kind of cell.
QString TestOffice::WriteForeignWorkbook() const
{
    const QString path = Path(QStringLiteral("foreign.xlsx"));
    lxw_workbook* book = workbook_new(QFile::encodeName(path).constData());
    lxw_worksheet* sheet = workbook_add_worksheet(book, "Data");
    lxw_format* date = workbook_add_format(book);
    format_set_num_format(date, "yyyy-mm-dd hh:mm:ss");
    lxw_format* percent = workbook_add_format(book);
    format_set_num_format(percent, "0.0%");
    const char* titles[]
        = {"text", "number", "moment", "yes", "sum", "share", "hour left out", "early", "late"};
    for (lxw_col_t column = 0; column < 9; ++column)
        worksheet_write_string(sheet, 0, column, titles[column], nullptr);
    worksheet_write_string(sheet, 1, 0, Unicode.toUtf8().constData(), nullptr);
    worksheet_write_number(sheet, 1, 1, -2.5, nullptr);
    lxw_datetime moment = {2026, 3, 14, 10, 24, 36};
    worksheet_write_datetime(sheet, 1, 2, &moment, date);
    worksheet_write_boolean(sheet, 1, 3, 1, nullptr);
    worksheet_write_formula_num(sheet, 1, 4, "=B2*2", nullptr, -5);
    worksheet_write_number(sheet, 1, 5, 0.125, percent);
    moment = {2026, 3, 29, 2, 30, 0}; // the clocks go from two to three
    worksheet_write_datetime(sheet, 1, 6, &moment, date);
    worksheet_write_number(sheet, 1, 7, -1, date);
    worksheet_write_number(sheet, 1, 8, 2958466, date);
    worksheet_write_formula_str(sheet, 1, 9, "=1/0", nullptr, "");
    worksheet_write_string(sheet, 3, 0, "  last  ", nullptr);
    workbook_add_worksheet(book, "Other");
    return workbook_close(book) == LXW_NO_ERROR ? path : QString();
}

// Catches kinds of cells that arrive as others, and rows that move up over empty ones.
void TestOffice::ReadsWorkbooksOfOthers()
{
    AxExcelFunction excel;
    QVERIFY(excel.OpenExcel(WriteForeignWorkbook(), false));
    QCOMPARE(excel.GetRowCout(), 4);
    QCOMPARE(excel.GetColumnCout(), 10);
    QCOMPARE(excel.GetCellVariantValue(1, 3), QVariant(QStringLiteral("moment")));
    QCOMPARE(excel.GetCellVariantValue(2, 1), QVariant(Unicode));
    QCOMPARE(excel.GetCellVariantValue(2, 2), QVariant(-2.5));
    QCOMPARE(excel.GetCellVariantValue(2, 3), QVariant(QDateTime(QDate(2026, 3, 14), QTime(10, 24, 36))));
    QCOMPARE(excel.GetCellVariantValue(2, 4), QVariant(true));
    QCOMPARE(excel.GetCellVariantValue(2, 5), QVariant(-5.0));
    QCOMPARE(excel.GetCellVariantValue(2, 6), QVariant(0.125));
    QCOMPARE(excel.GetCellVariantValue(2, 7), QVariant(QDateTime({2026, 3, 29}, {2, 30}, Qt::UTC)));
    QCOMPARE(excel.GetCellVariantValue(2, 8), QVariant(-1.0));
    QCOMPARE(excel.GetCellVariantValue(2, 9), QVariant(2958466.0));
    QCOMPARE(excel.GetCellVariantValue(2, 10), QVariant());
    for (int column = 1; column <= 10; ++column)
        QCOMPARE(excel.GetCellVariantValue(3, column), QVariant());
    QCOMPARE(excel.GetCellValue(4, 1), QStringLiteral("last"));
    QVERIFY(!excel.SaveExcel());
}

void TestOffice::ReadsWhatItCannotReadAsNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("opens");
    QTest::newRow("damaged xlsx") << "damaged.xlsx" << QByteArray("PK\x03\x04 not a zip") << false;
    QTest::newRow("empty csv") << "empty.csv" << QByteArray() << true;
    QTest::newRow("one row") << "one.csv"
                             << QByteArray("\xEF\xBB\xBF"
                                           "a,b\n")
                             << true;
}

// Catches rows made up for a file without any, and an office that a damaged file leaves unusable.
void TestOffice::ReadsWhatItCannotReadAsNothing()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(bool, opens);
    QFile file(Path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    AxExcelFunction excel;
    QCOMPARE(excel.OpenExcel(file.fileName(), false), opens);
    QCOMPARE(excel.GetErrorMsg(), opens ? QString() : QStringLiteral("Open excel file failed."));
    QCOMPARE(excel.GetRowCout(), 0);
    QVERIFY(Store(Path(QStringLiteral("after.csv")), {{QStringLiteral("x")}}));
}

// Catches a number, date, truth value or gap that comes back as something else, and a block that is larger
// or smaller than its range.
void TestOffice::PassesValuesBothWays()
{
    const auto application = Application();
    const auto sheet = NewSheet(*application);
    QVERIFY(sheet);
    const QDateTime moment(QDate(2026, 12, 31), QTime(23, 59, 59, 999));
    const QVariantList first{1.5, -7, true, moment};
    const QVariantList second{QStringLiteral("'007"), QDateTime(), false, QDate(1900, 3, 1)};
    const auto range = [&](const char* address) {
        return sheet->querySubObject(QStringLiteral("Range(const QString&)"), {QLatin1String(address)});
    };
    const QString set = QStringLiteral("SetValue(const QVariant&)");
    const QVariant block = QVariantList{QVariant(first + QVariantList{99}), QVariant(second)};
    range("B2:E4")->dynamicCall(set, {block});
    const QVariantList rows = range("B2:E4")->dynamicCall(QStringLiteral("Value")).toList();
    QCOMPARE(rows.size(), 3);
    QCOMPARE(rows.at(0).toList(), (QVariantList{1.5, -7.0, true, moment}));
    QCOMPARE(
        rows.at(1).toList(),
        (QVariantList{QStringLiteral("007"), QVariant(), false, QDate(1900, 3, 1).startOfDay()}));
    QCOMPARE(rows.at(2).toList(), (QVariantList{QVariant(), QVariant(), QVariant(), QVariant()}));
    const auto used = sheet->querySubObject(QStringLiteral("UsedRange"));
    QCOMPARE(used->dynamicCall(QStringLiteral("Value")).toList().size(), 2);

    const auto other = NewSheet(*application);
    const auto empty
        = other->querySubObject(QStringLiteral("UsedRange"))->dynamicCall(QStringLiteral("Value"));
    QCOMPARE(empty, QVariant());
    other->querySubObject(QStringLiteral("Range(const QString&)"), {QStringLiteral("C3")})
        ->dynamicCall(set, {4});
    QCOMPARE(
        other->querySubObject(QStringLiteral("UsedRange"))->dynamicCall(QStringLiteral("Value")),
        QVariant(4.0));
    const auto pair
        = other->querySubObject(QStringLiteral("Range(const QString&)"), {QStringLiteral("C3:C4")});
    const QVariant texts = QVariantList{QVariantList{QStringLiteral("1")}, QVariantList{QVariant()}};
    const QVariant dates = QVariantList{QVariantList{moment}, QVariantList{moment}};
    for (const auto& [sent, received] : {qMakePair(texts, texts), qMakePair(QVariant(moment), dates)}) {
        pair->dynamicCall(set, {sent});
        QCOMPARE(pair->dynamicCall(QStringLiteral("Value")), received);
    }
}

// Catches rows of a large block, which crosses in pieces, that are lost, swapped or formatted as others.
void TestOffice::PassesLargeBlocks()
{
    constexpr int Count = 12345;
    QVariantList rows;
    for (int row = 0; row < Count; ++row) {
        const QVariant moment = QDateTime(QDate(2026, 3, 14).addDays(row), QTime(12, 0));
        rows << QVariant(QVariantList{double(row), QString::number(row), row % 5000 ? QVariant() : moment});
    }
    const auto application = Application();
    const auto range
        = NewSheet(*application)
              ->querySubObject(QStringLiteral("Range(const QString&)"), {QStringLiteral("B3:D12350")});
    range->dynamicCall(QStringLiteral("SetValue(const QVariant&)"), {QVariant(rows)});
    const QVariantList stored = range->dynamicCall(QStringLiteral("Value")).toList();
    QCOMPARE(stored.size(), Count + 3);
    QCOMPARE(stored.mid(0, Count), rows);
    QCOMPARE(stored.last().toList(), (QVariantList{QVariant(), QVariant(), QVariant()}));
}

void TestOffice::CopesWithUnusualPaths_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("spaces") << "my table .xlsx";
    QTest::newRow("hash and percent") << "50%#1%20.xlsx";
    QTest::newRow("question mark and quotes") << "what?'\"&;.xlsx";
    QTest::newRow("unicode") << Unicode + QStringLiteral(".xlsx");
}

// Catches a path that is cut or decoded on its way into an address.
void TestOffice::CopesWithUnusualPaths()
{
    QFETCH(QString, name);
    QDir(m_folder.path()).mkdir(QStringLiteral("paths"));
    const QString path = Path(QStringLiteral("paths/") + name);
    QVERIFY(Store(path, {{QStringLiteral("a")}, {QStringLiteral("b")}}));
    QCOMPARE(QDir(Path(QStringLiteral("paths"))).entryList(QDir::Files | QDir::Hidden), QStringList{name});
    AxExcelFunction excel;
    QVERIFY(excel.OpenExcel(path, false));
    QCOMPARE(RowOf(excel, 2), QStringList{QStringLiteral("b")});
    // Neither a lock file beside it, nor is it changed.
    QCOMPARE(QDir(Path(QStringLiteral("paths"))).entryList(QDir::Files | QDir::Hidden), QStringList{name});
    excel.FreeExcel();
    QVERIFY(QFile::remove(path));
}

void TestOffice::ReportsUnwritablePlaces_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("read-only folder") << "/proc/self/table.xlsx"; // also for root
    QTest::newRow("no folder") << Path(QStringLiteral("missing/table.csv"));
    QTest::newRow("a file for a folder") << QStringLiteral(OFFICE_READER) + QStringLiteral("/table.pdf");
}

// Catches a table that is told to be stored and is not.
void TestOffice::ReportsUnwritablePlaces()
{
    QFETCH(QString, path);
    AxExcelFunction excel;
    QVERIFY(excel.OpenExcel(path, true));
    QVERIFY(excel.SetMultiCellValue(1, 1, {{QStringLiteral("x")}}));
    QVERIFY(!excel.SaveExcel());
    QVERIFY(!QFile::exists(path));
    QVERIFY(Processes::Runs(Processes::Office(getpid())));
}

// Catches a name that other spreadsheet applications cannot open, and one that breaks the bridge.
void TestOffice::RefusesBadSheetNames()
{
    const auto application = Application();
    const auto sheet = NewSheet(*application);
    const QString name = QStringLiteral("Name");
    QVERIFY(sheet->setProperty(name, Unicode));
    for (const QString& bad :
         {QString(), QStringLiteral("a/b"), QStringLiteral("[x]"), QStringLiteral("'x"), QStringLiteral("x'"),
          QStringLiteral("a\tb"), QString(32, QLatin1Char('x'))})
        QVERIFY2(!sheet->setProperty(name, bad), qPrintable(bad));
    QCOMPARE(sheet->property(name), QVariant(Unicode));
}

// Catches a workbook that is written into, or closed by, the other's user.
void TestOffice::KeepsTwoWorkbooksApart()
{
    AxExcelFunction first;
    AxExcelFunction second;
    const QString paths[] = {Path(QStringLiteral("first.csv")), Path(QStringLiteral("second.csv"))};
    QVERIFY(first.OpenExcel(paths[0], true));
    QVERIFY(second.OpenExcel(paths[1], true));
    QVERIFY(first.SetMultiCellValue(1, 1, {{QStringLiteral("one")}}));
    QVERIFY(second.SetMultiCellValue(1, 1, {{QStringLiteral("two")}}));
    QVERIFY(second.SaveExcel());
    second.FreeExcel();
    QVERIFY(first.SaveExcel());
    for (int i = 0; i < 2; ++i) {
        const QJsonArray rows = ReadWorkbook(paths[i]).value(QStringLiteral("rows")).toArray();
        QCOMPARE(Texts(rows.at(0)), QStringList{i == 0 ? QStringLiteral("one") : QStringLiteral("two")});
    }
}

// Catches an unknown member that ends the office, and objects that work on after their application has quit.
void TestOffice::RefusesWhatItDoesNotKnow()
{
    const auto application = Application();
    const QString active = QStringLiteral("ActiveWorkBook");
    QVERIFY(!application->querySubObject(active));
    const auto sheet = NewSheet(*application);
    const QString range = QStringLiteral("Range(const QString&)");
    for (const char* address : {"A@1", "", "A0:B0", "A2147483647:B2147483648", "ZZZZ1"})
        QVERIFY2(!sheet->querySubObject(range, {QLatin1String(address)}), address);
    const auto cell = sheet->querySubObject(range, {QStringLiteral("A1")});
    const auto book = application->querySubObject(active);
    const auto books = application->querySubObject(QStringLiteral("WorkBooks"));
    const auto font = cell->querySubObject(QStringLiteral("Font"));
    const auto interior = cell->querySubObject(QStringLiteral("Interior"));
    const auto borders = cell->querySubObject(QStringLiteral("Borders"));
    for (AutomationObject* object :
         {application.get(), books.get(), book.get(), sheet.get(), cell.get(), font.get(), interior.get(),
          borders.get()}) {
        // The latter ones are known, but want arguments.
        for (const char* member :
             {"Explode()", "Open", "Range", "SetValue", "SaveAs", "ExportAsFixedFormat"}) {
            QVERIFY2(!object->dynamicCall(QLatin1String(member)).isValid(), member);
            QVERIFY2(!object->querySubObject(QLatin1String(member)), member);
        }
        QVERIFY(!object->property(QStringLiteral("Colour")).isValid());
        QVERIFY(!object->setProperty(QStringLiteral("Colour"), 1));
    }
    const auto most = sheet->querySubObject(range, {QStringLiteral("A1:ALL30000")});
    most->dynamicCall(QStringLiteral("SetValue"), {1});
    QVERIFY(!most->dynamicCall(QStringLiteral("Value")).isValid());
    QVERIFY(!cell->dynamicCall(QStringLiteral("Value")).isValid());
    const QString format = QStringLiteral("NumberFormatLocal");
    QVERIFY(cell->setProperty(format, QStringLiteral("0.00\" km\"")));
    QVERIFY(!cell->setProperty(format, QStringLiteral("[$-")));
    QVERIFY(!interior->setProperty(QStringLiteral("Color"), QStringLiteral("none")));
    for (const char* alignment : {"HorizontalAlignment", "VerticalAlignment"})
        QVERIFY2(!cell->setProperty(QLatin1String(alignment), 5), alignment);
    for (const int index : {0, 9})
        QVERIFY(!book->querySubObject(QStringLiteral("WorkSheets(int)"), {index}));
    const QString save = QStringLiteral("SaveAs(const QString &, int)");
    QVERIFY(book->dynamicCall(save, {Path(QStringLiteral("table.xlsx")), 51}).toBool());
    QVERIFY(!book->dynamicCall(save, {Path(QStringLiteral("table.ods")), 60}).toBool());
    const QVariantList xps{1, Path(QStringLiteral("table.xps"))};
    QVERIFY(!book->dynamicCall(QStringLiteral("ExportAsFixedFormat"), xps).isValid());
    books->dynamicCall(QStringLiteral("Add"));
    application->querySubObject(active)->dynamicCall(QStringLiteral("Close (Boolean)"), {false});
    QCOMPARE(application->querySubObject(active)->property(QStringLiteral("Count")), QVariant(1));
    book->dynamicCall(QStringLiteral("Close (Boolean)"), {false});
    QVERIFY(!book->dynamicCall(save, {Path(QStringLiteral("closed.csv")), 6}).toBool());
    QVERIFY(!cell->isNull());
    application->dynamicCall(QStringLiteral("Quit(void)"));
    QVERIFY(!cell->dynamicCall(QStringLiteral("Value")).isValid());
    QVERIFY(cell->isNull());
}

// Catches a second office for a second workbook or for the version probe, which would cost seconds each.
void TestOffice::SharesOneOffice()
{
    const pid_t office = Processes::Office(getpid());
    QVERIFY(office);
    AxExcelFunction excel;
    QVERIFY(excel.OpenExcel(Path(QStringLiteral("shared.xlsx")), true));
    AxExcelFunction::GetExcelFileFilter(true);
    QCOMPARE(Processes::Office(getpid()), office);
    QCOMPARE(Profiles().size(), 1);
}

void TestOffice::OutlivesItsOffice_data()
{
    QTest::addColumn<bool>("host");
    QTest::addColumn<int>("signal");
    QTest::newRow("killed office") << false << SIGKILL;
    QTest::newRow("hung office") << false << SIGSTOP;
    QTest::newRow("killed host") << true << SIGKILL;
    QTest::newRow("hung host") << true << SIGSTOP;
}

// Catches a client that freezes or crashes with its office, and processes, profiles and pipes that are left.
void TestOffice::OutlivesItsOffice()
{
    QFETCH(bool, host);
    QFETCH(int, signal);
    EndOffice();
    qputenv("UICOMPONENTS_OFFICE_TIMEOUT", QByteArray::number(ShortLimit));
    AxExcelFunction excel;
    QVERIFY(excel.OpenExcel(Path(QStringLiteral("lost.xlsx")), true));
    const pid_t office = Processes::Office(getpid());
    const pid_t victim = host ? Processes::Host(getpid()) : office;
    QVERIFY(office && victim);
    QCOMPARE(Profiles().size(), 1);
    const QStringList pipes = Processes::SocketFiles(office);
    QCOMPARE(pipes.size(), 2);
    QVERIFY(QFile::exists(pipes.at(0)) && QFile::exists(pipes.at(1)));
    QCOMPARE(kill(victim, signal), 0);
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!excel.SetMultiCellValue(1, 1, LargeTable())); // more than a hung host's socket takes
    QVERIFY(!excel.SaveExcel());
    QVERIFY(timer.elapsed() < ShortLimit + TimeToGo);
    QTRY_VERIFY_WITH_TIMEOUT(!Processes::Runs(office) && !Processes::Runs(victim), TimeToGo);
    QTRY_VERIFY_WITH_TIMEOUT(Profiles().isEmpty(), TimeToGo);
    QVERIFY(NoneExists(pipes));

    QVERIFY(excel.OpenExcel(Path(QStringLiteral("found.csv")), true));
    QVERIFY(excel.SetMultiCellValue(1, 1, {{QStringLiteral("x")}}));
    QVERIFY(excel.SaveExcel());
}

// Catches pipes and profiles of an office whose host dies before it has told anything about it.
void TestOffice::OutlivesAHostThatDiesEarly()
{
    EndOffice();
    QStringList pipes;
    std::atomic<bool> opened{false};
    std::thread killer([&pipes, &opened] {
        while (pipes.isEmpty() && !opened) {
            const pid_t host = Processes::Host(getpid());
            const pid_t office = host ? Processes::Office(getpid()) : 0;
            pipes = office ? Processes::SocketFiles(office) : QStringList();
            if (!pipes.isEmpty())
                kill(host, SIGKILL);
        }
    });
    AxExcelFunction excel;
    const bool open = excel.OpenExcel(Path(QStringLiteral("early.xlsx")), true);
    opened = true;
    killer.join();
    QVERIFY(!open);
    QVERIFY(!pipes.isEmpty());
    QVERIFY(NoneExists(pipes));
    QVERIFY(Profiles().isEmpty());
    QVERIFY(excel.OpenExcel(Path(QStringLiteral("early.xlsx")), true));
}

// Catches a file of which only a part was written when the office died.
void TestOffice::LeavesNoHalfFile()
{
    Rows rows;
    for (int row = 0; row < 20000; ++row)
        rows << QList<QString>{QString::number(row), Unicode, QStringLiteral("text")};
    QDir(m_folder.path()).mkdir(QStringLiteral("half"));
    const QString path = Path(QStringLiteral("half/table.xlsx"));
    AxExcelFunction excel;
    QVERIFY(excel.OpenExcel(path, true));
    QVERIFY(excel.SetMultiCellValue(1, 1, rows));
    const pid_t office = Processes::Office(getpid());
    const long long before = Processes::Ticks(office);
    std::thread killer([office, before] {
        while (Processes::Runs(office) && Processes::Ticks(office) < before + 10)
            std::this_thread::yield();
        kill(office, SIGKILL);
    });
    const bool saved = excel.SaveExcel();
    killer.join();
    QVERIFY(!saved);
    QCOMPARE(QDir(Path(QStringLiteral("half"))).entryList(QDir::Files | QDir::Hidden), QStringList());
}

void TestOffice::StoresOnAFullDisk_data()
{
    QTest::addColumn<QString>("disk");
    QTest::addColumn<QString>("size");
    QTest::addColumn<QByteArray>("told");
    const auto row = [](const char* name, const char* disk, const char* size, const char* told) {
        QTest::newRow(name) << QString::fromLatin1(disk) << QString::fromLatin1(size) << QByteArray(told);
    };
    row("target", "target", "64k", "110 [] [] 111\n");
    row("no room for the profile", "tmp", "64k", "000 [] [] 000\n");
    row("no room for the office's file", "tmp", "1m", "110 [] [] 111\n");
}

// Catches a half workbook, a success that is none, and temporary files that keep the disk full.
void TestOffice::StoresOnAFullDisk()
{
    QFETCH(QString, disk);
    QFETCH(QString, size);
    QFETCH(QByteArray, told);
    const QTemporaryDir place;
    const QDir folder(place.path());
    QVERIFY(folder.mkdir(QStringLiteral("target")) && folder.mkdir(QStringLiteral("tmp")));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("TMPDIR"), folder.filePath(QStringLiteral("tmp")));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), place.path());
    environment.insert(QStringLiteral("UICOMPONENTS_OFFICE_IDLE"), QStringLiteral("200"));
    // In the eyes of the client alone, one of the folders is a small disk.
    const QString command
        = QStringLiteral("mount -t tmpfs -o size=$0 none $1 && echo mounted && exec $2 --store $3");
    QProcess client;
    client.setProcessEnvironment(environment);
    client.start(
        QStringLiteral("unshare"),
        {QStringLiteral("--user"), QStringLiteral("--map-root-user"), QStringLiteral("--mount"),
         QStringLiteral("sh"), QStringLiteral("-c"), command, size, folder.filePath(disk),
         QCoreApplication::applicationFilePath(), folder.filePath(QStringLiteral("target/table.xlsx"))});
    QVERIFY(client.waitForFinished(LongestStore));
    const QByteArray output = client.readAllStandardOutput();
    if (!output.startsWith("mounted\n"))
        QSKIP("this system lets no user mount a disk of his own");
    QCOMPARE(output, "mounted\n" + told);
}

// Catches an office that does not come up because the client leaves its children to the system: the first
// start of a profile ends with a wish to be started again.
void TestOffice::StartsForAClientThatIgnoresItsChildren()
{
    const auto application = Application();
    QVERIFY(!application->isNull());
    EndOffice();
    QVERIFY(application->isNull());
    const auto before = std::signal(SIGCHLD, SIG_IGN);
    const AxExcelVersion_e version = AxExcelFunction::CheckExcelVersion();
    EndOffice();
    std::signal(SIGCHLD, before);
    QCOMPARE(version, AxExcel_Xlsx);
}

/// A program folder like the real one, but for the office itself.
QString TestOffice::BrokenProgramFolder(const QByteArray& script) const
{
    const QDir real(QStringLiteral(OFFICE_PROGRAM));
    const QString folder = Path(QStringLiteral("program-%1").arg(qHash(script)));
    if (!QDir().mkpath(folder))
        return QString();
    const QStringList names = real.entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    for (const QString& name : names)
        QFile::link(real.filePath(name), folder + QLatin1Char('/') + name);
    QFile program(folder + QLatin1String("/soffice.bin"));
    program.remove();
    const bool written = program.open(QIODevice::WriteOnly) && program.write(script) == script.size();
    program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return written ? folder : QString();
}

void TestOffice::GivesUpOnABrokenOffice_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QByteArray>("temporary");
    const QByteArray temporary = qgetenv("TMPDIR");
    QTest::newRow("none") << QByteArray() << temporary;
    QTest::newRow("ends at once") << QByteArray("#!/bin/sh\nexit 1\n") << temporary;
    QTest::newRow("never listens") << QByteArray("#!/bin/sh\nexec sleep 1000\n") << temporary;
    QTest::newRow("starts again and again") << QByteArray("#!/bin/sh\nexit 81\n") << temporary;
    QTest::newRow("has no place") << QByteArray("#!/bin/sh\nexit 1\n") << QByteArray("/nonexistent");
}

// Catches a client that waits for ever for an office that is missing or does not start.
void TestOffice::GivesUpOnABrokenOffice()
{
    QFETCH(QByteArray, script);
    QFETCH(QByteArray, temporary);
    EndOffice();
    const QString folder = script.isEmpty() ? Path(QStringLiteral("nowhere")) : BrokenProgramFolder(script);
    QVERIFY(!folder.isEmpty());
    qputenv("UICOMPONENTS_OFFICE_PATH", QFile::encodeName(folder));
    qputenv("UICOMPONENTS_OFFICE_TIMEOUT", QByteArray::number(ShortLimit));
    qputenv("TMPDIR", temporary);
    AxExcelFunction excel;
    const bool open = excel.OpenExcel(Path(QStringLiteral("none.xlsx")), true);
    qputenv("TMPDIR", QFile::encodeName(m_temporary.path()));
    QVERIFY(!open);
    QCOMPARE(excel.GetErrorMsg(), QStringLiteral("The excel application is not found."));
    QCOMPARE(AxExcelFunction::GetExcelFileFilter(true), QString());
    QVERIFY(Profiles().isEmpty());
    QCOMPARE(Processes::Host(getpid()), 0);
}

// Catches a profile that is taken from another client that is at work, or from another user, or one that a
// link only leads to, and an abandoned one that stays.
void TestOffice::ClearsUpAbandonedProfilesOnly()
{
    EndOffice();
    const QDir temporary(m_temporary.path());
    const auto profile
        = [](const char* name) { return QLatin1String("uicomponents-office-") + QLatin1String(name); };
    const auto lock
        = [&](const char* name) { return temporary.filePath(profile(name) + QLatin1String("/lock")); };
    for (const char* name : {"abandoned", "foreign", "new", "used"})
        QVERIFY(temporary.mkdir(profile(name)));
    QVERIFY(QDir().mkpath(Path(QStringLiteral("linked"))));
    QVERIFY(QFile::link(Path(QStringLiteral("linked")), temporary.filePath(profile("link"))));
    QFile used(lock("used"));
    QVERIFY(used.open(QIODevice::WriteOnly) && flock(used.handle(), LOCK_EX) == 0);
    for (const char* name : {"abandoned", "foreign", "link"})
        QVERIFY(QFile(lock(name)).open(QIODevice::WriteOnly));
    constexpr uid_t Nobody = 65534;
    const bool foreign
        = chown(QFile::encodeName(temporary.filePath(profile("foreign"))).constData(), Nobody, 0) == 0;
    qputenv("UICOMPONENTS_OFFICE_PATH", QFile::encodeName(BrokenProgramFolder("#!/bin/sh\nexit 1\n")));
    QCOMPARE(AxExcelFunction::CheckExcelVersion(), AxExcel_None);
    QStringList left{profile("link"), profile("new"), profile("used")};
    if (foreign) // as an administrator only
        left.prepend(profile("foreign"));
    QCOMPARE(Profiles(), left);
    QVERIFY(QFile::exists(lock("link")));
    for (const QString& name : qAsConst(left))
        QVERIFY(
            QFile::remove(temporary.filePath(name)) || QDir(temporary.filePath(name)).removeRecursively());
}

// Catches an office that stays for the whole shift after one export.
void TestOffice::GoesAwayWhenUnused()
{
    EndOffice();
    qputenv("UICOMPONENTS_OFFICE_IDLE", "200");
    {
        AxExcelFunction excel;
        QVERIFY(excel.OpenExcel(Path(QStringLiteral("idle.csv")), true));
        QTest::qWait(600); // held, it stays
        QVERIFY(excel.SetMultiCellValue(1, 1, {{QStringLiteral("x")}}));
    }
    QTRY_COMPARE_WITH_TIMEOUT(Processes::Host(getpid()), 0, TimeToGo);
    QTRY_VERIFY_WITH_TIMEOUT(Profiles().isEmpty(), TimeToGo);
    QCOMPARE(AxExcelFunction::CheckExcelVersion(), AxExcel_Xlsx);
}

void TestOffice::EndsWithTheClient_data()
{
    QTest::addColumn<bool>("killed");
    QTest::addColumn<bool>("withHost");
    QTest::newRow("killed") << true << false;
    QTest::newRow("killed with its host") << true << true;
    QTest::newRow("left") << false << false;
}

// Catches offices and profiles that pile up behind clients that crash or simply end.
void TestOffice::EndsWithTheClient()
{
    QFETCH(bool, killed);
    QFETCH(bool, withHost);
    EndOffice();
    QStringList pipes;
    QProcess client;
    client.start(
        QCoreApplication::applicationFilePath(),
        {killed ? QStringLiteral("--hold") : QStringLiteral("--leave"), Path(QStringLiteral("held.xlsx"))});
    QVERIFY(client.waitForStarted());
    if (killed) {
        QVERIFY(client.waitForReadyRead());
        QCOMPARE(client.readLine(), QByteArray("open\n"));
        const pid_t office = Processes::Office(static_cast<pid_t>(client.processId()));
        QVERIFY(office);
        QCOMPARE(Profiles().size(), 1);
        pipes = Processes::SocketFiles(office);
        QCOMPARE(pipes.size(), 2);
        if (withHost)
            kill(Processes::Host(static_cast<pid_t>(client.processId())), SIGKILL);
        client.kill();
        QVERIFY(client.waitForFinished());
        QTRY_VERIFY_WITH_TIMEOUT(!Processes::Runs(office), TimeToGo);
        QTRY_VERIFY_WITH_TIMEOUT(!withHost || IsAbandoned(Profiles().value(0)), TimeToGo);
    } else {
        QVERIFY(client.waitForFinished());
        QCOMPARE(client.exitStatus(), QProcess::NormalExit);
        QCOMPARE(client.readAllStandardOutput(), QByteArray("open\n"));
    }
    if (withHost) { // nobody is left to clear up but the next client
        QCOMPARE(Profiles().size(), 1);
        QCOMPARE(AxExcelFunction::CheckExcelVersion(), AxExcel_Xlsx);
        QCOMPARE(Profiles().size(), 1);
    } else {
        QTRY_VERIFY_WITH_TIMEOUT(Profiles().isEmpty(), TimeToGo);
    }
    QVERIFY(NoneExists(pipes));
}

int main(int argc, char** argv)
{
    TestSupport::PrepareEnvironment();
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString task = arguments.size() == 3 ? arguments.at(1) : QString();
    if (task == QLatin1String("--store"))
        return StoreOnFullDisk(arguments.at(2));
    if (task == QLatin1String("--hold") || task == QLatin1String("--leave"))
        return HoldWorkbook(arguments.at(2), task == QLatin1String("--leave"));
    TestOffice test;
    return TestSupport::RunStrictly(test, argc, argv);
}

#include "tst_office.moc"
