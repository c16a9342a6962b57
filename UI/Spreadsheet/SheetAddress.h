#pragma once

#include <QString>

/// Names of columns and addresses of blocks as spreadsheet applications read them. Columns and rows count
/// from 1.
namespace UICommonMdl::SheetAddress {

/// The character of one place of a column's name: 1 is "A", 26 is "Z", 0 is "@".
QString Letter(int n);

/// The name of column @p n: 1 is "A", 25 is "Y", 27 is "AA". A place that is a multiple of 26 reads "@":
/// 26 is "A@", 52 is "B@".
QString ColumnName(int n);

/// The address of a cell: (2, 3) is "C2".
QString Cell(int row, int column);

/// The address of a block of @p rows rows with @p columns cells that starts at the cell. Its last column
/// is @p columns itself, whatever the first: (2, 3, 2, 2) is "C2:B3".
QString Block(int row, int column, int rows, int columns);

} // namespace UICommonMdl::SheetAddress
