#include <gallery/Wall/WallLayout.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cmath>

namespace OperatorClient {

namespace {

// No window or screen may be smaller, as a fraction: it could not be found again.
constexpr double SmallestExtent = 0.01;
constexpr int LongestText = 4 * 1024 * 1024;
constexpr int LongestScreenText = 200;

QJsonArray RectToJson(const KvGUI::StructScaleRect& rect)
{
    return {rect.dLeft, rect.dTop, rect.dRight, rect.dBottom};
}

/// @return whether the value is a rectangle that can be seen; it is cut at the edges of its area
bool RectFromJson(const QJsonValue& value, KvGUI::StructScaleRect& rect)
{
    const QJsonArray edges = value.toArray();
    if (edges.size() != 4)
        return false;
    double numbers[4];
    for (int i = 0; i < 4; ++i) {
        if (!edges.at(i).isDouble() || !std::isfinite(edges.at(i).toDouble()))
            return false;
        numbers[i] = qBound(0.0, edges.at(i).toDouble(), 1.0);
    }
    if (numbers[2] - numbers[0] < SmallestExtent || numbers[3] - numbers[1] < SmallestExtent)
        return false;
    rect = {numbers[0], numbers[1], numbers[2], numbers[3], true};
    return true;
}

int IntFromJson(const QJsonValue& value, int least, int most, int otherwise)
{
    const double number = value.toDouble(otherwise);
    return std::isfinite(number) ? int(qBound(double(least), number, double(most))) : otherwise;
}

QJsonObject WindowToJson(const WindowLayout& window)
{
    return {
        {QStringLiteral("rect"), RectToJson(window.rect)},
        {QStringLiteral("z"), window.z},
        {QStringLiteral("source"), window.source.ToText()},
        {QStringLiteral("titled"), window.titled}};
}

bool WindowFromJson(const QJsonObject& object, WindowLayout& window)
{
    if (!RectFromJson(object.value(QLatin1String("rect")), window.rect))
        return false;
    window.z = IntFromJson(object.value(QLatin1String("z")), 0, WallLayout::MaxWindows, 0);
    window.source = SourceSpec::FromText(object.value(QLatin1String("source")).toString());
    window.titled = object.value(QLatin1String("titled")).toBool(true);
    return true;
}

QJsonObject ScreenToJson(const ScreenLayout& screen)
{
    QJsonArray windows;
    for (const WindowLayout& window : screen.windows)
        windows.append(WindowToJson(window));
    return {{QStringLiteral("rect"), RectToJson(screen.rect)}, {QStringLiteral("text"), screen.text},
            {QStringLiteral("overlays"), screen.overlays},     {QStringLiteral("baseMap"), screen.baseMap},
            {QStringLiteral("cellBound"), screen.cellBound},   {QStringLiteral("windows"), windows}};
}

bool ScreenFromJson(const QJsonObject& object, int mostWindows, ScreenLayout& screen)
{
    if (!RectFromJson(object.value(QLatin1String("rect")), screen.rect))
        return false;
    screen.text = object.value(QLatin1String("text")).toString().left(LongestScreenText);
    screen.overlays = object.value(QLatin1String("overlays")).toBool();
    screen.baseMap = object.value(QLatin1String("baseMap")).toBool();
    screen.cellBound = object.value(QLatin1String("cellBound")).toBool();
    const QJsonArray windows = object.value(QLatin1String("windows")).toArray();
    for (const QJsonValue& value : windows) {
        if (screen.windows.size() >= mostWindows)
            break;
        WindowLayout window;
        if (WindowFromJson(value.toObject(), window))
            screen.windows.append(window);
    }
    return true;
}

QVector<ScreenLayout> ScreensFromJson(const QJsonArray& array)
{
    QVector<ScreenLayout> screens;
    int windows = 0;
    for (const QJsonValue& value : array) {
        if (screens.size() >= WallLayout::MaxScreens)
            break;
        ScreenLayout screen;
        if (!ScreenFromJson(value.toObject(), WallLayout::MaxWindows - windows, screen))
            continue;
        windows += screen.windows.size();
        screens.append(screen);
    }
    return screens;
}

} // namespace

QString WallLayout::ToText() const
{
    QJsonArray screenArray;
    for (const ScreenLayout& screen : screens)
        screenArray.append(ScreenToJson(screen));
    const QJsonObject wall{
        {QStringLiteral("rows"), rows},       {QStringLiteral("columns"), columns},
        {QStringLiteral("family"), family},   {QStringLiteral("selectionMode"), selectionMode},
        {QStringLiteral("titles"), titles},   {QStringLiteral("gutter"), gutter},
        {QStringLiteral("sound"), sound},     {QStringLiteral("volume"), volume},
        {QStringLiteral("details"), details}, {QStringLiteral("screens"), screenArray}};
    return QString::fromUtf8(QJsonDocument(wall).toJson(QJsonDocument::Compact));
}

std::optional<WallLayout> WallLayout::FromText(const QString& text)
{
    if (text.size() > LongestText)
        return std::nullopt;
    const QJsonObject wall = QJsonDocument::fromJson(text.toUtf8()).object();
    if (!wall.value(QLatin1String("screens")).isArray())
        return std::nullopt;
    WallLayout layout;
    layout.rows = IntFromJson(wall.value(QLatin1String("rows")), 1, MaxGrid, layout.rows);
    layout.columns = IntFromJson(wall.value(QLatin1String("columns")), 1, MaxGrid, layout.columns);
    layout.family
        = IntFromJson(wall.value(QLatin1String("family")), NormalFamily, DisplayFamily, layout.family);
    layout.selectionMode = IntFromJson(wall.value(QLatin1String("selectionMode")), 0, 2, 0);
    layout.titles = wall.value(QLatin1String("titles")).toBool(true);
    layout.gutter = wall.value(QLatin1String("gutter")).toBool(true);
    layout.sound = wall.value(QLatin1String("sound")).toBool(true);
    layout.volume = IntFromJson(wall.value(QLatin1String("volume")), 0, 100, layout.volume);
    layout.details = wall.value(QLatin1String("details")).toBool(true);
    layout.screens = ScreensFromJson(wall.value(QLatin1String("screens")).toArray());
    return layout;
}

namespace {

WindowLayout CameraWindow(double left, double top, double right, double bottom, int z, int camera)
{
    return {{left, top, right, bottom, true}, z, SourceSpec::Camera(camera), true};
}

} // namespace

WallLayout FirstWall()
{
    WallLayout layout;
    // Each screen covers 2 x 2 cells, so that windows can be snapped to quarters of a screen.
    layout.rows = 4;
    layout.columns = 4;

    ScreenLayout quarters;
    quarters.rect = {0, 0, 0.5, 0.5, false};
    quarters.windows
        = {CameraWindow(0, 0, 0.5, 0.5, 1, 1), CameraWindow(0.5, 0, 1, 0.5, 2, 2),
           CameraWindow(0, 0.5, 0.5, 1, 3, 4), CameraWindow(0.5, 0.5, 1, 1, 4, 5)};

    ScreenLayout full;
    full.rect = {0.5, 0, 1, 0.5, false};
    full.windows = {CameraWindow(0, 0, 1, 1, 1, 3)};

    ScreenLayout free;
    free.rect = {0, 0.5, 0.5, 1, false};
    free.windows
        = {CameraWindow(0.03, 0.05, 0.5, 0.58, 1, 6), CameraWindow(0.3, 0.37, 0.8, 0.94, 2, 7),
           CameraWindow(0.62, 0.06, 0.97, 0.47, 3, 8)};

    ScreenLayout empty;
    empty.rect = {0.5, 0.5, 1, 1, false};
    // Translated where it is shown, so that a stored wall speaks every language.
    empty.text = QString::fromUtf8(QT_TRANSLATE_NOOP(
        "OperatorClient::WallPage", "Reserve\nDraw an area or drop a file to open a window"));

    layout.screens = {quarters, full, free, empty};
    return layout;
}

} // namespace OperatorClient
