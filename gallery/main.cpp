#include <gallery/Client.h>

#include <QApplication>
#include <QPixmapCache>
#include <cstdio>

namespace {

constexpr int PixmapCacheKilobytes = 128 * 1024;
constexpr int WrongCommandLine = 2;

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts); // for the browser engine
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("operator-client"));
    QCoreApplication::setApplicationVersion(QStringLiteral(OPERATOR_CLIENT_VERSION));
    QPixmapCache::setCacheLimit(PixmapCacheKilobytes);

    OperatorClient::ClientOptions options;
    QString error;
    if (!OperatorClient::ParseOptions(QCoreApplication::arguments(), options, error)) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return WrongCommandLine;
    }
    OperatorClient::Client client(options);
    if (!options.screenshotFolder.isEmpty())
        return client.SaveScreenshots() ? 0 : 1;
    client.Show();
    return QApplication::exec();
}
