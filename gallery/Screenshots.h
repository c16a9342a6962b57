#pragma once

#include <QString>

namespace OperatorClient {

class MainWindow;
class SourcePool;

/// Saves a picture of each state of a page in both skins, such as "wall-black.png" and
/// "wall-white-selection.png". Waits a moment for videos to begin.
/// @param page its name; empty: all of them
/// @param folder is created when it does not exist
/// @return false, with a message on the error output, when a picture cannot be saved
bool SaveScreenshots(MainWindow& window, const SourcePool& pool, const QString& folder, const QString& page);

} // namespace OperatorClient
