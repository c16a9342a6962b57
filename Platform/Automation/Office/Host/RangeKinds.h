#pragma once

#include <Platform/Automation/Office/Host/CellValues.h>
#include <Platform/Automation/Office/Host/Document.h>

#include <QVector>
#include <com/sun/star/table/CellRangeAddress.hpp>
#include <com/sun/star/table/XCellRange.hpp>

namespace Office {

/// What the numbers in a range stand for, by their number formats: a few questions to the office, however
/// many cells there are.
class RangeKinds
{
public:
    using Range = com::sun::star::uno::Reference<com::sun::star::table::XCellRange>;
    using Address = com::sun::star::table::CellRangeAddress;

    RangeKinds(const Document& document, const Range& range, const Address& address);

    CellKind At(int row, int column) const; ///< counted from the range's first cell, from 0 on

private:
    void Mark(const Address& part, CellKind kind);

    const Address m_address;
    QVector<QVector<QPair<int, int>>> m_dates; ///< by column: first and last row of each run, in order
    QVector<QVector<QPair<int, int>>> m_booleans;
};

} // namespace Office
