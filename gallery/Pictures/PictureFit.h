#pragma once

#include <QPixmap>
#include <QRect>
#include <QSize>
#include <QString>
#include <functional>

class QPainter;

namespace OperatorClient {

/// The largest rectangle with the shape of @p picture that lies inside @p area, in its middle. Empty when
/// either has no size.
QRect FitInside(const QSize& picture, const QRect& area);

/// The smallest rectangle with the shape of @p picture that covers @p area, around its middle. Empty when
/// either has no size.
QRectF FillOver(const QSize& picture, const QRect& area);

/// A pixmap that is made once for each size and pixel ratio and kept for as long as the pixmap cache likes.
/// @param key what the pixmap shows, unique in the program
/// @param size in device-independent pixels, at least 1 x 1
/// @param pixelRatio device pixels for each of them
/// @param paint fills the pixmap; the painter works in device-independent pixels
QPixmap CachedPixmap(
    const QString& key, const QSize& size, double pixelRatio, const std::function<void(QPainter&)>& paint);

/// Fills @p area with the dark of a screen that has no picture.
void PaintNoPicture(QPainter& painter, const QRect& area);

/// The same with a message in the middle, cut to what fits.
void PaintMessage(QPainter& painter, const QRect& area, const QString& text);

} // namespace OperatorClient
