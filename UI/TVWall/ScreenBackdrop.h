#pragma once

#include <QColor>
#include <QPixmap>
#include <QRect>
#include <QSize>
#include <QString>
#include <string>

class QPainter;

namespace UICommonMdl {

/// What a screen shows behind its windows, for every kind of wall: its colour or picture, the lines between
/// its cells, and a text.
class ScreenBackdrop
{
public:
    ScreenBackdrop(int rows, int columns); ///< of cells

    void SetText(const QString& text) { m_strText = text; }
    /// Fills the screen with @p color, or goes back to the plain look.
    void SetBackground(const QColor& color, bool show);
    /// Shows a picture file, stretched over the screen; nothing when it cannot be read.
    void SetPicture(const std::string& file, bool show);

    /// Paints the part @p exposed of a screen of @p size pixels, where @p density device pixels are one.
    void
    Paint(QPainter& painter, const QSize& size, const QRect& exposed, qreal density, const QColor& textColor);

    static QColor Color(); ///< of the plain look
    static QColor SelectedColor(); ///< frame of a selected screen

private:
    void PaintPicture(QPainter& painter, const QSize& size, qreal density);
    void PaintCells(QPainter& painter, const QSize& size, const QRect& exposed) const;
    void PaintText(QPainter& painter, const QSize& size, const QColor& color) const;

    const int m_iRows;
    const int m_iColumns;
    QString m_strText;
    bool m_bShowBackground = false;
    QColor m_background;
    bool m_bShowPicture = false;
    std::string m_strPicture;
    bool m_bPictureLoaded = false;
    QPixmap m_picture;
    QPixmap m_scaledPicture;
};

} // namespace UICommonMdl
