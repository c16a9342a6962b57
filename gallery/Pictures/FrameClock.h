#pragma once

#include <QDateTime>
#include <QObject>
#include <QTimer>
#include <QVector>

namespace OperatorClient {

class CameraTile;

/// The one timer behind all tiles. It runs at 25 frames a second while few tiles can be seen and slower
/// with many, so that the work of a second stays the same, and it asks only tiles that can be seen.
class FrameClock : public QObject
{
    Q_OBJECT

public:
    explicit FrameClock(QObject* parent = nullptr);

    void Add(CameraTile* tile);
    void Remove(CameraTile* tile);

    /// The moment that the pictures show.
    QDateTime Now() const;
    /// Stops at @p moment, for pictures that are the same each time.
    void Freeze(const QDateTime& moment);

    /// Milliseconds from one frame to the next with @p visibleTiles tiles on the display: 40 to 1000.
    static int IntervalFor(int visibleTiles);

private:
    void OnTick();

    QTimer m_timer;
    QVector<CameraTile*> m_tiles;
    QDateTime m_frozen; ///< invalid while the clock runs
};

} // namespace OperatorClient
