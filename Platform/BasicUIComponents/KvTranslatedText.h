#pragma once

#include <QByteArray>
#include <QObject>
#include <UIComponentsExport.h>
#include <functional>

namespace KvGUI {

/// A text that its owner shows in the operator's language, and that follows a change of the language.
///
/// It belongs to a property of a widget or an action: "text", "toolTip", "accessibleName", "windowTitle",
/// "placeholderText", "title" and so on. The text is set at once, and again after each change of the
/// language, unless someone else has set the property in the meantime: their text stays.
/// @code
/// new KvTranslatedText(button, "toolTip", [] { return SavePanel::tr("Save the picture"); });
/// @endcode
/// The object becomes a child of its target and goes with it; a newer one for the same property takes its
/// place. An action must be a child of a widget, as those of QMenu::addAction(text) are: it hears of
/// the change from there.
class UICOMPONENTS_EXPORT KvTranslatedText : public QObject
{
    Q_OBJECT

public:
    /// Gives the text in the present language.
    using Source = std::function<QString()>;

    /// @param target must not be null
    /// @param property a property of @p target that holds a text; any other name changes nothing that can
    ///        be seen
    /// @param source is called now and after each change of the language; an empty one leaves the text
    KvTranslatedText(QObject* target, const char* property, Source source);

public Q_SLOTS:
    /// Sets the text again, for a source that depends on more than the language. A text that someone else
    /// has set stays here too.
    void Refresh();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QString Present() const;

    QByteArray m_property;
    Source m_source;
    QString m_shown; ///< what was set last
};

} // namespace KvGUI
