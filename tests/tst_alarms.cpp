// The example client's page of alarms: with a recorded spreadsheet application, and with a real office.

#include "excel/RecordedObject.h"
#include "support/Columns.h"
#include "support/StrictMain.h"

#include <Platform/BasicUIComponents/KvMessageNotify.h>
#include <gallery/Alarms/AlarmExport.h>
#include <gallery/Alarms/AlarmImport.h>
#include <gallery/Alarms/AlarmPage.h>

#include <QtTest>
#include <QtWidgets>

using namespace OperatorClient;

namespace {

QDateTime Moment() { return {QDate(2026, 3, 14), QTime(10, 24, 36)}; }
constexpr int Patience = 60000; // for an office on a busy machine, milliseconds

QList<QList<QString>> ManyRows(int count)
{
    QList<QList<QString>> rows;
    for (int row = 0; row < count; ++row)
        rows << QList<QString>{QString::number(row)};
    return rows;
}

QStringList TextsOf(const QVector<AlarmRecord>& alarms)
{
    QStringList lines;
    for (const AlarmRecord& alarm : alarms)
        lines << alarm.Texts().join(QLatin1Char('|'));
    return lines;
}

QPushButton* Button(const QWidget& page, const QString& text)
{
    const QList<QPushButton*> buttons = page.findChildren<QPushButton*>();
    for (QPushButton* button : buttons) {
        if (button->text().contains(text))
            return button;
    }
    return nullptr;
}

/// Notes the text of a label each time that all of it is painted.
class PaintedTexts : public QObject
{
public:
    explicit PaintedTexts(QLabel* label)
        : m_pLabel(label)
    {
        label->installEventFilter(this);
    }

    QStringList texts;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && m_pLabel->width() >= m_pLabel->sizeHint().width())
            texts << m_pLabel->text();
        return QObject::eventFilter(watched, event);
    }

private:
    QLabel* m_pLabel;
};

} // namespace

