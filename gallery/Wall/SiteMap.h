#pragma once

#include <QString>

namespace OperatorClient {

/// Draws the plan of a site, with its cameras, into the picture file @p path.
/// @return whether the file was written
bool SaveSiteMap(const QString& path);

} // namespace OperatorClient
