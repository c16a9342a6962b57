#include "KvTVWallDisplayScreen.h"

#include "KvTVWallDisplayFrame.h"
#include "KvTVWallDisplayWindow.h"
#include "KvTVWallDisplayWnd.h"
#include "OverlayLabels.h"
#include "ScreenOverlay.h"
#include "WallEvents.h"
#include "WallGeometry.h"
#include "WallRelay.h"
#include "WallStacking.h"
#include "WindowTitle.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace UICommonMdl {

namespace {

constexpr int NoWindow = -1;

} // namespace

class KvTVWallDisplayScreen::Watcher : public QObject
{
public:
    explicit Watcher(KvTVWallDisplayScreen* screen)
        : QObject(screen)
        , m_pScreen(screen)
    { }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* window = qobject_cast<KvTVWallDisplayWindow*>(watched);
        if (window == nullptr || !WallEvents::IsReported(event->type()))
            return false;
        return m_pScreen->WatchWindow(window, event);
    }

private:
    KvTVWallDisplayScreen* const m_pScreen;
};

KvTVWallDisplayScreen::KvTVWallDisplayScreen(
    KvTVWallDisplayWnd* wall, int rowSpan, int columnSpan, const KvGUI::StructScaleRect& scale,
    const QVariant& userData)
    : QMdiArea(wall)
    , m_pWall(wall)
    , m_iRowSpan(rowSpan)
    , m_iColumnSpan(columnSpan)
    , m_userData(userData)
    , m_scale(scale)
    , m_pWatcher(new Watcher(this))
    , m_pOverlays(new OverlayLabels(viewport()))
    , m_backdrop(rowSpan, columnSpan)
    , m_gestures(*this)
{
    qApp->removeEventFilter(this); // the base class looks for window shortcuts in every event
    setFrameStyle(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setFocusPolicy(Qt::ClickFocus);
    setAcceptDrops(true);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    viewport()->setMouseTracking(true); // tells when a button was released elsewhere
    connect(m_pOverlays, SIGNAL(SignalLabelEvent(int, QEvent*)), SLOT(OnLabelEvent(int, QEvent*)));
}

KvTVWallDisplayScreen::~KvTVWallDisplayScreen() = default;

void KvTVWallDisplayScreen::Remove()
{
    DeleteAllWindows();
    hide();
    m_handling.Delete(this);
}

void KvTVWallDisplayScreen::DeleteWithWall()
{
    if (!m_handling.IsActive()) {
        delete this;
        return;
    }
    Remove();
    m_pWall = nullptr;
    setParent(nullptr);
}

// ---- The screen itself

void KvTVWallDisplayScreen::PlaceOnWall()
{
    setGeometry(WallGeometry::Displayable(WallGeometry::ScreenRect(m_pWall->rect(), m_scale, m_bNoGap)));
    PlaceWindows();
}

// Called directly as well as by resize events, which a hidden widget gets late.
void KvTVWallDisplayScreen::PlaceWindows()
{
    if (m_placedSize == size())
        return;
    m_placedSize = size();
    m_gestures.Cancel();
    const QList<KvTVWallDisplayWindow*> present = m_windows; // a video may change the list
    for (KvTVWallDisplayWindow* window : present)
        window->PlaceOnScreen();
    if (m_pFrame != nullptr)
        m_pFrame->FitTo(size());
}

void KvTVWallDisplayScreen::SetSelected(bool selected)
{
    if (!selected)
        m_gestures.DeselectWindows();
    if (m_bSelected == selected)
        return;
    m_bSelected = selected;
    if (m_pFrame == nullptr) {
        m_pFrame = new KvTVWallDisplayFrame(viewport(), ScreenBackdrop::SelectedColor());
        m_pFrame->FitTo(size());
    }
    m_pFrame->setVisible(selected);
    m_pFrame->raise();
    Q_EMIT SignalArrangementChanged();
}

void KvTVWallDisplayScreen::SelectUnlessSelected()
{
    if (m_bSelected)
        return;
    SetSelected(true);
    Q_EMIT SignalSelected();
}

void KvTVWallDisplayScreen::SetPositioning(bool positioning)
{
    m_bPositioning = positioning;
    if (!positioning)
        m_gestures.CancelSite();
}

void KvTVWallDisplayScreen::SetContentText(const QString& text)
{
    m_backdrop.SetText(text);
    setAccessibleName(text);
    viewport()->update();
}

void KvTVWallDisplayScreen::SetBackground(const QColor& color, bool show)
{
    m_backdrop.SetBackground(color, show);
    if (!show)
        m_pOverlays->Hide();
    viewport()->update();
}

void KvTVWallDisplayScreen::SetBaseMap(const std::string& path, bool show)
{
    m_backdrop.SetPicture(ScreenOverlay::BaseMapFile(path), show);
    viewport()->update();
}

WallMiniature::Screen KvTVWallDisplayScreen::Miniature() const
{
    WallMiniature::Screen miniature{m_scale, m_bSelected, {}};
    for (QObject* child : viewport()->children()) { // in stacking order
        const auto* window = qobject_cast<KvTVWallDisplayWindow*>(child);
        if (window != nullptr && !window->isHidden())
            miniature.windows.append({window->GetScale(), window->IsSelected()});
    }
    return miniature;
}

void KvTVWallDisplayScreen::UpdateLook()
{
    viewport()->update();
    for (KvTVWallDisplayWindow* window : qAsConst(m_windows))
        window->UpdateLook();
}

void KvTVWallDisplayScreen::SetOSDInfo(const std::vector<KvGUI::StructOSDInfo>& infos)
{
    m_pOverlays->Show(infos, size());
    RaiseOverlays();
    viewport()->update();
}

void KvTVWallDisplayScreen::RaiseOverlays()
{
    m_pOverlays->Raise();
    if (m_pFrame != nullptr && m_bSelected)
        m_pFrame->raise();
}

// ---- Windows

int KvTVWallDisplayScreen::OpenWindow(
    const KvGUI::StructScaleRect& scale, const QVariant& userData, bool showTitle)
{
    auto* window = new KvTVWallDisplayWindow(this, m_pWall->GetWindowScalePrecision(), scale, userData);
    m_windows.append(window);
    if (showTitle)
        window->ShowNumber(m_windows.size());
    window->PlaceOnScreen();
    window->installEventFilter(m_pWatcher);
    WallRelay::RelayWindow(window, this, scale.bEditable, [this](const QObject* w) { return IndexOf(w); });
    RaiseOverlays();
    window->show();
    Q_EMIT SignalArrangementChanged();
    return m_windows.size() - 1;
}

bool KvTVWallDisplayScreen::DeleteWindow(int index)
{
    KvTVWallDisplayWindow* window = GetWindow(index);
    if (window == nullptr)
        return false;
    m_windows.removeAt(index);
    m_gestures.CancelSite(); // its release may never come
    disconnect(window, nullptr, this, nullptr);
    window->removeEventFilter(m_pWatcher);
    if (window->IsSelected())
        viewport()->update();
    Q_EMIT SignalArrangementChanged();
    m_handling.Delete(window);
    window->hide(); // moves the focus on, of which the client may hear
    return true;
}

void KvTVWallDisplayScreen::DeleteAllWindows()
{
    for (int index = m_windows.size() - 1; index >= 0; --index)
        DeleteWindow(index);
}

void KvTVWallDisplayScreen::SelectOnly(int index, bool selected)
{
    m_gestures.SelectOnly(index, selected);
    if (selected && GetWindow(index) != nullptr)
        viewport()->update();
}

bool KvTVWallDisplayScreen::SetWindowZValue(int index, int z, bool reorder)
{
    KvTVWallDisplayWindow* moved = GetWindow(index);
    if (moved == nullptr)
        return false;
    const int oldZ = moved->GetZValue();
    moved->SetZValue(z);
    if (m_windows.size() == 1) {
        RaiseWindow(moved);
        return true;
    }
    if (!reorder)
        return true;

    QVector<int> values;
    for (const KvTVWallDisplayWindow* window : qAsConst(m_windows))
        values << window->GetZValue();
    values = WallStacking::WithGapClosed(values, index, oldZ);
    for (int i = 0; i < values.size(); ++i)
        m_windows.at(i)->SetZValue(values.at(i));

    const QVector<int> order = WallStacking::AscendingOrder(values);
    RaiseWindow(m_windows.at(order.last()));
    // The lowest window stays where it is.
    for (int k = order.size() - 2; k >= 1; --k)
        m_windows.at(order.at(k))->stackUnder(m_windows.at(order.at(k + 1)));
    Q_EMIT SignalArrangementChanged();
    return true;
}

void KvTVWallDisplayScreen::RaiseWindow(KvTVWallDisplayWindow* window)
{
    window->raise();
    RaiseOverlays();
}

int KvTVWallDisplayScreen::GetMaxWindowZValue() const
{
    int largest = 0;
    for (const KvTVWallDisplayWindow* window : m_windows)
        largest = qMax(largest, window->GetZValue());
    return largest;
}

void KvTVWallDisplayScreen::OnLabelEvent(int label, QEvent* event)
{
    const EventHandling::Scope scope(m_handling);
    Q_EMIT SignalLabelEvent(label, event);
}

int KvTVWallDisplayScreen::IndexOf(const QObject* window) const
{
    const auto found = std::find(m_windows.begin(), m_windows.end(), window);
    return found == m_windows.end() ? NoWindow : int(found - m_windows.begin());
}

// ---- The mouse on a window

// The window acts on the event first and the client hears of it last, so that what a slot does is not undone
// by the wall.
bool KvTVWallDisplayScreen::WatchWindow(KvTVWallDisplayWindow* window, QEvent* event)
{
    if (!window->isEnabled())
        return false;
    const EventHandling::Scope scope(m_handling);
    static_cast<QObject*>(window)->event(event);
    if (IndexOf(window) != NoWindow)
        m_gestures.HandleWindowEvent(window, event);
    const int index = IndexOf(window);
    if (index != NoWindow)
        Q_EMIT SignalWindowEvent(index, event);
    return true;
}

int KvTVWallDisplayScreen::SelectionMode() const
{
    return m_pWall != nullptr ? m_pWall->GetWindowSelectionMode() : KvTVWallDisplayWnd::NoSelection;
}

QColor KvTVWallDisplayScreen::BandColor() const
{
    return m_pWall != nullptr ? m_pWall->BandColor() : QColor();
}

QRect KvTVWallDisplayScreen::WindowGeometry(int window) const { return m_windows.at(window)->geometry(); }

bool KvTVWallDisplayScreen::IsWindowSelected(int window) const { return m_windows.at(window)->IsSelected(); }

void KvTVWallDisplayScreen::SetWindowSelected(int window, bool selected)
{
    m_windows.at(window)->SetSelected(selected);
}

void KvTVWallDisplayScreen::SelectByPress()
{
    SetSelected(true);
    Q_EMIT SignalSelected();
}

void KvTVWallDisplayScreen::ReportSite(const QPoint& from, const QPoint& to)
{
    Q_EMIT Signal3DSite(from.x(), from.y(), to.x(), to.y());
}

// ---- The mouse on the empty part

void KvTVWallDisplayScreen::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    m_gestures.PressEmpty(event->pos(), event->button());
}

