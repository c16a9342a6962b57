#include <gallery/Pictures/Scenes/Scene.h>
#include <gallery/Pictures/Scenes/SceneParts.h>

#include <QCoreApplication>

namespace OperatorClient {

namespace {

constexpr int Bays = 9; ///< in each row
constexpr double FirstBay = 80; ///< left edge of the first bay
constexpr double BayWidth = 160;
constexpr double UpperRow = 225; ///< middle of the upper row of bays
constexpr double LowerRow = 765;

void PaintBays(QPainter& painter, double top, double bottom)
{
    painter.setPen(QPen(QColor(206, 209, 212), 5));
    for (int line = 0; line <= Bays; ++line) {
        const double x = FirstBay + line * BayWidth;
        painter.drawLine(QPointF(x, top), QPointF(x, bottom));
    }
}

void PaintParkedCars(QPainter& painter)
{
    struct Parked
    {
        int bay;
        bool upper;
        QColor color;
    };
    const Parked cars[] = {
        {0, true, QColor(142, 148, 156)},  {1, true, QColor(58, 76, 104)}, {3, true, QColor(196, 199, 203)},
        {4, true, QColor(118, 44, 42)},    {6, true, QColor(48, 52, 58)},  {8, true, QColor(171, 176, 181)},
        {1, false, QColor(206, 205, 198)}, {2, false, QColor(46, 66, 62)}, {5, false, QColor(86, 94, 106)},
        {7, false, QColor(120, 126, 134)}, {8, false, QColor(54, 84, 128)}};
    for (const Parked& car : cars) {
        const QPointF centre(80 + BayWidth * (car.bay + 0.5), car.upper ? UpperRow : LowerRow);
        PaintCarFromAbove(painter, centre, car.upper ? 90 : -90, car.color);
    }
}

void PaintStill(QPainter& painter)
{
    FillGraded(painter, QRectF(0, 0, 1600, 900), QColor(84, 89, 94), QColor(98, 103, 107));
    FillRect(painter, QRectF(0, 0, 1600, 96), QColor(78, 94, 66));
    FillRect(painter, QRectF(0, 96, 1600, 12), QColor(150, 152, 150));
    for (int i = 0; i < 9; ++i)
        PaintBush(painter, QPointF(90 + 178 * i, 96), 74, QColor(70, 96, 60));
    FillRect(painter, QRectF(0, 880, 1600, 20), QColor(150, 152, 150));
    PaintBays(painter, 118, 340);
    PaintBays(painter, 650, 872);
    QPen dashes(QColor(214, 216, 218, 170), 6);
    dashes.setDashPattern({9, 9});
    painter.setPen(dashes);
    painter.drawLine(0, 495, 1600, 495);
    PaintParkedCars(painter);
}

void PaintMoving(QPainter& painter, double seconds)
{
    const double right = -250 + 2100 * Phase(seconds, 21);
    PaintCarFromAbove(painter, QPointF(right, 570), 0, QColor(176, 60, 48));
    const double left = 1850 - 2100 * Phase(seconds + 9, 29);
    PaintCarFromAbove(painter, QPointF(left, 420), 180, QColor(214, 216, 219));
    const double walk = 1700 - 1800 * Phase(seconds + 20, 46);
    PaintPerson(painter, QPointF(walk, 652), 118, seconds * 1.7, QColor(150, 118, 62));
}

} // namespace

Scene CarParkScene()
{
    return {QT_TRANSLATE_NOOP("OperatorClient::Scene", "Car park"), &PaintStill, &PaintMoving};
}

} // namespace OperatorClient
