#include <Platform/Automation/AutomationRegistry.h>

#include <Platform/Automation/AutomationProvider.h>
#include <Platform/Automation/ProviderPlugins.h>

#include <QHash>

namespace Automation {

namespace {

QHash<QString, AutomationRegistry::ObjectFactory>& ObjectFactories()
{
    static QHash<QString, AutomationRegistry::ObjectFactory> factories;
    return factories;
}

AutomationRegistry::ControlFactory& OwnControlFactory()
{
    static AutomationRegistry::ControlFactory factory;
    return factory;
}

} // namespace

void AutomationRegistry::SetObjectFactory(const QString& programId, const ObjectFactory& factory)
{
    if (factory)
        ObjectFactories().insert(programId, factory);
    else
        ObjectFactories().remove(programId);
}

void AutomationRegistry::SetControlFactory(const ControlFactory& factory) { OwnControlFactory() = factory; }

std::unique_ptr<AutomationObject> AutomationRegistry::CreateObject(const QString& programId)
{
    // A copy: the factory may set another one.
    if (const ObjectFactory factory = ObjectFactories().value(programId))
        return factory();
    std::unique_ptr<AutomationObject> object;
    ProviderPlugins::Instance().AskForObject(programId, [&](AutomationProvider& provider) {
        object = provider.CreateObject(programId);
        return object != nullptr;
    });
    return object;
}

std::unique_ptr<HostedControl> AutomationRegistry::CreateControl(QWidget* parent)
{
    if (const ControlFactory factory = OwnControlFactory())
        return factory(parent);
    std::unique_ptr<HostedControl> control;
    ProviderPlugins::Instance().AskForControl([&](AutomationProvider& provider) {
        control = provider.CreateControl(parent);
        return control != nullptr;
    });
    return control;
}

} // namespace Automation
