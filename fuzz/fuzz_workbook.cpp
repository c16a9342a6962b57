// Workbooks from outside, as the spreadsheet application hands their cells over: any value for anything that
// is asked, read by the spreadsheet class and by the import of alarms. Then the addresses and the paths.

#include "Expect.h"

#include <Platform/Automation/AutomationRegistry.h>
#include <Platform/Automation/Office/OfficeValue.h>
#include <UI/Spreadsheet/AxExcelFunction.h>
#include <UI/Spreadsheet/SheetAddress.h>
#include <UI/Spreadsheet/WorkbookPath.h>
#include <gallery/Alarms/AlarmImport.h>

#include <QDataStream>
#include <QFile>
#include <QTemporaryFile>
#include <cstddef>
#include <cstdint>
#include <set>

using namespace UICommonMdl;
using Automation::AutomationObject;

namespace {

/// An application all of whose sheets hold the same.
class Answering : public AutomationObject
{
public:
    explicit Answering(const QVariantList& answers)
        : m_answers(answers)
    { }

    bool isNull() const override { return false; }
    QVariant dynamicCall(const QString& member, const QVariantList&) override
    {
        return member == QLatin1String("Value") ? m_answers.value(0) : m_answers.value(1);
    }
    std::unique_ptr<AutomationObject> querySubObject(const QString&, const QVariantList&) override
    {
        return std::make_unique<Answering>(m_answers);
    }
    QVariant property(const QString& name) const override
    {
        return name == QLatin1String("Version") ? QVariant(16) : QVariant(1);
    }
    bool setProperty(const QString&, const QVariant&) override { return true; }

private:
    const QVariantList m_answers;
};

/// A file that is there, whatever the application says of it.
QString Workbook()
{
    static QTemporaryFile file;
    static const bool open = file.open();
    Expect(open, "the file can be written");
    return file.fileName();
}

/// What lies around the first and the last of @p count, counted from 1 on.
std::set<int> Edges(int count) { return {-1, 0, 1, 2, count - 1, count, count + 1, count + 2}; }

void ReadCells(AxExcelFunction& excel)
{
    const int rows = excel.GetRowCout();
    const int columns = excel.GetColumnCout();
    Expect(rows >= 0 && columns >= 0, "there are no fewer rows and columns than none");
    for (const int row : Edges(rows)) {
        QStringList texts;
        excel.GetRowValue(row, texts);
        Expect(texts.size() <= columns || rows == 0, "no row is longer than the longest");
        for (const int column : Edges(columns)) {
            const QString text = excel.GetCellValue(row, column);
            const bool inside = row >= 1 && column >= 1 && column <= texts.size();
            Expect(inside || text.isEmpty() || rows == 0, "there is nothing outside");
        }
    }
}

void ReadWorkbook(const QVariantList& answers)
{
    Automation::AutomationRegistry::SetObjectFactory(
        QStringLiteral("Excel.Application"), [answers] { return std::make_unique<Answering>(answers); });
    AxExcelFunction excel;
    Expect(excel.OpenExcel(Workbook(), false), "the application opens it");
    ReadCells(excel);
    const auto import = OperatorClient::AlarmImport::Read(Workbook());
    Expect(import.error.isEmpty() || import.alarms.isEmpty(), "alarms or an error");
    for (const auto& alarm : import.alarms)
        Expect(alarm.time.isValid(), "an alarm has a time");
}

void CheckAddresses(int row, int column)
{
    const QString name = SheetAddress::ColumnName(column);
    Expect(!name.isEmpty() && name.size() < 8, "a column's name has a few letters");
    Expect(SheetAddress::Cell(row, column).startsWith(name), "a cell begins with its column");
    const QString block = SheetAddress::Block(row, column, column, row);
    Expect(block.startsWith(SheetAddress::Cell(row, column) + QLatin1Char(':')), "a block begins there");
}

void CheckPath(const QString& path)
{
    const QString suffix = WorkbookPath::Suffix(path);
    Expect(path.endsWith(suffix), "a suffix ends the path");
    Expect(WorkbookPath::ForXlsOnly(path).endsWith(QLatin1String("xls"), Qt::CaseInsensitive), "xls is xls");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    QDataStream stream(bytes);
    stream.setVersion(QDataStream::Qt_5_15);
    const QVariant cells = Office::ReadValue(stream);
    const QVariant other = Office::ReadValue(stream);
    ReadWorkbook({cells, other});
    qint32 row = 0;
    qint32 column = 0;
    stream >> row >> column;
    CheckAddresses(row, column);
    CheckPath(QString::fromUtf8(bytes));
    return 0;
}
