#include "KvTVWallOperateWnd_p.h"

#include "WallGeometry.h"

#include <Common/CommonFun.h>

#include <limits>
#include <type_traits>
#include <utility>

namespace UICommonMdl {

namespace {

const char* const SignalsOfBothFamilies[] = {
    SIGNAL(SignalScreenEvent(int, QEvent*)),
    SIGNAL(SignalScreenSelectedChanged(int)),
    SIGNAL(SignalScreenCloseBtnClicked(int)),
    SIGNAL(SignalWindowEvent(int, int, QEvent*)),
    SIGNAL(SignalWindowSelectedChanged(int)),
    SIGNAL(SignalWindowCloseBtnClicked(int, int)),
    SIGNAL(SignalWindowVolumeBtnClicked(int, int)),
    SIGNAL(SignalWindowGeoChanged(int, int, KvGUI::StructScaleRect)),
    SIGNAL(SignalDrawAreaOpenWindow(int, KvGUI::StructScaleRect)),
};

const char* const SignalsOfTheDisplayFamily[] = {
    SIGNAL(SignalWindowDoubleClicked(int)),      SIGNAL(SignalWindowClicked()),
    SIGNAL(SignalScreenRightClick(int)),         SIGNAL(SignalWindow3DSite(int, int, int, int, int)),
    SIGNAL(SignalLabelEvent(int, int, QEvent*)),
};

/// The normal family's z-value, which is never NaN, without its fraction.
int Truncated(double z)
{
    using Limits = std::numeric_limits<int>;
    return int(qBound(double(Limits::min()), z, double(Limits::max())));
}

} // namespace

// ---- The private object

KvTVWallOperateWndPrivate::KvTVWallOperateWndPrivate(KvTVWallOperateWnd* operate)
    : QObject(operate)
    , q(operate)
{ }

void KvTVWallOperateWndPrivate::MakeNormalWall()
{
    if (normalWall)
        return;
    normalWall = new KvTVWallNormalWnd(q);
    for (const char* signal : SignalsOfBothFamilies)
        connect(normalWall, signal, q, signal);
    normalWall->show();
}

void KvTVWallOperateWndPrivate::MakeDisplayWall()
{
    if (!displayWall) {
        displayWall = new KvTVWallDisplayWnd(q);
        for (const char* signal : SignalsOfBothFamilies)
            connect(displayWall, signal, q, signal);
        for (const char* signal : SignalsOfTheDisplayFamily)
            connect(displayWall, signal, q, signal);
        connect(displayWall, SIGNAL(SignalWheelEvent(int, QPoint)), q, SLOT(OnWheelEvent(int, QPoint)));
        horizontal = WallZoom::Axis();
        vertical = WallZoom::Axis();
        displayWall->show();
        delete eagleEye; // of a wall that the client has deleted
    }
    if (!eagleEye) {
        eagleEye = new KvTVWallDisplayEagleEye(displayWall, q);
        connect(eagleEye, SIGNAL(SignalAreaChanged()), q, SLOT(OnEagleEyeAreaChanged()));
        connect(eagleEye, SIGNAL(SignalLocated(float, float)), q, SLOT(OnEagleEyeLocated(float, float)));
        eagleEye->show();
    }
    eagleEye->raise();
}

// What goes with a child may call back, so all of them are out of reach first: not by disconnect(), after
// which nobody would learn of their end, the table of what assistive technology knows among them.
void KvTVWallOperateWndPrivate::Delete(const QVector<QPointer<QWidget>>& children)
{
    for (QWidget* child : children) {
        if (child != nullptr)
            child->blockSignals(true);
    }
    const QPointer<KvTVWallOperateWndPrivate> alive(this);
    for (QWidget* child : children) {
        if (child == nullptr) // there was none, or it went with the operate wall
            continue;
        going << child;
        delete child;
        if (alive)
            going.removeOne(child);
    }
}

void KvTVWallOperateWndPrivate::DeleteNormalWall() { Delete({std::exchange(normalWall, nullptr).data()}); }

void KvTVWallOperateWndPrivate::DeleteDisplayWall()
{
    Delete({std::exchange(eagleEye, nullptr).data(), std::exchange(displayWall, nullptr).data()});
}

void KvTVWallOperateWndPrivate::LayOut()
{
    if (Normal() != nullptr) {
        normalWall->setGeometry(q->rect());
    } else if (Display() != nullptr) {
        horizontal = WallZoom::Resized(horizontal, float(q->width()));
        vertical = WallZoom::Resized(vertical, float(q->height()));
        PlaceEagleEye();
        PlaceDisplayWall();
    }
}

// The wall comes last: with it the client's widgets in its windows are resized, and may do anything.
void KvTVWallOperateWndPrivate::PlaceDisplayWall()
{
    if (eagleEye)
        eagleEye->SetArea(
            WallZoom::ViewStart(horizontal), WallZoom::ViewStart(vertical), WallZoom::ViewExtent(horizontal),
            WallZoom::ViewExtent(vertical));
    displayWall->setGeometry(
        WallZoom::Pixel(horizontal.offset), WallZoom::Pixel(vertical.offset), horizontal.wall, vertical.wall);
}

void KvTVWallOperateWndPrivate::PlaceEagleEye()
{
    if (eagleEye)
        eagleEye->move(
            WallGeometry::Truncated(double(horizontal.view - float(eagleEye->width()))),
            WallGeometry::Truncated(double(vertical.view - float(eagleEye->height()))));
}

// ---- The widget

KvTVWallOperateWnd::KvTVWallOperateWnd(QWidget* parent)
    : QWidget(parent)
    , m_pPrivate(new KvTVWallOperateWndPrivate(this))
{
    setLayoutDirection(Qt::LeftToRight); // the picture of a room is not turned round
    CommonFun::SetStyleSheet(this, QStringLiteral("TVWallOperateWnd"), QString(), QString());
}

// The walls go first, as long as there is someone whom their end can reach.
KvTVWallOperateWnd::~KvTVWallOperateWnd()
{
    d_func()->DeleteDisplayWall();
    d_func()->DeleteNormalWall();
    for (QWidget* going : qAsConst(d_func()->going))
        going->setParent(nullptr); // or it would go with the children once more
}

void KvTVWallOperateWnd::SetShowMode(int iMode)
{
    KvTVWallOperateWndPrivate* d = d_func();
    d->showMode = iMode;
    if (iMode != NormalMode && iMode != DisplayMode)
        return;
    const QPointer<KvTVWallOperateWnd> alive(this);
    iMode == NormalMode ? d->DeleteDisplayWall() : d->DeleteNormalWall();
    // What the client had in the wall may have called back as it went.
    if (!alive || d->showMode != iMode)
        return;
    iMode == NormalMode ? d->MakeNormalWall() : d->MakeDisplayWall();
    d->LayOut();
}

QSize KvTVWallOperateWnd::sizeHint() const { return {960, 540}; }

void KvTVWallOperateWnd::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    d_func()->LayOut();
}

