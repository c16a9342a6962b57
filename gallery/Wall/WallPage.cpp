#include <gallery/LastFolders.h>
#include <gallery/Wall/WallPage.h>

#include <UI/Dialogs/KvVolumeButton.h>
#include <gallery/OperatorHand.h>
#include <gallery/Pictures/StillPicture.h>
#include <gallery/Wall/ScreenMenu.h>
#include <gallery/Wall/ScreenNotes.h>
#include <gallery/Wall/WallSound.h>

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace OperatorClient {

namespace {

using Command = WallToolBar::Command;

constexpr int SaveDelay = 300; // milliseconds after the last change

QString PictureFilter() { return WallPage::tr("Pictures (%1)").arg(StillPicture::FilePatterns()); }

QString VideoFilter()
{
    return WallPage::tr("Videos (%1)")
               .arg(QStringLiteral("*.avi *.mkv *.mov *.mp4 *.mpg *.ogg *.ogv *.ts *.webm"))
        + QStringLiteral(";;") + WallPage::tr("All files (*)");
}

/// Turns the wheel by a number of steps over a point of the wall, as an operator would.
void TurnWheel(QWidget& wall, const QPoint& at, int steps)
{
    const QPoint turn(0, steps > 0 ? QWheelEvent::DefaultDeltasPerStep : -QWheelEvent::DefaultDeltasPerStep);
    for (int step = 0; step < qAbs(steps); ++step) {
        bool accepted = false;
        for (QWidget* target = wall.childAt(at); target && target != &wall && !accepted;
             target = target->parentWidget()) {
            QWheelEvent event(
                target->mapFrom(&wall, at), wall.mapToGlobal(at), {}, turn, Qt::NoButton, Qt::NoModifier,
                Qt::NoScrollPhase, false);
            QApplication::sendEvent(target, &event);
            accepted = event.isAccepted();
        }
    }
}

} // namespace

WallPage::WallPage(
    SourcePool& pool, FrameClock& clock, const WallLayoutFile& file, const WallLayout& layout,
    const QVector<SourceSpec>& files, QWidget* parent)
    : Page(parent)
    , m_file(file)
    , m_start(layout)
    , m_files(files)
    , m_pTools(new WallToolBar(this))
    , m_pCameras(new CameraWall(pool, clock, this))
    , m_pDetails(new DetailsPanel(m_pCameras))
{
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    all->addWidget(m_pTools);
    // The details panel takes the height of its parent's parent: so that is as high as the wall.
    auto* area = new QWidget(this);
    auto* wall = new QVBoxLayout(area);
    wall->setContentsMargins(0, 0, 0, 0);
    wall->addWidget(m_pCameras);
    all->addWidget(area, 1);
    m_saveSoon.setSingleShot(true);
    m_saveSoon.setInterval(SaveDelay);
    connect(&m_saveSoon, &QTimer::timeout, this, &WallPage::Save);

    ConnectTools();
    ConnectScreenTools();
    ConnectSound();
    ConnectDetails();
    connect(m_pCameras, &CameraWall::SignalReport, this, &Page::SignalReport);
    connect(m_pCameras, &CameraWall::SignalMenuWanted, this, &WallPage::ShowMenu);
    connect(m_pCameras, &CameraWall::SignalScreenSelected, this, &WallPage::ShowScreenStates);
    ShowStart();
    connect(m_pCameras, &CameraWall::SignalChanged, &m_saveSoon, QOverload<>::of(&QTimer::start));
    m_saveSoon.start();
}

WallPage::~WallPage()
{
    if (m_saveSoon.isActive())
        Save();
}

QString WallPage::Title() { return tr("Video wall"); }

void WallPage::On(Command command, const std::function<void(bool)>& act)
{
    connect(m_pTools->Action(command), &QAction::triggered, this, act);
}

void WallPage::ConnectTools()
{
    connect(m_pTools, &WallToolBar::SignalGridChanged, m_pCameras, &CameraWall::SetGrid);
    On(Command::AddScreen, [this](bool) {
        Q_EMIT SignalReport(m_pCameras->AddScreen() ? tr("Screen added") : tr("The grid has no free cell"));
    });
    On(Command::FillGrid, [this](bool) {
        const int added = m_pCameras->FillGrid();
        Q_EMIT SignalReport(
            added > 0 ? tr("%n screen(s) added", nullptr, added) : tr("The grid has no free cell"));
    });
    On(Command::RemoveAll, [this](bool) {
        m_pCameras->RemoveAll();
        Q_EMIT SignalReport(tr("All screens removed"));
    });
    On(Command::Gutter, [this](bool checked) { m_pCameras->SetGutter(checked); });
    On(Command::OpenWindow, [this](bool) {
        if (m_pCameras->OpenWindowSomewhere() < 0)
            Q_EMIT SignalReport(tr("There is no screen to open a window on"));
    });
    On(Command::OpenPhoto, [this](bool) { OpenFile(tr("Open a picture file"), PictureFilter(), false); });
    On(Command::OpenVideo, [this](bool) { OpenFile(tr("Open a video file"), VideoFilter(), true); });
    On(Command::Titles, [this](bool checked) { m_pCameras->SetTitles(checked); });
    On(Command::SelectNone, [this](bool) { m_pCameras->SetSelectionMode(WallWidget::NoSelection); });
    On(Command::SelectOne, [this](bool) { m_pCameras->SetSelectionMode(WallWidget::SingleSelection); });
    On(Command::SelectMany, [this](bool) { m_pCameras->SetSelectionMode(WallWidget::MultiSelection); });
    On(Command::Raise, [this](bool) { m_pCameras->StackSelected(true); });
    On(Command::Lower, [this](bool) { m_pCameras->StackSelected(false); });
    On(Command::CloseSelected, [this](bool) { m_pCameras->CloseSelected(); });
    On(Command::SceneFamily, [this](bool checked) {
        m_pCameras->SetFamily(checked ? WallLayout::NormalFamily : WallLayout::DisplayFamily);
        ShowStates();
    });
    On(Command::WholeWall, [this](bool) { m_pCameras->ShowWholeWall(); });
}

void WallPage::ConnectScreenTools()
{
    WallWidget* wall = m_pCameras->Wall();
    On(Command::Overlays,
       [=](bool checked) { m_pCameras->Notes()->SetOverlays(wall->GetSelectedScreenIndex(), checked); });
    On(Command::BaseMap,
       [=](bool checked) { m_pCameras->Notes()->SetBaseMap(wall->GetSelectedScreenIndex(), checked); });
    On(Command::Positioning,
       [=](bool checked) { m_pCameras->Notes()->SetPositioning(wall->GetSelectedScreenIndex(), checked); });
    On(Command::CellBound,
       [=](bool checked) { m_pCameras->Notes()->SetCellBound(wall->GetSelectedScreenIndex(), checked); });
}

void WallPage::ConnectSound()
{
    const UICommonMdl::KvVolumeButton* button = m_pTools->VolumeButton();
    connect(button, &UICommonMdl::KvVolumeButton::SignalSoundOpened, m_pCameras->Sound(), &WallSound::SetOn);
    connect(
        button, &UICommonMdl::KvVolumeButton::SignalVolumeValueChanged, m_pCameras->Sound(),
        &WallSound::SetVolume);
}

void WallPage::ConnectDetails()
{
    QAction* action = m_pTools->Action(Command::Details);
    action->setChecked(true);
    connect(action, &QAction::toggled, m_pDetails, &DetailsPanel::SetWanted);
    connect(action, &QAction::toggled, &m_saveSoon, QOverload<>::of(&QTimer::start));
    connect(m_pDetails, &DetailsPanel::SignalClosed, action, [action] { action->setChecked(false); });
}

void WallPage::ShowStart()
{
    TurnWheel(*m_pCameras->Wall(), QPoint(0, 0), -6); // the whole wall, whatever the zoom
    m_pCameras->SetWaitingFiles(m_files);
    m_pCameras->Apply(m_start);
    m_pCameras->ShowWaitingFiles();
    m_pTools->Action(Command::Details)->setChecked(m_start.details);
    m_pDetails->EndSlide();
    ShowStates();
}

void WallPage::ShowStates()
{
    const WallLayout layout = m_pCameras->Layout();
    const Command modes[] = {Command::SelectNone, Command::SelectOne, Command::SelectMany};
    m_pTools->ShowGrid(layout.rows, layout.columns);
    const bool inScene = layout.family == WallLayout::NormalFamily;
    m_pTools->Action(Command::SceneFamily)->setChecked(inScene);
    m_pTools->Action(Command::WholeWall)->setEnabled(inScene);
    m_pTools->Action(Command::Gutter)->setEnabled(!inScene);
    m_pTools->Action(Command::Gutter)->setChecked(layout.gutter);
    m_pTools->Action(Command::Titles)->setChecked(layout.titles);
    m_pTools->ShowSound(layout.sound, layout.volume);
    m_pTools->Action(modes[qBound(0, layout.selectionMode, 2)])->setChecked(true);
    ShowScreenStates();
}

void WallPage::ShowScreenStates()
{
    const int screen = m_pCameras->Wall()->GetSelectedScreenIndex();
    const ScreenNote note = NoteOf(*m_pCameras->Wall(), screen);
    const bool inScene = m_pCameras->Family() == WallLayout::NormalFamily;
    const auto show = [&](Command command, bool checked, bool possible) {
        m_pTools->Action(command)->setEnabled(screen >= 0 && possible);
        m_pTools->Action(command)->setChecked(checked);
    };
    show(Command::Overlays, note.overlays, true);
    show(Command::BaseMap, note.baseMap, !inScene);
    show(Command::Positioning, note.positioning, !inScene);
    show(Command::CellBound, note.cellBound, inScene);
}

void WallPage::ShowMenu(int screen)
{
    auto* menu = new ScreenMenu(*m_pCameras, screen, this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu, &ScreenMenu::SignalSwitched, this, &WallPage::ShowScreenStates);
    menu->popup(QCursor::pos());
}

void WallPage::OpenFile(const QString& title, const QString& filter, bool video)
{
    const FileUse use = video ? FileUse::WallVideo : FileUse::WallPicture;
    const QString path = QFileDialog::getOpenFileName(this, title, LastFolders::Of(use), filter);
    LastFolders::Note(use, path);
    if (path.isEmpty())
        return;
    const SourceSpec source = video ? SourceSpec::Video(path) : SourceSpec::Photo(path);
    m_pCameras->OpenWindowSomewhere(&source);
}

void WallPage::Save()
{
    m_saveSoon.stop();
    WallLayout layout = m_pCameras->Layout();
    layout.details = m_pTools->Action(Command::Details)->isChecked();
    m_file.Write(layout);
}

QVector<Page::Picture> WallPage::Pictures()
{
    return {
        {QString(), [this] { ShowStart(); }},
        {QStringLiteral("overlays"), [this] { EnterOverlays(); }},
        {QStringLiteral("selection"), [this] { EnterSelection(); }},
        {QStringLiteral("zoomed"), [this] { EnterZoomed(); }},
        {QStringLiteral("scene"), [this] { EnterScene(); }},
        {QStringLiteral("scene-zoomed"), [this] { EnterZoomedScene(); }},
        {QStringLiteral("details"), [this] { EnterDetails(); }}};
}

void WallPage::EnterOverlays()
{
    ShowStart();
    for (const int screen : {2, 3}) {
        m_pCameras->Notes()->SetOverlays(screen, true);
        m_pCameras->Notes()->SetBaseMap(screen, true);
    }
    const QSize wall = m_pCameras->Wall()->size();
    const QPoint onThird(wall.width() * 28 / 100, wall.height() * 6 / 10); // between its windows
    DragOver(*m_pCameras->Wall(), onThird, onThird); // selects it
}

void WallPage::EnterSelection()
{
    ShowStart();
    m_pCameras->SetSelectionMode(WallWidget::MultiSelection);
    ShowStates();
    // A band from the free lower left corner of the third screen over two of its windows.
    const QSize wall = m_pCameras->Wall()->size();
    DragOver(
        *m_pCameras->Wall(), QPoint(wall.width() / 50, wall.height() * 49 / 50),
        QPoint(wall.width() / 4, wall.height() * 7 / 10));
    m_pDetails->EndSlide();
}

void WallPage::EnterZoomed()
{
    ShowStart();
    ZoomIntoThirdScreen();
}

void WallPage::ZoomIntoThirdScreen()
{
    const QSize wall = m_pCameras->Wall()->size();
    TurnWheel(*m_pCameras->Wall(), QPoint(wall.width() * 2 / 5, wall.height() * 7 / 10), 2);
}

void WallPage::EnterDetails()
{
    ShowStart();
    m_pCameras->SetSelectionMode(WallWidget::SingleSelection);
    ShowStates();
    const QWidget* video = m_pCameras->Wall()->GetWindowWidget(0, 0);
    const QPoint middle = video->mapTo(m_pCameras->Wall(), video->rect().center());
    DragOver(*m_pCameras->Wall(), middle, middle);
    m_pDetails->EndSlide();
}

void WallPage::EnterScene()
{
    ShowStart();
    m_pCameras->SetFamily(WallLayout::NormalFamily);
    ShowStates();
}

void WallPage::EnterZoomedScene()
{
    EnterScene();
    for (const int screen : {2, 3})
        m_pCameras->Notes()->SetOverlays(screen, true);
    ZoomIntoThirdScreen();
}

} // namespace OperatorClient
