#include <UI/FormInputs/LineEnds.h>

#include <QLineEdit>
#include <QStyle>

namespace UICommonMdl {

void KeepRoom(QLineEdit& line, LineEnd end, int width)
{
    const bool left = (end == LineEnd::Start) != line.isRightToLeft();
    line.setTextMargins(left ? width : 0, 0, left ? 0 : width, 0);
}

void PlaceInLine(const QLineEdit& line, QWidget& child, const QRect& place)
{
    child.setGeometry(QStyle::visualRect(line.layoutDirection(), line.rect(), place));
}

} // namespace UICommonMdl
