#pragma once

#include <QString>
#include <UIComponentsExport.h>

namespace KvGUI {

/// The skin that widgets take their style sheets and pictures from: an application name, which is the
/// first folder of the skin tree, and a skin version, which is the look ("Black", "White").
///
/// Set both before the first widget is made. A later change is allowed: KvSkinNotifier reports it, and
/// widgets styled through CommonFun::SetStyleSheet are styled again.

/// Name of the application whose skin is used; "Corvale" until it is set.
UICOMPONENTS_EXPORT QString GetAppName();

/// Version of the skin in use; "Black" until it is set.
UICOMPONENTS_EXPORT QString GetSkinVersion();

/// Changes the application name. Setting the present name does nothing.
UICOMPONENTS_EXPORT void SetAppName(const QString& name);

/// Changes the skin version. Setting the present version does nothing.
UICOMPONENTS_EXPORT void SetSkinVersion(const QString& version);

} // namespace KvGUI
