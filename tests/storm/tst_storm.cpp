// Storms over every widget of the library: whatever happens to it, it neither crashes nor warns and stays
// consistent. A seed is one storm and always the same. In the environment, UICOMPONENTS_STORM_SECONDS=3600
// goes on with further seeds for about so long, and UICOMPONENTS_STORM_SEED=17 runs that seed only, or with
// the seconds that seed first.

#include "Storm.h"

#include <support/StrictMain.h>

#include <Platform/Automation/AutomationRegistry.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <QTest>
#include <csignal>
#include <unistd.h>

#if defined(__SANITIZE_ADDRESS__)
extern "C" void __sanitizer_set_death_callback(void (*callback)());
#endif

using Storms::Kind;
using Storms::Storm;

namespace {

constexpr int StepsPerSeed = 300;
constexpr int Seeds = 3;

/// How the storm that runs is repeated.
QByteArray& Command()
{
    static QByteArray command;
    return command;
}

/// The first unexpected warning of the storm that runs.
QString& Warning()
{
    static QString warning;
    return warning;
}

/// Warnings that are part of an interface, and what the offscreen platform cannot do. On an X server Qt also
/// warns of itself when a window is hidden and shown again before the server has told of its first showing.
bool IsExpected(const QString& warning)
{
    static const QRegularExpression expected(
        QStringLiteral("sgnKeyPressed|QXcbConnection: XCB error|QDialog::exec: Recursive "
                       "call|QWidgetLineControl::setSelection|This plugin does not "
                       "support|propagateSizeHints|AddScreen: iRows = |setNetWmStateOnUnmappedWindow"));
    return warning.contains(expected);
}

void NoteWarning(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type != QtDebugMsg && type != QtInfoMsg && !IsExpected(text) && Warning().isEmpty())
        Warning() = text;
    if (type == QtFatalMsg)
        fprintf(stderr, "%s\n", qPrintable(text));
}

/// How a crash can be repeated, and the steps that led to it.
void PrintSteps()
{
    const QByteArray text
        = "\nRepeat: " + Command() + "\nThe last steps:\n" + Storm::Log().right(4000) + '\n';
    if (write(STDERR_FILENO, text.constData(), size_t(text.size())) < 0)
        _exit(1);
}

#if defined(__SANITIZE_ADDRESS__)
void WatchCrashes(bool watch) { __sanitizer_set_death_callback(watch ? &PrintSteps : nullptr); }
#else
void OnCrash(int signal)
{
    std::signal(signal, SIG_DFL);
    PrintSteps();
    raise(signal);
}

void WatchCrashes(bool watch)
{
    for (const int signal : {SIGSEGV, SIGABRT, SIGBUS, SIGFPE})
        std::signal(signal, watch ? &OnCrash : SIG_DFL);
}
#endif

/// A page that is only a widget.
class EmptyControl : public Automation::HostedControl
{
public:
    explicit EmptyControl(QWidget* parent)
        : m_widget(new QWidget(parent))
    { }
    ~EmptyControl() override { delete m_widget; }
    QWidget* widget() const override { return m_widget; }
    bool setControl(const QString&) override { return true; }
    QVariant dynamicCall(const QString&, const QVariantList&) override { return {}; }
    WId winId() const override { return 0; }
    void show() override { }
    void clear() override { }

private:
    QPointer<QWidget> m_widget;
};

} // namespace

class tst_Storm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        WatchCrashes(true);
        Automation::AutomationRegistry::SetControlFactory(
            [](QWidget* parent) { return std::make_unique<EmptyControl>(parent); });
        m_seed = qEnvironmentVariableIntValue("UICOMPONENTS_STORM_SEED");
        m_seconds = qEnvironmentVariableIntValue("UICOMPONENTS_STORM_SECONDS");
    }

    void cleanupTestCase()
    {
        QTest::qWait(500); // fades of Qt's own delete themselves
        WatchCrashes(false);
    }

    void storm_data()
    {
        QTest::addColumn<int>("kind");
        for (int i = 0; i < m_kinds.size(); ++i)
            QTest::newRow(m_kinds.at(i).className.split(':').last()) << i;
    }

    // Catches widgets that crash, warn or contradict themselves after whatever was done to them.
    void storm()
    {
        QFETCH(int, kind);
        QElapsedTimer time;
        time.start();
        const QtMessageHandler handler = qInstallMessageHandler(&NoteWarning);
        QString fault;
        const int first = qMax(1, m_seed);
        const bool once = m_seed > 0 && m_seconds == 0;
        int seed = first;
        while (fault.isEmpty()) {
            Command() = "UICOMPONENTS_STORM_SEED=" + QByteArray::number(seed) + ' '
                + QCoreApplication::applicationFilePath().toLocal8Bit() + " storm:" + QTest::currentDataTag();
            fault = FaultOf(m_kinds.at(kind), seed);
            ++seed;
            if (once || (seed >= first + Seeds && time.elapsed() > 1000 * m_seconds / m_kinds.size()))
                break;
        }
        qInstallMessageHandler(handler);
        if (m_seconds > 0)
            qInfo("%d storms of %d steps in %lld s", seed - first, StepsPerSeed, time.elapsed() / 1000);
        if (!fault.isEmpty())
            PrintSteps();
        QVERIFY2(fault.isEmpty(), qPrintable(fault));
    }

    // Catches a new widget that no storm goes over.
    void everyWidgetHasAStorm()
    {
        // Not widgets; and the bubble that there is one of, which each storm shows.
        QStringList known{
            QStringLiteral("AxExcelFunction"), QStringLiteral("KvSkinNotifier"),
            QStringLiteral("KvTranslatedText"), QStringLiteral("KvMessageNotify"),
            QStringLiteral("CTipLabel")};
        for (const Kind& kind : m_kinds)
            known.append(QString::fromLatin1(kind.className.split(':').last()));
        const QRegularExpression declaration(
            QStringLiteral(R"(class UICOMPONENTS_EXPORT (\w+)\s*:\s*public )"));
        const QStringList headers = QStringLiteral(PUBLIC_HEADERS).split(QLatin1Char('|'));
        int found = 0;
        for (const QString& header : headers) {
            QFile file(QStringLiteral(SOURCE_TREE "/") + header);
            QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(header));
            const auto match = declaration.match(QString::fromUtf8(file.readAll()));
            found += match.hasMatch() ? 1 : 0;
            QVERIFY2(!match.hasMatch() || known.contains(match.captured(1)), qPrintable(header));
        }
        QCOMPARE(found, known.size());
    }

private:
    static QString FaultOf(const Kind& kind, int seed)
    {
        Warning().clear();
        QString fault;
        {
            Storm storm(kind, seed);
            for (int step = 0; fault.isEmpty() && step < StepsPerSeed; ++step)
                fault = Warning().isEmpty() ? storm.Step() : Warning();
        }
        return fault.isEmpty() ? Warning() : fault;
    }

    const QVector<Kind>& m_kinds = Storms::Kinds();
    int m_seed = 0;
    int m_seconds = 0;
};

STRICT_TEST_MAIN(tst_Storm)
#include "tst_storm.moc"
