#include <gallery/Wall/WallNotes.h>

#include <gallery/Pictures/CameraTile.h>

namespace OperatorClient {

ScreenNote NoteOf(const WallWidget& wall, int screen)
{
    return wall.GetScreenUserData(screen).value<ScreenNote>();
}

WindowNote NoteOf(const WallWidget& wall, int screen, int window)
{
    return wall.GetWindowUserData(screen, window).value<WindowNote>();
}

CameraTile* TileOf(const WallWidget& wall, int screen, int window)
{
    const QWidget* place = wall.GetWindowWidget(screen, window);
    return place ? place->findChild<CameraTile*>() : nullptr;
}

} // namespace OperatorClient
