#include <gallery/ClientOptions.h>

#include <gallery/Client.h>
#include <gallery/Language.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>
#include <QStandardPaths>

namespace OperatorClient {

namespace {

QString Translated(const char* text)
{
    return QCoreApplication::translate("OperatorClient::ClientOptions", text);
}

QString Listed(const QStringList& names) { return names.join(QStringLiteral(", ")); }

/// @param choices what the value may be; they stand at the description's place mark
QCommandLineOption
TextOption(const char* name, const char* description, const char* value, const QStringList& choices = {})
{
    const QString text = Translated(description);
    return QCommandLineOption(
        QString::fromLatin1(name), choices.isEmpty() ? text : text.arg(Listed(choices)),
        QString::fromLatin1(value));
}

/// Whether the option is not there or names one of the choices; else @p error says so.
bool IsChoice(
    const QCommandLineParser& parser, const QString& option, const QStringList& choices, QString& error)
{
    if (!parser.isSet(option) || choices.contains(parser.value(option)))
        return true;
    error = Translated("--%1: there is no \"%2\"; choose one of %3.")
                .arg(option, parser.value(option), Listed(choices));
    return false;
}

void AddOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription(Translated("An example of an operator's client for a video wall."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions(
        {TextOption("video", "Show the video file in a window.", "file"),
         TextOption("photo", "Show the picture file in a window, and crop the first one.", "file"),
         TextOption(
             "screenshots",
             "Save pictures of all pages, or of the one named, in both skins to the folder, and end.",
             "folder"),
         TextOption("layout", "Keep the wall and the window in this file instead of the user's own.", "file"),
         TextOption("page", "Start on this page: %1.", "name", PageNames()),
         TextOption("skin", "Start in this skin: %1.", "name", SkinNames()),
         TextOption("language", "Start in this language: %1.", "name", Language::Names())});
}

/// Files are stored with the wall, so a name must mean the same file when the program starts elsewhere.
QVector<SourceSpec> Sources(const QStringList& files, SourceSpec (*make)(const QString&))
{
    QVector<SourceSpec> sources;
    for (const QString& file : files)
        sources.append(make(QFileInfo(file).absoluteFilePath()));
    return sources;
}

} // namespace

bool ParseOptions(const QStringList& arguments, ClientOptions& options, QString& error)
{
    QCommandLineParser parser;
    AddOptions(parser);
    if (!parser.parse(arguments)) {
        error = parser.errorText();
        return false;
    }
    // The command line is in order; this answers --help, --help-all and --version.
    parser.process(arguments);
    if (!parser.positionalArguments().isEmpty()) {
        error
            = Translated("What does \"%1\" mean? See --help.").arg(parser.positionalArguments().constFirst());
        return false;
    }
    const QString skin = QStringLiteral("skin");
    const QString page = QStringLiteral("page");
    const QString language = QStringLiteral("language");
    if (!IsChoice(parser, skin, SkinNames(), error) || !IsChoice(parser, page, PageNames(), error)
        || !IsChoice(parser, language, Language::Names(), error))
        return false;
    options.skin = parser.value(skin);
    options.page = parser.value(page);
    options.language = parser.value(language);
    options.files = Sources(parser.values(QStringLiteral("video")), &SourceSpec::Video)
        + Sources(parser.values(QStringLiteral("photo")), &SourceSpec::Photo);
    const QStringList photos = parser.values(QStringLiteral("photo"));
    options.photo = photos.isEmpty() ? QString() : QFileInfo(photos.first()).absoluteFilePath();
    options.screenshotFolder = parser.value(QStringLiteral("screenshots"));
    options.layoutFile = parser.value(QStringLiteral("layout"));
    return true;
}

QStringList SkinNames() { return {QStringLiteral("Black"), QStringLiteral("White")}; }

QString UsersSettingsFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation)
        + QLatin1String("/operator-client.ini");
}

QString UsersRecordFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QLatin1String("/person");
}

} // namespace OperatorClient
