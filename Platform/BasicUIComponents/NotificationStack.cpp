#include <Platform/BasicUIComponents/NotificationStack.h>

#include <Platform/BasicUIComponents/NotificationPlaces.h>
#include <Platform/BasicUIComponents/NotificationPopup.h>
#include <QAccessible>
#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

namespace KvGUI {

namespace {

constexpr int kMostMessages = 5;

QScreen* ScreenOf(const QWidget* window)
{
    QScreen* screen = window != nullptr ? window->screen() : nullptr;
    return screen != nullptr ? screen : QGuiApplication::primaryScreen();
}

} // namespace

NotificationStack::NotificationStack(QWidget* window)
    : QObject(window)
    , m_pWindow(window)
{
    if (window != nullptr)
        window->installEventFilter(this);
}

NotificationStack::~NotificationStack()
{
    const auto popups = m_popups;
    m_popups.clear();
    qDeleteAll(popups);
}

NotificationPopup* NotificationStack::Find(const QString& text) const
{
    const auto found = std::find_if(
        m_popups.begin(), m_popups.end(), [&](const auto* popup) { return popup->Text() == text; });
    return found != m_popups.end() ? *found : nullptr;
}

void NotificationStack::Add(const QString& text, int milliseconds)
{
    if (NotificationPopup* shown = Find(text)) {
        shown->Restart(milliseconds);
        return;
    }
    if (m_popups.size() >= kMostMessages)
        m_popups.first()->close();
    auto* popup = new NotificationPopup(text, milliseconds, m_pWindow);
    connect(popup, &NotificationPopup::SignalClosed, this, [this, popup] { Forget(popup); });
    connect(popup, &QObject::destroyed, this, [this, popup] { Forget(popup); });
    m_popups.append(popup);
    Place();
    popup->show();
    QAccessibleEvent alert(popup, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void NotificationStack::Forget(NotificationPopup* popup)
{
    m_popups.removeAll(popup);
    Place();
}

void NotificationStack::Place()
{
    const QScreen* screen = ScreenOf(m_pWindow);
    if (screen == nullptr)
        return;
    QVector<QSize> sizes;
    for (NotificationPopup* popup : qAsConst(m_popups))
        sizes.append(popup->FittedSize());
    const QRect available = screen->availableGeometry();
    const QRect window = m_pWindow != nullptr ? m_pWindow->geometry() : available;
    const QVector<QPoint> places = NotificationPlaces(window, available, sizes);
    for (int i = 0; i < places.size(); ++i)
        m_popups.at(i)->setGeometry(QRect(places.at(i), sizes.at(i)));
}

bool NotificationStack::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
        Place();
    return QObject::eventFilter(watched, event);
}

} // namespace KvGUI
