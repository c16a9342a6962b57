// Clients that delete the whole wall in a slot of its signals, while Qt is still handling the event that the
// signal came from. Events go in where the window system puts them: into the native window.

#include "support/StrictMain.h"

#include <UI/TVWall/KvTVWallDisplayWnd.h>
#include <UI/TVWall/KvTVWallNormalWnd.h>

#include <QApplication>
#include <QDragEnterEvent>
#include <QLabel>
#include <QMimeData>
#include <QPointer>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QWindow>
#include <QtTest/qtestspontaneevent.h>
#include <functional>

using UICommonMdl::KvTVWallDisplayWnd;
using UICommonMdl::KvTVWallNormalWnd;

namespace {

const QPoint OnTitle(120, 112);
const QPoint OnVideo(160, 200);
const QPoint OnEmpty(600, 500);
const QPoint OnOverlay(820, 30);

void SendDragEnter(QWindow* window, const QPoint& pos)
{
    QMimeData data;
    QDragEnterEvent enter(pos, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window, &enter);
    QDragMoveEvent move(pos + QPoint(3, 3), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window, &move);
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(window, &leave);
}

void SendWheel(QWindow* window, const QPoint& pos)
{
    QWheelEvent turn(
        pos, window->mapToGlobal(pos), {}, {0, 120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&turn); // Qt passes an event made by a program to no parent
    qApp->notify(window, &turn);
}

/// What an operator does with the native window of a wall of 1000 x 600 pixels.
const QMap<QString, std::function<void(QWindow*)>> Actions = {
    {QStringLiteral("right press on a title"),
     [](QWindow* w) { QTest::mouseClick(w, Qt::RightButton, {}, OnTitle); }},
    {QStringLiteral("right press on a video"),
     [](QWindow* w) { QTest::mouseClick(w, Qt::RightButton, {}, OnVideo); }},
    {QStringLiteral("right press on an empty part"),
     [](QWindow* w) { QTest::mouseClick(w, Qt::RightButton, {}, OnEmpty); }},
    {QStringLiteral("left press on a video"),
     [](QWindow* w) { QTest::mouseClick(w, Qt::LeftButton, {}, OnVideo); }},
    {QStringLiteral("left press on an empty part"),
     [](QWindow* w) { QTest::mouseClick(w, Qt::LeftButton, {}, OnEmpty); }},
    {QStringLiteral("press on an overlay"),
     [](QWindow* w) { QTest::mouseClick(w, Qt::RightButton, {}, OnOverlay); }},
    {QStringLiteral("double click"), [](QWindow* w) { QTest::mouseDClick(w, Qt::LeftButton, {}, OnVideo); }},
    {QStringLiteral("drag over a window"), [](QWindow* w) { SendDragEnter(w, OnVideo); }},
    {QStringLiteral("drag over an empty part"), [](QWindow* w) { SendDragEnter(w, OnEmpty); }},
    {QStringLiteral("wheel over a window"), [](QWindow* w) { SendWheel(w, OnVideo); }},
    {QStringLiteral("wheel over an empty part"), [](QWindow* w) { SendWheel(w, OnEmpty); }},
};

template <typename Wall>
QWidget* MakeWall(QWidget* parent)
{
    auto* wall = new Wall(parent);
    wall->resize(1000, 600);
    wall->SetTVWallGridCount(2, 2);
    wall->AddScreen({0.0, 0.0, 1.0, 1.0}, QVariant());
    wall->OpenWindow(0, {0.1, 0.15, 0.4, 0.6, true}, QVariant());
    wall->SetWindowSelectionMode(Wall::MultiSelection);
    KvGUI::StructOSDInfo info;
    info.iLeft = 6553;
    info.iRight = 8192;
    info.iBottom = 1024;
    info.strText = "overlay";
    std::vector<KvGUI::StructOSDInfo> infos{info};
    wall->SetScreenOSDInfo(0, infos);
    return wall;
}

/// Deletes the wall in the slot of whatever it emits first.
template <typename Wall>
void DeleteInSlots(QWidget* made)
{
    auto* wall = static_cast<Wall*>(made);
    const QPointer<QWidget> alive(wall);
    const auto end = [alive] { delete alive.data(); };
    QObject::connect(wall, &Wall::SignalWindowEvent, end);
    QObject::connect(wall, &Wall::SignalScreenEvent, end);
    QObject::connect(wall, &Wall::SignalLabelEvent, end);
    QObject::connect(wall, &Wall::SignalWheelEvent, end);
    QObject::connect(wall, &Wall::SignalScreenSelectedChanged, end);
    QObject::connect(wall, &Wall::SignalScreenRightClick, end);
    QObject::connect(wall, &Wall::SignalWindowSelectedChanged, end);
    QObject::connect(wall, &Wall::SignalWindowGeoChanged, end);
}

} // namespace

class tst_WallDeletion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void inSlots_data()
    {
        QTest::addColumn<bool>("normal");
        QTest::addColumn<QString>("action");
        for (const bool normal : {false, true}) {
            for (const QString& action : Actions.keys())
                QTest::addRow("%s: %s", normal ? "normal" : "display", qPrintable(action))
                    << normal << action;
        }
    }

    // Catches a wall that is gone before Qt has done with the widget under the mouse.
    void inSlots()
    {
        QFETCH(bool, normal);
        QFETCH(QString, action);
        QWidget client;
        QVBoxLayout layout(&client);
        layout.setContentsMargins(0, 0, 0, 0);
        client.resize(1000, 600);
        QPointer<QWidget> wall
            = normal ? MakeWall<KvTVWallNormalWnd>(&client) : MakeWall<KvTVWallDisplayWnd>(&client);
        normal ? DeleteInSlots<KvTVWallNormalWnd>(wall) : DeleteInSlots<KvTVWallDisplayWnd>(wall);
        layout.addWidget(wall);
        client.show();
        QVERIFY(QTest::qWaitForWindowExposed(&client));
        Actions.value(action)(client.windowHandle());
        QVERIFY(wall.isNull());
        QCOMPARE(client.children().size(), 1); // the layout: nothing of the wall stays in the client
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(QApplication::topLevelWidgets(), {&client});
    }
};

STRICT_TEST_MAIN(tst_WallDeletion)
#include "tst_walldeletion.moc"
