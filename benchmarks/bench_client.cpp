// What the example client costs before and while nobody touches it, each in a process of its own: the time
// from main() to its first painted page against that of a bare window, and for each page, after all of them
// have been visited, how often the event loop wakes up in two seconds against one without a widget. The wall
// and the map show moving pictures, for which it must; in a hidden window they must not.

#include "Ratio.h"
#include "WakeUps.h"

#include <gallery/Client.h>

#include <QApplication>
#include <QProcess>
#include <QTemporaryDir>

namespace {

using namespace OperatorClient;

constexpr int Rounds = 9;

/// Runs the event loop until the window has painted itself.
class FirstPaint : public QObject
{
public:
    explicit FirstPaint(QWidget& window) { window.installEventFilter(this); }

    void Wait()
    {
        m_painted.exec();
        QCoreApplication::processEvents(); // the widgets in the window, too
        QGuiApplication::sync();
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            m_painted.quit();
        return QObject::eventFilter(watched, event);
    }

private:
    QEventLoop m_painted;
};

ClientOptions Options(const QTemporaryDir& folder, const QString& page)
{
    ClientOptions options;
    options.layoutFile = folder.filePath(QStringLiteral("settings.ini"));
    options.page = page;
    options.language = QStringLiteral("en");
    return options;
}

/// Prints the milliseconds since @p sinceMain when the page, or for "bare" a window without anything, is
/// painted.
void ShowFirst(const QString& page, const QElapsedTimer& sinceMain)
{
    const auto print = [&](QWidget& window) {
        FirstPaint(window).Wait();
        std::printf("%f\n", static_cast<double>(sinceMain.nsecsElapsed()) / 1e6);
    };
    if (page == QLatin1String("bare")) {
        QMainWindow window;
        window.resize(1440, 900);
        window.show();
        print(window);
    } else {
        const QTemporaryDir folder;
        Client client(Options(folder, page));
        client.Show();
        print(client.Window());
    }
}

/// @return the milliseconds that a process of this program prints; negative when it fails
double TimeToShow(const QString& page)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {page});
    bool isNumber = false;
    const bool ended = process.waitForFinished(-1) && process.exitCode() == 0;
    const double time = process.readAllStandardOutput().trimmed().toDouble(&isNumber);
    return ended && isNumber ? time : -1.0;
}

bool PrintFirstPaint(const QString& page)
{
    std::vector<double> ours;
    std::vector<double> theirs;
    for (int i = 0; i < Rounds; ++i) {
        ours.push_back(TimeToShow(page));
        theirs.push_back(TimeToShow(QStringLiteral("bare")));
    }
    Ratio::PrintMedians(("client-first-paint/" + page.toLatin1()).constData(), ours, theirs);
    return *std::min_element(ours.begin(), ours.end()) > 0
        && *std::min_element(theirs.begin(), theirs.end()) > 0;
}

void PrintWakeUps()
{
    const int alone = WakeUps::Count();
    const auto print = [alone](const QString& name) {
        Ratio::PrintRatio(
            ("client-wake-ups/" + name.toLatin1()).constData(), WakeUps::Count(), alone, "wake-ups");
    };
    const QTemporaryDir folder;
    Client client(Options(folder, QString()));
    client.Show();
    const QStringList pages = PageNames();
    for (const QString& page : pages) {
        client.Window().ShowPage(page);
        WakeUps::RunEvents(WakeUps::Settling);
    }
    for (const QString& page : pages) {
        client.Window().ShowPage(page);
        print(page);
    }
    client.Window().ShowPage(QStringLiteral("wall"));
    client.Window().hide(); // minimised, a window without a display goes on being painted
    print(QStringLiteral("hidden"));
}

} // namespace

int main(int argc, char** argv)
{
    QElapsedTimer sinceMain;
    sinceMain.start();
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts); // for the browser engine
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() > 1) {
        ShowFirst(arguments.at(1), sinceMain);
        return 0;
    }
    const bool wall = PrintFirstPaint(QStringLiteral("wall"));
    const bool device = PrintFirstPaint(QStringLiteral("device"));
    PrintWakeUps();
    return wall && device ? 0 : 1;
}
