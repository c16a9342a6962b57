// The marked line edits, the edit with a folder button and the push buttons.

#include "support/Columns.h"
#include "support/StrictMain.h"

#include <Platform/BasicUIComponents/KvLineEdit.h>
#include <Platform/BasicUIComponents/KvSkin.h>
#include <UI/FormInputs/CRequiredEdit.h>
#include <UI/FormInputs/KvImpPushButton.h>
#include <UI/FormInputs/KvLineEditEx.h>
#include <UI/FormInputs/KvLineEditWithDirButton.h>
#include <UI/FormInputs/WmNoImpPushButton.h>

#include <QtTest>
#include <QtWidgets>
#include <functional>

using namespace UICommonMdl;

namespace {

/// The folder button's file dialog, answered as soon as it is open.
struct DialogAnswer
{
    explicit DialogAnswer(std::function<void(QFileDialog&)> answer)
        : act(std::move(answer))
    {
        QObject::connect(&timer, &QTimer::timeout, &timer, [this] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            timer.stop();
            ++shown;
            act(*dialog);
        });
        timer.start(20);
    }

    std::function<void(QFileDialog&)> act;
    QTimer timer;
    int shown = 0;
};

} // namespace

class TestLineEdits : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    /// Catches a text that the validator refuses and that stays because a slot took the selection away, as
    /// the loss of the focus does, before the validator was asked; and a commit that is right and refused.
    void InputMethodsObeyTheValidator()
    {
        KvGUI::KvLineEdit edit;
        edit.setValidator(new QIntValidator(0, 255, &edit));
        connect(&edit, &QLineEdit::cursorPositionChanged, &edit, &QLineEdit::deselect);
        const QSignalSpy rejected(&edit, &QLineEdit::inputRejected);
        const auto commit = [&edit](const QString& text, int from = 0, int length = 0) {
            QInputMethodEvent event;
            event.setCommitString(text, from, length);
            QCoreApplication::sendEvent(&edit, &event);
            return edit.text();
        };
        QCOMPARE(commit(QStringLiteral("folder")), QString());
        QCOMPARE(commit(QStringLiteral("12")), QStringLiteral("12"));
        QCOMPARE(commit(QStringLiteral("1000")), QStringLiteral("12"));
        QCOMPARE(rejected.size(), 2);
        QCOMPARE(commit(QStringLiteral("34"), -2, 2), QStringLiteral("34")); // in the place of the 12
        edit.selectAll();
        QCOMPARE(commit(QStringLiteral("199")), QStringLiteral("199"));
        edit.setMaxLength(2);
        QCOMPARE(commit(QStringLiteral("987"), -2, 2), QStringLiteral("98"));
        edit.setText(QStringLiteral("no")); // what the program sets may be wrong and can be mended
        edit.home(false);
        QCOMPARE(commit(QStringLiteral("7"), 0, 1), QStringLiteral("7o"));
        edit.setInputMask(QStringLiteral("99-99")); // which puts in the hyphen
        edit.setValidator(new QRegExpValidator(QRegExp(QStringLiteral("\\d{0,2}-\\d{0,2}")), &edit));
        edit.setCursorPosition(0);
        QCOMPARE(commit(QStringLiteral("1234")), QStringLiteral("12-34"));
    }

    /// Catches a mark that keeps the height of the edit's birth, and a text that begins under it.
    void MarksFollowTheHeight()
    {
        CRequiredEdit required;
        KvLineEditEx marked;
        for (QLineEdit* edit : {static_cast<QLineEdit*>(&required), static_cast<QLineEdit*>(&marked)}) {
            const auto* mark = edit->findChild<QLabel*>();
            edit->show();
            for (const int height : {60, 34}) {
                edit->resize(200, height);
                QCOMPARE(mark->height(), height);
                QCOMPARE(mark->pos(), QPoint(5, 0));
            }
        }
        QVERIFY(required.findChild<QLabel*>()->width() >= 10);
        QCOMPARE(required.textMargins(), QMargins(10, 0, 0, 0));
        QCOMPARE(marked.textMargins(), QMargins(15, 0, 0, 0));
    }

    /// Catches a mark that keeps clicks from the edit below it.
    void ClickOnTheAsteriskEdits()
    {
        CRequiredEdit edit;
        edit.setText(QStringLiteral("abc"));
        edit.show();
        QVERIFY(QTest::qWaitForWindowExposed(&edit));
        QCOMPARE(edit.cursorPosition(), 3);
        QTest::mouseClick(edit.windowHandle(), Qt::LeftButton, {}, QPoint(7, edit.height() / 2));
        QCOMPARE(edit.cursorPosition(), 0);
    }

    void FolderButtonStaysAtTheEnd_data()
    {
        TestSupport::Columns<QSize, QRect>("size", "place");
        QTest::newRow("usual") << QSize(200, 30) << QRect(179, 4, 21, 21);
        QTest::newRow("odd height") << QSize(301, 41) << QRect(280, 10, 21, 21);
        QTest::newRow("lower than the button") << QSize(200, 16) << QRect(179, -3, 21, 21);
    }

    /// Catches a button that stays where the edit ended before.
    void FolderButtonStaysAtTheEnd()
    {
        QFETCH(QSize, size);
        KvLineEditWithDirButton edit;
        edit.setMinimumSize(1, 1);
        edit.ensurePolished(); // afterwards no base class sets its sheet
        edit.setStyleSheet(QString());
        edit.resize(size);
        edit.show();
        QTEST(edit.findChild<QToolButton*>()->geometry(), "place");
    }

    void ChosenFileIsTaken_data()
    {
        TestSupport::Columns<bool, QString>("named", "filter");
        QTest::newRow("in the folder") << false << QStringLiteral("Lists (*.cfg)");
        // Half a character is no pattern: Qt would warn.
        QTest::newRow("named by the client") << true << QString(QChar(0xd800));
    }

    /// Catches a button without effect, a caption, folder or filter that does not reach the dialog, and one
    /// that forgets the file which the client named.
    void ChosenFileIsTaken()
    {
        QFETCH(bool, named);
        QFETCH(QString, filter);
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("camera.cfg"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        KvLineEditWithDirButton edit;
        edit.SetOpenFile(QStringLiteral("Camera list"), named ? path : folder.path(), filter);
        edit.show();
        DialogAnswer answer([&](QFileDialog& dialog) {
            QCOMPARE(dialog.windowTitle(), QStringLiteral("Camera list"));
            QCOMPARE(dialog.directory().absolutePath(), folder.path());
            if (named) {
                QCOMPARE(dialog.selectedFiles(), QStringList(path));
            } else {
                QCOMPARE(dialog.nameFilters(), QStringList(filter));
                dialog.findChild<QLineEdit*>()->setText(path);
            }
            QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
        });
        QTest::mouseClick(edit.findChild<QToolButton*>(), Qt::LeftButton);
        QCOMPARE(answer.shown, 1);
        QCOMPARE(edit.text(), path);
    }

    /// Catches a setter that changes the kind of dialog, and a cancelled dialog that clears the edit.
    void AlwaysOpensAFile()
    {
        KvLineEditWithDirButton edit;
        edit.setText(QStringLiteral("/before"));
        edit.show();
        DialogAnswer answer([](QFileDialog& dialog) {
            QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptOpen);
            QCOMPARE(dialog.fileMode(), QFileDialog::ExistingFile);
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        edit.SetSaveFile(QStringLiteral("Save"), QDir::tempPath(), QString());
        QTest::keyClick(edit.findChild<QToolButton*>(), Qt::Key_Space);
        answer.timer.start();
        edit.SetSelectDirectory(QStringLiteral("Folder"), QDir::tempPath(), QFileDialog::ShowDirsOnly);
        QTest::mouseClick(edit.findChild<QToolButton*>(), Qt::LeftButton);
        QCOMPARE(answer.shown, 2);
        QCOMPARE(edit.text(), QStringLiteral("/before"));
    }

    void DeletedWhileItsDialogIsOpen_data()
    {
        TestSupport::Columns<bool, bool>("withWindow", "byKey");
        QTest::newRow("edit, opened by the mouse") << false << false;
        QTest::newRow("edit, opened by a key") << false << true;
        QTest::newRow("window, opened by the mouse") << true << false;
    }

    /// Catches a file dialog that does not bear the end of its edit: a page is closed by a lost connection,
    /// say.
    void DeletedWhileItsDialogIsOpen()
    {
        QFETCH(bool, withWindow);
        QFETCH(bool, byKey);
        QPointer<QWidget> window(new QWidget);
        QPointer<KvLineEditWithDirButton> edit(new KvLineEditWithDirButton(window));
        window->show();
        QPointer<QFileDialog> opened;
        DialogAnswer answer([&](QFileDialog& dialog) {
            opened = &dialog;
            if (withWindow)
                delete window;
            else
                delete edit;
        });
        auto* button = edit->findChild<QToolButton*>();
        // Not by QTest's clicks, which go on with the button that they were given.
        QEvent::Type types[] = {QEvent::MouseButtonPress, QEvent::MouseButtonRelease};
        for (const QEvent::Type type : types) {
            QMouseEvent mouse(type, QPointF(5, 5), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
            QKeyEvent key(
                type == QEvent::MouseButtonPress ? QEvent::KeyPress : QEvent::KeyRelease, Qt::Key_Space,
                Qt::NoModifier);
            QCoreApplication::sendEvent(button, byKey ? static_cast<QEvent*>(&key) : &mouse);
        }
        QCOMPARE(answer.shown, 1);
        QVERIFY(!edit);
        QVERIFY(!opened);
        delete window;
    }

    /// Catches buttons styled by their base class's sheet alone.
    void ButtonsTakeTheirOwnSheets()
    {
        const KvGUI::KvPushButton plain(QStringLiteral("Plain"));
        const KvImpPushButton important(QStringLiteral("Save"));
        const WmNoImpPushButton other(QStringLiteral("Cancel"));
        QVERIFY(important.styleSheet() != plain.styleSheet());
        QVERIFY(other.styleSheet() != plain.styleSheet());
        QVERIFY(important.styleSheet() != other.styleSheet());
    }

    void EmptyFieldDoesNotLookFilled_data()
    {
        const QString black = QStringLiteral("Black");
        const QString white = QStringLiteral("White");
        TestSupport::Columns<QString, QString>("first", "then");
        QTest::newRow("in the dark skin") << black << black;
        QTest::newRow("after a change to the light skin") << black << white;
        QTest::newRow("after a change to the dark skin") << white << black;
    }

    /// Catches a placeholder as strong as typed text, one in the colour of the skin before, one stronger than
    /// the text of a disabled field, and one that cannot be read; also in a subclass, which has its own
    /// sheet.
    void EmptyFieldDoesNotLookFilled()
    {
        QFETCH(QString, first);
        QFETCH(QString, then);
        KvGUI::SetSkinVersion(first);
        KvGUI::KvLineEdit plain;
        KvLineEditWithDirButton path;
        QLineEdit* const edits[] = {&plain, &path};
        for (QLineEdit* edit : edits)
            edit->show();
        KvGUI::SetSkinVersion(then);
        for (const QLineEdit* edit : edits) {
            const QPalette colours = edit->palette();
            const auto contrast = [&](QPalette::ColorRole role) {
                return qAbs(colours.color(role).lightness() - colours.color(QPalette::Base).lightness());
            };
            QVERIFY(contrast(QPalette::PlaceholderText) > 100);
            QVERIFY(contrast(QPalette::PlaceholderText) < contrast(QPalette::Text) - 20);
            QCOMPARE(
                colours.color(QPalette::Disabled, QPalette::PlaceholderText),
                colours.color(QPalette::Disabled, QPalette::Text));
        }
    }
};

STRICT_TEST_MAIN(TestLineEdits)
#include "tst_lineedits.moc"
