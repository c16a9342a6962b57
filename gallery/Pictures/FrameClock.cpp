#include <gallery/Pictures/FrameClock.h>

#include <gallery/Pictures/CameraTile.h>

namespace OperatorClient {

namespace {

constexpr int ShortestInterval = 40;
constexpr int LongestInterval = 1000;
// What one core paints without the operator's hand feeling it.
constexpr int TilesPerSecond = 500;
// With nothing to show, only the next look whether that has changed is needed.
constexpr int IdleInterval = 250;

} // namespace

FrameClock::FrameClock(QObject* parent)
    : QObject(parent)
{
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &FrameClock::OnTick);
    m_timer.start(IdleInterval);
}

void FrameClock::Add(CameraTile* tile)
{
    m_tiles.append(tile);
    if (m_timer.isActive() && m_timer.interval() == IdleInterval)
        m_timer.start(ShortestInterval);
}

void FrameClock::Remove(CameraTile* tile) { m_tiles.removeOne(tile); }

QDateTime FrameClock::Now() const { return m_frozen.isValid() ? m_frozen : QDateTime::currentDateTime(); }

void FrameClock::Freeze(const QDateTime& moment)
{
    m_frozen = moment;
    m_timer.stop();
}

int FrameClock::IntervalFor(int visibleTiles)
{
    const qint64 wanted = qint64(visibleTiles) * 1000 / TilesPerSecond;
    return int(qBound(qint64(ShortestInterval), wanted, qint64(LongestInterval)));
}

void FrameClock::OnTick()
{
    const QDateTime now = Now();
    int visible = 0;
    for (CameraTile* tile : qAsConst(m_tiles)) {
        if (!tile->CanBeSeen())
            continue;
        ++visible;
        tile->Refresh(now);
    }
    const int interval = visible == 0 ? IdleInterval : IntervalFor(visible);
    if (interval != m_timer.interval())
        m_timer.start(interval);
}

} // namespace OperatorClient
