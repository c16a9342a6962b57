#pragma once

#include "EventHandling.h"
#include "ScreenOverlay.h"

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QObject>
#include <QRegion>
#include <array>
#include <vector>

class QLabel;
class QWidget;

namespace UICommonMdl {

class QOSDShowLabel;

/// The text overlays of a screen, of every kind of wall: up to eight plain and eight rolling labels in a
/// widget. One timer drives all that roll; it runs only while they are painted.
class OverlayLabels : public QObject
{
    Q_OBJECT

public:
    /// @param canvas the widget that carries the labels and covers the screen; owns this object too
    explicit OverlayLabels(QWidget* canvas);

    /// Shows these overlays in place of those before, for a screen of @p screen pixels, over the canvas's
    /// other children.
    void Show(const std::vector<KvGUI::StructOSDInfo>& infos, const QSize& screen);
    void Hide(); ///< hides all until the next Show()
    void Raise(); ///< brings them over the canvas's other children
    QRegion Region() const; ///< what they cover of the canvas

Q_SIGNALS:
    /// A mouse, wheel, key or context-menu event of an overlay: the rolling ones are 0 ... 7, the plain ones
    /// 8 ... 15. A slot may show others, but not delete this object.
    void SignalLabelEvent(int label, QEvent* event);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    static constexpr size_t PlainSlot = ScreenOverlay::SlotsOfAKind; // the first of the plain ones

    QLabel* MakePlain(const KvGUI::StructOSDInfo& info, const ScreenOverlay::Placement& placement);
    QLabel* MakeRolling(const KvGUI::StructOSDInfo& info, const ScreenOverlay::Placement& placement);
    void Drop();
    bool IsRolling(const QObject* label) const;
    void KeepRolling();

    QWidget* const m_pCanvas;
    EventHandling m_handling;
    std::array<QLabel*, 2 * PlainSlot> m_labels{}; // rolling ones, then plain ones
    QBasicTimer m_rollTimer;
    QElapsedTimer m_rollClock;
    bool m_bPainted = false; ///< since the timer's last event
};

} // namespace UICommonMdl
