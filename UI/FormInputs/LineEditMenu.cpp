#include "LineEditMenu.h"

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <algorithm>

namespace UICommonMdl {

namespace {

// Translated by Qt, so it stays out of this library's files of translations.
const char* const PasteText = "&Paste";

} // namespace

QAction* PasteAction(const QMenu* menu)
{
    // Qt gives the entries neither names nor access to their slots; a shortcut may follow the text.
    const QString text = QLineEdit::tr(PasteText);
    const QList<QAction*> actions = menu->actions();
    const auto found = std::find_if(actions.begin(), actions.end(), [&](const QAction* action) {
        return action->text().section(QLatin1Char('\t'), 0, 0) == text;
    });
    return found == actions.end() ? nullptr : *found;
}

} // namespace UICommonMdl
