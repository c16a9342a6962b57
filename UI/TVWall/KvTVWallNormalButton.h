#pragma once

#include "WindowTitle.h"

#include <QGraphicsItem>

namespace UICommonMdl {

class KvTVWallNormalView;
class KvTVWallNormalWindow;

/// A button in the title bar of a window of the normal wall. It shows a state; what a click does is the
/// window's business.
class KvTVWallNormalButton : public QGraphicsItem
{
public:
    enum
    {
        Type = UserType + 3
    };

    KvTVWallNormalButton(
        WindowTitle::Button kind, KvTVWallNormalWindow* window, KvTVWallNormalView* view,
        QGraphicsItem* parent);

    void SetOn(bool on); ///< volume on, maximised or snapped
    void UpdateToolTip(); ///< in the present language
    void SetGeometry(const QRect& geometry); ///< in the title bar

    int type() const override { return Type; }
    QRectF boundingRect() const override { return QRectF(QPointF(0, 0), m_size); }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

protected:
    bool sceneEvent(QEvent* event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;
    void hoverEnterEvent(QGraphicsSceneHoverEvent* event) override;
    void hoverLeaveEvent(QGraphicsSceneHoverEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    QString IconFile() const;
    QColor Background() const;
    void SetDown(bool down);

    const WindowTitle::Button m_kind;
    KvTVWallNormalWindow* const m_pWindow;
    KvTVWallNormalView* const m_pView;
    QSize m_size;
    bool m_bOn = false;
    bool m_bHovered = false;
    bool m_bDown = false; // pressed, and the mouse is inside
};

} // namespace UICommonMdl
