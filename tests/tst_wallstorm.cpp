// Storms of events and calls against the operate wall and the walls in it: whatever an operator does and
// whatever a client calls, also from inside a slot, the wall must stay consistent. A seed is one storm and
// always the same. UICOMPONENTS_STORM_SECONDS=600 in the environment makes more of them, for a run by hand.

#include "support/StrictMain.h"

#include <UI/TVWall/KvTVWallDisplayWnd.h>
#include <UI/TVWall/KvTVWallOperateWnd.h>

#include <UI/TVWall/KvTVWallNormalWnd.h>

#include <QApplication>
#include <QDragEnterEvent>
#include <QGraphicsProxyWidget>
#include <QGraphicsView>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointer>
#include <QRandomGenerator>
#include <QRubberBand>
#include <QTest>
#include <QtTest/qtestspontaneevent.h>
#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>
#include <utility>

using KvGUI::StructScaleRect;
using Wall = UICommonMdl::KvTVWallOperateWnd;

namespace {

constexpr int StepsPerSeed = 1500;

/// Whether a window has its pixels. Wild rectangles have no plain rule: true.
bool IsInPlace(const QRect& window, const QSize& screen, const StructScaleRect& r)
{
    const auto inOrder = [](double low, double high) { return -4.0 <= low && low <= high && high <= 4.0; };
    const auto pixel = [](int length, double part) {
        return qBound(-QWIDGETSIZE_MAX, int(std::trunc(length * part + 0.5)), QWIDGETSIZE_MAX);
    };
    if (!inOrder(r.dLeft, r.dRight) || !inOrder(r.dTop, r.dBottom))
        return true;
    return window
        == QRect(
               pixel(screen.width(), r.dLeft), pixel(screen.height(), r.dTop),
               pixel(screen.width(), r.dRight - r.dLeft), pixel(screen.height(), r.dBottom - r.dTop));
}

/// Children that are not hidden: what was removed is hidden at once and deleted later.
template <typename Widget>
QList<Widget*> Shown(const QWidget* parent, Qt::FindChildOptions options = Qt::FindDirectChildrenOnly)
{
    QList<Widget*> children = parent->findChildren<Widget*>(QString(), options);
    const auto hidden = [](const QWidget* child) { return child->isHidden(); };
    children.erase(std::remove_if(children.begin(), children.end(), hidden), children.end());
    return children;
}

class Storm
{
public:
    explicit Storm(int seed)
        : m_random(quint32(seed))
    { }

    void Step()
    {
        if (!m_wall)
            MakeWall();
        OneIn(10) ? Interrupt() : OneIn(5) ? OtherEvent() : OneIn(3) ? Call() : Mouse();
        if (OneIn(4))
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (m_wall && OneIn(20))
            m_wall->grab();
    }

    /// What is wrong with the wall, or an empty text.
    QString Fault() const
    {
        if (m_badSignal || !m_wall)
            return m_badSignal ? QStringLiteral("an index in a signal") : QString();
        QList<int> indexes = m_wall->GetUnSelectedWindowIndexs() + m_wall->GetSelectedWindowIndexs();
        std::sort(indexes.begin(), indexes.end());
        if (indexes != m_wall->GetAllWindowIndexs(m_wall->GetSelectedScreenIndex()))
            return QStringLiteral("selected windows");
        if (!m_held && !Shown<QRubberBand>(m_wall.get(), Qt::FindChildrenRecursively).isEmpty())
            return QStringLiteral("a band that nobody draws");
        if (m_mode == Wall::NormalMode && m_wall->findChild<QGraphicsView*>() != nullptr && !AreItemsRight())
            return QStringLiteral("items");
        const auto* display = m_wall->findChild<UICommonMdl::KvTVWallDisplayWnd*>();
        if (display == nullptr || m_mode != Wall::DisplayMode)
            return QString();
        if (!display->geometry().contains(m_wall->rect()) && !m_wall->rect().isEmpty())
            return QStringLiteral("a view that the wall does not cover");
        const QList<QMdiArea*> screens = Shown<QMdiArea>(display);
        bool right = screens.size() == m_wall->GetScreenCount();
        for (int s = 0; right && s < screens.size(); ++s)
            right = IsRight(s, *screens.at(s));
        return right ? QString() : QStringLiteral("screens or windows");
    }

private:
    int Below(int end) { return int(m_random.bounded(end)); }
    bool OneIn(int n) { return Below(n) == 0; }
    QPoint PointIn(const QSize& s) { return {Below(qMax(1, s.width())), Below(qMax(1, s.height()))}; }

