#include "KvTVWallDisplayEagleEye.h"

#include "KvTVWallDisplayWnd_p.h"
#include "WallEvents.h"

#include <Common/CommonFun.h>
#include <Common/SkinPicture.h>
#include <Platform/BasicUIComponents/KvSkinNotifier.h>
#include <Platform/BasicUIComponents/KvTranslatedText.h>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace UICommonMdl {

namespace {

constexpr int ContentMargin = 4; // pixels around the miniature
constexpr int SmoothEdge = 2; // pixels beside the collapsed button that it may paint
constexpr float KeyStep = 0.25F; // of the view

/// The triangle of the legs @p button in the lower right corner of @p size.
QPolygon CornerOf(const QSize& size, const QSize& button)
{
    const QPoint corner(size.width(), size.height());
    return QPolygon({corner, corner - QPoint(button.width(), 0), corner - QPoint(0, button.height())});
}

/// A picture of the wall's folder in the skin.
QPixmap WallPicture(const QString& name, qreal density)
{
    const QString path = CommonFun::GetSkinPath(
        QStringLiteral("UICommonModule"), QStringLiteral("TVWallOperateWnd/") + name);
    return SkinPicture(path, density);
}

} // namespace

KvTVWallDisplayEagleEye::KvTVWallDisplayEagleEye(const KvTVWallDisplayWnd* wall, QWidget* parent)
    : KvTVWallDisplayEagleEye(wall->d_func(), parent)
{ }

KvTVWallDisplayEagleEye::KvTVWallDisplayEagleEye(const WallArrangement* wall, QWidget* parent)
    : QWidget(parent)
    , m_pWall(wall)
{
    new KvGUI::KvTranslatedText(this, "accessibleName", [] { return tr("Overview of the wall"); });
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    LoadPictures();
    FitToPicture();
    connect(wall, SIGNAL(SignalArrangementChanged()), this, SLOT(OnArrangementChanged()));
    connect(KvGUI::KvSkinNotifier::Instance(), SIGNAL(SignalSkinChanged()), this, SLOT(OnSkinChanged()));
}

// Pictures that the present skin does not have stay those of the last one.
void KvTVWallDisplayEagleEye::LoadPictures()
{
    m_dDensity = devicePixelRatioF();
    const auto load = [this](QPixmap& picture, const QString& name) {
        const QPixmap loaded = WallPicture(name, m_dDensity);
        if (!loaded.isNull())
            picture = loaded;
    };
    load(m_areaPicture, QStringLiteral("EagleEyeArea"));
    load(m_shrinkPicture, QStringLiteral("ShrinkEagleEye"));
    load(m_expandPicture, QStringLiteral("ExpandEagleEye"));
}

void KvTVWallDisplayEagleEye::FitToPicture()
{
    m_miniature = QPixmap();
    setAttribute(Qt::WA_OpaquePaintEvent, m_bExpanded);
    const QSize fitted = LogicalSize(Picture());
    resize(fitted);
    if (m_bExpanded)
        clearMask();
    else // the wall takes the mouse beside the button; its edge stays smooth
        setMask(CornerOf(fitted, fitted + QSize(SmoothEdge, SmoothEdge)));
    update();
}

void KvTVWallDisplayEagleEye::OnSkinChanged()
{
    LoadPictures();
    FitToPicture();
    Q_EMIT SignalAreaChanged();
}

void KvTVWallDisplayEagleEye::OnArrangementChanged()
{
    m_miniature = QPixmap();
    update();
}

void KvTVWallDisplayEagleEye::SetArea(float left, float top, float width, float height)
{
    m_fLeft = left;
    m_fTop = top;
    m_fWidth = width;
    m_fHeight = height;
    update();
}

void KvTVWallDisplayEagleEye::SetColor(QColor& member, const QColor& color)
{
    member = color;
    m_miniature = QPixmap();
    update();
}

void KvTVWallDisplayEagleEye::SetViewColor(const QColor& color) { SetColor(m_colors.view, color); }

void KvTVWallDisplayEagleEye::SetWindowColor(const QColor& color) { SetColor(m_colors.window, color); }

void KvTVWallDisplayEagleEye::SetSelectedWindowColor(const QColor& color)
{
    SetColor(m_colors.selected, color);
}

QRect KvTVWallDisplayEagleEye::ContentRect() const
{
    return rect().adjusted(ContentMargin, ContentMargin, -ContentMargin, -ContentMargin);
}

QPolygon KvTVWallDisplayEagleEye::ShrinkRegion() const
{
    return CornerOf(LogicalSize(m_areaPicture), LogicalSize(m_shrinkPicture));
}

QPolygon KvTVWallDisplayEagleEye::ExpandRegion() const
{
    return CornerOf(LogicalSize(m_expandPicture), LogicalSize(m_expandPicture));
}

