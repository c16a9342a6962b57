#pragma once

#include <UI/Spreadsheet/AxExcelFunction.h>

#include <QObject>

namespace OperatorClient {

/// Writes a table to a workbook, block by block: each turn of the event loop writes one, so that the
/// progress shows and the export can be cancelled.
class AlarmExport : public QObject
{
    Q_OBJECT

public:
    /// @param path its suffix tells the format
    /// @param columns the titles of the columns, at most 25
    AlarmExport(
        const QString& path, const QString& title, const QStringList& columns,
        const QList<QList<QString>>& rows, QObject* parent = nullptr);

    void Start(); ///< returns at once
    void Cancel(); ///< ends it without a file; SignalFinished does not follow

Q_SIGNALS:
    void SignalProgress(int rows); ///< so many have been written
    void SignalSaving(); ///< all rows are written; storing the file takes a moment
    void SignalFinished(bool saved, const QString& error); ///< once; the error is for the operator

private:
    void Next(void (AlarmExport::*step)());
    void Open();
    void WriteBlock();
    void Save();
    void Fail(const QString& error);
    bool WriteHead();

    const QString m_path;
    const QString m_title;
    const QStringList m_columns;
    const QList<QList<QString>> m_rows;
    UICommonMdl::AxExcelFunction m_excel;
    int m_written = 0;
    bool m_cancelled = false;
};

} // namespace OperatorClient
