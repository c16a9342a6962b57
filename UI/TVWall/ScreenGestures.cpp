#include "ScreenGestures.h"

#include "KvTVWallDisplayBand.h"
#include "WallEvents.h"
#include "WallGeometry.h"
#include "WallSelection.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace UICommonMdl {

ScreenGestures::ScreenGestures(Screen& screen)
    : m_screen(screen)
{ }

// The bands belong to the canvas, which may outlive the screen.
ScreenGestures::~ScreenGestures()
{
    delete m_pDrawBand;
    delete m_pSelectionBand;
}

// ---- The mouse on a window

void ScreenGestures::HandleWindowEvent(QObject* window, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        const auto& press = *static_cast<QMouseEvent*>(event);
        PressWindow(window, OnScreen(press), press.button());
        break;
    }
    case QEvent::MouseMove: {
        const auto& move = *static_cast<QMouseEvent*>(event);
        MoveOnWindow(OnScreen(move), move.buttons());
        break;
    }
    case QEvent::MouseButtonRelease: {
        const auto& release = *static_cast<QMouseEvent*>(event);
        ReleaseWindow(window, OnScreen(release), release.button());
        break;
    }
    case QEvent::MouseButtonDblClick:
        m_pPressed = nullptr; // the release that follows belongs to the double-click
        break;
    case QEvent::KeyPress: {
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (WallEvents::IsClick(key) && IsSelectable(window, Qt::LeftButton)) {
            event->accept();
            Click(window);
        }
        break;
    }
    default:
        break;
    }
}

QPoint ScreenGestures::OnScreen(const QMouseEvent& event) const
{
    return m_screen.Canvas()->mapFromGlobal(event.globalPos()) - m_screen.OriginOnCanvas();
}

bool ScreenGestures::IsSelectable(const QObject* window, Qt::MouseButton button) const
{
    const bool selected = m_screen.IsWindowSelected(m_screen.IndexOf(window));
    return WallSelection::TakesPart(m_screen.SelectionMode(), button, selected);
}

void ScreenGestures::PressWindow(QObject* window, const QPoint& pos, Qt::MouseButton button)
{
    if (IsDrawing() && button != Qt::LeftButton)
        return; // another button while the left one draws
    Cancel();
    m_pressPoint = pos;
    if (m_screen.IsPositioning() && button == Qt::LeftButton)
        m_drawing = Drawing::Site;
    m_pPressed = IsSelectable(window, button) ? window : nullptr;
    if (m_pPressed && m_screen.SelectionMode() == WallSelection::MultiMode)
        Select({m_screen.IndexOf(window)}, true);
}

void ScreenGestures::MoveOnWindow(const QPoint& pos, Qt::MouseButtons buttons)
{
    if (pos != m_pressPoint)
        m_pPressed = nullptr; // a drag is no click, also when it comes back
    if (m_drawing == Drawing::Site && (buttons & Qt::LeftButton))
        DrawTo(pos);
    else
        CancelSite();
}

void ScreenGestures::ReleaseWindow(const QObject* window, const QPoint& pos, Qt::MouseButton button)
{
    const bool isClick = m_pPressed == window && pos == m_pressPoint && IsSelectable(window, button);
    m_pPressed = nullptr;
    if (isClick) {
        Cancel();
        Click(window);
    } else if (m_drawing == Drawing::Site && button == Qt::LeftButton) {
        EndDrawing(pos);
    }
}

void ScreenGestures::Click(const QObject* window)
{
    if (Select({m_screen.IndexOf(window)}, false))
        m_screen.ReportSelectionChanged();
    else
        m_screen.ReportClick();
}

// Runs the selection routine for each target in turn, then selects the screen, which is reported: a slot may
// remove the screen. Returns whether any window's selection changed.
bool ScreenGestures::Select(const QVector<int>& targets, bool fromPress)
{
    if (targets.isEmpty())
        return false;
    const int count = m_screen.WindowCount();
    WallSelection::State state;
    state.selectOnly = m_bSelectOnly;
    for (int i = 0; i < count; ++i)
        state.selected << m_screen.IsWindowSelected(i);
    const QVector<bool> before = state.selected;
    for (const int target : targets) {
        state = WallSelection::Clicked(state, target, {m_screen.SelectionMode(), fromPress, m_bBandDragging});
    }
    m_bSelectOnly = state.selectOnly;
    for (int i = 0; i < count; ++i)
        m_screen.SetWindowSelected(i, state.selected.at(i));
    m_screen.SelectUnlessSelected();
    return state.selected != before;
}

