// The time from main() to the first painted wall of 16 screens and 64 windows, each in a process of its own,
// against the widgets of the display wall in bare MDI areas.

#include "Ratio.h"
#include "Walls.h"

#include <UI/TVWall/KvTVWallDisplayWnd.h>
#include <UI/TVWall/KvTVWallNormalWnd.h>

#include <QApplication>
#include <QProcess>

namespace {

using namespace Walls;

constexpr Grid FirstWall{4, 2};
constexpr int Rounds = 9;

template <typename Wall>
void ShowWall()
{
    const auto wall = MakeWall<Wall>(FirstWall);
    OpenWindows(*wall, FirstWall);
    DeliverAll();
}

void ShowBareWall()
{
    const auto bare = MakeBareWall(WidgetSheet(), FirstWall);
    bare->OpenWindows();
    DeliverAll();
}

/// Prints the milliseconds since @p sinceMain when the wall of @p kind is painted.
int ShowFirstWall(const QString& kind, const QElapsedTimer& sinceMain)
{
    if (kind == QLatin1String("display"))
        ShowWall<UICommonMdl::KvTVWallDisplayWnd>();
    else if (kind == QLatin1String("normal"))
        ShowWall<UICommonMdl::KvTVWallNormalWnd>();
    else
        ShowBareWall();
    std::printf("%f\n", static_cast<double>(sinceMain.nsecsElapsed()) / 1e6);
    return 0;
}

/// @return the milliseconds that a process of this program prints; negative when it fails
double FirstPaint(const char* kind)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {QLatin1String(kind)});
    bool isNumber = false;
    const bool ended = process.waitForFinished(-1) && process.exitCode() == 0;
    const double time = process.readAllStandardOutput().trimmed().toDouble(&isNumber);
    return ended && isNumber ? time : -1.0;
}

bool PrintFirstPaint(const char* name, const char* kind)
{
    std::vector<double> ours;
    std::vector<double> theirs;
    for (int i = 0; i < Rounds; ++i) {
        ours.push_back(FirstPaint(kind));
        theirs.push_back(FirstPaint("bare"));
    }
    Ratio::PrintMedians(name, ours, theirs);
    return *std::min_element(ours.begin(), ours.end()) > 0
        && *std::min_element(theirs.begin(), theirs.end()) > 0;
}

} // namespace

int main(int argc, char** argv)
{
    QElapsedTimer sinceMain;
    sinceMain.start();
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() > 1)
        return ShowFirstWall(arguments.at(1), sinceMain);
    const bool display = PrintFirstPaint("first-paint/64-windows", "display");
    return PrintFirstPaint("first-paint/normal-64-windows", "normal") && display ? 0 : 1;
}
