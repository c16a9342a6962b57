#pragma once

#include <QSize>
#include <QVector>

class QWidget;

namespace UIComponentsDesigner {

/// A widget as Qt Designer lists it. The texts are Latin-1 literals.
struct WidgetEntry
{
    const char* className; ///< with its namespace
    const char* header; ///< as a program includes it
    const char* group; ///< in the widget box
    const char* icon; ///< a file of icons/, without ".svg"
    const char* toolTip;
    QSize size; ///< when it is dropped on a form, in pixels
    QWidget* (*create)(QWidget* parent);
    void (*furnish)(QWidget* widget) = nullptr; ///< gives it something to show on a form; may be null
};

/// Every widget of the library that has a place in a form. Dialogs, menus, bubbles and pop-ups have none:
/// they are windows of their own.
const QVector<WidgetEntry>& Widgets();

} // namespace UIComponentsDesigner
