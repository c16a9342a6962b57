#pragma once

#include <QString>
#include <QStringList>
#include <UIComponentsExport.h>

namespace KvGUI {

/// The language of the library's own texts: tool tips, accessible names, buttons, messages.
///
/// The texts are English in the sources; the translations are compiled into the library. One line is all
/// that an application needs, after it has made its QApplication:
/// @code
/// KvGUI::SetLanguage(QLocale().name());
/// @endcode
/// A later change is allowed: living widgets show their texts in the new language when the event loop
/// comes round, apart from those that the application has set itself. The application's own texts and
/// Qt's (the file "qtbase_zh_CN.qm" of Qt's folder of translations) need translators of their own, which
/// are installed as usual. Names of months and days follow each widget's locale, not this language.

/// The languages that the library speaks, as QLocale::name() writes them, with English: "en", "zh_CN".
UICOMPONENTS_EXPORT QStringList GetLanguages();

/// The language of the library's texts, one of GetLanguages(); "en" until it is set.
UICOMPONENTS_EXPORT QString GetLanguage();

/// Changes the language.
/// @param name a language as QLocale takes it: "zh_CN", "zh-Hans-CN" and "zh" mean Simplified Chinese,
///        "en" and its countries the texts of the sources. Setting the present language does nothing.
/// @return false when the library does not speak the language, or there is no QCoreApplication yet; the
///         present language stays then.
UICOMPONENTS_EXPORT bool SetLanguage(const QString& name);

} // namespace KvGUI
