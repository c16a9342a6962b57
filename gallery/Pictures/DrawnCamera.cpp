#include <gallery/Pictures/DrawnCamera.h>

#include <gallery/Pictures/PictureFit.h>

#include <QCoreApplication>
#include <QPaintDevice>
#include <QPainter>

namespace OperatorClient {

namespace {

// Below this a line of text would cover the picture.
constexpr int SmallestHeightWithText = 70;

/// White letters with a dark edge all round, to be read on every picture.
void PaintOutlined(QPainter& painter, const QRect& area, int flags, const QString& text)
{
    const QString shown = painter.fontMetrics().elidedText(text, Qt::ElideRight, area.width());
    painter.setPen(QColor(0, 0, 0, 150));
    for (const QPoint& step : {QPoint(-1, 0), QPoint(1, 0), QPoint(0, -1), QPoint(0, 1), QPoint(1, 1)})
        painter.drawText(area.translated(step), flags, shown);
    painter.setPen(QColor(255, 255, 255));
    painter.drawText(area, flags, shown);
}

} // namespace

DrawnCamera::DrawnCamera(int number)
    : m_iNumber(number)
    , m_scene(SceneOfCamera(number))
    , m_bMirrored(((number - 1) / SceneCount()) % 2 == 1)
{ }

QString DrawnCamera::Title() const
{
    const int round = (m_iNumber - 1) / SceneCount() + 1;
    const QString name = QCoreApplication::translate("OperatorClient::Scene", m_scene.name);
    return round == 1 ? name : QStringLiteral("%1 %2").arg(name).arg(round);
}

qint64 DrawnCamera::FrameNumber(const QDateTime& now) const { return now.toMSecsSinceEpoch(); }

double DrawnCamera::SecondsInScene(const QDateTime& now) const
{
    // Cameras of the same scene must not show the same moment.
    return now.time().msecsSinceStartOfDay() / 1000.0 + 7.3 * m_iNumber;
}

void DrawnCamera::PaintInScene(
    QPainter& painter, const QRect& area, const std::function<void(QPainter&)>& paint) const
{
    const QRectF covered = FillOver(SceneSize, area);
    painter.save();
    painter.setClipRect(area, Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(covered.topLeft());
    painter.scale(covered.width() / SceneSize.width(), covered.height() / SceneSize.height());
    if (m_bMirrored) {
        painter.translate(SceneSize.width(), 0);
        painter.scale(-1, 1);
    }
    paint(painter);
    painter.restore();
}

void DrawnCamera::PaintText(QPainter& painter, const QRect& area, const QDateTime& now) const
{
    if (area.height() < SmallestHeightWithText)
        return;
    QFont font = painter.font();
    font.setPixelSize(qBound(10, area.height() / 20, 20));
    painter.setFont(font);
    painter.setLayoutDirection(Qt::LeftToRight); // the camera writes into its picture, whoever looks at it
    const QRect text = area.adjusted(8, 5, -8, -5);
    PaintOutlined(
        painter, text, Qt::AlignLeft | Qt::AlignTop, now.toString(QStringLiteral("yyyy-MM-dd  hh:mm:ss")));
    PaintOutlined(
        painter, text, Qt::AlignLeft | Qt::AlignBottom,
        QStringLiteral("C%1  %2").arg(m_iNumber, 2, 10, QLatin1Char('0')).arg(Title()));
}

void DrawnCamera::Paint(QPainter& painter, const QRect& area, const QDateTime& now)
{
    if (area.isEmpty())
        return;
    // What stands still is most of the work; it is drawn once for each size.
    const QRect still(QPoint(), area.size());
    const QPixmap background = CachedPixmap(
        QStringLiteral("camera:%1").arg(m_iNumber), area.size(), painter.device()->devicePixelRatioF(),
        [&](QPainter& onPixmap) { PaintInScene(onPixmap, still, m_scene.paintStill); });
    painter.drawPixmap(area.topLeft(), background);
    PaintInScene(
        painter, area, [&](QPainter& inScene) { m_scene.paintMoving(inScene, SecondsInScene(now)); });
    PaintText(painter, area, now);
}

} // namespace OperatorClient
