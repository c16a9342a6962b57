#pragma once

#include <Platform/Automation/Office/Host/ExcelApplication.h>

namespace Office {

/// A workbook and, by itself, its collection of sheets.
class ExcelWorkbook : public ExcelObject, public std::enable_shared_from_this<ExcelWorkbook>
{
public:
    ExcelWorkbook(std::unique_ptr<Document> document, const OfficeContext& context);

    bool IsGone() const override { return !m_pDocument; }
    QVariant Call(const QString& member, const QVariantList& arguments) override;
    std::shared_ptr<ExcelObject> SubObject(const QString& member, const QVariantList& arguments) override;
    QVariant Read(const QString& name) override; ///< of the sheets

    void Close();
    Document& Open() const { return *m_pDocument; } ///< the document, which has to be open: see IsGone()

private:
    bool Save(const QVariant& path, FileFormat format);

    std::unique_ptr<Document> m_pDocument;
    const OfficeContext& m_context;
};

} // namespace Office
