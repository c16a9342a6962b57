#pragma once

#include <QPoint>
#include <Qt>

class QWidget;

namespace OperatorClient {

/// Presses, moves and releases the left button as an operator would, to bring pages into states that are
/// worth a screenshot.
/// @param area the points are in its coordinates; the events go to its child at @p from, or to itself
void DragOver(QWidget& area, const QPoint& from, const QPoint& to);

/// Presses and releases the left button.
void ClickAt(QWidget& area, const QPoint& at);

} // namespace OperatorClient
