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

    /// The plugins that offer objects of the kind @p programId, loaded; one that does not load is left out.
    std::vector<AutomationProvider*> ForObject(const QString& programId);

    /// The plugins that offer controls, loaded.
    std::vector<AutomationProvider*> ForControls();

private:
    std::vector<AutomationProvider*> Load(const std::function<bool(const QJsonObject& offer)>& wanted);

    std::vector<std::unique_ptr<QPluginLoader>> m_loaders;
};

} // namespace Automation
