#include "KvTVWallNormalTitleItem.h"

#include "KvTVWallNormalButton.h"
#include "KvTVWallNormalView.h"
#include "KvTVWallNormalWindow.h"

#include <QPainter>

namespace UICommonMdl {

namespace {

using Button = WindowTitle::Button;

constexpr int ButtonSide = 20; // pixels
constexpr int ButtonTop = 2; // pixels
constexpr int SmallestButton = 8; // pixels; buttons shrink in a narrow window
constexpr int Handle = 12; // pixels left free to take hold of, as long as there is room
constexpr int Spacing = 1; // pixels

} // namespace

KvTVWallNormalTitleItem::KvTVWallNormalTitleItem(KvTVWallNormalWindow* window, KvTVWallNormalView* view)
    : QGraphicsItem(window)
    , m_pView(view)
{
    setAcceptedMouseButtons(Qt::NoButton);
    for (const Button kind : {Button::Volume, Button::Snap, Button::Max, Button::Close})
        m_buttons << new KvTVWallNormalButton(kind, window, view, this);
}

void KvTVWallNormalTitleItem::SetText(const QString& text)
{
    m_text = text;
    update();
}

void KvTVWallNormalTitleItem::SetVolumeOn(bool on) { m_buttons.at(int(Button::Volume))->SetOn(on); }

void KvTVWallNormalTitleItem::SetMaximized(bool maximized)
{
    m_buttons.at(int(Button::Max))->SetOn(maximized);
}

void KvTVWallNormalTitleItem::SetSnapped(bool snapped) { m_buttons.at(int(Button::Snap))->SetOn(snapped); }

void KvTVWallNormalTitleItem::UpdateToolTips()
{
    for (KvTVWallNormalButton* button : qAsConst(m_buttons))
        button->UpdateToolTip();
}

void KvTVWallNormalTitleItem::SetAudioButtonVisible(bool visible)
{
    m_buttons.at(int(Button::Volume))->setVisible(visible);
    PlaceButtons();
    update();
}

void KvTVWallNormalTitleItem::FitTo(const QSize& window)
{
    const QRect bar = WindowTitle::BarRect(window);
    setPos(bar.topLeft());
    // A window may be lower than its bar.
    const QSize size(bar.width(), qBound(0, window.height() - bar.top(), bar.height()));
    if (m_size == size)
        return;
    prepareGeometryChange();
    m_size = size;
    PlaceButtons();
}

void KvTVWallNormalTitleItem::PlaceButtons()
{
    int count = 0;
    for (const KvTVWallNormalButton* button : qAsConst(m_buttons))
        count += button->isVisibleTo(this) ? 1 : 0;
    const int room = m_size.width() - Handle - count * Spacing;
    const int side = qBound(SmallestButton, room / qMax(1, count), ButtonSide);
    int x = m_size.width() - count * (side + Spacing) + Spacing;
    m_iTextWidth = qMax(0, x - Spacing);
    for (KvTVWallNormalButton* button : qAsConst(m_buttons)) {
        if (!button->isVisibleTo(this))
            continue;
        const int width = x < 0 ? 0 : side; // those that have no room at all go
        button->SetGeometry({x, ButtonTop, width, qBound(0, m_size.height() - ButtonTop, ButtonSide)});
        x += side + Spacing;
    }
}

void KvTVWallNormalTitleItem::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*)
{
    const NormalWallLook& look = m_pView->Look();
    painter->fillRect(QRect(QPoint(0, 0), m_size), look.titleColor);
    m_title.Draw(*painter, QRect(0, 0, m_iTextWidth, m_size.height()), m_text, look.titleTextColor);
}

} // namespace UICommonMdl
