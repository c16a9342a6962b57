#include "KvTVWallDisplayScreen.h"

#include "KvTVWallDisplayBand.h"
#include "KvTVWallDisplayFrame.h"
#include "KvTVWallDisplayWindow.h"
#include "KvTVWallDisplayWnd.h"
#include "QOSDShowLabel.h"
#include "ScreenOverlay.h"
#include "WallGeometry.h"
#include "WallStacking.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QImageReader>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <cmath>

namespace UICommonMdl {

namespace {

constexpr QRgb ScreenColor = qRgb(33, 34, 37);
constexpr QRgb SelectedColor = qRgb(219, 221, 225);
constexpr QRgb CellLineColor = qRgb(74, 77, 84);
constexpr qreal CellDash = 4.0; // pixels drawn, and pixels left out
constexpr int ContentMargin = 12; // pixels
constexpr int ContentPadding = 8; // pixels
constexpr int RollInterval = 40; // milliseconds
constexpr int NoWindow = -1;

bool IsMouseEvent(QEvent::Type type)
{
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease
        || type == QEvent::MouseButtonDblClick || type == QEvent::MouseMove;
}

bool IsReported(QEvent::Type type)
{
    switch (type) {
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::DragLeave:
    case QEvent::Drop:
        return true;
    default:
        return IsMouseEvent(type);
    }
}

void SetFace(QLabel* label, const ScreenOverlay::Face& face)
{
    label->setObjectName(face.objectName);
    QFont font = label->font();
    font.setBold(face.bold);
    label->setFont(font);
}

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
        if (!IsReported(event->type()))
            return false;
        if (auto* window = qobject_cast<KvTVWallDisplayWindow*>(watched))
            return m_pScreen->WatchWindow(window, event);
        return m_pScreen->WatchLabel(watched, event);
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
{
    qApp->removeEventFilter(this); // the base class looks for window shortcuts in every event
    setFrameStyle(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setFocusPolicy(Qt::ClickFocus);
    setAcceptDrops(true);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
}

KvTVWallDisplayScreen::~KvTVWallDisplayScreen() = default;

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
    CancelDrawing();
    for (KvTVWallDisplayWindow* window : qAsConst(m_windows))
        window->PlaceOnScreen();
    if (m_pFrame != nullptr)
        m_pFrame->FitTo(size());
}

void KvTVWallDisplayScreen::SetSelected(bool selected)
{
    if (!selected)
        DeselectWindows();
    if (m_bSelected == selected)
        return;
    m_bSelected = selected;
    ShowFrame();
    Q_EMIT SignalArrangementChanged();
}

void KvTVWallDisplayScreen::ShowFrame()
{
    if (m_pFrame == nullptr && m_bSelected) {
        m_pFrame = new KvTVWallDisplayFrame(viewport(), QColor(SelectedColor));
        m_pFrame->FitTo(size());
    }
    if (m_pFrame == nullptr)
        return;
    m_pFrame->setVisible(m_bSelected);
    m_pFrame->raise();
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
    if (!positioning && m_drawing == Drawing::Site)
        CancelDrawing();
}

void KvTVWallDisplayScreen::SetContentText(const QString& text)
{
    m_strContentText = text;
    setAccessibleName(text);
    viewport()->update();
}

void KvTVWallDisplayScreen::SetBackground(const QColor& color, bool show)
{
    m_bShowBackground = show;
    m_background = color;
    if (!show)
        HideOverlays();
    viewport()->update();
}

void KvTVWallDisplayScreen::SetBaseMap(const std::string& path, bool show)
{
    m_bShowBaseMap = show;
    m_strBaseMap = ScreenOverlay::BaseMapFile(path);
    m_bBaseMapLoaded = false;
    m_baseMap = QPixmap();
    m_scaledBaseMap = QPixmap();
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

// ---- Overlays

void KvTVWallDisplayScreen::SetOSDInfo(const std::vector<KvGUI::StructOSDInfo>& infos)
{
    DropOverlays();
    const ScreenOverlay::Sorted sorted = ScreenOverlay::SortedByKind(infos);
    const auto shown
        = [](const auto& records) { return qMin(int(records.size()), ScreenOverlay::SlotsOfAKind); };
    for (int slot = 0; slot < shown(sorted.plain); ++slot)
        ShowPlainOverlay(slot, sorted.plain.at(size_t(slot)));
    for (int slot = 0; slot < shown(sorted.rolling); ++slot)
        ShowRollingOverlay(slot, sorted.rolling.at(size_t(slot)));
    RaiseOverlays();
    UpdateRolling();
    viewport()->update();
}

void KvTVWallDisplayScreen::ShowPlainOverlay(int slot, const KvGUI::StructOSDInfo& info)
{
    auto* label = new QLabel(viewport());
    m_plainLabels.at(size_t(slot)) = label;
    const ScreenOverlay::Placement placement = ScreenOverlay::Placed(info, size());
    label->setTextFormat(Qt::PlainText);
    SetFace(label, ScreenOverlay::FaceOf(info.strFontName));
    label->setStyleSheet(ScreenOverlay::StyleSheet(info, placement.fontPixelSize));
    label->setAlignment(ScreenOverlay::AlignmentOf(info.iAlign));
    label->setText(ScreenOverlay::Text(info));
    ShowOverlay(label, placement.geometry);
}

void KvTVWallDisplayScreen::ShowRollingOverlay(int slot, const KvGUI::StructOSDInfo& info)
{
    auto* label = new QOSDShowLabel(viewport());
    m_rollingLabels.at(size_t(slot)) = label;
    const ScreenOverlay::Placement placement = ScreenOverlay::Placed(info, size());
    SetFace(label, ScreenOverlay::FaceOf(info.strFontName));
    ShowOverlay(label, placement.geometry);
    label->SetContent(
        {ScreenOverlay::Text(info), placement.fontPixelSize, ScreenOverlay::TextColor(info),
         ScreenOverlay::BackColor(info), info.bRoll, ScreenOverlay::AlignmentOf(info.iAlign),
         info.iRollMode});
}

void KvTVWallDisplayScreen::ShowOverlay(QLabel* label, const QRect& geometry)
{
    label->installEventFilter(m_pWatcher);
    label->setGeometry(WallGeometry::Displayable(geometry));
    label->show();
}

// A label that was styled once keeps traces of its face, so every record gets a new one.
void KvTVWallDisplayScreen::DropOverlays()
{
    HideOverlays();
    const auto drop = [this](QLabel* label) {
        if (label == nullptr)
            return;
        label->removeEventFilter(m_pWatcher); // it has no number any more
        label->deleteLater(); // it may be the one that is emitting
    };
    std::for_each(m_plainLabels.begin(), m_plainLabels.end(), drop);
    std::for_each(m_rollingLabels.begin(), m_rollingLabels.end(), drop);
    m_plainLabels.fill(nullptr);
    m_rollingLabels.fill(nullptr);
}

void KvTVWallDisplayScreen::HideOverlays()
{
    for (QLabel* label : m_plainLabels) {
        if (label != nullptr)
            label->hide();
    }
    for (QLabel* label : m_rollingLabels) {
        if (label != nullptr)
            label->hide();
    }
    m_rollTimer.stop();
}

void KvTVWallDisplayScreen::RaiseOverlays()
{
    for (QLabel* label : m_plainLabels) {
        if (label != nullptr && !label->isHidden())
            label->raise();
    }
    for (QLabel* label : m_rollingLabels) {
        if (label != nullptr && !label->isHidden())
            label->raise();
    }
    if (m_pFrame != nullptr && m_bSelected)
        m_pFrame->raise();
}

void KvTVWallDisplayScreen::UpdateRolling()
{
    const bool rolls = std::any_of(m_rollingLabels.begin(), m_rollingLabels.end(), [](const auto* label) {
        return label != nullptr && label->isVisible() && label->IsRolling();
    });
    if (!rolls) {
        m_rollTimer.stop();
    } else if (!m_rollTimer.isActive()) {
        m_rollClock.start();
        m_rollTimer.start(RollInterval, this);
    }
}

bool KvTVWallDisplayScreen::WatchLabel(const QObject* watched, QEvent* event)
{
    const auto slotOf = [watched](const auto& labels) {
        return int(std::find(labels.begin(), labels.end(), watched) - labels.begin());
    };
    int label = slotOf(m_rollingLabels); // the plain ones are numbered behind the rolling ones
    if (label == ScreenOverlay::SlotsOfAKind)
        label += slotOf(m_plainLabels);
    // The wheel and keys are the wall's; a mouse event on an overlay is none on the window below.
    event->setAccepted(IsMouseEvent(event->type()) || event->type() == QEvent::ContextMenu);
    const QPointer<KvTVWallDisplayScreen> alive(this);
    Q_EMIT SignalLabelEvent(label, event);
    if (!alive)
        event->accept(); // or it would go on to the parent of a widget that is gone
    return true;
}

// ---- Windows

int KvTVWallDisplayScreen::OpenWindow(
    const KvGUI::StructScaleRect& scale, const QVariant& userData, bool showTitle)
{
    auto* window = new KvTVWallDisplayWindow(this, m_pWall->GetWindowScalePrecision(), scale, userData);
    m_windows.append(window);
    if (showTitle)
        window->SetTitle(QStringLiteral("%1 %2").arg(tr("Window"), QString::number(m_windows.size())));
    window->PlaceOnScreen();
    window->installEventFilter(m_pWatcher);
    if (scale.bEditable) {
        connect(window, SIGNAL(SignalCloseBtnClicked()), this, SLOT(OnWindowCloseBtnClicked()));
        connect(window, SIGNAL(SignalVolemeBtnClicked()), this, SLOT(OnWindowVolumeBtnClicked()));
        connect(
            window, SIGNAL(SignalGeoChanged(KvGUI::StructScaleRect)), this,
            SLOT(OnWindowGeoChanged(KvGUI::StructScaleRect)));
        connect(
            window, SIGNAL(SignalDoubleClickedSelectedChanged()), this,
            SIGNAL(SignalWindowSelectedChanged()));
    } else {
        connect(
            window, SIGNAL(SignalDoubleClickedSelectedChanged()), this, SIGNAL(SignalWindowDoubleClicked()));
    }
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
    if (m_drawing == Drawing::Site)
        CancelDrawing(); // its release may never come
    disconnect(window, nullptr, this, nullptr);
    window->removeEventFilter(m_pWatcher);
    if (window->IsSelected())
        viewport()->update();
    Q_EMIT SignalArrangementChanged();
    window->deleteLater();
    window->hide(); // moves the focus on, of which the client may hear
    return true;
}

void KvTVWallDisplayScreen::DeleteAllWindows()
{
    for (int index = m_windows.size() - 1; index >= 0; --index)
        DeleteWindow(index);
}

QList<int> KvTVWallDisplayScreen::GetWindowIndexs(bool selected) const
{
    QList<int> indexes;
    for (int index = 0; index < m_windows.size(); ++index) {
        if (m_windows.at(index)->IsSelected() == selected)
            indexes << index;
    }
    return indexes;
}

void KvTVWallDisplayScreen::SelectOnly(int index, bool selected)
{
    const KvTVWallDisplayWindow* chosen = GetWindow(index);
    if (chosen == nullptr)
        return;
    for (KvTVWallDisplayWindow* window : qAsConst(m_windows))
        window->SetSelected(selected && window == chosen);
    if (selected)
        viewport()->update();
}

void KvTVWallDisplayScreen::DeselectWindows()
{
    for (KvTVWallDisplayWindow* window : qAsConst(m_windows))
        window->SetSelected(false);
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

void KvTVWallDisplayScreen::OnWindowCloseBtnClicked()
{
    const int index = IndexOf(sender());
    if (index != NoWindow)
        Q_EMIT SignalWindowCloseBtnClicked(index);
}

void KvTVWallDisplayScreen::OnWindowVolumeBtnClicked()
{
    const int index = IndexOf(sender());
    if (index != NoWindow)
        Q_EMIT SignalWindowVolumeBtnClicked(index);
}

void KvTVWallDisplayScreen::OnWindowGeoChanged(const KvGUI::StructScaleRect& rect)
{
    const int index = IndexOf(sender());
    if (index != NoWindow)
        Q_EMIT SignalWindowGeoChanged(index, rect);
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
    const QPointer<KvTVWallDisplayScreen> alive(this);
    const QPointer<KvTVWallDisplayWindow> windowAlive(window);
    static_cast<QObject*>(window)->event(event);
    if (alive && windowAlive)
        ActOnWindowEvent(window, event);
    const int index = alive && windowAlive ? IndexOf(window) : NoWindow;
    if (index != NoWindow)
        Q_EMIT SignalWindowEvent(index, event);
    if (!windowAlive)
        event->accept(); // or it would go on to the parent of a widget that is gone
    return true;
}

void KvTVWallDisplayScreen::ActOnWindowEvent(KvTVWallDisplayWindow* window, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        PressWindow(window, *static_cast<QMouseEvent*>(event));
        break;
    case QEvent::MouseMove:
        MoveOnWindow(*static_cast<QMouseEvent*>(event));
        break;
    case QEvent::MouseButtonRelease:
        ReleaseWindow(window, *static_cast<QMouseEvent*>(event));
        break;
    case QEvent::MouseButtonDblClick:
        m_pPressed = nullptr; // the release that follows belongs to the double-click
        break;
    case QEvent::KeyPress:
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space
            && !static_cast<QKeyEvent*>(event)->isAutoRepeat() && IsSelectable(window, Qt::LeftButton)) {
            event->accept();
            ClickWindow(window);
        }
        break;
    default:
        break;
    }
}

bool KvTVWallDisplayScreen::IsSelectable(const KvTVWallDisplayWindow* window, Qt::MouseButton button) const
{
    return WallSelection::TakesPart(m_pWall->GetWindowSelectionMode(), button, window->IsSelected());
}

void KvTVWallDisplayScreen::PressWindow(KvTVWallDisplayWindow* window, const QMouseEvent& event)
{
    if (m_drawing != Drawing::Nothing && event.button() != Qt::LeftButton)
        return; // another button while the left one draws
    CancelDrawing();
    m_pressPoint = viewport()->mapFromGlobal(event.globalPos());
    if (m_bPositioning && event.button() == Qt::LeftButton)
        m_drawing = Drawing::Site;
    m_pPressed = IsSelectable(window, event.button()) ? window : nullptr;
    if (m_pPressed && m_pWall->GetWindowSelectionMode() == KvTVWallDisplayWnd::MultiSelection)
        Select({IndexOf(window)}, true);
}

void KvTVWallDisplayScreen::MoveOnWindow(const QMouseEvent& event)
{
    // By the desktop: the window itself may just have moved.
    const QPoint pos = viewport()->mapFromGlobal(event.globalPos());
    if (pos != m_pressPoint)
        m_pPressed = nullptr; // a drag is no click, also when it comes back
    if (m_drawing == Drawing::Site && (event.buttons() & Qt::LeftButton))
        DrawTo(pos);
    else if (m_drawing == Drawing::Site)
        CancelDrawing();
}

void KvTVWallDisplayScreen::ReleaseWindow(KvTVWallDisplayWindow* window, const QMouseEvent& event)
{
    const QPoint pos = viewport()->mapFromGlobal(event.globalPos());
    const bool isClick = m_pPressed == window && pos == m_pressPoint && IsSelectable(window, event.button());
    m_pPressed = nullptr;
    if (isClick) {
        CancelDrawing();
        ClickWindow(window);
    } else if (m_drawing == Drawing::Site && event.button() == Qt::LeftButton) {
        EndDrawing(pos);
    }
}

void KvTVWallDisplayScreen::ClickWindow(KvTVWallDisplayWindow* window)
{
    const QPointer<KvTVWallDisplayScreen> alive(this);
    const bool changed = Select({IndexOf(window)}, false);
    if (!alive)
        return;
    if (changed)
        Q_EMIT SignalWindowSelectedChanged();
    else
        Q_EMIT SignalWindowClicked();
}

// Runs the selection routine for each target in turn, then selects the screen, which is reported: a slot may
// delete the screen. Returns whether any window's selection changed.
bool KvTVWallDisplayScreen::Select(const QVector<int>& targets, bool fromPress)
{
    if (targets.isEmpty())
        return false;
    WallSelection::State state;
    state.selectOnly = m_bSelectOnly;
    for (const KvTVWallDisplayWindow* window : qAsConst(m_windows))
        state.selected << window->IsSelected();
    const QVector<bool> before = state.selected;
    for (const int target : targets) {
        state = WallSelection::Clicked(
            state, target, {m_pWall->GetWindowSelectionMode(), fromPress, m_bBandDragging});
    }
    m_bSelectOnly = state.selectOnly;
    for (int i = 0; i < m_windows.size(); ++i)
        m_windows.at(i)->SetSelected(state.selected.at(i));
    const bool changed = state.selected != before;
    SelectUnlessSelected();
    return changed;
}

// ---- The mouse on the empty part

void KvTVWallDisplayScreen::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    if (m_drawing != Drawing::Nothing && event->button() != Qt::LeftButton)
        return; // another button while the left one draws
    CancelDrawing(); // whose release went elsewhere
    m_pressPoint = event->pos();
    const bool draws = event->button() == Qt::LeftButton;
    const QPointer<KvTVWallDisplayScreen> alive(this);
    SetSelected(true);
    Q_EMIT SignalSelected();
    if (!alive)
        return;
    DeselectWindows();
    if (draws) {
        const bool band = m_pWall->GetWindowSelectionMode() == KvTVWallDisplayWnd::MultiSelection;
        m_drawing = band ? Drawing::Selection : Drawing::Area;
    }
}

void KvTVWallDisplayScreen::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void KvTVWallDisplayScreen::mouseMoveEvent(QMouseEvent* event)
{
    event->accept();
    if (event->buttons() & Qt::LeftButton)
        DrawTo(event->pos());
    else
        CancelDrawing(); // the release went elsewhere
}

void KvTVWallDisplayScreen::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
    if (event->button() == Qt::LeftButton)
        EndDrawing(event->pos());
}

