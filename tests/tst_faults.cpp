// What is saved, when the writer is killed, the disk is full, or the folder is not what it was.
//
// UICOMPONENTS_KILLS=1000 kills each writer so often, in place of a few times.

#include "support/Columns.h"
#include "support/StrictMain.h"
#include "support/Text.h"
#include "support/VirtualDisplay.h"
#include "support/WriteFaults.h"

#include <Common/CIniFile.h>
#include <Common/CommonFun.h>
#include <Common/QIniFile.h>
#include <UI/TVWall/KvTVWallNormalWnd.h>
#include <gallery/MainWindow.h>
#include <gallery/Photo/PersonRecord.h>
#include <gallery/Photo/PhotoCrop.h>
#include <gallery/Pictures/SourcePool.h>
#include <gallery/Screenshots.h>
#include <gallery/Wall/WallLayoutFile.h>

#include <QtTest>
#include <QtWidgets>
#include <random>

using namespace OperatorClient;
using namespace TestSupport;
using UICommonMdl::CIniFile;
using UICommonMdl::CommonFun;

namespace {

constexpr int FewKills = 5;
constexpr int LongestWait = 10000; // milliseconds, for a save that cannot succeed

const QString Section = "Wall"_s;
const QString Key = "Layout"_s;
const QString IniName = "client.ini"_s;

/// A text that tells of itself whether it is whole: "7:777...". Odd ones are written at once, even ones fit
/// into the buffer of a file.
QString NumberedText(int number)
{
    const QString name = QString::number(number);
    return name + QLatin1Char(':') + name.repeated(number % 2 == 0 ? 2000 : 20000);
}

/// The number of the text; -1 when it is not whole.
int NumberOf(const QString& text)
{
    const int number = text.section(QLatin1Char(':'), 0, 0).toInt();
    return text == NumberedText(number) ? number : -1;
}

QString IniPath(const QString& folder) { return QDir(folder).filePath(IniName); }

int NumberOf(const QVariant& value) { return NumberOf(value.toString()); }

/// One way to save something with a number, and to get the number back.
struct Saver
{
    const char* name;
    bool (*save)(const QString& folder, int number); ///< false when it tells of a failure
    int (*saved)(const QString& folder); ///< -1 for what is not whole
};

bool SaveWithBackup(const QString& folder, int number)
{
    CIniFile(CommonFun::GetHasBackupConfigFileName(IniPath(folder)))
        .WriteValue(Section, Key, NumberedText(number));
    CommonFun::BackupConfigFile(IniPath(folder));
    return true;
}

/// The settings, and -1 also when the backup is not whole, or newer.
int SavedWithBackup(const QString& folder)
{
    const auto read
        = [](const QString& path) { return NumberOf(CIniFile(path).ReadValue(Section, Key, QString())); };
    const int number = read(CommonFun::GetHasBackupConfigFileName(IniPath(folder)));
    const int backup = read(IniPath(folder) + QLatin1String(".usertmp"));
    return backup > 0 && backup <= number ? number : -1;
}

bool SaveWall(const QString& folder, int number)
{
    WallLayout layout = FirstWall();
    for (ScreenLayout& screen : layout.screens) {
        screen.text = QString::number(number);
        for (WindowLayout& window : screen.windows)
            window.source = SourceSpec::Photo(NumberedText(number));
    }
    WallLayoutFile(IniPath(folder)).Write(layout);
    return true;
}

int SavedWall(const QString& folder)
{
    const auto layout = WallLayoutFile(IniPath(folder)).Read();
    if (!layout || layout->screens.size() != FirstWall().screens.size())
        return -1;
    const int number = layout->screens.first().text.toInt();
    for (const ScreenLayout& screen : layout->screens) {
        for (const WindowLayout& window : screen.windows) {
            if (screen.text.toInt() != number || NumberOf(window.source.path) != number)
                return -1;
        }
    }
    return number;
}

bool SavePerson(const QString& folder, int number)
{
    PersonRecord record;
    record.name = record.card = record.department = NumberedText(number);
    record.pictures.fill(NumberedText(number).toUtf8());
    return PersonRecordFile(folder).Write(record);
}

/// The oldest of its parts, which are written one after the other.
int SavedPerson(const QString& folder)
{
    const PersonRecord record = PersonRecordFile(folder).Read();
    QVector<int> numbers{NumberOf(record.name), NumberOf(record.card), NumberOf(record.department)};
    for (const QByteArray& picture : record.pictures)
        numbers << NumberOf(QString::fromUtf8(picture));
    const auto ends = std::minmax_element(numbers.begin(), numbers.end());
    return *ends.second <= *ends.first + 1 ? *ends.first : -1;
}

const Saver Savers[] = {
    {"settings and backup", SaveWithBackup, SavedWithBackup},
    {"small settings",
     [](const QString& folder, int number) {
         XCM::QIniFile(IniPath(folder)).WriteValue(Section, Key, NumberedText(number));
         return true;
     },
     [](const QString& folder) { return NumberOf(XCM::QIniFile(IniPath(folder)).ReadValue(Section, Key)); }},
    {"wall", SaveWall, SavedWall},
    {"person", SavePerson, SavedPerson},
    {"cut",
     [](const QString& folder, int number) {
         PhotoCut cut;
         cut.jpeg = NumberedText(number).toUtf8();
         return PhotoCrop::Save(cut, QDir(folder).filePath("cut.jpg"_s));
     },
     [](const QString& folder) { return NumberOf(QString::fromUtf8(FilesIn(folder).value("cut.jpg"_s))); }}};
constexpr int SettingsSavers = 2; // the first ones, which tell nothing of a failure

/// The child process: saves without end, until it is killed.
int SaveForEver(const Saver& saver, const QString& folder)
{
    for (int number = qMax(0, saver.saved(folder)) + 1;; ++number) {
        saver.save(folder, number);
        std::fputs("saved\n", stdout);
        std::fflush(stdout);
    }
}

void KillSaverAfter(int saver, const QString& folder, int milliseconds)
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {"--save"_s, QString::number(saver), folder});
    QVERIFY(child.waitForReadyRead(60000));
    QTest::qSleep(milliseconds);
    child.kill();
    QVERIFY(child.waitForFinished());
}

