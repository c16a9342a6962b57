#pragma once

#include <QObject>
#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace TestSupport {

/// Fills freed memory with rubbish from now on, so that a touch of a deleted object crashes, also one of
/// Qt's: the address sanitizer does not watch Qt. (Under the sanitizer it is its option max_free_fill_size.)
inline void SpoilFreedMemory()
{
#ifdef M_PERTURB
    mallopt(M_PERTURB, 0xA5);
#endif
}

/// Connects a slot that deletes @p object to its @p signal.
template <class Object, class Signal>
void DeleteAt(Object* object, Signal signal)
{
    QObject::connect(object, signal, object, [object] { delete object; });
}

} // namespace TestSupport
