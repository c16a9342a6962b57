#include <gallery/ClientOptions.h>

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

} // namespace

bool ParseOptions(const QStringList& arguments, ClientOptions& options, QString& error)
{
    const QCommandLineOption video(
        QStringLiteral("video"), Translated("Show the video file in a window."), QStringLiteral("file"));
    const QCommandLineOption photo(
        QStringLiteral("photo"), Translated("Show the picture file in a window."), QStringLiteral("file"));
    const QCommandLineOption screenshots(
        QStringLiteral("screenshots"),
        Translated("Save pictures of all pages in both skins to the folder, and end."),
        QStringLiteral("folder"));
    const QCommandLineOption layout(
        QStringLiteral("layout"), Translated("Keep the wall in this file instead of the user's own."),
        QStringLiteral("file"));
    const QCommandLineOption skin(
        QStringLiteral("skin"), Translated("Start in this skin: Black or White."), QStringLiteral("name"));
    QCommandLineParser parser;
    parser.setApplicationDescription(Translated("An example of an operator's client for a video wall."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({video, photo, screenshots, layout, skin});
    if (!parser.parse(arguments)) {
        error = parser.errorText();
        return false;
    }
    if (parser.isSet(QStringLiteral("help")))
        parser.showHelp();
    if (parser.isSet(QStringLiteral("version")))
        parser.showVersion();
    options.skin = parser.value(skin);
    if (!options.skin.isEmpty() && options.skin != QLatin1String("Black")
        && options.skin != QLatin1String("White")) {
        error = Translated("There is no skin \"%1\": choose Black or White.").arg(options.skin);
        return false;
    }
    // Stored with the wall, so a name must mean the same file when the program starts elsewhere.
    for (const QString& file : parser.values(video))
        options.files.append(SourceSpec::Video(QFileInfo(file).absoluteFilePath()));
    for (const QString& file : parser.values(photo))
        options.files.append(SourceSpec::Photo(QFileInfo(file).absoluteFilePath()));
    options.screenshotFolder = parser.value(screenshots);
    options.layoutFile = parser.value(layout);
    return true;
}

QString UsersLayoutFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation)
        + QLatin1String("/operator-client.ini");
}

} // namespace OperatorClient
