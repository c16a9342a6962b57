// The rules behind the crop canvases on plain values: where a frame lies in the source picture, how a cut is
// fitted to its limits.

#include "support/Columns.h"
#include "support/StrictMain.h"

#include <UI/CutPhoto/CropFrame.h>
#include <UI/CutPhoto/CropPainting.h>
#include <UI/CutPhoto/CropPicture.h>
#include <UI/CutPhoto/JpegFitting.h>
#include <UI/CutPhoto/JpegForecast.h>
#include <UI/CutPhoto/JpegTables.h>
#include <UI/CutPhoto/SearchMenu.h>

#include <QtTest>
#include <QtWidgets>
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
    // Catches a photo beside the middle, ratios in double precision, products that are rounded, and a
    // division by an empty photo.
    void FramesFollowAResizedPhoto()
    {
        QCOMPARE(CropPicture::PhotoRect({301, 200}, {100, 300}), QRect(100, 0, 100, 300));
        QCOMPARE(CropPicture::PhotoRect({300, 203}, {300, 100}), QRect(0, 51, 300, 100));
        const auto followed = CropPicture::FollowedCrop; // crop, photo before, photo now
        const QRect photo(0, 0, 300, 200);
        QCOMPARE(followed({10, 20, 30, 40}, photo, {0, 0, 600, 400}), QRect(20, 40, 60, 80));
        QCOMPARE(followed({-5, 5, 101, 99}, photo, {0, 0, 200, 100}), QRect(-3, 2, 67, 49)); // towards zero
        // 7 * (31 / 7) is 31 in double precision, and 11 * (185 / 11) less than 185.
        QCOMPARE(followed({7, 0, 7, 10}, {0, 0, 7, 10}, {0, 0, 31, 10}), QRect(30, 0, 30, 10));
        QCOMPARE(followed({11, 0, 11, 10}, {0, 0, 11, 10}, {0, 0, 185, 10}), QRect(185, 0, 185, 10));
        QCOMPARE(followed({50, 50, -20, -10}, photo, {0, 0, 150, 100}), QRect(25, 25, -10, -5)); // backwards
        QCOMPARE(followed({1, 2, 3, 4}, {0, 0, 0, 200}, photo), QRect(1, 2, 3, 4)); // no photo before
        QCOMPARE(followed({1, 2, 3, 4}, photo, {0, 0, 0, 0}), QRect(0, 0, 0, 0));
    }

    // Catches a frame mapped without the photo's place, with swapped directions, or rounded.
    void FramesMeanSourcePixels()
    {
        const auto pixels = [](const QRect& crop, const QRect& photo, const QSize& source) {
            return CropPicture::SourceRect(crop, photo, photo.size(), source);
        };
        const QRect photo(0, 0, 200, 100);
        QCOMPARE(pixels({10, 20, 30, 40}, photo, {800, 300}), QRect(40, 60, 120, 120));
        QCOMPARE(pixels({15, 9, 33, 18}, photo, {20, 50}), QRect(1, 4, 3, 9));
        QCOMPARE(pixels({60, 45, 20, 10}, {50, 40, 200, 100}, {400, 200}), QRect(20, 10, 40, 20));
        QCOMPARE(pixels({-3, -3, 300, 200}, photo, {100, 50}), QRect(-1, -1, 150, 100)); // outside
        QCOMPARE(pixels({0, 0, 199, 99}, photo, {1, 1}), QRect(0, 0, 0, 0));
        QCOMPARE(pixels({10, 20, 30, 40}, photo, {0, 0}), QRect(0, 0, 0, 0)); // no source
        QCOMPARE(pixels({10, 20, 30, 40}, {0, 0, 0, 0}, {8, 8}), QRect(0, 0, 0, 0)); // no photo
    }

    // Catches overflows (seen by a sanitizer) and pictures of gigabytes made from a wild frame.
    void CutsSurviveAnyFrame()
    {
        const int most = std::numeric_limits<int>::max();
        const int least = std::numeric_limits<int>::min();
        const QRect crops[] = {
            {QPoint(least, least), QPoint(most, most)},
            {QPoint(most, most), QPoint(least, least)},
            {QPoint(most, most), QPoint(most, most)},
            {QPoint(least, least), QPoint(least, least)},
            {QPoint(least, 0), QPoint(most, 10)},
            {50, 50, -20, -10},
            {5, 5, 10, 0},
        };
        CutImageInfo info;
        info.bHasImage = true;
        info.image = Gradient(QSize(400, 300));
        const QRect photo(0, 0, 200, 150);
        CropPicture::Limits limits;
        limits.iMaxCapacity = 100000;
        for (const QRect& crop : crops) {
            const QImage cut = CropPicture::GetCutImage(info, crop, photo, photo.size());
            QVERIFY(qint64(cut.width()) * cut.height() <= 1 << 28);
            CropPicture::CheckCut(info, crop, photo, photo.size(), limits);
            CropPicture::FollowedCrop(crop, photo, QRect(0, 0, 9999, 1));

            const QRect bounded = CropFrame::Bounded(crop);
            CropFrame::Normalized(bounded);
            CropFrame::BackwardsRect(bounded, QSize(least, -7));
            CropFrame::HoverCursor(QPoint(1, 1), bounded, photo);
            CropPainting::ChangedRegion(bounded, QRect(3, 3, 9, 9));
            QImage canvas(50, 50, QImage::Format_RGB32);
            QPainter painter(&canvas);
            CropPainting::PaintFrame(painter, canvas.rect(), canvas.rect(), bounded);
        }
    }

    // Catches halving that ends at nothing, one step late, or for one limit only, and a negative limit that
    // leaves one pixel.
    void HalvingStopsInTime()
    {
        const auto halved = [](const QSize& size, const QSize& maximum) {
            return CropPicture::ChanageImageByAspectRatio(QImage(size, QImage::Format_RGB32), maximum).size();
        };
        QCOMPARE(halved({3000, 2000}, {640, 480}), QSize(375, 250));
        QCOMPARE(halved({640, 480}, {640, 480}), QSize(640, 480));
        QCOMPARE(halved({641, 10}, {640, 480}), QSize(320, 5));
        QCOMPARE(halved({10, 481}, {640, 480}), QSize(4, 240)); // proportions kept
        QCOMPARE(halved({3000, 2000}, {0, 480}), QSize(3000, 2000)); // one limit is none
        QCOMPARE(halved({3000, 2000}, {640, 0}), QSize(3000, 2000));
        QCOMPARE(halved({1, 20000}, {100, 100}), QSize(1, 20000));
        QCOMPARE(halved({4, 2000}, {100, 100}), QSize(1, 500));
        QCOMPARE(halved({9, 9}, {-5, -5}), QSize(9, 9));
        QCOMPARE(halved({9, 9}, {4, -1}), QSize(9, 9));
        QCOMPARE(halved({0, 0}, {-1, -1}), QSize(0, 0));
    }

    // Catches limits checked in another order, one of two limits taken for none, and a compress ratio touched
    // where nothing was measured.
    void LimitsAreChecked_data()
    {
        // On a photo shown at half its size of 400 x 300; a ratio of -2 for not measured.
        TestSupport::Columns<QSize, int, QSize, bool, int, QSize, int>(
            "crop", "capacity", "maximum", "keep", "verdict", "size", "ratio");
        const int valid = int(CropPicture::Verdict::Valid);
        const int noArea = int(CropPicture::Verdict::NoArea);
        const int pixels = int(CropPicture::Verdict::TooManyPixels);
        const int bytes = int(CropPicture::Verdict::TooManyBytes);
        const QSize whole(200, 150);
        const QSize none(0, 0);
        QTest::newRow("no limit") << whole << 0 << none << false << valid << QSize(400, 300) << -2;
        QTest::newRow("no width") << QSize(0, 9) << 0 << none << false << noArea << none << -2;
        QTest::newRow("no height") << QSize(9, 0) << 0 << none << false << noArea << none << -2;
        QTest::newRow("pixels without bytes")
            << whole << 0 << QSize(10, 10) << false << valid << QSize(400, 300) << -2;
        QTest::newRow("fits at once") << whole << 900000 << none << false << valid << QSize(400, 300) << 90;
        QTest::newRow("never fits") << whole << 1 << none << false << bytes << none << -1;
        QTest::newRow("negative bytes") << whole << -9 << none << false << valid << QSize(400, 300) << -2;
        QTest::newRow("negative pixels")
            << whole << 900000 << QSize(-1, -1) << false << valid << QSize(400, 300) << 90;
        QTest::newRow("negative height, no pixel to cut") // of a frame of negative width
            << QSize(-9, 9) << 900000 << QSize(400, -1) << false << valid << none << 90;
        QTest::newRow("too wide") << whole << 900000 << QSize(399, 300) << false << pixels << none << -2;
        QTest::newRow("width alone") << whole << 900000 << QSize(400, 0) << false << pixels << none << -2;
        QTest::newRow("height alone") << whole << 900000 << QSize(0, 300) << false << pixels << none << -2;
        QTest::newRow("halved") << whole << 900000 << QSize(399, 300) << true << valid << QSize(200, 150)
                                << 90;
        QTest::newRow("width alone, kept")
            << whole << 900000 << QSize(400, 0) << true << valid << QSize(400, 300) << 90;
    }

    void LimitsAreChecked()
    {
        QFETCH(QSize, crop);
        QFETCH(int, capacity);
        QFETCH(QSize, maximum);
        QFETCH(bool, keep);
        const CropPicture::Limits limits{capacity, maximum, keep};
        CutImageInfo info;
        info.bHasImage = true;
        info.image = Scene(QSize(400, 300));
        const QRect photo(0, 0, 200, 150);
        const CropPicture::CheckedCut cut
            = CropPicture::CheckCut(info, QRect(QPoint(0, 0), crop), photo, photo.size(), limits);
        QTEST(int(cut.verdict), "verdict");
        QTEST(cut.image.size(), "size");
        QTEST(cut.compressRatio.value_or(-2), "ratio");
    }

    // Catches the frame's corners taken where the photo's count, and another order of the tests.
    void CursorsTellPlaces()
    {
        const auto cursor = [](int x, int y) {
            return CropFrame::HoverCursor({x, y}, QRect(30, 40, 100, 50), QRect(0, 0, 200, 150));
        };
        QCOMPARE(cursor(20, 40), Qt::SizeAllCursor);
        QCOMPARE(cursor(19, 40), Qt::ArrowCursor);
        QCOMPARE(cursor(230, 30), Qt::SizeAllCursor); // a photo's width to the right
        QCOMPARE(cursor(231, 40), Qt::ArrowCursor);
        QCOMPARE(cursor(100, 50), Qt::SizeAllCursor); // below the upper edge
        QCOMPARE(cursor(100, 51), Qt::ArrowCursor);
        QCOMPARE(cursor(190, 10), Qt::SizeBDiagCursor); // the photo's top right
        QCOMPARE(cursor(210, 160), Qt::OpenHandCursor); // and bottom right
        QCOMPARE(cursor(130, 90), Qt::ArrowCursor); // the frame's
    }

    // Catches traces that a dragged frame leaves behind because too little is painted again.
    void ChangedRegionsHoldAllThatDiffers()
    {
        const QRect photo(0, 0, 90, 70);
        const QRect frames[]
            = {QRect(20, 20, 40, 30), QRect(20, 20, 41, 31), QRect(19, 22, 40, 30), QRect(60, 50, -30, -20),
               QRect(5, 5, 0, 0),     QRect(0, 0, 90, 70),   QRect(80, 60, 30, 30), QRect(30, 30, 3, 50)};
        const auto painted = [&](const QRect& frame) {
            QImage image(photo.size(), QImage::Format_RGB32);
            image.fill(Qt::white);
            QPainter painter(&image);
            CropPainting::PaintFrame(painter, image.rect(), photo, frame);
            return image;
        };
        for (const QRect& before : frames)
            for (const QRect& now : frames) {
                const QImage a = painted(before);
                const QImage b = painted(now);
                const QRegion changed = CropPainting::ChangedRegion(before, now);
                for (int y = 0; y < photo.height(); ++y)
                    for (int x = 0; x < photo.width(); ++x)
                        QVERIFY(a.pixel(x, y) == b.pixel(x, y) || changed.contains(QPoint(x, y)));
            }
    }

    // Catches a frame that is painted quickly but not as a dotted pen paints it, at the corners above all and
    // where it comes into the canvas from outside.
    void DotsAreThoseOfAPen()
    {
        QVector<QRect> crops
            = {{-3001, 4, 6002, 500}, {-700, -900, 730, 931}, {7, -2000, 3000, 4001}, {-50, -60, 400, 93}};
        for (int width = 0; width < 40; ++width)
            for (int height = 0; height < 40; ++height)
                crops << QRect(5, 4, width, height);
        for (const QRect& crop : crops) {
            QImage ours(50, 50, QImage::Format_RGB32);
            ours.fill(Qt::darkGreen);
            QImage pens = ours;
            QPainter painter(&ours);
            CropPainting::PaintFrame(painter, ours.rect(), crop, crop);
            QPainter pen(&pens);
            pen.setPen(QPen(QColor(0x40, 0xC4, 0xFF), 2.0, Qt::DotLine, Qt::SquareCap, Qt::BevelJoin));
            pen.drawRect(crop);
            QVERIFY2(
                ours == pens, qPrintable(QStringLiteral("%1 x %2").arg(crop.width()).arg(crop.height())));
        }
    }

    // Catches a fast search that ends at another quality or another size than encoding each one.
    void JpegFittingEqualsThePlainLoop_data()
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
        const QImage::Format formats[]
            = {QImage::Format_Mono,       QImage::Format_MonoLSB,     QImage::Format_Indexed8,
               QImage::Format_RGB16,      QImage::Format_RGB555,      QImage::Format_RGB888,
               QImage::Format_BGR888,     QImage::Format_RGB30,       QImage::Format_RGBX8888,
               QImage::Format_Grayscale8, QImage::Format_Grayscale16, QImage::Format_RGBX64,
               QImage::Format_Alpha8};
        for (const QImage::Format format : formats)
            QTest::addRow("format %d", format) << scene.convertToFormat(format);
        QTest::newRow("translucent 64 bits") << Translucent(scene, QImage::Format_RGBA64);
        QTest::newRow("grey palette")
            << scene.convertToFormat(QImage::Format_Grayscale8).convertToFormat(QImage::Format_Indexed8);
    }

    void JpegFittingEqualsThePlainLoop()
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

    // Catches an encoder that is asked all the same, and warns, and a size counted for what is no JPEG.
    void NoJpegIsLongerThanItsFormatAllows()
    {
        QVERIFY(!JpegBytes(QImage(65500, 1, QImage::Format_RGB32), 0).isEmpty());
        const QImage tooLong = Gradient(QSize(65501, 1));
        QVERIFY(JpegBytes(tooLong, 0).isEmpty());
        QCOMPARE(FitJpeg(tooLong, 10).bytes, 0);
    }

    void OtherJpegsAreNotCounted_data()
    {
        TestSupport::Columns<QByteArray, QByteArray>("from", "to");
        const auto row = [](const char* name, const char* from, const char* to) {
            QTest::newRow(name) << QByteArray::fromHex(from) << QByteArray::fromHex(to);
        };
        row("no JPEG", "ffd8ffe0", "ffd9ffe0");
        row("no mark", "ffe00010", "00e00010");
        row("length below its own", "ffe00010", "ffe00001");
        row("length beyond the end", "ffe00010", "ffe0ffff");
        row("restarts", "ffe0", "ffdd");
        row("unknown mark", "ffe0", "fff0");
        row("progressive", "ffc0", "ffc2");
        row("divisors of 16 bits", "ffdb004300", "ffdb004310");
        row("divisors cut short", "ffdb004300", "ffdb004200");
        row("divisor of 0", "ffdb00430008", "ffdb00430000");
        row("no divisors for chrominance", "ffdb004301", "ffdb004300");
        row("Huffman table of a third kind", "ffc4001f00", "ffc4001f20");
        row("third Huffman table", "ffc4001f00", "ffc4001f02");
        row("Huffman table cut short", "ffc4001f00", "ffc4001e00");
        row("no means of chrominance", "ffc4001f01", "ffc4001f00");
        row("no details of chrominance", "ffc400b511", "ffc400b510");
        row("12 bits a sample", "ffc0001108", "ffc000110c");
        row("components missing", "ffc000110800400040030122", "ffc000110800400040040122");
        row("four components", "ffc00011080040004003012200021101031101",
            "ffc00014080040004004012200021101031101041101");
        row("whole chrominance", "03012200", "03011100");
        row("halved one way", "00021101", "00022101");
        row("halved differently", "01031101", "01032201");
        row("one component only", "ffda000c03", "ffda000c01");
        row("longer scan", "ffda000c", "ffda000e");
        row("luminance by other tables", "030100021103", "030111021103");
        row("blueness by other tables", "0100021103", "0100020003");
        row("redness by other tables", "0211031100", "0211030000");
    }

    // Catches bits counted, or memory read, by tables that are not those of what is counted.
    void OtherJpegsAreNotCounted()
    {
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        QByteArray jpeg = Encoded(Scene(QSize(64, 64)), 75);
        QVERIFY(ReadJpegTables(jpeg));
        QCOMPARE(jpeg.count(from), 1);
        QVERIFY(!ReadJpegTables(QByteArray(jpeg).replace(from, to)));
        for (int size = 0; size < jpeg.size(); ++size)
            QVERIFY(!ReadJpegTables(jpeg.left(size)));
    }

    // Catches a product's menu in the colours of another.
    void MenusKnowTheirProduct()
    {
        QVERIFY(SearchMenuStyle(QStringLiteral("Brellow")).contains(QStringLiteral("#1269a2;color:#000000")));
        QCOMPARE(SearchMenuStyle(QStringLiteral("Bellow")), QString());
    }

    // Catches counting that no longer agrees with the encoder, which costs nothing but all of the speed; what
    // was counted with finer tables; and a picture that is counted although it would take too much memory.
    void ForecastCoversUsualPictures()
    {
        const QImage scene = Scene(QSize(333, 217));
        const QImage images[] = {
            scene,
            Noise(QSize(256, 200), 128),
            WithDetails(scene),
            scene.convertToFormat(QImage::Format_Grayscale8),
            scene.copy(0, 0, 333, 215).convertToFormat(QImage::Format_Grayscale8), // ends with half a band
            scene.convertToFormat(QImage::Format_Indexed8),
            Translucent(scene, QImage::Format_ARGB32),
            scene.convertToFormat(QImage::Format_RGBA64),
        };
        constexpr int Unlimited = std::numeric_limits<int>::max();
        for (const QImage& image : images) {
            JpegForecast forecast(image, Unlimited);
            for (int quality = 100; quality >= 0; quality = NextLowerQuality(quality))
                QCOMPARE(forecast.Bytes(quality).value_or(-1), qint64(Encoded(image, quality).size()));
        }
        QImage frame = Noise(QSize(256, 200), 128);
        QPainter(&frame).fillRect(60, 30, 140, 140, Qt::gray); // with it all that is really encoded
        JpegForecast upwards(frame, Unlimited);
        QVERIFY(upwards.Bytes(10));
        QVERIFY(!upwards.Bytes(50)); // details are forgotten
        QVERIFY(!JpegForecast(QImage(9000, 8000, QImage::Format_Mono), Unlimited).Bytes(100)); // memory
    }
};

STRICT_TEST_MAIN(TestCropPicture)
#include "tst_croppicture.moc"
