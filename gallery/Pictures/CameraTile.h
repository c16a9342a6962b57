#pragma once

#include <gallery/Pictures/FrameSource.h>

#include <QWidget>
#include <memory>

namespace OperatorClient {

class FrameClock;

/// The picture in a video window. It lets the mouse, and files dragged with it, through to the window.
class CameraTile : public QWidget
{
    Q_OBJECT

public:
    CameraTile(std::shared_ptr<FrameSource> source, FrameClock& clock, QWidget* parent);
    ~CameraTile() override;

    FrameSource& Source() const { return *m_pSource; }
    void SetSource(std::shared_ptr<FrameSource> source);

    /// Whether any part of the tile is on the display.
    bool CanBeSeen() const;
    /// Paints again when the source has another picture than the one painted last.
    /// @return whether to ask again at the next frame; if not, the tile wakes the clock when it is painted
    bool Refresh(const QDateTime& now);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::shared_ptr<FrameSource> m_pSource;
    FrameClock& m_clock;
    qint64 m_iPainted = 0; ///< number of the frame painted last
    bool m_bAwaitsPaint = false; ///< asked for, and not come yet: in a minimised window it comes much later
};

} // namespace OperatorClient
