// A settings file from outside: reading it never fails, and what is written into it is found again.

#include "Expect.h"

#include <Common/CIniFile.h>
#include <Common/CommonFun.h>

#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <cstddef>
#include <cstdint>

namespace {

QString Path()
{
    // In memory: a fuzzer writes thousands of files a second.
    static const QTemporaryDir folder(QStringLiteral("/dev/shm/fuzz_inifile-XXXXXX"));
    return folder.filePath(QStringLiteral("client.ini"));
}

void WriteFile(const QString& path, const std::uint8_t* data, std::size_t size)
{
    QFile file(path);
    Expect(file.open(QIODevice::WriteOnly), "the file can be written");
    file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    // Values can be pictures, which need an application, as every client has one. It is never deleted: the
    // platform leaves a few objects behind when it is.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const auto* application = new QGuiApplication(*argc, *argv);
    return application != nullptr ? 0 : 1;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString section = QStringLiteral("Wall");
    const QString key = QStringLiteral("Layout");
    const QString path = Path();
    QFile::remove(path + QStringLiteral(".usertmp"));
    WriteFile(path, data, size);

    UICommonMdl::CommonFun::BackupConfigFile(path);
    Expect(UICommonMdl::CommonFun::GetHasBackupConfigFileName(path) == path, "the name stays");
    UICommonMdl::CIniFile file(path);
    const QVariant value = file.ReadValue(section, key, QStringList{section, key});
    Expect(value.type() != QVariant::StringList, "lists are joined");
    for (const QString& name : file.ReadAllSecName())
        file.ReadValue(name, key, QVariant());

    file.WriteValue(section, key, QStringLiteral("a,b"));
    UICommonMdl::CIniFile again(path);
    Expect(
        again.ReadValue(section, key, QVariant()) == QVariant(QStringLiteral("a,b")),
        "written is read again");
    return 0;
}
