#pragma once

#include <QColor>
#include <QPainter>
#include <QPointF>

namespace OperatorClient {

/// A room seen straight along its length: x from -1 (left wall) to 1 (right wall), y from -1 (ceiling) to 1
/// (floor), z from 1 (nearest) away.
struct Room
{
    QPointF vanishing;
    double halfWidth = 0.0; ///< of the nearest cross-section, in scene units
    double halfHeight = 0.0;

    QPointF At(double x, double y, double z) const;
    QPolygonF Floor(double left, double right, double nearZ, double farZ) const;
    QPolygonF Ceiling(double left, double right, double nearZ, double farZ) const;
    /// A part of a side wall: @p side is -1 or 1.
    QPolygonF Wall(double side, double top, double bottom, double nearZ, double farZ) const;
    /// A part of a cross-section.
    QPolygonF Across(double left, double right, double top, double bottom, double z) const;
};

void FillPolygon(QPainter& painter, const QPolygonF& polygon, const QColor& color);
void FillRect(QPainter& painter, const QRectF& rect, const QColor& color);
void FillRounded(QPainter& painter, const QRectF& rect, double radius, const QColor& color);
/// From @p top to @p bottom of the rectangle.
void FillGraded(QPainter& painter, const QRectF& rect, const QColor& top, const QColor& bottom);

/// A car seen from above.
/// @param centre its middle
/// @param degrees where its nose points, clockwise, 0 is to the right
void PaintCarFromAbove(QPainter& painter, QPointF centre, double degrees, const QColor& color);

/// A walking person seen from the side.
/// @param feet the point between the feet
/// @param height in scene units
/// @param stride where in the walk, in steps
void PaintPerson(QPainter& painter, QPointF feet, double height, double stride, const QColor& coat);

/// A bush or tree crown from three overlapping rounds.
void PaintBush(QPainter& painter, QPointF foot, double size, const QColor& color);

/// Goes evenly from 0 to 1 in @p period seconds and starts over.
double Phase(double seconds, double period);

} // namespace OperatorClient
