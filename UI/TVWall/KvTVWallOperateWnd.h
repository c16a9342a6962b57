#pragma once

#include <Platform/BasicUIComponents/StructOSDInfo.h>
#include <Platform/BasicUIComponents/StructScaleRect.h>
#include <UIComponentsExport.h>

#include <QColor>
#include <QIcon>
#include <QList>
#include <QRect>
#include <QVariant>
#include <QWidget>
#include <string>
#include <vector>

class QEvent;

namespace UICommonMdl {

class KvTVWallOperateWndPrivate;

/// The video wall that a client places in its layout. It holds a wall of one of two families and offers the
/// operations of both under one name:
/// - the normal family (KvTVWallNormalWnd), drawn in a graphics scene, which zooms and pans by itself;
/// - the display family (KvTVWallDisplayWnd), built from widgets. Here the wheel zooms it, up to ten times,
///   and an overview in the lower right corner pans it.
///
/// Choose the family first; there is no wall before:
/// @code
///     auto* wall = new UICommonMdl::KvTVWallOperateWnd(parent);
///     wall->SetShowMode(UICommonMdl::KvTVWallOperateWnd::DisplayMode);
///     wall->SetTVWallGridCount(2, 2);
///     const int screen = wall->AddScreen({0.0, 0.0, 0.5, 0.5}, QVariant());
///     const int window = wall->OpenWindow(screen, {0.0, 0.0, 0.5, 0.5, true}, cameraId);
///     player->setParent(wall->GetWindowWidget(screen, window));
/// @endcode
///
/// Coordinates, indices and signals are those of the walls: all geometry is in fractions (a screen's of the
/// wall, a window's of its screen), screens and windows are addressed by position, and an index that names
/// nothing is never an error. Where there is no wall (before SetShowMode, and in an unknown mode) every
/// operation does nothing and returns what it returns for a wrong index; where that differs it is told.
///
/// A slot may delete this widget or change its mode, also while the wall that is going is emitting.
class UICOMPONENTS_EXPORT KvTVWallOperateWnd : public QWidget
{
    Q_OBJECT

public:
    /// The families, as SetShowMode takes them.
    enum ShowMode : int
    {
        NormalMode = 0, ///< KvTVWallNormalWnd
        DisplayMode = 1 ///< KvTVWallDisplayWnd
    };
    Q_ENUM(ShowMode)

    /// What a click on a window and a left drag over a screen's empty part do. Any other value behaves
    /// like NoSelection.
    enum SelectionMode : int
    {
        NoSelection = 0, ///< clicks select nothing; a drag draws an area for a new window
        SingleSelection = 1, ///< a click selects the window alone; a drag draws an area for a new window
        MultiSelection = 2 ///< a click toggles the window; a drag is a band that selects windows
    };
    Q_ENUM(SelectionMode)

    /// Makes a widget without a wall.
    explicit KvTVWallOperateWnd(QWidget* parent = nullptr);
    ~KvTVWallOperateWnd() override;

    /// @name The wall
    /// @{

    /// Chooses the family. A wall of the other one goes with its screens and windows; a wall of this one is
    /// kept, or an empty one is made, in this widget's present size. Any other value keeps what is there and
    /// forwards nothing to it.
    void SetShowMode(int iMode);

    void SetTVWallGridCount(int iRows, int iCols); ///< rows and columns of cells; before the first screen
    int GetRowCount() const; ///< rows of the grid, 0 until set
    int GetColumnCount() const; ///< columns of the grid, 0 until set
    /// Whether windows opened from now on show "Window 1", "Window 2" ... in their title bar. Off at first.
    void SetWindowTitleShow(bool bShow);
    /// Display family: whether the present screens reach to their neighbours (true) or leave a gutter.
    void SetDeviceType(bool bNoGap);
    /// Turns 3D positioning on or off for the screen that is selected now: a left drag over one of its
    /// windows then draws a frame, reported by SignalWindow3DSite.
    void SetPtzFrameSelectedEnable(bool bEnable);
    /// The largest difference of an edge at which two window rectangles are equal: 0.002 in the normal
    /// family, 0.001 in the display family, 0.0 in an unknown mode.
    double GetWindowScalePrecision() const;
    /// Stores the mode; SingleSelection deselects every window of the selected screen at once.
    void SetWindowSelectionMode(SelectionMode mode);
    SelectionMode GetWindowSelectionMode() const; ///< NoSelection until set
    /// The wall's own rectangle, from 0, 0: of a zoomed display wall more than this widget shows. Empty
    /// without a wall.
    QRect GetTVWallRect() const;
    void RecoverEagleEye(); ///< normal family: shows the whole wall again
    void SetAudioBtnVisible(bool bVisible); ///< normal family: whether windows have an audio button
    /// @}