void KvTVWallDisplayScreen::keyPressEvent(QKeyEvent* event)
{
    event->setAccepted(event->key() == Qt::Key_Escape && m_drawing != Drawing::Nothing);
    if (event->isAccepted())
        CancelDrawing();
}

QPoint KvTVWallDisplayScreen::InsideScreen(const QPoint& pos) const
{
    return {qBound(0, pos.x(), qMax(0, width() - 1)), qBound(0, pos.y(), qMax(0, height() - 1))};
}

void KvTVWallDisplayScreen::DrawTo(const QPoint& pos)
{
    if (m_drawing == Drawing::Nothing)
        return;
    m_bBandDragging = m_drawing == Drawing::Selection;
    KvTVWallDisplayBand*& band = m_bBandDragging ? m_pSelectionBand : m_pDrawBand;
    if (band == nullptr)
        band = new KvTVWallDisplayBand(viewport());
    band->ShowBetween(m_pressPoint, InsideScreen(pos), m_pWall->BandColor());
}

void KvTVWallDisplayScreen::CancelDrawing()
{
    m_drawing = Drawing::Nothing;
    m_bBandDragging = false;
    if (m_pDrawBand != nullptr)
        m_pDrawBand->hide();
    if (m_pSelectionBand != nullptr)
        m_pSelectionBand->hide();
}

