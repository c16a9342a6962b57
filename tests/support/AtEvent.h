#pragma once

#include <QEvent>
#include <QWidget>
#include <functional>
#include <utility>

namespace TestSupport {

/// Acts at the first event of a type that a widget gets.
class AtEvent : public QObject
{
public:
    AtEvent(QWidget* widget, QEvent::Type type, const std::function<void()>& action)
        : m_type(type)
        , m_action(action)
    {
        widget->installEventFilter(this);
    }

    bool HasActed() const { return m_acted; }
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == m_type && !std::exchange(m_acted, true))
            m_action();
        return false;
    }

private:
    const QEvent::Type m_type;
    const std::function<void()> m_action;
    bool m_acted = false;
};

} // namespace TestSupport
