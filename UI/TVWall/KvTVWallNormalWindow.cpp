#include "KvTVWallNormalWindow.h"

#include "KvTVWallDisplayVideo.h"
#include "KvTVWallNormalButton.h"
#include "KvTVWallNormalFrame.h"
#include "KvTVWallNormalScreen.h"
#include "KvTVWallNormalTitleItem.h"
#include "KvTVWallNormalView.h"
#include "WallEvents.h"
#include "WallGeometry.h"

#include <QGraphicsProxyWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

namespace UICommonMdl {

namespace {

constexpr int LargestVideo = 16000; // pixels; twice as many on a screen of scale 2, which four gigabytes hold

} // namespace

KvTVWallNormalWindow::KvTVWallNormalWindow(
    KvTVWallNormalScreen* screen, KvTVWallNormalView* view, QGraphicsItem* parent, double precision,
    const KvGUI::StructScaleRect& rect, const QVariant& userData)
    : QGraphicsObject(parent)
    , m_pScreen(screen)
    , m_pView(view)
    , m_pTitle(new KvTVWallNormalTitleItem(this, view))
    , m_placement(rect, precision)
    , m_userData(userData)
{
    setFlag(ItemIsFocusable);
    setAcceptedMouseButtons(Qt::NoButton);
}

// The video goes with its proxy, when nothing of this class is left to hear of it.
KvTVWallNormalWindow::~KvTVWallNormalWindow()
{
    if (m_pVideo)
        m_pVideo->disconnect(this);
}

// ---- Place and state

void KvTVWallNormalWindow::PlaceOnScreen()
{
    m_drag.End();
    SetGeometry(WallGeometry::Displayable(WallGeometry::WindowRect(m_pScreen->Size(), GetScale())));
}

void KvTVWallNormalWindow::SetGeometry(const QRect& geometry)
{
    const bool resized = m_size != geometry.size();
    if (resized) {
        prepareGeometryChange();
        m_size = geometry.size();
    }
    setPos(geometry.topLeft());
    if (!resized)
        return;
    m_pTitle->FitTo(m_size);
    if (m_pFrame != nullptr)
        m_pFrame->FitTo(m_size);
    if (m_pProxy != nullptr) // last: what the client has put into it may place the window again
        PlaceVideo();
}

// One pixel at least: Qt takes an embedded widget that has had no size for unmapped ever after, so that its
// updates paint nothing. And no more than LargestVideo: Qt keeps a picture as large as the widget ready for
// each embedded one, and display servers take none of more than 32767 pixels or four gigabytes. What is
// larger is shown enlarged.
void KvTVWallNormalWindow::PlaceVideo()
{
    const QRect area = WindowTitle::VideoRect(m_size);
    const int longest = std::max(area.width(), area.height());
    const double enlarged = std::max(1.0, longest / double(LargestVideo));
    m_pProxy->setScale(enlarged);
    m_pProxy->setGeometry(QRectF(area.topLeft(), (area.size() / enlarged).expandedTo(QSize(1, 1))));
}

// State, pixels and tool tips change before the report, so that a slot finds the window as it will be and
// may change or delete it: nothing of the window may be used afterwards.
void KvTVWallNormalWindow::ShowPlacement(bool changed)
{
    if (changed)
        PlaceOnScreen();
    m_pTitle->SetMaximized(m_placement.GetState() == WindowPlacement::State::Maximized);
    m_pTitle->SetSnapped(m_placement.GetState() == WindowPlacement::State::Snapped);
    if (!changed)
        return;
    const KvGUI::StructScaleRect now = GetScale();
    Q_EMIT SignalArrangementChanged();
    Q_EMIT SignalGeoChanged(now);
}

void KvTVWallNormalWindow::SetScale(const KvGUI::StructScaleRect& rect)
{
    ShowPlacement(m_placement.Set(rect));
}

void KvTVWallNormalWindow::SetSelected(bool selected)
{
    if (m_bSelected == selected)
        return;
    m_bSelected = selected;
    if (m_pFrame == nullptr) {
        m_pFrame = new KvTVWallNormalFrame(this);
        m_pFrame->SetColor(m_pView->Look().windowSelectedFrameColor);
        m_pFrame->FitTo(m_size);
    }
    m_pFrame->setVisible(selected);
    Q_EMIT SignalArrangementChanged();
}

void KvTVWallNormalWindow::SetVolumeOn(bool on)
{
    m_bVolumeOn = on;
    m_pTitle->SetVolumeOn(on);
}

void KvTVWallNormalWindow::ShowNumber(int number)
{
    m_iNumber = number;
    UpdateTitle();
}

void KvTVWallNormalWindow::SetContentText(const QString& text)
{
    m_strContent = text;
    UpdateTitle();
}

void KvTVWallNormalWindow::UpdateTitle()
{
    m_pTitle->SetText(WindowTitle::Joined(WindowTitle::Numbered(m_iNumber), m_strContent));
}

void KvTVWallNormalWindow::UpdateTexts()
{
    UpdateTitle();
    m_pTitle->UpdateToolTips();
}

void KvTVWallNormalWindow::SetAudioButtonVisible(bool visible) { m_pTitle->SetAudioButtonVisible(visible); }

void KvTVWallNormalWindow::UpdateLook()
{
    if (m_pFrame != nullptr)
        m_pFrame->SetColor(m_pView->Look().windowSelectedFrameColor);
    ColorVideo();
}

void KvTVWallNormalWindow::AddFocusStops(QVector<QGraphicsItem*>& stops)
{
    stops << this;
    for (KvTVWallNormalButton* button : m_pTitle->Buttons()) {
        if (button->isVisible())
            stops << button;
    }
}

// ---- The video area

KvTVWallDisplayVideo* KvTVWallNormalWindow::GetVideo()
{
    if (m_pVideo || m_bVideoDeleted)
        return m_pVideo;
    m_pVideo = new KvTVWallDisplayVideo(nullptr);
    m_pVideo->SetText(m_strVideoText);
    m_pVideo->setAutoFillBackground(true);
    m_pVideo->setUpdatesEnabled(m_bVideoUpdates);
    ColorVideo();
    // The client may delete it: then there is none, as in a wall of widgets.
    connect(m_pVideo, &QObject::destroyed, this, [this] {
        m_bVideoDeleted = true;
        update();
    });
    m_pProxy = new QGraphicsProxyWidget(this);
    m_pProxy->setWidget(m_pVideo);
    PlaceVideo();
    setFlag(ItemClipsChildrenToShape); // the video reaches over the lower edge
    return m_pVideo;
}

// It has no parent widget to take colours and style sheet from.
void KvTVWallNormalWindow::ColorVideo()
{
    if (m_pVideo.isNull())
        return;
    QPalette palette = m_pVideo->palette();
    palette.setColor(QPalette::Window, m_pView->Look().videoColor);
    palette.setColor(QPalette::WindowText, m_pView->Look().videoTextColor);
    m_pVideo->setPalette(palette);
}

bool KvTVWallNormalWindow::DeleteVideo()
{
    if (m_bVideoDeleted)
        return false;
    m_bVideoDeleted = true;
    update();
    if (m_pVideo.isNull())
        return true;
    // An event of it may be the occasion, so it is only hidden now.
    m_pVideo->deleteLater();
    m_pVideo = nullptr;
    m_pProxy->hide(); // moves the focus on, of which the client may hear
    return true;
}

bool KvTVWallNormalWindow::SetVideoText(const QString& text)
{
    if (m_bVideoDeleted)
        return false;
    m_strVideoText = text;
    if (!m_pVideo.isNull())
        m_pVideo->SetText(text);
    update();
    return true;
}

bool KvTVWallNormalWindow::SetVideoUpdates(bool enable)
{
    if (m_bVideoDeleted)
        return false;
    m_bVideoUpdates = enable;
    if (!m_pVideo.isNull())
        m_pVideo->setUpdatesEnabled(enable);
    return true;
}

// ---- Moving and resizing by the mouse. While the drag lasts only pixels move; the rectangle is set once, at
// the release.

Qt::Edges KvTVWallNormalWindow::EdgesForMouse(const QPoint& pos) const
{
    return GetScale().bEditable ? WindowDrag::EdgesAt(m_size, pos) : Qt::Edges();
}

Qt::CursorShape KvTVWallNormalWindow::CursorAt(const QPoint& pos) const
{
    return WindowDrag::CursorFor(EdgesForMouse(pos));
}

WindowDrag::Field KvTVWallNormalWindow::Field() const
{
    return {m_pScreen->Size(), m_pScreen->GetColumnSpan(), m_pScreen->GetRowSpan()};
}

bool KvTVWallNormalWindow::KeepsToCells(const QMouseEvent& event) const
{
    return !m_pScreen->IsFree() || (event.modifiers() & Qt::ShiftModifier);
}

void KvTVWallNormalWindow::Press(const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton || !GetScale().bEditable || m_pScreen->IsPositioning())
        return;
    const Qt::Edges edges = EdgesForMouse(event.pos());
    if (edges || WindowTitle::BarRect(m_size).contains(event.pos()))
        m_drag.Begin(edges, event.globalPos(), Geometry());
}

