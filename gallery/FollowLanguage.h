#pragma once

#include <Platform/BasicUIComponents/KvTranslatedText.h>

#include <QFormLayout>
#include <QLabel>
#include <utility>

namespace OperatorClient {

/// Gives a property of @p target a text that follows the language, see KvGUI::KvTranslatedText.
/// @return the target, so that a text can be given where the widget is made
template <class Target>
Target* FollowLanguage(Target* target, const char* property, KvGUI::KvTranslatedText::Source text)
{
    new KvGUI::KvTranslatedText(target, property, std::move(text));
    return target;
}

/// Adds a row whose label follows the language; the letter marked in it is the field's shortcut.
/// @return the label
inline QLabel* AddRowWithText(QFormLayout* form, KvGUI::KvTranslatedText::Source text, QWidget* field)
{
    QLabel* label = FollowLanguage(new QLabel(field->parentWidget()), "text", std::move(text));
    label->setBuddy(field);
    form->addRow(label, field);
    return label;
}

} // namespace OperatorClient