class TestAlarms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_recording = Recording();
        m_recording.answers
            = {{QStringLiteral("Version"), QStringLiteral("16.0")},
               {QStringLiteral("Count"), 1},
               {QStringLiteral("SaveAs(const QString &)"), true}};
    }

    void cleanup()
    {
        RecordedObject::Forget();
        KvGUI::KvMessageNotify::Instance()->CloseAll();
    }

    // Catches an export that lets the client's window stand still, and rows written twice or not at all.
    void ExportsBlockByBlock()
    {
        RecordedObject::Provide(m_recording);
        AlarmExport alarms(
            Path(QStringLiteral("a.xlsx")), QStringLiteral("t"), {QStringLiteral("c")}, ManyRows(2500));
        QSignalSpy progress(&alarms, &AlarmExport::SignalProgress);
        QSignalSpy finished(&alarms, &AlarmExport::SignalFinished);
        QVector<int> seenBetween;
        QTimer between;
        connect(&between, &QTimer::timeout, this, [&] { seenBetween << progress.size(); });
        between.start(0);
        alarms.Start();
        QVERIFY(finished.wait());
        QCOMPARE(progress, (QList<QVariantList>{{1000}, {2000}, {2500}}));
        for (const int written : {0, 1, 2, 3})
            QVERIFY2(seenBetween.contains(written), qPrintable(QString::number(written)));
        QCOMPARE(finished.at(0), (QVariantList{true, QString()}));
        QStringList written;
        const QVariantList blocks = m_recording.blocks.mid(2);
        for (const QVariant& block : blocks) {
            const QVariantList rows = block.toList();
            for (const QVariant& row : rows)
                written << row.toList().first().toString();
        }
        QCOMPARE(written.size(), 2500);
        QCOMPARE(written.last(), QStringLiteral("'2499"));
        const QStringList ranges = m_recording.calls.filter(QStringLiteral("Range("));
        QCOMPARE(ranges.last(), QStringLiteral("sheet.Range(const QString&)(A2003:A2502)"));
    }

    // Catches an export begun from a window that is not active yet, whose end leaves the keyboard elsewhere.
    void KeyboardComesBack()
    {
        AlarmPage page({});
        auto* button = Button(page, QStringLiteral("xport"));
        const Page::Picture exporting = page.Pictures().constLast();
        button->setFocus();
        exporting.enter();
        QCOMPARE(page.focusWidget(), Button(page, QStringLiteral("ancel")));
        exporting.leave();
        QCOMPARE(page.focusWidget(), button);
    }

    // Catches a cancelled export that writes its file all the same, or leaves the page locked or without the
    // keyboard, and progress that is seen only when the step after it has ended.
    void CancelsBetweenBlocks()
    {
        RecordedObject::Provide(m_recording);
        QWidget host; // without a layout it sends no size hints, which the offscreen platform would warn of
        host.resize(900, 600);
        AlarmPage page(SampleAlarms(3000, Moment()), &host);
        page.resize(host.size());
        host.show();
        host.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&host));
        auto* bar = page.findChild<QProgressBar*>();
        auto* button = Button(page, QStringLiteral("xport"));
        PaintedTexts painted(bar->parentWidget()->findChild<QLabel*>());
        button->setFocus();
        bool clicked = false;
        page.Export(Path(QStringLiteral("b.xlsx")));
        connect(page.findChild<AlarmExport*>(), &AlarmExport::SignalProgress, &page, [&](int rows) {
            clicked = rows == 1000 && bar->isVisible() && !button->isEnabled();
            QTest::keyClick(page.focusWidget(), Qt::Key_Space); // cancels
        });
        QTRY_VERIFY(clicked);
        QTRY_COMPARE(m_recording.living, 0);
        QVERIFY(!bar->isVisible());
        QVERIFY(button->isEnabled());
        QCOMPARE(page.focusWidget(), button);
        QCOMPARE(painted.texts.filter(QStringLiteral("1,000 of 3,000")).size(), 1);
        QCoreApplication::processEvents();
        QVERIFY(m_recording.calls.filter(QStringLiteral("SaveAs")).isEmpty());
    }

    void TellsWhereAnExportFailed_data()
    {
        TestSupport::Columns<QString, QString>("absent", "error");
        QTest::newRow("no application") << "Excel.Application"
                                        << "The excel application is not found.";
        QTest::newRow("no workbook") << "ActiveWorkBook"
                                     << "Open excel file failed.";
        QTest::newRow("no range") << "Range(const QString&)"
                                  << "The table cannot be written.";
        QTest::newRow("not saved") << ""
                                   << "The file cannot be saved there.";
    }

    // Catches an export that fails without a word.
    void TellsWhereAnExportFailed()
    {
        QFETCH(QString, absent);
        QFETCH(QString, error);
        RecordedObject::Provide(m_recording);
        m_recording.absent = {absent};
        m_recording.answers.remove(QStringLiteral("SaveAs(const QString &)"));
        AlarmExport alarms(
            Path(QStringLiteral("c.xlsx")), QStringLiteral("t"), {QStringLiteral("c")}, ManyRows(1));
        QSignalSpy finished(&alarms, &AlarmExport::SignalFinished);
        alarms.Start();
        QVERIFY(finished.wait());
        QCOMPARE(finished.at(0), (QVariantList{false, error}));
        QCOMPARE(m_recording.living, 0);
    }

    // Catches rows taken for alarms that are none, and dates lost because another program wrote them.
    void ReadsAlarmsFromRows()
    {
        const auto alarm = AlarmRecord::FromRow({7.0, Moment(), QStringLiteral("Gate")});
        QVERIFY(alarm);
        QCOMPARE(alarm->number, 7);
        QCOMPARE(alarm->time, Moment());
        QCOMPARE(alarm->camera, QStringLiteral("Gate"));
        QVERIFY(AlarmRecord::FromRow({QStringLiteral("8"), QStringLiteral(" 2026-03-14 10:24:36 ")}));
        QVERIFY(!AlarmRecord::FromRow({}));
        QVERIFY(!AlarmRecord::FromRow({QStringLiteral("x"), Moment()}));
        QVERIFY(!AlarmRecord::FromRow({9, QStringLiteral("yesterday")}));
    }

    void ExportsAndImportsAgain_data()
    {
        QTest::addColumn<QString>("suffix");
        for (const char* suffix : {"xlsx", "xls", "csv"})
            QTest::newRow(suffix) << suffix;
    }

    // Catches alarms that do not come back from a file as they went into it, and rows exported that the
    // filter hides. With a real office.
    void ExportsAndImportsAgain()
    {
        QFETCH(QString, suffix);
        const QString path = Path(QStringLiteral("round trip.") + suffix);
        const QVector<AlarmRecord> all = SampleAlarms(1500, Moment());
        QVector<AlarmRecord> high;
        std::copy_if(all.begin(), all.end(), std::back_inserter(high), [](const AlarmRecord& alarm) {
            return alarm.level == QLatin1String("High");
        });
        AlarmPage page(all);
        QSignalSpy done(&page, &AlarmPage::SignalDone);
        page.findChild<QLineEdit*>()->setText(QStringLiteral("HIGH"));
        page.Export(path);
        QVERIFY(done.wait(Patience));
        QCOMPARE(done.takeFirst(), QVariantList{true});

        const AlarmImport read = AlarmImport::Read(path);
        QCOMPARE(read.error, QString());
        QCOMPARE(read.skipped, 0);
        QCOMPARE(TextsOf(read.alarms), TextsOf(high));
        page.Import(path);
        QCOMPARE(done.takeFirst(), QVariantList{true});
        QCOMPARE(page.findChild<QTableView*>()->model()->rowCount(), high.size());
        QVERIFY(page.findChild<QLineEdit*>()->text().isEmpty());
    }

    // A line edit fades its clear button, and frees that animation when it ends; one that starts later and is
    // longer ends later. Otherwise the leak checker finds it.
    void cleanupTestCase()
    {
        QPauseAnimation pause(200);
        QSignalSpy ended(&pause, &QPauseAnimation::finished);
        pause.start();
        QVERIFY(ended.wait());
    }

    // Catches a table of something else that empties the page. With a real office.
    void RefusesOtherTables()
    {
        QFile file(Path(QStringLiteral("other.csv")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("No.,Name\n1,x\n2,y\n");
        file.close();
        AlarmPage page(SampleAlarms(5, Moment()));
        QSignalSpy done(&page, &AlarmPage::SignalDone);
        for (int notification = 0; notification < 2; ++notification) {
            QTest::ignoreMessage(QtWarningMsg, "This plugin does not support propagateSizeHints()");
            QTest::ignoreMessage(QtWarningMsg, "This plugin does not support raise()");
        }
        page.Import(file.fileName());
        page.Import(Path(QStringLiteral("missing.xlsx")));
        QCOMPARE(done, (QList<QVariantList>{{false}, {false}}));
        QCOMPARE(page.findChild<QTableView*>()->model()->rowCount(), 5);
    }

private:
    QString Path(const QString& name) const { return m_folder.filePath(name); }

    Recording m_recording;
    QTemporaryDir m_folder;
};

STRICT_TEST_MAIN(TestAlarms)

#include "tst_alarms.moc"
