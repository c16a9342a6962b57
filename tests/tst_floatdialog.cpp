// The floating dialog beside a parent that moves, resizes, hides, changes its own parent and dies.

#include "support/Columns.h"
#include "support/Deletion.h"
#include "support/StrictMain.h"

#include <Platform/BasicUIComponents/KvSkin.h>
#include <UI/Dialogs/CFloatDialog.h>

#include <QtTest/qtestspontaneevent.h>

#include <QtTest>
#include <QtWidgets>
#include <functional>
#include <memory>

using UICommonMdl::CFloatDialog;

namespace {

constexpr int Width = 240;
constexpr int Height = 400;
constexpr int SlideTime = 500; // milliseconds

/// Counts what its event filter is given.
class WatchedDialog : public CFloatDialog
{
public:
    using CFloatDialog::CFloatDialog;

    int Filtered(QObject* object)
    {
        m_counts.clear();
        QEvent probe(QEvent::User);
        QCoreApplication::sendEvent(object, &probe);
        return m_counts.value(object);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::User)
            ++m_counts[watched];
        return CFloatDialog::eventFilter(watched, event);
    }

private:
    QHash<QObject*, int> m_counts;
};

/// A window, a page in it, and the dialog on the page.
struct Fixture
{
    Fixture()
    {
        window->setGeometry(100, 50, 600, 500);
        page->setGeometry(50, 60, 500, Height);
        dialog->SetFixWidth(Width);
        window->show();
        dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
    }

    QWidget* Panel() const { return dialog->findChild<QWidget*>(QStringLiteral("m_floatWgt")); }
    QPropertyAnimation* Slide() const { return dialog->findChild<QPropertyAnimation*>(); }
    QPushButton* CloseButton() const { return dialog->findChild<QPushButton*>(QStringLiteral("closeBtn")); }
    /// Lets the slide reach its end at once.
    void Finish() const { Slide()->setCurrentTime(Slide()->duration()); }
    void SlideTo(bool show) const
    {
        dialog->AnimaShow(show);
        Finish();
    }

    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    QWidget* page = new QWidget(window.get());
    QPointer<WatchedDialog> dialog = new WatchedDialog(page);
};

void CloseByTheDesktop(QWidget* window)
{
    QCloseEvent event;
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(window, &event);
}

const QPoint In(0, 0);
const QPoint Out(Width, 0);

using Step = std::function<void(const Fixture&)>;

} // namespace

Q_DECLARE_METATYPE(Step)

