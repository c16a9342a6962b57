#include <Platform/Automation/Office/Host/Document.h>

#include <Platform/Automation/Office/Host/ExcelObject.h>
#include <Platform/Automation/Office/Host/UnoText.h>

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QUrl>
#include <com/sun/star/awt/Size.hpp>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/document/MacroExecMode.hpp>
#include <com/sun/star/document/UpdateDocMode.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XSheetCellCursor.hpp>
#include <com/sun/star/sheet/XUsedAreaCursor.hpp>
#include <com/sun/star/style/XStyleFamiliesSupplier.hpp>
#include <com/sun/star/table/XColumnRowRange.hpp>
#include <com/sun/star/util/Date.hpp>
#include <com/sun/star/util/XCloseable.hpp>
#include <com/sun/star/util/XNumberFormatTypes.hpp>
#include <com/sun/star/util/XNumberFormatsSupplier.hpp>

namespace Office {

using namespace com::sun::star;
using uno::Any;
using uno::Reference;
using uno::Sequence;

namespace {

constexpr int WidestPortrait = 17000; // hundredths of a millimetre on a page of 210 mm, without margins
// Comma, quotation mark, UTF-8, from line 1 on; as shown, quoted where needed, and no text is a formula.
const QString CsvOptions = QStringLiteral("44,34,76,1,,0,false,true,false,false,false,0,false");
const char ByteOrderMark[] = "\xEF\xBB\xBF";

beans::PropertyValue Argument(const char* name, const Any& value)
{
    return {rtl::OUString::createFromAscii(name), 0, value, beans::PropertyState_DIRECT_VALUE};
}

using Arguments = QList<beans::PropertyValue>;

Any Text(const QString& text) { return Any(ToUno(text)); }

Sequence<beans::PropertyValue> ToSequence(const Arguments& arguments)
{
    Sequence<beans::PropertyValue> sequence(arguments.size());
    std::copy(arguments.cbegin(), arguments.cend(), sequence.getArray());
    return sequence;
}

rtl::OUString FileUrl(const QString& path)
{
    return ToUno(QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded));
}

QString FilterName(FileFormat format)
{
    switch (format) {
    case FileFormat::Xls:
        return QStringLiteral("MS Excel 97");
    case FileFormat::Csv:
        return QStringLiteral("Text - txt - csv (StarCalc)");
    case FileFormat::Pdf:
        return QStringLiteral("calc_pdf_Export");
    case FileFormat::Xlsx:
        break;
    }
    return QStringLiteral("Calc MS Excel 2007 XML");
}

Reference<beans::XPropertySet> Properties(const Reference<uno::XInterface>& object)
{
    return {object, uno::UNO_QUERY_THROW};
}

/// The object of another interface of the document's.
template <typename Interface, typename Object>
Reference<Interface> As(const Object& object)
{
    return {object, uno::UNO_QUERY_THROW};
}

Document::Model Load(const Document::Desktop& desktop, const rtl::OUString& url, const Arguments& arguments)
{
    const Reference<lang::XComponent> component
        = desktop->loadComponentFromURL(url, ToUno(QStringLiteral("_blank")), 0, ToSequence(arguments));
    Document::Model model(component, uno::UNO_QUERY);
    if (!model.is() && component.is())
        component->dispose();
    if (!model.is())
        throw Refused("no workbook");
    return model;
}

/// Puts the stored file to its place in one step.
void MoveToPlace(const QString& from, const QString& to, const QByteArray& head)
{
    QFile source(from);
    QSaveFile target(to);
    if (!source.open(QIODevice::ReadOnly) || !target.open(QIODevice::WriteOnly))
        throw Refused("not writable");
    target.write(head);
    QByteArray piece(1 << 20, Qt::Uninitialized);
    qint64 size = 0;
    // Not until the end of the source: one that cannot be read any more never comes to it.
    while ((size = source.read(piece.data(), piece.size())) > 0) {
        if (target.write(piece.constData(), size) != size)
            throw Refused("no room");
    }
    // The commit alone would take a file whose end did not fit on the disk.
    if (size < 0 || !target.flush() || !target.commit())
        throw Refused("not written");
}

/// A file of the office's that goes with the scope, however that is left.
class ScratchFile
{
public:
    explicit ScratchFile(const QString& path)
        : m_path(path)
    { }
    ~ScratchFile() { QFile::remove(m_path); }
    Q_DISABLE_COPY(ScratchFile)

