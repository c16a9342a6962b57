#include "support/Columns.h"
#include "support/CropCanvas.h"
#include "support/ShownTexts.h"
#include "support/StrictMain.h"

#include <Platform/Automation/AutomationRegistry.h>
#include <Platform/BasicUIComponents/KvCalendarEx.h>
#include <Platform/BasicUIComponents/KvCustomDialog.h>
#include <Platform/BasicUIComponents/KvLanguage.h>
#include <Platform/BasicUIComponents/KvPushButton.h>
#include <Platform/BasicUIComponents/KvTranslatedText.h>
#include <UI/CutPhoto/CCutDetailPhoto.h>
#include <UI/CutPhoto/CCutPhotoDlg.h>
#include <UI/CutPhoto/CCutPhotoDlgWithZoom.h>
#include <UI/CutPhoto/CCutPhotoWithZoom.h>
#include <UI/Dialogs/CDisplayQRcodeDlg.h>
#include <UI/Dialogs/CFloatDialog.h>
#include <UI/Dialogs/KvVolumeButton.h>
#include <UI/FormInputs/CPasswordStrength.h>
#include <UI/FormInputs/KvLineEditWithDirButton.h>
#include <UI/FormInputs/QIpAddrEdit.h>
#include <UI/FormInputs/QIpPartLineEdit.h>
#include <UI/FormInputs/WmAddGroup.h>
#include <UI/FormInputs/WmDateCalendar.h>
#include <UI/PersonImage/WmPersonImage.h>
#include <UI/Spreadsheet/AxExcelFunction.h>
#include <UI/TVWall/KvTVWallOperateWnd.h>

#include <QtTest>
#include <QtWidgets>
#include <algorithm>
#include <functional>

using namespace UICommonMdl;
using KvGUI::KvCustomDialog;
using KvGUI::KvTranslatedText;

namespace {

const QString English = QStringLiteral("en");
const QString Chinese = QStringLiteral("zh_CN");
const QString OwnText = QStringLiteral("Siren 7");

/// As an application does it, with Qt's texts.
void Switch(const QString& language)
{
    static QTranslator qtTexts;
    QVERIFY(qtTexts.load(
        QStringLiteral("qtbase_") + language, QLibraryInfo::location(QLibraryInfo::TranslationsPath)));
    QCoreApplication::installTranslator(&qtTexts);
    QVERIFY(KvGUI::SetLanguage(language));
    QCoreApplication::processEvents(); // windows hear of the change by an event
}

KvTVWallOperateWnd* Wall(int mode, QWidget* parent)
{
    auto* wall = new KvTVWallOperateWnd(parent);
    wall->SetShowMode(mode);
    wall->SetTVWallGridCount(1, 1);
    wall->SetWindowTitleShow(true);
    wall->AddScreen({0, 0, 1, 1, false}, QIcon(), OwnText, QVariant());
    wall->OpenWindow(0, {0, 0, 0.5, 0.5, true}, QVariant());
    wall->OpenWindow(0, {0.5, 0.5, 1, 1, true}, QVariant());
    wall->SetWindowContentText(0, 1, OwnText);
    wall->SetWindowVolumeBtn(0, 1, true);
    return wall;
}

/// Every widget of the library that has texts, with its dialogs open.
class AllWidgets : public QWidget
{
public:
    AllWidgets()
    {
        auto* grid = new QGridLayout(this);
        const QWidgetList widgets{
            Wall(0, this),
            Wall(1, this),
            new CCutDetailPhoto(this),
            new CCutPhotoWithZoom(this),
            Person(),
            new QIpAddrEdit(this),
            new CPasswordStrength(this),
            new KvLineEditWithDirButton(this),
            new WmDateCalendar(this),
            new KvVolumeButton(this)};
        int index = 0;
        for (QWidget* widget : widgets) {
            grid->addWidget(widget, index / 2, index % 2);
            ++index;
        }
        resize(1400, 1000);
        show();
        const QWidgetList dialogs{
            new WmAddGroup(this),
            new CDisplayQRcodeDlg(this),
            new CCutPhotoDlg(this),
            new CCutPhotoDlgWithZoom(this),
            new KvCustomDialog(this),
            new CFloatDialog(this),
            new KvGUI::KvCalendarEx(this, Qt::Dialog)};
        for (QWidget* dialog : dialogs)
            dialog->show();
        QCoreApplication::processEvents();
    }

private:
    WmPersonImage* Person()
    {
        auto* person = new WmPersonImage(this);
        person->setMinimumSize(240, 200);
        person->SetShowAvatarOrFaceLabel(true, 2);
        person->SetPhotoBtnAlwaysShow(true);
        person->RefreshUIButton();
        return person;
    }
};

} // namespace

