#pragma once

#include <QPoint>
#include <QPointer>
#include <QWidget>

class QMimeData;

namespace TestSupport {

/// A mouse over a widget and its children. Events go in where the window system puts them, into the native
/// window, so that Qt finds the widget under the cursor, and keeps to it while a button is held. Places are
/// pixels of the widget, which may be deleted in any event: they are then pixels of where it was.
class WallMouse
{
public:
    explicit WallMouse(QWidget* wall);

    void Press(const QPoint& at, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = {});
    void Move(const QPoint& to, Qt::KeyboardModifiers keys = {});
    void Release(const QPoint& at, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = {});
    /// With the right button Qt adds the event that asks for a context menu.
    void Click(const QPoint& at, Qt::MouseButton button = Qt::LeftButton);
    void DoubleClick(const QPoint& at, Qt::MouseButton button = Qt::LeftButton);
    /// Presses the left button, moves half the way and all of it, and releases.
    void Drag(const QPoint& from, const QPoint& to, Qt::KeyboardModifiers keys = {});
    /// The first move after all buttons were released elsewhere, as over the menu of another program.
    void LoseRelease(const QPoint& at);
    void Wheel(const QPoint& at, int angle);
    bool DragEnter(const QPoint& at, const QMimeData& data); ///< @return whether it was accepted
    void DragLeave();
    void Drop(const QPoint& at, const QMimeData& data);

private:
    QWindow* Window() const; ///< null when it is gone
    QPoint InWindow(const QPoint& at);

    const QPointer<QWidget> m_pWall;
    const QPointer<QWidget> m_pTopLevel;
    QPoint m_offset; // of the widget in the window
};

} // namespace TestSupport
