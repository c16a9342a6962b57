#pragma once

#include <QSize>

class QPainter;

namespace OperatorClient {

/// A drawn place for a camera to look at. Both functions paint in the coordinates of SceneSize.
struct Scene
{
    const char* name; ///< in English, translated by the context "OperatorClient::Scene"
    void (*paintStill)(QPainter&); ///< everything that does not move
    void (*paintMoving)(QPainter&, double seconds); ///< what moves, at this time of the scene
};

constexpr QSize SceneSize(1600, 900);

int SceneCount(); ///< how many different places there are
Scene SceneOfCamera(int number); ///< the place of camera 1, 2, ...; they repeat

Scene CarParkScene();
Scene EntranceScene();
Scene CorridorScene();
Scene JunctionScene();
Scene WarehouseScene();
Scene PerimeterScene();

} // namespace OperatorClient
