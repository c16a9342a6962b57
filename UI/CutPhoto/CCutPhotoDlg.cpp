#include <UI/CutPhoto/CCutPhotoDlg.h>

#include <Common/CommonFun.h>
#include <Platform/BasicUIComponents/KvTranslatedText.h>
#include <UI/CutPhoto/CCutDetailPhoto.h>
#include <UI/CutPhoto/CutPhotoForm.h>

#include <QEvent>
#include <QLabel>
#include <QTimer>

namespace UICommonMdl {

namespace {

constexpr int kUpdateDelay = 10; // milliseconds, after the dialog was laid out

} // namespace

CCutPhotoDlg::CCutPhotoDlg(QWidget* parent)
    : KvCustomDialog(parent)
    , m_pCanvas(new CCutDetailPhoto(this))
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
    setObjectName(QStringLiteral("CCutPhotoDlg"));
    CommonFun::SetStyleSheet(
        this, QStringLiteral("CutPhotoWnd"), QStringLiteral("CCutPhotoDlg.qss"), QString());
    SetPhotoResolution(kFirstCanvasSize.width(), kFirstCanvasSize.height());
}

CCutPhotoDlg::~CCutPhotoDlg() = default;

void CCutPhotoDlg::SetSrcPhoto(const QString& strPath) { m_strPath = strPath; }

CutImageInfo CCutPhotoDlg::GetCutPhoto() const { return m_pCanvas->GetCutPhoto(); }

void CCutPhotoDlg::SetDlgTitle(const QString& strTitle) { SetTitle(strTitle); }

void CCutPhotoDlg::SetPhotoResolution(int iWidth, int iHeight)
{
    SetCutPhotoResolution(this, *m_pForm, iWidth, iHeight);
}

void CCutPhotoDlg::SetPicMaxSize(int iMaxWidth, int iMaxHeight)
{
    m_pCanvas->SetPicMaxSize(iMaxWidth, iMaxHeight);
}

void CCutPhotoDlg::SetImageMaxCapacity(int iMaxCapacity) { m_pCanvas->SetImageMaxCapacity(iMaxCapacity); }

void CCutPhotoDlg::SetKeepAspectRatio(bool bKeep) { m_pCanvas->SetKeepAspectRatio(bKeep); }

CCutDetailPhoto* CCutPhotoDlg::GetCanvas() const { return m_pCanvas; }

int CCutPhotoDlg::exec()
{
    QTimer::singleShot(kUpdateDelay, this, SLOT(OnUpdateImage()));
    return KvCustomDialog::exec();
}

void CCutPhotoDlg::OnBtnOkClicked()
{
    if (m_pCanvas->IsCutPhotoVaildWithNotify())
        accept();
}

void CCutPhotoDlg::OnBtnCancelClicked() { reject(); }

void CCutPhotoDlg::OnUpdateCutRect(const QRect& rcCut, bool bAddX, bool bAddY)
{
    FollowCutRect(*m_pForm, rcCut, bAddX, bAddY);
}

void CCutPhotoDlg::OnUpdateImage() { m_pCanvas->SetSrcPhoto(m_strPath); }

bool CCutPhotoDlg::event(QEvent* event)
{
    // Also when the buttons take another width, in another language for example.
    if (event->type() == QEvent::LayoutRequest)
        FitCutPhotoHint(this, *m_pForm);
    return KvCustomDialog::event(event);
}

void CCutPhotoDlg::resizeEvent(QResizeEvent* event)
{
    KvCustomDialog::resizeEvent(event);
    FitCutPhotoHint(this, *m_pForm);
}

} // namespace UICommonMdl
