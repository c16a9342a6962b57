#include "support/Columns.h"
#include "support/StrictMain.h"

#include <QtTest>
#include <QtWidgets>
#include <UI/PersonImage/WmPersonImage.h>

using UICommonMdl::WmPersonImage;

namespace {

QPushButton* Button(const WmPersonImage& panel, const char* name)
{
    return panel.findChild<QPushButton*>(QLatin1String(name));
}

QLabel* Caption(const WmPersonImage& panel)
{
    return panel.findChild<QLabel*>(QStringLiteral("m_lbAvatarOrFace"));
}

using Switch = void (WmPersonImage::*)(bool);
const QVector<QPair<QString, Switch>> Switches{
    {QStringLiteral("m_btnUpLoad"), &WmPersonImage::SetShowUpLoadButton},
    {QStringLiteral("m_btnCapture"), &WmPersonImage::SetShowCaptureButton},
    {QStringLiteral("m_btnVistorCapture"), &WmPersonImage::SetShowVistorCaptureButton},
    {QStringLiteral("m_btnIDCard"), &WmPersonImage::SetShowIDCardButton},
    {QStringLiteral("m_btnPhotoDelete"), &WmPersonImage::SetShowDeleteButton}};

void Hover(WmPersonImage& panel, bool in)
{
    QEvent event(in ? QEvent::Enter : QEvent::Leave);
    QApplication::sendEvent(&panel, &event);
}

QStringList Shown(const WmPersonImage& panel)
{
    QStringList names;
    for (const QWidget* child : panel.findChildren<QWidget*>()) {
        if (child->isVisibleTo(&panel))
            names.append(child->objectName());
    }
    names.sort();
    return names;
}

} // namespace

class TestPersonImage : public QObject
{
    Q_OBJECT

private slots:
    /// Catches buttons that cover the photo at once, or stay when the pointer goes; pinned ones that go with
    /// it, and that stay when they are no longer pinned.
    void ButtonsComeWithThePointer()
    {
        WmPersonImage panel;
        const auto shown = [&](bool in) {
            Hover(panel, in);
            return Shown(panel).size();
        };
        QCOMPARE(Shown(panel).size(), 0);
        QCOMPARE(shown(true), 7);
        QCOMPARE(shown(false), 0);
        panel.SetPhotoBtnAlwaysShow(true);
        QCOMPARE(shown(false), 7);
        panel.SetPhotoBtnVisible(false);
        panel.SetPhotoBtnAlwaysShow(true); // nothing new: leaves what the client did
        QCOMPARE(shown(true), 0);
        panel.SetPhotoBtnAlwaysShow(false);
        QCOMPARE(shown(true), 7);
        QCOMPARE(shown(false), 0);
    }

    /// Catches a button that hovering brings back although it is switched off, and one that never comes back.
    void OnlyButtonsInUseAreShown()
    {
        WmPersonImage panel;
        Hover(panel, true);
        panel.SetShowIDCardButton(false);
        panel.SetShowAvatarOrFaceLabel(false, 1);
        QVERIFY(!Shown(panel).contains(QStringLiteral("m_btnIDCard")));
        Hover(panel, true);
        QVERIFY(!Shown(panel).contains(QStringLiteral("m_btnIDCard")));
        QVERIFY(!Shown(panel).contains(QStringLiteral("m_lbAvatarOrFace")));
        panel.SetShowIDCardButton(true);
        QVERIFY(!Shown(panel).contains(QStringLiteral("m_btnIDCard")));
        Hover(panel, true);
        QVERIFY(Shown(panel).contains(QStringLiteral("m_btnIDCard")));
    }

    void Stack_data()
    {
        QTest::addColumn<QStringList>("inUse"); // from below
        const QString upLoad = QStringLiteral("m_btnUpLoad");
        const QString capture = QStringLiteral("m_btnCapture");
        const QString visitor = QStringLiteral("m_btnVistorCapture");
        const QString card = QStringLiteral("m_btnIDCard");
        const QString remove = QStringLiteral("m_btnPhotoDelete");
        QTest::newRow("all") << QStringList{remove, upLoad, capture, visitor, card};
        QTest::newRow("delete and upload") << QStringList{remove, upLoad};
        QTest::newRow("without delete") << QStringList{upLoad, card};
        QTest::newRow("a gap") << QStringList{remove, capture, card};
        QTest::newRow("none") << QStringList{};
    }

