#pragma once

#include <QPoint>
#include <QPointer>
#include <QWidget>

namespace TestSupport {

/// A mouse over a widget and its children, as the window system moves it: an event goes to the widget under
/// the cursor, while a button is held to the one that got the press. Places are pixels of the widget.
class WallMouse
{
public:
    explicit WallMouse(QWidget* wall);

    void Press(const QPoint& at, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = {});
    void Move(const QPoint& to, Qt::KeyboardModifiers keys = {});
    void Release(const QPoint& at, Qt::KeyboardModifiers keys = {});
    void Click(const QPoint& at, Qt::MouseButton button = Qt::LeftButton);
    void DoubleClick(const QPoint& at);
    /// Presses the left button, moves half the way and all of it, and releases.
    void Drag(const QPoint& from, const QPoint& to, Qt::KeyboardModifiers keys = {});
    /// @return whether the event was accepted
    bool Wheel(const QPoint& at, int angle);
    void ContextMenu(const QPoint& at);
    bool DragEnter(const QPoint& at, const QMimeData& data); ///< @return whether it was accepted
    void Drop(const QPoint& at, const QMimeData& data);

private:
    void Send(QEvent::Type type, const QPoint& at, Qt::MouseButton button, Qt::KeyboardModifiers keys = {});
    QWidget* Under(const QPoint& at) const;

    QPointer<QWidget> m_pWall;
    QPointer<QWidget> m_pGrabber; // got the press
    Qt::MouseButton m_held = Qt::NoButton;
};

} // namespace TestSupport
