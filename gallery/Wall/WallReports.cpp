#include <gallery/Wall/WallReports.h>

#include <gallery/Wall/WallTexts.h>

#include <QEvent>

namespace OperatorClient {

WallReports::WallReports(const WallWidget& wall, QObject* parent)
    : QObject(parent)
    , m_wall(wall)
{
    connect(&wall, &WallWidget::SignalScreenSelectedChanged, this, [this](int screen) {
        Q_EMIT SignalReport(tr("Screen %1 selected").arg(screen + 1));
    });
    connect(&wall, &WallWidget::SignalWindowSelectedChanged, this, &WallReports::OnWindowsSelected);
    connect(&wall, &WallWidget::SignalWindowDoubleClicked, this, [this](int screen) {
        Q_EMIT SignalReport(tr("Screen %1: a fixed window was double-clicked").arg(screen + 1));
    });
    connect(&wall, &WallWidget::SignalWindowClicked, this, [this] {
        Q_EMIT SignalReport(tr("A window was clicked; the selection stays"));
    });
    connect(&wall, &WallWidget::SignalWindowGeoChanged, this, &WallReports::OnWindowMoved);
    connect(&wall, &WallWidget::SignalWindow3DSite, this, &WallReports::On3DFrame);
    connect(&wall, &WallWidget::SignalLabelEvent, this, &WallReports::OnLabelEvent);
    connect(&wall, &WallWidget::SignalWindowEvent, this, &WallReports::OnWindowEvent);
}

void WallReports::OnWindowsSelected(int screen)
{
    const QList<int> windows = m_wall.GetSelectedWindowIndexs();
    Q_EMIT SignalReport(
        windows.isEmpty() ? tr("Screen %1: no window selected").arg(screen + 1)
                          : tr("Screen %1: selected windows %2").arg(screen + 1).arg(NumbersText(windows)));
}

void WallReports::OnWindowMoved(int screen, int window, const KvGUI::StructScaleRect& rect)
{
    Q_EMIT SignalReport(
        tr("Screen %1, window %2 is at %3").arg(screen + 1).arg(window + 1).arg(PlaceText(rect)));
}

void WallReports::On3DFrame(int screen, int startX, int startY, int endX, int endY)
{
    Q_EMIT SignalReport(tr("Screen %1: 3D frame from %2, %3 to %4, %5")
                            .arg(
                                QString::number(screen + 1), QString::number(startX), QString::number(startY),
                                QString::number(endX), QString::number(endY)));
}

void WallReports::OnLabelEvent(int screen, int label, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress)
        Q_EMIT SignalReport(tr("Screen %1: press on overlay %2").arg(screen + 1).arg(label + 1));
}

void WallReports::OnWindowEvent(int screen, int window, QEvent* event)
{
    if (event->type() == QEvent::ContextMenu)
        Q_EMIT SignalReport(tr("Screen %1, window %2: right click").arg(screen + 1).arg(window + 1));
}

} // namespace OperatorClient
