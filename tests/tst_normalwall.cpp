// What only the wall drawn by a graphics view has; what it shares with the other family is in tst_walls.cpp.

#include "support/AtEvent.h"
#include "support/Columns.h"
#include "support/ScaleRects.h"
#include "support/StrictMain.h"
#include "support/WallMouse.h"

#include <UI/TVWall/KvTVWallNormalWnd.h>

#include <QtTest>
#include <QtWidgets>
#include <limits>

using Rect = KvGUI::StructScaleRect;
using Wall = UICommonMdl::KvTVWallNormalWnd;

namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr Rect Whole{0.0, 0.0, 1.0, 1.0, true};
constexpr Rect LeftUpper{0.1, 0.2, 0.4, 0.6, true}; // 300 x 240 pixels at 100, 120
constexpr Rect RightUpper{0.5, 0.2, 0.8, 0.6, true}; // the same at 500, 120
const QPoint OnLeftTitle(150, 132);
const QPoint OnLeftVideo(160, 240);
const QPoint OnRightVideo(560, 240);
const QPoint OnHeading(16, 18); // the middle of a screen's icon

/// A wall of 1000 x 600 pixels with one screen of 4 x 2 cells over all of it.
struct Fixture
{
    explicit Fixture(std::initializer_list<Rect> windows = {})
    {
        client.resize(1000, 600);
        wall->resize(1000, 600);
        wall->SetTVWallGridCount(2, 4);
        wall->AddScreen(Whole, QIcon(), QString(), QVariant());
        for (const Rect& rect : windows)
            wall->OpenWindow(0, rect, QVariant());
        client.show();
        QVERIFY(QTest::qWaitForWindowExposed(&client));
    }

    Rect Scale(int window) const
    {
        Rect rect;
        wall->GetWindowScale(0, window, rect);
        return rect;
    }
    QImage Picture() { return client.grab().toImage(); }
    /// A widget of one colour in a window's video.
    QWidget* Fill(int window, Qt::GlobalColor color)
    {
        QWidget* video = wall->GetWindowWidget(0, window);
        auto* fill = new QWidget(video);
        fill->setPalette(color);
        fill->setAutoFillBackground(true);
        fill->resize(2000, 2000);
        fill->show();
        return fill;
    }
    QWidget* Viewport() const { return wall->findChild<QGraphicsView*>()->viewport(); }
    /// The overview, or null while there is none to be seen.
    QWidget* Overview() const
    {
        const auto children = wall->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        for (QWidget* child : children) {
            if (child->isVisible() && child->accessibleName().contains(QLatin1String("Overview")))
                return child;
        }
        return nullptr;
    }
    /// Where a window's video stands on the wall.
    QRect Video(int window) const
    {
        const QWidget* video = wall->GetWindowWidget(0, window);
        return {wall->mapFromGlobal(video->mapToGlobal(QPoint(0, 0))), video->size()};
    }

    QWidget client;
    QPointer<Wall> wall = new Wall(&client);
    TestSupport::WallMouse mouse{wall};
};

QIcon GreenIcon()
{
    QPixmap picture(16, 16);
    picture.fill(Qt::green);
    return picture;
}

int Different(const QImage& a, const QImage& b, const QRect& area)
{
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            count += a.pixel(x, y) != b.pixel(x, y) ? 1 : 0;
    }
    return count;
}

} // namespace

