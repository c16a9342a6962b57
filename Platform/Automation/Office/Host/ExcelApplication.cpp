#include <Platform/Automation/Office/Host/ExcelApplication.h>

#include <Platform/Automation/Office/Host/ExcelUnits.h>
#include <Platform/Automation/Office/Host/ExcelWorkbook.h>

namespace Office {

namespace {

// Of an application that knows all formats that the office stores.
const QString Version = QStringLiteral("16.0");

/// The collection of an application's workbooks.
class ExcelWorkbooks : public ExcelObject
{
public:
    explicit ExcelWorkbooks(std::shared_ptr<ExcelApplication> application)
        : m_pApplication(std::move(application))
    { }

    bool IsGone() const override { return m_pApplication->IsGone(); }

    QVariant Call(const QString& member, const QVariantList& arguments) override
    {
        SubObject(member, arguments);
        return QVariant();
    }

    std::shared_ptr<ExcelObject> SubObject(const QString& member, const QVariantList& arguments) override
    {
        if (member == QLatin1String("add"))
            return m_pApplication->AddWorkbook();
        if (member == QLatin1String("open") && !arguments.isEmpty())
            return m_pApplication->OpenWorkbook(ClientPath(arguments.first().toString()));
        return ExcelObject::SubObject(member, arguments);
    }

private:
    const std::shared_ptr<ExcelApplication> m_pApplication;
};

} // namespace

ExcelApplication::ExcelApplication(const OfficeContext& context)
    : m_context(context)
{ }

QVariant ExcelApplication::Call(const QString& member, const QVariantList& arguments)
{
    if (member == QLatin1String("quit"))
        Quit();
    else if (member != QLatin1String("setvisible")) // it never is
        return ExcelObject::Call(member, arguments);
    return QVariant();
}

std::shared_ptr<ExcelObject> ExcelApplication::SubObject(const QString& member, const QVariantList& arguments)
{
    if (member == QLatin1String("workbooks"))
        return std::make_shared<ExcelWorkbooks>(shared_from_this());
    if (member == QLatin1String("activeworkbook"))
        return ActiveWorkbook();
    return ExcelObject::SubObject(member, arguments);
}

QVariant ExcelApplication::Read(const QString& name)
{
    return name == QLatin1String("version") ? QVariant(Version) : ExcelObject::Read(name);
}

void ExcelApplication::Write(const QString& name, const QVariant& value)
{
    if (name != QLatin1String("displayalerts")) // it never asks
        ExcelObject::Write(name, value);
}

std::shared_ptr<ExcelWorkbook> ExcelApplication::AddWorkbook()
{
    return Keep(Document::New(m_context.desktop));
}

std::shared_ptr<ExcelWorkbook> ExcelApplication::OpenWorkbook(const QString& path)
{
    return Keep(Document::Open(m_context.desktop, path));
}

std::shared_ptr<ExcelWorkbook> ExcelApplication::ActiveWorkbook()
{
    ForgetClosedWorkbooks();
    return m_workbooks.isEmpty() ? nullptr : m_workbooks.last();
}

std::shared_ptr<ExcelWorkbook> ExcelApplication::Keep(std::unique_ptr<Document> document)
{
    ForgetClosedWorkbooks();
    m_workbooks << std::make_shared<ExcelWorkbook>(std::move(document), m_context);
    return m_workbooks.last();
}

void ExcelApplication::ForgetClosedWorkbooks()
{
    const auto closed = [](const std::shared_ptr<ExcelWorkbook>& workbook) { return workbook->IsGone(); };
    m_workbooks.erase(std::remove_if(m_workbooks.begin(), m_workbooks.end(), closed), m_workbooks.end());
}

void ExcelApplication::Quit()
{
    m_quit = true;
    for (const auto& workbook : std::as_const(m_workbooks))
        workbook->Close();
    m_workbooks.clear();
}

} // namespace Office
