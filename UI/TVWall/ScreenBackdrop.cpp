#include "ScreenBackdrop.h"

#include <QImageReader>
#include <QPainter>

namespace UICommonMdl {

namespace {

constexpr QRgb ScreenColor = qRgb(33, 34, 37);
constexpr QRgb SelectedFrameColor = qRgb(219, 221, 225);
constexpr QRgb CellLineColor = qRgb(74, 77, 84);
constexpr qreal CellDash = 4.0; // pixels drawn, and pixels left out
constexpr int TextMargin = 12; // pixels
constexpr int TextPadding = 8; // pixels

} // namespace

ScreenBackdrop::ScreenBackdrop(int rows, int columns)
    : m_iRows(rows)
    , m_iColumns(columns)
{ }

QColor ScreenBackdrop::Color() { return {ScreenColor}; }

QColor ScreenBackdrop::SelectedColor() { return {SelectedFrameColor}; }

void ScreenBackdrop::SetBackground(const QColor& color, bool show)
{
    m_bShowBackground = show;
    m_background = color;
}

void ScreenBackdrop::SetPicture(const std::string& file, bool show)
{
    m_bShowPicture = show && !file.empty(); // Qt warns of a file without a name
    m_strPicture = file;
    m_bPictureLoaded = false;
    m_picture = QPixmap();
    m_scaledPicture = QPixmap();
}

void ScreenBackdrop::Paint(
    QPainter& painter, const QSize& size, const QRect& exposed, qreal density, const QColor& textColor)
{
    if (exposed.isEmpty())
        return;
    painter.fillRect(exposed, QColor(ScreenColor));
    if (m_bShowBackground)
        painter.fillRect(exposed, m_background);
    if (m_bShowPicture)
        PaintPicture(painter, size, density);
    PaintCells(painter, size, exposed);
    if (!m_strText.isEmpty())
        PaintText(painter, size, textColor);
}

void ScreenBackdrop::PaintText(QPainter& painter, const QSize& size, const QColor& color) const
{
    const int flags = Qt::AlignCenter | Qt::TextWordWrap;
    const QRect area = QRect(QPoint(0, 0), size).adjusted(TextMargin, TextMargin, -TextMargin, -TextMargin);
    const QRect text = painter.boundingRect(area, flags, m_strText);
    // Keeps the lines of the cells and a picture out of the letters.
    painter.fillRect(
        text.adjusted(-TextPadding, -TextPadding, TextPadding, TextPadding), QColor(ScreenColor));
    painter.setPen(color);
    painter.drawText(area, flags, m_strText);
}

// Lines between the cells, as far as they are exposed. Cells smaller than a pixel have none: the lines would
// cover everything.
void ScreenBackdrop::PaintCells(QPainter& painter, const QSize& size, const QRect& exposed) const
{
    QPen pen(QColor(CellLineColor), 1);
    pen.setDashPattern({CellDash, CellDash});
    const auto forEachLine = [](int cells, int length, int from, int to, const auto& draw) {
        if (cells > length)
            return;
        for (qint64 k = qMax<qint64>(1, qint64(from) * cells / length); k < cells; ++k) {
            const int position = int(k * length / cells);
            if (position > to)
                break;
            draw(position);
        }
    };
    pen.setDashOffset(exposed.top());
    painter.setPen(pen);
    forEachLine(m_iColumns, size.width(), exposed.left(), exposed.right(), [&](int x) {
        painter.drawLine(x, exposed.top(), x, exposed.bottom());
    });
    pen.setDashOffset(exposed.left());
    painter.setPen(pen);
    forEachLine(m_iRows, size.height(), exposed.top(), exposed.bottom(), [&](int y) {
        painter.drawLine(exposed.left(), y, exposed.right(), y);
    });
}

void ScreenBackdrop::PaintPicture(QPainter& painter, const QSize& size, qreal density)
{
    if (!m_bPictureLoaded) {
        m_bPictureLoaded = true;
        QImageReader reader(QString::fromStdString(m_strPicture));
        reader.setAutoTransform(true);
        m_picture = QPixmap::fromImage(reader.read());
    }
    if (m_picture.isNull())
        return;
    const QRect whole(QPoint(0, 0), size);
    const QSize wanted = size * density;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (wanted.boundedTo(m_picture.size()) != wanted) {
        painter.drawPixmap(whole, m_picture);
        return;
    }
    // Reduced once with all its pixels: drawn directly, a large plan loses its thin lines.
    if (m_scaledPicture.size() != wanted)
        m_scaledPicture = m_picture.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    painter.drawPixmap(whole, m_scaledPicture);
}

} // namespace UICommonMdl
