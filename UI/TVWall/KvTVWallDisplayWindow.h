#pragma once

#include "WindowDrag.h"
#include "WindowPlacement.h"

#include <QMdiSubWindow>
#include <QPointer>
#include <QVariant>

namespace UICommonMdl {

class KvTVWallDisplayFrame;
class KvTVWallDisplayScreen;
class KvTVWallDisplayTitleItem;
class KvTVWallDisplayVideo;

/// A video window on a screen of the display wall: a title bar with four buttons, and a video area.
///
/// The window keeps its scale rectangle and its states, paints itself, and is moved and resized by the
/// mouse. Selection is the screen's business, which watches the events that reach the window. Nothing of the
/// base class's own conduct is left: no system menu or shortcut, no activation or raising on a click, no
/// window states, no closing.
class KvTVWallDisplayWindow : public QMdiSubWindow
{
    Q_OBJECT

public:
    /// @param screen the owner; the window is a child of its viewport, and hidden
    /// @param precision largest difference of an edge at which two rectangles are equal
    KvTVWallDisplayWindow(
        KvTVWallDisplayScreen* screen, double precision, const KvGUI::StructScaleRect& rect,
        const QVariant& userData);

    const KvGUI::StructScaleRect& GetScale() const { return m_placement.Scale(); }
    /// Makes @p rect the window's rectangle, by the client or the operator: unless it is equal within the
    /// precision, the window is placed there, is no longer maximised or snapped, and reports it.
    void SetScale(const KvGUI::StructScaleRect& rect);
    /// Computes the window's pixels from its rectangle and the screen's present size.
    void PlaceOnScreen();

    bool IsSelected() const { return m_bSelected; }
    void SetSelected(bool selected);
    void UpdateLook(); ///< paints the window again in the wall's colours
    bool IsVolumeOn() const { return m_bVolumeOn; }
    void SetVolumeOn(bool on);
    int GetZValue() const { return m_iZValue; }
    void SetZValue(int z) { m_iZValue = z; }
    const QVariant& GetUserData() const { return m_userData; }
    void SetUserData(const QVariant& userData) { m_userData = userData; }

    void ShowNumber(int number); ///< in the title, from 1
    void SetContentText(const QString& text); ///< shown behind the title
    KvTVWallDisplayVideo* GetVideo() const; ///< null when it was deleted
    bool DeleteVideo(); ///< false when there is none

    /// Whether the mouse holds the window to move or resize it.
    bool IsDragged() const { return m_drag.IsActive(); }
    /// Gives a drag up: the window goes back to its rectangle.
    void CancelDrag();

Q_SIGNALS:
    void SignalCloseBtnClicked();
    void SignalVolemeBtnClicked();
    void SignalGeoChanged(const KvGUI::StructScaleRect& rect);
    void SignalDoubleClickedSelectedChanged();

public Q_SLOTS:
    void OnShowMaxOrNormal();
    void OnWindowSelfAdaptionBtnClicked();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void childEvent(QChildEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void ShowPlacement(bool changed);
    void UpdateTitle();
    void LayOut();
    Qt::Edges EdgesForMouse(const QPoint& pos) const;
    void ShowCursorAt(const QPoint& pos);
    WindowDrag::Field Field() const;
    void DragTo(const QPoint& globalPos, bool keepToCells);
    void EndDrag(const QPoint& globalPos, bool keepToCells);

    KvTVWallDisplayScreen* const m_pScreen;
    KvTVWallDisplayTitleItem* m_pTitle;
    QPointer<KvTVWallDisplayVideo> m_pVideo; // the client has it in hand and may delete it
    KvTVWallDisplayFrame* m_pFrame = nullptr; // of a selected window; the video covers what lies below it
    QVariant m_userData;
    int m_iZValue = 0;
    WindowPlacement m_placement;
    bool m_bSelected = false;
    bool m_bVolumeOn = false;
    bool m_bKeyboardFocus = false; // the focus came by keyboard, so the eye has to find it
    int m_iNumber = 0; ///< 0: none is shown
    QString m_strContent;
    WindowDrag m_drag;
};

} // namespace UICommonMdl
