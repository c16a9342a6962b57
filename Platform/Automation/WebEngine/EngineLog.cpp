#include <Platform/Automation/WebEngine/EngineLog.h>

namespace WebEngine {

Q_LOGGING_CATEGORY(EngineLog, "uicomponents.webengine", QtInfoMsg)

} // namespace WebEngine
