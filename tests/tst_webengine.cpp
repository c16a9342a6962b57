#include "support/Columns.h"
#include "support/StrictMain.h"
#include "support/VirtualDisplay.h"
#include "web/RenderProcesses.h"
#include "web/WebServer.h"

#include <Platform/Automation/AutomationRegistry.h>
#include <Platform/BasicUIComponents/KvLanguage.h>
#include <UI/LinkWeb/CActiveXLinkWebCtrl.h>

#include <QtTest>
#include <QtWidgets>
#include <csignal>
#include <functional>
#include <unistd.h>

using UICommonMdl::CActiveXLinkWebCtrl;

namespace {

constexpr int Patience = 30000; // milliseconds, for a machine with much else to do

QString Name(const char* text) { return QString::fromLatin1(text); }

/// A text as a script writes it.
QString Literal(const QString& text)
{
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(array.mid(1, array.size() - 2));
}

QString CallOf(const QString& name, const QString& param = QString())
{
    return QStringLiteral("window.external.CallBack(%1, %2);").arg(Literal(name), Literal(param));
}

QString ScriptPage(const QString& script)
{
    return QStringLiteral("<!DOCTYPE html><meta charset='utf-8'><script>%1</script>").arg(script);
}

/// Runs the event loop until @p reached is true. (QTest::qWaitFor() runs it too seldom for the engine, which
/// comes with hundreds of small events for each page.)
/// @return false when it takes too long
bool WaitUntil(const std::function<bool()>& reached)
{
    QEventLoop loop;
    QTimer look;
    QElapsedTimer time;
    time.start();
    QObject::connect(&look, &QTimer::timeout, [&] {
        if (reached() || time.elapsed() > Patience)
            loop.quit();
    });
    look.start(5);
    loop.exec();
    return reached();
}

/// A web control on the display that notes what its page calls.
struct Client
{
    Client()
        : web(std::make_unique<CActiveXLinkWebCtrl>())
    {
        QObject::connect(
            web.get(), &CActiveXLinkWebCtrl::sgnMainCall, web.get(),
            [this](const QString& name, const QString& param) {
                names.append(name);
                params.append(param);
            });
        web->resize(400, 300);
        web->show();
    }

    /// Loads the page, and waits until it reports.
    bool Open(const QString& url)
    {
        names.clear();
        params.clear();
        web->SetUrl(url);
        return WaitFor(Name("initComplete"));
    }

    bool WaitFor(const QString& name) const
    {
        return WaitUntil([&] { return names.contains(name); });
    }

    QString Param(const QString& name) const { return params.value(names.indexOf(name)); }

    /// The value of an expression in the page. Everything that the page called before has arrived then.
    QString Value(const QString& expression)
    {
        const QString mark = QStringLiteral("value %1").arg(++values);
        web->ExecuteJavaScript(
            QStringLiteral("window.external.CallBack('%1', '' + (%2))").arg(mark, expression));
        if (!WaitFor(mark))
            return QStringLiteral("no answer");
        const int at = names.indexOf(mark);
        names.removeAt(at);
        return params.takeAt(at);
    }

    std::unique_ptr<CActiveXLinkWebCtrl> web;
    QStringList names; // of the calls
    QStringList params;
    int values = 0;
};

/// Counts the turns that the program gets while a page does its worst.
class Pulse
{
public:
    Pulse()
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this] { ++m_iTurns; });
        m_timer.start(10);
    }
    bool Beats(int turns) const
    {
        return WaitUntil([&] { return m_iTurns >= turns; });
    }

private:
    QTimer m_timer;
    int m_iTurns = 0;
};

/// What the application allows pages, for as long as the object lives.
struct Allowed
{
    explicit Allowed(const QStringList& words) { qApp->setProperty("linkWebAllowed", words); }
    ~Allowed() { qApp->setProperty("linkWebAllowed", QVariant()); }
};

void ExpectWarning(const char* pattern)
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QString::fromLatin1(pattern)));
}

