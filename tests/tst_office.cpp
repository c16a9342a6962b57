// The spreadsheet classes with a real office: what it stores is read by libraries that have nothing to do
// with it, and it is stopped, killed and taken away.

#include "office/Processes.h"
#include "support/Columns.h"
#include "support/StrictMain.h"
#include "support/Text.h"

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

using namespace TestSupport;
using namespace UICommonMdl;
using Automation::AutomationObject;
using Automation::AutomationRegistry;

namespace {

using Rows = QList<QList<QString>>;

constexpr int ShortLimit = 3000; // for an office that hangs, milliseconds
constexpr int TimeToGo = 10000; // until a process and its files are gone, milliseconds
constexpr int LongestStore = 120000; // of a table that does not fit, on a busy machine, milliseconds

const QString Unicode = "\u00C4\u4E2D\u6587 \U0001F600"_s;

QJsonObject ReadWorkbook(const QString& path)
{
    QProcess reader;
    reader.start("/usr/bin/python3"_s, {QStringLiteral(OFFICE_READER), path});
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
    return AutomationRegistry::CreateObject("Excel.Application"_s);
}

std::unique_ptr<AutomationObject> NewSheet(AutomationObject& application)
{
    const auto books = application.querySubObject("WorkBooks"_s);
    books->dynamicCall("Add"_s);
    const auto book = application.querySubObject("ActiveWorkBook"_s);
    return book ? book->querySubObject("WorkSheets(int)"_s, {1}) : nullptr;
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
    told += ' ' + StoreInSteps(path, {{"x"_s}});
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
    void initTestCase()
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

    void cleanup()
    {
        for (const char* name :
             {"UICOMPONENTS_OFFICE_PATH", "UICOMPONENTS_OFFICE_TIMEOUT", "UICOMPONENTS_OFFICE_IDLE"})
            qunsetenv(name);
    }

    // Catches values, merges and styles that are lost or converted on the way into the file.
    void StoresStyledTables()
    {
        const QString path = Path("styled.xlsx"_s);
        {
            AxExcelFunction excel;
            QVERIFY(excel.OpenExcel(path, true));
            QVERIFY(excel.SetSheetName("Alarms"_s));
            excel.SetExcelTitleProperty();
            excel.SetCellHorizontalAlignment(AxExcelFunction::HAlign_Left);
            excel.SetCellVerticalAlignment(AxExcelFunction::VAlign_Bottom);
            QVERIFY(excel.SetMergeCellValue(1, 1, 1, 3, Unicode));
            excel.SetCellHeaderProperty();
            QVERIFY(excel.SetMultiCellValue(2, 1, {{"id"_s, "n"_s, "t"_s}}));
            excel.SetCellContextProperty();
            excel.SetFontName("DejaVu Serif"_s);
            excel.SetFontItalic(true);
            excel.SetFontUnderline(true);
            excel.SetBordersColor(QColor(255, 0, 0));
            excel.SetCellHorizontalAlignment(AxExcelFunction::HAlign_Right);
            excel.SetCellVerticalAlignment(AxExcelFunction::VAlign_Top);
            excel.BeginAddMemory(3, 3, 1);
            for (const char* text : {"007", "1.50", "2026-03-14", "", "=1+1"})
                excel.AddCellValue(QLatin1String(text));
            excel.AddNoAutoTranCellValue("'quoted'"_s);
            excel.AddCellValue("two\nlines"_s);
            QVERIFY(excel.EndAddMemoryAndSave());
            QVERIFY(excel.SaveExcel());
        }
        const QJsonObject book = ReadWorkbook(path);
        QCOMPARE(book.value("name"_s).toString(), "Alarms"_s);
        QCOMPARE(book.value("merged"_s).toArray(), QJsonArray{"A1:C1"_s});
        const QJsonObject cells = book.value("cells"_s).toObject();
        const auto cell = [&](const QString& name) { return cells.value(name).toObject(); };
        const auto field = [&](const char* name, const char* key) {
            return cell(QLatin1String(name)).value(QLatin1String(key)).toVariant();
        };
        for (const char* look :
             {"A1 fill 333399", "A1 color ffffff", "A1 size 16", "A1 horizontal left", "A1 vertical bottom",
              "A2 bold true", "A2 fill ffffff", "A2 horizontal center", "A3 fill f3f5b8",
              "A3 font DejaVu Serif", "A3 size 9", "A3 italic true", "A3 underline single", "A3 bold false",
              "A3 horizontal right", "A3 vertical top", "A3 wrap true", "B4 line thin"}) {
            const QString text = QLatin1String(look);
            const QJsonValue found
                = cell(text.section(QLatin1Char(' '), 0, 0)).value(text.section(QLatin1Char(' '), 1, 1));
            QVERIFY2(found.toVariant().toString() == text.section(QLatin1Char(' '), 2), look);
        }
        QCOMPARE(field("A1", "value"), QVariant(Unicode));
        QVERIFY(field("A4", "value").isNull());
        // Texts stay texts, whatever they look like.
        const char* names[] = {"A3", "B3", "C3", "B4", "C4", "A5"};
        const char* values[] = {"007", "1.50", "2026-03-14", "=1+1", "'quoted'", "two\nlines"};
        for (int i = 0; i < 6; ++i) {
            QCOMPARE(field(names[i], "value"), QVariant(QLatin1String(values[i])));
            QCOMPARE(field(names[i], "format"), QVariant("@"_s));
        }
        const QString red = "ff0000"_s;
        QCOMPARE(Texts(cell("B4"_s).value("borders"_s)), (QStringList{red, red, red, red}));
        const QJsonObject heights = book.value("heights"_s).toObject();
        QCOMPARE(qRound(heights.value("1"_s).toDouble()), 30);
        QCOMPARE(qRound(heights.value("4"_s).toDouble()), 20);
        const double width = book.value("width"_s).toDouble();
        QVERIFY2(qAbs(width - 18) < 1.5, qPrintable(QString::number(width)));
    }

    void StoresOtherFormats_data()
    {
        QTest::addColumn<QString>("name");
        Row("xls", "table.xls");
        Row("csv", "table.csv");
    }

    // Catches a file that other programs open with wrong letters, split cells or lost zeros, and a text that
    // comes back as the result of a formula.
    void StoresOtherFormats()
    {
        QFETCH(QString, name);
        const bool mark = name.endsWith("csv"_s);
        const Rows rows{
            {"007"_s, "a,b"_s, "say \"no\""_s}, {Unicode, "two\nlines"_s, "1;2"_s}, {"=1+1"_s, "x"_s}};
        QVERIFY(Store(Path(name), rows));
        const QJsonObject book = ReadWorkbook(Path(name));
        QCOMPARE(book.value("mark"_s).toString(), mark ? QString(QChar(0xFEFF)) : QString());
        const QJsonArray stored = book.value("rows"_s).toArray();
        QCOMPARE(stored.size(), 3);
        QCOMPARE(Texts(stored.at(0)), rows.at(0));
        QCOMPARE(Texts(stored.at(1)), rows.at(1));
        QCOMPARE(Texts(stored.at(2)), rows.at(2) + QStringList{QString()});
        AxExcelFunction excel;
        QVERIFY(excel.OpenExcel(Path(name), false));
        QCOMPARE(RowOf(excel, 3).value(0), "=1+1"_s);
        if (mark) { // quoted where needed only
            QFile file(Path(name));
            QVERIFY(file.open(QIODevice::ReadOnly));
            QVERIFY(file.readLine().endsWith("007,\"a,b\",\"say \"\"no\"\"\"\n"));
        }
    }

    // Catches columns that are printed on pages of their own.
    void FitsPdfColumnsOnThePage()
    {
        Rows rows;
        for (int row = 0; row < 120; ++row) {
            QList<QString> cells;
            for (int column = 0; column < 15; ++column)
                cells << "r%1c%2"_s.arg(row).arg(column);
            rows << cells;
        }
        QVERIFY(Store(Path("wide.pdf"_s), rows));
        const QJsonArray pages = ReadWorkbook(Path("wide.pdf"_s)).value("pages"_s).toArray();
        QVERIFY(pages.size() > 1);
        QStringList words;
        for (const QJsonValue& page : pages) {
            const QStringList onPage = Texts(page);
            QCOMPARE(onPage.filter("c14"_s).size(), onPage.filter(QRegularExpression("c0$"_s)).size());
            words << onPage;
        }
        for (const QList<QString>& row : rows)
            QVERIFY2(words.contains(row.first()) && words.contains(row.last()), qPrintable(row.first()));
    }

    // Catches kinds of cells that arrive as others, and rows that move up over empty ones.
    void ReadsWorkbooksOfOthers()
    {
        AxExcelFunction excel;
        QVERIFY(excel.OpenExcel(WriteForeignWorkbook(), false));
        QCOMPARE(excel.GetRowCout(), 4);
        QCOMPARE(excel.GetColumnCout(), 10);
        QCOMPARE(excel.GetCellVariantValue(1, 3), QVariant("moment"_s));
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
        QCOMPARE(excel.GetCellValue(4, 1), "last"_s);
        QVERIFY(!excel.SaveExcel());
    }

    void ReadsWhatItCannotReadAsNothing_data()
    {
        Columns<QString, QByteArray, bool>("name", "content", "opens");
        Row("damaged xlsx", "damaged.xlsx", QByteArray("PK\x03\x04 not a zip"), false);
        Row("empty csv", "empty.csv", QByteArray(), true);
        Row("one row", "one.csv",
            QByteArray("\xEF\xBB\xBF"
                       "a,b\n"),
            true);
    }

    // Catches rows made up for a file without any, and an office that a damaged file leaves unusable.
    void ReadsWhatItCannotReadAsNothing()
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
        QCOMPARE(excel.GetErrorMsg(), opens ? QString() : "Open excel file failed."_s);
        QCOMPARE(excel.GetRowCout(), 0);
        QVERIFY(Store(Path("after.csv"_s), {{"x"_s}}));
    }

