#include <UI/Spreadsheet/SheetAddress.h>

namespace UICommonMdl::SheetAddress {

namespace {

constexpr int Letters = 26;
constexpr uint BeforeA = 64; // character code

} // namespace

QString Letter(int n) { return QString(QChar(static_cast<ushort>(static_cast<uint>(n) + BeforeA))); }

QString ColumnName(int n)
{
    const int quotient = n / Letters;
    if (quotient < 1)
        return Letter(n);
    return ColumnName(quotient) + ColumnName(n % Letters);
}

QString Cell(int row, int column) { return ColumnName(column) + QString::number(row); }

QString Block(int row, int column, int rows, int columns)
{
    const qint64 lastRow = qint64(row) + rows - 1;
    return Cell(row, column) + QLatin1Char(':') + ColumnName(columns) + QString::number(lastRow);
}

} // namespace UICommonMdl::SheetAddress
