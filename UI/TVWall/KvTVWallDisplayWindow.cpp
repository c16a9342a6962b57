#include "KvTVWallDisplayWindow.h"

#include "KvTVWallDisplayFrame.h"
#include "KvTVWallDisplayScreen.h"
#include "KvTVWallDisplayTitleItem.h"
#include "KvTVWallDisplayVideo.h"
#include "KvTVWallDisplayWnd.h"
#include "WallEvents.h"
#include "WallGeometry.h"
#include "WindowTitle.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>

namespace UICommonMdl {

KvTVWallDisplayWindow::KvTVWallDisplayWindow(
    KvTVWallDisplayScreen* screen, double precision, const KvGUI::StructScaleRect& rect,
    const QVariant& userData)
    : QMdiSubWindow(screen->viewport(), Qt::SubWindow | Qt::FramelessWindowHint)
    , m_pScreen(screen)
    , m_pTitle(new KvTVWallDisplayTitleItem(this))
    , m_pVideo(new KvTVWallDisplayVideo(this))
    , m_userData(userData)
    , m_placement(rect, precision)
{
    // The base class activates the window under the keyboard focus, closes it by shortcuts of its system
    // menu, and lays it out by a layout for one inner widget.
    disconnect(qApp, nullptr, this, nullptr);
    setSystemMenu(nullptr);
    delete layout();
    // The base class takes the hint away. As a sub-window, which is its type, it would hold the keyboard
    // focus and window shortcuts within itself.
    overrideWindowFlags((windowFlags() & ~Qt::WindowType_Mask) | Qt::CustomizeWindowHint);
    setAttribute(Qt::WA_Hover);
    setAcceptDrops(true);

    connect(m_pTitle->VolumeButton(), SIGNAL(clicked()), this, SIGNAL(SignalVolemeBtnClicked()));
    connect(m_pTitle->SnapButton(), SIGNAL(clicked()), this, SLOT(OnWindowSelfAdaptionBtnClicked()));
    connect(m_pTitle->MaxButton(), SIGNAL(clicked()), this, SLOT(OnShowMaxOrNormal()));
    connect(m_pTitle->CloseButton(), SIGNAL(clicked()), this, SIGNAL(SignalCloseBtnClicked()));
}

void KvTVWallDisplayWindow::PlaceOnScreen()
{
    m_drag.End();
    m_pTitle->PassMoves(false);
    setGeometry(WallGeometry::Displayable(WallGeometry::WindowRect(m_pScreen->size(), GetScale())));
    if (!isVisible())
        LayOut(); // a hidden widget hears of its size when it is shown
}

// State, pixels and tool tips change before the report, so that a slot finds the window as it will be and
// may change or delete it: nothing of the window may be used afterwards.
void KvTVWallDisplayWindow::ShowPlacement(bool changed)
{
    if (changed)
        PlaceOnScreen();
    m_pTitle->SetMaximized(m_placement.GetState() == WindowPlacement::State::Maximized);
    m_pTitle->SetSnapped(m_placement.GetState() == WindowPlacement::State::Snapped);
    if (!changed)
        return;
    const KvGUI::StructScaleRect now = GetScale();
    Q_EMIT m_pScreen->SignalArrangementChanged();
    Q_EMIT SignalGeoChanged(now);
}

void KvTVWallDisplayWindow::SetScale(const KvGUI::StructScaleRect& rect)
{
    ShowPlacement(m_placement.Set(rect));
}

void KvTVWallDisplayWindow::OnShowMaxOrNormal() { ShowPlacement(m_placement.MaximizeOrRestore()); }

void KvTVWallDisplayWindow::OnWindowSelfAdaptionBtnClicked()
{
    ShowPlacement(m_placement.SnapOrRestore(m_pScreen->GetColumnSpan(), m_pScreen->GetRowSpan()));
}

void KvTVWallDisplayWindow::SetSelected(bool selected)
{
    if (m_bSelected == selected)
        return;
    m_bSelected = selected;
    Q_EMIT m_pScreen->SignalArrangementChanged();
    if (m_pFrame == nullptr) {
        m_pFrame = new KvTVWallDisplayFrame(this, m_pScreen->GetWall()->WindowSelectedFrameColor());
        m_pFrame->FitTo(size());
    }
    m_pFrame->setVisible(selected);
    m_pFrame->raise(); // over what the client has put into the window meanwhile
}

void KvTVWallDisplayWindow::UpdateLook()
{
    if (m_pFrame != nullptr)
        m_pFrame->SetColor(m_pScreen->GetWall()->WindowSelectedFrameColor());
    update();
}

void KvTVWallDisplayWindow::SetVolumeOn(bool on)
{
    if (m_bVolumeOn == on)
        return;
    m_bVolumeOn = on;
    m_pTitle->SetVolumeOn(on);
}

void KvTVWallDisplayWindow::ShowNumber(int number)
{
    m_iNumber = number;
    UpdateTitle();
}

void KvTVWallDisplayWindow::SetContentText(const QString& text)
{
    m_strContent = text;
    UpdateTitle();
}

void KvTVWallDisplayWindow::UpdateTitle()
{
    const QString text = WindowTitle::Joined(WindowTitle::Numbered(m_iNumber), m_strContent);
    m_pTitle->SetText(text);
    setAccessibleName(text);
}

KvTVWallDisplayVideo* KvTVWallDisplayWindow::GetVideo() const { return m_pVideo; }

bool KvTVWallDisplayWindow::DeleteVideo()
{
    if (m_pVideo.isNull())
        return false;
    // An event of it may be the occasion, so it is only hidden now.
    QWidget* video = m_pVideo;
    m_pVideo = nullptr;
    update();
    video->deleteLater();
    video->hide(); // moves the focus on, of which the client may hear
    return true;
}

void KvTVWallDisplayWindow::resizeEvent(QResizeEvent*) { LayOut(); }

void KvTVWallDisplayWindow::LayOut()
{
    m_pTitle->setGeometry(WindowTitle::BarRect(size()));
    if (!m_pVideo.isNull())
        m_pVideo->setGeometry(WindowTitle::VideoRect(size()));
    if (m_pFrame != nullptr)
        m_pFrame->FitTo(size());
}

void KvTVWallDisplayWindow::paintEvent(QPaintEvent*)
{
    const KvTVWallDisplayWnd* wall = m_pScreen->GetWall();
    QPainter painter(this);
    // Not below the video, which covers it: on a full wall that would be every pixel once more.
    const QRect video = m_pVideo.isNull() ? QRect(0, height(), width(), 0) : m_pVideo->geometry();
    painter.fillRect(0, 0, width(), video.top(), wall->WindowColor());
    painter.fillRect(0, video.top(), video.left(), height(), wall->WindowColor());
    painter.fillRect(video.right() + 1, video.top(), width(), height(), wall->WindowColor());
    if (m_bKeyboardFocus) {
        painter.setPen(QPen(wall->BandColor(), 1, Qt::DashLine));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
        return;
    }
    // Filled, as lines are clipped pixel by pixel.
    const QColor frame = wall->WindowFrameColor();
    painter.fillRect(0, 0, width(), 1, frame);
    painter.fillRect(0, height() - 1, width(), 1, frame);
    painter.fillRect(0, 1, 1, height() - 2, frame);
    painter.fillRect(width() - 1, 1, 1, height() - 2, frame);
}

// Moving and resizing by the mouse. While the drag lasts only pixels move; the rectangle is set once, at the
// release.

Qt::Edges KvTVWallDisplayWindow::EdgesForMouse(const QPoint& pos) const
{
    return GetScale().bEditable ? WindowDrag::EdgesAt(size(), pos) : Qt::Edges();
}

void KvTVWallDisplayWindow::ShowCursorAt(const QPoint& pos)
{
    // A button wins over the edge that it touches.
    const bool onButton = qobject_cast<QPushButton*>(childAt(pos)) != nullptr;
    const Qt::CursorShape shape = onButton ? Qt::ArrowCursor : WindowDrag::CursorFor(EdgesForMouse(pos));
    if (shape != Qt::ArrowCursor)
        setCursor(shape);
    else if (testAttribute(Qt::WA_SetCursor))
        unsetCursor();
}

WindowDrag::Field KvTVWallDisplayWindow::Field() const
{
    return {m_pScreen->size(), m_pScreen->GetColumnSpan(), m_pScreen->GetRowSpan()};
}

void KvTVWallDisplayWindow::DragTo(const QPoint& globalPos, bool keepToCells)
{
    m_drag.MoveTo(globalPos, Field());
    setGeometry(m_drag.Shown(m_placement, Field(), keepToCells));
}

void KvTVWallDisplayWindow::EndDrag(const QPoint& globalPos, bool keepToCells)
{
    DragTo(globalPos, keepToCells);
    if (m_drag.HasMoved() && m_placement.Set(m_drag.Scale(m_placement, Field(), keepToCells)))
        ShowPlacement(true);
    else
        PlaceOnScreen(); // the way was too short to count
}

void KvTVWallDisplayWindow::CancelDrag()
{
    if (m_drag.IsActive())
        PlaceOnScreen();
}

void KvTVWallDisplayWindow::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    if (event->button() != Qt::LeftButton)
        return;
    CancelDrag(); // whose release went elsewhere
    if (!GetScale().bEditable || m_pScreen->IsPositioning())
        return;
    const Qt::Edges edges = EdgesForMouse(event->pos());
    if (!edges && !m_pTitle->geometry().contains(event->pos()))
        return;
    m_drag.Begin(edges, event->globalPos(), geometry());
    m_pTitle->PassMoves(true); // they tell when the button was released elsewhere
}

