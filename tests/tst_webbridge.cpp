#include "support/Columns.h"
#include "support/StrictMain.h"
#include "support/Text.h"

#include <Platform/Automation/WebEngine/Allowances.h>
#include <Platform/Automation/WebEngine/EngineStart.h>
#include <Platform/Automation/WebEngine/PageBridge.h>

#include <QtTest>
#include <QtWidgets>
#include <memory>

using namespace TestSupport;
using WebEngine::Allowances;
using WebEngine::PageBridge;

class tst_webbridge : public QObject
{
    Q_OBJECT

private slots:
    void MayGoTo_data()
    {
        Columns<QString, QStringList, bool>("url", "words", "allowed");
        const QStringList none;
        for (const char* usual :
             {"http://a/", "https://a/", "HTTPS://a/", "file:///a", "data:text/html,a", "qrc:/a",
              "about:blank", "about:srcdoc"})
            Row(usual, QString::fromLatin1(usual), none, true);
        for (const char* other :
             {"ftp://a/", "about:config", "chrome://gpu", "view-source:http://a/", "javascript:alert(1)",
              "blob:http://a/1", "mailto:a@b", "httpx://a", "", "//a/b"})
            Row(*other ? other : "empty", QString::fromLatin1(other), none, false);
        const QStringList words{"scheme:FTP"_s, "downloads"_s, "scheme:"_s, "something else"_s};
        Row("allowed", "ftp://a/"_s, words, true);
        Row("not the one allowed", "mailto:a@b"_s, words, false);
        Row("another word", "downloads:x"_s, words, false);
    }

    // Catches a scheme that passes for a likeness, and one that the application cannot allow.
    void MayGoTo()
    {
        QFETCH(QString, url);
        QFETCH(QStringList, words);
        QFETCH(bool, allowed);
        QCOMPARE(Allowances::FromWords(words).MayGoTo(QUrl(url)), allowed);
    }

    void PreparesTheEngine_data()
    {
        Columns<QString, QByteArray>("command", "told");
        const auto root = [](const char* flags) {
            return "--map-root-user --mount sh -c 'mount -t tmpfs -o size=1m none /dev/shm && "
                   "echo begun && env %1 $0 --prepare'"_s.arg(QLatin1String(flags));
        };
        Row("small shared memory", root(""), QByteArray("as root.\n1|--disable-dev-shm-usage|"));
        Row("own flags", root("QTWEBENGINE_CHROMIUM_FLAGS=--a"),
            QByteArray("as root.\n1|--a --disable-dev-shm-usage|"));
        Row("own flag", root("\"QTWEBENGINE_CHROMIUM_FLAGS=--disable-dev-shm-usage --b\""),
            QByteArray("as root.\n1|--disable-dev-shm-usage --b|"));
        Row("flag against the sandbox", root("QTWEBENGINE_CHROMIUM_FLAGS=--no-sandbox"),
            QByteArray("CHROMIUM_FLAGS says so.\n1|--no-sandbox"));
        Row("no sandbox", root("QTWEBENGINE_DISABLE_SANDBOX=1"), QByteArray("SANDBOX is set.\n1|"));
        Row("user", "--map-user=1000 --map-group=1000 sh -c 'echo begun && $0 --prepare'"_s, QByteArray("|"));
        Row("user without rights", "sh -c 'echo begun && $0 --prepare'"_s,
            QByteArray("no user namespaces.\n1|"));
    }

    // Catches a sandbox that is off without a word or a need, pages that die where containers have little
    // shared memory, and flags of the user's that are lost.
    void PreparesTheEngine()
    {
        QFETCH(QString, command);
        QFETCH(QByteArray, told);
        QProcess child;
        child.setProcessChannelMode(QProcess::MergedChannels);
        child.start(
            "sh"_s,
            {"-c"_s, "unshare --user "_s + command + " $0"_s, QCoreApplication::applicationFilePath()});
        QVERIFY(child.waitForFinished());
        const QByteArray output = child.readAll();
        if (!output.contains("begun\n"))
            QSKIP("this system lets no user be another one or mount a disk");
        QVERIFY2(child.exitStatus() == QProcess::NormalExit && child.exitCode() == 0, output.constData());
        QVERIFY2(output.contains(told), output.constData());
        QCOMPARE(output.contains("without its sandbox"), told != "|");
    }

