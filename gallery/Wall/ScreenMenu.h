#pragma once

#include <QMenu>
#include <functional>

namespace OperatorClient {

class CameraWall;

/// The context menu of a screen of the wall: what can be done with all its windows, and what it shows beside
/// them. It knows its screen by the index, and so is made anew for each use.
class ScreenMenu : public QMenu
{
    Q_OBJECT

public:
    ScreenMenu(CameraWall& cameras, int screen, QWidget* parent = nullptr);

Q_SIGNALS:
    void SignalSwitched(); ///< the screen shows something else beside its windows now

private:
    QAction* AddCommand(QString (*text)(), const std::function<void()>& act);
    QAction* AddSwitch(QString (*text)(), bool checked, const std::function<void(bool)>& set);
};

} // namespace OperatorClient
