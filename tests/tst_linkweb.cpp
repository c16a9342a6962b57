#include "support/LocaleCodec.h"
#include "support/StrictMain.h"
#include "support/Text.h"

#include <Platform/Automation/AutomationRegistry.h>
#include <Platform/Automation/HostedControl.h>
#include <UI/LinkWeb/CActiveXLinkWebCtrl.h>

#include <QtTest>
#include <QtWidgets>
#include <functional>
#include <utility>

using namespace TestSupport;
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
    std::function<void(const QString& member)> onCall;
    bool headless = false; // makes controls without a widget
    bool deleted = false;
    int made = 0;

    QVariantList ArgumentsOf(const QString& call) const { return arguments.value(calls.lastIndexOf(call)); }
    void Forget()
    {
        calls.clear();
        arguments.clear();
    }
};

const QString AddListener = "AddLinster(ULONGLONG)"_s;
const QString Load = "init(string,long,string,string)"_s;
const QString RunScript = "CallJavaScritp(string)"_s;

/// A control without a page: writes down what it is asked for.
class ScriptedControl : public Automation::HostedControl
{
public:
    ScriptedControl(Script& script, QWidget* parent)
        : m_script(script)
    {
        m_script.widget = script.headless ? nullptr : new EventProbe(parent);
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
        Note("setControl"_s, {});
        return true;
    }
    QVariant dynamicCall(const QString& member, const QVariantList& arguments) override
    {
        Note(member, arguments);
        if (member == AddListener) {
            const auto address = static_cast<quintptr>(arguments.value(0).toULongLong());
            // NOLINTNEXTLINE(performance-no-int-to-ptr): the interface passes the address as a number
            m_script.listener = reinterpret_cast<LINKWEB::ILinkWebAPI*>(address);
        }
        if (m_script.onCall)
            m_script.onCall(member); // may delete this control
        return QVariant();
    }
    WId winId() const override { return m_script.window; }
    void show() override { Note("show"_s, {}); }
    void clear() override { Note("clear"_s, {}); }

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

const QString Address = "http://maps.example/site"_s;

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

class tst_linkweb : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { Automation::AutomationRegistry::SetControlFactory({}); }

