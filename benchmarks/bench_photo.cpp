// Fitting a 12-megapixel picture to a byte limit against encoding it at every quality, and painting a crop
// canvas while a frame is dragged over a 24-megapixel picture against drawing a ready pixmap of that size.
//
// What bounds fitting from below: colours, cosines and the last quality's bits take about two of the plain
// loop's cheaper encodings, whatever the number of steps. Two threads, each counting a part, took no less
// time than one on two busy cores.

#include "Ratio.h"

#include <UI/CutPhoto/CCutDetailPhoto.h>
#include <UI/CutPhoto/CCutPhotoWithZoom.h>

#include <QApplication>
#include <QBuffer>
#include <QImage>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QRandomGenerator>

using UICommonMdl::CCutDetailPhoto;
using UICommonMdl::CCutPhotoWithZoom;

namespace {

constexpr QSize TwelveMegapixels(4000, 3000);
constexpr QSize TwentyFourMegapixels(6000, 4000);
constexpr QSize CanvasSize(1200, 800);
constexpr int FitRounds = 3;
constexpr int DragRounds = 5;
constexpr int DragSteps = 100;

/// Something like a photo: smooth light, edges everywhere and the noise of a sensor.
QImage Photo(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient light(0, 0, size.width(), size.height());
    light.setColorAt(0.0, QColor(180, 200, 220));
    light.setColorAt(1.0, QColor(60, 50, 40));
    painter.fillRect(image.rect(), light);
    QRandomGenerator random(12);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < 1500; ++i) {
        painter.setBrush(QColor::fromRgb(random.generate()));
        painter.setPen(QPen(QColor::fromRgb(random.generate()), random.bounded(1, 9)));
        const QPoint middle(random.bounded(size.width()), random.bounded(size.height()));
        painter.drawEllipse(middle, random.bounded(10, 200), random.bounded(10, 200));
    }
    painter.end();
    for (int y = 0; y < size.height(); ++y) {
        auto* pixels = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            const int noise = random.bounded(-6, 7);
            const QRgb pixel = pixels[x];
            pixels[x] = qRgb(
                qBound(0, qRed(pixel) + noise, 255), qBound(0, qGreen(pixel) + noise, 255),
                qBound(0, qBlue(pixel) + noise, 255));
        }
    }
    return image;
}

int Bytes(const QImage& image, int quality)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG", quality);
    return bytes.size();
}

int Next(int quality) { return quality < 10 ? quality - 1 : quality - quality / 10; }

int PlainFit(const QImage& image, int maximum)
{
    int quality = 100;
    while (quality >= 0 && Bytes(image, quality) > maximum)
        quality = Next(quality);
    return Next(quality);
}

/// @return whether both came to the same quality
bool PrintFit(const char* name, const QImage& image, int quality)
{
    const int maximum = Bytes(image, quality);
    // Never shown: a canvas of one pixel frames the whole picture all the same.
    CCutDetailPhoto canvas;
    canvas.resize(1, 1);
    canvas.SetImageMaxCapacity(maximum);
    canvas.SetSrcImage(image);
    int plain = 0;
    Ratio::Print(
        name, FitRounds, [&] { canvas.IsCutPhotoVaildWithNotify(); },
        [&] { plain = PlainFit(image, maximum); });
    if (plain != canvas.GetCompressRatio())
        std::fprintf(stderr, "%s: quality %d instead of %d\n", name, canvas.GetCompressRatio(), plain);
    return plain == canvas.GetCompressRatio();
}

class ReadyPicture : public QWidget
{
public:
    explicit ReadyPicture(const QImage& image)
        : m_pixmap(QPixmap::fromImage(image.scaled(CanvasSize)))
    {
        setAttribute(Qt::WA_OpaquePaintEvent);
        resize(CanvasSize);
    }

protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).drawPixmap(0, 0, m_pixmap); }

private:
    const QPixmap m_pixmap;
};

void Send(QWidget& widget, QEvent::Type type, const QPoint& pos)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, pos, widget.mapToGlobal(pos), button, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

/// Takes the frame away, so that the next drag draws another one.
void Restart(CCutPhotoWithZoom& canvas)
{
    canvas.OnClose();
    QApplication::processEvents();
}
void Restart(CCutDetailPhoto&) { }

/// Draws a frame through the whole canvas, every step painted.
template <typename Canvas>
void DragFrame(Canvas& canvas)
{
    Restart(canvas);
    Send(canvas, QEvent::MouseButtonPress, QPoint(20, 20));
    for (int i = 1; i <= DragSteps; ++i) {
        Send(canvas, QEvent::MouseMove, QPoint(20 + 1150 * i / DragSteps, 20 + 750 * i / DragSteps));
        QApplication::processEvents();
    }
    Send(canvas, QEvent::MouseButtonRelease, QPoint(1170, 770));
}

template <typename Canvas>
void PrintDrag(const char* name, const QImage& image)
{
    Canvas canvas;
    canvas.resize(CanvasSize);
    canvas.show();
    canvas.SetSrcImage(image);
    ReadyPicture ready(image);
    ready.show();
    QApplication::processEvents();
    Ratio::Print(
        name, DragRounds, [&] { DragFrame(canvas); },
        [&] {
            for (int i = 0; i < DragSteps; ++i) {
                ready.update();
                QApplication::processEvents();
            }
        });
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);

    const bool fitOnly = QCoreApplication::arguments().contains(QLatin1String("--fit-only")); // for profilers
    if (!fitOnly) {
        PrintDrag<CCutDetailPhoto>("drag-frame/24-megapixels/plain", Photo(TwentyFourMegapixels));
        PrintDrag<CCutPhotoWithZoom>("drag-frame/24-megapixels/zoom", Photo(TwentyFourMegapixels));
    }
    const QImage photo = Photo(TwelveMegapixels);
    bool same = PrintFit("fit-jpeg/12-megapixels/18-steps", photo, 18);
    same = PrintFit("fit-jpeg/12-megapixels/25-steps", photo, 12) && same;
    same = PrintFit("fit-jpeg/12-megapixels/9-steps", photo, 41) && same;
    same = PrintFit("fit-jpeg/12-megapixels/1-step", photo, 90) && same;
    return same ? 0 : 1;
}