    /// @name Screens
    /// @{

    /// Adds a monitor.
    /// @param rect the monitor's place as fractions of the wall
    /// @param icon, title shown by the normal family only
    /// @param userData any value, read back by GetScreenUserData
    /// @return the new screen's index; -1, with a warning in the log, while the grid has no row or no column
    int AddScreen(
        const KvGUI::StructScaleRect& rect, const QIcon& icon, const QString& title,
        const QVariant& userData);
    /// As above without icon and title. The user data is dropped: set it with SetScreenUserData.
    int AddScreen(const KvGUI::StructScaleRect& rect, const QVariant& userData);
    bool DeleteAllScreen(); ///< removes every screen with its windows; true unless there is no wall
    int GetScreenCount() const; ///< 0 without screens or a wall
    /// Gives a screen's rectangle in @p rect; false, leaving @p rect alone, without such a screen.
    bool GetScreenScale(int iScreen, KvGUI::StructScaleRect& rect) const;
    /// Sets a screen's title, which the display family does not show. @return whether the screen exists
    bool SetScreenTitle(int iScreen, const QString& title);
    /// Sets the text in the middle of an empty screen. @return whether the screen exists
    bool SetScreenContentText(int iScreen, const QString& text);
    void SetScreenUserData(int iScreen, const QVariant& userData); ///< nothing without such a screen
    QVariant GetScreenUserData(int iScreen) const; ///< invalid without such a screen
    /// Shows up to 8 plain and 8 rolling text overlays in place of those shown before. Their pixels are
    /// computed once: set them again after a resize or zoom. @return whether the screen exists
    bool SetScreenOSDInfo(int iScreen, std::vector<KvGUI::StructOSDInfo>& infos);
    /// Display family: fills the screen with @p color, or with @p bShow false goes back to the plain look and
    /// hides all overlays. @return whether the screen exists; false in the normal family
    bool SetScreenWindowColor(int iScreen, const QColor& color, bool bShow);
    /// Display family: shows a picture file behind the windows; for a path with ".yuv" in it the ".jpg"
    /// beside it. @return whether the screen exists; false in the normal family
    bool SetScreenBaseMap(int iScreen, std::string path, bool bShow);
    /// Normal family: whether a drag or resize of the screen's windows ends where the mouse leaves them
    /// (true, as at first) or on the screen's cells.
    void SetScreenFreeMode(int iScreen, bool bFree);
    bool IsScreenFreeMode(int iScreen) const; ///< always true in the display family and without a wall
    /// Normal family: selects a screen and unselects all others with their windows; no signal. In the display
    /// family the selection is the operator's, and this does nothing.
    void SetSelectedScreenIndex(int iScreen);
    int GetSelectedScreenIndex() const; ///< -1 when none is selected
    /// @}

    /// @name Windows
    /// @{

