#pragma once

#include <QString>
#include <functional>

namespace OperatorClient {

class Page;

/// What the main window knows of a page before it is there.
struct PageEntry
{
    QString name; ///< of its icon, its screenshots and on the command line: lower-case letters and "-"
    std::function<QString()> title; ///< in the language of the moment
    std::function<Page*()> make; ///< called once, when the page is shown for the first time
};

} // namespace OperatorClient
