#include <Platform/BasicUIComponents/KvLineEdit.h>

#include <Platform/BasicUIComponents/PlatformLook.h>

namespace KvGUI {

KvLineEdit::KvLineEdit(QWidget* parent)
    : KvLineEdit(QString(), parent)
{ }

KvLineEdit::KvLineEdit(const QString& text, QWidget* parent)
    : QLineEdit(text, parent)
{
    UsePlatformSheet(this, QStringLiteral("KvLineEdit.css"));
}

} // namespace KvGUI
