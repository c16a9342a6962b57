#include <gallery/Pictures/SourceSpec.h>

#include <QFileInfo>
#include <QImageReader>
#include <QMimeDatabase>

namespace OperatorClient {

namespace {

const QLatin1String CameraPrefix("camera:");
const QLatin1String PhotoPrefix("photo:");
const QLatin1String VideoPrefix("video:");

} // namespace

SourceSpec SourceSpec::Camera(int number)
{
    SourceSpec spec;
    spec.camera = qBound(1, number, MaxCamera);
    return spec;
}

SourceSpec SourceSpec::Photo(const QString& path)
{
    SourceSpec spec;
    spec.kind = Kind::Photo;
    spec.path = path;
    return spec;
}

SourceSpec SourceSpec::Video(const QString& path)
{
    SourceSpec spec;
    spec.kind = Kind::Video;
    spec.path = path;
    return spec;
}

QString SourceSpec::ToText() const
{
    switch (kind) {
    case Kind::Photo:
        return PhotoPrefix + path;
    case Kind::Video:
        return VideoPrefix + path;
    case Kind::Camera:
        break;
    }
    return CameraPrefix + QString::number(camera);
}

SourceSpec SourceSpec::FromText(const QString& text)
{
    if (text.startsWith(PhotoPrefix))
        return Photo(text.mid(PhotoPrefix.size()));
    if (text.startsWith(VideoPrefix))
        return Video(text.mid(VideoPrefix.size()));
    if (text.startsWith(CameraPrefix))
        return Camera(text.midRef(CameraPrefix.size()).toInt());
    return Camera(1);
}

bool operator==(const SourceSpec& one, const SourceSpec& other)
{
    return one.kind == other.kind && one.path == other.path
        && (one.kind != SourceSpec::Kind::Camera || one.camera == other.camera);
}

bool operator!=(const SourceSpec& one, const SourceSpec& other) { return !(one == other); }

bool SourceOfFile(const QString& path, SourceSpec& spec)
{
    if (!QFileInfo(path).isFile())
        return false;
    if (QImageReader(path).canRead()) {
        spec = SourceSpec::Photo(path);
        return true;
    }
    const QString type = QMimeDatabase().mimeTypeForFile(path).name();
    // Containers that hold sound or pictures alike are tried as videos.
    if (type.startsWith(QLatin1String("video/")) || type == QLatin1String("application/ogg")) {
        spec = SourceSpec::Video(path);
        return true;
    }
    return false;
}

} // namespace OperatorClient