    /// Catches crossed switches, another order, room for buttons that are not in use, and buttons outside the
    /// panel.
    void Stack()
    {
        QFETCH(QStringList, inUse);
        WmPersonImage panel;
        panel.resize(100, 120);
        for (const auto& [name, change] : Switches)
            (panel.*change)(inUse.contains(name));
        Hover(panel, true);
        QCOMPARE(Shown(panel).size(), inUse.size() + 2);
        for (int i = 0; i < inUse.size(); ++i)
            QCOMPARE(panel.findChild<QPushButton*>(inUse.at(i))->geometry(), QRect(1, 100 - 20 * i, 98, 20));
        QCOMPARE(Button(panel, "m_btnTurnPage")->geometry(), QRect(75, 0, 25, 20));
        QCOMPARE(Caption(panel)->geometry(), QRect(1, 0, 98, 20));
    }

    /// Catches a hole in the stack of a pinned panel, where the button was that has been switched off.
    void StackClosesUp()
    {
        WmPersonImage panel;
        panel.resize(100, 120);
        panel.SetPhotoBtnAlwaysShow(true);
        panel.SetShowUpLoadButton(false);
        QCOMPARE(Button(panel, "m_btnCapture")->geometry(), QRect(1, 80, 98, 20));
    }

    /// Catches sizes below zero, of which Qt warns, and buttons that keep the place of the old size.
    void TinyPanels()
    {
        WmPersonImage panel;
        panel.show();
        for (const QSize& size : {QSize(1, 1), QSize(0, 0), QSize(3, 5)}) {
            panel.resize(size);
            panel.SetButtonSize();
            QVERIFY(Button(panel, "m_btnUpLoad")->width() >= 0);
        }
        panel.resize(203, 151);
        QCOMPARE(Button(panel, "m_btnPhotoDelete")->geometry(), QRect(1, 131, 201, 20));
        QCOMPARE(Button(panel, "m_btnTurnPage")->geometry(), QRect(152, 0, 50, 20));
    }

    /// Catches the type's number in place of the face's.
    void Captions()
    {
        WmPersonImage panel;
        const auto caption = [&](int type) {
            panel.SetShowAvatarOrFaceLabel(true, type);
            return panel.CaptionType() == type ? Caption(panel)->text() : QString();
        };
        QCOMPARE(caption(1), QStringLiteral("Avatar"));
        QCOMPARE(caption(2), QStringLiteral("Face1"));
        QCOMPARE(caption(3), QStringLiteral("Face2"));
        QCOMPARE(caption(-7), QStringLiteral("Face2"));
    }

    /// Catches a page button that offers the page which is shown, and a turn that leaves the buttons hidden.
    void PageTurns()
    {
        WmPersonImage panel;
        const QPushButton* turn = Button(panel, "m_btnTurnPage");
        QCOMPARE(turn->text(), QStringLiteral("Next Picture"));
        panel.RefreshUIButton();
        QCOMPARE(turn->text(), QStringLiteral("Previous Picture"));
        QCOMPARE(Shown(panel).size(), 7);
        panel.RefreshUIButton();
        QCOMPARE(turn->text(), QStringLiteral("Next Picture"));
        panel.RefreshUIButton();
        panel.ResetUI();
        QCOMPARE(turn->text(), QStringLiteral("Next Picture"));
        panel.RefreshUIButton();
        QCOMPARE(turn->text(), QStringLiteral("Previous Picture"));
    }

    void ClicksAreReported_data()
    {
        TestSupport::Columns<QString, QByteArray>("button", "signal");
        const auto add = [](const char* button, const char* signal) {
            QTest::newRow(button) << QString::fromLatin1(button) << QByteArray(signal);
        };
        add("m_btnUpLoad", SIGNAL(SignalClickUploadPicBtn()));
        add("m_btnCapture", SIGNAL(SignalCameraBtnClick()));
        add("m_btnVistorCapture", SIGNAL(SignalVistorSnapBtnClick()));
        add("m_btnIDCard", SIGNAL(SignalIDCardBtnClick()));
        add("m_btnPhotoDelete", SIGNAL(SignalDeleteBtnClick()));
        add("m_btnTurnPage", SIGNAL(SignalTurnPageBtnClick()));
    }