void KvTVWallDisplayScreen::EndDrawing(const QPoint& pos)
{
    const QPoint end = InsideScreen(pos);
    const Drawing drawing = m_drawing;
    if (drawing == Drawing::Selection && m_bBandDragging) {
        SelectInBand(m_pressPoint, end);
        return;
    }
    CancelDrawing();
    const auto drawn = WallGeometry::DrawnScale(m_pressPoint, end, size());
    if (!drawn)
        return;
    if (drawing == Drawing::Area)
        Q_EMIT SignalDrawAreaOpenWindow(*drawn);
    if (drawing == Drawing::Site) {
        const QPoint from = WallGeometry::InSiteUnits(m_pressPoint, size());
        const QPoint to = WallGeometry::InSiteUnits(end, size());
        Q_EMIT Signal3DSite(from.x(), from.y(), to.x(), to.y());
    }
}

void KvTVWallDisplayScreen::SelectInBand(const QPoint& from, const QPoint& to)
{
    const QRect band(
        QPoint(qMin(from.x(), to.x()), qMin(from.y(), to.y())),
        QPoint(qMax(from.x(), to.x()), qMax(from.y(), to.y())));
    QVector<int> touched;
    for (int i = 0; i < m_windows.size(); ++i) {
        if (m_windows.at(i)->geometry().intersects(band))
            touched << i;
    }
    const QPointer<KvTVWallDisplayScreen> alive(this);
    const bool changed = Select(touched, false);
    if (!alive)
        return;
    CancelDrawing();
    if (changed)
        Q_EMIT SignalWindowSelectedChanged();
}

