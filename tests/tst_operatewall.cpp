// What the operate wall adds to the walls that it holds: modes, defaults, zoom and overview.

#include "support/StrictMain.h"
#include "support/WallDefaults.h"
#include "support/WallMouse.h"

#include <Platform/BasicUIComponents/KvSkin.h>
#include <UI/TVWall/KvTVWallOperateWnd.h>

#include <QtTest>
#include <QtWidgets>
#include <cmath>
#include <functional>
#include <memory>

using Rect = KvGUI::StructScaleRect;
using TestSupport::WallMouse;
using Wall = UICommonMdl::KvTVWallOperateWnd;

namespace {

constexpr Rect Whole{0.0, 0.0, 1.0, 1.0, true};
constexpr int NoMode = 7;

/// The child of a class that the library keeps to itself; null when there is none.
QWidget* Child(const QWidget& wall, const char* className)
{
    const QWidgetList children = wall.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* child : children) {
        if (child->inherits(className))
            return child;
    }
    return nullptr;
}

QWidget* DisplayWall(const QWidget& wall) { return Child(wall, "UICommonMdl::KvTVWallDisplayWnd"); }
QWidget* NormalWall(const QWidget& wall) { return Child(wall, "UICommonMdl::KvTVWallNormalWnd"); }
QWidget* EagleEye(const QWidget& wall) { return Child(wall, "UICommonMdl::KvTVWallDisplayEagleEye"); }

/// A display wall of 800 x 600 pixels, shown, with one screen over all of it.
struct Zoomable
{
    Zoomable()
    {
        wall.resize(800, 600);
        wall.SetShowMode(Wall::DisplayMode);
        wall.SetTVWallGridCount(2, 2);
        wall.AddScreen(Whole, QVariant());
        wall.show();
        QVERIFY(QTest::qWaitForWindowExposed(&wall));
    }

    QRect Geometry() const { return DisplayWall(wall)->geometry(); }
    QWidget* Eye() const { return EagleEye(wall); }
    QPoint CornerButton() const { return Eye()->geometry().bottomRight() - QPoint(4, 4); }

    Wall wall;
    WallMouse mouse{&wall};
};

} // namespace

