// The range calendar and the button that opens it, by mouse and keyboard.

#include "support/AtEvent.h"
#include "support/Columns.h"
#include "support/Deletion.h"
#include "support/ShowActive.h"
#include "support/StrictMain.h"

#include <Platform/BasicUIComponents/CalendarMonthView.h>
#include <Platform/BasicUIComponents/CalendarRange.h>
#include <Platform/BasicUIComponents/KvCalendarEx.h>
#include <UI/FormInputs/CalendarPlacement.h>
#include <UI/FormInputs/WmDateCalendar.h>

#include <QtTest>
#include <QtWidgets>
#include <ctime>
#include <functional>
#include <memory>

using namespace KvGUI;
using TestSupport::ShowActive;
using UICommonMdl::CalendarPosition;
using UICommonMdl::WmDateCalendar;

Q_DECLARE_METATYPE(Qt::DayOfWeek)

namespace {

const QDate January5(2024, 1, 5);
const QDate January20(2024, 1, 20);
const QDate February1(2024, 2, 1);

QDateTime At(const QDate& day, int hour, int minute = 0) { return QDateTime(day, QTime(hour, minute)); }

QDateTime EndOf(const QDate& day) { return QDateTime(day, QTime(23, 59, 59)); }

/// What a calendar holds.
struct Range
{
    template <class Calendar>
    explicit Range(Calendar& calendar)
    {
        calendar.DateTimeRange(start, end);
    }

    QDateTime start;
    QDateTime end;
};

struct Hand
{
    explicit Hand(QWidget* calendarWidget)
        : calendar(calendarWidget)
    { }

    CalendarMonthView* View(int page) const { return calendar->findChildren<CalendarMonthView*>().at(page); }

    CalendarMonthView* ViewOf(const QDate& day) const
    {
        return View(View(0)->Days()->IndexOf(day).isValid() ? 0 : 1);
    }

    QPoint Cell(const QDate& day) const
    {
        CalendarMonthView* view = ViewOf(day);
        return view->visualRect(view->Days()->IndexOf(day)).center();
    }

    void Click(const QDate& day) const
    {
        QTest::mouseClick(ViewOf(day)->viewport(), Qt::LeftButton, {}, Cell(day));
    }

    void Hover(const QDate& day) const { QTest::mouseMove(ViewOf(day)->viewport(), Cell(day)); }

    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(calendar->focusWidget() ? calendar->focusWidget() : calendar, key, modifiers);
    }

    void Turn(int page, const char* button, int times = 1) const
    {
        QWidget* owner = View(page)->parentWidget();
        for (int i = 0; i < times; ++i)
            owner->findChild<QToolButton*>(QString::fromLatin1(button))->click();
    }

    QString Months() const
    {
        const QString format = QStringLiteral("yyyy-M");
        return View(0)->Days()->Month().toString(format) + QLatin1Char(' ')
            + View(1)->Days()->Month().toString(format);
    }

    /// What a screen reader is told of the day.
    QString Told(const QDate& day) const
    {
        return ViewOf(day)->Days()->IndexOf(day).data(Qt::AccessibleTextRole).toString();
    }

    bool IsInRange(const QDate& day) const { return Told(day).contains(QStringLiteral("range")); }

    QWidget* calendar;
};

void MousePress(QWindow* window, const QPoint& pos) { QTest::mousePress(window, Qt::LeftButton, {}, pos); }
void MouseRelease(QWindow* window, const QPoint& pos)
{
    QTest::mouseRelease(window, Qt::LeftButton, {}, pos);
}

/// A calendar in a window, or over it, showing January and February 2024.
struct Form
{
    explicit Form(Qt::WindowFlags flags = {})
        : calendar(new KvCalendarEx(window, flags))
        , hand(calendar)
    {
        auto* layout = new QVBoxLayout(window);
        if (!calendar->isWindow())
            layout->addWidget(calendar);
        calendar->setLocale(QLocale(QLocale::English, QLocale::UnitedKingdom));
        calendar->SetSelDate(At(January5, 10), At(February1, 8));
        calendar->SetTimeEditVisible(false);
        ShowActive(*window);
        if (calendar->isWindow())
            ShowActive(*calendar);
    }
    ~Form()
    {
        delete calendar;
        delete window;
    }
    Q_DISABLE_COPY(Form)

    QPointer<QWidget> window = new QWidget;
    QPointer<KvCalendarEx> calendar;
    Hand hand;
};

/// A window with the button that opens a calendar, and an ordinary one.
struct ButtonForm
{
    ButtonForm()
    {
        window->setGeometry(100, 400, 300, 200);
        panel->setGeometry(window->rect());
        button->setGeometry(20, 80, 200, 30);
        other->setGeometry(20, 20, 100, 30);
        button->SetSelDate(At(January5, 10), At(February1, 8));
        ShowActive(*window);
    }
    ~ButtonForm() { delete window; }
    Q_DISABLE_COPY(ButtonForm)

    KvCalendarEx* Calendar() const { return button->findChild<KvCalendarEx*>(); }

    /// Presses where @p pos is in the window. An open calendar gets every press.
    void Press(const QPoint& pos) const
    {
        const QPoint global = window->mapToGlobal(pos);
        for (const auto send : {MousePress, MouseRelease}) {
            QWidget* popup = QApplication::activePopupWidget();
            if (QWidget* receiver = popup ? popup : window.data())
                send(receiver->windowHandle(), receiver->mapFromGlobal(global));
        }
        QCoreApplication::processEvents(); // a replayed press is posted
    }

