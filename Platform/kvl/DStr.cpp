#include <Platform/kvl/DStr.h>

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>

namespace kvl {

int DStr::sprintf_x(char* buffer, std::size_t size, const char* format, ...)
{
    if (buffer == nullptr || format == nullptr || size == 0)
        return -1;
    va_list arguments;
    va_start(arguments, format);
    const int wanted = std::vsnprintf(buffer, size, format, arguments);
    va_end(arguments);
    if (wanted < 0) {
        buffer[0] = '\0';
        return -1;
    }
    return static_cast<int>(std::min<std::size_t>(static_cast<std::size_t>(wanted), size - 1));
}

bool DStr::strcpy_x(char* buffer, std::size_t size, const char* source)
{
    if (buffer == nullptr || source == nullptr || size == 0)
        return false;
    const std::size_t wanted = std::strlen(source);
    const std::size_t kept = std::min(wanted, size - 1);
    std::memcpy(buffer, source, kept);
    buffer[kept] = '\0';
    return kept == wanted;
}

} // namespace kvl