void KvTVWallOperateWnd::OnWheelEvent(int iDelta, const QPoint& pos)
{
    KvTVWallOperateWndPrivate* d = d_func();
    if (d->Display() == nullptr)
        return;
    const bool larger = iDelta >= 1;
    d->horizontal = WallZoom::Zoomed(d->horizontal, pos.x(), larger);
    d->vertical = WallZoom::Zoomed(d->vertical, pos.y(), larger);
    d->PlaceDisplayWall();
}

void KvTVWallOperateWnd::OnEagleEyeAreaChanged()
{
    if (d_func()->Display() != nullptr)
        d_func()->PlaceEagleEye();
}

void KvTVWallOperateWnd::OnEagleEyeLocated(float fX, float fY)
{
    KvTVWallOperateWndPrivate* d = d_func();
    if (d->Display() == nullptr)
        return;
    d->horizontal = WallZoom::Located(d->horizontal, fX);
    d->vertical = WallZoom::Located(d->vertical, fY);
    d->PlaceDisplayWall();
}

// ---- Operations of one family, or of both with a difference

void KvTVWallOperateWnd::SetDeviceType(bool bNoGap)
{
    if (KvTVWallDisplayWnd* wall = d_func()->Display())
        wall->SetDeviceType(bNoGap);
}