    // Catches an invalid address that is stored, makes a control or disturbs the page that is shown.
    void InvalidAddress()
    {
        for (const QString& address :
             {QString(), ""_s, "http://[::1"_s, "http://host:port/"_s, "http://a b/"_s}) {
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
    }

    // Catches a page loaded before its listener is known, arguments of other types, a control of another size
    // than the widget, and a second control for the second page.
    void Loading()
    {
        Script script;
        UseScriptedControls(script);
        CActiveXLinkWebCtrl web;
        web.resize(321, 123);
        // Tolerant reading takes it, and the text is passed on as it was given.
        const QString address = "file:///maps/Plan B.html?x=\u00e9"_s;
        web.SetUrl(address);
        QCOMPARE(script.calls, QStringList({"setControl"_s, AddListener, Load, "show"_s}));
        QCOMPARE(script.listener, static_cast<LINKWEB::ILinkWebAPI*>(&web));
        QCOMPARE(script.ArgumentsOf(AddListener).value(0).userType(), int(QMetaType::ULongLong));
        QCOMPARE(script.ArgumentsOf(Load), QVariantList({address, 0, QString(), QString()}));
        QCOMPARE(script.widget->parentWidget(), &web);
        QVERIFY(!script.widget->isWindow());
        QCOMPARE(script.widget->geometry(), QRect(0, 0, 321, 123));
        QCOMPARE(web.GetUrl(), address);

        script.Forget();
        web.SetUrl(address);
        QCOMPARE(script.calls, QStringList({AddListener, Load, "show"_s}));
        QCOMPARE(script.made, 1);
    }

    // Catches a script that is altered, and one that is kept for a control that comes later.
    void Scripts()
    {
        Script script;
        UseScriptedControls(script);
        CActiveXLinkWebCtrl web;
        web.ExecuteJavaScript("early()"_s);
        web.SetUrl(Address);
        QVERIFY(!script.calls.contains(RunScript));
        for (const QString& text :
             {"highlight([1])"_s, ""_s, "\nlet a = '\\n';\r\n// done\n"_s,
              "show('\u76d1\u63a7 \U0001F4F7')"_s}) {
            web.ExecuteJavaScript(text);
            QCOMPARE(script.ArgumentsOf(RunScript), QVariantList({text}));
        }
    }

    // Catches a load report that is missed, mistaken or swallowed, signals in the wrong order, a null pointer
    // that is read, and a name in the local encoding or a parameter in UTF-8.
    void CallBacks()
    {
        CActiveXLinkWebCtrl web;
        QStringList seen;
        connect(&web, &CActiveXLinkWebCtrl::sgnLoadFinished, this, [&](bool ok) {
            seen << (ok ? "loaded"_s : "failed"_s);
        });
        connect(
            &web, &CActiveXLinkWebCtrl::sgnMainCall, this,
            [&](const QString& name, const QString& param) { seen << name + QLatin1Char('|') + param; });
        LINKWEB::ILinkWebAPI& api = web;
        const auto reported = [&](const char* name, const char* param) {
            seen.clear();
            return api.CallBack(name, param) == 0L ? seen : QStringList("another result"_s);
        };
        QCOMPARE(reported("initComplete", ""), QStringList({"loaded"_s, "initComplete|"_s}));
        QCOMPARE(reported("initMComplete", "7"), QStringList({"loaded"_s, "initMComplete|7"_s}));
        QCOMPARE(reported("InitComplete", ""), QStringList("InitComplete|"_s));
        QCOMPARE(reported("initCompleted", ""), QStringList("initCompleted|"_s));
        QCOMPARE(reported("\u955c", "\U0001F4F7"), QStringList("\u955c|\U0001F4F7"_s));
        QCOMPARE(reported(nullptr, "p"), QStringList("|p"_s));
        QCOMPARE(reported(nullptr, nullptr), QStringList("|"_s));
        const TestSupport::LocaleCodec other("GB18030");
        QVERIFY(other.IsKnown());
        QCOMPARE(reported("\u76d1\u63a7", "\xbc\xe0\xbf\xd8"), QStringList("\u76d1\u63a7|\u76d1\u63a7"_s));
    }

    // Catches a widget that is used after a slot of the client deleted it.
    void SlotDeletesWidget()
    {
        for (const bool whenLoaded : {true, false}) {
            Script script;
            UseScriptedControls(script);
            auto* web = new CActiveXLinkWebCtrl;
            web->SetUrl(Address);
            int mainCalls = 0;
            connect(web, &CActiveXLinkWebCtrl::sgnMainCall, this, [&] { ++mainCalls; });
            if (whenLoaded)
                connect(web, &CActiveXLinkWebCtrl::sgnLoadFinished, this, [&] { delete web; });
            else
                connect(web, &CActiveXLinkWebCtrl::sgnMainCall, this, [&] { delete web; });
            QCOMPARE(script.listener->CallBack("initComplete", ""), 0L);
            QCOMPARE(mainCalls, whenLoaded ? 0 : 1);
            QVERIFY(script.deleted);
        }
    }

    // Catches a call of a control after one in which it called back and made the client delete the widget;
    // and a control that outlives the widget, or goes before the page's way back is cut.
    void WidgetDeletedInsideACall()
    {
        for (const QString& call : {AddListener, Load, RunScript}) {
            Script script;
            UseScriptedControls(script);
            auto* web = new CActiveXLinkWebCtrl;
            web->show();
            bool gone = false;
            script.onCall = [&](const QString& member) {
                if (member == call && !std::exchange(gone, true))
                    delete web;
            };
            web->SetUrl(Address);
            if (!gone)
                new EventProbe(script.widget);
            QResizeEvent resize(QSize(300, 200), QSize(100, 100)); // by hand: Qt goes on with what it resizes
            if (call == RunScript)
                QApplication::sendEvent(web, &resize);
            QVERIFY(script.deleted);
            QVERIFY(!script.widget);
            QCOMPARE(script.calls.mid(script.calls.indexOf(call) + 1), QStringList({AddListener, "clear"_s}));
            QCOMPARE(script.ArgumentsOf(AddListener), QVariantList({qulonglong(0)}));
        }
    }

    // Catches a control that does not follow the widget, a page that is not told, and a control that is moved
    // before it has a window.
    void Resize()
    {
        for (const WId window : {WId(7), WId(0)}) {
            Script script;
            script.window = window;
            UseScriptedControls(script);
            CActiveXLinkWebCtrl web;
            web.show();
            web.resize(100, 100);
            QCOMPARE(script.made, 0); // no control is needed for it
            web.SetUrl(Address);
            script.widget->setGeometry(5, 6, 7, 8);
            script.Forget();
            web.resize(640, 480);
            QCOMPARE(script.widget->geometry(), window == 0 ? QRect(5, 6, 7, 8) : QRect(0, 0, 640, 480));
            QCOMPARE(script.calls, window == 0 ? QStringList() : QStringList(RunScript));
            if (window != 0)
                QCOMPARE(script.ArgumentsOf(RunScript), QVariantList({"zoomChange()"_s}));
        }
    }

    // Catches events that are consumed on their way to the page, and marks on the wrong ones.
    void Events()
    {
        Script script;
        UseScriptedControls(script);
        OpenFilter web;
        web.SetUrl(Address);
        QWidget stranger;
        QWidget child(script.widget);
        QObject noWidget(script.widget);
        const auto marks = [&](QEvent::Type type) {
            QStringList names;
            for (QObject* watched : QObjectList{script.widget, &child, &noWidget, &stranger}) {
                QEvent event(type);
                if (web.eventFilter(watched, &event))
                    return QString();
                names << (event.isAccepted() ? "passed"_s : "ignored"_s);
            }
            return names.join(QLatin1Char(' '));
        };
        for (const QEvent::Type type :
             {QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::DragEnter, QEvent::DragMove,
              QEvent::DragLeave})
            QCOMPARE(marks(type), "ignored ignored passed passed"_s);
        for (const QEvent::Type type :
             {QEvent::MouseButtonDblClick, QEvent::MouseMove, QEvent::Drop, QEvent::KeyPress})
            QCOMPARE(marks(type), "passed passed passed passed"_s);
    }

    // Catches children of the control that are not watched, for the one that the page lies in often comes
    // late, and others that are.
    void EventsOfChildren()
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

    // Catches a touch of the widget of a control that has none, or whose widget somebody else has deleted.
    void ControlWithoutAWidget()
    {
        for (const bool atFirst : {true, false}) {
            Script script;
            script.headless = atFirst;
            UseScriptedControls(script);
            CActiveXLinkWebCtrl web;
            web.SetUrl(Address);
            web.show();
            delete script.widget;
            web.resize(300, 200);
            web.SetUrl(Address);
            QCOMPARE(script.made, 1);
        }
    }

    // Catches a widget that cannot do without a provider, or never asks again.
    void NoProvider()
    {
        Automation::AutomationRegistry::SetControlFactory(
            [](QWidget*) { return std::unique_ptr<Automation::HostedControl>(); });
        Script script;
        CActiveXLinkWebCtrl web;
        web.show();
        web.SetUrl(Address);
        web.ExecuteJavaScript("highlight([])"_s);
        web.resize(300, 200);
        QCOMPARE(web.GetUrl(), Address);
        QVERIFY(!web.HasControl());

        UseScriptedControls(script);
        web.SetUrl(Address);
        QVERIFY(web.HasControl());
        QCOMPARE(script.made, 1);
    }
};

STRICT_TEST_MAIN(tst_linkweb)

#include "tst_linkweb.moc"
