#pragma once

#include <UI/TVWall/KvTVWallOperateWnd.h>

namespace OperatorClient {

/// The wall that the wall page shows.
using WallWidget = UICommonMdl::KvTVWallOperateWnd;

} // namespace OperatorClient
