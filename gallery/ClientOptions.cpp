#include <gallery/ClientOptions.h>

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

QCommandLineOption TextOption(const char* name, const char* description, const char* value)
{
    return QCommandLineOption(QString::fromLatin1(name), Translated(description), QString::fromLatin1(value));
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
             "screenshots", "Save pictures of all pages in both skins to the folder, and end.", "folder"),
         TextOption("layout", "Keep the wall in this file instead of the user's own.", "file"),
         TextOption("skin", "Start in this skin: Black or White.", "name"),
         TextOption("language", "Start in this language: en or zh_CN.", "name")});
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
    options.skin = parser.value(QStringLiteral("skin"));
    const QStringList skins{QString(), QStringLiteral("Black"), QStringLiteral("White")};
    if (!skins.contains(options.skin)) {
        error = Translated("There is no skin \"%1\": choose Black or White.").arg(options.skin);
        return false;
    }
    options.language = parser.value(QStringLiteral("language"));
    if (!options.language.isEmpty() && !Language::Names().contains(options.language)) {
        error = Translated("There is no language \"%1\": choose en or zh_CN.").arg(options.language);
        return false;
    }
    options.files = Sources(parser.values(QStringLiteral("video")), &SourceSpec::Video)
        + Sources(parser.values(QStringLiteral("photo")), &SourceSpec::Photo);
    const QStringList photos = parser.values(QStringLiteral("photo"));
    options.photo = photos.isEmpty() ? QString() : QFileInfo(photos.first()).absoluteFilePath();
    options.screenshotFolder = parser.value(QStringLiteral("screenshots"));
    options.layoutFile = parser.value(QStringLiteral("layout"));
    return true;
}

QString UsersLayoutFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation)
        + QLatin1String("/operator-client.ini");
}

QString UsersRecordFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QLatin1String("/person");
}

} // namespace OperatorClient
