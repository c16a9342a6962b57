#pragma once

#include <QImage>
#include <QPixmap>
#include <QRect>
#include <QRegion>
#include <QSize>

class QPainter;

/// How the crop canvases look, and which pixels have to be painted again when the frame changes.
namespace UICommonMdl::CropPainting {

/// @p image stretched over @p size device-independent pixels, ready to be painted as it is on a screen with
/// @p ratio device pixels for each. Null for a null image and for a size without an area.
QPixmap Stretched(const QImage& image, const QSize& size, qreal ratio);

/// Dims @p photo outside @p crop and draws the frame's dotted outline. A frame of negative size is painted
/// turned around. Nothing needs to be painted outside @p canvas.
void PaintFrame(QPainter& painter, const QRect& canvas, const QRect& photo, const QRect& crop);

/// What differs in the pictures of PaintFrame() of @p before and of @p now.
QRegion ChangedRegion(const QRect& before, const QRect& now);

} // namespace UICommonMdl::CropPainting
