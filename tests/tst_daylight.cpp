#include "support/Columns.h"
#include "support/StrictMain.h"

#include <Common/QCommon.h>
#include <Platform/BasicUIComponents/KvDir.h>
#include <QtTest>
#include <climits>
#include <cstdio>

namespace {

// Central European summer time from the last Sunday of March to that of October, whatever the machine
// knows of time zones.
constexpr char kTimeZone[] = "CET-1CEST,M3.5.0,M10.5.0/3";
constexpr char kNoSummerTime[] = "UTC0";
constexpr long long kJuly = 1689000000; // 2023-07-10
constexpr long long kJanuary = 1673300000; // 2023-01-09

void WriteSettings(const QString& folder, const QByteArray& text)
{
    QFile file(folder + QStringLiteral("/Localcfg.ini"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}

/// What the child process answers: the flag, the flag again after the file was turned round, and whether
/// July, January and a time out of range need adjusting; one character each.
int AnswerAsChild(const QString& folder)
{
    KvGUI::KvDir::SetCurrentPath(folder);
    const bool enabled = XCM::QCommon::IsEnableDst();
    WriteSettings(folder, enabled ? "[DST]\nenable=0\n" : "[DST]\nenable=1\n");
    const bool answers[]
        = {enabled, XCM::QCommon::IsEnableDst(), XCM::QCommon::IsNeedAdjustDst(kJuly),
           XCM::QCommon::IsNeedAdjustDst(kJanuary), XCM::QCommon::IsNeedAdjustDst(LLONG_MAX)};
    for (const bool answer : answers)
        std::putchar(answer ? '1' : '0');
    return 0;
}

} // namespace

/// The flag is kept for the life of the process, so that each case asks a process of its own.
class TestDaylight : public QObject
{
    Q_OBJECT

private slots:
    void Answers_data()
    {
        TestSupport::Columns<QByteArray, QByteArray, QByteArray>("settings", "timeZone", "answers");
        const QByteArray zone(kTimeZone);
        QTest::newRow("no file") << QByteArray() << zone << QByteArray("00100");
        QTest::newRow("enabled") << QByteArray("[DST]\nenable=1\n") << zone << QByteArray("11000");
        QTest::newRow("enabled by word") << QByteArray("[DST]\nenable=true\n") << zone << QByteArray("11000");
        QTest::newRow("disabled") << QByteArray("[DST]\nenable=0\n") << zone << QByteArray("00100");
        QTest::newRow("other section") << QByteArray("[Other]\nenable=1\n") << zone << QByteArray("00100");
        QTest::newRow("no summer time")
            << QByteArray("[DST]\nenable=0\n") << QByteArray(kNoSummerTime) << QByteArray("00000");
    }

    /// Catches a file that is looked for elsewhere, a flag that follows later edits, an adjustment when the
    /// application makes it itself, and winter taken for summer.
    void Answers()
    {
        QFETCH(QByteArray, settings);
        QFETCH(QByteArray, timeZone);
        QFETCH(QByteArray, answers);
        QTemporaryDir folder;
        if (!settings.isEmpty())
            WriteSettings(folder.path(), settings);

        QProcess child;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("TZ"), QString::fromLatin1(timeZone));
        child.setProcessEnvironment(environment);
        child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--child"), folder.path()});
        QVERIFY(child.waitForFinished());
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        QCOMPARE(child.readAllStandardOutput(), answers);
    }
};

int main(int argc, char** argv)
{
    TestSupport::PrepareEnvironment();
    QCoreApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--child") == 0)
        return AnswerAsChild(QString::fromLocal8Bit(argv[2]));
    TestDaylight test;
    return TestSupport::RunStrictly(test, argc, argv);
}
#include "tst_daylight.moc"
