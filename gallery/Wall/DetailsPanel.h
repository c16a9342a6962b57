#pragma once

#include <UI/Dialogs/CFloatDialog.h>

namespace OperatorClient {

class CameraWall;
class WindowDetails;

/// The panel at the wall's right side that tells of the selected window. It slides in when a window is
/// selected and out when none is, or when it is not wanted.
class DetailsPanel : public UICommonMdl::CFloatDialog
{
    Q_OBJECT

public:
    explicit DetailsPanel(CameraWall* cameras);

    void SetWanted(bool bWanted); ///< true at first
    void EndSlide(); ///< at once in or out, for a picture

Q_SIGNALS:
    void SignalClosed(); ///< by the operator; it is not wanted any more

protected:
    void changeEvent(QEvent* event) override;

private:
    void Follow();
    void ShowFacts();
    bool IsCalledFor() const;
    int SelectedWindow() const;

    CameraWall* m_pCameras;
    WindowDetails* m_pDetails;
    bool m_bWanted = true;
};

} // namespace OperatorClient
