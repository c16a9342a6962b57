#pragma once

#include <QDateTime>
#include <QObject>
#include <QTimer>
#include <QVector>

namespace OperatorClient {

class CameraTile;

/// The one timer behind all tiles. It runs at 25 frames a second while few tiles can be seen and slower
/// with many, so that the work of a second stays the same. While no moving picture can be seen it stands
/// still: the next tile that is painted wakes it.
class FrameClock : public QObject
{
    Q_OBJECT

public:
    explicit FrameClock(QObject* parent = nullptr);

    void Add(CameraTile* tile);
    void Remove(CameraTile* tile);
    /// To be called by a tile of a moving picture when it is painted.
    void Wake();
    bool IsRunning() const { return m_timer.isActive(); }

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
