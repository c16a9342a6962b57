#pragma once

#include <QString>
#include <QVariant>
#include <UIComponentsExport.h>
#include <memory>

namespace Automation {

/// An object of another program, reached by the names of its members: a spreadsheet application, one of
/// its workbooks, a range of cells.
///
/// Members are named by the literal text that the program resolves, with or without a signature:
/// "Quit(void)", "Range(const QString&)", "DisplayAlerts". Nothing throws and nothing waits for ever:
/// what cannot be done gives an invalid variant, no sub-object or no effect. All calls are made on the GUI
/// thread.
///
/// @code
/// auto application = Automation::AutomationRegistry::CreateObject(QStringLiteral("Excel.Application"));
/// if (application && !application->isNull()) {
///     const QString version = application->property(QStringLiteral("Version")).toString();
///     application->dynamicCall(QStringLiteral("Quit(void)"));
/// }
/// @endcode
class UICOMPONENTS_EXPORT AutomationObject
{
public:
    AutomationObject();
    virtual ~AutomationObject();
    AutomationObject(const AutomationObject&) = delete;
    AutomationObject& operator=(const AutomationObject&) = delete;

    /// True when the object is bound to nothing, or to a program that has ended or no longer answers.
    virtual bool isNull() const = 0;

    /// Calls @p member with @p arguments.
    /// @return the member's result; invalid when it has none, or when the call failed
    virtual QVariant dynamicCall(const QString& member, const QVariantList& arguments = {}) = 0;

    /// The object that @p member gives for @p arguments, as a value of its own; null when there is none.
    /// It is bound to nothing once the program that it belongs to has quit.
    virtual std::unique_ptr<AutomationObject>
    querySubObject(const QString& member, const QVariantList& arguments = {}) = 0;

    /// The value of the property @p name; invalid when it cannot be read.
    virtual QVariant property(const QString& name) const = 0;

    /// Sets the property @p name.
    /// @return false when the object has no such property or refused the value
    virtual bool setProperty(const QString& name, const QVariant& value) = 0;
};

} // namespace Automation
