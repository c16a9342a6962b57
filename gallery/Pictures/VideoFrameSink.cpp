#include <gallery/Pictures/VideoFrameSink.h>

namespace OperatorClient {

QList<QVideoFrame::PixelFormat>
VideoFrameSink::supportedPixelFormats(QAbstractVideoBuffer::HandleType type) const
{
    if (type != QAbstractVideoBuffer::NoHandle)
        return {};
    return {
        QVideoFrame::Format_RGB32, QVideoFrame::Format_ARGB32, QVideoFrame::Format_ARGB32_Premultiplied,
        QVideoFrame::Format_RGB565};
}

bool VideoFrameSink::present(const QVideoFrame& frame)
{
    if (!frame.isValid())
        return false;
    m_frame = frame;
    ++m_iFrames;
    Q_EMIT SignalFrame();
    return true;
}

QImage VideoFrameSink::Picture()
{
    if (m_iConverted != m_iFrames) {
        m_picture = m_frame.image();
        m_iConverted = m_iFrames;
    }
    return m_picture;
}

} // namespace OperatorClient
