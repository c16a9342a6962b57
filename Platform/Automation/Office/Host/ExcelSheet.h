#pragma once

#include <Platform/Automation/Office/Host/ExcelWorkbook.h>

#include <com/sun/star/sheet/XSpreadsheet.hpp>

namespace Office {

/// A sheet of a workbook.
class ExcelSheet : public ExcelObject
{
public:
    ExcelSheet(
        std::shared_ptr<ExcelWorkbook> workbook,
        const com::sun::star::uno::Reference<com::sun::star::sheet::XSpreadsheet>& sheet);

    bool IsGone() const override { return m_pWorkbook->IsGone(); }
    std::shared_ptr<ExcelObject> SubObject(const QString& member, const QVariantList& arguments) override;
    QVariant Read(const QString& name) override;
    void Write(const QString& name, const QVariant& value) override;

private:
    std::shared_ptr<ExcelObject> UsedRange() const;

    const std::shared_ptr<ExcelWorkbook> m_pWorkbook;
    const com::sun::star::uno::Reference<com::sun::star::sheet::XSpreadsheet> m_sheet;
};

} // namespace Office