double KvTVWallOperateWnd::GetWindowScalePrecision() const
{
    // The normal family's also before there is a wall.
    const double otherwise = d_func()->showMode == NormalMode ? WallGeometry::NormalPrecision : 0.0;
    return d_func()->OnWall([](auto& wall) { return wall.GetWindowScalePrecision(); }, otherwise);
}

void KvTVWallOperateWnd::SetWindowSelectionMode(SelectionMode mode)
{
    d_func()->OnWall([&](auto& wall) {
        using Wall = std::remove_reference_t<decltype(wall)>;
        wall.SetWindowSelectionMode(typename Wall::SelectionMode(mode));
    });
}

KvTVWallOperateWnd::SelectionMode KvTVWallOperateWnd::GetWindowSelectionMode() const
{
    return d_func()->OnWall([](auto& wall) { return wall.GetWindowSelectionMode(); }, NoSelection);
}

QRect KvTVWallOperateWnd::GetTVWallRect() const
{
    return d_func()->OnWall([](auto& wall) { return wall.rect(); }, QRect());
}

void KvTVWallOperateWnd::RecoverEagleEye()
{
    if (KvTVWallNormalWnd* wall = d_func()->Normal())
        wall->RecoverEagleEye();
}

void KvTVWallOperateWnd::SetAudioBtnVisible(bool bVisible)
{
    if (KvTVWallNormalWnd* wall = d_func()->Normal())
        wall->SetAudioBtnVisible(bVisible);
}

bool KvTVWallOperateWnd::SetScreenWindowColor(int iScreen, const QColor& color, bool bShow)
{
    KvTVWallDisplayWnd* wall = d_func()->Display();
    return wall != nullptr && wall->SetScreenWindowBackgroudColor(iScreen, color, bShow);
}

bool KvTVWallOperateWnd::SetScreenBaseMap(int iScreen, std::string path, bool bShow)
{
    KvTVWallDisplayWnd* wall = d_func()->Display();
    return wall != nullptr && wall->SetScreenBaseMapShow(iScreen, std::move(path), bShow);
}

void KvTVWallOperateWnd::SetScreenFreeMode(int iScreen, bool bFree)
{
    if (KvTVWallNormalWnd* wall = d_func()->Normal())
        wall->SetScreenFreeMode(iScreen, bFree);
}

bool KvTVWallOperateWnd::IsScreenFreeMode(int iScreen) const
{
    const KvTVWallNormalWnd* wall = d_func()->Normal();
    return wall == nullptr || wall->IsScreenFreeMode(iScreen);
}

void KvTVWallOperateWnd::SetSelectedScreenIndex(int iScreen)
{
    if (KvTVWallNormalWnd* wall = d_func()->Normal())
        wall->SetSelectedScreenIndex(iScreen);
}

bool KvTVWallOperateWnd::SetWindowZValue(int iScreen, int iWindow, int iZ, bool bReorder)
{
    if (KvTVWallNormalWnd* wall = d_func()->Normal())
        return wall->SetWindowZValue(iScreen, iWindow, double(iZ));
    KvTVWallDisplayWnd* wall = d_func()->Display();
    return wall != nullptr && wall->SetWindowZValue(iScreen, iWindow, iZ, bReorder);
}

int KvTVWallOperateWnd::GetWindowZValue(int iScreen, int iWindow) const
{
    return d_func()->OnWall(
        [&](auto& wall) { return Truncated(wall.GetWindowZValue(iScreen, iWindow)); }, -1);
}

int KvTVWallOperateWnd::GetMaxWindowZValue(int iScreen) const
{
    return d_func()->OnWall([&](auto& wall) { return Truncated(wall.GetMaxWindowZValue(iScreen)); }, 0);
}

// ---- Operations of both families alike

void KvTVWallOperateWnd::SetTVWallGridCount(int iRows, int iCols)
{
    d_func()->OnWall([&](auto& wall) { wall.SetTVWallGridCount(iRows, iCols); });
}

