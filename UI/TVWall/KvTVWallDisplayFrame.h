#pragma once

#include <QWidget>

namespace UICommonMdl {

/// The frame of the selected screen: painted along the four edges of its parent, over the windows that
/// would cover it, and let through by the mouse. It covers its edges only, so that what lies inside is
/// repainted without it.
class KvTVWallDisplayFrame : public QWidget
{
    Q_OBJECT

public:
    explicit KvTVWallDisplayFrame(QWidget* parent);

    /// Covers the edges of a parent of @p size pixels.
    void FitTo(const QSize& size);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace UICommonMdl