    // Catches calls that are passed on in one go, so that nothing else gets a turn, and reports that
    // overtake.
    void OneCallATurn()
    {
        PageBridge bridge;
        QStringList seen;
        connect(&bridge, &PageBridge::SignalCalled, this, [&](const QString& name) {
            seen << name;
            QTimer::singleShot(0, this, [&] { seen << "turn"_s; });
        });
        int taken = 0;
        connect(&bridge, &PageBridge::SignalTaken, this, [&](int count) { taken += count; });
        bridge.Call("a"_s, QString());
        bridge.Call("b"_s, QString());
        bridge.Report("c"_s, QString());
        QVERIFY(seen.isEmpty());
        QTRY_COMPARE(seen.size(), 6);
        const QString turn = "turn"_s;
        QCOMPARE(seen, QStringList({"a"_s, turn, "b"_s, turn, "c"_s, turn}));
        // The page is not told of the provider's own report.
        QCOMPARE(taken, 2);
    }

    // Catches a call that comes in the middle of another one, when a slot runs a dialog.
    void CallsDuringACall()
    {
        PageBridge bridge;
        QStringList seen;
        connect(&bridge, &PageBridge::SignalCalled, this, [&](const QString& name) {
            seen << name + QLatin1Char('(');
            bridge.Call("inner"_s, QString());
            if (seen.size() > 2)
                return;
            QEventLoop dialog;
            QTimer::singleShot(20, &dialog, &QEventLoop::quit);
            dialog.exec();
            seen << ")"_s;
        });
        bridge.Call("outer"_s, QString());
        QTRY_VERIFY(seen.size() >= 3);
        QCOMPARE(seen.mid(0, 3), QStringList({"outer("_s, ")"_s, "inner("_s}));
    }

    // Catches a render process that has been taken over and fills the client's memory.
    void TooManyCalls()
    {
        PageBridge bridge;
        int calls = 0;
        connect(&bridge, &PageBridge::SignalCalled, this, [&] { ++calls; });
        for (int i = 0; i < 100000; ++i)
            bridge.Call("a"_s, QString());
        bridge.Report("last"_s, QString());
        QString last;
        connect(&bridge, &PageBridge::SignalCalled, this, [&](const QString& name) { last = name; });
        QTRY_COMPARE(last, "last"_s);
        QVERIFY(calls >= 8 && calls < 1000);
    }

    // Catches a bridge that goes on after a slot of the client deleted it, and calls that come nevertheless.
    void SlotDeletesBridge()
    {
        auto bridge = std::make_unique<PageBridge>();
        const QPointer<PageBridge> alive(bridge.get());
        int calls = 0;
        connect(bridge.get(), &PageBridge::SignalCalled, this, [&] {
            ++calls;
            bridge.reset();
        });
        bridge->Call("initComplete"_s, QString());
        bridge->Call("b"_s, QString());
        QTRY_VERIFY(!alive);
        QCoreApplication::processEvents();
        QCOMPARE(calls, 1);
    }
};

int main(int argc, char** argv)
{
    PrepareEnvironment();
    if (argc == 2 && qstrcmp(argv[1], "--prepare") == 0) {
        for (int time = 0; time < 2; ++time)
            WebEngine::PrepareEngine();
        for (const char* variable : {"QTWEBENGINE_DISABLE_SANDBOX", "QTWEBENGINE_CHROMIUM_FLAGS"})
            std::printf("%s|", qgetenv(variable).constData());
        return 0;
    }
    QApplication application(argc, argv);
    tst_webbridge test;
    return RunStrictly(test, argc, argv);
}

#include "tst_webbridge.moc"
