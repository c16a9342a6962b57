#include <gallery/Pictures/VideoFile.h>

#include <gallery/Pictures/PictureFit.h>

#include <QFileInfo>
#include <QPainter>
#include <QTimer>
#include <QUrl>

namespace OperatorClient {

namespace {

constexpr int LongestUnseen = 2000; // milliseconds; twice what the clock leaves between two paintings

} // namespace

VideoFile::VideoFile(const QString& path)
    : m_strPath(path)
{
    const QFileInfo file(path);
    if (!file.isFile() || !file.isReadable())
        Fail(tr("there is no such file, or it may not be read"));
    else
        Start();
}

VideoFile::~VideoFile()
{
    // The player must not present a frame to a sink that is gone.
    delete m_pPlayer;
}

void VideoFile::Start()
{
    m_pPlayer = new QMediaPlayer(this, QMediaPlayer::VideoSurface);
    if (!m_pPlayer->isAvailable()) {
        Fail(tr("no media player is installed"));
        return;
    }
    connect(m_pPlayer, &QMediaPlayer::mediaStatusChanged, this, &VideoFile::OnMediaStatusChanged);
    connect(m_pPlayer, QOverload<QMediaPlayer::Error>::of(&QMediaPlayer::error), this, [this] {
        Fail(m_pPlayer->errorString());
    });
    // Not at once: the player is busy with the frame.
    connect(&m_sink, &VideoFrameSink::SignalFrame, this, &VideoFile::PauseUnseen, Qt::QueuedConnection);
    m_sincePaint.start();
    m_pPlayer->setVideoOutput(&m_sink);
    m_pPlayer->setMuted(true);
    m_pPlayer->setMedia(QUrl::fromLocalFile(QFileInfo(m_strPath).absoluteFilePath()));
    m_pPlayer->play();
}

void VideoFile::Fail(const QString& reason)
{
    m_strError = reason.isEmpty() ? tr("it cannot be played") : reason;
}

void VideoFile::OnMediaStatusChanged(QMediaPlayer::MediaStatus status)
{
    if (status == QMediaPlayer::InvalidMedia)
        Fail(m_pPlayer->errorString());
    else if (status == QMediaPlayer::EndOfMedia)
        QTimer::singleShot(0, this, &VideoFile::PlayAgain);
}

void VideoFile::PlayAgain()
{
    // A file without a single picture would start over without end.
    if (m_sink.FrameCount() == m_iFramesAtStart) {
        Fail(tr("it holds no pictures"));
        return;
    }
    m_iFramesAtStart = m_sink.FrameCount();
    m_pPlayer->setPosition(0);
    m_pPlayer->play();
}

/// A frame tells the time as well as a timer, and comes only while the video plays.
void VideoFile::PauseUnseen()
{
    if (m_sincePaint.hasExpired(LongestUnseen) && m_pPlayer->state() == QMediaPlayer::PlayingState)
        m_pPlayer->pause();
}

QString VideoFile::Title() const { return QFileInfo(m_strPath).fileName(); }

qint64 VideoFile::FrameNumber(const QDateTime& now) const
{
    Q_UNUSED(now)
    return m_strError.isEmpty() ? m_sink.FrameCount() : -1;
}

bool VideoFile::IsReady() const { return m_sink.FrameCount() > 0 || !m_strError.isEmpty(); }

void VideoFile::SetAudible(bool bAudible)
{
    if (m_pPlayer)
        m_pPlayer->setMuted(!bAudible);
}

void VideoFile::SetVolume(int volume)
{
    if (m_pPlayer)
        m_pPlayer->setVolume(volume);
}

void VideoFile::Paint(QPainter& painter, const QRect& area, const QDateTime& now)
{
    Q_UNUSED(now)
    if (!m_strError.isEmpty()) {
        PaintMessage(painter, area, tr("%1\nThe video cannot be shown: %2").arg(Title(), m_strError));
        return;
    }
    m_sincePaint.start();
    if (m_pPlayer && m_pPlayer->state() == QMediaPlayer::PausedState)
        m_pPlayer->play();
    PaintNoPicture(painter, area);
    const QImage picture = m_sink.Picture();
    if (picture.isNull())
        return;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(FitInside(picture.size(), area), picture);
}

} // namespace OperatorClient
