// The tip bubble: where it stands, what it shows, when it goes.

#include "support/Columns.h"
#include "support/StrictMain.h"

#include <UI/FormInputs/CTipLabel.h>
#include <UI/FormInputs/TipPlacement.h>

#include <QtTest>
#include <QtWidgets>
#include <functional>

using namespace UICommonMdl;

Q_DECLARE_METATYPE(UICommonMdl::CTipLabel::DisplayPosition)

namespace {

const QString Tip = QStringLiteral("Enter a name");

/// A window with an anchor in its middle.
struct Anchored
{
    Anchored()
    {
        window.setGeometry(400, 400, 300, 100);
        anchor->setGeometry(100, 40, 80, 30);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
    }
    ~Anchored() { CTipLabel::Instance()->HideTip(); }

    QRect Place() const { return {anchor->mapToGlobal(QPoint(0, 0)), anchor->size()}; }

    QWidget window;
    QPointer<QPushButton> anchor = new QPushButton(&window);
};

QTextEdit* TextBox() { return CTipLabel::Instance()->findChild<QTextEdit*>(QStringLiteral("m_tipLabel")); }

/// A text of the tip's font that is as wide as wanted, to the width of a letter.
QString TextOfWidth(int pixels)
{
    const QString words = QStringLiteral("The address needs four numbers between nought and 255. ");
    const QFontMetrics metrics(TextBox()->font());
    QString text;
    const auto longer = [&] { return text + words.at(text.size() % words.size()); };
    while (metrics.boundingRect(longer()).width() <= pixels)
        text = longer();
    return text;
}

} // namespace

class TestTipLabel : public QObject
{
    Q_OBJECT

private slots:
    /// Catches a line too few or too many at a whole multiple of the width.
    void BodySizes()
    {
        const auto size = [](int textWidth) { return TipBodySize(textWidth, 15, 2); };
        QCOMPARE(size(0), QSize(200, 26));
        QCOMPARE(size(60), QSize(200, 26));
        QCOMPARE(size(299), QSize(299, 26));
        QCOMPARE(size(300), QSize(300, 19)); // just full
        QCOMPARE(size(301), QSize(300, 38));
        QCOMPARE(size(600), QSize(300, 38));
        QCOMPARE(size(650), QSize(300, 57));
    }

    void Placements_data()
    {
        TestSupport::Columns<QRect, CTipLabel::DisplayPosition, CTipLabel::DisplayPosition, QSize>(
            "anchor", "wanted", "side", "size");
        const QRect middle(1800, 400, 80, 30);
        const QSize beside(205, 26);
        const QSize above(200, 31);
        const auto row = [](const char* name, const QRect& anchor, CTipLabel::DisplayPosition wanted,
                            CTipLabel::DisplayPosition side,
                            const QSize& size) { QTest::newRow(name) << anchor << wanted << side << size; };
        row("left", middle, CTipLabel::Left, CTipLabel::Left, beside);
        row("right", middle, CTipLabel::Right, CTipLabel::Right, beside);
        row("top", middle, CTipLabel::Top, CTipLabel::Top, above);
        row("bottom", middle, CTipLabel::Bottom, CTipLabel::Bottom, above);
        row("narrow anchor", QRect(1800, 400, 4, 30), CTipLabel::Top, CTipLabel::Top, above);
        row("right edge", QRect(2500, 400, 50, 30), CTipLabel::Left, CTipLabel::Right, beside);
        row("left edge", QRect(1290, 400, 80, 30), CTipLabel::Right, CTipLabel::Left, beside);
        row("lower edge", QRect(1800, 980, 80, 30), CTipLabel::Top, CTipLabel::Bottom, above);
        row("upper edge", QRect(1800, 5, 80, 30), CTipLabel::Bottom, CTipLabel::Top, above);
        row("moved along to the left", QRect(2450, 400, 100, 30), CTipLabel::Top, CTipLabel::Top, above);
        row("moved along upwards", QRect(1800, 1000, 80, 24), CTipLabel::Left, CTipLabel::Left, beside);
        row("moved along downwards", QRect(1800, -4, 80, 30), CTipLabel::Left, CTipLabel::Left, beside);
    }

