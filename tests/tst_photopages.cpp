// The pages of the example client that crop photos, used as an operator would.

#include "support/Columns.h"
#include "support/CropCanvas.h"
#include "support/StrictMain.h"

#include <Platform/BasicUIComponents/KvMessageNotify.h>
#include <QtTest>
#include <QtWidgets>
#include <UI/CutPhoto/CCutPhotoDlg.h>
#include <UI/CutPhoto/CCutPhotoDlgWithZoom.h>
#include <UI/PersonImage/WmPersonImage.h>
#include <functional>
#include <gallery/OperatorHand.h>
#include <gallery/Photo/PhotoPage.h>
#include <gallery/Photo/PhotoView.h>
#include <gallery/Photo/RecordPage.h>
#include <gallery/Photo/Visitors.h>
#include <gallery/StoredText.h>

using namespace OperatorClient;

namespace {

constexpr int kLookInterval = 20; // milliseconds

/// Runs @p act once a dialog of @p page is open and shows its picture, however slow the machine is.
void WhenOpen(Page& page, const std::function<void(QDialog&)>& act)
{
    auto* look = new QTimer(&page);
    QObject::connect(look, &QTimer::timeout, &page, [&page, look, act] {
        auto* dialog = page.findChild<QDialog*>();
        const bool crops = qobject_cast<UICommonMdl::CCutPhotoDlg*>(dialog)
            || qobject_cast<UICommonMdl::CCutPhotoDlgWithZoom*>(dialog);
        if (dialog == nullptr || !dialog->isVisible() || (crops && !PhotoCrop::ShowsPicture(*dialog)))
            return;
        look->stop();
        act(*dialog);
    });
    look->start(kLookInterval);
}

QWidget& Canvas(const QDialog& dialog)
{
    return *dialog.findChild<QWidget*>(QStringLiteral("canvasContainer"));
}

QPushButton* ButtonOf(const QWidget& page, const QString& text)
{
    for (auto* button : page.findChildren<QPushButton*>()) {
        if (button->text().remove(QLatin1Char('&')) == text)
            return button;
    }
    return nullptr;
}

void Choose(const RecordPage& page, int index)
{
    auto* menu = page.findChild<QMenu*>();
    QList<QAction*> actions = menu->actions();
    actions.at(index)->trigger();
}

void Drop(QWidget& view, const QMimeData& data)
{
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&view, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&view, &drop);
}

/// Whether the operator sees a message with this text in it.
bool IsTold(const QString& text)
{
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && widget->accessibleName().contains(text))
            return true;
    }
    return false;
}

void DropPicture(const PhotoPage& page, const QImage& picture)
{
    QMimeData data;
    data.setImageData(picture);
    Drop(*page.findChild<PhotoView*>(), data);
}

/// Crops in the dialog without a search, and answers it by a key.
void CropPlain(PhotoPage& page, Qt::Key answer)
{
    WhenOpen(page, [answer](QDialog& dialog) { QTest::keyClick(&dialog, answer); });
    page.CropPlain();
}

template <typename PageType>
void Show(PageType& page)
{
    page.resize(1200, 820);
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
}

} // namespace

