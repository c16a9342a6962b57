#pragma once

#include <Platform/Automation/Office/Host/CellValues.h>
#include <Platform/Automation/Office/Host/ExcelWorkbook.h>

#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/table/CellRangeAddress.hpp>
#include <com/sun/star/table/XCellRange.hpp>

namespace Office {

/// A block of cells: its values and its look.
class ExcelRange : public ExcelObject
{
public:
    using Range = com::sun::star::uno::Reference<com::sun::star::table::XCellRange>;

    ExcelRange(std::shared_ptr<ExcelWorkbook> workbook, const Range& range);

    bool IsGone() const override { return m_pWorkbook->IsGone(); }
    QVariant Call(const QString& member, const QVariantList& arguments) override;
    std::shared_ptr<ExcelObject> SubObject(const QString& member, const QVariantList& arguments) override;
    void Write(const QString& name, const QVariant& value) override;

private:
    QVariant Value() const;
    void SetValue(const QVariant& value);
    void SetRows(const QVariant& value);
    void SetNumberFormat(const QString& code);
    void SetKind(const Range& cells, CellKind kind);
    void FormatColumn(const QVariantList& rows, int column, int count);
    void SetRowHeight(int points);
    void SetColumnWidth(int characters);
    int Rows() const;
    int Columns() const;

    const std::shared_ptr<ExcelWorkbook> m_pWorkbook;
    const Range m_range;
    const com::sun::star::uno::Reference<com::sun::star::beans::XPropertySet> m_properties;
    const com::sun::star::table::CellRangeAddress m_address;
};

} // namespace Office
