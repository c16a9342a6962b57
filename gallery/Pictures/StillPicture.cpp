#include <gallery/Pictures/StillPicture.h>

#include <gallery/Pictures/PictureFit.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QImageReader>
#include <QPaintDevice>
#include <QPainter>

namespace OperatorClient {

namespace {

const QSize LargestKept(3840, 2160);

QImage ReadPicture(const QString& path, QString& error)
{
    if (!QFileInfo(path).isFile()) {
        error = QCoreApplication::translate("OperatorClient::StillPicture", "there is no such file");
        return QImage();
    }
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.width() > LargestKept.width() || size.height() > LargestKept.height())
        reader.setScaledSize(size.scaled(LargestKept, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    QImage image = reader.read();
    if (image.isNull())
        error = reader.errorString();
    return image;
}

} // namespace

StillPicture::StillPicture(const QString& path)
    : m_strPath(path)
    , m_image(ReadPicture(path, m_strError))
{ }

QString StillPicture::FilePatterns()
{
    QStringList patterns;
    const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    for (const QByteArray& format : formats)
        patterns << QStringLiteral("*.") + QString::fromLatin1(format);
    return patterns.join(QLatin1Char(' '));
}

QString StillPicture::Title() const { return QFileInfo(m_strPath).fileName(); }

qint64 StillPicture::FrameNumber(const QDateTime& now) const
{
    Q_UNUSED(now)
    return 0;
}

void StillPicture::Paint(QPainter& painter, const QRect& area, const QDateTime& now)
{
    Q_UNUSED(now)
    if (m_image.isNull()) {
        PaintMessage(
            painter, area,
            QCoreApplication::translate("OperatorClient::StillPicture", "%1\nThe picture cannot be shown: %2")
                .arg(Title(), m_strError));
        return;
    }
    PaintNoPicture(painter, area);
    const QRect place = FitInside(m_image.size(), area);
    if (place.isEmpty())
        return;
    const QPixmap scaled = CachedPixmap(
        QStringLiteral("photo:") + m_strPath, place.size(), painter.device()->devicePixelRatioF(),
        [&](QPainter& onPixmap) {
            const QSize pixels(onPixmap.device()->width(), onPixmap.device()->height());
            onPixmap.drawImage(
                QRect(QPoint(), place.size()),
                m_image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        });
    painter.drawPixmap(place.topLeft(), scaled);
}

} // namespace OperatorClient
