#include "WidgetScreen.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace UICommonMdl {

QRect ScreenOf(const QWidget* widget)
{
    const QScreen* screen = QGuiApplication::screenAt(widget->mapToGlobal(widget->rect().center()));
    if (!screen)
        screen = widget->screen();
    return screen->availableGeometry();
}

} // namespace UICommonMdl
