#include <Platform/BasicUIComponents/NotificationPopup.h>

#include <Platform/BasicUIComponents/KvTranslatedText.h>
#include <Platform/BasicUIComponents/PlatformLook.h>
#include <QAccessibleWidget>
#include <QHBoxLayout>
#include <QLabel>
#include <QTextBoundaryFinder>
#include <QToolButton>

namespace KvGUI {

namespace {

constexpr int kTextWidth = 340; // where lines are wrapped

/// Screen readers read an alert aloud when it appears.
QAccessibleInterface* AlertInterface(const QString& className, QObject* object)
{
    auto* popup = className == QLatin1String("KvGUI::NotificationPopup")
        ? qobject_cast<NotificationPopup*>(object)
        : nullptr;
    return popup != nullptr ? new QAccessibleWidget(popup, QAccessible::AlertMessage, popup->Text())
                            : nullptr;
}

void InstallAlertInterface()
{
    static const bool installed = [] {
        QAccessible::installFactory(AlertInterface);
        return true;
    }();
    Q_UNUSED(installed)
}

/// @p text with invisible places for a line break in words wider than a line: file names, for example.
QString Breakable(const QString& text, const QFontMetrics& metrics)
{
    constexpr QChar ZeroWidthSpace(0x200B);
    QString result;
    QString piece; // of a word, without a place for a break
    QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, text);
    for (int from = 0, to = 0; from < text.size(); from = to) {
        to = letters.toNextBoundary();
        const QString letter = text.mid(from, to - from);
        if (letter.at(0).isSpace()) {
            piece.clear();
        } else if (metrics.horizontalAdvance(piece + letter) > kTextWidth) {
            result += ZeroWidthSpace;
            piece = letter;
        } else {
            piece += letter;
        }
        result += letter;
    }
    return result;
}

QLabel* TextLabel(QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setObjectName(QStringLiteral("kvNotificationText"));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

NotificationPopup::NotificationPopup(const QString& text, int milliseconds, QWidget* parent)
    : QFrame(parent, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus)
    , m_strText(text)
    , m_pText(TextLabel(this))
{
    InstallAlertInterface();
    setObjectName(QStringLiteral("kvNotification"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_DeleteOnClose);
    setFocusPolicy(Qt::NoFocus);
    setAccessibleName(text);
    UsePlatformSheet(this, QStringLiteral("KvMessageNotify.css"));

    auto* sign = new QLabel(this);
    sign->setObjectName(QStringLiteral("kvNotificationSign"));
    auto* close = new QToolButton(this);
    close->setObjectName(QStringLiteral("kvNotificationClose"));
    new KvTranslatedText(close, "accessibleName", [] { return tr("Close the message"); });
    new KvTranslatedText(close, "toolTip", [] { return tr("Close"); });
    close->setFocusPolicy(Qt::NoFocus);
    connect(close, &QToolButton::clicked, this, &QWidget::close);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 10, 8, 10);
    layout->setSpacing(10);
    layout->addWidget(sign, 0, Qt::AlignTop);
    layout->addWidget(m_pText, 1);
    layout->addWidget(close, 0, Qt::AlignTop);

    m_time.setSingleShot(true);
    connect(&m_time, &QTimer::timeout, this, &QWidget::close);
    m_time.start(milliseconds);
}

QString NotificationPopup::Text() const { return m_strText; }

void NotificationPopup::Restart(int milliseconds)
{
    if (m_bPointerInside)
        m_time.setInterval(milliseconds);
    else
        m_time.start(milliseconds);
}

QSize NotificationPopup::FittedSize()
{
    ensurePolished();
    m_pText->ensurePolished();
    m_pText->setText(Breakable(m_strText, m_pText->fontMetrics()));
    // Otherwise a label that wraps lines takes any width.
    const QSize text = m_pText->fontMetrics()
                           .boundingRect(QRect(0, 0, kTextWidth, 0), Qt::TextWordWrap, m_pText->text())
                           .size();
    m_pText->setFixedSize(qMin(text.width(), kTextWidth) + 1, text.height());
    return sizeHint();
}

void NotificationPopup::closeEvent(QCloseEvent* event)
{
    QFrame::closeEvent(event);
    emit SignalClosed();
}

void NotificationPopup::enterEvent(QEvent* event)
{
    m_bPointerInside = true;
    m_time.stop();
    QFrame::enterEvent(event);
}

void NotificationPopup::leaveEvent(QEvent* event)
{
    m_bPointerInside = false;
    m_time.start();
    QFrame::leaveEvent(event);
}

} // namespace KvGUI