    StructScaleRect AnyRect()
    {
        const double wild[] = {qQNaN(), qInf(), -qInf(), 1e300, -1e9, -0.3, 1.4, 3.0};
        const auto edge = [&] {
            return OneIn(25) ? wild[Below(8)] : OneIn(2) ? Below(9) / 8.0 : m_random.generateDouble();
        };
        StructScaleRect rect{edge(), edge(), edge(), edge(), !OneIn(4)};
        if (rect.dLeft > rect.dRight && !OneIn(10))
            std::swap(rect.dLeft, rect.dRight);
        if (rect.dTop > rect.dBottom && !OneIn(10))
            std::swap(rect.dTop, rect.dBottom);
        return rect;
    }

    QWidget* AnyWidget()
    {
        const QWidgetList widgets = m_wall->findChildren<QWidget*>();
        QWidget* widget = widgets.value(Below(widgets.size() + 1), m_wall.get());
        return widget->isVisible() ? widget : AnyWidget();
    }

    /// Often in a title bar: of a widget, or of a window where the widget shows all of the wall.
    QPoint AnyPoint(const QSize& area)
    {
        StructScaleRect screen;
        StructScaleRect window;
        const int s = Below(m_wall->GetScreenCount() + 1);
        if (OneIn(3) || !m_wall->GetScreenScale(s, screen)
            || !m_wall->GetWindowScale(s, Below(m_wall->GetWindowCount(s) + 1), window))
            return PointIn(OneIn(2) ? QSize(area.width(), 20) : area);
        const double left = screen.dLeft + window.dLeft * (screen.dRight - screen.dLeft);
        const double top = screen.dTop + window.dTop * (screen.dBottom - screen.dTop);
        const auto pixel = [](int length, double part) { return int(length * qBound(0.0, part, 1.0)); };
        return QPoint(pixel(area.width(), left), pixel(area.height(), top)) + PointIn({150, 25});
    }

    void MakeWall()
    {
        m_held = Qt::NoButton;
        auto* wall = new Wall;
        m_wall.reset(wall);
        wall->resize(300 + Below(900), 200 + Below(500));
        SetMode(OneIn(3) ? Wall::NormalMode : Wall::DisplayMode);
        wall->show();
        const auto screen = [this](int s) { InSlot(s >= 0 && s < m_wall->GetScreenCount()); };
        const auto window = [this](int s, int w) { InSlot(w >= 0 && w < m_wall->GetWindowCount(s)); };
        QObject::connect(wall, &Wall::SignalScreenSelectedChanged, wall, screen);
        QObject::connect(wall, &Wall::SignalScreenRightClick, wall, screen);
        QObject::connect(wall, &Wall::SignalWindowSelectedChanged, wall, screen);
        QObject::connect(wall, &Wall::SignalWindowDoubleClicked, wall, screen);
        QObject::connect(wall, &Wall::SignalDrawAreaOpenWindow, wall, screen);
        QObject::connect(wall, &Wall::SignalWindow3DSite, wall, screen);
        QObject::connect(wall, &Wall::SignalLabelEvent, wall, screen);
        QObject::connect(wall, &Wall::SignalWindowEvent, wall, window);
        QObject::connect(wall, &Wall::SignalWindowCloseBtnClicked, wall, window);
        QObject::connect(wall, &Wall::SignalWindowVolumeBtnClicked, wall, window);
        QObject::connect(wall, &Wall::SignalWindowGeoChanged, wall, window);
        QObject::connect(wall, &Wall::SignalWindowClicked, wall, [this] { InSlot(true); });
    }

    void SetMode(int mode)
    {
        m_mode = mode;
        m_wall->SetShowMode(mode);
        m_wall->SetTVWallGridCount(1 + Below(4), 1 + Below(4));
    }

    void InSlot(bool indexesNameSomething)
    {
        const bool unknownMode = m_mode != Wall::NormalMode && m_mode != Wall::DisplayMode; // finds nothing
        m_badSignal = m_badSignal || !(indexesNameSomething || unknownMode);
        if (m_depth == 3 || !OneIn(4)) // slots inside slots
            return;
        ++m_depth;
        OneIn(40) ? m_wall.reset() : Call();
        --m_depth;
    }

