// The IP address field, by keys, clipboard and mouse as the window system delivers them.

#include "support/Columns.h"
#include "support/Deletion.h"
#include "support/ShowActive.h"
#include "support/StrictMain.h"

#include <UI/FormInputs/CTipLabel.h>
#include <UI/FormInputs/IpAddress.h>
#include <UI/FormInputs/QIpAddrEdit.h>
#include <UI/FormInputs/QIpPartLineEdit.h>

#include <QtTest>
#include <QtWidgets>
#include <functional>
#include <utility>

using namespace UICommonMdl;

namespace {

/// A window with the field and an edit beside it.
struct Form
{
    Form()
    {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(address);
        layout->addWidget(other);
        window.resize(300, 120);
        window.move(300, 300);
        TestSupport::ShowActive(window);
        address->setFocus();
    }

    QIpPartLineEdit* Octet(int index) const
    {
        QList<QIpPartLineEdit*> octets = address->findChildren<QIpPartLineEdit*>();
        return octets.at(index);
    }

    int FocusedOctet() const
    {
        return address->findChildren<QIpPartLineEdit*>().indexOf(
            qobject_cast<QIpPartLineEdit*>(QApplication::focusWidget()));
    }

    /// To the widget with the focus, as from the keyboard.
    void Type(const QString& keys)
    {
        for (const QChar key : keys)
            QTest::keyClick(window.windowHandle(), key.toLatin1());
    }
    /// Sets the address while the focus is elsewhere, so that the first octet is entered anew.
    void Begin(const QString& text)
    {
        other->setFocus();
        address->settext(text);
        address->setFocus();
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(window.windowHandle(), key, modifiers);
    }

    QWidget window;
    QPointer<QIpAddrEdit> address = new QIpAddrEdit;
    QLineEdit* other = new QLineEdit;
};

using Act = std::function<void(Form&)>;

} // namespace

Q_DECLARE_METATYPE(Act)