    const QString& Path() const { return m_path; }

private:
    const QString m_path;
};

Reference<sheet::XSheetCellCursor> UsedArea(const Reference<sheet::XSpreadsheet>& sheet)
{
    const Reference<sheet::XSheetCellCursor> cursor = sheet->createCursor();
    const auto area = As<sheet::XUsedAreaCursor>(cursor);
    area->gotoStartOfUsedArea(false);
    area->gotoEndOfUsedArea(true);
    return cursor;
}

int UsedWidth(const Reference<sheet::XSpreadsheet>& sheet)
{
    awt::Size size;
    Properties(UsedArea(sheet))->getPropertyValue(ToUno(QStringLiteral("Size"))) >>= size;
    return size.Width;
}

void SetProperty(const Reference<beans::XPropertySet>& properties, const char* name, const Any& value)
{
    properties->setPropertyValue(rtl::OUString::createFromAscii(name), value);
}

void TurnPage(const Reference<beans::XPropertySet>& page)
{
    sal_Int32 width = 0;
    sal_Int32 height = 0;
    page->getPropertyValue(ToUno(QStringLiteral("Width"))) >>= width;
    page->getPropertyValue(ToUno(QStringLiteral("Height"))) >>= height;
    SetProperty(page, "IsLandscape", Any(true));
    SetProperty(page, "Width", Any(std::max(width, height)));
    SetProperty(page, "Height", Any(std::min(width, height)));
}

} // namespace

std::unique_ptr<Document> Document::New(const Desktop& desktop)
{
    auto document = std::unique_ptr<Document>(new Document(
        Load(desktop, ToUno(QStringLiteral("private:factory/scalc")), {Argument("Hidden", Any(true))})));
    document->SetUpForWriting();
    return document;
}

std::unique_ptr<Document> Document::Open(const Desktop& desktop, const QString& path)
{
    QList<beans::PropertyValue> arguments{
        Argument("Hidden", Any(true)), Argument("ReadOnly", Any(true)),
        Argument("MacroExecutionMode", Any(document::MacroExecMode::NEVER_EXECUTE)),
        Argument("UpdateDocMode", Any(document::UpdateDocMode::NO_UPDATE))};
    if (QFileInfo(path).suffix().toLower() == QLatin1String("csv")) {
        arguments << Argument("FilterName", Text(FilterName(FileFormat::Csv)))
                  << Argument("FilterOptions", Text(CsvOptions));
    }
    return std::unique_ptr<Document>(new Document(Load(desktop, FileUrl(path), arguments)));
}

Document::Document(const Model& model)
    : m_model(model)
{
    util::Date date(30, 12, 1899);
    Properties(m_model)->getPropertyValue(ToUno(QStringLiteral("NullDate"))) >>= date;
    m_nullDate = QDate(date.Year, date.Month, date.Day);
}

Document::~Document()
{
    try {
        As<util::XCloseable>(m_model)->close(true);
    } catch (const uno::Exception&) { // the office has gone, and the document with it
    }
}

/// What is written is not taken back, and remembering it takes time and memory. Row heights are fitted once,
/// when all is written: the office would fit them anew after every change.
void Document::SetUpForWriting()
{
    SetProperty(Properties(m_model), "IsUndoEnabled", Any(false));
    SetProperty(Properties(m_model), "IsAdjustHeightEnabled", Any(false));
}

void Document::KeepRowHeights(const table::CellRangeAddress& rows)
{
    m_keptRows[rows.Sheet].Add(rows.StartRow, rows.EndRow);
}

