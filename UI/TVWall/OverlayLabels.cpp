#include "OverlayLabels.h"

#include "QOSDShowLabel.h"
#include "WallEvents.h"
#include "WallGeometry.h"

#include <QLabel>
#include <algorithm>

namespace UICommonMdl {

namespace {

constexpr int RollInterval = 40; // milliseconds

void SetFace(QLabel* label, const ScreenOverlay::Face& face)
{
    label->setObjectName(face.objectName);
    QFont font = label->font();
    font.setBold(face.bold);
    label->setFont(font);
}

} // namespace

OverlayLabels::OverlayLabels(QWidget* canvas)
    : QObject(canvas)
    , m_pCanvas(canvas)
{ }

// A label that was styled once keeps traces of its face, so every record gets a new one.
void OverlayLabels::Show(const std::vector<KvGUI::StructOSDInfo>& infos, const QSize& screen)
{
    Drop();
    const ScreenOverlay::Sorted sorted = ScreenOverlay::SortedByKind(infos);
    const auto make = [&](const auto& records, size_t firstSlot, auto maker) {
        const size_t count = std::min(records.size(), size_t(ScreenOverlay::SlotsOfAKind));
        for (size_t i = 0; i < count; ++i) {
            const KvGUI::StructOSDInfo& info = records.at(i);
            QLabel* label = (this->*maker)(info, ScreenOverlay::Placed(info, screen));
            label->installEventFilter(this);
            label->show();
            m_labels.at(firstSlot + i) = label;
        }
    };
    make(sorted.plain, PlainSlot, &OverlayLabels::MakePlain);
    make(sorted.rolling, 0, &OverlayLabels::MakeRolling);
    Raise();
}

QLabel* OverlayLabels::MakePlain(const KvGUI::StructOSDInfo& info, const ScreenOverlay::Placement& placement)
{
    auto* label = new QLabel(m_pCanvas);
    label->setTextFormat(Qt::PlainText);
    SetFace(label, ScreenOverlay::FaceOf(info.strFontName));
    label->setStyleSheet(ScreenOverlay::StyleSheet(info, placement.fontPixelSize));
    label->setAlignment(ScreenOverlay::AlignmentOf(info.iAlign));
    label->setText(ScreenOverlay::Text(info));
    label->setGeometry(WallGeometry::Displayable(placement.geometry));
    return label;
}

QLabel*
OverlayLabels::MakeRolling(const KvGUI::StructOSDInfo& info, const ScreenOverlay::Placement& placement)
{
    auto* label = new QOSDShowLabel(m_pCanvas);
    SetFace(label, ScreenOverlay::FaceOf(info.strFontName));
    label->setGeometry(WallGeometry::Displayable(placement.geometry));
    label->SetContent(
        {ScreenOverlay::Text(info), placement.fontPixelSize, ScreenOverlay::TextColor(info),
         ScreenOverlay::BackColor(info), info.bRoll, ScreenOverlay::AlignmentOf(info.iAlign),
         info.iRollMode});
    return label;
}

void OverlayLabels::Drop()
{
    Hide();
    for (QLabel* label : m_labels) {
        if (label == nullptr)
            continue;
        label->removeEventFilter(this); // it has no number any more
        m_handling.Delete(label);
    }
    m_labels.fill(nullptr);
}

void OverlayLabels::Hide()
{
    for (QLabel* label : m_labels) {
        if (label != nullptr)
            label->hide();
    }
    m_rollTimer.stop();
}

void OverlayLabels::Raise()
{
    const auto raise = [](QLabel* label) {
        if (label != nullptr)
            label->raise();
    };
    // The rolling ones lie over the plain ones.
    std::for_each(m_labels.begin() + PlainSlot, m_labels.end(), raise);
    std::for_each(m_labels.begin(), m_labels.begin() + PlainSlot, raise);
}

QRegion OverlayLabels::Region() const
{
    QRegion region;
    for (const QLabel* label : m_labels) {
        if (label != nullptr)
            region += label->geometry();
    }
    return region;
}

bool OverlayLabels::IsRolling(const QObject* label) const
{
    const auto end = m_labels.begin() + PlainSlot;
    const auto found = std::find(m_labels.begin(), end, label);
    return found != end && static_cast<const QOSDShowLabel*>(*found)->IsRolling();
}

void OverlayLabels::KeepRolling()
{
    m_bPainted = true;
    if (m_rollTimer.isActive())
        return;
    m_rollClock.start();
    m_rollTimer.start(RollInterval, this);
}

// What is not painted (hidden, covered, minimised, on another desktop) waits for it with the next step.
void OverlayLabels::timerEvent(QTimerEvent*)
{
    if (!m_bPainted) {
        m_rollTimer.stop();
        return;
    }
    m_bPainted = false;
    const int passed = int(m_rollClock.restart());
    std::for_each(m_labels.begin(), m_labels.begin() + PlainSlot, [passed](QLabel* label) {
        if (label != nullptr)
            static_cast<QOSDShowLabel*>(label)->Advance(passed);
    });
}

bool OverlayLabels::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Paint && IsRolling(watched))
        KeepRolling();
    if (!WallEvents::IsReported(event->type()))
        return false;
    const int label = int(std::find(m_labels.begin(), m_labels.end(), watched) - m_labels.begin());
    // The wheel and keys are the wall's; a mouse event on an overlay is none on the window below.
    event->setAccepted(WallEvents::IsMouse(event->type()) || event->type() == QEvent::ContextMenu);
    const EventHandling::Scope scope(m_handling);
    Q_EMIT SignalLabelEvent(label, event);
    return true;
}

} // namespace UICommonMdl
