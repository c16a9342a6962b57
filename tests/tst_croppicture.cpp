// The rules behind the crop canvases on plain values: where a frame lies in the source picture, how a cut is
// fitted to its limits.

#include "support/StrictMain.h"

#include <UI/CutPhoto/CropFrame.h>
#include <UI/CutPhoto/CropPainting.h>
#include <UI/CutPhoto/CropPicture.h>
#include <UI/CutPhoto/JpegFitting.h>
#include <UI/CutPhoto/JpegForecast.h>
#include <UI/CutPhoto/SearchMenu.h>

#include <QApplication>
#include <QBuffer>
#include <QColorSpace>
#include <QImageWriter>
#include <QLinearGradient>
#include <QPainter>
#include <QRandomGenerator>
#include <QTest>
#include <limits>

using namespace UICommonMdl;

namespace {

QByteArray Encoded(const QImage& image, int quality)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "JPG");
    writer.setQuality(quality);
    writer.write(image);
    return bytes;
}

/// The search as plainly as it can be written: every quality is really encoded (once for all limits).
class PlainLoop
{
public:
    explicit PlainLoop(const QImage& image)
    {
        for (int quality = 100; quality >= 0; quality -= quality < 10 ? 1 : quality / 10)
            m_bytes.append({quality, Encoded(image, quality).size()});
    }
    int Largest() const { return m_bytes.first().second; }
    JpegFit Fit(int maximum) const
    {
        int i = 0;
        while (i + 1 < m_bytes.size() && m_bytes.at(i).second > maximum)
            ++i;
        const int quality = m_bytes.at(i).first;
        return {m_bytes.at(i).second, quality - (quality < 10 ? 1 : quality / 10)};
    }

private:
    QVector<QPair<int, int>> m_bytes;
};

QImage Noise(const QSize& size, int amplitude)
{
    QRandomGenerator random(20);
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(
                x, y,
                qRgb(
                    128 + random.bounded(-amplitude, amplitude), 128 + random.bounded(-amplitude, amplitude),
                    128 + random.bounded(-amplitude, amplitude)));
    return image;
}

QImage Gradient(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    QLinearGradient gradient(0, 0, size.width(), size.height());
    gradient.setColorAt(0.0, QColor(250, 20, 40));
    gradient.setColorAt(0.5, QColor(20, 240, 60));
    gradient.setColorAt(1.0, QColor(10, 30, 255));
    QPainter(&image).fillRect(image.rect(), gradient);
    return image;
}

QImage Text(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.drawText(
        image.rect(), Qt::TextWordWrap, QStringLiteral("Camera 12, main gate, 08:15:42 ").repeated(60));
    return image;
}

QImage Checkerboard(const QSize& size, int cell)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, (x / cell + y / cell) % 2 == 0 ? qRgb(255, 255, 255) : qRgb(0, 0, 0));
    return image;
}

/// A picture of everything: smooth, sharp, coloured and noisy parts.
QImage Scene(const QSize& size)
{
    QImage image = Gradient(size);
    QPainter painter(&image);
    painter.drawImage(0, 0, Noise(size / 3, 90));
    painter.drawImage(size.width() / 2, size.height() / 4, Text(size / 2));
    painter.setPen(QPen(Qt::yellow, 3));
    painter.drawEllipse(image.rect().adjusted(9, 9, -9, -9));
    return image;
}

QImage WithDetails(QImage image)
{
    image.setText(QStringLiteral("Comment"), QStringLiteral("seen at the main gate"));
    image.setDotsPerMeterX(2000);
    image.setDotsPerMeterY(3100);
    image.setColorSpace(QColorSpace::AdobeRgb);
    return image;
}

QImage GreyPalette(const QImage& image)
{
    QImage indexed = image.convertToFormat(QImage::Format_Grayscale8);
    indexed = indexed.convertToFormat(QImage::Format_Indexed8);
    return indexed;
}

QImage Translucent(const QImage& image, QImage::Format format)
{
    QImage result = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < result.height(); ++y)
        for (int x = 0; x < result.width(); ++x) {
            const QRgb pixel = result.pixel(x, y);
            result.setPixel(x, y, qRgba(qRed(pixel), qGreen(pixel), qBlue(pixel), (x * 5 + y) & 255));
        }
    return result.convertToFormat(format);
}

} // namespace

class TestCropPicture : public QObject
{
    Q_OBJECT

private slots:
    void DotsAreThoseOfAPen();
    void JpegFittingEqualsThePlainLoop_data();
    void JpegFittingEqualsThePlainLoop();
    void ForecastCoversUsualPictures_data();
    void ForecastCoversUsualPictures();
};

// Catches a frame that is painted quickly but not as a dotted pen paints it, at the corners above all.
void TestCropPicture::DotsAreThoseOfAPen()
{
    for (int width = 0; width < 40; ++width)
        for (int height = 0; height < 40; ++height) {
            const QRect crop(5, 4, width, height);
            QImage ours(50, 50, QImage::Format_RGB32);
            ours.fill(Qt::darkGreen);
            QImage pens = ours;
            QPainter painter(&ours);
            CropPainting::PaintFrame(painter, crop, crop);
            QPainter pen(&pens);
            pen.setPen(QPen(QColor(0x40, 0xC4, 0xFF), 2.0, Qt::DotLine, Qt::SquareCap, Qt::BevelJoin));
            pen.drawRect(crop);
            QVERIFY2(ours == pens, qPrintable(QStringLiteral("%1 x %2").arg(width).arg(height)));
        }
}

