#pragma once

#include <Platform/BasicUIComponents/StructScaleRect.h>

#include <QColor>
#include <QList>
#include <QPoint>
#include <QPointer>
#include <QRect>
#include <QSize>
#include <QVector>
#include <Qt>

class QEvent;
class QMouseEvent;
class QWidget;

namespace UICommonMdl {

class KvTVWallDisplayBand;

/// What the mouse does on a screen, for every kind of wall: it selects windows by click and by band, and
/// draws areas for new windows and 3D-positioning frames. The screen tells it where the mouse is and
/// carries out what it finds.
///
/// Positions are pixels of the screen. Any report may remove windows and the screen itself, which lives on
/// until the event is over.
class ScreenGestures
{
public:
    /// A screen as its gestures see it; windows are objects at positions of a list.
    class Screen
    {
    public:
        virtual int SelectionMode() const = 0;
        virtual bool IsPositioning() const = 0; ///< a drag over a window draws a 3D frame
        virtual QSize Size() const = 0;
        virtual int WindowCount() const = 0;
        virtual int IndexOf(const QObject* window) const = 0; ///< -1 for one that is not in the list
        virtual QRect WindowGeometry(int window) const = 0;
        virtual bool IsWindowSelected(int window) const = 0;
        virtual void SetWindowSelected(int window, bool selected) = 0;
        virtual void SelectUnlessSelected() = 0; ///< selects the screen; reports when it was not selected
        virtual void SelectByPress() = 0; ///< selects the screen and reports it in any case

        virtual QWidget* Canvas() const = 0; ///< the widget that shows the bands
        virtual QPoint OriginOnCanvas() const = 0;
        virtual QColor BandColor() const = 0;

        virtual void ReportSelectionChanged() = 0;
        virtual void ReportClick() = 0;
        virtual void ReportArea(const KvGUI::StructScaleRect& rect) = 0;
        virtual void ReportSite(const QPoint& from, const QPoint& to) = 0; ///< in 1/8192 of the screen

    protected:
        ~Screen() = default;
    };

    explicit ScreenGestures(Screen& screen);
    ~ScreenGestures();
    Q_DISABLE_COPY(ScreenGestures)

    /// Selects and draws as an event of a window of the list wants it: the mouse, or the Space key, which
    /// clicks. The event is accepted when a key was used. Mouse events are taken by their place on the
    /// desktop, because the window itself may just have moved.
    void HandleWindowEvent(QObject* window, QEvent* event);

    /// @name The mouse on the empty part of the screen
    /// @{
    void PressEmpty(const QPoint& pos, Qt::MouseButton button);
    void MoveOnEmpty(const QPoint& pos, Qt::MouseButtons buttons);
    void ReleaseEmpty(const QPoint& pos, Qt::MouseButton button);
    /// @}

    /// @name Selection by call
    /// @{
    QList<int> WindowIndexes(bool selected) const; ///< positions whose selected flag is so
    void SelectOnly(int window, bool selected); ///< deselects all others; nothing for a wrong position
    void DeselectWindows();
    /// @}

    bool IsDrawing() const { return m_drawing != Drawing::Nothing; }
    void Cancel(); ///< gives up what is being drawn
    void CancelSite(); ///< as Cancel(), for a 3D frame only: its window goes, and the release with it

private:
    /// What the left button, held, draws from the press point.
    enum class Drawing
    {
        Nothing,
        Area,
        Selection,
        Site
    };

    void PressWindow(QObject* window, const QPoint& pos, Qt::MouseButton button);
    void MoveOnWindow(const QPoint& pos, Qt::MouseButtons buttons);
    void ReleaseWindow(const QObject* window, const QPoint& pos, Qt::MouseButton button);
    QPoint OnScreen(const QMouseEvent& event) const;
    bool IsSelectable(const QObject* window, Qt::MouseButton button) const;
    void Click(const QObject* window);
    bool Select(const QVector<int>& targets, bool fromPress);
    void DrawTo(const QPoint& pos);
    void EndDrawing(const QPoint& pos);
    void SelectInBand(const QPoint& from, const QPoint& to);
    QPoint InsideScreen(const QPoint& pos) const;

    Screen& m_screen;
    QPoint m_pressPoint;
    QPointer<QObject> m_pPressed; // the window that a click may end on
    Drawing m_drawing = Drawing::Nothing;
    bool m_bSelectOnly = false;
    bool m_bBandDragging = false;
    QPointer<KvTVWallDisplayBand> m_pDrawBand; // area and 3D frame
    QPointer<KvTVWallDisplayBand> m_pSelectionBand;
};

} // namespace UICommonMdl
