#pragma once

#include "ScreenBackdrop.h"
#include "ScreenGestures.h"
#include "WallMiniature.h"
#include "WindowTitle.h"

#include <Platform/BasicUIComponents/StructOSDInfo.h>
#include <Platform/BasicUIComponents/StructScaleRect.h>

#include <QGraphicsObject>
#include <QIcon>
#include <QPointer>
#include <QVariant>
#include <vector>

namespace UICommonMdl {

class KvTVWallNormalFrame;
class KvTVWallNormalView;
class KvTVWallNormalWindow;
class OverlayLabels;
struct NormalWallLook;

/// A monitor of the normal wall: an item that holds the monitor's windows and paints its cells, icon and
/// title. The wall adds its index to its signals.
///
/// A removed window is out of the list and hidden at once, and deleted later, because it may be the one
/// that is emitting. The overlays are widgets over the view, in a widget that covers this screen only.
class KvTVWallNormalScreen : public QGraphicsObject, private ScreenGestures::Screen
{
    Q_OBJECT

public:
    enum
    {
        Type = UserType + 1
    };

    KvTVWallNormalScreen(
        KvTVWallNormalView* view, int rowSpan, int columnSpan, const KvGUI::StructScaleRect& scale);
    ~KvTVWallNormalScreen() override;

    /// @name The screen itself
    /// @{
    const NormalWallLook& Look() const;
    int GetRowSpan() const { return m_iRowSpan; } ///< rows of cells
    int GetColumnSpan() const { return m_iColumnSpan; } ///< columns of cells
    const KvGUI::StructScaleRect& GetScale() const { return m_scale; }
    QSize Size() const override { return m_size; } ///< pixels
    /// Computes its pixels, and its windows', for a wall of @p wall pixels that starts at @p origin.
    void PlaceOnWall(const QSize& wall, const QPoint& origin);
    bool IsSelected() const { return m_bSelected; }
    void SetSelected(bool selected); ///< unselecting deselects its windows
    void SelectUnlessSelected() override; ///< by the operator; reports
    const QVariant& GetUserData() const { return m_userData; }
    void SetUserData(const QVariant& userData) { m_userData = userData; }
    void SetIcon(const QIcon& icon);
    void SetTitle(const QString& title);
    void SetContentText(const QString& text);
    void SetOSDInfo(const std::vector<KvGUI::StructOSDInfo>& infos);
    void SetAudioButtonsVisible(bool visible);
    bool IsFree() const { return m_bFree; } ///< drags end anywhere, not on the screen's cells only
    void SetFree(bool free) { m_bFree = free; }
    bool IsPositioning() const override { return m_bPositioning; } ///< drags over windows draw 3D frames
    void SetPositioning(bool positioning);
    void UpdateLook(); ///< in the view's present colours
    void UpdateTexts(); ///< in the present language
    WallMiniature::Screen Miniature() const;
    void Remove(); ///< takes it off the wall, disconnected already; it is deleted later
    /// @}

    /// @name Windows by index; a wrong index gives null or false
    /// @{
    int GetWindowCount() const { return m_windows.size(); }
    KvTVWallNormalWindow* GetWindow(int index) const { return m_windows.value(index); }
    int OpenWindow(const KvGUI::StructScaleRect& scale, const QVariant& userData, bool showTitle);
    bool DeleteWindow(int index);
    void DeleteAllWindows();
    QList<int> GetWindowIndexs(bool selected) const { return m_gestures.WindowIndexes(selected); }
    void SelectOnly(int index, bool selected);
    void DeselectWindows() { m_gestures.DeselectWindows(); }
    bool SetWindowZValue(int index, double z);
    double GetMaxWindowZValue() const;
    void AddFocusStops(QVector<QGraphicsItem*>& stops) const; ///< in the order of the Tab key
    /// @}

    /// @name Events that the view brings; a slot may remove the screen or the wall
    /// @{
    void HandleWindowEvent(KvTVWallNormalWindow* window, QEvent* event); ///< positions in the window
    /// On the empty part, positions in the screen: of the mouse, a context menu, a drag that enters or a
    /// drop.
    void HandleEvent(QEvent* event);
    bool CancelDrawing(); ///< @return whether there was something to cancel
    /// @}

    int type() const override { return Type; }
    QRectF boundingRect() const override { return QRectF(QPointF(0, 0), m_size); }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

Q_SIGNALS:
    void SignalWindowCloseBtnClicked(int window);
    void SignalWindowGeoChanged(int window, const KvGUI::StructScaleRect& rect);
    void SignalWindowEvent(int window, QEvent* event);
    void SignalLabelEvent(int label, QEvent* event);
    void SignalSelected();
    void SignalRightClick();
    void SignalWindowSelectedChanged();
    void SignalDrawAreaOpenWindow(const KvGUI::StructScaleRect& rect);
    void SignalScreenDropEvent(QEvent* event);
    void SignalWindowVolumeBtnClicked(int window);
    void SignalWindowDoubleClicked();
    void SignalWindowClicked();
    void Signal3DSite(int startX, int startY, int endX, int endY);
    void SignalArrangementChanged(); ///< windows, their places, order or selection; for the library's own use

private:
    void PlaceCover();
    QRect HeadingRect() const;
    void PaintHeading(QPainter& painter);

    int SelectionMode() const override;
    int WindowCount() const override { return m_windows.size(); }
    int IndexOf(const QObject* window) const override;
    QRect WindowGeometry(int window) const override;
    bool IsWindowSelected(int window) const override;
    void SetWindowSelected(int window, bool selected) override;
    void SelectByPress() override;
    QWidget* Canvas() const override;
    QPoint OriginOnCanvas() const override { return pos().toPoint(); }
    QColor BandColor() const override;
    void ReportSelectionChanged() override { Q_EMIT SignalWindowSelectedChanged(); }
    void ReportClick() override { Q_EMIT SignalWindowClicked(); }
    void ReportArea(const KvGUI::StructScaleRect& rect) override { Q_EMIT SignalDrawAreaOpenWindow(rect); }
    void ReportSite(const QPoint& from, const QPoint& to) override;

    KvTVWallNormalView* const m_pView;
    const int m_iRowSpan;
    const int m_iColumnSpan;
    const KvGUI::StructScaleRect m_scale;
    QSize m_size;
    QVariant m_userData;
    QIcon m_icon;
    QString m_strTitle;
    WindowTitle m_heading;
    bool m_bSelected = false;
    bool m_bFree = true;
    bool m_bPositioning = false;
    QGraphicsItem* m_pPane; // the windows' parent; their z-values count among themselves only
    QList<KvTVWallNormalWindow*> m_windows;
    KvTVWallNormalFrame* m_pFrame = nullptr; // of a selected screen
    QPointer<QWidget> m_pCover; // of the overlays
    OverlayLabels* m_pOverlays = nullptr; // a child of the cover
    ScreenBackdrop m_backdrop;
    ScreenGestures m_gestures;
};

} // namespace UICommonMdl