void KvTVWallDisplayWindow::mouseMoveEvent(QMouseEvent* event)
{
    event->accept();
    if (!m_drag.IsActive())
        return;
    if (event->buttons() & Qt::LeftButton)
        DragTo(event->globalPos(), event->modifiers() & Qt::ShiftModifier);
    else
        CancelDrag(); // the release went elsewhere
}

void KvTVWallDisplayWindow::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
    if (m_drag.IsActive() && event->button() == Qt::LeftButton)
        EndDrag(event->globalPos(), event->modifiers() & Qt::ShiftModifier);
}

void KvTVWallDisplayWindow::mouseDoubleClickEvent(QMouseEvent* event)
{
    event->accept();
    if (event->button() != Qt::LeftButton)
        return;
    CancelDrag();
    if (GetScale().bEditable)
        OnShowMaxOrNormal();
    if (isHidden()) // removed by a slot
        return;
    SetSelected(true);
    m_pScreen->SelectUnlessSelected();
    Q_EMIT SignalDoubleClickedSelectedChanged();
}

void KvTVWallDisplayWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && m_drag.IsActive()) {
        CancelDrag();
        event->accept();
        return;
    }
    event->ignore();
}

// ---- Past the base class: it would move, activate and lay out the window by its own rules.
// NOLINTBEGIN(bugprone-parent-virtual-call)

