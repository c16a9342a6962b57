#include <gallery/Photo/PersonRecord.h>

#include <Common/CIniFile.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

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
    return file.open(QIODevice::WriteOnly) && file.write(picture) == picture.size() && file.commit();
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
    const QFileInfo iniFile(PathOf(IniName));
    bool written = iniFile.isFile() && iniFile.isWritable();
    for (int page = 0; page < PersonRecord::PageCount; ++page)
        written = WritePicture(PathOf(PictureName(page)), record.pictures.at(std::size_t(page))) && written;
    return written;
}

} // namespace OperatorClient
