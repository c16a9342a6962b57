// The volume button and its panel, by mouse and keyboard as the window system delivers them.

#include "support/AtEvent.h"
#include "support/Columns.h"
#include "support/Deletion.h"
#include "support/ShowActive.h"
#include "support/StrictMain.h"

#include <Platform/BasicUIComponents/KvSkin.h>
#include <UI/Dialogs/KvVolumeButton.h>
#include <UI/Dialogs/KvVolumeWidget.h>
#include <UI/Dialogs/PopupPlacement.h>

#include <QtTest>
#include <QtWidgets>
#include <functional>
#include <limits>
#include <memory>

using UICommonMdl::KvVolumeButton;
using UICommonMdl::KvVolumeWidget;
using namespace UICommonMdl::PopupPlacement;
using Screens = QVector<ScreenArea>;

Q_DECLARE_METATYPE(Screens)

namespace {

constexpr QSize ButtonSize(28, 28);
constexpr QSize PanelSize(18, 100);

// In the window.
const QPoint OnButton(114, 134);
const QPoint OnOther(214, 134);

/// A window with a volume button and, for comparison, an ordinary button.
struct Fixture
{
    Fixture()
    {
        window.setGeometry(200, 200, 300, 200);
        button->setGeometry(QRect(OnButton - QPoint(14, 14), ButtonSize));
        other->setGeometry(QRect(OnOther - QPoint(14, 14), ButtonSize));
        TestSupport::ShowActive(window);
    }

    KvVolumeWidget* Panel() const { return button->findChild<KvVolumeWidget*>(); }
    QSlider* Slider() const { return Panel()->findChild<QSlider*>(); }
    QToolButton* Sound() const { return Panel()->findChild<QToolButton*>(); }

    /// Through the window, as the window system does: only there Qt knows of pop-ups.
    void Press(const QPoint& pos) { QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, pos); }
    void Release(const QPoint& pos)
    {
        QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, pos);
        QCoreApplication::processEvents(); // a replayed press is posted
    }
    void Click(const QPoint& pos)
    {
        Press(pos);
        Release(pos);
    }

    QWidget window;
    QPointer<KvVolumeButton> button = new KvVolumeButton(&window);
    QPushButton* other = new QPushButton(&window);
};

/// Presses a key at the widget that the window system would choose.
void Key(Qt::Key key)
{
    QWidget* popup = QApplication::activePopupWidget();
    QWidget* target = popup ? popup : QApplication::activeWindow();
    const QPointer<QWindow> window = target->windowHandle();
    QTest::keyPress(window, key);
    if (window)
        QTest::keyRelease(window, key);
}

ScreenArea Monitor(const QRect& full) { return {full, full}; }

const QRect Single(0, 0, 800, 600);

using Act = std::function<void(Fixture&)>;

} // namespace

Q_DECLARE_METATYPE(Act)

