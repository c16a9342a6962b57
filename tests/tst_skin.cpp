#include "support/Columns.h"
#include "support/StrictMain.h"
#include "support/Text.h"

#include <Common/CommonFun.h>
#include <Common/QCommon.h>
#include <Common/SkinPicture.h>
#include <Platform/BasicUIComponents/KvDir.h>
#include <Platform/BasicUIComponents/KvFile.h>
#include <Platform/BasicUIComponents/KvSkin.h>
#include <Platform/BasicUIComponents/StyleSheets.h>
#include <QtTest>
#include <array>
#include <memory>
#include <new>

using namespace TestSupport;
using UICommonMdl::CommonFun;

namespace {

const QString kApp = "Test %2"_s;
const QString kDay = "Day"_s;
const QString kNight = "Night"_s;
const QString kForms = "forms"_s;
const QString kShared = "Shared.css"_s;
const QString kSample = "SampleWidget.css"_s;

QString SheetOf(const char* file)
{
    const QByteArray bytes = KvGUI::KvFile::ReadAll(QString::fromLatin1(file), QStringLiteral(SKIN_SOURCES));
    return QString::fromUtf8(bytes);
}

void Write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

} // namespace

namespace Samples {

/// Styles itself by its class name, as the library's widgets do.
class SampleWidget : public QWidget
{
    Q_OBJECT

public:
    SampleWidget() { CommonFun::SetStyleSheet(this, kForms, QString(), QString()); }

    int m_styleChanges = 0;
    QPointer<QWidget> m_victim; ///< deleted when this widget's style changes

protected:
    void changeEvent(QEvent* event) override
    {
        if (event->type() == QEvent::StyleChange) {
            ++m_styleChanges;
            delete m_victim;
        }
        QWidget::changeEvent(event);
    }
};

/// A client's subclass, without and (with @p styled) with a sheet of its own.
class DerivedWidget : public SampleWidget
{
    Q_OBJECT

public:
    explicit DerivedWidget(bool styled)
    {
        if (styled)
            CommonFun::SetStyleSheet(this, kForms, QString(), QString());
    }
};

} // namespace Samples

using Samples::DerivedWidget;
using Samples::SampleWidget;

