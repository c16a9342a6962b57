#include "KvTVWallNormalScreen.h"

#include "KvTVWallNormalFrame.h"
#include "KvTVWallNormalView.h"
#include "KvTVWallNormalWindow.h"
#include "OverlayLabels.h"
#include "WallEvents.h"
#include "WallGeometry.h"
#include "WallRelay.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QTextDocument>
#include <algorithm>
#include <cmath>

namespace UICommonMdl {

namespace {

constexpr int HeadingMargin = 8; // pixels
constexpr int HeadingHeight = 20; // pixels
constexpr int HeadingIcon = 16; // pixels
constexpr int NoWindow = -1;

/// Holds the windows of a screen and cuts them at its edges.
class Pane : public QGraphicsItem
{
public:
    explicit Pane(QGraphicsItem* parent)
        : QGraphicsItem(parent)
    {
        // It has contents, though empty ones: only then the scene passes over a pane that is not exposed.
        setFlag(ItemClipsChildrenToShape);
        setAcceptedMouseButtons(Qt::NoButton);
    }

    using QGraphicsItem::prepareGeometryChange;
    QRectF boundingRect() const override { return parentItem()->boundingRect(); }
    void paint(QPainter*, const QStyleOptionGraphicsItem*, QWidget*) override { }
};

} // namespace

KvTVWallNormalScreen::KvTVWallNormalScreen(
    KvTVWallNormalView* view, int rowSpan, int columnSpan, const KvGUI::StructScaleRect& scale)
    : m_pView(view)
    , m_iRowSpan(rowSpan)
    , m_iColumnSpan(columnSpan)
    , m_scale(scale)
    , m_pPane(new Pane(this))
    , m_backdrop(rowSpan, columnSpan)
    , m_gestures(*this)
{
    setFlag(ItemUsesExtendedStyleOption); // paints what is exposed
    setAcceptedMouseButtons(Qt::NoButton);
}

KvTVWallNormalScreen::~KvTVWallNormalScreen() { delete m_pCover; }

void KvTVWallNormalScreen::Remove()
{
    DeleteAllWindows();
    CancelDrawing();
    if (m_pCover != nullptr)
        m_pCover->hide();
    hide();
    m_pView->Handling().Delete(this);
}

// ---- The screen itself

const NormalWallLook& KvTVWallNormalScreen::Look() const { return m_pView->Look(); }

void KvTVWallNormalScreen::PlaceOnWall(const QSize& wall, const QPoint& origin)
{
    const QRect place = WallGeometry::Displayable(
        WallGeometry::ScreenRect(QRect(QPoint(0, 0), wall), m_scale, false).translated(origin));
    const bool moved = pos() != QPointF(place.topLeft());
    setPos(place.topLeft());
    if (m_size != place.size()) {
        prepareGeometryChange();
        static_cast<Pane*>(m_pPane)->prepareGeometryChange();
        m_size = place.size();
        const QList<KvTVWallNormalWindow*> present = m_windows; // a video may change the list
        for (KvTVWallNormalWindow* window : present)
            window->PlaceOnScreen();
        if (m_pFrame != nullptr)
            m_pFrame->FitTo(m_size);
    } else if (!moved) {
        return;
    }
    CancelDrawing();
    PlaceCover();
}

void KvTVWallNormalScreen::SetSelected(bool selected)
{
    if (!selected)
        m_gestures.DeselectWindows();
    if (m_bSelected == selected)
        return;
    m_bSelected = selected;
    if (m_pFrame == nullptr) {
        m_pFrame = new KvTVWallNormalFrame(this);
        m_pFrame->SetColor(ScreenBackdrop::SelectedColor());
        m_pFrame->FitTo(m_size);
    }
    m_pFrame->setVisible(selected);
    PlaceCover();
    Q_EMIT SignalArrangementChanged();
}

void KvTVWallNormalScreen::SelectUnlessSelected()
{
    if (!m_bSelected)
        SelectByPress();
}

void KvTVWallNormalScreen::SelectByPress()
{
    SetSelected(true);
    Q_EMIT SignalSelected();
}

void KvTVWallNormalScreen::SetPositioning(bool positioning)
{
    m_bPositioning = positioning;
    if (!positioning)
        m_gestures.CancelSite();
}

void KvTVWallNormalScreen::SetIcon(const QIcon& icon)
{
    m_icon = icon;
    update(HeadingRect());
}

// The tool tip tells it where windows cover it.
void KvTVWallNormalScreen::SetTitle(const QString& title)
{
    m_strTitle = title;
    setToolTip(Qt::mightBeRichText(title) ? title.toHtmlEscaped() : title);
    update(HeadingRect());
}

void KvTVWallNormalScreen::SetContentText(const QString& text)
{
    m_backdrop.SetText(text);
    update();
}

void KvTVWallNormalScreen::SetAudioButtonsVisible(bool visible)
{
    for (KvTVWallNormalWindow* window : qAsConst(m_windows))
        window->SetAudioButtonVisible(visible);
}

void KvTVWallNormalScreen::UpdateLook()
{
    const QList<KvTVWallNormalWindow*> present = m_windows; // a video may change the list
    for (KvTVWallNormalWindow* window : present)
        window->UpdateLook();
}

void KvTVWallNormalScreen::UpdateTexts()
{
    for (KvTVWallNormalWindow* window : qAsConst(m_windows))
        window->UpdateTexts();
}

WallMiniature::Screen KvTVWallNormalScreen::Miniature() const
{
    QVector<const KvTVWallNormalWindow*> ascending(m_windows.begin(), m_windows.end());
    std::stable_sort(ascending.begin(), ascending.end(), [](const auto* a, const auto* b) {
        return a->zValue() < b->zValue();
    });
    WallMiniature::Screen miniature{m_scale, m_bSelected, {}};
    for (const KvTVWallNormalWindow* window : qAsConst(ascending))
        miniature.windows.append({window->GetScale(), window->IsSelected()});
    return miniature;
}

// ---- Overlays

void KvTVWallNormalScreen::SetOSDInfo(const std::vector<KvGUI::StructOSDInfo>& infos)
{
    if (m_pCover == nullptr) {
        m_pCover = new QWidget(m_pView->viewport());
        m_pOverlays = new OverlayLabels(m_pCover);
        connect(m_pOverlays, &OverlayLabels::SignalLabelEvent, this, [this](int label, QEvent* event) {
            const EventHandling::Scope scope(m_pView->Handling());
            Q_EMIT SignalLabelEvent(label, event);
        });
    }
    m_pOverlays->Show(infos, m_size);
    PlaceCover();
}

// The cover is there where an overlay is, and not where the frame of a selected screen runs.
void KvTVWallNormalScreen::PlaceCover()
{
    if (m_pCover == nullptr)
        return;
    QRegion covered = m_pOverlays->Region();
    if (m_bSelected)
        covered &= KvTVWallNormalFrame::Inside(m_size);
    m_pCover->setGeometry(QRect(pos().toPoint(), m_size));
    m_pCover->setVisible(!covered.isEmpty());
    if (!covered.isEmpty())
        m_pCover->setMask(covered);
}

// ---- Windows

int KvTVWallNormalScreen::OpenWindow(
    const KvGUI::StructScaleRect& scale, const QVariant& userData, bool showTitle)
{
    auto* window
        = new KvTVWallNormalWindow(this, m_pView, m_pPane, WallGeometry::NormalPrecision, scale, userData);
    m_windows.append(window);
    if (showTitle)
        window->ShowNumber(m_windows.size());
    if (!m_pView->AreAudioButtonsVisible())
        window->SetAudioButtonVisible(false);
    window->PlaceOnScreen();
    connect(
        window, &KvTVWallNormalWindow::SignalArrangementChanged, this,
        &KvTVWallNormalScreen::SignalArrangementChanged);
    WallRelay::RelayWindow(window, this, scale.bEditable, [this](const QObject* w) { return IndexOf(w); });
    Q_EMIT SignalArrangementChanged();
    return m_windows.size() - 1;
}

bool KvTVWallNormalScreen::DeleteWindow(int index)
{
    KvTVWallNormalWindow* window = GetWindow(index);
    if (window == nullptr)
        return false;
    m_windows.removeAt(index);
    m_gestures.CancelSite(); // its release may never come
    disconnect(window, nullptr, this, nullptr);
    Q_EMIT SignalArrangementChanged();
    m_pView->Handling().Delete(window);
    window->hide(); // moves the focus on, of which the client may hear
    return true;
}

void KvTVWallNormalScreen::DeleteAllWindows()
{
    for (int index = m_windows.size() - 1; index >= 0; --index)
        DeleteWindow(index);
}

void KvTVWallNormalScreen::SelectOnly(int index, bool selected)
{
    m_gestures.SelectOnly(index, selected);
    if (selected && GetWindow(index) != nullptr)
        update();
}

bool KvTVWallNormalScreen::SetWindowZValue(int index, double z)
{
    KvTVWallNormalWindow* window = GetWindow(index);
    if (window == nullptr || std::isnan(z))
        return false;
    window->setZValue(z);
    Q_EMIT SignalArrangementChanged();
    return true;
}

double KvTVWallNormalScreen::GetMaxWindowZValue() const
{
    double largest = 0.0;
    for (const KvTVWallNormalWindow* window : m_windows)
        largest = qMax(largest, window->zValue());
    return largest;
}

void KvTVWallNormalScreen::AddFocusStops(QVector<QGraphicsItem*>& stops) const
{
    for (KvTVWallNormalWindow* window : m_windows)
        window->AddFocusStops(stops);
}

int KvTVWallNormalScreen::IndexOf(const QObject* window) const
{
    const auto found = std::find(m_windows.begin(), m_windows.end(), window);
    return found == m_windows.end() ? NoWindow : int(found - m_windows.begin());
}

// ---- Events on a window. It acts first and the client hears of it last, so that what a slot does is not
// undone by the wall.

void KvTVWallNormalScreen::HandleWindowEvent(KvTVWallNormalWindow* window, QEvent* event)
{
    if (IndexOf(window) == NoWindow)
        return; // removed, but the mouse is still held
    window->HandleEvent(event);
    if (IndexOf(window) != NoWindow)
        m_gestures.HandleWindowEvent(window, event);
    const int index = IndexOf(window);
    if (index != NoWindow)
        Q_EMIT SignalWindowEvent(index, event);
}

int KvTVWallNormalScreen::SelectionMode() const { return m_pView->SelectionMode(); }

QWidget* KvTVWallNormalScreen::Canvas() const { return m_pView->viewport(); }

QColor KvTVWallNormalScreen::BandColor() const { return Look().bandColor; }

QRect KvTVWallNormalScreen::WindowGeometry(int window) const { return m_windows.at(window)->Geometry(); }

bool KvTVWallNormalScreen::IsWindowSelected(int window) const { return m_windows.at(window)->IsSelected(); }

void KvTVWallNormalScreen::SetWindowSelected(int window, bool selected)
{
    m_windows.at(window)->SetSelected(selected);
}

void KvTVWallNormalScreen::ReportSite(const QPoint& from, const QPoint& to)
{
    Q_EMIT Signal3DSite(from.x(), from.y(), to.x(), to.y());
}

// ---- Events on the empty part

void KvTVWallNormalScreen::HandleEvent(QEvent* event)
{
    const auto* mouse = WallEvents::IsMouse(event->type()) ? static_cast<QMouseEvent*>(event) : nullptr;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        m_gestures.PressEmpty(mouse->pos(), mouse->button());
        break;
    case QEvent::MouseMove:
        m_gestures.MoveOnEmpty(mouse->pos(), mouse->buttons());
        break;
    case QEvent::MouseButtonRelease:
        m_gestures.ReleaseEmpty(mouse->pos(), mouse->button());
        break;
    case QEvent::ContextMenu:
        Q_EMIT SignalRightClick();
        break;
    default: // a drag that enters, or a drop
        Q_EMIT SignalScreenDropEvent(event);
        break;
    }
}

