#include "support/StrictMain.h"

#include <Platform/Automation/AutomationRegistry.h>
#include <Platform/Automation/HostedControl.h>
#include <UI/LinkWeb/CActiveXLinkWebCtrl.h>

#include <QApplication>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QTextCodec>
#include <functional>

using UICommonMdl::CActiveXLinkWebCtrl;

namespace {

/// Notes whether each event that reaches it was marked ignored on the way.
class EventProbe : public QWidget
{
public:
    using QWidget::QWidget;
    QVector<QPair<QEvent::Type, bool>> seen; // type, still accepted

protected:
    bool event(QEvent* event) override
    {
        seen.append({event->type(), event->isAccepted()});
        return QWidget::event(event);
    }
};

/// What a scripted control was asked for, and how it answers.
struct Script
{
    QStringList calls;
    QVector<QVariantList> arguments;
    QPointer<QWidget> widget; // an EventProbe
    WId window = 1; // the control says that this is its native window
    LINKWEB::ILinkWebAPI* listener = nullptr;
    std::function<void()> onLoad;
    bool deleted = false;
    int made = 0;

    QVariantList ArgumentsOf(const QString& call) const { return arguments.value(calls.lastIndexOf(call)); }
    void Forget()
    {
        calls.clear();
        arguments.clear();
    }
};

const QString AddListener = QStringLiteral("AddLinster(ULONGLONG)");
const QString Load = QStringLiteral("init(string,long,string,string)");
const QString RunScript = QStringLiteral("CallJavaScritp(string)");

/// A control without a page: writes down what it is asked for.
class ScriptedControl : public Automation::HostedControl
{
public:
    ScriptedControl(Script& script, QWidget* parent)
        : m_script(script)
    {
        m_script.widget = new EventProbe(parent);
        ++m_script.made;
    }
    ~ScriptedControl() override
    {
        delete m_script.widget;
        m_script.deleted = true;
    }
    QWidget* widget() const override { return m_script.widget; }
    bool setControl(const QString&) override
    {
        Note(QStringLiteral("setControl"), {});
        return true;
    }
    QVariant dynamicCall(const QString& member, const QVariantList& arguments) override
    {
        Note(member, arguments);
        if (member == AddListener) {
            const auto address = static_cast<quintptr>(arguments.value(0).toULongLong());
            m_script.listener = reinterpret_cast<LINKWEB::ILinkWebAPI*>(address);
        } else if (member == Load && m_script.onLoad) {
            m_script.onLoad(); // may delete this control
        }
        return QVariant();
    }
    WId winId() const override { return m_script.window; }
    void show() override { Note(QStringLiteral("show"), {}); }
    void clear() override { Note(QStringLiteral("clear"), {}); }

private:
    void Note(const QString& call, const QVariantList& arguments)
    {
        m_script.calls.append(call);
        m_script.arguments.append(arguments);
    }

    Script& m_script;
};

void UseScriptedControls(Script& script)
{
    Automation::AutomationRegistry::SetControlFactory(
        [&script](QWidget* parent) { return std::make_unique<ScriptedControl>(script, parent); });
}

const QString Address = QStringLiteral("http://maps.example/site");

} // namespace

class tst_linkweb : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { Automation::AutomationRegistry::SetControlFactory({}); }

    void InvalidAddress_data();
    void InvalidAddress();
    void Loading();
    void Scripts_data();
    void Scripts();
    void CallBacks_data();
    void CallBacks();
    void ParameterInOtherEncoding();
    void SlotDeletesWidget_data();
    void SlotDeletesWidget();
    void WidgetDeletedWhileLoading();
    void ResizeWithoutControl();
    void Resize_data();
    void Resize();
    void Events_data();
    void Events();
    void EventsOfChildren();
    void Destruction();
    void ControlWidgetGoneFirst();
    void NoProvider();
};

void tst_linkweb::InvalidAddress_data()
{
    QTest::addColumn<QString>("address");
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << QStringLiteral("");
    QTest::newRow("open bracket") << QStringLiteral("http://[::1");
    QTest::newRow("no port number") << QStringLiteral("http://host:port/");
    QTest::newRow("host with a blank") << QStringLiteral("http://a b/");
}

// Catches an invalid address that is stored, makes a control or disturbs the page that is shown.
void tst_linkweb::InvalidAddress()
{
    QFETCH(QString, address);
    Script script;
    UseScriptedControls(script);
    CActiveXLinkWebCtrl web;
    web.SetUrl(address);
    QCOMPARE(web.GetUrl(), QString());
    QCOMPARE(script.made, 0);

    web.SetUrl(Address);
    script.Forget();
    web.SetUrl(address);
    QCOMPARE(web.GetUrl(), Address);
    QCOMPARE(script.calls, QStringList());
}

