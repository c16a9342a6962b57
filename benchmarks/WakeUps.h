#pragma once

#include <QAbstractEventDispatcher>
#include <QEventLoop>
#include <QTimer>

/// Counts how often the event loop wakes up while nobody does anything.
namespace WakeUps {

constexpr int Watched = 2000; // milliseconds
constexpr int Settling = 600; // until what a change has brought with it is done

inline void RunEvents(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

/// In the watched time. The one that ends the watching is among them.
inline int Count()
{
    RunEvents(Settling);
    int count = 0;
    const auto counting = QObject::connect(
        QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, [&count] { ++count; });
    RunEvents(Watched);
    QObject::disconnect(counting);
    return count;
}

} // namespace WakeUps