bool KvTVWallNormalScreen::CancelDrawing()
{
    const bool drew = m_gestures.IsDrawing();
    m_gestures.Cancel();
    return drew;
}

// ---- Painting

void KvTVWallNormalScreen::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget*)
{
    const QRect exposed = option->exposedRect.toAlignedRect() & QRect(QPoint(0, 0), m_size);
    m_backdrop.Paint(
        *painter, m_size, exposed, painter->device()->devicePixelRatioF(), Look().screenTextColor);
    const bool hasHeading = !m_strTitle.isEmpty() || !m_icon.isNull();
    if (hasHeading && exposed.intersects(HeadingRect()))
        PaintHeading(*painter);
}

QRect KvTVWallNormalScreen::HeadingRect() const
{
    return {HeadingMargin, HeadingMargin, qMax(0, m_size.width() - 2 * HeadingMargin), HeadingHeight};
}

void KvTVWallNormalScreen::PaintHeading(QPainter& painter)
{
    QRect rest = HeadingRect();
    const int icon = m_icon.isNull() ? 0 : HeadingIcon;
    const int text = painter.fontMetrics().horizontalAdvance(m_strTitle);
    // Keeps the lines of the cells out of the letters.
    painter.fillRect(
        rest.adjusted(0, 0, qMin(0, icon + text + HeadingMargin - rest.width()), 0), ScreenBackdrop::Color());
    if (!m_icon.isNull()) {
        m_icon.paint(&painter, QRect(rest.topLeft(), QSize(icon, rest.height())) & rest);
        rest.setLeft(rest.left() + icon);
    }
    rest.setWidth(qMin(rest.width(), text + HeadingMargin)); // beside the icon, whichever way it runs
    m_heading.Draw(painter, rest, m_strTitle, Look().screenTextColor);
}

} // namespace UICommonMdl
