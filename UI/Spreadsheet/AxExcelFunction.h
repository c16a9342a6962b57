#pragma once

#include <QColor>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <UIComponentsExport.h>
#include <memory>

namespace Automation {
class AutomationObject;
}

namespace UICommonMdl {

struct ExcelCellStyle;

/// What the installed spreadsheet application can save.
enum AxExcelVersion_e
{
    AxExcel_None = 0, ///< no spreadsheet application could be started
    AxExcel_Xls = 1, ///< older than version 11: xls only
    AxExcel_Xlsx = 2, ///< version 11 or later: xlsx, xls, csv and pdf
};

/// Workbooks, written and read by the spreadsheet application of the machine.
///
/// To import the first sheet of a workbook: OpenExcel(path, false), then GetRowCout(), GetRowValue() and
/// GetCellValue(). To export a table: OpenExcel(path, true), SetSheetName(), a style, the writes, then
/// SaveExcel() and FreeExcel(). The path's suffix tells the format (xlsx, xls, csv, pdf).
///
/// @code
/// AxExcelFunction excel;
/// if (!excel.OpenExcel(path, true))
///     return excel.GetErrorMsg();
/// excel.SetExcelTitleProperty();
/// excel.SetMergeCellValue(1, 1, 1, 2, tr("Alarms"));
/// excel.SetCellContextProperty();
/// excel.BeginAddMemory(2, 2, 1);
/// for (const Alarm& alarm : alarms) {
///     excel.AddNoAutoTranCellValue(alarm.time);
///     excel.AddNoAutoTranCellValue(alarm.text);
/// }
/// const bool saved = excel.EndAddMemoryAndSave() && excel.SaveExcel();
/// @endcode
///
/// Rows and columns count from 1. Every operation waits for the application; large tables are written in
/// blocks of some thousand rows, between which the client can show its progress. Failures give false, and
/// OpenExcel() also an error with a text for the operator. Nothing throws.
class UICOMPONENTS_EXPORT AxExcelFunction : public QObject
{
    Q_OBJECT

public:
    /// Where a text stands between the left and the right edge of its cell.
    enum ExcelHorizontalAlignment_e
    {
        HAlign_Left = 0, ///< at the left edge
        HAlign_Center = 1, ///< in the middle; the alignment of every preset
        HAlign_Right = 2 ///< at the right edge
    };
    Q_ENUM(ExcelHorizontalAlignment_e)
    /// Where a text stands between the upper and the lower edge of its cell.
    enum ExcelVerticalAlignment_e
    {
        VAlign_Top = 0, ///< at the upper edge
        VAlign_Center = 1, ///< in the middle; the alignment of every preset
        VAlign_Bottom = 2 ///< at the lower edge
    };
    Q_ENUM(ExcelVerticalAlignment_e)

    explicit AxExcelFunction(QObject* parent = nullptr);
    ~AxExcelFunction() override; ///< closes the workbook without saving it

    /// Starts the spreadsheet application, asks for its version and quits it.
    static AxExcelVersion_e CheckExcelVersion();

    /// The filter of a file dialog for the formats that the application can save; empty when there is no
    /// application.
    /// @param bExport also csv and pdf, which can be written but not read as tables
    static QString GetExcelFileFilter(bool bExport);

    /// @name Opening and closing
    /// @{

    /// Closes the present workbook without saving it, and opens the file @p path. The file is looked at
    /// first: no path, no file to read, or one that cannot be deleted leaves the present workbook open. With
    /// a path, SaveExcel() then goes by the new @p bCreate also for that workbook.
    /// @param bCreate true deletes the file when it exists and starts an empty workbook, to be stored there
    ///        by SaveExcel(); false reads the first sheet of the file into memory
    /// @return false with an error: no such file (or no path), no application, or it could not be opened
    bool OpenExcel(const QString& path, bool bCreate);

    /// Closes the workbook without saving it, and quits the application. Both counts become 0; of what was
    /// read, the first row alone can still be asked for.
    void FreeExcel();

    /// Stores a workbook that was opened with bCreate, in the format of its path's suffix; another suffix
    /// than those of GetExcelFileFilter() is stored as xls. Without suffix ".xlsx" is added. An application
    /// that knows nothing but xls stores that: ".xls" is added, or put in place of another suffix and its
    /// dot ("report.xlsx" becomes "reportxls").
    /// @return false when nothing is open for writing, or when the file could not be written
    bool SaveExcel();

    bool IsHasError(); ///< whether the last OpenExcel() failed
    QString GetErrorMsg(); ///< the reason for the operator, translated; empty without an error

    /// @}
    /// @name Writing
    ///
    /// Each write gives its cells the present cell style. Without an open workbook all return false; so do
    /// writes to cells that the application does not know, such as those of row 0. Column 26 and its
    /// multiples have no name that it knows, neither as a corner of a block nor as its number of columns.
    /// @{

    /// Names the sheet. A name that the application refuses leaves the present one.
    /// @return true when a workbook is open
    bool SetSheetName(const QString& name);

    /// Writes a block of texts whose upper left cell is (@p row, @p column). A leading apostrophe marks what
    /// follows as text and is not shown.
    /// @param rows as many cells in every row as in the first; neither may be empty. Blocks start at column
    ///        1: the last column written is the length of the first row, whatever @p column is
    bool SetMultiCellValue(int row, int column, const QList<QList<QString>>& rows);

