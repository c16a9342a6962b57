#include <Platform/Automation/ProviderPlugins.h>

#include <Platform/Automation/AutomationProvider.h>

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QLibrary>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#else
#include <dlfcn.h>
#endif

namespace Automation {

namespace {

/// The folder of the binary that this code is part of; empty when the system does not tell.
QString OwnFolder()
{
    static const char anchor = 0; // an address inside this binary
#ifdef Q_OS_WIN
    HMODULE module = nullptr;
    wchar_t path[MAX_PATH] = {};
    const DWORD flags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    if (!GetModuleHandleExW(flags, reinterpret_cast<LPCWSTR>(&anchor), &module)
        || GetModuleFileNameW(module, path, MAX_PATH) == 0)
        return QString();
    return QFileInfo(QString::fromWCharArray(path)).absolutePath();
#else
    Dl_info info;
    if (dladdr(&anchor, &info) == 0 || !info.dli_fname)
        return QString();
    // The library's real place: its folder of plugins is not beside a link to it.
    return QFileInfo(QFileInfo(QFile::decodeName(info.dli_fname)).canonicalFilePath()).absolutePath();
#endif
}

QStringList PluginFolders()
{
    QStringList folders
        = qEnvironmentVariable("UICOMPONENTS_PLUGIN_PATH").split(QDir::listSeparator(), Qt::SkipEmptyParts);
    const QString own = OwnFolder();
    if (!own.isEmpty())
        folders << own + QLatin1String("/UIComponents/automation");
    return folders;
}

QJsonObject Offer(const QPluginLoader& loader)
{
    return loader.metaData().value(QLatin1String("MetaData")).toObject();
}

/// Whether the plugin can run on the present window system; one that names none runs everywhere.
bool RunsHere(const QJsonObject& offer)
{
    const QJsonArray platforms = offer.value(QLatin1String("platforms")).toArray();
    // "wayland-egl" is a kind of "wayland".
    const QString present = QGuiApplication::platformName().section(QLatin1Char('-'), 0, 0);
    return platforms.isEmpty() || platforms.contains(present);
}

bool IsProvider(const QPluginLoader& loader)
{
    return loader.metaData().value(QLatin1String("IID")).toString()
        == QLatin1String(UICOMPONENTS_AUTOMATION_PROVIDER);
}

} // namespace

ProviderPlugins& ProviderPlugins::Instance()
{
    static ProviderPlugins plugins(PluginFolders());
    return plugins;
}

ProviderPlugins::ProviderPlugins(const QStringList& folders)
{
    for (const QString& folder : folders) {
        const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files, QDir::Name);
        for (const QFileInfo& file : files) {
            if (!QLibrary::isLibrary(file.fileName()))
                continue;
            auto loader = std::make_unique<QPluginLoader>(file.absoluteFilePath());
            if (IsProvider(*loader))
                m_loaders.push_back(std::move(loader));
        }
    }
}

void ProviderPlugins::Ask(const Wish& wanted, const Answer& delivers)
{
    for (const auto& loader : m_loaders) {
        const QJsonObject offer = Offer(*loader);
        if (!wanted(offer) || !RunsHere(offer))
            continue;
        auto* provider = qobject_cast<AutomationProvider*>(loader->instance());
        if (provider && delivers(*provider))
            return;
    }
}

void ProviderPlugins::AskForObject(const QString& programId, const Answer& delivers)
{
    Ask(
        [&programId](const QJsonObject& offer) {
            return offer.value(QLatin1String("objects")).toArray().contains(programId);
        },
        delivers);
}

void ProviderPlugins::AskForControl(const Answer& delivers)
{
    Ask([](const QJsonObject& offer) { return offer.value(QLatin1String("controls")).toBool(); }, delivers);
}

} // namespace Automation
