#include <gallery/Pictures/CameraTile.h>

#include <gallery/Pictures/FrameClock.h>

#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QPainter>
#include <algorithm>

namespace OperatorClient {

CameraTile::CameraTile(std::shared_ptr<FrameSource> source, FrameClock& clock, QWidget* parent)
    : QWidget(parent)
    , m_pSource(std::move(source))
    , m_clock(clock)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(m_pSource->Title());
    m_clock.Add(this);
}

CameraTile::~CameraTile() { m_clock.Remove(this); }

void CameraTile::SetSource(std::shared_ptr<FrameSource> source)
{
    m_pSource = std::move(source);
    setAccessibleName(m_pSource->Title());
    update();
}

bool CameraTile::CanBeSeen() const
{
    if (!isVisible() || visibleRegion().isEmpty())
        return false;
    const QGraphicsProxyWidget* proxy = window()->graphicsProxyWidget();
    if (proxy == nullptr)
        return true;
    // What lies in a scene stays visible while nobody shows the scene.
    const QList<QGraphicsView*> views = proxy->scene()->views();
    return std::any_of(
        views.begin(), views.end(), [](const QGraphicsView* view) { return view->isVisible(); });
}

bool CameraTile::Refresh(const QDateTime& now)
{
    if (m_bAwaitsPaint || m_pSource->IsStill() || !CanBeSeen())
        return false;
    if (m_pSource->FrameNumber(now) != m_iPainted) {
        m_bAwaitsPaint = true;
        update();
    }
    return true;
}

void CameraTile::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    m_bAwaitsPaint = false;
    if (!m_pSource->IsStill())
        m_clock.Wake();
    const QDateTime now = m_clock.Now();
    m_iPainted = m_pSource->FrameNumber(now);
    QPainter painter(this);
    m_pSource->Paint(painter, rect(), now);
}

} // namespace OperatorClient
