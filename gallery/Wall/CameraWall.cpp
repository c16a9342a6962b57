#include <gallery/Wall/CameraWall.h>

#include <UI/TVWall/KvTVWallNormalWnd.h>
#include <gallery/FollowLanguage.h>
#include <gallery/Pictures/CameraTile.h>
#include <gallery/SkinIcon.h>
#include <gallery/Wall/ScreenNotes.h>
#include <gallery/Wall/WallDrops.h>
#include <gallery/Wall/WallNotes.h>
#include <gallery/Wall/WallReports.h>
#include <gallery/Wall/WallRules.h>
#include <gallery/Wall/WallSound.h>
#include <gallery/Wall/WallTexts.h>

#include <QEvent>
#include <QPushButton>
#include <QVBoxLayout>

namespace OperatorClient {

namespace {

QString ScreenTitle(int screen) { return CameraWall::tr("Screen %1").arg(screen + 1); }

} // namespace

CameraWall::CameraWall(SourcePool& pool, FrameClock& clock, QWidget* parent)
    : QWidget(parent)
    , m_pool(pool)
    , m_clock(clock)
    , m_pWall(new WallWidget(this))
    , m_pNotes(new ScreenNotes(*m_pWall, this))
    , m_pSound(new WallSound(*m_pWall, this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_pWall);
    FollowLanguage(m_pWall, "accessibleName", [] { return tr("Video wall"); });
    ShowFamily(WallLayout::DisplayFamily);
    new WallDrops(*this);
    ConnectWall();
    ConnectParts();
}

void CameraWall::ConnectWall()
{
    connect(
        m_pWall, &WallWidget::SignalDrawAreaOpenWindow, this,
        [this](int screen, const KvGUI::StructScaleRect& rect) { OpenWindow(screen, rect); });
    connect(m_pWall, &WallWidget::SignalWindowCloseBtnClicked, this, &CameraWall::CloseWindow);
    connect(m_pWall, &WallWidget::SignalScreenRightClick, this, &CameraWall::SignalMenuWanted);
    connect(m_pWall, &WallWidget::SignalScreenSelectedChanged, this, &CameraWall::SignalScreenSelected);
    connect(m_pWall, &WallWidget::SignalScreenSelectedChanged, this, &CameraWall::SignalSelectionChanged);
    connect(m_pWall, &WallWidget::SignalWindowSelectedChanged, this, &CameraWall::SignalSelectionChanged);
    connect(m_pWall, &WallWidget::SignalWindowGeoChanged, this, &CameraWall::SignalChanged);
}

void CameraWall::ConnectParts()
{
    auto* reports = new WallReports(*m_pWall, this);
    connect(reports, &WallReports::SignalReport, this, &CameraWall::SignalReport);
    connect(m_pNotes, &ScreenNotes::SignalReport, this, &CameraWall::SignalReport);
    connect(m_pNotes, &ScreenNotes::SignalChanged, this, &CameraWall::SignalChanged);
    connect(m_pSound, &WallSound::SignalReport, this, &CameraWall::SignalReport);
    connect(m_pSound, &WallSound::SignalChanged, this, &CameraWall::SignalChanged);
    connect(m_pSound, &WallSound::SignalWindowChanged, this, &CameraWall::SignalSoundChanged);
}

void CameraWall::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    for (int screen = 0; screen < m_pWall->GetScreenCount(); ++screen) {
        m_pWall->SetScreenTitle(screen, ScreenTitle(screen));
        m_pNotes->Show(screen);
        for (int window = 0; window < m_pWall->GetWindowCount(screen); ++window)
            NameSource(screen, window);
    }
}

void CameraWall::ShowFamily(int family)
{
    if (m_iFamily == family)
        return;
    m_iFamily = family;
    m_pWall->SetShowMode(family);
    // The operate widget passes on this signal of a wall of widgets only.
    if (const auto* scene = m_pWall->findChild<UICommonMdl::KvTVWallNormalWnd*>())
        connect(
            scene, &UICommonMdl::KvTVWallNormalWnd::SignalScreenRightClick, this,
            &CameraWall::SignalMenuWanted);
    m_pNotes->WatchWall();
}

void CameraWall::SetFamily(int family)
{
    WallLayout layout = Layout();
    layout.family = family;
    m_pSound->SilenceAll();
    Apply(layout);
    Q_EMIT SignalReport(
        family == WallLayout::DisplayFamily ? tr("The wall is built from widgets now")
                                            : tr("The wall is drawn in a scene now"));
    Q_EMIT SignalChanged();
}

