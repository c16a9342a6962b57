#include "CCutPhotoWithZoom_p.h"

#include "CComTipWigetWithZoom.h"
#include "CropFrame.h"
#include "CropPainting.h"
#include "SearchMenu.h"

#include <Common/CommonFun.h>
#include <Platform/BasicUIComponents/KvSkin.h>
#include <Platform/BasicUIComponents/KvSkinNotifier.h>

#include <QAction>
#include <QCursor>
#include <QFile>
#include <QMouseEvent>
#include <QPainter>
#include <utility>

namespace UICommonMdl {

namespace {

constexpr int SmallIcon = 20;
constexpr int SearchIcon = 40;
constexpr int MenuWidth = 220;
constexpr int TipCorner = 4; // radius

/// The product whose search menu this library shows, whatever skin it runs in.
constexpr const char* Application = "Corvale";

/// A picture of the skin, drawn as finely as the screen is that it is painted on; none where the skin has
/// none, of which Qt would warn at each painting.
QIcon LoadIcon(const char* name)
{
    const QString file = QStringLiteral("CutPhotoWndWithZoom/") + QLatin1String(name);
    const QString path = CommonFun::GetSkinPath(QStringLiteral("UICommonModule"), file);
    return QFile::exists(path) ? QIcon(path) : QIcon();
}

QRect Square(const QPoint& middle, int size)
{
    return {middle.x() - size / 2, middle.y() - size / 2, size, size};
}

} // namespace

// ---- The private object

CCutPhotoWithZoomPrivate::CCutPhotoWithZoomPrivate(CCutPhotoWithZoom* canvas)
    : q(canvas)
    , mouseArea(new CropMouseArea(canvas))
{
    mouseArea->setMouseTracking(true); // whether the canvas takes what is passed on, its own tracking decides
}

CCutPhotoWithZoomPrivate::~CCutPhotoWithZoomPrivate()
{
    if (!pressing)
        return; // it goes with the canvas
    mouseArea->setParent(nullptr);
    mouseArea->deleteLater();
}

void CCutPhotoWithZoomPrivate::LoadSkin()
{
    const bool white = KvGUI::GetSkinVersion() == QLatin1String("White");
    background = white ? QColor(235, 235, 235, 255) : QColor(58, 62, 67, 255);
    moveIcon = LoadIcon("img_move.svg");
    scaleIcon = LoadIcon("img_scale.svg");
    searchIcon = LoadIcon("img_search.svg");
}

void CCutPhotoWithZoomPrivate::PaintIcons(QPainter& painter)
{
    const QRect frame = CropFrame::Normalized(state.crop);
    moveIcon.paint(&painter, Square(CropFrame::MoveHandle(frame), SmallIcon));
    scaleIcon.paint(&painter, Square(CropFrame::ScaleHandle(frame), SmallIcon));
    searchIcon.paint(&painter, Square(CropFrame::SearchHandle(frame), SearchIcon));
}

QRegion CCutPhotoWithZoomPrivate::IconRegion(const QRect& crop) const
{
    const QRect frame = CropFrame::Normalized(crop);
    return QRegion(Square(CropFrame::MoveHandle(frame), SmallIcon))
        + Square(CropFrame::ScaleHandle(frame), SmallIcon)
        + Square(CropFrame::SearchHandle(frame), SearchIcon);
}

void CCutPhotoWithZoomPrivate::ShowTipText()
{
    tip->SetTipText(CCutPhotoWithZoom::tr(
        "Please cut photo refer to the default background picture, or upload the original "
        "picture below 10m to achieve automatic compression."));
}

void CCutPhotoWithZoomPrivate::UpdateTipPos()
{
    tip->raise();
    tip->move(CropFrame::TipPosition(q->rect(), state.displaySize.height(), tip->width()));
}

void CCutPhotoWithZoomPrivate::ReadSource(const QString& path)
{
    const QImage image = state.ReadSource(path);
    if (image.isNull())
        return;
    q->SetSrcImage(image);
    state.cutInfo.strFilePath = path;
}

void CCutPhotoWithZoomPrivate::SetCrop(const QRect& crop)
{
    const QRect before = state.crop;
    state.crop = crop;
    const QRegion changed = CropPainting::ChangedRegion(before, crop) + IconRegion(before) + IconRegion(crop);
    if (cropUnpainted || !pressed)
        q->update();
    else
        q->update(changed.subtracted(CoveredByTip()));
    cropUnpainted = false;
}

/// What of the canvas lies under the bubble: all of it but its round corners. Painting its text again takes
/// longer than all else of a step.
QRegion CCutPhotoWithZoomPrivate::CoveredByTip() const
{
    if (!tip->isVisible())
        return QRegion();
    const QRect bubble = tip->geometry();
    const QRect upright = bubble.adjusted(TipCorner, 0, -TipCorner, 0);
    return QRegion(upright) + bubble.adjusted(0, TipCorner, 0, -TipCorner);
}

void CCutPhotoWithZoomPrivate::SetCropUnpainted(const QRect& crop)
{
    state.crop = CropFrame::Bounded(crop);
    cropUnpainted = true;
}

void CCutPhotoWithZoomPrivate::BeginSelection(const QPoint& pos)
{
    drag = QSize(0, 0);
    SetCrop(QRect(pos, QSize(0, 0)));
}

void CCutPhotoWithZoomPrivate::TakeHandle(const QPoint& pos, const QPoint& globalPos)
{
    if (CropFrame::IsNear(pos, CropFrame::MoveHandle(state.crop))) {
        q->setCursor(Qt::SizeAllCursor);
        moving = true;
        moveOffset = globalPos - state.crop.topLeft();
    }
    if (CropFrame::IsNear(pos, CropFrame::ScaleHandle(state.crop))) {
        q->setCursor(Qt::SizeBDiagCursor);
        resizing = true;
    }
}

bool CCutPhotoWithZoomPrivate::Press(const QPoint& pos, const QPoint& globalPos, Qt::MouseButton button)
{
    const QPointer<CCutPhotoWithZoom> guard(q);
    escapeWasMenus = false; // its release went elsewhere
    if (!pressed)
        q->update();
    pressed = true;
    press = pos;
    const bool onSearchHandle = hasCut && CropFrame::IsNear(pos, CropFrame::SearchHandle(state.crop));
    if (hasCut)
        TakeHandle(pos, globalPos);
    else
        BeginSelection(pos);
    bool chosen = false;
    if (onSearchHandle) {
        q->setCursor(Qt::OpenHandCursor);
        chosen = PopupMenu();
    }
    // Also on the search handle, where a second menu follows one that was dismissed. After a choice it would
    // only run the client's slot inside this press, which then could not delete the canvas.
    const bool secondary = button == Qt::RightButton;
    if (secondary && guard && !chosen)
        PopupMenu();
    return onSearchHandle || secondary;
}

void CCutPhotoWithZoomPrivate::Drag(const QPoint& pos, const QPoint& globalPos)
{
    draw = CropFrame::BackwardsRect(state.crop, drag);
    if (drag.width() < 0 || drag.height() < 0)
        q->update(draw);
    if (!hasCut) {
        DragSelection(pos);
        return;
    }
    if (moving)
        MoveCrop(pos, globalPos);
    if (resizing)
        ResizeCrop(pos);
}

void CCutPhotoWithZoomPrivate::DragSelection(const QPoint& pos)
{
    drag = QSize(pos.x() - press.x(), pos.y() - press.y());
    SetCrop(QRect(state.crop.topLeft(), drag));
}

void CCutPhotoWithZoomPrivate::MoveCrop(const QPoint& pos, const QPoint& globalPos)
{
    if (!CropFrame::CanMoveTo(globalPos - moveOffset, state.crop, state.displaySize))
        return;
    drag = state.crop.size();
    // The corner goes to the pointer itself, wherever in the handle it was taken.
    SetCrop(QRect(pos, drag));
    anchor = CropFrame::Anchor(state.crop);
}

void CCutPhotoWithZoomPrivate::ResizeCrop(const QPoint& pos)
{
    if (!CropFrame::CanResizeTo(pos, state.crop))
        return;
    SetCrop(CropFrame::ResizedTo(pos, state.crop, anchor));
    drag = state.crop.size();
}

void CCutPhotoWithZoomPrivate::FinishCrop()
{
    if (!hasCut) {
        SetCrop(state.crop.normalized());
        anchor = CropFrame::Anchor(state.crop);
    }
    hasCut = true;
    EndHold();
    q->setCursor(Qt::ArrowCursor);
    SetCrop(CropFrame::FinishedCrop(state.crop, drag, state.photo));
    anchor = CropFrame::Anchor(state.crop);
    q->update(); // also under the bubble, which is not opaque in every skin
}

void CCutPhotoWithZoomPrivate::EndHold()
{
    moving = false;
    resizing = false;
}

bool CCutPhotoWithZoomPrivate::PopupMenu()
{
    menu = new KvGUI::KvMenu(q);
    menu->setObjectName(QStringLiteral("mainMenu"));
    menu->setMinimumWidth(MenuWidth);
    menu->setStyle(new SearchMenuIcons(menu));
    menu->setStyleSheet(SearchMenuStyle(QLatin1String(Application)));
    AddAction(
        [] { return CCutPhotoWithZoom::tr("Vehicle Images Search"); }, "Vehicle-n.png",
        SLOT(OnVehicleSearchPicture()));
    AddAction(
        [] { return CCutPhotoWithZoom::tr("Face Image Search"); }, "iconFace_n.png",
        SLOT(OnFaceSearchPicture()));
    menu->addSeparator();
    AddAction(
        [] { return CCutPhotoWithZoom::tr("Human Body Image Search"); }, "iconBody_n.png",
        SLOT(OnHumanSearchPicture()));
    AddAction([] { return CCutPhotoWithZoom::tr("Cancel"); }, "close.png", SLOT(OnClose()));
    const EscapeWatch watch(*menu);
    const QPointer<CCutPhotoWithZoom> guard(q);
    const bool chosen = menu->exec(QCursor::pos()) != nullptr;
    if (guard)
        escapeWasMenus = watch.WasPressed();
    return chosen;
}

void CCutPhotoWithZoomPrivate::AddAction(
    const KvGUI::KvTranslatedText::Source& text, const char* picture, const char* slot)
{
    auto* action = new QAction(LoadIcon(picture), QString(), menu);
    new KvGUI::KvTranslatedText(action, "text", text);
    // Queued, so that the menu has gone when the slot runs and may delete it.
    QObject::connect(action, SIGNAL(triggered(bool)), q, slot, Qt::QueuedConnection);
    menu->addAction(action);
}

void CCutPhotoWithZoomPrivate::CloseMenu()
{
    if (menu == nullptr)
        return;
    menu->hide();
    // Menus are open only during a press; a client may then call from inside one.
    if (pressing)
        menu->deleteLater();
    else
        delete menu;
    menu = nullptr;
}

void CCutPhotoWithZoomPrivate::ReportSearch(void (CCutPhotoWithZoom::*signal)())
{
    const QPointer<CCutPhotoWithZoom> guard(q);
    searchRequested = true;
    (q->*signal)();
    if (guard)
        CloseMenu();
}

// ---- The canvas

CCutPhotoWithZoom::CCutPhotoWithZoom(QWidget* parent)
    : QWidget(parent)
    , m_pPrivate(std::make_unique<CCutPhotoWithZoomPrivate>(this))
{
    CCutPhotoWithZoomPrivate* const d = d_func();
    setFocusPolicy(Qt::ClickFocus);
    new KvGUI::KvTranslatedText(this, "accessibleName", [] { return tr("Photo to crop"); });

    d->tip = new CComTipWigetWithZoom(this);
    d->ShowTipText();
    d->tip->setAttribute(Qt::WA_TransparentForMouseEvents);
    d->tip->show();

    d->LoadSkin();
    connect(KvGUI::KvSkinNotifier::Instance(), &KvGUI::KvSkinNotifier::SignalSkinChanged, this, [this] {
        d_func()->LoadSkin();
        update();
    });

    // Neither this signal nor a slot with this argument exists here, so that Qt warns and connects nothing.
    // It stays: hosts know the warning, and reach OnKeyPressed() by a connection of their own.
    connect(this, SIGNAL(sgnKeyPressed(QKeyEvent*)), this, SLOT(OnKeyPressed(QKeyEvent*)));
}

CCutPhotoWithZoom::~CCutPhotoWithZoom() = default;

void CCutPhotoWithZoom::SetSrcPhoto(const QString& path)
{
    if (!path.isEmpty())
        d_func()->ReadSource(path);
}

void CCutPhotoWithZoom::SetSrcImage(const QImage& image)
{
    CCutPhotoWithZoomPrivate* const d = d_func();
    const QRect before = d->state.photo;
    d->state.ShowSource(image, *this);
    d->state.crop = CropPicture::FollowedCrop(d->state.crop, before, d->state.photo);
    setAttribute(Qt::WA_OpaquePaintEvent, d->state.Covers(*this));
    d->UpdateTipPos();
    update();
}

CutImageInfo CCutPhotoWithZoom::GetCutPhoto() const { return d_func()->state.cutInfo; }

void CCutPhotoWithZoom::SetCutImage(const CutImageInfo& info) { d_func()->state.cutInfo = info; }

QColor CCutPhotoWithZoom::BackgroundColor() const { return d_func()->background; }

void CCutPhotoWithZoom::SetCutRegion(const QRect& rcCut) { d_func()->SetCropUnpainted(rcCut); }

void CCutPhotoWithZoom::SetImageMaxCapacity(int iMaxCapacity)
{
    d_func()->state.limits.iMaxCapacity = iMaxCapacity;
}

void CCutPhotoWithZoom::SetPicMaxSize(int iMaxWidth, int iMaxHeight)
{
    d_func()->state.limits.maximum = QSize(iMaxWidth, iMaxHeight);
}

void CCutPhotoWithZoom::SetKeepAspectRatio(bool bKeep) { d_func()->state.limits.bKeepAspectRatio = bKeep; }

bool CCutPhotoWithZoom::IsCutPhotoVaildWithNotify()
{
    return d_func()->state.IsCutPhotoVaildWithNotify(this);
}

int CCutPhotoWithZoom::GetCompressRatio() const { return d_func()->state.compressRatio; }

QImage CCutPhotoWithZoom::ChanageImageByAspectRatio(const QImage& image) const
{
    return CropPicture::ChanageImageByAspectRatio(image, d_func()->state.limits.maximum);
}

void CCutPhotoWithZoom::OnTimeOut()
{
    CCutPhotoWithZoomPrivate* const d = d_func();
    if (d->hasCut)
        setCursor(CropFrame::HoverCursor(d->press, d->state.crop, d->state.photo));
}

void CCutPhotoWithZoom::OnHumanSearchPicture()
{
    d_func()->ReportSearch(&CCutPhotoWithZoom::SignClickHumanSearch);
}

void CCutPhotoWithZoom::OnVehicleSearchPicture()
{
    d_func()->ReportSearch(&CCutPhotoWithZoom::SignClickVehicleSearch);
}

void CCutPhotoWithZoom::OnKeyPressed()
{
    const QPointer<CCutPhotoWithZoom> guard(this);
    emit SignCloseWind();
    if (guard)
        d_func()->SetCrop(QRect(0, 0, 0, 0));
}

void CCutPhotoWithZoom::OnFaceSearchPicture()
{
    d_func()->ReportSearch(&CCutPhotoWithZoom::SignClickFaceSearch);
}

void CCutPhotoWithZoom::OnClose()
{
    CCutPhotoWithZoomPrivate* const d = d_func();
    d->state.crop = QRect(0, 0, 0, 0);
    d->EndHold();
    d->pressed = false;
    d->searchRequested = false;
    d->hasCut = false;
    d->CloseMenu();
    update();
}

void CCutPhotoWithZoom::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    CCutPhotoWithZoomPrivate* const d = d_func();
    if (d->state.photo.width() == 0 || d->state.photo.height() == 0)
        d->state.CalculationPhotoRect(size());
    QPainter painter(this);
    painter.drawPixmap(d->state.photo.topLeft(), d->state.display);
    if (!d->pressed)
        return;
    CropPainting::PaintFrame(painter, rect(), d->state.photo, d->state.crop);
    d->PaintIcons(painter);
}

