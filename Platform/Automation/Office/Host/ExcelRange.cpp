#include <Platform/Automation/Office/Host/ExcelRange.h>

#include <Platform/Automation/Office/Host/ExcelLook.h>
#include <Platform/Automation/Office/Host/ExcelUnits.h>
#include <Platform/Automation/Office/Host/RangeKinds.h>
#include <Platform/Automation/Office/Host/UnoText.h>

#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/table/XColumnRowRange.hpp>
#include <com/sun/star/util/NumberFormat.hpp>
#include <com/sun/star/util/XMergeable.hpp>

#include <atomic>
#include <future>

namespace Office {

using namespace com::sun::star;
using uno::Any;
using uno::Reference;

namespace {

// A sheet with two far cells is no table, and too much for a client's memory.
constexpr qint64 MostCells = 20000000;
constexpr int CellsOfPiece = 10000;
const QString TextFormat = QStringLiteral("@");

table::CellRangeAddress AddressOf(const ExcelRange::Range& range)
{
    return Reference<sheet::XCellRangeAddressable>(range, uno::UNO_QUERY_THROW)->getRangeAddress();
}

Reference<sheet::XCellRangeData> Data(const ExcelRange::Range& range)
{
    return {range, uno::UNO_QUERY_THROW};
}

} // namespace

ExcelRange::ExcelRange(std::shared_ptr<ExcelWorkbook> workbook, const Range& range)
    : m_pWorkbook(std::move(workbook))
    , m_range(range)
    , m_properties(range, uno::UNO_QUERY_THROW)
    , m_address(AddressOf(range))
{ }

int ExcelRange::Rows() const { return m_address.EndRow - m_address.StartRow + 1; }

int ExcelRange::Columns() const { return m_address.EndColumn - m_address.StartColumn + 1; }

QVariant ExcelRange::Call(const QString& member, const QVariantList& arguments)
{
    if (member == QLatin1String("value"))
        return Value();
    if (member != QLatin1String("setvalue") || arguments.isEmpty())
        return ExcelObject::Call(member, arguments);
    SetValue(arguments.first());
    return QVariant();
}

std::shared_ptr<ExcelObject> ExcelRange::SubObject(const QString& member, const QVariantList& arguments)
{
    if (member == QLatin1String("interior"))
        return std::make_shared<ExcelInterior>(m_pWorkbook, m_properties);
    if (member == QLatin1String("borders"))
        return std::make_shared<ExcelBorders>(m_pWorkbook, m_properties);
    if (member == QLatin1String("font"))
        return std::make_shared<ExcelFont>(m_pWorkbook, m_properties);
    return ExcelObject::SubObject(member, arguments);
}

void ExcelRange::Write(const QString& name, const QVariant& value)
{
    if (name == QLatin1String("rowheight"))
        SetRowHeight(value.toInt());
    else if (name == QLatin1String("columnwidth"))
        SetColumnWidth(value.toInt());
    else if (name == QLatin1String("horizontalalignment"))
        SetHorizontalAlignment(m_properties, value.toInt());
    else if (name == QLatin1String("verticalalignment"))
        SetVerticalAlignment(m_properties, value.toInt());
    else if (name == QLatin1String("wraptext"))
        SetProperty(m_properties, "IsTextWrapped", Any(value.toBool()));
    else if (name == QLatin1String("mergecells"))
        Reference<util::XMergeable>(m_range, uno::UNO_QUERY_THROW)->merge(value.toBool());
    else if (name == QLatin1String("numberformatlocal"))
        SetNumberFormat(value.toString());
    else
        ExcelObject::Write(name, value);
}

void ExcelRange::SetRowHeight(int points)
{
    const Reference<table::XColumnRowRange> range(m_range, uno::UNO_QUERY_THROW);
    const Reference<beans::XPropertySet> rows(range->getRows(), uno::UNO_QUERY_THROW);
    SetProperty(rows, "Height", Any(sal_Int32(FromPoints(points))));
    m_pWorkbook->Open().KeepRowHeights(m_address);
}

void ExcelRange::SetColumnWidth(int characters)
{
    const Reference<table::XColumnRowRange> range(m_range, uno::UNO_QUERY_THROW);
    const Reference<beans::XPropertySet> columns(range->getColumns(), uno::UNO_QUERY_THROW);
    SetProperty(columns, "Width", Any(sal_Int32(FromCharacters(characters))));
}

QVariant ExcelRange::Value() const
{
    if (qint64(Rows()) * Columns() > MostCells)
        throw Refused("too many cells");
    const QDate nullDate = m_pWorkbook->Open().NullDate();
    const UnoBlock block = Data(m_range)->getDataArray();
    const RangeKinds kinds(m_pWorkbook->Open(), m_range, m_address);
    const auto cell = [&](int r, int c) { return FromCell(block[r][c], kinds.At(r, c), nullDate); };
    if (Rows() == 1 && Columns() == 1)
        return cell(0, 0);
    QVariantList rows;
    rows.reserve(Rows());
    for (int r = 0; r < Rows(); ++r) {
        QVariantList row;
        row.reserve(Columns());
        for (int c = 0; c < Columns(); ++c)
            row << cell(r, c);
        rows << QVariant(row);
    }
    return rows;
}

void ExcelRange::SetValue(const QVariant& value)
{
    if (qint64(Rows()) * Columns() > MostCells)
        throw Refused("too many cells");
    const bool isBlock = value.type() == QVariant::List;
    const QVariantList rows = value.toList();
    const bool isText = isBlock && HoldOnlyTexts(rows);
    // The office gives this format to each text that looks like a number; where it is, it does not look.
    if (isText)
        SetNumberFormat(TextFormat);
    SetRows(value);
    if (!isBlock)
        return SetKind(m_range, KindOf(value));
    for (int column = 0; column < Columns() && !isText; ++column)
        FormatColumn(rows, column, qMin(Rows(), rows.size()));
}

/// Hands over the rows in pieces, by two threads: while the office stores a piece, the next one is made and
/// crosses the bridge.
void ExcelRange::SetRows(const QVariant& value)
{
    const int rowsOfPiece = qMax(1, CellsOfPiece / Columns());
    const QDate nullDate = m_pWorkbook->Open().NullDate();
    const QVariantList rows = value.toList();
    std::atomic<int> next{0};
    const auto setPieces = [&] {
        for (int first = next.fetch_add(rowsOfPiece); first < Rows(); first = next.fetch_add(rowsOfPiece)) {
            const int count = qMin(rowsOfPiece, Rows() - first);
            const Range piece = m_range->getCellRangeByPosition(0, first, Columns() - 1, first + count - 1);
            const QVariant part = rows.isEmpty() ? value : rows.mid(first, count);
            Data(piece)->setDataArray(ToBlock(part, count, Columns(), nullDate));
        }
    };
    if (Rows() <= rowsOfPiece)
        return setPieces();
    std::future<void> other = std::async(setPieces);
    setPieces();
    other.get();
}

void ExcelRange::SetNumberFormat(const QString& code)
{
    SetProperty(m_properties, "NumberFormat", Any(sal_Int32(m_pWorkbook->Open().FormatOfCode(code))));
}

/// Dates and truth values are numbers with a format.
void ExcelRange::SetKind(const Range& cells, CellKind kind)
{
    if (kind == CellKind::Number)
        return;
    const sal_Int16 type
        = kind == CellKind::Boolean ? util::NumberFormat::LOGICAL : util::NumberFormat::DATETIME;
    SetProperty(
        Reference<beans::XPropertySet>(cells, uno::UNO_QUERY_THROW), "NumberFormat",
        Any(sal_Int32(m_pWorkbook->Open().StandardFormat(type))));
}

/// Tells the office of each run of one kind in the column.
void ExcelRange::FormatColumn(const QVariantList& rows, int column, int count)
{
    const auto kindAt = [&](int row) { return KindOf(rows.at(row).toList().value(column)); };
    int start = 0;
    while (start < count) {
        const CellKind kind = kindAt(start);
        int end = start + 1;
        while (end < count && kindAt(end) == kind)
            ++end;
        SetKind(m_range->getCellRangeByPosition(column, start, column, end - 1), kind);
        start = end;
    }
}

} // namespace Office
