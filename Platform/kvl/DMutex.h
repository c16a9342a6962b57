#pragma once

#include <mutex>

namespace kvl {

/// A non-recursive mutex: the thread that holds it must not lock it again. Lock it through a
/// DMutexGuard, which cannot forget to unlock.
class DMutex
{
public:
    DMutex() = default;
    DMutex(const DMutex&) = delete;
    DMutex& operator=(const DMutex&) = delete;

    /// Waits until no other thread holds the mutex, and takes it.
    void Lock() { m_mutex.lock(); }

    /// Gives the mutex back; only the thread that holds it may do so.
    void Unlock() { m_mutex.unlock(); }

private:
    std::mutex m_mutex;
};

} // namespace kvl
