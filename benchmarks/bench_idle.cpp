// How often an event loop wakes up in two seconds beside walls on which nothing moves, or that nobody sees,
// against an event loop without a widget.

#include "Ratio.h"
#include "Walls.h"

#include <UI/TVWall/KvTVWallDisplayWnd.h>
#include <UI/TVWall/KvTVWallNormalWnd.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QTimer>

namespace {

using namespace Walls;

constexpr int Watched = 2000; // milliseconds
constexpr int Settling = 300; // until what a change has brought with it is done

void RunEvents(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

/// The one that ends the watching is among them.
int WakeUps()
{
    RunEvents(Settling);
    int count = 0;
    const auto counting = QObject::connect(
        QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, [&count] { ++count; });
    RunEvents(Watched);
    QObject::disconnect(counting);
    return count;
}

void PrintWakeUps(const QByteArray& name, int alone)
{
    Ratio::PrintRatio(("wake-ups/" + name).constData(), WakeUps(), alone, "wake-ups");
}

KvGUI::StructOSDInfo Rolling()
{
    KvGUI::StructOSDInfo info;
    info.strText = "rolling text";
    info.bRoll = true;
    info.iRight = 4096;
    info.iBottom = 1024;
    return info;
}

template <typename Wall>
void PrintWall(const QByteArray& family, int alone)
{
    const auto wall = MakeWall<Wall>();
    OpenWindows(*wall);
    DeliverAll();
    PrintWakeUps(family + "shown", alone);
    wall->showMinimized();
    PrintWakeUps(family + "minimised", alone);
    wall->hide();
    PrintWakeUps(family + "hidden", alone);
    std::vector<KvGUI::StructOSDInfo> infos{Rolling()};
    for (int s = 0; s < wall->GetScreenCount(); ++s)
        wall->SetScreenOSDInfo(s, infos);
    PrintWakeUps(family + "hidden-rolling-texts", alone);
    wall->showNormal();
    QWidget cover(wall.get());
    cover.setAutoFillBackground(true);
    cover.resize(wall->size());
    cover.show();
    PrintWakeUps(family + "covered-rolling-texts", alone);
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const int alone = WakeUps();
    PrintWall<UICommonMdl::KvTVWallDisplayWnd>("", alone);
    PrintWall<UICommonMdl::KvTVWallNormalWnd>("normal-", alone);
    return 0;
}