    /// Merges the cells of the block from (@p row1, @p column1) to (@p row2, @p column2) into one that shows
    /// @p text.
    bool SetMergeCellValue(int row1, int column1, int row2, int column2, const QString& text);

    /// Starts to collect a block in memory, row by row. With less than one column each cell is a row.
    void BeginAddMemory(int columnCount, int startRow, int startColumn);

    /// Adds the next cell. Texts of digits only (and empty ones) are marked as text, so that no leading zero
    /// is lost; what else the application may take for a number or a date, it may convert.
    /// @return true
    bool AddCellValue(const QString& text);

    /// Adds the next cell, marked as text whatever it is.
    /// @return true
    bool AddNoAutoTranCellValue(const QString& text);

    /// Writes the collected block to the sheet, as SetMultiCellValue() does, and forgets it. The file is
    /// stored by SaveExcel() only.
    bool EndAddMemoryAndSave();

    bool VerifyNumber(QString text); ///< true when all characters are digits 0 to 9; also for the empty text

    /// @}
    /// @name Reading
    ///
    /// What OpenExcel() read of the first sheet, from its first used row and column on. A sheet with a
    /// single row has both counts 0: it holds the column names at most.
    /// @{

    int GetRowCout(); ///< with the row of column names; 0 when nothing was read
    int GetColumnCout(); ///< of the longest row

    /// Puts the texts of a row into @p out; empty for a row that does not exist.
    void GetRowValue(int row, QStringList& out);

    /// The cell as a text without white space at its ends; empty for a cell that does not exist.
    QString GetCellValue(int row, int column);

    /// The cell: a double, a text, a bool, a QDateTime, invalid when it is empty; an empty text for a cell
    /// that does not exist.
    QVariant GetCellVariantValue(int row, int column);

    /// @}
    /// @name Cell style
    ///
    /// Counts for the writes that follow. All return true, but for an alignment that does not exist.
    /// @{

    bool SetCellRowHeight(int height); ///< in points; 0 or less leaves the rows as they are
    bool SetColumnWidth(int width); ///< in characters; 0 or less leaves the columns as they are
    /// @return false, and the alignment stays, for a value that is none of the enumeration
    bool SetCellHorizontalAlignment(ExcelHorizontalAlignment_e alignment);
    /// @return false, and the alignment stays, for a value that is none of the enumeration
    bool SetCellVerticalAlignment(ExcelVerticalAlignment_e alignment);
    bool SetBackgroudColor(QColor color); ///< of the cells; a pale yellow until it is set
    bool SetBordersColor(QColor color); ///< of the lines around every cell; black until it is set
    bool SetFontColor(QColor color); ///< of the texts; black until it is set
    bool SetFontUnderline(bool underline); ///< one line below the texts; none until it is set
    bool SetFontItalic(bool italic); ///< upright until it is set
    bool SetFontBold(bool bold); ///< regular until it is set
    bool SetFontSize(int size); ///< in points; 0 or less leaves the size as it is
    bool SetFontName(QString name); ///< empty leaves the font as it is

    bool SetExcelTitleProperty(); ///< all of the style, for the title above a table: 16 points, white on blue
    bool SetCellHeaderProperty(); ///< all of the style, for the row of column names: 9 points, bold on white
    bool SetCellContextProperty(); ///< all of the style, for the table's cells: 9 points on a pale yellow

    /// @}

protected:
    /// The used cells of the sheet; invalid without a sheet, -1 when the sheet does not tell them.
    QVariant ReadAll();
    /// Reads the sheet into memory. @return false for less than two rows, which count as none
    bool ReadSheets();
    /// Puts the list of row lists that @p var holds into @p rows: none when it holds no list, an empty row
    /// for an element that is none.
    void castVar2ListListVar(QVariant& var, QList<QList<QVariant>>& rows);
    /// Puts @p rows into @p var as a list of row lists, the form in which blocks cross the automation.
    void castListListVar2Var(QVariant& var, QList<QList<QVariant>>& rows);
    /// Puts the name of column @p n before @p name: 1 is A, 27 is AA; a multiple of 26 has "@" in its place.
    void convertToColName(int n, QString& name);
    QString to26AlphatString(int n); ///< 1 is A, 26 is Z

private:
    bool IsOpenExcel();
    bool IsFileReady(const QString& path, bool create);
    bool StartApplication();
    bool OpenWorkbook(const QString& path);
    bool OpenFirstSheet();
    bool FailToOpen();
    const QList<QVariant>* StoredRow(qint64 index) const;
    void ForgetWorkbook();

    int m_iErrorCode = 0;
    // The objects that belong to the application end before it.
    std::unique_ptr<Automation::AutomationObject> m_pApplication;
    std::unique_ptr<Automation::AutomationObject> m_pWorkBooks;
    std::unique_ptr<Automation::AutomationObject> m_pWorkBook;
    std::unique_ptr<Automation::AutomationObject> m_pSheets;
    std::unique_ptr<Automation::AutomationObject> m_pWorkSheet;
    AxExcelVersion_e m_eVersion = AxExcel_None;
    bool m_bWrite = false;
    QString m_strFilePath;
    int m_iSheetCount = 0;
    int m_iColumnCount = 0;
    int m_iRowCount = 0;
    std::unique_ptr<ExcelCellStyle> m_pCellStyle;
    QList<QList<QVariant>> m_readData;
    QList<QList<QString>> m_pendingRows;
    int m_iBatchColumnCount = 0;
    int m_iBatchStartColumn = 0;
    int m_iBatchStartRow = 0;
};

} // namespace UICommonMdl
