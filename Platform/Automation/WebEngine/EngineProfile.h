#pragma once

class QWebEngineProfile;

namespace WebEngine {

/// The profile of all pages: cookies and cache in memory only, nothing on disk. The first call prepares the
/// engine for this machine; the profile goes with the application, shortly before the engine.
QWebEngineProfile* Profile();

} // namespace WebEngine