    /// Catches a bubble that leaves the screen (here the second of two), covers its anchor or points past it;
    /// and one of which nothing can be read on a screen that is too small.
    void Placements()
    {
        QFETCH(QRect, anchor);
        QFETCH(CTipLabel::DisplayPosition, wanted);
        const QRect screen(1280, 0, 1280, 1024);
        const TipPlacement place = PlaceTip(anchor, QSize(200, 26), wanted, screen);
        QTEST(place.side, "side");
        QTEST(place.bubble.size(), "size");
        QVERIFY(screen.contains(place.bubble));
        QVERIFY(!place.bubble.intersects(anchor));
        const QPolygon arrow = TipArrow(place.bubble.size(), place.side, place.arrowStart);
        const QPoint tip = place.bubble.topLeft() + arrow.at(1);
        QVERIFY(anchor.adjusted(-2, -2, 2, 2).contains(tip));
        QCOMPARE(
            arrow.boundingRect().united(TipBody(place.bubble.size(), place.side)).size(),
            arrow.boundingRect().united(QRect(QPoint(0, 0), place.bubble.size())).size());
        const QRect small(0, 0, 160, 20);
        QCOMPARE(
            PlaceTip(QRect(40, 5, 20, 10), QSize(200, 26), wanted, small).bubble.topLeft(), small.topLeft());
        const QRect atTheBottom(1800, 990, 80, 30); // without an arrow the bubble does not change sides
        QCOMPARE(PlaceTip(atTheBottom, QSize(200, 26), CTipLabel::None, screen).side, CTipLabel::None);
    }

    /// Catches a bubble that is not where the placement says, shows another text, takes an anchor's parent
    /// for granted, or stands there where there is nothing to show.
    void BubbleIsShownBesideItsAnchor()
    {
        Anchored form;
        CTipLabel* bubble = CTipLabel::Instance();
        bubble->ShowTip(Tip, form.anchor, CTipLabel::Left);
        QCOMPARE(bubble->size(), QSize(205, 26));
        QVERIFY(bubble->x() > form.Place().right());
        QCOMPARE(TextBox()->geometry(), QRect(6, 1, 198, 24));
        QCOMPARE(TextBox()->toPlainText(), Tip);
        bubble->ShowTip(Tip, form.anchor, CTipLabel::Top);
        QVERIFY(bubble->y() > form.Place().bottom());
        QCOMPARE(TextBox()->geometry(), QRect(1, 6, 198, 24));
        bubble->ShowTip(Tip, form.anchor, CTipLabel::Bottom);
        QVERIFY(bubble->geometry().bottom() < form.Place().top());
        QCOMPARE(TextBox()->geometry(), QRect(1, 1, 198, 24));
        bubble->ShowTip(Tip, form.anchor, static_cast<CTipLabel::DisplayPosition>(5));
        QCOMPARE(bubble->size(), QSize(200, 26));
        bubble->ShowTip(Tip, &form.window, CTipLabel::Left);
        QVERIFY(bubble->x() > form.window.mapToGlobal(form.window.rect().topRight()).x());
        bubble->ShowTip(QString(), &form.window, CTipLabel::Left);
        QVERIFY(!bubble->isVisible());
        bubble->ShowTip(Tip, &form.window, CTipLabel::Left);
        bubble->ShowTip(Tip, nullptr, CTipLabel::Left);
        QVERIFY(!bubble->isVisible());
    }

