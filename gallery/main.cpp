#include <Platform/BasicUIComponents/KvDir.h>
#include <Platform/BasicUIComponents/KvSkin.h>
#include <gallery/Alarms/AlarmPage.h>
#include <gallery/ClientOptions.h>
#include <gallery/Forms/DevicePage.h>
#include <gallery/Language.h>
#include <gallery/MainWindow.h>
#include <gallery/Map/MapPage.h>
#include <gallery/Pairing/PairingPage.h>
#include <gallery/Photo/PhotoPage.h>
#include <gallery/Photo/RecordPage.h>
#include <gallery/Pictures/FrameClock.h>
#include <gallery/Pictures/SourcePool.h>
#include <gallery/Screenshots.h>
#include <gallery/Wall/WallLayoutFile.h>
#include <gallery/Wall/WallPage.h>

#include <QApplication>
#include <QPixmapCache>
#include <QTemporaryDir>
#include <cstdio>

using namespace OperatorClient;

namespace {

// Screenshots show this moment, so that two runs give the same pictures.
const QDateTime PictureMoment(QDate(2026, 3, 14), QTime(10, 24, 36));

constexpr int SampleAlarmCount = 20000;
constexpr int PixmapCacheKilobytes = 128 * 1024;

/// Pictures for a page of a document do not depend on the desktop.
QString FirstLanguage(const ClientOptions& options)
{
    if (!options.language.isEmpty())
        return options.language;
    return options.screenshotFolder.isEmpty() ? Language::OfDesktop() : QStringLiteral("en");
}

int Run(const ClientOptions& options)
{
    Language language;
    language.Set(FirstLanguage(options));
    const bool pictures = !options.screenshotFolder.isEmpty();
    // Pictures for a page of a document show the first wall and leave the user's own alone.
    const QTemporaryDir pictureFolder;
    QString layoutFile = options.layoutFile;
    if (layoutFile.isEmpty())
        layoutFile = pictures ? pictureFolder.filePath(QStringLiteral("layout.ini")) : UsersLayoutFile();

    SourcePool pool;
    FrameClock clock;
    if (pictures) {
        clock.Freeze(PictureMoment);
        // Without a desktop the font is any size.
        QFont font = QApplication::font();
        font.setPixelSize(13);
        QApplication::setFont(font);
    }
    const WallLayoutFile file(layoutFile);
    const WallLayout layout = file.Read().value_or(FirstWall());
    KvGUI::SetSkinVersion(options.skin.isEmpty() ? layout.skin : options.skin);

    MainWindow window;
    window.AddPage(new WallPage(pool, clock, file, layout, options.files, &window));
    window.AddPage(new MapPage(
        pool, clock, KvGUI::KvDir::GetCurrentPath() + QLatin1String("maps/site-map.html"), &window));
    window.AddPage(new PhotoPage(options.photo, &window));
    window.AddPage(new RecordPage(
        pictures ? pictureFolder.filePath(QStringLiteral("person")) : UsersRecordFolder(), &window));
    window.AddPage(new PairingPage(&window));
    window.AddPage(new AlarmPage(SampleAlarms(SampleAlarmCount, clock.Now()), &window));
    window.AddPage(new DevicePage(&window));
    if (pictures)
        return SaveScreenshots(window, pool, options.screenshotFolder) ? 0 : 1;
    window.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts); // for the browser engine
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("operator-client"));
    QCoreApplication::setApplicationVersion(QStringLiteral(OPERATOR_CLIENT_VERSION));
    QPixmapCache::setCacheLimit(PixmapCacheKilobytes);

    ClientOptions options;
    QString error;
    if (!ParseOptions(QCoreApplication::arguments(), options, error)) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return 2;
    }
    return Run(options);
}
