#pragma once

#include <QFontMetrics>
#include <QWidget>

namespace OperatorClient {

/// Pixels of @p count digits in the letters of @p widget: a width that grows with the desktop's letters.
inline int DigitsWidth(const QWidget& widget, int count)
{
    return count * widget.fontMetrics().horizontalAdvance(QLatin1Char('0'));
}

} // namespace OperatorClient
