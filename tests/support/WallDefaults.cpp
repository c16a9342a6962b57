#include "WallDefaults.h"

#include <QTest>

namespace TestSupport {

namespace {

constexpr KvGUI::StructScaleRect Whole{0.0, 0.0, 1.0, 1.0, true};

} // namespace

void CompareWindowDefaults(UICommonMdl::KvTVWallOperateWnd& wall, int screen, int window)
{
    const QString text = QStringLiteral("x");
    KvGUI::StructScaleRect rect{5.0, 6.0, 7.0, 8.0, true};
    wall.SetWindowUserData(screen, window, 5);
    wall.SetSelectedWindowIndexs(screen, window, true);
    QVERIFY(!wall.DeleteWindow(screen, window));
    QVERIFY(!wall.SetWindowScale(screen, window, Whole));
    QVERIFY(!wall.GetWindowScale(screen, window, rect));
    QCOMPARE(rect.dLeft + rect.dTop + rect.dRight + rect.dBottom, 26.0); // left alone
    QVERIFY(!wall.SetWindowZValue(screen, window, 1, true));
    QCOMPARE(wall.GetWindowZValue(screen, window), -1);
    QVERIFY(!wall.GetWindowUserData(screen, window).isValid());
    QVERIFY(!wall.SetWindowContentText(screen, window, text));
    QVERIFY(!wall.SetWindowVolumeBtn(screen, window, true));
    QVERIFY(!wall.GetWindowVolumeBtnStatus(screen, window));
    QCOMPARE(wall.GetWindowWidget(screen, window), nullptr);
    QVERIFY(!wall.DeleteWindowWidget(screen, window));
    QVERIFY(!wall.SetWindowVideoWidgetText(screen, window, text));
    QVERIFY(!wall.SetWindowUpdateEnable(screen, window, false));
}

void CompareScreenDefaults(UICommonMdl::KvTVWallOperateWnd& wall, int screen)
{
    const QString text = QStringLiteral("x");
    KvGUI::StructScaleRect rect = Whole;
    std::vector<KvGUI::StructOSDInfo> infos(1);
    wall.SetScreenUserData(screen, 5);
    wall.SetScreenFreeMode(screen, false);
    wall.SetSelectedScreenIndex(screen);
    wall.DeleteAllWindows(screen);
    QCOMPARE(wall.OpenWindow(screen, Whole, QVariant()), -1);
    QCOMPARE(wall.GetWindowCount(screen), 0);
    QVERIFY(wall.GetAllWindowIndexs(screen).isEmpty());
    QVERIFY(!wall.GetScreenScale(screen, rect));
    QVERIFY(!wall.SetScreenTitle(screen, text));
    QVERIFY(!wall.SetScreenContentText(screen, text));
    QVERIFY(!wall.SetScreenOSDInfo(screen, infos));
    QVERIFY(!wall.SetScreenWindowColor(screen, Qt::red, true));
    QVERIFY(!wall.SetScreenBaseMap(screen, "x", true));
    QVERIFY(!wall.GetScreenUserData(screen).isValid());
    QVERIFY(wall.IsScreenFreeMode(screen));
    QCOMPARE(wall.GetSelectedScreenIndex(), -1);
    QVERIFY(wall.GetSelectedWindowIndexs().isEmpty());
    QVERIFY(wall.GetUnSelectedWindowIndexs().isEmpty());
}

} // namespace TestSupport
