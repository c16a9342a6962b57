#pragma once

#include <Platform/BasicUIComponents/StructOSDInfo.h>

#include <vector>

namespace OperatorClient {

/// Texts to lay over a screen: one that stands still at the top and one that rolls along the bottom.
std::vector<KvGUI::StructOSDInfo> SampleOverlays();

} // namespace OperatorClient