// Catches a page loaded before its listener is known, arguments of other types, a control of another size
// than the widget, and a second control for the second page.
void tst_linkweb::Loading()
{
    Script script;
    UseScriptedControls(script);
    CActiveXLinkWebCtrl web;
    web.resize(321, 123);
    // Tolerant reading takes it, and the text is passed on as it was given.
    const QString address = QStringLiteral("file:///maps/Plan B.html?x=\u00e9");
    web.SetUrl(address);
    QCOMPARE(
        script.calls, QStringList({QStringLiteral("setControl"), AddListener, Load, QStringLiteral("show")}));
    QCOMPARE(script.listener, static_cast<LINKWEB::ILinkWebAPI*>(&web));
    QCOMPARE(script.ArgumentsOf(AddListener).value(0).userType(), int(QMetaType::ULongLong));
    QCOMPARE(script.ArgumentsOf(Load), QVariantList({address, 0, QString(), QString()}));
    QCOMPARE(script.widget->parentWidget(), &web);
    QVERIFY(!script.widget->isWindow());
    QCOMPARE(script.widget->geometry(), QRect(0, 0, 321, 123));
    QCOMPARE(web.GetUrl(), address);

    script.Forget();
    web.SetUrl(address);
    QCOMPARE(script.calls, QStringList({AddListener, Load, QStringLiteral("show")}));
    QCOMPARE(script.made, 1);
}

void tst_linkweb::Scripts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("plain") << QStringLiteral("highlight([1])");
    QTest::newRow("empty") << QStringLiteral("");
    QTest::newRow("several lines") << QStringLiteral("\nlet a = '\\n';\r\n// done\n");
    QTest::newRow("other alphabets") << QStringLiteral("show('\u76d1\u63a7 \U0001F4F7')");
}

// Catches a script that is altered, and one that is kept for a control that comes later.
void tst_linkweb::Scripts()
{
    QFETCH(QString, text);
    Script script;
    UseScriptedControls(script);
    CActiveXLinkWebCtrl web;
    web.ExecuteJavaScript(text);
    web.SetUrl(Address);
    QVERIFY(!script.calls.contains(RunScript));
    web.ExecuteJavaScript(text);
    QCOMPARE(script.ArgumentsOf(RunScript), QVariantList({text}));
}

void tst_linkweb::CallBacks_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("param");
    QTest::addColumn<QStringList>("signalsSeen");
    const QString loaded = QStringLiteral("loaded");
    QTest::newRow("load report") << QByteArray("initComplete") << QByteArray("")
                                 << QStringList{loaded, QStringLiteral("initComplete|")};
    QTest::newRow("load report of the mobile page") << QByteArray("initMComplete") << QByteArray("7")
                                                    << QStringList{loaded, QStringLiteral("initMComplete|7")};
    QTest::newRow("other case") << QByteArray("InitComplete") << QByteArray("")
                                << QStringList{QStringLiteral("InitComplete|")};
    QTest::newRow("longer name") << QByteArray("initCompleted") << QByteArray("")
                                 << QStringList{QStringLiteral("initCompleted|")};
    QTest::newRow("other alphabets") << QByteArray("\xe9\x95\x9c") << QByteArray("\xf0\x9f\x93\xb7")
                                     << QStringList{QStringLiteral("\u955c|\U0001F4F7")};
    QTest::newRow("null name") << QByteArray() << QByteArray("p") << QStringList{QStringLiteral("|p")};
    QTest::newRow("null both") << QByteArray() << QByteArray() << QStringList{QStringLiteral("|")};
}

// Catches a load report that is missed, mistaken or swallowed, signals in the wrong order, and a null
// pointer that is read.
void tst_linkweb::CallBacks()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, param);
    QFETCH(QStringList, signalsSeen);
    CActiveXLinkWebCtrl web;
    QStringList seen;
    connect(&web, &CActiveXLinkWebCtrl::sgnLoadFinished, this, [&](bool ok) {
        seen << (ok ? QStringLiteral("loaded") : QStringLiteral("failed"));
    });
    connect(&web, &CActiveXLinkWebCtrl::sgnMainCall, this, [&](const QString& n, const QString& p) {
        seen << n + QLatin1Char('|') + p;
    });
    LINKWEB::ILinkWebAPI& api = web;
    const auto pointer = [](const QByteArray& bytes) { return bytes.isNull() ? nullptr : bytes.constData(); };
    QCOMPARE(api.CallBack(pointer(name), pointer(param)), 0L);
    QCOMPARE(seen, signalsSeen);
}

