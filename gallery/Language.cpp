#include <gallery/Language.h>

#include <Platform/BasicUIComponents/KvLanguage.h>

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <QWidget>

namespace OperatorClient {

namespace {

struct Entry
{
    QLatin1String name;
    const char* ownName; // UTF-8
};

const Entry Entries[] = {{QLatin1String("en"), "English"}, {QLatin1String("zh_CN"), "简体中文"}};

const QString OwnFile = QStringLiteral("operator-client");
const QString OwnFolder = QStringLiteral(":/operator-client/translations");

/// Windows take the locale of their time when they are made; the later ones from here, the living ones now.
void SetLocale(const QLocale& locale)
{
    QLocale::setDefault(locale);
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows)
        window->setLocale(locale);
}

} // namespace

Language::Language()
    : m_strName(Entries[0].name)
{
    Apply();
}

Language::~Language() = default;

QStringList Language::Names()
{
    QStringList names;
    for (const Entry& entry : Entries)
        names.append(entry.name);
    return names;
}

QString Language::OwnName(const QString& name)
{
    for (const Entry& entry : Entries) {
        if (name == entry.name)
            return QString::fromUtf8(entry.ownName);
    }
    return QString();
}

QString Language::OfDesktop()
{
    const QString wanted = QLocale::system().name();
    return Names().contains(wanted) ? wanted : QString(Entries[0].name);
}

QStringList Language::InEach(const char* context, const char* text)
{
    QStringList texts;
    for (const Entry& entry : Entries) {
        QTranslator translator;
        const bool loaded = translator.load(OwnFile + QLatin1Char('_') + entry.name, OwnFolder);
        const QString translated = loaded ? translator.translate(context, text) : QString();
        texts << (translated.isEmpty() ? QString::fromUtf8(text) : translated);
    }
    return texts;
}

QString Language::Name() const { return m_strName; }

/// A language without a file leaves the texts of the sources.
void Language::Install(std::unique_ptr<QTranslator>& translator, const QString& file, const QString& folder)
{
    translator = std::make_unique<QTranslator>(); // the former one removes itself
    if (translator->load(file + QLatin1Char('_') + m_strName, folder))
        QCoreApplication::installTranslator(translator.get());
}

void Language::Apply()
{
    SetLocale(QLocale(m_strName)); // before the texts, which may show dates
    KvGUI::SetLanguage(m_strName);
    // Qt's are there where the package with them is installed.
    Install(m_pQtTexts, QStringLiteral("qtbase"), QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    Install(m_pOwnTexts, OwnFile, OwnFolder);
}

bool Language::Set(const QString& name)
{
    if (!Names().contains(name))
        return false;
    if (name != m_strName) {
        m_strName = name;
        Apply();
    }
    return true;
}

} // namespace OperatorClient
