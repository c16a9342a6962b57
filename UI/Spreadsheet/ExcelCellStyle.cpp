#include <UI/Spreadsheet/ExcelCellStyle.h>

#include <Platform/Automation/AutomationObject.h>

namespace UICommonMdl {

using Automation::AutomationObject;

namespace {

constexpr int TitleFontSize = 16;
constexpr int TitleRowHeight = 30;
constexpr int TableFontSize = 9;
constexpr int TableRowHeight = 20;

/// The part of the range's look that @p name names; null when the range has none.
std::unique_ptr<AutomationObject> Part(AutomationObject& range, const QString& name)
{
    auto part = range.querySubObject(name);
    return part && !part->isNull() ? std::move(part) : nullptr;
}

void ApplyColor(AutomationObject& range, const QString& name, const QColor& color)
{
    if (const auto part = Part(range, name))
        part->setProperty(QStringLiteral("Color"), color);
}

void ApplyFont(AutomationObject& range, const ExcelCellStyle& style)
{
    const auto font = Part(range, QStringLiteral("Font"));
    if (!font)
        return;
    if (!style.strFontName.isEmpty())
        font->setProperty(QStringLiteral("Name"), style.strFontName);
    font->setProperty(QStringLiteral("Bold"), style.bBold);
    if (style.iFontSize > 0)
        font->setProperty(QStringLiteral("Size"), style.iFontSize);
    font->setProperty(QStringLiteral("Italic"), style.bItalic);
    font->setProperty(
        QStringLiteral("Underline"),
        style.bUnderline ? ExcelConstant::UnderlineSingle : ExcelConstant::UnderlineNone);
    font->setProperty(QStringLiteral("Color"), style.clrFont);
}

} // namespace

ExcelCellStyle ExcelCellStyle::Title()
{
    ExcelCellStyle style;
    style.clrBackground = QColor(51, 51, 153);
    style.clrFont = QColor(255, 255, 255);
    style.iFontSize = TitleFontSize;
    style.iRowHeight = TitleRowHeight;
    return style;
}

ExcelCellStyle ExcelCellStyle::Header()
{
    ExcelCellStyle style;
    style.clrBackground = QColor(255, 255, 255);
    style.iFontSize = TableFontSize;
    style.bBold = true;
    style.iRowHeight = TableRowHeight;
    return style;
}

ExcelCellStyle ExcelCellStyle::Context()
{
    ExcelCellStyle style;
    style.iFontSize = TableFontSize;
    style.iRowHeight = TableRowHeight;
    return style;
}

void ExcelCellStyle::ApplyTo(AutomationObject& range) const
{
    if (iRowHeight > 0)
        range.setProperty(QStringLiteral("RowHeight"), iRowHeight);
    if (iColumnWidth > 0)
        range.setProperty(QStringLiteral("ColumnWidth"), iColumnWidth);
    range.setProperty(QStringLiteral("HorizontalAlignment"), iHorizontalAlignment);
    range.setProperty(QStringLiteral("VerticalAlignment"), iVerticalAlignment);
    range.setProperty(QStringLiteral("WrapText"), true);
    ApplyColor(range, QStringLiteral("Interior"), clrBackground);
    ApplyColor(range, QStringLiteral("Borders"), clrBorders);
    ApplyFont(range, *this);
}

} // namespace UICommonMdl