void CameraWall::ShowWholeWall() { m_pWall->RecoverEagleEye(); }

void CameraWall::Apply(const WallLayout& layout)
{
    ShowFamily(layout.family);
    m_pWall->DeleteAllScreen();
    m_pWall->SetTVWallGridCount(layout.rows, layout.columns);
    for (const ScreenLayout& screen : layout.screens)
        AddScreenFor(screen);
    SetGutter(layout.gutter);
    SetTitles(layout.titles);
    SetSelectionMode(layout.selectionMode);
    m_pSound->Restore(layout.sound, layout.volume);
    m_pWall->SetSelectedScreenIndex(0);
    Q_EMIT SignalScreenSelected();
}

void CameraWall::AddScreenFor(const ScreenLayout& layout)
{
    ScreenNote note;
    note.text = layout.text;
    note.overlays = layout.overlays;
    note.baseMap = layout.baseMap;
    note.cellBound = layout.cellBound;
    const int screen = m_pWall->AddScreen(
        layout.rect, SkinIcon(QStringLiteral("ToolBar"), QStringLiteral("Screen")),
        ScreenTitle(m_pWall->GetScreenCount()), QVariant::fromValue(note));
    m_pNotes->Show(screen);
    RestoreWindows(screen, layout.windows);
}

void CameraWall::RestoreWindows(int screen, const QVector<WindowLayout>& windows)
{
    QVector<int> zValues;
    for (const WindowLayout& window : windows) {
        m_pWall->SetWindowTitleShow(window.titled);
        const WindowNote note{window.source.ToText(), window.titled};
        PlaceTile(screen, m_pWall->OpenWindow(screen, window.rect, QVariant::fromValue(note)), window.source);
        zValues.append(window.z);
    }
    m_pWall->SetWindowTitleShow(m_bTitles);
    Stack(screen, StackingOrder(zValues));
}

WallLayout CameraWall::Layout() const
{
    WallLayout layout;
    layout.rows = m_pWall->GetRowCount();
    layout.columns = m_pWall->GetColumnCount();
    layout.family = m_iFamily;
    layout.selectionMode = m_pWall->GetWindowSelectionMode();
    layout.titles = m_bTitles;
    layout.gutter = m_bGutter;
    layout.sound = m_pSound->IsOn();
    layout.volume = m_pSound->Volume();
    for (int screen = 0; screen < m_pWall->GetScreenCount(); ++screen) {
        ScreenLayout stored;
        const ScreenNote note = NoteOf(*m_pWall, screen);
        stored.text = note.text;
        stored.overlays = note.overlays;
        stored.baseMap = note.baseMap;
        stored.cellBound = note.cellBound;
        m_pWall->GetScreenScale(screen, stored.rect);
        for (int window = 0; window < m_pWall->GetWindowCount(screen); ++window) {
            const WindowNote windowNote = NoteOf(*m_pWall, screen, window);
            WindowLayout storedWindow;
            m_pWall->GetWindowScale(screen, window, storedWindow.rect);
            storedWindow.z = m_pWall->GetWindowZValue(screen, window);
            storedWindow.source = SourceSpec::FromText(windowNote.source);
            storedWindow.titled = windowNote.titled;
            stored.windows.append(storedWindow);
        }
        layout.screens.append(stored);
    }
    return layout;
}

void CameraWall::ShowWaitingFiles()
{
    for (int screen = 0; screen < m_pWall->GetScreenCount(); ++screen) {
        for (int window = 0; window < m_pWall->GetWindowCount(screen); ++window) {
            if (m_waitingFiles.isEmpty())
                return;
            ReplaceSource(screen, window, m_waitingFiles.takeFirst());
        }
    }
}

void CameraWall::SetGrid(int rows, int columns)
{
    m_pWall->SetTVWallGridCount(rows, columns);
    Q_EMIT SignalReport(
        tr("Grid of %1 rows and %2 columns; screens keep their places").arg(rows).arg(columns));
    Q_EMIT SignalChanged();
}

namespace {

QVector<KvGUI::StructScaleRect> FreeCellsOf(const WallWidget& wall)
{
    QVector<KvGUI::StructScaleRect> taken(wall.GetScreenCount());
    for (int screen = 0; screen < taken.size(); ++screen)
        wall.GetScreenScale(screen, taken[screen]);
    return FreeCells(wall.GetRowCount(), wall.GetColumnCount(), taken);
}

} // namespace

