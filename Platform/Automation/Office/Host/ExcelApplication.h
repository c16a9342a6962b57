#pragma once

#include <Platform/Automation/Office/Host/Document.h>
#include <Platform/Automation/Office/Host/ExcelObject.h>

#include <QVector>

namespace Office {

class ExcelWorkbook;

/// What all applications of a host share.
struct OfficeContext
{
    Document::Desktop desktop;
    QString scratchFolder;
    std::timed_mutex& saving;
};

/// The application, as one client object sees it. It has workbooks of its own: quitting it closes these and
/// leaves the office running for the others.
class ExcelApplication : public ExcelObject, public std::enable_shared_from_this<ExcelApplication>
{
public:
    explicit ExcelApplication(const OfficeContext& context);

    bool IsGone() const override { return m_quit; }
    QVariant Call(const QString& member, const QVariantList& arguments) override;
    std::shared_ptr<ExcelObject> SubObject(const QString& member, const QVariantList& arguments) override;
    QVariant Read(const QString& name) override;
    void Write(const QString& name, const QVariant& value) override;

    std::shared_ptr<ExcelWorkbook> AddWorkbook();
    std::shared_ptr<ExcelWorkbook> OpenWorkbook(const QString& path);
    void Quit();

private:
    std::shared_ptr<ExcelWorkbook> Keep(std::unique_ptr<Document> document);
    std::shared_ptr<ExcelWorkbook> ActiveWorkbook(); ///< null when none is open
    void ForgetClosedWorkbooks();

    const OfficeContext& m_context;
    QVector<std::shared_ptr<ExcelWorkbook>> m_workbooks; ///< the last one is the active one
    bool m_quit = false;
};

} // namespace Office
