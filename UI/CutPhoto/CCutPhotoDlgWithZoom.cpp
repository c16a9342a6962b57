#include <UI/CutPhoto/CCutPhotoDlgWithZoom.h>

#include <Common/CommonFun.h>
#include <Platform/BasicUIComponents/KvTranslatedText.h>
#include <UI/CutPhoto/CCutPhotoWithZoom.h>
#include <UI/CutPhoto/CutPhotoForm.h>

#include <QEvent>
#include <QLabel>
#include <QTimer>

namespace UICommonMdl {

namespace {

constexpr int kUpdateDelay = 10; // milliseconds, after the dialog was laid out

constexpr int kVehicle = 1;
constexpr int kFace = 2;
constexpr int kHumanBody = 3;

} // namespace

CCutPhotoDlgWithZoom::CCutPhotoDlgWithZoom(QWidget* parent)
    : KvCustomDialog(parent)
    , m_pCanvas(new CCutPhotoWithZoom(this))
    , m_pForm(std::make_unique<CutPhotoForm>(BuildCutPhotoForm(this, m_pCanvas)))
{
    new KvGUI::KvTranslatedText(m_pForm->hint, "text", [] {
        return tr("Please cut photo refer to the default background picture, or upload the original picture "
                  "below 10m to achieve automatic compression.");
    });
    connect(this, SIGNAL(SignalOkButtonClicked()), this, SLOT(OnBtnOkClicked()));
    connect(this, SIGNAL(SignalCancelButtonClicked()), this, SLOT(OnBtnCancelClicked()));
    connect(
        m_pCanvas, SIGNAL(SignalUpdateCutRect(const QRect&, bool, bool)), this,
        SLOT(OnUpdateCutRect(const QRect&, bool, bool)));
    connect(m_pCanvas, SIGNAL(SignCloseWind()), this, SLOT(OnHandelClose()));
    connect(m_pCanvas, SIGNAL(SignClickHumanSearch()), this, SLOT(OnBtnHumanClicked()));
    connect(m_pCanvas, SIGNAL(SignClickVehicleSearch()), this, SLOT(OnBtnVehicleClicked()));
    connect(m_pCanvas, SIGNAL(SignClickFaceSearch()), this, SLOT(OnBtnFaceClicked()));
    setObjectName(QStringLiteral("CCutPhotoDlgWithZoom"));
    CommonFun::SetStyleSheet(
        this, QStringLiteral("CutPhotoWndWithZoom"), QStringLiteral("CCutPhotoDlgWithZoom.qss"), QString());
    SetPhotoResolution(kFirstCanvasSize.width(), kFirstCanvasSize.height());
}

CCutPhotoDlgWithZoom::~CCutPhotoDlgWithZoom() = default;

void CCutPhotoDlgWithZoom::SetSrcPhoto(const QString& strPath) { m_strPath = strPath; }

CutImageInfo CCutPhotoDlgWithZoom::GetCutPhoto() const { return m_pCanvas->GetCutPhoto(); }

int CCutPhotoDlgWithZoom::GetSavePictureType() const { return m_iSavePictureType; }

void CCutPhotoDlgWithZoom::SetDlgTitle(const QString& strTitle) { SetTitle(strTitle); }

void CCutPhotoDlgWithZoom::SetPhotoResolution(int iWidth, int iHeight)
{
    SetCutPhotoResolution(this, *m_pForm, iWidth, iHeight);
}

void CCutPhotoDlgWithZoom::SetPicMaxSize(int iMaxWidth, int iMaxHeight)
{
    m_pCanvas->SetPicMaxSize(iMaxWidth, iMaxHeight);
}

void CCutPhotoDlgWithZoom::SetImageMaxCapacity(int iMaxCapacity)
{
    m_pCanvas->SetImageMaxCapacity(iMaxCapacity);
}

void CCutPhotoDlgWithZoom::SetKeepAspectRatio(bool bKeep) { m_pCanvas->SetKeepAspectRatio(bKeep); }

CCutPhotoWithZoom* CCutPhotoDlgWithZoom::GetCanvas() const { return m_pCanvas; }

int CCutPhotoDlgWithZoom::exec()
{
    QTimer::singleShot(kUpdateDelay, this, SLOT(OnUpdateImage()));
    return KvCustomDialog::exec();
}

void CCutPhotoDlgWithZoom::OnBtnOkClicked()
{
    if (m_pCanvas->IsCutPhotoVaildWithNotify())
        accept();
}

void CCutPhotoDlgWithZoom::OnBtnCancelClicked() { reject(); }

void CCutPhotoDlgWithZoom::OnHandelClose() { reject(); }

void CCutPhotoDlgWithZoom::OnBtnHumanClicked()
{
    m_iSavePictureType = kHumanBody;
    OnBtnOkClicked();
}

void CCutPhotoDlgWithZoom::OnBtnVehicleClicked()
{
    m_iSavePictureType = kVehicle;
    OnBtnOkClicked();
}

void CCutPhotoDlgWithZoom::OnBtnFaceClicked()
{
    m_iSavePictureType = kFace;
    OnBtnOkClicked();
}

void CCutPhotoDlgWithZoom::OnUpdateCutRect(const QRect& rcCut, bool bAddX, bool bAddY)
{
    FollowCutRect(*m_pForm, rcCut, bAddX, bAddY);
}

void CCutPhotoDlgWithZoom::OnUpdateImage() { m_pCanvas->SetSrcPhoto(m_strPath); }

bool CCutPhotoDlgWithZoom::event(QEvent* event)
{
    // Also when the buttons take another width, in another language for example.
    if (event->type() == QEvent::LayoutRequest)
        FitCutPhotoHint(this, *m_pForm);
    return KvCustomDialog::event(event);
}

void CCutPhotoDlgWithZoom::resizeEvent(QResizeEvent* event)
{
    KvCustomDialog::resizeEvent(event);
    FitCutPhotoHint(this, *m_pForm);
}

} // namespace UICommonMdl