bool CameraWall::AddScreen()
{
    const QVector<KvGUI::StructScaleRect> cells = FreeCellsOf(*m_pWall);
    if (cells.isEmpty())
        return false;
    ScreenLayout screen;
    screen.rect = cells.first();
    AddScreenFor(screen);
    SetGutter(m_bGutter);
    Q_EMIT SignalChanged();
    return true;
}

int CameraWall::FillGrid()
{
    const QVector<KvGUI::StructScaleRect> cells = FreeCellsOf(*m_pWall);
    for (const KvGUI::StructScaleRect& cell : cells) {
        ScreenLayout screen;
        screen.rect = cell;
        AddScreenFor(screen);
    }
    SetGutter(m_bGutter);
    Q_EMIT SignalChanged();
    return cells.size();
}

void CameraWall::RemoveAll()
{
    m_pSound->SilenceAll();
    m_pWall->DeleteAllScreen();
    Q_EMIT SignalScreenSelected();
    Q_EMIT SignalChanged();
}

void CameraWall::SetGutter(bool bGutter)
{
    m_bGutter = bGutter;
    m_pWall->SetDeviceType(!bGutter);
    Q_EMIT SignalChanged();
}

void CameraWall::SetTitles(bool bTitles)
{
    m_bTitles = bTitles;
    m_pWall->SetWindowTitleShow(bTitles);
    Q_EMIT SignalChanged();
}

void CameraWall::SetSelectionMode(int mode)
{
    m_pWall->SetWindowSelectionMode(WallWidget::SelectionMode(mode));
    Q_EMIT SignalChanged();
}

int CameraWall::OpenWindow(int screen, const KvGUI::StructScaleRect& rect)
{
    return OpenWindow(screen, rect, NextSource());
}

int CameraWall::OpenWindow(int screen, const KvGUI::StructScaleRect& rect, const SourceSpec& source)
{
    KvGUI::StructScaleRect place = rect;
    place.bEditable = true;
    const WindowNote note{source.ToText(), m_bTitles};
    const int window = m_pWall->OpenWindow(screen, place, QVariant::fromValue(note));
    if (window < 0)
        return window;
    PlaceTile(screen, window, source);
    // Every window has a value of its own, so that raising and lowering are never in doubt.
    m_pWall->SetWindowZValue(screen, window, m_pWall->GetMaxWindowZValue(screen) + 1, true);
    Q_EMIT SignalReport(
        tr("Screen %1: window %2 opened at %3").arg(screen + 1).arg(window + 1).arg(PlaceText(place)));
    Q_EMIT SignalChanged();
    return window;
}

int CameraWall::OpenWindowSomewhere(const SourceSpec* source)
{
    const int screen = qMax(0, m_pWall->GetSelectedScreenIndex());
    const KvGUI::StructScaleRect place = CascadePlace(m_pWall->GetWindowCount(screen));
    return OpenWindow(screen, place, source ? *source : NextSource());
}

SourceSpec CameraWall::NextSource()
{
    if (!m_waitingFiles.isEmpty())
        return m_waitingFiles.takeFirst();
    int camera = 1;
    while (camera < SourceSpec::MaxCamera && IsShown(SourceSpec::Camera(camera)))
        ++camera;
    return SourceSpec::Camera(camera);
}

bool CameraWall::IsShown(const SourceSpec& source) const
{
    const QString text = source.ToText();
    for (int screen = 0; screen < m_pWall->GetScreenCount(); ++screen) {
        for (int window = 0; window < m_pWall->GetWindowCount(screen); ++window) {
            if (NoteOf(*m_pWall, screen, window).source == text)
                return true;
        }
    }
    return false;
}

void CameraWall::PlaceTile(int screen, int window, const SourceSpec& source)
{
    QWidget* place = m_pWall->GetWindowWidget(screen, window);
    if (!place)
        return;
    auto* tile = new CameraTile(m_pool.Get(source), m_clock, place);
    auto* layout = new QVBoxLayout(place);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(tile);
    tile->show();
    NameSource(screen, window);
}

void CameraWall::NameSource(int screen, int window)
{
    CameraTile* tile = TileOf(*m_pWall, screen, window);
    if (!tile)
        return;
    tile->setAccessibleName(tile->Source().Title());
    m_pWall->SetWindowContentText(screen, window, tile->Source().Title());
}