void CCutPhotoWithZoom::mousePressEvent(QMouseEvent* event)
{
    QWidget::mousePressEvent(event);
    const QPoint globalPos = CropFrame::Bounded(event->globalPos());
    const QPointer<CCutPhotoWithZoom> guard(this);
    const bool outermost = !std::exchange(d_func()->pressing, true);
    // A press that ended in a menu must not begin anything in the parents, and this canvas may be gone.
    if (d_func()->Press(CropFrame::Bounded(event->pos()), globalPos, event->button()))
        event->accept();
    if (guard && outermost)
        d_func()->pressing = false;
}

void CCutPhotoWithZoom::mouseReleaseEvent(QMouseEvent* event)
{
    QWidget::mousePressEvent(event); // as a press: the canvas treats both ends of a click alike
    // A derived class may pass other events on to here.
    if (event->type() == QEvent::MouseButtonRelease && event->button() == Qt::LeftButton)
        d_func()->FinishCrop();
}

void CCutPhotoWithZoom::mouseMoveEvent(QMouseEvent* event)
{
    if (event == nullptr)
        return;
    QWidget::mouseMoveEvent(event);
    d_func()->Drag(CropFrame::Bounded(event->pos()), CropFrame::Bounded(event->globalPos()));
}

void CCutPhotoWithZoom::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    CCutPhotoWithZoomPrivate* const d = d_func();
    d->mouseArea->resize(size());
    d->UpdateTipPos();
    if (!d->searchRequested)
        d->ReadSource(QString(d->state.cutInfo.strFilePath));
    setAttribute(Qt::WA_OpaquePaintEvent, d->state.Covers(*this));
}

void CCutPhotoWithZoom::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    d_func()->ShowTipText();
    d_func()->UpdateTipPos();
}

void CCutPhotoWithZoom::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape) {
        QWidget::keyReleaseEvent(event);
        return;
    }
    if (std::exchange(d_func()->escapeWasMenus, false))
        return; // it closed the menu, and the frame stays
    showNormal();
    d_func()->SetCrop(QRect());
}

} // namespace UICommonMdl
