#include <gallery/Client.h>

#include <Platform/BasicUIComponents/KvDir.h>
#include <Platform/BasicUIComponents/KvSkin.h>
#include <Platform/BasicUIComponents/KvSkinNotifier.h>
#include <gallery/Alarms/AlarmPage.h>
#include <gallery/Forms/DevicePage.h>
#include <gallery/LastFolders.h>
#include <gallery/Map/MapPage.h>
#include <gallery/Pairing/PairingPage.h>
#include <gallery/Photo/PhotoPage.h>
#include <gallery/Photo/RecordPage.h>
#include <gallery/Screenshots.h>
#include <gallery/Wall/WallPage.h>

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QStyle>

namespace OperatorClient {

namespace {

// Screenshots show this moment, so that two runs give the same pictures.
QDateTime PictureMoment() { return {QDate(2026, 3, 14), QTime(10, 24, 36)}; }

constexpr int SampleAlarmCount = 20000;
constexpr int SaveDelay = 300; // milliseconds after the last change
constexpr int FontOfPictures = 13; // pixels; without a desktop the font is any size

/// What the pages are made from.
struct PageNeeds
{
    SourcePool& pool;
    FrameClock& clock;
    const ClientOptions& options;
    QString settingsFile;
    QString recordFolder;
};

Page* NewWallPage(const PageNeeds& needs, QWidget* parent)
{
    const WallLayoutFile file(needs.settingsFile);
    return new WallPage(
        needs.pool, needs.clock, file, file.Read().value_or(FirstWall()), needs.options.files, parent);
}

Page* NewMapPage(const PageNeeds& needs, QWidget* parent)
{
    return new MapPage(
        needs.pool, needs.clock, KvGUI::KvDir::GetCurrentPath() + QLatin1String("maps/site-map.html"),
        parent);
}

Page* NewPhotoPage(const PageNeeds& needs, QWidget* parent)
{
    auto* page = new PhotoPage(needs.options.photo, parent);
    page->Remember(needs.settingsFile);
    return page;
}

Page* NewRecordPage(const PageNeeds& needs, QWidget* parent)
{
    return new RecordPage(needs.recordFolder, parent);
}

Page* NewPairingPage(const PageNeeds& needs, QWidget* parent)
{
    Q_UNUSED(needs)
    return new PairingPage(parent);
}

Page* NewAlarmPage(const PageNeeds& needs, QWidget* parent)
{
    return new AlarmPage(SampleAlarms(SampleAlarmCount, needs.clock.Now()), parent);
}

Page* NewDevicePage(const PageNeeds& needs, QWidget* parent)
{
    Q_UNUSED(needs)
    return new DevicePage(parent);
}

struct Registered
{
    const char* name;
    QString (*title)();
    Page* (*make)(const PageNeeds& needs, QWidget* parent);
};

// clang-format off
const Registered Registry[] = {
    {"wall", WallPage::Title, NewWallPage},
    {"map", MapPage::Title, NewMapPage},
    {"photo", PhotoPage::Title, NewPhotoPage},
    {"record", RecordPage::Title, NewRecordPage},
    {"pairing", PairingPage::Title, NewPairingPage},
    {"alarms", AlarmPage::Title, NewAlarmPage},
    {"device", DevicePage::Title, NewDevicePage},
};
// clang-format on

} // namespace

QStringList PageNames()
{
    QStringList names;
    for (const Registered& page : Registry)
        names << QString::fromLatin1(page.name);
    return names;
}

Client::Client(const ClientOptions& options)
    : m_options(options)
    , m_stored(SettingsFile(), QStringLiteral("Client"), QStringLiteral("State"))
{
    const QStringList stored = m_stored.Read();
    for (const QString& text : stored) {
        if (!text.isEmpty()) {
            m_state = ClientState::FromText(text);
            break;
        }
    }
    const QString skin = m_options.skin.isEmpty() ? m_state.skin : m_options.skin;
    KvGUI::SetSkinVersion(SkinNames().contains(skin) ? skin : SkinNames().constFirst());
    if (!m_options.screenshotFolder.isEmpty()) {
        m_clock.Freeze(PictureMoment());
        QFont font = QApplication::font();
        font.setPixelSize(FontOfPictures);
        QApplication::setFont(font);
    }
    LastFolders::Remember(SettingsFile());
    m_language.Set(FirstLanguage());
    m_pWindow = std::make_unique<MainWindow>();
    m_pWindow->ShowLanguage(m_language.Name());
    AddPages();
    if (!m_pWindow->ShowPage(m_options.page.isEmpty() ? m_state.page : m_options.page))
        m_pWindow->ShowPage(0);
    Remember();
}

Client::~Client()
{
    m_pWindow->removeEventFilter(this);
    if (m_saveSoon.isActive())
        Save();
    LastFolders::Remember({});
}

/// Pictures for a page of a document do not depend on the desktop.
QString Client::FirstLanguage() const
{
    QString wanted = m_options.language.isEmpty() ? m_state.language : m_options.language;
    if (Language::Names().contains(wanted))
        return wanted;
    return m_options.screenshotFolder.isEmpty() ? Language::OfDesktop() : Language::Names().constFirst();
}

QString Client::SettingsFile() const
{
    if (!m_options.layoutFile.isEmpty())
        return m_options.layoutFile;
    return m_options.screenshotFolder.isEmpty() ? UsersSettingsFile()
                                                : m_pictureFolder.filePath(QStringLiteral("settings.ini"));
}

void Client::AddPages()
{
    const bool pictures = !m_options.screenshotFolder.isEmpty();
    const PageNeeds needs{
        m_pool, m_clock, m_options, SettingsFile(),
        pictures ? m_pictureFolder.filePath(QStringLiteral("person")) : UsersRecordFolder()};
    for (const Registered& page : Registry)
        m_pWindow->AddPage(
            {QString::fromLatin1(page.name), page.title,
             [make = page.make, needs](QWidget* parent) { return make(needs, parent); }});
}

/// From now on, what the operator changes is what the next start shows.
void Client::Remember()
{
    m_saveSoon.setSingleShot(true);
    m_saveSoon.setInterval(SaveDelay);
    connect(&m_saveSoon, &QTimer::timeout, this, &Client::Save);
    connect(KvGUI::KvSkinNotifier::Instance(), &KvGUI::KvSkinNotifier::SignalSkinChanged, this, [this] {
        m_state.skin = KvGUI::GetSkinVersion();
        m_saveSoon.start();
    });
    connect(m_pWindow.get(), &MainWindow::SignalPageShown, this, [this](const QString& name) {
        m_state.page = name;
        m_saveSoon.start();
    });
    connect(m_pWindow.get(), &MainWindow::SignalLanguageWanted, this, [this](const QString& name) {
        m_language.Set(name);
        m_pWindow->ShowLanguage(name);
        m_state.language = name;
        m_saveSoon.start();
    });
    m_pWindow->installEventFilter(this);
}

bool Client::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    const bool placed = type == QEvent::Move || type == QEvent::Resize || type == QEvent::WindowStateChange;
    if (placed && m_pWindow->isVisible())
        m_saveSoon.start();
    return QObject::eventFilter(watched, event);
}

