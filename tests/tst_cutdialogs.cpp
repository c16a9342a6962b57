// The crop dialogs as a client and an operator use them: real modal loops, real mouse and key events.

#include "support/Columns.h"
#include "support/CropCanvas.h"
#include "support/StrictMain.h"

#include <Platform/BasicUIComponents/KvMessageNotify.h>
#include <Platform/BasicUIComponents/KvPushButton.h>
#include <QtTest>
#include <QtWidgets>
#include <UI/CutPhoto/CComTipWiget.h>
#include <UI/CutPhoto/CComTipWigetWithZoom.h>
#include <UI/CutPhoto/CCutDetailPhoto.h>
#include <UI/CutPhoto/CCutPhotoDlg.h>
#include <UI/CutPhoto/CCutPhotoDlgWithZoom.h>
#include <UI/CutPhoto/CCutPhotoWithZoom.h>
#include <UI/CutPhoto/CutPhotoForm.h>
#include <functional>
#include <limits>
#include <memory>

using namespace UICommonMdl;
using TestSupport::Drag;

namespace {

constexpr QSize kPhoto(1600, 1040); // twice the canvas that a dialog has at first
constexpr int kLoadTime = 60; // milliseconds; longer than a dialog takes to read its picture

/// A photo in four colours, one a quarter.
QImage Quarters()
{
    QImage image(kPhoto, QImage::Format_RGB32);
    QPainter painter(&image);
    const QSize half = kPhoto / 2;
    painter.fillRect(QRect(QPoint(), half), Qt::red);
    painter.fillRect(QRect(QPoint(half.width(), 0), half), Qt::green);
    painter.fillRect(QRect(QPoint(0, half.height()), half), Qt::blue);
    painter.fillRect(QRect(QPoint(half.width(), half.height()), half), Qt::white);
    return image;
}

std::unique_ptr<CCutPhotoDlgWithZoom> ZoomDialog(QWidget* parent = nullptr)
{
    TestSupport::AnnounceCropCanvases();
    return std::make_unique<CCutPhotoDlgWithZoom>(parent);
}

/// Runs @p act when the loop of @p dialog runs and its picture is there; gives the loop's result.
template <typename Dialog>
int ExecAnd(Dialog* dialog, const std::function<void()>& act)
{
    QTimer::singleShot(kLoadTime, dialog, act);
    return dialog->exec();
}

/// Opens the search menu and chooses its item @p index, counted without the separator.
void ChooseInMenu(QWidget* canvas, int index)
{
    QTimer::singleShot(kLoadTime, [index] {
        QWidget* menu = QApplication::activePopupWidget();
        QVERIFY(menu != nullptr);
        for (int i = 0; i <= index; ++i)
            QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
    });
    QTest::mousePress(canvas, Qt::RightButton, Qt::NoModifier, canvas->rect().center());
}

QString Message()
{
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == QLatin1String("kvNotification") && widget->isVisible())
            return widget->accessibleName();
    }
    return QString();
}

} // namespace

