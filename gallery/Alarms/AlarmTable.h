#pragma once

#include <gallery/Alarms/AlarmRecord.h>

#include <QAbstractTableModel>

namespace OperatorClient {

/// Alarms as the rows of a table.
class AlarmTable : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void SetAlarms(const QVector<AlarmRecord>& alarms);
    void ShowTexts(); ///< in the present language

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QVector<AlarmRecord> m_alarms;
    QVector<QStringList> m_rows; ///< their texts
    QStringList m_columns = AlarmRecord::Columns();
};

} // namespace OperatorClient
