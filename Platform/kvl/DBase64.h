#pragma once

#include <UIComponentsExport.h>

namespace kvl {

/// Base64 by RFC 4648: the standard alphabet ("+" and "/" last), "=" padding, no line breaks.
class UICOMPONENTS_EXPORT DBase64
{
public:
    DBase64() = delete;

    /// Writes the base64 text of @p srcLen bytes to @p dst, and a terminating zero when there is room left.
    /// @param srcLen number of bytes; 0 gives the empty text, also for a null @p src
    /// @param dstLen size of @p dst in bytes; (srcLen + 2) / 3 * 4 are needed
    /// @return number of characters without the terminating zero, or -1 with nothing written when a
    ///         pointer is null, a length is negative or @p dst is too small
    static long long Encode(const char* src, long long srcLen, char* dst, long long dstLen);

    /// Writes the bytes that @p srcLen characters of base64 text stand for to @p dst; no zero is added.
    ///
    /// Reads strictly: the length is a multiple of four, padding stands at the end only, unused bits are
    /// zero, and no other character (line breaks and blanks included) is skipped.
    /// @param dstLen size of @p dst in bytes; srcLen / 4 * 3, less the padding, are needed
    /// @return number of bytes, or -1 when the text is malformed, a pointer is null, a length is negative
    ///         or @p dst is too small; @p dst may hold a part of the bytes then, never more than dstLen
    static long long Decode(const char* src, long long srcLen, char* dst, long long dstLen);
};

} // namespace kvl
