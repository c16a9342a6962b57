#include <gallery/ElidedLabel.h>

#include <QStyle>
#include <QStyleOption>
#include <QStylePainter>

namespace OperatorClient {

void ElidedLabel::paintEvent(QPaintEvent* /*event*/)
{
    const QRect area = contentsRect();
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, area.width());
    QStylePainter painter(this);
    painter.drawItemText(
        area, static_cast<int>(alignment()), palette(), isEnabled(), shown, foregroundRole());
}

} // namespace OperatorClient
