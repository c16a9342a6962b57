#include "support/Columns.h"
#include "support/StrictMain.h"
#include "support/Text.h"
#include "support/VirtualDisplay.h"
#include "web/RenderProcesses.h"
#include "web/WebServer.h"

#include <Platform/Automation/AutomationRegistry.h>
#include <Platform/BasicUIComponents/KvLanguage.h>
#include <UI/LinkWeb/CActiveXLinkWebCtrl.h>

#include <QtTest>
#include <QtWidgets>
#include <atomic>
#include <csignal>
#include <functional>
#include <unistd.h>

using namespace TestSupport;
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
    return "window.external.CallBack(%1, %2);"_s.arg(Literal(name), Literal(param));
}

QString ScriptPage(const QString& script)
{
    return "<!DOCTYPE html><meta charset='utf-8'><script>%1</script>"_s.arg(script);
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
        return WaitFor("initComplete"_s);
    }

    bool WaitFor(const QString& name) const
    {
        return WaitUntil([&] { return names.contains(name); });
    }

    QString Param(const QString& name) const { return params.value(names.indexOf(name)); }

    /// The value of an expression in the page. Everything that the page called before has arrived then.
    QString Value(const QString& expression)
    {
        const QString mark = "value %1"_s.arg(++values);
        web->ExecuteJavaScript("window.external.CallBack('%1', '' + (%2))"_s.arg(mark, expression));
        if (!WaitFor(mark))
            return "no answer"_s;
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

/// Awaits a warning that comes when a process of the engine gets to it; QTest::ignoreMessage() asks for it
/// when the test ends, which may be too early. One warning is taken: another like it is unannounced.
class AwaitedWarning
{
public:
    explicit AwaitedWarning(const QByteArray& pattern)
        : m_pattern(QString::fromLatin1(pattern))
    {
        s_awaited = this;
        s_usual = qInstallMessageHandler(&Take);
    }
    ~AwaitedWarning() { qInstallMessageHandler(s_usual); }

    bool Came() const { return m_came; }

private:
    static void Take(QtMsgType type, const QMessageLogContext& context, const QString& message)
    {
        const bool awaited = type == QtWarningMsg && s_awaited->m_pattern.match(message).hasMatch();
        if (!awaited || s_awaited->m_came.exchange(true))
            s_usual(type, context, message);
    }

    static AwaitedWarning* s_awaited;
    static QtMessageHandler s_usual;
    const QRegularExpression m_pattern;
    std::atomic<bool> m_came = false; // the engine's threads log, too
};

AwaitedWarning* AwaitedWarning::s_awaited = nullptr;
QtMessageHandler AwaitedWarning::s_usual = nullptr;

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
        Columns<QString, QStringList>("html", "calls");
        const QString own = "initComplete"_s;
        Row("page without script", "<p>Plan</p>"_s, QStringList{own});
        Row("empty page", QString(), QStringList{own});
        Row("page that reports itself", ScriptPage("onload = () => { %1 }"_s.arg(CallOf(own, "own"_s))),
            QStringList{own});
        Row("page that reports itself early", ScriptPage(CallOf("initMComplete"_s)),
            QStringList{"initMComplete"_s});
        Row("page that calls something else", ScriptPage(CallOf("hello"_s)), QStringList{"hello"_s, own});
    }

    // Catches a page that is never reported, or reported beside its own report.
    void LoadReport()
    {
        QFETCH(QString, html);
        QFETCH(QStringList, calls);
        Client client;
        client.web->SetUrl(Page(html));
        QVERIFY(client.WaitFor(calls.last()));
        QCOMPARE(client.Value("document.readyState"_s), "complete"_s);
        QCOMPARE(client.names, calls);
        // Again, for another page, without a scheme.
        QVERIFY(client.Open(QUrl(Page(QString())).toLocalFile()));
        QCOMPARE(client.Value("1"_s), "1"_s);
        QCOMPARE(client.names, QStringList{"initComplete"_s});
    }

    // Catches a page that loads and is not seen, keeps its first size, or is not told of the new one.
    void PageIsPainted()
    {
        Client client;
        QVERIFY(client.Open(Page(
            "<body style='background: #2468ac'>"_s
            + ScriptPage(
                "function zoomChange() { window.external.CallBack('zoom', '') }"
                "onresize = () => window.external.CallBack('size', innerWidth + 'x' + innerHeight)"_s))));
        client.web->resize(640, 480);
        QVERIFY(client.WaitFor("zoom"_s));
        QTRY_COMPARE_WITH_TIMEOUT(
            client.params.value(client.names.lastIndexOf("size"_s)), "640x480"_s, Patience);
        const auto colour = [&] { return client.web->grab().toImage().pixelColor(600, 450); };
        QTRY_COMPARE_WITH_TIMEOUT(colour(), QColor(0x24, 0x68, 0xac), Patience);
    }

    void Texts_data()
    {
        QTest::addColumn<QString>("text");
        Row("chinese", "\u76d1\u63a7\u4e2d\u5fc3 3\u53f7\u6444\u50cf\u673a"_s);
        Row("beyond the basic plane", "\U0001F4F7\U0001F6A8"_s);
        Row("right to left", "\u0643\u0627\u0645\u064a\u0631\u0627 \u200f7"_s);
        Row("quotes and lines", "'\"`\\ ${x}\r\n\u2028 </script>"_s);
        Row("a long text", "\u955c\u5934"_s.repeated(300000));
    }

    // Catches texts that are altered on their way to the page or back, in the name or in the parameter.
    void Texts()
    {
        QFETCH(QString, text);
        Client client;
        QVERIFY(client.Open(Page(QString())));
        QCOMPARE(client.Value("%1.length"_s.arg(Literal(text))), QString::number(text.size()));
        QCOMPARE(client.Value(Literal(text)), text);
        const QString name = text.left(100);
        client.web->ExecuteJavaScript(CallOf(name, text));
        QVERIFY(client.WaitFor(name));
        QCOMPARE(client.Param(name), text);
    }

    void WordlessArguments_data()
    {
        Columns<QString, QString, QString>("call", "name", "param");
        Row("none", "window.external.CallBack()"_s, QString(), QString());
        Row("null", "window.external.CallBack('n', null)"_s, "n"_s, QString());
        Row("number", "window.external.CallBack(3, 4.5)"_s, "3"_s, "4.5"_s);
        Row("object", "linkWeb.CallBack('n', [1, 2])"_s, "n"_s, "1,2"_s);
        Row("by itself", "(0, linkWeb.CallBack)('n', 'p')"_s, "n"_s, "p"_s);
        Row("zero character", "linkWeb.CallBack('n', 'a\\0b')"_s, "n"_s, "a"_s);
    }

    // Catches arguments that are no texts and come as "undefined", or stop the call.
    void WordlessArguments()
    {
        QFETCH(QString, call);
        QFETCH(QString, name);
        QFETCH(QString, param);
        Client client;
        QVERIFY(client.Open(Page(QString())));
        QCOMPARE(client.Value(call), "0"_s);
        QCOMPARE(client.names.last(), name);
        QCOMPARE(client.params.last(), param);
    }

    // Catches scripts that run in an empty page before the real one is there, or in another order, and ones
    // that fill the memory meanwhile.
    void ScriptsWaitForPage()
    {
        WebServer server;
        server.Answer(
            "/page"_s,
            ScriptPage("onload = () => { window.say = text => linkWeb.CallBack('said', text) }"_s).toUtf8());
        Client client;
        client.web->SetUrl(server.Url("/page"_s));
        for (const char* text : {"one", "two", "three"})
            client.web->ExecuteJavaScript("say('%1')"_s.arg(Name(text)));
        for (int i = 0; i < 2000; ++i)
            client.web->ExecuteJavaScript("window.n = (window.n || 0) + 1"_s);
        QVERIFY(client.WaitFor("said"_s));
        QCOMPARE(client.Value("document.readyState + n"_s), "complete997"_s);
        QCOMPARE(client.params, QStringList({QString(), "one"_s, "two"_s, "three"_s}));
    }

    // Catches a bridge that lies in the document, which a page may replace.
    void DocumentWrittenAnew()
    {
        Client client;
        QVERIFY(client.Open(Page(QString())));
        client.web->ExecuteJavaScript("document.open(); document.write('<p>new'); document.close()"_s);
        QCOMPARE(client.Value("document.body.innerText"_s), "new"_s);
    }

    // Catches a frame, which may be from anywhere, that can call the client.
    void FramesHaveNoBridge()
    {
        WebServer server;
        const QByteArray tries
            = "<script>try { window.external.CallBack('frame', '') } catch (e) { }"
              "try { linkWeb.CallBack('frame', '') } catch (e) { }"
              "top.postMessage([typeof linkWeb, typeof external.CallBack].join(), '*')</script>";
        server.Answer("/frame"_s, tries);
        Client client;
        QVERIFY(client.Open(Page("<script>let seen = []; onmessage = e => { seen.push(e.data) }</script>"
                                 "<iframe src='%1'></iframe><iframe srcdoc=\"%2\"></iframe>"_s.arg(
                                     server.Url("/frame"_s), QString::fromLatin1(tries)))));
        const QString none = "undefined,undefined"_s;
        QTRY_COMPARE_WITH_TIMEOUT(client.Value("seen.join(' ')"_s), none + QLatin1Char(' ') + none, Patience);
        QCOMPARE(client.names, QStringList{"initComplete"_s});
    }

    // Catches a page that gets hold of the channel behind the call, and with it of objects of the client.
    void NothingButTheCall()
    {
        Client client;
        QVERIFY(client.Open(Page(QString())));
        QCOMPARE(client.Value("typeof qt + typeof linkWebClient"_s), "undefinedundefined"_s);
        QCOMPARE(
            client.Value("Object.keys(linkWeb).concat(Object.keys(external)).join()"_s),
            "CallBack,CallBack"_s);
        // Neither by the events between the two ends, nor by things of the language that the page replaces.
        client.web->ExecuteJavaScript(
            "let got = 'nothing'; addEventListener('linkWebHello', e => { got = e.relatedTarget });"
            "dispatchEvent(new Event('linkWebAsk'));"
            "JSON.stringify = Array.prototype.push = Map.prototype.get = window.CustomEvent = window.String "
            "= () "
            "=> 'x';"
            "EventTarget.prototype.dispatchEvent = () => false"_s);
        QCOMPARE(client.Value("(got, 'sound')"_s), "sound"_s);
    }

    // Catches a flood that stops the client, fills its memory, or mixes up the calls.
    void FloodOfCalls()
    {
        Client client;
        const Pulse pulse;
        QVERIFY(client.Open(
            Page(ScriptPage("window.taken = 0; window.refused = 0; window.flood = true;"
                            "function pour() { for (let i = 0; i < 20000; ++i) {"
                            "  if (linkWeb.CallBack('drop', String(taken)) === 0) ++taken; else ++refused; }"
                            "  if (flood) setTimeout(pour, 0) }"
                            "onload = () => { linkWeb.CallBack('initComplete', ''); pour() }"_s))));
        QVERIFY(pulse.Beats(20));
        client.web->ExecuteJavaScript("flood = false"_s);
        QTRY_VERIFY_WITH_TIMEOUT(client.names.size() > 4096, Patience);
        for (int i = 1; i < client.names.size(); ++i)
            QCOMPARE(client.params.at(i), QString::number(i - 1));
        // The page can call again when the client has caught up.
        QTRY_VERIFY_WITH_TIMEOUT(client.Value("refused > 0"_s) == "true"_s, Patience);
    }

    // Catches huge arguments that reach the client, and large ones that do not.
    void CallsTooLong()
    {
        Client client;
        QVERIFY(client.Open(Page(QString())));
        QCOMPARE(client.Value("linkWeb.CallBack('n'.repeat(1025), '')"_s), "-1"_s);
        QCOMPARE(client.Value("linkWeb.CallBack('n', 'p'.repeat(4194305))"_s), "-1"_s);
        QCOMPARE(client.Value("linkWeb.CallBack('n', 'p'.repeat(1 << 28))"_s), "-1"_s);
        QCOMPARE(client.names.size(), 1);
        QCOMPARE(client.Value("linkWeb.CallBack('n'.repeat(1024), 'p'.repeat(4194304))"_s), "0"_s);
        QCOMPARE(client.names.value(1).size(), 1024);
        QCOMPARE(client.params.value(1).size(), 4194304);
    }

    // Catches a view without a page that keeps its name when the operator chooses another language.
    void NameFollowsTheLanguage()
    {
        const auto control = Automation::AutomationRegistry::CreateControl(nullptr);
        QVERIFY(control && control->setControl("LinkWeb.PageControl"_s));
        QCOMPARE(control->widget()->accessibleName(), "Web page"_s);
        QVERIFY(KvGUI::SetLanguage("zh_CN"_s));
        QTRY_COMPARE(control->widget()->accessibleName(), "\u7f51\u9875"_s);
        QVERIFY(KvGUI::SetLanguage("en"_s));
        QTRY_COMPARE(control->widget()->accessibleName(), "Web page"_s);
    }

    // Catches calls that reach a listener that was taken away, and calls on a control whose view the client
    // has deleted.
    void CallsAfterRemoval()
    {
        const QString add = "AddLinster(ULONGLONG)"_s;
        const QString run = "CallJavaScritp(string)"_s;
        QWidget window;
        window.resize(300, 200);
        window.show();
        const auto control = Automation::AutomationRegistry::CreateControl(&window);
        QVERIFY(control);
        QVERIFY(!control->setControl("Some.OtherControl"_s));
        QVERIFY(control->setControl("LinkWeb.PageControl"_s));
        Listener first;
        Listener second;
        control->dynamicCall(add, {first.Address()});
        control->dynamicCall("init(string,long,string,string)"_s, {Page(QString()), 0, QString(), QString()});
        control->show();
        QTRY_VERIFY_WITH_TIMEOUT(first.names.contains("initComplete"_s), Patience);

        control->dynamicCall(add, {qulonglong(0)});
        // More calls than may be on their way at once: the last is sent when the others have been taken.
        control->dynamicCall(
            run,
            {"let n = 0; function call() { linkWeb.CallBack('late', '');"
             " if (++n < 40) setTimeout(call, 1); else document.title = 'done' } call()"_s});
        QTRY_COMPARE_WITH_TIMEOUT(control->widget()->accessibleName(), "done"_s, Patience);
        QCOMPARE(first.names.size(), 1);
        QVERIFY(KvGUI::SetLanguage("zh_CN"_s));
        QCoreApplication::processEvents();
        QVERIFY(KvGUI::SetLanguage("en"_s));
        QCOMPARE(control->widget()->accessibleName(), "done"_s);

        control->dynamicCall("Explode"_s);
        control->dynamicCall(add, {second.Address()});
        control->dynamicCall(run, {CallOf("again"_s)});
        QTRY_VERIFY_WITH_TIMEOUT(second.names.contains("again"_s), Patience);
        QCOMPARE(first.names.size(), 1);

        control->clear();
        control->dynamicCall(run, {CallOf("cleared"_s)});
        control->dynamicCall(add, {second.Address()});
        QVERIFY(!second.names.contains("cleared"_s));

        QVERIFY(control->setControl("LinkWeb.PageControl"_s));
        delete control->widget();
        control->dynamicCall(run, {CallOf("late"_s)});
        control->show();
        QCOMPARE(control->winId(), WId(0));
        QVERIFY(!control->setControl("LinkWeb.PageControl"_s));
    }

    // Catches a dialog of a page that stops the client, or a page that stops for its own dialog.
    void Dialogs()
    {
        Client client;
        QVERIFY(client.Open(Page(QString())));
        QCOMPARE(client.Value("[alert('x'), confirm('x'), prompt('x', 'y')].join()"_s), ",false,"_s);
        QCOMPARE(QApplication::activeModalWidget(), nullptr);
    }

    void Hanging_data()
    {
        QTest::addColumn<QString>("script");
        Row("alert loop", "for (;;) alert('again')"_s);
        Row("endless loop", "for (;;) { }"_s);
        Row("reload loop", "location.reload()"_s);
        Row("leaving guard", "onbeforeunload = e => { e.returnValue = 'stay' }"_s);
    }

    // Catches a page that stops the client, or that the client cannot leave for another.
    void Hanging()
    {
        QFETCH(QString, script);
        Client client;
        client.web->SetUrl(
            Page(ScriptPage(CallOf("started"_s) + "setTimeout(() => { %1 }, 0)"_s.arg(script))));
        QVERIFY(client.WaitFor("started"_s));
        const Pulse pulse;
        QVERIFY(pulse.Beats(20));
        QVERIFY(client.Open(Page(QString())));
        QCOMPARE(client.Value("1 + 1"_s), "2"_s);
    }

    // Catches a page that takes the bridge or scripts of the client along in an unready state.
    void NavigationAway()
    {
        Client client;
        const QString second = Page(ScriptPage("window.page = 'second'"_s));
        QVERIFY(client.Open(Page(QString())));
        client.names.clear();
        client.params.clear();
        client.web->ExecuteJavaScript("location = %1"_s.arg(Literal(second)));
        QVERIFY(client.WaitFor("initComplete"_s));
        QCOMPARE(client.Value("page"_s), "second"_s);
        QCOMPARE(client.web->GetUrl().contains("page"_s), true);
    }

    void RefusedRequests_data()
    {
        Columns<QString, QByteArray>("script", "refused");
        const QByteArray scheme = "The way to another scheme was refused to a page: (rtsp-map|mailto):";
        Row("location", "location = 'rtsp-map://somewhere/'"_s, scheme);
        Row("mail", "location = 'mailto:someone@example.org'"_s, scheme);
        const auto element = [](const char* row, const char* tag, const char* script,
                                const QByteArray& refused) {
            const QString made = "{ const e = document.createElement('%1'); %2; document.body.append(e);"
                                 " e.click() }"_s;
            Row(row, made.arg(Name(tag), Name(script)), refused);
        };
        element("link", "a", "e.href = 'rtsp-map:x'", scheme);
        element("frame", "iframe", "e.src = 'rtsp-map:x'", scheme);
        element(
            "file", "input",
            "e.type = 'file'; e.style = 'position: fixed; left: 0; top: 0; width: 100%; height: 100%'",
            "The choice of a file was refused");
        Row("window, twice", "open('about:blank'); open('about:blank')"_s,
            QByteArray("A new window was refused"));
        Row("place", "navigator.geolocation.getCurrentPosition(() => { })"_s,
            QByteArray("The use of a device was refused"));
    }

    // Catches a page that starts another program, opens windows, reads files or uses devices without leave,
    // and one that fills the log.
    void RefusedRequests()
    {
        QFETCH(QString, script);
        QFETCH(QByteArray, refused);
        Client client;
        QVERIFY(client.Open(Page("<body>"_s)));
        const int windows = QApplication::topLevelWidgets().size();
        const AwaitedWarning warning(refused);
        client.web->ExecuteJavaScript(script);
        QCOMPARE(client.Value("document.readyState"_s), "complete"_s);
        // Some of it takes a user who clicks, and the engine drops clicks into a page that is not yet
        // painted.
        client.web->ExecuteJavaScript(
            "requestAnimationFrame(() => requestAnimationFrame(() => linkWeb.CallBack('painted', '')))"_s);
        QVERIFY(client.WaitFor("painted"_s));
        QTest::mouseClick(client.web->findChild<QWidget*>()->focusProxy(), Qt::LeftButton, {}, {200, 150});
        QVERIFY(WaitUntil([&] { return warning.Came(); }));
        QCOMPARE(client.Value("location.protocol"_s), "file:"_s);
        QCOMPARE(QApplication::topLevelWidgets().size(), windows);
    }

    // Catches a page that reads files of this machine without leave.
    void LocalFiles()
    {
        WebServer server;
        server.Answer("/page"_s, "<body>");
        const QString secret = Page("secret"_s);
        const QString read
            = "{ const r = new XMLHttpRequest; r.open('GET', %1);"
              " r.onloadend = () => linkWeb.CallBack('read', r.responseText); r.send() }"_s.arg(
                  Literal(secret));
        Client client;
        for (const QString& url : {Page("<body>"_s), server.Url("/page"_s)}) {
            QVERIFY(client.Open(url));
            client.web->ExecuteJavaScript(read);
            QVERIFY(client.WaitFor("read"_s));
            QCOMPARE(client.Param("read"_s), QString());
        }
        const Allowed allowed({"file-access"_s});
        QVERIFY(client.Open(Page("<body>"_s)));
        client.web->ExecuteJavaScript(read);
        QVERIFY(client.WaitFor("read"_s));
        QCOMPARE(client.Param("read"_s), "secret"_s);
    }

    // Catches windows that can call the client.
    void NewWindows()
    {
        const QString other = Page(ScriptPage("opener.postMessage(typeof linkWeb, '*')"_s));
        const QString open = "window.open(%1)"_s.arg(Literal(other));
        Client client;
        const Allowed allowed({"new-windows"_s});
        QVERIFY(client.Open(Page(ScriptPage("onmessage = e => linkWeb.CallBack('seen', e.data)"_s))));
        client.web->ExecuteJavaScript(open);
        QVERIFY(client.WaitFor("seen"_s));
        QCOMPARE(client.Param("seen"_s), "undefined"_s);
        QCOMPARE(client.web->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly).size(), 2);
    }

    // Catches a file that is saved without leave, and one that is not with it.
    void Downloads()
    {
        WebServer server;
        const QByteArray attached = "Content-Disposition: attachment; filename=plan.bin\r\n";
        server.Answer("/plan"_s, "12345", attached);
        const QString fetch = "location = %1"_s.arg(Literal(server.Url("/plan"_s)));
        const auto saved = [] {
            QFile file(
                QStandardPaths::writableLocation(QStandardPaths::DownloadLocation)
                + QLatin1String("/plan.bin"));
            return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        };
        Client client;
        QVERIFY(client.Open(Page(QString())));
        const AwaitedWarning warning("A download was refused");
        client.web->ExecuteJavaScript(fetch);
        QVERIFY(WaitUntil([&] { return warning.Came(); }));
        QCOMPARE(server.Asked().size(), 1);
        QCOMPARE(client.Value("1 + 1"_s), "2"_s);

        const Allowed allowed({"downloads"_s});
        Client other;
        QVERIFY(other.Open(Page(QString())));
        other.web->ExecuteJavaScript(fetch);
        QVERIFY(WaitUntil([&] { return saved() == "12345"; }));
        QCOMPARE(other.Value("1 + 1"_s), "2"_s);
    }

    // Catches a page that cannot be loaded and is reported as loaded, or that stops what comes after it.
    void UnreachablePage()
    {
        Client client;
        ExpectWarning("A page did not load: file:///no/such/page.html");
        client.web->SetUrl("file:///no/such/page.html"_s);
        client.web->ExecuteJavaScript(CallOf("lost"_s));
        ExpectWarning("The way to another scheme was refused to a page: rtsp-map:");
        CActiveXLinkWebCtrl().SetUrl("rtsp-map:x"_s);
        const QSignalSpy finished(client.web->findChild<QWidget*>(), SIGNAL(loadFinished(bool)));
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, Patience);
        QVERIFY(client.names.isEmpty());
        QVERIFY(client.Open(Page(QString())));
        QVERIFY(!client.names.contains("lost"_s));
    }

    // Catches a page that is used after a slot of the client deleted the widget.
    void SlotDeletesWidget()
    {
        auto* web = new CActiveXLinkWebCtrl;
        web->show();
        const QPointer<CActiveXLinkWebCtrl> alive(web);
        connect(web, &CActiveXLinkWebCtrl::sgnMainCall, this, [&] { delete web; });
        web->SetUrl(Page(ScriptPage(CallOf("first"_s) + CallOf("second"_s))));
        QTRY_VERIFY_WITH_TIMEOUT(!alive, Patience);
    }

    // Catches a page that reports to a widget that has gone, calls of a page that was left for another one,
    // and scripts for it that run in the other, at whatever point of its load.
    void LeftWhileLoading()
    {
        WebServer server; // never answers
        const QString page = Page(ScriptPage(CallOf("from the old page"_s).repeated(50)));
        for (int turns = 0; turns < 36; ++turns) {
            Client client;
            client.web->SetUrl(turns % 5 == 0 ? server.Url("/never"_s) : page);
            client.web->ExecuteJavaScript(CallOf("for the old page"_s));
            QTest::qWait(3 * turns); // another point of the load each time
            if (turns % 3 > 0)
                continue;
            QVERIFY(client.Open(Page(QString())));
            QCOMPARE(client.Value("1"_s), "1"_s);
            QCOMPARE(client.names, QStringList{"initComplete"_s});
        }
    }

    void ProcessEnds_data()
    {
        Columns<int, QString>("signal", "end");
        Row("killed", SIGKILL, "killed"_s);
        Row("crashed", SIGSEGV, "crashed"_s);
        Row("stopped", SIGSTOP, QString());
    }

    // Catches a dead page that nobody hears of, takes the client along, or stays dead, and a client that
    // waits for a page whose process is stopped, or cannot leave it for another.
    void ProcessEnds()
    {
        QFETCH(int, signal);
        QFETCH(QString, end);
        Client client;
        QVERIFY(client.Open(Page(QString())));
        const QVector<int> processes = RenderProcesses();
        QVERIFY(!processes.isEmpty());
        if (!end.isEmpty())
            ExpectWarning(("The render process of a page has ended: " + end.toLatin1()).constData());
        for (const int process : processes)
            ::kill(process, signal);
        QVERIFY(end.isEmpty() || client.WaitFor("webTerminated"_s));
        QCOMPARE(client.Param("webTerminated"_s), end);
        client.web->ExecuteJavaScript(CallOf("lost"_s));
        client.web->resize(500, 400);
        const Pulse pulse;
        QVERIFY(pulse.Beats(20));
        const bool left = client.Open(Page(QString())) && client.Value("innerWidth"_s) == "500"_s;
        for (const int process : processes)
            ::kill(process, SIGCONT);
        QVERIFY(left);
        QVERIFY(!client.names.contains("lost"_s));
    }

private:
    /// The address of a local page.
    QString Page(const QString& html)
    {
        QFile file(m_folder.filePath("page %1.html"_s.arg(++m_iPages)));
        if (!file.open(QIODevice::WriteOnly) || file.write(html.toUtf8()) < 0)
            return QString();
        return QUrl::fromLocalFile(file.fileName()).toString();
    }

    QTemporaryDir m_folder;
    int m_iPages = 0;
};

int main(int argc, char** argv)
{
    PrepareEnvironment();
    const VirtualDisplay display;
    const QTemporaryDir home; // for downloads
    qputenv("HOME", QFile::encodeName(home.path()));
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication application(argc, argv);
    tst_webengine test;
    return RunStrictly(test, argc, argv);
}

#include "tst_webengine.moc"
