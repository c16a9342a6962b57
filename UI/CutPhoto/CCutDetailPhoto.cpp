#include "CCutDetailPhoto_p.h"

#include "CComTipWiget.h"
#include "CropFrame.h"
#include "CropPainting.h"

#include <Platform/BasicUIComponents/KvTranslatedText.h>

#include <QMouseEvent>
#include <QPainter>

namespace UICommonMdl {

CCutDetailPhoto::CCutDetailPhoto(QWidget* parent)
    : QWidget(parent)
    , m_pPrivate(std::make_unique<CCutDetailPhotoPrivate>())
{
    CCutDetailPhotoPrivate* const d = d_func();
    setMouseTracking(true);
    new KvGUI::KvTranslatedText(this, "accessibleName", [] { return tr("Photo to crop"); });
    d->tip = new CComTipWiget(this);
    ShowTipText();
    d->tip->setAttribute(Qt::WA_TransparentForMouseEvents);
    d->tip->show();
}

CCutDetailPhoto::~CCutDetailPhoto() = default;

void CCutDetailPhoto::SetSrcPhoto(const QString& path)
{
    if (path.isEmpty())
        return;
    CropState& state = d_func()->state;
    const QImage image = state.ReadSource(path);
    if (image.isNull())
        return;
    SetSrcImage(image);
    state.cutInfo.strFilePath = path;
}

void CCutDetailPhoto::SetSrcImage(const QImage& image)
{
    CCutDetailPhotoPrivate* const d = d_func();
    d->state.ShowSource(image, *this);
    d->state.crop = d->state.photo;
    setAttribute(Qt::WA_OpaquePaintEvent, d->state.Covers(*this));
    UpdateTipPos();
    update();
}

CutImageInfo CCutDetailPhoto::GetCutPhoto() const { return d_func()->state.cutInfo; }

void CCutDetailPhoto::SetCutImage(const CutImageInfo& info) { d_func()->state.cutInfo = info; }

void CCutDetailPhoto::SetCutRegion(const QRect& rcCut)
{
    CCutDetailPhotoPrivate* const d = d_func();
    d->state.crop = CropFrame::Bounded(rcCut);
    d->cropUnpainted = true;
}

void CCutDetailPhoto::SetImageMaxCapacity(int iMaxCapacity)
{
    d_func()->state.limits.iMaxCapacity = iMaxCapacity;
}

void CCutDetailPhoto::SetPicMaxSize(int iMaxWidth, int iMaxHeight)
{
    d_func()->state.limits.maximum = QSize(iMaxWidth, iMaxHeight);
}

void CCutDetailPhoto::SetKeepAspectRatio(bool bKeep) { d_func()->state.limits.bKeepAspectRatio = bKeep; }

bool CCutDetailPhoto::IsCutPhotoVaildWithNotify() { return d_func()->state.IsCutPhotoVaildWithNotify(this); }

int CCutDetailPhoto::GetCompressRatio() const { return d_func()->state.compressRatio; }

QImage CCutDetailPhoto::ChanageImageByAspectRatio(const QImage& image) const
{
    return CropPicture::ChanageImageByAspectRatio(image, d_func()->state.limits.maximum);
}

void CCutDetailPhoto::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    CropState& state = d_func()->state;
    if (state.photo.width() == 0 || state.photo.height() == 0)
        state.CalculationPhotoRect(size());
    QPainter painter(this);
    painter.drawPixmap(state.photo.topLeft(), state.display);
    if (state.crop.width() != 0 && state.crop.height() != 0)
        CropPainting::PaintFrame(painter, rect(), state.photo, state.crop);
}

void CCutDetailPhoto::mousePressEvent(QMouseEvent* event)
{
    QWidget::mousePressEvent(event);
    CCutDetailPhotoPrivate* const d = d_func();
    const QPoint pos = CropFrame::Bounded(event->pos());
    d->pressed = d->state.photo.contains(pos);
    d->press = d->pressed ? pos : QPoint(0, 0);
    update();
}

void CCutDetailPhoto::mouseReleaseEvent(QMouseEvent* event)
{
    QWidget::mousePressEvent(event); // as a press: the canvas treats both ends of a click alike
    CCutDetailPhotoPrivate* const d = d_func();
    d->pressed = false;
    d->press = QPoint(0, 0);
}

void CCutDetailPhoto::mouseMoveEvent(QMouseEvent* event)
{
    if (event == nullptr)
        return;
    QWidget::mouseMoveEvent(event);
    const QPoint pos = CropFrame::Bounded(event->pos());
    setCursor(d_func()->state.photo.contains(pos) ? Qt::CrossCursor : Qt::ArrowCursor);
    if (d_func()->pressed) {
        // A slot may delete the canvas, which then cannot hand the event on to its parent.
        event->accept();
        DragTo(pos);
    }
}

void CCutDetailPhoto::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    UpdateTipPos();
    setAttribute(Qt::WA_OpaquePaintEvent, d_func()->state.Covers(*this));
}

void CCutDetailPhoto::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    ShowTipText();
    UpdateTipPos();
}

void CCutDetailPhoto::ShowTipText()
{
    d_func()->tip->SetTipText(tr("Please select the area to be cropped."));
}

void CCutDetailPhoto::DragTo(const QPoint& pointer)
{
    CCutDetailPhotoPrivate* const d = d_func();
    const QPoint pos = CropFrame::ClampedTo(d->state.photo, pointer);
    HideTip();
    d->state.cutInfo.bHasImage = true;
    const QRect crop = CropFrame::Spanned(d->press, pos, d->state.photo.height(), height());
    SetCrop(crop);
    emit SignalUpdateCutRect(crop, pos.x() >= d->press.x(), pos.y() >= d->press.y());
}

void CCutDetailPhoto::HideTip()
{
    CCutDetailPhotoPrivate* const d = d_func();
    if (d->showTip)
        d->tip->hide();
    d->showTip = false;
}

void CCutDetailPhoto::SetCrop(const QRect& crop)
{
    CCutDetailPhotoPrivate* const d = d_func();
    const QRect before = d->state.crop;
    d->state.crop = crop;
    if (d->cropUnpainted)
        update();
    else
        update(CropPainting::ChangedRegion(before, crop));
    d->cropUnpainted = false;
}

void CCutDetailPhoto::UpdateTipPos()
{
    CComTipWiget* const tip = d_func()->tip;
    tip->raise();
    tip->move(CropFrame::TipPosition(rect(), d_func()->state.displaySize.height(), tip->width()));
}

} // namespace UICommonMdl
