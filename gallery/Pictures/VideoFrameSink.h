#pragma once

#include <QAbstractVideoSurface>
#include <QImage>
#include <QVideoFrame>

namespace OperatorClient {

/// The end of a player's video: keeps the newest frame and turns it into a picture when one is asked for,
/// so that frames that nobody sees cost nothing.
class VideoFrameSink : public QAbstractVideoSurface
{
    Q_OBJECT

public:
    using QAbstractVideoSurface::QAbstractVideoSurface;

    QList<QVideoFrame::PixelFormat> supportedPixelFormats(
        QAbstractVideoBuffer::HandleType type = QAbstractVideoBuffer::NoHandle) const override;
    bool present(const QVideoFrame& frame) override;

    qint64 FrameCount() const { return m_iFrames; } ///< frames since the beginning
    QImage Picture(); ///< the newest frame; null before the first

Q_SIGNALS:
    void SignalFrame(); ///< there is another one

private:
    QVideoFrame m_frame;
    QImage m_picture;
    qint64 m_iFrames = 0;
    qint64 m_iConverted = 0; ///< the frame that m_picture shows
};

} // namespace OperatorClient
