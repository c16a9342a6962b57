// The dialog for a new group's name, typed by keys, under different codecs of the process.

#include "support/Columns.h"
#include "support/Deletion.h"
#include "support/LocaleCodec.h"
#include "support/StrictMain.h"

#include <Platform/BasicUIComponents/KvPushButton.h>
#include <UI/FormInputs/GroupName.h>
#include <UI/FormInputs/WmAddGroup.h>

#include <QtTest>
#include <QtWidgets>
#include <functional>
#include <limits>

using namespace UICommonMdl;
using TestSupport::LocaleCodec;

namespace {

const QString Cjk = QStringLiteral("\u4E2D");

/// The dialog with what it reports, in order.
struct Dialog
{
    Dialog()
    {
        QObject::connect(
            dialog, QOverload<const QString&>::of(&WmAddGroup::SignalNewName), dialog,
            [this](const QString& name) { reports << QStringLiteral("name ") + name; });
        QObject::connect(
            dialog, QOverload<qint64, const QString&>::of(&WmAddGroup::SignalNewName), dialog,
            [this](qint64 parent, const QString& name) {
                reports << QStringLiteral("name below %1 ").arg(parent) + name;
            });
        QObject::connect(
            dialog, &WmAddGroup::SignalSaveAndNew, dialog, [this](qint64 parent, const QString& name) {
                reports << QStringLiteral("next below %1 ").arg(parent) + name;
            });
        dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(dialog));
    }
    ~Dialog() { delete dialog; }

    QLineEdit* Edit() const { return dialog->findChild<QLineEdit*>(QStringLiteral("edtName")); }
    void Click(int button) const { QTest::mouseClick(dialog->GetButton(button), Qt::LeftButton); }
    void Type(const QString& text) const
    {
        for (const QChar character : text) {
            QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
            QApplication::sendEvent(Edit(), &press);
        }
    }

    QPointer<WmAddGroup> dialog = new WmAddGroup;
    QStringList reports;
};

constexpr int Save = QDialogButtonBox::Ok;
constexpr int Cancel = QDialogButtonBox::Cancel;
constexpr int SaveAndNew = QDialogButtonBox::Open;

} // namespace

Q_DECLARE_METATYPE(std::function<void(WmAddGroup*)>)

