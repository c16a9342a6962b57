// The display wall, alone and in the operate wall, with 36 screens of 25 windows against the same widgets in
// bare MDI areas.

#include "Ratio.h"

#include <UI/TVWall/KvTVWallDisplayWnd.h>
#include <UI/TVWall/KvTVWallOperateWnd.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMouseEvent>
#include <QPushButton>
#include <QWheelEvent>
#include <functional>
#include <memory>

namespace {

constexpr int ScreensAcross = 6;
constexpr int WindowsAcross = 5;
constexpr QSize WallSize(1920, 1080);
constexpr int Rounds = 7;

KvGUI::StructScaleRect Cell(int index, int across)
{
    const double side = 1.0 / across;
    const double left = (index % across) * side;
    const double top = (index / across) * side; // NOLINT(bugprone-integer-division)
    return {left, top, left + side, top + side, true};
}

/// Handles all posted events, layout and painting included.
void DeliverAll()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

using Wall = UICommonMdl::KvTVWallDisplayWnd;
using OperateWall = UICommonMdl::KvTVWallOperateWnd;

void ChooseFamily(Wall&) { }
void ChooseFamily(OperateWall& wall) { wall.SetShowMode(OperateWall::DisplayMode); }

template <typename AnyWall = Wall>
std::unique_ptr<AnyWall> MakeWall()
{
    auto wall = std::make_unique<AnyWall>();
    wall->resize(WallSize);
    ChooseFamily(*wall);
    wall->SetTVWallGridCount(ScreensAcross, ScreensAcross);
    wall->SetWindowTitleShow(true);
    wall->show();
    for (int s = 0; s < ScreensAcross * ScreensAcross; ++s)
        wall->AddScreen(Cell(s, ScreensAcross), QVariant());
    return wall;
}

template <typename AnyWall>
void OpenWindows(AnyWall& wall)
{
    for (int s = 0; s < wall.GetScreenCount(); ++s) {
        for (int w = 0; w < WindowsAcross * WindowsAcross; ++w)
            wall.OpenWindow(s, Cell(w, WindowsAcross), QVariant());
    }
}

/// The same children, placed by the same numbers, in QMdiArea and QMdiSubWindow as they are.
class BareWall : public QWidget
{
public:
    explicit BareWall(const QString& sheet)
    {
        setAttribute(Qt::WA_StyledBackground);
        setStyleSheet(sheet);
        for (int s = 0; s < ScreensAcross * ScreensAcross; ++s) {
            auto* area = new QMdiArea(this);
            area->setFrameStyle(QFrame::NoFrame);
            m_areas << area;
        }
    }

    void OpenWindows()
    {
        for (QMdiArea* area : qAsConst(m_areas)) {
            for (int w = 0; w < WindowsAcross * WindowsAcross; ++w) {
                auto* window = new QMdiSubWindow;
                AddChildren(window, w);
                area->addSubWindow(window, Qt::FramelessWindowHint | Qt::CustomizeWindowHint);
                m_windows << window;
                Place(window, area, w);
                window->show();
            }
        }
    }

protected:
    void resizeEvent(QResizeEvent*) override
    {
        for (int s = 0; s < m_areas.size(); ++s)
            m_areas.at(s)->setGeometry(Pixels(Cell(s, ScreensAcross), size()));
        for (int w = 0; w < m_windows.size(); ++w) {
            const int perScreen = WindowsAcross * WindowsAcross;
            Place(m_windows.at(w), m_areas.at(w / perScreen), w % perScreen);
        }
    }

private:
    static QRect Pixels(const KvGUI::StructScaleRect& scale, const QSize& size)
    {
        return {
            int(size.width() * scale.dLeft), int(size.height() * scale.dTop),
            int(size.width() * (scale.dRight - scale.dLeft)),
            int(size.height() * (scale.dBottom - scale.dTop))};
    }

    static void AddChildren(QMdiSubWindow* window, int index)
    {
        delete window->layout(); // it would lay out one inner widget over the whole window
        auto* title = new QWidget(window);
        title->setObjectName(QStringLiteral("pWindowTitleBar"));
        title->setAttribute(Qt::WA_StyledBackground);
        auto* layout = new QHBoxLayout(title);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(1);
        auto* text = new QLabel(QStringLiteral("Window %1").arg(index + 1), title);
        text->setObjectName(QStringLiteral("pWindowTitleText"));
        text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        layout->addWidget(text, 1);
        for (const char* name :
             {"pWindowVolumeOffBtn", "pWindowSelfAdaptionBtn", "pWindowMaxBtn", "pWindowCloseBtn"}) {
            auto* button = new QPushButton(title);
            button->setObjectName(QLatin1String(name));
            button->setMaximumSize(20, 20);
            layout->addWidget(button);
        }
        auto* video = new QWidget(window);
        video->setObjectName(QStringLiteral("pWindowVideo"));
        video->setAttribute(Qt::WA_StyledBackground);
    }