    /// One call of the client, with wrong indices among the arguments.
    void Call()
    {
        Wall& wall = *m_wall; // which a slot may delete: nothing follows the call
        const int s = Below(wall.GetScreenCount() + 2) - 1;
        const int w = Below(wall.GetWindowCount(s) + 2) - 1;
        const StructScaleRect rect = AnyRect();
        const bool yes = OneIn(2);
        const int number = Below(12) - 2;
        KvGUI::StructOSDInfo info;
        info.iRight = info.iBottom = Below(8192);
        info.bRoll = yes;
        info.strText = "overlay";
        std::vector<KvGUI::StructOSDInfo> infos(size_t(Below(12)), info);
        const std::function<void()> calls[] = {
            [&] { wall.GetScreenCount() < 5 ? void(wall.AddScreen(rect, s)) : void(); },
            [&] { wall.GetWindowCount(s) < 8 ? void(wall.OpenWindow(s, rect, w)) : void(); },
            [&] { wall.DeleteWindow(s, w); },
            [&] { number > 0 ? wall.DeleteAllWindows(s) : wall.DeleteAllWindows(); },
            [&] { number > 0 ? void() : void(wall.DeleteAllScreen()); },
            [&] { wall.SetWindowScale(s, w, rect); },
            [&] { wall.SetWindowZValue(s, w, number, yes); },
            [&] { wall.SetSelectedWindowIndexs(s, w, yes); },
            [&] { wall.SetSelectedScreenIndex(s); },
            [&] { wall.SetWindowSelectionMode(Wall::SelectionMode(number)); },
            [&] { wall.SetPtzFrameSelectedEnable(yes); },
            [&] { wall.SetDeviceType(yes); },
            [&] { wall.SetScreenOSDInfo(s, infos); },
            [&] { wall.DeleteWindowWidget(s, w); },
            [&] { wall.SetTVWallGridCount(1 + Below(5), yes ? 1 << 30 : 3); },
            [&] { wall.SetScreenFreeMode(s, yes); },
            [&] { wall.SetAudioBtnVisible(yes); },
            [&] { wall.RecoverEagleEye(); },
            [&] { m_depth == 0 ? delete wall.GetWindowWidget(s, w) : void(); }, // it may get the event
            [&] { SetNormalZValue(s, w, number); },
            [&] { OneIn(3) ? SetMode(OneIn(9) ? number : number & 1) : void(); },
        };
        OneIn(5) ? calls[1]() : calls[Below(int(std::size(calls)))]();
    }

    void SetNormalZValue(int s, int w, int number)
    {
        const double z[] = {number / 3.0, qInf(), -qInf(), qQNaN()};
        if (auto* wall = m_wall->findChild<UICommonMdl::KvTVWallNormalWnd*>())
            wall->SetWindowZValue(s, w, z[Below(4)]);
    }

    /// As the window system sends it: Qt passes an event made by a program to no parent.
    static void Notify(QWidget* widget, QEvent& event)
    {
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(widget, &event);
    }

    /// A press, or with a button held: its release, another button, or a move.
    void Mouse()
    {
        if (!m_held || !m_grabber) {
            m_held = OneIn(3) ? Qt::RightButton : Qt::LeftButton;
            m_grabber = AnyWidget();
            m_globalPos = m_grabber->mapToGlobal(AnyPoint(m_grabber->size()));
            return Send(OneIn(5) ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress, m_held, m_held);
        }
        if (OneIn(12))
            return Send(QEvent::MouseButtonPress, Qt::MiddleButton, m_held | Qt::MiddleButton);
        if (OneIn(3))
            return Send(QEvent::MouseButtonRelease, std::exchange(m_held, Qt::NoButton), Qt::NoButton);
        m_globalPos = OneIn(2) ? m_globalPos + QPoint(Below(3) - 1, Below(3) - 1)
                               : m_wall->mapToGlobal(PointIn(m_wall->size() * 1.5) - QPoint(90, 90));
        Send(QEvent::MouseMove, Qt::NoButton, m_held);
    }

    void Send(QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons buttons)
    {
        const Qt::KeyboardModifiers keys = OneIn(4) ? Qt::ShiftModifier : Qt::NoModifier;
        QMouseEvent event(type, m_grabber->mapFromGlobal(m_globalPos), m_globalPos, button, buttons, keys);
        Notify(m_grabber, event);
    }

