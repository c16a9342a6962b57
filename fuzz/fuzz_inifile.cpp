// A settings file from outside: reading it never fails, and what is written into it is found again.

#include "Expect.h"

#include <Common/CIniFile.h>
#include <Common/CommonFun.h>

#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <cstddef>
#include <cstdint>
#include <numeric>

using UICommonMdl::CIniFile;
using UICommonMdl::CommonFun;

namespace {

const QString Section = QStringLiteral("Wall");
const QString Key = QStringLiteral("Layout");

/// Another file each time, out of more than QSettings remembers: it takes a file of the same size and time
/// for the same file.
QString NextPath()
{
    constexpr int Files = 64;
    static int number = 0;
    // In memory: a fuzzer writes thousands of files a second.
    static const QTemporaryDir folder(QStringLiteral("/dev/shm/fuzz_inifile-XXXXXX"));
    number = (number + 1) % Files;
    return folder.filePath(QStringLiteral("client%1.ini").arg(number));
}

void WriteFile(const QString& path, const std::uint8_t* data, std::size_t size)
{
    QFile file(path);
    Expect(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered), "the file can be written");
    file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
}

void Read(const QString& path)
{
    CIniFile file(path);
    const QVariant value = file.ReadValue(Section, Key, QStringList{Section, Key});
    Expect(value.type() != QVariant::StringList, "lists are joined");
    for (const QString& name : file.ReadAllSecName())
        file.ReadValue(name, Key, QVariant());
}

void BackUp(const QString& path)
{
    const QString backup = path + QStringLiteral(".usertmp");
    QFile::remove(backup);
    CommonFun::BackupConfigFile(path);
    Expect(QFile::exists(backup) == CommonFun::CheckFileHasData(path), "what has data is backed up");
    Expect(CommonFun::GetHasBackupConfigFileName(path) == path, "the name stays");
}

void Write(const QString& path)
{
    CIniFile(path).WriteValue(Section, Key, QStringLiteral("a,b"));
    CIniFile again(path);
    const QVariant value = again.ReadValue(Section, Key, QVariant());
    const bool damaged = QFile::exists(path + QStringLiteral(".damaged"));
    Expect(damaged || value == QVariant(QStringLiteral("a,b")), "written is read again");
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
    const QString path = NextPath();
    WriteFile(path, data, size);
    Read(path);
    // The rest depends on the first bytes and on what was read, and takes its time.
    constexpr unsigned Seldom = 32;
    if (std::accumulate(data, data + size, 0U) % Seldom == 0) {
        QFile::remove(path + QStringLiteral(".damaged"));
        BackUp(path);
        Write(path);
    }
    return 0;
}
