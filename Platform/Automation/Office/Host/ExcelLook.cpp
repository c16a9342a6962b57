#include <Platform/Automation/Office/Host/ExcelLook.h>

#include <Platform/Automation/Office/Host/UnoText.h>

#include <QColor>
#include <com/sun/star/awt/FontSlant.hpp>
#include <com/sun/star/awt/FontUnderline.hpp>
#include <com/sun/star/awt/FontWeight.hpp>
#include <com/sun/star/table/BorderLine2.hpp>
#include <com/sun/star/table/BorderLineStyle.hpp>
#include <com/sun/star/table/CellHoriJustify.hpp>
#include <com/sun/star/table/CellVertJustify2.hpp>
#include <com/sun/star/table/TableBorder2.hpp>

namespace Office {

using namespace com::sun::star;
using uno::Any;

namespace {

constexpr int Center = -4108;
constexpr int UnderlineNone = -4142;
// Three quarters of a point, in hundredths of a millimetre: a narrower line is stored as a dotted one.
constexpr sal_Int16 ThinLine = 27;

Any ColorOf(const QVariant& value)
{
    const auto color = value.value<QColor>();
    if (!color.isValid())
        throw Refused("no colour");
    constexpr QRgb WithoutAlpha = 0xFFFFFF;
    return Any(static_cast<sal_Int32>(color.rgb() & WithoutAlpha));
}

table::BorderLine2 Line(sal_Int32 color)
{
    table::BorderLine2 line;
    line.Color = color;
    line.OuterLineWidth = ThinLine;
    line.LineStyle = table::BorderLineStyle::SOLID;
    line.LineWidth = static_cast<sal_uInt32>(ThinLine);
    return line;
}

} // namespace

void SetProperty(const PropertySet& properties, const char* name, const Any& value)
{
    properties->setPropertyValue(rtl::OUString::createFromAscii(name), value);
}

void SetHorizontalAlignment(const PropertySet& properties, int constant)
{
    table::CellHoriJustify justify = table::CellHoriJustify_CENTER;
    if (constant == -4131)
        justify = table::CellHoriJustify_LEFT;
    else if (constant == -4152)
        justify = table::CellHoriJustify_RIGHT;
    else if (constant != Center)
        throw Refused("no alignment");
    SetProperty(properties, "HoriJustify", Any(justify));
}

void SetVerticalAlignment(const PropertySet& properties, int constant)
{
    sal_Int32 justify = table::CellVertJustify2::CENTER;
    if (constant == -4160)
        justify = table::CellVertJustify2::TOP;
    else if (constant == -4107)
        justify = table::CellVertJustify2::BOTTOM;
    else if (constant != Center)
        throw Refused("no alignment");
    SetProperty(properties, "VertJustify", Any(justify));
}

ExcelLook::ExcelLook(std::shared_ptr<ExcelWorkbook> workbook, const PropertySet& properties)
    : m_pWorkbook(std::move(workbook))
    , m_properties(properties)
{ }

void ExcelInterior::Write(const QString& name, const QVariant& value)
{
    if (name != QLatin1String("color"))
        return ExcelObject::Write(name, value);
    SetProperty(Properties(), "CellBackColor", ColorOf(value));
}

void ExcelBorders::Write(const QString& name, const QVariant& value)
{
    if (name != QLatin1String("color"))
        return ExcelObject::Write(name, value);
    const table::BorderLine2 line = Line(ColorOf(value).get<sal_Int32>());
    table::TableBorder2 border;
    border.TopLine = border.BottomLine = border.LeftLine = border.RightLine = line;
    border.HorizontalLine = border.VerticalLine = line;
    border.IsTopLineValid = border.IsBottomLineValid = border.IsLeftLineValid = border.IsRightLineValid
        = true;
    border.IsHorizontalLineValid = border.IsVerticalLineValid = true;
    SetProperty(Properties(), "TableBorder2", Any(border));
}

void ExcelFont::Write(const QString& name, const QVariant& value)
{
    if (name == QLatin1String("name")) {
        WriteForAllScripts("CharFontName", Any(ToUno(value.toString())));
    } else if (name == QLatin1String("bold")) {
        WriteForAllScripts(
            "CharWeight", Any(value.toBool() ? awt::FontWeight::BOLD : awt::FontWeight::NORMAL));
    } else if (name == QLatin1String("size")) {
        WriteForAllScripts("CharHeight", Any(static_cast<float>(value.toInt())));
    } else if (name == QLatin1String("italic")) {
        WriteForAllScripts("CharPosture", Any(value.toBool() ? awt::FontSlant_ITALIC : awt::FontSlant_NONE));
    } else if (name == QLatin1String("underline")) {
        const bool none = value.toInt() == UnderlineNone;
        SetProperty(
            Properties(), "CharUnderline", Any(none ? awt::FontUnderline::NONE : awt::FontUnderline::SINGLE));
    } else if (name == QLatin1String("color")) {
        SetProperty(Properties(), "CharColor", ColorOf(value));
    } else {
        ExcelObject::Write(name, value);
    }
}

/// The office keeps fonts for Asian and for complex scripts beside the Western one.
void ExcelFont::WriteForAllScripts(const char* name, const Any& value)
{
    for (const char* script : {"", "Asian", "Complex"})
        SetProperty(Properties(), (QByteArray(name) + script).constData(), value);
}

} // namespace Office
