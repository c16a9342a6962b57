#include "StrictMain.h"

#include <QTemporaryFile>
#include <QTest>
#include <cstdlib>
#include <string>
#include <unistd.h>
#include <vector>

namespace TestSupport {

namespace {

/// What the offscreen platform says of windows with a smallest size, tool tips and menus.
bool IsOfThePlatform(const QByteArray& line) { return line.contains("This plugin does not support "); }

int CountUnannounced(const QString& logFile)
{
    QFile log(logFile);
    if (!log.open(QIODevice::ReadOnly))
        return 1;
    int count = 0;
    while (!log.atEnd()) {
        const QByteArray line = log.readLine();
        const bool warning
            = line.startsWith("QWARN") || line.startsWith("QFATAL") || line.startsWith("QCRITICAL");
        if (warning && !IsOfThePlatform(line))
            ++count;
    }
    return count;
}

bool NamesAnOutput(const QStringList& arguments)
{
    return arguments.contains(QLatin1String("-o")) || arguments.contains(QLatin1String("-functions"));
}

} // namespace

void PrepareEnvironment()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "C.UTF-8");
}

void MoveToXServer(char** argv)
{
    const char* mark = "TEST_ON_X_SERVER";
    if (qEnvironmentVariableIsSet(mark))
        return;
    qputenv(mark, "1");
    qputenv("QT_QPA_PLATFORM", "xcb");
    // Neither is needed, and both leak.
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    std::string command[] = {"xvfb-run", "-a", "-s", "-screen 0 1280x1024x24"};
    std::vector<char*> arguments;
    for (std::string& word : command)
        arguments.push_back(word.data());
    for (; *argv != nullptr; ++argv)
        arguments.push_back(*argv);
    arguments.push_back(nullptr);
    execvp(arguments.front(), arguments.data());
    perror("xvfb-run");
    exit(1);
}

int RunStrictly(QObject& test, int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    if (NamesAnOutput(arguments))
        return QTest::qExec(&test, arguments);

    // The test log is the only place where Qt Test tells announced warnings from others.
    QTemporaryFile log;
    if (!log.open())
        return 1;
    arguments << QStringLiteral("-maxwarnings") << QStringLiteral("0") << QStringLiteral("-o")
              << log.fileName() + QLatin1String(",txt") << QStringLiteral("-o") << QStringLiteral("-,txt");
    const int failures = QTest::qExec(&test, arguments);
    const int warnings = CountUnannounced(log.fileName());
    if (warnings > 0)
        fprintf(stderr, "FAIL: %d warning(s) that no test announced\n", warnings);
    return failures + warnings;
}

} // namespace TestSupport
