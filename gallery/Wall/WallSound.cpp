#include <gallery/Wall/WallSound.h>

#include <gallery/Pictures/CameraTile.h>
#include <gallery/Wall/WallNotes.h>

namespace OperatorClient {

WallSound::WallSound(WallWidget& wall, QObject* parent)
    : QObject(parent)
    , m_wall(wall)
{
    connect(&wall, &WallWidget::SignalWindowVolumeBtnClicked, this, &WallSound::OnButton);
}

void WallSound::Restore(bool bOn, int volume)
{
    m_bOn = bOn;
    m_iVolume = volume;
    RenewAll();
}

void WallSound::Apply(int screen, int window, bool bOn)
{
    m_wall.SetWindowVolumeBtn(screen, window, bOn);
    CameraTile* tile = TileOf(m_wall, screen, window);
    if (!tile)
        return;
    tile->Source().SetVolume(m_iVolume * NoteOf(m_wall, screen, window).volume / 100);
    tile->Source().SetAudible(bOn && m_bOn);
}

void WallSound::Silence(int screen, int window)
{
    if (m_wall.GetWindowVolumeBtnStatus(screen, window))
        Apply(screen, window, false);
}

void WallSound::SilenceAll()
{
    for (int screen = 0; screen < m_wall.GetScreenCount(); ++screen) {
        for (int window = 0; window < m_wall.GetWindowCount(screen); ++window)
            Silence(screen, window);
    }
}

void WallSound::Renew(int screen, int window)
{
    if (m_wall.GetWindowVolumeBtnStatus(screen, window))
        Apply(screen, window, true);
}

void WallSound::RenewAll()
{
    for (int screen = 0; screen < m_wall.GetScreenCount(); ++screen) {
        for (int window = 0; window < m_wall.GetWindowCount(screen); ++window)
            Renew(screen, window);
    }
}

void WallSound::SetOn(bool bOn)
{
    m_bOn = bOn;
    RenewAll();
    Q_EMIT SignalReport(bOn ? tr("The wall's sound is on") : tr("The wall's sound is off"));
    Q_EMIT SignalChanged();
}

void WallSound::SetVolume(int volume)
{
    m_iVolume = volume;
    RenewAll();
    Q_EMIT SignalReport(tr("The wall's volume is %1 %").arg(volume));
    Q_EMIT SignalChanged();
}

void WallSound::SetWindowOn(int screen, int window, bool bOn)
{
    SilenceAll();
    if (bOn)
        Apply(screen, window, true);
    Q_EMIT SignalReport((bOn ? tr("Screen %1, window %2: sound on") : tr("Screen %1, window %2: sound off"))
                            .arg(screen + 1)
                            .arg(window + 1));
    Q_EMIT SignalWindowChanged();
}

void WallSound::SetWindowVolume(int screen, int window, int volume)
{
    if (!TileOf(m_wall, screen, window))
        return;
    WindowNote note = NoteOf(m_wall, screen, window);
    note.volume = volume;
    m_wall.SetWindowUserData(screen, window, QVariant::fromValue(note));
    Renew(screen, window);
    Q_EMIT SignalReport(tr("Screen %1, window %2: volume %3 %").arg(screen + 1).arg(window + 1).arg(volume));
}

void WallSound::OnButton(int screen, int window)
{
    SetWindowOn(screen, window, !m_wall.GetWindowVolumeBtnStatus(screen, window));
}

} // namespace OperatorClient