    // Catches a number, date, truth value or gap that comes back as something else, and a block that is
    // larger or smaller than its range.
    void PassesValuesBothWays()
    {
        const auto application = Application();
        const auto sheet = NewSheet(*application);
        QVERIFY(sheet);
        const QDateTime moment(QDate(2026, 12, 31), QTime(23, 59, 59, 999));
        const QVariantList first{1.5, -7, true, moment};
        const QVariantList second{"'007"_s, QDateTime(), false, QDate(1900, 3, 1)};
        const auto range = [&](const char* address) {
            return sheet->querySubObject("Range(const QString&)"_s, {QLatin1String(address)});
        };
        const QString set = "SetValue(const QVariant&)"_s;
        const QVariant block = QVariantList{QVariant(first + QVariantList{99}), QVariant(second)};
        range("B2:E4")->dynamicCall(set, {block});
        const QVariantList rows = range("B2:E4")->dynamicCall("Value"_s).toList();
        QCOMPARE(rows.size(), 3);
        QCOMPARE(rows.at(0).toList(), (QVariantList{1.5, -7.0, true, moment}));
        QCOMPARE(
            rows.at(1).toList(), (QVariantList{"007"_s, QVariant(), false, QDate(1900, 3, 1).startOfDay()}));
        QCOMPARE(rows.at(2).toList(), (QVariantList{QVariant(), QVariant(), QVariant(), QVariant()}));
        const auto used = sheet->querySubObject("UsedRange"_s);
        QCOMPARE(used->dynamicCall("Value"_s).toList().size(), 2);

        const auto other = NewSheet(*application);
        const auto empty = other->querySubObject("UsedRange"_s)->dynamicCall("Value"_s);
        QCOMPARE(empty, QVariant());
        other->querySubObject("Range(const QString&)"_s, {"C3"_s})->dynamicCall(set, {4});
        QCOMPARE(other->querySubObject("UsedRange"_s)->dynamicCall("Value"_s), QVariant(4.0));
        const auto pair = other->querySubObject("Range(const QString&)"_s, {"C3:C4"_s});
        const QVariant texts = QVariantList{QVariantList{"1"_s}, QVariantList{QVariant()}};
        const QVariant dates = QVariantList{QVariantList{moment}, QVariantList{moment}};
        for (const auto& [sent, received] : {qMakePair(texts, texts), qMakePair(QVariant(moment), dates)}) {
            pair->dynamicCall(set, {sent});
            QCOMPARE(pair->dynamicCall("Value"_s), received);
        }
    }

