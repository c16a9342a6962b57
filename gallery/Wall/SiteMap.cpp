#include <gallery/Wall/SiteMap.h>

#include <QImage>
#include <QPainter>
#include <QPainterPath>

namespace OperatorClient {

namespace {

const QSize MapSize(1600, 1000);
const QColor GroundColor(40, 46, 47);
const QColor RoadColor(62, 66, 72);
const QColor GreenColor(45, 62, 52);
const QColor BuildingColor(84, 90, 100);
const QColor BuildingEdgeColor(132, 139, 150);
const QColor WaterColor(38, 60, 80);
const QColor CameraColor(90, 165, 242);

void PaintGround(QPainter& painter)
{
    painter.fillRect(QRect(QPoint(), MapSize), GroundColor);
    painter.setPen(Qt::NoPen);
    painter.setBrush(GreenColor);
    painter.drawRoundedRect(QRect(40, 40, 430, 250), 30, 30);
    painter.drawRoundedRect(QRect(1120, 620, 440, 340), 30, 30);
    painter.setBrush(WaterColor);
    painter.drawEllipse(QRect(1190, 690, 280, 170));
}

void PaintRoads(QPainter& painter)
{
    QPainterPath roads;
    roads.moveTo(-20, 380);
    roads.cubicTo(420, 380, 500, 340, 560, 560);
    roads.lineTo(640, 1020);
    roads.moveTo(520, 430);
    roads.cubicTo(760, 520, 1000, 500, 1620, 500);
    roads.moveTo(1010, 500);
    roads.lineTo(1010, -20);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(RoadColor, 58, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.drawPath(roads);
    QPen middle(QColor(120, 125, 132), 3, Qt::CustomDashLine);
    middle.setDashPattern({6, 6});
    painter.setPen(middle);
    painter.drawPath(roads);
}

void PaintBuilding(QPainter& painter, const QRect& ground, const QString& name)
{
    painter.setPen(QPen(BuildingEdgeColor, 3));
    painter.setBrush(BuildingColor);
    painter.drawRoundedRect(ground, 6, 6);
    painter.setPen(QColor(222, 226, 232));
    painter.drawText(ground, Qt::AlignCenter, name);
}

void PaintCarPark(QPainter& painter, const QRect& ground)
{
    painter.setPen(QPen(QColor(112, 118, 126), 3));
    painter.setBrush(QColor(54, 58, 63));
    painter.drawRect(ground);
    for (int x = ground.left() + 40; x < ground.right(); x += 40) {
        painter.drawLine(x, ground.top(), x, ground.top() + 70);
        painter.drawLine(x, ground.bottom() - 70, x, ground.bottom());
    }
    painter.setPen(QColor(222, 226, 232));
    painter.drawText(ground, Qt::AlignCenter, QStringLiteral("P"));
}

/// A camera and the sector that it sees, looking @p degrees counter-clockwise from the right.
void PaintCamera(QPainter& painter, const QPoint& at, int degrees)
{
    constexpr int Reach = 130;
    constexpr int Opening = 60;
    QColor seen = CameraColor;
    seen.setAlpha(56);
    painter.setPen(Qt::NoPen);
    painter.setBrush(seen);
    painter.drawPie(
        QRect(at.x() - Reach, at.y() - Reach, 2 * Reach, 2 * Reach), (degrees - Opening / 2) * 16,
        Opening * 16);
    painter.setBrush(CameraColor);
    painter.setPen(QPen(QColor(16, 17, 20), 3));
    painter.drawEllipse(at, 12, 12);
}

} // namespace

bool SaveSiteMap(const QString& path)
{
    QImage map(MapSize, QImage::Format_RGB32);
    QPainter painter(&map);
    painter.setRenderHint(QPainter::Antialiasing);
    QFont font = painter.font();
    font.setPixelSize(34);
    painter.setFont(font);
    PaintGround(painter);
    PaintRoads(painter);
    PaintCarPark(painter, QRect(80, 560, 400, 250));
    PaintBuilding(painter, QRect(660, 120, 280, 250), QStringLiteral("A"));
    PaintBuilding(painter, QRect(1100, 110, 400, 270), QStringLiteral("B"));
    PaintBuilding(painter, QRect(720, 640, 320, 270), QStringLiteral("C"));
    PaintCamera(painter, QPoint(480, 560), 215);
    PaintCamera(painter, QPoint(660, 370), 250);
    PaintCamera(painter, QPoint(940, 120), 300);
    PaintCamera(painter, QPoint(1100, 380), 225);
    PaintCamera(painter, QPoint(1500, 380), 315);
    PaintCamera(painter, QPoint(720, 640), 130);
    PaintCamera(painter, QPoint(1040, 910), 20);
    painter.end();
    return map.save(path, "PNG");
}

} // namespace OperatorClient