class TestIpAddrEdit : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { TestSupport::SpoilFreedMemory(); }

    void cleanup()
    {
        CTipLabel::Instance()->HideTip();
        QGuiApplication::clipboard()->clear();
    }

    void TypingMovesOn_data()
    {
        TestSupport::Columns<QString, QString, int>("keys", "text", "focused");
        QTest::newRow("three digits") << QStringLiteral("192") << QStringLiteral("192...") << 1;
        QTest::newRow("two, no third can follow") << QStringLiteral("30") << QStringLiteral("30...") << 1;
        QTest::newRow("26 is the first of them") << QStringLiteral("26") << QStringLiteral("26...") << 1;
        QTest::newRow("25 is not") << QStringLiteral("25") << QStringLiteral("25...") << 0;
        QTest::newRow("leading zeros") << QStringLiteral("007") << QStringLiteral("007...") << 1;
        QTest::newRow("whole address")
            << QStringLiteral("192168001064") << QStringLiteral("192.168.001.064") << 3;
        QTest::newRow("with periods") << QStringLiteral("10.0.0.1.") << QStringLiteral("10.0.0.1") << 3;
        QTest::newRow("too large") << QStringLiteral("256") << QStringLiteral("255...") << 1;
        QTest::newRow("300") << QStringLiteral("300") << QStringLiteral("30.0..") << 1;
        QTest::newRow("period first") << QStringLiteral(".1") << QStringLiteral("1...") << 0;
        QTest::newRow("two periods") << QStringLiteral("1..2") << QStringLiteral("1.2..") << 1;
        QTest::newRow("no digits") << QStringLiteral("a-+ 1,2") << QStringLiteral("12...") << 0;
        QTest::newRow("beyond the last") << QStringLiteral("1.2.3.2559") << QStringLiteral("1.2.3.255") << 3;
    }

    /// Catches a focus that moves too early, too late or past the last octet, and characters that are no
    /// digits.
    void TypingMovesOn()
    {
        QFETCH(QString, keys);
        QFETCH(QString, text);
        QFETCH(int, focused);
        Form form;
        form.Type(keys);
        QCOMPARE(form.address->text(), text);
        QCOMPARE(form.FocusedOctet(), focused);
    }

    /// Catches a period that skips the octet which the focus has just entered.
    void PeriodKeepsASelectedOctet()
    {
        Form form;
        form.Begin(QStringLiteral("10.20.30.40"));
        form.Type(QStringLiteral("."));
        QCOMPARE(form.FocusedOctet(), 0); // all of it is selected
        form.Press(Qt::Key_End);
        form.Type(QStringLiteral("."));
        QCOMPARE(form.FocusedOctet(), 1);
        QCOMPARE(form.Octet(1)->selectedText(), QStringLiteral("20"));
        form.Type(QStringLiteral("7"));
        QCOMPARE(form.address->text(), QStringLiteral("10.7.30.40"));
    }

    /// Catches Backspace that stops at an empty octet, or that leaves the first one.
    void BackspaceGoesBack()
    {
        Form form;
        form.Type(QStringLiteral("12.3"));
        form.Press(Qt::Key_Backspace);
        QCOMPARE(form.FocusedOctet(), 1);
        form.Press(Qt::Key_Backspace);
        QCOMPARE(form.FocusedOctet(), 0);
        QCOMPARE(form.Octet(0)->selectedText(), QStringLiteral("12"));
        form.Press(Qt::Key_Backspace);
        form.Press(Qt::Key_Backspace);
        QCOMPARE(form.FocusedOctet(), 0);
        QCOMPARE(form.address->text(), QString());
    }

    void Pasting_data()
    {
        TestSupport::Columns<QString, QString, int>("clipboard", "text", "focused");
        QTest::newRow("one octet") << QStringLiteral("64") << QStringLiteral("1.64.3.4") << 2;
        QTest::newRow("too large") << QStringLiteral("999") << QStringLiteral("1.255.3.4") << 2;
        QTest::newRow("address") << QStringLiteral("10.0.0.254") << QStringLiteral("10.0.0.254") << 3;
        QTest::newRow("address of a terminal")
            << QStringLiteral(" 10.0.0.254\n") << QStringLiteral("10.0.0.254") << 3;
        QTest::newRow("no address") << QStringLiteral("10.0.0.256") << QStringLiteral("1.2.3.4") << 1;
        QTest::newRow("part of one") << QStringLiteral("10.0.0") << QStringLiteral("1.2.3.4") << 1;
        QTest::newRow("more than one") << QStringLiteral("10.0.0.1.2") << QStringLiteral("1.2.3.4") << 1;
        QTest::newRow("octet missing") << QStringLiteral("10..0.1") << QStringLiteral("1.2.3.4") << 1;
        QTest::newRow("words") << QStringLiteral("router") << QStringLiteral("1.2.3.4") << 1;
        QTest::newRow("other digits")
            << QStringLiteral("\u0661\u0660.0.0.1") << QStringLiteral("1.2.3.4") << 1;
    }

    /// Catches a whole address that is refused or put into one octet, and garbage that gets in.
    void Pasting()
    {
        QFETCH(QString, clipboard);
        QFETCH(QString, text);
        QFETCH(int, focused);
        Form form;
        form.address->settext(QStringLiteral("1.2.3.4"));
        QGuiApplication::clipboard()->setText(clipboard);
        form.Press(Qt::Key_Tab);
        form.Press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(form.address->text(), text);
        QCOMPARE(form.FocusedOctet(), focused);
    }

    /// Catches a menu entry that goes round the filling of all octets, and an octet that is read-only and
    /// takes an address.
    void PastingFromTheMenu()
    {
        Form form;
        for (const char* clipboard : {"7", "10.0.0.254", "172.16.0.1"}) {
            QGuiApplication::clipboard()->setText(QString::fromLatin1(clipboard));
            form.Octet(1)->setReadOnly(qstrcmp(clipboard, "172.16.0.1") == 0);
            QContextMenuEvent event(
                QContextMenuEvent::Mouse, QPoint(4, 4), form.Octet(1)->mapToGlobal(QPoint(4, 4)));
            QApplication::sendEvent(form.Octet(1), &event);
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            QVERIFY(menu);
            const QPointer<QMenu> opened(menu);
            QTest::keyClick(menu, form.Octet(1)->isReadOnly() ? Qt::Key_Escape : Qt::Key_P);
            QTRY_VERIFY(!opened);
        }
        QTest::keyClick(form.Octet(1), Qt::Key_V, Qt::ControlModifier); // read-only still
        QCOMPARE(form.address->text(), QStringLiteral("10.0.0.254"));
    }

    /// Catches the window system's other clipboard and what is dropped, which have ways of their own.
    void PastingByTheMouse()
    {
        Form form;
        QVERIFY(QGuiApplication::clipboard()->supportsSelection());
        for (const char* text : {"64", "10.0.0.254"}) {
            QGuiApplication::clipboard()->setText(QString::fromLatin1(text), QClipboard::Selection);
            QTest::mouseClick(form.Octet(2), Qt::MiddleButton);
            QVERIFY(form.address->text().contains(QLatin1String(text)));
        }
        QGuiApplication::clipboard()->clear(QClipboard::Selection);
        for (const char* text : {"router", "172.16.0.1"}) {
            QMimeData data;
            data.setText(QString::fromLatin1(text));
            QDragEnterEvent enter(QPoint(4, 4), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(form.Octet(1), &enter);
            QDropEvent drop(QPointF(4, 4), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(form.Octet(1), &drop);
        }
        QCOMPARE(form.address->text(), QStringLiteral("172.16.0.1"));
    }

    void SettingText_data()
    {
        TestSupport::Columns<QString, QString>("given", "text");
        QTest::newRow("whole") << QStringLiteral("192.168.1.64") << QStringLiteral("192.168.1.64");
        QTest::newRow("three parts") << QStringLiteral("192.168.1") << QStringLiteral("192.168.1.");
        QTest::newRow("five parts") << QStringLiteral("1.2.3.4.5") << QStringLiteral("1.2.3.4");
        QTest::newRow("empty part") << QStringLiteral("10..0.1") << QStringLiteral("10..0.1");
        QTest::newRow("dots only") << QStringLiteral("...") << QString();
        QTest::newRow("empty") << QString() << QString();
    }

    /// Catches octets that keep what they held, and dots where there is no address.
    void SettingText()
    {
        QFETCH(QString, given);
        QIpAddrEdit address;
        QCOMPARE(address.text(), QString());
        address.settext(QStringLiteral("9.9.9.9"));
        address.settext(given);
        QTEST(address.text(), "text");
        address.clear();
        QCOMPARE(address.text(), QString());
    }

    /// Catches the rules for typing at work while the program sets an address, also once a slot has set
    /// another, and rules that are gone afterwards.
    void SettingTextKeepsTheFocus()
    {
        Form form;
        form.other->setFocus();
        bool corrected = false;
        connect(form.address, &QIpAddrEdit::textchanged, form.address, [&] {
            if (!std::exchange(corrected, true))
                form.address->settext(QStringLiteral("1.1.1.1"));
        });
        form.address->settext(QStringLiteral("192.168.100.200"));
        QVERIFY(corrected);
        QVERIFY(form.other->hasFocus());
        form.address->setFocus();
        form.Type(QStringLiteral("172"));
        QCOMPARE(form.FocusedOctet(), 1);
    }

    /// Catches a number that passes for a small one because it is too long for an int.
    void OctetsEndAt255()
    {
        Form form;
        for (const char* number : {"256", "4294967551", "99999999999999999999"}) {
            form.Octet(0)->setText(QString::fromLatin1(number));
            QCOMPARE(form.Octet(0)->text(), QStringLiteral("255"));
        }
    }

    /// Catches signals with the octet's text in place of the address, and edits told of changes by the
    /// program.
    void Signals()
    {
        Form form;
        QSignalSpy changed(form.address, &QIpAddrEdit::textchanged);
        QSignalSpy edited(form.address, &QIpAddrEdit::textedited);
        form.Begin(QStringLiteral("10.0.0.1"));
        QCOMPARE(changed.last().first().toString(), QStringLiteral("10.0.0.1"));
        QCOMPARE(edited.count(), 0);
        form.Type(QStringLiteral("9"));
        QCOMPARE(changed.last().first().toString(), QStringLiteral("9.0.0.1"));
        QCOMPARE(edited.count(), 1);
        QCOMPARE(edited.last().first().toString(), QStringLiteral("9.0.0.1"));
        QGuiApplication::clipboard()->setText(QStringLiteral("172.16.0.1"));
        form.Press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(edited.count(), 2);
        QCOMPARE(edited.last().first().toString(), QStringLiteral("172.16.0.1"));
    }

    /// Catches a Return key that submits a form which only the keypad's should.
    void OnlyKeypadEnterCounts()
    {
        Form form;
        QSignalSpy enter(form.address, &QIpAddrEdit::sgnEnterPress);
        form.Press(Qt::Key_Return);
        QCOMPARE(enter.count(), 0);
        form.Press(Qt::Key_Enter, Qt::KeypadModifier);
        QCOMPARE(enter.count(), 1);
        form.Type(QStringLiteral("1.2.3.4"));
        form.Press(Qt::Key_Enter, Qt::KeypadModifier); // also when every octet is complete
        QCOMPARE(enter.count(), 2);
    }

    /// Catches a flag that stays when the focus leaves, or goes while it moves between the octets; and a
    /// style that is not asked again.
    void NoticeFollowsTheFocus()
    {
        Form form;
        form.other->installEventFilter(form.address); // as a derived field does with edits of its own
        QVERIFY(form.address->property("notice").toBool());
        const QImage focused = form.address->grab().toImage();
        form.Press(Qt::Key_Tab);
        QCOMPARE(form.FocusedOctet(), 1);
        QVERIFY(form.address->property("notice").toBool());
        for (int i = 0; i < 3; ++i)
            form.Press(Qt::Key_Tab);
        QVERIFY(form.other->hasFocus());
        QVERIFY(!form.address->property("notice").toBool());
        QVERIFY(focused.pixel(60, 0) != form.address->grab().toImage().pixel(60, 0));
    }

    /// Catches an error that outlives its correction or does not colour the frame, and one field's correction
    /// hiding another's bubble.
    void ErrorHint()
    {
        Form form;
        const CTipLabel* bubble = CTipLabel::Instance();
        form.address->showErrorHint(true, QStringLiteral("Incomplete"), CTipLabel::Left);
        QVERIFY(form.address->property("errorState").toBool());
        QVERIFY(bubble->isVisible());
        QVERIFY(bubble->x() > form.address->mapToGlobal(form.address->rect().topRight()).x());
        form.Type(QStringLiteral("1"));
        QVERIFY(!form.address->errorState());
        QVERIFY(!bubble->isVisible());

        const auto frame = [&] { return form.address->grab().toImage().pixel(60, 0); };
        const QRgb plain = frame();
        form.address->showErrorHint(true, QString(), CTipLabel::Left);
        QVERIFY(frame() != plain); // the mark alone
        QVERIFY(!bubble->isVisible());
        CTipLabel::Instance()->ShowTip(QStringLiteral("Another field's"), form.other, CTipLabel::Left);
        form.address->showErrorHint(false, QString(), CTipLabel::Left);
        QVERIFY(!form.address->errorState());
        QCOMPARE(frame(), plain);
        QVERIFY(bubble->isVisible());
    }

    /// Catches a mark that a slot sets, taken back by the very edit that the slot was told of.
    void SlotMarksTheEdit()
    {
        for (const auto signal : {&QIpAddrEdit::textedited, &QIpAddrEdit::textchanged}) {
            Form form;
            connect(form.address, signal, form.address, [&](const QString& text) {
                form.address->showErrorHint(true, text, CTipLabel::Left);
            });
            QGuiApplication::clipboard()->setText(QStringLiteral("10.0.0.254"));
            for (const auto modifier : {Qt::NoModifier, Qt::ControlModifier}) { // types a digit, pastes all
                form.Press(modifier == Qt::NoModifier ? Qt::Key_1 : Qt::Key_V, modifier);
                QVERIFY(form.address->errorState());
                QVERIFY(CTipLabel::Instance()->isVisible());
            }
        }
    }

    /// Catches gaps, overlaps, lost pixels and negative widths: even, one and three pixels left over,
    /// narrower than the dots, nothing.
    void OctetsShareTheWidth()
    {
        constexpr int dot = 5;
        for (const QRect& area :
             {QRect(3, 2, 215, 20), QRect(3, 2, 216, 20), QRect(0, 0, 218, 20), QRect(0, 0, 9, 20),
              QRect()}) {
            const IpAddrLayout layout = LayOutOctets(area, dot);
            QCOMPARE(layout.octets.size(), 4);
            QCOMPARE(layout.dots.size(), 3);
            int left = area.left();
            for (int i = 0; i < 4; ++i) {
                const QRect octet = layout.octets.at(i);
                QCOMPARE(octet.left(), left);
                QVERIFY(octet.width() >= 0);
                QVERIFY(qAbs(octet.width() - layout.octets.first().width()) <= 1);
                left += octet.width();
                if (i < 3) {
                    QCOMPARE(layout.dots.at(i).left(), left);
                    left += layout.dots.at(i).width();
                }
            }
            QCOMPARE(left, area.left() + qMax(area.width(), 3 * dot));
        }
    }

    /// Catches an asterisk over the first octet, and octets that are not laid out again.
    void RequiredMakesRoom()
    {
        Form form;
        const auto* symbol
            = form.address->findChild<QLabel*>(QStringLiteral("QIpAddrEdit--m_pSymbolRequired"));
        QVERIFY(!symbol->isVisible());
        const int right = form.Octet(3)->geometry().right();
        form.address->setRequired(true);
        QVERIFY(symbol->isVisible());
        QVERIFY(!symbol->geometry().intersects(form.Octet(0)->geometry()));
        QCOMPARE(form.Octet(3)->geometry().right(), right);
        form.window.resize(500, 160);
        QTRY_VERIFY(form.Octet(3)->geometry().right() > right);
        QCOMPARE(symbol->height(), form.address->height());
        form.address->setRequired(false);
        QVERIFY(!symbol->isVisible());
    }

    void DeletedByASlot_data()
    {
        TestSupport::Columns<Act, Act>("connectTo", "act");
        const auto row = [](const char* name, auto signal, const Act& act) {
            const Act connectTo
                = [signal](Form& form) { TestSupport::DeleteAt(form.address.data(), signal); };
            QTest::newRow(name) << connectTo << act;
        };
        const Act type = [](Form& form) { form.Type(QStringLiteral("1")); };
        const Act paste = [](Form& form) { form.Press(Qt::Key_V, Qt::ControlModifier); };
        row("changed by a key", &QIpAddrEdit::textchanged, type);
        row("changed by Ctrl+V", &QIpAddrEdit::textchanged, paste);
        row("edited by a key", &QIpAddrEdit::textedited, type);
        row("edited by Ctrl+V", &QIpAddrEdit::textedited, paste);
        row("set", &QIpAddrEdit::textchanged,
            [](Form& form) { form.address->settext(QStringLiteral("9.9.9.9")); });
        row("cleared", &QIpAddrEdit::textchanged, [](Form& form) { form.address->clear(); });
        row("Enter", &QIpAddrEdit::sgnEnterPress, [](Form& form) { form.Press(Qt::Key_Enter); });
    }

    /// Catches a touch of the field, or of its octets, after a client's slot has deleted it.
    void DeletedByASlot()
    {
        QFETCH(Act, connectTo);
        QFETCH(Act, act);
        QGuiApplication::clipboard()->setText(QStringLiteral("10.0.0.1"));
        Form form;
        form.address->settext(QStringLiteral("5.6.7.8"));
        connectTo(form);
        form.address->showErrorHint(true, QStringLiteral("wrong"), CTipLabel::Left);
        act(form);
        QVERIFY(!form.address);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// Catches octets that assistive technology cannot tell apart.
    void OctetsHaveNames()
    {
        Form form;
        form.window.hide();
        form.address->setAccessibleName(QStringLiteral("Gateway"));
        form.window.show();
        QStringList names;
        for (int i = 0; i < 4; ++i)
            names << form.Octet(i)->accessibleName();
        QCOMPARE(names.removeDuplicates(), 0);
        QVERIFY(names.first().contains(QStringLiteral("Gateway")));
    }
};

STRICT_X_TEST_MAIN(TestIpAddrEdit)
#include "tst_ipaddredit.moc"
