#pragma once

#include <QColor>
#include <QImage>
#include <QPointF>

class QPainter;

namespace OperatorClient {

/// How a drawn visitor looks.
struct VisitorLook
{
    QColor skin;
    QColor hair;
    QColor coat;
    bool longHair = false;
    bool glasses = false;
};

int VisitorCount(); ///< how many different visitors there are
VisitorLook VisitorOf(int number); ///< visitor 1, 2, ...; they repeat

/// A person seen from the front, from the chest up.
/// @param face the middle of the face
/// @param height of the head, in the painter's units
void PaintVisitor(QPainter& painter, const QPointF& face, double height, const VisitorLook& look);

/// A photo of two visitors before the entrance, 1600 x 900 pixels.
QImage EntrancePhoto();

/// A portrait before a plain ground, 600 x 800 pixels.
QImage Portrait(int visitor);

} // namespace OperatorClient
