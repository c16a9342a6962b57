#include <UI/Spreadsheet/AxExcelFunction.h>

#include <Platform/Automation/AutomationObject.h>
#include <Platform/Automation/AutomationRegistry.h>
#include <UI/Spreadsheet/ExcelCellStyle.h>
#include <UI/Spreadsheet/SheetAddress.h>
#include <UI/Spreadsheet/WorkbookPath.h>

#include <QDir>
#include <QFile>
#include <algorithm>

namespace UICommonMdl {

using Automation::AutomationObject;

namespace {

using ObjectPtr = std::unique_ptr<AutomationObject>;

enum ErrorCode
{
    NoError = 0,
    NoApplication = 1,
    OpenFailed = 2,
    NoSuchFile = 3,
    WrongHeader = 4, // for importers that check the column names themselves
};

constexpr int FirstXlsxVersion = 11;
constexpr int FormatCsv = 6;
constexpr int FormatXls = 56;
constexpr int FixedFormatPdf = 0;

bool IsMissing(const ObjectPtr& object) { return !object || object->isNull(); }

ObjectPtr CreateApplication()
{
    return Automation::AutomationRegistry::CreateObject(QStringLiteral("Excel.Application"));
}

void Quit(AutomationObject& application) { application.dynamicCall(QStringLiteral("Quit(void)")); }

void CloseWithoutSaving(AutomationObject& workbook)
{
    workbook.dynamicCall(QStringLiteral("Close (Boolean)"), {false});
}

AxExcelVersion_e VersionOf(const QVariant& version)
{
    return version.toString().toFloat() >= FirstXlsxVersion ? AxExcel_Xlsx : AxExcel_Xls;
}

ObjectPtr Range(AutomationObject& sheet, const QString& address)
{
    auto range = sheet.querySubObject(QStringLiteral("Range(const QString&)"), {address});
    return IsMissing(range) ? nullptr : std::move(range);
}

void SetValue(AutomationObject& range, const QVariant& value)
{
    range.dynamicCall(QStringLiteral("SetValue(const QVariant&)"), {value});
}

QVariant SaveAs(AutomationObject& workbook, const QString& path)
{
    return workbook.dynamicCall(QStringLiteral("SaveAs(const QString &)"), {QDir::toNativeSeparators(path)});
}

QVariant SaveAs(AutomationObject& workbook, const QString& path, int format)
{
    return workbook.dynamicCall(
        QStringLiteral("SaveAs(const QString &, int)"), {QDir::toNativeSeparators(path), format});
}

QVariant SaveAsPdf(AutomationObject& workbook, const QString& path)
{
    return workbook.dynamicCall(
        QStringLiteral("ExportAsFixedFormat(int, const QString &)"),
        {FixedFormatPdf, QDir::toNativeSeparators(path)});
}

QVariant SaveBySuffix(AutomationObject& workbook, const QString& path)
{
    const QString suffix = WorkbookPath::Suffix(path).toLower();
    if (suffix.isEmpty())
        return SaveAs(workbook, path + QLatin1String(".xlsx"));
    if (suffix == QLatin1String("xlsx"))
        return SaveAs(workbook, path);
    if (suffix == QLatin1String("csv"))
        return SaveAs(workbook, path, FormatCsv);
    if (suffix == QLatin1String("pdf"))
        return SaveAsPdf(workbook, path);
    return SaveAs(workbook, path, FormatXls);
}

} // namespace

AxExcelFunction::AxExcelFunction(QObject* parent)
    : QObject(parent)
    , m_pCellStyle(std::make_unique<ExcelCellStyle>())
{ }

AxExcelFunction::~AxExcelFunction() { FreeExcel(); }

AxExcelVersion_e AxExcelFunction::CheckExcelVersion()
{
    const ObjectPtr application = CreateApplication();
    if (!application)
        return AxExcel_None;
    const QVariant version
        = application->isNull() ? QVariant() : application->property(QStringLiteral("Version"));
    Quit(*application);
    return version.isValid() ? VersionOf(version) : AxExcel_None;
}

QString AxExcelFunction::GetExcelFileFilter(bool bExport)
{
    const AxExcelVersion_e version = CheckExcelVersion();
    if (version == AxExcel_None)
        return QString();
    QString xls = tr("EXCEL files (*.xls)");
    if (version == AxExcel_Xls)
        return xls;
    QStringList filters{tr("EXCEL files (*.xlsx)"), xls};
    if (bExport)
        filters << tr("CSV files (*.csv)") << tr("PDF files (*.pdf)");
    return filters.join(QLatin1String(";;"));
}

// Opening and closing

bool AxExcelFunction::OpenExcel(const QString& path, bool bCreate)
{
    if (path.isEmpty()) {
        m_iErrorCode = NoSuchFile;
        return false;
    }
    m_bWrite = bCreate;
    if (!IsFileReady(path, bCreate))
        return false;
    FreeExcel();
    m_iErrorCode = NoError;
    m_eVersion = CheckExcelVersion();
    if (m_eVersion == AxExcel_None) {
        m_iErrorCode = NoApplication;
        return false;
    }
    m_iErrorCode = OpenFailed;
    if (!StartApplication() || !OpenWorkbook(path) || !OpenFirstSheet())
        return false;
    if (!bCreate)
        ReadSheets();
    m_strFilePath = path;
    m_iErrorCode = NoError;
    return true;
}

/// Makes room for a new file, or looks whether the file is there.
bool AxExcelFunction::IsFileReady(const QString& path, bool create)
{
    if (create && QFile::exists(path))
        QFile::remove(path);
    if (QFile::exists(path) != create)
        return true;
    m_iErrorCode = create ? OpenFailed : NoSuchFile;
    return false;
}

bool AxExcelFunction::StartApplication()
{
    m_pApplication = CreateApplication();
    if (!m_pApplication)
        return false;
    if (m_pApplication->isNull())
        return FailToOpen();
    m_pApplication->dynamicCall(QStringLiteral("SetVisible(bool)"), {false});
    m_pApplication->setProperty(QStringLiteral("DisplayAlerts"), false);
    m_pWorkBooks = m_pApplication->querySubObject(QStringLiteral("WorkBooks"));
    if (IsMissing(m_pWorkBooks))
        return FailToOpen();
    return true;
}

bool AxExcelFunction::OpenWorkbook(const QString& path)
{
    if (m_bWrite) {
        m_pWorkBooks->dynamicCall(QStringLiteral("Add"));
        m_pWorkBook = m_pApplication->querySubObject(QStringLiteral("ActiveWorkBook"));
    } else {
        m_pWorkBook = m_pWorkBooks->querySubObject(
            QStringLiteral("Open(const QString &)"), {QDir::toNativeSeparators(path)});
    }
    if (IsMissing(m_pWorkBook))
        return FailToOpen();
    return true;
}

bool AxExcelFunction::OpenFirstSheet()
{
    m_pSheets = m_pWorkBook->querySubObject(QStringLiteral("Sheets"));
    if (IsMissing(m_pSheets))
        return FailToOpen();
    m_iSheetCount = m_pSheets->property(QStringLiteral("Count")).toInt();
    if (m_iSheetCount > 0)
        m_pWorkSheet = m_pWorkBook->querySubObject(QStringLiteral("WorkSheets(int)"), {1});
    if (!IsMissing(m_pWorkSheet))
        return true;
    CloseWithoutSaving(*m_pWorkBook);
    return FailToOpen();
}

/// Leaves no half-open application behind. Always false.
bool AxExcelFunction::FailToOpen()
{
    Quit(*m_pApplication);
    ForgetWorkbook();
    return false;
}

void AxExcelFunction::FreeExcel()
{
    if (IsOpenExcel()) {
        CloseWithoutSaving(*m_pWorkBook);
        m_pApplication->dynamicCall(QStringLiteral("Quit()"));
    }
    ForgetWorkbook();
}

void AxExcelFunction::ForgetWorkbook()
{
    m_pWorkSheet.reset();
    m_pSheets.reset();
    m_pWorkBook.reset();
    m_pWorkBooks.reset();
    m_pApplication.reset();
    m_iSheetCount = 0;
    m_iColumnCount = 0;
    m_iRowCount = 0;
}

bool AxExcelFunction::SaveExcel()
{
    if (!IsOpenExcel() || !m_bWrite)
        return false;
    const QVariant result = m_eVersion == AxExcel_Xls
        ? SaveAs(*m_pWorkBook, WorkbookPath::ForXlsOnly(m_strFilePath))
        : SaveBySuffix(*m_pWorkBook, m_strFilePath);
    return result.toBool();
}

bool AxExcelFunction::IsHasError() { return m_iErrorCode != NoError; }

QString AxExcelFunction::GetErrorMsg()
{
    switch (m_iErrorCode) {
    case NoApplication:
        return tr("The excel application is not found.");
    case OpenFailed:
        return tr("Open excel file failed.");
    case NoSuchFile:
        return tr("Excel file non-existent.");
    case WrongHeader:
        return tr("The column header of the import file is incorrect!");
    default:
        return QString();
    }
}

bool AxExcelFunction::IsOpenExcel() { return m_pWorkSheet != nullptr; }

// Writing

bool AxExcelFunction::SetSheetName(const QString& name)
{
    if (!IsOpenExcel())
        return false;
    m_pWorkSheet->setProperty(QStringLiteral("Name"), name);
    return true;
}

bool AxExcelFunction::SetMultiCellValue(int row, int column, const QList<QList<QString>>& rows)
{
    if (!IsOpenExcel() || rows.isEmpty() || rows.first().isEmpty())
        return false;
    const ObjectPtr range
        = Range(*m_pWorkSheet, SheetAddress::Block(row, column, rows.size(), rows.first().size()));
    if (!range)
        return false;
    QList<QList<QVariant>> cells;
    cells.reserve(rows.size());
    for (const QList<QString>& texts : rows) {
        QList<QVariant> line;
        line.reserve(texts.size());
        std::copy(texts.begin(), texts.end(), std::back_inserter(line));
        cells << line;
    }
    QVariant block;
    castListListVar2Var(block, cells);
    SetValue(*range, block);
    // After the values: what the application converted stays converted.
    range->setProperty(QStringLiteral("NumberFormatLocal"), QStringLiteral("@"));
    m_pCellStyle->ApplyTo(*range);
    return true;
}

bool AxExcelFunction::SetMergeCellValue(int row1, int column1, int row2, int column2, const QString& text)
{
    if (!IsOpenExcel())
        return false;
    const QString start = SheetAddress::Cell(row1, column1);
    ObjectPtr first = Range(*m_pWorkSheet, start);
    if (!first)
        return false;
    SetValue(*first, text);
    first.reset();
    const ObjectPtr range
        = Range(*m_pWorkSheet, start + QLatin1Char(':') + SheetAddress::Cell(row2, column2));
    if (!range)
        return false;
    m_pCellStyle->ApplyTo(*range);
    range->setProperty(QStringLiteral("MergeCells"), true);
    return true;
}

void AxExcelFunction::BeginAddMemory(int columnCount, int startRow, int startColumn)
{
    m_pendingRows.clear();
    m_iBatchColumnCount = columnCount;
    m_iBatchStartRow = startRow;
    m_iBatchStartColumn = startColumn;
}

bool AxExcelFunction::AddCellValue(const QString& text)
{
    const QString value = VerifyNumber(text) ? QLatin1Char('\'') + text : text;
    if (m_pendingRows.isEmpty() || m_pendingRows.last().size() >= m_iBatchColumnCount)
        m_pendingRows << QList<QString>();
    m_pendingRows.last() << value;
    return true;
}

bool AxExcelFunction::AddNoAutoTranCellValue(const QString& text)
{
    return AddCellValue(QLatin1Char('\'') + text);
}

bool AxExcelFunction::EndAddMemoryAndSave()
{
    const bool written = SetMultiCellValue(m_iBatchStartRow, m_iBatchStartColumn, m_pendingRows);
    BeginAddMemory(0, 0, 0);
    return written;
}

bool AxExcelFunction::VerifyNumber(QString text) // NOLINT(performance-unnecessary-value-param)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar character) {
        return character >= QLatin1Char('0') && character <= QLatin1Char('9');
    });
}

