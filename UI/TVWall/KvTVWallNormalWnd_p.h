#pragma once

#include "KvTVWallNormalWnd.h"
#include "WallArrangement.h"
#include "WallZoom.h"

namespace UICommonMdl {

class KvTVWallDisplayEagleEye;
class KvTVWallNormalScreen;
class KvTVWallNormalView;
class KvTVWallNormalWindow;

/// State of the normal wall, and its zoom.
class KvTVWallNormalWndPrivate : public WallArrangement
{
    Q_OBJECT

public:
    explicit KvTVWallNormalWndPrivate(KvTVWallNormalWnd* wall);

    KvTVWallNormalScreen* AddScreen(const KvGUI::StructScaleRect& rect);
    /// Null for an index that names nothing.
    KvTVWallNormalScreen* Screen(int screen) const;
    KvTVWallNormalWindow* Window(int screen, int window) const;
    int SelectedScreen() const; ///< lowest index of a selected screen, or -1
    void SelectScreen(const KvTVWallNormalScreen* selected); ///< and unselects all others
    QVector<WallMiniature::Screen> Miniature() const override;
    void LayOut(); ///< for the wall's present size
    void ShowWholeWall();

    KvTVWallNormalWnd* const q;
    KvTVWallNormalView* const view;
    WallZoom::Axis horizontal;
    WallZoom::Axis vertical;
    bool titleShow = false;

private:
    void PlaceScreens();
    void ShowOverview();
    void PlaceOverview();
    void Locate(float x, float y);
    void OnWheel(int delta, const QPoint& pos);

    KvTVWallDisplayEagleEye* m_pOverview = nullptr; // made at the first zoom
};

} // namespace UICommonMdl
