#pragma once

class QLineEdit;
class QRect;
class QWidget;

namespace UICommonMdl {

/// The ends of a line of text, in the direction in which it is read.
enum class LineEnd
{
    Start, ///< left, and right where the layout is mirrored
    End
};

/// Leaves @p width pixels free at one end of the text, for a child of the edit that stands there. The other
/// text margins become 0. To be called again when the layout's direction changes.
void KeepRoom(QLineEdit& line, LineEnd end, int width);

/// Puts a child of the edit to a place that is given as from left to right, and mirrored where the layout is.
/// To be called again when the edit's size or direction changes.
void PlaceInLine(const QLineEdit& line, QWidget& child, const QRect& place);

} // namespace UICommonMdl
