#pragma once

#include <gallery/Wall/WallWidget.h>

#include <QObject>

namespace OperatorClient {

/// The sound of a wall: one window at most sounds, at its share of the wall's volume, while the wall's sound
/// is on. Which window that is, the wall itself keeps: its volume button is on.
class WallSound : public QObject
{
    Q_OBJECT

public:
    explicit WallSound(WallWidget& wall, QObject* parent = nullptr);

    bool IsOn() const { return m_bOn; }
    int Volume() const { return m_iVolume; } ///< of the whole wall, per cent
    void Restore(bool bOn, int volume); ///< without a signal

    void SetOn(bool bOn);
    void SetVolume(int volume);
    /// Lets this window sound alone, or turns its sound off.
    void SetWindowOn(int screen, int window, bool bOn);
    void SetWindowVolume(int screen, int window, int volume); ///< per cent of the wall's

    void SilenceAll(); ///< without a signal
    void Silence(int screen, int window); ///< without a signal
    /// Passes on to the window, when it is the one that sounds, what holds now: after its source changed.
    void Renew(int screen, int window);

Q_SIGNALS:
    void SignalChanged(); ///< something that a layout holds
    void SignalWindowChanged(); ///< another window may sound now
    void SignalReport(const QString& text);

private:
    void RenewAll();
    void Apply(int screen, int window, bool bOn);
    void OnButton(int screen, int window);

    WallWidget& m_wall;
    bool m_bOn = true;
    int m_iVolume = 50; // per cent
};

} // namespace OperatorClient
