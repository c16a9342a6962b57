#pragma once

#include <Platform/BasicUIComponents/StructScaleRect.h>

#include <QList>
#include <QPointF>
#include <QVector>

namespace OperatorClient {

/// The cells of a grid, row by row, that none of @p taken reaches into by more than a hair.
QVector<KvGUI::StructScaleRect>
FreeCells(int rows, int columns, const QVector<KvGUI::StructScaleRect>& taken);

/// The positions of @p zValues from the lowest value to the highest; of equal values the earlier is lower.
QVector<int> StackingOrder(const QVector<int>& zValues);

/// The same after the windows at the positions @p moved were raised above all others (@p toTop), or
/// lowered below them. They keep their order among themselves.
QVector<int> StackingOrder(const QVector<int>& zValues, const QList<int>& moved, bool toTop);

/// The place of the next window opened without a place of its own, when @p windows are open: half the
/// screen's size, each a step further right and down, starting over before it would leave the screen.
KvGUI::StructScaleRect CascadePlace(int windows);

/// The place of a window dropped at @p centre (fractions of the screen): two fifths of the screen's size
/// around it, pushed inside the screen.
KvGUI::StructScaleRect PlaceAround(const QPointF& centre);

} // namespace OperatorClient
