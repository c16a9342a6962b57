#pragma once

#include <QPixmap>
#include <QSize>
#include <QString>

/// The picture "<path>.png", or "<path>@2x.png" where there is one and the screen has more than one pixel a
/// point; null when there is neither. QPixmap's own constructor never looks for the second.
/// @param path of the picture without ".png"
/// @param density pixels a point of the screen that the picture is for
QPixmap SkinPicture(const QString& path, qreal density);

/// The size of @p picture in points.
QSize LogicalSize(const QPixmap& picture);
