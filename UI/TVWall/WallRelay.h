#pragma once

#include <Platform/BasicUIComponents/StructScaleRect.h>

#include <QList>
#include <QObject>

/// How signals go up from windows to their screen and from screens to their wall, each time with the sender's
/// present index in front. Both families of walls, whose classes name their signals alike, share it.
namespace UICommonMdl::WallRelay {

/// Emits @p to of @p wall whenever @p screen emits @p from. A screen that leaves @p screens is disconnected
/// from @p context first.
template <typename Screen, typename Wall, typename... Args>
void Relay(
    QObject* context, const QList<Screen*>& screens, Screen* screen, void (Screen::*from)(Args...),
    Wall* wall, void (Wall::*to)(int, Args...))
{
    QObject::connect(screen, from, context, [list = &screens, screen, wall, to](Args... args) {
        Q_EMIT(wall->*to)(list->indexOf(screen), args...);
    });
}

/// Relays all that a wall reports of @p screen.
template <typename Screen, typename Wall>
void RelayScreen(QObject* context, const QList<Screen*>& screens, Screen* screen, Wall* wall)
{
    const auto relay = [&](auto from, auto to) { Relay(context, screens, screen, from, wall, to); };
    relay(&Screen::SignalSelected, &Wall::SignalScreenSelectedChanged);
    relay(&Screen::SignalRightClick, &Wall::SignalScreenRightClick);
    relay(&Screen::SignalScreenDropEvent, &Wall::SignalScreenEvent);
    relay(&Screen::SignalLabelEvent, &Wall::SignalLabelEvent);
    relay(&Screen::SignalDrawAreaOpenWindow, &Wall::SignalDrawAreaOpenWindow);
    relay(&Screen::Signal3DSite, &Wall::SignalWindow3DSite);
    relay(&Screen::SignalWindowEvent, &Wall::SignalWindowEvent);
    relay(&Screen::SignalWindowSelectedChanged, &Wall::SignalWindowSelectedChanged);
    relay(&Screen::SignalWindowDoubleClicked, &Wall::SignalWindowDoubleClicked);
    relay(&Screen::SignalWindowGeoChanged, &Wall::SignalWindowGeoChanged);
    relay(&Screen::SignalWindowVolumeBtnClicked, &Wall::SignalWindowVolumeBtnClicked);
    relay(&Screen::SignalWindowCloseBtnClicked, &Wall::SignalWindowCloseBtnClicked);
    QObject::connect(screen, &Screen::SignalWindowClicked, wall, &Wall::SignalWindowClicked);
}

/// Relays what a screen reports of @p window, whose index @p indexOf tells. Of a window that is not
/// @p editable that is its double-click alone.
template <typename Window, typename Screen, typename IndexOf>
void RelayWindow(Window* window, Screen* screen, bool editable, IndexOf indexOf)
{
    if (!editable) {
        QObject::connect(
            window, &Window::SignalDoubleClickedSelectedChanged, screen, &Screen::SignalWindowDoubleClicked);
        return;
    }
    QObject::connect(window, &Window::SignalCloseBtnClicked, screen, [screen, window, indexOf] {
        Q_EMIT screen->SignalWindowCloseBtnClicked(indexOf(window));
    });
    QObject::connect(window, &Window::SignalVolemeBtnClicked, screen, [screen, window, indexOf] {
        Q_EMIT screen->SignalWindowVolumeBtnClicked(indexOf(window));
    });
    QObject::connect(
        window, &Window::SignalGeoChanged, screen,
        [screen, window, indexOf](const KvGUI::StructScaleRect& rect) {
            Q_EMIT screen->SignalWindowGeoChanged(indexOf(window), rect);
        });
    QObject::connect(
        window, &Window::SignalDoubleClickedSelectedChanged, screen, &Screen::SignalWindowSelectedChanged);
}

} // namespace UICommonMdl::WallRelay