// Catches a name read in the local encoding, or a parameter read as UTF-8.
void tst_linkweb::ParameterInOtherEncoding()
{
    QTextCodec* before = QTextCodec::codecForLocale();
    QTextCodec* other = QTextCodec::codecForName("GB18030");
    QVERIFY2(other, "this Qt has no codec for GB18030");
    QTextCodec::setCodecForLocale(other);
    CActiveXLinkWebCtrl web;
    const QSignalSpy calls(&web, &CActiveXLinkWebCtrl::sgnMainCall);
    web.CallBack("\xe7\x9b\x91\xe6\x8e\xa7", "\xbc\xe0\xbf\xd8");
    QTextCodec::setCodecForLocale(before);
    QCOMPARE(calls.value(0), QVariantList({QStringLiteral("\u76d1\u63a7"), QStringLiteral("\u76d1\u63a7")}));
}

void tst_linkweb::SlotDeletesWidget_data()
{
    QTest::addColumn<bool>("whenLoaded");
    QTest::addColumn<int>("mainCalls");
    QTest::newRow("when loaded") << true << 0;
    QTest::newRow("when called") << false << 1;
}

// Catches a widget that is used after a slot of the client deleted it.
void tst_linkweb::SlotDeletesWidget()
{
    QFETCH(bool, whenLoaded);
    QFETCH(int, mainCalls);
    Script script;
    UseScriptedControls(script);
    auto* web = new CActiveXLinkWebCtrl;
    web->SetUrl(Address);
    int seen = 0;
    connect(web, &CActiveXLinkWebCtrl::sgnMainCall, this, [&] { ++seen; });
    if (whenLoaded)
        connect(web, &CActiveXLinkWebCtrl::sgnLoadFinished, this, [&] { delete web; });
    else
        connect(web, &CActiveXLinkWebCtrl::sgnMainCall, this, [&] { delete web; });
    QCOMPARE(script.listener->CallBack("initComplete", ""), 0L);
    QCOMPARE(seen, mainCalls);
    QVERIFY(script.deleted);
}

// Catches a control that is shown after a page that loads at once made the client delete the widget.
void tst_linkweb::WidgetDeletedWhileLoading()
{
    Script script;
    UseScriptedControls(script);
    auto* web = new CActiveXLinkWebCtrl;
    script.onLoad = [&] { delete web; };
    web->SetUrl(Address);
    QVERIFY(script.deleted);
    QCOMPARE(
        script.calls.mid(script.calls.indexOf(Load) + 1),
        QStringList({AddListener, QStringLiteral("clear")}));
}

// Catches a resize that needs a control.
void tst_linkweb::ResizeWithoutControl()
{
    Script script;
    UseScriptedControls(script);
    CActiveXLinkWebCtrl web;
    web.show();
    web.resize(200, 150);
    QCOMPARE(web.size(), QSize(200, 150));
    QCOMPARE(script.made, 0);
}

void tst_linkweb::Resize_data()
{
    QTest::addColumn<quint64>("window");
    QTest::addColumn<bool>("passedOn");
    QTest::newRow("native window") << quint64(7) << true;
    QTest::newRow("no native window yet") << quint64(0) << false;
}

// Catches a control that does not follow the widget, a page that is not told, and a control that is moved
// before it has a window.
void tst_linkweb::Resize()
{
    QFETCH(quint64, window);
    QFETCH(bool, passedOn);
    Script script;
    script.window = WId(window);
    UseScriptedControls(script);
    CActiveXLinkWebCtrl web;
    web.resize(100, 100);
    web.SetUrl(Address);
    web.show();
    script.widget->setGeometry(5, 6, 7, 8);
    script.Forget();
    web.resize(640, 480);
    QCOMPARE(script.widget->geometry(), passedOn ? QRect(0, 0, 640, 480) : QRect(5, 6, 7, 8));
    QCOMPARE(script.calls.count(RunScript), passedOn ? 1 : 0);
    if (passedOn)
        QCOMPARE(script.ArgumentsOf(RunScript), QVariantList({QStringLiteral("zoomChange()")}));
}

