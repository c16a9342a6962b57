#pragma once

#include <QIcon>

namespace OperatorClient {

/// The icon @p name of the present skin, in the folder "ToolBar" or "Pages". It has the same colours when
/// its item is selected, and is faint when disabled. Without such a file it is empty.
QIcon SkinIcon(const QString& folder, const QString& name);

} // namespace OperatorClient
