#pragma once

#include <QHash>
#include <QToolBar>

class QLabel;
class QSpinBox;

namespace UICommonMdl {
class KvVolumeButton;
}

namespace OperatorClient {

/// The tool bar of the wall page. It knows nothing of a wall: it offers commands and shows states.
class WallToolBar : public QToolBar
{
    Q_OBJECT

public:
    enum class Command
    {
        AddScreen,
        FillGrid,
        RemoveAll,
        Gutter,
        OpenWindow,
        OpenPhoto,
        OpenVideo,
        Titles,
        SelectNone,
        SelectOne,
        SelectMany,
        Raise,
        Lower,
        CloseSelected,
        Overlays,
        BaseMap,
        Positioning,
        CellBound,
        SceneFamily,
        WholeWall,
        Details
    };

    explicit WallToolBar(QWidget* parent = nullptr);

    QAction* Action(Command command) const { return m_actions.value(command); }
    UICommonMdl::KvVolumeButton* VolumeButton() const { return m_pVolume; }
    void ShowGrid(int rows, int columns); ///< without a signal
    void ShowSound(bool on, int volume); ///< of the whole wall, per cent; without a signal

Q_SIGNALS:
    void SignalGridChanged(int rows, int columns); ///< by the operator

private:
    void AddGridBoxes();
    void AddCommands();
    void AddVolumeButton();
    QSpinBox* AddGridBox(QString (*name)(), QString (*tip)());
    void LoadIcons();

    QHash<Command, QAction*> m_actions;
    QLabel* m_pGridIcon = nullptr;
    QSpinBox* m_pRows = nullptr;
    QSpinBox* m_pColumns = nullptr;
    UICommonMdl::KvVolumeButton* m_pVolume = nullptr;
};

inline uint qHash(WallToolBar::Command command, uint seed = 0) { return ::qHash(int(command), seed); }

} // namespace OperatorClient
