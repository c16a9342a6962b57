#pragma once

#include "EventHandling.h"
#include "KvTVWallNormalScreen.h"
#include "KvTVWallNormalWindow.h"
#include "NormalWallLook.h"

#include <QGraphicsView>
#include <QHash>
#include <QPair>
#include <QPixmap>
#include <QPointer>

namespace UICommonMdl {

/// The graphics view of a normal wall: it brings the operator's events to the window or screen that they are
/// meant for, as the widget events that they are, and holds what all items share.
///
/// Scene coordinates are pixels of the viewport: zooming and panning place the screens again, so that lines,
/// text and buttons keep their size and stay sharp.
class KvTVWallNormalView : public QGraphicsView, private NormalWallLook
{
    Q_OBJECT
    Q_PROPERTY(QColor gutterColor MEMBER gutterColor)
    Q_PROPERTY(QColor windowFrameColor MEMBER windowFrameColor)
    Q_PROPERTY(QColor windowSelectedFrameColor MEMBER windowSelectedFrameColor)
    Q_PROPERTY(QColor windowColor MEMBER windowColor)
    Q_PROPERTY(QColor titleColor MEMBER titleColor)
    Q_PROPERTY(QColor titleTextColor MEMBER titleTextColor)
    Q_PROPERTY(QColor videoColor MEMBER videoColor)
    Q_PROPERTY(QColor videoTextColor MEMBER videoTextColor)
    Q_PROPERTY(QColor screenTextColor MEMBER screenTextColor)
    Q_PROPERTY(QColor bandColor MEMBER bandColor)
    Q_PROPERTY(QColor buttonHoverColor MEMBER buttonHoverColor)
    Q_PROPERTY(QColor buttonPressedColor MEMBER buttonPressedColor)
    Q_PROPERTY(QColor closeHoverColor MEMBER closeHoverColor)
    Q_PROPERTY(QColor closePressedColor MEMBER closePressedColor)
    Q_PROPERTY(QString volumeOffIcon MEMBER volumeOffIcon)
    Q_PROPERTY(QString volumeOnIcon MEMBER volumeOnIcon)
    Q_PROPERTY(QString snapIcon MEMBER snapIcon)
    Q_PROPERTY(QString snapRestoreIcon MEMBER snapRestoreIcon)
    Q_PROPERTY(QString maxIcon MEMBER maxIcon)
    Q_PROPERTY(QString maxRestoreIcon MEMBER maxRestoreIcon)
    Q_PROPERTY(QString closeIcon MEMBER closeIcon)
    Q_PROPERTY(QString closeHoverIcon MEMBER closeHoverIcon)

public:
    explicit KvTVWallNormalView(QWidget* parent);

    EventHandling& Handling() { return m_handling; } ///< of the view's events, which the items get
    /// The wall ends: the view goes with it, or, when a slot of the wall's signals has deleted it, when done.
    void DeleteWithWall();

    const QList<KvTVWallNormalScreen*>& Screens() const { return m_screens; } ///< by index
    void AddScreen(KvTVWallNormalScreen* screen);
    void DeleteAllScreens();

    const NormalWallLook& Look() const { return *this; }
    /// A picture file at @p side x @p side pixels, sharp on the view's screen; null where there is none.
    const QPixmap& Icon(const QString& file, int side);

    int SelectionMode() const { return m_iSelectionMode; }
    void SetSelectionMode(int mode) { m_iSelectionMode = mode; }
    bool AreAudioButtonsVisible() const { return m_bAudioButtons; }
    void SetAudioButtonsVisible(bool visible);

    /// Gives up what the mouse holds: a window that is dragged, or a frame that is drawn.
    void CancelMouse();

Q_SIGNALS:
    /// A wheel event that nothing on the wall has taken.
    void SignalWheel(int delta, const QPoint& pos);

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void drawBackground(QPainter* painter, const QRectF& exposed) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    /// What lies at a point, or holds the mouse; a window comes with its screen.
    struct Target
    {
        QPointer<KvTVWallNormalScreen> screen;
        QPointer<KvTVWallNormalWindow> window;

        QPoint Origin() const; ///< in the viewport
        void Deliver(QEvent* event) const; ///< with positions from the origin
        bool operator==(const Target& other) const
        {
            return screen == other.screen && window == other.window;
        }
    };

    Target TargetAt(const QPoint& pos) const;
    static Target TargetOf(QGraphicsItem* item);
    bool IsHeld() const { return m_held.screen != nullptr; }
    void PressOnTarget(QMouseEvent* event);
    void SendMouse(const QMouseEvent& event);
    void ShowCursorAt(const QPoint& pos);
    bool MoveFocus(bool next);
    void UpdateLook();
    void EnterDrag(const Target& target, const QDropEvent& event);
    void LeaveDrag();
    bool OfferDrag(const Target& target, const QDropEvent& event);

    QList<KvTVWallNormalScreen*> m_screens;
    QHash<QPair<QString, int>, QPixmap> m_icons; // by file and side
    qreal m_dIconDensity = 1.0; // for which they were made
    int m_iSelectionMode = 0;
    bool m_bAudioButtons = true;
    EventHandling m_handling;
    Target m_held; // has the mouse until all buttons are released
    bool m_bOwnCursor = false;
    Target m_dragOver; // below something that is dragged from elsewhere
    Target m_dragReceiver; // has accepted it: that window, or its screen
    Qt::DropAction m_dragAction = Qt::IgnoreAction;
};

} // namespace UICommonMdl