// Hover events arrive also while the mouse is over a child, whatever the client put into the video area.
bool KvTVWallDisplayWindow::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
        if (!m_drag.IsActive())
            ShowCursorAt(static_cast<QHoverEvent*>(event)->pos());
        return true;
    case QEvent::HoverLeave:
        return true;
    case QEvent::UngrabMouse:
    case QEvent::WindowBlocked: // by a modal dialog, which gets the release
        CancelDrag();
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

bool KvTVWallDisplayWindow::eventFilter(QObject* watched, QEvent* event)
{
    return QWidget::eventFilter(watched, event);
}

void KvTVWallDisplayWindow::contextMenuEvent(QContextMenuEvent* event) { event->accept(); }

void KvTVWallDisplayWindow::closeEvent(QCloseEvent* event) { event->ignore(); }

void KvTVWallDisplayWindow::hideEvent(QHideEvent*) { CancelDrag(); }

void KvTVWallDisplayWindow::moveEvent(QMoveEvent* event) { QWidget::moveEvent(event); }

void KvTVWallDisplayWindow::showEvent(QShowEvent* event) { QWidget::showEvent(event); }

void KvTVWallDisplayWindow::leaveEvent(QEvent* event) { QWidget::leaveEvent(event); }

void KvTVWallDisplayWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange)
        CancelDrag();
    if (event->type() == QEvent::LanguageChange)
        UpdateTitle();
    QWidget::changeEvent(event);
}

void KvTVWallDisplayWindow::childEvent(QChildEvent* event) { QWidget::childEvent(event); }

void KvTVWallDisplayWindow::focusInEvent(QFocusEvent* event)
{
    m_bKeyboardFocus = WallEvents::IsByTab(*event);
    update();
}

void KvTVWallDisplayWindow::focusOutEvent(QFocusEvent*)
{
    m_bKeyboardFocus = false;
    update();
}

// NOLINTEND(bugprone-parent-virtual-call)

} // namespace UICommonMdl
