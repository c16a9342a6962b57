#pragma once

#include <UIComponentsExport.h>

#include <QToolButton>

namespace UICommonMdl {

class KvVolumeWidget;

/// A tool button that shows whether sound is on, and pops up a small panel with a volume slider and a
/// mute button above itself.
///
/// Tell it the state of the player, and hear what the operator wants:
/// @code
///     auto* button = new UICommonMdl::KvVolumeButton(toolBar);
///     button->SetVolumeState(player->isAudible());
///     button->SetVolumeValue(player->volume());
///     connect(button, &UICommonMdl::KvVolumeButton::SignalVolumeValueChanged, player, &Player::SetVolume);
///     connect(button, &UICommonMdl::KvVolumeButton::SignalSoundOpened, player, &Player::SetAudible);
/// @endcode
///
/// A press opens the panel, Space too; a press anywhere else, Escape, or hiding the button closes it. The
/// panel stands centred above the button, and keeps on the monitors where that place is on none of them.
///
/// A style sheet selects the looks by the button's object name, which is "btnVolumeOn" while sound is on
/// and "btnVolumeOff" otherwise. A slot of either signal may delete the button.
class UICOMPONENTS_EXPORT KvVolumeButton : public QToolButton
{
    Q_OBJECT

public:
    /// Sound off, volume 50.
    explicit KvVolumeButton(QWidget* parent = nullptr);
    ~KvVolumeButton() override;

    /// Shows that sound is on or off, on the button and in the panel. Emits nothing.
    void SetVolumeState(bool on);

    /// Sets the volume, 0 to 100; a value outside becomes the nearest one. SignalVolumeValueChanged()
    /// follows when the volume is another one then.
    void SetVolumeValue(int value);
    int GetVolumeValue() const; ///< 0 to 100

    void PopupVolumeWidget(); ///< places and shows the panel

public Q_SLOTS:
    void OnSoundOpenedChanged(bool on); ///< shows that sound is on or off, on the button only
    void OnResetButton(); ///< the button looks raised

Q_SIGNALS:
    void SignalVolumeValueChanged(int value); ///< the volume, 0 to 100
    void SignalSoundOpened(bool on); ///< the operator turned the sound on or off

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void ReportValue(int value);
    QRect GetAvailableGeometry(const QRect& r, const QWidget* w) const;

    KvVolumeWidget* m_pPopup;
    int m_iReporting = 0; ///< depth of reports of values in progress
};

} // namespace UICommonMdl
