#include <UI/Dialogs/KvVolumeWidget.h>

#include <Common/CommonFun.h>
#include <Platform/BasicUIComponents/KvTranslatedText.h>

#include <QMouseEvent>
#include <QSignalBlocker>
#include <QSlider>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

namespace UICommonMdl {

namespace {

constexpr QSize PanelSize(18, 100); // pixels
constexpr QMargins PanelMargins(0, 5, 0, 5); // pixels
constexpr int PanelSpacing = 5; // pixels
constexpr int FirstVolume = 50; // per cent

} // namespace

KvVolumeWidget::KvVolumeWidget(QWidget* parent)
    : QWidget(parent, Qt::Popup)
    , m_pSlider(new QSlider(Qt::Vertical, this))
    , m_btnSound(new QToolButton(this))
{
    setAttribute(Qt::WA_WindowPropagation);
    setAttribute(Qt::WA_StyledBackground);
    setFixedSize(PanelSize);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(PanelMargins);
    layout->setSpacing(PanelSpacing);
    layout->addWidget(m_pSlider);
    layout->addWidget(m_btnSound, 0, Qt::AlignHCenter);

    m_pSlider->setRange(0, 100);
    m_pSlider->setValue(FirstVolume);
    new KvGUI::KvTranslatedText(m_pSlider, "accessibleName", [] { return tr("Volume"); });
    OnSignalVolumeValueChanged(FirstVolume);
    UpdateLook();
    connect(m_pSlider, &QSlider::valueChanged, this, &KvVolumeWidget::SignalVolumeValueChanged);
    connect(m_pSlider, &QSlider::valueChanged, this, &KvVolumeWidget::OnSignalVolumeValueChanged);
    connect(m_btnSound, &QToolButton::clicked, this, &KvVolumeWidget::OnVolumeBtnClicked);
    CommonFun::SetStyleSheet(this, QStringLiteral("VolumeWnd"), QString(), QString());
}

void KvVolumeWidget::SetSoundOpened(bool bOpened)
{
    m_bSoundOpened = bOpened;
    UpdateLook();
}

int KvVolumeWidget::GetSliderValue() const { return m_pSlider->value(); }

void KvVolumeWidget::SetSliderValue(int iValue) { m_pSlider->setValue(iValue); }

void KvVolumeWidget::SetSliderValueSilently(int iValue)
{
    const QSignalBlocker blocker(m_pSlider);
    m_pSlider->setValue(iValue);
    OnSignalVolumeValueChanged(m_pSlider->value());
}

void KvVolumeWidget::SetSliderRange(int iMinimum, int iMaximum) { m_pSlider->setRange(iMinimum, iMaximum); }

void KvVolumeWidget::OnVolumeBtnClicked()
{
    m_bSoundOpened = !m_bSoundOpened;
    UpdateLook();
    Q_EMIT SignalSoundOpened(m_bSoundOpened);
}

void KvVolumeWidget::OnSignalVolumeValueChanged(int iValue)
{
    m_pSlider->setToolTip(QStringLiteral("%1%").arg(iValue));
}

void KvVolumeWidget::mousePressEvent(QMouseEvent* event)
{
    if (const QWidget* button = parentWidget()) {
        const QRect area(button->mapToGlobal(QPoint(0, 0)), button->size());
        // Qt takes the attribute away at the next press.
        if (area.contains(event->globalPos()))
            setAttribute(Qt::WA_NoMouseReplay);
    }
    QWidget::mousePressEvent(event);
}

void KvVolumeWidget::mouseReleaseEvent(QMouseEvent* event)
{
    Q_EMIT resetButton();
    QWidget::mouseReleaseEvent(event);
}

void KvVolumeWidget::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    // The arrow keys move the slider at once; with the sound off, Space turns it on.
    QWidget* first = m_pSlider;
    if (!m_bSoundOpened)
        first = m_btnSound;
    first->setFocus(Qt::PopupFocusReason);
}

void KvVolumeWidget::hideEvent(QHideEvent* event)
{
    Q_EMIT resetButton();
    QWidget::hideEvent(event);
}

void KvVolumeWidget::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        NameSoundButton();
}

void KvVolumeWidget::NameSoundButton()
{
    m_btnSound->setAccessibleName(m_bSoundOpened ? tr("Turn the sound off") : tr("Turn the sound on"));
}

void KvVolumeWidget::UpdateLook()
{
    m_btnSound->setObjectName(
        m_bSoundOpened ? QStringLiteral("btnVolumeOn") : QStringLiteral("btnVolumeOff"));
    NameSoundButton();
    m_btnSound->style()->polish(m_btnSound);
    m_btnSound->update();
    m_pSlider->setEnabled(m_bSoundOpened);
}

} // namespace UICommonMdl