class tst_OperateWall : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutAWall_data()
    {
        QTest::addColumn<QVector<int>>("modes");
        QTest::newRow("no mode set") << QVector<int>{};
        QTest::newRow("unknown mode") << QVector<int>{NoMode};
        QTest::newRow("unknown mode with a display wall") << QVector<int>{Wall::DisplayMode, -1};
        QTest::newRow("unknown mode with a normal wall") << QVector<int>{Wall::NormalMode, 2};
    }

    // Catches calls into a wall that is not there, or into one of a mode that is not chosen, and wrong
    // defaults.
    void withoutAWall()
    {
        QFETCH(QVector<int>, modes);
        Wall wall;
        wall.resize(800, 600);
        for (const int mode : modes) {
            wall.SetShowMode(mode);
            wall.SetTVWallGridCount(2, 2); // of the first one
            wall.AddScreen(Whole, QVariant());
            wall.OpenWindow(0, Whole, 1);
        }
        wall.show();
        wall.SetTVWallGridCount(3, 3);
        wall.SetWindowTitleShow(true);
        wall.SetDeviceType(true);
        wall.SetPtzFrameSelectedEnable(true);
        wall.SetWindowSelectionMode(Wall::MultiSelection);
        wall.RecoverEagleEye();
        wall.SetAudioBtnVisible(false);
        wall.DeleteAllWindows();
        TestSupport::CompareScreenDefaults(wall, 0);
        TestSupport::CompareWindowDefaults(wall, 0, 0);
        QCOMPARE(wall.GetMaxWindowZValue(0), 0);
        QCOMPARE(wall.GetRowCount(), 0);
        QCOMPARE(wall.GetColumnCount(), 0);
        QCOMPARE(wall.GetWindowScalePrecision(), modes.isEmpty() ? 0.002 : 0.0);
        QCOMPARE(wall.GetWindowSelectionMode(), Wall::NoSelection);
        QCOMPARE(wall.GetTVWallRect(), QRect());
        QCOMPARE(wall.AddScreen(Whole, QVariant()), -1);
        QCOMPARE(wall.AddScreen(Whole, QIcon(), QString(), QVariant()), -1);
        QVERIFY(!wall.DeleteAllScreen());
        QCOMPARE(wall.GetScreenCount(), 0);
        wall.resize(400, 300); // reaches no wall either
        if (!modes.isEmpty()) {
            wall.SetShowMode(modes.first()); // the same wall, untouched, and laid out
            QCOMPARE(wall.GetRowCount(), modes.first() == NoMode ? 0 : 2);
            QCOMPARE(wall.GetWindowUserData(0, 0).toInt(), modes.first() == NoMode ? 0 : 1);
            QCOMPARE(wall.GetTVWallRect().size(), modes.first() == NoMode ? QSize(0, 0) : QSize(400, 300));
        }
    }

    // Catches an operation that goes to the wrong family, or drops or invents what only one of them has.
    void familiesDiffer()
    {
        for (const int mode : {Wall::NormalMode, Wall::DisplayMode}) {
            const bool display = mode == Wall::DisplayMode;
            Wall wall;
            wall.resize(800, 600);
            wall.SetShowMode(mode);
            wall.SetTVWallGridCount(2, 2);
            wall.AddScreen(Whole, QVariant());
            for (int w = 0; w < 3; ++w)
                wall.OpenWindow(0, Whole, QVariant());
            QCOMPARE(wall.GetWindowScalePrecision(), display ? 0.001 : 0.002);
            QCOMPARE(wall.GetTVWallRect(), QRect(0, 0, 800, 600));
            wall.SetScreenFreeMode(0, false);
            QCOMPARE(wall.IsScreenFreeMode(0), display);
            QVERIFY(wall.IsScreenFreeMode(9));
            QCOMPARE(wall.SetScreenBaseMap(0, "x.png", true), display);
            QCOMPARE(wall.SetScreenWindowColor(0, Qt::red, true), display);
            wall.SetSelectedScreenIndex(0);
            QCOMPARE(wall.GetSelectedScreenIndex(), display ? -1 : 0);
            // Only the display family closes the gap that a moved window leaves.
            for (int w = 0; w < 3; ++w)
                wall.SetWindowZValue(0, w, w + 1, false);
            QVERIFY(wall.SetWindowZValue(0, 0, 9, true));
            QCOMPARE(wall.GetWindowZValue(0, 2), display ? 2 : 3);
            QCOMPARE(wall.GetMaxWindowZValue(0), 9);
            QCOMPARE(wall.GetMaxWindowZValue(1), 1);
            QVERIFY(wall.SetWindowZValue(0, 0, std::numeric_limits<int>::max(), false));
            QCOMPARE(wall.GetWindowZValue(0, 0), std::numeric_limits<int>::max());
        }
    }

    // Catches a wall that survives its mode, and one that is made anew although its mode stays.
    void familiesAreSwitched()
    {
        Wall wall;
        wall.resize(800, 600);
        wall.show();
        wall.SetShowMode(Wall::DisplayMode);
        const QPointer<QWidget> display = DisplayWall(wall);
        const QPointer<QWidget> eye = EagleEye(wall);
        QVERIFY(display && eye);
        QVERIFY(display->isVisible() && eye->isVisible());
        wall.SetTVWallGridCount(1, 1);
        wall.AddScreen(Whole, QVariant());
        wall.SetShowMode(Wall::DisplayMode);
        QCOMPARE(wall.GetScreenCount(), 1);
        wall.SetShowMode(Wall::NormalMode);
        QVERIFY(!display && !eye);
        QVERIFY(NormalWall(wall)->isVisible());
        QCOMPARE(wall.GetScreenCount(), 0);
        QCOMPARE(wall.GetRowCount(), 0);
        wall.SetShowMode(Wall::DisplayMode);
        QVERIFY(!NormalWall(wall));
        QVERIFY(DisplayWall(wall)->isVisible());
    }

    // Catches a wall that keeps the size in which widgets are born, or waits for a resize that never comes.
    void wallFillsTheWidget()
    {
        for (const int variant : {0, 1, 2, 3}) {
            const int mode = variant / 2 == 0 ? Wall::NormalMode : Wall::DisplayMode;
            const bool shownFirst = variant % 2 == 0;
            Wall wall;
            wall.resize(703, 411);
            if (!shownFirst)
                wall.SetShowMode(mode);
            wall.show();
            QVERIFY(QTest::qWaitForWindowExposed(&wall));
            if (shownFirst)
                wall.SetShowMode(mode);
            QCOMPARE(wall.GetTVWallRect(), QRect(0, 0, 703, 411));
            wall.resize(333, 777);
            QTRY_COMPARE(wall.GetTVWallRect(), QRect(0, 0, 333, 777));
        }
    }

    // Catches a mode set by what the client kept in a wall, or by who hears of the focus that the overview
    // loses, as that wall goes, undone by the rest of the switch; and a wall that goes twice because the
    // operate wall is deleted meanwhile.
    void changedByWhatGoes()
    {
        for (const int variant : {0, 1, 2, 3}) {
            const int mode = variant < 3 ? Wall::DisplayMode : Wall::NormalMode;
            QWidget client;
            const QPointer<Wall> wall = new Wall(&client);
            wall->SetShowMode(mode);
            wall->SetTVWallGridCount(1, 1);
            wall->AddScreen(Whole, QVariant());
            wall->OpenWindow(0, Whole, QVariant());
            client.show();
            QVERIFY(QTest::qWaitForWindowExposed(&client));
            auto* player = new QWidget(wall->GetWindowWidget(0, 0));
            const auto change = [&] { variant < 2 ? wall->SetShowMode(mode) : delete wall.data(); };
            if (variant > 0)
                connect(player, &QObject::destroyed, &client, change);
            QWidget* const eye = EagleEye(*wall);
            QApplication::setActiveWindow(&client);
            if (eye != nullptr)
                eye->setFocus();
            connect(qApp, &QApplication::focusChanged, player, [&](QWidget* old) {
                if (variant == 0 && old == eye)
                    change();
            });
            wall->SetShowMode(Wall::NormalMode + Wall::DisplayMode - mode);
            if (variant < 2)
                QVERIFY(!NormalWall(*wall) && DisplayWall(*wall) && EagleEye(*wall));
            else
                QVERIFY(!wall && client.findChildren<QWidget*>().isEmpty());
        }
    }

    // Catches a crash after a client has deleted what it found inside, and an overview of a wall that is
    // gone.
    void innerWidgetsMayBeDeleted()
    {
        Zoomable z;
        delete z.Eye();
        z.mouse.Wheel({0, 0}, 120);
        z.wall.resize(400, 300);
        QTRY_COMPARE(z.Geometry().size(), QSize(600, 450));
        z.wall.SetShowMode(Wall::DisplayMode);
        QVERIFY(z.Eye() != nullptr);
        delete DisplayWall(z.wall);
        z.Eye()->grab();
        QTest::keyClick(z.Eye(), Qt::Key_Right);
        const QPoint place = z.Eye()->pos();
        QTest::keyClick(z.Eye(), Qt::Key_Space);
        QCOMPARE(z.Eye()->pos(), place); // there is no wall to keep the corner of
        QCOMPARE(z.wall.GetScreenCount(), 0);
        z.wall.SetShowMode(Wall::DisplayMode);
        const QImage empty = z.Eye()->grab().toImage();
        z.wall.SetTVWallGridCount(1, 1);
        z.wall.AddScreen(Whole, QVariant());
        QVERIFY(z.Eye()->grab().toImage() != empty);
    }

    // Catches the end of a wall that assistive technology does not learn of: what it knows of the dead widget
    // would answer for the next one at the same address.
    void endIsKnownToAssistiveTechnology()
    {
        for (const int mode : {Wall::NormalMode, Wall::DisplayMode}) {
            Zoomable z;
            z.wall.SetShowMode(mode);
            z.wall.SetTVWallGridCount(2, 2);
            z.wall.AddScreen(Whole, QVariant());
            QVector<QAccessible::Id> known;
            const QWidgetList parts = z.wall.findChildren<QWidget*>();
            for (QWidget* part : parts)
                known << QAccessible::uniqueId(QAccessible::queryAccessibleInterface(part));
            z.wall.SetShowMode(mode == Wall::NormalMode ? Wall::DisplayMode : Wall::NormalMode);
            const QWidgetList left = z.wall.findChildren<QWidget*>();
            for (int i = 0; i < parts.size(); ++i) {
                QAccessibleInterface* face = QAccessible::accessibleInterface(known.at(i));
                QVERIFY(face == nullptr || left.contains(qobject_cast<QWidget*>(face->object())));
            }
        }
    }

    void wheelZooms()
    {
        Zoomable z;
        z.mouse.Wheel({400, 300}, 120);
        QCOMPARE(z.Geometry(), QRect(-199, -149, 1200, 900)); // stored as -200, -150
        QCOMPARE(z.wall.GetTVWallRect(), QRect(0, 0, 1200, 900));
        z.mouse.Wheel({400, 300}, 960); // one step, however far it turned
        QCOMPARE(z.Geometry().size(), QSize(1800, 1350));
        z.mouse.Wheel({0, 0}, -120);
        QCOMPARE(z.Geometry().size(), QSize(1200, 900));
        z.mouse.Wheel({400, 300}, 0); // sideways: delta below 1
        QCOMPARE(z.Geometry(), QRect(0, 0, 800, 600));
        for (int i = 0; i < 3; ++i)
            z.mouse.Wheel({799, 300}, 120);
        QCOMPARE(z.Geometry().size(), QSize(2700, 2025));
        z.wall.resize(400, 300);
        QTRY_COMPARE(z.Geometry().size(), QSize(1350, 1013)); // 1012.5
        QVERIFY(z.Geometry().contains(z.wall.rect())); // its right edge was outside the new limits
        QCOMPARE(z.Eye()->geometry().bottomRight(), QPoint(399, 299));
    }

    void nothingWithoutASize()
    {
        Wall wall;
        wall.SetShowMode(Wall::DisplayMode);
        wall.resize(0, 0);
        wall.SetShowMode(Wall::DisplayMode);
        QMetaObject::invokeMethod(&wall, "OnWheelEvent", Q_ARG(int, 120), Q_ARG(QPoint, QPoint(5, 5)));
        QMetaObject::invokeMethod(
            &wall, "OnEagleEyeLocated", Q_ARG(float, 0.5F), Q_ARG(float, float(qQNaN())));
        wall.resize(800, 600);
        wall.show();
        QVERIFY(QTest::qWaitForWindowExposed(&wall));
        QCOMPARE(DisplayWall(wall)->geometry(), QRect(0, 0, 800, 600)); // no offset became NaN
        QCOMPARE(EagleEye(wall)->geometry().bottomRight(), QPoint(799, 599));
    }

    // Catches a view that is not centred on the cursor, and a drag that stops at the overview's edge.
    void overviewPans()
    {
        Zoomable z;
        for (int i = 0; i < 4; ++i)
            z.mouse.Wheel({400, 300}, 120);
        const QSizeF wall = z.Geometry().size();
        const QRect miniature = z.Eye()->geometry().adjusted(4, 4, -4, -4);
        const auto centre = [&] {
            const QPointF middle = QPointF(400, 300) - z.Geometry().topLeft();
            return QPointF(middle.x() / wall.width(), middle.y() / wall.height());
        };
        const auto at = [&](double x, double y) {
            return miniature.topLeft() + QPointF(miniature.width() * x, miniature.height() * y).toPoint();
        };
        z.mouse.Click(at(0.25, 0.5));
        QVERIFY(std::abs(centre().x() - 0.25) < 0.01 && std::abs(centre().y() - 0.5) < 0.01);
        z.mouse.Press(at(0.25, 0.5));
        z.mouse.Move(at(0.4, 0.6));
        QVERIFY(std::abs(centre().x() - 0.4) < 0.01 && std::abs(centre().y() - 0.6) < 0.01);
        z.mouse.Move({-500, -500});
        QCOMPARE(z.Geometry().topLeft(), QPoint(0, 0));
        z.mouse.Move(z.CornerButton());
        z.mouse.Release(z.CornerButton()); // ends on the button, where it did not begin
        QCOMPARE(z.Geometry().bottomRight(), QPoint(800, 600)); // the pixel of a negative offset
        QCOMPARE(z.Eye()->size(), miniature.size() + QSize(8, 8));
        z.mouse.Move(at(0.1, 0.1)); // no button is held
        QCOMPARE(z.Geometry().bottomRight(), QPoint(800, 600));
        // The wall below hears nothing of it.
        QCOMPARE(z.wall.GetSelectedScreenIndex(), -1);
    }

    void overviewCollapses()
    {
        Zoomable z;
        z.mouse.Wheel({400, 300}, 120);
        const QRect expanded = z.Eye()->geometry();
        const QRect wall = z.Geometry();
        QCOMPARE(expanded.bottomRight(), QPoint(799, 599));
        z.mouse.Press(z.CornerButton());
        z.mouse.Move({10, 10}); // thinks better of it
        z.mouse.Release({10, 10});
        QCOMPARE(z.Eye()->geometry(), expanded);
        QCOMPARE(z.Geometry(), wall);
        z.mouse.Click(z.CornerButton());
        const QRect collapsed = z.Eye()->geometry();
        QVERIFY(collapsed.width() < expanded.width() / 2);
        QCOMPARE(collapsed.bottomRight(), QPoint(799, 599));
        for (const QPoint& inside : {QPoint(4, 4), QPoint(collapsed.width() / 2, collapsed.height() / 2)}) {
            z.mouse.Press(collapsed.bottomRight() - inside); // on the button, and on its smooth edge
            z.mouse.Move({10, 10});
            z.mouse.Release({10, 10});
            QCOMPARE(z.Eye()->geometry(), collapsed);
            QCOMPARE(z.Geometry(), wall);
        }
        z.mouse.Move(z.CornerButton());
        QCOMPARE(z.Eye()->toolTip(), QStringLiteral("Show the overview"));
        // Beside the button's triangle lies the wall.
        z.mouse.Click(collapsed.topLeft() + QPoint(3, 3));
        QCOMPARE(z.Eye()->geometry(), collapsed);
        QCOMPARE(z.wall.GetSelectedScreenIndex(), 0);
        z.mouse.Press({300, 300});
        z.mouse.Release(z.CornerButton());
        QCOMPARE(z.Eye()->geometry(), collapsed);
        z.mouse.Click(z.CornerButton());
        QCOMPARE(z.Eye()->geometry(), expanded);
        QCOMPARE(z.Geometry(), wall); // no click has panned
    }

    void overviewByKeys()
    {
        Zoomable z;
        for (int i = 0; i < 2; ++i)
            z.mouse.Wheel({0, 0}, 120);
        QApplication::setActiveWindow(&z.wall);
        const QImage plain = z.Eye()->grab().toImage();
        z.Eye()->clearFocus();
        z.Eye()->setFocus(Qt::BacktabFocusReason);
        QVERIFY(z.Eye()->grab().toImage() != plain); // the focus is marked
        QTest::keyClick(z.Eye(), Qt::Key_Right);
        QTest::keyClick(z.Eye(), Qt::Key_Down);
        QCOMPARE(z.Geometry().topLeft(), QPoint(-199, -149)); // a quarter of the view
        QTest::keyClick(z.Eye(), Qt::Key_Left);
        QTest::keyClick(z.Eye(), Qt::Key_Up);
        QCOMPARE(z.Geometry().topLeft(), QPoint(0, 0));
        const QSize expanded = z.Eye()->size();
        QTest::keyClick(z.Eye(), Qt::Key_Space);
        QVERIFY(z.Eye()->size() != expanded);
        QTest::keyClick(z.Eye(), Qt::Key_Right);
        QCOMPARE(z.Geometry().topLeft(), QPoint(0, 0)); // nobody sees where to
        QTest::keyClick(z.Eye(), Qt::Key_Return);
        QCOMPARE(z.Eye()->size(), expanded);
        QVERIFY(!z.Eye()->accessibleName().isEmpty());
        const QPoint corner = z.Eye()->pos();
        z.wall.SetShowMode(NoMode); // which has no zoom
        QTest::keyClick(z.Eye(), Qt::Key_Space);
        QCOMPARE(z.Eye()->pos(), corner);
    }

    // Catches pictures that stay those of the old skin, a size that depends on the screen's density, and a
    // division by the size of an overview without pictures.
    void overviewFollowsTheSkin()
    {
        const Zoomable z;
        const QRect place = z.Eye()->geometry();
        const QImage black = z.Eye()->grab().toImage();
        KvGUI::SetSkinVersion(QStringLiteral("White"));
        const QImage white = z.Eye()->grab().toImage();
        KvGUI::SetSkinVersion(QStringLiteral("Nowhere")); // has no pictures
        const QImage nowhere = z.Eye()->grab().toImage();
        KvGUI::SetSkinVersion(QStringLiteral("Black"));
        QVERIFY(qGray(white.pixel(2, 60)) > qGray(black.pixel(2, 60)) + 100);
        KvGUI::SetSkinVersion(QStringLiteral("Nowhere"));
        Zoomable none;
        none.mouse.Wheel({100, 100}, 120);
        const QRect zoomed = none.Geometry();
        QTest::mouseClick(none.Eye(), Qt::LeftButton);
        KvGUI::SetSkinVersion(QStringLiteral("Black"));
        QCOMPARE(none.Geometry(), zoomed);
        QCOMPARE(nowhere.size(), white.size());
        QCOMPARE(z.Eye()->geometry(), place);
        QVERIFY(z.Eye()->grab().toImage() == black);
    }

    // Catches a miniature that shows what the wall was, whoever changed it.
    void miniatureIsLive()
    {
        const QVector<QPair<const char*, std::function<void(Zoomable&)>>> changes = {
            {"opened",
             [](Zoomable& z) {
                 z.wall.OpenWindow(0, {0.7, 0.1, 0.9, 0.4, true}, QVariant());
             }},
            {"deleted", [](Zoomable& z) { z.wall.DeleteWindow(0, 0); }},
            {"moved by call",
             [](Zoomable& z) {
                 z.wall.SetWindowScale(0, 0, {0.0, 0.6, 0.3, 1.0, false});
             }},
            {"moved by hand", [](Zoomable& z) { z.mouse.Drag(QPoint(260, 192), QPoint(400, 300)); }},
            {"maximised",
             [](Zoomable& z) {
                 const QWidget* window = z.wall.GetWindowWidget(0, 0)->parentWidget();
                 QTest::mouseClick(
                     window->findChild<QWidget*>(QStringLiteral("pWindowMaxBtn")), Qt::LeftButton);
             }},
            {"selected", [](Zoomable& z) { z.wall.SetSelectedWindowIndexs(0, 1, true); }},
            {"screen selected", [](Zoomable& z) { z.mouse.Click(QPoint(600, 390)); }},
            {"screens removed", [](Zoomable& z) { z.wall.DeleteAllScreen(); }},
            {"screen added",
             [](Zoomable& z) {
                 z.wall.AddScreen({0.5, 0.5, 1.0, 1.0}, QVariant());
             }},
            {"raised", [](Zoomable& z) { z.wall.SetWindowZValue(0, 0, 9, true); }},
            {"zoomed", [](Zoomable& z) { z.mouse.Wheel(QPoint(100, 100), 120); }},
        };
        for (const auto& change : changes) {
            Zoomable z;
            z.wall.OpenWindow(0, {0.1, 0.1, 0.4, 0.5, false}, QVariant()); // whose changes are not reported
            z.wall.OpenWindow(0, {0.3, 0.3, 0.6, 0.6, true}, QVariant());
            z.wall.SetWindowZValue(0, 0, 1, true);
            z.wall.SetWindowZValue(0, 1, 2, true);
            z.wall.AddScreen({0.6, 0.6, 0.9, 0.9}, QVariant());
            const QImage before = z.Eye()->grab().toImage();
            change.second(z);
            QVERIFY2(z.Eye()->grab().toImage() != before, change.first);
        }
    }
};

STRICT_TEST_MAIN(tst_OperateWall)
#include "tst_operatewall.moc"