Q_DECLARE_METATYPE(std::function<void(AllWidgets&)>)

class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { Switch(English); }

    void LanguagesAreChosenByName_data()
    {
        TestSupport::Columns<QString, bool, QString>("name", "known", "language");
        const auto row = [](const char* name, bool known, const QString& language) {
            QTest::newRow(name) << QString::fromLatin1(name) << known << language;
        };
        row("zh_CN", true, Chinese);
        row("zh-CN", true, Chinese);
        row("zh", true, Chinese);
        row("en", true, English);
        row("en_GB", true, English);
        // The present language, which the test has set to Chinese, stays.
        row("zh_TW", false, Chinese);
        row("de", false, Chinese);
        row("", false, Chinese);
        row("C", false, Chinese);
        row("no language", false, Chinese);
    }

    // Catches a name of the desktop's settings that is not understood, and one that switches texts off.
    void LanguagesAreChosenByName()
    {
        QFETCH(QString, name);
        QCOMPARE(KvGUI::GetLanguages(), QStringList({English, Chinese}));
        Switch(Chinese);
        QTEST(KvGUI::SetLanguage(name), "known");
        QTEST(KvGUI::GetLanguage(), "language");
    }

    // Catches a text that stays in the former language, one that does not come back, and a button that keeps
    // the width of its former text.
    void EveryWidgetFollowsAndComesBack()
    {
        TestSupport::AnnounceCropCanvases(2);
        AllWidgets all;
        const QMap<QString, QString> english = ShownTexts(all);
        const auto count = [](const QMap<QString, QString>& texts, const QString& wanted) {
            return std::count(texts.begin(), texts.end(), wanted);
        };
        QVERIFY(count(english, QStringLiteral("Overview of the wall")) > 0);
        QTRY_COMPARE(ClippedTexts(all).join(QLatin1Char('\n')), QString());

        Switch(Chinese);
        const QMap<QString, QString> chinese = ShownTexts(all);
        const QSet<QString> sources = SourceTexts(QStringLiteral(LIBRARY_TEXTS));
        QVERIFY(sources.size() > 50);
        for (auto text = chinese.begin(); text != chinese.end(); ++text)
            QVERIFY2(!sources.contains(*text), qPrintable(text.key() + QLatin1String(": ") + *text));
        for (const char* wanted :
             {"窗口 1", "窗口 2  Siren 7", "人脸1", "上一张", "关闭声音", "IP 地址，第 4 段"})
            QVERIFY2(count(chinese, QString::fromUtf8(wanted)) > 0, wanted);
        QCOMPARE(count(chinese, QStringLiteral("Siren 7")), count(english, QStringLiteral("Siren 7")));
        QTRY_COMPARE(ClippedTexts(all).join(QLatin1Char('\n')), QString());

        Switch(English);
        const QMap<QString, QString> back = ShownTexts(all);
        for (auto text = back.begin(); text != back.end(); ++text)
            QVERIFY2(!HasChinese(*text), qPrintable(text.key() + QLatin1String(": ") + *text));
        QCOMPARE(ChangedTexts(english, back).join(QLatin1Char('\n')), QString());
        QCOMPARE(back.size(), english.size());
        QTRY_COMPARE(ClippedTexts(all).join(QLatin1Char('\n')), QString());
    }

    void TextsOfTheClientStay_data()
    {
        QTest::addColumn<std::function<void(AllWidgets&)>>("set");
        const auto row = [](const char* name, const std::function<void(AllWidgets&)>& set) {
            QTest::newRow(name) << set;
        };
        row("name of a volume button",
            [](auto& all) { all.template findChild<KvVolumeButton*>()->setAccessibleName(OwnText); });
        row("name of a meter",
            [](auto& all) { all.template findChild<CPasswordStrength*>()->setAccessibleName(OwnText); });
        row("name of a canvas",
            [](auto& all) { all.template findChild<CCutDetailPhoto*>()->setAccessibleName(OwnText); });
        row("name of a calendar", [](auto& all) {
            all.template findChild<KvGUI::KvCalendarEx*>(QString(), Qt::FindDirectChildrenOnly)
                ->setAccessibleName(OwnText);
        });
        row("title of a dialog with its own",
            [](auto& all) { all.template findChild<CDisplayQRcodeDlg*>()->SetTitle(OwnText); });
        row("title of a floating dialog",
            [](auto& all) { all.template findChild<CFloatDialog*>()->SetTitle(OwnText); });
        row("standard button", [](auto& all) {
            all.template findChild<CCutPhotoDlg*>()->SetButtonText(QDialogButtonBox::Ok, OwnText);
        });
        row("button of the group dialog", [](auto& all) {
            all.template findChild<WmAddGroup*>()->SetButtonText(QDialogButtonBox::Cancel, OwnText);
        });
        row("tool tip", [](auto& all) { all.template findChild<WmPersonImage*>()->setToolTip(OwnText); });
    }

    // Catches a change of the language that overwrites what the client has set.
    void TextsOfTheClientStay()
    {
        QFETCH(std::function<void(AllWidgets&)>, set);
        TestSupport::AnnounceCropCanvases(2);
        AllWidgets all;
        const int before = ShownTexts(all).values().count(OwnText);
        set(all);
        const int own = ShownTexts(all).values().count(OwnText);
        QVERIFY(own > before);
        for (const QString& language : {Chinese, English}) {
            Switch(language);
            QCOMPARE(ShownTexts(all).values().count(OwnText), own);
        }
    }

    // Catches a modal dialog that keeps its language, or the width of its row of buttons, until it is closed.
    void OpenDialogFollows()
    {
        WmAddGroup dialog;
        QTimer::singleShot(0, &dialog, [&] {
            auto* save = dialog.GetButton(QDialogButtonBox::Ok);
            QCOMPARE(save->text(), QStringLiteral("Save"));
            Switch(Chinese);
            QCOMPARE(save->text(), QStringLiteral("保存"));
            QVERIFY(ShownTexts(dialog).values().contains(QStringLiteral("名称：")));
            QTRY_COMPARE(ClippedTexts(dialog).join(QLatin1Char('\n')), QString());
            dialog.reject();
        });
        dialog.exec();
        QCOMPARE(KvGUI::GetLanguage(), Chinese);
    }

    // Catches a menu that was open when the language changed.
    void OpenSearchMenuFollows()
    {
        TestSupport::AnnounceCropCanvases();
        CCutPhotoWithZoom canvas;
        canvas.resize(400, 300);
        canvas.SetSrcImage(QImage(400, 300, QImage::Format_RGB32));
        canvas.show();
        QStringList texts;
        QTimer::singleShot(0, &canvas, [&] {
            Switch(Chinese);
            QWidget* menu = QApplication::activePopupWidget();
            for (const QAction* action : menu ? menu->actions() : QList<QAction*>())
                texts << action->text();
            if (menu)
                menu->close();
        });
        QTest::mouseClick(&canvas, Qt::RightButton, Qt::NoModifier, QPoint(200, 150));
        QVERIFY(texts.contains(QStringLiteral("人脸搜图")));
        QVERIFY(texts.contains(QStringLiteral("取消")));
    }

    // Catches two texts of one property that overwrite one another at each change of the language, and an
    // exception where there is no source.
    void NewestTextOfAPropertyCounts()
    {
        QLabel label;
        new KvTranslatedText(&label, "text", [] { return QStringLiteral("former"); });
        int volume = 1;
        auto* text = new KvTranslatedText(&label, "text", [&volume] { return QString::number(volume); });
        QCOMPARE(label.findChildren<KvTranslatedText*>().size(), 1);
        volume = 2;
        text->Refresh();
        QCOMPARE(label.text(), QStringLiteral("2"));
        label.setText(OwnText);
        Switch(Chinese);
        text->Refresh();
        QCOMPARE(label.text(), OwnText);
        new KvTranslatedText(&label, "text", nullptr);
        Switch(English);
        QCOMPARE(label.text(), OwnText);
    }

    // Catches a message that is fetched from a copy of the sources' language.
    void MessagesAreInTheLanguageOfTheirMoment()
    {
        // Not the real application, which takes seconds to start.
        Automation::AutomationRegistry::SetObjectFactory(QStringLiteral("Excel.Application"), [] {
            return std::unique_ptr<Automation::AutomationObject>();
        });
        AxExcelFunction excel;
        QVERIFY(!excel.OpenExcel(QStringLiteral("/no such folder/list.xlsx"), false));
        const QString english = excel.GetErrorMsg();
        Switch(Chinese);
        QVERIFY(!HasChinese(english));
        QVERIFY(HasChinese(excel.GetErrorMsg()));
    }
};

STRICT_TEST_MAIN(TestTranslations)

#include "tst_translations.moc"
