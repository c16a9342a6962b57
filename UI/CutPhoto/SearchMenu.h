#pragma once

#include <QString>

namespace UICommonMdl {

/// Style sheet of the search menu in the product @p application: how the chosen item looks. Empty for a
/// product that is not known.
QString SearchMenuStyle(const QString& application);

} // namespace UICommonMdl
