#include <gallery/StartLabel.h>

#include <Platform/BasicUIComponents/KvLineStart.h>

#include <QEvent>

namespace OperatorClient {

StartLabel::StartLabel(QWidget* parent)
    : QLabel(parent)
{
    Align();
}

void StartLabel::Align() { setAlignment(KvGUI::LineStart(layoutDirection())); }

void StartLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        Align();
}

} // namespace OperatorClient
