#include <Platform/BasicUIComponents/KvMessageNotify.h>

#include <Platform/BasicUIComponents/NotificationStack.h>
#include <QApplication>
#include <QVector>
#include <QWidget>

namespace KvGUI {

namespace {

constexpr int kFirstDisplayTime = 6000; // milliseconds

/// The window that a message from @p widget belongs to. Menus and tips are gone too soon.
QWidget* LastingWindow(const QWidget* widget)
{
    QWidget* window = widget->window();
    while ((window->windowType() == Qt::Popup || window->windowType() == Qt::ToolTip)
           && window->parentWidget() != nullptr)
        window = window->parentWidget()->window();
    return window;
}

} // namespace

KvMessageNotify* KvMessageNotify::Instance()
{
    static KvMessageNotify notify;
    return &notify;
}

KvMessageNotify::KvMessageNotify()
    : m_iDisplayTime(kFirstDisplayTime)
{
    // Windows must be gone before the application object is.
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, &KvMessageNotify::CloseAll);
}

void KvMessageNotify::AddTextNotification(const QString& strText, QWidget* parent)
{
    if (strText.isEmpty())
        return;
    const QWidget* place = parent != nullptr ? parent : QApplication::activeWindow();
    StackOf(place != nullptr ? LastingWindow(place) : nullptr)->Add(strText, m_iDisplayTime);
}

NotificationStack* KvMessageNotify::StackOf(QWidget* window)
{
    if (window != nullptr) {
        auto* stack = window->findChild<NotificationStack*>(QString(), Qt::FindDirectChildrenOnly);
        return stack != nullptr ? stack : new NotificationStack(window);
    }
    if (m_pScreenStack.isNull())
        m_pScreenStack = new NotificationStack(nullptr);
    return m_pScreenStack;
}

void KvMessageNotify::SetDisplayTime(int iMilliseconds) { m_iDisplayTime = qMax(1, iMilliseconds); }

void KvMessageNotify::CloseAll()
{
    delete m_pScreenStack;
    // Messages are windows themselves and go while their stacks are deleted.
    QVector<QPointer<NotificationStack>> stacks;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget* window : windows)
        stacks.append(window->findChild<NotificationStack*>(QString(), Qt::FindDirectChildrenOnly));
    for (const QPointer<NotificationStack>& stack : qAsConst(stacks))
        delete stack;
}

} // namespace KvGUI