    static void Place(QMdiSubWindow* window, const QMdiArea* area, int index)
    {
        window->setGeometry(Pixels(Cell(index, WindowsAcross), area->size()));
        const QList<QWidget*> children
            = window->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        children.at(0)->setGeometry(2, 2, window->width() - 4, 24);
        children.at(1)->setGeometry(1, 26, window->width() - 4, window->height() - 24);
    }

    QList<QMdiArea*> m_areas;
    QList<QMdiSubWindow*> m_windows;
};

void BenchmarkOpening()
{
    std::unique_ptr<Wall> wall;
    std::unique_ptr<BareWall> bare;
    std::vector<double> ours;
    std::vector<double> theirs;
    for (int i = 0; i < Rounds; ++i) {
        wall = MakeWall();
        DeliverAll();
        ours.push_back(Ratio::Milliseconds([&] {
            OpenWindows(*wall);
            DeliverAll();
        }));
        bare = std::make_unique<BareWall>(wall->styleSheet());
        wall.reset();
        bare->resize(WallSize);
        bare->show();
        DeliverAll();
        theirs.push_back(Ratio::Milliseconds([&] {
            bare->OpenWindows();
            DeliverAll();
        }));
        bare.reset();
    }
    Ratio::PrintMedians("open_900_windows", ours, theirs);
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
    return Ratio::MedianMilliseconds(times);
}

/// Of a widget that is resized to and fro.
double ResizeTime(QWidget& widget)
{
    return StepTime([&widget](int step) { widget.resize(step % 2 == 0 ? WallSize * 1.1 : WallSize); });
}

// Never both at once: each bare area filters the events of the whole application.
void BenchmarkResizing()
{
    std::vector<double> ours;
    std::vector<double> theirs;
    QString sheet;
    for (int i = 0; i < Rounds; ++i) {
        {
            const auto wall = MakeWall();
            OpenWindows(*wall);
            DeliverAll();
            ours.push_back(ResizeTime(*wall));
            sheet = wall->styleSheet();
        }
        BareWall bare(sheet);
        bare.resize(WallSize);
        bare.show();
        bare.OpenWindows();
        DeliverAll();
        theirs.push_back(ResizeTime(bare));
    }
    Ratio::PrintMedians("resize_900_windows", ours, theirs);
}

/// Of an operate wall into which the wheel zooms about its middle, and out again.
double ZoomTime(OperateWall& wall)
{
    QWidget* zoomed = wall.GetWindowWidget(0, 0);
    while (zoomed->parentWidget() != &wall)
        zoomed = zoomed->parentWidget();
    return StepTime([&wall, zoomed](int step) {
        const QPoint middle = zoomed->rect().center();
        QWheelEvent turn(
            middle, zoomed->mapToGlobal(middle), {}, {0, step % 2 == 0 ? 120 : -120}, Qt::NoButton,
            Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(zoomed, &turn);
        if (wall.GetTVWallRect().size() != (step % 2 == 0 ? WallSize * 1.5 : WallSize))
            qFatal("the wall was not zoomed");
    });
}

void BenchmarkZooming()
{
    std::vector<double> ours;
    std::vector<double> theirs;
    QString sheet;
    for (int i = 0; i < Rounds; ++i) {
        {
            const auto wall = MakeWall<OperateWall>();
            OpenWindows(*wall);
            DeliverAll();
            ours.push_back(ZoomTime(*wall));
            sheet = wall->findChild<Wall*>()->styleSheet();
        }
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
    Ratio::PrintMedians("zoom_900_windows", ours, theirs);
}

void SendMouse(QWidget* receiver, QEvent::Type type, const QPoint& global, Qt::MouseButtons buttons)
{
    QMouseEvent event(type, receiver->mapFromGlobal(global), global, Qt::LeftButton, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(receiver, &event);
}

void BenchmarkDragging()
{
    constexpr int StepsARound = 20;
    const auto wall = MakeWall();
    OpenWindows(*wall);
    DeliverAll();
    QWidget* dragged = wall->GetWindowWidget(7, 12)->parentWidget();
    QWidget* moved = wall->GetWindowWidget(8, 12)->parentWidget();
    auto* title = dragged->findChild<QWidget*>(QStringLiteral("pWindowTitleText"));
    const QPoint press = title->mapToGlobal(QPoint(8, 8));
    const QPoint start = moved->pos();
    const QPoint draggedFrom = dragged->pos();
    SendMouse(title, QEvent::MouseButtonPress, press, Qt::LeftButton);
    Ratio::Print(
        "drag_one_of_900_windows", Rounds,
        [&] {
            for (int i = 1; i <= StepsARound; ++i) {
                SendMouse(title, QEvent::MouseMove, press + QPoint(i, i % 7), Qt::LeftButton);
                DeliverAll();
            }
        },
        [&] {
            for (int i = 1; i <= StepsARound; ++i) {
                moved->move(start + QPoint(i, i % 7));
                DeliverAll();
            }
        });
    if (dragged->pos() == draggedFrom)
        qFatal("the window was not dragged");
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    BenchmarkOpening();
    BenchmarkResizing();
    BenchmarkZooming();
    BenchmarkDragging();
    return 0;
}
