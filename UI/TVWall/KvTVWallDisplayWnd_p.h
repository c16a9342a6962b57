#pragma once

#include "KvTVWallDisplayWnd.h"
#include "WallArrangement.h"

namespace UICommonMdl {

class KvTVWallDisplayScreen;
class KvTVWallDisplayWindow;

/// State of the display wall.
class KvTVWallDisplayWndPrivate : public WallArrangement
{
    Q_OBJECT

public:
    explicit KvTVWallDisplayWndPrivate(KvTVWallDisplayWnd* wall);

    KvTVWallDisplayScreen* AddScreen(const KvGUI::StructScaleRect& rect, const QVariant& userData);
    void DeleteAllScreen();
    QList<KvTVWallDisplayScreen*> TakeScreens(); ///< all of them; they report nothing more
    /// Null for an index that names nothing.
    KvTVWallDisplayScreen* Screen(int screen) const { return screens.value(screen); }
    KvTVWallDisplayWindow* Window(int screen, int window) const;
    int SelectedScreen() const; ///< lowest index of a selected screen, or -1
    void SelectScreen(const KvTVWallDisplayScreen* selected); ///< and unselects all others
    void PlaceScreens();
    QVector<WallMiniature::Screen> Miniature() const override;
    void SetColor(QColor& member, const QColor& color); ///< stores a colour and paints the wall again

    KvTVWallDisplayWnd* const q;
    KvTVWallDisplayWnd::SelectionMode selectionMode = KvTVWallDisplayWnd::NoSelection;
    QList<KvTVWallDisplayScreen*> screens;
    bool titleShow = false;

    // Used where the style sheet is missing.
    QColor windowFrameColor = QColor(127, 132, 142);
    QColor windowSelectedFrameColor = QColor(90, 165, 242);
    QColor windowColor = QColor(46, 49, 56);
    QColor screenTextColor = QColor(201, 205, 213);
    QColor bandColor = QColor(90, 165, 242);
};

} // namespace UICommonMdl
