#include <Platform/BasicUIComponents/KvLineEdit.h>

#include <Platform/BasicUIComponents/PlatformLook.h>
#include <QEvent>
#include <QInputMethodEvent>
#include <QValidator>

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

/// The text that the edit would have after @p event, its mask aside.
QString TextAfter(const QLineEdit& edit, const QInputMethodEvent& event)
{
    QString text = edit.text();
    int cursor = edit.cursorPosition();
    if (edit.hasSelectedText()) {
        cursor = edit.selectionStart();
        text.remove(cursor, edit.selectionLength());
    }
    cursor = qBound(0, cursor + event.replacementStart(), text.size());
    text.remove(cursor, event.replacementLength());
    return text.insert(cursor, event.commitString().left(edit.maxLength() - text.size()));
}

bool Takes(const QValidator& validator, QString text)
{
    int cursor = text.size();
    return validator.validate(text, cursor) != QValidator::Invalid;
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

// As Qt does it: after a text that the validator refuses, which the program has set, any text may follow.
bool KvLineEdit::IsRefused(const QInputMethodEvent& event) const
{
    if (event.commitString().isEmpty() || validator() == nullptr || !inputMask().isEmpty())
        return false;
    return Takes(*validator(), text()) && !Takes(*validator(), TextAfter(*this, event));
}

void KvLineEdit::inputMethodEvent(QInputMethodEvent* event)
{
    if (!IsRefused(*event))
        return QLineEdit::inputMethodEvent(event);
    QInputMethodEvent composed(event->preeditString(), event->attributes());
    QLineEdit::inputMethodEvent(&composed);
    event->setAccepted(composed.isAccepted());
    Q_EMIT inputRejected();
}

} // namespace KvGUI
