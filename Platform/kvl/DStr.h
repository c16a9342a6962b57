#pragma once

#include <QtGlobal>
#include <UIComponentsExport.h>
#include <cstddef>

namespace kvl {

/// Writing C strings without ever passing the end of the buffer.
class UICOMPONENTS_EXPORT DStr
{
public:
    DStr() = delete;

    /// Formats like std::snprintf into @p buffer. A text that does not fit is cut; the result always ends
    /// with a zero within the buffer.
    /// @param size size of @p buffer in bytes, the terminating zero included
    /// @return number of characters in the buffer without the zero, or -1 when @p buffer or @p format is
    ///         null or @p size is 0 (nothing is written), or when the format cannot be carried out
    ///         (the buffer then holds the empty text)
    static int sprintf_x(char* buffer, std::size_t size, const char* format, ...)
        Q_ATTRIBUTE_FORMAT_PRINTF(3, 4);

    /// Copies the text @p source into @p buffer. A text that does not fit is cut; the result always ends
    /// with a zero within the buffer.
    /// @param size size of @p buffer in bytes, the terminating zero included
    /// @return true when the whole text was copied; false when it was cut, or when a pointer is null or
    ///         @p size is 0 (nothing is written)
    static bool strcpy_x(char* buffer, std::size_t size, const char* source);
};

} // namespace kvl
