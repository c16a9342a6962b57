#include <gallery/Wall/ScreenNotes.h>

#include <gallery/Wall/SampleOverlays.h>
#include <gallery/Wall/SiteMap.h>

#include <QCoreApplication>
#include <QEvent>
#include <QFile>

namespace OperatorClient {

namespace {

constexpr int AtRest = 100; // milliseconds after the last step of a resize or a zoom

} // namespace

ScreenNotes::ScreenNotes(WallWidget& wall, QObject* parent)
    : QObject(parent)
    , m_wall(wall)
{
    // Overlays keep the pixels of the moment in which they were set; they are set again when a resize or
    // a zoom has come to rest.
    m_resized.setSingleShot(true);
    m_resized.setInterval(AtRest);
    connect(&m_resized, &QTimer::timeout, this, &ScreenNotes::ShowOverlaysAgain);
}

void ScreenNotes::WatchWall()
{
    // A zoom resizes a wall built from widgets; one drawn in a scene gets the wheel in its view.
    const QWidgetList parts = m_wall.findChildren<QWidget*>();
    for (QWidget* part : parts)
        part->installEventFilter(this);
}

bool ScreenNotes::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Wheel)
        m_resized.start();
    return QObject::eventFilter(watched, event);
}

void ScreenNotes::Show(int screen)
{
    const ScreenNote note = NoteOf(m_wall, screen);
    // The text of the first wall is the program's own; one that the operator wrote has no translation.
    const QByteArray text = note.text.toUtf8();
    m_wall.SetScreenContentText(
        screen,
        text.isEmpty() ? QString()
                       : QCoreApplication::translate("OperatorClient::WallPage", text.constData()));
    m_wall.SetScreenFreeMode(screen, !note.cellBound);
    m_wall.SetScreenBaseMap(screen, note.baseMap ? BaseMapPath().toStdString() : std::string(), note.baseMap);
    std::vector<KvGUI::StructOSDInfo> infos;
    if (note.overlays)
        infos = SampleOverlays();
    m_wall.SetScreenOSDInfo(screen, infos);
}

void ScreenNotes::ShowOverlaysAgain()
{
    for (int screen = 0; screen < m_wall.GetScreenCount(); ++screen) {
        if (NoteOf(m_wall, screen).overlays)
            Show(screen);
    }
}

QString ScreenNotes::BaseMapPath()
{
    QString path = m_folder.filePath(QStringLiteral("site-map.png"));
    if (!QFile::exists(path) && !SaveSiteMap(path))
        Q_EMIT SignalReport(tr("The site map cannot be written to %1").arg(path));
    return path;
}

void ScreenNotes::Change(int screen, const ScreenNote& note)
{
    m_wall.SetScreenUserData(screen, QVariant::fromValue(note));
    Show(screen);
    Q_EMIT SignalChanged();
}

void ScreenNotes::SetOverlays(int screen, bool bShow)
{
    ScreenNote note = NoteOf(m_wall, screen);
    note.overlays = bShow;
    Change(screen, note);
}

void ScreenNotes::SetBaseMap(int screen, bool bShow)
{
    ScreenNote note = NoteOf(m_wall, screen);
    note.baseMap = bShow;
    Change(screen, note);
}

void ScreenNotes::SetCellBound(int screen, bool bBound)
{
    ScreenNote note = NoteOf(m_wall, screen);
    note.cellBound = bBound;
    Change(screen, note);
}

void ScreenNotes::SetPositioning(int screen, bool bEnable)
{
    if (screen < 0 || screen != m_wall.GetSelectedScreenIndex())
        return;
    ScreenNote note = NoteOf(m_wall, screen);
    note.positioning = bEnable;
    m_wall.SetScreenUserData(screen, QVariant::fromValue(note));
    m_wall.SetPtzFrameSelectedEnable(bEnable);
}

} // namespace OperatorClient
