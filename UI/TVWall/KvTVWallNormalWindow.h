#pragma once

#include "WindowDrag.h"
#include "WindowPlacement.h"
#include "WindowTitle.h"

#include <QGraphicsObject>
#include <QPointer>
#include <QVariant>

class QGraphicsProxyWidget;
class QMouseEvent;

namespace UICommonMdl {

class KvTVWallDisplayVideo;
class KvTVWallNormalFrame;
class KvTVWallNormalScreen;
class KvTVWallNormalTitleItem;
class KvTVWallNormalView;

/// A video window on a screen of the normal wall: an item with a title bar and a video area.
///
/// The window keeps its place and its states and is moved and resized by the mouse; selection is the
/// screen's business. The video area is painted until the client asks for its widget, which then lies over
/// it in a proxy.
class KvTVWallNormalWindow : public QGraphicsObject
{
    Q_OBJECT

public:
    enum
    {
        Type = UserType + 2
    };

    KvTVWallNormalWindow(
        KvTVWallNormalScreen* screen, KvTVWallNormalView* view, QGraphicsItem* parent, double precision,
        const KvGUI::StructScaleRect& rect, const QVariant& userData);
    ~KvTVWallNormalWindow() override;

    KvTVWallNormalScreen* Screen() const { return m_pScreen; }
    const KvGUI::StructScaleRect& GetScale() const { return m_placement.Scale(); }
    /// Makes @p rect the window's rectangle, by the client or the operator: unless it is equal within the
    /// precision, the window is placed there, is no longer maximised or snapped, and reports it.
    void SetScale(const KvGUI::StructScaleRect& rect);
    /// Computes the window's pixels from its rectangle and the screen's present size.
    void PlaceOnScreen();
    QRect Geometry() const { return {pos().toPoint(), m_size}; } ///< in the screen

    bool IsSelected() const { return m_bSelected; }
    void SetSelected(bool selected);
    bool IsVolumeOn() const { return m_bVolumeOn; }
    void SetVolumeOn(bool on);
    const QVariant& GetUserData() const { return m_userData; }
    void SetUserData(const QVariant& userData) { m_userData = userData; }
    void ShowNumber(int number); ///< in the title, from 1
    void SetContentText(const QString& text); ///< shown behind the title
    void SetAudioButtonVisible(bool visible);
    void UpdateLook(); ///< in the view's present colours
    void UpdateTexts(); ///< in the present language
    void AddFocusStops(QVector<QGraphicsItem*>& stops); ///< the window and its buttons

    /// @name The video area; null or false when it was deleted
    /// @{
    KvTVWallDisplayVideo* GetVideo(); ///< made when it is first asked for
    bool DeleteVideo();
    bool SetVideoText(const QString& text);
    bool SetVideoUpdates(bool enable);
    /// @}

    /// Does what the event means to the window itself: drags, a double-click. Positions are the window's. A
    /// slot may remove the window.
    void HandleEvent(QEvent* event);
    void CancelDrag(); ///< gives a drag up: the window goes back to its rectangle
    Qt::CursorShape CursorAt(const QPoint& pos) const;
    void ClickButton(WindowTitle::Button button); ///< as above

    int type() const override { return Type; }
    QRectF boundingRect() const override { return QRectF(QPointF(0, 0), m_size); }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

Q_SIGNALS:
    void SignalCloseBtnClicked();
    void SignalVolemeBtnClicked();
    void SignalGeoChanged(const KvGUI::StructScaleRect& rect);
    void SignalDoubleClickedSelectedChanged();
    void SignalArrangementChanged(); ///< place or selection; for the library's own use

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void ShowPlacement(bool changed);
    void SetGeometry(const QRect& geometry);
    void UpdateTitle();
    void PlaceVideo();
    void ColorVideo();
    Qt::Edges EdgesForMouse(const QPoint& pos) const;
    WindowDrag::Field Field() const;
    bool KeepsToCells(const QMouseEvent& event) const;
    void Press(const QMouseEvent& event);
    void DragTo(const QMouseEvent& event);
    void EndDrag(const QMouseEvent& event);
    void DoubleClick(const QMouseEvent& event);

    KvTVWallNormalScreen* const m_pScreen;
    KvTVWallNormalView* const m_pView;
    KvTVWallNormalTitleItem* const m_pTitle;
    WindowPlacement m_placement;
    WindowDrag m_drag;
    QSize m_size;
    QVariant m_userData;
    bool m_bSelected = false;
    bool m_bVolumeOn = false;
    bool m_bKeyboardFocus = false; // the focus came by keyboard, so the eye has to find it
    int m_iNumber = 0; ///< 0: none is shown
    QString m_strContent;
    KvTVWallNormalFrame* m_pFrame = nullptr; // of a selected window
    QString m_strVideoText;
    bool m_bVideoDeleted = false;
    bool m_bVideoUpdates = true;
    QPointer<QGraphicsProxyWidget> m_pProxy; // goes with the video
    QPointer<KvTVWallDisplayVideo> m_pVideo; // the client has it in hand and may delete it
};

} // namespace UICommonMdl
