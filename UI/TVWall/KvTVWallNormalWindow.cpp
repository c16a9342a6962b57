#include "KvTVWallNormalWindow.h"

#include "KvTVWallDisplayVideo.h"
#include "KvTVWallNormalFrame.h"
#include "KvTVWallNormalScreen.h"
#include "NormalWallLook.h"
#include "WallGeometry.h"

#include <QGraphicsProxyWidget>
#include <QPainter>

namespace UICommonMdl {

namespace {

constexpr int TitleHeight = 24; // pixels
constexpr int TitleMargin = 2; // pixels
constexpr int VideoTop = 26; // pixels

} // namespace

KvTVWallNormalWindow::KvTVWallNormalWindow(
    KvTVWallNormalScreen* screen, QGraphicsItem* parent, double precision, const KvGUI::StructScaleRect& rect,
    const QVariant& userData)
    : QGraphicsObject(parent)
    , m_pScreen(screen)
    , m_placement(rect, precision)
    , m_userData(userData)
{ }

// ---- Place and state

void KvTVWallNormalWindow::PlaceOnScreen()
{
    SetGeometry(WallGeometry::Displayable(WallGeometry::WindowRect(m_pScreen->Size(), GetScale())));
}

void KvTVWallNormalWindow::SetGeometry(const QRect& geometry)
{
    if (m_size != geometry.size()) {
        prepareGeometryChange();
        m_size = geometry.size();
        if (m_pFrame != nullptr)
            m_pFrame->FitTo(m_size);
        if (m_pProxy != nullptr)
            m_pProxy->setGeometry(VideoRect());
    }
    setPos(geometry.topLeft());
}

// Pixels change before the report, so that a slot finds the window as it will be and may change or delete
// it: nothing of the window may be used after the emission.
void KvTVWallNormalWindow::ShowPlacement(bool changed)
{
    if (changed)
        PlaceOnScreen();
    update();
    const KvGUI::StructScaleRect now = GetScale();
    if (changed)
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
        m_pFrame->FitTo(m_size);
    }
    m_pFrame->SetColor(m_pScreen->Look().windowSelectedFrameColor);
    m_pFrame->setVisible(selected);
}

void KvTVWallNormalWindow::SetVolumeOn(bool on)
{
    m_bVolumeOn = on;
    update();
}

void KvTVWallNormalWindow::SetTitle(const QString& title)
{
    m_strTitle = title;
    update();
}

void KvTVWallNormalWindow::SetContentText(const QString& text)
{
    m_strContent = text;
    update();
}

// ---- The video area

KvTVWallDisplayVideo* KvTVWallNormalWindow::GetVideo()
{
    if (m_pVideo.isNull() && !m_bVideoDeleted && m_pProxy == nullptr) {
        m_pVideo = new KvTVWallDisplayVideo(nullptr);
        m_pVideo->SetText(m_strVideoText);
        m_pVideo->setUpdatesEnabled(m_bVideoUpdates);
        m_pProxy = new QGraphicsProxyWidget(this);
        m_pProxy->setWidget(m_pVideo);
        m_pProxy->setGeometry(VideoRect());
    }
    return m_pVideo;
}

bool KvTVWallNormalWindow::DeleteVideo()
{
    const bool had = !m_bVideoDeleted && (m_pProxy == nullptr || !m_pVideo.isNull());
    m_bVideoDeleted = true;
    if (!m_pVideo.isNull()) {
        // An event of it may be the occasion, so it is only hidden now.
        m_pProxy->hide();
        m_pVideo->deleteLater();
        m_pVideo = nullptr;
    }
    update();
    return had;
}

bool KvTVWallNormalWindow::SetVideoText(const QString& text)
{
    if (m_bVideoDeleted || (m_pProxy != nullptr && m_pVideo.isNull()))
        return false;
    m_strVideoText = text;
    if (!m_pVideo.isNull())
        m_pVideo->SetText(text);
    update();
    return true;
}

bool KvTVWallNormalWindow::SetVideoUpdates(bool enable)
{
    if (m_bVideoDeleted || (m_pProxy != nullptr && m_pVideo.isNull()))
        return false;
    m_bVideoUpdates = enable;
    if (!m_pVideo.isNull())
        m_pVideo->setUpdatesEnabled(enable);
    return true;
}

// ---- Painting

QRect KvTVWallNormalWindow::TitleRect() const
{
    return {TitleMargin, TitleMargin, qMax(0, m_size.width() - 2 * TitleMargin), TitleHeight};
}

QRect KvTVWallNormalWindow::VideoRect() const
{
    return {1, VideoTop, qMax(0, m_size.width() - 2 * TitleMargin), qMax(0, m_size.height() - TitleHeight)};
}

void KvTVWallNormalWindow::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*)
{
    const NormalWallLook& look = m_pScreen->Look();
    const QRect whole(QPoint(0, 0), m_size);
    painter->fillRect(whole, look.windowColor);
    painter->setPen(look.windowFrameColor);
    painter->drawRect(whole.adjusted(0, 0, -1, -1));
    painter->fillRect(VideoRect() & whole, look.videoColor);
    painter->fillRect(TitleRect() & whole, look.titleColor);
    painter->setPen(look.titleTextColor);
    painter->drawText(TitleRect(), m_strTitle + QStringLiteral("  ") + m_strContent);
}

} // namespace UICommonMdl
