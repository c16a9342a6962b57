#include <gallery/Wall/ScreenMenu.h>

#include <gallery/FollowLanguage.h>
#include <gallery/Wall/CameraWall.h>
#include <gallery/Wall/ScreenNotes.h>

namespace OperatorClient {

ScreenMenu::ScreenMenu(CameraWall& cameras, int screen, QWidget* parent)
    : QMenu(parent)
{
    const auto fill = [&cameras, screen] {
        cameras.OpenWindow(screen, KvGUI::StructScaleRect{0, 0, 1, 1, true});
    };
    AddCommand([] { return tr("New window filling the screen"); }, fill);
    const bool ofWidgets = cameras.Family() == WallLayout::DisplayFamily; // which alone can snap and has maps
    QAction* snap = AddCommand(
        [] { return tr("Snap all windows"); }, [&cameras, screen] { cameras.SnapWindows(screen); });
    snap->setEnabled(ofWidgets);
    AddCommand([] { return tr("Close all windows"); }, [&cameras, screen] { cameras.CloseWindows(screen); });
    addSeparator();
    const ScreenNote note = NoteOf(*cameras.Wall(), screen);
    ScreenNotes* notes = cameras.Notes();
    AddSwitch(
        [] { return tr("Text overlays"); }, note.overlays,
        [notes, screen](bool on) { notes->SetOverlays(screen, on); });
    QAction* baseMap = AddSwitch(
        [] { return tr("Base map"); }, note.baseMap,
        [notes, screen](bool on) { notes->SetBaseMap(screen, on); });
    baseMap->setEnabled(ofWidgets);
}

QAction* ScreenMenu::AddCommand(QString (*text)(), const std::function<void()>& act)
{
    return FollowLanguage(addAction(QString(), this, act), "text", text);
}

QAction* ScreenMenu::AddSwitch(QString (*text)(), bool checked, const std::function<void(bool)>& set)
{
    QAction* action = FollowLanguage(addAction(QString()), "text", text);
    action->setCheckable(true);
    action->setChecked(checked);
    connect(action, &QAction::triggered, this, set);
    connect(action, &QAction::triggered, this, &ScreenMenu::SignalSwitched);
    return action;
}

} // namespace OperatorClient
