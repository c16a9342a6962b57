#include <gallery/Wall/WallToolBar.h>

#include <Platform/BasicUIComponents/KvSkinNotifier.h>
#include <UI/Dialogs/KvVolumeButton.h>
#include <gallery/FollowLanguage.h>
#include <gallery/SkinIcon.h>
#include <gallery/Wall/WallLayout.h>

#include <QAction>
#include <QActionGroup>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>

namespace OperatorClient {

namespace {

using Command = WallToolBar::Command;

/// Which commands stand together; a separator goes before each first one.
struct CommandEntry
{
    const char* icon;
    const char* text;
    const char* tip;
    const char* shortcut;
    Command command;
    bool checkable;
    bool first;
};

// clang-format off
const CommandEntry Entries[] = {
    {"AddScreen", QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Add a screen"),
        QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Add a screen on the first free cell of the grid"), "Ctrl+M", Command::AddScreen, false, true},
    {"FillGrid", QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Fill the grid"),
        QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Add a screen on every free cell of the grid"), "Ctrl+Shift+M", Command::FillGrid, false, false},
    {"RemoveAll", QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Remove all screens"),
        QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Remove all screens with their windows"), "Ctrl+Shift+Del", Command::RemoveAll, false, false},
    {"Gutter", QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Gutter"),
        QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Leave a gutter between the screens"), "Ctrl+G", Command::Gutter, true, false},
    {"Area", QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Open a window"),
        QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Open a window on the selected screen"), "Ctrl+N", Command::OpenWindow, false, true},
    {"OpenPhoto", QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Open a picture file"),
        QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Show a picture file in a new window"), "Ctrl+P", Command::OpenPhoto, false, false},
    {"OpenVideo", QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Open a video file"),
        QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Show a video file in a new window"), "Ctrl+O", Command::OpenVideo, false, false},
    {"Titles", QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Window titles"),
        QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Show titles on windows opened from now on"), "Ctrl+T", Command::Titles, true, false},
    {"SelectionNone", QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Select nothing"),
        QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Clicks select no window; drag over a screen to open one"), "Ctrl+1", Command::SelectNone, true, true},
    {"SelectionSingle", QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Select one window"),
        QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "A click selects one window; drag over a screen to open one"), "Ctrl+2", Command::SelectOne, true, false},
    {"SelectionMultiple", QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Select many windows"),
        QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Clicks and a drag over a screen select windows"), "Ctrl+3", Command::SelectMany, true, false},
    {"Raise", QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Raise"),
        QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Raise the selected windows above the others"), "Ctrl+Up", Command::Raise, false, true},
    {"Lower", QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Lower"),
        QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Lower the selected windows below the others"), "Ctrl+Down", Command::Lower, false, false},
    {"CloseSelected", QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Close selected windows"),
        QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Close the selected windows"), "Del", Command::CloseSelected, false, false},
    {"Overlays", QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Text overlays"),
        QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Show texts on the selected screen"), "Ctrl+L", Command::Overlays, true, true},
    {"BaseMap", QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Base map"),
        QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Show the site map behind the windows of the selected screen"), "Ctrl+B", Command::BaseMap, true, false},
    {"Positioning3D", QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "3D positioning"),
        QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Draw 3D-positioning frames over the windows of the selected screen"), "Ctrl+D", Command::Positioning, true, false},
    {"Snap", QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Keep to the cells"),
        QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "End the drags of the selected screen's windows on its cells"), "Ctrl+E", Command::CellBound, true, false},
    {"SceneFamily", QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Draw in a scene"),
        QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Draw the wall in a scene instead of building it from widgets"), "Ctrl+F", Command::SceneFamily, true, true},
    {"WholeWall", QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Whole wall"),
        QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Show the whole wall again after zooming into it"), "Ctrl+0", Command::WholeWall, false, false},
    {"Details", QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Details"),
        QT_TRANSLATE_NOOP("OperatorClient::WallToolBar", "Show details of the selected window beside the wall"), "Ctrl+I", Command::Details, true, true},
};
// clang-format on

} // namespace

WallToolBar::WallToolBar(QWidget* parent)
    : QToolBar(parent)
{
    FollowLanguage(this, "accessibleName", [] { return tr("Wall tools"); });
    setIconSize(QSize(20, 20));
    setMovable(false);
    AddGridBoxes();
    AddCommands();
    AddVolumeButton();
    LoadIcons();
    connect(
        KvGUI::KvSkinNotifier::Instance(), &KvGUI::KvSkinNotifier::SignalSkinChanged, this,
        &WallToolBar::LoadIcons);
}

QSpinBox* WallToolBar::AddGridBox(QString (*name)(), QString (*tip)())
{
    auto* box = new QSpinBox(this);
    box->setRange(1, WallLayout::MaxGrid);
    FollowLanguage(box, "accessibleName", name);
    FollowLanguage(box, "toolTip", tip);
    box->setKeyboardTracking(false);
    addWidget(box);
    connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this, [this] {
        Q_EMIT SignalGridChanged(m_pRows->value(), m_pColumns->value());
    });
    return box;
}

void WallToolBar::AddGridBoxes()
{
    m_pGridIcon = new QLabel(this);
    m_pGridIcon->setContentsMargins(4, 0, 6, 0);
    addWidget(m_pGridIcon);
    m_pRows = AddGridBox([] { return tr("Rows of the grid"); }, [] { return tr("Rows of the wall's grid"); });
    auto* times = new QLabel(QStringLiteral("\u00d7"), this);
    times->setContentsMargins(4, 0, 4, 0);
    addWidget(times);
    m_pColumns = AddGridBox(
        [] { return tr("Columns of the grid"); }, [] { return tr("Columns of the wall's grid"); });
}

void WallToolBar::AddCommands()
{
    auto* modes = new QActionGroup(this);
    for (const CommandEntry& entry : Entries) {
        if (entry.first)
            addSeparator();
        QAction* action = FollowLanguage(addAction(QString()), "text", [&entry] { return tr(entry.text); });
        const QKeySequence shortcut(QString::fromLatin1(entry.shortcut));
        action->setShortcut(shortcut);
        action->setShortcutContext(Qt::ApplicationShortcut); // also in the details panel
        FollowLanguage(action, "toolTip", [&entry, shortcut] {
            return QStringLiteral("%1 (%2)").arg(tr(entry.tip), shortcut.toString(QKeySequence::NativeText));
        });
        action->setCheckable(entry.checkable);
        m_actions.insert(entry.command, action);
        widgetForAction(action)->setFocusPolicy(Qt::TabFocus); // tool bars leave the Tab key out
    }
    for (const Command command : {Command::SelectNone, Command::SelectOne, Command::SelectMany})
        modes->addAction(Action(command));
}

void WallToolBar::AddVolumeButton()
{
    m_pVolume = new UICommonMdl::KvVolumeButton(this);
    FollowLanguage(m_pVolume, "toolTip", [] { return tr("Sound of the whole wall"); });
    addWidget(m_pVolume);
}

void WallToolBar::LoadIcons()
{
    for (const CommandEntry& entry : Entries)
        Action(entry.command)->setIcon(SkinIcon(QStringLiteral("ToolBar"), QString::fromLatin1(entry.icon)));
    m_pGridIcon->setPixmap(SkinIcon(QStringLiteral("ToolBar"), QStringLiteral("GridSize"))
                               .pixmap(window()->windowHandle(), iconSize()));
}

void WallToolBar::ShowGrid(int rows, int columns)
{
    const QSignalBlocker rowsBlocker(m_pRows);
    const QSignalBlocker columnsBlocker(m_pColumns);
    m_pRows->setValue(rows);
    m_pColumns->setValue(columns);
}

void WallToolBar::ShowSound(bool on, int volume)
{
    const QSignalBlocker blocker(m_pVolume);
    m_pVolume->SetVolumeState(on);
    m_pVolume->SetVolumeValue(volume);
}

} // namespace OperatorClient
