#pragma once

#include <QLoggingCategory>

namespace WebEngine {

/// "uicomponents.webengine": warnings are on, what pages write to their console comes as debug messages.
Q_DECLARE_LOGGING_CATEGORY(EngineLog)

/// Texts of pages are cut to this many characters in the log.
constexpr int LongestLogged = 200;

} // namespace WebEngine
