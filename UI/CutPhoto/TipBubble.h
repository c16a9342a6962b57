#pragma once

#include <QString>

class QLabel;
class QWidget;

namespace UICommonMdl {

/// Fills the tip bubble @p bubble with a sign and a line of text, and gives it its height.
/// @return the label of the text
QLabel* BuildTipBubble(QWidget* bubble);

/// Sets the text of the label of @p bubble and makes the bubble as wide as the text, in the label's font,
/// and what stands beside it.
void SetTipBubbleText(QWidget* bubble, QLabel* label, const QString& text);

} // namespace UICommonMdl
