#include <gallery/StartLabel.h>

#include <QEvent>

namespace OperatorClient {

StartLabel::StartLabel(QWidget* parent)
    : QLabel(parent)
{
    Align();
}

void StartLabel::Align()
{
    const Qt::Alignment side = layoutDirection() == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft;
    setAlignment(side | Qt::AlignAbsolute | Qt::AlignVCenter);
}

void StartLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        Align();
}

} // namespace OperatorClient
