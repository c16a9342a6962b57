#pragma once

#include <QEvent>
#include <QFocusEvent>
#include <QKeyEvent>

/// Which events of its windows and overlays a wall reports, and what some of them mean.
namespace UICommonMdl::WallEvents {

inline bool IsMouse(QEvent::Type type)
{
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease
        || type == QEvent::MouseButtonDblClick || type == QEvent::MouseMove;
}

inline bool IsReported(QEvent::Type type)
{
    switch (type) {
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::DragLeave:
    case QEvent::Drop:
        return true;
    default:
        return IsMouse(type);
    }
}

/// The focus comes by the Tab key, and is marked: after a click everybody knows where it is.
inline bool IsByTab(const QFocusEvent& event)
{
    return event.reason() == Qt::TabFocusReason || event.reason() == Qt::BacktabFocusReason;
}

/// A key that clicks what has the focus: the Space key, once however long it is held.
inline bool IsClick(const QKeyEvent& event) { return event.key() == Qt::Key_Space && !event.isAutoRepeat(); }

} // namespace UICommonMdl::WallEvents