/// The client's side of a bare control.
struct Listener : LINKWEB::ILinkWebAPI
{
    QStringList names;

    long CallBack(const char* name, const char*) override
    {
        names.append(QString::fromUtf8(name));
        return 0;
    }
    qulonglong Address()
    {
        return qulonglong(reinterpret_cast<quintptr>(static_cast<LINKWEB::ILinkWebAPI*>(this)));
    }
};

} // namespace

class tst_webengine : public QObject
{
    Q_OBJECT

private slots:
    // Catches a sandbox that is switched off without a word.
    void initTestCase()
    {
        if (geteuid() == 0)
            ExpectWarning("without its sandbox: the program runs as root");
        CActiveXLinkWebCtrl web;
        web.SetUrl(Page(QString()));
        QVERIFY2(web.HasControl(), "the provider's plugin is missing or does not load");
    }

    void LoadReport_data()
    {
        TestSupport::Columns<QString, QStringList>("html", "calls");
        const QString own = Name("initComplete");
        QTest::newRow("page without script") << QStringLiteral("<p>Plan</p>") << QStringList{own};
        QTest::newRow("empty page") << QString() << QStringList{own};
        QTest::newRow("page that reports itself")
            << ScriptPage(QStringLiteral("onload = () => { %1 }").arg(CallOf(own, Name("own"))))
            << QStringList{own};
        QTest::newRow("page that reports itself early")
            << ScriptPage(CallOf(Name("initMComplete"))) << QStringList{Name("initMComplete")};
        QTest::newRow("page that calls something else")
            << ScriptPage(CallOf(Name("hello"))) << QStringList{Name("hello"), own};
    }

    // Catches a page that is never reported, or reported beside its own report.
    void LoadReport()
    {
        QFETCH(QString, html);
        QFETCH(QStringList, calls);
        Client client;
        client.web->SetUrl(Page(html));
        QVERIFY(client.WaitFor(calls.last()));
        QCOMPARE(client.Value(Name("document.readyState")), Name("complete"));
        QCOMPARE(client.names, calls);
        // Again, for another page, without a scheme.
        QVERIFY(client.Open(QUrl(Page(QString())).toLocalFile()));
        QCOMPARE(client.Value(Name("1")), Name("1"));
        QCOMPARE(client.names, QStringList{Name("initComplete")});
    }

    // Catches a page that loads and is not seen.
    void PageIsPainted()
    {
        Client client;
        QVERIFY(client.Open(Page(QStringLiteral("<body style='background: #2468ac'>"))));
        const auto colour = [&] { return client.web->grab().toImage().pixelColor(200, 150); };
        QTRY_COMPARE_WITH_TIMEOUT(colour(), QColor(0x24, 0x68, 0xac), Patience);
    }

    // Catches a page that keeps its first size, or is not told of the new one.
    void Resize()
    {
        Client client;
        QVERIFY(client.Open(Page(ScriptPage(QStringLiteral(
            "function zoomChange() { window.external.CallBack('zoom', '') }"
            "onresize = () => window.external.CallBack('size', innerWidth + 'x' + innerHeight)")))));
        client.web->resize(640, 480);
        QVERIFY(client.WaitFor(Name("zoom")));
        QTRY_COMPARE_WITH_TIMEOUT(
            client.params.value(client.names.lastIndexOf(Name("size"))), Name("640x480"), Patience);
    }