    QPointer<QWidget> window = new QWidget;
    QPointer<QWidget> panel = new QWidget(window);
    QPointer<WmDateCalendar> button = new WmDateCalendar(panel);
    QPushButton* other = new QPushButton(panel);
};

const QPoint OnButton(100, 95);
const QPoint OnOther(60, 35);

using CalendarAct = std::function<void(const Form&)>;
using ButtonAct = std::function<void(const ButtonForm&)>;
using Victim = std::function<QWidget*(const ButtonForm&)>;

} // namespace

Q_DECLARE_METATYPE(CalendarAct)
Q_DECLARE_METATYPE(ButtonAct)
Q_DECLARE_METATYPE(Victim)

class TestDateCalendar : public QObject
{
    Q_OBJECT

private slots:
    // Catches cells of a size in pixels, in which the names of the days run into each other.
    void LargeLettersFit()
    {
        const QFont usual = QApplication::font();
        const auto restore = qScopeGuard([&] { QApplication::setFont(usual); });
        QFont large = usual;
        large.setPixelSize(24);
        QApplication::setFont(large);
        KvGUI::KvCalendarEx calendar(nullptr, Qt::Popup);
        calendar.adjustSize();
        const auto months = calendar.findChildren<QTableView*>();
        QVERIFY(!months.isEmpty());
        for (const QTableView* month : months) {
            const QString day = month->model()->headerData(0, Qt::Horizontal).toString();
            QVERIFY(month->columnWidth(0) > month->fontMetrics().horizontalAdvance(day));
            QVERIFY(month->rowHeight(0) >= month->fontMetrics().height());
        }
    }

    void initTestCase() { TestSupport::SpoilFreedMemory(); }

    void DaysOfAMonth_data()
    {
        TestSupport::Columns<QDate, Qt::DayOfWeek, int>("month", "firstDay", "cellOfFirst");
        QTest::newRow("Monday first") << QDate(2024, 1, 17) << Qt::Monday << 0;
        QTest::newRow("Sunday first") << QDate(2024, 1, 17) << Qt::Sunday << 1;
        QTest::newRow("Saturday first") << QDate(2024, 1, 17) << Qt::Saturday << 2;
        QTest::newRow("leap year") << QDate(2024, 2, 29) << Qt::Monday << 3;
        QTest::newRow("six weeks") << QDate(2023, 10, 1) << Qt::Monday << 6;
    }

    /// Catches days in the wrong column, lost days, and days of the neighbouring months.
    void DaysOfAMonth()
    {
        QFETCH(QDate, month);
        QFETCH(Qt::DayOfWeek, firstDay);
        QFETCH(int, cellOfFirst);
        QCOMPARE(CellOfDay(MonthOf(month), firstDay), cellOfFirst);
        int days = 0;
        for (int cell = 0; cell < CalendarRows * CalendarColumns; ++cell) {
            const QDate day = DayInCell(month, firstDay, cell / CalendarColumns, cell % CalendarColumns);
            if (!day.isValid())
                continue;
            QCOMPARE(day, MonthOf(month).addDays(days++));
            QCOMPARE(CellOfDay(day, firstDay), cell);
            QCOMPARE((firstDay - 1 + cell) % 7 + 1, day.dayOfWeek());
        }
        QCOMPARE(days, month.daysInMonth());
    }

    void SkippedTimes_data()
    {
        TestSupport::Columns<QByteArray, QDate, QTime, QTime>("zone", "day", "time", "expected");
        const QByteArray berlin("Europe/Berlin");
        const QByteArray saoPaulo("America/Sao_Paulo");
        QTest::newRow("ordinary") << berlin << QDate(2024, 1, 5) << QTime(2, 30) << QTime(2, 30);
        QTest::newRow("skipped") << berlin << QDate(2024, 3, 31) << QTime(2, 30) << QTime(3, 30);
        QTest::newRow("after it") << berlin << QDate(2024, 3, 31) << QTime(3, 0) << QTime(3, 0);
        QTest::newRow("twice") << berlin << QDate(2024, 10, 27) << QTime(2, 30) << QTime(2, 30);
        QTest::newRow("no midnight") << saoPaulo << QDate(2018, 11, 4) << QTime(0, 0) << QTime(1, 0);
    }

    /// Catches an invalid moment, or one on another day, where the clocks are changed.
    void SkippedTimes()
    {
        QFETCH(QByteArray, zone);
        QFETCH(QDate, day);
        QFETCH(QTime, time);
        const QByteArray before = qgetenv("TZ");
        qputenv("TZ", zone);
        tzset();
        const QDateTime moment = LocalMoment(day, time);
        const bool valid = moment.isValid();
        const QDate date = moment.date();
        const QTime clock = moment.time();
        qputenv("TZ", before);
        tzset();
        QVERIFY(valid);
        QCOMPARE(date, day);
        QTEST(clock, "expected");
    }

    void TwoClicksMakeARange_data()
    {
        TestSupport::Columns<QDate, QDate, QDate, QDate>("first", "second", "start", "end");
        const QDate february10(2024, 2, 10);
        QTest::newRow("in order") << January20 << february10 << January20 << february10;
        QTest::newRow("backwards") << february10 << January20 << January20 << february10;
        QTest::newRow("one day") << January20 << January20 << January20 << January20;
        QTest::newRow("one month") << QDate(2024, 2, 29) << february10 << february10 << QDate(2024, 2, 29);
    }