// ---- Events. Those of the base class are passed over: it would activate, raise and place windows.

// NOLINTBEGIN(bugprone-parent-virtual-call)
bool KvTVWallDisplayScreen::event(QEvent* event)
{
    if (event->type() == QEvent::WindowBlocked)
        CancelDrawing(); // a modal dialog gets the release
    return QAbstractScrollArea::event(event);
}

bool KvTVWallDisplayScreen::viewportEvent(QEvent* event) { return QAbstractScrollArea::viewportEvent(event); }

bool KvTVWallDisplayScreen::eventFilter(QObject* watched, QEvent* event)
{
    return QAbstractScrollArea::eventFilter(watched, event);
}

void KvTVWallDisplayScreen::childEvent(QChildEvent* event) { QAbstractScrollArea::childEvent(event); }

void KvTVWallDisplayScreen::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_rollTimer.timerId()) {
        QAbstractScrollArea::timerEvent(event);
        return;
    }
    const int passed = int(m_rollClock.restart());
    for (QOSDShowLabel* label : m_rollingLabels) {
        if (label != nullptr)
            label->Advance(passed);
    }
}

void KvTVWallDisplayScreen::showEvent(QShowEvent* event)
{
    QAbstractScrollArea::showEvent(event);
    UpdateRolling();
}

