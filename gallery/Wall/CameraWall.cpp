#include <gallery/Wall/CameraWall.h>

#include <gallery/FollowLanguage.h>
#include <gallery/Pictures/CameraTile.h>
#include <gallery/SkinIcon.h>
#include <gallery/Wall/SampleOverlays.h>
#include <gallery/Wall/SiteMap.h>
#include <gallery/Wall/WallRules.h>

#include <QDropEvent>
#include <QFile>
#include <QMimeData>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

namespace OperatorClient {

namespace {

constexpr QSize WindowFrame(4, 24); // pixels of a wall's window beside its video

/// The first of the dragged files that can be shown.
bool SourceOfDrag(const QMimeData* data, SourceSpec& source)
{
    const QList<QUrl> urls = data->urls();
    return std::any_of(urls.begin(), urls.end(), [&](const QUrl& url) {
        return url.isLocalFile() && SourceOfFile(url.toLocalFile(), source);
    });
}

bool IsDrag(const QEvent* event)
{
    return event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove
        || event->type() == QEvent::Drop;
}

QString RectText(const KvGUI::StructScaleRect& rect)
{
    const auto number = [](double value) { return QString::number(value, 'f', 3); };
    return QStringLiteral("%1, %2 \u2013 %3, %4")
        .arg(number(rect.dLeft), number(rect.dTop), number(rect.dRight), number(rect.dBottom));
}

QString ScreenTitle(int screen) { return CameraWall::tr("Screen %1").arg(screen + 1); }

QString NumbersText(const QList<int>& indices)
{
    QStringList numbers;
    for (const int index : indices)
        numbers << QString::number(index + 1);
    return numbers.join(QStringLiteral(", "));
}

} // namespace

CameraWall::CameraWall(SourcePool& pool, FrameClock& clock, QWidget* parent)
    : QWidget(parent)
    , m_pool(pool)
    , m_clock(clock)
    , m_pWall(new WallWidget(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_pWall);
    FollowLanguage(m_pWall, "accessibleName", [] { return tr("Video wall"); });
    ShowFamily(WallLayout::DisplayFamily);
    // Overlays keep the pixels of the moment in which they were set; they are set again when a resize or
    // a zoom has come to rest.
    m_resized.setSingleShot(true);
    m_resized.setInterval(100);
    connect(&m_resized, &QTimer::timeout, this, &CameraWall::ShowOverlaysAgain);
    ConnectHands();
    ConnectReports();
}

void CameraWall::ConnectHands()
{
    connect(
        m_pWall, &WallWidget::SignalDrawAreaOpenWindow, this,
        [this](int screen, const KvGUI::StructScaleRect& rect) { OpenWindow(screen, rect); });
    connect(m_pWall, &WallWidget::SignalWindowCloseBtnClicked, this, &CameraWall::CloseWindow);
    connect(m_pWall, &WallWidget::SignalWindowVolumeBtnClicked, this, &CameraWall::OnVolume);
    connect(m_pWall, &WallWidget::SignalScreenEvent, this, &CameraWall::OnScreenEvent);
    connect(m_pWall, &WallWidget::SignalWindowEvent, this, &CameraWall::OnWindowEvent);
    connect(m_pWall, &WallWidget::SignalScreenRightClick, this, &CameraWall::SignalMenuWanted);
    connect(m_pWall, &WallWidget::SignalScreenSelectedChanged, this, &CameraWall::SignalScreenSelected);
    connect(m_pWall, &WallWidget::SignalScreenSelectedChanged, this, &CameraWall::SignalSelectionChanged);
    connect(m_pWall, &WallWidget::SignalWindowSelectedChanged, this, &CameraWall::SignalSelectionChanged);
    connect(m_pWall, &WallWidget::SignalWindowGeoChanged, this, &CameraWall::SignalChanged);
}

void CameraWall::ConnectReports()
{
    connect(m_pWall, &WallWidget::SignalScreenSelectedChanged, this, [this](int screen) {
        Q_EMIT SignalReport(tr("Screen %1 selected").arg(screen + 1));
    });
    connect(m_pWall, &WallWidget::SignalWindowSelectedChanged, this, [this](int screen) {
        const QList<int> windows = m_pWall->GetSelectedWindowIndexs();
        Q_EMIT SignalReport(
            windows.isEmpty()
                ? tr("Screen %1: no window selected").arg(screen + 1)
                : tr("Screen %1: selected windows %2").arg(screen + 1).arg(NumbersText(windows)));
    });
    connect(m_pWall, &WallWidget::SignalWindowDoubleClicked, this, [this](int screen) {
        Q_EMIT SignalReport(tr("Screen %1: a fixed window was double-clicked").arg(screen + 1));
    });
    connect(m_pWall, &WallWidget::SignalWindowClicked, this, [this] {
        Q_EMIT SignalReport(tr("A window was clicked; the selection stays"));
    });
    connect(
        m_pWall, &WallWidget::SignalWindowGeoChanged, this,
        [this](int screen, int window, const KvGUI::StructScaleRect& rect) {
            Q_EMIT SignalReport(
                tr("Screen %1, window %2 is at %3").arg(screen + 1).arg(window + 1).arg(RectText(rect)));
        });
    connect(
        m_pWall, &WallWidget::SignalWindow3DSite, this,
        [this](int screen, int startX, int startY, int endX, int endY) {
            Q_EMIT SignalReport(tr("Screen %1: 3D frame from %2, %3 to %4, %5")
                                    .arg(
                                        QString::number(screen + 1), QString::number(startX),
                                        QString::number(startY), QString::number(endX),
                                        QString::number(endY)));
        });
    connect(m_pWall, &WallWidget::SignalLabelEvent, this, [this](int screen, int label, QEvent* event) {
        if (event->type() == QEvent::MouseButtonPress)
            Q_EMIT SignalReport(tr("Screen %1: press on overlay %2").arg(screen + 1).arg(label + 1));
    });
}

void CameraWall::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    for (int screen = 0; screen < m_pWall->GetScreenCount(); ++screen) {
        m_pWall->SetScreenTitle(screen, ScreenTitle(screen));
        ShowNote(screen, Note(screen));
        for (int window = 0; window < m_pWall->GetWindowCount(screen); ++window)
            NameSource(screen, window);
    }
}

