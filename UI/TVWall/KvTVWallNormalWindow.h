#pragma once

#include "WindowPlacement.h"

#include <QGraphicsObject>
#include <QPointer>
#include <QVariant>

class QGraphicsProxyWidget;

namespace UICommonMdl {

class KvTVWallDisplayVideo;
class KvTVWallNormalFrame;
class KvTVWallNormalScreen;

/// A video window on a screen of the normal wall: an item with a title bar and a video area.
///
/// The video area is painted until the client asks for its widget, which then lies over it in a proxy.
class KvTVWallNormalWindow : public QGraphicsObject
{
    Q_OBJECT

public:
    KvTVWallNormalWindow(
        KvTVWallNormalScreen* screen, QGraphicsItem* parent, double precision,
        const KvGUI::StructScaleRect& rect, const QVariant& userData);

    const KvGUI::StructScaleRect& GetScale() const { return m_placement.Scale(); }
    /// Makes @p rect the window's rectangle, by the client or the operator: unless it is equal within the
    /// precision, the window is placed there, is no longer maximised or snapped, and reports it.
    void SetScale(const KvGUI::StructScaleRect& rect);
    /// Computes the window's pixels from its rectangle and the screen's present size.
    void PlaceOnScreen();
    QRect Geometry() const { return QRect(pos().toPoint(), m_size); } ///< in the screen

    bool IsSelected() const { return m_bSelected; }
    void SetSelected(bool selected);
    bool IsVolumeOn() const { return m_bVolumeOn; }
    void SetVolumeOn(bool on);
    const QVariant& GetUserData() const { return m_userData; }
    void SetUserData(const QVariant& userData) { m_userData = userData; }
    void SetTitle(const QString& title); ///< the window's number
    void SetContentText(const QString& text); ///< shown behind the title

    /// @name The video area; null or false when it was deleted
    /// @{
    KvTVWallDisplayVideo* GetVideo(); ///< made when it is first asked for
    bool DeleteVideo();
    bool SetVideoText(const QString& text);
    bool SetVideoUpdates(bool enable);
    /// @}

    QRectF boundingRect() const override { return QRectF(QPointF(0, 0), m_size); }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

Q_SIGNALS:
    void SignalCloseBtnClicked();
    void SignalVolemeBtnClicked();
    void SignalGeoChanged(const KvGUI::StructScaleRect& rect);
    void SignalDoubleClickedSelectedChanged();

private:
    void ShowPlacement(bool changed);
    void SetGeometry(const QRect& geometry);
    QRect TitleRect() const;
    QRect VideoRect() const;

    KvTVWallNormalScreen* const m_pScreen;
    WindowPlacement m_placement;
    QSize m_size;
    QVariant m_userData;
    bool m_bSelected = false;
    bool m_bVolumeOn = false;
    QString m_strTitle;
    QString m_strContent;
    KvTVWallNormalFrame* m_pFrame = nullptr; // of a selected window
    QString m_strVideoText;
    bool m_bVideoDeleted = false;
    bool m_bVideoUpdates = true;
    QGraphicsProxyWidget* m_pProxy = nullptr;
    QPointer<KvTVWallDisplayVideo> m_pVideo; // the client has it in hand and may delete it
};

} // namespace UICommonMdl