void Document::FitRowHeights()
{
    SetProperty(Properties(m_model), "IsAdjustHeightEnabled", Any(true));
    const Reference<container::XIndexAccess> sheets(m_model->getSheets(), uno::UNO_QUERY_THROW);
    for (sal_Int32 i = 0; i < sheets->getCount(); ++i) {
        const Reference<sheet::XSpreadsheet> sheet(sheets->getByIndex(i), uno::UNO_QUERY_THROW);
        const int last = As<sheet::XCellRangeAddressable>(UsedArea(sheet))->getRangeAddress().EndRow;
        const QVector<RowRuns::Run> runs = m_keptRows.value(i).Gaps(last);
        for (const RowRuns::Run& run : runs) {
            const Reference<table::XColumnRowRange> rows(
                sheet->getCellRangeByPosition(0, run.first, 0, run.last), uno::UNO_QUERY_THROW);
            SetProperty(Properties(rows->getRows()), "OptimalHeight", Any(true));
        }
    }
    SetProperty(Properties(m_model), "IsAdjustHeightEnabled", Any(false));
}

int Document::FormatOfCode(const QString& code) const
{
    const Reference<util::XNumberFormats> formats
        = As<util::XNumberFormatsSupplier>(m_model)->getNumberFormats();
    const int format = formats->queryKey(ToUno(code), lang::Locale(), false);
    return format >= 0 ? format : formats->addNew(ToUno(code), lang::Locale());
}

int Document::StandardFormat(sal_Int16 type) const
{
    const Reference<util::XNumberFormats> formats
        = As<util::XNumberFormatsSupplier>(m_model)->getNumberFormats();
    return As<util::XNumberFormatTypes>(formats)->getStandardFormat(type, lang::Locale());
}

sal_Int16 Document::TypeOfFormat(int format) const
{
    const Reference<util::XNumberFormats> formats
        = As<util::XNumberFormatsSupplier>(m_model)->getNumberFormats();
    sal_Int16 type = 0;
    formats->getByKey(format)->getPropertyValue(ToUno(QStringLiteral("Type"))) >>= type;
    return type;
}

/// All columns on the width of a page, which lies on its side for wide tables.
void Document::FitPagesToColumns()
{
    const Reference<container::XNameAccess> families
        = As<style::XStyleFamiliesSupplier>(m_model)->getStyleFamilies();
    Reference<container::XNameAccess> pages;
    families->getByName(ToUno(QStringLiteral("PageStyles"))) >>= pages;
    const Reference<container::XIndexAccess> sheets(m_model->getSheets(), uno::UNO_QUERY_THROW);
    for (sal_Int32 i = 0; i < sheets->getCount(); ++i) {
        const Reference<sheet::XSpreadsheet> sheet(sheets->getByIndex(i), uno::UNO_QUERY_THROW);
        rtl::OUString style;
        Properties(sheet)->getPropertyValue(ToUno(QStringLiteral("PageStyle"))) >>= style;
        const Reference<beans::XPropertySet> page(pages->getByName(style), uno::UNO_QUERY_THROW);
        SetProperty(page, "ScaleToPagesX", Any(sal_Int16(1)));
        SetProperty(page, "ScaleToPagesY", Any(sal_Int16(0))); // as many as it takes
        if (UsedWidth(sheet) > WidestPortrait)
            TurnPage(page);
    }
}

void Document::Save(
    const QString& path, FileFormat format, const QString& scratchFolder, std::timed_mutex& saving)
{
    if (format != FileFormat::Csv)
        FitRowHeights();
    if (format == FileFormat::Pdf)
        FitPagesToColumns();
    const ScratchFile scratch(scratchFolder + QLatin1String("/stored"));
    Arguments arguments{Argument("FilterName", Text(FilterName(format))), Argument("Overwrite", Any(true))};
    if (format == FileFormat::Csv)
        arguments << Argument("FilterOptions", Text(CsvOptions));
    As<frame::XStorable>(m_model)->storeToURL(FileUrl(scratch.Path()), ToSequence(arguments));
    const std::lock_guard<std::timed_mutex> lock(saving);
    MoveToPlace(scratch.Path(), path, format == FileFormat::Csv ? QByteArray(ByteOrderMark) : QByteArray());
}

} // namespace Office
