#pragma once

#include "EventHandling.h"
#include "ScreenBackdrop.h"
#include "ScreenGestures.h"
#include "WallMiniature.h"

#include <Platform/BasicUIComponents/StructOSDInfo.h>
#include <Platform/BasicUIComponents/StructScaleRect.h>

#include <QMdiArea>
#include <QVariant>
#include <string>
#include <vector>

namespace UICommonMdl {

class KvTVWallDisplayFrame;
class KvTVWallDisplayWindow;
class KvTVWallDisplayWnd;
class OverlayLabels;

/// A monitor of the display wall: it holds the monitor's windows and overlays, paints its cells, selects
/// windows by click and band, and lets the operator draw areas. The wall adds its index to its signals.
///
/// Windows are children of the viewport and not registered with the base class, so that nothing of its own
/// conduct (activation, raising, shortcuts, placement, scroll bars) touches them. A removed window is out
/// of the list and hidden at once, and deleted later, because it may be the one that is emitting.
class KvTVWallDisplayScreen : public QMdiArea, private ScreenGestures::Screen
{
    Q_OBJECT

public:
    KvTVWallDisplayScreen(
        KvTVWallDisplayWnd* wall, int rowSpan, int columnSpan, const KvGUI::StructScaleRect& scale,
        const QVariant& userData);
    ~KvTVWallDisplayScreen() override;
    /// Takes the screen off the wall, with its windows. It is deleted as soon as Qt is done with the event
    /// that is being handled.
    void Remove();
    void DeleteWithWall(); ///< the wall ends: as Remove(), but at once where no event is being handled

    /// @name The screen itself
    /// @{
    /// Null when the wall was deleted and the screen handles its last event, hidden.
    const KvTVWallDisplayWnd* GetWall() const { return m_pWall; }
    int GetRowSpan() const { return m_iRowSpan; } ///< rows of cells
    int GetColumnSpan() const { return m_iColumnSpan; } ///< columns of cells
    const KvGUI::StructScaleRect& GetScale() const { return m_scale; }
    void PlaceOnWall(); ///< computes its pixels, and its windows', from the wall's present size
    void SetNoGap(bool noGap) { m_bNoGap = noGap; }
    bool IsSelected() const { return m_bSelected; }
    void SetSelected(bool selected); ///< unselecting deselects its windows
    void SelectUnlessSelected() override; ///< by the operator; reports. A slot may delete the screen.
    bool IsPositioning() const override { return m_bPositioning; } ///< drags over windows draw 3D frames
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
    QList<int> GetWindowIndexs(bool selected) const { return m_gestures.WindowIndexes(selected); }
    void SelectOnly(int index, bool selected);
    void DeselectWindows() { m_gestures.DeselectWindows(); }
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
    void SignalRightClick();
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

private Q_SLOTS:
    void OnLabelEvent(int label, QEvent* event);

private:
    /// Watches windows. An object of its own: the screen itself is already the filter of its viewport, and
    /// every event shall be reported once.
    class Watcher;

    bool WatchWindow(KvTVWallDisplayWindow* window, QEvent* event);

    int SelectionMode() const override;
    QSize Size() const override { return size(); }
    int WindowCount() const override { return m_windows.size(); }
    int IndexOf(const QObject* window) const override;
    QRect WindowGeometry(int window) const override;
    bool IsWindowSelected(int window) const override;
    void SetWindowSelected(int window, bool selected) override;
    void SelectByPress() override;
    QWidget* Canvas() const override { return viewport(); }
    QPoint OriginOnCanvas() const override { return {}; }
    QColor BandColor() const override;
    void ReportSelectionChanged() override { Q_EMIT SignalWindowSelectedChanged(); }
    void ReportClick() override { Q_EMIT SignalWindowClicked(); }
    void ReportArea(const KvGUI::StructScaleRect& rect) override { Q_EMIT SignalDrawAreaOpenWindow(rect); }
    void ReportSite(const QPoint& from, const QPoint& to) override;

    void PlaceWindows();
    void RaiseWindow(KvTVWallDisplayWindow* window);
    void RaiseOverlays();

    const KvTVWallDisplayWnd* m_pWall;
    EventHandling m_handling;
    const int m_iRowSpan;
    const int m_iColumnSpan;
    QVariant m_userData;
    const KvGUI::StructScaleRect m_scale;
    bool m_bSelected = false;
    QList<KvTVWallDisplayWindow*> m_windows;
    QSize m_placedSize; // for which the windows were placed last
    Watcher* const m_pWatcher;

    KvTVWallDisplayFrame* m_pFrame = nullptr;
    OverlayLabels* const m_pOverlays;
    ScreenBackdrop m_backdrop;
    ScreenGestures m_gestures;
    bool m_bNoGap = false;
    bool m_bPositioning = false;
};

} // namespace UICommonMdl
