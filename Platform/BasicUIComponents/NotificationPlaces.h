#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QVector>

/// Where the messages of a window stand, on the screen: below each other in the middle, from a little below
/// the window's upper edge, and moved inside the screen as far as they fit there.
/// @param window the window's rectangle on the screen
/// @param available the part of the screen that is free for windows
/// @param sizes the messages' sizes, the uppermost first
/// @return their top left corners
QVector<QPoint> NotificationPlaces(const QRect& window, const QRect& available, const QVector<QSize>& sizes);
