#include <UI/Dialogs/KvVolumeButton.h>

#include <Common/CommonFun.h>
#include <Platform/BasicUIComponents/KvTranslatedText.h>
#include <UI/Dialogs/KvVolumeWidget.h>
#include <UI/Dialogs/PopupPlacement.h>

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QScreen>
#include <QStyle>

namespace UICommonMdl {

namespace {

QVector<PopupPlacement::ScreenArea> Desktop()
{
    QVector<PopupPlacement::ScreenArea> areas;
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (const QScreen* screen : screens)
        areas.append({screen->geometry(), screen->availableGeometry()});
    return areas;
}

} // namespace

KvVolumeButton::KvVolumeButton(QWidget* parent)
    : QToolButton(parent)
    , m_pPopup(new KvVolumeWidget(this))
{
    new KvGUI::KvTranslatedText(this, "accessibleName", [] { return tr("Volume"); });
    OnSoundOpenedChanged(false);
    connect(m_pPopup, &KvVolumeWidget::SignalVolumeValueChanged, this, &KvVolumeButton::ReportValue);
    connect(m_pPopup, &KvVolumeWidget::SignalSoundOpened, this, &KvVolumeButton::OnSoundOpenedChanged);
    connect(m_pPopup, &KvVolumeWidget::SignalSoundOpened, this, &KvVolumeButton::SignalSoundOpened);
    connect(m_pPopup, &KvVolumeWidget::resetButton, this, &KvVolumeButton::OnResetButton);
    CommonFun::SetStyleSheet(this, QStringLiteral("VolumeWnd"), QString(), QString());
}

/// A client's slot may delete the button while the slider is in the middle of a click or a turn of the wheel.
/// Qt goes on with the slider then, so the panel lives until the event loop comes round.
KvVolumeButton::~KvVolumeButton()
{
    if (m_iReporting == 0)
        return;
    m_pPopup->disconnect(this);
    m_pPopup->hide();
    m_pPopup->setParent(nullptr);
    m_pPopup->deleteLater();
}

void KvVolumeButton::ReportValue(int value)
{
    const QPointer<KvVolumeButton> self(this);
    ++m_iReporting;
    Q_EMIT SignalVolumeValueChanged(value);
    if (self)
        --m_iReporting;
}

void KvVolumeButton::SetVolumeState(bool on)
{
    OnSoundOpenedChanged(on);
    m_pPopup->SetSoundOpened(on);
}

void KvVolumeButton::SetVolumeValue(int value) { m_pPopup->SetSliderValue(value); }

int KvVolumeButton::GetVolumeValue() const { return m_pPopup->GetSliderValue(); }

void KvVolumeButton::PopupVolumeWidget()
{
    const QPoint p = mapToGlobal(PopupPlacement::CentredAbove(rect(), m_pPopup->size()));
    m_pPopup->move(GetAvailableGeometry(QRect(p, m_pPopup->size()), this).topLeft());
    m_pPopup->show();
}

void KvVolumeButton::OnSoundOpenedChanged(bool on)
{
    setObjectName(on ? QStringLiteral("btnVolumeOn") : QStringLiteral("btnVolumeOff"));
    style()->polish(this);
    update();
}

void KvVolumeButton::OnResetButton() { setDown(false); }

void KvVolumeButton::mousePressEvent(QMouseEvent* event)
{
    const QPointer<KvVolumeButton> guard(this);
    QToolButton::mousePressEvent(event);
    if (guard)
        PopupVolumeWidget();
}

void KvVolumeButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Select)
        PopupVolumeWidget();
    else
        QToolButton::keyPressEvent(event);
}

void KvVolumeButton::hideEvent(QHideEvent* event)
{
    m_pPopup->hide();
    QToolButton::hideEvent(event);
}

QRect KvVolumeButton::GetAvailableGeometry(const QRect& r, const QWidget* w) const
{
    const QRect place(w->mapToGlobal(QPoint(0, 0)), w->size());
    return PopupPlacement::AvailableGeometry(r, place, Desktop());
}

} // namespace UICommonMdl