// Reading

QVariant AxExcelFunction::ReadAll()
{
    if (IsMissing(m_pWorkSheet))
        return QVariant();
    const ObjectPtr range = m_pWorkSheet->querySubObject(QStringLiteral("UsedRange"));
    if (IsMissing(range))
        return -1;
    return range->dynamicCall(QStringLiteral("Value"));
}

bool AxExcelFunction::ReadSheets()
{
    m_readData.clear();
    m_iRowCount = 0;
    m_iColumnCount = 0;
    QVariant cells = ReadAll();
    castVar2ListListVar(cells, m_readData);
    if (m_readData.size() < 2)
        return false;
    m_iRowCount = m_readData.size();
    for (const QList<QVariant>& row : std::as_const(m_readData))
        m_iColumnCount = std::max(m_iColumnCount, row.size());
    return true;
}

int AxExcelFunction::GetRowCout() { return m_iRowCount; }

int AxExcelFunction::GetColumnCout() { return m_iColumnCount; }

/// The row at @p index, from 0 on; null for one that does not exist. The row that follows the counted ones
/// is among them: rows that were read stay when the counts are 0.
const QList<QVariant>* AxExcelFunction::StoredRow(qint64 index) const
{
    const bool counted = index >= 0 && index <= m_iRowCount && index < m_readData.size();
    return counted ? &m_readData.at(static_cast<int>(index)) : nullptr;
}

