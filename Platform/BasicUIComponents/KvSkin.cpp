#include <Platform/BasicUIComponents/KvSkin.h>

#include <Platform/BasicUIComponents/KvSkinNotifier.h>

namespace KvGUI {

namespace {

QString& AppName()
{
    static QString name = QStringLiteral("Corvale");
    return name;
}

QString& SkinVersion()
{
    static QString version = QStringLiteral("Black");
    return version;
}

void Change(QString& value, const QString& newValue)
{
    if (value == newValue)
        return;
    value = newValue;
    emit KvSkinNotifier::Instance()->SignalSkinChanged();
}

} // namespace

QString GetAppName() { return AppName(); }

QString GetSkinVersion() { return SkinVersion(); }

void SetAppName(const QString& name) { Change(AppName(), name); }

void SetSkinVersion(const QString& version) { Change(SkinVersion(), version); }

} // namespace KvGUI