    /// Catches ranges in the order of the clicks, half days, and reports before the second click.
    void TwoClicksMakeARange()
    {
        QFETCH(QDate, first);
        QFETCH(QDate, second);
        QFETCH(QDate, start);
        QFETCH(QDate, end);
        Form form;
        QSignalSpy changed(form.calendar, &KvCalendarEx::SgnDateTimeChanged);
        form.hand.Click(first);
        QCOMPARE(changed.count(), 0);
        QCOMPARE(Range(*form.calendar).start, At(January5, 10)); // the old range still
        form.hand.Click(second);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(Range(*form.calendar).start, At(start, 0));
        QCOMPARE(Range(*form.calendar).end, EndOf(end));
    }

    /// Catches a preview that is missing, goes past the mouse, or stays when the pick is taken back.
    void RangeFollowsTheMouse()
    {
        Form form;
        form.hand.Click(January20);
        QVERIFY(!form.hand.IsInRange(QDate(2024, 1, 6)));
        form.hand.Hover(QDate(2024, 1, 24));
        QVERIFY(form.hand.IsInRange(QDate(2024, 1, 22)));
        QVERIFY(!form.hand.IsInRange(QDate(2024, 1, 25)));
        form.hand.Hover(QDate(2024, 1, 17));
        QVERIFY(form.hand.IsInRange(QDate(2024, 1, 18)));
        QVERIFY(!form.hand.IsInRange(QDate(2024, 1, 22)));

        const CalendarMonthView* view = form.hand.View(0);
        const QPoint middle = form.hand.Cell(QDate(2024, 1, 18)) + QPoint(0, 10);
        const QColor band = form.hand.View(0)->viewport()->grab().toImage().pixelColor(middle);
        QCOMPARE(band, view->property("rangeColor").value<QColor>());
        form.hand.Key(Qt::Key_Escape);
        QVERIFY(form.hand.IsInRange(QDate(2024, 1, 6)));
        QVERIFY(form.hand.Told(January5).endsWith(QStringLiteral("start of the range")));
        QVERIFY(form.hand.Told(February1).endsWith(QStringLiteral("end of the range")));
    }

    /// Catches a day too many or too few, and a click on a day out of reach that counts.
    void RestrictionLimitsTheClicks()
    {
        Form form;
        form.calendar->SetRestrcitDateRange(7);
        QSignalSpy changed(form.calendar, &KvCalendarEx::SgnDateTimeChanged);
        form.hand.Click(January20);
        for (const QDate& tooFar : {QDate(2024, 1, 13), QDate(2024, 1, 27), QDate(2024, 2, 10)}) {
            form.hand.Hover(tooFar);
            QVERIFY(!form.hand.IsInRange(tooFar));
            form.hand.Click(tooFar);
            QCOMPARE(changed.count(), 0);
        }
        form.hand.View(0)->setFocus();
        form.hand.Key(Qt::Key_PageDown); // as far as this no range reaches
        QVERIFY(!form.hand.IsInRange(QDate(2024, 1, 22)));
        form.hand.View(0)->setCurrentIndex({});
        form.hand.Key(Qt::Key_Return);
        QCOMPARE(changed.count(), 0);
        form.hand.Click(QDate(2024, 1, 26));
        QCOMPARE(changed.count(), 1);
        form.hand.Click(January20);
        form.hand.Click(QDate(2024, 1, 14));
        QCOMPARE(changed.count(), 2);
        QCOMPARE(Range(*form.calendar).start, At(QDate(2024, 1, 14), 0));
    }

    /// Catches a range that stays longer than allowed, or is cut although it is not.
    void RestrictionShortensARange()
    {
        Form form;
        QSignalSpy changed(form.calendar, &KvCalendarEx::SgnDateTimeChanged);
        form.calendar->SetRestrcitDateRange(28); // just its length
        QCOMPARE(changed.count(), 0);
        form.calendar->SetRestrcitDateRange(27);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(Range(*form.calendar).end, At(QDate(2024, 1, 31), 8));
        form.calendar->SetRestrcitDateRange(1);
        QCOMPARE(Range(*form.calendar).end, At(January5, 10)); // not before the start
        form.calendar->SetRestrcitDateRange(-3);
        form.calendar->SetSelDate(At(January5, 0), At(February1.addYears(3), 0));
        QCOMPARE(Range(*form.calendar).end.date(), February1.addYears(3));
    }

    void SettingARange_data()
    {
        TestSupport::Columns<QDateTime, QDateTime, QDateTime, QDateTime, int>(
            "start", "end", "heldStart", "heldEnd", "reports");
        const QDateTime early = At(January20, 9);
        const QDateTime late = At(February1, 8);
        const QDateTime none;
        QTest::newRow("in order") << early << late << early << late << 0;
        QTest::newRow("reversed") << late << early << early << late << 1;
        QTest::newRow("reversed times") << At(January20, 10) << early << early << At(January20, 10) << 1;
        QTest::newRow("one moment") << early << early << early << early << 0;
        QTest::newRow("no start") << none << late << none << none << 0;
        QTest::newRow("no end") << early << none << none << none << 0;
    }

    /// Catches a reversed range that is kept or corrected in silence, and a client told of its own range.
    void SettingARange()
    {
        QFETCH(QDateTime, start);
        QFETCH(QDateTime, end);
        Form form;
        QSignalSpy changed(form.calendar, &KvCalendarEx::SgnDateTimeChanged);
        form.calendar->SetSelDate(start, end);
        QTEST(Range(*form.calendar).start, "heldStart");
        QTEST(Range(*form.calendar).end, "heldEnd");
        QTEST(changed.count(), "reports");
    }

