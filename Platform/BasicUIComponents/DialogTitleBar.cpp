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
    m_pTitle->setAlignment(LineStart(layoutDirection()));
    // A long title is shortened; it does not make the dialog wider.
    m_pTitle->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_pTitle->installEventFilter(this);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 1, 5, 1);
    layout->setSpacing(6);
    layout->addWidget(m_pTitle, 1);
    if (bCloseButton)
        AddCloseButton();
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

bool DialogTitleBar::eventFilter(QObject* watched, QEvent* event)
{
    // The font comes with the sheet, after the first title.
    if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange)
        ShowTitle();
    else if (event->type() == QEvent::LayoutDirectionChange)
        m_pTitle->setAlignment(LineStart(layoutDirection()));
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
