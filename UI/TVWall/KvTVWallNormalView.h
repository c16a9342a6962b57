#pragma once

#include "NormalWallLook.h"

#include <QGraphicsView>
#include <QHash>
#include <QPixmap>

namespace UICommonMdl {

/// The graphics view of a normal wall. Scene coordinates are pixels of the viewport: zooming and panning
/// place the screens again, so that lines, text and buttons keep their size and stay sharp.
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

    const NormalWallLook& Look() const { return *this; }
    /// A picture file at @p side x @p side pixels, sharp on the view's screen; null where there is none.
    const QPixmap& Icon(const QString& file, int side);

protected:
    void changeEvent(QEvent* event) override;
    void drawBackground(QPainter* painter, const QRectF& exposed) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QHash<QString, QPixmap> m_icons; // by file, size and density
};

} // namespace UICommonMdl
