#include "KvTVWallNormalView.h"

#include <QEvent>
#include <QGraphicsScene>
#include <QImageReader>
#include <QPainter>

namespace UICommonMdl {

KvTVWallNormalView::KvTVWallNormalView(QWidget* parent)
    : QGraphicsView(parent)
{
    auto* scene = new QGraphicsScene(this);
    scene->setItemIndexMethod(QGraphicsScene::NoIndex); // its top level holds the screens only
    setScene(scene);
    setFrameStyle(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setOptimizationFlags(DontAdjustForAntialiasing | DontSavePainterState);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
}

const QPixmap& KvTVWallNormalView::Icon(const QString& file, int side)
{
    const qreal density = devicePixelRatioF();
    const QString key = QStringLiteral("%1|%2|%3").arg(file).arg(side).arg(density);
    const auto found = m_icons.constFind(key);
    if (found != m_icons.constEnd())
        return *found;
    QPixmap icon;
    if (!file.isEmpty()) {
        QImageReader reader(file);
        reader.setScaledSize(QSize(side, side) * density);
        icon = QPixmap::fromImage(reader.read());
        icon.setDevicePixelRatio(density);
    }
    return *m_icons.insert(key, icon);
}

void KvTVWallNormalView::changeEvent(QEvent* event)
{
    QGraphicsView::changeEvent(event);
    if (event->type() == QEvent::StyleChange) {
        m_icons.clear();
        viewport()->update();
    }
}

void KvTVWallNormalView::drawBackground(QPainter* painter, const QRectF& exposed)
{
    painter->fillRect(exposed, gutterColor);
}

void KvTVWallNormalView::resizeEvent(QResizeEvent* event)
{
    QGraphicsView::resizeEvent(event);
    scene()->setSceneRect(QRectF(QPointF(0, 0), viewport()->size()));
}

} // namespace UICommonMdl