/// Not while the window changes: its size may be that of one state and its state the other.
void Client::NotePlace()
{
    if (!m_pWindow->isVisible() || m_pWindow->isMinimized())
        return;
    m_state.maximized = m_pWindow->isMaximized();
    const bool filling = m_state.maximized || m_pWindow->isFullScreen(); // which a window manager can make it
    const QRect place = filling ? m_pWindow->normalGeometry() : m_pWindow->geometry();
    if (!place.isEmpty()) // as it can be after a start as maximised window
        m_state.window = place;
}

void Client::Save()
{
    m_saveSoon.stop();
    NotePlace();
    if (m_options.screenshotFolder.isEmpty())
        m_stored.Write(m_state.ToText());
}

void Client::Show()
{
    QVector<QRect> screens;
    const QList<QScreen*> all = QGuiApplication::screens(); // the primary one first
    for (const QScreen* screen : all)
        screens.append(screen->availableGeometry());
    const int titleBar = m_pWindow->style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const QRect wanted = m_state.window.isEmpty() ? QRect(QPoint(), m_pWindow->size()) : m_state.window;
    const QRect placed = PlaceOnScreens(wanted, screens, titleBar);
    if (m_state.window.isEmpty())
        m_pWindow->resize(placed.size()); // where, the window manager knows best
    else
        m_pWindow->setGeometry(placed);
    if (m_state.maximized)
        m_pWindow->showMaximized();
    else
        m_pWindow->show();
}

bool Client::SaveScreenshots()
{
    return OperatorClient::SaveScreenshots(*m_pWindow, m_pool, m_options.screenshotFolder, m_options.page);
}

} // namespace OperatorClient
