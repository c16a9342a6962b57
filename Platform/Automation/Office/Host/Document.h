#pragma once

#include <Platform/Automation/Office/Host/RowRuns.h>

#include <QDate>
#include <QMap>
#include <QString>
#include <com/sun/star/frame/XDesktop2.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/table/CellRangeAddress.hpp>
#include <memory>
#include <mutex>

namespace Office {

/// The formats in which a workbook is stored.
enum class FileFormat
{
    Xlsx,
    Xls,
    Csv,
    Pdf
};

/// A workbook that is open in the office, without a window. Operations throw what the bridge throws.
class Document
{
public:
    using Desktop = com::sun::star::uno::Reference<com::sun::star::frame::XDesktop2>;
    using Model = com::sun::star::uno::Reference<com::sun::star::sheet::XSpreadsheetDocument>;

    /// A new workbook with one sheet.
    static std::unique_ptr<Document> New(const Desktop& desktop);

    /// The workbook in the file @p path, for reading: macros do not run and links are not followed.
    static std::unique_ptr<Document> Open(const Desktop& desktop, const QString& path);

    ~Document(); ///< closes it
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

    const Model& Sheets() const { return m_model; }

    /// The day 0 of its dates.
    QDate NullDate() const { return m_nullDate; }

    /// The number format of this code, such as "@".
    int FormatOfCode(const QString& code) const;
    /// The number format for cells of the kind DATETIME or LOGICAL of com.sun.star.util.NumberFormat.
    int StandardFormat(sal_Int16 type) const;
    /// The bits of com.sun.star.util.NumberFormat that tell what a number format is for.
    sal_Int16 TypeOfFormat(int format) const;

    /// The rows keep the height that they have been given; all others are fitted to their texts when the
    /// workbook is stored.
    void KeepRowHeights(const com::sun::star::table::CellRangeAddress& rows);

    /// Stores the workbook as the file @p path: it is written in @p scratchFolder, and then replaces what is
    /// at its place in one step, under the lock.
    void Save(const QString& path, FileFormat format, const QString& scratchFolder, std::timed_mutex& saving);

private:
    explicit Document(const Model& model);
    void SetUpForWriting();
    void FitRowHeights();
    void FitPagesToColumns();

    Model m_model;
    QDate m_nullDate;
    QMap<int, RowRuns> m_keptRows; ///< by sheet
};

} // namespace Office
