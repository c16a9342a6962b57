#include <Platform/Automation/Office/Host/ExcelWorkbook.h>

#include <Platform/Automation/Office/Host/ExcelSheet.h>
#include <Platform/Automation/Office/Host/ExcelUnits.h>

#include <com/sun/star/container/XIndexAccess.hpp>

namespace Office {

using namespace com::sun::star;

namespace {

constexpr int CodeOfXlsx = 51;
constexpr int CodeOfXls = 56;
constexpr int CodeOfCsv = 6;

FileFormat FormatOfCode(int code)
{
    switch (code) {
    case CodeOfXlsx:
        return FileFormat::Xlsx;
    case CodeOfXls:
        return FileFormat::Xls;
    case CodeOfCsv:
        return FileFormat::Csv;
    default:
        throw Refused("unknown format");
    }
}

} // namespace

ExcelWorkbook::ExcelWorkbook(std::unique_ptr<Document> document, const OfficeContext& context)
    : m_pDocument(std::move(document))
    , m_context(context)
{ }

QVariant ExcelWorkbook::Call(const QString& member, const QVariantList& arguments)
{
    if (member == QLatin1String("close")) {
        Close();
        return true;
    }
    if (member == QLatin1String("saveas") && !arguments.isEmpty())
        return Save(
            arguments.at(0), arguments.size() > 1 ? FormatOfCode(arguments.at(1).toInt()) : FileFormat::Xlsx);
    if (member == QLatin1String("exportasfixedformat") && arguments.size() > 1
        && arguments.at(0).toInt() == 0)
        return Save(arguments.at(1), FileFormat::Pdf);
    return ExcelObject::Call(member, arguments);
}

std::shared_ptr<ExcelObject> ExcelWorkbook::SubObject(const QString& member, const QVariantList& arguments)
{
    const bool isSheets = member == QLatin1String("sheets") || member == QLatin1String("worksheets");
    if (!isSheets)
        return ExcelObject::SubObject(member, arguments);
    if (arguments.isEmpty())
        return shared_from_this();
    const uno::Reference<container::XIndexAccess> sheets(Open().Sheets()->getSheets(), uno::UNO_QUERY_THROW);
    const int index = arguments.first().toInt() - 1;
    if (index < 0 || index >= sheets->getCount())
        return nullptr;
    return std::make_shared<ExcelSheet>(
        shared_from_this(),
        uno::Reference<sheet::XSpreadsheet>(sheets->getByIndex(index), uno::UNO_QUERY_THROW));
}

QVariant ExcelWorkbook::Read(const QString& name)
{
    if (name != QLatin1String("count"))
        return ExcelObject::Read(name);
    return uno::Reference<container::XIndexAccess>(Open().Sheets()->getSheets(), uno::UNO_QUERY_THROW)
        ->getCount();
}

void ExcelWorkbook::Close() { m_pDocument.reset(); }

bool ExcelWorkbook::Save(const QVariant& path, FileFormat format)
{
    Open().Save(ClientPath(path.toString()), format, m_context.scratchFolder, m_context.saving);
    return true;
}

} // namespace Office
