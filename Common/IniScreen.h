#pragma once

#include <QByteArray>

class QVariant;

/// Whether QSettings can read the text of an INI file without harm. Beside texts it reads streamed objects,
/// "@Variant(...)" and "@DateTime(...)", and believes what stands there: a damaged one can claim a list of
/// two thousand million entries, or lists in lists without end, or be a picture or a brush, whose readers
/// look at nothing. False when there is an object that claims more than the file has room for, is nested too
/// deeply, or is none of the plain ones: numbers, texts, bytes, bits, unique ids, dates, times, addresses,
/// languages, points, lines, sizes, rectangles, colours, fonts, and lists and maps of them.
bool IsSafeIniText(const QByteArray& text);

/// Whether the value is one that IsSafeIniText() lets pass when QSettings has stored it.
bool IsSafeIniValue(const QVariant& value);
