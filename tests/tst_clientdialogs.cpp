// The example client's details panel, sound and pairing page, by mouse and keyboard.

#include "support/QrReader.h"
#include "support/StrictMain.h"
#include "support/WallMouse.h"

#include <UI/Dialogs/CDisplayQRcodeDlg.h>
#include <UI/Dialogs/KvVolumeButton.h>
#include <gallery/MainWindow.h>
#include <gallery/Pairing/PairingPage.h>
#include <gallery/Pictures/CameraTile.h>
#include <gallery/Wall/WallPage.h>
#include <gallery/Wall/WallSound.h>

#include <QtTest>
#include <QtWidgets>
#include <memory>

using namespace OperatorClient;
using Command = WallToolBar::Command;
using UICommonMdl::KvVolumeButton;

namespace {

/// Notes the sound that a window asks for.
class SilentSource : public FrameSource
{
public:
    QString Title() const override { return QStringLiteral("Silent"); }
    qint64 FrameNumber(const QDateTime&) const override { return 1; }
    void Paint(QPainter&, const QRect&, const QDateTime&) override { }
    void SetAudible(bool bAudible) override { m_bAudible = bAudible; }
    void SetVolume(int volume) override { m_iVolume = volume; }

    bool m_bAudible = false;
    int m_iVolume = -1;
};

/// The client with its first wall, one window selected by a click.
struct Client
{
    Client()
    {
        page = new WallPage(
            pool, clock, WallLayoutFile(folder.filePath(QStringLiteral("l.ini"))), FirstWall(), {});
        window.AddPage({QStringLiteral("wall"), WallPage::Title, [this](QWidget*) { return page; }});
        window.AddPage({QStringLiteral("pairing"), PairingPage::Title, [](QWidget* parent) {
                            return new PairingPage(parent);
                        }});
        window.ShowPage(0);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        Action(Command::SelectOne)->trigger();
    }

    WallWidget* Wall() const { return page->Cameras()->Wall(); }
    QAction* Action(Command command) const { return page->findChild<WallToolBar*>()->Action(command); }
    DetailsPanel* Panel() const { return page->findChild<DetailsPanel*>(); }
    QString Heading() const { return Panel()->findChild<QLabel*>(QStringLiteral("detailsHeading"))->text(); }
    /// The value beside a name in the panel.
    QString Fact(const char* name) const
    {
        const auto labels = Panel()->findChildren<QLabel*>();
        for (const QLabel* label : labels) {
            if (label->accessibleName() == QLatin1String(name))
                return label->text();
        }
        return {};
    }
    QPoint MiddleOf(int screen, int index) const
    {
        const QWidget* video = Wall()->GetWindowWidget(screen, index);
        return video->mapTo(Wall(), video->rect().center());
    }
    void Click(int screen, int index) const { TestSupport::WallMouse(Wall()).Click(MiddleOf(screen, index)); }
    void FinishSlide() const
    {
        auto* slide = Panel()->findChild<QPropertyAnimation*>();
        slide->setCurrentTime(slide->duration());
    }
    std::shared_ptr<SilentSource> Silence(int screen, int index) const
    {
        auto source = std::make_shared<SilentSource>();
        Wall()->GetWindowWidget(screen, index)->findChild<CameraTile*>()->SetSource(source);
        return source;
    }

    QTemporaryDir folder;
    SourcePool pool;
    FrameClock clock;
    MainWindow window;
    WallPage* page = nullptr;
};

/// Opens a volume button's panel by a press and gives it a key.
void PressAndKey(KvVolumeButton* button, Qt::Key key)
{
    QTest::mouseClick(button, Qt::LeftButton);
    QWidget* popup = QApplication::activePopupWidget();
    QVERIFY(popup != nullptr);
    QTest::keyClick(popup->windowHandle(), key);
    QTest::keyClick(popup->windowHandle(), Qt::Key_Escape);
    QVERIFY(QApplication::activePopupWidget() == nullptr);
}

} // namespace

