#include <gallery/Pictures/Scenes/Scene.h>
#include <gallery/Pictures/Scenes/SceneParts.h>

#include <QCoreApplication>
#include <cmath>

namespace OperatorClient {

namespace {

const Room Aisle{QPointF(800, 380), 900, 620};
constexpr double End = 8.0;

// Boxes are drawn from the far end to the near one; a fixed pattern keeps the picture the same.
void PaintShelf(QPainter& painter, double side)
{
    const QColor boxes[]
        = {QColor(164, 132, 92), QColor(148, 116, 80), QColor(176, 146, 106), QColor(118, 130, 142)};
    FillPolygon(painter, Aisle.Wall(side, -1, 1, 1, End), QColor(52, 57, 64));
    int pattern = side > 0 ? 3 : 0;
    for (int bay = 0; bay < 11; ++bay) {
        const double z = 6.6 / std::pow(1.2, bay);
        for (const double top : {-0.95, -0.3, 0.35}) {
            pattern = (pattern * 5 + 7) % 23;
            if (pattern % 6 != 1)
                FillPolygon(
                    painter, Aisle.Wall(side, top + 0.1 + 0.05 * (pattern % 3), top + 0.57, z, z * 1.15),
                    boxes[pattern % 4].darker(side > 0 ? 112 : 100));
        }
    }
    for (const double level : {-0.37, 0.28, 0.93})
        FillPolygon(painter, Aisle.Wall(side, level, level + 0.07, 1, End), QColor(196, 104, 44));
    for (int post = 0; post < 6; ++post) {
        const double z = std::pow(1.44, post);
        FillPolygon(painter, Aisle.Wall(side, -1, 1, z, z * 1.03), QColor(52, 84, 132));
    }
}

void PaintStill(QPainter& painter)
{
    FillRect(painter, QRectF(0, 0, 1600, 900), QColor(44, 48, 54));
    FillPolygon(painter, Aisle.Ceiling(-1, 1, 1, End), QColor(58, 63, 70));
    FillPolygon(painter, Aisle.Floor(-1, 1, 1, End), QColor(126, 128, 128));
    FillPolygon(painter, Aisle.Across(-1, 1, -1, 1, End), QColor(108, 114, 118));
    FillPolygon(painter, Aisle.Across(-0.6, 0.6, -0.4, 1, End), QColor(168, 174, 176));
    for (const double side : {-1.0, 1.0}) {
        PaintShelf(painter, side);
        FillPolygon(
            painter, Aisle.Floor(side * 0.86 - 0.03, side * 0.86 + 0.03, 1, End), QColor(204, 176, 60));
    }
    for (const double z : {1.2, 1.8, 2.7, 4.1})
        FillPolygon(painter, Aisle.Ceiling(-0.12, 0.12, z, z * 1.25), QColor(240, 244, 240));
}

/// A forklift seen from the front, @p scale 1 is 200 units wide.
void PaintForklift(QPainter& painter, QPointF foot, double scale)
{
    painter.save();
    painter.translate(foot);
    painter.scale(scale, scale);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 80));
    painter.drawEllipse(QPointF(0, 0), 130, 18);
    FillRounded(painter, QRectF(-96, -46, 40, 48), 10, QColor(30, 31, 33));
    FillRounded(painter, QRectF(56, -46, 40, 48), 10, QColor(30, 31, 33));
    FillRounded(painter, QRectF(-82, -130, 164, 106), 12, QColor(214, 158, 44));
    FillRounded(painter, QRectF(-26, -206, 52, 86), 20, QColor(70, 92, 74));
    painter.setBrush(QColor(203, 164, 136));
    painter.drawEllipse(QPointF(0, -224), 18, 21);
    FillRect(painter, QRectF(-78, -268, 10, 142), QColor(46, 48, 52));
    FillRect(painter, QRectF(68, -268, 10, 142), QColor(46, 48, 52));
    FillRect(painter, QRectF(-84, -276, 168, 12), QColor(46, 48, 52));
    FillRect(painter, QRectF(-50, -150, 100, 12), QColor(46, 48, 52));
    FillRounded(painter, QRectF(-62, -112, 26, 18), 5, QColor(250, 244, 214));
    FillRounded(painter, QRectF(36, -112, 26, 18), 5, QColor(250, 244, 214));
    painter.restore();
}

void PaintMoving(QPainter& painter, double seconds)
{
    const double z = 1.9 * std::pow(3.2, 0.5 + 0.5 * std::cos(2 * M_PI * Phase(seconds, 38)));
    PaintForklift(painter, Aisle.At(0.22, 0.97, z), 2.1 / z);
    const double walker = 2.6 + 1.4 * std::sin(2 * M_PI * Phase(seconds, 52));
    PaintPerson(painter, Aisle.At(-0.55, 0.97, walker), 700 / walker, seconds * 1.5, QColor(206, 110, 40));
}

} // namespace

Scene WarehouseScene()
{
    return {QT_TRANSLATE_NOOP("OperatorClient::Scene", "Warehouse aisle"), &PaintStill, &PaintMoving};
}

} // namespace OperatorClient
