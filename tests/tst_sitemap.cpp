#include "support/Columns.h"
#include "support/StrictMain.h"
#include "support/VirtualDisplay.h"

#include <Platform/Automation/AutomationRegistry.h>
#include <Platform/BasicUIComponents/KvSkin.h>
#include <UI/LinkWeb/CActiveXLinkWebCtrl.h>
#include <gallery/Map/MapPage.h>
#include <gallery/Map/MapRules.h>

#include <QtTest>
#include <QtWidgets>
#include <unistd.h>

using namespace OperatorClient;

namespace {

constexpr int Patience = 30000; // milliseconds, for a machine with much else to do

WindowLayout Window(double left, double top, double right, double bottom, int camera)
{
    WindowLayout window;
    window.rect = {left, top, right, bottom, true};
    window.source = SourceSpec::Camera(camera);
    return window;
}

WallLayout Wall(const QVector<QVector<WindowLayout>>& screens)
{
    WallLayout wall;
    for (const QVector<WindowLayout>& windows : screens) {
        ScreenLayout screen;
        screen.windows = windows;
        wall.screens.append(screen);
    }
    return wall;
}

/// The map page on the display.
struct Client
{
    Client()
        : page(pool, clock, QStringLiteral(MAP_FILE))
    {
        QObject::connect(
            page.Map(), &UICommonMdl::CActiveXLinkWebCtrl::sgnMainCall, &page,
            [this](const QString& name, const QString& param) {
                if (name == QLatin1String("value"))
                    values.append(param);
            });
        page.resize(1200, 700);
        page.show();
    }

    /// The value of an expression in the map.
    QString Value(const QString& expression)
    {
        const int before = values.size();
        page.Map()->ExecuteJavaScript(
            QStringLiteral("window.external.CallBack('value', '' + (%1))").arg(expression));
        for (int waited = 0; values.size() == before && waited < Patience; waited += 50)
            QTest::qWait(50);
        return values.value(before, QStringLiteral("no answer"));
    }

    QString ClassesOf(int camera)
    {
        return Value(QStringLiteral("document.getElementById('camera%1').className.baseVal").arg(camera));
    }

    /// Where the mark of a camera is, in the map's widget.
    QPoint PlaceOf(int camera)
    {
        const QStringList numbers
            = Value(QStringLiteral("(r => [r.x + r.width / 2, r.y + r.height / 2].join())"
                                   "(document.querySelector('#camera%1 .dot').getBoundingClientRect())")
                        .arg(camera))
                  .split(QLatin1Char(','));
        return QPointF(numbers.value(0).toDouble(), numbers.value(1).toDouble()).toPoint();
    }

    void Click(int camera)
    {
        const QPoint at = PlaceOf(camera);
        QWidget* target = page.Map()->childAt(at);
        QVERIFY(target);
        QTest::mouseClick(target, Qt::LeftButton, Qt::NoModifier, target->mapFrom(page.Map(), at));
    }

    SourcePool pool;
    FrameClock clock;
    MapPage page;
    QStringList values;
};

} // namespace

