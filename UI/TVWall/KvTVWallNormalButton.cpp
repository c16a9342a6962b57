#include "KvTVWallNormalButton.h"

#include "KvTVWallNormalView.h"
#include "KvTVWallNormalWindow.h"
#include "WallEvents.h"

#include <QGraphicsSceneMouseEvent>
#include <QKeyEvent>
#include <QPainter>

namespace UICommonMdl {

namespace {

constexpr int IconSide = 20; // pixels, with its margin
constexpr int CornerRadius = 3; // pixels

} // namespace

KvTVWallNormalButton::KvTVWallNormalButton(
    WindowTitle::Button kind, KvTVWallNormalWindow* window, KvTVWallNormalView* view, QGraphicsItem* parent)
    : QGraphicsItem(parent)
    , m_kind(kind)
    , m_pWindow(window)
    , m_pView(view)
{
    setFlag(ItemIsFocusable);
    setAcceptHoverEvents(true);
    setAcceptedMouseButtons(Qt::LeftButton);
    UpdateToolTip();
}

void KvTVWallNormalButton::SetOn(bool on)
{
    if (m_bOn == on)
        return;
    m_bOn = on;
    UpdateToolTip();
    update();
}

void KvTVWallNormalButton::UpdateToolTip() { setToolTip(WindowTitle::ToolTip(m_kind, m_bOn)); }

void KvTVWallNormalButton::SetGeometry(const QRect& geometry)
{
    if (m_size != geometry.size()) {
        prepareGeometryChange();
        m_size = geometry.size();
    }
    setPos(geometry.topLeft());
}

QString KvTVWallNormalButton::IconFile() const
{
    const NormalWallLook& look = m_pView->Look();
    switch (m_kind) {
    case WindowTitle::Button::Volume:
        return m_bOn ? look.volumeOnIcon : look.volumeOffIcon;
    case WindowTitle::Button::Snap:
        return m_bOn ? look.snapRestoreIcon : look.snapIcon;
    case WindowTitle::Button::Max:
        return m_bOn ? look.maxRestoreIcon : look.maxIcon;
    case WindowTitle::Button::Close:
        break;
    }
    return m_bHovered || m_bDown ? look.closeHoverIcon : look.closeIcon;
}

QColor KvTVWallNormalButton::Background() const
{
    const NormalWallLook& look = m_pView->Look();
    const bool closes = m_kind == WindowTitle::Button::Close;
    if (m_bDown)
        return closes ? look.closePressedColor : look.buttonPressedColor;
    if (m_bHovered)
        return closes ? look.closeHoverColor : look.buttonHoverColor;
    return Qt::transparent;
}

void KvTVWallNormalButton::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*)
{
    const QRect whole(QPoint(0, 0), m_size);
    const QColor background = Background();
    if (background.alpha() > 0 || hasFocus()) {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(hasFocus() ? QPen(m_pView->Look().windowSelectedFrameColor) : QPen(Qt::NoPen));
        painter->setBrush(background);
        painter->drawRoundedRect(QRectF(whole).adjusted(0.5, 0.5, -0.5, -0.5), CornerRadius, CornerRadius);
        painter->restore();
    }
    const int side = qMin(IconSide, m_size.width()); // a narrow window has narrow buttons
    painter->drawPixmap(
        (m_size.width() - side) / 2, (m_size.height() - side) / 2, m_pView->Icon(IconFile(), side));
}

void KvTVWallNormalButton::SetDown(bool down)
{
    if (m_bDown == down)
        return;
    m_bDown = down;
    update();
}

bool KvTVWallNormalButton::sceneEvent(QEvent* event)
{
    if (event->type() == QEvent::UngrabMouse)
        SetDown(false);
    return QGraphicsItem::sceneEvent(event);
}

void KvTVWallNormalButton::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    event->accept();
    SetDown(boundingRect().contains(event->pos()));
}

void KvTVWallNormalButton::mouseMoveEvent(QGraphicsSceneMouseEvent* event)
{
    SetDown(boundingRect().contains(event->pos()));
}

// A slot may remove the window, which is then deleted later. While the left button is held the others come
// here too.
void KvTVWallNormalButton::mouseReleaseEvent(QGraphicsSceneMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const bool clicked = boundingRect().contains(event->pos());
    SetDown(false);
    if (clicked)
        m_pWindow->ClickButton(m_kind);
}

void KvTVWallNormalButton::hoverEnterEvent(QGraphicsSceneHoverEvent*)
{
    m_bHovered = true;
    update();
}

void KvTVWallNormalButton::hoverLeaveEvent(QGraphicsSceneHoverEvent*)
{
    m_bHovered = false;
    update();
}

void KvTVWallNormalButton::keyPressEvent(QKeyEvent* event)
{
    const bool clicks = WallEvents::IsClick(*event);
    event->setAccepted(clicks);
    if (clicks)
        m_pWindow->ClickButton(m_kind);
}

void KvTVWallNormalButton::focusInEvent(QFocusEvent*) { update(); }

void KvTVWallNormalButton::focusOutEvent(QFocusEvent*) { update(); }

} // namespace UICommonMdl