int KvTVWallOperateWnd::GetRowCount() const
{
    return d_func()->OnWall([](auto& wall) { return wall.GetRowCount(); }, 0);
}

int KvTVWallOperateWnd::GetColumnCount() const
{
    return d_func()->OnWall([](auto& wall) { return wall.GetColumnCount(); }, 0);
}

void KvTVWallOperateWnd::SetWindowTitleShow(bool bShow)
{
    d_func()->OnWall([&](auto& wall) { wall.SetWindowTitleShow(bShow); });
}

void KvTVWallOperateWnd::SetPtzFrameSelectedEnable(bool bEnable)
{
    d_func()->OnWall([&](auto& wall) { wall.SetPtzFrameSelectedEnable(bEnable); });
}

int KvTVWallOperateWnd::AddScreen(
    const KvGUI::StructScaleRect& rect, const QIcon& icon, const QString& title, const QVariant& userData)
{
    return d_func()->OnWall([&](auto& wall) { return wall.AddScreen(rect, icon, title, userData); }, -1);
}

int KvTVWallOperateWnd::AddScreen(const KvGUI::StructScaleRect& rect, const QVariant& userData)
{
    return d_func()->OnWall([&](auto& wall) { return wall.AddScreen(rect, userData); }, -1);
}

bool KvTVWallOperateWnd::DeleteAllScreen()
{
    return d_func()->OnWall([](auto& wall) { return wall.DeleteAllScreen(); }, false);
}

int KvTVWallOperateWnd::GetScreenCount() const
{
    return d_func()->OnWall([](auto& wall) { return wall.GetScreenCount(); }, 0);
}

bool KvTVWallOperateWnd::GetScreenScale(int iScreen, KvGUI::StructScaleRect& rect) const
{
    return d_func()->OnWall([&](auto& wall) { return wall.GetScreenScale(iScreen, rect); }, false);
}

bool KvTVWallOperateWnd::SetScreenTitle(int iScreen, const QString& title)
{
    return d_func()->OnWall([&](auto& wall) { return wall.SetScreenTitle(iScreen, title); }, false);
}

bool KvTVWallOperateWnd::SetScreenContentText(int iScreen, const QString& text)
{
    return d_func()->OnWall([&](auto& wall) { return wall.SetScreenContentText(iScreen, text); }, false);
}

void KvTVWallOperateWnd::SetScreenUserData(int iScreen, const QVariant& userData)
{
    d_func()->OnWall([&](auto& wall) { wall.SetScreenUserData(iScreen, userData); });
}

QVariant KvTVWallOperateWnd::GetScreenUserData(int iScreen) const
{
    return d_func()->OnWall([&](auto& wall) { return wall.GetScreenUserData(iScreen); }, QVariant());
}

bool KvTVWallOperateWnd::SetScreenOSDInfo(int iScreen, std::vector<KvGUI::StructOSDInfo>& infos)
{
    return d_func()->OnWall([&](auto& wall) { return wall.SetScreenOSDInfo(iScreen, infos); }, false);
}

int KvTVWallOperateWnd::GetSelectedScreenIndex() const
{
    return d_func()->OnWall([](auto& wall) { return wall.GetSelectedScreenIndex(); }, -1);
}

int KvTVWallOperateWnd::OpenWindow(int iScreen, const KvGUI::StructScaleRect& rect, const QVariant& userData)
{
    return d_func()->OnWall([&](auto& wall) { return wall.OpenWindow(iScreen, rect, userData); }, -1);
}

bool KvTVWallOperateWnd::DeleteWindow(int iScreen, int iWindow)
{
    return d_func()->OnWall([&](auto& wall) { return wall.DeleteWindow(iScreen, iWindow); }, false);
}

void KvTVWallOperateWnd::DeleteAllWindows(int iScreen)
{
    d_func()->OnWall([&](auto& wall) { wall.DeleteAllWindows(iScreen); });
}

void KvTVWallOperateWnd::DeleteAllWindows()
{
    d_func()->OnWall([](auto& wall) { wall.DeleteAllWindows(); });
}

