#include "KvTVWallDisplayWnd_p.h"

#include "KvTVWallDisplayScreen.h"
#include "KvTVWallDisplayVideo.h"
#include "KvTVWallDisplayWindow.h"
#include "WallGeometry.h"
#include "WallRelay.h"

#include <Common/CommonFun.h>

#include <QAccessibleWidget>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QWheelEvent>
#include <utility>

namespace UICommonMdl {

namespace {

constexpr int NoIndex = -1;

/// Describes screens and windows to assistive technology as the plain widgets that they are here: for their
/// base classes Qt would list registered sub-windows only, and give no names.
QAccessibleInterface* MakeAccessible(const QString&, QObject* object)
{
    if (auto* window = qobject_cast<KvTVWallDisplayWindow*>(object))
        return new QAccessibleWidget(window, QAccessible::Window);
    if (auto* screen = qobject_cast<KvTVWallDisplayScreen*>(object))
        return new QAccessibleWidget(screen, QAccessible::Pane);
    return nullptr;
}

} // namespace

// ---- The private object

KvTVWallDisplayWndPrivate::KvTVWallDisplayWndPrivate(KvTVWallDisplayWnd* wall)
    : WallArrangement(wall)
    , q(wall)
{ }

KvTVWallDisplayScreen*
KvTVWallDisplayWndPrivate::AddScreen(const KvGUI::StructScaleRect& rect, const QVariant& userData)
{
    auto* screen = new KvTVWallDisplayScreen(
        q, WallGeometry::CellSpan(q->GetRowCount(), rect.dTop, rect.dBottom),
        WallGeometry::CellSpan(q->GetColumnCount(), rect.dLeft, rect.dRight), rect, userData);
    screens.append(screen);
    screen->PlaceOnWall();
    using Screen = KvTVWallDisplayScreen;
    connect(screen, &QWidget::customContextMenuRequested, screen, &Screen::SignalRightClick);
    connect(screen, &Screen::SignalSelected, this, [this, screen] { SelectScreen(screen); });
    WallRelay::RelayScreen(this, screens, screen, q);
    connect(screen, &Screen::SignalArrangementChanged, this, &WallArrangement::SignalArrangementChanged);
    screen->show();
    Q_EMIT SignalArrangementChanged();
    return screen;
}

QList<KvTVWallDisplayScreen*> KvTVWallDisplayWndPrivate::TakeScreens()
{
    for (KvTVWallDisplayScreen* screen : qAsConst(screens)) {
        disconnect(screen, nullptr, this, nullptr);
        disconnect(screen, nullptr, q, nullptr);
    }
    return std::exchange(screens, {});
}

void KvTVWallDisplayWndPrivate::DeleteAllScreen()
{
    const QList<KvTVWallDisplayScreen*> removed = TakeScreens();
    for (KvTVWallDisplayScreen* screen : removed)
        screen->Remove();
    Q_EMIT SignalArrangementChanged();
}

KvTVWallDisplayWindow* KvTVWallDisplayWndPrivate::Window(int screen, int window) const
{
    const KvTVWallDisplayScreen* found = Screen(screen);
    return found != nullptr ? found->GetWindow(window) : nullptr;
}

int KvTVWallDisplayWndPrivate::SelectedScreen() const
{
    for (int i = 0; i < screens.size(); ++i) {
        if (screens.at(i)->IsSelected())
            return i;
    }
    return NoIndex;
}

void KvTVWallDisplayWndPrivate::SelectScreen(const KvTVWallDisplayScreen* selected)
{
    for (KvTVWallDisplayScreen* screen : qAsConst(screens))
        screen->SetSelected(screen == selected);
}

void KvTVWallDisplayWndPrivate::PlaceScreens()
{
    // What the client has put into videos is resized, and may change the wall: removed ones live on for now.
    const QList<KvTVWallDisplayScreen*> present = screens;
    for (KvTVWallDisplayScreen* screen : present)
        screen->PlaceOnWall();
}

QVector<WallMiniature::Screen> KvTVWallDisplayWndPrivate::Miniature() const
{
    QVector<WallMiniature::Screen> miniature;
    for (const KvTVWallDisplayScreen* screen : screens)
        miniature << screen->Miniature();
    return miniature;
}

void KvTVWallDisplayWndPrivate::SetColor(QColor& member, const QColor& color)
{
    if (member == color)
        return;
    member = color;
    for (KvTVWallDisplayScreen* screen : qAsConst(screens))
        screen->UpdateLook();
}

// ---- The wall

KvTVWallDisplayWnd::KvTVWallDisplayWnd(QWidget* parent)
    : QWidget(parent)
    , m_pPrivate(new KvTVWallDisplayWndPrivate(this))
{
    QAccessible::installFactory(MakeAccessible); // once, however many walls there are
    setLayoutDirection(Qt::LeftToRight); // the picture of a room is not turned round
    CommonFun::SetStyleSheet(this, QStringLiteral("TVWallOperateWnd"), QString(), QString());
}

// The screens use the private object until their end; it is a child too and must not go first. Removed ones
// may be among them that still handle an event.
KvTVWallDisplayWnd::~KvTVWallDisplayWnd()
{
    d_func()->TakeScreens(); // what their end sets off finds none
    while (auto* screen = findChild<KvTVWallDisplayScreen*>(QString(), Qt::FindDirectChildrenOnly))
        screen->DeleteWithWall();
}

void KvTVWallDisplayWnd::SetTVWallGridCount(int iRows, int iCols)
{
    m_iRows = iRows;
    m_iCols = iCols;
}

int KvTVWallDisplayWnd::GetRowCount() const { return m_iRows; }

int KvTVWallDisplayWnd::GetColumnCount() const { return m_iCols; }

void KvTVWallDisplayWnd::SetWindowTitleShow(bool bShow) { d_func()->titleShow = bShow; }

void KvTVWallDisplayWnd::SetDeviceType(bool bNoGap)
{
    for (KvTVWallDisplayScreen* screen : qAsConst(d_func()->screens))
        screen->SetNoGap(bNoGap);
    d_func()->PlaceScreens();
}

void KvTVWallDisplayWnd::SetPtzFrameSelectedEnable(bool bEnable)
{
    if (KvTVWallDisplayScreen* screen = d_func()->Screen(GetSelectedScreenIndex()))
        screen->SetPositioning(bEnable);
}

double KvTVWallDisplayWnd::GetWindowScalePrecision() const { return WallGeometry::DisplayPrecision; }

void KvTVWallDisplayWnd::SetWindowSelectionMode(SelectionMode mode)
{
    d_func()->selectionMode = mode;
    KvTVWallDisplayScreen* screen = d_func()->Screen(GetSelectedScreenIndex());
    if (mode == SingleSelection && screen != nullptr)
        screen->DeselectWindows();
}

KvTVWallDisplayWnd::SelectionMode KvTVWallDisplayWnd::GetWindowSelectionMode() const
{
    return d_func()->selectionMode;
}

int KvTVWallDisplayWnd::AddScreen(
    const KvGUI::StructScaleRect& rect, const QIcon& icon, const QString& title, const QVariant& userData)
{
    Q_UNUSED(icon)
    Q_UNUSED(title)
    if (m_iRows < 1 || m_iCols < 1) {
        qWarning("---KvGUI--- KvTVWallDisplayWnd::AddScreen: iRows = %d, iCols = %d", m_iRows, m_iCols);
        return NoIndex;
    }
    d_func()->AddScreen(rect, userData);
    return GetScreenCount() - 1;
}

int KvTVWallDisplayWnd::AddScreen(const KvGUI::StructScaleRect& rect, const QVariant& userData)
{
    Q_UNUSED(userData)
    return AddScreen(rect, QIcon(), QString(), QVariant());
}

bool KvTVWallDisplayWnd::DeleteAllScreen()
{
    d_func()->DeleteAllScreen();
    return true;
}

int KvTVWallDisplayWnd::GetScreenCount() const { return d_func()->screens.size(); }

bool KvTVWallDisplayWnd::GetScreenScale(int iScreen, KvGUI::StructScaleRect& rect) const
{
    const KvTVWallDisplayScreen* screen = d_func()->Screen(iScreen);
    if (screen == nullptr)
        return false;
    rect = screen->GetScale();
    return true;
}

bool KvTVWallDisplayWnd::SetScreenTitle(int iScreen, const QString& title)
{
    Q_UNUSED(title)
    return d_func()->Screen(iScreen) != nullptr;
}

bool KvTVWallDisplayWnd::SetScreenContentText(int iScreen, const QString& text)
{
    KvTVWallDisplayScreen* screen = d_func()->Screen(iScreen);
    if (screen != nullptr)
        screen->SetContentText(text);
    return screen != nullptr;
}

void KvTVWallDisplayWnd::SetScreenUserData(int iScreen, const QVariant& userData)
{
    if (KvTVWallDisplayScreen* screen = d_func()->Screen(iScreen))
        screen->SetUserData(userData);
}

QVariant KvTVWallDisplayWnd::GetScreenUserData(int iScreen) const
{
    const KvTVWallDisplayScreen* screen = d_func()->Screen(iScreen);
    return screen != nullptr ? screen->GetUserData() : QVariant();
}

bool KvTVWallDisplayWnd::SetScreenOSDInfo(int iScreen, std::vector<KvGUI::StructOSDInfo>& infos)
{
    KvTVWallDisplayScreen* screen = d_func()->Screen(iScreen);
    if (screen != nullptr)
        screen->SetOSDInfo(infos);
    return screen != nullptr;
}

bool KvTVWallDisplayWnd::SetScreenWindowBackgroudColor(int iScreen, const QColor& color, bool bShow)
{
    KvTVWallDisplayScreen* screen = d_func()->Screen(iScreen);
    if (screen != nullptr)
        screen->SetBackground(color, bShow);
    return screen != nullptr;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the interface takes a copy
bool KvTVWallDisplayWnd::SetScreenBaseMapShow(int iScreen, std::string path, bool bShow)
{
    KvTVWallDisplayScreen* screen = d_func()->Screen(iScreen);
    if (screen != nullptr)
        screen->SetBaseMap(path, bShow);
    return screen != nullptr;
}

void KvTVWallDisplayWnd::SetSelectedScreenIndex(int iScreen)
{
    if (const KvTVWallDisplayScreen* screen = d_func()->Screen(iScreen))
        d_func()->SelectScreen(screen);
}

int KvTVWallDisplayWnd::GetSelectedScreenIndex() const { return d_func()->SelectedScreen(); }

int KvTVWallDisplayWnd::OpenWindow(int iScreen, const KvGUI::StructScaleRect& rect, const QVariant& userData)
{
    KvTVWallDisplayScreen* screen = d_func()->Screen(iScreen);
    return screen != nullptr ? screen->OpenWindow(rect, userData, d_func()->titleShow) : NoIndex;
}

bool KvTVWallDisplayWnd::DeleteWindow(int iScreen, int iWindow)
{
    KvTVWallDisplayScreen* screen = d_func()->Screen(iScreen);
    return screen != nullptr && screen->DeleteWindow(iWindow);
}

void KvTVWallDisplayWnd::DeleteAllWindows(int iScreen)
{
    if (KvTVWallDisplayScreen* screen = d_func()->Screen(iScreen))
        screen->DeleteAllWindows();
}

void KvTVWallDisplayWnd::DeleteAllWindows()
{
    for (int screen = 0; screen < GetScreenCount(); ++screen)
        DeleteAllWindows(screen);
}

int KvTVWallDisplayWnd::GetWindowCount(int iScreen) const
{
    const KvTVWallDisplayScreen* screen = d_func()->Screen(iScreen);
    return screen != nullptr ? screen->GetWindowCount() : 0;
}

QList<int> KvTVWallDisplayWnd::GetAllWindowIndexs(int iScreen) const
{
    QList<int> indexes;
    for (int i = 0; i < GetWindowCount(iScreen); ++i)
        indexes << i;
    return indexes;
}

QList<int> KvTVWallDisplayWnd::GetSelectedWindowIndexs() const
{
    const KvTVWallDisplayScreen* screen = d_func()->Screen(GetSelectedScreenIndex());
    return screen != nullptr ? screen->GetWindowIndexs(true) : QList<int>();
}

QList<int> KvTVWallDisplayWnd::GetUnSelectedWindowIndexs() const
{
    const KvTVWallDisplayScreen* screen = d_func()->Screen(GetSelectedScreenIndex());
    return screen != nullptr ? screen->GetWindowIndexs(false) : QList<int>();
}

void KvTVWallDisplayWnd::SetSelectedWindowIndexs(int iScreen, int iWindow, bool bSelected)
{
    if (KvTVWallDisplayScreen* screen = d_func()->Screen(iScreen))
        screen->SelectOnly(iWindow, bSelected);
}

bool KvTVWallDisplayWnd::SetWindowScale(int iScreen, int iWindow, const KvGUI::StructScaleRect& rect)
{
    KvTVWallDisplayWindow* window = d_func()->Window(iScreen, iWindow);
    if (window != nullptr)
        window->SetScale(rect);
    return window != nullptr;
}

bool KvTVWallDisplayWnd::GetWindowScale(int iScreen, int iWindow, KvGUI::StructScaleRect& rect) const
{
    const KvTVWallDisplayWindow* window = d_func()->Window(iScreen, iWindow);
    if (window == nullptr)
        return false;
    rect = window->GetScale();
    return true;
}

bool KvTVWallDisplayWnd::SetWindowZValue(int iScreen, int iWindow, int iZ, bool bReorder)
{
    KvTVWallDisplayScreen* screen = d_func()->Screen(iScreen);
    return screen != nullptr && screen->SetWindowZValue(iWindow, iZ, bReorder);
}

int KvTVWallDisplayWnd::GetWindowZValue(int iScreen, int iWindow) const
{
    const KvTVWallDisplayWindow* window = d_func()->Window(iScreen, iWindow);
    return window != nullptr ? window->GetZValue() : -1;
}

int KvTVWallDisplayWnd::GetMaxWindowZValue(int iScreen) const
{
    const KvTVWallDisplayScreen* screen = d_func()->Screen(iScreen);
    return screen != nullptr ? screen->GetMaxWindowZValue() : 1;
}

void KvTVWallDisplayWnd::SetWindowUserData(int iScreen, int iWindow, const QVariant& userData)
{
    if (KvTVWallDisplayWindow* window = d_func()->Window(iScreen, iWindow))
        window->SetUserData(userData);
}

QVariant KvTVWallDisplayWnd::GetWindowUserData(int iScreen, int iWindow) const
{
    const KvTVWallDisplayWindow* window = d_func()->Window(iScreen, iWindow);
    return window != nullptr ? window->GetUserData() : QVariant();
}

bool KvTVWallDisplayWnd::SetWindowContentText(int iScreen, int iWindow, const QString& text)
{
    KvTVWallDisplayWindow* window = d_func()->Window(iScreen, iWindow);
    if (window != nullptr)
        window->SetContentText(text);
    return window != nullptr;
}

bool KvTVWallDisplayWnd::SetWindowVolumeBtn(int iScreen, int iWindow, bool bOn)
{
    KvTVWallDisplayWindow* window = d_func()->Window(iScreen, iWindow);
    if (window != nullptr)
        window->SetVolumeOn(bOn);
    return window != nullptr;
}

bool KvTVWallDisplayWnd::GetWindowVolumeBtnStatus(int iScreen, int iWindow) const
{
    const KvTVWallDisplayWindow* window = d_func()->Window(iScreen, iWindow);
    return window != nullptr && window->IsVolumeOn();
}

QWidget* KvTVWallDisplayWnd::GetWindowWidget(int iScreen, int iWindow) const
{
    const KvTVWallDisplayWindow* window = d_func()->Window(iScreen, iWindow);
    return window != nullptr ? window->GetVideo() : nullptr;
}

bool KvTVWallDisplayWnd::DeleteWindowWidget(int iScreen, int iWindow)
{
    KvTVWallDisplayWindow* window = d_func()->Window(iScreen, iWindow);
    return window != nullptr && window->DeleteVideo();
}

bool KvTVWallDisplayWnd::SetWindowVideoWidgetText(int iScreen, int iWindow, const QString& text)
{
    const KvTVWallDisplayWindow* window = d_func()->Window(iScreen, iWindow);
    KvTVWallDisplayVideo* video = window != nullptr ? window->GetVideo() : nullptr;
    if (video != nullptr)
        video->SetText(text);
    return video != nullptr;
}

bool KvTVWallDisplayWnd::SetWindowUpdateEnable(int iScreen, int iWindow, bool bEnable)
{
    QWidget* video = GetWindowWidget(iScreen, iWindow);
    if (video != nullptr)
        video->setUpdatesEnabled(bEnable);
    return video != nullptr;
}

QColor KvTVWallDisplayWnd::WindowFrameColor() const { return d_func()->windowFrameColor; }

void KvTVWallDisplayWnd::SetWindowFrameColor(const QColor& color)
{
    d_func()->SetColor(d_func()->windowFrameColor, color);
}

QColor KvTVWallDisplayWnd::WindowSelectedFrameColor() const { return d_func()->windowSelectedFrameColor; }

void KvTVWallDisplayWnd::SetWindowSelectedFrameColor(const QColor& color)
{
    d_func()->SetColor(d_func()->windowSelectedFrameColor, color);
}

QColor KvTVWallDisplayWnd::WindowColor() const { return d_func()->windowColor; }

void KvTVWallDisplayWnd::SetWindowColor(const QColor& color)
{
    d_func()->SetColor(d_func()->windowColor, color);
}

QColor KvTVWallDisplayWnd::ScreenTextColor() const { return d_func()->screenTextColor; }

void KvTVWallDisplayWnd::SetScreenTextColor(const QColor& color)
{
    d_func()->SetColor(d_func()->screenTextColor, color);
}

QColor KvTVWallDisplayWnd::BandColor() const { return d_func()->bandColor; }

void KvTVWallDisplayWnd::SetBandColor(const QColor& color) { d_func()->SetColor(d_func()->bandColor, color); }

QSize KvTVWallDisplayWnd::sizeHint() const { return {960, 540}; }

void KvTVWallDisplayWnd::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    d_func()->PlaceScreens();
}

void KvTVWallDisplayWnd::wheelEvent(QWheelEvent* event)
{
    event->accept();
    Q_EMIT SignalWheelEvent(event->angleDelta().y(), event->position().toPoint());
}

void KvTVWallDisplayWnd::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}

} // namespace UICommonMdl
