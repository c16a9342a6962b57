#include <gallery/OperatorHand.h>

#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>

namespace OperatorClient {

namespace {

void Send(
    QWidget& area, QWidget* target, QEvent::Type type, const QPoint& at, Qt::MouseButton button,
    Qt::MouseButtons held)
{
    QMouseEvent event(type, target->mapFrom(&area, at), area.mapToGlobal(at), button, held, Qt::NoModifier);
    QApplication::sendEvent(target, &event);
}

QPointer<QWidget> TargetAt(QWidget& area, const QPoint& at)
{
    QWidget* child = area.childAt(at);
    return child != nullptr ? child : &area;
}

} // namespace

void DragOver(QWidget& area, const QPoint& from, const QPoint& to)
{
    const QPointer<QWidget> target = TargetAt(area, from);
    Send(area, target, QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
    if (target)
        Send(area, target, QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
    if (target)
        Send(area, target, QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
}

void ClickAt(QWidget& area, const QPoint& at)
{
    const QPointer<QWidget> target = TargetAt(area, at);
    Send(area, target, QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton);
    // A press may open a menu and return when the menu has deleted the target.
    if (target)
        Send(area, target, QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton);
}

} // namespace OperatorClient
