#pragma once

#include <QWidget>

class QSlider;
class QToolButton;

namespace UICommonMdl {

/// The panel that a volume button pops up: a slider from 0 to 100 per cent, and below it a button that
/// turns the sound on and off. The slider is enabled while the sound is on.
///
/// A press outside closes it, as with every popup; Escape too. A press on its parent, the volume button,
/// closes it and is not given to the button, which would open it again.
class KvVolumeWidget : public QWidget
{
    Q_OBJECT

public:
    /// Sound off, volume 50.
    explicit KvVolumeWidget(QWidget* parent);

    bool IsSoundOpened() const { return m_bSoundOpened; }
    void SetSoundOpened(bool bOpened); ///< shows the state and emits nothing

    int GetSliderValue() const;
    void SetSliderValue(int iValue); ///< emits SignalVolumeValueChanged() when the value is another one then
    void SetSliderValueSilently(int iValue); ///< emits nothing
    void SetSliderRange(int iMinimum, int iMaximum);

Q_SIGNALS:
    void SignalVolumeValueChanged(int iValue);
    void SignalSoundOpened(bool bOpened); ///< the operator turned the sound on or off
    void resetButton(); ///< the parent button is not held down any more

public Q_SLOTS:
    void OnVolumeBtnClicked();
    void OnSignalVolumeValueChanged(int iValue);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void NameSoundButton();
    void UpdateLook();

    bool m_bSoundOpened = false;
    QSlider* m_pSlider;
    QToolButton* m_btnSound;
};

} // namespace UICommonMdl
