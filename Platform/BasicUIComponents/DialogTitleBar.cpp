#include <Platform/BasicUIComponents/DialogTitleBar.h>

#include <Platform/BasicUIComponents/KvLineStart.h>
#include <Platform/BasicUIComponents/KvTranslatedText.h>
#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QToolButton>
#include <QWindow>

namespace KvGUI {

namespace {

constexpr int TitleMargin = 12; // pixels beside the title
constexpr int CloseMargin = 5; // pixels beside the close button

/// Where programs do not place their own windows, the desktop moves them.
bool MovedByTheDesktop(QWidget* window)
{
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"))
        && window->windowHandle() != nullptr && window->windowHandle()->startSystemMove();
}

} // namespace

DialogTitleBar::DialogTitleBar(bool bCloseButton, QWidget* parent)
    : QWidget(parent)
    , m_pTitle(new QLabel(this))
{
    setObjectName(QStringLiteral("kvDialogTitleBar"));
    setAttribute(Qt::WA_StyledBackground);
    m_pTitle->setObjectName(QStringLiteral("kvDialogTitle"));
    m_pTitle->setTextFormat(Qt::PlainText);
    // A long title is shortened; it does not make the dialog wider.
    m_pTitle->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_pTitle->installEventFilter(this);
    auto* layout = new QHBoxLayout(this);
    layout->setSpacing(6);
    layout->addWidget(m_pTitle, 1);
    if (bCloseButton)
        AddCloseButton();
    FollowDirection();
}

void DialogTitleBar::AddCloseButton()
{
    auto* button = new QToolButton(this);
    button->setObjectName(QStringLiteral("kvDialogCloseButton"));
    new KvTranslatedText(button, "accessibleName", [] { return tr("Close"); });
    new KvTranslatedText(button, "toolTip", [] { return tr("Close"); });
    // Escape does the same; the first stop of the Tab key belongs to the content.
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &QToolButton::clicked, this, &DialogTitleBar::SignalCloseClicked);
    layout()->addWidget(button);
}

void DialogTitleBar::SetTitle(const QString& title)
{
    m_strTitle = title;
    ShowTitle();
}

void DialogTitleBar::ShowTitle()
{
    m_pTitle->setText(m_pTitle->fontMetrics().elidedText(m_strTitle, Qt::ElideRight, m_pTitle->width()));
}

/// A layout turns its widgets round, and not its margins.
void DialogTitleBar::FollowDirection()
{
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    layout()->setContentsMargins(
        mirrored ? CloseMargin : TitleMargin, 1, mirrored ? TitleMargin : CloseMargin, 1);
    m_pTitle->setAlignment(LineStart(layoutDirection()));
}

bool DialogTitleBar::eventFilter(QObject* watched, QEvent* event)
{
    // The font comes with the sheet, after the first title.
    if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange)
        ShowTitle();
    else if (event->type() == QEvent::LayoutDirectionChange)
        FollowDirection();
    return QWidget::eventFilter(watched, event);
}

void DialogTitleBar::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || MovedByTheDesktop(window()))
        return;
    m_grab = event->globalPos() - window()->pos();
    m_bDragging = true;
}

void DialogTitleBar::mouseMoveEvent(QMouseEvent* event)
{
    // The release may have gone to another window, one that opened during the drag.
    if (!event->buttons().testFlag(Qt::LeftButton))
        m_bDragging = false;
    if (m_bDragging)
        window()->move(event->globalPos() - m_grab);
}

void DialogTitleBar::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        m_bDragging = false;
}

} // namespace KvGUI
