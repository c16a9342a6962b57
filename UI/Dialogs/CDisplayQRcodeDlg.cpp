#include <UI/Dialogs/CDisplayQRcodeDlg.h>

#include "ui_CDisplayQRcodeDlg.h"

#include <Common/CommonFun.h>
#include <Platform/BasicUIComponents/KvTranslatedText.h>
#include <UI/Dialogs/QRCodePicture.h>

#include <QPixmap>
#include <QTimer>

namespace UICommonMdl {

namespace {

constexpr int FirstRefreshInterval = 120000; // milliseconds
constexpr QSize FirstSize(400, 300); // pixels

} // namespace

CDisplayQRcodeDlg::CDisplayQRcodeDlg(QWidget* parent)
    : KvDialog(parent, CloseButton)
    , m_ui(std::make_unique<Ui::CDisplayQRcodeDlg>())
    , m_pRefreshTimer(new QTimer(this))
{
    m_ui->setupUi(GetCentralWidget());
    new KvGUI::KvTranslatedText(this, "windowTitle", [] { return tr("Display QRcode"); });
    resize(FirstSize);
    setObjectName(QStringLiteral("CDisplayQRcodeDlg"));
    m_pRefreshTimer->setInterval(FirstRefreshInterval);
    m_pRefreshTimer->setTimerType(Qt::PreciseTimer); // otherwise it may be six seconds off
    connect(m_pRefreshTimer, &QTimer::timeout, this, &CDisplayQRcodeDlg::OnRefreshTimeout);
    CommonFun::SetStyleSheet(this, QStringLiteral("QREncode"), QString(), QString());
}

CDisplayQRcodeDlg::~CDisplayQRcodeDlg() = default;

void CDisplayQRcodeDlg::changeEvent(QEvent* event)
{
    KvDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        m_ui->retranslateUi(GetCentralWidget());
}

void CDisplayQRcodeDlg::SetQRCodeValue(const QString& value, const QString& initValue)
{
    m_pRefreshTimer->stop();
    m_strInitValue = initValue;
    if (value.isEmpty())
        return;
    CreateShowRCodeImage(value);
    m_pRefreshTimer->start();
}

int CDisplayQRcodeDlg::RefreshInterval() const { return m_pRefreshTimer->interval(); }

void CDisplayQRcodeDlg::SetRefreshInterval(int iMilliseconds)
{
    if (iMilliseconds > 0)
        m_pRefreshTimer->setInterval(iMilliseconds);
}

void CDisplayQRcodeDlg::OnRefreshTimeout()
{
    const QString initValue = m_strInitValue; // the slot will set another
    Q_EMIT SignalRefreshTimeout(initValue);
}

void CDisplayQRcodeDlg::CreateShowRCodeImage(const QString& text)
{
    const QPixmap picture = CreateQRcode(text);
    if (!picture.isNull())
        m_ui->m_labQRcode->setPixmap(picture);
}

QPixmap CDisplayQRcodeDlg::CreateQRcode(const QString& text)
{
    return QPixmap::fromImage(QRCodePicture::Scaled(text));
}

} // namespace UICommonMdl
