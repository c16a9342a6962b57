#include "KvTVWallDisplayFrame.h"

#include <QPainter>

namespace UICommonMdl {

namespace {

constexpr int LineWidth = 2; // pixels
constexpr QRgb SelectedColor = qRgb(219, 221, 225);

} // namespace

KvTVWallDisplayFrame::KvTVWallDisplayFrame(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
}

void KvTVWallDisplayFrame::FitTo(const QSize& size)
{
    const QRect whole(QPoint(0, 0), size);
    setGeometry(whole);
    setMask(QRegion(whole) - QRegion(whole.adjusted(LineWidth, LineWidth, -LineWidth, -LineWidth)));
}

void KvTVWallDisplayFrame::paintEvent(QPaintEvent*) { QPainter(this).fillRect(rect(), SelectedColor); }

} // namespace UICommonMdl
