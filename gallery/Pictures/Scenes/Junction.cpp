#include <gallery/Pictures/Scenes/Scene.h>
#include <gallery/Pictures/Scenes/SceneParts.h>

#include <QCoreApplication>

namespace OperatorClient {

namespace {

// Both roads have one lane a direction; the lanes' middles:
constexpr double EastLane = 530;
constexpr double WestLane = 370;
constexpr double NorthLane = 880;
constexpr double SouthLane = 720;
constexpr double Cycle = 26; ///< seconds from one green to the next

void PaintCorner(QPainter& painter, const QRectF& corner)
{
    FillRounded(painter, corner, 60, QColor(150, 150, 147));
    FillRounded(painter, corner.adjusted(34, 34, -34, -34), 40, QColor(88, 110, 72));
}

void PaintZebra(QPainter& painter, const QRectF& area, bool acrossRows)
{
    for (int i = 0; i < 8; ++i) {
        const double step = (acrossRows ? area.height() : area.width()) / 8;
        const QRectF bar = acrossRows
            ? QRectF(area.left(), area.top() + i * step + 8, area.width(), step - 16)
            : QRectF(area.left() + i * step + 8, area.top(), step - 16, area.height());
        FillRect(painter, bar, QColor(212, 213, 212));
    }
}

void PaintStill(QPainter& painter)
{
    FillRect(painter, QRectF(0, 0, 1600, 900), QColor(78, 81, 86));
    PaintCorner(painter, QRectF(-80, -80, 700, 360));
    PaintCorner(painter, QRectF(980, -80, 700, 360));
    PaintCorner(painter, QRectF(-80, 620, 700, 360));
    PaintCorner(painter, QRectF(980, 620, 700, 360));
    QPen dashes(QColor(206, 208, 210), 6);
    dashes.setDashPattern({6, 6});
    painter.setPen(dashes);
    painter.drawLine(0, 450, 500, 450);
    painter.drawLine(1100, 450, 1600, 450);
    painter.drawLine(800, 0, 800, 190);
    painter.drawLine(800, 710, 800, 900);
    PaintZebra(painter, QRectF(530, 285, 70, 330), true);
    PaintZebra(painter, QRectF(1000, 285, 70, 330), true);
    PaintZebra(painter, QRectF(625, 205, 350, 62), false);
    PaintZebra(painter, QRectF(625, 633, 350, 62), false);
    for (const QPointF& tree :
         {QPointF(180, 190), QPointF(420, 170), QPointF(1210, 180), QPointF(1460, 200), QPointF(200, 830),
          QPointF(1190, 820), QPointF(1430, 850)})
        PaintBush(painter, tree, 110, QColor(66, 94, 56));
}

/// Where a car stands on its way of 0 to 2200: it waits at @p stop until its green begins.
double Travelled(double seconds, double greenAt, double stop)
{
    constexpr double Arrival = 6; // seconds to drive up to the line
    constexpr double Leave = 7; // and away from it
    const double sinceGreen = Phase(seconds - greenAt, Cycle) * Cycle;
    if (sinceGreen < Leave) {
        const double t = sinceGreen / Leave;
        return stop + (2200 - stop) * t * (0.4 + 0.6 * t);
    }
    const double untilGreen = Cycle - sinceGreen;
    if (untilGreen > Arrival + 4)
        return 0;
    const double t = qBound(0.0, (Arrival + 4 - untilGreen) / Arrival, 1.0);
    return stop * t * (2 - t);
}

void PaintLight(QPainter& painter, QPointF at, bool green)
{
    FillRounded(painter, QRectF(at.x() - 15, at.y() - 34, 30, 68), 8, QColor(28, 30, 33));
    painter.setPen(Qt::NoPen);
    painter.setBrush(green ? QColor(70, 42, 40) : QColor(226, 66, 54));
    painter.drawEllipse(at + QPointF(0, -16), 10, 10);
    painter.setBrush(green ? QColor(72, 206, 120) : QColor(38, 62, 46));
    painter.drawEllipse(at + QPointF(0, 16), 10, 10);
}

void PaintMoving(QPainter& painter, double seconds)
{
    const double east = Travelled(seconds, 0, 690);
    PaintCarFromAbove(painter, QPointF(-280 + east, EastLane), 0, QColor(58, 92, 142));
    const double west = Travelled(seconds, 1.2, 690);
    PaintCarFromAbove(painter, QPointF(1880 - west, WestLane), 180, QColor(198, 200, 202));
    const double north = Travelled(seconds, 13, 320);
    PaintCarFromAbove(painter, QPointF(NorthLane, 1130 - north), -90, QColor(152, 52, 44));
    const double south = Travelled(seconds, 14.5, 320);
    PaintCarFromAbove(painter, QPointF(SouthLane, -230 + south), 90, QColor(72, 76, 82));
    const double inCycle = Phase(seconds, Cycle) * Cycle;
    PaintLight(painter, QPointF(578, 652), inCycle < 10);
    PaintLight(painter, QPointF(1022, 248), inCycle < 10);
    PaintLight(painter, QPointF(1022, 652), inCycle > 13 && inCycle < 23);
    PaintLight(painter, QPointF(578, 248), inCycle > 13 && inCycle < 23);
}

} // namespace

Scene JunctionScene()
{
    return {QT_TRANSLATE_NOOP("OperatorClient::Scene", "Street junction"), &PaintStill, &PaintMoving};
}

} // namespace OperatorClient
