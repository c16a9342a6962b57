#include <Platform/BasicUIComponents/KvDialog.h>

#include <Platform/BasicUIComponents/DialogEnd.h>
#include <Platform/BasicUIComponents/DialogTitleBar.h>
#include <Platform/BasicUIComponents/PlatformLook.h>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace KvGUI {

namespace {

/// The frame of a dialog. Its line lies over the content: a picture that fills the dialog would cover it at
/// the sides.
class DialogFrame : public QWidget
{
public:
    explicit DialogFrame(QWidget* parent)
        : QWidget(parent)
        , m_pEdge(new QWidget(this))
    {
        setObjectName(QStringLiteral("kvDialogFrame"));
        setAttribute(Qt::WA_StyledBackground);
        m_pEdge->setObjectName(QStringLiteral("kvDialogEdge"));
        m_pEdge->setAttribute(Qt::WA_StyledBackground);
        m_pEdge->setAttribute(Qt::WA_TransparentForMouseEvents);
    }

protected:
    void resizeEvent(QResizeEvent*) override
    {
        m_pEdge->setGeometry(rect());
        // The line alone, so that the content is not painted for the sake of what lies over it.
        m_pEdge->setMask(QRegion(rect()) - rect().adjusted(1, 1, -1, -1));
        m_pEdge->raise();
    }

private:
    QWidget* const m_pEdge;
};

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
    auto* frame = new DialogFrame(this);
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
