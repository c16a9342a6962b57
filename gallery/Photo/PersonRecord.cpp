#include <gallery/Photo/PersonRecord.h>

#include <Common/CIniFile.h>

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>

namespace OperatorClient {

namespace {

const QString IniName = QStringLiteral("person.ini");
const QString Section = QStringLiteral("Person");
const QString NameKey = QStringLiteral("Name");
const QString CardKey = QStringLiteral("Card");
const QString DepartmentKey = QStringLiteral("Department");

QString PictureName(int page)
{
    return page == PersonRecord::Avatar ? QStringLiteral("avatar.jpg") : QStringLiteral("face.jpg");
}

bool WritePicture(const QString& path, const QByteArray& picture)
{
    if (picture.isEmpty())
        return !QFile::exists(path) || QFile::remove(path);
    QSaveFile file(path);
    // The commit alone would take a file whose end did not fit on the disk.
    return file.open(QIODevice::WriteOnly) && file.write(picture) == picture.size() && file.flush()
        && file.commit();
}

/// Whether the file holds what was written into it. A file that could not be written still reads so here, by
/// its name, and so it is read by another.
bool IsStored(const QString& path, const PersonRecord& record)
{
    const QTemporaryDir folder;
    const QString copy = folder.filePath(IniName);
    if (!QFile::copy(path, copy))
        return false;
    UICommonMdl::CIniFile ini(copy);
    const auto holds = [&ini](const QString& key, const QString& text) {
        return ini.ReadValue(Section, key, QString()).toString() == text;
    };
    return holds(NameKey, record.name) && holds(CardKey, record.card)
        && holds(DepartmentKey, record.department);
}

} // namespace

PersonRecordFile::PersonRecordFile(const QString& folder)
    : m_strFolder(folder)
{ }

QString PersonRecordFile::PathOf(const QString& file) const { return QDir(m_strFolder).filePath(file); }

PersonRecord PersonRecordFile::Read() const
{
    UICommonMdl::CIniFile ini(PathOf(IniName));
    const auto text = [&](const QString& key) { return ini.ReadValue(Section, key, QString()).toString(); };
    PersonRecord record;
    record.name = text(NameKey);
    record.card = text(CardKey);
    record.department = text(DepartmentKey);
    for (int page = 0; page < PersonRecord::PageCount; ++page) {
        QFile file(PathOf(PictureName(page)));
        if (file.open(QIODevice::ReadOnly))
            record.pictures.at(std::size_t(page)) = file.readAll();
    }
    return record;
}

bool PersonRecordFile::Write(const PersonRecord& record) const
{
    if (!QDir().mkpath(m_strFolder))
        return false;
    UICommonMdl::CIniFile ini(PathOf(IniName));
    ini.WriteValue(Section, NameKey, record.name);
    ini.WriteValue(Section, CardKey, record.card);
    ini.WriteValue(Section, DepartmentKey, record.department);
    bool written = IsStored(PathOf(IniName), record);
    for (int page = 0; page < PersonRecord::PageCount; ++page)
        written = WritePicture(PathOf(PictureName(page)), record.pictures.at(std::size_t(page))) && written;
    return written;
}

} // namespace OperatorClient
