#include <gallery/Map/MapRules.h>

#include <QJsonArray>
#include <QJsonDocument>

namespace OperatorClient {

namespace {

bool Overlap(const KvGUI::StructScaleRect& one, const KvGUI::StructScaleRect& other)
{
    constexpr double Touch = 1e-3; // neighbours may share an edge that was rounded
    return one.dLeft < other.dRight - Touch && other.dLeft < one.dRight - Touch
        && one.dTop < other.dBottom - Touch && other.dTop < one.dBottom - Touch;
}

bool IsFree(const KvGUI::StructScaleRect& rect, const QVector<WindowLayout>& windows)
{
    return std::none_of(windows.begin(), windows.end(), [&](const WindowLayout& window) {
        return Overlap(rect, window.rect);
    });
}

QString ArrayText(const QJsonArray& array)
{
    return QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Compact));
}

} // namespace

WallPlace PlaceOfCamera(const WallLayout& wall, int camera)
{
    for (int screen = 0; screen < wall.screens.size(); ++screen) {
        const QVector<WindowLayout>& windows = wall.screens.at(screen).windows;
        for (int window = 0; window < windows.size(); ++window) {
            if (windows.at(window).source == SourceSpec::Camera(camera))
                return {screen, window};
        }
    }
    return {};
}

FreeQuarter FirstFreeQuarter(const WallLayout& wall)
{
    for (int screen = 0; screen < wall.screens.size(); ++screen) {
        for (const double top : {0.0, 0.5}) {
            for (const double left : {0.0, 0.5}) {
                const KvGUI::StructScaleRect quarter{left, top, left + 0.5, top + 0.5, true};
                if (IsFree(quarter, wall.screens.at(screen).windows))
                    return {screen, quarter};
            }
        }
    }
    return {};
}

QString WallScript(const WallLayout& wall, int screen, const QList<int>& selected)
{
    QJsonArray shownCameras;
    QJsonArray selectedCameras;
    for (int i = 0; i < wall.screens.size(); ++i) {
        const QVector<WindowLayout>& windows = wall.screens.at(i).windows;
        for (int window = 0; window < windows.size(); ++window) {
            const SourceSpec& source = windows.at(window).source;
            if (source.kind != SourceSpec::Kind::Camera)
                continue;
            shownCameras.append(source.camera);
            if (i == screen && selected.contains(window))
                selectedCameras.append(source.camera);
        }
    }
    return QStringLiteral("showWall(%1, %2)").arg(ArrayText(shownCameras), ArrayText(selectedCameras));
}

} // namespace OperatorClient