    /// Opens a window on top of its screen.
    /// @param rect its place as fractions of the screen. An editable window can be moved, resized and closed
    ///        by the operator and reports it.
    /// @param userData any value, read back by GetWindowUserData
    /// @return the new window's index in its screen, -1 without such a screen
    int OpenWindow(int iScreen, const KvGUI::StructScaleRect& rect, const QVariant& userData);
    bool DeleteWindow(int iScreen, int iWindow); ///< false without such a window
    void DeleteAllWindows(int iScreen); ///< removes the windows of one screen
    void DeleteAllWindows(); ///< removes the windows of every screen
    int GetWindowCount(int iScreen) const; ///< 0 without such a screen
    QList<int> GetAllWindowIndexs(int iScreen) const; ///< 0 ... count - 1; empty without such a screen
    QList<int> GetSelectedWindowIndexs() const; ///< ascending, on the selected screen; empty without one
    QList<int> GetUnSelectedWindowIndexs() const; ///< ascending, on the selected screen; empty without one
    /// Selects one window of a screen and deselects its others; with @p bSelected false deselects them all.
    void SetSelectedWindowIndexs(int iScreen, int iWindow, bool bSelected);
    /// Moves a window. A rectangle equal within the precision changes nothing; any other one is reported by
    /// SignalWindowGeoChanged when the window was opened editable. @return whether the window exists
    bool SetWindowScale(int iScreen, int iWindow, const KvGUI::StructScaleRect& rect);
    /// Gives a window's rectangle in @p rect; false, leaving @p rect alone, without such a window.
    bool GetWindowScale(int iScreen, int iWindow, KvGUI::StructScaleRect& rect) const;
    /// Stores a window's z-value. The normal family paints by it at once and has no use for @p bReorder; in
    /// the display family that closes the gap in the other values and stacks the windows by value.
    /// @return whether the window exists
    bool SetWindowZValue(int iScreen, int iWindow, int iZ, bool bReorder);
    int GetWindowZValue(int iScreen, int iWindow) const; ///< without its fraction; -1 without such a window
    /// The largest z-value on a screen, without its fraction, at least 0; 1 without such a screen, 0 without
    /// a wall.
    int GetMaxWindowZValue(int iScreen) const;
    /// Replaces the value that OpenWindow() was given. Nothing without such a window.
    void SetWindowUserData(int iScreen, int iWindow, const QVariant& userData);
    QVariant GetWindowUserData(int iScreen, int iWindow) const; ///< invalid without such a window
    /// Sets the text that a window's title bar shows behind its number. @return whether the window exists
    bool SetWindowContentText(int iScreen, int iWindow, const QString& text);
    /// Sets the state that the volume button shows; no signal. @return whether the window exists
    bool SetWindowVolumeBtn(int iScreen, int iWindow, bool bOn);
    bool GetWindowVolumeBtnStatus(int iScreen, int iWindow) const; ///< false without such a window
    /// The widget to put video into; it follows the window's size. Null without such a window and after
    /// DeleteWindowWidget.
    QWidget* GetWindowWidget(int iScreen, int iWindow) const;
    bool DeleteWindowWidget(int iScreen, int iWindow); ///< false when there is none
    /// Sets the text in the middle of the video widget. @return whether there is such a widget
    bool SetWindowVideoWidgetText(int iScreen, int iWindow, const QString& text);
    /// Whether the video widget repaints itself. @return whether there is such a widget
    bool SetWindowUpdateEnable(int iScreen, int iWindow, bool bEnable);
    /// @}

    QSize sizeHint() const override;

Q_SIGNALS:
    /// @name Of both families
    /// @{
    void SignalScreenEvent(int iScreen, QEvent* event); ///< drag-enter or drop; accept it to take the drop
    void SignalScreenSelectedChanged(int iScreen); ///< by the operator, also when it was selected before
    void SignalScreenCloseBtnClicked(int iScreen); ///< never emitted by these families
    /// An input event reached a window, after the wall acted on it; valid during the emission only.
    void SignalWindowEvent(int iScreen, int iWindow, QEvent* event);
    void SignalWindowSelectedChanged(int iScreen); ///< ask GetSelectedWindowIndexs()
    void SignalWindowCloseBtnClicked(int iScreen, int iWindow); ///< the window stays until it is deleted
    void SignalWindowVolumeBtnClicked(int iScreen, int iWindow); ///< the button stays until it is set
    /// A window that was opened editable has another place, by the operator or by SetWindowScale().
    /// @param rect the new place as fractions of the screen
    void SignalWindowGeoChanged(int iScreen, int iWindow, const KvGUI::StructScaleRect& rect);
    /// The operator drew an area on a screen; open a window there if you like.
    /// @param rect the area as fractions of the screen
    void SignalDrawAreaOpenWindow(int iScreen, const KvGUI::StructScaleRect& rect);
    /// @}

    /// @name Of the display family only
    /// @{
    void SignalWindowDoubleClicked(int iScreen); ///< a window that is not editable was double-clicked
    void SignalWindowClicked(); ///< a window was clicked and the selection stayed as it was
    void SignalScreenRightClick(int iScreen); ///< a context menu is wanted on a screen's empty part
    /// A 3D-positioning frame from the first point to the second, in 1/8192 of the screen's size.
    void SignalWindow3DSite(int iScreen, int iStartX, int iStartY, int iEndX, int iEndY);
    void SignalLabelEvent(int iScreen, int iLabel, QEvent* event); ///< 0 ... 7 rolling, 8 ... 15 plain
    /// @}

    void SignalScreenSelected(int iScreen); ///< never emitted

protected:
    void resizeEvent(QResizeEvent* event) override;

private Q_SLOTS:
    void OnWheelEvent(int iDelta, const QPoint& pos); ///< over the display wall, in its pixels: zooms
    void OnEagleEyeAreaChanged(); ///< the overview has another size
    void OnEagleEyeLocated(float fX, float fY); ///< pans the display wall to these fractions of it

private:
    KvTVWallOperateWndPrivate* d_func() const { return m_pPrivate; }

    KvTVWallOperateWndPrivate* const m_pPrivate;
};

} // namespace UICommonMdl
