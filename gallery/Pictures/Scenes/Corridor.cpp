#include <gallery/Pictures/Scenes/Scene.h>
#include <gallery/Pictures/Scenes/SceneParts.h>

#include <QCoreApplication>
#include <algorithm>
#include <cmath>

namespace OperatorClient {

namespace {

const Room Hall{QPointF(800, 400), 1150, 640};
constexpr double End = 7.0;

void PaintDoors(QPainter& painter)
{
    for (const double side : {-1.0, 1.0}) {
        for (const double z : {1.5, 2.4, 3.8}) {
            FillPolygon(painter, Hall.Wall(side, -0.48, 1, z - 0.04, z * 1.28 + 0.03), QColor(92, 90, 86));
            FillPolygon(painter, Hall.Wall(side, -0.44, 1, z, z * 1.28), QColor(124, 96, 68));
            FillPolygon(painter, Hall.Wall(side, -0.26, 0.2, z * 1.19, z * 1.24), QColor(176, 192, 198));
        }
    }
}

void PaintStill(QPainter& painter)
{
    painter.fillRect(QRect(0, 0, 1600, 900), QColor(196, 196, 190));
    FillPolygon(painter, Hall.Floor(-1, 1, 1, End), QColor(116, 122, 128));
    FillPolygon(painter, Hall.Ceiling(-1, 1, 1, End), QColor(214, 215, 212));
    FillPolygon(painter, Hall.Wall(-1, -1, 1, 1, End), QColor(186, 187, 180));
    FillPolygon(painter, Hall.Wall(1, -1, 1, 1, End), QColor(178, 179, 172));
    FillPolygon(painter, Hall.Across(-1, 1, -1, 1, End), QColor(202, 203, 197));
    FillPolygon(painter, Hall.Floor(-0.55, 0.55, 1, End), QColor(128, 134, 140));
    for (const double side : {-1.0, 1.0})
        FillPolygon(painter, Hall.Wall(side, 0.93, 1, 1, End), QColor(98, 100, 102));
    PaintDoors(painter);
    FillPolygon(painter, Hall.Across(-0.42, 0.42, -0.4, 1, End), QColor(104, 112, 120));
    FillPolygon(painter, Hall.Across(-0.36, -0.02, -0.32, 1, End), QColor(150, 172, 184));
    FillPolygon(painter, Hall.Across(0.02, 0.36, -0.32, 1, End), QColor(150, 172, 184));
    FillPolygon(painter, Hall.Across(-0.3, 0.3, -0.72, -0.5, End), QColor(38, 122, 74));
    for (const double z : {1.3, 1.9, 2.8, 4.2}) {
        FillPolygon(painter, Hall.Ceiling(-0.26, 0.26, z, z * 1.22), QColor(250, 250, 244));
        FillPolygon(painter, Hall.Floor(-0.2, 0.2, z, z * 1.22), QColor(146, 152, 158));
    }
}

/// Walks to the far end and back again; the nearest and farthest point are held for a moment.
double Distance(double seconds, double period)
{
    const double there = 0.5 - 0.5 * std::cos(2 * M_PI * Phase(seconds, period));
    return 1.7 * std::pow(3.3, there);
}

void PaintMoving(QPainter& painter, double seconds)
{
    struct Walker
    {
        double x;
        double z;
        QColor coat;
    };
    Walker walkers[]
        = {{-0.3, Distance(seconds, 34), QColor(70, 88, 116)},
           {0.34, Distance(seconds + 15, 47), QColor(142, 138, 126)}};
    std::sort(
        std::begin(walkers), std::end(walkers), [](const Walker& a, const Walker& b) { return a.z > b.z; });
    for (const Walker& walker : walkers) {
        const QPointF feet = Hall.At(walker.x, 0.97, walker.z);
        PaintPerson(
            painter, feet, 0.95 * Hall.halfHeight / walker.z * 1.25, seconds * 1.6 + walker.x, walker.coat);
    }
}

} // namespace

Scene CorridorScene()
{
    return {QT_TRANSLATE_NOOP("OperatorClient::Scene", "Corridor, floor 2"), &PaintStill, &PaintMoving};
}

} // namespace OperatorClient
