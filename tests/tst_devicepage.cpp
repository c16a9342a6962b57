// The client's device form, filled in by the keyboard alone.

#include "support/Columns.h"
#include "support/StrictMain.h"

#include <Platform/BasicUIComponents/KvCalendarEx.h>
#include <Platform/BasicUIComponents/KvSkin.h>
#include <UI/FormInputs/CPasswordStrength.h>
#include <UI/FormInputs/CTipLabel.h>
#include <UI/FormInputs/QIpAddrEdit.h>
#include <UI/FormInputs/WmAddGroup.h>
#include <UI/FormInputs/WmDateCalendar.h>
#include <gallery/Forms/DevicePage.h>
#include <gallery/Forms/PasswordRating.h>
#include <gallery/MainWindow.h>

#include <QtTest>
#include <QtWidgets>

using namespace OperatorClient;
using namespace UICommonMdl;

namespace {

/// The client's window with the page alone.
struct Client
{
    Client()
    {
        window.AddPage({QStringLiteral("device"), DevicePage::Title, [this](QWidget*) { return page; }});
        window.ShowPage(0);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }
    ~Client() { CTipLabel::Instance()->HideTip(); }

    void Type(const QString& text) const
    {
        for (const QChar character : text)
            QTest::keyClick(QApplication::focusWidget(), character.toLatin1());
    }
    void Press(int key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
    }
    void Shortcut(char letter) const
    {
        QTest::keyClick(window.windowHandle(), letter, Qt::AltModifier);
        const auto buttons
            = window.findChildren<QAbstractButton*>(); // which are shown pressed before they click
        QTRY_VERIFY(
            std::none_of(buttons.begin(), buttons.end(), [](auto* button) { return button->isDown(); }));
    }
    QLineEdit* Field(const char* name) const
    {
        for (QLineEdit* edit : page->findChildren<QLineEdit*>()) {
            if (edit->accessibleName() == QLatin1String(name))
                return edit;
        }
        return nullptr;
    }

    MainWindow window;
    DevicePage* page = new DevicePage;
};

QString Bubble()
{
    const CTipLabel* bubble = CTipLabel::Instance();
    return bubble->isVisible() ? bubble->findChild<QTextEdit*>()->toPlainText() : QString();
}

} // namespace

class TestDevicePage : public QObject
{
    Q_OBJECT

private slots:
    /// Catches limits that are off by one.
    void Ratings()
    {
        QCOMPARE(RatePassword(QString()), 0);
        QCOMPARE(RatePassword(QStringLiteral("aB1-")), 1);
        QCOMPARE(RatePassword(QStringLiteral("abcdefghijklmnop")), 1); // of one kind
        QCOMPARE(RatePassword(QStringLiteral("abcdef1")), 1); // seven of two kinds
        QCOMPARE(RatePassword(QStringLiteral("abcdefg1")), 2);
        QCOMPARE(RatePassword(QStringLiteral("abcdefG1x")), 2); // nine of three kinds
        QCOMPARE(RatePassword(QStringLiteral("abcdefG1xx")), 3);
    }

    /// Catches a field that the keyboard cannot reach or leave, and a shortcut that two fields claim.
    void FilledInByKeys()
    {
        Client client;
        QSignalSpy reports(client.page, &Page::SignalReport);
        client.Shortcut('n');
        client.Type(QStringLiteral("North gate"));
        client.Press(Qt::Key_Tab);
        client.Type(QStringLiteral("192.168.1.64"));
        client.Press(Qt::Key_Enter, Qt::KeypadModifier);
        QVERIFY(client.Field("Serial number")->hasFocus());
        client.Type(QStringLiteral("NG-1"));
        client.Shortcut('i');
        QVERIFY(client.page->findChild<QIpAddrEdit*>()->isAncestorOf(QApplication::focusWidget()));
        client.Shortcut('e');
        client.Type(QStringLiteral("operator"));
        client.Press(Qt::Key_Tab);
        client.Type(QStringLiteral("Wren-4127-oak"));
        QCOMPARE(client.page->findChild<CPasswordStrength*>()->GetStrength(), 3);
        client.Shortcut('s');
        QCOMPARE(Bubble(), QString());
        QCOMPARE(
            reports.value(0).value(0).toString(),
            QStringLiteral("North gate at 192.168.1.64 saved in the group Entrances"));
        client.Shortcut('c');
        QVERIFY(client.Field("Name")->text().isEmpty());
        QCOMPARE(client.page->findChild<CPasswordStrength*>()->GetStrength(), 0);
    }