    /// Catches a range, or half of one, that survives.
    void ClearedCalendar()
    {
        Form form;
        form.hand.Click(January20);
        form.calendar->ClearRecord();
        QVERIFY(!Range(*form.calendar).start.isValid());
        const QDate today = QDate::currentDate();
        QCOMPARE(form.hand.View(1)->Days()->Month(), MonthOf(today));
        QVERIFY(form.hand.Told(today).endsWith(QStringLiteral("today")));
        form.hand.Click(MonthOf(today));
        QVERIFY(!Range(*form.calendar).start.isValid()); // this was a first click
        form.hand.Click(MonthOf(today));
        QCOMPARE(Range(*form.calendar).start, At(MonthOf(today), 0));
    }

    /// Catches month signals for ranges within the same months, and the range read before it has changed.
    void MonthSignals()
    {
        Form form;
        QStringList told;
        const auto tell = [&](const char* name, void (KvCalendarEx::*signal)()) {
            const auto note = [&told, &form, name] {
                told << QString::fromLatin1(name) + Range(*form.calendar).start.toString(QStringLiteral(" M"))
                        + Range(*form.calendar).end.toString(QStringLiteral(" M"));
            };
            connect(form.calendar, signal, form.calendar, note);
        };
        tell("range", &KvCalendarEx::SgnDateTimeChanged);
        tell("start", &KvCalendarEx::SgnStartYearMonthChanged);
        tell("end", &KvCalendarEx::SngEndYearMonthChanged);
        const auto choose = [&](const QDate& one, const QDate& other) {
            told.clear();
            form.hand.Click(one);
            form.hand.Click(other);
            return told.join(QLatin1Char(','));
        };
        QCOMPARE(choose(January20, QDate(2024, 2, 9)), QStringLiteral("range 1 2"));
        QCOMPARE(choose(January5, January20), QStringLiteral("range 1 1,end 1 1"));
        QCOMPARE(choose(February1, February1), QStringLiteral("range 2 2,start 2 2,end 2 2"));
        told.clear();
        form.hand.Turn(0, "kvCalendarPreviousYear");
        QVERIFY(told.isEmpty()); // the range is where it was
    }

    /// Catches buttons that turn the other page or by another step, titles that stay, and two pages of the
    /// same month or in the wrong order.
    void ButtonsTurnThePages()
    {
        Form form;
        const auto turned = [&](int page, const char* button, int times = 1) {
            form.hand.Turn(page, button, times);
            return form.hand.Months();
        };
        QCOMPARE(form.hand.Months(), QStringLiteral("2024-1 2024-2"));
        QCOMPARE(turned(0, "kvCalendarPreviousMonth"), QStringLiteral("2023-12 2024-2"));
        QCOMPARE(turned(1, "kvCalendarNextYear"), QStringLiteral("2023-12 2025-2"));
        QCOMPARE(turned(0, "kvCalendarNextYear", 2), QStringLiteral("2025-12 2026-1"));
        QCOMPARE(turned(1, "kvCalendarPreviousMonth", 3), QStringLiteral("2025-9 2025-10"));
        QCOMPARE(turned(0, "kvCalendarNextMonth"), QStringLiteral("2025-10 2025-11"));
        QCOMPARE(turned(1, "kvCalendarPreviousMonth"), QStringLiteral("2025-9 2025-10"));
        const auto* title
            = form.hand.View(1)->parentWidget()->findChild<QLabel*>(QStringLiteral("kvCalendarTitle"));
        QCOMPARE(title->text(), QStringLiteral("October 2025"));
        QCOMPARE(form.hand.View(1)->accessibleName(), title->text());
    }

    /// Catches pages and keys that leave the years which have a name.
    void PagesEndWithTheYears()
    {
        Form form;
        form.calendar->SetSelDate(At(QDate(9999, 12, 31), 0), At(QDate(9999, 12, 31), 1));
        form.hand.Turn(1, "kvCalendarNextYear");
        form.hand.Turn(0, "kvCalendarNextMonth", 2);
        QCOMPARE(form.hand.Months(), QStringLiteral("9999-11 9999-12"));
        form.hand.View(1)->setFocus();
        form.hand.Key(Qt::Key_End);
        form.hand.Key(Qt::Key_Right);
        QCOMPARE(form.hand.View(1)->Days()->Day(form.hand.View(1)->currentIndex()), QDate(9999, 12, 31));
        form.calendar->SetSelDate(At(QDate(1, 1, 1), 0), At(QDate(1, 1, 1), 1));
        form.hand.Turn(0, "kvCalendarPreviousYear");
        form.hand.Turn(1, "kvCalendarPreviousMonth", 2);
        QCOMPARE(form.hand.Months(), QStringLiteral("0001-1 0001-2"));
    }

    /// Catches a wheel that turns the wrong way, or a whole page for each small step of a fine one.
    void WheelTurnsThePage()
    {
        Form form;
        const auto turn = [&](int angle) {
            const QPoint pos(50, 50);
            QWidget* viewport = form.hand.View(0)->viewport();
            QWheelEvent event(
                pos, viewport->mapToGlobal(pos), QPoint(), QPoint(0, angle), Qt::NoButton, Qt::NoModifier,
                Qt::NoScrollPhase, false);
            QApplication::sendEvent(viewport, &event);
            return form.hand.View(0)->Days()->Month();
        };
        QCOMPARE(turn(120), QDate(2023, 12, 1));
        QCOMPARE(turn(-240), QDate(2024, 2, 1));
        QCOMPARE(turn(-60), QDate(2024, 2, 1));
        QCOMPARE(turn(-60), QDate(2024, 3, 1));
    }