void KvTVWallDisplayScreen::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void KvTVWallDisplayScreen::mouseMoveEvent(QMouseEvent* event)
{
    event->accept();
    m_gestures.MoveOnEmpty(event->pos(), event->buttons());
}

void KvTVWallDisplayScreen::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
    m_gestures.ReleaseEmpty(event->pos(), event->button());
}

void KvTVWallDisplayScreen::keyPressEvent(QKeyEvent* event)
{
    event->setAccepted(event->key() == Qt::Key_Escape && m_gestures.IsDrawing());
    if (event->isAccepted())
        m_gestures.Cancel();
}

// ---- Events. Those of the base class are passed over: it would activate, raise and place windows.

// NOLINTBEGIN(bugprone-parent-virtual-call)
bool KvTVWallDisplayScreen::event(QEvent* event)
{
    if (event->type() == QEvent::WindowBlocked)
        m_gestures.Cancel(); // a modal dialog gets the release
    return QAbstractScrollArea::event(event); // clazy:exclude=skipped-base-method
}

bool KvTVWallDisplayScreen::viewportEvent(QEvent* event)
{
    const EventHandling::Scope scope(m_handling);
    return QAbstractScrollArea::viewportEvent(event); // clazy:exclude=skipped-base-method
}

bool KvTVWallDisplayScreen::eventFilter(QObject* watched, QEvent* event)
{
    return QAbstractScrollArea::eventFilter(watched, event); // clazy:exclude=skipped-base-method
}

