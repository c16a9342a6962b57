#include "support/Columns.h"
#include "support/ShownTexts.h"
#include "support/StrictMain.h"

#include <Platform/BasicUIComponents/KvLanguage.h>
#include <Platform/BasicUIComponents/KvSkin.h>
#include <gallery/Alarms/AlarmPage.h>
#include <gallery/Forms/DevicePage.h>
#include <gallery/Language.h>
#include <gallery/MainWindow.h>
#include <gallery/Map/MapPage.h>
#include <gallery/Pairing/PairingPage.h>
#include <gallery/Photo/PhotoPage.h>
#include <gallery/Photo/RecordPage.h>
#include <gallery/Wall/WallLayoutFile.h>
#include <gallery/Wall/WallPage.h>

#include <QtTest>
#include <QtWidgets>

using namespace OperatorClient;

namespace {

const QString English = QStringLiteral("en");
const QString Chinese = QStringLiteral("zh_CN");
constexpr int SampleCount = 1500;

/// The client's window with its pages, as main() makes it.
struct Client
{
    QTemporaryDir folder;
    SourcePool pool;
    FrameClock clock;
    MainWindow window;

    Client()
    {
        clock.Freeze(QDateTime(QDate(2026, 3, 14), QTime(10, 24, 36)));
        const WallLayoutFile file(folder.filePath(QStringLiteral("layout.ini")));
        Add(WallPage::Title, [this, file](QWidget* parent) {
            return new WallPage(pool, clock, file, FirstWall(), {}, parent);
        });
        Add(MapPage::Title,
            [this](QWidget* parent) { return new MapPage(pool, clock, QStringLiteral("/no map"), parent); });
        Add(PhotoPage::Title, [](QWidget* parent) { return new PhotoPage(QString(), parent); });
        Add(RecordPage::Title, [this](QWidget* parent) {
            return new RecordPage(folder.filePath(QStringLiteral("person")), parent);
        });
        Add(PairingPage::Title, [](QWidget* parent) { return new PairingPage(parent); });
        Add(AlarmPage::Title, [this](QWidget* parent) {
            return new AlarmPage(SampleAlarms(SampleCount, clock.Now()), parent);
        });
        Add(DevicePage::Title, [](QWidget* parent) { return new DevicePage(parent); });
        window.show();
    }

    void Add(QString (*title)(), const std::function<Page*(QWidget*)>& make)
    {
        window.AddPage({QString::number(window.PageNames().size()), title, make});
    }

    /// Lays all of them out. @return the texts that they show
    QMap<QString, QString> ShowPages()
    {
        for (int page = window.PageNames().size() - 1; page >= 0; --page) {
            window.ShowPage(page);
            QCoreApplication::processEvents();
        }
        return ShownTexts(window);
    }

    QStringList Clipped()
    {
        QStringList clipped;
        for (int page = 0; page < window.PageNames().size(); ++page) {
            window.ShowPage(page);
            QCoreApplication::processEvents();
            clipped << ClippedTexts(window);
        }
        return clipped;
    }
};

} // namespace

class TestClientLanguage : public QObject
{
    Q_OBJECT

private slots:
    // Without a desktop the font is any size.
    void initTestCase()
    {
        QFont font = QApplication::font();
        font.setPixelSize(13);
        QApplication::setFont(font);
    }

    // Catches a text of any page that stays in the former language, or does not come back, and a page made
    // after the change that differs from one that saw it.
    void EveryPageFollowsAndComesBack()
    {
        Language language;
        Client client;
        const QMap<QString, QString> english = client.ShowPages();
        QTRY_COMPARE(client.Clipped().join(QLatin1Char('\n')), QString());

        QVERIFY(language.Set(Chinese));
        QCoreApplication::processEvents();
        const QMap<QString, QString> chinese = ShownTexts(client.window);
        const QSet<QString> sources
            = SourceTexts(QStringLiteral(LIBRARY_TEXTS)) + SourceTexts(QStringLiteral(CLIENT_TEXTS));
        QVERIFY(sources.size() > 250);
        for (auto text = chinese.begin(); text != chinese.end(); ++text)
            QVERIFY2(!sources.contains(*text), qPrintable(text.key() + QLatin1String(": ") + *text));
        const QStringList wanted{QStringLiteral("操作客户端"), QStringLiteral("电视墙"),
                                 QStringLiteral("停车场"),     QStringLiteral("1,500 条报警"),
                                 QStringLiteral("二楼走廊"),   QStringLiteral("屏幕")};
        const QStringList shown = chinese.values();
        for (const QString& text : wanted)
            QVERIFY2(shown.contains(text), qPrintable(text));
        QTRY_COMPARE(client.Clipped().join(QLatin1Char('\n')), QString());
        Client late;
        QCOMPARE(ChangedTexts(chinese, late.ShowPages()).join(QLatin1Char('\n')), QString());

        QVERIFY(language.Set(English));
        QCoreApplication::processEvents();
        const QMap<QString, QString> back = ShownTexts(client.window);
        for (auto text = back.begin(); text != back.end(); ++text)
            QVERIFY2(
                !HasChinese(*text) || *text == Language::OwnName(Chinese),
                qPrintable(text.key() + QLatin1String(": ") + *text));
        QCOMPARE(ChangedTexts(english, back).join(QLatin1Char('\n')), QString());
        QCOMPARE(back.size(), english.size());
    }

