#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QVector>

/// Where the messages of a window stand, on the screen: below each other at the window's right edge, from a
/// little below its upper edge, and moved inside the screen as far as they fit there.
/// @param window the window's rectangle on the screen
/// @param available the part of the screen that is free for windows
/// @param sizes the messages' sizes, the uppermost first
/// @return their top left corners
QVector<QPoint> NotificationPlaces(const QRect& window, const QRect& available, const QVector<QSize>& sizes);
