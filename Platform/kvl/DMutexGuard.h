#pragma once

#include <Platform/kvl/DMutex.h>

namespace kvl {

/// Holds a mutex from its construction to the end of its scope.
class DMutexGuard
{
public:
    explicit DMutexGuard(DMutex& mutex)
        : m_mutex(mutex)
    {
        m_mutex.Lock();
    }
    ~DMutexGuard() { m_mutex.Unlock(); }

    DMutexGuard(const DMutexGuard&) = delete;
    DMutexGuard& operator=(const DMutexGuard&) = delete;

private:
    DMutex& m_mutex;
};

} // namespace kvl