void KvTVWallDisplayScreen::childEvent(QChildEvent* event) { QAbstractScrollArea::childEvent(event); }

void KvTVWallDisplayScreen::showEvent(QShowEvent* event) { QAbstractScrollArea::showEvent(event); }

void KvTVWallDisplayScreen::hideEvent(QHideEvent* event)
{
    QAbstractScrollArea::hideEvent(event);
    m_gestures.Cancel();
}

// NOLINTEND(bugprone-parent-virtual-call)

void KvTVWallDisplayScreen::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange)
        m_gestures.Cancel();
    QAbstractScrollArea::changeEvent(event);
}

void KvTVWallDisplayScreen::resizeEvent(QResizeEvent*) { PlaceWindows(); }

void KvTVWallDisplayScreen::wheelEvent(QWheelEvent* event) { event->ignore(); } // it is the wall's

void KvTVWallDisplayScreen::dragEnterEvent(QDragEnterEvent* event) { Q_EMIT SignalScreenDropEvent(event); }

void KvTVWallDisplayScreen::dropEvent(QDropEvent* event) { Q_EMIT SignalScreenDropEvent(event); }

// ---- Painting

void KvTVWallDisplayScreen::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    m_backdrop.Paint(painter, size(), event->rect(), devicePixelRatioF(), m_pWall->ScreenTextColor());
}

} // namespace UICommonMdl