void AxExcelFunction::GetRowValue(int row, QStringList& out)
{
    out.clear();
    const QList<QVariant>* cells = StoredRow(qint64(row) - 1);
    if (!cells)
        return;
    out.reserve(cells->size());
    for (const QVariant& cell : *cells)
        out << (cell.isNull() ? QString() : cell.toString());
}

QString AxExcelFunction::GetCellValue(int row, int column)
{
    return GetCellVariantValue(row, column).toString().trimmed();
}

QVariant AxExcelFunction::GetCellVariantValue(int row, int column)
{
    const QList<QVariant>* cells = StoredRow(qint64(row) - 1);
    const qint64 index = qint64(column) - 1;
    const bool inside = cells && index >= 0 && index <= m_iColumnCount && index < cells->size();
    return inside ? cells->at(static_cast<int>(index)) : QVariant(QString());
}

void AxExcelFunction::castVar2ListListVar(QVariant& var, QList<QList<QVariant>>& rows)
{
    rows.clear();
    const QVariantList list = var.toList();
    rows.reserve(list.size());
    for (const QVariant& row : list)
        rows << row.toList();
}

void AxExcelFunction::castListListVar2Var(QVariant& var, QList<QList<QVariant>>& rows)
{
    QVariantList list;
    list.reserve(rows.size());
    for (const QList<QVariant>& row : rows)
        list << QVariant(row);
    var = list;
}

