#include "WallMiniature.h"

#include "ScreenBackdrop.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace UICommonMdl::WallMiniature {

namespace {

constexpr QColor Shade(0, 0, 0, 110);
constexpr int ViewLine = 2; // pixels

/// The pixels of @p area that @p scale covers. Edges are rounded each by itself, so that neighbours meet.
QRect Covered(const QRect& area, const KvGUI::StructScaleRect& scale)
{
    const auto pixel = [](int start, int length, double fraction) {
        return start + int(std::lround(length * std::clamp(fraction, 0.0, 1.0)));
    };
    const double edges[] = {scale.dLeft, scale.dTop, scale.dRight, scale.dBottom};
    if (std::any_of(std::begin(edges), std::end(edges), [](double edge) { return std::isnan(edge); }))
        return {};
    const QPoint topLeft(
        pixel(area.x(), area.width(), scale.dLeft), pixel(area.y(), area.height(), scale.dTop));
    const QPoint end(
        pixel(area.x(), area.width(), scale.dRight), pixel(area.y(), area.height(), scale.dBottom));
    return {topLeft, end - QPoint(1, 1)};
}

void FrameInside(QPainter& painter, const QRect& rect, int line, const QColor& color)
{
    painter.fillRect(QRect(rect.topLeft(), QSize(rect.width(), line)), color);
    painter.fillRect(QRect(rect.left(), rect.bottom() - line + 1, rect.width(), line), color);
    painter.fillRect(QRect(rect.topLeft(), QSize(line, rect.height())), color);
    painter.fillRect(QRect(rect.right() - line + 1, rect.top(), line, rect.height()), color);
}

void PaintScreen(QPainter& painter, const QRect& wall, const Screen& screen, int line, const Colors& colors)
{
    const QRect area = Covered(wall, screen.rect).adjusted(0, 0, -line, -line); // a gutter
    if (area.isEmpty())
        return;
    painter.fillRect(area, ScreenBackdrop::Color());
    for (const Window& window : screen.windows) {
        const QRect pixels = Covered(area, window.rect);
        painter.fillRect(pixels, ScreenBackdrop::Color()); // tells it from what lies below it
        painter.fillRect(
            pixels.adjusted(line, line, -line, -line), window.selected ? colors.selected : colors.window);
    }
    if (screen.selected)
        FrameInside(painter, area, line, ScreenBackdrop::SelectedColor());
}

} // namespace

QPixmap
Picture(const QVector<Screen>& screens, const QSize& size, qreal devicePixelRatio, const Colors& colors)
{
    QPixmap picture(size * devicePixelRatio);
    picture.fill(Qt::transparent);
    if (picture.isNull())
        return picture;
    QPainter painter(&picture);
    const int line = std::max(1, int(devicePixelRatio)); // one logical pixel
    for (const Screen& screen : screens)
        PaintScreen(painter, picture.rect(), screen, line, colors);
    painter.end();
    picture.setDevicePixelRatio(devicePixelRatio);
    return picture;
}

void PaintView(QPainter& painter, const QRect& area, const QRectF& view, const Colors& colors)
{
    const QRect shown = Covered(area, {view.left(), view.top(), view.right(), view.bottom()});
    const QRegion hidden = QRegion(area) - shown;
    for (const QRect& part : hidden)
        painter.fillRect(part, Shade);
    FrameInside(painter, shown, ViewLine, colors.view);
}

} // namespace UICommonMdl::WallMiniature
