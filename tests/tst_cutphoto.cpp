// The two crop canvases, driven by real mouse and key events; what was framed is read from the cut.

#include "support/Columns.h"
#include "support/CropCanvas.h"
#include "support/Deletion.h"
#include "support/StrictMain.h"

#include <UI/CutPhoto/CCutDetailPhoto.h>
#include <UI/CutPhoto/CCutPhotoWithZoom.h>

#include <Platform/BasicUIComponents/KvMessageNotify.h>
#include <Platform/BasicUIComponents/KvSkin.h>

#include <QtTest>
#include <QtWidgets>
#include <functional>
#include <memory>

using TestSupport::Drag;
using TestSupport::MoveHeld;
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

/// Whether the operator sees the message; takes all messages away.
bool IsTold(const QString& message)
{
    bool told = false;
    for (const QWidget* widget : QApplication::allWidgets()) {
        const auto* label = qobject_cast<const QLabel*>(widget);
        told = told || (label != nullptr && label->isVisible() && label->text() == message);
    }
    KvGUI::KvMessageNotify::Instance()->CloseAll();
    return told;
}

const QString NoArea = QStringLiteral("Please select a valid area to cut.");

void Press(QWidget& widget, const QPoint& pos, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mousePress(&widget, button, Qt::NoModifier, pos);
}

void Click(QWidget& widget, const QPoint& pos)
{
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, pos);
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

QRgb PixelAt(QWidget& widget, const QPoint& pos) { return widget.grab().toImage().pixel(pos); }

/// The largest difference of a colour between two pictures of one size.
int LargestDifference(const QImage& one, const QImage& other)
{
    int largest = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x) {
            const QColor a = one.pixelColor(x, y);
            const QColor b = other.pixelColor(x, y);
            for (const int difference : {a.red() - b.red(), a.green() - b.green(), a.blue() - b.blue()})
                largest = qMax(largest, qAbs(difference));
        }
    return largest;
}

/// Runs when the next menu has opened, then closes it.
void OnNextMenu(const std::function<void(QMenu*)>& act)
{
    QTimer::singleShot(0, qApp, [act] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(menu != nullptr);
        const QPointer<QMenu> guard(menu);
        act(menu);
        if (guard)
            guard->close();
    });
}

QAction* ActionNamed(QMenu* menu, const QString& text)
{
    for (QAction* action : menu->actions())
        if (action->text() == text)
            return action;
    return nullptr;
}

void ChooseInMenu(QMenu* menu, const QString& text)
{
    QTest::mouseClick(
        menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(ActionNamed(menu, text)).center());
}

QByteArray Encoded(const QImage& image, const char* format, int quality = -1)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format, quality);
    return bytes;
}

/// A JPEG whose camera notes that it was held on its side.
QByteArray RotatedJpeg(const QImage& image)
{
    const QByteArray note = QByteArray::fromHex("ffe1002245786966000"
                                                "04d4d002a000000080001011200030000000100060000"
                                                "00000000");
    QByteArray jpeg = Encoded(image, "JPG");
    return jpeg.insert(2, note);
}

/// A JPEG of 8 x 8 pixels in four colours, as printers have them, all of middle strength.
QByteArray FourColorJpeg()
{
    const QImage grey = PlacePicture(QSize(8, 8)).convertToFormat(QImage::Format_Grayscale8);
    const QByteArray jpeg = Encoded(grey, "JPG");
    const int frame = jpeg.indexOf("\xFF\xC0");
    const int huffman = jpeg.indexOf("\xFF\xC4");
    const int scan = jpeg.indexOf("\xFF\xDA");
    return jpeg.left(frame) + QByteArray::fromHex("ffc00014080008000804011100021100031100041100")
        + jpeg.mid(huffman, scan - huffman) + QByteArray::fromHex("ffda000e040100020003000400003f00")
        + QByteArray::fromHex("28a28affd9"); // four blocks without coefficients
}

QString WriteFile(const QTemporaryDir& folder, const QString& name, const QByteArray& bytes)
{
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        return QString();
    return file.fileName();
}

} // namespace

