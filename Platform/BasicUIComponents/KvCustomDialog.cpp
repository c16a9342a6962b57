#include <Platform/BasicUIComponents/KvCustomDialog.h>

#include <Platform/BasicUIComponents/KvPushButton.h>
#include <Platform/BasicUIComponents/KvTranslatedText.h>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace KvGUI {

namespace {

constexpr int kOk = QDialogButtonBox::Ok;
constexpr int kCancel = QDialogButtonBox::Cancel;

QString StandardText(int iButton)
{
    const auto button = static_cast<QDialogButtonBox::StandardButton>(iButton);
    const QDialogButtonBox box(button);
    return box.button(button)->text();
}

/// The lowest value of a standard button in @p iButtons besides OK and Cancel; 0 when there is none.
int OtherButton(int iButtons)
{
    const int others = iButtons & ~(kOk | kCancel);
    for (int button = QDialogButtonBox::FirstButton; button <= QDialogButtonBox::LastButton; button <<= 1) {
        if ((others & button) != 0)
            return button;
    }
    return 0;
}

} // namespace

KvCustomDialog::KvCustomDialog(QWidget* parent, int iButtons, int iDialogFlags)
    : KvDialog(parent, iDialogFlags)
{
    const int other = OtherButton(iButtons);
    const int own = iButtons & (kOk | kCancel);
    if (own == 0 && other == 0)
        return;
    auto* bar = new QWidget(GetCentralWidget()->parentWidget());
    bar->setObjectName(QStringLiteral("kvDialogButtonBar"));
    bar->setAttribute(Qt::WA_StyledBackground);
    bar->setFixedHeight(kButtonBarHeight);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(12, 0, 12, 0);
    row->setSpacing(8);
    row->addStretch(1);
    if (other != 0)
        AddButton(row, other, &KvCustomDialog::SignalOtherButtonClicked);
    if ((own & kOk) != 0)
        AddButton(row, kOk, &KvCustomDialog::SignalOkButtonClicked);
    if ((own & kCancel) != 0)
        AddButton(row, kCancel, &KvCustomDialog::SignalCancelButtonClicked);
    if (KvPushButton* ok = GetButton(kOk))
        ok->setDefault(true);
    FrameLayout()->addWidget(bar);
}

void KvCustomDialog::AddButton(QHBoxLayout* row, int iButton, void (KvCustomDialog::*clicked)())
{
    auto* button = new KvPushButton(row->parentWidget());
    new KvTranslatedText(button, "text", [iButton] { return StandardText(iButton); });
    connect(button, &QPushButton::clicked, this, clicked);
    row->addWidget(button);
    m_buttons.insert(iButton, button);
}

KvPushButton* KvCustomDialog::GetButton(int iButton) const { return m_buttons.value(iButton); }

void KvCustomDialog::SetButtonVisible(int iButton, bool bVisible)
{
    if (KvPushButton* button = GetButton(iButton))
        button->setVisible(bVisible);
}

void KvCustomDialog::SetButtonText(int iButton, const QString& strText)
{
    if (KvPushButton* button = GetButton(iButton))
        button->setText(strText);
}

void KvCustomDialog::SetButtonEnabled(int iButton, bool bEnabled)
{
    if (KvPushButton* button = GetButton(iButton))
        button->setEnabled(bEnabled);
}

} // namespace KvGUI
