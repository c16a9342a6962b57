// How often an event loop wakes up in two seconds beside walls on which nothing moves, or that nobody sees,
// against an event loop without a widget.

#include "Ratio.h"
#include "WakeUps.h"
#include "Walls.h"

#include <UI/TVWall/KvTVWallDisplayWnd.h>
#include <UI/TVWall/KvTVWallNormalWnd.h>

#include <QApplication>

namespace {

using namespace Walls;

void PrintWakeUps(const QByteArray& name, int alone)
{
    Ratio::PrintRatio(("wake-ups/" + name).constData(), WakeUps::Count(), alone, "wake-ups");
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
    const int alone = WakeUps::Count();
    PrintWall<UICommonMdl::KvTVWallDisplayWnd>("", alone);
    PrintWall<UICommonMdl::KvTVWallNormalWnd>("normal-", alone);
    return 0;
}
