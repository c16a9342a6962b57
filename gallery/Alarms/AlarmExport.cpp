#include <gallery/Alarms/AlarmExport.h>

#include <QPointer>
#include <QTimer>

namespace OperatorClient {

namespace {

constexpr int RowsOfBlock = 1000; // about a tenth of a second
constexpr int RowsOfHead = 2;

} // namespace

AlarmExport::AlarmExport(
    const QString& path, const QString& title, const QStringList& columns, const QList<QList<QString>>& rows,
    QObject* parent)
    : QObject(parent)
    , m_path(path)
    , m_title(title)
    , m_columns(columns)
    , m_rows(rows)
{ }

void AlarmExport::Start() { Next(&AlarmExport::Open); }

void AlarmExport::Cancel()
{
    m_cancelled = true;
    m_excel.FreeExcel();
}

void AlarmExport::Next(void (AlarmExport::*step)())
{
    QTimer::singleShot(0, this, [this, step] {
        if (!m_cancelled)
            (this->*step)();
    });
}

void AlarmExport::Open()
{
    if (!m_excel.OpenExcel(m_path, true))
        return Fail(m_excel.GetErrorMsg());
    if (!WriteHead())
        return Fail(tr("The table cannot be written."));
    Next(m_rows.isEmpty() ? &AlarmExport::Save : &AlarmExport::WriteBlock);
}

bool AlarmExport::WriteHead()
{
    m_excel.SetSheetName(m_title);
    m_excel.SetExcelTitleProperty();
    const bool titled = m_excel.SetMergeCellValue(1, 1, 1, m_columns.size(), m_title);
    m_excel.SetCellHeaderProperty();
    return titled && m_excel.SetMultiCellValue(RowsOfHead, 1, {m_columns});
}

void AlarmExport::WriteBlock()
{
    m_excel.SetCellContextProperty();
    const QList<QList<QString>> block = m_rows.mid(m_written, RowsOfBlock);
    m_excel.BeginAddMemory(m_columns.size(), RowsOfHead + 1 + m_written, 1);
    for (const QList<QString>& row : block) {
        for (const QString& text : row)
            m_excel.AddNoAutoTranCellValue(text);
    }
    if (!m_excel.EndAddMemoryAndSave())
        return Fail(tr("The table cannot be written."));
    m_written += block.size();
    const bool done = m_written == m_rows.size();
    Next(done ? &AlarmExport::Save : &AlarmExport::WriteBlock);
    const QPointer<AlarmExport> alive(this);
    Q_EMIT SignalProgress(m_written);
    if (alive && done && !m_cancelled)
        Q_EMIT SignalSaving();
}

void AlarmExport::Save()
{
    if (!m_excel.SaveExcel())
        return Fail(tr("The file cannot be saved there."));
    m_excel.FreeExcel();
    Q_EMIT SignalFinished(true, QString());
}

void AlarmExport::Fail(const QString& error)
{
    m_excel.FreeExcel();
    Q_EMIT SignalFinished(false, error);
}

} // namespace OperatorClient