void KvTVWallNormalWindow::DragTo(const QMouseEvent& event)
{
    m_drag.MoveTo(event.globalPos(), Field());
    SetGeometry(m_drag.Shown(m_placement, Field(), KeepsToCells(event)));
}

void KvTVWallNormalWindow::EndDrag(const QMouseEvent& event)
{
    DragTo(event);
    if (m_drag.HasMoved() && m_placement.Set(m_drag.Scale(m_placement, Field(), KeepsToCells(event))))
        ShowPlacement(true);
    else
        PlaceOnScreen(); // the way was too short to count
}

void KvTVWallNormalWindow::CancelDrag()
{
    if (m_drag.IsActive())
        PlaceOnScreen();
}

void KvTVWallNormalWindow::DoubleClick(const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton)
        return;
    m_drag.End();
    if (GetScale().bEditable)
        ShowPlacement(m_placement.MaximizeOrRestore());
    if (!isVisible()) // removed by a slot
        return;
    SetSelected(true);
    m_pScreen->SelectUnlessSelected();
    Q_EMIT SignalDoubleClickedSelectedChanged();
}

void KvTVWallNormalWindow::HandleEvent(QEvent* event)
{
    const auto* mouse = WallEvents::IsMouse(event->type()) ? static_cast<QMouseEvent*>(event) : nullptr;
    event->accept();
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        Press(*mouse);
        break;
    case QEvent::MouseMove:
        if (m_drag.IsActive() && (mouse->buttons() & Qt::LeftButton))
            DragTo(*mouse);
        else
            CancelDrag(); // the release went elsewhere
        break;
    case QEvent::MouseButtonRelease:
        if (m_drag.IsActive() && mouse->button() == Qt::LeftButton)
            EndDrag(*mouse);
        break;
    case QEvent::MouseButtonDblClick:
        DoubleClick(*mouse);
        break;
    case QEvent::KeyPress:
        event->setAccepted(m_drag.IsActive() && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape);
        if (event->isAccepted())
            CancelDrag();
        break;
    case QEvent::ContextMenu:
        break;
    default:
        event->ignore(); // the wheel, other keys and what is dragged here are the client's or the wall's
        break;
    }
}

