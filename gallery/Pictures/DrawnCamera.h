#pragma once

#include <gallery/Pictures/FrameSource.h>
#include <gallery/Pictures/Scenes/Scene.h>

namespace OperatorClient {

/// A camera that needs no device: a drawn place in which something moves, with the camera's name and the
/// time in the picture. Each number gives its own view; numbers beyond the drawn scenes see them again
/// mirrored and at another moment.
class DrawnCamera : public FrameSource
{
public:
    explicit DrawnCamera(int number);

    QString Title() const override;
    qint64 FrameNumber(const QDateTime& now) const override;
    void Paint(QPainter& painter, const QRect& area, const QDateTime& now) override;

private:
    void
    PaintInScene(QPainter& painter, const QRect& area, const std::function<void(QPainter&)>& paint) const;
    void PaintText(QPainter& painter, const QRect& area, const QDateTime& now) const;
    double SecondsInScene(const QDateTime& now) const;

    int m_iNumber;
    Scene m_scene;
    bool m_bMirrored;
};

} // namespace OperatorClient