// ---- Selection by call

QList<int> ScreenGestures::WindowIndexes(bool selected) const
{
    QList<int> indexes;
    for (int i = 0; i < m_screen.WindowCount(); ++i) {
        if (m_screen.IsWindowSelected(i) == selected)
            indexes << i;
    }
    return indexes;
}

void ScreenGestures::SelectOnly(int window, bool selected)
{
    const int count = m_screen.WindowCount();
    for (int i = 0; window >= 0 && window < count && i < count; ++i)
        m_screen.SetWindowSelected(i, selected && i == window);
}

void ScreenGestures::DeselectWindows()
{
    for (int i = 0; i < m_screen.WindowCount(); ++i)
        m_screen.SetWindowSelected(i, false);
}

// ---- The mouse on the empty part

void ScreenGestures::PressEmpty(const QPoint& pos, Qt::MouseButton button)
{
    if (IsDrawing() && button != Qt::LeftButton)
        return; // another button while the left one draws
    Cancel(); // whose release went elsewhere
    m_pressPoint = pos;
    m_screen.SelectByPress();
    DeselectWindows();
    if (button == Qt::LeftButton) {
        const bool band = m_screen.SelectionMode() == WallSelection::MultiMode;
        m_drawing = band ? Drawing::Selection : Drawing::Area;
    }
}

void ScreenGestures::MoveOnEmpty(const QPoint& pos, Qt::MouseButtons buttons)
{
    if (buttons & Qt::LeftButton)
        DrawTo(pos);
    else
        Cancel(); // the release went elsewhere
}

void ScreenGestures::ReleaseEmpty(const QPoint& pos, Qt::MouseButton button)
{
    if (button == Qt::LeftButton)
        EndDrawing(pos);
}

// ---- Drawing

QPoint ScreenGestures::InsideScreen(const QPoint& pos) const
{
    const QSize size = m_screen.Size();
    return {qBound(0, pos.x(), qMax(0, size.width() - 1)), qBound(0, pos.y(), qMax(0, size.height() - 1))};
}

void ScreenGestures::DrawTo(const QPoint& pos)
{
    if (!IsDrawing())
        return;
    m_bBandDragging = m_drawing == Drawing::Selection;
    QPointer<KvTVWallDisplayBand>& band = m_bBandDragging ? m_pSelectionBand : m_pDrawBand;
    if (band == nullptr)
        band = new KvTVWallDisplayBand(m_screen.Canvas());
    const QPoint origin = m_screen.OriginOnCanvas();
    band->ShowBetween(origin + m_pressPoint, origin + InsideScreen(pos), m_screen.BandColor());
}

void ScreenGestures::Cancel()
{
    m_drawing = Drawing::Nothing;
    m_bBandDragging = false;
    if (m_pDrawBand != nullptr)
        m_pDrawBand->hide();
    if (m_pSelectionBand != nullptr)
        m_pSelectionBand->hide();
}

void ScreenGestures::CancelSite()
{
    if (m_drawing == Drawing::Site)
        Cancel();
}

void ScreenGestures::EndDrawing(const QPoint& pos)
{
    const QPoint end = InsideScreen(pos);
    const Drawing drawing = m_drawing;
    if (drawing == Drawing::Selection && m_bBandDragging) {
        SelectInBand(m_pressPoint, end);
        return;
    }
    Cancel();
    const QSize size = m_screen.Size();
    const auto drawn = WallGeometry::DrawnScale(m_pressPoint, end, size);
    if (!drawn)
        return;
    if (drawing == Drawing::Area)
        m_screen.ReportArea(*drawn);
    if (drawing == Drawing::Site) {
        m_screen.ReportSite(
            WallGeometry::InSiteUnits(m_pressPoint, size), WallGeometry::InSiteUnits(end, size));
    }
}

void ScreenGestures::SelectInBand(const QPoint& from, const QPoint& to)
{
    const QRect band(
        QPoint(qMin(from.x(), to.x()), qMin(from.y(), to.y())),
        QPoint(qMax(from.x(), to.x()), qMax(from.y(), to.y())));
    QVector<int> touched;
    for (int i = 0; i < m_screen.WindowCount(); ++i) {
        if (m_screen.WindowGeometry(i).intersects(band))
            touched << i;
    }
    const bool changed = Select(touched, false);
    Cancel();
    if (changed)
        m_screen.ReportSelectionChanged();
}

} // namespace UICommonMdl