// Catches a fast search that ends at another quality or another size than encoding each one.
void TestCropPicture::JpegFittingEqualsThePlainLoop_data()
{
    QTest::addColumn<QImage>("image");

    const QImage scene = Scene(QSize(333, 217));
    QTest::newRow("null") << QImage();
    QTest::newRow("1 x 1") << Gradient(QSize(1, 1));
    QTest::newRow("1 x 20000") << Gradient(QSize(1, 20000));
    QTest::newRow("20000 x 1") << Gradient(QSize(20000, 1));
    QTest::newRow("sizes rise at lower quality") << Checkerboard(QSize(64, 64), 2);
    QTest::newRow("checkerboard") << Checkerboard(QSize(200, 200), 3);
    QTest::newRow("flat") << Noise(QSize(256, 200), 1);
    QTest::newRow("noise") << Noise(QSize(256, 200), 128);
    QTest::newRow("soft noise") << Noise(QSize(201, 190), 12);
    QTest::newRow("gradient") << Gradient(QSize(310, 222));
    QTest::newRow("text") << Text(QSize(240, 240));
    QTest::newRow("scene") << scene;
    for (const int extra : {0, 1, 7, 8, 9, 15})
        QTest::addRow("edges %d", extra) << Scene(QSize(160 + extra, 144 + 15 - extra));
    QTest::newRow("comments, resolution, colour space") << WithDetails(scene);
    QTest::newRow("translucent") << Translucent(scene, QImage::Format_ARGB32);
    QTest::newRow("premultiplied") << Translucent(scene, QImage::Format_ARGB32_Premultiplied);
    const QImage::Format formats[] = {
        QImage::Format_Mono,     QImage::Format_MonoLSB,    QImage::Format_Indexed8,    QImage::Format_RGB16,
        QImage::Format_RGB555,   QImage::Format_RGB888,     QImage::Format_BGR888,      QImage::Format_RGB30,
        QImage::Format_RGBX8888, QImage::Format_Grayscale8, QImage::Format_Grayscale16, QImage::Format_RGBX64,
        QImage::Format_Alpha8};
    for (const QImage::Format format : formats)
        QTest::addRow("format %d", format) << scene.convertToFormat(format);
    QTest::newRow("translucent 64 bits") << Translucent(scene, QImage::Format_RGBA64);
    QTest::newRow("grey palette") << GreyPalette(scene);
}

void TestCropPicture::JpegFittingEqualsThePlainLoop()
{
    QFETCH(QImage, image);
    const PlainLoop loop(image);
    for (const int percent : {100, 60, 31, 22, 15, 11, 8, 6, 5, 4, 3, 2, 1, 0}) {
        // One byte more or less than a true size is where an approximation would show.
        const int fitting = loop.Fit(loop.Largest() * percent / 100).bytes;
        for (const int maximum : {loop.Largest() * percent / 100, fitting, fitting - 1}) {
            const JpegFit plain = loop.Fit(maximum);
            const JpegFit fit = FitJpeg(image, maximum);
            QCOMPARE(fit.bytes, plain.bytes);
            QCOMPARE(fit.ratio, plain.ratio);
        }
    }
}

// Catches counting that no longer agrees with the encoder, which costs nothing but all of the speed.
void TestCropPicture::ForecastCoversUsualPictures_data()
{
    QTest::addColumn<QImage>("image");

    const QImage scene = Scene(QSize(333, 217));
    QTest::newRow("scene") << scene;
    QTest::newRow("noise") << Noise(QSize(256, 200), 128);
    QTest::newRow("comments, resolution, colour space") << WithDetails(scene);
    QTest::newRow("grey") << scene.convertToFormat(QImage::Format_Grayscale8);
    QTest::newRow("palette") << scene.convertToFormat(QImage::Format_Indexed8);
    QTest::newRow("translucent") << Translucent(scene, QImage::Format_ARGB32);
    QTest::newRow("16 bits") << scene.convertToFormat(QImage::Format_RGBA64);
}

void TestCropPicture::ForecastCoversUsualPictures()
{
    QFETCH(QImage, image);
    JpegForecast forecast(image);
    for (int quality = 90; quality >= 0; quality = NextLowerQuality(quality)) {
        const QByteArray bytes = Encoded(image, quality);
        // Bytes of 255 among the picture's bits are followed by a zero, which is not counted.
        const int counted = bytes.size() - bytes.count(QByteArray("\xFF\x00", 2));
        QVERIFY(forecast.Exceeds(quality, counted - 1));
        QVERIFY(!forecast.Exceeds(quality, bytes.size()));
    }
}

STRICT_TEST_MAIN(TestCropPicture)
#include "tst_croppicture.moc"
