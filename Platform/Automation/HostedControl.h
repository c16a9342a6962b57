#pragma once

#include <QString>
#include <QVariant>
#include <QWidget>
#include <UIComponentsExport.h>

namespace Automation {

/// A control of another program that shows itself inside a widget of this one: a web page, for instance.
///
/// It is made by AutomationRegistry::CreateControl() as a child of the widget that hosts it, and bound to
/// a kind of control by setControl(). Until then, and after clear(), calls do nothing. Deleting it
/// deletes its widget; when the hosting widget is deleted first, the control is left without one. Nothing
/// throws. All calls are made on the GUI thread; the control may call back from other threads.
class UICOMPONENTS_EXPORT HostedControl
{
public:
    HostedControl();
    virtual ~HostedControl();
    HostedControl(const HostedControl&) = delete;
    HostedControl& operator=(const HostedControl&) = delete;

    /// The widget in which the control shows itself, a child of the hosting widget: to be placed and
    /// watched, not to be deleted. Null when it has been deleted with the hosting widget.
    virtual QWidget* widget() const = 0;

    /// Binds the control named by @p classId in place of the present one.
    /// @return false when there is no such control; the present one is gone then, too
    virtual bool setControl(const QString& classId) = 0;

    /// Calls @p member, such as "init(string,long,string,string)", with @p arguments.
    /// @return the member's result; invalid when it has none, or when the call failed
    virtual QVariant dynamicCall(const QString& member, const QVariantList& arguments = {}) = 0;

    /// The native window of the control; 0 when it has none yet.
    virtual WId winId() const = 0;

    /// Shows widget(), which is hidden at first. Nothing when the widget is gone.
    virtual void show() = 0;

    /// Gives up the control that setControl() bound: it calls back no more.
    virtual void clear() = 0;
};

} // namespace Automation
