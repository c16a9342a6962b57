#pragma once

#include <QObject>

class QDropEvent;

namespace OperatorClient {

class CameraWall;
struct SourceSpec;

/// Picture and video files that are dropped on a wall: on a window they replace what it shows, beside the
/// windows they open one around the place of the drop. Of several files the first that can be shown counts.
class WallDrops : public QObject
{
    Q_OBJECT

public:
    explicit WallDrops(CameraWall& cameras); ///< its parent

private:
    void OnScreenEvent(int screen, QEvent* event);
    void OnWindowEvent(int screen, int window, QEvent* event);
    void OpenAtDrop(int screen, const QDropEvent& drop, const SourceSpec& source);

    CameraWall& m_cameras;
};

} // namespace OperatorClient