    void KeysMoveTheDay_data()
    {
        TestSupport::Columns<int, bool, QDate>("key", "control", "day");
        QTest::newRow("left") << int(Qt::Key_Left) << false << QDate(2024, 1, 4);
        QTest::newRow("right") << int(Qt::Key_Right) << false << QDate(2024, 1, 6);
        QTest::newRow("up, to the month before") << int(Qt::Key_Up) << false << QDate(2023, 12, 29);
        QTest::newRow("down") << int(Qt::Key_Down) << false << QDate(2024, 1, 12);
        QTest::newRow("page up") << int(Qt::Key_PageUp) << false << QDate(2023, 12, 5);
        QTest::newRow("page down, on the other page") << int(Qt::Key_PageDown) << false << QDate(2024, 2, 5);
        QTest::newRow("year up") << int(Qt::Key_PageUp) << true << QDate(2023, 1, 5);
        QTest::newRow("year down") << int(Qt::Key_PageDown) << true << QDate(2025, 1, 5);
        QTest::newRow("home") << int(Qt::Key_Home) << false << QDate(2024, 1, 1);
        QTest::newRow("end") << int(Qt::Key_End) << false << QDate(2024, 1, 31);
    }

    /// Catches keys that go elsewhere, or leave the focus on a page that does not show the day.
    void KeysMoveTheDay()
    {
        QFETCH(int, key);
        QFETCH(bool, control);
        QFETCH(QDate, day);
        Form form;
        form.hand.View(0)->setFocus();
        form.hand.Key(static_cast<Qt::Key>(key), control ? Qt::ControlModifier : Qt::NoModifier);
        const auto* view = qobject_cast<CalendarMonthView*>(QApplication::focusWidget());
        QVERIFY(view);
        QCOMPARE(view->Days()->Day(view->currentIndex()), day);
    }