    void Texts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("chinese") << QStringLiteral("\u76d1\u63a7\u4e2d\u5fc3 3\u53f7\u6444\u50cf\u673a");
        QTest::newRow("beyond the basic plane") << QStringLiteral("\U0001F4F7\U0001F6A8");
        QTest::newRow("right to left") << QStringLiteral("\u0643\u0627\u0645\u064a\u0631\u0627 \u200f7");
        QTest::newRow("quotes and lines") << QStringLiteral("'\"`\\ ${x}\r\n\u2028 </script>");
        QTest::newRow("a long text") << QStringLiteral("\u955c\u5934").repeated(300000);
    }

    // Catches texts that are altered on their way to the page or back, in the name or in the parameter.
    void Texts()
    {
        QFETCH(QString, text);
        Client client;
        QVERIFY(client.Open(Page(QString())));
        QCOMPARE(client.Value(QStringLiteral("%1.length").arg(Literal(text))), QString::number(text.size()));
        QCOMPARE(client.Value(Literal(text)), text);
        const QString name = text.left(100);
        client.web->ExecuteJavaScript(CallOf(name, text));
        QVERIFY(client.WaitFor(name));
        QCOMPARE(client.Param(name), text);
    }

    void WordlessArguments_data()
    {
        TestSupport::Columns<QString, QString, QString>("call", "name", "param");
        QTest::newRow("none") << QStringLiteral("window.external.CallBack()") << QString() << QString();
        QTest::newRow("null") << QStringLiteral("window.external.CallBack('n', null)") << Name("n")
                              << QString();
        QTest::newRow("number") << QStringLiteral("window.external.CallBack(3, 4.5)") << Name("3")
                                << Name("4.5");
        QTest::newRow("object") << QStringLiteral("linkWeb.CallBack('n', [1, 2])") << Name("n")
                                << Name("1,2");
        QTest::newRow("by itself") << QStringLiteral("(0, linkWeb.CallBack)('n', 'p')") << Name("n")
                                   << Name("p");
        QTest::newRow("zero character")
            << QStringLiteral("linkWeb.CallBack('n', 'a\\0b')") << Name("n") << Name("a");
    }

    // Catches arguments that are no texts and come as "undefined", or stop the call.
    void WordlessArguments()
    {
        QFETCH(QString, call);
        QFETCH(QString, name);
        QFETCH(QString, param);
        Client client;
        QVERIFY(client.Open(Page(QString())));
        QCOMPARE(client.Value(call), Name("0"));
        QCOMPARE(client.names.last(), name);
        QCOMPARE(client.params.last(), param);
    }

    // Catches scripts that run in an empty page before the real one is there, or in another order, and ones
    // that fill the memory meanwhile.
    void ScriptsWaitForPage()
    {
        WebServer server;
        server.Answer(
            QStringLiteral("/page"),
            ScriptPage(
                QStringLiteral("onload = () => { window.say = text => linkWeb.CallBack('said', text) }"))
                .toUtf8());
        Client client;
        client.web->SetUrl(server.Url(QStringLiteral("/page")));
        for (const char* text : {"one", "two", "three"})
            client.web->ExecuteJavaScript(QStringLiteral("say('%1')").arg(Name(text)));
        for (int i = 0; i < 2000; ++i)
            client.web->ExecuteJavaScript(QStringLiteral("window.n = (window.n || 0) + 1"));
        QVERIFY(client.WaitFor(Name("said")));
        QCOMPARE(client.Value(Name("document.readyState + n")), Name("complete997"));
        QCOMPARE(client.params, QStringList({QString(), Name("one"), Name("two"), Name("three")}));
    }

    // Catches a bridge that lies in the document, which a page may replace.
    void DocumentWrittenAnew()
    {
        Client client;
        QVERIFY(client.Open(Page(QString())));
        client.web->ExecuteJavaScript(
            QStringLiteral("document.open(); document.write('<p>new'); document.close()"));
        QCOMPARE(client.Value(Name("document.body.innerText")), Name("new"));
    }

    // Catches a frame, which may be from anywhere, that can call the client.
    void FramesHaveNoBridge()
    {
        WebServer server;
        const QByteArray tries
            = "<script>try { window.external.CallBack('frame', '') } catch (e) { }"
              "try { linkWeb.CallBack('frame', '') } catch (e) { }"
              "top.postMessage([typeof linkWeb, typeof external.CallBack].join(), '*')</script>";
        server.Answer(QStringLiteral("/frame"), tries);
        Client client;
        QVERIFY(client.Open(
            Page(QStringLiteral("<script>let seen = []; onmessage = e => { seen.push(e.data) }</script>"
                                "<iframe src='%1'></iframe><iframe srcdoc=\"%2\"></iframe>")
                     .arg(server.Url(QStringLiteral("/frame")), QString::fromLatin1(tries)))));
        const QString none = Name("undefined,undefined");
        QTRY_COMPARE_WITH_TIMEOUT(
            client.Value(Name("seen.join(' ')")), none + QLatin1Char(' ') + none, Patience);
        QCOMPARE(client.names, QStringList{Name("initComplete")});
    }

    // Catches a page that gets hold of the channel behind the call, and with it of objects of the client.
    void NothingButTheCall()
    {
        Client client;
        QVERIFY(client.Open(Page(QString())));
        QCOMPARE(client.Value(Name("typeof qt + typeof linkWebClient")), Name("undefinedundefined"));
        QCOMPARE(
            client.Value(Name("Object.keys(linkWeb).concat(Object.keys(external)).join()")),
            Name("CallBack,CallBack"));
        // Neither by the events between the two ends, nor by things of the language that the page replaces.
        client.web->ExecuteJavaScript(QStringLiteral(
            "let got = 'nothing'; addEventListener('linkWebHello', e => { got = e.relatedTarget });"
            "dispatchEvent(new Event('linkWebAsk'));"
            "JSON.stringify = Array.prototype.push = Map.prototype.get = window.CustomEvent = window.String "
            "= () "
            "=> 'x';"
            "EventTarget.prototype.dispatchEvent = () => false"));
        QCOMPARE(client.Value(Name("(got, 'sound')")), Name("sound"));
    }

    // Catches a flood that stops the client, fills its memory, or mixes up the calls.
    void FloodOfCalls()
    {
        Client client;
        const Pulse pulse;
        QVERIFY(client.Open(Page(ScriptPage(
            QStringLiteral("window.taken = 0; window.refused = 0; window.flood = true;"
                           "function pour() { for (let i = 0; i < 20000; ++i) {"
                           "  if (linkWeb.CallBack('drop', String(taken)) === 0) ++taken; else ++refused; }"
                           "  if (flood) setTimeout(pour, 0) }"
                           "onload = () => { linkWeb.CallBack('initComplete', ''); pour() }")))));
        QVERIFY(pulse.Beats(20));
        client.web->ExecuteJavaScript(Name("flood = false"));
        QTRY_VERIFY_WITH_TIMEOUT(client.names.size() > 4096, Patience);
        for (int i = 1; i < client.names.size(); ++i)
            QCOMPARE(client.params.at(i), QString::number(i - 1));
        // The page can call again when the client has caught up.
        QTRY_VERIFY_WITH_TIMEOUT(client.Value(Name("refused > 0")) == Name("true"), Patience);
    }

    // Catches huge arguments that reach the client, and large ones that do not.
    void CallsTooLong()
    {
        Client client;
        QVERIFY(client.Open(Page(QString())));
        QCOMPARE(client.Value(Name("linkWeb.CallBack('n'.repeat(1025), '')")), Name("-1"));
        QCOMPARE(client.Value(Name("linkWeb.CallBack('n', 'p'.repeat(4194305))")), Name("-1"));
        QCOMPARE(client.Value(Name("linkWeb.CallBack('n', 'p'.repeat(1 << 28))")), Name("-1"));
        QCOMPARE(client.names.size(), 1);
        QCOMPARE(client.Value(Name("linkWeb.CallBack('n'.repeat(1024), 'p'.repeat(4194304))")), Name("0"));
        QCOMPARE(client.names.value(1).size(), 1024);
        QCOMPARE(client.params.value(1).size(), 4194304);
    }

    // Catches a view without a page that keeps its name when the operator chooses another language.
    void NameFollowsTheLanguage()
    {
        const auto control = Automation::AutomationRegistry::CreateControl(nullptr);
        QVERIFY(control && control->setControl(Name("LinkWeb.PageControl")));
        QCOMPARE(control->widget()->accessibleName(), Name("Web page"));
        QVERIFY(KvGUI::SetLanguage(Name("zh_CN")));
        QTRY_COMPARE(control->widget()->accessibleName(), QStringLiteral("\u7f51\u9875"));
        QVERIFY(KvGUI::SetLanguage(Name("en")));
        QTRY_COMPARE(control->widget()->accessibleName(), Name("Web page"));
    }

    // Catches calls that reach a listener that was taken away.
    void CallsAfterRemoval()
    {
        const QString add = Name("AddLinster(ULONGLONG)");
        const QString run = Name("CallJavaScritp(string)");
        QWidget window;
        window.resize(300, 200);
        window.show();
        const auto control = Automation::AutomationRegistry::CreateControl(&window);
        QVERIFY(control);
        QVERIFY(!control->setControl(Name("Some.OtherControl")));
        QVERIFY(control->setControl(Name("LinkWeb.PageControl")));
        Listener first;
        Listener second;
        control->dynamicCall(add, {first.Address()});
        control->dynamicCall(
            Name("init(string,long,string,string)"), {Page(QString()), 0, QString(), QString()});
        control->show();
        QTRY_VERIFY_WITH_TIMEOUT(first.names.contains(Name("initComplete")), Patience);

        control->dynamicCall(add, {qulonglong(0)});
        // More calls than may be on their way at once: the last is sent when the others have been taken.
        control->dynamicCall(
            run,
            {QStringLiteral("let n = 0; function call() { linkWeb.CallBack('late', '');"
                            " if (++n < 40) setTimeout(call, 1); else document.title = 'done' } call()")});
        QTRY_COMPARE_WITH_TIMEOUT(control->widget()->accessibleName(), Name("done"), Patience);
        QCOMPARE(first.names.size(), 1);
        QVERIFY(KvGUI::SetLanguage(Name("zh_CN")));
        QCoreApplication::processEvents();
        QVERIFY(KvGUI::SetLanguage(Name("en")));
        QCOMPARE(control->widget()->accessibleName(), Name("done"));

        control->dynamicCall(Name("Explode"));
        control->dynamicCall(add, {second.Address()});
        control->dynamicCall(run, {CallOf(Name("again"))});
        QTRY_VERIFY_WITH_TIMEOUT(second.names.contains(Name("again")), Patience);
        QCOMPARE(first.names.size(), 1);

        control->clear();
        control->dynamicCall(run, {CallOf(Name("cleared"))});
        control->dynamicCall(add, {second.Address()});
        QVERIFY(!second.names.contains(Name("cleared")));
    }

    // Catches calls on a control whose view the client has deleted.
    void ViewGoneFirst()
    {
        const auto control = Automation::AutomationRegistry::CreateControl(nullptr);
        QVERIFY(control && control->setControl(Name("LinkWeb.PageControl")));
        delete control->widget();
        control->dynamicCall(Name("init(string,long,string,string)"), {Page(QString())});
        control->show();
        QCOMPARE(control->winId(), WId(0));
        QVERIFY(!control->setControl(Name("LinkWeb.PageControl")));
    }

    // Catches a dialog of a page that stops the client, or a page that stops for its own dialog.
    void Dialogs()
    {
        Client client;
        QVERIFY(client.Open(Page(QString())));
        QCOMPARE(client.Value(Name("[alert('x'), confirm('x'), prompt('x', 'y')].join()")), Name(",false,"));
        QCOMPARE(QApplication::activeModalWidget(), nullptr);
    }

    void Hanging_data()
    {
        QTest::addColumn<QString>("script");
        QTest::newRow("alert loop") << QStringLiteral("for (;;) alert('again')");
        QTest::newRow("endless loop") << QStringLiteral("for (;;) { }");
        QTest::newRow("reload loop") << QStringLiteral("location.reload()");
        QTest::newRow("leaving guard") << QStringLiteral("onbeforeunload = e => { e.returnValue = 'stay' }");
    }

    // Catches a page that stops the client, or that the client cannot leave for another.
    void Hanging()
    {
        QFETCH(QString, script);
        Client client;
        client.web->SetUrl(Page(
            ScriptPage(CallOf(Name("started")) + QStringLiteral("setTimeout(() => { %1 }, 0)").arg(script))));
        QVERIFY(client.WaitFor(Name("started")));
        const Pulse pulse;
        QVERIFY(pulse.Beats(20));
        QVERIFY(client.Open(Page(QString())));
        QCOMPARE(client.Value(Name("1 + 1")), Name("2"));
    }

    // Catches a page that takes the bridge or scripts of the client along in an unready state.
    void NavigationAway()
    {
        Client client;
        const QString second = Page(ScriptPage(QStringLiteral("window.page = 'second'")));
        QVERIFY(client.Open(Page(QString())));
        client.names.clear();
        client.params.clear();
        client.web->ExecuteJavaScript(QStringLiteral("location = %1").arg(Literal(second)));
        QVERIFY(client.WaitFor(Name("initComplete")));
        QCOMPARE(client.Value(Name("page")), Name("second"));
        QCOMPARE(client.web->GetUrl().contains(Name("page")), true);
    }

    void RefusedRequests_data()
    {
        TestSupport::Columns<QString, QByteArray>("script", "refused");
        const QByteArray scheme = "The way to another scheme was refused to a page: (rtsp-map|mailto):";
        QTest::newRow("location") << QStringLiteral("location = 'rtsp-map://somewhere/'") << scheme;
        QTest::newRow("mail") << QStringLiteral("location = 'mailto:someone@example.org'") << scheme;
        const auto element = [](const char* row, const char* tag, const char* script,
                                const QByteArray& refused) {
            const QString made
                = QStringLiteral("{ const e = document.createElement('%1'); %2; document.body.append(e);"
                                 " e.click() }");
            QTest::newRow(row) << made.arg(Name(tag), Name(script)) << refused;
        };
        element("link", "a", "e.href = 'rtsp-map:x'", scheme);
        element("frame", "iframe", "e.src = 'rtsp-map:x'", scheme);
        element(
            "file", "input",
            "e.type = 'file'; e.style = 'position: fixed; left: 0; top: 0; width: 100%; height: 100%'",
            "The choice of a file was refused");
        QTest::newRow("window, twice") << QStringLiteral("open('about:blank'); open('about:blank')")
                                       << QByteArray("A new window was refused");
        QTest::newRow("place") << QStringLiteral("navigator.geolocation.getCurrentPosition(() => { })")
                               << QByteArray("The use of a device was refused");
    }

    // Catches a page that starts another program, opens windows, reads files or uses devices without leave,
    // and one that fills the log.
    void RefusedRequests()
    {
        QFETCH(QString, script);
        QFETCH(QByteArray, refused);
        Client client;
        QVERIFY(client.Open(Page(QStringLiteral("<body>"))));
        const int windows = QApplication::topLevelWidgets().size();
        ExpectWarning(refused.constData());
        client.web->ExecuteJavaScript(script);
        QCOMPARE(client.Value(Name("document.readyState")), Name("complete"));
        // Some of it takes a user who clicks.
        QTest::mouseClick(client.web->findChild<QWidget*>()->focusProxy(), Qt::LeftButton, {}, {200, 150});
        QCOMPARE(client.Value(Name("location.protocol")), Name("file:"));
        QCOMPARE(QApplication::topLevelWidgets().size(), windows);
    }

    // Catches a page that reads files of this machine without leave.
    void LocalFiles()
    {
        WebServer server;
        server.Answer(QStringLiteral("/page"), "<body>");
        const QString secret = Page(QStringLiteral("secret"));
        const QString read
            = QStringLiteral("{ const r = new XMLHttpRequest; r.open('GET', %1);"
                             " r.onloadend = () => linkWeb.CallBack('read', r.responseText); r.send() }")
                  .arg(Literal(secret));
        Client client;
        for (const QString& url : {Page(QStringLiteral("<body>")), server.Url(QStringLiteral("/page"))}) {
            QVERIFY(client.Open(url));
            client.web->ExecuteJavaScript(read);
            QVERIFY(client.WaitFor(Name("read")));
            QCOMPARE(client.Param(Name("read")), QString());
        }
        const Allowed allowed({Name("file-access")});
        QVERIFY(client.Open(Page(QStringLiteral("<body>"))));
        client.web->ExecuteJavaScript(read);
        QVERIFY(client.WaitFor(Name("read")));
        QCOMPARE(client.Param(Name("read")), Name("secret"));
    }

    // Catches windows that can call the client.
    void NewWindows()
    {
        const QString other = Page(ScriptPage(QStringLiteral("opener.postMessage(typeof linkWeb, '*')")));
        const QString open = QStringLiteral("window.open(%1)").arg(Literal(other));
        Client client;
        const Allowed allowed({Name("new-windows")});
        QVERIFY(client.Open(
            Page(ScriptPage(QStringLiteral("onmessage = e => linkWeb.CallBack('seen', e.data)")))));
        client.web->ExecuteJavaScript(open);
        QVERIFY(client.WaitFor(Name("seen")));
        QCOMPARE(client.Param(Name("seen")), Name("undefined"));
        QCOMPARE(client.web->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly).size(), 2);
    }

    // Catches a file that is saved without leave, and one that is not with it.
    void Downloads()
    {
        WebServer server;
        const QByteArray attached = "Content-Disposition: attachment; filename=plan.bin\r\n";
        server.Answer(QStringLiteral("/plan"), "12345", attached);
        const QString fetch
            = QStringLiteral("location = %1").arg(Literal(server.Url(QStringLiteral("/plan"))));
        const auto saved = [] {
            QFile file(
                QStandardPaths::writableLocation(QStandardPaths::DownloadLocation)
                + QLatin1String("/plan.bin"));
            return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        };
        Client client;
        QVERIFY(client.Open(Page(QString())));
        ExpectWarning("A download was refused");
        client.web->ExecuteJavaScript(fetch);
        QVERIFY(WaitUntil([&] { return server.Asked().size() == 1; }));
        QCOMPARE(client.Value(Name("1 + 1")), Name("2"));

        const Allowed allowed({Name("downloads")});
        Client other;
        QVERIFY(other.Open(Page(QString())));
        other.web->ExecuteJavaScript(fetch);
        QVERIFY(WaitUntil([&] { return saved() == "12345"; }));
        QCOMPARE(other.Value(Name("1 + 1")), Name("2"));
    }

    // Catches a page that cannot be loaded and is reported as loaded, or that stops what comes after it.
    void UnreachablePage()
    {
        Client client;
        ExpectWarning("A page did not load: file:///no/such/page.html");
        client.web->SetUrl(QStringLiteral("file:///no/such/page.html"));
        client.web->ExecuteJavaScript(CallOf(Name("lost")));
        ExpectWarning("The way to another scheme was refused to a page: rtsp-map:");
        CActiveXLinkWebCtrl().SetUrl(Name("rtsp-map:x"));
        const QSignalSpy finished(client.web->findChild<QWidget*>(), SIGNAL(loadFinished(bool)));
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, Patience);
        QVERIFY(client.names.isEmpty());
        QVERIFY(client.Open(Page(QString())));
        QVERIFY(!client.names.contains(Name("lost")));
    }

    // Catches a page that is used after a slot of the client deleted the widget.
    void SlotDeletesWidget()
    {
        auto* web = new CActiveXLinkWebCtrl;
        web->show();
        const QPointer<CActiveXLinkWebCtrl> alive(web);
        connect(web, &CActiveXLinkWebCtrl::sgnMainCall, this, [&] { delete web; });
        web->SetUrl(Page(ScriptPage(CallOf(Name("first")) + CallOf(Name("second")))));
        QTRY_VERIFY_WITH_TIMEOUT(!alive, Patience);
    }

    // Catches a page that reports to a widget that has gone, at whatever point of its load.
    void DestructionWhileLoading()
    {
        WebServer server; // never answers
        const QString call = Page(ScriptPage(CallOf(Name("late")).repeated(50)));
        for (int turns = 0; turns < 24; ++turns) {
            Client client;
            client.web->SetUrl(turns % 2 == 0 ? call : server.Url(QStringLiteral("/never")));
            client.web->ExecuteJavaScript(CallOf(Name("script")));
            QTest::qWait(5 * turns); // another point of the load each time
        }
        Client client;
        QVERIFY(client.Open(Page(QString())));
    }

    // Catches calls of a page that was left while it loaded, and scripts for it that run in the next one.
    void NewAddressWhileLoading()
    {
        WebServer server;
        const QString page = Page(ScriptPage(CallOf(Name("from the old page")).repeated(50)));
        const QString last = Page(QString());
        for (int turns = 0; turns < 12; ++turns) {
            Client client;
            client.web->SetUrl(turns % 3 == 0 ? server.Url(QStringLiteral("/never")) : page);
            client.web->ExecuteJavaScript(CallOf(Name("for the old page")));
            QTest::qWait(5 * turns); // another point of the load each time
            QVERIFY(client.Open(last));
            QCOMPARE(client.Value(Name("1")), Name("1"));
            QCOMPARE(client.names, QStringList{Name("initComplete")});
        }
    }

    void ProcessKilled_data()
    {
        TestSupport::Columns<int, QString>("signal", "end");
        QTest::newRow("killed") << SIGKILL << Name("killed");
        QTest::newRow("crashed") << SIGSEGV << Name("crashed");
    }

    // Catches a dead page that nobody hears of, takes the client along, or stays dead.
    void ProcessKilled()
    {
        QFETCH(int, signal);
        QFETCH(QString, end);
        Client client;
        QVERIFY(client.Open(Page(QString())));
        const QVector<int> processes = RenderProcesses();
        QVERIFY(!processes.isEmpty());
        ExpectWarning(("The render process of a page has ended: " + end.toLatin1()).constData());
        for (const int process : processes)
            ::kill(process, signal);
        QVERIFY(client.WaitFor(Name("webTerminated")));
        QCOMPARE(client.Param(Name("webTerminated")), end);
        client.web->ExecuteJavaScript(CallOf(Name("lost")));
        client.web->resize(500, 400);

        QVERIFY(client.Open(Page(QString())));
        QCOMPARE(client.Value(Name("innerWidth")), Name("500"));
        QVERIFY(!client.names.contains(Name("lost")));
    }

    // Catches a client that waits for a page whose process is stopped, or that cannot leave it for another.
    void ProcessStopped()
    {
        Client client;
        QVERIFY(client.Open(Page(QString())));
        const QVector<int> processes = RenderProcesses();
        QVERIFY(!processes.isEmpty());
        for (const int process : processes)
            ::kill(process, SIGSTOP);
        client.web->ExecuteJavaScript(CallOf(Name("lost")));
        client.web->resize(500, 400);
        const Pulse pulse;
        QVERIFY(pulse.Beats(20));
        const bool left = client.Open(Page(QString())) && client.Value(Name("innerWidth")) == Name("500");
        for (const int process : processes)
            ::kill(process, SIGCONT);
        QVERIFY(left);
        QVERIFY(!client.names.contains(Name("lost")));
    }

private:
    /// The address of a local page.
    QString Page(const QString& html)
    {
        QFile file(m_folder.filePath(QStringLiteral("page %1.html").arg(++m_iPages)));
        if (!file.open(QIODevice::WriteOnly) || file.write(html.toUtf8()) < 0)
            return QString();
        return QUrl::fromLocalFile(file.fileName()).toString();
    }

    QTemporaryDir m_folder;
    int m_iPages = 0;
};

int main(int argc, char** argv)
{
    TestSupport::PrepareEnvironment();
    const TestSupport::VirtualDisplay display;
    const QTemporaryDir home; // for downloads
    qputenv("HOME", QFile::encodeName(home.path()));
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication application(argc, argv);
    tst_webengine test;
    return TestSupport::RunStrictly(test, argc, argv);
}

#include "tst_webengine.moc"
