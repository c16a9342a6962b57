#include "KvTVWallNormalView.h"

#include "KvTVWallNormalButton.h"
#include "KvTVWallNormalScreen.h"
#include "KvTVWallNormalWindow.h"

#include <Platform/BasicUIComponents/KvTranslatedText.h>

#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QDragLeaveEvent>
#include <QGraphicsScene>
#include <QImageReader>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <utility>

namespace UICommonMdl {

namespace {

/// The event as a widget at @p origin would get it.
QMouseEvent Translated(const QMouseEvent& event, const QPoint& origin)
{
    return {event.type(),   event.localPos() - origin, event.windowPos(), event.screenPos(),
            event.button(), event.buttons(),           event.modifiers(), event.source()};
}

QWheelEvent Translated(const QWheelEvent& event, const QPoint& origin)
{
    return {event.position() - origin,
            event.globalPosition(),
            event.pixelDelta(),
            event.angleDelta(),
            event.buttons(),
            event.modifiers(),
            event.phase(),
            event.inverted(),
            event.source()};
}

} // namespace

KvTVWallNormalView::KvTVWallNormalView(QWidget* parent)
    : QGraphicsView(parent)
{
    auto* scene = new QGraphicsScene(this);
    scene->setItemIndexMethod(QGraphicsScene::NoIndex); // its top level holds the screens only
    setScene(scene);
    new KvGUI::KvTranslatedText(this, "accessibleName", [] { return tr("Video wall"); });
    setFocusPolicy(Qt::StrongFocus);
    setFrameStyle(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setOptimizationFlags(DontAdjustForAntialiasing | DontSavePainterState);
    setViewportUpdateMode(SmartViewportUpdate);
    viewport()->setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
}

void KvTVWallNormalView::DeleteWithWall()
{
    if (!m_handling.IsActive()) {
        delete this;
        return;
    }
    CancelMouse();
    setParent(nullptr); // hides it too
    m_handling.Delete(this);
}

// ---- What the items share

void KvTVWallNormalView::AddScreen(KvTVWallNormalScreen* screen)
{
    m_screens.append(screen);
    scene()->addItem(screen);
}

// A screen may be the one that is emitting, so it only leaves the list now.
void KvTVWallNormalView::DeleteAllScreens()
{
    for (KvTVWallNormalScreen* screen : qAsConst(m_screens))
        screen->disconnect();
    const QList<KvTVWallNormalScreen*> removed = std::exchange(m_screens, {});
    for (KvTVWallNormalScreen* screen : removed)
        screen->Remove();
}

const QPixmap& KvTVWallNormalView::Icon(const QString& file, int side)
{
    const qreal density = devicePixelRatioF();
    if (m_dIconDensity != density)
        m_icons.clear();
    m_dIconDensity = density;
    const auto key = qMakePair(file, side);
    const auto found = m_icons.constFind(key);
    if (found != m_icons.constEnd())
        return *found;
    QPixmap icon;
    if (!file.isEmpty() && side > 0) {
        QImageReader reader(file);
        reader.setScaledSize(QSize(side, side) * density);
        icon = QPixmap::fromImage(reader.read());
        icon.setDevicePixelRatio(density);
    }
    return *m_icons.insert(key, icon);
}

void KvTVWallNormalView::SetAudioButtonsVisible(bool visible)
{
    m_bAudioButtons = visible;
    for (KvTVWallNormalScreen* screen : qAsConst(m_screens))
        screen->SetAudioButtonsVisible(visible);
}

void KvTVWallNormalView::changeEvent(QEvent* event)
{
    QGraphicsView::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        CancelMouse();
    if (event->type() == QEvent::StyleChange)
        UpdateLook();
    if (event->type() == QEvent::LanguageChange) {
        for (KvTVWallNormalScreen* screen : qAsConst(m_screens))
            screen->UpdateTexts();
    }
}

void KvTVWallNormalView::UpdateLook()
{
    m_icons.clear();
    const QList<KvTVWallNormalScreen*> present = m_screens; // a video in another colour may change the list
    for (KvTVWallNormalScreen* screen : present)
        screen->UpdateLook();
    viewport()->update();
}

void KvTVWallNormalView::drawBackground(QPainter* painter, const QRectF& exposed)
{
    painter->fillRect(exposed, gutterColor);
}

void KvTVWallNormalView::resizeEvent(QResizeEvent* event)
{
    QGraphicsView::resizeEvent(event);
    scene()->setSceneRect(QRectF(QPointF(0, 0), viewport()->size()));
}

// ---- The mouse

KvTVWallNormalView::Target KvTVWallNormalView::TargetOf(QGraphicsItem* item)
{
    for (; item != nullptr; item = item->parentItem()) {
        if (auto* window = qgraphicsitem_cast<KvTVWallNormalWindow*>(item))
            return {window->Screen(), window};
        if (auto* screen = qgraphicsitem_cast<KvTVWallNormalScreen*>(item))
            return {screen, nullptr};
    }
    return {};
}

KvTVWallNormalView::Target KvTVWallNormalView::TargetAt(const QPoint& pos) const
{
    return TargetOf(scene()->itemAt(pos, QTransform()));
}

QPoint KvTVWallNormalView::Target::Origin() const
{
    return window != nullptr ? window->scenePos().toPoint() : screen->pos().toPoint();
}

void KvTVWallNormalView::Target::Deliver(QEvent* event) const
{
    if (window != nullptr)
        screen->HandleWindowEvent(window, event);
    else
        screen->HandleEvent(event);
}

void KvTVWallNormalView::SendMouse(const QMouseEvent& event)
{
    if (!IsHeld())
        return;
    QMouseEvent translated = Translated(event, m_held.Origin());
    m_held.Deliver(&translated);
}

void KvTVWallNormalView::PressOnTarget(QMouseEvent* event)
{
    event->accept();
    if (!IsHeld())
        m_held = TargetAt(event->pos());
    SendMouse(*event);
}

void KvTVWallNormalView::mousePressEvent(QMouseEvent* event)
{
    if (!IsHeld()) {
        QGraphicsView::mousePressEvent(event); // to a button, or to what lies in a video
        if (event->isAccepted())
            return;
    }
    PressOnTarget(event);
}

void KvTVWallNormalView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (!IsHeld()) {
        QGraphicsView::mouseDoubleClickEvent(event);
        if (event->isAccepted())
            return;
    }
    PressOnTarget(event);
}

void KvTVWallNormalView::mouseMoveEvent(QMouseEvent* event)
{
    if (!IsHeld()) {
        QGraphicsView::mouseMoveEvent(event);
        ShowCursorAt(event->pos());
        return;
    }
    event->accept();
    SendMouse(*event);
    if (event->buttons() == Qt::NoButton)
        m_held = {}; // the release went elsewhere
}

void KvTVWallNormalView::mouseReleaseEvent(QMouseEvent* event)
{
    if (!IsHeld()) {
        QGraphicsView::mouseReleaseEvent(event);
        return;
    }
    event->accept();
    SendMouse(*event);
    if (event->buttons() == Qt::NoButton)
        m_held = {};
}

void KvTVWallNormalView::CancelMouse()
{
    if (m_held.window != nullptr)
        m_held.window->CancelDrag();
    if (m_held.screen != nullptr)
        m_held.screen->CancelDrawing();
    m_held = {};
}

// A button wins over the edge that it touches, and so does what the client has put into a video.
void KvTVWallNormalView::ShowCursorAt(const QPoint& pos)
{
    QGraphicsItem* item = scene()->itemAt(pos, QTransform());
    const Target target = TargetOf(item);
    const bool onWindow = target.window != nullptr && item->type() != KvTVWallNormalButton::Type;
    const Qt::CursorShape shape = onWindow ? target.window->CursorAt(pos - target.Origin()) : Qt::ArrowCursor;
    if (shape != Qt::ArrowCursor)
        viewport()->setCursor(shape);
    else if (m_bOwnCursor)
        viewport()->unsetCursor();
    m_bOwnCursor = shape != Qt::ArrowCursor;
}

void KvTVWallNormalView::wheelEvent(QWheelEvent* event)
{
    const QPoint pos = event->position().toPoint();
    if (viewport()->childAt(pos) == nullptr) { // an overlay reports for itself
        QGraphicsView::wheelEvent(event); // to what lies in a video
        const Target target = TargetAt(pos);
        if (!event->isAccepted() && target.window != nullptr) {
            QWheelEvent translated = Translated(*event, target.Origin());
            target.Deliver(&translated);
            event->setAccepted(translated.isAccepted());
        }
        if (event->isAccepted())
            return;
    }
    event->accept();
    Q_EMIT SignalWheel(event->angleDelta().y(), pos);
}

void KvTVWallNormalView::contextMenuEvent(QContextMenuEvent* event)
{
    event->ignore();
    QGraphicsView::contextMenuEvent(event); // to what lies in a video
    if (event->isAccepted())
        return;
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard && scene()->focusItem() != nullptr;
    const Target target = byKey ? TargetOf(scene()->focusItem()) : TargetAt(event->pos());
    if (target.screen == nullptr)
        return;
    event->accept();
    QContextMenuEvent translated(
        event->reason(), event->pos() - target.Origin(), event->globalPos(), event->modifiers());
    target.Deliver(&translated);
}

// ---- The keyboard

void KvTVWallNormalView::keyPressEvent(QKeyEvent* event)
{
    event->ignore();
    QCoreApplication::sendEvent(scene(), event); // to the item in focus; the base class would scroll
    if (event->isAccepted() || event->key() != Qt::Key_Escape || m_held.screen == nullptr)
        return;
    event->setAccepted(m_held.screen->CancelDrawing());
}

void KvTVWallNormalView::focusInEvent(QFocusEvent* event)
{
    QGraphicsView::focusInEvent(event);
    const bool forwards = event->reason() == Qt::TabFocusReason;
    if (forwards || event->reason() == Qt::BacktabFocusReason) {
        scene()->setFocusItem(nullptr);
        MoveFocus(forwards);
    }
}

// Each window, then its buttons. False at the end, where the focus goes on to the next widget.
bool KvTVWallNormalView::MoveFocus(bool next)
{
    QVector<QGraphicsItem*> stops;
    for (const KvTVWallNormalScreen* screen : qAsConst(m_screens))
        screen->AddFocusStops(stops);
    const QGraphicsItem* focused = scene()->focusItem();
    int index = stops.indexOf(const_cast<QGraphicsItem*>(focused)); // only compared
    if (index < 0 && focused != nullptr) // in a video
        index = stops.indexOf(TargetOf(scene()->focusItem()).window);
    const int wanted = index < 0 ? (next ? 0 : stops.size() - 1) : index + (next ? 1 : -1);
    if (wanted < 0 || wanted >= stops.size())
        return false;
    stops.at(wanted)->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

// ---- Things dragged from elsewhere. The viewport is one target for Qt, so entering and leaving a window or
// a screen's empty part is found out here.

bool KvTVWallNormalView::OfferDrag(const Target& target, const QDropEvent& event)
{
    QDragEnterEvent enter(
        event.pos() - target.Origin(), event.possibleActions(), event.mimeData(), event.mouseButtons(),
        event.keyboardModifiers());
    enter.setDropAction(event.proposedAction());
    enter.ignore();
    target.Deliver(&enter);
    m_dragAction = enter.dropAction();
    return enter.isAccepted();
}

void KvTVWallNormalView::EnterDrag(const Target& target, const QDropEvent& event)
{
    m_dragOver = target;
    m_dragReceiver = {};
    if (target.window != nullptr && OfferDrag(target, event))
        m_dragReceiver = target;
    const Target screen{target.screen, nullptr};
    if (m_dragReceiver.screen == nullptr && screen.screen != nullptr && OfferDrag(screen, event))
        m_dragReceiver = screen;
}

void KvTVWallNormalView::LeaveDrag()
{
    const Target left = std::exchange(m_dragReceiver, Target());
    m_dragOver = {};
    QDragLeaveEvent leave;
    if (left.window != nullptr)
        left.Deliver(&leave);
}

// Accepted in any case: otherwise Qt would not tell where the drag goes.
void KvTVWallNormalView::dragEnterEvent(QDragEnterEvent* event)
{
    EnterDrag(TargetAt(event->pos()), *event);
    if (m_dragReceiver.screen != nullptr)
        event->setDropAction(m_dragAction);
    event->accept();
}

void KvTVWallNormalView::dragMoveEvent(QDragMoveEvent* event)
{
    const Target target = TargetAt(event->pos());
    if (!(target == m_dragOver)) {
        LeaveDrag();
        EnterDrag(target, *event);
    }
    event->setAccepted(m_dragReceiver.screen != nullptr);
    if (!event->isAccepted())
        return;
    event->setDropAction(m_dragAction);
    if (m_dragReceiver.window == nullptr)
        return;
    QDragMoveEvent move(
        event->pos() - m_dragReceiver.Origin(), event->possibleActions(), event->mimeData(),
        event->mouseButtons(), event->keyboardModifiers());
    move.setDropAction(m_dragAction);
    move.accept();
    m_dragReceiver.Deliver(&move);
    event->setAccepted(move.isAccepted());
    event->setDropAction(move.dropAction());
}

void KvTVWallNormalView::dragLeaveEvent(QDragLeaveEvent* event)
{
    LeaveDrag();
    event->accept();
}

void KvTVWallNormalView::dropEvent(QDropEvent* event)
{
    const Target receiver = std::exchange(m_dragReceiver, Target());
    m_dragOver = {};
    event->ignore();
    if (receiver.screen == nullptr)
        return;
    QDropEvent drop(
        event->posF() - receiver.Origin(), event->possibleActions(), event->mimeData(), event->mouseButtons(),
        event->keyboardModifiers());
    drop.setDropAction(m_dragAction);
    receiver.Deliver(&drop);
    event->setAccepted(drop.isAccepted());
    event->setDropAction(drop.dropAction());
}

// ---- Events in general

bool KvTVWallNormalView::event(QEvent* event)
{
    const EventHandling::Scope scope(m_handling);
    if (event->type() == QEvent::WindowBlocked)
        CancelMouse(); // a modal dialog gets the release
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool tab = key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab;
        const bool others = key->modifiers() & (Qt::ControlModifier | Qt::AltModifier); // as of a tab bar
        const bool back = key->key() == Qt::Key_Backtab || (key->modifiers() & Qt::ShiftModifier);
        if (tab && !others && MoveFocus(!back)) {
            event->accept();
            return true;
        }
    }
    const bool handled = QGraphicsView::event(event);
    if (event->type() == QEvent::Polish)
        UpdateLook(); // the style sheet has set it just now
    return handled;
}

bool KvTVWallNormalView::viewportEvent(QEvent* event)
{
    const EventHandling::Scope scope(m_handling);
    return QGraphicsView::viewportEvent(event);
}

void KvTVWallNormalView::hideEvent(QHideEvent* event)
{
    QGraphicsView::hideEvent(event);
    CancelMouse();
}

} // namespace UICommonMdl
