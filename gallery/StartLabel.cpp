#include <gallery/StartLabel.h>

#include <Platform/BasicUIComponents/KvLineStart.h>

#include <QEvent>
#include <QFontInfo>

namespace OperatorClient {

StartLabel::StartLabel(QWidget* parent)
    : QLabel(parent)
{
    Align();
}

void StartLabel::ShowAsHeading(double times)
{
    const int size = qRound(QFontInfo(font()).pixelSize() * times); // a font may have its size in points only
    QFont heading = font();
    heading.setPixelSize(size);
    heading.setWeight(QFont::DemiBold);
    setFont(heading);
}

void StartLabel::Align() { setAlignment(KvGUI::LineStart(layoutDirection())); }

void StartLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        Align();
}

} // namespace OperatorClient
