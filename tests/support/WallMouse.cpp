#include "WallMouse.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QtTest/qtestspontaneevent.h>

namespace TestSupport {

namespace {

/// Qt passes an event made by a program to no parent, one of the window system to all.
void Notify(QWidget* widget, QEvent& event)
{
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(widget, &event);
}

} // namespace

WallMouse::WallMouse(QWidget* wall)
    : m_pWall(wall)
{ }

QWidget* WallMouse::Under(const QPoint& at) const
{
    QWidget* child = m_pWall->childAt(at);
    return child ? child : m_pWall.data();
}

void WallMouse::Send(QEvent::Type type, const QPoint& at, Qt::MouseButton button, Qt::KeyboardModifiers keys)
{
    if (!m_pWall || !m_pGrabber)
        return; // a slot has deleted it
    const QPoint global = m_pWall->mapToGlobal(at);
    QMouseEvent event(type, m_pGrabber->mapFromGlobal(global), global, button, m_held, keys);
    Notify(m_pGrabber, event);
}

void WallMouse::Press(const QPoint& at, Qt::MouseButton button, Qt::KeyboardModifiers keys)
{
    m_held = button;
    m_pGrabber = Under(at);
    Send(QEvent::MouseButtonPress, at, button, keys);
}

void WallMouse::Move(const QPoint& to, Qt::KeyboardModifiers keys)
{
    if (m_held == Qt::NoButton && m_pWall)
        m_pGrabber = Under(to);
    Send(QEvent::MouseMove, to, Qt::NoButton, keys);
}

void WallMouse::Release(const QPoint& at, Qt::KeyboardModifiers keys)
{
    Send(QEvent::MouseButtonRelease, at, std::exchange(m_held, Qt::NoButton), keys);
    m_pGrabber = nullptr;
}

void WallMouse::Click(const QPoint& at, Qt::MouseButton button)
{
    Press(at, button);
    Release(at);
}

void WallMouse::DoubleClick(const QPoint& at)
{
    Click(at);
    if (!m_pWall)
        return;
    m_held = Qt::LeftButton;
    m_pGrabber = Under(at);
    Send(QEvent::MouseButtonDblClick, at, Qt::LeftButton);
    Release(at);
}

void WallMouse::Drag(const QPoint& from, const QPoint& to, Qt::KeyboardModifiers keys)
{
    Press(from, Qt::LeftButton, keys);
    Move((from + to) / 2, keys);
    Move(to, keys);
    Release(to, keys);
}

bool WallMouse::Wheel(const QPoint& at, int angle)
{
    QWidget* widget = Under(at);
    const QPoint global = m_pWall->mapToGlobal(at);
    QWheelEvent event(
        widget->mapFromGlobal(global), global, {}, QPoint(0, angle), Qt::NoButton, Qt::NoModifier,
        Qt::NoScrollPhase, false);
    Notify(widget, event);
    return event.isAccepted();
}

void WallMouse::ContextMenu(const QPoint& at)
{
    QWidget* widget = Under(at);
    const QPoint global = m_pWall->mapToGlobal(at);
    QContextMenuEvent event(QContextMenuEvent::Mouse, widget->mapFromGlobal(global), global);
    Notify(widget, event);
}

bool WallMouse::DragEnter(const QPoint& at, const QMimeData& data)
{
    QWidget* widget = Under(at);
    QDragEnterEvent event(
        widget->mapFrom(m_pWall, at), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    QApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

void WallMouse::Drop(const QPoint& at, const QMimeData& data)
{
    QWidget* widget = Under(at);
    QDropEvent event(widget->mapFrom(m_pWall, at), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

} // namespace TestSupport
