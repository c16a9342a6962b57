#pragma once

#include "ScreenOverlay.h"
#include "WallMiniature.h"
#include "WallSelection.h"

#include <Platform/BasicUIComponents/StructOSDInfo.h>
#include <Platform/BasicUIComponents/StructScaleRect.h>

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QMdiArea>
#include <QPixmap>
#include <QPointer>
#include <QVariant>
#include <array>
#include <string>
#include <vector>

class QLabel;

namespace UICommonMdl {

class KvTVWallDisplayBand;
class KvTVWallDisplayFrame;
class KvTVWallDisplayWindow;
class KvTVWallDisplayWnd;
class QOSDShowLabel;

/// A monitor of the display wall: it holds the monitor's windows and overlays, paints its cells, selects
/// windows by click and band, and lets the operator draw areas. The wall adds its index to its signals.
///
/// Windows are children of the viewport and not registered with the base class, so that nothing of its own
/// conduct (activation, raising, shortcuts, placement, scroll bars) touches them. A removed window is out
/// of the list and hidden at once, and deleted later, because it may be the one that is emitting.
class KvTVWallDisplayScreen : public QMdiArea
{
    Q_OBJECT

public:
    KvTVWallDisplayScreen(
        KvTVWallDisplayWnd* wall, int rowSpan, int columnSpan, const KvGUI::StructScaleRect& scale,
        const QVariant& userData);
    ~KvTVWallDisplayScreen() override;

    /// @name The screen itself
    /// @{
    const KvTVWallDisplayWnd* GetWall() const { return m_pWall; }
    int GetRowSpan() const { return m_iRowSpan; } ///< rows of cells
    int GetColumnSpan() const { return m_iColumnSpan; } ///< columns of cells
    const KvGUI::StructScaleRect& GetScale() const { return m_scale; }
    void PlaceOnWall(); ///< computes its pixels, and its windows', from the wall's present size
    void SetNoGap(bool noGap) { m_bNoGap = noGap; }
    bool IsSelected() const { return m_bSelected; }
    void SetSelected(bool selected); ///< unselecting deselects its windows
    void SelectUnlessSelected(); ///< by the operator; reports. A slot may delete the screen.
    bool IsPositioning() const { return m_bPositioning; } ///< drags over windows draw 3D frames
    void SetPositioning(bool positioning);
    const QVariant& GetUserData() const { return m_userData; }
    void SetUserData(const QVariant& userData) { m_userData = userData; }
    void SetContentText(const QString& text);
    void SetBackground(const QColor& color, bool show);
    void SetBaseMap(const std::string& path, bool show);
    void SetOSDInfo(const std::vector<KvGUI::StructOSDInfo>& infos);
    WallMiniature::Screen Miniature() const;
    void UpdateLook(); ///< paints the screen and its windows again
    /// @}