/// The child process that has a display: saves once, and shows a wall until its end.
int ShowWall(QApplication& application, const QString& folder)
{
    SaveWall(folder, 1);
    UICommonMdl::KvTVWallNormalWnd wall;
    wall.SetTVWallGridCount(1, 1);
    const int screen = wall.AddScreen({0, 0, 1, 1, true}, QVariant());
    wall.OpenWindow(screen, {0, 0, 1, 1, true}, QVariant());
    wall.show();
    QTimer::singleShot(0, [] {
        std::fputs("shown\n", stdout);
        std::fflush(stdout);
    });
    return application.exec();
}

} // namespace

class TestFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder.reset(new QTemporaryDir);
        QVERIFY(QDir().mkpath(Folder()));
        // For another user to read in.
        QVERIFY(QFile::setPermissions(m_folder->path(), QFileDevice::Permissions(0x7755)));
    }

    void SurvivesKills_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < int(std::size(Savers)); ++i)
            Row(Savers[i].name, i);
    }

    // Catches a save that goes through a half-written file, which a kill would leave like that, and a next
    // writer that waits for the dead one.
    void SurvivesKills()
    {
        QFETCH(int, index);
        const Saver& saver = Savers[index];
        bool given = false;
        const int wanted = qEnvironmentVariableIntValue("UICOMPONENTS_KILLS", &given);
        const int kills = given ? wanted : FewKills;
        std::mt19937 random(20);
        int newest = 0;
        for (int kill = 0; kill < kills; ++kill) {
            QElapsedTimer timer;
            timer.start();
            KillSaverAfter(index, Folder(), 1 + static_cast<int>(random() % 30));
            const int number = saver.saved(Folder());
            QVERIFY2(number > newest, "what was saved is damaged, or older");
            newest = number;
            QVERIFY2(timer.elapsed() < 25000, "a writer waited for a dead one");
        }
    }

    void LeavesNoHalf_data()
    {
        Columns<int, QString>("index", "fault");
        for (int i = 0; i < int(std::size(Savers)); ++i) {
            for (const char* fault : {"full", "fuller", "read-only", "no folder"})
                QTest::addRow("%s, %s", Savers[i].name, fault) << i << QString::fromLatin1(fault);
        }
    }

    // Catches a save that costs what was saved before, leaves half of a file or a temporary one, reports a
    // success that is none, or never ends.
    void LeavesNoHalf()
    {
        QFETCH(int, index);
        QFETCH(QString, fault);
        const Saver& saver = Savers[index];
        QVERIFY(saver.save(Folder(), 1));
        QCOMPARE(saver.saved(Folder()), 1);
        const auto before = FilesIn(Folder());
        QElapsedTimer timer;
        timer.start();
        bool told = true;
        {
            const auto present = fault == QLatin1String("full") ? FullDisk(1000)
                : fault == QLatin1String("fuller")              ? FullDisk(0)
                : fault == QLatin1String("read-only")           ? ReadOnlyFolder(Folder())
                                                                : FileForFolder(Folder());
            const bool first = saver.save(Folder(), 2);
            told = !saver.save(Folder(), 3) && !first;
        }
        QVERIFY(timer.elapsed() < LongestWait);
        const auto after = FilesIn(Folder());
        QCOMPARE(after.keys(), before.keys());
        for (auto file = before.begin(); file != before.end(); ++file)
            QVERIFY2(after.value(file.key()) == file.value(), qPrintable(file.key()));
        QVERIFY(told || index <= SettingsSavers);
        QVERIFY(saver.save(Folder(), 4));
        QCOMPARE(saver.saved(Folder()), 4);
        QCOMPARE(FilesIn(Folder()).keys(), before.keys());
    }

    // Catches settings that are lost because their folder was removed while the client ran.
    void WritesIntoAFolderThatVanished()
    {
        for (const Saver& saver : Savers) {
            QVERIFY(saver.save(Folder(), 1));
            QVERIFY(QDir(Folder()).removeRecursively());
            if (saver.save(Folder(), 2))
                QVERIFY2(saver.saved(Folder()) == 2, saver.name);
            QVERIFY(QDir().mkpath(Folder()));
        }
    }

    // Catches a backup that is removed before its successor is written, and a restored file that is half of
    // one.
    void KeepsTheBackup()
    {
        QVERIFY(SaveWithBackup(Folder(), 1));
        const QString backup = IniPath(Folder()) + QLatin1String(".usertmp");
        {
            const auto full = FullDisk(1000);
            CommonFun::BackupConfigFile(IniPath(Folder()));
            QFile::remove(IniPath(Folder()));
            CommonFun::GetHasBackupConfigFileName(IniPath(Folder()));
        }
        QVERIFY(QFile::exists(backup));
        QVERIFY(!QFile::exists(IniPath(Folder())));
        QCOMPARE(SavedWithBackup(Folder()), 1);
    }

    // Catches a picture that is half written and looks like one.
    void ScreenshotsOnAFullDisk()
    {
        const SourcePool pool;
        MainWindow window;
        window.AddPage(
            {"empty"_s, [] { return QString(); }, [](QWidget* parent) { return new Page(parent); }});
        bool saved = true;
        {
            const auto full = FullDisk(200);
            saved = SaveScreenshots(window, pool, Folder(), QString());
        }
        QVERIFY(!saved);
        QCOMPARE(FilesIn(Folder()).keys(), QStringList());
        {
            const auto file = FileForFolder(Folder());
            QVERIFY(!SaveScreenshots(window, pool, Folder(), QString()));
        }
        QVERIFY(SaveScreenshots(window, pool, Folder(), QString()));
        QCOMPARE(FilesIn(Folder()).size(), 2);
    }

    // Catches a client that hangs when its display goes away, or that loses what it had saved.
    void EndsWithItsDisplay()
    {
        QProcess child;
        {
            const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
            const VirtualDisplay display;
            child.start(QCoreApplication::applicationFilePath(), {"--show"_s, Folder()});
            qputenv("QT_QPA_PLATFORM", platform);
            QVERIFY(child.waitForReadyRead(60000));
        }
        QVERIFY(child.waitForFinished(LongestWait));
        QVERIFY(child.exitStatus() == QProcess::NormalExit && child.exitCode() != 0);
        QCOMPARE(SavedWall(Folder()), 1);
    }

private:
    QString Folder() const { return m_folder->filePath("data"_s); }

    QScopedPointer<QTemporaryDir> m_folder;
};

int main(int argc, char** argv)
{
    PrepareEnvironment();
    if (argc == 4 && qstrcmp(argv[1], "--save") == 0) {
        const QCoreApplication application(argc, argv);
        return SaveForEver(Savers[std::atoi(argv[2])], QString::fromLocal8Bit(argv[3]));
    }
    if (qEnvironmentVariableIsSet("UICOMPONENTS_KILLS"))
        qputenv("QTEST_FUNCTION_TIMEOUT", "7200000"); // milliseconds; Qt Test ends a function after 5 minutes
    QApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--show") == 0)
        return ShowWall(application, QString::fromLocal8Bit(argv[2]));
    TestFaults test;
    return RunStrictly(test, argc, argv);
}

#include "tst_faults.moc"
