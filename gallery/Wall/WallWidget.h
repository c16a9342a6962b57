#pragma once

#include <UI/TVWall/KvTVWallDisplayWnd.h>

namespace OperatorClient {

/// The wall that the wall page shows. Named here only, so that another wall with the same operations can
/// take its place.
using WallWidget = UICommonMdl::KvTVWallDisplayWnd;

} // namespace OperatorClient
