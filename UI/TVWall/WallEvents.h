#pragma once

#include <QEvent>

/// Which events of its windows and overlays a wall reports.
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

} // namespace UICommonMdl::WallEvents
