#pragma once

#include <QString>

/// How a text is turned into bytes when its length in bytes counts.
enum class TextEncoding
{
    Utf8, ///< UTF-8
    Local8Bit ///< the codec of the process, QTextCodec::codecForLocale()
};

/// Units of text that are encoded at a time; a tuning figure only.
constexpr int kByteBudgetBlock = 32768;

/// The longest beginning of @p text that has at most @p maxBytes UTF-16 units and at most @p maxBytes
/// bytes in @p encoding. A surrogate pair stays whole or goes whole.
///
/// Gives what dropping characters from the end and encoding again would give, but encodes each character
/// about once, so that long texts take linear time.
/// @param maxBytes 0 or less gives the empty text
/// @param block units that are encoded at a time, at least 2
QString
CutToByteBudget(const QString& text, int maxBytes, TextEncoding encoding, int block = kByteBudgetBlock);
