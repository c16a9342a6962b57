#pragma once

#include "KvTVWallNormalWnd.h"

namespace UICommonMdl {

class KvTVWallNormalScreen;
class KvTVWallNormalView;
class KvTVWallNormalWindow;

/// State of the normal wall, and the relay of its screens' signals, to which it adds the sending screen's
/// present index.
class KvTVWallNormalWndPrivate : public QObject
{
    Q_OBJECT

public:
    explicit KvTVWallNormalWndPrivate(KvTVWallNormalWnd* wall);

    KvTVWallNormalScreen* AddScreen(const KvGUI::StructScaleRect& rect);
    void DeleteAllScreen();
    /// Null for an index that names nothing.
    KvTVWallNormalScreen* Screen(int screen) const { return screens.value(screen); }
    KvTVWallNormalWindow* Window(int screen, int window) const;
    int SelectedScreen() const; ///< lowest index of a selected screen, or -1
    void SelectScreen(const KvTVWallNormalScreen* selected); ///< and unselects all others
    void PlaceScreens();

    KvTVWallNormalWnd* const q;
    KvTVWallNormalView* const view;
    KvTVWallNormalWnd::SelectionMode selectionMode = KvTVWallNormalWnd::NoSelection;
    QList<KvTVWallNormalScreen*> screens;
    bool titleShow = false;
    bool audioButtons = true;

private:
    /// Emits @p to of the wall, with the screen's index in front, whenever @p screen emits @p from.
    template <typename... Args>
    void Relay(
        KvTVWallNormalScreen* screen, void (KvTVWallNormalScreen::*from)(Args...),
        void (KvTVWallNormalWnd::*to)(int, Args...));
};

} // namespace UICommonMdl