class tst_FloatDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { TestSupport::SpoilFreedMemory(); }

    /// Catches a panel beside its parent, of another height, visible before it was asked for, or left behind
    /// when the parent or a widget around it moves or resizes; a wider one that sticks out of the parent.
    void followsTheParent()
    {
        const Fixture f;
        const auto corner = [&] { return f.page->mapToGlobal(QPoint(f.page->width() - Width, 0)); };
        QCOMPARE(f.dialog->geometry(), QRect(corner(), QSize(Width, Height)));
        QCOMPARE(f.Panel()->size(), QSize(Width, Height));
        QCOMPARE(f.Panel()->pos(), Out);
        QCOMPARE(f.dialog->HiddenPos(), Out);
        QVERIFY(!f.dialog->IsShown());
        f.page->move(10, 20);
        QCOMPARE(f.dialog->pos(), corner());
        f.page->resize(450, 333);
        QCOMPARE(f.dialog->geometry(), QRect(corner(), QSize(Width, 333)));
        QCOMPARE(f.Panel()->height(), 333);
        f.window->move(200, 150);
        QTRY_COMPARE(f.dialog->pos(), corner());
        f.dialog->UpdateHeight(0);
        f.dialog->UpdateHeight(-3);
        QCOMPARE(f.dialog->height(), 333);
        f.dialog->SetFixWidth(Width + 50);
        QCOMPARE(f.dialog->pos(), corner() - QPoint(50, 0));
    }

    /// Catches a wrong direction, a missing report, and a panel that counts as out while it still slides.
    void slidesInAndOut()
    {
        const Fixture f;
        QSignalSpy finished(f.dialog, &CFloatDialog::SignalAnimationFinished);
        for (const bool show : {true, false}) {
            f.dialog->AnimaShow(show);
            QCOMPARE(f.Panel()->pos(), show ? Out : In);
            QVERIFY(f.dialog->IsShown());
            f.Slide()->setCurrentTime(SlideTime / 2);
            QVERIFY(qAbs(f.Panel()->x() - Width / 2) <= 1); // the curve is symmetric
            QVERIFY(f.dialog->IsShown());
            f.Finish();
            QCOMPARE(f.Panel()->pos(), show ? In : Out);
            QCOMPARE(f.dialog->IsShown(), show);
            QCOMPARE(finished.count(), show ? 1 : 2);
        }
        f.dialog->AnimaShow(true);
        QCOMPARE(f.Slide()->duration(), SlideTime);
        QVERIFY(finished.wait()); // by itself
        QCOMPARE(f.Panel()->pos(), In);
    }

    /// Catches a second request that starts the slide anew, and a slide that goes on after the panel was
    /// placed directly.
    void sameRequestStartsNothing()
    {
        const Fixture f;
        f.dialog->AnimaShow(false);
        f.dialog->DirectShow(false);
        QVERIFY(!f.dialog->IsShown());
        f.dialog->AnimaShow(true);
        f.Slide()->setCurrentTime(200);
        f.dialog->AnimaShow(true);
        f.dialog->DirectShow(true);
        QCOMPARE(f.Slide()->currentTime(), 200);
        QCOMPARE(f.Slide()->state(), QAbstractAnimation::Running);
        f.dialog->DirectShow(false);
        QCOMPARE(f.Panel()->pos(), Out);
        QVERIFY(!f.dialog->IsShown());
        f.dialog->DirectShow(true);
        QCOMPARE(f.Panel()->pos(), In);
    }

    /// Catches a panel that jumps when it turns back, and a way back that takes another time than the way
    /// there, also when it turns back a second time.
    void turnsBackAndBackAgain()
    {
        const Fixture f;
        f.dialog->AnimaShow(true);
        f.Slide()->setCurrentTime(300);
        const int there = f.Panel()->x();
        QVERIFY(there > 0 && there < Width / 2);
        f.Panel()->move(there, 9); // slides run along the upper edge

        f.dialog->AnimaShow(false);
        QCOMPARE(f.Panel()->pos(), QPoint(there, 0));
        QCOMPARE(f.Slide()->duration(), 300);
        f.Slide()->setCurrentTime(100);
        const int back = f.Panel()->x();
        QVERIFY(back > there && back < Width);

        f.dialog->AnimaShow(true);
        QCOMPARE(f.Panel()->pos(), QPoint(back, 0));
        QCOMPARE(f.Slide()->duration(), 100);
        f.Finish();
        QCOMPARE(f.Panel()->pos(), In);
        QVERIFY(f.dialog->IsShown());
    }

    /// Catches a slide of no time that never ends, and the next one that takes no time either.
    void turnsBackAtOnce()
    {
        const Fixture f;
        QSignalSpy finished(f.dialog, &CFloatDialog::SignalAnimationFinished);
        f.dialog->AnimaShow(true);
        f.dialog->AnimaShow(false);
        QCOMPARE(finished.count(), 1);
        QCOMPARE(f.Panel()->pos(), Out);
        QVERIFY(!f.dialog->IsShown());
        f.dialog->AnimaShow(true);
        QCOMPARE(f.Slide()->duration(), SlideTime);
    }

    /// Catches a strip of a wider panel that looks in while it is out, or after it slid out.
    void widthChangesWhileOut()
    {
        const Fixture f;
        f.dialog->SetFixWidth(300);
        QCOMPARE(f.Panel()->pos(), QPoint(300, 0));
        f.dialog->DirectShow(true);
        f.dialog->AnimaShow(false);
        f.Slide()->setCurrentTime(200);
        f.dialog->SetFixWidth(350);
        f.Finish();
        QCOMPARE(f.Panel()->pos(), QPoint(350, 0));
        f.dialog->SetFixWidth(-5);
        QCOMPARE(f.dialog->width(), 0);
    }

    /// Catches a window that takes clicks beside the panel, while it slides too.
    void windowIsNoLargerThanThePanel()
    {
        const Fixture f;
        const auto shape = [&] { return f.dialog->mask() & f.dialog->rect(); };
        QVERIFY(!f.dialog->mask().isEmpty());
        QVERIFY(shape().isEmpty());
        f.dialog->AnimaShow(true);
        f.Slide()->setCurrentTime(250);
        QCOMPARE(shape(), QRegion(f.Panel()->geometry()) & f.dialog->rect());
        f.Finish();
        QCOMPARE(shape(), QRegion(f.dialog->rect()));
        f.page->resize(500, 200);
        QCOMPARE(shape(), QRegion(f.dialog->rect()));
    }

    /// Catches a filter that is left on a former ancestor, missing on a new one, or there twice, and a panel
    /// that stays where the former parent is.
    void watchesEachAncestorOnce()
    {
        const Fixture f;
        QSignalSpy changed(f.dialog, &CFloatDialog::SignalParentChange);
        QWidget otherWindow;
        auto* outer = new QWidget(&otherWindow);
        auto* inner = new QWidget(outer);
        f.page->setParent(inner);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(f.dialog->pos(), f.page->mapToGlobal(QPoint(f.page->width() - Width, 0)));
        for (QWidget* ancestor : {f.page, inner, outer, &otherWindow})
            QCOMPARE(f.dialog->Filtered(ancestor), 1);
        QCOMPARE(f.dialog->Filtered(f.window.get()), 0);

        outer->setParent(f.window.get()); // not the parent itself
        QCOMPARE(changed.count(), 2);
        for (QWidget* ancestor : {f.page, inner, outer, f.window.get()})
            QCOMPARE(f.dialog->Filtered(ancestor), 1);
        QCOMPARE(f.dialog->Filtered(&otherWindow), 0);

        f.page->setParent(f.window.get());
        QCOMPARE(changed.count(), 3);
        QCOMPARE(f.dialog->Filtered(f.page), 1);
        QCOMPARE(f.dialog->Filtered(f.window.get()), 1);
        QCOMPARE(f.dialog->Filtered(inner), 0);
        QCOMPARE(f.dialog->Filtered(outer), 0);

        f.dialog->setParent(nullptr);
        inner->installEventFilter(f.dialog); // by the client
        inner->setParent(&otherWindow);
        QCOMPARE(changed.count(), 3);
        delete f.dialog;
    }

    /// Catches a dialog that goes on listening to the parent it was taken from.
    void newParentOfItsOwn()
    {
        const Fixture f;
        QWidget other;
        other.setGeometry(20, 20, 700, 350);
        f.dialog->setParent(&other, f.dialog->windowFlags());
        QCOMPARE(f.dialog->Filtered(f.page), 0);
        QCOMPARE(f.dialog->Filtered(&other), 1);
        f.dialog->show();
        QCOMPARE(f.dialog->geometry(), QRect(other.mapToGlobal(QPoint(700 - Width, 0)), QSize(Width, 350)));
        f.dialog->setParent(f.page); // as a part of it, no window of its own
        f.dialog->show();
        QCOMPARE(f.dialog->geometry(), QRect(500 - Width, 0, Width, Height));
    }

    void comesBackWithTheParent_data()
    {
        TestSupport::Columns<Step, bool, bool>("before", "hidePage", "back");
        const auto row = [](const char* name, bool back, const Step& before) {
            QTest::addRow("%s, page", name) << before << true << back;
            QTest::addRow("%s, window", name) << before << false << back;
        };
        row("slid in", true, [](const Fixture& f) { f.SlideTo(true); });
        row("put in", true, [](const Fixture& f) { f.dialog->DirectShow(true); });
        row("sliding in", true, [](const Fixture& f) { f.dialog->AnimaShow(true); });
        row("never in", false, [](const Fixture&) {});
        row("slid out", false, [](const Fixture& f) {
            f.SlideTo(true);
            f.SlideTo(false);
        });
        row("sliding out", false, [](const Fixture& f) {
            f.SlideTo(true);
            f.dialog->AnimaShow(false);
        });
        row("taken out", true, [](const Fixture& f) {
            f.SlideTo(true);
            f.dialog->DirectShow(false);
        });
        row("taken out, in and slid out", false, [](const Fixture& f) {
            f.dialog->DirectShow(true);
            f.dialog->DirectShow(false);
            f.SlideTo(true);
            f.SlideTo(false);
        });
    }

    /// Catches a panel that stays over another page, one that is lost after the way there and back, and one
    /// that comes back although the operator had closed it.
    void comesBackWithTheParent()
    {
        QFETCH(Step, before);
        QFETCH(bool, hidePage);
        QFETCH(bool, back);
        const Fixture f;
        before(f);
        QWidget* hidden = hidePage ? f.page : f.window.get();
        for (int round = 0; round < 2; ++round) {
            hidden->hide();
            if (back)
                QCOMPARE(f.Panel()->pos(), Out);
            hidden->show();
            f.Finish(); // of a slide out that goes on
            QCOMPARE(f.dialog->IsShown(), back);
            QCOMPARE(f.Panel()->pos(), back ? In : Out);
        }
    }

    /// Catches an animation or a filter that touches what has gone.
    void parentDiesDuringASlide()
    {
        for (const bool withWindow : {true, false}) {
            Fixture f;
            f.dialog->AnimaShow(true);
            f.Slide()->setCurrentTime(100);
            if (withWindow)
                f.window.reset();
            else
                delete f.page;
            QVERIFY(f.dialog.isNull());
            QCoreApplication::processEvents();
        }
    }

    /// Catches calls that need a parent.
    void withoutParent()
    {
        CFloatDialog dialog(nullptr);
        dialog.show();
        dialog.UpdatePos();
        dialog.AnimaShow(true);
        dialog.DirectShow(false);
        QVERIFY(!dialog.IsShown());
    }

    /// Catches Escape or Enter that closes the panel, and keys that do not reach the content.
    void keysEndHere()
    {
        const Fixture f;
        QSignalSpy ended(f.dialog, &QDialog::finished);
        auto* edit = new QLineEdit;
        f.dialog->AddCentralWidget(edit);
        f.dialog->DirectShow(true);
        for (QWidget* target : {static_cast<QWidget*>(f.dialog), static_cast<QWidget*>(edit)}) {
            for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter})
                QTest::keyClick(target, key);
            QVERIFY(f.dialog->isVisible());
        }
        QTest::keyClicks(edit, QStringLiteral("ok"));
        QCOMPARE(edit->text(), QStringLiteral("ok"));
        QVERIFY(ended.isEmpty());
    }

    /// Catches a button that acts on its own, and a dialog that the desktop closes: no later slide could be
    /// seen.
    void closingOnlyReports()
    {
        const Fixture f;
        QSignalSpy closed(f.dialog, &CFloatDialog::SignalBtnCloseClicked);
        f.dialog->DirectShow(true);
        const QPoint pos = f.CloseButton()->mapTo(f.dialog, f.CloseButton()->rect().center());
        QTest::mouseClick(f.dialog->windowHandle(), Qt::LeftButton, {}, pos);
        CloseByTheDesktop(f.dialog);
        QCOMPARE(closed.count(), 2);
        QVERIFY(f.dialog->isVisible());
        QCOMPARE(f.Panel()->pos(), In);
        f.dialog->close(); // by the client
        QVERIFY(!f.dialog->isVisible());
    }

    /// Catches keys that go to a panel which cannot be seen.
    void givesTheKeyboardBack()
    {
        const Fixture f;
        for (int round = 0; round < 2; ++round) {
            f.dialog->DirectShow(true);
            f.dialog->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(f.dialog));
            if (round == 0)
                f.dialog->AnimaShow(false);
            else
                f.dialog->DirectShow(false);
            QVERIFY(QTest::qWaitForWindowActive(f.window.get()));
            f.Finish();
        }
    }

    void slotMayDeleteTheDialog_data()
    {
        TestSupport::Columns<Step, Step>("connectTo", "act");
        const auto row = [](const char* name, auto signal, const Step& act) {
            const Step connectTo = [signal](const Fixture& f) {
                TestSupport::DeleteAt<CFloatDialog>(f.dialog.data(), signal);
            };
            QTest::newRow(name) << connectTo << act;
        };
        row("finished", &CFloatDialog::SignalAnimationFinished, [](const Fixture& f) { f.SlideTo(true); });
        row("finished at once", &CFloatDialog::SignalAnimationFinished, [](const Fixture& f) {
            f.dialog->AnimaShow(true);
            f.dialog->AnimaShow(false);
        });
        row("close button", &CFloatDialog::SignalBtnCloseClicked, [](const Fixture& f) {
            f.dialog->DirectShow(true);
            QTest::mouseClick(f.CloseButton(), Qt::LeftButton);
        });
        row("closed by the desktop", &CFloatDialog::SignalBtnCloseClicked,
            [](const Fixture& f) { CloseByTheDesktop(f.dialog); });
        row("closed by the client", &QDialog::rejected, [](const Fixture& f) { f.dialog->close(); });
        row("parent change", &CFloatDialog::SignalParentChange, [](const Fixture& f) {
            f.page->setParent(nullptr);
            delete f.page;
        });
    }

    /// Catches a dialog that goes on after its client deleted it.
    void slotMayDeleteTheDialog()
    {
        QFETCH(Step, connectTo);
        QFETCH(Step, act);
        const Fixture f;
        connectTo(f);
        act(f);
        QVERIFY(f.dialog.isNull());
    }

    /// Catches a second widget that lies over the first, gaps around the content, and a title that pushes the
    /// close button out of the panel.
    void content()
    {
        const Fixture f;
        f.dialog->AddCentralWidget(nullptr);
        QVERIFY(f.dialog->GetCentralWidget()->layout() == nullptr);
        auto* first = new QLabel;
        auto* second = new QLabel;
        f.dialog->AddCentralWidget(first);
        f.dialog->AddCentralWidget(second);
        f.dialog->SetTitle(QString(200, QLatin1Char('m')));
        QCoreApplication::processEvents();
        QCOMPARE(f.CloseButton()->size(), QSize(20, 20));
        QCOMPARE(f.CloseButton()->mapTo(f.Panel(), QPoint(20, 0)).x(), Width - 1 - 15);
        const QWidget* center = f.dialog->GetCentralWidget();
        QCOMPARE(center->mapTo(f.Panel(), QPoint(0, 0)), QPoint(1, 41));
        QCOMPARE(first->pos(), QPoint(0, 0));
        QCOMPARE(second->geometry().bottomRight(), center->rect().bottomRight());
        QVERIFY(!first->geometry().intersects(second->geometry()));

        const auto* icon = f.dialog->findChild<QLabel*>(QStringLiteral("label_info"));
        QVERIFY(!icon->isHidden());
        f.dialog->InitUI();
        QVERIFY(icon->isHidden());
    }

    /// Catches a change of skin that drops what was appended or overwrites the client's sheet, and a parent's
    /// sheet that makes the window opaque.
    void styles()
    {
        Fixture f;
        const QString appended = QStringLiteral("#wgtCenter { background-color: #123456; }");
        f.dialog->SetCentralWidgetStyle(appended);
        f.window->setStyleSheet(QStringLiteral("QDialog { background-color: red; }"));
        QVector<QColor> titleBars;
        for (const char* skin : {"White", "Black"}) {
            KvGUI::SetSkinVersion(QString::fromLatin1(skin));
            QCOMPARE(f.dialog->styleSheet().count(appended), 1);
            f.dialog->DirectShow(true);
            const QImage picture = f.dialog->grab().toImage();
            QCOMPARE(picture.pixelColor(100, 200), QColor(0x12, 0x34, 0x56));
            titleBars.append(picture.pixelColor(150, 20));
            f.dialog->DirectShow(false);
            QCOMPARE(f.dialog->grab().toImage().pixelColor(100, 200).alpha(), 0);
        }
        QVERIFY(titleBars.at(0) != titleBars.at(1));

        const QString black = f.dialog->styleSheet();
        KvGUI::SetSkinVersion(QStringLiteral("None"));
        QCOMPARE(f.dialog->styleSheet(), black);
        f.dialog->setStyleSheet(appended);
        KvGUI::SetSkinVersion(QStringLiteral("White"));
        QCOMPARE(f.dialog->styleSheet(), appended);
        KvGUI::SetSkinVersion(QStringLiteral("Black"));
    }
};

STRICT_X_TEST_MAIN(tst_FloatDialog)
#include "tst_floatdialog.moc"
