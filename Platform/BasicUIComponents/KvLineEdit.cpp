#include <Platform/BasicUIComponents/KvLineEdit.h>

#include <Platform/BasicUIComponents/PlatformLook.h>
#include <QEvent>

namespace KvGUI {

namespace {

/// A style sheet gives its text colour to the placeholder as well and knows no other for it, so that an empty
/// field looks filled. A disabled field keeps it: the faintest text there is.
void DimPlaceholder(QLineEdit& edit)
{
    QPalette palette = edit.palette();
    const QColor dim = SkinPalette().color(QPalette::PlaceholderText);
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        if (palette.color(group, QPalette::PlaceholderText) == palette.color(group, QPalette::Text))
            palette.setColor(group, QPalette::PlaceholderText, dim);
    }
    if (palette != edit.palette())
        edit.setPalette(palette);
}

} // namespace

KvLineEdit::KvLineEdit(QWidget* parent)
    : KvLineEdit(QString(), parent)
{ }

KvLineEdit::KvLineEdit(const QString& text, QWidget* parent)
    : QLineEdit(text, parent)
{
    UsePlatformSheet(this, QStringLiteral("KvLineEdit.css"));
}

bool KvLineEdit::event(QEvent* event)
{
    const bool known = QLineEdit::event(event);
    if (event->type() == QEvent::Polish || event->type() == QEvent::StyleChange)
        DimPlaceholder(*this);
    return known;
}

} // namespace KvGUI
