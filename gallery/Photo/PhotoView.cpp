#include <gallery/Photo/PhotoView.h>

#include <gallery/Pictures/PictureFit.h>

#include <QDragEnterEvent>
#include <QMimeData>
#include <QPainter>
#include <QStyle>
#include <QUrl>

namespace OperatorClient {

namespace {

QString LocalFile(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    return urls.isEmpty() ? QString() : urls.first().toLocalFile();
}

} // namespace

PhotoView::PhotoView(QWidget* parent)
    : QFrame(parent)
{
    setObjectName(QStringLiteral("photoView"));
}

void PhotoView::SetHint(const QString& hint)
{
    m_strHint = hint;
    update();
}

void PhotoView::SetPicture(const QImage& picture)
{
    m_picture = picture;
    m_scaled = QPixmap();
    update();
}

void PhotoView::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    const QRect area = contentsRect();
    const QRect place = FitInside(m_picture.size(), area);
    if (place.isEmpty()) {
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(area.adjusted(16, 16, -16, -16), Qt::AlignCenter | Qt::TextWordWrap, m_strHint);
        return;
    }
    const QSize pixels = place.size() * devicePixelRatioF();
    if (m_scaled.size() != pixels)
        m_scaled
            = QPixmap::fromImage(m_picture.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    painter.drawPixmap(place, m_scaled);
}

void PhotoView::MarkDrop(bool over)
{
    setProperty("dropping", over);
    style()->unpolish(this);
    style()->polish(this);
}

void PhotoView::dragEnterEvent(QDragEnterEvent* event)
{
    if (LocalFile(*event->mimeData()).isEmpty() && !event->mimeData()->hasImage())
        return;
    event->acceptProposedAction();
    MarkDrop(true);
}

void PhotoView::dragLeaveEvent(QDragLeaveEvent* event)
{
    MarkDrop(false);
    QFrame::dragLeaveEvent(event);
}

void PhotoView::dropEvent(QDropEvent* event)
{
    MarkDrop(false);
    event->acceptProposedAction();
    const QString path = LocalFile(*event->mimeData());
    if (!path.isEmpty())
        Q_EMIT SignalFileDropped(path);
    else
        Q_EMIT SignalPictureDropped(qvariant_cast<QImage>(event->mimeData()->imageData()));
}

} // namespace OperatorClient
