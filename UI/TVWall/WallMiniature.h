#pragma once

#include <Platform/BasicUIComponents/StructScaleRect.h>

#include <QColor>
#include <QPixmap>
#include <QRectF>
#include <QVector>

class QPainter;

/// A small picture of a wall, drawn from the scale rectangles of its screens and windows alone.
namespace UICommonMdl::WallMiniature {

struct Window
{
    KvGUI::StructScaleRect rect; ///< fractions of the screen
    bool selected = false;
};

struct Screen
{
    KvGUI::StructScaleRect rect; ///< fractions of the wall
    bool selected = false;
    QVector<Window> windows; ///< from the lowest to the highest
};

struct Colors
{
    QColor window = QColor(74, 80, 90);
    QColor selected = QColor(90, 165, 242); ///< of selected windows
    QColor view = QColor(90, 165, 242); ///< of the frame around what the view shows
};

/// The wall as a transparent picture of @p size logical pixels at @p devicePixelRatio. Whatever reaches
/// over the edges of its screen or of the wall is cut there; any rectangle may be wild.
QPixmap
Picture(const QVector<Screen>& screens, const QSize& size, qreal devicePixelRatio, const Colors& colors);

/// Marks in @p area, which shows the whole wall, the part that a view shows: the rest is shaded.
/// @param view fractions of the wall, cut at its edges
void PaintView(QPainter& painter, const QRect& area, const QRectF& view, const Colors& colors);

} // namespace UICommonMdl::WallMiniature
