#include "automation/ProbeObject.h"
#include "support/StrictMain.h"
#include "support/Text.h"

#include <Platform/Automation/AutomationRegistry.h>

#include <QtTest>
#include <QtWidgets>

using namespace TestSupport;
using Automation::AutomationRegistry;

namespace {

QString Origin(const char* programId)
{
    const auto object = AutomationRegistry::CreateObject(QLatin1String(programId));
    return object ? object->property(QString()).toString() : "none"_s;
}

} // namespace

class TestAutomation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // A folder that does not exist, a library that is none, and a provider that cannot be loaded here (it
        // is for another machine) must do no harm.
        QFile broken(m_broken.filePath("libbroken.so"_s));
        QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("no library") > 0);
        const QString other = m_broken.filePath("libother.so"_s);
        QVERIFY(QFile::copy(QStringLiteral(PROBE_PLUGINS "/lib1-ProbeProvider.so"), other));
        QFile machine(other);
        QVERIFY(machine.open(QIODevice::ReadWrite) && machine.seek(18) && machine.write("\xFF\xFF") == 2);
        machine.close();
        const QStringList folders{"/nonexistent"_s, m_broken.path(), QStringLiteral(PROBE_PLUGINS)};
        qputenv("UICOMPONENTS_PLUGIN_PATH", QFile::encodeName(folders.join(QDir::listSeparator())));
    }

    // Catches a plugin that is not found, one that is loaded for what it does not offer (a browser engine for
    // a workbook, beside another that has delivered, or where there is no display for it, which ends the
    // program), and one whose failure hides the next.
    void LoadsProvidersWhenAskedFor()
    {
        QWidget parent;
        QVERIFY(AutomationRegistry::CreateControl(&parent));
        QCOMPARE(Origin("Probe.Unknown"), "none"_s);
        QCOMPARE(Origin("Probe.First"), "probe:Probe.First"_s);
        QVERIFY(!qApp->property("otherProviderLoaded").toBool());
        QCOMPARE(Origin("Probe.Both"), "other:Probe.Both"_s);
        QVERIFY(qApp->property("otherProviderLoaded").toBool());
        QCOMPARE(Origin("Probe.Second"), "other:Probe.Second"_s);
        QVERIFY(!qApp->property("foreignProviderLoaded").toBool());
    }

    // Catches a real office that is started behind the back of an application with a factory of its own.
    void PrefersTheApplicationsFactory()
    {
        const QString id = "Probe.First"_s;
        AutomationRegistry::SetObjectFactory(id, [] { return std::make_unique<ProbeObject>("own"_s); });
        QCOMPARE(Origin("Probe.First"), "own"_s);
        QCOMPARE(Origin("Probe.Second"), "other:Probe.Second"_s);
        AutomationRegistry::SetObjectFactory(id, [] { return nullptr; });
        QCOMPARE(Origin("Probe.First"), "none"_s);
        AutomationRegistry::SetObjectFactory(id, {});
        QCOMPARE(Origin("Probe.First"), "probe:Probe.First"_s);
    }

    // Catches a control that opens in a window of its own.
    void MakesControlsInTheirParent()
    {
        QWidget parent;
        const auto control = AutomationRegistry::CreateControl(&parent);
        QVERIFY(control && control->widget());
        QCOMPARE(control->widget()->parentWidget(), &parent);
        AutomationRegistry::SetControlFactory([](QWidget*) { return nullptr; });
        QVERIFY(!AutomationRegistry::CreateControl(&parent));
        AutomationRegistry::SetControlFactory({});
        QVERIFY(AutomationRegistry::CreateControl(&parent));
    }

private:
    QTemporaryDir m_broken;
};

STRICT_TEST_MAIN(TestAutomation)

#include "tst_automation.moc"
