// The three walls: the same operations by the same names.

#include "Kind.h"

#include <UI/TVWall/KvTVWallDisplayWnd.h>
#include <UI/TVWall/KvTVWallNormalWnd.h>
#include <UI/TVWall/KvTVWallOperateWnd.h>

#include <QGraphicsProxyWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QRubberBand>
#include <algorithm>
#include <cmath>

namespace Storms {

using KvGUI::StructScaleRect;
using OperateWall = UICommonMdl::KvTVWallOperateWnd;
using DisplayWall = UICommonMdl::KvTVWallDisplayWnd;
using NormalWall = UICommonMdl::KvTVWallNormalWnd;

namespace {

// ---- Operations

template <class Wall>
void AddScreen(QWidget& widget, Dice& dice)
{
    auto& wall = static_cast<Wall&>(widget);
    if (wall.GetScreenCount() < 5)
        wall.AddScreen(dice.Rect(), QIcon(), dice.Text(), dice.Text());
}

template <class Wall>
void OpenWindow(QWidget& widget, Dice& dice)
{
    auto& wall = static_cast<Wall&>(widget);
    const int screen = dice.Below(wall.GetScreenCount() + 2) - 1;
    if (wall.GetWindowCount(screen) < 8)
        wall.OpenWindow(screen, dice.Rect(), dice.Text());
}

template <class Wall>
void DeleteVideo(QWidget& widget, Dice& dice)
{
    if (QWidget* video = static_cast<Wall&>(widget).GetWindowWidget(dice.Below(5), dice.Below(8)))
        video->deleteLater(); // it may be getting the event
}

template <class Wall>
void SetGrid(QWidget& widget, Dice& dice)
{
    static_cast<Wall&>(widget).SetTVWallGridCount(1 + dice.Below(5), dice.OneIn(2) ? 1 << 30 : 3);
}

/// What the three walls have in common.
template <class Wall>
QVector<Operation> Operations()
{
    return {
        &AddScreen<Wall>,
        &OpenWindow<Wall>,
        &OpenWindow<Wall>,
        &OpenWindow<Wall>,
        &DeleteVideo<Wall>,
        &SetGrid<Wall>,
        Op(&Wall::DeleteWindow),
        Op(QOverload<int>::of(&Wall::DeleteAllWindows)),
        Op(QOverload<>::of(&Wall::DeleteAllWindows)),
        Op(&Wall::DeleteAllScreen),
        Op(&Wall::SetWindowScale),
        Op(&Wall::SetWindowScale),
        Op(&Wall::SetWindowZValue),
        Op(&Wall::SetSelectedWindowIndexs),
        Op(&Wall::SetSelectedScreenIndex),
        Op(&Wall::SetWindowSelectionMode),
        Op(&Wall::SetWindowSelectionMode),
        Op(&Wall::SetPtzFrameSelectedEnable),
        Op(&Wall::SetScreenOSDInfo),
        Op(&Wall::SetWindowTitleShow),
        Op(&Wall::SetScreenTitle),
        Op(&Wall::SetScreenContentText),
        Op(&Wall::SetScreenUserData),
        Op(&Wall::SetWindowUserData),
        Op(&Wall::SetWindowContentText),
        Op(&Wall::SetWindowVideoWidgetText),
        Op(&Wall::SetWindowVolumeBtn),
        Op(&Wall::SetWindowUpdateEnable),
        Op(&Wall::DeleteWindowWidget)};
}

void SetMode(QWidget& wall, Dice& dice)
{
    static_cast<OperateWall&>(wall).SetShowMode(dice.OneIn(9) ? dice.Int() : dice.Below(2));
}

// ---- Checks

/// Children that are not hidden: what was removed is hidden at once and deleted later.
template <typename Widget>
QList<Widget*> Shown(const QWidget& parent, Qt::FindChildOptions options = Qt::FindDirectChildrenOnly)
{
    QList<Widget*> children = parent.findChildren<Widget*>(QString(), options);
    const auto hidden = [](const QWidget* child) { return child->isHidden(); };
    children.erase(std::remove_if(children.begin(), children.end(), hidden), children.end());
    return children;
}

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

/// Where a window's video says that the window is: a widget, or an item of a scene.
bool IsVideoInPlace(const QWidget& video, const QSize& screen, const StructScaleRect& rect)
{
    const QGraphicsProxyWidget* proxy = video.graphicsProxyWidget();
    if (proxy == nullptr)
        return IsInPlace(video.parentWidget()->geometry(), screen, rect);
    const QGraphicsItem* window = proxy->parentItem();
    const QRect place = window->boundingRect().translated(window->pos()).toRect();
    return window->isVisible()
        && IsInPlace(place, window->parentItem()->boundingRect().size().toSize(), rect);
}

template <class Wall>
bool IsScreenRight(const Wall& wall, int s, const QMdiArea* screen, bool held)
{
    QList<QMdiSubWindow*> windows
        = screen != nullptr ? Shown<QMdiSubWindow>(*screen->viewport()) : QList<QMdiSubWindow*>();
    bool right = screen == nullptr || windows.size() == wall.GetAllWindowIndexs(s).size();
    for (int w = 0; right && w < wall.GetWindowCount(s); ++w) {
        StructScaleRect rect;
        right = wall.GetWindowScale(s, w, rect) && wall.GetWindowZValue(s, w) <= wall.GetMaxWindowZValue(s);
        // Items make a difference themselves: some make their videos when first asked for.
        const QWidget* video = screen == nullptr && s % 2 == 0 ? nullptr : wall.GetWindowWidget(s, w);
        if (video == nullptr) // or the client deleted it
            continue;
        if (screen != nullptr)
            right = right && windows.removeOne(qobject_cast<QMdiSubWindow*>(video->parentWidget()));
        right = right && (held || IsVideoInPlace(*video, screen != nullptr ? screen->size() : QSize(), rect));
    }
    return right;
}

template <class Wall>
QString WallFault(QWidget& widget, bool held)
{
    const auto& wall = static_cast<const Wall&>(widget);
    QList<int> indexes = wall.GetUnSelectedWindowIndexs() + wall.GetSelectedWindowIndexs();
    std::sort(indexes.begin(), indexes.end());
    if (indexes != wall.GetAllWindowIndexs(wall.GetSelectedScreenIndex()))
        return QStringLiteral("selected windows");
    if (!held && !Shown<QRubberBand>(wall, Qt::FindChildrenRecursively).isEmpty())
        return QStringLiteral("a band that nobody draws");
    if (!wall.isVisible() || wall.GetScreenCount() == 0)
        return QString();
    const auto* display = qobject_cast<const DisplayWall*>(&widget);
    if (display == nullptr && wall.GetWindowScalePrecision() < 0.0015)
        display = widget.findChild<DisplayWall*>();
    if (display != nullptr && display != &widget && !widget.rect().isEmpty()
        && !display->geometry().contains(widget.rect()))
        return QStringLiteral("a view that the wall does not cover");
    const QList<QMdiArea*> screens = display != nullptr ? Shown<QMdiArea>(*display) : QList<QMdiArea*>();
    bool right = display == nullptr || screens.size() == wall.GetScreenCount();
    for (int s = 0; right && s < wall.GetScreenCount(); ++s)
        right = IsScreenRight(wall, s, screens.value(s), held);
    return right ? QString() : QStringLiteral("screens or windows");
}

/// Whether the indices in a signal name something. The unknown mode of the operate wall finds nothing.
template <class Wall>
bool IsWallSignalRight(QWidget& widget, const QMetaMethod& signal, void** arguments)
{
    const auto& wall = static_cast<const Wall&>(widget);
    const QList<QByteArray> names = signal.parameterNames();
    if (!names.contains("iScreen") || wall.GetWindowScalePrecision() == 0.0)
        return true;
    const int s = *static_cast<const int*>(arguments[1]);
    const int w = names.contains("iWindow") ? *static_cast<const int*>(arguments[2]) : -1;
    return s >= 0 && s < wall.GetScreenCount()
        && w < qMax(wall.GetWindowCount(s), names.contains("iWindow") ? 0 : 1);
}

/// Often in the title bar of a window, where the wall is not zoomed.
template <class Wall>
QPoint Spot(QWidget& widget, Dice& dice)
{
    const auto& wall = static_cast<const Wall&>(widget);
    StructScaleRect screen;
    StructScaleRect window;
    const int s = dice.Below(wall.GetScreenCount() + 1);
    if (dice.OneIn(3) || !wall.GetScreenScale(s, screen)
        || !wall.GetWindowScale(s, dice.Below(wall.GetWindowCount(s) + 1), window))
        return dice.PointIn(widget.size());
    const double left = screen.dLeft + window.dLeft * (screen.dRight - screen.dLeft);
    const double top = screen.dTop + window.dTop * (screen.dBottom - screen.dTop);
    const auto pixel = [](int length, double part) { return int(length * qBound(0.0, part, 1.0)); };
    return QPoint(pixel(widget.width(), left), pixel(widget.height(), top)) + dice.PointIn({150, 25});
}

template <class Wall>
Kind MakeWall(const QVector<Operation>& ownOperations)
{
    return {
        Wall::staticMetaObject.className(),
        [](QWidget* parent) -> QWidget* {
            auto* wall = new Wall(parent);
            if (auto* operate = qobject_cast<OperateWall*>(wall))
                operate->SetShowMode(OperateWall::DisplayMode);
            wall->SetTVWallGridCount(2, 2);
            for (const StructScaleRect& half : {StructScaleRect{0.0, 0.0, 0.5, 1.0}, {0.5, 0.0, 1.0, 1.0}})
                wall->OpenWindow(wall->AddScreen(half, QVariant()), {0.1, 0.1, 0.9, 0.9, true}, QVariant());
            return wall;
        },
        Operations<Wall>() + ownOperations,
        &WallFault<Wall>,
        &IsWallSignalRight<Wall>,
        &Spot<Wall>,
    };
}

} // namespace

QVector<Kind> WallKinds()
{
    return {
        MakeWall<OperateWall>(
            {&SetMode, &SetMode, Op(&OperateWall::SetDeviceType), Op(&OperateWall::SetScreenFreeMode),
             Op(&OperateWall::SetAudioBtnVisible), Op(&OperateWall::SetScreenWindowColor),
             Op(&OperateWall::SetScreenBaseMap), Op(&OperateWall::RecoverEagleEye)}),
        MakeWall<DisplayWall>(
            {Op(&DisplayWall::SetDeviceType), Op(&DisplayWall::SetScreenWindowBackgroudColor),
             Op(&DisplayWall::SetScreenBaseMapShow)}),
        MakeWall<NormalWall>(
            {Op(&NormalWall::SetScreenFreeMode), Op(&NormalWall::SetAudioBtnVisible),
             Op(&NormalWall::RecoverEagleEye)}),
    };
}

} // namespace Storms