class tst_sitemap : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (geteuid() == 0)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("without its sandbox")));
        Client client;
        QTRY_VERIFY_WITH_TIMEOUT(client.page.IsMapLoaded(), Patience);
    }

    // Catches a window that opens over another although there is room.
    void FreeQuarters()
    {
        const WindowLayout full = Window(0, 0, 1, 1, 1);
        const WindowLayout first = Window(0, 0, 0.5, 0.5, 2);
        const auto free = [](const WallLayout& wall) {
            const FreeQuarter quarter = FirstFreeQuarter(wall);
            return qMakePair(quarter.screen, QPointF(quarter.rect.dLeft, quarter.rect.dTop));
        };
        QCOMPARE(free({}).first, -1);
        QCOMPARE(free(Wall({{full}, {full}})).first, -1);
        QCOMPARE(free(Wall({{}})), qMakePair(0, QPointF(0, 0)));
        QCOMPARE(free(Wall({{first}})), qMakePair(0, QPointF(0.5, 0)));
        QCOMPARE(free(Wall({{Window(0.2, 0.1, 0.8, 0.4, 1)}})), qMakePair(0, QPointF(0, 0.5)));
        QCOMPARE(free(Wall({{Window(0, 0, 0.5004, 0.5004, 1)}})), qMakePair(0, QPointF(0.5, 0))); // rounded
        QCOMPARE(free(Wall({{full}, {first}})), qMakePair(1, QPointF(0.5, 0)));
    }

    // Catches a photo that is taken for a camera, and a selection of another screen.
    void ScriptForMap()
    {
        WindowLayout photo = Window(0, 0, 1, 1, 1);
        photo.source = SourceSpec::Photo(QStringLiteral("/a.png"));
        const WallLayout wall = Wall({{Window(0, 0, 1, 1, 3), photo}, {Window(0, 0, 1, 1, 5)}});
        QCOMPARE(WallScript({}, -1, {}), QStringLiteral("showWall([], [])"));
        QCOMPARE(WallScript(wall, 0, {}), QStringLiteral("showWall([3,5], [])"));
        QCOMPARE(WallScript(wall, 1, {0}), QStringLiteral("showWall([3,5], [5])"));
        QCOMPARE(WallScript(wall, 0, {0, 1}), QStringLiteral("showWall([3,5], [3])"));
        QCOMPARE(WallScript(wall, -1, {0}), QStringLiteral("showWall([3,5], [])"));
    }

    // Catches a click that opens nothing, another camera, or a second window of a camera that is there.
    void ClickOpensWindow()
    {
        Client client;
        QTRY_VERIFY_WITH_TIMEOUT(client.page.IsMapLoaded(), Patience);
        const auto place = [&](int camera) { return PlaceOfCamera(client.page.Cameras()->Layout(), camera); };
        QCOMPARE(place(7).screen, -1);
        client.Click(7);
        QTRY_VERIFY_WITH_TIMEOUT(place(7).screen >= 0, Patience);
        QTRY_COMPARE_WITH_TIMEOUT(client.ClassesOf(7), QStringLiteral("camera shown selected"), Patience);
        const int windows = client.page.Cameras()->Wall()->GetWindowCount(0);

        client.Click(1);
        QTRY_COMPARE_WITH_TIMEOUT(client.ClassesOf(1), QStringLiteral("camera shown selected"), Patience);
        QCOMPARE(client.ClassesOf(7), QStringLiteral("camera shown"));
        QCOMPARE(client.page.Cameras()->Wall()->GetWindowCount(0), windows);
    }

    // Catches a map that does not follow what the operator selects and closes on the wall, and names under
    // what a camera beside them sees.
    void SelectionIsHighlighted()
    {
        Client client;
        QTRY_VERIFY_WITH_TIMEOUT(client.page.IsMapLoaded(), Patience);
        const QString painted = QStringLiteral(
            "[...document.querySelectorAll('.view, .name')].map(e => e.classList[0]).join()");
        QVERIFY(
            client.Value(painted).lastIndexOf(QLatin1String("view"))
            < client.Value(painted).indexOf(QLatin1String("name")));
        QTRY_COMPARE_WITH_TIMEOUT(client.ClassesOf(3), QStringLiteral("camera shown"), Patience);
        CameraWall* cameras = client.page.Cameras();
        const WallPlace place = PlaceOfCamera(cameras->Layout(), 3);
        KvGUI::StructScaleRect window;
        QVERIFY(cameras->Wall()->GetWindowScale(place.screen, place.window, window));
        // The middle of the window; the first screen is the upper half of the wall.
        const QPoint at(
            int(cameras->Wall()->width() * (window.dLeft + window.dRight) / 2),
            int(cameras->Wall()->height() * (window.dTop + window.dBottom) / 4));
        QWidget* target = cameras->Wall()->childAt(at);
        QVERIFY(target);
        QTest::mouseClick(target, Qt::LeftButton, Qt::NoModifier, target->mapFrom(cameras->Wall(), at));
        QTRY_COMPARE_WITH_TIMEOUT(client.ClassesOf(3), QStringLiteral("camera shown selected"), Patience);
        cameras->CloseWindow(place.screen, place.window);
        QTRY_COMPARE_WITH_TIMEOUT(client.ClassesOf(3), QStringLiteral("camera"), Patience);
    }

    // Catches a map that is cut off or stays small in another area, and marks that grow with it.
    void MapFollowsSize()
    {
        Client client;
        QTRY_VERIFY_WITH_TIMEOUT(client.page.IsMapLoaded(), Patience);
        const QString spread
            = QStringLiteral("Math.round(document.querySelector('#camera6 .dot').getBoundingClientRect().x"
                             " - document.querySelector('#camera7 .dot').getBoundingClientRect().x)");
        const QString mark = QStringLiteral(
            "Math.round(document.querySelector('#camera6 .dot').getBoundingClientRect().width)");
        const int before = client.Value(spread).toInt();
        const QString size = client.Value(mark);
        client.page.resize(2 * client.page.width(), 2 * client.page.height());
        QTRY_VERIFY_WITH_TIMEOUT(client.Value(spread).toInt() > 3 * before / 2, Patience);
        QTRY_COMPARE_WITH_TIMEOUT(client.Value(mark), size, Patience);
    }

    // Catches a map that keeps the colours of the skin before.
    void MapFollowsSkin()
    {
        Client client;
        QTRY_VERIFY_WITH_TIMEOUT(client.page.IsMapLoaded(), Patience);
        const QString colour = QStringLiteral("getComputedStyle(document.querySelector('.ground')).fill");
        QTRY_COMPARE_WITH_TIMEOUT(client.Value(colour), QStringLiteral("rgb(32, 35, 40)"), Patience);
        KvGUI::SetSkinVersion(QStringLiteral("White"));
        const QString white = client.Value(colour);
        KvGUI::SetSkinVersion(QStringLiteral("Black"));
        QCOMPARE(white, QStringLiteral("rgb(236, 238, 241)"));
    }

    // Catches calls with nonsense that open windows.
    void StrangeCalls()
    {
        Client client;
        const int windows = client.page.Cameras()->Wall()->GetWindowCount(0);
        for (const char* camera : {"", "0", "-1", "13", "1e3", "99999999999", "seven"})
            client.page.Map()->CallBack("openCamera", camera);
        client.page.Map()->CallBack("openWindow", "7");
        QCOMPARE(client.page.Cameras()->Wall()->GetWindowCount(0), windows);
    }

    // Catches a page that stays empty without a word, and a wall that stops with the map.
    void NoEngine()
    {
        Automation::AutomationRegistry::SetControlFactory(
            [](QWidget*) { return std::unique_ptr<Automation::HostedControl>(); });
        Client client;
        Automation::AutomationRegistry::SetControlFactory({});
        QVERIFY(!client.page.Map()->isVisible());
        auto* title = client.page.findChild<QLabel*>(QStringLiteral("pageTitle"));
        QVERIFY(title && title->isVisible());
        QVERIFY(title->text().contains(QStringLiteral("cannot be shown")));
        client.page.Map()->CallBack("openCamera", "7");
        QCOMPARE(PlaceOfCamera(client.page.Cameras()->Layout(), 7).screen, 0);

        // A map that has stopped can be loaded again.
        client.page.Map()->CallBack("webTerminated", "killed");
        auto* again = client.page.findChild<QPushButton*>(QStringLiteral("loadMapAgain"));
        QVERIFY(again && again->isVisible());
        QTest::mouseClick(again, Qt::LeftButton);
        QTRY_VERIFY_WITH_TIMEOUT(client.page.IsMapLoaded(), Patience);
        QVERIFY(client.page.Map()->isVisible());
    }
};

int main(int argc, char** argv)
{
    TestSupport::PrepareEnvironment();
    const TestSupport::VirtualDisplay display;
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication application(argc, argv);
    tst_sitemap test;
    return TestSupport::RunStrictly(test, argc, argv);
}

#include "tst_sitemap.moc"
