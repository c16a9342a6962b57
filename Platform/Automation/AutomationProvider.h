#pragma once

#include <Platform/Automation/AutomationObject.h>
#include <Platform/Automation/HostedControl.h>

#include <QtPlugin>

namespace Automation {

/// The interface of a plugin that brings automation objects or hosted controls: an office suite, a
/// browser engine.
///
/// A plugin is a QObject with Q_PLUGIN_METADATA(IID UICOMPONENTS_AUTOMATION_PROVIDER FILE "x.json") and
/// Q_INTERFACES(Automation::AutomationProvider). Its JSON file tells what it offers, so that it is loaded
/// only when that is asked for:
/// @code
/// { "objects": ["Excel.Application"], "controls": false }
/// @endcode
/// A plugin that cannot do without a real display names the Qt platforms that it runs on, and is left alone
/// on others: "platforms": ["xcb", "wayland"].
///
/// AutomationRegistry tells where plugins are looked for.
class UICOMPONENTS_EXPORT AutomationProvider
{
public:
    AutomationProvider();
    virtual ~AutomationProvider();
    AutomationProvider(const AutomationProvider&) = delete;
    AutomationProvider& operator=(const AutomationProvider&) = delete;

    /// A new object of the kind @p programId, which is among those in the plugin's "objects"; null when
    /// the program behind it is missing or does not start, and for a plugin without objects.
    virtual std::unique_ptr<AutomationObject> CreateObject(const QString& programId);

    /// A new control in a child widget of @p parent; null when the plugin has none.
    virtual std::unique_ptr<HostedControl> CreateControl(QWidget* parent);
};

} // namespace Automation

/// The interface's identifier. Its number changes with the interface, so that plugins of another one are left
/// alone.
#define UICOMPONENTS_AUTOMATION_PROVIDER "UIComponents.AutomationProvider/1"
Q_DECLARE_INTERFACE(Automation::AutomationProvider, UICOMPONENTS_AUTOMATION_PROVIDER)