    // Catches rows of a large block, which crosses in pieces, that are lost, swapped or formatted as others.
    void PassesLargeBlocks()
    {
        constexpr int Count = 12345;
        QVariantList rows;
        for (int row = 0; row < Count; ++row) {
            const QVariant moment = QDateTime(QDate(2026, 3, 14).addDays(row), QTime(12, 0));
            rows << QVariant(
                QVariantList{double(row), QString::number(row), row % 5000 ? QVariant() : moment});
        }
        const auto application = Application();
        const auto range = NewSheet(*application)->querySubObject("Range(const QString&)"_s, {"B3:D12350"_s});
        range->dynamicCall("SetValue(const QVariant&)"_s, {QVariant(rows)});
        const QVariantList stored = range->dynamicCall("Value"_s).toList();
        QCOMPARE(stored.size(), Count + 3);
        QCOMPARE(stored.mid(0, Count), rows);
        QCOMPARE(stored.last().toList(), (QVariantList{QVariant(), QVariant(), QVariant()}));
    }

    void CopesWithUnusualPaths_data()
    {
        QTest::addColumn<QString>("name");
        Row("spaces", "my table .xlsx");
        Row("hash and percent", "50%#1%20.xlsx");
        Row("question mark and quotes", "what?'\"&;.xlsx");
        Row("unicode", Unicode + ".xlsx"_s);
    }

