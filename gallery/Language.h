#pragma once

#include <QString>
#include <QStringList>
#include <memory>

class QTranslator;

namespace OperatorClient {

/// The language of the client: of its own texts, of the library's and of Qt's, and of dates and numbers.
///
/// One object is made in main() after the application object; windows are made after it. Set() may be called
/// at any time: living widgets change their texts when the event loop comes round.
class Language
{
public:
    Language(); ///< English
    ~Language();

    static QStringList Names(); ///< "en" and "zh_CN"
    /// How the language calls itself, for a menu: "English", and the Chinese word for Chinese. The name is
    /// not translated, so that who has ended up in a foreign language finds back. Empty for another name.
    static QString OwnName(const QString& name);
    /// The one of Names() that the desktop's settings ask for; "en" where they ask for another.
    static QString OfDesktop();

    /// A text of the client in each of Names(), in their order. In a language without a translation of it, it
    /// is the source text.
    /// @param context, text as for QCoreApplication::translate()
    static QStringList InEach(const char* context, const char* text);

    QString Name() const; ///< one of Names()
    /// @param name one of Names()
    /// @return false, and nothing changes, for any other name
    bool Set(const QString& name);

private:
    void Apply();
    void Install(std::unique_ptr<QTranslator>& translator, const QString& file, const QString& folder);

    QString m_strName;
    std::unique_ptr<QTranslator> m_pQtTexts; ///< empty in English
    std::unique_ptr<QTranslator> m_pOwnTexts; ///< in English the plurals only
};

} // namespace OperatorClient
