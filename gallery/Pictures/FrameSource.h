#pragma once

#include <QDateTime>
#include <QRect>
#include <QString>

class QPainter;

namespace OperatorClient {

/// Where the picture of a video window comes from. Windows that show the same source share one object.
class FrameSource
{
public:
    FrameSource() = default;
    virtual ~FrameSource() = default;
    FrameSource(const FrameSource&) = delete;
    FrameSource& operator=(const FrameSource&) = delete;

    /// Name for the operator: the camera's name or the file's.
    virtual QString Title() const = 0;

    /// A number that changes whenever the picture does; a tile paints again only then.
    virtual qint64 FrameNumber(const QDateTime& now) const = 0;

    /// Whether the picture never changes, so that nobody needs to look again.
    virtual bool IsStill() const { return false; }

    /// Fills @p area, in device-independent pixels, with the picture of this moment, or with the reason why
    /// there is none.
    virtual void Paint(QPainter& painter, const QRect& area, const QDateTime& now) = 0;

    /// Whether the picture is there (or never will be), so that a screenshot need not wait.
    virtual bool IsReady() const { return true; }

    /// Turns the sound on or off; off at first. Nothing for sources without sound.
    virtual void SetAudible(bool bAudible) { Q_UNUSED(bAudible) }

    /// Sets the volume, 0 to 100. Nothing for sources without sound.
    virtual void SetVolume(int volume) { Q_UNUSED(volume) }
};

} // namespace OperatorClient
