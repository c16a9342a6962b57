#include <Platform/BasicUIComponents/KvCheckBox.h>

#include <Platform/BasicUIComponents/PlatformLook.h>

namespace KvGUI {

KvCheckBox::KvCheckBox(QWidget* parent)
    : KvCheckBox(QString(), parent)
{ }

KvCheckBox::KvCheckBox(const QString& text, QWidget* parent)
    : QCheckBox(text, parent)
{
    UsePlatformSheet(this, QStringLiteral("KvCheckBox.css"));
}

} // namespace KvGUI
