#include <gallery/Wall/WallDrops.h>

#include <gallery/LastFolders.h>
#include <gallery/Wall/CameraWall.h>
#include <gallery/Wall/WallRules.h>

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <algorithm>

namespace OperatorClient {

namespace {

constexpr QSize WindowFrame(4, 24); // pixels of a wall's window beside its video

bool IsDrag(const QEvent& event)
{
    return event.type() == QEvent::DragEnter || event.type() == QEvent::DragMove
        || event.type() == QEvent::Drop;
}

bool FirstSource(const QMimeData& data, SourceSpec& source)
{
    const QList<QUrl> urls = data.urls();
    return std::any_of(urls.begin(), urls.end(), [&](const QUrl& url) {
        return url.isLocalFile() && SourceOfFile(url.toLocalFile(), source);
    });
}

/// Accepts a drag with a file that can be shown.
/// @return the event when it drops the file, else null
const QDropEvent* TakenDrop(QEvent& event, SourceSpec& source)
{
    if (!IsDrag(event))
        return nullptr;
    auto& drag = static_cast<QDropEvent&>(event);
    if (!FirstSource(*drag.mimeData(), source))
        return nullptr;
    drag.acceptProposedAction();
    if (event.type() != QEvent::Drop)
        return nullptr;
    LastFolders::Note(
        source.kind == SourceSpec::Kind::Video ? FileUse::WallVideo : FileUse::WallPicture, source.path);
    return &drag;
}

} // namespace

WallDrops::WallDrops(CameraWall& cameras)
    : QObject(&cameras)
    , m_cameras(cameras)
{
    connect(cameras.Wall(), &WallWidget::SignalScreenEvent, this, &WallDrops::OnScreenEvent);
    connect(cameras.Wall(), &WallWidget::SignalWindowEvent, this, &WallDrops::OnWindowEvent);
}

void WallDrops::OnScreenEvent(int screen, QEvent* event)
{
    SourceSpec source;
    if (const QDropEvent* drop = TakenDrop(*event, source))
        OpenAtDrop(screen, *drop, source);
}

void WallDrops::OnWindowEvent(int screen, int window, QEvent* event)
{
    SourceSpec source;
    if (TakenDrop(*event, source))
        m_cameras.ReplaceSource(screen, window, source);
}

// The wall may be zoomed, so the new window tells how large its screen is.
void WallDrops::OpenAtDrop(int screen, const QDropEvent& drop, const SourceSpec& source)
{
    KvGUI::StructScaleRect place = PlaceAround({0.5, 0.5});
    const int window = m_cameras.OpenWindow(screen, place, source);
    const QWidget* video = m_cameras.Wall()->GetWindowWidget(screen, window);
    if (!video)
        return;
    const QSizeF pixels = video->size() + WindowFrame;
    const QSizeF size(
        pixels.width() / (place.dRight - place.dLeft), pixels.height() / (place.dBottom - place.dTop));
    place = PlaceAround({drop.posF().x() / size.width(), drop.posF().y() / size.height()});
    place.bEditable = true;
    m_cameras.Wall()->SetWindowScale(screen, window, place);
}

} // namespace OperatorClient
