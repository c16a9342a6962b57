#include <gallery/Pictures/Scenes/Scene.h>
#include <gallery/Pictures/Scenes/SceneParts.h>

#include <QCoreApplication>
#include <QRadialGradient>

namespace OperatorClient {

namespace {

// A night camera with infrared light sees no colours.
QColor Grey(int value) { return QColor(value, value, value); }

void PaintFence(QPainter& painter)
{
    painter.setPen(QPen(QColor(150, 150, 150, 90), 2));
    for (int x = -400; x < 1700; x += 34) {
        painter.drawLine(x, 590, x + 300, 290);
        painter.drawLine(x + 300, 590, x, 290);
    }
    painter.setPen(QPen(Grey(168), 5));
    painter.drawLine(0, 290, 1600, 290);
    painter.drawLine(0, 588, 1600, 588);
    for (int x = 60; x < 1600; x += 246) {
        painter.setPen(QPen(Grey(184), 12, Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(x, 262, x, 606);
        painter.setPen(QPen(Grey(184), 6));
        painter.drawLine(x, 264, x - 34, 226);
    }
    painter.setPen(QPen(Grey(140), 3));
    painter.drawLine(0, 246, 1600, 246);
    painter.drawLine(0, 232, 1600, 232);
}

void PaintStill(QPainter& painter)
{
    FillGraded(painter, QRectF(0, 0, 1600, 430), Grey(22), Grey(46));
    for (int i = 0; i < 10; ++i)
        PaintBush(painter, QPointF(40 + 176 * i, 470), 190 + 34 * (i % 3), Grey(52 + 6 * (i % 2)));
    FillGraded(painter, QRectF(0, 430, 1600, 470), Grey(70), Grey(128));
    PaintFence(painter);
    FillPolygon(painter, QPolygonF({{0, 690}, {1600, 650}, {1600, 790}, {0, 850}}), Grey(142));
    painter.setPen(QPen(Grey(120), 4));
    painter.drawLine(0, 690, 1600, 650);
    painter.drawLine(0, 850, 1600, 790);
    QRadialGradient light(QPointF(800, 560), 980);
    light.setColorAt(0, QColor(0, 0, 0, 0));
    light.setColorAt(0.55, QColor(0, 0, 0, 30));
    light.setColorAt(1, QColor(0, 0, 0, 190));
    painter.fillRect(QRect(0, 0, 1600, 900), light);
}

void PaintMoving(QPainter& painter, double seconds)
{
    const double x = -120 + 1840 * Phase(seconds, 33);
    const double y = 800 - 0.03 * x;
    painter.save();
    QRadialGradient torch(QPointF(x + 260, y + 8), 190);
    torch.setColorAt(0, QColor(255, 255, 255, 95));
    torch.setColorAt(1, QColor(255, 255, 255, 0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(torch);
    painter.drawEllipse(QPointF(x + 260, y + 8), 190, 46);
    painter.restore();
    PaintPerson(painter, QPointF(x, y), 270, seconds * 1.6, Grey(196));
}

} // namespace

Scene PerimeterScene()
{
    return {QT_TRANSLATE_NOOP("OperatorClient::Scene", "Perimeter north"), &PaintStill, &PaintMoving};
}

} // namespace OperatorClient
