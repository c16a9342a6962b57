#include <UI/PersonImage/WmPersonImage.h>

#include <Common/CommonFun.h>
#include <Platform/BasicUIComponents/KvTranslatedText.h>

#include <QPushButton>
#include <QResizeEvent>

namespace UICommonMdl {

namespace {

constexpr int kStripHeight = 20;
constexpr int kMargin = 1; // left and right of a strip

constexpr int kAvatar = 1;
constexpr int kFirstFace = 2;

QSize StripSize(const QWidget* panel) { return {qMax(0, panel->width() - 2 * kMargin), kStripHeight}; }

/// Enabled is the mark of a child that is in use.
bool IsInUse(const QWidget* child, const QWidget* panel) { return child && child->isEnabledTo(panel); }

} // namespace

WmPersonImage::WmPersonImage(QWidget* parent)
    : QLabel(parent)
    , m_btnUpLoad(AddButton(
          "m_btnUpLoad", [] { return tr("Upload Pic"); }, &WmPersonImage::SignalClickUploadPicBtn))
    , m_btnCapture(AddButton(
          "m_btnCapture", [] { return tr("CameraCaptchPicture"); }, &WmPersonImage::SignalCameraBtnClick))
    , m_btnVistorCapture(AddButton(
          "m_btnVistorCapture", [] { return tr("ACHCaptchPicture"); },
          &WmPersonImage::SignalVistorSnapBtnClick))
    , m_btnIDCard(AddButton(
          "m_btnIDCard", [] { return tr("ID card reading"); }, &WmPersonImage::SignalIDCardBtnClick))
    , m_btnPhotoDelete(AddButton(
          "m_btnPhotoDelete", [] { return tr("Delete"); }, &WmPersonImage::SignalDeleteBtnClick))
    , m_btnTurnPage(AddButton("m_btnTurnPage", nullptr, &WmPersonImage::SignalTurnPageBtnClick))
    , m_lbAvatarOrFace(new QLabel(this))
{
    setObjectName(QStringLiteral("WmPersonImage"));
    m_lbAvatarOrFace->setObjectName(QStringLiteral("m_lbAvatarOrFace"));
    m_lbAvatarOrFace->setAlignment(Qt::AlignCenter);
    m_lbAvatarOrFace->setFixedSize(StripSize(this));
    // The caption is as wide as the panel and would take the clicks.
    m_btnTurnPage->raise();
    ShowTurnText();
    CommonFun::SetStyleSheet(this, QStringLiteral("PersonImage"), QString(), QString());
    SetPhotoBtnVisible(false);
}

QPushButton*
WmPersonImage::AddButton(const char* name, QString (*caption)(), void (WmPersonImage::*clicked)())
{
    auto* button = new QPushButton(this);
    if (caption != nullptr)
        new KvGUI::KvTranslatedText(button, "text", caption);
    button->setObjectName(QLatin1String(name));
    button->setCursor(Qt::PointingHandCursor);
    button->setFocusPolicy(Qt::NoFocus);
    button->setFixedSize(StripSize(this));
    connect(button, &QPushButton::clicked, this, clicked);
    return button;
}

void WmPersonImage::SetInUse(QWidget* child, bool bInUse)
{
    if (!child)
        return;
    child->setEnabled(bInUse);
    if (bInUse)
        return;
    child->hide();
    SetButtonSize(); // those above it come down
}

void WmPersonImage::SetShowUpLoadButton(bool bShow) { SetInUse(m_btnUpLoad, bShow); }

void WmPersonImage::SetShowCaptureButton(bool bShow) { SetInUse(m_btnCapture, bShow); }

void WmPersonImage::SetShowVistorCaptureButton(bool bShow) { SetInUse(m_btnVistorCapture, bShow); }

void WmPersonImage::SetShowIDCardButton(bool bShow) { SetInUse(m_btnIDCard, bShow); }

void WmPersonImage::SetShowDeleteButton(bool bShow) { SetInUse(m_btnPhotoDelete, bShow); }

void WmPersonImage::SetShowTurnPageButton(bool bShow) { SetInUse(m_btnTurnPage, bShow); }

void WmPersonImage::SetShowAvatarOrFaceLabel(bool bShow, int type)
{
    m_iCaptionType = type;
    ShowCaption();
    SetInUse(m_lbAvatarOrFace, bShow);
}

void WmPersonImage::ShowCaption()
{
    if (!m_lbAvatarOrFace)
        return;
    if (m_iCaptionType == kAvatar)
        m_lbAvatarOrFace->setText(tr("Avatar"));
    else // the numbers are one below the types
        m_lbAvatarOrFace->setText(tr("Face") + QLatin1String(m_iCaptionType == kFirstFace ? "1" : "2"));
}

int WmPersonImage::CaptionType() const { return m_iCaptionType; }

void WmPersonImage::RefreshUIButton()
{
    m_bSecondPage = !m_bSecondPage;
    ShowTurnText();
    SetPhotoBtnVisible(true);
    repaint();
}

void WmPersonImage::ResetUI()
{
    m_bSecondPage = false;
    ShowTurnText();
}

void WmPersonImage::ShowTurnText()
{
    if (!m_btnTurnPage)
        return;
    const QString text = m_bSecondPage ? tr("Previous Picture") : tr("Next Picture");
    m_btnTurnPage->setText(text);
    m_btnTurnPage->setToolTip(text);
}

void WmPersonImage::SetPhotoBtnAlwaysShow(bool bAlways)
{
    if (m_bAlwaysShow == bAlways)
        return;
    m_bAlwaysShow = bAlways;
    SetPhotoBtnVisible(bAlways);
}

void WmPersonImage::SetPhotoBtnVisible(bool bVisible)
{
    QWidget* const children[] = {m_btnUpLoad,      m_btnCapture,  m_btnVistorCapture, m_btnIDCard,
                                 m_btnPhotoDelete, m_btnTurnPage, m_lbAvatarOrFace};
    for (QWidget* child : children) {
        if (child)
            child->setVisible(bVisible && child->isEnabledTo(this));
    }
    SetButtonSize();
}

void WmPersonImage::SetButtonSize()
{
    QWidget* const stack[] = {m_btnPhotoDelete, m_btnUpLoad, m_btnCapture, m_btnVistorCapture, m_btnIDCard};
    int used = 0;
    for (QWidget* button : stack) {
        if (!IsInUse(button, this))
            continue;
        button->setFixedSize(StripSize(this));
        button->move(kMargin, height() - button->height() - used);
        used += button->height();
    }
    if (IsInUse(m_btnTurnPage, this)) {
        m_btnTurnPage->setFixedSize(width() / 4, kStripHeight);
        m_btnTurnPage->move(width() * 3 / 4, 0);
    }
    if (IsInUse(m_lbAvatarOrFace, this)) {
        m_lbAvatarOrFace->setFixedSize(StripSize(this));
        m_lbAvatarOrFace->move(kMargin, 0);
    }
}

void WmPersonImage::enterEvent(QEvent* event)
{
    if (!m_bAlwaysShow)
        SetPhotoBtnVisible(true);
    // Not enterEvent(): the base class treats the pointer as gone.
    QLabel::leaveEvent(event);
}

void WmPersonImage::leaveEvent(QEvent* event)
{
    if (!m_bAlwaysShow)
        SetPhotoBtnVisible(false);
    QLabel::leaveEvent(event);
}

void WmPersonImage::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    ShowTurnText();
    if (m_lbAvatarOrFace && !m_lbAvatarOrFace->text().isEmpty())
        ShowCaption();
}

void WmPersonImage::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    SetButtonSize();
}

} // namespace UICommonMdl
