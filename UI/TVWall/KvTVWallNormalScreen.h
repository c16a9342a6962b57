#pragma once

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
struct NormalWallLook;

/// A monitor of the normal wall: an item that holds the monitor's windows and paints its cells, icon and
/// title. The wall adds its index to its signals.
///
/// A removed window is out of the list and hidden at once, and deleted later, because it may be the one
/// that is emitting.
class KvTVWallNormalScreen : public QGraphicsObject
{
    Q_OBJECT

public:
    KvTVWallNormalScreen(
        KvTVWallNormalView* view, int rowSpan, int columnSpan, const KvGUI::StructScaleRect& scale);

    /// @name The screen itself
    /// @{
    const NormalWallLook& Look() const;
    const KvGUI::StructScaleRect& GetScale() const { return m_scale; }
    QSize Size() const { return m_size; } ///< pixels
    void PlaceOnWall(const QRect& wall); ///< computes its pixels, and its windows', from the wall's
    bool IsSelected() const { return m_bSelected; }
    void SetSelected(bool selected); ///< unselecting deselects its windows
    const QVariant& GetUserData() const { return m_userData; }
    void SetUserData(const QVariant& userData) { m_userData = userData; }
    void SetIcon(const QIcon& icon);
    void SetTitle(const QString& title);
    void SetContentText(const QString& text);
    bool IsFree() const { return m_bFree; } ///< drags end anywhere, not on the screen's cells only
    void SetFree(bool free) { m_bFree = free; }
    void SetPositioning(bool positioning) { m_bPositioning = positioning; }
    /// @}

    /// @name Windows by index; a wrong index gives null or false
    /// @{
    int GetWindowCount() const { return m_windows.size(); }
    KvTVWallNormalWindow* GetWindow(int index) const { return m_windows.value(index); }
    int OpenWindow(const KvGUI::StructScaleRect& scale, const QVariant& userData, bool showTitle);
    bool DeleteWindow(int index);
    void DeleteAllWindows();
    QList<int> GetWindowIndexs(bool selected) const; ///< positions whose selected flag is so
    void SelectOnly(int index, bool selected);
    void DeselectWindows();
    bool SetWindowZValue(int index, double z);
    double GetMaxWindowZValue() const;
    /// @}

    QRectF boundingRect() const override { return QRectF(QPointF(0, 0), m_size); }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

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

private:
    int IndexOf(const QObject* window) const;

    KvTVWallNormalView* const m_pView;
    const int m_iRowSpan;
    const int m_iColumnSpan;
    const KvGUI::StructScaleRect m_scale;
    QSize m_size;
    QVariant m_userData;
    QIcon m_icon;
    QString m_strTitle;
    QString m_strContentText;
    bool m_bSelected = false;
    bool m_bFree = true;
    bool m_bPositioning = false;
    QGraphicsItem* m_pPane; // the windows' parent; their z-values count among themselves only
    QList<KvTVWallNormalWindow*> m_windows;
    KvTVWallNormalFrame* m_pFrame = nullptr; // of a selected screen
};

} // namespace UICommonMdl
