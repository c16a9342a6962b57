// What each of 900 windows takes of the heap, shown and painted, against the widgets of the display wall in
// bare MDI areas.

#include "Ratio.h"
#include "Walls.h"

#include <UI/TVWall/KvTVWallDisplayWnd.h>
#include <UI/TVWall/KvTVWallNormalWnd.h>

#include <QApplication>
#include <malloc.h>

namespace {

using namespace Walls;

constexpr int Windows = FullWall.screens * FullWall.screens * FullWall.windows * FullWall.windows;

double HeapKilobytes()
{
    const auto heap = mallinfo2();
    return static_cast<double>(heap.uordblks + heap.hblkhd) / 1024;
}

/// Kilobytes of each window that @p open opens and paints.
template <typename Open>
double OfEachWindow(Open open)
{
    DeliverAll();
    const double before = HeapKilobytes();
    open();
    DeliverAll();
    return (HeapKilobytes() - before) / Windows;
}

template <typename Wall>
double OfWall()
{
    const auto wall = MakeWall<Wall>();
    return OfEachWindow([&wall] { OpenWindows(*wall); });
}

double OfBareWall()
{
    const auto bare = MakeBareWall(WidgetSheet());
    return OfEachWindow([&bare] { bare->OpenWindows(); });
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    OfBareWall(); // what stays of the first wall, such as fonts and pictures, is nobody's
    OfWall<UICommonMdl::KvTVWallDisplayWnd>();
    OfWall<UICommonMdl::KvTVWallNormalWnd>();
    const double bare = OfBareWall();
    Ratio::PrintRatio("memory/window", OfWall<UICommonMdl::KvTVWallDisplayWnd>(), bare, "KB");
    Ratio::PrintRatio("memory/normal-window", OfWall<UICommonMdl::KvTVWallNormalWnd>(), bare, "KB");
    return 0;
}
