#pragma once

#include <QFrame>
#include <QImage>

namespace OperatorClient {

/// Shows a picture as large as it has room for, and takes one that is dropped on it.
class PhotoView : public QFrame
{
    Q_OBJECT

public:
    explicit PhotoView(QWidget* parent = nullptr);

    /// @param hint shown while there is no picture
    void SetHint(const QString& hint);
    void SetPicture(const QImage& picture);

Q_SIGNALS:
    void SignalFileDropped(const QString& path);
    void SignalPictureDropped(const QImage& picture);

protected:
    void paintEvent(QPaintEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void MarkDrop(bool over);

    QImage m_picture;
    QPixmap m_scaled; ///< the picture as it was painted last
    QString m_strHint;
};

} // namespace OperatorClient
