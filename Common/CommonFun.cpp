#include <Common/CommonFun.h>

#include <Common/ByteBudget.h>
#include <Platform/BasicUIComponents/KvFile.h>
#include <Platform/BasicUIComponents/SkinPath.h>
#include <Platform/BasicUIComponents/StyledWidgets.h>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QWidget>
#include <algorithm>
#include <cstdio>

namespace UICommonMdl {

namespace {

/// Bytes of the first line that tell whether a file has data.
constexpr int kProbeLength = 10;

/// What the user of this process may do with a file. The administrator may do all, which says nothing
/// about the file.
constexpr auto kMyPermissions = QFileDevice::ReadUser | QFileDevice::WriteUser | QFileDevice::ExeUser;

QString ClassSheetName(const QWidget* widget)
{
    const QString className = QString::fromUtf8(widget->metaObject()->className());
    return className.section(QStringLiteral("::"), -1) + QLatin1String(".css");
}

bool IsBlank(QChar character)
{
    return character == QChar(0x0020) || character == QChar(0x3000) || character == QChar(0xFFFD);
}

QString BackupPath(const QString& path) { return path + QLatin1String(".usertmp"); }

/// Makes @p target a copy of @p source in one step. Nothing happens when a file cannot be read or written.
void ReplaceByCopy(const QString& source, const QString& target)
{
    QFile original(source);
    if (!original.open(QIODevice::ReadOnly))
        return;
    const QByteArray bytes = original.readAll();
    if (original.error() != QFileDevice::NoError)
        return;

    // A read-only file is replaced like any other.
    if (QFile::exists(target))
        QFile::setPermissions(
            target, (QFile::permissions(target) & ~kMyPermissions) | QFileDevice::WriteOwner);
    // Somebody else's file in a folder of ours can be replaced, if not written.
    const bool direct = !QFile::exists(target) || QFileInfo(target).isWritable();
    const QString written = direct ? target : target + QLatin1String(".new");
    QSaveFile copy(written);
    if (!copy.open(QIODevice::WriteOnly) || copy.write(bytes) != bytes.size() || !copy.flush())
        return; // a commit() alone would take a file whose end did not fit on the disk
    copy.setPermissions(original.permissions() & ~kMyPermissions);
    if (!copy.commit() || direct)
        return;
    if (std::rename(QFile::encodeName(written).constData(), QFile::encodeName(target).constData()) != 0)
        QFile::remove(written);
}

} // namespace

QString CommonFun::GetSkinPath(const QString& module, const QString& file)
{
    return SkinResourcePath(module, module, file);
}

QString CommonFun::GetSkinPathEx(const QString& file) { return SkinFilePath(file); }

void CommonFun::SetStyleSheet(
    QWidget* w, const QString& subDir, const QString& fileName, const QString& module)
{
    if (w == nullptr)
        return;
    // The class name is taken now: after a base class's constructor the object has another one.
    const QString sheetName = fileName.isEmpty() ? ClassSheetName(w) : fileName;
    StyledWidgets::Instance().Apply(w, {subDir, sheetName, module});
}

void CommonFun::SetStyleSheetEx(QWidget* w, const QString& fileName, const QString& subDir)
{
    if (w == nullptr)
        return;
    // Not from the sheets that are kept: files on disk may change at any time.
    const QString text = QString::fromUtf8(KvGUI::KvFile::ReadAll(fileName, SkinFilePath(subDir)));
    if (text.isEmpty())
        return;
    StyledWidgets::Instance().Forget(w);
    w->setStyleSheet(text);
}

bool CommonFun::loadStyleSheet(const QString& path, QString& out) { return ReadLatin1File(path, out); }

QString CommonFun::GetUtf8ValidByteLenString(const QString& s, int maxBytes)
{
    return CutToByteBudget(s, maxBytes, TextEncoding::Utf8);
}

QString CommonFun::GetLocal8BitValidByteLenString(const QString& s, int maxBytes)
{
    return CutToByteBudget(s, maxBytes, TextEncoding::Local8Bit);
}

bool CommonFun::IsQStrEmpty(const QString& s) { return std::all_of(s.begin(), s.end(), IsBlank); }

bool CommonFun::CheckFileHasData(const QString& path)
{
    if (!QFile::exists(path))
        return false;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    // Two bytes more than are looked at, so that a line ending is known as one.
    QByteArray line = file.read(kProbeLength + 2);
    const int lineEnd = line.indexOf('\n');
    if (lineEnd >= 0)
        line.truncate(lineEnd > 0 && line.at(lineEnd - 1) == '\r' ? lineEnd - 1 : lineEnd);
    line.truncate(kProbeLength);
    return std::any_of(
        line.begin(), line.end(), [](char byte) { return static_cast<signed char>(byte) > 1; });
}

void CommonFun::BackupConfigFile(const QString& path)
{
    if (CheckFileHasData(path))
        ReplaceByCopy(path, BackupPath(path));
}

QString CommonFun::GetHasBackupConfigFileName(const QString& path)
{
    if (!path.isEmpty() && !CheckFileHasData(path) && CheckFileHasData(BackupPath(path)))
        ReplaceByCopy(BackupPath(path), path);
    return path;
}

} // namespace UICommonMdl
