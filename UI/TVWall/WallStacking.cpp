#include "WallStacking.h"

#include <QMap>

namespace UICommonMdl::WallStacking {

QVector<int> WithGapClosed(QVector<int> values, int moved, int oldZ)
{
    if (oldZ < 1)
        return values;
    for (int i = 0; i < values.size(); ++i) {
        if (values.at(i) < 0)
            break;
        if (i != moved && values.at(i) > oldZ)
            --values[i];
    }
    return values;
}

QVector<int> AscendingOrder(const QVector<int>& values)
{
    QMap<int, int> positions;
    for (int i = 0; i < values.size(); ++i)
        positions.insert(values.at(i), i);
    return QVector<int>(positions.begin(), positions.end());
}

} // namespace UICommonMdl::WallStacking
