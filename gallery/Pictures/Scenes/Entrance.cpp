#include <gallery/Pictures/Scenes/Scene.h>
#include <gallery/Pictures/Scenes/SceneParts.h>

#include <QCoreApplication>
#include <cmath>

namespace OperatorClient {

namespace {

const QRectF Doorway(560, 230, 480, 400);

double WalkerX(double seconds) { return -150 + 1900 * Phase(seconds, 24); }

/// How far the sliding doors stand open, 0 to 1: they answer to whoever comes near.
double DoorOpening(double walkerX) { return qBound(0.0, (430 - std::abs(walkerX - 800)) / 220, 1.0); }

void PaintFacade(QPainter& painter)
{
    FillGraded(painter, QRectF(0, 0, 1600, 630), QColor(176, 172, 163), QColor(192, 188, 179));
    painter.setPen(QPen(QColor(160, 156, 147), 3));
    for (int y = 90; y < 630; y += 90)
        painter.drawLine(0, y, 1600, y);
    for (int x = 100; x < 1600; x += 200)
        painter.drawLine(x, 0, x, 630);
    for (const double x : {90.0, 1210.0}) {
        FillRect(painter, QRectF(x - 10, 210, 320, 330), QColor(92, 96, 100));
        FillGraded(painter, QRectF(x, 220, 300, 310), QColor(72, 92, 108), QColor(112, 130, 140));
        FillRect(painter, QRectF(x + 145, 220, 10, 310), QColor(92, 96, 100));
    }
    FillRect(painter, QRectF(480, 150, 640, 52), QColor(62, 66, 72));
    FillRect(painter, QRectF(480, 202, 640, 10), QColor(40, 43, 48));
}

void PaintStill(QPainter& painter)
{
    PaintFacade(painter);
    FillGraded(painter, QRectF(0, 630, 1600, 270), QColor(128, 129, 128), QColor(156, 157, 155));
    painter.setPen(QPen(QColor(118, 119, 118), 3));
    for (const int y : {660, 705, 770, 850})
        painter.drawLine(0, y, 1600, y);
    for (int i = -8; i <= 8; ++i)
        painter.drawLine(QPointF(800 + i * 110, 630), QPointF(800 + i * 210, 900));
    // The hall behind the doors.
    FillGraded(painter, Doorway, QColor(226, 216, 190), QColor(170, 160, 140));
    FillRect(painter, QRectF(690, 430, 220, 110), QColor(122, 96, 70));
    FillRect(painter, QRectF(680, 420, 240, 14), QColor(150, 122, 92));
    FillPolygon(painter, QPolygonF({{600, 640}, {1000, 640}, {1060, 720}, {540, 720}}), QColor(66, 70, 74));
    for (const double x : {440.0, 1160.0}) {
        PaintBush(painter, QPointF(x, 590), 104, QColor(62, 98, 58));
        FillPolygon(
            painter, QPolygonF({{x - 48, 580}, {x + 48, 580}, {x + 36, 660}, {x - 36, 660}}),
            QColor(84, 80, 76));
    }
}

void PaintDoorLeaf(QPainter& painter, const QRectF& leaf)
{
    FillRect(painter, leaf, QColor(150, 184, 196, 105));
    painter.setPen(QPen(QColor(70, 75, 82), 8));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(leaf);
}

void PaintMoving(QPainter& painter, double seconds)
{
    const double walker = WalkerX(seconds);
    const double shift = 200 * DoorOpening(walker);
    painter.save();
    painter.setClipRect(Doorway, Qt::IntersectClip);
    PaintDoorLeaf(painter, QRectF(564 - shift, 234, 236, 400));
    PaintDoorLeaf(painter, QRectF(800 + shift, 234, 236, 400));
    painter.restore();
    painter.setPen(QPen(QColor(62, 66, 72), 12));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(Doorway);
    PaintPerson(
        painter, QPointF(1700 - 1800 * Phase(seconds + 13, 37), 740), 300, seconds * 1.6, QColor(96, 60, 70));
    PaintPerson(painter, QPointF(walker, 800), 350, seconds * 1.7, QColor(62, 84, 118));
}

} // namespace

Scene EntranceScene()
{
    return {QT_TRANSLATE_NOOP("OperatorClient::Scene", "Main entrance"), &PaintStill, &PaintMoving};
}

} // namespace OperatorClient
