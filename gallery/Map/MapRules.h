#pragma once

#include <gallery/Wall/WallLayout.h>

#include <QList>
#include <QString>

namespace OperatorClient {

/// A window of a wall, by its indices; screen is -1 when there is none.
struct WallPlace
{
    int screen = -1;
    int window = -1;
};

/// The window that shows @p camera, the first of several.
WallPlace PlaceOfCamera(const WallLayout& wall, int camera);

/// The first quarter of a screen that no window covers in part or whole, screen by screen; the screen is -1
/// when there is none.
struct FreeQuarter
{
    int screen = -1;
    KvGUI::StructScaleRect rect;
};
FreeQuarter FirstFreeQuarter(const WallLayout& wall);

/// The script that tells the plan which cameras the wall shows, and which of them are selected.
/// @param selected windows of @p screen
QString WallScript(const WallLayout& wall, int screen, const QList<int>& selected);

} // namespace OperatorClient
