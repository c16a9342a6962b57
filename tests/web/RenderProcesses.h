#pragma once

#include <QVector>

/// The process ids of the browser engine's render processes that this process has started.
QVector<int> RenderProcesses();
