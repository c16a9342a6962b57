#include <gallery/Pictures/Scenes/SceneParts.h>

#include <QLinearGradient>
#include <QPen>
#include <QtMath>
#include <cmath>

namespace OperatorClient {

QPointF Room::At(double x, double y, double z) const
{
    return vanishing + QPointF(x * halfWidth / z, y * halfHeight / z);
}

QPolygonF Room::Floor(double left, double right, double nearZ, double farZ) const
{
    return {{At(left, 1, nearZ), At(left, 1, farZ), At(right, 1, farZ), At(right, 1, nearZ)}};
}

QPolygonF Room::Ceiling(double left, double right, double nearZ, double farZ) const
{
    return {{At(left, -1, nearZ), At(left, -1, farZ), At(right, -1, farZ), At(right, -1, nearZ)}};
}

QPolygonF Room::Wall(double side, double top, double bottom, double nearZ, double farZ) const
{
    return {{At(side, top, nearZ), At(side, top, farZ), At(side, bottom, farZ), At(side, bottom, nearZ)}};
}

QPolygonF Room::Across(double left, double right, double top, double bottom, double z) const
{
    return {{At(left, top, z), At(right, top, z), At(right, bottom, z), At(left, bottom, z)}};
}

void FillPolygon(QPainter& painter, const QPolygonF& polygon, const QColor& color)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawPolygon(polygon);
}

void FillRect(QPainter& painter, const QRectF& rect, const QColor& color) { painter.fillRect(rect, color); }

void FillRounded(QPainter& painter, const QRectF& rect, double radius, const QColor& color)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(rect, radius, radius);
}

void FillGraded(QPainter& painter, const QRectF& rect, const QColor& top, const QColor& bottom)
{
    QLinearGradient gradient(rect.topLeft(), rect.bottomLeft());
    gradient.setColorAt(0, top);
    gradient.setColorAt(1, bottom);
    painter.fillRect(rect, gradient);
}

void PaintCarFromAbove(QPainter& painter, QPointF centre, double degrees, const QColor& color)
{
    painter.save();
    painter.translate(centre);
    painter.rotate(degrees);
    FillRounded(painter, QRectF(-92, -40, 192, 92), 26, QColor(0, 0, 0, 70));
    FillRounded(painter, QRectF(-98, -45, 196, 90), 26, color);
    FillRounded(painter, QRectF(-66, -37, 118, 74), 18, QColor(28, 34, 42));
    FillRounded(painter, QRectF(-44, -35, 68, 70), 12, color.lighter(112));
    FillRounded(painter, QRectF(86, -38, 11, 20), 4, QColor(246, 241, 220));
    FillRounded(painter, QRectF(86, 18, 11, 20), 4, QColor(246, 241, 220));
    FillRounded(painter, QRectF(-97, -38, 8, 18), 3, QColor(160, 40, 36));
    FillRounded(painter, QRectF(-97, 20, 8, 18), 3, QColor(160, 40, 36));
    painter.restore();
}

namespace {

void PaintLimb(
    QPainter& painter, double width, const QColor& color, QPointF from, double degrees, double length)
{
    const double angle = qDegreesToRadians(degrees);
    painter.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(from, from + QPointF(std::sin(angle), std::cos(angle)) * length);
}

} // namespace

void PaintPerson(QPainter& painter, QPointF feet, double height, double stride, const QColor& coat)
{
    painter.save();
    painter.translate(feet);
    painter.scale(height / 180.0, height / 180.0);
    const double swing = 24 * std::sin(stride * M_PI);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 60));
    painter.drawEllipse(QPointF(0, 2), 34, 7);
    const QColor trousers(44, 49, 60);
    PaintLimb(painter, 17, trousers.darker(115), QPointF(0, -82), -swing, 76);
    PaintLimb(painter, 12, coat.darker(120), QPointF(0, -136), swing, 54);
    PaintLimb(painter, 17, trousers, QPointF(0, -82), swing, 76);
    FillRounded(painter, QRectF(-18, -148, 36, 74), 14, coat);
    PaintLimb(painter, 12, coat.lighter(110), QPointF(0, -136), -swing, 54);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(203, 164, 136));
    painter.drawEllipse(QPointF(0, -164), 14, 17);
    painter.setBrush(QColor(52, 42, 36));
    painter.drawChord(QRectF(-15, -183, 30, 32), 0, 180 * 16);
    painter.restore();
}

void PaintBush(QPainter& painter, QPointF foot, double size, const QColor& color)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(color.darker(115));
    painter.drawEllipse(foot + QPointF(-0.35 * size, -0.38 * size), 0.42 * size, 0.4 * size);
    painter.setBrush(color);
    painter.drawEllipse(foot + QPointF(0.3 * size, -0.42 * size), 0.45 * size, 0.42 * size);
    painter.setBrush(color.lighter(108));
    painter.drawEllipse(foot + QPointF(-0.02 * size, -0.66 * size), 0.48 * size, 0.46 * size);
}

double Phase(double seconds, double period)
{
    const double turns = seconds / period;
    return turns - std::floor(turns);
}

} // namespace OperatorClient
