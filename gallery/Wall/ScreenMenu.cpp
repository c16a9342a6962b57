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
    AddCommand([] { return tr("Snap all windows"); }, [&cameras, screen] { cameras.SnapWindows(screen); });
    AddCommand([] { return tr("Close all windows"); }, [&cameras, screen] { cameras.CloseWindows(screen); });
    addSeparator();
    const ScreenNote note = NoteOf(*cameras.Wall(), screen);
    ScreenNotes* notes = cameras.Notes();
    AddSwitch(
        [] { return tr("Text overlays"); }, note.overlays,
        [notes, screen](bool on) { notes->SetOverlays(screen, on); });
    AddSwitch(
        [] { return tr("Base map"); }, note.baseMap,
        [notes, screen](bool on) { notes->SetBaseMap(screen, on); });
}

void ScreenMenu::AddCommand(QString (*text)(), const std::function<void()>& act)
{
    FollowLanguage(addAction(QString(), this, act), "text", text);
}

void ScreenMenu::AddSwitch(QString (*text)(), bool checked, const std::function<void(bool)>& set)
{
    QAction* action = FollowLanguage(addAction(QString()), "text", text);
    action->setCheckable(true);
    action->setChecked(checked);
    connect(action, &QAction::triggered, this, set);
    connect(action, &QAction::triggered, this, &ScreenMenu::SignalSwitched);
}

} // namespace OperatorClient
