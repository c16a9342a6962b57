#include <Platform/BasicUIComponents/KvDialog.h>

#include <Platform/BasicUIComponents/DialogEnd.h>
#include <Platform/BasicUIComponents/DialogTitleBar.h>
#include <Platform/BasicUIComponents/PlatformLook.h>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace KvGUI {

namespace {

QVBoxLayout* LayoutWithoutGaps(QWidget* widget)
{
    auto* layout = new QVBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    return layout;
}

} // namespace

KvDialog::KvDialog(QWidget* parent, int iDialogFlags)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
{
    UsePlatformSheet(this, QStringLiteral("KvDialog.css"));
    auto* frame = new QWidget(this);
    frame->setObjectName(QStringLiteral("kvDialogFrame"));
    frame->setAttribute(Qt::WA_StyledBackground);
    UsePlatformSheet(frame, QStringLiteral("KvDialogFrame.css"));
    LayoutWithoutGaps(this)->addWidget(frame);

    auto* titleBar = new DialogTitleBar((iDialogFlags & CloseButton) != 0, frame);
    titleBar->setFixedHeight(kTitleBarHeight);
    connect(this, &QWidget::windowTitleChanged, titleBar, &DialogTitleBar::SetTitle);
    connect(titleBar, &DialogTitleBar::SignalCloseClicked, this, [this] { OnCloseBtmClicked(); });

    m_pCentralWidget = new QWidget(frame);
    m_pFrameLayout = LayoutWithoutGaps(frame);
    m_pFrameLayout->addWidget(titleBar);
    m_pFrameLayout->addWidget(m_pCentralWidget, 1);
}

void KvDialog::SetTitle(const QString& strTitle) { setWindowTitle(strTitle); }

QWidget* KvDialog::GetCentralWidget() const { return m_pCentralWidget; }

QVBoxLayout* KvDialog::FrameLayout() const { return m_pFrameLayout; }

void KvDialog::done(int iResult) { EndDialog(*this, iResult); }

void KvDialog::OnCloseBtmClicked() { reject(); }

void KvDialog::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Cancel))
        OnCloseBtmClicked();
    else
        QDialog::keyPressEvent(event);
}

} // namespace KvGUI