    /// Catches a bubble that the window system gives the mouse or the focus to.
    void BubbleTakesNeitherClicksNorFocus()
    {
        Anchored form;
        form.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&form.window));
        form.window.resize(600, 100);
        auto* below = new QPushButton(&form.window);
        below->setGeometry(200, 0, 300, 100);
        below->show();
        CTipLabel* bubble = CTipLabel::Instance();
        for (int time = 0; time < 2; ++time) { // the window system sees another window each time
            QCursor::setPos(form.window.mapToGlobal(QPoint(10, 10)));
            QTRY_VERIFY(!below->underMouse());
            bubble->ShowTip(Tip, form.anchor, CTipLabel::Left);
            QVERIFY(QTest::qWaitForWindowExposed(bubble));
            QCursor::setPos(bubble->geometry().center());
            QTRY_VERIFY(below->underMouse());
            QVERIFY(form.window.isActiveWindow());
            bubble->HideTip();
        }
    }

    /// Catches an animation that runs the wrong way or never ends, a timer that does not start it, a second
    /// tip that dies by the first one's timer or fading, and the limit of the display times taken
    /// inclusively, or not at all.
    void NewTipReplacesTheOld()
    {
        Anchored form;
        CTipLabel* bubble = CTipLabel::Instance();
        bubble->SetDisplayTime(1200);
        QElapsedTimer timer;
        timer.start();
        bubble->ShowTip(Tip, form.anchor, CTipLabel::Left);
        QVERIFY(bubble->windowOpacity() < 0.5);
        QTRY_COMPARE(bubble->windowOpacity(), 1.0);
        QTRY_VERIFY(bubble->windowOpacity() < 0.9); // it is fading out
        QVERIFY(timer.elapsed() >= 1200);
        bubble->SetDisplayTime(3000);
        bubble->SetDisplayTime(300); // too short: still 3000
        bubble->ShowTip(QStringLiteral("Another"), form.anchor, CTipLabel::Top);
        const int clients = bubble->startTimer(1); // which is not the bubble's own
        QTest::qWait(301 + 1000 + 300); // by then a tip of the shortest time has gone
        QVERIFY(bubble->isVisible());
        QCOMPARE(bubble->windowOpacity(), 1.0);
        QCOMPARE(TextBox()->toPlainText(), QStringLiteral("Another"));
        bubble->killTimer(clients);
        bubble->SetDisplayTime(301);
        bubble->ShowTip(Tip, form.anchor, CTipLabel::Left);
        QTRY_VERIFY_WITH_TIMEOUT(!bubble->isVisible(), 3000);
        bubble->SetDisplayTime(3000);
    }

    /// Catches a bubble that points at nothing, or touches its deleted anchor.
    void BubbleGoesWithItsAnchor()
    {
        const QVector<std::function<void(Anchored&)>> ways{
            [](Anchored& form) { form.anchor->hide(); }, [](Anchored& form) { delete form.anchor; },
            [](Anchored& form) { form.window.hide(); },
            [](Anchored& form) { form.window.move(form.window.pos() + QPoint(20, 20)); }};
        for (const auto& go : ways) {
            Anchored form;
            CTipLabel::Instance()->ShowTip(Tip, form.anchor, CTipLabel::Left);
            go(form);
            QTRY_VERIFY(!CTipLabel::Instance()->isVisible());
        }
    }

    void WholeTextIsSeen_data()
    {
        TestSupport::Columns<int, int>("width", "letters"); // pixels
        for (const int width : {20, 185, 199, 210, 250, 290, 299, 305, 400, 560, 590, 800, 880})
            QTest::newRow(qPrintable(QString::number(width))) << width << TextBox()->fontInfo().pixelSize();
        QTest::newRow("higher than the line") << 185 << 28;
    }

    /// Catches a text that needs more lines than the bubble has room for: padding that was not measured, or a
    /// font's leading below zero.
    void WholeTextIsSeen()
    {
        QFETCH(int, width);
        QFETCH(int, letters);
        QFont font = TextBox()->font();
        font.setPixelSize(letters);
        TextBox()->setFont(font);
        Anchored form;
        const QString text = TextOfWidth(width);
        CTipLabel::Instance()->ShowTip(text, form.anchor, CTipLabel::Left);
        const int tooMuch = qMax(0, int(TextBox()->document()->size().height()) - TextBox()->height());
        QVERIFY(tooMuch <= 4); // less than a line: room above and below the letters
        QCOMPARE(TextBox()->verticalScrollBar()->value(), qMin(tooMuch, 3));
        const QFontMetrics metrics(TextBox()->font());
        const int lines = width < 300 ? 1 : (metrics.boundingRect(text).width() + 299) / 300;
        QCOMPARE(TextBox()->document()->firstBlock().layout()->lineCount(), lines);
    }
};

STRICT_X_TEST_MAIN(TestTipLabel)
#include "tst_tiplabel.moc"
