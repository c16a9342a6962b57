#include "support/Columns.h"
#include "support/StrictMain.h"
#include "support/Text.h"
#include "support/WriteFaults.h"

#include <Common/CIniFile.h>
#include <Common/CLocalIniFile.h>
#include <Common/CommonFun.h>
#include <Common/IniScreen.h>
#include <Common/OrphanedLock.h>
#include <Common/QCommon.h>
#include <Common/QIniFile.h>
#include <Platform/BasicUIComponents/KvDir.h>
#include <QtTest>
#include <sys/file.h>
#include <sys/stat.h>
#include <type_traits>
#include <unistd.h>

using namespace TestSupport;
using UICommonMdl::CIniFile;
using UICommonMdl::CLocalIniFile;
using UICommonMdl::CommonFun;
using XCM::QIniFile;

namespace {

const QString kSection = "Wall"_s;
const QString kKey = "Layout"_s;

template <typename File>
constexpr bool IsCopied = std::is_copy_constructible<File>::value || std::is_copy_assignable<File>::value;

QByteArray Read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
}

void Write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

} // namespace

class TestIniFiles : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.reset(new QTemporaryDir);
        QVERIFY(m_folder->isValid());
    }

    void ListsComeBackAsOneText_data()
    {
        Columns<QByteArray, QString>("line", "value");
        Row("numbers", QByteArray("Layout=1,2,3"), "1,2,3"_s);
        Row("blanks around", QByteArray("Layout=10, 20 ,30"), "10,20,30"_s);
        Row("empty parts", QByteArray("Layout=,,"), ",,"_s);
        Row("quoted", QByteArray("Layout=\"a,b\""), "a,b"_s);
        Row("plain", QByteArray("Layout=abc"), "abc"_s);
    }

    /// Catches a comma-separated line that reads as a list, and a difference between the two classes.
    void ListsComeBackAsOneText()
    {
        QFETCH(QByteArray, line);
        QFETCH(QString, value);
        Write(Path(), "[Wall]\n" + line + "\n");
        for (const QVariant& read :
             {CIniFile(Path()).ReadValue(kSection, kKey, 5), QIniFile(Path()).ReadValue(kSection, kKey)}) {
            QCOMPARE(int(read.type()), int(QVariant::String));
            QCOMPARE(read.toString(), value);
        }
    }

    /// Catches a default that escapes the joining of lists, a joining that also turns other values into
    /// texts, and a missing value that comes back as something valid.
    void DefaultsAndOtherTypes()
    {
        CIniFile file(Path());
        const QStringList list{"a"_s, "b"_s};
        QCOMPARE(file.ReadValue(kSection, kKey, list), QVariant("a,b"_s));
        QCOMPARE(file.ReadValue(kSection, kKey, QStringList()), QVariant(QString()));
        QCOMPARE(file.ReadValue(kSection, kKey, QVariantList{1, 2}), QVariant(QVariantList{1, 2}));
        QCOMPARE(file.ReadValue(kSection, kKey, 42), QVariant(42));
        QVERIFY(!QIniFile(Path()).ReadValue(kSection, kKey).isValid());
        QVERIFY(!QFile::exists(Path()));
        file.WriteValue(kSection, kKey, QByteArray("\0\x01\xFF", 3));
        QCOMPARE(CIniFile(Path()).ReadValue(kSection, kKey, 0).toByteArray(), QByteArray("\0\x01\xFF", 3));
    }

    /// Catches escapes in place of UTF-8, characters beyond U+FFFF that do not reach the file, a file of
    /// another hand that is read as Latin-1, a write that waits for the object's end, and a written text that
    /// reads back as a list.
    void FileIsUtf8()
    {
        const QString text = "\u4E2D\U00020BB7\u6587,\U0001F4F7\U0001F6A8a\u00E9"_s;
        CIniFile file(Path());
        file.WriteValue(kSection, kKey, text);
        QVERIFY(Read(Path()).contains(text.toUtf8()));
        QCOMPARE(file.ReadValue(kSection, kKey, QVariant()), QVariant(text));
        QIniFile small(Path());
        small.WriteValue(kSection, "Other"_s, 7);
        QVERIFY(Read(Path()).contains("Other=7"));
        Write(m_folder->filePath("other.ini"_s), "[Wall]\nLayout=\xE4\xB8\xAD\n");
        QIniFile other(m_folder->filePath("other.ini"_s));
        QCOMPARE(other.ReadValue(kSection, kKey).toString(), "\u4E2D"_s);
        Write(m_folder->filePath("copy.ini"_s), Read(Path())); // of the written file nothing is remembered
        QCOMPARE(QIniFile(m_folder->filePath("copy.ini"_s)).ReadValue(kSection, kKey), QVariant(text));
        file.WriteValue(kSection, "Half"_s, QString(text.at(1)) + "a\u6587"_s);
        QVERIFY(Read(Path()).contains("Half=a\xE6\x96\x87"));
    }

    /// Catches a key that is built in two steps, so that the key goes into the section's place mark.
    void PlaceMarksInNames()
    {
        const QString section = "100%2"_s;
        CIniFile file(Path());
        file.WriteValue(section, kKey, 1);
        QCOMPARE(file.ReadAllSecName(), QStringList{section});
    }

    /// Catches a removal that takes too much or stays in memory, or half a file on a full disk.
    void RemovesValuesAndGroups()
    {
        Write(Path(), "[Wall]\nLayout=1\nRows=2\n\n[Screens]\nFirst=3\n\n[Users]\nadmin=4\n");
        CIniFile file(Path());
        file.RemoveValue(kSection, kKey);
        QVERIFY(!Read(Path()).contains("Layout"));
        {
            const auto fault = FullDisk(10);
            const QByteArray whole = Read(Path());
            file.RemoveValue("Users"_s, "admin"_s);
            QCOMPARE(Read(Path()), whole);
        }
        QCOMPARE(file.ReadValue(kSection, "Rows"_s, 0).toInt(), 2);
        file.RemoveValue("Screens"_s, QString());
        QCOMPARE(file.ReadAllSecName(), (QStringList{"Users"_s, kSection}));
    }

    /// Catches an empty name that clears the whole file, which is what the settings class makes of it, and a
    /// warning for a file without a name.
    void EmptyNamesTouchNothing()
    {
        const QByteArray text = "[Wall]\nLayout=1\n";
        Write(Path(), text);
        CIniFile file(Path());
        file.RemoveValue(QString(), QString());
        file.RemoveValue("/"_s, "//"_s);
        file.WriteValue(QString(), QString(), 5);
        QCOMPARE(file.ReadValue(QString(), QString(), 6), QVariant(6));
        QCOMPARE(Read(Path()), text);
        QVERIFY(CIniFile(QString()).ReadAllSecName().isEmpty());
    }

    void DamagedValues_data()
    {
        Columns<QByteArray, bool>("value", "safe");
        const auto deep = [](int depth) {
            return "@Variant(" + QByteArray("\\0\\0\\0\\x9\\0\\0\\0\\x1").repeated(depth)
                + "\\0\\0\\0\\x2\\0\\0\\0\\x5)";
        };
        Row("number", QByteArray("@Variant(\\0\\0\\0\\x2\\0\\0\\0\\x5)"), true);
        Row("colour", QByteArray("@Variant(\\0\\0\\0\\x43\\x1\\xff\\xff\\0\\0\\0\\0\\0\\0\\0\\0)"), true);
        Row("short number", QByteArray("@Variant(\\0\\0\\0\\x87?\\xc0\\0\\0)"), true);
        Row("a client's type", QByteArray("@Variant(\\0\\0\\0\\x7f\\0\\0\\0\\x2Q\\0)"), false);
        Row("pointer", QByteArray("@Variant(\\0\\0\\0\\x80?\\xc0\\0\\0)"), false);
        Row("list", deep(3), true);
        Row("a text", QByteArray("\"@@Variant(\\0\\0\\0\\x9\\x7f\\xff\\xff\\xff)\""), true);
        Row("font", QByteArray("@Variant(\\0\\0\\0\\x40)"), true);
        Row("texts", QByteArray("@Variant(\\0\\0\\0\\v\\0\\0\\0\\x1\\0\\0\\0\\x2\\0\\x61)"), true);
        Row("nothing in a list",
            QByteArray("@Variant(\\0\\0\\0\\x9\\0\\0\\0\\x1"
                       "\\0\\0\\0\\0\\0\\0\\0\\0)"),
            true);
        Row("list without its things", QByteArray("@Variant(\\0\\0\\0\\x9\\0\\0\\0\\x1)"), true);
        Row("list cut off", QByteArray("@Variant(\\0\\0\\0\\x9\\0\\0\\0\\x1"), true);
        Row("texts cut off", QByteArray("@Variant(\\0\\0\\0\\v\\0\\0\\0\\x1"), true);
        Row("number cut off", QByteArray("@\\x"), true);
        Row("escape cut off", QByteArray("@\\"), true);
        Row("octal", QByteArray("a\\101"), true);
        Row("numbers without digits", QByteArray("@\\xg"), true);
        Row("font in a list", QByteArray("@Variant(\\0\\0\\0\\x9\\0\\0\\0\\x1\\0\\0\\0\\x40)"), false);
        Row("maps without end",
            "@Variant(" + QByteArray("\\0\\0\\0\\b\\0\\0\\0\\x1\\0\\0\\0\\0").repeated(100000) + ")", false);
        Row("list without end", QByteArray("@Variant(\\0\\0\\0\\x9\\x7f\\xff\\xff\\xff)"), false);
        Row("map without end", QByteArray("@Variant(\\0\\0\\0\\b\\x10\\0\\0\\0)"), false);
        Row("texts without end", QByteArray("\"@Variant(\\0\\0\\0\\v\\x1f\\0\\0\\0)\""), false);
        Row("nested without end", deep(100000), false);
        Row("points without end", QByteArray("@Variant(\\0\\0\\0GB231)"), false);
        Row("in a list", QByteArray("a, @Variant(\\0\\0\\0\\x9\\x7f\\xff\\xff\\xff)"), false);
        Row("in a moment", QByteArray("@DateTime(\\0\\0\\0\\x9\\0\\x7f\\xff\\xff\\xff)"), false);
        Row("a moment nowhere",
            QByteArray("@DateTime(\\0\\0\\0\\x10\\0" // in the time zone "abc"
                       "\\0\\0\\0\\0\\0\\0\\0\\0\\0\\0\\0\\0\\x3\\0\\0\\0\\x6\\0\\x61\\0\\x62\\0\\x63)"),
            false);
        Row("in octal digits", QByteArray("\\0100Variant(\\0\\0\\0\\t\\0177\\0377\\0377\\0377)"), false);
        Row("with foreign digits", QByteArray("\\x40Variant(\\0\\0\\0\\x43\xD9\xA0\\0)"), true);
        Row("over two lines", QByteArray("@\\\r\nVariant(\\0\\0\\0\\t\\x7f\\xff\\xff\\xff)"), false);
        Row("with a byte order mark",
            QByteArray("\\x40\xEF\xBB\xBFVariant(\\0\\0\\0\\t\\x7f\\xff\\xff\\xff)"), false);
        Row("written otherwise", QByteArray("\\x40\\126ari\"ant(\\0\\0\\0\\x9\\x7f\\xff\\xff\\xff)\""),
            false);
    }

    /// Catches a damaged value that ends the client, or takes all memory or the stack, and one that costs the
    /// other values or the backup.
    void DamagedValues()
    {
        QFETCH(QByteArray, value);
        QFETCH(bool, safe);
        QCOMPARE(IsSafeIniText(value), safe);
        const QByteArray text = "[Wall]\nRows=2\nLayout=" + value;
        Write(Path(), text);
        Write(BackupPath(), "[Wall]\nRows=3\n");
        CIniFile file(Path());
        QCOMPARE(file.ReadValue(kSection, "Rows"_s, 0).toInt(), safe ? 2 : 3);
        QCOMPARE(file.ReadValue(kSection, kKey, QVariant()).isValid(), safe);
        file.WriteValue(kSection, kKey, 7);
        QCOMPARE(CIniFile(Path()).ReadValue(kSection, kKey, 6).toInt(), 7);
        QCOMPARE(Read(Path() + ".damaged"_s), safe ? QByteArray("no such file") : text);
    }

    /// Catches a damaged value that is read after all because its file cannot be put aside, or that comes
    /// back with the backup.
    void DamageThatStays()
    {
        const QByteArray text = "[Wall]\nRows=2\nLayout=@Variant(\\0\\0\\0\\x9\\x7f\\xff\\xff\\xff)\n";
        const auto rows = [this] { return CIniFile(Path()).ReadValue(kSection, "Rows"_s, 7); };
        Write(Path(), text);
        {
            const auto fault = ReadOnlyFolder(m_folder->path());
            QCOMPARE(rows(), QVariant(7));
        }
        Write(BackupPath(), text);
        QCOMPARE(rows(), QVariant(7));
    }

    /// Catches a value that is stored and then taken for damage, with the whole file.
    void WritesOnlyWhatCanBeRead()
    {
        const QVariant plain[]
            = {QRectF(1, 2, 3, 4),
               QUrl("http://a/b"_s),
               QDateTime::currentDateTime(),
               QDateTime(QDate(2020, 1, 2), QTime(3, 4), QTimeZone::utc()),
               QColor(Qt::red),
               QVariantMap{{"a"_s, QVariantList{1, QSize(2, 3), 1.5F}}},
               1.5F,
               QVariant::fromValue(-3L),
               QVariant::fromValue('c'),
               QVariant::fromValue(quint16(65535)),
               QUuid("{67C8770B-44F1-410A-AB9A-F9B5446F13EE}"_s),
               QVariantMap{{"a"_s, QVariantList{QUuid(), QBitArray(5, true)}}},
               "Gate 1: @Variant(opened)"_s,
               "North @Variant(closed)"_s,
               QLocale(QLocale::German)};
        for (const QVariant& value : plain) {
            CIniFile(Path()).WriteValue(kSection, kKey, value);
            QCOMPARE(CIniFile(Path()).ReadValue(kSection, kKey, QVariant()), value);
        }
        const QDateTime nowhere(QDate(2020, 1, 2), QTime(3, 4), QTimeZone("Nowhere"));
        for (const QVariant& value : {QVariant(QPolygon(QRect(0, 0, 2, 2))), QVariant(nowhere)}) {
            CIniFile(Path()).WriteValue(kSection, kKey, QVariantList{value});
            QCOMPARE(
                CIniFile(Path()).ReadValue(kSection, kKey, QVariant()), QVariant(QLocale(QLocale::German)));
        }
    }

    /// Catches a writer that waits half a minute for one that was killed, before or after it had signed its
    /// lock, and one that takes the lock of a writer that lives.
    void LocksOfOtherWriters()
    {
        const QString lock = Path() + ".lock"_s;
        for (const QByteArray& signature : {QByteArray(""), QByteArray("2147483647\nclient\n\n")}) {
            Write(lock, signature);
            QElapsedTimer timer;
            timer.start();
            CIniFile(Path()).WriteValue(kSection, kKey, signature);
            QVERIFY(timer.elapsed() < 10000);
            QCOMPARE(CIniFile(Path()).ReadValue(kSection, kKey, 6).toByteArray(), signature);
            QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files).size(), 1);
        }
        QFile held(lock);
        QVERIFY(held.open(QIODevice::WriteOnly) && flock(held.handle(), LOCK_EX) == 0);
        RemoveOrphanedLock(Path());
        QVERIFY(held.exists());
    }

    /// Catches two owners of one settings object and a crash of the one that was moved from.
    void MovedFilesHaveOneOwner()
    {
        static_assert(!IsCopied<CIniFile> && !IsCopied<QIniFile>, "a copy would delete the settings twice");
        CIniFile first(Path());
        CIniFile second(std::move(first));
        second.WriteValue(kSection, kKey, 1);
        // NOLINTNEXTLINE(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
        first.WriteValue(kSection, kKey, 2);
        first.RemoveValue(kSection, kKey);
        QCOMPARE(first.ReadValue(kSection, kKey, 3), QVariant(3));
        QVERIFY(first.ReadAllSecName().isEmpty());
        QCOMPARE(second.ReadValue(kSection, kKey, 3).toInt(), 1);
        first = std::move(second);
        QCOMPARE(first.ReadValue(kSection, kKey, 3).toInt(), 1);
        QIniFile small(Path());
        QIniFile other(std::move(small));
        small = std::move(other);
        QCOMPARE(small.ReadValue(kSection, kKey).toInt(), 1);
    }

    /// Catches a file that is looked for in the working directory.
    void LocalFileLiesInTheCurrentFolder()
    {
        KvGUI::KvDir::SetCurrentPath(m_folder->path());
        const QString name = "client.ini"_s;
        QVERIFY(!CLocalIniFile::ReadValue(kSection, kKey, name).isValid());
        CLocalIniFile::WriteValue(kSection, kKey, "a,b"_s, name);
        QCOMPARE(CLocalIniFile::ReadValue(kSection, kKey, name), QVariant("a,b"_s));
        QVERIFY(QFile::exists(Path()));
        KvGUI::KvDir::SetCurrentPath(QString());
    }

    void FileHasData_data()
    {
        Columns<QByteArray, bool>("bytes", "hasData");
        Row("empty", QByteArray(""), false);
        Row("no line ending", QByteArray("a"), true);
        Row("blank", QByteArray(" \n"), true);
        Row("first line empty", QByteArray("\n[Wall]\n"), false);
        Row("first line empty, CR LF", QByteArray("\r\n[Wall]\r\n"), false);
        Row("a CR that ends nothing", QByteArray("\r[Wall]\n"), true);
        Row("zeros", QByteArray(512, '\0'), false);
        Row("ones", QByteArray(10, '\1'), false);
        Row("smallest data", QByteArray(9, '\0') + "\2", true);
        Row("data after zeros", QByteArray("\0\0\0\0[Wall]\n", 11), true);
        Row("data too late", QByteArray(10, '\0') + "[Wall]\n", false);
        Row("CR LF after zeros", QByteArray(9, '\0') + "\r\n", false);
        Row("not ASCII", QByteArray("\xE4\xB8\xAD\xE4\xB8\xAD\xE4\xB8\xAD\xE4[Wall]\n"), false);
        Row("ASCII as tenth byte", QByteArray("\xE4\xB8\xAD\xE4\xB8\xAD\xE4\xB8\xAD=1\n"), true);
        Row("data behind the line", QByteArray("\0\0\n[Wall]\n", 9), false);
    }

    /// Catches bytes read as unsigned, a line that ends at a zero byte, a line ending that counts as data,
    /// and bytes beyond the tenth or the first line that are looked at.
    void FileHasData()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, hasData);
        Write(Path(), bytes);
        QCOMPARE(CommonFun::CheckFileHasData(Path()), hasData);
    }

    /// Catches a damaged or missing file that overwrites the good backup or is not restored, and a returned
    /// name that is that of the backup.
    void DamagedFileComesBack()
    {
        const QByteArray good = "[Wall]\nRows=2\n";
        Write(BackupPath(), good);
        for (const int size : {-1, 0, 4096}) {
            QFile::remove(Path());
            if (size >= 0)
                Write(Path(), QByteArray(size, '\0'));
            CommonFun::BackupConfigFile(Path());
            QCOMPARE(CommonFun::GetHasBackupConfigFileName(Path()), Path());
            QCOMPARE(Read(Path()), good);
            QCOMPARE(Read(BackupPath()), good);
        }
    }

    /// Catches a second backup that does not replace the first (also a read-only one), a backup that can be
    /// read by more people than the file, and files left over.
    void BackupFollowsTheFile()
    {
        const auto permissions = QFileDevice::ReadOwner | QFileDevice::ReadUser;
        for (const char* text : {"[Wall]\nRows=2\n", "[Wall]\nRows=3\n[More]\n", "[W]\n"}) {
            QFile::remove(Path());
            Write(Path(), text);
            QVERIFY(QFile::setPermissions(Path(), permissions));
            CommonFun::BackupConfigFile(Path());
            QCOMPARE(Read(BackupPath()), QByteArray(text));
            QCOMPARE(QFile::permissions(BackupPath()), QFile::permissions(Path()));
        }
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files).size(), 2);
    }

    /// Catches a backup that is not replaced because somebody else, such as the administrator, has written
    /// it, and files left over where it cannot be replaced.
    void BackupsOfSomebodyElse()
    {
        if (geteuid() != 0)
            QSKIP("only the administrator can become another user");
        for (const mode_t folder : {0777, 01777}) { // in the second one nobody replaces the others' files
            QFile::remove(BackupPath());
            Write(Path(), "[Wall]\nRows=3\n");
            Write(BackupPath(), "[Wall]\nRows=2\n");
            QCOMPARE(chmod(QFile::encodeName(m_folder->path()).constData(), folder), 0);
            constexpr uid_t Nobody = 65534;
            QCOMPARE(setresuid(Nobody, Nobody, 0), 0);
            CommonFun::BackupConfigFile(Path());
            QCOMPARE(setresuid(0, 0, 0), 0);
            QCOMPARE(
                Read(BackupPath()), QByteArray(folder == 0777 ? "[Wall]\nRows=3\n" : "[Wall]\nRows=2\n"));
            QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files).size(), 2);
        }
    }

    /// Catches a good file that is overwritten by its backup, a good file lost to a bad backup, and a crash
    /// on names without a file.
    void NothingToRestore()
    {
        Write(Path(), "[Wall]\nRows=3\n");
        Write(BackupPath(), "[Wall]\nRows=2\n");
        CommonFun::GetHasBackupConfigFileName(Path());
        QCOMPARE(Read(Path()), QByteArray("[Wall]\nRows=3\n"));

        Write(Path(), "\n[Wall]\n");
        Write(BackupPath(), QByteArray(20, '\0'));
        CommonFun::GetHasBackupConfigFileName(Path());
        QCOMPARE(Read(Path()), QByteArray("\n[Wall]\n"));

        QCOMPARE(CommonFun::GetHasBackupConfigFileName(QString()), QString());
        CommonFun::BackupConfigFile(QString());
        QVERIFY(!CommonFun::CheckFileHasData(m_folder->path()));
        QCOMPARE(CommonFun::GetHasBackupConfigFileName(m_folder->path()), m_folder->path());
    }

private:
    QString Path() const { return m_folder->filePath("client.ini"_s); }
    QString BackupPath() const { return Path() + ".usertmp"_s; }

    QScopedPointer<QTemporaryDir> m_folder;
};

STRICT_TEST_MAIN(TestIniFiles)
#include "tst_inifiles.moc"
