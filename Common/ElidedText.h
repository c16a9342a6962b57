#pragma once

#include <QFontMetrics>
#include <QString>

/// Shortens @p text to @p width pixels with "..." in its middle. A text that fits comes back unchanged;
/// a width that has no room for more gives "..." alone. Kerning between characters is not counted.
QString ElidedInTheMiddle(const QFontMetrics& metrics, int width, const QString& text);

/// Shortens @p text to @p width pixels with "..." at its end, otherwise as ElidedInTheMiddle().
QString ElidedAtTheEnd(const QFontMetrics& metrics, int width, const QString& text);