int KvTVWallOperateWnd::GetWindowCount(int iScreen) const
{
    return d_func()->OnWall([&](auto& wall) { return wall.GetWindowCount(iScreen); }, 0);
}

QList<int> KvTVWallOperateWnd::GetAllWindowIndexs(int iScreen) const
{
    return d_func()->OnWall([&](auto& wall) { return wall.GetAllWindowIndexs(iScreen); }, QList<int>());
}

QList<int> KvTVWallOperateWnd::GetSelectedWindowIndexs() const
{
    return d_func()->OnWall([](auto& wall) { return wall.GetSelectedWindowIndexs(); }, QList<int>());
}

QList<int> KvTVWallOperateWnd::GetUnSelectedWindowIndexs() const
{
    return d_func()->OnWall([](auto& wall) { return wall.GetUnSelectedWindowIndexs(); }, QList<int>());
}

void KvTVWallOperateWnd::SetSelectedWindowIndexs(int iScreen, int iWindow, bool bSelected)
{
    d_func()->OnWall([&](auto& wall) { wall.SetSelectedWindowIndexs(iScreen, iWindow, bSelected); });
}

bool KvTVWallOperateWnd::SetWindowScale(int iScreen, int iWindow, const KvGUI::StructScaleRect& rect)
{
    return d_func()->OnWall([&](auto& wall) { return wall.SetWindowScale(iScreen, iWindow, rect); }, false);
}

bool KvTVWallOperateWnd::GetWindowScale(int iScreen, int iWindow, KvGUI::StructScaleRect& rect) const
{
    return d_func()->OnWall([&](auto& wall) { return wall.GetWindowScale(iScreen, iWindow, rect); }, false);
}

void KvTVWallOperateWnd::SetWindowUserData(int iScreen, int iWindow, const QVariant& userData)
{
    d_func()->OnWall([&](auto& wall) { wall.SetWindowUserData(iScreen, iWindow, userData); });
}

QVariant KvTVWallOperateWnd::GetWindowUserData(int iScreen, int iWindow) const
{
    return d_func()->OnWall([&](auto& wall) { return wall.GetWindowUserData(iScreen, iWindow); }, QVariant());
}

bool KvTVWallOperateWnd::SetWindowContentText(int iScreen, int iWindow, const QString& text)
{
    return d_func()->OnWall(
        [&](auto& wall) { return wall.SetWindowContentText(iScreen, iWindow, text); }, false);
}

bool KvTVWallOperateWnd::SetWindowVolumeBtn(int iScreen, int iWindow, bool bOn)
{
    return d_func()->OnWall(
        [&](auto& wall) { return wall.SetWindowVolumeBtn(iScreen, iWindow, bOn); }, false);
}

bool KvTVWallOperateWnd::GetWindowVolumeBtnStatus(int iScreen, int iWindow) const
{
    return d_func()->OnWall(
        [&](auto& wall) { return wall.GetWindowVolumeBtnStatus(iScreen, iWindow); }, false);
}

QWidget* KvTVWallOperateWnd::GetWindowWidget(int iScreen, int iWindow) const
{
    return d_func()->OnWall(
        [&](auto& wall) { return wall.GetWindowWidget(iScreen, iWindow); }, static_cast<QWidget*>(nullptr));
}

bool KvTVWallOperateWnd::DeleteWindowWidget(int iScreen, int iWindow)
{
    return d_func()->OnWall([&](auto& wall) { return wall.DeleteWindowWidget(iScreen, iWindow); }, false);
}

bool KvTVWallOperateWnd::SetWindowVideoWidgetText(int iScreen, int iWindow, const QString& text)
{
    return d_func()->OnWall(
        [&](auto& wall) { return wall.SetWindowVideoWidgetText(iScreen, iWindow, text); }, false);
}

bool KvTVWallOperateWnd::SetWindowUpdateEnable(int iScreen, int iWindow, bool bEnable)
{
    return d_func()->OnWall(
        [&](auto& wall) { return wall.SetWindowUpdateEnable(iScreen, iWindow, bEnable); }, false);
}

} // namespace UICommonMdl
