#include "KvTVWallNormalWnd_p.h"

#include "KvTVWallDisplayEagleEye.h"
#include "KvTVWallDisplayVideo.h"
#include "KvTVWallNormalScreen.h"
#include "KvTVWallNormalView.h"
#include "KvTVWallNormalWindow.h"
#include "WallGeometry.h"
#include "WallRelay.h"

#include <Common/CommonFun.h>

#include <QGraphicsScene>

namespace UICommonMdl {

namespace {

constexpr int NoIndex = -1;

} // namespace

// ---- The private object

KvTVWallNormalWndPrivate::KvTVWallNormalWndPrivate(KvTVWallNormalWnd* wall)
    : WallArrangement(wall)
    , q(wall)
    , view(new KvTVWallNormalView(wall))
{
    connect(view, &KvTVWallNormalView::SignalWheel, this, &KvTVWallNormalWndPrivate::OnWheel);
}

KvTVWallNormalScreen* KvTVWallNormalWndPrivate::AddScreen(const KvGUI::StructScaleRect& rect)
{
    using Screen = KvTVWallNormalScreen;
    auto* screen = new Screen(
        view, WallGeometry::CellSpan(q->GetRowCount(), rect.dTop, rect.dBottom),
        WallGeometry::CellSpan(q->GetColumnCount(), rect.dLeft, rect.dRight), rect);
    view->AddScreen(screen);
    LayOut(); // a hidden wall hears of its size when it is shown
    connect(screen, &Screen::SignalSelected, this, [this, screen] { SelectScreen(screen); });
    WallRelay::RelayScreen(this, view->Screens(), screen, q);
    connect(screen, &Screen::SignalArrangementChanged, this, &WallArrangement::SignalArrangementChanged);
    Q_EMIT SignalArrangementChanged();
    return screen;
}

KvTVWallNormalScreen* KvTVWallNormalWndPrivate::Screen(int screen) const
{
    return view->Screens().value(screen);
}

KvTVWallNormalWindow* KvTVWallNormalWndPrivate::Window(int screen, int window) const
{
    const KvTVWallNormalScreen* found = Screen(screen);
    return found != nullptr ? found->GetWindow(window) : nullptr;
}

int KvTVWallNormalWndPrivate::SelectedScreen() const
{
    const QList<KvTVWallNormalScreen*>& screens = view->Screens();
    for (int i = 0; i < screens.size(); ++i) {
        if (screens.at(i)->IsSelected())
            return i;
    }
    return NoIndex;
}

void KvTVWallNormalWndPrivate::SelectScreen(const KvTVWallNormalScreen* selected)
{
    for (KvTVWallNormalScreen* screen : view->Screens())
        screen->SetSelected(screen == selected);
}

QVector<WallMiniature::Screen> KvTVWallNormalWndPrivate::Miniature() const
{
    QVector<WallMiniature::Screen> miniature;
    for (const KvTVWallNormalScreen* screen : view->Screens())
        miniature << screen->Miniature();
    return miniature;
}

// ---- Zoom

void KvTVWallNormalWndPrivate::PlaceScreens()
{
    view->scene()->update(); // all of it, so that the items need not ask one by one
    // What the client has put into videos is resized, and may zoom the wall or change its screens meanwhile:
    // removed ones live on for now.
    const QList<KvTVWallNormalScreen*> present = view->Screens();
    for (KvTVWallNormalScreen* screen : present) {
        screen->PlaceOnWall(
            QSize(horizontal.wall, vertical.wall),
            QPoint(WallZoom::Pixel(horizontal.offset), WallZoom::Pixel(vertical.offset)));
    }
    ShowOverview();
}

// As long as there is something to find one's way in.
void KvTVWallNormalWndPrivate::ShowOverview()
{
    const bool zoomed = WallZoom::ViewExtent(horizontal) < 1.0F || WallZoom::ViewExtent(vertical) < 1.0F;
    if (m_pOverview == nullptr && !zoomed)
        return;
    if (m_pOverview == nullptr) {
        using Overview = KvTVWallDisplayEagleEye;
        m_pOverview = new Overview(this, q);
        connect(m_pOverview, &Overview::SignalAreaChanged, this, &KvTVWallNormalWndPrivate::PlaceOverview);
        connect(m_pOverview, &Overview::SignalLocated, this, &KvTVWallNormalWndPrivate::Locate);
    }
    m_pOverview->SetArea(
        WallZoom::ViewStart(horizontal), WallZoom::ViewStart(vertical), WallZoom::ViewExtent(horizontal),
        WallZoom::ViewExtent(vertical));
    PlaceOverview();
    m_pOverview->setVisible(zoomed);
}

void KvTVWallNormalWndPrivate::PlaceOverview()
{
    m_pOverview->move(q->width() - m_pOverview->width(), q->height() - m_pOverview->height());
}

void KvTVWallNormalWndPrivate::Locate(float x, float y)
{
    horizontal = WallZoom::Located(horizontal, x);
    vertical = WallZoom::Located(vertical, y);
    PlaceScreens();
}

void KvTVWallNormalWndPrivate::LayOut()
{
    view->setGeometry(q->rect());
    horizontal = WallZoom::Resized(horizontal, float(q->width()));
    vertical = WallZoom::Resized(vertical, float(q->height()));
    PlaceScreens();
}

void KvTVWallNormalWndPrivate::ShowWholeWall()
{
    horizontal = {};
    vertical = {};
    LayOut();
}

void KvTVWallNormalWndPrivate::OnWheel(int delta, const QPoint& pos)
{
    const bool larger = delta >= 1;
    const auto onWall
        = [](int position, const WallZoom::Axis& axis) { return position - WallZoom::Pixel(axis.offset); };
    horizontal = WallZoom::Zoomed(horizontal, onWall(pos.x(), horizontal), larger);
    vertical = WallZoom::Zoomed(vertical, onWall(pos.y(), vertical), larger);
    PlaceScreens();
    Q_EMIT q->SignalWheelEvent(delta, pos);
}

// ---- The wall

KvTVWallNormalWnd::KvTVWallNormalWnd(QWidget* parent)
    : QWidget(parent)
    , m_pPrivate(new KvTVWallNormalWndPrivate(this))
{
    setLayoutDirection(Qt::LeftToRight); // the picture of a room is not turned round
    CommonFun::SetStyleSheet(this, QStringLiteral("TVWallOperateWnd"), QString(), QString());
}

KvTVWallNormalWnd::~KvTVWallNormalWnd()
{
    // What its end sets off reaches nobody; that it ended does, which disconnect() would prevent.
    d_func()->view->blockSignals(true);
    for (KvTVWallNormalScreen* screen : d_func()->view->Screens())
        screen->disconnect();
    d_func()->view->DeleteWithWall();
}

void KvTVWallNormalWnd::SetTVWallGridCount(int iRows, int iCols)
{
    m_iRows = iRows;
    m_iCols = iCols;
}

int KvTVWallNormalWnd::GetRowCount() const { return m_iRows; }

int KvTVWallNormalWnd::GetColumnCount() const { return m_iCols; }

void KvTVWallNormalWnd::SetWindowTitleShow(bool bShow) { d_func()->titleShow = bShow; }

void KvTVWallNormalWnd::SetAudioBtnVisible(bool bVisible)
{
    d_func()->view->SetAudioButtonsVisible(bVisible);
}

void KvTVWallNormalWnd::SetPtzFrameSelectedEnable(bool bEnable)
{
    if (KvTVWallNormalScreen* screen = d_func()->Screen(GetSelectedScreenIndex()))
        screen->SetPositioning(bEnable);
}

double KvTVWallNormalWnd::GetWindowScalePrecision() const { return WallGeometry::NormalPrecision; }

void KvTVWallNormalWnd::SetWindowSelectionMode(SelectionMode mode)
{
    d_func()->view->SetSelectionMode(mode);
    KvTVWallNormalScreen* screen = d_func()->Screen(GetSelectedScreenIndex());
    if (mode == SingleSelection && screen != nullptr)
        screen->DeselectWindows();
}

KvTVWallNormalWnd::SelectionMode KvTVWallNormalWnd::GetWindowSelectionMode() const
{
    return SelectionMode(d_func()->view->SelectionMode());
}

void KvTVWallNormalWnd::RecoverEagleEye() { d_func()->ShowWholeWall(); }

int KvTVWallNormalWnd::AddScreen(
    const KvGUI::StructScaleRect& rect, const QIcon& icon, const QString& title, const QVariant& userData)
{
    if (m_iRows < 1 || m_iCols < 1) {
        qWarning("---KvGUI--- KvTVWallNormalWnd::AddScreen: iRows = %d, iCols = %d", m_iRows, m_iCols);
        return NoIndex;
    }
    KvTVWallNormalScreen* screen = d_func()->AddScreen(rect);
    screen->SetIcon(icon);
    screen->SetTitle(title);
    screen->SetUserData(userData);
    return GetScreenCount() - 1;
}

int KvTVWallNormalWnd::AddScreen(const KvGUI::StructScaleRect& rect, const QVariant& userData)
{
    Q_UNUSED(userData)
    return AddScreen(rect, QIcon(), QString(), QVariant());
}

bool KvTVWallNormalWnd::DeleteAllScreen()
{
    d_func()->view->DeleteAllScreens();
    Q_EMIT d_func()->SignalArrangementChanged();
    return true;
}

int KvTVWallNormalWnd::GetScreenCount() const { return d_func()->view->Screens().size(); }

bool KvTVWallNormalWnd::GetScreenScale(int iScreen, KvGUI::StructScaleRect& rect) const
{
    const KvTVWallNormalScreen* screen = d_func()->Screen(iScreen);
    if (screen == nullptr)
        return false;
    rect = screen->GetScale();
    return true;
}

bool KvTVWallNormalWnd::SetScreenTitle(int iScreen, const QString& title)
{
    KvTVWallNormalScreen* screen = d_func()->Screen(iScreen);
    if (screen != nullptr)
        screen->SetTitle(title);
    return screen != nullptr;
}

bool KvTVWallNormalWnd::SetScreenContentText(int iScreen, const QString& text)
{
    KvTVWallNormalScreen* screen = d_func()->Screen(iScreen);
    if (screen != nullptr)
        screen->SetContentText(text);
    return screen != nullptr;
}

void KvTVWallNormalWnd::SetScreenUserData(int iScreen, const QVariant& userData)
{
    if (KvTVWallNormalScreen* screen = d_func()->Screen(iScreen))
        screen->SetUserData(userData);
}

QVariant KvTVWallNormalWnd::GetScreenUserData(int iScreen) const
{
    const KvTVWallNormalScreen* screen = d_func()->Screen(iScreen);
    return screen != nullptr ? screen->GetUserData() : QVariant();
}

void KvTVWallNormalWnd::SetScreenFreeMode(int iScreen, bool bFree)
{
    if (KvTVWallNormalScreen* screen = d_func()->Screen(iScreen))
        screen->SetFree(bFree);
}

bool KvTVWallNormalWnd::IsScreenFreeMode(int iScreen) const
{
    const KvTVWallNormalScreen* screen = d_func()->Screen(iScreen);
    return screen == nullptr || screen->IsFree();
}

bool KvTVWallNormalWnd::SetScreenOSDInfo(int iScreen, std::vector<KvGUI::StructOSDInfo>& infos)
{
    KvTVWallNormalScreen* screen = d_func()->Screen(iScreen);
    if (screen != nullptr)
        screen->SetOSDInfo(infos);
    return screen != nullptr;
}

void KvTVWallNormalWnd::SetSelectedScreenIndex(int iScreen)
{
    if (const KvTVWallNormalScreen* screen = d_func()->Screen(iScreen))
        d_func()->SelectScreen(screen);
}

int KvTVWallNormalWnd::GetSelectedScreenIndex() const { return d_func()->SelectedScreen(); }

int KvTVWallNormalWnd::OpenWindow(int iScreen, const KvGUI::StructScaleRect& rect, const QVariant& userData)
{
    KvTVWallNormalScreen* screen = d_func()->Screen(iScreen);
    return screen != nullptr ? screen->OpenWindow(rect, userData, d_func()->titleShow) : NoIndex;
}

bool KvTVWallNormalWnd::DeleteWindow(int iScreen, int iWindow)
{
    KvTVWallNormalScreen* screen = d_func()->Screen(iScreen);
    return screen != nullptr && screen->DeleteWindow(iWindow);
}

void KvTVWallNormalWnd::DeleteAllWindows(int iScreen)
{
    if (KvTVWallNormalScreen* screen = d_func()->Screen(iScreen))
        screen->DeleteAllWindows();
}

void KvTVWallNormalWnd::DeleteAllWindows()
{
    for (int screen = 0; screen < GetScreenCount(); ++screen)
        DeleteAllWindows(screen);
}

int KvTVWallNormalWnd::GetWindowCount(int iScreen) const
{
    const KvTVWallNormalScreen* screen = d_func()->Screen(iScreen);
    return screen != nullptr ? screen->GetWindowCount() : 0;
}

QList<int> KvTVWallNormalWnd::GetAllWindowIndexs(int iScreen) const
{
    QList<int> indexes;
    for (int i = 0; i < GetWindowCount(iScreen); ++i)
        indexes << i;
    return indexes;
}

QList<int> KvTVWallNormalWnd::GetSelectedWindowIndexs() const
{
    const KvTVWallNormalScreen* screen = d_func()->Screen(GetSelectedScreenIndex());
    return screen != nullptr ? screen->GetWindowIndexs(true) : QList<int>();
}

QList<int> KvTVWallNormalWnd::GetUnSelectedWindowIndexs() const
{
    const KvTVWallNormalScreen* screen = d_func()->Screen(GetSelectedScreenIndex());
    return screen != nullptr ? screen->GetWindowIndexs(false) : QList<int>();
}

void KvTVWallNormalWnd::SetSelectedWindowIndexs(int iScreen, int iWindow, bool bSelected)
{
    if (KvTVWallNormalScreen* screen = d_func()->Screen(iScreen))
        screen->SelectOnly(iWindow, bSelected);
}

bool KvTVWallNormalWnd::SetWindowScale(int iScreen, int iWindow, const KvGUI::StructScaleRect& rect)
{
    KvTVWallNormalWindow* window = d_func()->Window(iScreen, iWindow);
    if (window != nullptr)
        window->SetScale(rect);
    return window != nullptr;
}

bool KvTVWallNormalWnd::GetWindowScale(int iScreen, int iWindow, KvGUI::StructScaleRect& rect) const
{
    const KvTVWallNormalWindow* window = d_func()->Window(iScreen, iWindow);
    if (window == nullptr)
        return false;
    rect = window->GetScale();
    return true;
}

bool KvTVWallNormalWnd::SetWindowZValue(int iScreen, int iWindow, double dZ)
{
    KvTVWallNormalScreen* screen = d_func()->Screen(iScreen);
    return screen != nullptr && screen->SetWindowZValue(iWindow, dZ);
}

double KvTVWallNormalWnd::GetWindowZValue(int iScreen, int iWindow) const
{
    const KvTVWallNormalWindow* window = d_func()->Window(iScreen, iWindow);
    return window != nullptr ? window->zValue() : -1.0;
}

double KvTVWallNormalWnd::GetMaxWindowZValue(int iScreen) const
{
    const KvTVWallNormalScreen* screen = d_func()->Screen(iScreen);
    return screen != nullptr ? screen->GetMaxWindowZValue() : 1.0;
}

void KvTVWallNormalWnd::SetWindowUserData(int iScreen, int iWindow, const QVariant& userData)
{
    if (KvTVWallNormalWindow* window = d_func()->Window(iScreen, iWindow))
        window->SetUserData(userData);
}

QVariant KvTVWallNormalWnd::GetWindowUserData(int iScreen, int iWindow) const
{
    const KvTVWallNormalWindow* window = d_func()->Window(iScreen, iWindow);
    return window != nullptr ? window->GetUserData() : QVariant();
}

bool KvTVWallNormalWnd::SetWindowContentText(int iScreen, int iWindow, const QString& text)
{
    KvTVWallNormalWindow* window = d_func()->Window(iScreen, iWindow);
    if (window != nullptr)
        window->SetContentText(text);
    return window != nullptr;
}

bool KvTVWallNormalWnd::SetWindowVolumeBtn(int iScreen, int iWindow, bool bOn)
{
    KvTVWallNormalWindow* window = d_func()->Window(iScreen, iWindow);
    if (window != nullptr)
        window->SetVolumeOn(bOn);
    return window != nullptr;
}

bool KvTVWallNormalWnd::GetWindowVolumeBtnStatus(int iScreen, int iWindow) const
{
    const KvTVWallNormalWindow* window = d_func()->Window(iScreen, iWindow);
    return window != nullptr && window->IsVolumeOn();
}

QWidget* KvTVWallNormalWnd::GetWindowWidget(int iScreen, int iWindow) const
{
    KvTVWallNormalWindow* window = d_func()->Window(iScreen, iWindow);
    return window != nullptr ? window->GetVideo() : nullptr;
}

bool KvTVWallNormalWnd::DeleteWindowWidget(int iScreen, int iWindow)
{
    KvTVWallNormalWindow* window = d_func()->Window(iScreen, iWindow);
    return window != nullptr && window->DeleteVideo();
}

bool KvTVWallNormalWnd::SetWindowVideoWidgetText(int iScreen, int iWindow, const QString& text)
{
    KvTVWallNormalWindow* window = d_func()->Window(iScreen, iWindow);
    return window != nullptr && window->SetVideoText(text);
}

bool KvTVWallNormalWnd::SetWindowUpdateEnable(int iScreen, int iWindow, bool bEnable)
{
    KvTVWallNormalWindow* window = d_func()->Window(iScreen, iWindow);
    return window != nullptr && window->SetVideoUpdates(bEnable);
}

QSize KvTVWallNormalWnd::sizeHint() const { return {960, 540}; }

void KvTVWallNormalWnd::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    d_func()->LayOut();
}

} // namespace UICommonMdl