    // Catches a path that is cut or decoded on its way into an address.
    void CopesWithUnusualPaths()
    {
        QFETCH(QString, name);
        QDir(m_folder.path()).mkdir("paths"_s);
        const QString path = Path("paths/"_s + name);
        QVERIFY(Store(path, {{"a"_s}, {"b"_s}}));
        QCOMPARE(QDir(Path("paths"_s)).entryList(QDir::Files | QDir::Hidden), QStringList{name});
        AxExcelFunction excel;
        QVERIFY(excel.OpenExcel(path, false));
        QCOMPARE(RowOf(excel, 2), QStringList{"b"_s});
        // Neither a lock file beside it, nor is it changed.
        QCOMPARE(QDir(Path("paths"_s)).entryList(QDir::Files | QDir::Hidden), QStringList{name});
        excel.FreeExcel();
        QVERIFY(QFile::remove(path));
    }

    // Catches a relative path that counts from the folder in which the office was started.
    void FollowsTheClientsFolder()
    {
        const QString before = QDir::currentPath();
        QDir(m_folder.path()).mkdir("here"_s);
        QVERIFY(QDir::setCurrent(Path("here"_s)));
        const bool stored = Store("near.xlsx"_s, {{"a"_s}, {"b"_s}});
        AxExcelFunction excel;
        const bool opened = excel.OpenExcel("../here/near.xlsx"_s, false);
        QVERIFY(QDir::setCurrent(before));
        QVERIFY(stored);
        QVERIFY(QFile::exists(Path("here/near.xlsx"_s)));
        QVERIFY(opened);
        QCOMPARE(RowOf(excel, 2), QStringList{"b"_s});
    }

    void ReportsUnwritablePlaces_data()
    {
        QTest::addColumn<QString>("path");
        Row("read-only folder", "/proc/self/table.xlsx"); // also for root
        Row("no folder", Path("missing/table.csv"_s));
        Row("a file for a folder", QStringLiteral(OFFICE_READER) + "/table.pdf"_s);
    }

    // Catches a table that is told to be stored and is not.
    void ReportsUnwritablePlaces()
    {
        QFETCH(QString, path);
        AxExcelFunction excel;
        QVERIFY(excel.OpenExcel(path, true));
        QVERIFY(excel.SetMultiCellValue(1, 1, {{"x"_s}}));
        QVERIFY(!excel.SaveExcel());
        QVERIFY(!QFile::exists(path));
        QVERIFY(Processes::Runs(Processes::Office(getpid())));
    }

