#pragma once

#include <QPoint>
#include <QPointer>
#include <QWidget>

class QMimeData;

namespace TestSupport {

/// A mouse over a widget and its children. Events go in where the window system puts them, into the native
/// window, so that Qt finds the widget under the cursor, and keeps to it while a button is held. Places are
/// pixels of the widget; a widget that is gone takes no more events.
class WallMouse
{
public:
    explicit WallMouse(QWidget* wall);

    void Press(const QPoint& at, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = {});
    void Move(const QPoint& to, Qt::KeyboardModifiers keys = {});
    void Release(const QPoint& at, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = {});
    void Click(const QPoint& at, Qt::MouseButton button = Qt::LeftButton);
    void DoubleClick(const QPoint& at);
    /// Presses the left button, moves half the way and all of it, and releases.
    void Drag(const QPoint& from, const QPoint& to, Qt::KeyboardModifiers keys = {});
    void Wheel(const QPoint& at, int angle);
    void ContextMenu(const QPoint& at);
    bool DragEnter(const QPoint& at, const QMimeData& data); ///< @return whether it was accepted
    void DragLeave();
    void Drop(const QPoint& at, const QMimeData& data);

private:
    QWindow* Window() const; ///< null when the widget is gone
    QPoint InWindow(const QPoint& at) const { return m_pWall->mapTo(m_pWall->window(), at); }

    QPointer<QWidget> m_pWall;
};

} // namespace TestSupport
