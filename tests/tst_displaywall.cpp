// What only the display wall has; what both families have is tested in tst_walls.

#include "support/ScaleRects.h"
#include "support/StrictMain.h"
#include "support/WallMouse.h"

#include <UI/TVWall/KvTVWallDisplayWnd.h>

#include <QtTest>
#include <QtWidgets>
#include <memory>

using Rect = KvGUI::StructScaleRect;
using Wall = UICommonMdl::KvTVWallDisplayWnd;

namespace {

constexpr Rect Whole{0.0, 0.0, 1.0, 1.0, true};
constexpr Rect LeftUpper{0.1, 0.1, 0.4, 0.5, true}; // 300 x 240 pixels at 100, 60
const QPoint OnTitle(140, 72);

/// One wall of 1000 x 600 pixels, shown, with one screen of 2 x 2 cells over all of it.
struct Fixture
{
    explicit Fixture(std::initializer_list<Rect> windows = {})
    {
        wall->resize(1000, 600);
        wall->SetTVWallGridCount(2, 2);
        wall->AddScreen(Whole, QVariant());
        for (const Rect& rect : windows)
            wall->OpenWindow(0, rect, QVariant());
        wall->show();
        QVERIFY(QTest::qWaitForWindowExposed(wall.get()));
    }

    QMdiArea* Screen() const { return wall->findChild<QMdiArea*>(); }
    QWidget* Empty() const { return Screen()->viewport(); }
    QWidget* Window(int window) const { return wall->GetWindowWidget(0, window)->parentWidget(); }
    QRgb PixelAt(const QPoint& at) const { return wall->grab().toImage().pixel(at); }

    std::unique_ptr<Wall> wall = std::make_unique<Wall>();
    TestSupport::WallMouse mouse{wall.get()};
};

/// Windows of a screen from the lowest to the highest, by index.
QList<int> Stacking(const Fixture& f)
{
    QList<int> order;
    const QObjectList children = f.Empty()->children();
    for (QObject* child : children) {
        for (int w = 0; w < f.wall->GetWindowCount(0); ++w) {
            if (f.Window(w) == child)
                order << w;
        }
    }
    return order;
}

KvGUI::StructOSDInfo Overlay(const char* text, bool roll)
{
    KvGUI::StructOSDInfo info;
    info.iLeft = 819;
    info.iTop = 1000;
    info.iRight = 4915;
    info.iBottom = 2000;
    info.bRoll = roll;
    info.strText = text;
    info.iBackG = 120;
    return info;
}

QList<QLabel*> ShownOverlays(const Fixture& f)
{
    QList<QLabel*> labels = f.Empty()->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
    labels.erase(
        std::remove_if(labels.begin(), labels.end(), [](auto* label) { return label->isHidden(); }),
        labels.end());
    return labels;
}

} // namespace