class tst_NormalWall : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qRegisterMetaType<QEvent*>(); }

    void zDecidesThePaintingOrder_data()
    {
        TestSupport::Columns<double, double, bool>("first", "second", "firstOnTop");
        QTest::newRow("new windows") << 0.0 << 0.0 << false;
        QTest::newRow("equal") << 2.5 << 2.5 << false;
        QTest::newRow("less than one apart") << 0.25 << 0.2 << true;
        QTest::newRow("below zero") << -0.5 << -0.75 << true;
        QTest::newRow("infinite") << Infinity << 1e300 << true;
        QTest::newRow("infinite below") << 0.0 << -Infinity << true;
    }

    // Catches z-values that are cut to whole numbers, and an order that is painted only at the next change.
    void zDecidesThePaintingOrder()
    {
        QFETCH(double, first);
        QFETCH(double, second);
        Fixture f({LeftUpper, LeftUpper});
        f.Fill(0, Qt::red);
        f.Fill(1, Qt::blue);
        f.Picture();
        QVERIFY(f.wall->SetWindowZValue(0, 0, first) && f.wall->SetWindowZValue(0, 1, second));
        const QColor seen = f.Picture().pixelColor(OnLeftVideo);
        QTEST(seen == Qt::red, "firstOnTop");
        QVERIFY(!f.wall->SetWindowZValue(0, 0, std::numeric_limits<double>::quiet_NaN()));
        QCOMPARE(f.wall->GetWindowZValue(0, 0), first);
        QCOMPARE(f.wall->GetMaxWindowZValue(0), qMax(0.0, qMax(first, second)));
        QCOMPARE(f.Picture().pixelColor(OnLeftVideo), seen);
    }

    // Catches headings that are dropped, painted over each other, or left behind.
    void headings()
    {
        Fixture f;
        const QRect area(0, 0, 500, 40);
        const QImage plain = f.Picture();
        QVERIFY(f.wall->SetScreenTitle(0, QStringLiteral("Entrance")));
        const QImage titled = f.Picture();
        QVERIFY(Different(plain, titled, area) > 50);
        f.wall->SetScreenTitle(0, QString());
        QCOMPARE(f.Picture(), plain);
        f.wall->DeleteAllScreen();
        f.wall->AddScreen(Whole, GreenIcon(), QStringLiteral("Entrance"), QVariant());
        const QImage both = f.Picture();
        QCOMPARE(both.pixelColor(OnHeading), QColor(Qt::green));
        QVERIFY(Different(both, titled, area) > 50); // the text has moved aside
        f.wall->SetScreenTitle(0, QString());
        QCOMPARE(f.Picture().pixelColor(OnHeading), QColor(Qt::green));
        f.wall->OpenWindow(0, Whole, QVariant());
        QVERIFY(f.Picture().pixelColor(OnHeading) != QColor(Qt::green));
    }

    // Catches a title that cannot be read once windows fill the screen, and one taken for rich text.
    void titlesAreToldWhereTheyAreCovered()
    {
        Fixture f({LeftUpper});
        const auto told = [&f](const char* title) {
            f.wall->SetScreenTitle(0, QString::fromLatin1(title));
            QHelpEvent help(QEvent::ToolTip, OnLeftVideo, f.wall->mapToGlobal(OnLeftVideo));
            QApplication::sendEvent(f.Viewport(), &help);
            return QToolTip::text();
        };
        QCOMPARE(told("Gate 7 & 8 < 9"), QStringLiteral("Gate 7 & 8 < 9"));
        QCOMPARE(told("<b>7</b>"), QStringLiteral("&lt;b&gt;7&lt;/b&gt;"));
        QToolTip::hideText();
    }

    // Catches a bound screen whose windows end between cells, a client's rectangle that is bent, and a
    // binding that outlasts its end.
    void boundScreensEndDragsOnCells()
    {
        Fixture f;
        QVERIFY(f.wall->IsScreenFreeMode(0) && f.wall->IsScreenFreeMode(7));
        f.wall->SetScreenFreeMode(0, false);
        f.wall->SetScreenFreeMode(7, false);
        QVERIFY(!f.wall->IsScreenFreeMode(0) && f.wall->IsScreenFreeMode(7));
        f.wall->OpenWindow(0, LeftUpper, QVariant());
        QCOMPARE(f.Scale(0), LeftUpper);
        f.mouse.Press(OnLeftTitle);
        f.mouse.Move(OnLeftTitle + QPoint(200, 0));
        QCOMPARE(f.Video(0), QRect(251, 26, 496, 576)); // of the window at 250, 0 with 500 x 600 pixels
        QCOMPARE(f.Scale(0), LeftUpper);
        f.mouse.Release(OnLeftTitle + QPoint(200, 0));
        QCOMPARE(f.Scale(0), (Rect{0.25, 0.0, 0.75, 1.0, true}));
        f.mouse.Drag({749, 300}, {600, 300}); // its right edge
        QCOMPARE(f.Scale(0), (Rect{0.25, 0.0, 0.75, 1.0, true}));
        f.mouse.Drag({749, 300}, {480, 300});
        QCOMPARE(f.Scale(0), (Rect{0.25, 0.0, 0.5, 1.0, true}));
        f.wall->SetWindowScale(0, 0, LeftUpper);
        QCOMPARE(f.Scale(0), LeftUpper);
        f.wall->SetScreenFreeMode(0, true);
        f.mouse.Drag(OnLeftTitle, OnLeftTitle + QPoint(50, 0));
        QCOMPARE(f.Scale(0), (Rect{0.15, 0.2, 0.45, 0.6, true}));
    }

    // Catches a moving picture that stands still for good because the wall had no room for it once.
    void videosPaintWhenThereIsRoom()
    {
        Fixture f({LeftUpper});
        f.wall->resize(40, 20);
        QWidget* video = f.wall->GetWindowWidget(0, 0);
        f.wall->resize(500, 300);
        QTest::qWait(50); // until the wall itself has painted
        const TestSupport::AtEvent painted(video, QEvent::Paint, [] {});
        video->update();
        QTRY_VERIFY(painted.HasActed());
    }

    // Catches pictures in the size of a wild rectangle or of a large wall under the wheel, which no display
    // server takes, and a video that no longer fills its window when its size has an end.
    void videosOfHugeWindows()
    {
        Fixture f({LeftUpper});
        QWidget* fill = f.Fill(0, Qt::red);
        QWidget* video = f.wall->GetWindowWidget(0, 0);
        const QSize place = video->size();
        f.wall->SetWindowScale(0, 0, {-1e9, -1, 1e9, 1, true});
        QVERIFY(video->width() == 16000 && video->height() > 0 && video->height() < 1000);
        f.wall->SetWindowScale(0, 0, {-50, 0, 50, 30, true});
        QCOMPARE(video->width(), 16000);
        fill->resize(video->size());
        QCOMPARE(f.Picture().pixelColor(900, 500), QColor(Qt::red));
        f.wall->SetWindowScale(0, 0, LeftUpper);
        QCOMPARE(video->size(), place);
        QCOMPARE(f.Video(0).topLeft(), QPoint(101, 146));
    }

    // Catches a video that takes the clicks which are the window's, does not get its own, or keeps the focus.
    void videosOfTheClient()
    {
        Fixture f;
        f.wall->SetWindowSelectionMode(Wall::SingleSelection);
        f.wall->OpenWindow(0, LeftUpper, QVariant());
        auto* button = new QPushButton(f.wall->GetWindowWidget(0, 0));
        button->setGeometry(20, 60, 100, 60);
        button->show();
        const QSignalSpy clicked(button, &QPushButton::clicked);
        const QSignalSpy events(f.wall, &Wall::SignalWindowEvent);
        f.mouse.Click(OnLeftVideo);
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(events.count(), 0);
        QVERIFY(f.wall->GetSelectedWindowIndexs().isEmpty());
        f.mouse.Click(OnLeftVideo + QPoint(100, 0)); // beside it
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(f.wall->GetSelectedWindowIndexs(), QList<int>{0});
        QVERIFY(events.count() > 0);
        button->setFocusPolicy(Qt::StrongFocus);
        f.mouse.Click(OnLeftVideo);
        const QSignalSpy volume(f.wall, &Wall::SignalWindowVolumeBtnClicked);
        QTest::keyClick(f.client.windowHandle(), Qt::Key_Tab); // on from the window
        QTest::keyClick(f.client.windowHandle(), Qt::Key_Space);
        QCOMPARE(volume.count(), 1);
    }

    // Catches an overview in the way of an operator who sees the whole wall, and a way back that is none.
    void overviewOfAZoomedWall()
    {
        Fixture f({LeftUpper});
        const QRect unzoomed = f.Video(0);
        QVERIFY(f.Overview() == nullptr);
        QSignalSpy wheel(f.wall, &Wall::SignalWheelEvent);
        f.mouse.Wheel({0, 0}, 120);
        QCOMPARE(wheel.count(), 1);
        QCOMPARE(f.Video(0), QRect(151, 206, 446, 336)); // 1500 x 900 pixels from the origin
        QWidget* overview = f.Overview();
        QVERIFY(overview != nullptr);
        QCOMPARE(overview->geometry().bottomRight(), f.wall->rect().bottomRight());
        f.mouse.Click(overview->geometry().topLeft() + QPoint(overview->width() - 10, 10));
        QCOMPARE(f.Video(0).left(), 151 - 499); // all the way to the right, and up: offset -500
        QCOMPARE(f.Video(0).top(), 206);
        f.wall->RecoverEagleEye();
        QCOMPARE(f.Video(0), unzoomed);
        QVERIFY(f.Overview() == nullptr);
        f.mouse.Wheel({500, 300}, 120);
        QVERIFY(f.Overview() != nullptr);
        f.mouse.Wheel({500, 300}, -120);
        QVERIFY(f.Overview() == nullptr);
        QCOMPARE(f.Video(0), unzoomed);
    }

    // Catches a zoom that a resize forgets, an overview left where the corner was, and a division by no size.
    void zoomSurvivesResizing()
    {
        Fixture f({LeftUpper});
        f.mouse.Wheel({0, 0}, 120);
        f.wall->resize(500, 300);
        QCOMPARE(f.Video(0), QRect(76, 116, 221, 156)); // of 750 x 450 pixels
        QVERIFY(f.Overview() != nullptr);
        QCOMPARE(f.Overview()->geometry().bottomRight(), f.wall->rect().bottomRight());
        f.wall->resize(0, 0);
        f.wall->RecoverEagleEye();
        f.wall->resize(1000, 600);
        QCOMPARE(f.Video(0), QRect(101, 146, 296, 216));
    }

    // Catches a list of windows that is walked while a video in another colour changes it; meant to be run
    // under a sanitizer as well.
    void videoOpensWindowsInANewLook()
    {
        Fixture f;
        for (int w = 0; w < 3; ++w)
            f.wall->OpenWindow(0, LeftUpper, QVariant());
        const TestSupport::AtEvent atColor(f.wall->GetWindowWidget(0, 0), QEvent::PaletteChange, [&f] {
            for (int i = 0; i < 50; ++i) {
                f.wall->AddScreen(Whole, QVariant());
                f.wall->OpenWindow(0, LeftUpper, QVariant());
            }
        });
        f.wall->setStyleSheet(
            QStringLiteral("UICommonMdl--KvTVWallNormalView { qproperty-videoColor: #00ff00; }"));
        QVERIFY(atColor.HasActed());
        QCOMPARE(f.wall->GetWindowCount(0), 53);
    }

    // Catches windows that are forgotten, and a button that is hidden but still there for the mouse.
    void audioButtons()
    {
        Fixture f;
        const QPoint onButton(400 - 2 - 4 * 21 + 10, 132);
        const QSignalSpy volume(f.wall, &Wall::SignalWindowVolumeBtnClicked);
        f.wall->OpenWindow(0, LeftUpper, QVariant());
        f.mouse.Click(onButton);
        QCOMPARE(volume.count(), 1);
        const QImage shown = f.Picture();
        f.wall->SetAudioBtnVisible(false);
        QVERIFY(Different(shown, f.Picture(), QRect(onButton - QPoint(10, 10), QSize(20, 20))) > 10);
        f.mouse.Click(onButton);
        f.wall->OpenWindow(0, RightUpper, QVariant());
        f.mouse.Click(onButton + QPoint(400, 0));
        QTest::keyClick(f.client.windowHandle(), Qt::Key_Tab);
        QTest::keyClick(f.client.windowHandle(), Qt::Key_Space); // the next button
        QCOMPARE(volume.count(), 1);
        QCOMPARE(f.Scale(1), (Rect{0.5, 0.0, 1.0, 1.0, true}));
        f.wall->SetWindowScale(0, 1, RightUpper);
        QVERIFY(f.wall->SetWindowVolumeBtn(0, 0, true));
        f.wall->SetAudioBtnVisible(true);
        QVERIFY(f.wall->GetWindowVolumeBtnStatus(0, 0));
        f.mouse.Click(onButton + QPoint(400, 0));
        QCOMPARE(volume.count(), 2);
    }

    // Catches a window that is closed by a press alone, by another button, or after the operator has thought
    // better of it.
    void buttonsNeedPressAndReleaseInside()
    {
        Fixture f({LeftUpper});
        const QPoint onClose(400 - 2 - 10, 132);
        const QSignalSpy close(f.wall, &Wall::SignalWindowCloseBtnClicked);
        f.mouse.Press(onClose);
        f.mouse.Move(onClose + QPoint(0, 60));
        f.mouse.Release(onClose + QPoint(0, 60));
        QCOMPARE(close.count(), 0);
        f.mouse.Drag(onClose + QPoint(0, 60), onClose);
        QCOMPARE(close.count(), 0);
        const QImage idle = f.Picture();
        f.mouse.Press(onClose);
        QVERIFY(Different(idle, f.Picture(), QRect(onClose - QPoint(10, 10), QSize(20, 20))) > 100);
        f.mouse.Click(onClose, Qt::RightButton);
        QCOMPARE(close.count(), 0);
        f.mouse.Move(onClose + QPoint(0, 60));
        f.mouse.Move(onClose);
        f.mouse.Release(onClose);
        QCOMPARE(close.count(), 1);
        QCOMPARE(f.Scale(0), LeftUpper);
    }

    // Catches buttons that fill the whole title bar, so that nothing is left to take hold of.
    void narrowWindowsCanBeMoved()
    {
        Fixture f;
        f.wall->OpenWindow(0, {0.1, 0.2, 0.16, 0.6, true}, QVariant()); // 60 pixels
        f.mouse.Drag({108, 132}, {208, 132});
        QCOMPARE(f.Scale(0), (Rect{0.2, 0.2, 0.26, 0.6, true}));
    }

    // Catches a cursor that promises what the mouse does not do.
    void cursors()
    {
        Fixture f({LeftUpper, {0.5, 0.2, 0.8, 0.6, false}});
        const auto shapeAt = [&f](const QPoint& pos) {
            f.mouse.Move(pos);
            return f.Viewport()->cursor().shape();
        };
        QCOMPARE(shapeAt({101, 240}), Qt::SizeHorCursor);
        QCOMPARE(shapeAt({250, 358}), Qt::SizeVerCursor);
        QCOMPARE(shapeAt({101, 121}), Qt::SizeFDiagCursor);
        QCOMPARE(shapeAt({398, 121}), Qt::SizeBDiagCursor);
        QCOMPARE(shapeAt({101, 358}), Qt::SizeBDiagCursor);
        QCOMPARE(shapeAt(OnLeftVideo), Qt::ArrowCursor);
        QCOMPARE(shapeAt({398, 240}), Qt::SizeHorCursor);
        QCOMPARE(shapeAt({396, 132}), Qt::ArrowCursor); // the close button, near the edge
        QCOMPARE(shapeAt({501, 240}), Qt::ArrowCursor); // not editable
        QCOMPARE(shapeAt({20, 580}), Qt::ArrowCursor);
    }

    // Catches windows and buttons that only a mouse can reach, and a focus that never leaves the wall.
    void keyboard()
    {
        Fixture f;
        f.wall->SetWindowSelectionMode(Wall::SingleSelection);
        f.wall->OpenWindow(0, LeftUpper, QVariant());
        f.wall->OpenWindow(0, RightUpper, QVariant());
        QPushButton before(&f.client);
        before.show();
        QWidget::setTabOrder(&before, f.wall);
        before.setFocus();
        const QSignalSpy close(f.wall, &Wall::SignalWindowCloseBtnClicked);
        const QSignalSpy selected(f.wall, &Wall::SignalWindowSelectedChanged);
        const auto press = [&f](Qt::Key key) { QTest::keyClick(f.client.windowHandle(), key); };
        press(Qt::Key_Tab);
        const QImage focused = f.Picture();
        press(Qt::Key_Space);
        QCOMPARE(f.wall->GetSelectedWindowIndexs(), QList<int>{0});
        QCOMPARE(selected.count(), 1);
        for (int i = 0; i < 4; ++i)
            press(Qt::Key_Tab); // volume, snap, maximise, close
        QVERIFY(Different(focused, f.Picture(), QRect(378, 122, 20, 20)) > 10); // it is seen
        for (const Qt::KeyboardModifier other : {Qt::ControlModifier, Qt::AltModifier}) // of a tab bar
            QTest::keyClick(f.client.windowHandle(), Qt::Key_Backtab, other | Qt::ShiftModifier);
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, {}, QStringLiteral(" "), true);
        press(Qt::Key_Space);
        QCoreApplication::sendEvent(f.Viewport()->parentWidget(), &held);
        QCOMPARE(close.count(), 1);
        QCOMPARE(close.at(0).at(1).toInt(), 0);
        press(Qt::Key_Tab);
        press(Qt::Key_Space);
        QCOMPARE(f.wall->GetSelectedWindowIndexs(), QList<int>{1});
        press(Qt::Key_Backtab);
        press(Qt::Key_Space);
        QCOMPARE(close.count(), 2);
        for (int i = 0; i < 6; ++i)
            press(Qt::Key_Tab);
        QVERIFY(before.hasFocus());
        press(Qt::Key_Backtab);
        press(Qt::Key_Space);
        QCOMPARE(close.count(), 3);
        QCOMPARE(close.at(2).at(1).toInt(), 1);
    }

    // Catches a drag that is offered once to the wall as a whole, and drops that go to the wrong window.
    void dragsFromElsewhere()
    {
        Fixture f({LeftUpper, RightUpper});
        QVector<QPair<int, QEvent::Type>> seen; // -1: the screen
        int takes = 1; // window that takes the drop, or -1
        connect(f.wall, &Wall::SignalWindowEvent, f.wall, [&](int, int window, QEvent* event) {
            seen << qMakePair(window, event->type());
            if (event->type() != QEvent::DragLeave)
                event->setAccepted(window == takes);
        });
        connect(f.wall, &Wall::SignalScreenEvent, f.wall, [&](int, QEvent* event) {
            seen << qMakePair(-1, event->type());
            event->setAccepted(takes < 0);
        });
        const QMimeData data;
        const auto move = [&](const QPoint& to) {
            QDragMoveEvent event(to, Qt::CopyAction, &data, Qt::LeftButton, {});
            QCoreApplication::sendEvent(f.client.windowHandle(), &event);
            return event.isAccepted();
        };
        using Seen = QVector<QPair<int, QEvent::Type>>;
        f.mouse.DragEnter(OnLeftVideo, data);
        QCOMPARE(std::exchange(seen, {}), Seen({{0, QEvent::DragEnter}, {-1, QEvent::DragEnter}}));
        QVERIFY(!move(OnLeftVideo + QPoint(5, 0)));
        QVERIFY(seen.isEmpty());
        QVERIFY(move(OnRightVideo));
        QVERIFY(move(OnRightVideo + QPoint(5, 0)));
        QCOMPARE(
            std::exchange(seen, {}),
            Seen({{1, QEvent::DragEnter}, {1, QEvent::DragMove}, {1, QEvent::DragMove}}));
        QVERIFY(!move({20, 580}));
        QCOMPARE(std::exchange(seen, {}), Seen({{1, QEvent::DragLeave}, {-1, QEvent::DragEnter}}));
        QVERIFY(move(OnRightVideo));
        seen.clear();
        f.mouse.Drop(OnRightVideo, data);
        QCOMPARE(seen.last(), qMakePair(1, QEvent::Drop));
        seen.clear();
        f.mouse.DragEnter(OnRightVideo, data);
        f.mouse.DragLeave();
        QCOMPARE(seen.last(), qMakePair(1, QEvent::DragLeave));
        f.mouse.DragEnter(OnLeftVideo, data);
        seen.clear();
        f.mouse.Drop(OnLeftVideo, data); // which nobody takes
        QVERIFY(seen.isEmpty());
        takes = -1;
        f.mouse.DragEnter({20, 580}, data);
        QVERIFY(move({25, 580}));
        QCOMPARE(seen, Seen({{-1, QEvent::DragEnter}})); // a screen hears of no moves
    }

    // Catches colours and pictures that are read once and kept.
    void styleReachesThePainting()
    {
        Fixture f({LeftUpper});
        f.wall->SetSelectedScreenIndex(0);
        f.wall->SetSelectedWindowIndexs(0, 0, true);
        f.wall->OpenWindow(0, RightUpper, QVariant());
        f.wall->GetWindowWidget(0, 1);
        f.Picture();
        f.wall->setStyleSheet(QStringLiteral(
            "UICommonMdl--KvTVWallNormalView { qproperty-titleColor: #ff0000; qproperty-videoColor: #00ff00;"
            "qproperty-windowSelectedFrameColor: #0000ff; qproperty-closeIcon: \"\"; }"));
        const QImage styled = f.Picture();
        QCOMPARE(styled.pixelColor(OnLeftTitle), QColor(Qt::red));
        QCOMPARE(styled.pixelColor(400 - 2 - 10, 132), QColor(Qt::red)); // the cross is gone
        QCOMPARE(styled.pixelColor(OnLeftVideo), QColor(Qt::green));
        QCOMPARE(styled.pixelColor(OnRightVideo), QColor(Qt::green)); // a widget
        QCOMPARE(styled.pixelColor(100, 240), QColor(Qt::blue));
    }
};

STRICT_TEST_MAIN(tst_NormalWall)
#include "tst_normalwall.moc"