bool KvTVWallDisplayEagleEye::IsOnButton(const QPoint& pos) const
{
    return (m_bExpanded ? ShrinkRegion() : ExpandRegion()).containsPoint(pos, Qt::OddEvenFill);
}

void KvTVWallDisplayEagleEye::SetExpanded(bool expanded)
{
    m_bExpanded = expanded;
    FitToPicture();
    ShowWhatAPressDoes(mapFromGlobal(QCursor::pos()));
    Q_EMIT SignalAreaChanged();
}

void KvTVWallDisplayEagleEye::ShowWhatAPressDoes(const QPoint& pos)
{
    const bool onButton = IsOnButton(pos);
    if (onButton)
        setToolTip(m_bExpanded ? tr("Hide the overview") : tr("Show the overview"));
    else
        setToolTip(m_bExpanded ? tr("Click or drag to move the view") : QString());
    setCursor(onButton ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void KvTVWallDisplayEagleEye::LocateAround(const QPoint& pos)
{
    const QRect content = ContentRect();
    if (content.isEmpty())
        return;
    const auto width = float(content.width());
    const auto height = float(content.height());
    Q_EMIT SignalLocated(
        (float(pos.x() - content.left()) - width * m_fWidth / 2.0F) / width,
        (float(pos.y() - content.top()) - height * m_fHeight / 2.0F) / height);
}

void KvTVWallDisplayEagleEye::mousePressEvent(QMouseEvent* event)
{
    m_bPressedOnButton = IsOnButton(event->pos());
}

void KvTVWallDisplayEagleEye::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() == Qt::NoButton)
        ShowWhatAPressDoes(event->pos());
    else if (m_bExpanded && !m_bPressedOnButton)
        LocateAround(event->pos());
}

// A press that began on the button and ends elsewhere does nothing: this is how one thinks better of it.
void KvTVWallDisplayEagleEye::mouseReleaseEvent(QMouseEvent* event)
{
    const bool pressedOnButton = m_bPressedOnButton;
    m_bPressedOnButton = false;
    if (pressedOnButton && IsOnButton(event->pos()))
        SetExpanded(!m_bExpanded);
    else if (!pressedOnButton && m_bExpanded)
        LocateAround(event->pos());
}

void KvTVWallDisplayEagleEye::keyPressEvent(QKeyEvent* event)
{
    const auto step = [this](float x, float y) {
        if (m_bExpanded)
            Q_EMIT SignalLocated(m_fLeft + x * KeyStep * m_fWidth, m_fTop + y * KeyStep * m_fHeight);
    };
    switch (event->key()) {
    case Qt::Key_Left:
        return step(-1.0F, 0.0F);
    case Qt::Key_Right:
        return step(1.0F, 0.0F);
    case Qt::Key_Up:
        return step(0.0F, -1.0F);
    case Qt::Key_Down:
        return step(0.0F, 1.0F);
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return SetExpanded(!m_bExpanded);
    default:
        return QWidget::keyPressEvent(event);
    }
}

void KvTVWallDisplayEagleEye::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange && !toolTip().isEmpty())
        ShowWhatAPressDoes(mapFromGlobal(QCursor::pos()));
}

// The overview is often the first widget that the keyboard could reach, and gets the focus with its window:
// that alone is no reason to mark it.
void KvTVWallDisplayEagleEye::focusInEvent(QFocusEvent* event)
{
    m_bFocusShown = WallEvents::IsByTab(*event);
    QWidget::focusInEvent(event);
}

void KvTVWallDisplayEagleEye::focusOutEvent(QFocusEvent* event)
{
    m_bFocusShown = false;
    QWidget::focusOutEvent(event);
}

void KvTVWallDisplayEagleEye::PaintMiniature(QPainter& painter)
{
    const QRect content = ContentRect();
    if (m_miniature.isNull() && m_pWall)
        m_miniature
            = WallMiniature::Picture(m_pWall->Miniature(), content.size(), devicePixelRatioF(), m_colors);
    painter.drawPixmap(content.topLeft(), m_miniature);
    WallMiniature::PaintView(
        painter, content, {qreal(m_fLeft), qreal(m_fTop), qreal(m_fWidth), qreal(m_fHeight)}, m_colors);
}

void KvTVWallDisplayEagleEye::paintEvent(QPaintEvent*)
{
    if (m_dDensity != devicePixelRatioF()) { // on another monitor now
        LoadPictures();
        m_miniature = QPixmap();
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, Picture());
    if (m_bExpanded) {
        PaintMiniature(painter);
        const QSize button = LogicalSize(m_shrinkPicture);
        painter.drawPixmap(width() - button.width(), height() - button.height(), m_shrinkPicture);
    }
    if (m_bFocusShown) {
        painter.setPen(m_colors.view);
        m_bExpanded ? painter.drawRect(rect().adjusted(0, 0, -1, -1)) : painter.drawPolygon(ExpandRegion());
    }
}

} // namespace UICommonMdl
