#pragma once

#include <gallery/Wall/WallWidget.h>

#include <QMetaType>
#include <QString>

namespace OperatorClient {

class CameraTile;

/// What is kept with each screen of the wall, as its user data.
struct ScreenNote
{
    QString text;
    bool overlays = false;
    bool baseMap = false;
    bool positioning = false; ///< drags over its windows draw 3D frames
    bool cellBound = false; ///< drags end on its cells; in the normal family
};

/// What is kept with each window of the wall, as its user data.
struct WindowNote
{
    QString source; ///< as text
    bool titled = false;
    int volume = 100; ///< per cent of the wall's
};

/// @name Indices that name nothing give an empty note, or null
/// @{
ScreenNote NoteOf(const WallWidget& wall, int screen);
WindowNote NoteOf(const WallWidget& wall, int screen, int window);
CameraTile* TileOf(const WallWidget& wall, int screen, int window);
/// @}

} // namespace OperatorClient

Q_DECLARE_METATYPE(OperatorClient::ScreenNote)
Q_DECLARE_METATYPE(OperatorClient::WindowNote)
