#pragma once

#include <QDateTime>
#include <QStringList>
#include <QVariantList>
#include <QVector>
#include <optional>

namespace OperatorClient {

/// An alarm that a camera raised.
struct AlarmRecord
{
    int number = 0;
    QDateTime time;
    QString camera;
    QString kind;
    QString level;
    QString state;
    QString note;

    /// The titles of the columns of a table of alarms, and of a workbook with them.
    static QStringList Columns();

    /// Whether the first texts of a row of a workbook are those titles, in any of the client's languages.
    static bool AreColumns(const QStringList& texts);

    /// One a column. Words that the program knows are shown in the operator's language.
    QStringList Texts() const;

    /// The alarm in a row of a workbook, whose words may be of any of the client's languages; none when the
    /// row has no number or no time.
    static std::optional<AlarmRecord> FromRow(const QVariantList& row);
};

/// @p count alarms, the newest first, the last one just before @p now. The same each time.
QVector<AlarmRecord> SampleAlarms(int count, const QDateTime& now);

} // namespace OperatorClient
