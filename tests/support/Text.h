#pragma once

#include <QString>

namespace TestSupport {

/// "text"_s: a text of a test, in UTF-8.
inline QString operator""_s(const char* text, std::size_t length)
{
    return QString::fromUtf8(text, int(length));
}

} // namespace TestSupport