class tst_DisplayWall : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Catches a layout that waits for the first show, for a resize, or for the screens added after
    // SetDeviceType.
    void screensArePlaced()
    {
        Wall wall;
        wall.resize(1000, 600);
        wall.SetTVWallGridCount(2, 2);
        wall.AddScreen({0.0, 0.0, 0.5, 0.5}, QVariant());
        const auto screens = [&wall] { return wall.findChildren<QMdiArea*>(); };
        QCOMPARE(screens().at(0)->geometry(), QRect(QPoint(0, 0), QPoint(495, 295)));
        wall.SetDeviceType(true);
        QCOMPARE(screens().at(0)->geometry(), QRect(QPoint(0, 0), QPoint(499, 299)));
        wall.AddScreen({0.5, 0.0, 0.9, 0.5}, QVariant());
        QCOMPARE(screens().at(1)->geometry(), QRect(QPoint(500, 0), QPoint(895, 295)));
        wall.show();
        wall.resize(500, 300);
        QCOMPARE(screens().at(0)->geometry(), QRect(QPoint(0, 0), QPoint(249, 149)));
    }

    void buttonPictures_data()
    {
        QTest::addColumn<QString>("rule");
        QTest::newRow("image") << QStringLiteral("image: url(%1)");
        QTest::newRow("background") << QStringLiteral("background-image: url(%1)");
        QTest::newRow("icon") << QStringLiteral("qproperty-icon: url(%1)");
        QTest::newRow("text") << QStringLiteral("color: #ff0000; font: bold 60px; qproperty-text: I");
    }

    // Catches a quicker painting of the title's buttons that leaves out the picture of a client's sheet.
    void buttonPictures()
    {
        QFETCH(QString, rule);
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("red.png"));
        QImage red(16, 16, QImage::Format_RGB32);
        red.fill(Qt::red);
        QVERIFY(red.save(file));
        Fixture f({LeftUpper});
        f.wall->setStyleSheet(QStringLiteral("#pWindowCloseBtn { border: none; %1 }")
                                  .arg(QString(rule).replace(QLatin1String("%1"), file)));
        auto* button = f.Window(0)->findChild<QWidget*>(QStringLiteral("pWindowCloseBtn"));
        QCOMPARE(button->grab().toImage().pixelColor(button->rect().center()), QColor(Qt::red));
    }

    void windowsAreNumberedWhenOpened()
    {
        const Fixture f;
        const auto title = [&f](int w) {
            return f.Window(w)->findChild<QLabel*>(QStringLiteral("pWindowTitleText"))->text();
        };
        f.wall->OpenWindow(0, LeftUpper, 10);
        f.wall->SetWindowTitleShow(true);
        f.wall->OpenWindow(0, LeftUpper, 11);
        f.wall->OpenWindow(0, LeftUpper, 12);
        f.wall->SetWindowContentText(0, 2, QStringLiteral("Gate"));
        QCOMPARE(title(0), QString());
        QVERIFY(f.wall->DeleteWindow(0, 0));
        QCOMPARE(title(0), QStringLiteral("Window 2"));
        QCOMPARE(title(1), QStringLiteral("Window 3  Gate"));
        QCOMPARE(f.wall->GetWindowUserData(0, 1), QVariant(12));
        f.wall->OpenWindow(0, LeftUpper, 13);
        QCOMPARE(title(2), QStringLiteral("Window 3"));
        const QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(f.Window(2));
        QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Window 3"));
        QVERIFY(accessible->childCount() > 0); // or its buttons cannot be found
    }

    void zOrder()
    {
        const Fixture f;
        for (int w = 0; w < 4; ++w)
            f.wall->OpenWindow(0, LeftUpper, QVariant());
        for (int w = 0; w < 4; ++w)
            f.wall->SetWindowZValue(0, w, w + 1, false);
        QCOMPARE(Stacking(f), (QList<int>{0, 1, 2, 3})); // only numbers so far
        f.wall->SetWindowZValue(0, 1, 5, true);
        QCOMPARE(f.wall->GetWindowZValue(0, 0), 1);
        QCOMPARE(f.wall->GetWindowZValue(0, 2), 2);
        QCOMPARE(f.wall->GetWindowZValue(0, 3), 3);
        QCOMPARE(f.wall->GetMaxWindowZValue(0), 5);
        QCOMPARE(Stacking(f), (QList<int>{0, 2, 3, 1}));
        // Of the two windows with 5 only the later one takes part; the lowest of the list is left in place.
        f.wall->SetSelectedScreenIndex(0); // whose frame stays above
        f.wall->SetWindowZValue(0, 0, 5, true);
        QCOMPARE(f.wall->GetWindowZValue(0, 1), 4);
        QCOMPARE(Stacking(f), (QList<int>{2, 3, 1, 0}));
        QCOMPARE(f.wall->GetMaxWindowZValue(0), 5);
    }

    // Catches the conduct of MDI windows: closing by key or call while the list still holds the window,
    // raising on click and activation, and window states.
    void nothingOfTheBaseClassActs()
    {
        Fixture f({LeftUpper, {0.2, 0.2, 0.5, 0.6, false}});
        auto* window = qobject_cast<QMdiSubWindow*>(f.Window(0));
        QVERIFY(window != nullptr);
        window->setFocus();
        for (const int key : {Qt::Key_F4, Qt::Key_W, Qt::Key_Tab, Qt::Key_Backtab})
            QTest::keyClick(window, Qt::Key(key), Qt::ControlModifier);
        QVERIFY(!window->close());
        window->showMaximized();
        window->showNormal();
        f.mouse.Click(OnTitle);
        f.wall->GetWindowWidget(0, 0)->setFocus();
        f.Screen()->activateNextSubWindow();
        f.Screen()->closeAllSubWindows();
        QApplication::processEvents();
        QVERIFY(window->isVisible());
        QCOMPARE(Stacking(f), (QList<int>{0, 1}));
        QCOMPARE(window->geometry(), QRect(100, 60, 300, 240));
        QVERIFY(window->windowFlags() & Qt::FramelessWindowHint);
        QVERIFY(window->windowFlags() & Qt::CustomizeWindowHint);
        QCOMPARE(f.Empty()->size(), f.Screen()->size()); // no scroll bar takes room
    }

    void spaceSelects()
    {
        const Fixture f({LeftUpper});
        f.wall->SetWindowSelectionMode(Wall::MultiSelection);
        f.Window(0)->setFocus(Qt::TabFocusReason);
        QTest::keyClick(f.Window(0), Qt::Key_Space);
        QCOMPARE(f.wall->GetSelectedWindowIndexs(), QList<int>{0});
        QTest::keyClick(f.Window(0), Qt::Key_Space);
        QVERIFY(f.wall->GetSelectedWindowIndexs().isEmpty());
        f.wall->SetWindowSelectionMode(Wall::NoSelection);
        QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, {});
        QCoreApplication::sendEvent(f.Window(0), &space);
        QVERIFY(!space.isAccepted()); // it is the client's
    }

    // Catches moves over a video that a client no longer hears of, though the video tracks the mouse, and
    // those over the title, which are nobody's.
    void movesWithoutAButton()
    {
        Fixture f({LeftUpper});
        f.wall->GetWindowWidget(0, 0)->setMouseTracking(true);
        f.mouse.Drag(OnTitle, OnTitle + QPoint(50, 30));
        int moves = 0;
        connect(f.wall.get(), &Wall::SignalWindowEvent, [&moves] { ++moves; });
        f.mouse.Move(OnTitle + QPoint(60, 30));
        QCOMPARE(moves, 0);
        f.mouse.Move(OnTitle + QPoint(60, 130));
        QCOMPARE(moves, 1);
    }

    void overlaysAreShown()
    {
        const Fixture f({Whole});
        std::vector<KvGUI::StructOSDInfo> infos;
        for (int i = 0; i < 10; ++i) {
            infos.push_back(Overlay("<b>plain</b>", false));
            infos.push_back(Overlay("rolling", true));
        }
        infos[0].strFontName = "simHei";
        QVERIFY(f.wall->SetScreenOSDInfo(0, infos));
        QCOMPARE(ShownOverlays(f).size(), 16); // the first eight of each kind
        QLabel* plain = ShownOverlays(f).first();
        QCOMPARE(plain->geometry(), QRect(99, 73, 500, 78));
        QCOMPARE(plain->textFormat(), Qt::PlainText);
        QVERIFY(plain->font().bold() && plain->objectName().isEmpty());
        QCOMPARE(plain->font().pixelSize(), 73);
        QCOMPARE(ShownOverlays(f).at(1)->objectName(), QStringLiteral("SongStyle"));
        // Windows opened and raised later stay below the texts.
        f.wall->OpenWindow(0, Whole, QVariant());
        QCOMPARE(f.Empty()->childAt(300, 100)->inherits("QLabel"), true);
        QList<int> labels;
        connect(f.wall.get(), &Wall::SignalLabelEvent, f.wall.get(), [&](int, int label, QEvent*) {
            labels << label;
        });
        QTest::mouseClick(plain, Qt::LeftButton);
        QTest::mouseClick(ShownOverlays(f).last(), Qt::LeftButton);
        QCOMPARE(labels, (QList<int>{8, 8, 7, 7}));
        infos.clear();
        f.wall->SetScreenOSDInfo(0, infos);
        QTest::keyClick(plain, Qt::Key_A); // an event still under way to a removed overlay
        QCOMPARE(labels.size(), 4);
    }

    // Catches timers that run on for texts that nobody sees, and texts that stand still when they are back.
    void unseenOverlaysRest()
    {
        const Fixture f;
        std::vector<KvGUI::StructOSDInfo> infos{Overlay("rolling text", true)};
        f.wall->SetScreenOSDInfo(0, infos);
        const auto timers = [&f] {
            int count = 0;
            const auto objects = f.wall->findChildren<QObject*>();
            for (QObject* object : objects) {
                if (object->inherits("UICommonMdl::OverlayLabels"))
                    count += QAbstractEventDispatcher::instance()->registeredTimers(object).size();
            }
            return count;
        };
        QTRY_COMPARE(timers(), 1);
        f.wall->hide();
        QTRY_COMPARE(timers(), 0);
        f.wall->show();
        QTRY_COMPARE(timers(), 1);
        QWidget cover(f.wall.get());
        cover.setAutoFillBackground(true);
        cover.resize(f.wall->size());
        cover.show();
        QTRY_COMPARE(timers(), 0);
        cover.hide();
        QTRY_COMPARE(timers(), 1);
    }

    void backgroundHidesOverlays()
    {
        const Fixture f;
        std::vector<KvGUI::StructOSDInfo> infos{Overlay("a", false), Overlay("b", true)};
        f.wall->SetScreenOSDInfo(0, infos);
        QVERIFY(f.wall->SetScreenWindowBackgroudColor(0, QColor(10, 90, 20), true));
        QCOMPARE(f.PixelAt({50, 500}), qRgb(10, 90, 20));
        QCOMPARE(ShownOverlays(f).size(), 2);
        f.wall->SetScreenWindowBackgroudColor(0, QColor(10, 90, 20), false);
        QCOMPARE(ShownOverlays(f).size(), 0);
        QCOMPARE(f.PixelAt({50, 500}), qRgb(33, 34, 37));
        f.wall->SetScreenWindowBackgroudColor(0, QColor(10, 90, 20), true);
        QCOMPARE(ShownOverlays(f).size(), 0); // only new records show them again
    }

    void baseMapIsPainted()
    {
        QTemporaryDir folder;
        QImage map(40, 20, QImage::Format_RGB32);
        map.fill(QColor(200, 30, 40));
        QVERIFY(map.save(folder.filePath(QStringLiteral("site.jpg")), "JPG", 100));
        const Fixture f;
        const std::string raw = folder.filePath(QStringLiteral("site.yuv")).toStdString();
        QVERIFY(f.wall->SetScreenBaseMapShow(0, raw, true));
        QVERIFY(qAbs(qRed(f.PixelAt({50, 500})) - 200) < 6);
        f.wall->SetScreenBaseMapShow(0, raw, false);
        QCOMPARE(f.PixelAt({50, 500}), qRgb(33, 34, 37));
        for (const char* nothing : {"/no/such/file.png", ""}) {
            f.wall->SetScreenBaseMapShow(0, nothing, true);
            QCOMPARE(f.PixelAt({50, 500}), qRgb(33, 34, 37));
        }
    }

    void paintedColours()
    {
        const Fixture f;
        f.wall->OpenWindow(0, Whole, QVariant()); // covers the whole screen
        f.wall->SetSelectedScreenIndex(0);
        QCOMPARE(f.PixelAt({500, 0}), qRgb(219, 221, 225)); // and not the selected screen's frame
        f.wall->DeleteWindow(0, 0);
        const QImage painted = f.wall->grab().toImage();
        int dashes = 0; // on the line between the two columns of cells
        for (int y = 10; y < 290; ++y)
            dashes += painted.pixel(500, y) != qRgb(33, 34, 37);
        QVERIFY(dashes > 70 && dashes < 210);
    }
};

STRICT_TEST_MAIN(tst_DisplayWall)
#include "tst_displaywall.moc"
