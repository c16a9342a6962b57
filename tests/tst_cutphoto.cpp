// The two crop canvases, driven by real mouse and key events; what was framed is read from the cut.

#include "support/CropCanvas.h"
#include "support/StrictMain.h"

#include <UI/CutPhoto/CCutDetailPhoto.h>
#include <UI/CutPhoto/CCutPhotoWithZoom.h>

#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <memory>

using UICommonMdl::CCutDetailPhoto;
using UICommonMdl::CCutPhotoWithZoom;
using UICommonMdl::CutImageInfo;

namespace {

constexpr QSize Canvas(200, 150);
constexpr QSize Source(400, 300); // twice the canvas, so that ratios are exact
constexpr QRect Whole(0, 0, 200, 150);

/// A picture whose pixels tell their own place.
QImage PlacePicture(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgb(x & 255, y & 255, 64 + (x >> 8) * 16 + (y >> 8)));
    return image;
}

QPoint PlaceOf(QRgb pixel)
{
    const int high = qBlue(pixel) - 64;
    return {qRed(pixel) + (high / 16) * 256, qGreen(pixel) + (high % 16) * 256};
}

/// What is framed, in canvas pixels; an invalid rectangle when nothing valid is.
template <typename CanvasType>
QRect Framed(CanvasType& canvas)
{
    const CutImageInfo before = canvas.GetCutPhoto();
    if (!canvas.IsCutPhotoVaildWithNotify())
        return QRect();
    const QImage cut = canvas.GetCutPhoto().image;
    canvas.SetCutImage(before);
    return {PlaceOf(cut.pixel(0, 0)) / 2, cut.size() / 2};
}

void MoveHeld(QWidget& widget, const QPoint& pos)
{
    QMouseEvent move(
        QEvent::MouseMove, pos, widget.mapToGlobal(pos), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &move);
}

void Drag(QWidget& widget, const QPoint& from, const QPoint& to)
{
    QTest::mousePress(&widget, Qt::LeftButton, Qt::NoModifier, from);
    MoveHeld(widget, (from + to) / 2);
    MoveHeld(widget, to);
    QTest::mouseRelease(&widget, Qt::LeftButton, Qt::NoModifier, to);
}

template <typename CanvasType>
std::unique_ptr<CanvasType> MakeCanvas()
{
    if (std::is_same_v<CanvasType, CCutPhotoWithZoom>)
        TestSupport::AnnounceCropCanvases();
    auto canvas = std::make_unique<CanvasType>();
    canvas->resize(Canvas);
    canvas->show();
    canvas->SetSrcImage(PlacePicture(Source));
    return canvas;
}

} // namespace

class TestCutPhoto : public QObject
{
    Q_OBJECT

private slots:
    void DraggingMarksAFrame_data();
    void DraggingMarksAFrame();
};

// Catches a drag whose frame is off, and the least size taken without its sign or its limit.
void TestCutPhoto::DraggingMarksAFrame_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<QRect>("framed");

    QTest::newRow("right and down") << QPoint(20, 10) << QPoint(120, 60) << QRect(20, 10, 100, 50);
    QTest::newRow("least size") << QPoint(20, 10) << QPoint(26, 16) << QRect(20, 10, 6, 6);
    QTest::newRow("too narrow") << QPoint(20, 10) << QPoint(25, 60) << Whole;
    QTest::newRow("too low") << QPoint(20, 10) << QPoint(90, 15) << Whole;
    QTest::newRow("click") << QPoint(20, 10) << QPoint(20, 10) << Whole;
    QTest::newRow("left and up") << QPoint(120, 60) << QPoint(20, 10) << Whole;
    QTest::newRow("left and down") << QPoint(120, 10) << QPoint(20, 60) << Whole;
    QTest::newRow("right and up") << QPoint(20, 60) << QPoint(120, 10) << Whole;
}

void TestCutPhoto::DraggingMarksAFrame()
{
    QFETCH(QPoint, from);
    QFETCH(QPoint, to);
    const auto canvas = MakeCanvas<CCutPhotoWithZoom>();
    Drag(*canvas, from, to);
    QTEST(Framed(*canvas), "framed");
}

STRICT_TEST_MAIN(TestCutPhoto)
#include "tst_cutphoto.moc"
