#include <Platform/Automation/Office/Host/RangeKinds.h>

#include <Platform/Automation/Office/Host/UnoText.h>

#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/sheet/XUniqueCellFormatRangesSupplier.hpp>
#include <com/sun/star/util/NumberFormat.hpp>

namespace Office {

using namespace com::sun::star;
using uno::Reference;

namespace {

CellKind KindOfFormat(const Document& document, int format)
{
    const sal_Int16 type = document.TypeOfFormat(format);
    if (type & util::NumberFormat::DATETIME) // the bits of date and of time
        return CellKind::DateTime;
    return type & util::NumberFormat::LOGICAL ? CellKind::Boolean : CellKind::Number;
}

bool Holds(const QVector<QPair<int, int>>& runs, int row)
{
    const auto after
        = std::upper_bound(runs.begin(), runs.end(), row, [](int value, const QPair<int, int>& run) {
              return value < run.first;
          });
    return after != runs.begin() && row <= std::prev(after)->second;
}

} // namespace

RangeKinds::RangeKinds(const Document& document, const Range& range, const Address& address)
    : m_address(address)
    , m_dates(address.EndColumn - address.StartColumn + 1)
    , m_booleans(m_dates.size())
{
    const Reference<container::XIndexAccess> groups
        = Reference<sheet::XUniqueCellFormatRangesSupplier>(range, uno::UNO_QUERY_THROW)
              ->getUniqueCellFormatRanges();
    for (sal_Int32 i = 0; i < groups->getCount(); ++i) {
        const Reference<sheet::XSheetCellRanges> group(groups->getByIndex(i), uno::UNO_QUERY_THROW);
        sal_Int32 format = 0;
        Reference<beans::XPropertySet>(group, uno::UNO_QUERY_THROW)
            ->getPropertyValue(ToUno(QStringLiteral("NumberFormat")))
            >>= format;
        const CellKind kind = KindOfFormat(document, format);
        if (kind == CellKind::Number)
            continue;
        for (const Address& part : group->getRangeAddresses())
            Mark(part, kind);
    }
    for (auto* columns : {&m_dates, &m_booleans}) {
        for (auto& runs : *columns)
            std::sort(runs.begin(), runs.end());
    }
}

void RangeKinds::Mark(const Address& part, CellKind kind)
{
    auto& columns = kind == CellKind::DateTime ? m_dates : m_booleans;
    const int last = qMin(part.EndColumn, m_address.EndColumn) - m_address.StartColumn;
    for (int column = qMax(0, part.StartColumn - m_address.StartColumn); column <= last; ++column)
        columns[column] << qMakePair(part.StartRow - m_address.StartRow, part.EndRow - m_address.StartRow);
}

CellKind RangeKinds::At(int row, int column) const
{
    if (Holds(m_dates.at(column), row))
        return CellKind::DateTime;
    return Holds(m_booleans.at(column), row) ? CellKind::Boolean : CellKind::Number;
}

} // namespace Office
