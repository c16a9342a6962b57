#pragma once

#include <QString>
#include <functional>

class QWidget;

namespace OperatorClient {

class Page;

/// What the main window knows of a page before it is there.
struct PageEntry
{
    QString name; ///< of its icon, its screenshots and on the command line: lower-case letters and "-"
    std::function<QString()> title; ///< in the language of the moment
    /// Called once, when the page is shown for the first time. Given its parent from the beginning, the page
    /// is styled only once.
    std::function<Page*(QWidget* parent)> make;
};

} // namespace OperatorClient
