#pragma once

#include <QColor>
#include <QGraphicsItem>

namespace UICommonMdl {

/// The frame of a selected screen or window of the normal wall, painted along the edges of its parent item
/// over what lies in it.
class KvTVWallNormalFrame : public QGraphicsItem
{
public:
    explicit KvTVWallNormalFrame(QGraphicsItem* parent);

    static QRect Inside(const QSize& size); ///< what the frame of a parent of @p size pixels leaves free

    void FitTo(const QSize& size); ///< covers the edges of a parent of @p size pixels
    void SetColor(const QColor& color);

    QRectF boundingRect() const override { return QRectF(QPointF(0, 0), m_size); }
    QPainterPath shape() const override { return {}; } // the mouse goes through
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    QSize m_size;
    QColor m_color;
};

} // namespace UICommonMdl