    // Catches "screen(s)", which only stands in the sources.
    void PluralsAreWritten()
    {
        Language present;
        const auto added = [&](const QString& language, int screens) {
            present.Set(language);
            return WallPage::tr("%n screen(s) added", nullptr, screens);
        };
        QCOMPARE(added(English, 1), QStringLiteral("1 screen added"));
        QCOMPARE(added(English, 3), QStringLiteral("3 screens added"));
        QCOMPARE(added(Chinese, 1), QStringLiteral("已添加 1 个屏幕"));
    }

    // Catches Qt's own dialogs and the locale of new and living windows in another language than the client.
    void QtFollowsToo()
    {
        Language language;
        QWidget living;
        language.Set(Chinese);
        QCOMPARE(living.locale().language(), QLocale::Chinese);
        QCOMPARE(QWidget().locale().language(), QLocale::Chinese);
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("取消"));
        language.Set(English);
        QCOMPARE(living.locale().language(), QLocale::English);
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Cancel"));
    }

    // Catches a wrong name, from the settings for example, that leaves the client without a language.
    void UnknownLanguagesAreRefused()
    {
        Language language;
        language.Set(Chinese);
        for (const char* name : {"", "de", "zh", "ZH_cn"})
            QVERIFY(!language.Set(QString::fromLatin1(name)));
        QCOMPARE(language.Name(), Chinese);
        QCOMPARE(KvGUI::GetLanguage(), Chinese);
        QVERIFY(HasChinese(Language::OwnName(Chinese)));
        QVERIFY(Language::Names().contains(Language::OfDesktop()));
    }

    // Catches a change of the language that overwrites what was typed or chosen.
    void InputOfTheOperatorStays()
    {
        Language language;
        PairingPage page;
        auto* phone = page.findChild<QLineEdit*>();
        auto* period = page.findChild<QComboBox*>();
        phone->setText(QStringLiteral("Gate 4"));
        period->setCurrentIndex(1);
        language.Set(Chinese);
        QCoreApplication::processEvents();
        QCOMPARE(phone->text(), QStringLiteral("Gate 4"));
        QCOMPARE(period->currentText(), QStringLiteral("每五秒（演示）"));
    }

    // Catches a workbook of the other language that is refused or whose words stay foreign, and one without
    // the last column that is taken.
    void WorkbooksOfEachLanguageAreRead()
    {
        Language present;
        const AlarmRecord alarm = SampleAlarms(1, FrameClock().Now()).constFirst();
        const QStringList languages = Language::Names();
        for (const QString& written : languages) {
            present.Set(written);
            const QStringList columns = AlarmRecord::Columns();
            QVariantList row;
            const QStringList texts = alarm.Texts();
            for (const QString& text : texts)
                row << text;
            for (const QString& read : languages) {
                present.Set(read);
                QCOMPARE(AlarmRecord::FromRow(row)->Texts(), alarm.Texts());
                QVERIFY(AlarmRecord::AreColumns(columns));
                QVERIFY(AlarmRecord::AreColumns(columns + QStringList{QStringLiteral("Remark")}));
                QVERIFY(!AlarmRecord::AreColumns(columns.mid(0, columns.size() - 1)));
            }
        }
    }

    // Catches a crop dialog whose title keeps the language in which it was opened.
    void OpenCropDialogFollows()
    {
        Language language;
        PhotoPage page{QString()};
        QTimer::singleShot(0, &page, [&] {
            auto* dialog = page.findChild<QDialog*>();
            QVERIFY(!HasChinese(dialog->windowTitle()));
            language.Set(Chinese);
            QCoreApplication::processEvents();
            QCOMPARE(dialog->windowTitle(), QStringLiteral("裁剪：出入口绘制照片"));
            dialog->reject();
        });
        page.CropPlain();
    }
};

STRICT_TEST_MAIN(TestClientLanguage)

#include "tst_clientlanguage.moc"