void KvTVWallDisplayScreen::hideEvent(QHideEvent* event)
{
    QAbstractScrollArea::hideEvent(event);
    m_rollTimer.stop();
    CancelDrawing();
}

// NOLINTEND(bugprone-parent-virtual-call)

void KvTVWallDisplayScreen::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange)
        CancelDrawing();
    QAbstractScrollArea::changeEvent(event);
}

void KvTVWallDisplayScreen::scrollContentsBy(int, int) { }

void KvTVWallDisplayScreen::resizeEvent(QResizeEvent*) { PlaceWindows(); }

void KvTVWallDisplayScreen::wheelEvent(QWheelEvent* event) { event->ignore(); } // it is the wall's

void KvTVWallDisplayScreen::dragEnterEvent(QDragEnterEvent* event) { Q_EMIT SignalScreenDropEvent(event); }

void KvTVWallDisplayScreen::dropEvent(QDropEvent* event) { Q_EMIT SignalScreenDropEvent(event); }

// ---- Painting

void KvTVWallDisplayScreen::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    painter.fillRect(event->rect(), ScreenColor);
    if (m_bShowBackground)
        painter.fillRect(event->rect(), m_background);
    if (m_bShowBaseMap)
        PaintBaseMap(painter);
    PaintCells(painter, event->rect());
    if (!m_strContentText.isEmpty())
        PaintContentText(painter);
}

