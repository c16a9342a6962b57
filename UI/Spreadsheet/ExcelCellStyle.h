#pragma once

#include <QColor>
#include <QString>

namespace Automation {
class AutomationObject;
}

namespace UICommonMdl {

/// The constants by which the spreadsheet application knows alignments and underlines.
namespace ExcelConstant {
constexpr int Left = -4131;
constexpr int Center = -4108; // in both directions
constexpr int Right = -4152;
constexpr int Top = -4160;
constexpr int Bottom = -4107;
constexpr int UnderlineSingle = 2;
constexpr int UnderlineNone = -4142;
} // namespace ExcelConstant

/// How a written range looks.
struct ExcelCellStyle
{
    int iRowHeight = 0; ///< in points; 0 or less: left as it is
    int iColumnWidth = 18; ///< in characters; 0 or less: left as it is
    int iHorizontalAlignment = ExcelConstant::Center;
    int iVerticalAlignment = ExcelConstant::Center;
    QColor clrBackground = QColor(243, 245, 184);
    QColor clrBorders = QColor(0, 0, 0);
    QColor clrFont = QColor(0, 0, 0);
    QString strFontName; ///< empty: left as it is
    int iFontSize = 0; ///< in points; 0 or less: left as it is
    bool bBold = false;
    bool bItalic = false;
    bool bUnderline = false;

    static ExcelCellStyle Title(); ///< of the merged cell above a table
    static ExcelCellStyle Header(); ///< of the row of column names
    static ExcelCellStyle Context(); ///< of the table's cells

    /// Gives @p range this look. What the range has not (borders, say) is passed over.
    void ApplyTo(Automation::AutomationObject& range) const;
};

} // namespace UICommonMdl
