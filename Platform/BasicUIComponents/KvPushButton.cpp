#include <Platform/BasicUIComponents/KvPushButton.h>

#include <Platform/BasicUIComponents/PlatformLook.h>

namespace KvGUI {

KvPushButton::KvPushButton(QWidget* parent)
    : KvPushButton(QIcon(), QString(), parent)
{ }

KvPushButton::KvPushButton(const QString& text, QWidget* parent)
    : KvPushButton(QIcon(), text, parent)
{ }

KvPushButton::KvPushButton(const QIcon& icon, const QString& text, QWidget* parent)
    : QPushButton(icon, text, parent)
{
    UsePlatformSheet(this, QStringLiteral("KvPushButton.css"));
}

} // namespace KvGUI
