#pragma once

#include <QPluginLoader>
#include <QStringList>
#include <functional>
#include <memory>
#include <vector>

namespace Automation {

class AutomationProvider;

/// The provider plugins of this process, in the order in which they are asked. What a plugin offers is
/// read without loading it; it is loaded when that is asked for, and stays.
class ProviderPlugins
{
public:
    /// Those of the folders that AutomationRegistry names, looked up at the first call.
    static ProviderPlugins& Instance();

    /// Those of @p folders. Files that are no provider plugins are passed over.
    explicit ProviderPlugins(const QStringList& folders);

    /// Takes what the provider makes. @return whether it made something, so that no other is asked
    using Answer = std::function<bool(AutomationProvider& provider)>;

    /// Asks the plugins that offer objects of the kind @p programId, one after the other. One that does
    /// not load is passed over.
    void AskForObject(const QString& programId, const Answer& delivers);

    /// The same for the plugins that offer controls.
    void AskForControl(const Answer& delivers);

private:
    using Wish = std::function<bool(const QJsonObject& offer)>;

    void Ask(const Wish& wanted, const Answer& delivers);

    std::vector<std::unique_ptr<QPluginLoader>> m_loaders;
};

} // namespace Automation