    // Catches a name that other spreadsheet applications cannot open, and one that breaks the bridge.
    void RefusesBadSheetNames()
    {
        const auto application = Application();
        const auto sheet = NewSheet(*application);
        const QString name = "Name"_s;
        QVERIFY(sheet->setProperty(name, Unicode));
        for (const QString& bad :
             {QString(), "a/b"_s, "[x]"_s, "'x"_s, "x'"_s, "a\tb"_s, QString(32, QLatin1Char('x'))})
            QVERIFY2(!sheet->setProperty(name, bad), qPrintable(bad));
        QCOMPARE(sheet->property(name), QVariant(Unicode));
    }

    // Catches a workbook that is written into, or closed by, the other's user, and a second office for the
    // second workbook or for the version probe, which would cost seconds each.
    void KeepsTwoWorkbooksApart()
    {
        const pid_t office = Processes::Office(getpid());
        QVERIFY(office);
        AxExcelFunction books[2];
        const QString paths[] = {Path("first.csv"_s), Path("second.csv"_s)};
        for (int i = 0; i < 2; ++i)
            QVERIFY(books[i].OpenExcel(paths[i], true));
        for (int i = 0; i < 2; ++i)
            QVERIFY(books[i].SetMultiCellValue(1, 1, {{paths[i]}}));
        QVERIFY(books[1].SaveExcel());
        books[1].FreeExcel();
        QVERIFY(books[0].SaveExcel());
        for (const QString& path : paths)
            QCOMPARE(Texts(ReadWorkbook(path).value("rows"_s).toArray().at(0)), QStringList{path});
        AxExcelFunction::GetExcelFileFilter(true);
        QCOMPARE(Processes::Office(getpid()), office);
        QCOMPARE(Profiles().size(), 1);
    }

    // Catches an unknown member that ends the office, and objects that work on after their application has
    // quit.
    void RefusesWhatItDoesNotKnow()
    {
        const auto application = Application();
        const QString active = "ActiveWorkBook"_s;
        QVERIFY(!application->querySubObject(active));
        const auto sheet = NewSheet(*application);
        const QString range = "Range(const QString&)"_s;
        for (const char* address : {"A@1", "", "A0:B0", "A2147483647:B2147483648", "ZZZZ1"})
            QVERIFY2(!sheet->querySubObject(range, {QLatin1String(address)}), address);
        const auto cell = sheet->querySubObject(range, {"A1"_s});
        const auto book = application->querySubObject(active);
        const auto books = application->querySubObject("WorkBooks"_s);
        const auto font = cell->querySubObject("Font"_s);
        const auto interior = cell->querySubObject("Interior"_s);
        const auto borders = cell->querySubObject("Borders"_s);
        for (AutomationObject* object :
             {application.get(), books.get(), book.get(), sheet.get(), cell.get(), font.get(), interior.get(),
              borders.get()}) {
            // The latter ones are known, but want arguments.
            for (const char* member :
                 {"Explode()", "Open", "Range", "SetValue", "SaveAs", "ExportAsFixedFormat"}) {
                QVERIFY2(!object->dynamicCall(QLatin1String(member)).isValid(), member);
                QVERIFY2(!object->querySubObject(QLatin1String(member)), member);
            }
            QVERIFY(!object->property("Colour"_s).isValid());
            QVERIFY(!object->setProperty("Colour"_s, 1));
        }
        const auto most = sheet->querySubObject(range, {"A1:ALL30000"_s});
        most->dynamicCall("SetValue"_s, {1});
        QVERIFY(!most->dynamicCall("Value"_s).isValid());
        QVERIFY(!cell->dynamicCall("Value"_s).isValid());
        const QString format = "NumberFormatLocal"_s;
        QVERIFY(cell->setProperty(format, "0.00\" km\""_s));
        QVERIFY(!cell->setProperty(format, "[$-"_s));
        QVERIFY(!interior->setProperty("Color"_s, "none"_s));
        for (const char* alignment : {"HorizontalAlignment", "VerticalAlignment"})
            QVERIFY2(!cell->setProperty(QLatin1String(alignment), 5), alignment);
        for (const int index : {0, 9})
            QVERIFY(!book->querySubObject("WorkSheets(int)"_s, {index}));
        const QString save = "SaveAs(const QString &, int)"_s;
        QVERIFY(book->dynamicCall(save, {Path("table.xlsx"_s), 51}).toBool());
        QVERIFY(!book->dynamicCall(save, {Path("table.ods"_s), 60}).toBool());
        const QVariantList xps{1, Path("table.xps"_s)};
        QVERIFY(!book->dynamicCall("ExportAsFixedFormat"_s, xps).isValid());
        books->dynamicCall("Add"_s);
        application->querySubObject(active)->dynamicCall("Close (Boolean)"_s, {false});
        QCOMPARE(application->querySubObject(active)->property("Count"_s), QVariant(1));
        book->dynamicCall("Close (Boolean)"_s, {false});
        QVERIFY(!book->dynamicCall(save, {Path("closed.csv"_s), 6}).toBool());
        QVERIFY(!cell->isNull());
        application->dynamicCall("Quit(void)"_s);
        QVERIFY(!cell->dynamicCall("Value"_s).isValid());
        QVERIFY(cell->isNull());
    }