    /// Catches a calendar that needs the mouse.
    void KeysChooseARange()
    {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Select}) {
            Form form;
            const auto press = [&] { // QTest does not know all of these keys
                QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
                QApplication::sendEvent(form.calendar->focusWidget(), &event);
            };
            form.hand.View(0)->setFocus();
            press(); // 5 January, the start of the range
            for (int i = 0; i < 4; ++i)
                form.hand.Key(Qt::Key_Down);
            QVERIFY(form.hand.IsInRange(QDate(2024, 1, 30))); // the range follows the keys too
            press();
            QCOMPARE(Range(*form.calendar).start, At(January5, 0));
            QCOMPARE(Range(*form.calendar).end, EndOf(QDate(2024, 2, 2)));
        }
    }

    /// Catches Escape that closes at once, and a first click remembered for the next opening.
    void EscapeTakesThePickBack()
    {
        const Form form(Qt::Popup | Qt::FramelessWindowHint);
        KvCalendarEx& popup = *form.calendar;
        QSignalSpy hidden(&popup, &KvCalendarEx::SgnCalendarHide);
        const Hand& hand = form.hand;
        hand.Click(January20);
        hand.Key(Qt::Key_Escape);
        QVERIFY(popup.isVisible());
        hand.Click(January20);
        popup.hide();
        QTRY_COMPARE(hidden.count(), 1);
        popup.show();
        hand.Click(January20);
        QCOMPARE(Range(popup).start, At(January5, 10)); // a first click
        hand.Key(Qt::Key_Escape);
        hand.Key(Qt::Key_Escape);
        QVERIFY(!popup.isVisible());
        QTRY_COMPARE(hidden.count(), 2);
    }

    /// Catches names of another language over the days of another weekday: weeks from Monday, Sunday and
    /// Saturday, other digits, and the year first.
    void LocaleNamesTheDays()
    {
        Form form;
        const CalendarMonthModel* days = form.hand.View(0)->Days();
        const QAbstractItemModelTester tester(
            form.hand.View(0)->Days(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        const auto header = [&](int column) {
            return days->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        };
        const auto* title
            = form.hand.View(0)->parentWidget()->findChild<QLabel*>(QStringLiteral("kvCalendarTitle"));
        for (const char* name : {"de_DE", "en_US", "ar_EG", "zh_CN"}) {
            const QLocale locale(QString::fromLatin1(name));
            form.calendar->setLocale(locale);
            const QModelIndex index = days->IndexOf(January5); // a Friday
            QCOMPARE(header(index.column()), locale.standaloneDayName(Qt::Friday, QLocale::ShortFormat));
            QCOMPARE(header(0), locale.standaloneDayName(locale.firstDayOfWeek(), QLocale::ShortFormat));
            QCOMPARE(
                days->headerData(index.column(), Qt::Horizontal, Qt::AccessibleTextRole).toString(),
                locale.standaloneDayName(Qt::Friday, QLocale::LongFormat));
            QCOMPARE(index.data().toString(), locale.toString(5));
            QVERIFY(title->text().contains(locale.standaloneMonthName(1)));
            QCOMPARE(title->text().at(0).isDigit(), locale.language() == QLocale::Chinese);
        }
    }

    /// Catches times that are ignored, lost by the next pick, or kept when they cannot be seen.
    void TimesBelongToTheRange()
    {
        Form form;
        form.calendar->SetTimeEditVisible(true);
        auto* start = form.calendar->findChild<QTimeEdit*>(QStringLiteral("kvCalendarStartTime"));
        QVERIFY(start->isVisible());
        QCOMPARE(start->time(), QTime(10, 0));
        QSignalSpy changed(form.calendar, &KvCalendarEx::SgnDateTimeChanged);
        start->setFocus();
        start->setSelectedSection(QDateTimeEdit::HourSection);
        QTest::keyClicks(start, QStringLiteral("07"));
        QTRY_VERIFY(changed.count() > 0);
        QCOMPARE(Range(*form.calendar).start, At(January5, 7));
        form.hand.Click(January20);
        form.hand.Click(February1);
        QCOMPARE(Range(*form.calendar).start, At(January20, 7));
        QCOMPARE(Range(*form.calendar).end, At(February1, 8));
        form.calendar->SetTimeEditVisible(false);
        form.hand.Click(January20);
        form.hand.Click(February1);
        QCOMPARE(Range(*form.calendar).start, At(January20, 0));
        QCOMPARE(Range(*form.calendar).end, EndOf(February1));
        form.calendar->SetTimeEditVisible(true);
        form.calendar->ClearRecord();
        changed.clear();
        start->setTime(QTime(6, 0)); // before there is a range
        QCoreApplication::processEvents();
        QCOMPARE(changed.count(), 0);
        const QDate day = MonthOf(QDate::currentDate());
        form.hand.Click(day);
        form.hand.Click(day);
        QCOMPARE(Range(*form.calendar).start, At(day, 6));
    }

    /// Catches a range on one day that ends before it starts.
    void TimesStayInOrder()
    {
        Form form;
        form.calendar->SetTimeEditVisible(true);
        form.hand.Click(January20); // between 10:00 and 08:00
        form.hand.Click(January20);
        QCOMPARE(Range(*form.calendar).start, At(January20, 8));
        QCOMPARE(Range(*form.calendar).end, At(January20, 10));
        auto* start = form.calendar->findChild<QTimeEdit*>(QStringLiteral("kvCalendarStartTime"));
        auto* end = form.calendar->findChild<QTimeEdit*>(QStringLiteral("kvCalendarEndTime"));
        start->setTime(QTime(12, 30));
        QCOMPARE(Range(*form.calendar).end, At(January20, 12, 30));
        QCOMPARE(end->time(), QTime(12, 30));
        end->setTime(QTime(6, 0));
        QCOMPARE(Range(*form.calendar).start, At(January20, 6));
        QCOMPARE(start->time(), QTime(6, 0));
    }

    void DeletedByASlot_data()
    {
        TestSupport::Columns<QByteArray, CalendarAct, bool, bool>("signal", "act", "popup", "withWindow");
        const QByteArray range(SIGNAL(SgnDateTimeChanged()));
        const QByteArray startMonth(SIGNAL(SgnStartYearMonthChanged()));
        const QByteArray endMonth(SIGNAL(SngEndYearMonthChanged()));
        const QByteArray hidden(SIGNAL(SgnCalendarHide()));
        const auto add
            = [](const char* name, bool popup, const QByteArrayList& told, const CalendarAct& act) {
                  for (const QByteArray& signal : told) {
                      for (const bool withWindow : {false, true}) {
                          const char* victim = withWindow ? "the window" : "the calendar";
                          QTest::addRow("%s by %s at %s", victim, name, signal.constData() + 1)
                              << signal << act << popup << withWindow;
                      }
                  }
              };
        const auto chooseOneDay = [](const Form& form, const std::function<void()>& pick) {
            form.calendar->SetSelDate(At(January5, 0), At(January5, 0));
            form.hand.Click(February1);
            pick();
        };
        const CalendarAct click
            = [=](const Form& form) { chooseOneDay(form, [&] { form.hand.Click(February1); }); };
        const CalendarAct hide = [](const Form& form) { form.calendar->hide(); };
        add("a click", false, {range, startMonth, endMonth}, click);
        add("a click in a pop-up", true, {range, startMonth, endMonth}, click);
        add("Return", false, {range, startMonth, endMonth}, [=](const Form& form) {
            form.hand.View(1)->setFocus();
            chooseOneDay(form, [&] { form.hand.Key(Qt::Key_Return); });
        });
        add("a correction", false, {range, startMonth, endMonth},
            [](const Form& form) { form.calendar->SetSelDate(At(February1, 0), At(January5, 0)); });
        add("a limit", false, {range, endMonth},
            [](const Form& form) { form.calendar->SetRestrcitDateRange(2); });
        add("a time edit", false, {range},
            [](const Form& form) { form.calendar->findChild<QTimeEdit*>()->stepUp(); });
        add("hiding", false, {hidden}, hide);
        add("hiding a pop-up", true, {hidden}, hide);
        add("closing a pop-up", true, {hidden}, [](const Form& form) { form.calendar->close(); });
        add("hiding the window", false, {hidden}, [](const Form& form) { form.window->hide(); });
        add("another parent", false, {hidden}, [](const Form& form) { form.calendar->setParent(nullptr); });
        add("Escape", true, {hidden}, [](const Form& form) { form.hand.Key(Qt::Key_Escape); });
        add("a press outside", true, {hidden}, [](const Form& form) {
            MousePress(form.calendar->windowHandle(), {-20, -20});
        });
    }

    /// Catches a touch of what a client's slot has deleted, by us or by Qt.
    void DeletedByASlot()
    {
        QFETCH(QByteArray, signal);
        QFETCH(CalendarAct, act);
        QFETCH(bool, popup);
        QFETCH(bool, withWindow);
        Form form(popup ? Qt::Popup | Qt::FramelessWindowHint : Qt::Widget);
        m_victim = withWindow ? form.window.data() : form.calendar.data();
        QVERIFY(connect(form.calendar, signal, this, SLOT(DeleteVictim())));
        act(form);
        QTRY_VERIFY(!m_victim);
        QVERIFY(!QApplication::activePopupWidget());
    }

    /// Catches another format, and a text that does not follow the calendar.
    void ButtonShowsTheRange()
    {
        ButtonForm form;
        QCOMPARE(form.button->text(), QStringLiteral("2024/01/05-2024/02/01"));
        QVERIFY(!form.button->isChecked());
        form.Press(OnButton);
        const Hand hand(form.Calendar());
        hand.Click(February1);
        hand.Click(January20);
        QCOMPARE(form.button->text(), QStringLiteral("2024/01/20-2024/02/01"));
        QCOMPARE(Range(*form.button).start, At(January20, 0));
        QVERIFY(form.Calendar()->isVisible());
        form.button->SetSelDate(At(February1, 8), At(January5, 9));
        QCOMPARE(form.button->text(), QStringLiteral("2024/01/05-2024/02/01"));
        form.button->SetRestrcitDateRange(3);
        QCOMPARE(form.button->text(), QStringLiteral("2024/01/05-2024/01/07"));
    }

    /// Catches a calendar beyond the upper or lower edge of the screen.
    void Positions()
    {
        const auto position = [](int x, int y) {
            return CalendarPosition({x, y}, 30, 300, QRect(0, 40, 1920, 1040));
        };
        QCOMPARE(position(500, 700), QPoint(500, 400)); // room above
        QCOMPARE(position(500, 340), QPoint(500, 40));
        QCOMPARE(position(500, 339), QPoint(500, 309)); // a pixel too little
        QCOMPARE(position(500, 80), QPoint(500, 50));
        QCOMPARE(position(500, 1400), QPoint(500, 800)); // below the screen
        QCOMPARE(position(1919, 700), QPoint(1919, 400));
    }

    /// Catches a press that closes the calendar and opens it again, and a button that stays pressed after one
    /// elsewhere or does not open the calendar any more.
    void PressOpensAndCloses()
    {
        ButtonForm form;
        for (int i = 0; i < 2; ++i) {
            form.Press(OnButton);
            QVERIFY(form.Calendar()->isVisible());
            QVERIFY(form.button->isChecked());
            QCOMPARE(form.Calendar()->pos(), form.button->GetCalendarPos());
            QCOMPARE(
                form.Calendar()->x(), form.window->mapToGlobal(form.button->geometry().topRight()).x() + 1);
            form.Press(OnButton);
            QVERIFY(!form.Calendar()->isVisible());
            QVERIFY(form.button->isChecked());
            form.Press(OnButton);
            form.Press(OnOther);
            QVERIFY(!form.Calendar()->isVisible());
            QVERIFY(!form.button->isChecked());
        }
        // On the calendar's own edge where it covers the button, as on a small screen.
        form.Press(OnButton);
        form.Calendar()->move(form.button->mapToGlobal(QPoint(0, 0)));
        form.Press(form.button->geometry().topLeft() + QPoint(3, 3));
        QVERIFY(form.Calendar()->isVisible());
        form.Press(OnOther);
        // Opens and closes; last, as Qt warns of a window shown anew before the X server tells of the first.
        QTest::mouseDClick(form.window->windowHandle(), Qt::LeftButton, {}, OnButton); // opens and closes
        QVERIFY(!form.Calendar()->isVisible());
        QVERIFY(form.button->isChecked());
    }

    /// Catches a button that takes another object, which a client lets it watch, for its calendar.
    void WatchesOthersAsWell()
    {
        ButtonForm form;
        form.other->installEventFilter(form.button);
        form.button->setChecked(true);
        form.other->hide();
        QVERIFY(form.button->isChecked());
        form.other->setGeometry(form.button->geometry());
        form.other->show();
        form.Press(OnButton);
        QVERIFY(!form.Calendar()->isVisible());
    }

    /// Catches a button that only the mouse can open, and a state that does not follow.
    void ButtonByKeyboard()
    {
        ButtonForm form;
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Down}) {
            form.button->setFocus();
            QTest::keyClick(form.button, key);
            QVERIFY(form.Calendar()->isVisible());
            QVERIFY(form.button->isChecked());
            QVERIFY(form.Calendar()->focusWidget());
            Hand(form.Calendar()).Key(Qt::Key_Escape);
            QVERIFY(!form.Calendar()->isVisible());
            QVERIFY(!form.button->isChecked());
        }
    }

    /// Catches signals with the range before, or with start and end exchanged.
    void ButtonTellsOfChanges()
    {
        ButtonForm form;
        QSignalSpy range(form.button, &WmDateCalendar::SgnDateTimeChanged);
        QSignalSpy start(form.button, &WmDateCalendar::SgnStartYearMonthChanged);
        QSignalSpy end(form.button, &WmDateCalendar::SgnEndYearMonthChanged);
        form.Press(OnButton);
        const Hand hand(form.Calendar());
        hand.Turn(0, "kvCalendarPreviousMonth");
        hand.Turn(1, "kvCalendarNextYear");
        hand.Click(QDate(2023, 12, 24));
        hand.Click(QDate(2025, 2, 14));
        QCOMPARE(range.count(), 1);
        QCOMPARE(range.first().at(0).toDateTime(), At(QDate(2023, 12, 24), 0));
        QCOMPARE(range.first().at(1).toDateTime(), EndOf(QDate(2025, 2, 14)));
        QCOMPARE(start.value(0), (QVariantList{2023, 12}));
        QCOMPARE(end.value(0), (QVariantList{2025, 2}));
        QCOMPARE(start.count() + end.count(), 2);
    }

    void ButtonDeletedByASlot_data()
    {
        TestSupport::Columns<QByteArray, bool, ButtonAct, Victim>("signal", "open", "act", "victim");
        const QByteArray toggled(SIGNAL(toggled(bool)));
        const QByteArrayList changes{
            SIGNAL(SgnDateTimeChanged(QDateTime, QDateTime)), SIGNAL(SgnStartYearMonthChanged(int, int)),
            SIGNAL(SgnEndYearMonthChanged(int, int))};
        const auto add = [](const char* name, bool open, const QByteArrayList& told, const ButtonAct& act) {
            const QVector<QPair<const char*, Victim>> victims{
                {"the button", [](const ButtonForm& form) { return form.button; }},
                {"its parent", [](const ButtonForm& form) { return form.panel; }},
                {"the window", [](const ButtonForm& form) { return form.window; }}};
            for (const QByteArray& signal : told) {
                for (const auto& victim : victims) {
                    QTest::addRow("%s by %s at %s", victim.first, name, signal.constData() + 1)
                        << signal << open << act << victim.second;
                }
            }
        };
        const auto addKey = [=](const char* name, Qt::Key key) {
            add(name, false, {toggled}, [=](const ButtonForm& form) { QTest::keyClick(form.button, key); });
        };
        const auto choose = [](const ButtonForm& form) {
            const Hand hand(form.Calendar());
            form.button->SetSelDate(At(January5, 0), At(January5, 0));
            hand.Click(February1);
            hand.Click(February1);
        };
        const ButtonAct press = [](const ButtonForm& form) { form.Press(OnButton); };
        const ButtonAct click = [](const ButtonForm& form) { form.button->click(); };
        add("a press", false, {toggled}, press);
        add("a click of the program's", false, {toggled}, click);
        addKey("Space", Qt::Key_Space);
        addKey("Return", Qt::Key_Return);
        add("a press when open", true, {toggled}, press);
        add("a click of the program's when open", true, {toggled}, click);
        add("a press outside", true, {toggled}, [](const ButtonForm& form) { form.Press(OnOther); });
        add("Escape", true, {toggled},
            [](const ButtonForm& form) { Hand(form.Calendar()).Key(Qt::Key_Escape); });
        add("hiding", true, {toggled}, [](const ButtonForm& form) { form.Calendar()->hide(); });
        add("closing", true, {toggled}, [](const ButtonForm& form) { form.Calendar()->close(); });
        add("a choice that closes", true, {toggled}, [=](const ButtonForm& form) {
            connect(form.button, &WmDateCalendar::SgnDateTimeChanged, form.Calendar(), &QWidget::hide);
            choose(form);
        });
        add("a choice", true, changes, choose);
        add("a correction", false, changes,
            [](const ButtonForm& form) { form.button->SetSelDate(At(February1, 0), At(January5, 0)); });
    }

    /// Catches a touch of what a client's slot has deleted, by us or by Qt.
    void ButtonDeletedByASlot()
    {
        QFETCH(QByteArray, signal);
        QFETCH(bool, open);
        QFETCH(ButtonAct, act);
        QFETCH(Victim, victim);
        ButtonForm form;
        const QPointer<KvCalendarEx> calendar = form.Calendar();
        if (open)
            form.Press(OnButton);
        m_victim = victim(form);
        QVERIFY(connect(form.button, signal, this, SLOT(DeleteVictim())));
        act(form);
        QVERIFY(!m_victim);
        QTRY_VERIFY(!calendar);
        QVERIFY(!QApplication::activePopupWidget());
    }

    /// Catches a touch of the calendar after a slot that hears of the second change of a press, and deletes.
    void DeletedWhenCheckedAgain()
    {
        ButtonForm form;
        const QPointer<KvCalendarEx> calendar = form.Calendar();
        form.Press(OnButton);
        connect(form.button, &QPushButton::toggled, calendar, [&](bool checked) {
            if (checked)
                delete form.button;
        });
        form.Press(OnButton);
        QVERIFY(!form.button);
        QTRY_VERIFY(!calendar);
    }

    /// Catches a calendar that a slot of its closing opens again, and that comes up without its pages, or
    /// closed, or stays when the button goes.
    void OpenedAgainByASlot()
    {
        ButtonForm form;
        const QPointer<KvCalendarEx> calendar = form.Calendar();
        form.Press(OnButton);
        connect(form.button, &QPushButton::toggled, calendar, [&](bool checked) {
            if (!checked)
                form.button->click();
        });
        for (const QPoint& pos : {OnOther, OnButton}) {
            form.Press(pos);
            QVERIFY(calendar->isVisible());
            QVERIFY(Hand(calendar).View(1)->isVisible());
            QVERIFY(form.button->isChecked());
        }
        connect(form.button, &QPushButton::toggled, calendar, [&] { delete form.button; });
        calendar->hide();
        QVERIFY(!form.button);
        QTRY_VERIFY(!calendar);
    }

    /// Catches a calendar that Qt keeps as its open popup although it is hidden: the next window that comes
    /// up closes it for ever, and the client stands still.
    void HiddenWhileShown()
    {
        KvCalendarEx popup(nullptr, Qt::Popup | Qt::FramelessWindowHint);
        const TestSupport::AtEvent hide(&popup, QEvent::Show, [&] { popup.hide(); });
        popup.show();
        QVERIFY(hide.HasActed());
        QVERIFY(!popup.isVisible());
        QCOMPARE(QApplication::activePopupWidget(), nullptr);
        popup.show();
        QCOMPARE(QApplication::activePopupWidget(), &popup);
    }

public slots:
    void DeleteVictim() { delete m_victim; }

private:
    QPointer<QWidget> m_victim;
};

STRICT_X_TEST_MAIN(TestDateCalendar)
#include "tst_datecalendar.moc"
