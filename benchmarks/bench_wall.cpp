// The walls of both families, alone and in the operate wall, with 36 screens of 25 windows against the
// widgets of the display wall in bare MDI areas.

#include "Ratio.h"
#include "Walls.h"

#include <UI/TVWall/KvTVWallDisplayWnd.h>
#include <UI/TVWall/KvTVWallNormalWnd.h>
#include <UI/TVWall/KvTVWallOperateWnd.h>

#include <QApplication>
#include <QGraphicsView>
#include <QMouseEvent>
#include <QWheelEvent>
#include <functional>
#include <memory>

namespace {

using namespace Walls;
using UICommonMdl::KvTVWallDisplayWnd;
using UICommonMdl::KvTVWallNormalWnd;
using OperateWall = UICommonMdl::KvTVWallOperateWnd;

constexpr int Rounds = 7;

std::unique_ptr<OperateWall> MakeOperateWall(int mode)
{
    auto wall = std::make_unique<OperateWall>();
    wall->SetShowMode(mode);
    Arrange(*wall, FullWall);
    return wall;
}

template <typename Wall>
void BenchmarkOpening(const char* name)
{
    const QString sheet = WidgetSheet();
    std::vector<double> ours;
    std::vector<double> theirs;
    for (int i = 0; i < Rounds; ++i) {
        auto wall = MakeWall<Wall>();
        DeliverAll();
        ours.push_back(Ratio::Milliseconds([&] {
            OpenWindows(*wall);
            DeliverAll();
        }));
        wall.reset();
        const auto bare = MakeBareWall(sheet);
        DeliverAll();
        theirs.push_back(Ratio::Milliseconds([&] {
            bare->OpenWindows();
            DeliverAll();
        }));
    }
    Ratio::PrintMedians(name, ours, theirs);
}

/// Median time of one of many steps, with all events delivered.
double StepTime(const std::function<void(int step)>& act)
{
    constexpr int Steps = 12;
    std::vector<double> times;
    times.reserve(Steps);
    for (int i = 0; i < Steps; ++i) {
        times.push_back(Ratio::Milliseconds([&act, i] {
            act(i);
            DeliverAll();
        }));
    }
    return Ratio::Median(times);
}

/// Of a widget that is resized to and fro.
double ResizeTime(QWidget& widget)
{
    return StepTime([&widget](int step) { widget.resize(step % 2 == 0 ? WallSize * 1.1 : WallSize); });
}

// Never both at once: each bare area filters the events of the whole application.
template <typename Wall>
void BenchmarkResizing(const char* name, bool videos)
{
    const QString sheet = WidgetSheet();
    std::vector<double> ours;
    std::vector<double> theirs;
    for (int i = 0; i < Rounds; ++i) {
        {
            const auto wall = MakeWall<Wall>();
            OpenWindows(*wall);
            if (videos)
                AddVideos(*wall);
            DeliverAll();
            ours.push_back(ResizeTime(*wall));
        }
        const auto bare = MakeBareWall(sheet);
        bare->OpenWindows();
        if (videos)
            bare->AddVideos();
        DeliverAll();
        theirs.push_back(ResizeTime(*bare));
    }
    Ratio::PrintMedians(name, ours, theirs);
}

/// Of a widget into which the wheel zooms about its middle, and out again. @p isZoomed tells whether it did.
double ZoomTime(QWidget& receiver, const std::function<bool()>& isZoomed)
{
    const auto turn = [&receiver](int step) {
        const QPoint middle = receiver.rect().center();
        QWheelEvent event(
            middle, receiver.mapToGlobal(middle), {}, {0, step % 2 == 0 ? 120 : -120}, Qt::NoButton,
            Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&receiver, &event);
    };
    for (const int step : {0, 1}) {
        turn(step);
        if (isZoomed() != (step == 0))
            qFatal("the wall was not zoomed");
    }
    return StepTime(turn);
}

double DisplayZoomTime()
{
    const auto wall = MakeOperateWall(OperateWall::DisplayMode);
    OpenWindows(*wall);
    DeliverAll();
    auto* zoomed = wall->findChild<KvTVWallDisplayWnd*>();
    return ZoomTime(*zoomed, [&wall] { return wall->GetTVWallRect().size() == WallSize * 1.5; });
}

double NormalZoomTime()
{
    const auto wall = MakeOperateWall(OperateWall::NormalMode);
    OpenWindows(*wall);
    DeliverAll();
    const auto* view = wall->findChild<QGraphicsView*>();
    return ZoomTime(*view->viewport(), [view] {
        return view->scene()->itemsBoundingRect().width() > 1.4 * WallSize.width();
    });
}

void BenchmarkZooming(const char* name, double (*zoomTime)())
{
    const QString sheet = WidgetSheet();
    std::vector<double> ours;
    std::vector<double> theirs;
    for (int i = 0; i < Rounds; ++i) {
        ours.push_back(zoomTime());
        QWidget view;
        view.resize(WallSize);
        auto* bare = new BareWall(sheet);
        bare->setParent(&view);
        bare->resize(WallSize);
        view.show();
        bare->OpenWindows();
        DeliverAll();
        theirs.push_back(StepTime([bare](int step) {
            const QRect zoomed(QPoint(-WallSize.width(), -WallSize.height()) / 4, WallSize * 1.5);
            bare->setGeometry(step % 2 == 0 ? zoomed : QRect(QPoint(0, 0), WallSize));
        }));
    }
    Ratio::PrintMedians(name, ours, theirs);
}

void SendMouse(QWidget* receiver, QEvent::Type type, const QPoint& global, Qt::MouseButtons buttons)
{
    QMouseEvent event(type, receiver->mapFromGlobal(global), global, Qt::LeftButton, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(receiver, &event);
}

/// Drags a window whose title bar @p receiver shows at @p press, against moving a window's widget.
void BenchmarkDragging(const char* name, QWidget* receiver, const QPoint& press)
{
    constexpr int StepsARound = 20;
    const auto other = MakeWall<KvTVWallDisplayWnd>();
    OpenWindows(*other);
    DeliverAll();
    QWidget* moved = other->GetWindowWidget(8, 12)->parentWidget();
    const QPoint start = moved->pos();
    SendMouse(receiver, QEvent::MouseButtonPress, press, Qt::LeftButton);
    Ratio::Print(
        name, Rounds,
        [&] {
            for (int i = 1; i <= StepsARound; ++i) {
                SendMouse(receiver, QEvent::MouseMove, press + QPoint(i, i % 7), Qt::LeftButton);
                DeliverAll();
            }
        },
        [&] {
            for (int i = 1; i <= StepsARound; ++i) {
                moved->move(start + QPoint(i, i % 7));
                DeliverAll();
            }
        });
    SendMouse(receiver, QEvent::MouseButtonRelease, press + QPoint(20, 6), Qt::NoButton);
}

void BenchmarkDisplayDragging()
{
    const auto wall = MakeWall<KvTVWallDisplayWnd>();
    OpenWindows(*wall);
    DeliverAll();
    const QWidget* dragged = wall->GetWindowWidget(7, 12)->parentWidget();
    const QPoint from = dragged->pos();
    auto* title = dragged->findChild<QWidget*>(QStringLiteral("pWindowTitleText"));
    BenchmarkDragging("drag_one_of_900_windows", title, title->mapToGlobal(QPoint(8, 8)));
    if (dragged->pos() == from)
        qFatal("the window was not dragged");
}

void BenchmarkNormalDragging()
{
    const auto wall = MakeWall<KvTVWallNormalWnd>();
    OpenWindows(*wall);
    DeliverAll();
    KvGUI::StructScaleRect from;
    wall->GetWindowScale(7, 12, from);
    // Screen 7 is the second of the second row; its title bars are 24 pixels high.
    const QSize screen = WallSize / FullWall.screens;
    const QPoint corner(
        screen.width() + int(screen.width() * from.dLeft),
        screen.height() + int(screen.height() * from.dTop));
    QWidget* viewport = wall->findChild<QGraphicsView*>()->viewport();
    BenchmarkDragging(
        "normal_drag_one_of_900_windows", viewport, viewport->mapToGlobal(corner + QPoint(8, 8)));
    KvGUI::StructScaleRect to;
    wall->GetWindowScale(7, 12, to);
    if (to.dLeft == from.dLeft)
        qFatal("the window was not dragged");
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    BenchmarkOpening<KvTVWallDisplayWnd>("open_900_windows");
    BenchmarkResizing<KvTVWallDisplayWnd>("resize_900_windows", false);
    BenchmarkResizing<KvTVWallDisplayWnd>("resize_900_videos", true);
    BenchmarkZooming("zoom_900_windows", DisplayZoomTime);
    BenchmarkDisplayDragging();
    BenchmarkOpening<KvTVWallNormalWnd>("normal_open_900_windows");
    BenchmarkResizing<KvTVWallNormalWnd>("normal_resize_900_windows", false);
    BenchmarkResizing<KvTVWallNormalWnd>("normal_resize_900_videos", true);
    BenchmarkZooming("normal_zoom_900_windows", NormalZoomTime);
    BenchmarkNormalDragging();
    return 0;
}
