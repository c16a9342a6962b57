#include <gallery/ClientState.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegion>
#include <QVector>
#include <algorithm>

namespace OperatorClient {

namespace {

constexpr int FurthestPixel = 100000;
constexpr int LongestName = 40; // characters

QRect RectFromJson(const QJsonArray& numbers)
{
    if (numbers.size() != 4)
        return {};
    const auto pixel = [&](int index, int lowest) {
        return qBound(lowest, numbers.at(index).toInt(lowest), FurthestPixel);
    };
    return {pixel(0, -FurthestPixel), pixel(1, -FurthestPixel), pixel(2, 0), pixel(3, 0)};
}

int Pixels(const QRect& rect) { return rect.isEmpty() ? 0 : rect.width() * rect.height(); }

} // namespace

QString ClientState::ToText() const
{
    QJsonObject state{
        {QStringLiteral("maximized"), maximized},
        {QStringLiteral("page"), page},
        {QStringLiteral("skin"), skin},
        {QStringLiteral("language"), language}};
    if (!window.isEmpty())
        state.insert(
            QStringLiteral("window"), QJsonArray{window.x(), window.y(), window.width(), window.height()});
    return QString::fromUtf8(QJsonDocument(state).toJson(QJsonDocument::Compact));
}

ClientState ClientState::FromText(const QString& text)
{
    const QJsonObject state = QJsonDocument::fromJson(text.toUtf8()).object();
    const auto name
        = [&](const char* key) { return state.value(QLatin1String(key)).toString().left(LongestName); };
    ClientState result;
    result.window = RectFromJson(state.value(QLatin1String("window")).toArray());
    result.maximized = state.value(QLatin1String("maximized")).toBool();
    result.page = name("page");
    result.skin = name("skin");
    result.language = name("language");
    return result;
}

QRect PlaceOnScreens(const QRect& wanted, const QVector<QRect>& screens, int titleBar)
{
    QRegion hidden(wanted);
    for (const QRect& screen : screens)
        hidden -= screen;
    if (screens.isEmpty() || hidden.isEmpty())
        return wanted;
    QRect screen = *std::max_element(screens.begin(), screens.end(), [&](const QRect& a, const QRect& b) {
        return Pixels(a & wanted) < Pixels(b & wanted);
    });
    screen.setTop(screen.top() + titleBar);
    const QSize size = wanted.size().boundedTo(screen.size());
    return {
        QPoint(
            qBound(screen.left(), wanted.left(), screen.left() + screen.width() - size.width()),
            qBound(screen.top(), wanted.top(), screen.top() + screen.height() - size.height())),
        size};
}

} // namespace OperatorClient