class TestPhotoPages : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { KvGUI::KvMessageNotify::Instance()->CloseAll(); }

    /// Catches limits that do not reach the dialog, and a JPEG of another quality than the one shown.
    void CutKeepsTheLimitsOfThePage()
    {
        TestSupport::AnnounceCropCanvases();
        PhotoPage page{QString()};
        Show(page);
        const QList<QSpinBox*> limits = page.findChildren<QSpinBox*>();
        QCOMPARE(limits.size(), 3);
        limits.at(0)->setValue(8); // kB
        WhenOpen(page, [](QDialog& dialog) {
            QWidget& canvas = Canvas(dialog);
            DragOver(canvas, QPoint(10, 10), QPoint(canvas.width() - 10, canvas.height() - 10));
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
        QTest::mouseClick(ButtonOf(page, QStringLiteral("With handles and search\u2026")), Qt::LeftButton);
        QVERIFY(page.Cut().has_value());
        QVERIFY(page.Cut()->image.width() <= 640 && page.Cut()->image.height() <= 640);
        QVERIFY(page.Cut()->jpeg.size() <= 8 * 1024);
        QCOMPARE(QImage::fromData(page.Cut()->jpeg, "JPG").size(), page.Cut()->image.size());
    }

    /// Catches limits that are another page's at the next start, and a damaged store that changes them.
    void LimitsComeBack()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("settings.ini"));
        const auto numbers = [](const PhotoPage& page) {
            QVector<int> values;
            for (const QSpinBox* box : page.findChildren<QSpinBox*>())
                values << box->value();
            values << int(page.findChild<QCheckBox*>()->isChecked());
            return values;
        };
        PhotoPage first{QString()};
        const QVector<int> usual = numbers(first);
        first.Remember(file);
        QCOMPARE(numbers(first), usual);
        first.findChildren<QSpinBox*>().at(0)->setValue(0); // no limit
        first.findChildren<QSpinBox*>().at(2)->setValue(480);
        first.findChild<QCheckBox*>()->setChecked(false);
        PhotoPage second{QString()};
        second.Remember(file);
        QCOMPARE(numbers(second), (QVector<int>{0, usual.at(1), 480, 0}));
        for (const char* text : {"", "1024 640", "-5 1 1 1", "1024 99999999999 1 1", "a b c d"}) {
            const QString damaged = folder.filePath(QStringLiteral("damaged.ini"));
            StoredText(damaged, QStringLiteral("Photo"), QStringLiteral("Limits"))
                .Write(QString::fromLatin1(text));
            PhotoPage page{QString()};
            page.Remember(damaged);
            QCOMPARE(numbers(page), usual);
        }
    }

    void LimitsStandEachForItself_data()
    {
        QTest::addColumn<QVector<int>>("limits"); // kB, width, height
        QTest::addColumn<QSize>("cut");
        QTest::newRow("none") << QVector<int>{0, 0, 0} << QSize(480, 320);
        QTest::newRow("width") << QVector<int>{60, 100, 0} << QSize(60, 40);
        QTest::newRow("height") << QVector<int>{60, 0, 100} << QSize(120, 80);
        QTest::newRow("pixels without bytes") << QVector<int>{0, 100, 300} << QSize(60, 40);
    }

    /// Catches a limit that does nothing because another one reads "no limit".
    void LimitsStandEachForItself()
    {
        QFETCH(QVector<int>, limits);
        QImage picture(480, 320, QImage::Format_RGB32);
        picture.fill(Qt::green);
        PhotoPage page{QString()};
        Show(page);
        DropPicture(page, picture);
        const QList<QSpinBox*> boxes = page.findChildren<QSpinBox*>();
        for (int i = 0; i < limits.size(); ++i)
            boxes.at(i)->setValue(limits.at(i));
        CropPlain(page, Qt::Key_Return);
        QVERIFY(page.Cut().has_value());
        QTEST(page.Cut()->image.size(), "cut");
    }

    /// Catches an empty file that is shown and saved as a cut: of a picture one pixel wide a frame holds
    /// none.
    void FrameWithoutAPixelIsTold()
    {
        QImage thread(1, 400, QImage::Format_RGB32);
        thread.fill(Qt::green);
        PhotoPage page{QString()};
        Show(page);
        DropPicture(page, thread);
        WhenOpen(page, [](QDialog& dialog) {
            DragOver(Canvas(dialog), QPoint(50, 100), QPoint(150, 300));
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
        page.CropPlain();
        QVERIFY(!page.Cut().has_value());
        QVERIFY(IsTold(QStringLiteral("too small")));
    }

    /// Catches a cut that a cancelled dialog takes away or makes.
    void CancelledCropChangesNothing()
    {
        PhotoPage page{QString()};
        Show(page);
        CropPlain(page, Qt::Key_Escape);
        QVERIFY(!page.Cut().has_value());
        CropPlain(page, Qt::Key_Return);
        QVERIFY(page.Cut().has_value());
        CropPlain(page, Qt::Key_Escape);
        QVERIFY(page.Cut().has_value());
    }

    /// Catches a drop that shows the file but crops the photo before it, and a file name taken for markup.
    void DroppedFileIsCropped()
    {
        const QString path = m_folder.filePath(QStringLiteral("<i>blue photo.png"));
        QImage blue(300, 200, QImage::Format_RGB32);
        blue.fill(Qt::blue);
        QVERIFY(blue.save(path));
        PhotoPage page{QString()};
        Show(page);
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(path)});
        Drop(*page.findChild<PhotoView*>(), data);
        const auto* name = page.findChild<QLabel*>(QStringLiteral("hint"));
        QVERIFY(name->sizeHint().width() >= name->fontMetrics().horizontalAdvance(name->text()));
        CropPlain(page, Qt::Key_Return);
        QVERIFY(page.Cut().has_value());
        QCOMPARE(page.Cut()->image.size(), blue.size());
        QCOMPARE(page.Cut()->image.pixelColor(150, 100), QColor(Qt::blue));
    }

    /// Catches a file that is no picture and takes the photo's place, or that nobody is told of.
    void UnreadableFileIsTold()
    {
        const QString path = m_folder.filePath(QStringLiteral("broken.jpg"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("no picture");
        file.close();
        PhotoPage page(path);
        Show(page);
        QVERIFY(IsTold(QStringLiteral("broken.jpg")));
        CropPlain(page, Qt::Key_Return);
        QVERIFY(page.Cut().has_value()); // of the drawn photo, which is there still
    }

    /// Catches a cut of one photo that is saved as one of another, and a file of another quality or size than
    /// the page shows.
    void NewPhotoTakesTheCutAway()
    {
        PhotoPage page{QString()};
        Show(page);
        auto* save = ButtonOf(page, QStringLiteral("Save as JPEG\u2026"));
        QVERIFY(!save->isEnabled());
        CropPlain(page, Qt::Key_Return);
        QVERIFY(save->isEnabled());
        const QString path = m_folder.filePath(QStringLiteral("cut.jpg"));
        QVERIFY(PhotoCrop::Save(*page.Cut(), path));
        QCOMPARE(QFileInfo(path).size(), qint64(page.Cut()->jpeg.size()));
        QCOMPARE(QImage(path).size(), page.Cut()->image.size());
        QTest::mouseClick(ButtonOf(page, QStringLiteral("Drawn photo")), Qt::LeftButton);
        QVERIFY(!page.Cut().has_value());
        QVERIFY(!save->isEnabled());
    }

    /// Catches any use of the page or its dialog after both are gone.
    void PageDestroyedWhileADialogIsOpen()
    {
        for (const char* open :
             {"Open a photo\u2026", "By a plain frame\u2026", "With handles and search\u2026"}) {
            QPointer<PhotoPage> page = new PhotoPage(QString());
            Show(*page);
            if (qstrcmp(open, "With handles and search\u2026") == 0)
                TestSupport::AnnounceCropCanvases();
            WhenOpen(*page, [page](QDialog&) { delete page; });
            ButtonOf(*page, QString::fromUtf8(open))->click();
            QVERIFY(page.isNull());
        }
    }

    /// Catches a canvas in which people look wide or thin, and one too small to use.
    void CanvasKeepsThePicturesShape()
    {
        QCOMPARE(PhotoCrop::CanvasSize({1920, 1080}), QSize(960, 540));
        QCOMPARE(PhotoCrop::CanvasSize({1000, 2000}), QSize(320, 640));
        QCOMPARE(PhotoCrop::CanvasSize({30, 20}), QSize(960, 640));
        QCOMPARE(PhotoCrop::CanvasSize({1, 20000}), QSize(320, 640));
        QCOMPARE(PhotoCrop::CanvasSize({}), QSize(960, 640));
    }

    /// Catches fields or pictures that are lost when the client starts again.
    void RecordIsKept()
    {
        const QString folder = m_folder.filePath(QStringLiteral("kept"));
        PersonRecord saved;
        {
            RecordPage page(folder);
            Show(page);
            Choose(page, 3); // reads a card
            page.findChildren<QLineEdit*>().at(2)->setText(QStringLiteral("Doors, \"north\"; \u5317"));
            QTest::mouseClick(ButtonOf(page, QStringLiteral("Save the record")), Qt::LeftButton);
            saved = page.Record();
        }
        const RecordPage again(folder);
        QVERIFY(!again.Record().name.isEmpty());
        QCOMPARE(again.Record().name, saved.name);
        QCOMPARE(again.Record().card, saved.card);
        QCOMPARE(again.Record().department, QStringLiteral("Doors, \"north\"; \u5317"));
        QCOMPARE(again.Record().pictures, saved.pictures);
        QVERIFY(!QImage::fromData(again.Record().pictures.at(PersonRecord::Avatar)).isNull());
        QVERIFY(again.Record().pictures.at(PersonRecord::Face).isEmpty());
    }

    /// Catches a cut that lands on the page which is not shown.
    void PicturesBelongToTheirPage()
    {
        RecordPage page(m_folder.filePath(QStringLiteral("pages")));
        Show(page);
        auto* panel = page.findChild<UICommonMdl::WmPersonImage*>();
        panel->SetPhotoBtnAlwaysShow(true);
        QTest::mouseClick(panel->findChild<QPushButton*>(QStringLiteral("m_btnTurnPage")), Qt::LeftButton);
        panel->SetPhotoBtnVisible(true);
        WhenOpen(page, [](QDialog& dialog) {
            DragOver(Canvas(dialog), QPoint(200, 100), QPoint(400, 350));
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
        QTest::mouseClick(panel->findChild<QPushButton*>(QStringLiteral("m_btnCapture")), Qt::LeftButton);
        QVERIFY(page.Record().pictures.at(PersonRecord::Avatar).isEmpty());
        const QByteArray face = page.Record().pictures.at(PersonRecord::Face);
        QVERIFY(!QImage::fromData(face, "JPG").isNull());
        QVERIFY(face.size() <= 100 * 1024);
    }

    /// Catches a question whose answer does not count, and a deleted picture that comes back with the next
    /// start.
    void DeletedPictureIsGone()
    {
        const QString folder = m_folder.filePath(QStringLiteral("deleted"));
        RecordPage page(folder);
        Show(page);
        Choose(page, 3);
        QTest::mouseClick(ButtonOf(page, QStringLiteral("Save the record")), Qt::LeftButton);
        WhenOpen(page, [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        Choose(page, 5);
        QVERIFY(!page.Record().pictures.at(PersonRecord::Avatar).isEmpty());
        WhenOpen(page, [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
        Choose(page, 5);
        QVERIFY(page.Record().pictures.at(PersonRecord::Avatar).isEmpty());
        QTest::mouseClick(ButtonOf(page, QStringLiteral("Save the record")), Qt::LeftButton);
        QVERIFY(RecordPage(folder).Record().pictures.at(PersonRecord::Avatar).isEmpty());
    }

    /// Catches a record without a name that is written, and one that is said to be saved although its file
    /// cannot be one.
    void UnwrittenRecordIsTold()
    {
        const QString folder = m_folder.filePath(QStringLiteral("unwritten"));
        RecordPage page(folder);
        Show(page);
        QTest::mouseClick(ButtonOf(page, QStringLiteral("Save the record")), Qt::LeftButton);
        QVERIFY(!QFileInfo::exists(folder + QLatin1String("/person.ini")));
        QVERIFY(QDir(folder).mkpath(QStringLiteral("person.ini")));
        page.findChild<QLineEdit*>()->setText(QStringLiteral("Ada Vermeer"));
        QTest::mouseClick(ButtonOf(page, QStringLiteral("Save the record")), Qt::LeftButton);
        QVERIFY(IsTold(QStringLiteral("cannot be written")));
    }

    /// Catches a start that fails, or shows garbage, after files were damaged.
    void DamagedRecordIsEmpty()
    {
        const QDir folder(m_folder.filePath(QStringLiteral("damaged")));
        QVERIFY(folder.mkpath(QStringLiteral(".")));
        for (const char* name : {"person.ini", "avatar.jpg", "face.jpg"}) {
            QFile file(folder.filePath(QLatin1String(name)));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(QByteArray("\xffgar\0bage", 9));
        }
        RecordPage page(folder.path());
        Show(page);
        auto* panel = page.findChild<UICommonMdl::WmPersonImage*>();
        QVERIFY(panel->pixmap(Qt::ReturnByValue).isNull());
        QVERIFY(page.Record().name.isEmpty());
    }

private:
    QTemporaryDir m_folder;
};

STRICT_TEST_MAIN(TestPhotoPages)
#include "tst_photopages.moc"
