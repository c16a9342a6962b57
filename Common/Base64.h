#pragma once

#include <UIComponentsExport.h>
#include <string>

/// Base64 on byte strings: the standard alphabet of RFC 4648 with "=" padding, without line breaks.
namespace Common {

/// The base64 text of the @p len bytes at @p data. A null @p data gives the empty text.
UICOMPONENTS_EXPORT std::string enBase64(const char* data, unsigned long long len);

/// The base64 text of the bytes of @p data, zero bytes included.
UICOMPONENTS_EXPORT std::string enBase64(const std::string& data);

/// Decodes @p text into @p out, which must have room for text.size() / 4 * 3 bytes; no bound is checked
/// and no zero is added.
/// @return the number of bytes; negative, with nothing written, when @p text is not well-formed base64
///         (blanks and line breaks are not skipped) or @p out is null and there is something to write
UICOMPONENTS_EXPORT int deBase64(std::string text, char* out);

/// The bytes that @p text stands for, which may hold zero bytes; empty when @p text is not well-formed.
UICOMPONENTS_EXPORT std::string deBase64(std::string text);

} // namespace Common
