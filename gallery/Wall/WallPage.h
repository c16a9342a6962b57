#pragma once

#include <gallery/Page.h>
#include <gallery/Wall/CameraWall.h>
#include <gallery/Wall/DetailsPanel.h>
#include <gallery/Wall/WallLayoutFile.h>
#include <gallery/Wall/WallToolBar.h>

namespace OperatorClient {

/// The video wall with its tool bar. The wall is saved a moment after each change, and at the end.
class WallPage : public Page
{
    Q_OBJECT

public:
    /// @param layout the wall to begin with
    /// @param files shown in the first windows, and in new ones when there are more files than windows
    WallPage(
        SourcePool& pool, FrameClock& clock, const WallLayoutFile& file, const WallLayout& layout,
        const QVector<SourceSpec>& files, QWidget* parent = nullptr);
    ~WallPage() override;

    static QString Title(); ///< in the list of pages
    QVector<Picture> Pictures() override;

    CameraWall* Cameras() const { return m_pCameras; }

private:
    void ConnectTools();
    void ConnectScreenTools();
    void ConnectSound();
    void ConnectDetails();
    void On(WallToolBar::Command command, const std::function<void(bool checked)>& act);
    void ShowStart();
    void ShowStates();
    void ShowScreenStates();
    void ShowMenu(int screen);
    void OpenFile(const QString& title, const QString& filter, bool video);
    void Save();
    void EnterOverlays();
    void EnterSelection();
    void EnterZoomed();
    void EnterScene();
    void EnterZoomedScene();
    void ZoomIntoThirdScreen();
    void EnterDetails();

    const WallLayoutFile m_file;
    const WallLayout m_start;
    const QVector<SourceSpec> m_files;
    WallToolBar* m_pTools;
    CameraWall* m_pCameras;
    DetailsPanel* m_pDetails;
    QTimer m_saveSoon;
};

} // namespace OperatorClient
