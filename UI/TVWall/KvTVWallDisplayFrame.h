#pragma once

#include <QColor>
#include <QWidget>

namespace UICommonMdl {

/// The frame of a selected screen or window: painted along the four edges of its parent, over the children
/// that would cover it, and let through by the mouse. It covers its edges only, so that what lies inside is
/// repainted without it.
class KvTVWallDisplayFrame : public QWidget
{
    Q_OBJECT

public:
    KvTVWallDisplayFrame(QWidget* parent, const QColor& color);

    void SetColor(const QColor& color);
    /// Covers the edges of a parent of @p size pixels.
    void FitTo(const QSize& size);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_color;
};

} // namespace UICommonMdl
