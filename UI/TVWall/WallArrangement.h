#pragma once

#include "WallMiniature.h"

#include <QList>
#include <QObject>

namespace UICommonMdl {

/// What every kind of wall has in common: how its overview sees it, and the relay of its screens' signals.
class WallArrangement : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    virtual QVector<WallMiniature::Screen> Miniature() const = 0;

Q_SIGNALS:
    /// Screens or windows, their places, order or selection may be others now. For the library's own use:
    /// it may come in the middle of a change.
    void SignalArrangementChanged();

protected:
    /// Emits @p to of @p wall, with the present index of @p screen in front, whenever @p screen emits @p
    /// from. A screen that leaves @p screens is disconnected first.
    template <typename Screen, typename Wall, typename... Args>
    void Relay(
        const QList<Screen*>& screens, Screen* screen, void (Screen::*from)(Args...), Wall* wall,
        void (Wall::*to)(int, Args...))
    {
        connect(screen, from, this, [list = &screens, screen, wall, to](Args... args) {
            Q_EMIT(wall->*to)(list->indexOf(screen), args...);
        });
    }
};

} // namespace UICommonMdl
