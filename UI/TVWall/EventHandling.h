#pragma once

#include <QObject>
#include <QVector>
#include <memory>
#include <utility>

namespace UICommonMdl {

/// Keeps what is removed while Qt handles an event of it until Qt is done: it still uses what got the event.
/// deleteLater() alone would not do, as a slot that opens a dialog runs an event loop of its own, in which
/// what is deleted for later goes.
class EventHandling
{
    struct State
    {
        int depth = 0; // of events on the stack
        QVector<QObject*> removed;
    };

public:
    /// Lives while an event is handled.
    class Scope
    {
    public:
        explicit Scope(const EventHandling& handling)
            : m_state(handling.m_state)
        {
            ++m_state->depth;
        }
        ~Scope()
        {
            if (--m_state->depth > 0)
                return;
            for (QObject* removed : std::exchange(m_state->removed, {}))
                removed->deleteLater();
        }
        Q_DISABLE_COPY(Scope)

    private:
        const std::shared_ptr<State> m_state; // whose owner may go meanwhile
    };

    bool IsActive() const { return m_state->depth > 0; }

    /// Deletes @p removed, or the owner of this, later: when no event is being handled any more.
    void Delete(QObject* removed)
    {
        if (IsActive())
            m_state->removed << removed;
        else
            removed->deleteLater();
    }

private:
    const std::shared_ptr<State> m_state = std::make_shared<State>();
};

} // namespace UICommonMdl