    void OtherEvent()
    {
        QWidget* widget = AnyWidget();
        const QPoint pos = PointIn(widget->size());
        const QPoint global = widget->mapToGlobal(pos);
        const Qt::Key keys[] = {Qt::Key_Space, Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_F4};
        const QPoint turn(0, OneIn(3) ? -120 : 120);
        QWheelEvent wheel(pos, global, {}, turn, Qt::NoButton, {}, Qt::NoScrollPhase, false);
        QContextMenuEvent menu(QContextMenuEvent::Reason(Below(3)), pos, global);
        QKeyEvent key(OneIn(3) ? QEvent::KeyRelease : QEvent::KeyPress, keys[Below(5)], {});
        QMouseEvent hover(QEvent::MouseMove, pos, global, Qt::NoButton, Qt::NoButton, {});
        QMimeData data;
        QDragEnterEvent enter(pos, Qt::CopyAction, &data, {}, {});
        QEvent* const events[] = {&wheel, &menu, &key, &key, &hover, &enter};
        Notify(widget, *events[Below(6)]);
    }

    /// What ends a drag without a release.
    void Interrupt()
    {
        m_held = Qt::NoButton;
        const int kind = Below(4);
        QWidget dialog;
        dialog.setWindowModality(Qt::ApplicationModal);
        if (kind == 0)
            m_wall->resize(OneIn(9) ? 0 : 100 + Below(1200), OneIn(9) ? 1 : 80 + Below(700));
        for (const bool on : {false, true})
            kind == 1 ? m_wall->setVisible(on) : kind == 2 ? m_wall->setEnabled(on) : dialog.setVisible(!on);
    }

    bool IsRight(int s, const QMdiArea& screen) const
    {
        QList<QMdiSubWindow*> windows = Shown<QMdiSubWindow>(screen.viewport());
        bool right = windows.size() == m_wall->GetAllWindowIndexs(s).size();
        for (int w = 0; right && w < m_wall->GetWindowCount(s); ++w) {
            StructScaleRect rect;
            right = m_wall->GetWindowScale(s, w, rect)
                && m_wall->GetWindowZValue(s, w) <= m_wall->GetMaxWindowZValue(s);
            if (const QWidget* video = m_wall->GetWindowWidget(s, w)) // unless the client deleted it
                right = right && windows.removeOne(qobject_cast<QMdiSubWindow*>(video->parent()))
                    && (m_held || IsInPlace(video->parentWidget()->geometry(), screen.size(), rect));
        }
        return right;
    }

    /// The windows of a wall of items, on half of its screens: the widgets show where the items are, and make
    /// a difference themselves.
    bool AreItemsRight() const
    {
        bool right = true;
        for (int s = 1; s < m_wall->GetScreenCount(); s += 2) {
            for (int w = 0; right && w < m_wall->GetWindowCount(s); ++w) {
                StructScaleRect rect;
                right = m_wall->GetWindowScale(s, w, rect);
                const QWidget* video = m_wall->GetWindowWidget(s, w); // unless the client deleted it
                const QGraphicsProxyWidget* proxy = video != nullptr ? video->graphicsProxyWidget() : nullptr;
                if (proxy == nullptr)
                    continue;
                const QGraphicsItem* window = proxy->parentItem();
                const QRectF place = window->boundingRect().translated(window->pos());
                right = right && window->isVisible()
                    && (m_held
                        || IsInPlace(
                            place.toRect(), window->parentItem()->boundingRect().size().toSize(), rect));
            }
        }
        return right;
    }

    QRandomGenerator m_random;
    std::unique_ptr<Wall> m_wall;
    QPointer<QWidget> m_grabber; // got the press, and gets all until the release
    Qt::MouseButton m_held = Qt::NoButton;
    QPoint m_globalPos;
    int m_mode = Wall::NormalMode;
    int m_depth = 0;
    bool m_badSignal = false;
};

} // namespace

class tst_WallStorm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void storm_data()
    {
        QTest::addColumn<int>("seed");
        const int byHand = 6 * qEnvironmentVariableIntValue("UICOMPONENTS_STORM_SECONDS"); // about
        for (int seed = 1; seed <= qMax(40, byHand); ++seed)
            QTest::addRow("seed %d", seed) << seed; // of a crash: the one after the last that passed
    }

    // Catches indices that are off after nested deletions, and drags that never end.
    void storm()
    {
        QFETCH(int, seed);
        Storm storm(seed);
        for (int step = 0; step < StepsPerSeed; ++step) {
            storm.Step();
            const QString fault = storm.Fault();
            QVERIFY2(fault.isEmpty(), qPrintable(QStringLiteral("step %1: %2").arg(step).arg(fault)));
        }
    }
};

STRICT_TEST_MAIN(tst_WallStorm)
#include "tst_wallstorm.moc"