class tst_Volume : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { TestSupport::SpoilFreedMemory(); }

    void placement_data()
    {
        TestSupport::Columns<QRect, Screens, QPoint>("button", "screens", "place");
        const Screens single{Monitor(Single)};
        const auto row
            = [&](const char* name, const QPoint& at, const Screens& screens, const QPoint& place) {
                  QTest::newRow(name) << QRect(at, ButtonSize) << screens << place;
              };
        row("in the middle", {400, 300}, single, {405, 200});
        row("just on the screen", {400, 100}, single, {405, 0});
        row("upper edge: over the button", {400, 40}, single, {405, 0});
        row("left edge", {-12, 300}, single, {0, 200});
        // The last pixel is 799, and the panel of 18 pixels ends one before it.
        row("right edge", {772, 300}, single, {777, 200});
        row("right edge, as far as it goes", {776, 300}, single, {781, 200});
        row("right edge, beyond", {777, 300}, single, {781, 200});
        row("lower edge", {400, 598}, single, {405, 498});
        row("lower edge, as far as it goes", {400, 599}, single, {405, 499});
        row("lower edge, a pixel beyond", {400, 600}, single, {405, 499});
        row("lower edge, beyond", {400, 640}, single, {405, 499});

        const Screens bars{{Single, QRect(60, 30, 740, 530)}};
        row("under a task bar at the top", {400, 110}, bars, {405, 30});
        row("under a dock at the left", {10, 300}, bars, {60, 200});
        // Far edges are those of the whole monitor.
        row("over a task bar at the bottom", {400, 640}, bars, {405, 499});

        const Screens twoWide{Monitor(Single), Monitor(QRect(800, -200, 1000, 1000))};
        row("second monitor", {1000, 0}, twoWide, {1005, -100});
        row("second monitor, upper edge", {1000, -190}, twoWide, {1005, -200});
        row("second monitor, right edge", {1790, 0}, twoWide, {1781, -100});
        // The point above the first monitor's upper edge is nearer to the first than to the second.
        row("off the shorter neighbour", {600, 20}, twoWide, {605, 0});

        const Screens negative{Monitor(QRect(-1280, 0, 1280, 1024)), Monitor(Single)};
        row("negative coordinates", {-700, 400}, negative, {-695, 300});
        row("negative, far left", {-1290, 400}, negative, {-1280, 300});
        row("negative, right edge: not on the neighbour", {-20, 400}, negative, {-19, 300});
        row("negative, below the neighbour", {300, 700}, negative, {305, 499});

        const Screens above{Monitor(Single), Monitor(QRect(0, -600, 800, 600))};
        row("opens on the monitor above", {400, 40}, above, {405, -60});
        const Screens gap{Monitor(Single), Monitor(QRect(0, 700, 800, 600))};
        row("between two monitors", {400, 750}, gap, {405, 700});
        row("no monitor", {-5000, 9}, {}, {-4995, -91});
    }

    /// Catches a panel that opens off the monitors, on the wrong one, or a pixel off at an edge.
    void placement()
    {
        QFETCH(QRect, button);
        QFETCH(Screens, screens);
        const QRect above(CentredAbove(button, PanelSize), PanelSize);
        QTEST(AvailableGeometry(above, button, screens).topLeft(), "place");
    }

    void screenHoldingAWidget_data()
    {
        TestSupport::Columns<QRect, int>("widget", "index");
        QTest::newRow("first") << QRect(10, 10, 30, 30) << 0;
        QTest::newRow("more on the second") << QRect(790, 10, 30, 30) << 1;
        QTest::newRow("equal halves") << QRect(785, 10, 30, 30) << 0;
        QTest::newRow("off both, nearer to the second") << QRect(850, 700, 30, 30) << 1;
        QTest::newRow("empty widget") << QRect(900, 10, 0, 0) << 1;
        const int far = std::numeric_limits<int>::max() / 2;
        QTest::newRow("very far") << QRect(-far, -far, 10, 10) << 0;
    }

    /// Catches a button on a window that spans two monitors counted to the window's.
    void screenHoldingAWidget()
    {
        QFETCH(QRect, widget);
        const Screens screens{Monitor(Single), Monitor(QRect(800, 0, 800, 600))};
        QTEST(ScreenHolding(widget, screens), "index");
        QCOMPARE(ScreenHolding(widget, {}), -1);
    }

    /// Catches a first state in which button and panel do not agree, and a state that the client sets and
    /// hears of again: players would call back and forth.
    void stateIsShownAndNotReported()
    {
        const Fixture f;
        QSignalSpy opened(f.button, &KvVolumeButton::SignalSoundOpened);
        QCOMPARE(f.Panel()->size(), PanelSize);
        bool shown = false; // at first
        for (const bool on : {true, true, false}) {
            const QString name = shown ? QStringLiteral("btnVolumeOn") : QStringLiteral("btnVolumeOff");
            QCOMPARE(f.button->objectName(), name);
            QCOMPARE(f.Sound()->objectName(), name);
            QCOMPARE(f.Slider()->isEnabled(), shown);
            f.button->SetVolumeState(on);
            shown = on;
        }
        QVERIFY(opened.isEmpty());
    }

    /// Catches a button of a form, which has a name of its own, without a sign.
    void looksWithAnyName()
    {
        const auto look = [](const QString& name, bool on) {
            KvVolumeButton button;
            button.resize(32, 32);
            button.SetVolumeState(on);
            if (!name.isEmpty())
                button.setObjectName(name);
            return button.grab().toImage();
        };
        QCOMPARE(look(QStringLiteral("volume"), false), look({}, false));
        QVERIFY(look({}, true) != look({}, false));
    }

    /// Catches values off the scale, a report without a change, and a tool tip that keeps the old value, also
    /// when the signals are blocked.
    void valuesAreReportedOnce()
    {
        const Fixture f;
        QCOMPARE(f.Slider()->toolTip(), QStringLiteral("50%"));
        QSignalSpy values(f.button, &KvVolumeButton::SignalVolumeValueChanged);
        for (const int value : {50, 70, 70, 900, -4})
            f.button->SetVolumeValue(value);
        f.Panel()->SetSliderValueSilently(30);
        QCOMPARE(f.button->GetVolumeValue(), 30);
        QCOMPARE(f.Slider()->toolTip(), QStringLiteral("30%"));
        f.Panel()->SetSliderRange(0, 20);
        QCOMPARE(values, (QList<QVariantList>{{70}, {100}, {0}, {20}}));
        QCOMPARE(f.Slider()->toolTip(), QStringLiteral("20%"));
    }

    /// Catches a panel beside its button, a button that stays down after the release or when its panel goes
    /// before, and a press that closes the panel and, given on to the button, opens it again.
    void pressOpensAndCloses()
    {
        Fixture f;
        for (int round = 0; round < 3; ++round) {
            f.Press(OnButton);
            QVERIFY(f.Panel()->isVisible());
            QCOMPARE(f.Panel()->pos(), f.button->mapToGlobal(QPoint((28 - 18) / 2, -100)));
            f.Release(OnButton);
            QVERIFY(f.Panel()->isVisible());
            QVERIFY(!f.button->isDown());
            f.Click(OnButton);
            QVERIFY(!f.Panel()->isVisible());
            QVERIFY(!f.button->isDown());
        }
        f.Press(OnButton);
        QVERIFY(f.button->isDown());
        Key(Qt::Key_Escape);
        QVERIFY(!f.button->isDown());
        f.Release(OnButton);
        QVERIFY(!f.Panel()->isVisible());
    }

    /// Catches the opposite: a press elsewhere that is taken from the widget there too. Not every platform
    /// gives such presses on, so what counts is what the panel asks for when it closes.
    void pressElsewhereIsGivenOn()
    {
        Fixture f;
        for (const QPoint& pos : {OnButton, OnOther, OnButton, OnOther}) {
            f.Click(OnButton);
            bool replays = false; // whether the closing panel lets Qt give on the press
            const TestSupport::AtEvent hide(
                f.Panel(), QEvent::Hide, [&] { replays = !f.Panel()->testAttribute(Qt::WA_NoMouseReplay); });
            f.Click(pos);
            QVERIFY(!f.Panel()->isVisible());
            QCOMPARE(replays, pos == OnOther);
        }
    }

    /// Catches a panel that opens above the upper edge of the screen.
    void panelStaysOnTheScreen()
    {
        Fixture f;
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        f.window.move(screen.topLeft());
        f.button->move(0, 0);
        f.button->PopupVolumeWidget();
        QCOMPARE(f.Panel()->y(), screen.top());
    }

    /// Catches a panel that stands alone when its page is left.
    void hidingTheButtonHidesThePanel()
    {
        Fixture f;
        f.Click(OnButton);
        f.button->hide();
        QVERIFY(!f.Panel()->isVisible());
    }

    /// Catches a click on the mute button that is reported twice, not at all, or not shown on the button.
    void muteByMouse()
    {
        Fixture f;
        QSignalSpy opened(f.button, &KvVolumeButton::SignalSoundOpened);
        f.Click(OnButton);
        for (const bool on : {true, false}) {
            const QPoint middle = f.Sound()->mapTo(f.Panel(), f.Sound()->rect().center());
            QTest::mouseClick(f.Panel()->windowHandle(), Qt::LeftButton, {}, middle);
            QCOMPARE(opened.takeFirst(), QVariantList{on});
            QCOMPARE(f.Slider()->isEnabled(), on);
            QCOMPARE(f.button->objectName() == QLatin1String("btnVolumeOn"), on);
        }
        QVERIFY(opened.isEmpty());
        QVERIFY(f.Panel()->isVisible());
        KvVolumeWidget alone(nullptr); // of no button
        alone.show();
        QTest::mouseClick(&alone, Qt::LeftButton, {}, QPoint(1, 1));
    }

    /// Catches a panel that needs the mouse.
    void byKeyboard()
    {
        Fixture f;
        f.button->SetVolumeState(true);
        f.button->setFocus();
        QSignalSpy values(f.button, &KvVolumeButton::SignalVolumeValueChanged);
        Key(Qt::Key_Space);
        QVERIFY(f.Panel()->isVisible());
        Key(Qt::Key_Up);
        Key(Qt::Key_PageDown);
        QCOMPARE(values, (QList<QVariantList>{{51}, {41}}));
        Key(Qt::Key_Escape);
        QVERIFY(!f.Panel()->isVisible());
        QVERIFY(f.button->hasFocus());
        QVERIFY(!f.button->isDown());
    }

    /// Catches a panel whose focus lies on the disabled slider.
    void keyboardTurnsTheSoundOn()
    {
        Fixture f;
        f.button->setFocus();
        QSignalSpy opened(f.button, &KvVolumeButton::SignalSoundOpened);
        QKeyEvent select(QEvent::KeyPress, Qt::Key_Select, Qt::NoModifier); // QTest does not know this key
        QApplication::sendEvent(f.button, &select);
        Key(Qt::Key_Space);
        QCOMPARE(opened, (QList<QVariantList>{{true}}));
        Key(Qt::Key_Tab);
        Key(Qt::Key_Down);
        QCOMPARE(f.button->GetVolumeValue(), 49);
    }

    void slotMayDeleteTheButton_data()
    {
        TestSupport::Columns<Act, Act>("connectTo", "act");
        const auto row = [](const char* name, auto signal, const Act& act) {
            const Act connectTo = [signal](Fixture& f) { TestSupport::DeleteAt(f.button.data(), signal); };
            QTest::newRow(name) << connectTo << act;
        };
        row("pressed", &KvVolumeButton::pressed, [](Fixture& f) { f.Click(OnButton); });
        row("sound, by Space", &KvVolumeButton::SignalSoundOpened, [](Fixture& f) {
            f.button->PopupVolumeWidget();
            Key(Qt::Key_Space);
        });
        row("value, set", &KvVolumeButton::SignalVolumeValueChanged,
            [](Fixture& f) { f.button->SetVolumeValue(7); });
        const auto value = [=](const char* name, const Act& act) {
            row(name, &KvVolumeButton::SignalVolumeValueChanged, [act](Fixture& f) {
                f.button->SetVolumeState(true);
                f.Click(OnButton);
                act(f);
            });
        };
        value("value, by a key", [](Fixture&) { Key(Qt::Key_Up); });
        value("value, by a click beside the handle", [](Fixture& f) {
            const QPoint at = f.Slider()->mapTo(f.Panel(), QPoint(f.Slider()->width() / 2, 4));
            QTest::mousePress(f.Panel()->windowHandle(), Qt::LeftButton, {}, at);
        });
        value("value, by the wheel", [](Fixture& f) {
            const QPoint at = f.Slider()->rect().center();
            QWheelEvent turn(
                at, f.Slider()->mapToGlobal(at), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(f.Slider(), &turn);
        });
    }

    /// Catches a button that goes on after its client deleted it, and a slider that goes with it while Qt is
    /// in the middle of its event.
    void slotMayDeleteTheButton()
    {
        QFETCH(Act, connectTo);
        QFETCH(Act, act);
        Fixture f;
        const QPointer<KvVolumeWidget> panel = f.Panel();
        connectTo(f);
        act(f);
        QVERIFY(f.button.isNull());
        QVERIFY(!QApplication::activePopupWidget());
        QTRY_VERIFY(panel.isNull());
    }

    /// Catches looks that the sheets do not tell apart: sound on and off, the dark and the light skin.
    void looks()
    {
        const Fixture f;
        QVector<QImage> seen;
        for (const char* skin : {"White", "Black"}) {
            KvGUI::SetSkinVersion(QString::fromLatin1(skin));
            for (const bool on : {false, true}) {
                f.button->SetVolumeState(on);
                for (QWidget* widget : {static_cast<QWidget*>(f.button), static_cast<QWidget*>(f.Panel())}) {
                    const QImage look = widget->grab().toImage();
                    QVERIFY(!seen.contains(look));
                    seen.append(look);
                }
            }
        }
    }
};

STRICT_X_TEST_MAIN(tst_Volume)
#include "tst_volume.moc"
