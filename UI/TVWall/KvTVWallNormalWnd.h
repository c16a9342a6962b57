#pragma once

#include <Platform/BasicUIComponents/StructOSDInfo.h>
#include <Platform/BasicUIComponents/StructScaleRect.h>
#include <UIComponentsExport.h>

#include <QIcon>
#include <QList>
#include <QVariant>
#include <QWidget>
#include <vector>

class QEvent;

namespace UICommonMdl {

class KvTVWallNormalWndPrivate;

/// A video wall drawn by a graphics view: monitors ("screens") on a grid of cells, and video windows in them.
///
/// It has the model, the operations and the signals of KvTVWallDisplayWnd:
/// @code
///     auto* wall = new UICommonMdl::KvTVWallNormalWnd(parent);
///     wall->SetTVWallGridCount(2, 2);
///     const int screen = wall->AddScreen({0.0, 0.0, 0.5, 0.5}, icon, "Entrance", deviceId);
///     const int window = wall->OpenWindow(screen, {0.0, 0.0, 0.5, 0.5, true}, cameraId);
///     wall->SetWindowZValue(screen, window, 2.5);
/// @endcode
///
/// <b>Which of the two.</b> Here windows are items of a scene: hundreds of them cost little, screens show
/// their icon and title, the painting order follows the z-values, a drag can be bound to a screen's cells,
/// and the wall zooms by itself. In the display wall every window is a widget: choose it where a foreign
/// renderer wants a native window, which a scene cannot hold.
///
/// <b>Coordinates.</b> All geometry crosses this interface as scale rectangles: a screen's as fractions of
/// the wall, a window's as fractions of its screen. They are the master; pixels are computed from them and
/// never back. A rectangle that differs by GetWindowScalePrecision() or less on every edge is equal.
///
/// <b>Indices.</b> Screens and windows are addressed by position: screens in the order in which they were
/// added, windows in the order in which they were opened in their screen. Deleting a window shifts the
/// later ones down. An index that names nothing is never an error: the operation does nothing and returns
/// the value given with it.
///
/// <b>Signals</b> carry the indices of the moment of their emission. A slot may delete the window, its
/// screen, all screens or the wall. Only a wall that is a window by itself has to go by deleteLater() in
/// slots of SignalWindowEvent and SignalScreenEvent: Qt uses the window once more after a right press or a
/// drag-enter. A QEvent that a signal carries is valid during the emission only.
///
/// <b>By hand.</b> An editable window is moved by its title bar and resized by its edges, inside its screen;
/// with Shift held, or on a screen that is not free, it keeps to the screen's cells; Escape takes the drag
/// back. The selection mode says what a click on a window and a drag over the empty part of a screen do.
/// The wheel zooms the wall up to ten times its size, about the cursor; as long as it is zoomed, an overview
/// in the lower right corner shows where the view is and moves it. The Tab key goes through windows and
/// buttons, Space clicks.
class UICOMPONENTS_EXPORT KvTVWallNormalWnd : public QWidget
{
    Q_OBJECT

public:
    /// What a click on a window and a left drag over a screen's empty part do. Any other value behaves
    /// like NoSelection.
    enum SelectionMode : int
    {
        NoSelection = 0, ///< clicks select nothing; a drag draws an area for a new window
        SingleSelection = 1, ///< a click selects the window alone; a drag draws an area for a new window
        MultiSelection = 2 ///< a click toggles the window; a drag is a band that selects windows
    };
    Q_ENUM(SelectionMode)

    /// Makes an empty wall, with a grid of 0 x 0, in the skin's look.
    explicit KvTVWallNormalWnd(QWidget* parent = nullptr);
    ~KvTVWallNormalWnd() override;

    /// @name The wall
    /// @{

    /// Sets the grid: @p iRows rows and @p iCols columns of cells. Existing screens keep their place and
    /// the spans computed when they were added.
    void SetTVWallGridCount(int iRows, int iCols);
    int GetRowCount() const; ///< rows of the grid, 0 until set
    int GetColumnCount() const; ///< columns of the grid, 0 until set

    /// Whether windows opened from now on show "Window 1", "Window 2" ... in their title bar. Off at first.
    void SetWindowTitleShow(bool bShow);

    /// Shows or hides the audio buttons of all windows, present and future. Shown at first.
    void SetAudioBtnVisible(bool bVisible);