class TestAddGroup : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { TestSupport::SpoilFreedMemory(); }

    /// Catches signals in the wrong order, names with blanks around them, and a dialog that stays or needs
    /// the mouse.
    void SaveReportsAndCloses()
    {
        for (const bool byMouse : {true, false}) {
            Dialog form;
            QVERIFY(form.Edit()->hasFocus());
            form.dialog->SetParentGroupID(42);
            form.Type(QStringLiteral("  North gate "));
            if (byMouse)
                form.Click(Save);
            else
                QTest::keyClick(form.Edit(), Qt::Key_Return);
            QCOMPARE(
                form.reports.join(QLatin1Char(',')),
                QStringLiteral("name North gate,name below 42 North gate"));
            QVERIFY(!form.dialog->isVisible());
            QCOMPARE(form.Edit()->text(), QString());
        }
    }

    /// Catches the other button's signals, and a text or a focus in the way of the next name.
    void SaveAndNewStays()
    {
        Dialog form;
        form.Type(QStringLiteral("A"));
        form.Click(SaveAndNew);
        QCOMPARE(form.reports, QStringList(QStringLiteral("next below -1 A")));
        QVERIFY(form.dialog->isVisible());
        QCOMPARE(form.Edit()->text(), QString());
        QVERIFY(form.Edit()->hasFocus());
        form.dialog->SetIsCloseAfterSave(false);
        form.Type(QStringLiteral("B"));
        form.Click(SaveAndNew);
        QCOMPARE(form.Edit()->text(), QStringLiteral("B"));
        form.dialog->CanCloseDialog(); // no save is pending
        QVERIFY(form.dialog->isVisible());
        form.dialog->SetSaveAndNewVisible(false);
        QVERIFY(!form.dialog->GetButton(SaveAndNew)->isVisible());
    }

    /// Catches a dialog that closes before the client knows, or more than once for one save.
    void SaveWaitsForTheClient()
    {
        Dialog form;
        form.dialog->SetIsCloseAfterSave(false);
        form.Type(QStringLiteral("A"));
        form.Click(Save);
        QCOMPARE(form.reports.size(), 2);
        QVERIFY(form.dialog->isVisible());
        QCOMPARE(form.Edit()->text(), QStringLiteral("A"));
        form.dialog->CanCloseDialog();
        QVERIFY(!form.dialog->isVisible());
        QCOMPARE(form.Edit()->text(), QString());
        form.dialog->show();
        form.dialog->CanCloseDialog();
        QVERIFY(form.dialog->isVisible());
    }

    void BlankNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("nothing") << QString();
        QTest::newRow("spaces") << QStringLiteral("   ");
        QTest::newRow("ideographic spaces") << QStringLiteral("\u3000\u3000");
        QTest::newRow("what a codec could not read") << QStringLiteral("\uFFFD");
    }

    /// Catches a group without a name, and an operator who is not told.
    void BlankNames()
    {
        QFETCH(QString, name);
        Dialog form;
        form.dialog->SetToolTip(QStringLiteral("Enter a name"));
        for (const int button : {Save, SaveAndNew}) {
            QToolTip::hideText();
            form.Edit()->setText(name);
            form.Click(button);
            QCOMPARE(QToolTip::text(), QStringLiteral("Enter a name"));
            QVERIFY(form.dialog->isVisible());
        }
        QVERIFY(form.reports.isEmpty());
        QToolTip::hideText();
    }

    void Budgets_data()
    {
        TestSupport::Columns<QByteArray, int, QString>("codec", "type", "typed");
        QTest::addColumn<int>("kept"); // characters
        const QByteArray utf8("UTF-8");
        const QByteArray gbk("GBK");
        const QString letters(40, QLatin1Char('a'));
        const QString chinese(40, Cjk.at(0));
        QTest::newRow("letters") << utf8 << 0 << letters << 32;
        QTest::newRow("letters, GBK") << gbk << 0 << letters << 32;
        QTest::newRow("three bytes each") << utf8 << 0 << chinese << 10;
        QTest::newRow("two bytes each") << gbk << 0 << chinese << 16;
        QTest::newRow("mixed, ends below the budget") << utf8 << 0 << QStringLiteral("abc") + chinese << 12;
        QTest::newRow("letters counted") << utf8 << 1 << letters << 31;
        QTest::newRow("characters counted") << utf8 << 1 << chinese << 31;
        QTest::newRow("characters counted, GBK") << gbk << 1 << chinese << 31;
        QTest::newRow("other type counts, UTF-8 cuts") << utf8 << 2 << chinese << 10 + 8;
        QTest::newRow("other type, letters") << gbk << 2 << letters << 31;
    }

    /// Catches the encodings of counting and cutting mixed up, and a budget that ends inside a character.
    void Budgets()
    {
        QFETCH(QByteArray, codec);
        QFETCH(int, type);
        QFETCH(QString, typed);
        QFETCH(int, kept);
        const LocaleCodec locale(codec);
        QVERIFY(locale.IsKnown());
        Dialog form;
        form.dialog->SetLenCheckType(static_cast<WmAddGroup::NameLenCheckType_e>(type));
        form.Type(typed);
        QCOMPARE(form.Edit()->text(), typed.left(kept));
    }

    /// Catches a cursor that jumps to the end when a name is cut.
    void CutKeepsTheCursor()
    {
        const LocaleCodec locale("GBK");
        QVERIFY(locale.IsKnown());
        Dialog form;
        form.Edit()->setText(QString(16, Cjk.at(0)));
        form.Edit()->setCursorPosition(3);
        form.Type(QStringLiteral("ab"));
        QCOMPARE(form.Edit()->cursorPosition(), 5);
        QCOMPARE(form.Edit()->text(), QString(3, Cjk.at(0)) + QStringLiteral("ab") + QString(12, Cjk.at(0)));
    }

    /// Catches a limit that does not follow its kind, and one that vanishes when it falls below zero.
    void LengthOfTheEdit()
    {
        Dialog form;
        QCOMPARE(form.Edit()->maxLength(), 32);
        form.dialog->SetLenCheckType(WmAddGroup::NameLenCheckCharacters);
        QCOMPARE(form.Edit()->maxLength(), 31);
        form.Edit()->setMaxLength(7);
        form.dialog->SetMaxLen(32); // the value that it has
        QCOMPARE(form.Edit()->maxLength(), 7);
        form.dialog->SetMaxLen(8);
        QCOMPARE(form.Edit()->maxLength(), 7);
        form.dialog->SetLenCheckType(static_cast<WmAddGroup::NameLenCheckType_e>(2));
        form.dialog->SetMaxLen(16);
        QCOMPARE(form.Edit()->maxLength(), 7);
        for (const int type : {2, 0, 1}) {
            form.dialog->SetLenCheckType(static_cast<WmAddGroup::NameLenCheckType_e>(type));
            for (const int length : {-5, 0, std::numeric_limits<int>::min()}) {
                form.dialog->SetMaxLen(length);
                form.Type(QStringLiteral("a"));
                QCOMPARE(form.Edit()->text(), QString());
            }
        }
    }

    void Characters_data()
    {
        TestSupport::Columns<QString, QString>("typed", "text");
        const QString usual = QStringLiteral("aZ 09._!@()[]{};',=+&^%~`-");
        QTest::newRow("listed") << usual << usual;
        QTest::newRow("refused") << QStringLiteral("a\"#$*/b") << QStringLiteral("ab");
        QTest::newRow("taken by the range") << QStringLiteral(":<>?|\\") << QStringLiteral(":<>?|\\");
        QTest::newRow("Chinese") << QStringLiteral("\u4E2D\u6587\u9FA5")
                                 << QStringLiteral("\u4E2D\u6587\u9FA5");
        QTest::newRow("the range's end")
            << QStringLiteral("\uFFFC\uFFFD\uFFFE") << QStringLiteral("\uFFFC\uFFFD");
        QTest::newRow("tabulator") << QStringLiteral("a\tb") << QStringLiteral("ab");
    }

    /// Catches an expression whose last two bytes or escapes were changed.
    void Characters()
    {
        QFETCH(QString, typed);
        Dialog form;
        form.Type(typed);
        QTEST(form.Edit()->text(), "text");
    }

    /// Catches an expression of the client's that is not taken, or kept instead of the default.
    void OwnExpression()
    {
        Dialog form;
        form.dialog->SetNameRegExp(QRegExp(QStringLiteral("[0-9]*")));
        form.Type(QStringLiteral("a1"));
        QCOMPARE(form.Edit()->text(), QStringLiteral("1"));
        for (const QString& pattern : {QStringLiteral("[0-9"), QString()}) {
            form.dialog->SetNameRegExp(QRegExp(QStringLiteral("[0-9]*")));
            form.dialog->SetNameRegExp(QRegExp(pattern));
            form.Edit()->clear();
            form.Type(QStringLiteral("a1"));
            QCOMPARE(form.Edit()->text(), QStringLiteral("a1"));
        }
    }

    /// Catches a name that waits in the edit for the next opening, a focus that waits on the button, and a
    /// cancelled name that is reported.
    void CancelClears()
    {
        Dialog form;
        const QVector<std::function<void()>> ways{
            [&] { form.Click(Cancel); }, [&] { QTest::keyClick(form.Edit(), Qt::Key_Escape); },
            [&] {
                QTest::mouseClick(
                    form.dialog->findChild<QWidget*>(QStringLiteral("kvDialogCloseButton")), Qt::LeftButton);
            }};
        for (const auto& cancel : ways) {
            form.dialog->show();
            QCOMPARE(form.dialog->focusWidget(), form.Edit());
            form.Type(QStringLiteral("A"));
            cancel();
            QVERIFY(!form.dialog->isVisible());
            QCOMPARE(form.Edit()->text(), QString());
            QVERIFY(form.reports.isEmpty());
        }
    }

    void DeletedByASlot_data()
    {
        using Connect = std::function<void(WmAddGroup*)>;
        TestSupport::Columns<Connect, int, bool>("connectTo", "button", "closes");
        const auto row = [](const char* name, int button, bool closes, auto signal) {
            QTest::newRow(name) << Connect([signal](WmAddGroup* dialog) {
                TestSupport::DeleteAt(dialog, signal);
            }) << button << closes;
        };
        const auto saved = QOverload<const QString&>::of(&WmAddGroup::SignalNewName);
        row("save", Save, true, saved);
        row("save and wait", Save, false, saved);
        row("save, second signal", Save, true,
            QOverload<qint64, const QString&>::of(&WmAddGroup::SignalNewName));
        row("save and new", SaveAndNew, true, &WmAddGroup::SignalSaveAndNew);
        row("closed by save", Save, true, &QDialog::rejected);
        row("closed by save, over", Save, true, &QDialog::finished);
        row("cancelled", Cancel, true, &QDialog::rejected);
    }

    /// Catches a touch of the dialog after a client's slot has deleted it.
    void DeletedByASlot()
    {
        QFETCH(std::function<void(WmAddGroup*)>, connectTo);
        QFETCH(int, button);
        QFETCH(bool, closes);
        Dialog form;
        form.dialog->SetIsCloseAfterSave(closes);
        form.Type(QStringLiteral("A"));
        connectTo(form.dialog);
        form.Click(button);
        QVERIFY(!form.dialog);
    }
};

STRICT_TEST_MAIN(TestAddGroup)
#include "tst_addgroup.moc"