void KvTVWallDisplayScreen::PaintContentText(QPainter& painter) const
{
    const int flags = Qt::AlignCenter | Qt::TextWordWrap;
    const QRect area = rect().adjusted(ContentMargin, ContentMargin, -ContentMargin, -ContentMargin);
    const QRect text = painter.boundingRect(area, flags, m_strContentText);
    // Keeps the lines of the cells and a base map out of the letters.
    painter.fillRect(
        text.adjusted(-ContentPadding, -ContentPadding, ContentPadding, ContentPadding), QColor(ScreenColor));
    painter.setPen(m_pWall->ScreenTextColor());
    painter.drawText(area, flags, m_strContentText);
}

// Lines between the cells, as far as they are exposed. Cells smaller than a pixel have none: the lines would
// cover everything.
void KvTVWallDisplayScreen::PaintCells(QPainter& painter, const QRect& exposed) const
{
    QPen pen(QColor(CellLineColor), 1);
    pen.setDashPattern({CellDash, CellDash});
    const auto forEachLine = [](int cells, int length, int from, int to, const auto& draw) {
        if (cells > length)
            return;
        for (qint64 k = qMax<qint64>(1, qint64(from) * cells / length); k < cells; ++k) {
            const int position = int(k * length / cells);
            if (position > to)
                break;
            draw(position);
        }
    };
    pen.setDashOffset(exposed.top());
    painter.setPen(pen);
    forEachLine(m_iColumnSpan, width(), exposed.left(), exposed.right(), [&](int x) {
        painter.drawLine(x, exposed.top(), x, exposed.bottom());
    });
    pen.setDashOffset(exposed.left());
    painter.setPen(pen);
    forEachLine(m_iRowSpan, height(), exposed.top(), exposed.bottom(), [&](int y) {
        painter.drawLine(exposed.left(), y, exposed.right(), y);
    });
}

void KvTVWallDisplayScreen::PaintBaseMap(QPainter& painter)
{
    if (!m_bBaseMapLoaded) {
        m_bBaseMapLoaded = true;
        QImageReader reader(QString::fromStdString(m_strBaseMap));
        reader.setAutoTransform(true);
        m_baseMap = QPixmap::fromImage(reader.read());
    }
    if (m_baseMap.isNull())
        return;
    const QSize wanted = size() * devicePixelRatioF();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (wanted.width() > m_baseMap.width() || wanted.height() > m_baseMap.height()) {
        painter.drawPixmap(rect(), m_baseMap);
        return;
    }
    // Reduced once with all its pixels: drawn directly, a large plan loses its thin lines.
    if (m_scaledBaseMap.size() != wanted)
        m_scaledBaseMap = m_baseMap.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    painter.drawPixmap(rect(), m_scaledBaseMap);
}

} // namespace UICommonMdl
