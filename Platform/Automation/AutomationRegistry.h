#pragma once

#include <Platform/Automation/AutomationObject.h>
#include <Platform/Automation/HostedControl.h>

#include <functional>

namespace Automation {

/// Makes automation objects and hosted controls by name.
///
/// They come from the factories that the application has set, and otherwise from provider plugins (see
/// AutomationProvider). Plugins are looked for when something is asked for the first time: in the folders
/// of the environment variable UICOMPONENTS_PLUGIN_PATH, in their order, and then in the folder
/// "UIComponents/automation" beside this library. Of several that offer the same, the first that can
/// deliver is taken. All functions are for the GUI thread.
class UICOMPONENTS_EXPORT AutomationRegistry
{
public:
    /// Makes one object of its kind; null when it cannot.
    using ObjectFactory = std::function<std::unique_ptr<AutomationObject>()>;
    /// Makes one control in a child widget of @p parent; null when it cannot.
    using ControlFactory = std::function<std::unique_ptr<HostedControl>(QWidget* parent)>;

    AutomationRegistry() = delete;

    /// From now on @p factory alone makes the objects of the kind @p programId, also when it returns null.
    /// An empty factory gives them back to the plugins.
    static void SetObjectFactory(const QString& programId, const ObjectFactory& factory);

    /// From now on @p factory alone makes the hosted controls, also when it returns null. An empty
    /// factory gives them back to the plugins.
    static void SetControlFactory(const ControlFactory& factory);

    /// A new object of the kind @p programId, such as "Excel.Application"; null when nothing offers it.
    static std::unique_ptr<AutomationObject> CreateObject(const QString& programId);

    /// A new control, still bound to nothing, in a child widget of @p parent; null when nothing offers
    /// one.
    static std::unique_ptr<HostedControl> CreateControl(QWidget* parent);
};

} // namespace Automation