void KvTVWallNormalWindow::ClickButton(WindowTitle::Button button)
{
    switch (button) {
    case WindowTitle::Button::Volume:
        Q_EMIT SignalVolemeBtnClicked();
        break;
    case WindowTitle::Button::Snap:
        ShowPlacement(m_placement.SnapOrRestore(m_pScreen->GetColumnSpan(), m_pScreen->GetRowSpan()));
        break;
    case WindowTitle::Button::Max:
        ShowPlacement(m_placement.MaximizeOrRestore());
        break;
    case WindowTitle::Button::Close:
        Q_EMIT SignalCloseBtnClicked();
        break;
    }
}

// ---- The keyboard

void KvTVWallNormalWindow::keyPressEvent(QKeyEvent* event) { m_pScreen->HandleWindowEvent(this, event); }

void KvTVWallNormalWindow::keyReleaseEvent(QKeyEvent* event) { m_pScreen->HandleWindowEvent(this, event); }

void KvTVWallNormalWindow::focusInEvent(QFocusEvent* event)
{
    m_bKeyboardFocus = WallEvents::IsByTab(*event);
    update();
}

void KvTVWallNormalWindow::focusOutEvent(QFocusEvent*)
{
    m_bKeyboardFocus = false;
    update();
}

// ---- Painting

void KvTVWallNormalWindow::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*)
{
    const NormalWallLook& look = m_pView->Look();
    const QRect whole(QPoint(0, 0), m_size);
    const QRect video
        = m_bVideoDeleted ? QRect(0, m_size.height(), 0, 0) : WindowTitle::VideoRect(m_size) & whole;
    // Not below the video, which covers it: on a full wall that would be every pixel once more.
    painter->fillRect(QRect(0, 0, whole.width(), video.top()) & whole, look.windowColor);
    painter->fillRect(QRect(0, video.top(), video.left(), whole.height()) & whole, look.windowColor);
    painter->fillRect(
        QRect(video.right() + 1, video.top(), whole.width(), whole.height()) & whole, look.windowColor);
    painter->setPen(look.windowFrameColor);
    if (m_bKeyboardFocus)
        painter->setPen(QPen(look.bandColor, 1, Qt::DashLine));
    painter->drawRect(whole.adjusted(0, 0, -1, -1));
    if (m_bVideoDeleted || m_pVideo)
        return;
    painter->fillRect(video, look.videoColor);
    if (m_strVideoText.isEmpty())
        return;
    painter->setPen(look.videoTextColor);
    KvTVWallDisplayVideo::PaintText(*painter, WindowTitle::VideoRect(m_size), m_strVideoText);
}

} // namespace UICommonMdl