namespace {

/// The filter at hand, for events that Qt delivers during a real drag only.
struct OpenFilter : CActiveXLinkWebCtrl
{
    using CActiveXLinkWebCtrl::eventFilter;
};

/// Presses the mouse on @p target. @return whether each press arrived accepted; empty when none arrived
QVector<bool> PressesOnArrival(EventProbe& target)
{
    target.seen.clear();
    QTest::mousePress(&target, Qt::LeftButton);
    QVector<bool> accepted;
    for (const auto& event : qAsConst(target.seen)) {
        if (event.first == QEvent::MouseButtonPress)
            accepted.append(event.second);
    }
    return accepted;
}

} // namespace

void tst_linkweb::Events_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("press") << int(QEvent::MouseButtonPress) << false;
    QTest::newRow("release") << int(QEvent::MouseButtonRelease) << false;
    QTest::newRow("drag enter") << int(QEvent::DragEnter) << false;
    QTest::newRow("drag move") << int(QEvent::DragMove) << false;
    QTest::newRow("drag leave") << int(QEvent::DragLeave) << false;
    QTest::newRow("double click") << int(QEvent::MouseButtonDblClick) << true;
    QTest::newRow("mouse move") << int(QEvent::MouseMove) << true;
    QTest::newRow("drop") << int(QEvent::Drop) << true;
    QTest::newRow("key") << int(QEvent::KeyPress) << true;
}

// Catches events that are consumed on their way to the page, and marks on the wrong ones.
void tst_linkweb::Events()
{
    QFETCH(int, type);
    QFETCH(bool, accepted);
    Script script;
    UseScriptedControls(script);
    OpenFilter web;
    QWidget stranger;
    web.SetUrl(Address);
    QWidget child(script.widget);
    QObject noWidget(script.widget);
    const auto acceptedAfter = [&](QObject& watched) {
        QEvent event{QEvent::Type(type)};
        return !web.eventFilter(&watched, &event) && event.isAccepted();
    };
    QCOMPARE(acceptedAfter(*script.widget), accepted);
    QCOMPARE(acceptedAfter(child), accepted);
    QVERIFY(acceptedAfter(noWidget));
    QVERIFY(acceptedAfter(stranger));
}

// Catches children of the control that are not watched, for the one that the page lies in often comes
// late, and others that are.
void tst_linkweb::EventsOfChildren()
{
    Script script;
    UseScriptedControls(script);
    CActiveXLinkWebCtrl web;
    web.SetUrl(Address);
    QCOMPARE(PressesOnArrival(static_cast<EventProbe&>(*script.widget)), QVector<bool>({false}));
    EventProbe child(script.widget);
    EventProbe grandchild(&child);
    EventProbe sibling(&web);
    QCOMPARE(PressesOnArrival(grandchild).value(0), true);
    QCOMPARE(PressesOnArrival(sibling), QVector<bool>({true}));
    QCOMPARE(PressesOnArrival(child), QVector<bool>({false}));
    child.setParent(&web);
    QCOMPARE(PressesOnArrival(child), QVector<bool>({true}));
}

// Catches a control that outlives the widget, or goes before the page's way back is cut.
void tst_linkweb::Destruction()
{
    Script script;
    UseScriptedControls(script);
    {
        CActiveXLinkWebCtrl web;
        web.SetUrl(Address);
        new EventProbe(script.widget);
        script.Forget();
    }
    QCOMPARE(script.calls, QStringList({AddListener, QStringLiteral("clear")}));
    QCOMPARE(script.arguments.value(0), QVariantList({qulonglong(0)}));
    QVERIFY(script.deleted);
    QVERIFY(!script.widget);
}

// Catches calls on a control whose widget somebody else has deleted.
void tst_linkweb::ControlWidgetGoneFirst()
{
    Script script;
    UseScriptedControls(script);
    CActiveXLinkWebCtrl web;
    web.SetUrl(Address);
    web.show();
    delete script.widget;
    web.resize(300, 200);
    web.SetUrl(Address);
    QCOMPARE(script.made, 1);
}

// Catches a widget that cannot do without a provider, or never asks again.
void tst_linkweb::NoProvider()
{
    Automation::AutomationRegistry::SetControlFactory(
        [](QWidget*) { return std::unique_ptr<Automation::HostedControl>(); });
    Script script;
    CActiveXLinkWebCtrl web;
    web.show();
    web.SetUrl(Address);
    web.ExecuteJavaScript(QStringLiteral("highlight([])"));
    web.resize(300, 200);
    QCOMPARE(web.GetUrl(), Address);
    QVERIFY(!web.HasControl());

    UseScriptedControls(script);
    web.SetUrl(Address);
    QVERIFY(web.HasControl());
    QCOMPARE(script.made, 1);
}

STRICT_TEST_MAIN(tst_linkweb)

#include "tst_linkweb.moc"