class TestSkin : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        KvGUI::SetAppName(kApp);
        KvGUI::SetSkinVersion(kDay);
        KvGUI::KvDir::SetCurrentPath(QString());
    }

    void SkinPaths_data()
    {
        Columns<QString, QString, QString, QString, QString>(
            "application", "skin", "module", "whole", "first");
        Row("plain", "App"_s, "Skin2"_s, "Common"_s, ":/App/Common/Skin2/Common/%2.png"_s,
            ":/App/Common/Skin2/Common/%2.png"_s);
        Row("nested", kApp, kDay, "Client/Maps"_s, ":/Test %2/Client/Maps/Day/Client/Maps/%2.png"_s,
            ":/Test %2/Client/Day/Client/Maps/%2.png"_s);
        Row("slash first", kApp, kDay, "/a"_s, ":/Test %2//a/Day//a/%2.png"_s, ":/Test %2//Day//a/%2.png"_s);
        Row("place marks", "%5%1"_s, "100%3"_s, "M%4"_s, ":/%5%1/M%4/100%3/M%4/%2.png"_s,
            ":/%5%1/M%4/100%3/M%4/%2.png"_s);
    }

    /// Catches path parts in the wrong order, the first part of a module path in place of the whole or the
    /// other way round, and place marks filled one after the other: a name with "%1" would be filled as well.
    void SkinPaths()
    {
        QFETCH(QString, application);
        QFETCH(QString, skin);
        QFETCH(QString, module);
        KvGUI::SetAppName(application);
        KvGUI::SetSkinVersion(skin);
        QTEST(CommonFun::GetSkinPath(module, "%2.png"_s), "whole");
        QTEST(XCM::GetSkinPath(module, "%2.png"_s), "first");
        KvGUI::KvDir::SetCurrentPath("/opt/%2"_s);
        QCOMPARE(QDir::cleanPath(CommonFun::GetSkinPathEx("%1"_s)), "/opt/%2/Skin/%1"_s);
    }

    /// Catches the whole module path where its first part belongs.
    void ModuleNamesTheFolder()
    {
        SampleWidget widget;
        CommonFun::SetStyleSheet(&widget, kForms, kSample, "Client/Maps"_s);
        QCOMPARE(widget.styleSheet(), SheetOf("client.css"));
        KvGUI::SetSkinVersion(kNight); // where the module has none, and the library's comes back
        QCOMPARE(widget.styleSheet(), SheetOf("night.css"));
    }

    /// Catches a missing or empty sheet that clears the style, and a crash without a widget.
    void MissingSheetLeavesTheStyle()
    {
        QWidget widget;
        const QString own = "color: blue"_s;
        widget.setStyleSheet(own);
        CommonFun::SetStyleSheet(&widget, kForms, QString(), QString());
        CommonFun::SetStyleSheet(&widget, kForms, "Empty.css"_s, QString());
        CommonFun::SetStyleSheet(&widget, "nowhere"_s, kSample, QString());
        CommonFun::SetStyleSheetEx(&widget, kSample, kForms);
        QCOMPARE(widget.styleSheet(), own);
        CommonFun::SetStyleSheet(nullptr, kForms, QString(), QString());
        CommonFun::SetStyleSheetEx(nullptr, kSample, kForms);
        KvGUI::SetSkinVersion(kNight);
    }

    /// Catches widgets that keep the old skin, also when the skin goes to and fro.
    void SkinChangeRestyles()
    {
        const SampleWidget first;
        const SampleWidget second;
        for (const char* skin : {"Night", "Day", "Night"}) {
            KvGUI::SetSkinVersion(QString::fromLatin1(skin));
            const QString sheet = SheetOf(skin == QByteArray("Day") ? "day.css" : "night.css");
            QCOMPARE(first.styleSheet(), sheet);
            QCOMPARE(second.styleSheet(), sheet);
        }
    }

    /// Catches a widget that loses its style, or does not find it again, when one skin lacks its sheet.
    void SheetMissingInTheNewSkinLeavesTheOld()
    {
        QWidget widget;
        CommonFun::SetStyleSheet(&widget, kForms, "OnlyDay.css"_s, QString());
        KvGUI::SetSkinVersion(kNight);
        QCOMPARE(widget.styleSheet(), SheetOf("day.css"));
        KvGUI::SetAppName("Another application"_s);
        QCOMPARE(widget.styleSheet(), SheetOf("day.css"));
        widget.setStyleSheet(QString());
        KvGUI::SetSkinVersion(kDay);
        KvGUI::SetAppName(kApp);
        QCOMPARE(widget.styleSheet(), SheetOf("day.css"));
    }

    /// Catches a class name that is asked for again when the skin changes (the object is a subclass by then),
    /// a subclass that no longer follows the skin, and one that does not get its own sheet where there is
    /// one.
    void SheetsOfSubclasses()
    {
        for (const bool styled : {false, true}) {
            const DerivedWidget widget(styled);
            QCOMPARE(widget.styleSheet(), SheetOf("day.css"));
            KvGUI::SetSkinVersion(kNight);
            QCOMPARE(widget.styleSheet(), SheetOf(styled ? "derived.css" : "night.css"));
            KvGUI::SetSkinVersion(kDay); // which has the base class's only
            QCOMPARE(widget.styleSheet(), SheetOf("day.css"));
        }
    }

    /// Catches widgets that are polished again for a sheet that both skins share, one that is not when the
    /// client styles it again after a change of a property, and one that is noted twice: the earlier call
    /// would come back with the skin.
    void LastCallCounts()
    {
        SampleWidget widget;
        CommonFun::SetStyleSheet(&widget, kForms, kShared, QString());
        widget.ensurePolished();
        widget.m_styleChanges = 0;
        KvGUI::SetSkinVersion(kNight);
        QCOMPARE(widget.styleSheet(), SheetOf("shared.css"));
        QCOMPARE(widget.m_styleChanges, 0);
        CommonFun::SetStyleSheet(&widget, kForms, kShared, QString());
        QCOMPARE(widget.m_styleChanges, 1);
        CommonFun::SetStyleSheet(&widget, kForms, kSample, QString());
        QVERIFY(widget.m_styleChanges > 1);
        KvGUI::SetSkinVersion(kDay);
        QCOMPARE(widget.styleSheet(), SheetOf("day.css"));
    }

    /// Catches notes of dead widgets that are kept: the next widget at the same place would be styled.
    void DeadWidgetsAreForgotten()
    {
        alignas(QWidget) unsigned char place[sizeof(QWidget)];
        auto* widget = new (place) QWidget;
        CommonFun::SetStyleSheet(widget, kForms, kSample, QString());
        widget->disconnect(); // by the client, who thinks of connections of its own
        widget->~QWidget();
        widget = new (place) QWidget;
        KvGUI::SetSkinVersion(kNight);
        QCOMPARE(widget->styleSheet(), QString());
        CommonFun::SetStyleSheet(widget, kForms, kSample, QString());
        KvGUI::SetSkinVersion(kDay);
        QCOMPARE(widget->styleSheet(), SheetOf("day.css"));
        widget->~QWidget();
    }

    /// Catches a walk over the widgets that touches one which the client deleted on the way.
    void RestylingSurvivesDeletions()
    {
        std::array<std::unique_ptr<SampleWidget>, 20> widgets;
        for (auto& widget : widgets)
            widget = std::make_unique<SampleWidget>();
        for (auto& widget : widgets) {
            widget->ensurePolished();
            auto* victim = new SampleWidget;
            victim->ensurePolished();
            widget->m_victim = victim;
            victim->m_victim = new SampleWidget;
        }
        KvGUI::SetSkinVersion(kNight);
        for (const auto& widget : widgets) {
            QCOMPARE(widget->styleSheet(), SheetOf("night.css"));
            QVERIFY(widget->m_victim.isNull());
        }
    }

    /// Catches a sheet on disk that is looked for in the skin, that a change of skin takes away, or that is
    /// set as it was before its file was written again or removed.
    void SheetsOnDiskBelongToNoSkin()
    {
        QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkpath("Skin/forms"_s));
        const QString path = folder.filePath("Skin/forms/disk.css"_s);
        Write(path, "QWidget { color: red }");
        KvGUI::KvDir::SetCurrentPath(folder.path());
        SampleWidget widget;
        CommonFun::SetStyleSheetEx(&widget, "disk.css"_s, kForms);
        Write(path, "QWidget { color: \"\xE6\x97\xA5\" }");
        CommonFun::SetStyleSheetEx(&widget, "disk.css"_s, kForms);
        KvGUI::SetSkinVersion(kNight);
        QCOMPARE(widget.styleSheet(), "QWidget { color: \"\u65E5\" }"_s);
        CommonFun::SetStyleSheet(&widget, kForms, kSample, QString());
        QFile::remove(path);
        CommonFun::SetStyleSheetEx(&widget, "disk.css"_s, kForms);
        KvGUI::SetSkinVersion(kDay);
        QCOMPARE(widget.styleSheet(), SheetOf("day.css"));
    }

    /// Catches a sheet of a skin that is read for each widget, one that is kept for ever, and one that comes
    /// late.
    void SheetsAreReadOnce()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("a.css"_s);
        const auto text = [&folder] { return StyleSheetText("a.css"_s, folder.path()); };
        QCOMPARE(text(), QString());
        Write(path, "QWidget { margin: 1px }");
        QCOMPARE(text(), "QWidget { margin: 1px }"_s);
        Write(path, "QWidget { margin: 2px }");
        QCOMPARE(text(), "QWidget { margin: 1px }"_s);
        KvGUI::SetSkinVersion(kNight);
        QCOMPARE(text(), "QWidget { margin: 2px }"_s);
        QFile::remove(path);
        QCOMPARE(text(), "QWidget { margin: 2px }"_s);
    }

    /// Catches a picture for another density, which is blurred or of another size, and none where only one
    /// was drawn.
    void PicturesFollowTheDensity()
    {
        QTemporaryDir folder;
        for (const auto& [name, size] :
             {qMakePair("both.png"_s, 4), qMakePair("one.png"_s, 4), qMakePair("both@2x.png"_s, 8)})
            QVERIFY(QImage(size, size, QImage::Format_RGB32).save(folder.filePath(name)));
        const auto pixels = [&folder](const QString& name, qreal density) {
            return SkinPicture(folder.filePath(name), density).width();
        };
        QCOMPARE(pixels("both"_s, 1), 4);
        QCOMPARE(pixels("both"_s, 1.5), 8);
        QCOMPARE(pixels("one"_s, 2), 4);
        QCOMPARE(pixels("none"_s, 2), 0);
        QCOMPARE(LogicalSize(SkinPicture(folder.filePath("both"_s), 2)), QSize(4, 4));
    }

    /// Catches bytes that are decoded as UTF-8 or end at a zero, and an output that a failure clears.
    void WholeFilesAreReadAsLatin1()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("a.css"_s);
        Write(path, QByteArray("\xE6\x97\xA5\0z", 5));
        for (const auto load : {&CommonFun::loadStyleSheet, &XCM::loadStyleSheet}) {
            QString out = "before"_s;
            QVERIFY(!load(folder.filePath("b.css"_s), out));
            QVERIFY(!load(QString(), out));
            QCOMPARE(out, "before"_s);
            QVERIFY(load(path, out));
            QCOMPARE(out, QString::fromLatin1("\xE6\x97\xA5\0z", 5));
        }
    }

    /// Catches a path without its "/" or with two: files are named by appending to it.
    void CurrentPath()
    {
        const auto set = [](const QString& path) {
            KvGUI::KvDir::SetCurrentPath(path);
            return KvGUI::KvDir::GetCurrentPath();
        };
        for (const char* path : {"/opt/client", "/opt/client/", "/opt//client///"})
            QCOMPARE(set(QLatin1String(path)), "/opt/client/"_s);
        QCOMPARE(set("/"_s), "/"_s);
        QCOMPARE(set("x/.."_s), QDir::currentPath() + QLatin1Char('/'));
        QCOMPARE(set(QString()), QCoreApplication::applicationDirPath() + QLatin1Char('/'));
    }

    /// Catches joins with no or two slashes (a resource is not found then), and a missing file that cannot be
    /// told from an empty one.
    void JoinedPaths()
    {
        const auto read = KvGUI::KvFile::ReadAll;
        const QByteArray night("QWidget { color: #d0e0f0; }\n");
        const QString folder = QStringLiteral(SKIN_SOURCES);
        for (const char* behind : {"", "/", "//"}) {
            for (const char* before : {"", "/"})
                QCOMPARE(read(QLatin1String(before) + "night.css"_s, folder + QLatin1String(behind)), night);
        }
        QCOMPARE(read(folder + "/night.css"_s, QString()), night);
        QVERIFY(read("none.css"_s, folder).isNull());
        QVERIFY(read(QString(), folder).isNull());
        QVERIFY(read("//"_s, folder).isNull());
        QCOMPARE(read(folder + "/night.css"_s, "//"_s), night);
        const QByteArray empty = read("empty.css"_s, folder);
        QVERIFY(empty.isEmpty() && !empty.isNull());
    }
};

STRICT_TEST_MAIN(TestSkin)
#include "tst_skin.moc"
