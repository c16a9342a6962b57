#include <Common/IniSettings.h>

#include <QStringList>

namespace {

QString IniKey(const QString& section, const QString& key)
{
    return QStringLiteral("%1/%2").arg(section, key);
}

/// QSettings drops leading, trailing and doubled "/"; what is nothing else names no value.
bool NamesAValue(const QString& iniKey) { return iniKey.count(QLatin1Char('/')) < iniKey.size(); }

} // namespace

std::unique_ptr<QSettings> OpenIniFile(const QString& path)
{
    auto settings = std::make_unique<QSettings>(path, QSettings::IniFormat);
    settings->setIniCodec("UTF-8");
    return settings;
}

QVariant ReadIniValue(
    const QSettings* settings, const QString& section, const QString& key, const QVariant& defaultValue)
{
    const QString iniKey = IniKey(section, key);
    QVariant value = defaultValue;
    if (settings != nullptr && NamesAValue(iniKey))
        value = settings->value(iniKey, defaultValue);
    if (value.type() == QVariant::StringList)
        return value.toStringList().join(QLatin1Char(','));
    return value;
}

void WriteIniValue(QSettings* settings, const QString& section, const QString& key, const QVariant& value)
{
    const QString iniKey = IniKey(section, key);
    if (settings == nullptr || !NamesAValue(iniKey))
        return;
    settings->setValue(iniKey, value);
    settings->sync();
}

void RemoveIniValue(QSettings* settings, const QString& section, const QString& key)
{
    const QString iniKey = IniKey(section, key);
    if (settings == nullptr || !NamesAValue(iniKey))
        return;
    settings->remove(iniKey);
    settings->sync();
}