    /// Turns 3D positioning on or off for the screen that is selected now: a left drag over one of its
    /// windows then draws a frame that is reported by SignalWindow3DSite. Nothing without a selected screen.
    void SetPtzFrameSelectedEnable(bool bEnable);

    /// The largest difference of an edge, as a fraction, at which two window rectangles are equal: 0.002.
    double GetWindowScalePrecision() const;

    /// Stores the mode; SingleSelection deselects every window of the selected screen at once.
    void SetWindowSelectionMode(SelectionMode mode);
    SelectionMode GetWindowSelectionMode() const; ///< NoSelection until set

    /// Brings zoom and overview back: the whole wall is seen.
    void RecoverEagleEye();
    /// @}

    /// @name Screens
    /// @{

    /// Adds a monitor.
    /// @param rect the monitor's place as fractions of the wall
    /// @param icon, title shown in the screen's upper left corner, behind its windows; may be empty
    /// @param userData any value, read back by GetScreenUserData
    /// @return the new screen's index; -1, with a warning in the log, while the grid has no row or no column
    int AddScreen(
        const KvGUI::StructScaleRect& rect, const QIcon& icon, const QString& title,
        const QVariant& userData);
    /// As above without icon and title. The user data is dropped: set it with SetScreenUserData.
    int AddScreen(const KvGUI::StructScaleRect& rect, const QVariant& userData);
    bool DeleteAllScreen(); ///< removes every screen with its windows; always true
    int GetScreenCount() const; ///< 0 without screens
    /// Gives a screen's rectangle in @p rect; false, leaving @p rect alone, without such a screen.
    bool GetScreenScale(int iScreen, KvGUI::StructScaleRect& rect) const;
    bool SetScreenTitle(int iScreen, const QString& title); ///< @return whether the screen exists
    /// Sets the text in the middle of an empty screen. @return whether the screen exists
    bool SetScreenContentText(int iScreen, const QString& text);
    void SetScreenUserData(int iScreen, const QVariant& userData); ///< nothing without such a screen
    QVariant GetScreenUserData(int iScreen) const; ///< invalid without such a screen

    /// Whether windows of the screen may stand anywhere (true, the state of a new screen) or end every drag
    /// on the screen's cells (false). Windows placed by a call stand where the call says.
    void SetScreenFreeMode(int iScreen, bool bFree);
    bool IsScreenFreeMode(int iScreen) const; ///< true without such a screen

    /// Shows up to 8 plain and 8 rolling text overlays in place of those shown before. Records beyond the
    /// eighth of a kind are left out. Their pixels are computed here, once, and not at later resizes.
    /// @return whether the screen exists
    bool SetScreenOSDInfo(int iScreen, std::vector<KvGUI::StructOSDInfo>& infos);

    /// Selects a screen and unselects all others with their windows. No signal. Nothing for a wrong index.
    void SetSelectedScreenIndex(int iScreen);
    int GetSelectedScreenIndex() const; ///< -1 when none is selected
    /// @}

    /// @name Windows
    /// @{

    /// Opens a window on its screen, above those of the same or a lower z-value.
    /// @param rect its place as fractions of the screen. An editable window can be moved, resized and closed
    ///        by the operator and reports it; of another one only double-clicks are reported.
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
    /// SignalWindowGeoChanged when the window was opened editable, and ends the maximised or snapped state.
    /// @return whether the window exists
    bool SetWindowScale(int iScreen, int iWindow, const KvGUI::StructScaleRect& rect);
    /// Gives a window's rectangle in @p rect; false, leaving @p rect alone, without such a window.
    bool GetWindowScale(int iScreen, int iWindow, KvGUI::StructScaleRect& rect) const;

    /// Sets a window's z-value. The windows of a screen are painted by ascending z-value, those of equal
    /// value in the order of their opening, at once.
    /// @return whether the window exists; false too for NaN, which has no place in an order
    bool SetWindowZValue(int iScreen, int iWindow, double dZ);
    double GetWindowZValue(int iScreen, int iWindow) const; ///< 0 for a new window; -1 without such a window
    /// The largest z-value on a screen, at least 0; 1 without such a screen.
    double GetMaxWindowZValue(int iScreen) const;