class TestCutDialogs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_photo = m_folder.filePath(QStringLiteral("photo.png"));
        QVERIFY(Quarters().save(m_photo));
    }

    void cleanup() { KvGUI::KvMessageNotify::Instance()->CloseAll(); }

    void Resolution_data()
    {
        TestSupport::Columns<QSize, QSize>("canvas", "dialog");
        QTest::newRow("wider than high") << QSize(800, 600) << QSize(800, 600);
        QTest::newRow("higher than wide") << QSize(400, 600) << QSize(906, 680);
        QTest::newRow("as wide as high and 80") << QSize(480, 400) << QSize(640, 480);
        QTest::newRow("one pixel wider") << QSize(481, 400) << QSize(481, 360);
        QTest::newRow("4:3 with the bars") << QSize(960, 640) << QSize(960, 720);
    }

    /// Catches another order of the steps, rounding, and bottom items placed by the old size.
    void Resolution()
    {
        QFETCH(QSize, canvas);
        QFETCH(QSize, dialog);
        const auto zoom = ZoomDialog();
        CCutPhotoDlg plain;
        const auto check = [&](auto& tested) {
            tested.SetPhotoResolution(canvas.width(), canvas.height());
            tested.SetDlgTitle(QStringLiteral("Crop"));
            QCOMPARE(tested.windowTitle(), QStringLiteral("Crop"));
            QCOMPARE(tested.size(), dialog);
            auto* container = tested.template findChild<QWidget*>(QStringLiteral("canvasContainer"));
            QCOMPARE(container->size(), canvas);
            const auto place = [&](const char* name) {
                return tested.template findChild<QLabel*>(QLatin1String(name))->mapTo(&tested, QPoint());
            };
            QCOMPARE(place("hintSign"), QPoint(20, dialog.height() - 45));
            QCOMPARE(place("hint"), QPoint(42, dialog.height() - 45));
            tested.show();
            QVERIFY(QTest::qWaitForWindowExposed(&tested));
            QCOMPARE(tested.size(), dialog);
            QCOMPARE(tested.GetCanvas()->size(), canvas);
        };
        check(*zoom);
        check(plain);
    }

    /// Catches a canvas over the dialog's line, which then has gaps at the sides.
    void LineGoesAllRound()
    {
        CCutPhotoDlg dialog;
        dialog.SetPhotoResolution(960, 640);
        dialog.show();
        const QImage image = dialog.grab().toImage();
        const QRgb line = image.pixel(image.width() / 2, 0);
        QVERIFY(line != image.pixel(image.width() / 2, 1));
        for (int y = 0; y < image.height(); ++y) {
            QCOMPARE(image.pixel(0, y), line);
            QCOMPARE(image.pixel(image.width() - 1, y), line);
        }
    }

    /// Catches arithmetic that overflows and sizes below zero.
    void WildResolutions()
    {
        CCutPhotoDlg dialog;
        const int most = std::numeric_limits<int>::max();
        const int least = std::numeric_limits<int>::min();
        for (const QSize& size : {QSize(most, most), QSize(least, least), QSize(most, least), QSize(-1, 0)}) {
            dialog.SetPhotoResolution(size.width(), size.height());
            QVERIFY(dialog.width() > 0 && dialog.height() > 0);
        }
    }

    /// Catches bars that take more of the height than the dialog allows for: the photo would have to be
    /// scrolled by a few pixels.
    void FirstSizeNeedsNoScrollBars()
    {
        CCutPhotoDlg dialog;
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        const auto* area = dialog.findChild<QScrollArea*>();
        QCOMPARE(area->horizontalScrollBar()->maximum(), 0);
        QCOMPARE(area->verticalScrollBar()->maximum(), 0);
        QCOMPARE(dialog.GetCanvas()->size(), area->viewport()->size());
    }

    /// Catches a hint over the buttons of a narrow dialog, or of a mirrored one (the hint stays at the left),
    /// and one that stays away.
    void HintNeverCoversButtons()
    {
        for (const auto& [width, direction] :
             {std::pair(800, Qt::LeftToRight), std::pair(800, Qt::RightToLeft),
              std::pair(500, Qt::LeftToRight)}) {
            CCutPhotoDlg dialog;
            dialog.setLayoutDirection(direction);
            dialog.SetPhotoResolution(width, width * 3 / 4 - 80);
            dialog.show();
            QVERIFY(QTest::qWaitForWindowExposed(&dialog));
            const auto* hint = dialog.findChild<QLabel*>(QStringLiteral("hint"));
            QVERIFY(hint->width() >= 500);
            QCOMPARE(hint->isVisible(), width == 800);
            if (width == 800) {
                for (const int value : {QDialogButtonBox::Ok, QDialogButtonBox::Cancel})
                    QVERIFY(hint->geometry().right() < dialog.GetButton(value)->mapTo(&dialog, QPoint()).x());
                QVERIFY(hint->heightForWidth(hint->width()) <= hint->height());
            }
        }
    }

    /// Catches the late reading of no file that clears the picture which the client has handed over.
    void PictureInMemoryStays()
    {
        const auto dialog = ZoomDialog();
        QTimer::singleShot(0, dialog.get(), [&] { dialog->GetCanvas()->SetSrcImage(Quarters()); });
        ExecAnd(dialog.get(), [&] {
            QVERIFY(dialog->GetCutPhoto().bHasImage);
            dialog->reject();
        });
    }

    /// Catches a picture that is read before the dialog has its size (the canvas would stretch it over
    /// another), an Enter key that does not end the dialog, and a dialog that gives back the whole photo.
    void EnterAcceptsTheCut()
    {
        const auto zoom = ZoomDialog();
        CCutPhotoDlg plain;
        const auto check = [&](auto& dialog) {
            dialog.SetSrcPhoto(m_photo);
            QVERIFY(!dialog.GetCutPhoto().bHasImage);
            const int result = ExecAnd(&dialog, [&] {
                QCOMPARE(dialog.GetCutPhoto().strFilePath, m_photo);
                Drag(*dialog.GetCanvas(), QPoint(20, 280), QPoint(380, 480)); // in the lower left quarter
                QTest::keyClick(&dialog, Qt::Key_Return);
            });
            QCOMPARE(result, int(QDialog::Accepted));
            const QImage cut = dialog.GetCutPhoto().image;
            QVERIFY(qAbs(cut.width() - 720) <= 2 && qAbs(cut.height() - 400) <= 2);
            for (const QPoint& corner : {QPoint(0, 0), QPoint(cut.width() - 1, cut.height() - 1)})
                QCOMPARE(cut.pixelColor(corner), QColor(Qt::blue));
        };
        check(*zoom);
        check(plain);
        QCOMPARE(zoom->GetSavePictureType(), 0);
    }

    /// Catches limits that do not reach the canvas.
    void SavedCutKeepsTheLimit()
    {
        CCutPhotoDlg dialog;
        dialog.SetSrcPhoto(m_photo);
        dialog.SetImageMaxCapacity(1);
        dialog.SetPicMaxSize(kPhoto.width(), kPhoto.height());
        ExecAnd(&dialog, [&] {
            dialog.OnBtnOkClicked();
            QVERIFY(dialog.isVisible()); // no cut has so few bytes
            dialog.SetImageMaxCapacity(20000);
            dialog.SetPicMaxSize(400, 400);
            dialog.OnBtnOkClicked();
            QVERIFY(dialog.isVisible()); // nor so few pixels, unless it may be made smaller
            dialog.SetKeepAspectRatio(true);
            dialog.OnBtnOkClicked();
        });
        QCOMPARE(dialog.GetCutPhoto().image.size(), kPhoto / 4);
    }

    /// Catches a dialog that is accepted without a cut, and an operator who is not told why it is not.
    void OkWithoutAFrameStaysOpen()
    {
        const auto check = [](auto& dialog, const QString& path) {
            dialog.SetSrcPhoto(path);
            const int result = ExecAnd(&dialog, [&] {
                QTest::mouseClick(dialog.GetButton(QDialogButtonBox::Ok), Qt::LeftButton);
                QVERIFY(dialog.isVisible());
                QCOMPARE(Message(), QStringLiteral("Please select a valid area to cut."));
                KvGUI::KvMessageNotify::Instance()->CloseAll();
                QTest::mouseClick(dialog.GetButton(QDialogButtonBox::Cancel), Qt::LeftButton);
            });
            QCOMPARE(result, int(QDialog::Rejected));
        };
        for (const QString& path :
             {QString(), m_folder.filePath(QStringLiteral("none.png")), m_folder.path()}) {
            CCutPhotoDlg plain;
            check(*ZoomDialog(), path);
            check(plain, path);
        }
    }

    /// Catches a way out that does nothing or that accepts.
    void WaysToReject()
    {
        using Dialog = CCutPhotoDlgWithZoom;
        const std::function<void(Dialog&)> ways[] = {
            [](Dialog& dialog) {
                QTest::mouseClick(dialog.GetButton(QDialogButtonBox::Cancel), Qt::LeftButton);
            },
            [](Dialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); },
            [](Dialog& dialog) {
                auto* cross = dialog.findChild<QWidget*>(QStringLiteral("kvDialogCloseButton"));
                QTest::mouseClick(cross, Qt::LeftButton);
            },
            [](Dialog& dialog) { dialog.GetCanvas()->OnKeyPressed(); },
        };
        for (const auto& way : ways) {
            const auto dialog = ZoomDialog();
            dialog->SetSrcPhoto(m_photo);
            QCOMPARE(ExecAnd(dialog.get(), [&] { way(*dialog); }), int(QDialog::Rejected));
        }
    }

    /// Catches crossed types, a choice in the menu that does not end the dialog, and "Cancel" that does, or
    /// counts as a search.
    void SearchAccepts()
    {
        for (const int item : {0, 1, 2, 3}) {
            const auto dialog = ZoomDialog();
            dialog->SetSrcPhoto(m_photo);
            const bool searches = item < 3;
            const int result = ExecAnd(dialog.get(), [&] {
                Drag(*dialog->GetCanvas(), QPoint(100, 100), QPoint(300, 200));
                ChooseInMenu(dialog->GetCanvas(), item);
                QTRY_VERIFY(!dialog->GetCanvas()->findChild<QMenu*>());
                QCOMPARE(dialog->isVisible(), !searches);
                if (!searches)
                    dialog->reject();
            });
            QCOMPARE(result, int(searches ? QDialog::Accepted : QDialog::Rejected));
            QCOMPARE(dialog->GetSavePictureType(), searches ? item + 1 : 0); // vehicle, face, human body
        }
    }

    /// Catches a search that is forgotten, or accepted without a cut.
    void SearchWithoutAPictureStaysOpen()
    {
        const auto dialog = ZoomDialog();
        ExecAnd(dialog.get(), [&] {
            ChooseInMenu(dialog->GetCanvas(), 1);
            QTRY_COMPARE(dialog->GetSavePictureType(), 2);
            QVERIFY(dialog->isVisible());
            QCOMPARE(Message(), QStringLiteral("Please select a valid area to cut."));
            dialog->reject();
        });
    }

    /// Catches any use of the dialog or its canvas after a slot of the client deleted the dialog.
    void SlotDeletesTheDialog()
    {
        // By a search, before the dialog's own slot.
        const QPointer<CCutPhotoDlgWithZoom> zoom = ZoomDialog().release();
        zoom->GetCanvas()->disconnect(zoom);
        connect(zoom->GetCanvas(), &CCutPhotoWithZoom::SignClickFaceSearch, this, [&] { delete zoom; });
        ExecAnd(zoom.data(), [&] { ChooseInMenu(zoom->GetCanvas(), 1); });
        QVERIFY(!zoom);

        const QPointer<CCutPhotoDlg> plain = new CCutPhotoDlg;
        plain->SetSrcPhoto(m_photo);
        connect(plain, &QDialog::accepted, this, [&] { delete plain; });
        ExecAnd(plain.data(), [&] { QTest::keyPress(plain, Qt::Key_Return); });
        QVERIFY(!plain);
    }

    /// Catches a late reading of the picture in a dialog that is gone, and a loop that does not end.
    void ParentDestroyedBeforeThePictureIsRead()
    {
        auto* parent = new QWidget;
        parent->setLayout(new QVBoxLayout);
        CCutPhotoDlgWithZoom* dialog = ZoomDialog(parent).release();
        dialog->SetSrcPhoto(m_photo);
        QTimer::singleShot(0, [&] { delete parent; });
        QCOMPARE(dialog->exec(), int(QDialog::Rejected));
        QTest::qWait(kLoadTime);
    }

    /// Catches a bar that is moved when it need not be, or in the wrong direction.
    void FollowedScrollValues()
    {
        const auto followed = [](int value, bool forward, int start, int length) {
            return FollowedScrollValue(
                value, forward, start, length, 600, 12); // of the container, and its margin
        };
        QCOMPARE(followed(20, true, 100, 300), 20); // seen already
        QCOMPARE(followed(5, true, 100, 500), 12);
        QCOMPARE(followed(40, true, 100, 500), 40); // never back
        QCOMPARE(followed(50, false, 30, 200), 30);
        QCOMPARE(followed(50, false, 60, 200), 50); // inside the view
    }

    void DragScrollsTheCanvas_data()
    {
        TestSupport::Columns<Qt::LayoutDirection>("direction");
        QTest::newRow("left to right") << Qt::LeftToRight;
        QTest::newRow("mirrored") << Qt::RightToLeft;
    }

    /// Catches a canvas that does not report its drag to the dialog, swapped axes, and columns that a
    /// mirrored bar counts from the other side: the frame's edge would be scrolled out of sight. And a wild
    /// frame of a client, whose width no int can hold.
    void DragScrollsTheCanvas()
    {
        QFETCH(Qt::LayoutDirection, direction);
        CCutPhotoDlg dialog;
        dialog.setLayoutDirection(direction);
        dialog.SetPhotoResolution(800, 900); // too high and too wide for its view
        dialog.resize(700, 500);
        dialog.SetSrcPhoto(m_photo);
        ExecAnd(&dialog, [&] {
            const auto* area = dialog.findChild<QScrollArea*>();
            QScrollBar* across = area->horizontalScrollBar();
            QScrollBar* down = area->verticalScrollBar();
            QVERIFY(across->maximum() > 60 && down->maximum() > 60);
            across->setValue(60);
            down->setValue(60);
            Drag(*dialog.GetCanvas(), QPoint(400, 400), QPoint(30, 450)); // to the left and down
            QCOMPARE(across->value(), 30);
            QCOMPARE(down->value(), 60);
            QVERIFY(dialog.GetCanvas()->visibleRegion().contains(QPoint(30, 450)));
            across->setValue(60);
            Drag(*dialog.GetCanvas(), QPoint(400, 400), QPoint(450, 20)); // to the right and up
            QCOMPARE(across->value(), 60);
            QCOMPARE(down->value(), 20);
            constexpr int least = std::numeric_limits<int>::min();
            constexpr int most = std::numeric_limits<int>::max();
            dialog.OnUpdateCutRect(QRect(QPoint(least, least), QPoint(most, most)), true, false);
            QCOMPARE(across->value(), across->maximum());
            QCOMPARE(down->value(), 0);
            dialog.reject();
        });
    }

    /// Catches a bubble in the client's large font, whose long hint is cut off at both sides of the canvas.
    void HintFitsTheCanvas()
    {
        const auto dialog = ZoomDialog();
        dialog->SetPhotoResolution(960, 640);
        dialog->show();
        const auto* bubble = dialog->findChild<CComTipWigetWithZoom*>();
        QVERIFY(bubble->parentWidget()->rect().contains(bubble->geometry()));
    }

    /// Catches a hint that is laid out beside a button that the client has deleted.
    void HintTakesTheRoomOfADeletedButton()
    {
        CCutPhotoDlg dialog;
        dialog.SetPhotoResolution(960, 640);
        const auto* hint = dialog.findChild<QLabel*>(QStringLiteral("hint"));
        const int before = hint->width();
        delete dialog.GetButton(QDialogButtonBox::Cancel);
        dialog.SetPhotoResolution(960, 640);
        QVERIFY(hint->width() > before);
    }

    void BubbleFitsItsText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << QString();
        QTest::newRow("text") << QStringLiteral("Please select the area to be cropped.");
        QTest::newRow("wide characters") << QStringLiteral("\u8BF7\u9009\u62E9");
        QTest::newRow("no markup") << QStringLiteral("<b>bold</b>");
    }

    /// Catches a bubble that cuts its text, moves when its text changes, or takes the text for markup.
    void BubbleFitsItsText()
    {
        QFETCH(QString, text);
        const auto check = [&](auto* bubble) {
            bubble->ensurePolished();
            bubble->setStyleSheet(QStringLiteral("QLabel { font-size: 21px }"));
            bubble->move(7, 9);
            const int height = bubble->height();
            bubble->SetTipText(text);
            const auto* label = bubble->template findChild<QLabel*>(QStringLiteral("tipText"));
            QCOMPARE(label->fontInfo().pixelSize(), 21);
            QCOMPARE(
                bubble->geometry(), QRect(7, 9, label->fontMetrics().horizontalAdvance(text) + 62, height));
            bubble->show();
            QVERIFY(QTest::qWaitForWindowExposed(bubble->window()));
            QCOMPARE(label->width(), label->fontMetrics().horizontalAdvance(text));
        };
        QWidget host;
        host.setLayout(new QVBoxLayout);
        host.resize(900, 300);
        host.show();
        check(new CComTipWiget(&host));
        check(new CComTipWigetWithZoom(&host));
    }

    /// Catches a drag that cannot begin where the bubble lies.
    void BubbleLetsThePointerThrough()
    {
        CCutPhotoDlg dialog;
        dialog.SetSrcPhoto(m_photo);
        ExecAnd(&dialog, [&] {
            auto* bubble = dialog.findChild<CComTipWiget*>();
            QVERIFY(bubble->isVisible());
            const QPoint middle = bubble->mapTo(&dialog, bubble->rect().center());
            QCOMPARE(dialog.childAt(middle), static_cast<QWidget*>(dialog.GetCanvas()));
            dialog.reject();
        });
    }

private:
    QTemporaryDir m_folder;
    QString m_photo;
};

STRICT_TEST_MAIN(TestCutDialogs)
#include "tst_cutdialogs.moc"