void AxExcelFunction::convertToColName(int n, QString& name) { name.prepend(SheetAddress::ColumnName(n)); }

QString AxExcelFunction::to26AlphatString(int n) { return SheetAddress::Letter(n); }

// Cell style

bool AxExcelFunction::SetCellRowHeight(int height)
{
    m_pCellStyle->iRowHeight = height;
    return true;
}

bool AxExcelFunction::SetColumnWidth(int width)
{
    m_pCellStyle->iColumnWidth = width;
    return true;
}

bool AxExcelFunction::SetCellHorizontalAlignment(ExcelHorizontalAlignment_e alignment)
{
    switch (alignment) {
    case HAlign_Left:
        m_pCellStyle->iHorizontalAlignment = ExcelConstant::Left;
        return true;
    case HAlign_Center:
        m_pCellStyle->iHorizontalAlignment = ExcelConstant::Center;
        return true;
    case HAlign_Right:
        m_pCellStyle->iHorizontalAlignment = ExcelConstant::Right;
        return true;
    }
    return false;
}

bool AxExcelFunction::SetCellVerticalAlignment(ExcelVerticalAlignment_e alignment)
{
    switch (alignment) {
    case VAlign_Top:
        m_pCellStyle->iVerticalAlignment = ExcelConstant::Top;
        return true;
    case VAlign_Center:
        m_pCellStyle->iVerticalAlignment = ExcelConstant::Center;
        return true;
    case VAlign_Bottom:
        m_pCellStyle->iVerticalAlignment = ExcelConstant::Bottom;
        return true;
    }
    return false;
}

bool AxExcelFunction::SetBackgroudColor(QColor color)
{
    m_pCellStyle->clrBackground = std::move(color);
    return true;
}

bool AxExcelFunction::SetBordersColor(QColor color)
{
    m_pCellStyle->clrBorders = std::move(color);
    return true;
}

bool AxExcelFunction::SetFontColor(QColor color)
{
    m_pCellStyle->clrFont = std::move(color);
    return true;
}

bool AxExcelFunction::SetFontUnderline(bool underline)
{
    m_pCellStyle->bUnderline = underline;
    return true;
}

bool AxExcelFunction::SetFontItalic(bool italic)
{
    m_pCellStyle->bItalic = italic;
    return true;
}

bool AxExcelFunction::SetFontBold(bool bold)
{
    m_pCellStyle->bBold = bold;
    return true;
}

bool AxExcelFunction::SetFontSize(int size)
{
    m_pCellStyle->iFontSize = size;
    return true;
}

bool AxExcelFunction::SetFontName(QString name)
{
    m_pCellStyle->strFontName = std::move(name);
    return true;
}

bool AxExcelFunction::SetExcelTitleProperty()
{
    *m_pCellStyle = ExcelCellStyle::Title();
    return true;
}

bool AxExcelFunction::SetCellHeaderProperty()
{
    *m_pCellStyle = ExcelCellStyle::Header();
    return true;
}

bool AxExcelFunction::SetCellContextProperty()
{
    *m_pCellStyle = ExcelCellStyle::Context();
    return true;
}

} // namespace UICommonMdl