bool CameraWall::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Wheel)
        m_resized.start();
    return QWidget::eventFilter(watched, event);
}

void CameraWall::ShowFamily(int family)
{
    if (m_iFamily == family)
        return;
    m_iFamily = family;
    m_pWall->SetShowMode(family);
    // A zoom resizes a wall built from widgets; one drawn in a scene gets the wheel in its view.
    const QWidgetList walls = m_pWall->findChildren<QWidget*>();
    for (QWidget* wall : walls)
        wall->installEventFilter(this);
}

void CameraWall::SetFamily(int family)
{
    WallLayout layout = Layout();
    layout.family = family;
    SilenceAll();
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
    m_bSound = layout.sound;
    m_iVolume = layout.volume;
    ApplySound();
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
    ShowNote(screen, note);
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
    layout.sound = m_bSound;
    layout.volume = m_iVolume;
    for (int screen = 0; screen < m_pWall->GetScreenCount(); ++screen) {
        ScreenLayout stored;
        const ScreenNote note = Note(screen);
        stored.text = note.text;
        stored.overlays = note.overlays;
        stored.baseMap = note.baseMap;
        stored.cellBound = note.cellBound;
        m_pWall->GetScreenScale(screen, stored.rect);
        for (int window = 0; window < m_pWall->GetWindowCount(screen); ++window) {
            const auto windowNote = m_pWall->GetWindowUserData(screen, window).value<WindowNote>();
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
    SilenceAll();
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
        tr("Screen %1: window %2 opened at %3").arg(screen + 1).arg(window + 1).arg(RectText(place)));
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
            if (m_pWall->GetWindowUserData(screen, window).value<WindowNote>().source == text)
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
    CameraTile* tile = Tile(screen, window);
    if (!tile)
        return;
    tile->setAccessibleName(tile->Source().Title());
    m_pWall->SetWindowContentText(screen, window, tile->Source().Title());
}

CameraTile* CameraWall::Tile(int screen, int window) const
{
    const QWidget* place = m_pWall->GetWindowWidget(screen, window);
    return place ? place->findChild<CameraTile*>() : nullptr;
}

void CameraWall::ReplaceSource(int screen, int window, const SourceSpec& source)
{
    CameraTile* tile = Tile(screen, window);
    if (!tile)
        return;
    const bool audible = m_pWall->GetWindowVolumeBtnStatus(screen, window);
    tile->Source().SetAudible(false);
    tile->SetSource(m_pool.Get(source));
    SetAudible(screen, window, audible);
    auto note = m_pWall->GetWindowUserData(screen, window).value<WindowNote>();
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
    if (m_pWall->GetWindowVolumeBtnStatus(screen, window))
        SetAudible(screen, window, false);
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

ScreenNote CameraWall::Note(int screen) const
{
    return m_pWall->GetScreenUserData(screen).value<ScreenNote>();
}

void CameraWall::ShowNote(int screen, const ScreenNote& note)
{
    // The text of the first wall is the program's own; one that the operator wrote has no translation.
    const QByteArray text = note.text.toUtf8();
    m_pWall->SetScreenContentText(
        screen,
        text.isEmpty() ? QString()
                       : QCoreApplication::translate("OperatorClient::WallPage", text.constData()));
    m_pWall->SetScreenFreeMode(screen, !note.cellBound);
    m_pWall->SetScreenBaseMap(
        screen, note.baseMap ? BaseMapPath().toStdString() : std::string(), note.baseMap);
    std::vector<KvGUI::StructOSDInfo> infos;
    if (note.overlays)
        infos = SampleOverlays();
    m_pWall->SetScreenOSDInfo(screen, infos);
}

void CameraWall::ShowOverlaysAgain()
{
    for (int screen = 0; screen < m_pWall->GetScreenCount(); ++screen) {
        if (Note(screen).overlays)
            ShowNote(screen, Note(screen));
    }
}

QString CameraWall::BaseMapPath()
{
    QString path = m_folder.filePath(QStringLiteral("site-map.png"));
    if (!QFile::exists(path) && !SaveSiteMap(path))
        Q_EMIT SignalReport(tr("The site map cannot be written to %1").arg(path));
    return path;
}

void CameraWall::ChangeNote(int screen, const ScreenNote& note)
{
    m_pWall->SetScreenUserData(screen, QVariant::fromValue(note));
    ShowNote(screen, note);
    Q_EMIT SignalChanged();
}

void CameraWall::SetOverlays(int screen, bool bShow)
{
    ScreenNote note = Note(screen);
    note.overlays = bShow;
    ChangeNote(screen, note);
}

void CameraWall::SetBaseMap(int screen, bool bShow)
{
    ScreenNote note = Note(screen);
    note.baseMap = bShow;
    ChangeNote(screen, note);
}

void CameraWall::SetCellBound(int screen, bool bBound)
{
    ScreenNote note = Note(screen);
    note.cellBound = bBound;
    ChangeNote(screen, note);
}

void CameraWall::SetPositioning(int screen, bool bEnable)
{
    if (screen < 0 || screen != m_pWall->GetSelectedScreenIndex())
        return;
    ScreenNote note = Note(screen);
    note.positioning = bEnable;
    m_pWall->SetScreenUserData(screen, QVariant::fromValue(note));
    m_pWall->SetPtzFrameSelectedEnable(bEnable);
}

void CameraWall::SetAudible(int screen, int window, bool bAudible)
{
    m_pWall->SetWindowVolumeBtn(screen, window, bAudible);
    CameraTile* tile = Tile(screen, window);
    if (!tile)
        return;
    const int volume = m_pWall->GetWindowUserData(screen, window).value<WindowNote>().volume;
    tile->Source().SetVolume(m_iVolume * volume / 100);
    tile->Source().SetAudible(bAudible && m_bSound);
}

void CameraWall::SilenceAll()
{
    for (int screen = 0; screen < m_pWall->GetScreenCount(); ++screen) {
        for (int window = 0; window < m_pWall->GetWindowCount(screen); ++window)
            SetAudible(screen, window, false);
    }
}

/// Passes on to the window that sounds what holds for the whole wall.
void CameraWall::ApplySound()
{
    for (int screen = 0; screen < m_pWall->GetScreenCount(); ++screen) {
        for (int window = 0; window < m_pWall->GetWindowCount(screen); ++window) {
            if (m_pWall->GetWindowVolumeBtnStatus(screen, window))
                SetAudible(screen, window, true);
        }
    }
}

void CameraWall::SetSound(bool bOn)
{
    m_bSound = bOn;
    ApplySound();
    Q_EMIT SignalReport(bOn ? tr("The wall's sound is on") : tr("The wall's sound is off"));
    Q_EMIT SignalChanged();
}

void CameraWall::SetVolume(int volume)
{
    m_iVolume = volume;
    ApplySound();
    Q_EMIT SignalReport(tr("The wall's volume is %1 %").arg(volume));
    Q_EMIT SignalChanged();
}

WindowFacts CameraWall::Facts(int screen, int window) const
{
    WindowFacts facts;
    const auto note = m_pWall->GetWindowUserData(screen, window).value<WindowNote>();
    if (const CameraTile* tile = Tile(screen, window))
        facts.source = tile->Source().Title();
    facts.screen = screen;
    facts.window = window;
    m_pWall->GetWindowScale(screen, window, facts.rect);
    facts.zValue = m_pWall->GetWindowZValue(screen, window);
    facts.audible = m_pWall->GetWindowVolumeBtnStatus(screen, window);
    facts.volume = note.volume;
    return facts;
}

void CameraWall::SetWindowSound(int screen, int window, bool bAudible)
{
    SilenceAll();
    if (bAudible)
        SetAudible(screen, window, true);
    Q_EMIT SignalReport(
        (bAudible ? tr("Screen %1, window %2: sound on") : tr("Screen %1, window %2: sound off"))
            .arg(screen + 1)
            .arg(window + 1));
    Q_EMIT SignalSoundChanged();
}

void CameraWall::SetWindowVolume(int screen, int window, int volume)
{
    if (!Tile(screen, window))
        return;
    auto note = m_pWall->GetWindowUserData(screen, window).value<WindowNote>();
    note.volume = volume;
    m_pWall->SetWindowUserData(screen, window, QVariant::fromValue(note));
    ApplySound();
    Q_EMIT SignalReport(tr("Screen %1, window %2: volume %3 %").arg(screen + 1).arg(window + 1).arg(volume));
}

void CameraWall::OnVolume(int screen, int window)
{
    SetWindowSound(screen, window, !m_pWall->GetWindowVolumeBtnStatus(screen, window));
}

void CameraWall::OnScreenEvent(int screen, QEvent* event)
{
    if (!IsDrag(event))
        return;
    auto* drop = static_cast<QDropEvent*>(event);
    SourceSpec source;
    if (!SourceOfDrag(drop->mimeData(), source))
        return;
    drop->acceptProposedAction();
    if (event->type() == QEvent::Drop)
        OpenAtDrop(screen, *drop, source);
}

// The wall may be zoomed, so the new window tells how large its screen is.
void CameraWall::OpenAtDrop(int screen, const QDropEvent& drop, const SourceSpec& source)
{
    KvGUI::StructScaleRect place = PlaceAround({0.5, 0.5});
    const int window = OpenWindow(screen, place, source);
    const QWidget* video = m_pWall->GetWindowWidget(screen, window);
    if (!video)
        return;
    const QSizeF pixels = video->size() + WindowFrame;
    const QSizeF size(
        pixels.width() / (place.dRight - place.dLeft), pixels.height() / (place.dBottom - place.dTop));
    place = PlaceAround({drop.posF().x() / size.width(), drop.posF().y() / size.height()});
    place.bEditable = true;
    m_pWall->SetWindowScale(screen, window, place);
}

void CameraWall::OnWindowEvent(int screen, int window, QEvent* event)
{
    if (event->type() == QEvent::ContextMenu) {
        Q_EMIT SignalReport(tr("Screen %1, window %2: right click").arg(screen + 1).arg(window + 1));
        return;
    }
    if (!IsDrag(event))
        return;
    auto* drop = static_cast<QDropEvent*>(event);
    SourceSpec source;
    if (!SourceOfDrag(drop->mimeData(), source))
        return;
    drop->acceptProposedAction();
    if (event->type() == QEvent::Drop)
        ReplaceSource(screen, window, source);
}

} // namespace OperatorClient