void CameraWall::ReplaceSource(int screen, int window, const SourceSpec& source)
{
    CameraTile* tile = TileOf(*m_pWall, screen, window);
    if (!tile)
        return;
    tile->Source().SetAudible(false);
    tile->SetSource(m_pool.Get(source));
    m_pSound->Renew(screen, window);
    WindowNote note = NoteOf(*m_pWall, screen, window);
    note.source = source.ToText();
    m_pWall->SetWindowUserData(screen, window, QVariant::fromValue(note));
    NameSource(screen, window);
    Q_EMIT SignalReport(
        tr("Screen %1, window %2 shows %3")
            .arg(QString::number(screen + 1), QString::number(window + 1), tile->Source().Title()));
    Q_EMIT SignalChanged();
}

void CameraWall::CloseWindow(int screen, int window)
{
    m_pSound->Silence(screen, window);
    if (!m_pWall->DeleteWindow(screen, window))
        return;
    Q_EMIT SignalReport(tr("Screen %1: window %2 closed").arg(screen + 1).arg(window + 1));
    Q_EMIT SignalChanged();
}

void CameraWall::CloseWindows(int screen)
{
    const int count = m_pWall->GetWindowCount(screen);
    for (int window = count - 1; window >= 0; --window)
        CloseWindow(screen, window);
    Q_EMIT SignalReport(tr("Screen %1: %n window(s) closed", nullptr, count).arg(screen + 1));
}

void CameraWall::CloseSelected()
{
    const int screen = m_pWall->GetSelectedScreenIndex();
    const QList<int> selected = m_pWall->GetSelectedWindowIndexs();
    for (auto window = selected.rbegin(); window != selected.rend(); ++window)
        CloseWindow(screen, *window);
    if (selected.isEmpty())
        Q_EMIT SignalReport(tr("No window is selected"));
}

QVector<int> CameraWall::ZValues(int screen) const
{
    QVector<int> values;
    for (int window = 0; window < m_pWall->GetWindowCount(screen); ++window)
        values.append(m_pWall->GetWindowZValue(screen, window));
    return values;
}

void CameraWall::Stack(int screen, const QVector<int>& order)
{
    if (order.isEmpty())
        return;
    for (int i = 0; i < order.size(); ++i)
        m_pWall->SetWindowZValue(screen, order.at(i), i + 1, false);
    // The values are right already; setting the highest once more stacks all windows by them.
    m_pWall->SetWindowZValue(screen, order.last(), order.size(), true);
}

void CameraWall::StackSelected(bool toTop)
{
    const int screen = m_pWall->GetSelectedScreenIndex();
    const QList<int> selected = m_pWall->GetSelectedWindowIndexs();
    if (selected.isEmpty()) {
        Q_EMIT SignalReport(tr("No window is selected"));
        return;
    }
    Stack(screen, StackingOrder(ZValues(screen), selected, toTop));
    Q_EMIT SignalReport((toTop ? tr("Screen %1: windows %2 raised") : tr("Screen %1: windows %2 lowered"))
                            .arg(screen + 1)
                            .arg(NumbersText(selected)));
    Q_EMIT SignalChanged();
}

namespace {

/// The snap button in the title bar of the window that @p video belongs to, below @p wall.
QPushButton* SnapButton(QWidget* video, const QWidget* wall)
{
    for (QWidget* widget = video; widget && widget != wall; widget = widget->parentWidget()) {
        if (auto* button = widget->findChild<QPushButton*>(QStringLiteral("pWindowSelfAdaptionBtn")))
            return button;
    }
    return nullptr;
}

} // namespace

void CameraWall::SnapWindows(int screen)
{
    for (int window = 0; window < m_pWall->GetWindowCount(screen); ++window) {
        QPushButton* button = SnapButton(m_pWall->GetWindowWidget(screen, window), m_pWall);
        // The button of a snapped window would take it back.
        if (button && !button->property("restore").toBool())
            button->click();
    }
    Q_EMIT SignalReport(tr("Screen %1: windows snapped to its cells").arg(screen + 1));
}

WindowFacts CameraWall::Facts(int screen, int window) const
{
    WindowFacts facts;
    const WindowNote note = NoteOf(*m_pWall, screen, window);
    if (const CameraTile* tile = TileOf(*m_pWall, screen, window))
        facts.source = tile->Source().Title();
    facts.screen = screen;
    facts.window = window;
    m_pWall->GetWindowScale(screen, window, facts.rect);
    facts.zValue = m_pWall->GetWindowZValue(screen, window);
    facts.audible = m_pWall->GetWindowVolumeBtnStatus(screen, window);
    facts.volume = note.volume;
    return facts;
}

} // namespace OperatorClient
