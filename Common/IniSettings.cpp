#include <Common/IniSettings.h>

#include <Common/CommonFun.h>
#include <Common/DiskRoom.h>
#include <Common/IniCodec.h>
#include <Common/IniScreen.h>
#include <Common/OrphanedLock.h>

#include <QDataStream>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

namespace {

QString IniKey(const QString& section, const QString& key)
{
    return QStringLiteral("%1/%2").arg(section, key);
}

/// QSettings drops leading, trailing and doubled "/"; what is nothing else names no value.
bool NamesAValue(const QString& iniKey) { return iniKey.count(QLatin1Char('/')) < iniKey.size(); }

bool IsSafeFile(const QString& path)
{
    QFile file(path);
    return path.isEmpty() || !file.open(QIODevice::ReadOnly) || IsSafeIniText(file.readAll());
}

/// Puts a file that cannot be read without harm away under another name, and its backup, if there is one, to
/// its place. False when that is impossible.
bool SetAsideDamaged(const QString& path)
{
    if (IsSafeFile(path))
        return true;
    const QString aside = path + QLatin1String(".damaged");
    QFile::remove(aside);
    if (!QFile::rename(path, aside))
        return false;
    UICommonMdl::CommonFun::GetHasBackupConfigFileName(path);
    return IsSafeFile(path) || QFile::remove(path);
}

qint64 StreamedSize(const QVariant& value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << value;
    return bytes.size();
}

/// Whether the file can be written again with so many bytes more. On a full disk QSettings does not notice
/// that only a part of it was written, and puts that part in the place of the file.
bool CanGrow(const QSettings& settings, qint64 bytes)
{
    constexpr int LongestEscape = 6; // of one byte
    constexpr qint64 OneBlock = 4096;
    const QFileInfo file(settings.fileName());
    return HasRoomFor(file.absolutePath(), 2 * file.size() + LongestEscape * bytes + OneBlock);
}

void Save(QSettings& settings)
{
    RemoveOrphanedLock(settings.fileName());
    settings.sync();
}

} // namespace

std::unique_ptr<QSettings> OpenIniFile(const QString& path)
{
    if (!SetAsideDamaged(path))
        return nullptr;
    auto settings = std::make_unique<QSettings>(path, QSettings::IniFormat);
    settings->setIniCodec(IniCodec());
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
    if (settings == nullptr || !NamesAValue(iniKey) || !IsSafeIniValue(value))
        return;
    if (!CanGrow(*settings, iniKey.size() + StreamedSize(value)))
        return;
    settings->setValue(iniKey, value);
    Save(*settings);
}

void RemoveIniValue(QSettings* settings, const QString& section, const QString& key)
{
    const QString iniKey = IniKey(section, key);
    if (settings == nullptr || !NamesAValue(iniKey) || !CanGrow(*settings, 0))
        return;
    settings->remove(iniKey);
    Save(*settings);
}
