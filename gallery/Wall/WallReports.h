#pragma once

#include <gallery/Wall/WallWidget.h>

#include <QObject>

namespace OperatorClient {

/// Tells in a line of text what the operator's hand did on a wall.
class WallReports : public QObject
{
    Q_OBJECT

public:
    explicit WallReports(const WallWidget& wall, QObject* parent = nullptr);

Q_SIGNALS:
    void SignalReport(const QString& text);

private:
    void OnWindowsSelected(int screen);
    void OnWindowMoved(int screen, int window, const KvGUI::StructScaleRect& rect);
    void On3DFrame(int screen, int startX, int startY, int endX, int endY);
    void OnLabelEvent(int screen, int label, QEvent* event);
    void OnWindowEvent(int screen, int window, QEvent* event);

    const WallWidget& m_wall;
};

} // namespace OperatorClient
