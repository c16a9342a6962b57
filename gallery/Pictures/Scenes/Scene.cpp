#include <gallery/Pictures/Scenes/Scene.h>

#include <iterator>

namespace OperatorClient {

namespace {

constexpr Scene (*Scenes[])()
    = {&CarParkScene, &EntranceScene, &JunctionScene, &CorridorScene, &WarehouseScene, &PerimeterScene};

} // namespace

int SceneCount() { return int(std::size(Scenes)); }

Scene SceneOfCamera(int number) { return Scenes[(number - 1) % SceneCount()](); }

} // namespace OperatorClient
