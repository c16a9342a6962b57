#pragma once

#include <QColor>
#include <QRubberBand>

namespace UICommonMdl {

/// The rectangle that the operator draws on a screen: an area for a new window, a selection band or a
/// 3D-positioning frame.
class KvTVWallDisplayBand : public QRubberBand
{
    Q_OBJECT

public:
    explicit KvTVWallDisplayBand(QWidget* parent);

    /// Shows the band between two pixels of the parent, both inclusive, in any order, over its siblings.
    void ShowBetween(const QPoint& a, const QPoint& b, const QColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QColor m_color;
};

} // namespace UICommonMdl
