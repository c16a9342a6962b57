#include <gallery/Alarms/AlarmTable.h>

namespace OperatorClient {

void AlarmTable::SetAlarms(const QVector<AlarmRecord>& alarms)
{
    m_alarms = alarms;
    ShowTexts();
}

void AlarmTable::ShowTexts()
{
    beginResetModel();
    m_columns = AlarmRecord::Columns();
    m_rows.clear();
    m_rows.reserve(m_alarms.size());
    for (const AlarmRecord& alarm : qAsConst(m_alarms))
        m_rows << alarm.Texts();
    endResetModel();
}

int AlarmTable::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : m_rows.size(); }

int AlarmTable::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_columns.size();
}

QVariant AlarmTable::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || role != Qt::DisplayRole)
        return QVariant();
    return m_rows.at(index.row()).at(index.column());
}

QVariant AlarmTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole)
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return m_columns.value(section);
    return QVariant();
}

} // namespace OperatorClient
