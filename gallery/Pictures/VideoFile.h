#pragma once

#include <gallery/Pictures/FrameSource.h>
#include <gallery/Pictures/VideoFrameSink.h>

#include <QElapsedTimer>
#include <QMediaPlayer>

namespace OperatorClient {

/// A video file, played over and over by one player however many windows show it, and paused, with its sound,
/// while none of them is painted. Muted until made audible. A file that cannot be played shows the reason
/// instead.
class VideoFile : public QObject, public FrameSource
{
    Q_OBJECT

public:
    explicit VideoFile(const QString& path);
    ~VideoFile() override;

    QString Title() const override;
    qint64 FrameNumber(const QDateTime& now) const override;
    void Paint(QPainter& painter, const QRect& area, const QDateTime& now) override;
    bool IsReady() const override;
    void SetAudible(bool bAudible) override;
    void SetVolume(int volume) override;

private:
    void Start();
    void Fail(const QString& reason);
    void OnMediaStatusChanged(QMediaPlayer::MediaStatus status);
    void PlayAgain();
    void PauseUnseen();

    QString m_strPath;
    QString m_strError; ///< why there is no picture; empty when there may be one
    VideoFrameSink m_sink;
    QMediaPlayer* m_pPlayer = nullptr; ///< null when the file is not there
    QElapsedTimer m_sincePaint;
    qint64 m_iFramesAtStart = 0; ///< frames counted before the present run through the file
};

} // namespace OperatorClient
