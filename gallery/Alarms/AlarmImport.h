#pragma once

#include <gallery/Alarms/AlarmRecord.h>

namespace OperatorClient {

/// What a workbook with alarms holds.
struct AlarmImport
{
    QVector<AlarmRecord> alarms;
    int skipped = 0; ///< rows that are no alarms
    QString error; ///< for the operator; empty when the workbook was read

    /// Reads the first sheet of @p path. The titles of the columns stand in one of the first rows, in any of
    /// the client's languages.
    static AlarmImport Read(const QString& path);
};

} // namespace OperatorClient