    /// Replaces the value that OpenWindow() was given. Nothing without such a window.
    void SetWindowUserData(int iScreen, int iWindow, const QVariant& userData);
    QVariant GetWindowUserData(int iScreen, int iWindow) const; ///< invalid without such a window
    /// Sets the text that a window's title bar shows behind its number. @return whether the window exists
    bool SetWindowContentText(int iScreen, int iWindow, const QString& text);
    /// Sets the state that the audio button shows; no signal. @return whether the window exists
    bool SetWindowVolumeBtn(int iScreen, int iWindow, bool bOn);
    /// Whether the audio button shows "on"; false for a new window and without such a window.
    bool GetWindowVolumeBtnStatus(int iScreen, int iWindow) const;
    /// The widget to put video into; it follows the window's size up to 16000 pixels in the longer direction
    /// and is enlarged beyond. It is made when it is first asked for and shown through a proxy of the scene:
    /// it has no parent widget, and what lies in it must not be native. Null without such a window and after
    /// DeleteWindowWidget.
    QWidget* GetWindowWidget(int iScreen, int iWindow) const;
    /// Deletes the video widget with all that the client put into it, for good. @return whether there was
    /// one, asked for already or not
    bool DeleteWindowWidget(int iScreen, int iWindow);
    /// Sets the text in the middle of the video area, for as long as no video covers it.
    /// @return whether the window exists and its video widget was not deleted
    bool SetWindowVideoWidgetText(int iScreen, int iWindow, const QString& text);
    /// Whether the video widget repaints itself.
    /// @return whether the window exists and its video widget was not deleted
    bool SetWindowUpdateEnable(int iScreen, int iWindow, bool bEnable);
    /// @}

    QSize sizeHint() const override;

Q_SIGNALS:
    /// A drag-enter or drop event reached a screen; accept it in the slot to take the drop.
    void SignalScreenEvent(int iScreen, QEvent* event);
    /// The operator selected a screen, also when it was selected before.
    void SignalScreenSelectedChanged(int iScreen);
    void SignalScreenCloseBtnClicked(int iScreen); ///< never emitted by this wall
    void SignalScreenRightClick(int iScreen); ///< a context menu is wanted on a screen's empty part
    /// A mouse, wheel, key, context-menu or drag-and-drop event reached a window, after the wall acted on
    /// it. Positions in it count from the window's upper left corner.
    void SignalWindowEvent(int iScreen, int iWindow, QEvent* event);
    /// The operator changed the selection of a screen's windows; ask GetSelectedWindowIndexs().
    void SignalWindowSelectedChanged(int iScreen);
    void SignalWindowDoubleClicked(int iScreen); ///< a window that is not editable was double-clicked
    void SignalWindowClicked(); ///< a window was clicked and the selection stayed as it was
    void SignalWindowCloseBtnClicked(int iScreen, int iWindow); ///< the window stays until it is deleted
    void SignalWindowVolumeBtnClicked(int iScreen, int iWindow); ///< the button stays until it is set
    /// A window that was opened editable has another place, by the operator or by SetWindowScale().
    /// @param rect the new place as fractions of the screen
    void SignalWindowGeoChanged(int iScreen, int iWindow, const KvGUI::StructScaleRect& rect);
    /// The operator drew an area on a screen; open a window there if you like.
    void SignalDrawAreaOpenWindow(int iScreen, const KvGUI::StructScaleRect& rect);
    /// The operator drew a 3D-positioning frame from the first point to the second, in 1/8192 of the
    /// screen's width (x) and height (y).
    void SignalWindow3DSite(int iScreen, int iStartX, int iStartY, int iEndX, int iEndY);
    /// A mouse, wheel, key or context-menu event reached an overlay: 0 ... 7 the rolling ones,
    /// 8 ... 15 the plain ones, each in the order of their records.
    void SignalLabelEvent(int iScreen, int iLabel, QEvent* event);
    /// A wheel event anywhere on the wall: its vertical angle in 1/8 degree, its place in widget pixels.
    /// The wall has zoomed already.
    void SignalWheelEvent(int iDelta, const QPoint& pos);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    KvTVWallNormalWndPrivate* d_func() const { return m_pPrivate; }

    KvTVWallNormalWndPrivate* const m_pPrivate;
    int m_iRows = 0;
    int m_iCols = 0;
};

} // namespace UICommonMdl
