#include <gallery/Photo/Visitors.h>

#include <gallery/Pictures/Scenes/Scene.h>

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <iterator>

namespace OperatorClient {

namespace {

const VisitorLook Looks[] = {
    {QColor(232, 190, 160), QColor(74, 50, 36), QColor(52, 78, 112), true, false},
    {QColor(196, 146, 112), QColor(34, 30, 30), QColor(110, 60, 54), false, true},
    {QColor(244, 208, 182), QColor(168, 120, 70), QColor(64, 92, 72), true, true},
    {QColor(128, 88, 66), QColor(26, 22, 22), QColor(86, 84, 104), false, false},
};

const QSize PortraitSize(600, 800);

void Fill(QPainter& painter, const QPainterPath& path, const QBrush& brush)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawPath(path);
}

QPainterPath Ellipse(const QPointF& centre, double width, double height)
{
    QPainterPath path;
    path.addEllipse(centre, width / 2, height / 2);
    return path;
}

/// All of these paint in units of the head's height, the face's middle at the origin.

void PaintBody(QPainter& painter, const VisitorLook& look)
{
    QPainterPath body;
    body.moveTo(-1.15, 1.7);
    body.cubicTo(-1.15, 0.92, -0.75, 0.86, -0.24, 0.66);
    body.lineTo(0.24, 0.66);
    body.cubicTo(0.75, 0.86, 1.15, 0.92, 1.15, 1.7);
    body.closeSubpath();
    QLinearGradient cloth(QPointF(0, 0.6), QPointF(0, 1.7));
    cloth.setColorAt(0, look.coat.lighter(118));
    cloth.setColorAt(1, look.coat.darker(125));
    Fill(painter, body, cloth);
    QPainterPath shirt;
    shirt.moveTo(-0.2, 0.66);
    shirt.lineTo(0, 1.15);
    shirt.lineTo(0.2, 0.66);
    shirt.closeSubpath();
    Fill(painter, shirt, QColor(236, 236, 232));
    QPainterPath neck;
    neck.addRoundedRect(QRectF(-0.17, 0.3, 0.34, 0.52), 0.14, 0.14);
    Fill(painter, neck, look.skin.darker(116));
}

void PaintHairBehind(QPainter& painter, const VisitorLook& look)
{
    if (!look.longHair)
        return;
    QPainterPath hair;
    hair.moveTo(-0.46, -0.1);
    hair.cubicTo(-0.5, -0.75, 0.5, -0.75, 0.46, -0.1);
    hair.cubicTo(0.5, 0.3, 0.52, 0.55, 0.44, 0.78);
    hair.lineTo(-0.44, 0.78);
    hair.cubicTo(-0.52, 0.55, -0.5, 0.3, -0.46, -0.1);
    Fill(painter, hair, look.hair.darker(115));
}

void PaintHead(QPainter& painter, const VisitorLook& look)
{
    for (const double x : {-0.38, 0.38})
        Fill(painter, Ellipse(QPointF(x, 0.03), 0.12, 0.2), look.skin.darker(108));
    QPainterPath head;
    head.moveTo(-0.37, -0.12);
    head.cubicTo(-0.38, -0.62, 0.38, -0.62, 0.37, -0.12);
    head.cubicTo(0.37, 0.26, 0.2, 0.5, 0, 0.5);
    head.cubicTo(-0.2, 0.5, -0.37, 0.26, -0.37, -0.12);
    QRadialGradient skin(QPointF(-0.08, -0.1), 0.7);
    skin.setColorAt(0, look.skin.lighter(106));
    skin.setColorAt(1, look.skin.darker(112));
    Fill(painter, head, skin);
    QPainterPath hair;
    hair.moveTo(-0.4, -0.02);
    hair.cubicTo(-0.5, -0.72, 0.5, -0.72, 0.4, -0.02);
    hair.cubicTo(0.36, -0.24, 0.26, -0.34, 0.06, -0.34);
    hair.cubicTo(-0.14, -0.34, -0.34, -0.3, -0.4, -0.02);
    Fill(painter, hair, look.hair);
}

void PaintFace(QPainter& painter, const VisitorLook& look)
{
    for (const double side : {-1.0, 1.0}) {
        Fill(painter, Ellipse(QPointF(side * 0.15, 0), 0.13, 0.075), QColor(246, 246, 242));
        Fill(painter, Ellipse(QPointF(side * 0.15, 0), 0.065, 0.07), QColor(58, 44, 36));
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(look.hair, 0.032, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(side * 0.09, -0.1), QPointF(side * 0.22, -0.095));
        if (look.glasses) {
            painter.setPen(QPen(QColor(40, 42, 46), 0.018));
            painter.drawRoundedRect(QRectF(side * 0.15 - 0.105, -0.06, 0.21, 0.14), 0.05, 0.05);
        }
    }
    if (look.glasses)
        painter.drawLine(QPointF(-0.045, -0.01), QPointF(0.045, -0.01));
    QPainterPath nose;
    nose.moveTo(0.005, -0.02);
    nose.quadTo(0.055, 0.12, 0.04, 0.15);
    nose.quadTo(0, 0.175, -0.035, 0.155);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(look.skin.darker(136), 0.02, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(nose);
    QPainterPath mouth;
    mouth.moveTo(-0.12, 0.275);
    mouth.quadTo(0, 0.33, 0.12, 0.275);
    painter.setPen(QPen(QColor(150, 74, 68), 0.032, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(mouth);
}

} // namespace

int VisitorCount() { return int(std::size(Looks)); }

VisitorLook VisitorOf(int number) { return Looks[(qMax(1, number) - 1) % VisitorCount()]; }

void PaintVisitor(QPainter& painter, const QPointF& face, double height, const VisitorLook& look)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(face);
    painter.scale(height, height);
    PaintHairBehind(painter, look);
    PaintBody(painter, look);
    PaintHead(painter, look);
    PaintFace(painter, look);
    painter.restore();
}

QImage EntrancePhoto()
{
    QImage photo(SceneSize, QImage::Format_RGB32);
    QPainter painter(&photo);
    painter.setRenderHint(QPainter::Antialiasing);
    EntranceScene().paintStill(painter);
    PaintVisitor(painter, QPointF(1110, 470), 260, VisitorOf(2));
    PaintVisitor(painter, QPointF(560, 430), 310, VisitorOf(1));
    return photo;
}

QImage Portrait(int visitor)
{
    QImage photo(PortraitSize, QImage::Format_RGB32);
    QPainter painter(&photo);
    QLinearGradient wall(QPointF(0, 0), QPointF(0, PortraitSize.height()));
    wall.setColorAt(0, QColor(206, 212, 218));
    wall.setColorAt(1, QColor(164, 172, 182));
    painter.fillRect(photo.rect(), wall);
    PaintVisitor(painter, QPointF(300, 350), 400, VisitorOf(visitor));
    return photo;
}

} // namespace OperatorClient
