#include <Platform/Automation/Office/Host/ExcelSheet.h>

#include <Platform/Automation/Office/Host/ExcelRange.h>
#include <Platform/Automation/Office/Host/ExcelUnits.h>
#include <Platform/Automation/Office/Host/UnoText.h>

#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/sheet/XSheetCellCursor.hpp>
#include <com/sun/star/sheet/XUsedAreaCursor.hpp>

namespace Office {

using namespace com::sun::star;

ExcelSheet::ExcelSheet(
    std::shared_ptr<ExcelWorkbook> workbook, const uno::Reference<sheet::XSpreadsheet>& sheet)
    : m_pWorkbook(std::move(workbook))
    , m_sheet(sheet)
{ }

std::shared_ptr<ExcelObject> ExcelSheet::SubObject(const QString& member, const QVariantList& arguments)
{
    if (member == QLatin1String("usedrange"))
        return UsedRange();
    if (member == QLatin1String("range") && !arguments.isEmpty()) {
        const uno::Reference<table::XCellRange> range
            = m_sheet->getCellRangeByName(ToUno(arguments.first().toString()));
        return std::make_shared<ExcelRange>(m_pWorkbook, range);
    }
    return ExcelObject::SubObject(member, arguments);
}

std::shared_ptr<ExcelObject> ExcelSheet::UsedRange() const
{
    const uno::Reference<sheet::XSheetCellCursor> cursor = m_sheet->createCursor();
    const uno::Reference<sheet::XUsedAreaCursor> area(cursor, uno::UNO_QUERY_THROW);
    area->gotoStartOfUsedArea(false);
    area->gotoEndOfUsedArea(true);
    return std::make_shared<ExcelRange>(
        m_pWorkbook, uno::Reference<table::XCellRange>(cursor, uno::UNO_QUERY_THROW));
}

QVariant ExcelSheet::Read(const QString& name)
{
    if (name != QLatin1String("name"))
        return ExcelObject::Read(name);
    return FromUno(uno::Reference<container::XNamed>(m_sheet, uno::UNO_QUERY_THROW)->getName());
}

void ExcelSheet::Write(const QString& name, const QVariant& value)
{
    if (name != QLatin1String("name"))
        return ExcelObject::Write(name, value);
    if (!IsSheetName(value.toString()))
        throw Refused("not a sheet name");
    uno::Reference<container::XNamed>(m_sheet, uno::UNO_QUERY_THROW)->setName(ToUno(value.toString()));
}

} // namespace Office
