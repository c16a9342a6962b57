#include <gallery/Pairing/PairingPage.h>

#include <UI/Dialogs/CDisplayQRcodeDlg.h>
#include <gallery/FollowLanguage.h>
#include <gallery/Pairing/PairingToken.h>
#include <gallery/StartLabel.h>

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTime>
#include <QVBoxLayout>

namespace OperatorClient {

namespace {

constexpr int UsualPeriod = 120000; // milliseconds
constexpr int DemonstrationPeriod = 5000; // milliseconds
constexpr int InputWidth = 320; // pixels

} // namespace

PairingPage::PairingPage(QWidget* parent)
    : Page(parent)
    , m_pPhone(new QLineEdit(this))
    , m_pPeriod(new QComboBox(this))
    , m_pIssued(new QPlainTextEdit(this))
    , m_pDialog(new UICommonMdl::CDisplayQRcodeDlg(this))
{
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(24, 20, 24, 20);
    all->setSpacing(12);
    auto* title = FollowLanguage(new StartLabel(this), "text", [] { return tr("Pair a phone"); });
    title->ShowAsHeading(StartLabel::PageTitle);
    auto* hint = FollowLanguage(new StartLabel(this), "text", [] {
        return tr("The phone scans a token that is good for a short time. While the code is shown, a new "
                  "one is issued at the end of each period.");
    });
    hint->setObjectName(QStringLiteral("hint"));
    hint->setWordWrap(true);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addWidget(title);
    texts->addWidget(hint);
    all->addLayout(texts);
    AddInputs();
    auto* issued = FollowLanguage(new StartLabel(this), "text", [] { return tr("Issued tokens"); });
    issued->setObjectName(QStringLiteral("hint"));
    all->addWidget(issued);
    m_pIssued->setReadOnly(true);
    FollowLanguage(m_pIssued, "accessibleName", [] { return tr("Issued tokens"); });
    all->addWidget(m_pIssued, 1);

    connect(m_pDialog, &UICommonMdl::CDisplayQRcodeDlg::SignalRefreshTimeout, this, &PairingPage::Issue);
    connect(m_pDialog, &QDialog::finished, this, &PairingPage::OnClosed);
}

void PairingPage::AddInputs()
{
    auto* form = new QFormLayout;
    form->setHorizontalSpacing(16);
    form->setVerticalSpacing(10);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    FollowLanguage(m_pPhone, "text", [] { return tr("Guard's phone"); });
    m_pPhone->setMinimumWidth(InputWidth);
    AddRowWithText(
        form, [] { return tr("&Phone"); }, m_pPhone);
    m_pPeriod->addItem(QString(), UsualPeriod);
    m_pPeriod->addItem(QString(), DemonstrationPeriod);
    PairingPage::OnLanguageChanged();
    m_pPeriod->setMinimumWidth(InputWidth);
    AddRowWithText(
        form, [] { return tr("&Renewal"); }, m_pPeriod);
    auto* show = FollowLanguage(new QPushButton(this), "text", [] { return tr("&Show the code"); });
    show->setObjectName(QStringLiteral("showCode"));
    form->addRow(QString(), show);
    // The field would stretch the button over its width.
    form->setAlignment(show, Qt::AlignLeft);
    auto* line = new QHBoxLayout; // the inputs are as wide as the widest needs
    line->addLayout(form);
    line->addStretch(1);
    static_cast<QVBoxLayout*>(layout())->addLayout(line);
    connect(show, &QPushButton::clicked, this, &PairingPage::ShowCode);
    connect(m_pPhone, &QLineEdit::returnPressed, this, &PairingPage::ShowCode);
}

QString PairingPage::Title() { return tr("Phone pairing"); }

void PairingPage::OnLanguageChanged()
{
    m_pPeriod->setItemText(0, tr("every two minutes"));
    m_pPeriod->setItemText(1, tr("every five seconds, as a demonstration"));
}

void PairingPage::ShowCode()
{
    m_pDialog->SetRefreshInterval(m_pPeriod->currentData().toInt());
    Issue(m_pPhone->text());
    m_pDialog->open();
}

void PairingPage::Issue(const QString& phone)
{
    const QString token = MakePairingToken(*QRandomGenerator::system());
    m_pDialog->SetQRCodeValue(token, phone);
    const QString time = QTime::currentTime().toString(QStringLiteral("HH:mm:ss"));
    m_pIssued->appendPlainText(QStringLiteral("%1   %2   %3").arg(time, token, phone));
    Q_EMIT SignalReport(tr("A token was issued for %1").arg(phone));
}

void PairingPage::OnClosed()
{
    m_pDialog->SetQRCodeValue(QString(), QString()); // nothing is renewed that nobody sees
    Q_EMIT SignalReport(tr("No more tokens are issued"));
}

QVector<Page::Picture> PairingPage::Pictures()
{
    const auto show = [this] {
        m_pDialog->SetQRCodeValue(QStringLiteral("pair-demo-2026"), m_pPhone->text());
        m_pDialog->open();
    };
    return {{QString(), [] {}}, {QStringLiteral("code"), show, [this] { m_pDialog->close(); }}};
}

} // namespace OperatorClient
