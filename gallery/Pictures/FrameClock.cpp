#include <gallery/Pictures/FrameClock.h>

#include <gallery/Pictures/CameraTile.h>

#include <algorithm>

namespace OperatorClient {

namespace {

constexpr int ShortestInterval = 40;
constexpr int LongestInterval = 1000;
// What one core paints without the operator's hand feeling it.
constexpr int TilesPerSecond = 500;

} // namespace

FrameClock::FrameClock(QObject* parent)
    : QObject(parent)
{
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &FrameClock::OnTick);
}

void FrameClock::Add(CameraTile* tile) { m_tiles.append(tile); }

void FrameClock::Remove(CameraTile* tile) { m_tiles.removeOne(tile); }

void FrameClock::Wake()
{
    if (!m_timer.isActive() && !m_frozen.isValid())
        m_timer.start(ShortestInterval);
}

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
    const auto moving = std::count_if(
        m_tiles.cbegin(), m_tiles.cend(), [&now](CameraTile* tile) { return tile->Refresh(now); });
    if (moving == 0) {
        m_timer.stop();
        return;
    }
    const int interval = IntervalFor(int(moving));
    if (interval != m_timer.interval())
        m_timer.start(interval);
}

} // namespace OperatorClient
