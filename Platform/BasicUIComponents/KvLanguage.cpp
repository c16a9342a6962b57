#include <Platform/BasicUIComponents/KvLanguage.h>

#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <QPointer>
#include <QTranslator>
#include <memory>

namespace KvGUI {

namespace {

const QLatin1String SourceLanguage("en");

/// The compiled translations, named UIComponents_<language>.qm.
QString Folder() { return QStringLiteral(":/UIComponents/translations"); }

/// The translator in use; null while the texts are those of the sources. It belongs to the application
/// object.
QPointer<QTranslator>& Present()
{
    static QPointer<QTranslator> translator;
    return translator;
}

bool IsSourceLanguage(const QLocale& locale) { return locale.language() == QLocale::English; }

std::unique_ptr<QTranslator> Loaded(const QLocale& locale)
{
    auto translator = std::make_unique<QTranslator>();
    const bool loaded
        = translator->load(locale, QStringLiteral("UIComponents"), QStringLiteral("_"), Folder());
    return loaded ? std::move(translator) : nullptr;
}

} // namespace

QStringList GetLanguages()
{
    QStringList languages{SourceLanguage};
    const QStringList files = QDir(Folder()).entryList({QStringLiteral("*.qm")}, QDir::Files, QDir::Name);
    for (const QString& file : files)
        languages.append(file.section(QLatin1Char('_'), 1).section(QLatin1Char('.'), 0, 0));
    return languages;
}

QString GetLanguage() { return Present() ? Present()->language() : QString(SourceLanguage); }

bool SetLanguage(const QString& name)
{
    const QLocale locale(name); // an unknown name gives the C locale
    QCoreApplication* application = QCoreApplication::instance();
    if (application == nullptr || locale.language() == QLocale::C)
        return false;
    std::unique_ptr<QTranslator> wanted;
    if (!IsSourceLanguage(locale)) {
        wanted = Loaded(locale);
        if (!wanted)
            return false;
    }
    if (GetLanguage() == (wanted ? wanted->language() : QString(SourceLanguage)))
        return true;
    delete Present(); // removes itself, and tells the widgets
    if (wanted) {
        wanted->setParent(application);
        Present() = wanted.release();
        QCoreApplication::installTranslator(Present());
    }
    return true;
}

} // namespace KvGUI
