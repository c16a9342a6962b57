#include <gallery/Wall/DetailsPanel.h>

#include <gallery/DigitsWidth.h>
#include <gallery/FollowLanguage.h>
#include <gallery/Wall/CameraWall.h>
#include <gallery/Wall/WallSound.h>
#include <gallery/Wall/WindowDetails.h>

#include <QEvent>

namespace OperatorClient {

namespace {

constexpr int Width = 260; // pixels, at least
constexpr int Digits = 28; // in large letters

} // namespace

DetailsPanel::DetailsPanel(CameraWall* cameras)
    : CFloatDialog(cameras)
    , m_pCameras(cameras)
    , m_pDetails(new WindowDetails)
{
    FollowLanguage(this, "accessibleName", [] { return tr("Details"); });
    FollowLanguage(this, "windowTitle", [] { return tr("Details"); }); // in the desktop's list of windows
    SetTitle(tr("Details"));
    InitUI();
    SetFixWidth(qMax(Width, DigitsWidth(*this, Digits)));
    AddCentralWidget(m_pDetails);
    connect(cameras, &CameraWall::SignalSelectionChanged, this, &DetailsPanel::Follow);
    connect(cameras, &CameraWall::SignalChanged, this, &DetailsPanel::Follow);
    connect(cameras, &CameraWall::SignalSoundChanged, this, &DetailsPanel::Follow);
    connect(m_pDetails, &WindowDetails::SignalSound, this, [this](bool on) {
        m_pCameras->Sound()->SetWindowOn(m_pCameras->Wall()->GetSelectedScreenIndex(), SelectedWindow(), on);
    });
    connect(m_pDetails, &WindowDetails::SignalVolume, this, [this](int volume) {
        m_pCameras->Sound()->SetWindowVolume(
            m_pCameras->Wall()->GetSelectedScreenIndex(), SelectedWindow(), volume);
    });
    connect(this, &CFloatDialog::SignalBtnCloseClicked, this, [this] {
        SetWanted(false);
        Q_EMIT SignalClosed();
    });
}

void DetailsPanel::SetWanted(bool bWanted)
{
    m_bWanted = bWanted;
    Follow();
}

void DetailsPanel::changeEvent(QEvent* event)
{
    CFloatDialog::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    SetTitle(tr("Details"));
    if (IsCalledFor())
        ShowFacts();
}

void DetailsPanel::EndSlide()
{
    // A slide that is turned back at once takes no time.
    const bool in = IsCalledFor();
    AnimaShow(!in);
    AnimaShow(in);
}

bool DetailsPanel::IsCalledFor() const
{
    return m_bWanted && m_pCameras->isVisible() && !m_pCameras->Wall()->GetSelectedWindowIndexs().isEmpty();
}

void DetailsPanel::Follow()
{
    const bool in = IsCalledFor();
    if (in)
        ShowFacts();
    if (in && !isVisible())
        show();
    AnimaShow(in);
}

/// The index of the one selected window; -1 when none or several are.
int DetailsPanel::SelectedWindow() const
{
    const QList<int> selected = m_pCameras->Wall()->GetSelectedWindowIndexs();
    return selected.size() == 1 ? selected.first() : -1;
}

void DetailsPanel::ShowFacts()
{
    const int window = SelectedWindow();
    if (window >= 0)
        m_pDetails->Show(m_pCameras->Facts(m_pCameras->Wall()->GetSelectedScreenIndex(), window));
    else
        m_pDetails->ShowCount(m_pCameras->Wall()->GetSelectedWindowIndexs().size());
}

} // namespace OperatorClient
