#include <UI/Dialogs/FloatSlide.h>

namespace UICommonMdl {

namespace {

QPoint RestingPlace(bool shown, int width) { return {shown ? 0 : width, 0}; }

} // namespace

FloatSlide FloatSlide::FromRest(bool show, int width, int duration)
{
    return {RestingPlace(!show, width), RestingPlace(show, width), duration};
}

FloatSlide FloatSlide::TurnedBack(bool show, int width, int x, int elapsed)
{
    return {QPoint(x, 0), RestingPlace(show, width), elapsed};
}

QRegion CoveredByPanel(const QSize& window, const QRect& panel)
{
    const QRect covered = panel & QRect(QPoint(0, 0), window);
    return covered.isEmpty() ? QRegion(-1, -1, 1, 1) : QRegion(covered);
}

} // namespace UICommonMdl