    /// Catches crossed signals, and buttons that cannot be reached where they are shown: the caption's strip
    /// takes in the page button's place.
    void ClicksAreReported()
    {
        QFETCH(QString, button);
        QFETCH(QByteArray, signal);
        WmPersonImage panel;
        panel.resize(160, 200);
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
        Hover(panel, true);
        QSignalSpy spy(&panel, signal.constData());
        int all = 0;
        for (const auto clicked :
             {&WmPersonImage::SignalClickUploadPicBtn, &WmPersonImage::SignalCameraBtnClick,
              &WmPersonImage::SignalVistorSnapBtnClick, &WmPersonImage::SignalIDCardBtnClick,
              &WmPersonImage::SignalDeleteBtnClick, &WmPersonImage::SignalTurnPageBtnClick})
            connect(&panel, clicked, this, [&all] { ++all; });
        const QPoint middle = panel.findChild<QPushButton*>(button)->geometry().center();
        QTest::mouseClick(panel.windowHandle(), Qt::LeftButton, Qt::NoModifier, middle);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(all, 1);
    }

    /// Catches any use of the panel after the slot in which the client deleted it.
    void SlotDeletesThePanel()
    {
        auto* panel = new WmPersonImage;
        const QPointer<WmPersonImage> guard(panel);
        connect(panel, &WmPersonImage::SignalDeleteBtnClick, this, [=] { delete panel; });
        panel->show();
        QVERIFY(QTest::qWaitForWindowExposed(panel));
        Hover(*panel, true);
        QTest::mouseClick(Button(*panel, "m_btnPhotoDelete"), Qt::LeftButton);
        QVERIFY(guard.isNull());
    }

    /// Catches a click on a button that takes the keyboard from the record's fields.
    void ButtonsLeaveTheFocus()
    {
        QWidget record;
        auto* layout = new QVBoxLayout(&record);
        auto* name = new QLineEdit;
        auto* panel = new WmPersonImage;
        panel->setFixedSize(160, 200);
        layout->addWidget(name);
        layout->addWidget(panel);
        record.show();
        QVERIFY(QTest::qWaitForWindowActive(&record));
        name->setFocus();
        Hover(*panel, true);
        QTest::mouseClick(Button(*panel, "m_btnUpLoad"), Qt::LeftButton);
        QCOMPARE(QApplication::focusWidget(), name);
    }

    /// Catches any use of a button or caption that the client has found by its name and deleted.
    void ClientDeletesAChild()
    {
        WmPersonImage whole;
        Hover(whole, true);
        const QStringList names = Shown(whole);
        for (const QString& name : names) {
            WmPersonImage panel;
            panel.SetShowAvatarOrFaceLabel(true, 1);
            delete panel.findChild<QWidget*>(name);
            for (const auto& switched : Switches)
                (panel.*switched.second)(true);
            panel.SetShowTurnPageButton(true);
            panel.SetShowAvatarOrFaceLabel(true, 2);
            panel.ResetUI();
            QEvent language(QEvent::LanguageChange);
            QApplication::sendEvent(&panel, &language);
            panel.RefreshUIButton();
            QCOMPARE(Shown(panel).size(), names.size() - 1);
        }
    }

    /// Catches a panel that forgets which buttons are in use while it is disabled.
    void DisabledPanelKeepsItsButtons()
    {
        WmPersonImage panel;
        panel.SetShowIDCardButton(false);
        panel.setEnabled(false);
        panel.resize(180, 240);
        panel.SetButtonSize();
        panel.setEnabled(true);
        Hover(panel, true);
        QCOMPARE(Shown(panel).size(), 6);
        QCOMPARE(Button(panel, "m_btnPhotoDelete")->geometry(), QRect(1, 220, 178, 20));
    }
};

STRICT_TEST_MAIN(TestPersonImage)
#include "tst_personimage.moc"
