#pragma once

#include <UI/TVWall/KvTVWallOperateWnd.h>

namespace TestSupport {

/// What a wall gives for a window, and for a screen, that is not there; calls that change nothing then.
void CompareWindowDefaults(UICommonMdl::KvTVWallOperateWnd& wall, int screen, int window);
void CompareScreenDefaults(UICommonMdl::KvTVWallOperateWnd& wall, int screen);

} // namespace TestSupport