    /// @name Windows by index; a wrong index gives null or false
    /// @{
    int GetWindowCount() const { return m_windows.size(); }
    KvTVWallDisplayWindow* GetWindow(int index) const { return m_windows.value(index); }
    int OpenWindow(const KvGUI::StructScaleRect& scale, const QVariant& userData, bool showTitle);
    bool DeleteWindow(int index);
    void DeleteAllWindows();
    QList<int> GetWindowIndexs(bool selected) const; ///< positions whose selected flag is so
    void SelectOnly(int index, bool selected);
    void DeselectWindows();
    bool SetWindowZValue(int index, int z, bool reorder);
    int GetMaxWindowZValue() const;
    /// @}

Q_SIGNALS:
    void SignalWindowCloseBtnClicked(int window);
    void SignalWindowGeoChanged(int window, const KvGUI::StructScaleRect& rect);
    void SignalWindowEvent(int window, QEvent* event);
    void SignalLabelEvent(int label, QEvent* event);
    void SignalSelected();
    void SignalWindowSelectedChanged();
    void SignalDrawAreaOpenWindow(const KvGUI::StructScaleRect& rect);
    void SignalScreenDropEvent(QEvent* event);
    void SignalWindowVolumeBtnClicked(int window);
    void SignalWindowDoubleClicked();
    void SignalWindowClicked();
    void Signal3DSite(int startX, int startY, int endX, int endY);
    void SignalArrangementChanged(); ///< windows, their places, order or selection; for the library's own use

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void childEvent(QChildEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private Q_SLOTS:
    void OnWindowCloseBtnClicked();
    void OnWindowVolumeBtnClicked();
    void OnWindowGeoChanged(const KvGUI::StructScaleRect& rect);

private:
    /// Watches windows and overlays. An object of its own: the screen itself is already the filter of its
    /// viewport, and every event shall be reported once.
    class Watcher;
    /// What the left button, held, draws from the press point.
    enum class Drawing
    {
        Nothing,
        Area,
        Selection,
        Site
    };

    bool WatchWindow(KvTVWallDisplayWindow* window, QEvent* event);
    void ActOnWindowEvent(KvTVWallDisplayWindow* window, QEvent* event);
    void PressWindow(KvTVWallDisplayWindow* window, const QMouseEvent& event);
    void MoveOnWindow(const QMouseEvent& event);
    void ReleaseWindow(KvTVWallDisplayWindow* window, const QMouseEvent& event);
    void ClickWindow(KvTVWallDisplayWindow* window);
    bool WatchLabel(const QObject* watched, QEvent* event);
    bool IsSelectable(const KvTVWallDisplayWindow* window, Qt::MouseButton button) const;
    int IndexOf(const QObject* window) const;

    bool Select(const QVector<int>& targets, bool fromPress);
    void DrawTo(const QPoint& pos);
    void EndDrawing(const QPoint& pos);
    void CancelDrawing();
    void SelectInBand(const QPoint& from, const QPoint& to);
    QPoint InsideScreen(const QPoint& pos) const;

    void PlaceWindows();
    void RaiseWindow(KvTVWallDisplayWindow* window);
    void RaiseOverlays();
    void ShowFrame();
    void ShowPlainOverlay(int slot, const KvGUI::StructOSDInfo& info);
    void ShowRollingOverlay(int slot, const KvGUI::StructOSDInfo& info);
    void ShowOverlay(QLabel* label, const QRect& geometry);
    void DropOverlays();
    void HideOverlays();
    void UpdateRolling();
    void PaintContentText(QPainter& painter) const;
    void PaintBaseMap(QPainter& painter);
    void PaintCells(QPainter& painter, const QRect& exposed) const;

    KvTVWallDisplayWnd* const m_pWall;
    const int m_iRowSpan;
    const int m_iColumnSpan;
    QVariant m_userData;
    const KvGUI::StructScaleRect m_scale;
    QString m_strContentText;
    bool m_bSelected = false;
    QList<KvTVWallDisplayWindow*> m_windows;
    QSize m_placedSize; // for which the windows were placed last
    Watcher* const m_pWatcher;

    QPoint m_pressPoint;
    QPointer<KvTVWallDisplayWindow> m_pPressed; // the window that a click may end on
    Drawing m_drawing = Drawing::Nothing;
    bool m_bSelectOnly = false;
    bool m_bBandDragging = false;
    KvTVWallDisplayBand* m_pDrawBand = nullptr; // area and 3D frame
    KvTVWallDisplayBand* m_pSelectionBand = nullptr;
    KvTVWallDisplayFrame* m_pFrame = nullptr;

    bool m_bShowBackground = false;
    QColor m_background;
    std::array<QOSDShowLabel*, ScreenOverlay::SlotsOfAKind> m_rollingLabels{};
    std::array<QLabel*, ScreenOverlay::SlotsOfAKind> m_plainLabels{};
    QBasicTimer m_rollTimer;
    QElapsedTimer m_rollClock;
    bool m_bShowBaseMap = false;
    std::string m_strBaseMap;
    bool m_bBaseMapLoaded = false;
    QPixmap m_baseMap;
    QPixmap m_scaledBaseMap;
    bool m_bNoGap = false;
    bool m_bPositioning = false;
};

} // namespace UICommonMdl