class tst_ClientDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Catches a panel that does not come, comes for nothing, or tells of another window.
    void selectionBringsTheDetails()
    {
        const Client client;
        QVERIFY(!client.Panel()->IsShown());
        client.Click(0, 1);
        QVERIFY(client.Panel()->IsShown());
        client.FinishSlide();
        QCOMPARE(client.Heading(), QStringLiteral("Main entrance"));
        QCOMPARE(client.Fact("Window"), QStringLiteral("2"));
        QCOMPARE(client.Fact("Size"), QStringLiteral("50.0 % \u00d7 50.0 %"));
        const QWidget* cameras = client.page->Cameras();
        QCOMPARE(client.Panel()->geometry().topRight(), cameras->mapToGlobal(cameras->rect().topRight()));
        QCOMPARE(client.Panel()->height(), cameras->height());

        client.Action(Command::SelectNone)->trigger();
        client.Action(Command::SelectOne)->trigger(); // deselects
        client.FinishSlide();
        QVERIFY(!client.Panel()->IsShown());
    }

    /// Catches facts of the moment of the selection.
    void detailsFollowTheWindow()
    {
        const Client client;
        client.Click(2, 0);
        const QString place = client.Fact("Place");
        const QString order = client.Fact("Order");
        const QPoint title
            = client.MiddleOf(2, 0) - QPoint(0, client.Wall()->GetWindowWidget(2, 0)->height() / 2 + 10);
        TestSupport::WallMouse(client.Wall()).Drag(title, title + QPoint(12, 8));
        QVERIFY(client.Fact("Place") != place);
        client.Action(Command::Raise)->trigger();
        QVERIFY(client.Fact("Order") != order);
    }

    /// Catches one window's facts, and its sound, shown for several.
    void severalWindows()
    {
        const Client client;
        client.Action(Command::SelectMany)->trigger();
        client.Click(0, 0);
        client.Click(0, 2);
        QCOMPARE(client.Heading(), QStringLiteral("2 window(s) selected"));
        QVERIFY(!client.Panel()->findChild<KvVolumeButton*>()->isVisible());
    }

    /// Catches a panel that comes again and again after the operator closed it.
    void closedDetailsStayAway()
    {
        const Client client;
        client.Click(0, 0);
        client.FinishSlide();
        QTest::mouseClick(
            client.Panel()->findChild<QPushButton*>(QStringLiteral("closeBtn")), Qt::LeftButton);
        client.FinishSlide();
        QVERIFY(!client.Panel()->IsShown());
        QVERIFY(!client.Action(Command::Details)->isChecked());
        client.Click(0, 1);
        QVERIFY(!client.Panel()->IsShown());
        QTest::keyClick(client.window.windowHandle(), Qt::Key_I, Qt::ControlModifier);
        QVERIFY(client.Panel()->IsShown());
        QCOMPARE(client.Heading(), QStringLiteral("Main entrance"));
    }

    /// Catches a panel that tells of a window which is closed.
    void detailsGoWithTheirWindow()
    {
        const Client client;
        client.Click(0, 0);
        client.Action(Command::CloseSelected)->trigger();
        client.FinishSlide();
        QVERIFY(!client.Panel()->IsShown());
    }

    /// Catches a panel that stays over another page.
    void detailsGoWithThePage()
    {
        Client client;
        client.Click(0, 0);
        client.FinishSlide();
        client.window.ShowPage(1);
        QVERIFY(!client.Panel()->IsShown());
        client.window.ShowPage(0);
        QVERIFY(client.Panel()->IsShown());
    }

    /// Catches keys that are dead once the panel was clicked, and a client that goes on when only its panel
    /// is left.
    void panelKeepsKeysAndEndsWithTheClient()
    {
        Client client;
        client.Click(0, 0);
        client.FinishSlide();
        client.Panel()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(client.Panel()));
        QTest::keyClick(client.Panel(), Qt::Key_F, Qt::ControlModifier);
        QVERIFY(client.Action(Command::SceneFamily)->isChecked());
        QTest::keyClick(client.Panel(), Qt::Key_2, Qt::AltModifier);
        QCOMPARE(client.window.CurrentPageName(), QStringLiteral("pairing"));
        client.window.ShowPage(0);

        QTimer::singleShot(0, &client.window, &QWidget::close);
        QTimer::singleShot(3000, qApp, [] { QCoreApplication::exit(1); });
        QCOMPARE(QCoreApplication::exec(), 0);
    }

    /// Catches a panel and a title bar that disagree about the sound, and two windows that sound at once.
    void soundOfOneWindow()
    {
        const Client client;
        const auto first = client.Silence(0, 0);
        const auto second = client.Silence(0, 1);
        auto* volume = client.Panel()->findChild<KvVolumeButton*>();
        client.Click(0, 0);
        client.FinishSlide();
        PressAndKey(volume, Qt::Key_Space);
        QVERIFY(client.Wall()->GetWindowVolumeBtnStatus(0, 0));
        QVERIFY(first->m_bAudible);

        client.Click(0, 1);
        QCOMPARE(volume->objectName(), QStringLiteral("btnVolumeOff"));
        QCOMPARE(volume->GetVolumeValue(), 100);
        PressAndKey(volume, Qt::Key_Space);
        QVERIFY(!client.Wall()->GetWindowVolumeBtnStatus(0, 0));
        QVERIFY(!first->m_bAudible && second->m_bAudible);

        PressAndKey(volume, Qt::Key_PageDown);
        QCOMPARE(second->m_iVolume, 45); // of the wall's 50
        client.Click(0, 0);
        QCOMPARE(volume->GetVolumeValue(), 100);
        client.Click(0, 1);
        QCOMPARE(volume->GetVolumeValue(), 90);
        QCOMPARE(volume->objectName(), QStringLiteral("btnVolumeOn"));

        auto* title = client.Wall()->GetWindowWidget(0, 1)->parentWidget()->findChild<QPushButton*>(
            QStringLiteral("pWindowVolumeOnBtn"));
        QTest::mouseClick(title, Qt::LeftButton);
        QCOMPARE(volume->objectName(), QStringLiteral("btnVolumeOff"));
    }

    /// Catches a tool bar that does not reach the window which sounds.
    void soundOfTheWall()
    {
        const Client client;
        const auto source = client.Silence(0, 0);
        client.page->Cameras()->Sound()->SetWindowOn(0, 0, true);
        KvVolumeButton* volume = client.page->findChild<WallToolBar*>()->VolumeButton();
        PressAndKey(volume, Qt::Key_PageUp);
        QCOMPARE(source->m_iVolume, 60);
        volume->SetVolumeState(true);
        QTest::mouseClick(volume, Qt::LeftButton);
        QWidget* popup = QApplication::activePopupWidget();
        QTest::mouseClick(popup->findChild<QToolButton*>(), Qt::LeftButton);
        QVERIFY(!source->m_bAudible);
        QVERIFY(client.Wall()->GetWindowVolumeBtnStatus(0, 0)); // it will sound again
        QTest::mouseClick(popup->findChild<QToolButton*>(), Qt::LeftButton);
        QVERIFY(source->m_bAudible);
    }

    /// Catches a code that is not the token issued last, and a renewal with another phone.
    void pairingIssuesTokens()
    {
        Client client;
        client.window.ShowPage(1);
        auto* page = client.window.CurrentPage();
        auto* dialog = page->findChild<UICommonMdl::CDisplayQRcodeDlg*>();
        auto* issued = page->findChild<QPlainTextEdit*>();
        page->findChild<QLineEdit*>()->setText(QStringLiteral("Gate"));
        page->findChild<QComboBox*>()->setCurrentIndex(1);
        QTest::mouseClick(page->findChild<QPushButton*>(QStringLiteral("showCode")), Qt::LeftButton);
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
        QCOMPARE(dialog->RefreshInterval(), 5000);
        dialog->SetRefreshInterval(30);
        QTRY_VERIFY(issued->blockCount() >= 3);
        dialog->SetRefreshInterval(5000);
        const QStringList lines = issued->toPlainText().split(QLatin1Char('\n'));
        for (const QString& line : lines)
            QVERIFY(line.endsWith(QStringLiteral("Gate")));
        const QString token = QString::fromUtf8(TestSupport::ReadQrCode(dialog->grab().toImage()));
        QVERIFY(!token.isEmpty());
        QVERIFY(lines.last().contains(token));
        QVERIFY(!lines.first().contains(token));
    }

    /// Catches tokens that are issued while nobody sees them.
    void pairingEndsWithTheDialog()
    {
        Client client;
        client.window.ShowPage(1);
        auto* page = client.window.CurrentPage();
        auto* dialog = page->findChild<UICommonMdl::CDisplayQRcodeDlg*>();
        QTest::keyClick(page->findChild<QLineEdit*>(), Qt::Key_Return);
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
        QVERIFY(dialog->findChild<QTimer*>()->isActive());
        QTest::keyClick(dialog, Qt::Key_Escape);
        QVERIFY(!dialog->isVisible());
        QVERIFY(!dialog->findChild<QTimer*>()->isActive());
    }
};

STRICT_X_TEST_MAIN(tst_ClientDialogs)
#include "tst_clientdialogs.moc"
