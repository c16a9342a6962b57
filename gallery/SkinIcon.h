#pragma once

#include <QIcon>

namespace OperatorClient {

/// The tool bar icon @p name of the present skin.
QIcon SkinIcon(const QString& name);

} // namespace OperatorClient