    void OutlivesItsOffice_data()
    {
        Columns<bool, int>("host", "signal");
        Row("killed office", false, SIGKILL);
        Row("hung office", false, SIGSTOP);
        Row("killed host", true, SIGKILL);
        Row("hung host", true, SIGSTOP);
    }

    // Catches a client that freezes or crashes with its office, and processes, profiles and pipes that are
    // left.
    void OutlivesItsOffice()
    {
        QFETCH(bool, host);
        QFETCH(int, signal);
        EndOffice();
        qputenv("UICOMPONENTS_OFFICE_TIMEOUT", QByteArray::number(ShortLimit));
        AxExcelFunction excel;
        QVERIFY(excel.OpenExcel(Path("lost.xlsx"_s), true));
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

        QVERIFY(excel.OpenExcel(Path("found.csv"_s), true));
        QVERIFY(excel.SetMultiCellValue(1, 1, {{"x"_s}}));
        QVERIFY(excel.SaveExcel());
    }

    // Catches pipes and profiles of an office whose host dies before it has told anything about it.
    void OutlivesAHostThatDiesEarly()
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
        const bool open = excel.OpenExcel(Path("early.xlsx"_s), true);
        opened = true;
        killer.join();
        QVERIFY(!open);
        QVERIFY(!pipes.isEmpty());
        QVERIFY(NoneExists(pipes));
        QVERIFY(Profiles().isEmpty());
        QVERIFY(excel.OpenExcel(Path("early.xlsx"_s), true));
    }

    // Catches a file of which only a part was written when the office died.
    void LeavesNoHalfFile()
    {
        Rows rows;
        for (int row = 0; row < 20000; ++row)
            rows << QList<QString>{QString::number(row), Unicode, "text"_s};
        QDir(m_folder.path()).mkdir("half"_s);
        const QString path = Path("half/table.xlsx"_s);
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
        QCOMPARE(QDir(Path("half"_s)).entryList(QDir::Files | QDir::Hidden), QStringList());
    }

    void StoresOnAFullDisk_data()
    {
        Columns<QString, QString, QByteArray>("disk", "size", "told");
        const auto row = [](const char* name, const char* disk, const char* size, const char* told) {
            Row(name, QString::fromLatin1(disk), QString::fromLatin1(size), QByteArray(told));
        };
        row("target", "target", "64k", "110 [] [] 111\n");
        row("no room for the profile", "tmp", "64k", "000 [] [] 000\n");
        row("no room for the office's file", "tmp", "1m", "110 [] [] 111\n");
    }

    // Catches a half workbook, a success that is none, and temporary files that keep the disk full.
    void StoresOnAFullDisk()
    {
        QFETCH(QString, disk);
        QFETCH(QString, size);
        QFETCH(QByteArray, told);
        const QTemporaryDir place;
        const QDir folder(place.path());
        QVERIFY(folder.mkdir("target"_s) && folder.mkdir("tmp"_s));
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("TMPDIR"_s, folder.filePath("tmp"_s));
        environment.insert("XDG_RUNTIME_DIR"_s, place.path());
        environment.insert("UICOMPONENTS_OFFICE_IDLE"_s, "200"_s);
        // In the eyes of the client alone, one of the folders is a small disk.
        const QString command = "mount -t tmpfs -o size=$0 none $1 && echo mounted && exec $2 --store $3"_s;
        QProcess client;
        client.setProcessEnvironment(environment);
        client.start(
            "unshare"_s,
            {"--user"_s, "--map-root-user"_s, "--mount"_s, "sh"_s, "-c"_s, command, size,
             folder.filePath(disk), QCoreApplication::applicationFilePath(),
             folder.filePath("target/table.xlsx"_s)});
        QVERIFY(client.waitForFinished(LongestStore));
        const QByteArray output = client.readAllStandardOutput();
        if (!output.startsWith("mounted\n"))
            QSKIP("this system lets no user mount a disk of his own");
        QCOMPARE(output, "mounted\n" + told);
    }

    // Catches an office that does not come up because the client leaves its children to the system: the first
    // start of a profile ends with a wish to be started again.
    void StartsForAClientThatIgnoresItsChildren()
    {
        const auto application = Application();
        QVERIFY(!application->isNull());
        EndOffice();
        QTRY_VERIFY(application->isNull()); // told by the event loop
        const auto before = std::signal(SIGCHLD, SIG_IGN);
        const AxExcelVersion_e version = AxExcelFunction::CheckExcelVersion();
        EndOffice();
        std::signal(SIGCHLD, before);
        QCOMPARE(version, AxExcel_Xlsx);
    }

    void GivesUpOnABrokenOffice_data()
    {
        Columns<QByteArray, QByteArray>("script", "temporary");
        const QByteArray temporary = qgetenv("TMPDIR");
        Row("none", QByteArray(), temporary);
        Row("ends at once", QByteArray("#!/bin/sh\nexit 1\n"), temporary);
        Row("never listens", QByteArray("#!/bin/sh\nexec sleep 1000\n"), temporary);
        Row("starts again and again", QByteArray("#!/bin/sh\nexit 81\n"), temporary);
        Row("has no place", QByteArray("#!/bin/sh\nexit 1\n"), QByteArray("/nonexistent"));
    }

    // Catches a client that waits for ever for an office that is missing or does not start.
    void GivesUpOnABrokenOffice()
    {
        QFETCH(QByteArray, script);
        QFETCH(QByteArray, temporary);
        EndOffice();
        const QString folder = script.isEmpty() ? Path("nowhere"_s) : BrokenProgramFolder(script);
        QVERIFY(!folder.isEmpty());
        qputenv("UICOMPONENTS_OFFICE_PATH", QFile::encodeName(folder));
        qputenv("UICOMPONENTS_OFFICE_TIMEOUT", QByteArray::number(ShortLimit));
        qputenv("TMPDIR", temporary);
        AxExcelFunction excel;
        const bool open = excel.OpenExcel(Path("none.xlsx"_s), true);
        qputenv("TMPDIR", QFile::encodeName(m_temporary.path()));
        QVERIFY(!open);
        QCOMPARE(excel.GetErrorMsg(), "The excel application is not found."_s);
        QCOMPARE(AxExcelFunction::GetExcelFileFilter(true), QString());
        QVERIFY(Profiles().isEmpty());
        QCOMPARE(Processes::Host(getpid()), 0);
    }

    // Catches a profile that is taken from another client that is at work, or from another user, or one that
    // a link only leads to, and an abandoned one that stays.
    void ClearsUpAbandonedProfilesOnly()
    {
        EndOffice();
        const QDir temporary(m_temporary.path());
        const auto profile
            = [](const char* name) { return QLatin1String("uicomponents-office-") + QLatin1String(name); };
        const auto lock
            = [&](const char* name) { return temporary.filePath(profile(name) + QLatin1String("/lock")); };
        for (const char* name : {"abandoned", "foreign", "new", "used"})
            QVERIFY(temporary.mkdir(profile(name)));
        QVERIFY(QDir().mkpath(Path("linked"_s)));
        QVERIFY(QFile::link(Path("linked"_s), temporary.filePath(profile("link"))));
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
                QFile::remove(temporary.filePath(name))
                || QDir(temporary.filePath(name)).removeRecursively());
    }

    // Catches an office that stays for the whole shift after one export.
    void GoesAwayWhenUnused()
    {
        EndOffice();
        qputenv("UICOMPONENTS_OFFICE_IDLE", "200");
        {
            AxExcelFunction excel;
            QVERIFY(excel.OpenExcel(Path("idle.csv"_s), true));
            QTest::qWait(600); // held, it stays
            QVERIFY(excel.SetMultiCellValue(1, 1, {{"x"_s}}));
        }
        QTRY_COMPARE_WITH_TIMEOUT(Processes::Host(getpid()), 0, TimeToGo);
        QTRY_VERIFY_WITH_TIMEOUT(Profiles().isEmpty(), TimeToGo);
        QCOMPARE(AxExcelFunction::CheckExcelVersion(), AxExcel_Xlsx);
    }

    void EndsWithTheClient_data()
    {
        Columns<bool, bool>("killed", "withHost");
        Row("killed", true, false);
        Row("killed with its host", true, true);
        Row("left", false, false);
    }

    // Catches offices and profiles that pile up behind clients that crash or simply end.
    void EndsWithTheClient()
    {
        QFETCH(bool, killed);
        QFETCH(bool, withHost);
        EndOffice();
        QStringList pipes;
        QProcess client;
        client.start(
            QCoreApplication::applicationFilePath(),
            {killed ? "--hold"_s : "--leave"_s, Path("held.xlsx"_s)});
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

private:
    QString Path(const QString& name) const { return m_folder.filePath(name); }
    QStringList Profiles() const
    {
        return QDir(m_temporary.path()).entryList({"uicomponents-office-*"_s}, QDir::Dirs);
    }

    /// Whether no thread of a killed host is left that holds the profile: the last ones can outlive the
    /// office.
    bool IsAbandoned(const QString& profile) const
    {
        QFile lock(m_temporary.filePath(profile + QLatin1String("/lock")));
        return lock.open(QIODevice::ReadWrite) && flock(lock.handle(), LOCK_EX | LOCK_NB) == 0;
    }

    bool Store(const QString& path, const Rows& rows)
    {
        AxExcelFunction excel;
        return excel.OpenExcel(path, true) && excel.SetMultiCellValue(1, 1, rows) && excel.SaveExcel();
    }

    /// So that the next use starts a new one, which takes the present environment.
    void EndOffice()
    {
        if (const pid_t office = Processes::Office(getpid()))
            kill(office, SIGKILL);
        QTRY_VERIFY_WITH_TIMEOUT(Profiles().isEmpty(), TimeToGo);
        QTRY_COMPARE_WITH_TIMEOUT(Processes::Host(getpid()), 0, TimeToGo);
    }

    /// With a title row, and in each column another kind of cell.
    QString WriteForeignWorkbook() const
    {
        const QString path = Path("foreign.xlsx"_s);
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

    /// A program folder like the real one, but for the office itself.
    QString BrokenProgramFolder(const QByteArray& script) const
    {
        const QDir real(QStringLiteral(OFFICE_PROGRAM));
        const QString folder = Path("program-%1"_s.arg(qHash(script)));
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

    QTemporaryDir m_folder;
    QTemporaryDir m_temporary;
};

int main(int argc, char** argv)
{
    PrepareEnvironment();
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString task = arguments.size() == 3 ? arguments.at(1) : QString();
    if (task == QLatin1String("--store"))
        return StoreOnFullDisk(arguments.at(2));
    if (task == QLatin1String("--hold") || task == QLatin1String("--leave"))
        return HoldWorkbook(arguments.at(2), task == QLatin1String("--leave"));
    TestOffice test;
    return RunStrictly(test, argc, argv);
}

#include "tst_office.moc"
