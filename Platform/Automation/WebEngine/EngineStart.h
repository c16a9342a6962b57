#pragma once

namespace WebEngine {

/// Adapts the engine to this machine, by the environment that it reads at its start: where its sandbox
/// cannot work (run as root, or in a container without user namespaces) it is switched off, with a warning
/// in the log; where the shared memory is small, temporary files take its place.
void PrepareEngine();

} // namespace WebEngine