    /// Catches a complaint at another field than the first wrong one, one that stays, and an Enter that does
    /// nothing.
    void FirstWrongFieldTells()
    {
        Client client;
        auto* address = client.page->findChild<QIpAddrEdit*>();
        client.Shortcut('s');
        QCOMPARE(Bubble(), QStringLiteral("Enter a name"));
        QVERIFY(client.Field("Name")->hasFocus());
        client.Type(QStringLiteral("North gate"));
        client.Shortcut('s');
        QCOMPARE(Bubble(), QStringLiteral("Enter the device's address"));
        QVERIFY(address->errorState());
        client.Type(QStringLiteral("10.0.0."));
        QVERIFY(!address->errorState());
        client.Shortcut('s');
        QCOMPARE(Bubble(), QStringLiteral("The address needs four numbers"));
        client.Type(QStringLiteral("7"));
        QCOMPARE(address->text(), QStringLiteral("10.0.0.7"));
        client.Shortcut('s');
        QCOMPARE(Bubble(), QStringLiteral("Enter the serial number"));
        client.Type(QStringLiteral("NG-1"));
        client.Press(Qt::Key_Return);
        QCOMPARE(Bubble(), QStringLiteral("Enter the user of the device"));
        client.Type(QStringLiteral("operator"));
        client.Shortcut('s');
        QCOMPARE(Bubble(), QStringLiteral("Enter the password"));
        QVERIFY(client.Field("Password")->hasFocus());
    }

    void PopupsKeepToTheirPlace_data()
    {
        TestSupport::Columns<Qt::LayoutDirection>("direction");
        QTest::newRow("from the left") << Qt::LeftToRight;
        QTest::newRow("from the right") << Qt::RightToLeft;
    }

    /// Catches a bubble over a field of the other column, and a calendar beyond the screen.
    void PopupsKeepToTheirPlace()
    {
        QFETCH(Qt::LayoutDirection, direction);
        Client client;
        client.window.setLayoutDirection(direction);
        client.window.resize(1440, 900);
        client.Shortcut('s');
        const int bubble = CTipLabel::Instance()->width();
        QVERIFY(bubble >= 200);
        const auto across = [&](const char* name) {
            const QWidget* field = client.Field(name);
            return QRect(field->mapTo(&client.window, QPoint()), field->size());
        };
        const QRect device = across("Name");
        const QRect account = across("User");
        const bool mirrored = direction == Qt::RightToLeft;
        QVERIFY((mirrored ? device.left() - account.right() : account.left() - device.right()) > bubble);
        QVERIFY((mirrored ? account.left() : client.window.width() - account.right()) > bubble);

        auto* period = client.page->findChild<WmDateCalendar*>();
        period->click();
        const auto* calendar = period->findChild<KvGUI::KvCalendarEx*>();
        const QRect screen = period->screen()->availableGeometry();
        QVERIFY(calendar->isVisible());
        QVERIFY(screen.left() <= calendar->x() && calendar->geometry().right() <= screen.right());
    }

    /// Catches a group that is lost or added twice, and a dialog that closes on a name it refuses.
    void NewGroups()
    {
        Client client;
        const auto* groups = client.page->findChild<QComboBox*>();
        const int before = groups->count();
        client.Shortcut('w');
        auto* dialog = client.page->findChild<WmAddGroup*>();
        QVERIFY(dialog->isVisible());
        auto* edit = dialog->findChild<QLineEdit*>(QStringLiteral("edtName"));
        const auto save = [&](const QString& name) {
            edit->clear();
            QTest::keyClicks(edit, name);
            QTest::keyClick(edit, Qt::Key_Return);
            return !dialog->isVisible();
        };
        QVERIFY(!save(QStringLiteral("car park")));
        QCOMPARE(groups->count(), before);
        QVERIFY(save(QStringLiteral("Gates")));
        QCOMPARE(groups->count(), before + 1);
        QCOMPARE(groups->currentText(), QStringLiteral("Gates"));
    }

    /// Catches a folder field that keeps the file by which the folder was chosen.
    void FolderComesFromAFile()
    {
        Client client;
        client.Field("Folder")->setText(QCoreApplication::applicationFilePath());
        QCOMPARE(client.Field("Folder")->text(), QCoreApplication::applicationDirPath());
    }
};

STRICT_TEST_MAIN(TestDevicePage)
#include "tst_devicepage.moc"
