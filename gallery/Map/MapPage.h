#pragma once

#include <gallery/Page.h>
#include <gallery/Wall/CameraWall.h>

#include <QStringList>
#include <QTimer>

class QPushButton;
class QStackedWidget;

namespace UICommonMdl {
class CActiveXLinkWebCtrl;
}

namespace OperatorClient {

class StartLabel;

/// A plan of the site beside a wall: a camera that is chosen on the plan gets a window on the wall, and the
/// plan shows which cameras are on the wall and selected there. The plan is a web page.
class MapPage : public Page
{
    Q_OBJECT

public:
    /// @param mapFile the plan, an HTML file; it is loaded when the page is shown first
    MapPage(SourcePool& pool, FrameClock& clock, const QString& mapFile, QWidget* parent = nullptr);

    static QString Title(); ///< in the list of pages
    QVector<Picture> Pictures() override;

    CameraWall* Cameras() const { return m_pCameras; }
    UICommonMdl::CActiveXLinkWebCtrl* Map() const { return m_pMap; }
    bool IsMapLoaded() const { return m_bLoaded; }

protected:
    void OnLanguageChanged() override;
    void showEvent(QShowEvent* event) override;

private:
    /// Why the map is not there.
    enum class Fault
    {
        None,
        NoEngine,
        Ended
    };

    QWidget* NewFaultPanel();
    void Load();
    void ShowFault(Fault fault);
    void OnLoaded();
    void OnCall(const QString& name, const QString& param);
    void OpenCamera(int camera);
    void SendSkin();
    void SendTexts();
    void SendNames();
    void SendWall();
    void WaitForMap();

    const QString m_strMapFile;
    UICommonMdl::CActiveXLinkWebCtrl* m_pMap;
    QStackedWidget* m_pMapOrFault;
    StartLabel* m_pFaultTitle;
    StartLabel* m_pFaultHint;
    QPushButton* m_pLoadAgain;
    CameraWall* m_pCameras;
    QTimer m_wallChanged; ///< one message for all changes of a moment
    bool m_bLoaded = false;
    Fault m_fault = Fault::None; ///< shown in place of the map
};

} // namespace OperatorClient