class TestCutPhoto : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { TestSupport::SpoilFreedMemory(); }

    // Catches a drag whose frame is off, the least size taken without its sign or its limit, and the extents
    // of an earlier selection that make a click a frame of no size.
    void DraggingMarksAFrame()
    {
        const auto canvas = MakeCanvas<CCutPhotoWithZoom>();
        const auto framed = [&](const QPoint& from, const QPoint& to) {
            canvas->OnClose();
            Drag(*canvas, from, to);
            return Framed(*canvas);
        };
        QCOMPARE(framed({20, 10}, {120, 60}), QRect(20, 10, 100, 50));
        QCOMPARE(framed({20, 10}, {26, 16}), QRect(20, 10, 6, 6));
        QCOMPARE(framed({20, 10}, {25, 60}), Whole);
        QCOMPARE(framed({20, 10}, {90, 15}), Whole);
        QCOMPARE(framed({20, 10}, {20, 10}), Whole);
        QCOMPARE(framed({120, 60}, {20, 10}), Whole); // left and up
        QCOMPARE(framed({120, 10}, {20, 60}), Whole);
        QCOMPARE(framed({20, 60}, {120, 10}), Whole);
        QCOMPARE(framed({20, 10}, {120, 60}), QRect(20, 10, 100, 50));
        canvas->OnClose();
        Click(*canvas, {30, 30});
        QCOMPARE(Framed(*canvas), Whole);
    }

    // Catches a canvas that hears of no move without a button, though its host has turned tracking on.
    void ATrackingCanvasHearsOfEachMove()
    {
        const auto canvas = MakeCanvas<CCutPhotoWithZoom>();
        canvas->setMouseTracking(true);
        QTest::mouseMove(canvas->windowHandle(), QPoint(60, 40));
        QCoreApplication::processEvents();
        QCOMPARE(Framed(*canvas), QRect(0, 0, 60, 40));
    }

    // Catches a move that keeps the distance between corner and pointer, one that leaves the picture, and a
    // handle that reaches too far or not far enough.
    void TheCornerMovesToThePointer()
    {
        const auto canvas = MakeCanvas<CCutPhotoWithZoom>();
        const auto corner = [&](const QPoint& press, const QPoint& to) {
            canvas->OnClose();
            Drag(*canvas, {40, 30}, {100, 70});
            Drag(*canvas, press, to);
            MoveHeld(*canvas, {60, 60}); // the button is up: nothing moves any more
            const QRect framed = Framed(*canvas);
            return framed.size() == QSize(60, 40) ? framed.topLeft() : QPoint(-1, -1);
        };
        QCOMPARE(corner({40, 30}, {70, 50}), QPoint(70, 50));
        QCOMPARE(corner({50, 20}, {70, 50}), QPoint(70, 50)); // farthest in the handle
        QCOMPARE(corner({51, 30}, {70, 50}), QPoint(40, 30)); // beside it
        QCOMPARE(corner({40, 19}, {70, 50}), QPoint(40, 30)); // above it
        QCOMPARE(corner({40, 30}, {140, 50}), QPoint(140, 50)); // to the edges, and past them
        QCOMPARE(corner({40, 30}, {141, 50}), QPoint(91, 40));
        QCOMPARE(corner({40, 30}, {60, 110}), QPoint(60, 110));
        QCOMPARE(corner({40, 30}, {60, 111}), QPoint(50, 71));
        QCOMPARE(corner({40, 30}, {0, 20}), QPoint(0, 20));
        QCOMPARE(corner({40, 30}, {-1, 20}), QPoint(20, 25));
        QCOMPARE(corner({40, 30}, {60, -2}), QPoint(50, 14));
    }

    // Catches a resize by another corner, one that was "tidied" (the lower edge lags one event behind, the
    // left one stays), or one that does not stop near the opposite edges.
    void ResizingFollowsThePointer()
    {
        const auto canvas = MakeCanvas<CCutPhotoWithZoom>();
        Drag(*canvas, {50, 60}, {150, 120});
        Press(*canvas, {150, 60});
        QCOMPARE(canvas->cursor().shape(), Qt::SizeBDiagCursor);
        MoveHeld(*canvas, {160, 50});
        QCOMPARE(Framed(*canvas), QRect(50, 50, 111, 61));
        MoveHeld(*canvas, {160, 50});
        QCOMPARE(Framed(*canvas), QRect(50, 50, 111, 71));
        MoveHeld(*canvas, {69, 50}); // too near to the left edge, and to the lower one
        MoveHeld(*canvas, {160, 102});
        QTest::mouseRelease(canvas.get(), Qt::LeftButton, Qt::NoModifier, QPoint(69, 50));
        QCOMPARE(canvas->cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(Framed(*canvas), QRect(50, 50, 111, 71));
    }

    // Catches a release that looks at the extents of the click that selected everything.
    void AResizedWholePhotoStaysResized()
    {
        const auto canvas = MakeCanvas<CCutPhotoWithZoom>();
        Click(*canvas, {30, 30});
        Drag(*canvas, {195, 5}, {151, 41});
        QCOMPARE(Framed(*canvas).width(), 152);
        // And one that does not: a click beside all handles makes it the whole photo again.
        canvas->OnClose();
        Click(*canvas, {30, 30});
        canvas->SetCutRegion(QRect(50, 50, 20, 20));
        Click(*canvas, {150, 20});
        QCOMPARE(Framed(*canvas), Whole);
    }

    // Catches a host's timer that changes the cursor before there is a frame, or looks at the live pointer.
    void HoverLooksAtTheLastPress()
    {
        const auto canvas = MakeCanvas<CCutPhotoWithZoom>();
        canvas->setCursor(Qt::WaitCursor);
        canvas->OnTimeOut();
        QCOMPARE(canvas->cursor().shape(), Qt::WaitCursor);
        Drag(*canvas, {40, 30}, {100, 70});
        canvas->OnTimeOut();
        QCOMPARE(canvas->cursor().shape(), Qt::SizeAllCursor);
        Click(*canvas, {150, 120});
        MoveHeld(*canvas, {40, 30});
        canvas->setCursor(Qt::WaitCursor);
        canvas->OnTimeOut();
        QCOMPARE(canvas->cursor().shape(), Qt::ArrowCursor);
    }

    // Catches a mask that is painted too early or too long, over the frame, or misplaced while a selection
    // runs backwards.
    void OnlyAPressedCanvasIsDimmed()
    {
        const auto canvas = MakeCanvas<CCutPhotoWithZoom>();
        canvas->SetCutRegion(QRect(60, 60, 50, 50));
        const QPoint inside(90, 90);
        const QPoint outside(150, 120);
        const QRgb bright = PixelAt(*canvas, inside);
        const QRgb brightOutside = PixelAt(*canvas, outside);
        QCOMPARE(bright, PlacePicture(Source).pixel(inside * 2));

        Press(*canvas, {120, 110});
        MoveHeld(*canvas, {60, 60});
        QCOMPARE(PixelAt(*canvas, inside), bright);
        QVERIFY(qAbs(qRed(PixelAt(*canvas, outside)) - qRed(brightOutside) / 2) <= 1);
        QTest::mouseRelease(canvas.get(), Qt::LeftButton, Qt::NoModifier, QPoint(60, 60));
        QCOMPARE(PixelAt(*canvas, outside), brightOutside); // the whole photo is framed

        canvas->OnClose();
        QCOMPARE(PixelAt(*canvas, inside), bright);
        QCOMPARE(PixelAt(*canvas, outside), brightOutside);
    }

    // Catches pixels of an earlier step that stay behind because too little was painted again.
    void PaintedStepsEqualAFreshPaint()
    {
        const auto zoom = MakeCanvas<CCutPhotoWithZoom>();
        const auto plain = MakeCanvas<CCutDetailPhoto>();
        const QPoint places[]
            = {{20, 20}, {90, 70}, {150, 80}, {140, 130}, {10, 140}, {5, 5}, {80, 10}, {81, 11}};
        for (QWidget* canvas : {static_cast<QWidget*>(zoom.get()), static_cast<QWidget*>(plain.get())}) {
            QVERIFY(QTest::qWaitForWindowExposed(canvas));
            QTest::mousePress(canvas, Qt::LeftButton, Qt::NoModifier, QPoint(60, 50));
            for (const QPoint& place : places) {
                MoveHeld(*canvas, place);
                QCoreApplication::processEvents();
                const QImage shown = canvas->screen()->grabWindow(canvas->winId()).toImage();
                // A bubble's outline is rounded by the part of it that is painted, in some widths.
                QVERIFY(LargestDifference(shown, canvas->grab().toImage()) <= 1);
            }
            QTest::mouseRelease(canvas, Qt::LeftButton, Qt::NoModifier, QPoint(81, 11));
        }
    }

    // Catches another order, a missing icon or icons of another size, and a menu that goes with the next one.
    void TheMenuOffersSearchesInOrder()
    {
        const auto canvas = MakeCanvas<CCutPhotoWithZoom>();
        int menus = 0;
        OnNextMenu([&](QMenu* menu) {
            ++menus;
            QStringList texts;
            for (const QAction* action : menu->actions()) {
                texts << (action->isSeparator() ? QStringLiteral("-") : action->text());
                QVERIFY(action->isSeparator() || !action->icon().pixmap(20, 20).isNull());
                QCOMPARE(action->parent(), menu);
            }
            const QStringList expected
                = {QStringLiteral("Vehicle Images Search"), QStringLiteral("Face Image Search"),
                   QStringLiteral("-"), QStringLiteral("Human Body Image Search"), QStringLiteral("Cancel")};
            QCOMPARE(texts, expected);
            QCOMPARE(menu->objectName(), QStringLiteral("mainMenu"));
            QCOMPARE(menu->style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, menu), 20);
        });
        Press(*canvas, {100, 100}, Qt::RightButton);
        QCOMPARE(menus, 1);
        // Dismissed, it stays until a choice or a close, which take away the last one.
        QCOMPARE(canvas->findChildren<QMenu*>(QStringLiteral("mainMenu")).size(), 1);
        canvas->OnClose();
        QVERIFY(canvas->findChildren<QMenu*>(QStringLiteral("mainMenu")).isEmpty());
        OnNextMenu([&](QMenu* menu) { // closed by a slot of the client, inside the menu's own event
            connect(menu, &QMenu::triggered, canvas.get(), &CCutPhotoWithZoom::OnClose);
            ChooseInMenu(menu, QStringLiteral("Cancel"));
        });
        Press(*canvas, {100, 100}, Qt::RightButton);
        QTRY_VERIFY(canvas->findChildren<QMenu*>(QStringLiteral("mainMenu")).isEmpty());
        for (int i = 0; i < 2; ++i) {
            OnNextMenu([](QMenu*) {});
            Press(*canvas, {100, 100}, Qt::RightButton);
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(canvas->findChildren<QMenu*>(QStringLiteral("mainMenu")).size(), 2);
    }

    // Catches actions connected to another search, at once instead of queued, or a menu that stays, were it
    // only until the next events.
    void SearchesAreReported()
    {
        const char* const texts[] = {"Vehicle Images Search", "Face Image Search", "Human Body Image Search"};
        for (int chosen = 0; chosen < 3; ++chosen) {
            const auto canvas = MakeCanvas<CCutPhotoWithZoom>();
            QVector<int> reported;
            connect(canvas.get(), &CCutPhotoWithZoom::SignClickVehicleSearch, [&] { reported << 0; });
            connect(canvas.get(), &CCutPhotoWithZoom::SignClickFaceSearch, [&] { reported << 1; });
            connect(canvas.get(), &CCutPhotoWithZoom::SignClickHumanSearch, [&] { reported << 2; });
            OnNextMenu([&](QMenu* menu) { ChooseInMenu(menu, QLatin1String(texts[chosen])); });
            Press(*canvas, {100, 100}, Qt::RightButton);
            QCOMPARE(reported, QVector<int>());
            QCoreApplication::processEvents();
            QCOMPARE(reported, QVector<int>{chosen});
            QVERIFY(canvas->findChildren<QMenu*>(QStringLiteral("mainMenu")).isEmpty());
        }
    }

    // Catches a canvas with the colour of the skin before.
    void TheBackgroundFollowsTheSkin()
    {
        const auto canvas = MakeCanvas<CCutPhotoWithZoom>();
        for (const char* skin : {"White", "Black"}) {
            KvGUI::SetSkinVersion(QLatin1String(skin));
            QCOMPARE(canvas->BackgroundColor().lightness() > 128, qstrcmp(skin, "White") == 0);
        }
    }

    // Catches a picture that is read again while the host closes after a search.
    void ASearchEndsReloading()
    {
        const auto canvas = MakeCanvas<CCutPhotoWithZoom>();
        canvas->OnFaceSearchPicture();
        canvas->resize(100, 75);
        QVERIFY(canvas->GetCutPhoto().bHasImage);
        canvas->OnClose();
        canvas->resize(110, 75);
        QVERIFY(!canvas->GetCutPhoto().bHasImage);
    }

    // Catches a frame or a completed state that survives "Cancel".
    void CancelTakesTheFrameAway()
    {
        const auto canvas = MakeCanvas<CCutPhotoWithZoom>();
        Drag(*canvas, {20, 10}, {120, 60});
        OnNextMenu([](QMenu* menu) { ChooseInMenu(menu, QStringLiteral("Cancel")); });
        Press(*canvas, {150, 100}, Qt::RightButton);
        QCoreApplication::processEvents();
        QCOMPARE(Framed(*canvas), QRect());
        Drag(*canvas, {30, 40}, {60, 80});
        QCOMPARE(Framed(*canvas), QRect(30, 40, 30, 40));
        KvGUI::KvMessageNotify::Instance()->CloseAll();
    }

    // Catches a handle at another corner, and the second menu of a right press on it.
    void SearchHandleOpensTheMenu()
    {
        const auto canvas = MakeCanvas<CCutPhotoWithZoom>();
        Drag(*canvas, {20, 10}, {120, 60});
        int menus = 0;
        const auto count = [&](QMenu*) { ++menus; };
        OnNextMenu(count);
        Press(*canvas, {130, 70});
        QCOMPARE(menus, 1);
        OnNextMenu([&](QMenu* menu) {
            OnNextMenu(count);
            count(menu);
        });
        Press(*canvas, {120, 60}, Qt::RightButton);
        QCOMPARE(menus, 3);
    }

    // Catches a canvas that goes on after it was deleted while its modal menu was open, or by what was
    // chosen.
    void AMenuMayDeleteTheCanvas()
    {
        enum Way
        {
            AtOnce,
            ByChoice,
            AfterAnotherPress // of those that close a menu and are given to what lies below
        };
        for (int i = 0; i < 6; ++i) {
            const Qt::MouseButton button = i % 2 == 0 ? Qt::LeftButton : Qt::RightButton;
            QWidget host;
            host.resize(Canvas);
            TestSupport::AnnounceCropCanvases();
            const QPointer<CCutPhotoWithZoom> canvas = new CCutPhotoWithZoom(&host);
            canvas->resize(Canvas);
            host.show();
            canvas->SetSrcImage(PlacePicture(Source));
            Drag(*canvas, {20, 10}, {120, 60});
            connect(canvas, &CCutPhotoWithZoom::SignClickFaceSearch, this, [&] { delete canvas; });
            OnNextMenu([&](QMenu* menu) {
                if (i / 2 == ByChoice)
                    return ChooseInMenu(menu, QStringLiteral("Face Image Search"));
                if (i / 2 == AfterAnotherPress) {
                    OnNextMenu([](QMenu*) {});
                    Press(*canvas, {50, 50}, Qt::RightButton);
                }
                delete canvas;
            });
            QTest::mousePress(host.windowHandle(), button, Qt::NoModifier, QPoint(120, 60));
            QTRY_VERIFY(canvas.isNull());
            QTest::mouseRelease(host.windowHandle(), button, Qt::NoModifier, QPoint(120, 60));
        }
    }

    // Catches state that is touched after a slot has deleted the canvas.
    void ASlotMayDeleteTheCanvas()
    {
        for (const char* slot : {"OnFaceSearchPicture", "OnKeyPressed"}) {
            CCutPhotoWithZoom* canvas = MakeCanvas<CCutPhotoWithZoom>().release();
            const QPointer<CCutPhotoWithZoom> guard(canvas);
            connect(canvas, &CCutPhotoWithZoom::SignClickFaceSearch, canvas, [canvas] { delete canvas; });
            connect(canvas, &CCutPhotoWithZoom::SignCloseWind, canvas, [canvas] { delete canvas; });
            QMetaObject::invokeMethod(canvas, slot);
            QVERIFY(guard.isNull());
        }
    }

    // Catches Escape and the host's key slot that keep the frame, or that begin a new selection, and an
    // Escape that closes the menu and empties the frame as well.
    void KeysEmptyTheFrame()
    {
        const auto canvas = MakeCanvas<CCutPhotoWithZoom>();
        QSignalSpy closed(canvas.get(), &CCutPhotoWithZoom::SignCloseWind);
        Drag(*canvas, {40, 30}, {120, 80});
        QTest::keyRelease(canvas.get(), Qt::Key_Return);
        QCOMPARE(Framed(*canvas), QRect(40, 30, 80, 50));
        OnNextMenu([](QMenu* menu) { QTest::keyPress(menu, Qt::Key_Escape); });
        Press(*canvas, {100, 60}, Qt::RightButton);
        QTest::keyRelease(canvas.get(), Qt::Key_Escape); // it was the menu that this closed
        QCOMPARE(Framed(*canvas), QRect(40, 30, 80, 50));
        QTest::keyRelease(canvas.get(), Qt::Key_Escape);
        QCOMPARE(Framed(*canvas), QRect());
        QVERIFY(closed.isEmpty());
        // A frame counts as completed still: a press selects nothing new.
        Press(*canvas, {90, 90});
        MoveHeld(*canvas, {140, 130});
        QCOMPARE(Framed(*canvas), QRect());

        canvas->SetCutRegion(QRect(40, 30, 80, 50));
        canvas->OnKeyPressed();
        QCOMPARE(closed.size(), 1);
        QCOMPARE(Framed(*canvas), QRect());
        KvGUI::KvMessageNotify::Instance()->CloseAll();
    }

    // Catches a frame that does not follow its photo, a file that is not read again, and one that is not
    // found by its name without the ending.
    void ResizingReadsTheFileAgain()
    {
        const QTemporaryDir folder;
        const QString file
            = WriteFile(folder, QStringLiteral("photo.png"), Encoded(PlacePicture(Source), "PNG"));
        const QString path = folder.filePath(QStringLiteral("photo"));
        const auto canvas = MakeCanvas<CCutPhotoWithZoom>();
        canvas->SetSrcPhoto(path);
        Drag(*canvas, {20, 10}, {120, 60});
        canvas->resize(Canvas / 2);
        QCOMPARE(canvas->GetCutPhoto().strFilePath, path);
        QCOMPARE(Framed(*canvas), QRect(20, 10, 100, 50)); // the same pixels of the picture
        canvas->resize(Canvas * 2);
        QCOMPARE(Framed(*canvas), QRect(20, 10, 100, 50));
        QVERIFY(QFile::remove(file));
        canvas->resize(Canvas);
        QVERIFY(!canvas->GetCutPhoto().bHasImage);
    }

    // Catches a canvas that keeps what it cannot read again, and one that takes a picture in memory for the
    // file that it showed before, which a resize would bring back.
    void APictureInMemoryIsLostByAResize()
    {
        const QTemporaryDir folder;
        const QString path
            = WriteFile(folder, QStringLiteral("before.png"), Encoded(PlacePicture(QSize(60, 40)), "PNG"));
        const auto zoom = MakeCanvas<CCutPhotoWithZoom>();
        zoom->SetSrcPhoto(path);
        zoom->SetSrcImage(PlacePicture(Source));
        zoom->resize(100, 100);
        QVERIFY(zoom->GetCutPhoto().image.isNull());
        const auto plain = MakeCanvas<CCutDetailPhoto>();
        plain->SetSrcPhoto(path);
        plain->SetSrcImage(PlacePicture(Source));
        QCOMPARE(plain->GetCutPhoto().strFilePath, QString());
        plain->resize(100, 100);
        QCOMPARE(plain->GetCutPhoto().image.size(), Source);
    }

    // Catches formats told by the name, and a file that is not read to its end but taken, or crashes the
    // client.
    void FilesOfAllKindsAreRead_data()
    {
        TestSupport::Columns<QString, QByteArray>("name", "bytes");
        QTest::addColumn<QSize>("size"); // empty when it is not a picture

        const QImage scene = PlacePicture(QSize(60, 40));
        const QByteArray png = Encoded(scene, "PNG");
        const auto encoded
            = [&](QImage::Format format) { return Encoded(scene.convertToFormat(format), "PNG"); };
        QTest::newRow("jpeg") << "a.jpg" << Encoded(scene, "JPG") << scene.size();
        QTest::newRow("renamed png") << "a.jpg" << png << QSize(60, 40);
        QTest::newRow("without a suffix") << "a" << Encoded(scene, "BMP") << QSize(60, 40);
        QTest::newRow("1 x 1") << "a.png" << Encoded(PlacePicture(QSize(1, 1)), "PNG") << QSize(1, 1);
        QTest::newRow("thread") << "a.png" << Encoded(PlacePicture(QSize(1, 20000)), "PNG")
                                << QSize(1, 20000);
        QTest::newRow("16 bits") << "a.png" << encoded(QImage::Format_RGBA64) << scene.size();
        QTest::newRow("palette") << "a.png" << encoded(QImage::Format_Indexed8) << scene.size();
        QTest::newRow("two colours") << "a.png" << encoded(QImage::Format_Mono) << scene.size();
        QImage clear(QSize(60, 40), QImage::Format_ARGB32);
        clear.fill(Qt::transparent);
        QTest::newRow("alpha") << "a.png" << Encoded(clear, "PNG") << QSize(60, 40);
        QTest::newRow("four colours") << "a.jpg" << FourColorJpeg() << QSize(8, 8);
        QTest::newRow("camera on its side") << "a.jpg" << RotatedJpeg(scene) << QSize(60, 40);
        QTest::newRow("truncated png") << "a.png" << png.left(png.size() / 2) << QSize();
        QTest::newRow("text") << "a.png" << QByteArray("no picture at all") << QSize();
        QTest::newRow("too many pixels")
            << "a.pbm" << QByteArray("P4\n16400 16400\n") + QByteArray(16400 / 8 * 16400, '\0') << QSize();
        QTest::newRow("empty file") << "a.png" << QByteArray() << QSize();
    }

    void FilesOfAllKindsAreRead()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        QFETCH(QSize, size);
        const QTemporaryDir folder;
        const QString path = WriteFile(folder, name, bytes);
        const auto zoom = MakeCanvas<CCutPhotoWithZoom>();
        const auto plain = MakeCanvas<CCutDetailPhoto>();
        zoom->SetSrcPhoto(QString());
        QCOMPARE(zoom->GetCutPhoto().image.size(), Source);
        zoom->SetSrcPhoto(path);
        plain->SetSrcPhoto(path);
        for (const CutImageInfo& info : {zoom->GetCutPhoto(), plain->GetCutPhoto()}) {
            QCOMPARE(info.bHasImage, !size.isEmpty());
            QCOMPARE(info.image.isNull(), size.isEmpty());
            QCOMPARE(info.strFilePath, size.isEmpty() ? QString() : path);
            if (!size.isEmpty())
                QCOMPARE(info.image.size(), size);
        }
        zoom->SetImageMaxCapacity(5000);
        Drag(*zoom, QPoint(20, 10), QPoint(120, 60));
        zoom->IsCutPhotoVaildWithNotify();
        plain->IsCutPhotoVaildWithNotify();
        zoom->grab();
        plain->grab();
        KvGUI::KvMessageNotify::Instance()->CloseAll();
    }

    // Catches a division by the size of a canvas that has none yet, and events that a client's canvas passes
    // on: one that is none, and a double-click that ends a drag.
    void CanvasesWithoutASizeWork()
    {
        struct OpenZoom : CCutPhotoWithZoom
        {
            using CCutPhotoWithZoom::mouseMoveEvent;
            using CCutPhotoWithZoom::mouseReleaseEvent;
        };
        struct OpenPlain : CCutDetailPhoto
        {
            using CCutDetailPhoto::mouseMoveEvent;
        };
        TestSupport::AnnounceCropCanvases();
        OpenZoom zoom;
        OpenPlain plain;
        zoom.mouseMoveEvent(nullptr);
        plain.mouseMoveEvent(nullptr);
        zoom.setCursor(Qt::WaitCursor);
        QMouseEvent twice(
            QEvent::MouseButtonDblClick, {1, 1}, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        zoom.mouseReleaseEvent(&twice);
        QCOMPARE(zoom.cursor().shape(), Qt::WaitCursor);
        zoom.resize(0, 0);
        plain.resize(0, 40);
        zoom.SetSrcImage(PlacePicture(Source));
        plain.SetSrcImage(PlacePicture(Source));
        zoom.SetImageMaxCapacity(1000);
        QTest::mouseClick(&zoom, Qt::LeftButton, Qt::NoModifier, QPoint(1, 1));
        QTest::mouseClick(&plain, Qt::LeftButton, Qt::NoModifier, QPoint(1, 1));
        QVERIFY(!zoom.IsCutPhotoVaildWithNotify());
        QVERIFY(!plain.IsCutPhotoVaildWithNotify());
        zoom.SetCutRegion(QRect(3, 3, 30, 30));
        zoom.IsCutPhotoVaildWithNotify();
        zoom.grab();
        plain.grab();
        KvGUI::KvMessageNotify::Instance()->CloseAll();
    }

    // Catches another message, or one that is not shown, or shown where nothing is to be said.
    void InvalidChoicesAreTold()
    {
        const auto canvas = MakeCanvas<CCutPhotoWithZoom>();
        QVERIFY(!canvas->IsCutPhotoVaildWithNotify());
        QVERIFY(IsTold(NoArea));

        Drag(*canvas, {20, 10}, {120, 60});
        canvas->SetImageMaxCapacity(50000);
        canvas->SetPicMaxSize(199, 300);
        QVERIFY(!canvas->IsCutPhotoVaildWithNotify());
        QVERIFY(IsTold(QStringLiteral("Picture size exceeds the upper limit of 199 * 300.")));
        QCOMPARE(canvas->GetCutPhoto().image.size(), Source);

        canvas->SetPicMaxSize(0, 0);
        canvas->SetImageMaxCapacity(1);
        QVERIFY(!canvas->IsCutPhotoVaildWithNotify());
        QVERIFY(!IsTold(NoArea));
        QCOMPARE(canvas->GetCompressRatio(), -1);
        QCOMPARE(canvas->GetCutPhoto().image.size(), Source);
    }

    // Catches a limit that a setter loses, a compressed picture as the result, or a quality of no use.
    void LimitsReachTheCut()
    {
        const auto canvas = MakeCanvas<CCutPhotoWithZoom>();
        Drag(*canvas, {20, 10}, {120, 60});
        QVERIFY(canvas->IsCutPhotoVaildWithNotify());
        QCOMPARE(canvas->GetCompressRatio(), 100);

        canvas->SetSrcImage(PlacePicture(Source));
        canvas->SetPicMaxSize(150, 150);
        QCOMPARE(canvas->ChanageImageByAspectRatio(PlacePicture(Source)).size(), QSize(100, 75));
        const auto plain = MakeCanvas<CCutDetailPhoto>();
        plain->SetPicMaxSize(150, 150);
        QCOMPARE(plain->ChanageImageByAspectRatio(PlacePicture(Source)).size(), QSize(100, 75));
        canvas->SetKeepAspectRatio(true);
        canvas->SetImageMaxCapacity(2000);
        QVERIFY(canvas->IsCutPhotoVaildWithNotify());
        const QImage cut = canvas->GetCutPhoto().image;
        QCOMPARE(cut.size(), QSize(100, 50));
        QCOMPARE(cut.pixel(0, 0), PlacePicture(Source).pixel(40, 20));
        QVERIFY(canvas->GetCompressRatio() < 90);
        QVERIFY(Encoded(cut, "JPG", canvas->GetCompressRatio()).size() <= 2000);
    }

    // Catches wrong corners or flags of a drag, and a clamp one pixel off.
    void PlainDragsAreReported()
    {
        const QPoint middle(100, 80);
        const auto reported = [&](const QPoint& to) {
            const auto canvas = MakeCanvas<CCutDetailPhoto>();
            QSignalSpy updated(canvas.get(), &CCutDetailPhoto::SignalUpdateCutRect);
            Drag(*canvas, middle, to);
            MoveHeld(*canvas, {3, 3});
            return updated.size() == 2 ? QVariantList(updated.last()) : QVariantList(); // one a step
        };
        QCOMPARE(reported({150, 100}), (QVariantList{QRect(100, 80, 51, 21), true, true}));
        QCOMPARE(reported({50, 60}), (QVariantList{QRect(50, 60, 51, 21), false, false}));
        QCOMPARE(reported({50, 100}), (QVariantList{QRect(50, 80, 51, 21), false, true}));
        QCOMPARE(reported({150, 60}), (QVariantList{QRect(100, 60, 51, 21), true, false}));
        QCOMPARE(reported(middle), (QVariantList{QRect(100, 80, 1, 1), true, true}));
        QCOMPARE(reported({100, 90}), (QVariantList{QRect(100, 80, 1, 11), true, true}));
        QCOMPARE(reported({500, 80}), (QVariantList{QRect(100, 80, 101, 1), true, true})); // past the edges
        QCOMPARE(reported({100, 500}), (QVariantList{QRect(100, 80, 1, 70), true, true}));
        QCOMPARE(reported({-9, -9}), (QVariantList{QRect(0, 0, 101, 81), false, false}));
    }

    // Catches a drag from beside the photo that marks something, a new picture that is not wholly selected,
    // and a cursor that stays when the pointer leaves the photo.
    void PlainDragsBeginOnThePhoto()
    {
        const auto canvas = MakeCanvas<CCutDetailPhoto>();
        canvas->resize(300, 200);
        QSignalSpy updated(canvas.get(), &CCutDetailPhoto::SignalUpdateCutRect);
        MoveHeld(*canvas, {199, 149});
        QCOMPARE(canvas->cursor().shape(), Qt::CrossCursor);
        MoveHeld(*canvas, {200, 149});
        QCOMPARE(canvas->cursor().shape(), Qt::ArrowCursor);
        Drag(*canvas, {200, 50}, {100, 100});
        QVERIFY(updated.isEmpty());
        QCOMPARE(Framed(*canvas), Whole);
        Drag(*canvas, {199, 149}, {100, 100});
        QCOMPARE(Framed(*canvas), QRect(100, 100, 100, 50));
        canvas->SetCutRegion(QRect(20, 10, 60, 40));
        QCOMPARE(Framed(*canvas), QRect(20, 10, 60, 40));
        QVERIFY(PixelAt(*canvas, {150, 120}) != PlacePicture(Source).pixel(300, 240));
        for (const QSize& size : {QSize(60, 0), QSize(0, 40)}) { // no frame: nothing is dimmed
            canvas->SetCutRegion(QRect(QPoint(20, 10), size));
            QCOMPARE(PixelAt(*canvas, {150, 120}), PlacePicture(Source).pixel(300, 240));
        }
    }

    // Catches a bubble that covers the photo while it is cropped, or that comes back.
    void PlainTipGoesWithTheFirstDrag()
    {
        const auto canvas = MakeCanvas<CCutDetailPhoto>();
        auto* tip = canvas->findChild<QWidget*>(QStringLiteral("CComTipWiget"));
        QVERIFY(tip != nullptr && tip->isVisible());
        Click(*canvas, {50, 50});
        QVERIFY(tip->isVisible());
        Drag(*canvas, {50, 50}, {90, 90});
        QVERIFY(!tip->isVisible());
        canvas->SetSrcImage(PlacePicture(Source));
        QVERIFY(!tip->isVisible());
    }

    // Catches state that is touched after a slot has deleted the canvas in the middle of a drag.
    void APlainSlotMayDeleteTheCanvas()
    {
        QWidget host;
        host.resize(Canvas);
        auto* canvas = new CCutDetailPhoto(&host);
        canvas->resize(Canvas);
        canvas->SetSrcImage(PlacePicture(Source));
        host.show();
        const QPointer<CCutDetailPhoto> guard(canvas);
        connect(canvas, &CCutDetailPhoto::SignalUpdateCutRect, canvas, [canvas] { delete canvas; });
        QTest::mousePress(host.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(50, 50));
        QTest::mouseMove(host.windowHandle(), QPoint(80, 80));
        QCoreApplication::processEvents();
        QVERIFY(guard.isNull());
        QTest::mouseRelease(host.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(80, 80));
    }
};

STRICT_TEST_MAIN(TestCutPhoto)
#include "tst_cutphoto.moc"
