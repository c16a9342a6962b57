#include "WallMouse.h"

#include <QApplication>
#include <QDropEvent>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>
#include <QtTest/qtestspontaneevent.h>

namespace TestSupport {

WallMouse::WallMouse(QWidget* wall)
    : m_pWall(wall)
    , m_pTopLevel(wall->window())
{ }

QWindow* WallMouse::Window() const { return m_pTopLevel ? m_pTopLevel->windowHandle() : nullptr; }

QPoint WallMouse::InWindow(const QPoint& at)
{
    if (m_pWall)
        m_offset = m_pWall->mapTo(m_pTopLevel, QPoint(0, 0));
    return at + m_offset;
}

void WallMouse::Press(const QPoint& at, Qt::MouseButton button, Qt::KeyboardModifiers keys)
{
    if (Window())
        QTest::mousePress(Window(), button, keys, InWindow(at));
}

void WallMouse::Move(const QPoint& to, Qt::KeyboardModifiers keys)
{
    if (Window())
        QTest::mouseEvent(QTest::MouseMove, Window(), Qt::NoButton, keys, InWindow(to));
}

void WallMouse::Release(const QPoint& at, Qt::MouseButton button, Qt::KeyboardModifiers keys)
{
    if (Window())
        QTest::mouseRelease(Window(), button, keys, InWindow(at));
}

void WallMouse::Click(const QPoint& at, Qt::MouseButton button)
{
    Press(at, button);
    Release(at, button);
}

void WallMouse::DoubleClick(const QPoint& at, Qt::MouseButton button)
{
    if (Window())
        QTest::mouseDClick(Window(), button, {}, InWindow(at));
}

void WallMouse::Drag(const QPoint& from, const QPoint& to, Qt::KeyboardModifiers keys)
{
    Press(from, Qt::LeftButton, keys);
    Move((from + to) / 2, keys);
    Move(to, keys);
    Release(to, Qt::LeftButton, keys);
}

void WallMouse::LoseRelease(const QPoint& at)
{
    QTestPrivate::qtestMouseButtons = Qt::NoButton;
    Move(at);
}

void WallMouse::Wheel(const QPoint& at, int angle)
{
    QWheelEvent event(
        InWindow(at), m_pTopLevel->mapToGlobal(InWindow(at)), {}, QPoint(0, angle), Qt::NoButton,
        Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event); // Qt passes an event made by a program to no parent
    qApp->notify(Window(), &event);
}

bool WallMouse::DragEnter(const QPoint& at, const QMimeData& data)
{
    QDragEnterEvent event(InWindow(at), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    QCoreApplication::sendEvent(Window(), &event);
    return event.isAccepted();
}

void WallMouse::DragLeave()
{
    if (!Window())
        return;
    QDragLeaveEvent event;
    QCoreApplication::sendEvent(Window(), &event);
}

void WallMouse::Drop(const QPoint& at, const QMimeData& data)
{
    QDropEvent event(InWindow(at), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(Window(), &event);
}

} // namespace TestSupport
