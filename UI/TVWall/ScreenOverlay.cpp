#include "ScreenOverlay.h"

#include "WallGeometry.h"

#include <algorithm>

namespace UICommonMdl::ScreenOverlay {

namespace {

constexpr qint64 ScreenUnits = 8192; // an overlay's rectangle is in 1/8192 of its screen
constexpr int DescenderRoom = 5; // pixels
constexpr int LargestSlack = 7; // pixels that may stay empty behind a rolling text
constexpr int MostSpaces = 4096; // wider than any monitor; the text is shaped at each painting
constexpr qint64 LargestFont = 16384; // pixels; a font engine given wild sizes takes minutes

int PixelsOf(qint64 units, int screenPixels)
{
    const qint64 pixels = units * screenPixels / ScreenUnits;
    return static_cast<int>(
        std::clamp<qint64>(pixels, -WallGeometry::MaximumPixel, WallGeometry::MaximumPixel));
}

int ColorPart(int value) { return std::clamp(value, 0, 255); }

} // namespace

Sorted SortedByKind(const std::vector<KvGUI::StructOSDInfo>& infos)
{
    Sorted sorted;
    for (const KvGUI::StructOSDInfo& info : infos)
        (info.bRoll ? sorted.rolling : sorted.plain).push_back(info);
    return sorted;
}

Placement Placed(const KvGUI::StructOSDInfo& info, const QSize& screen)
{
    const int width = PixelsOf(qint64(info.iRight) - info.iLeft, screen.width());
    const int height = PixelsOf(qint64(info.iBottom) - info.iTop, screen.height());
    const auto lineFeeds = std::count(info.strText.begin(), info.strText.end(), '\n');
    const qint64 lineHeight = height / (1 + qint64(lineFeeds));
    const qint64 fontSize = std::min<qint64>(width, lineHeight) * info.iFontPercent / 100;
    Placement placement;
    placement.geometry = QRect(
        PixelsOf(info.iLeft, screen.width()), PixelsOf(info.iTop, screen.height()), width,
        height + DescenderRoom);
    placement.fontPixelSize = static_cast<int>(std::clamp<qint64>(fontSize, 1, LargestFont));
    return placement;
}

QString Text(const KvGUI::StructOSDInfo& info) { return QString::fromStdString(info.strText); }

QColor TextColor(const KvGUI::StructOSDInfo& info)
{
    return {ColorPart(info.iFontR), ColorPart(info.iFontG), ColorPart(info.iFontB)};
}

QColor BackColor(const KvGUI::StructOSDInfo& info)
{
    return {ColorPart(info.iBackR), ColorPart(info.iBackG), ColorPart(info.iBackB)};
}

Face FaceOf(const std::string& fontName)
{
    if (fontName == "simHei")
        return {QString(), true};
    if (fontName == "simKai")
        return {QStringLiteral("KaiStyle"), false};
    return {QStringLiteral("SongStyle"), false};
}

Qt::Alignment AlignmentOf(int iAlign)
{
    switch (iAlign) {
    case 1:
        return Qt::AlignCenter;
    case 2:
        return Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter;
    default:
        return Qt::AlignLeft | Qt::AlignAbsolute | Qt::AlignVCenter;
    }
}

QString StyleSheet(const KvGUI::StructOSDInfo& info, int fontPixelSize)
{
    const QString separator = QStringLiteral(";");
    const auto rgb = [](const QString& rule, const QColor& color) {
        return rule.arg(color.red()).arg(color.green()).arg(color.blue());
    };
    return QStringLiteral("font-size: %1px").arg(fontPixelSize) + separator
        + rgb(QStringLiteral("color: rgb(%1, %2, %3)"), TextColor(info)) + separator
        + rgb(QStringLiteral("background-color: rgb(%1, %2, %3)"), BackColor(info));
}

QString PaddedToWidth(const QString& text, int textWidth, int spaceWidth, int width, Qt::Alignment alignment)
{
    const int slack = width - textWidth;
    if (slack <= LargestSlack || spaceWidth <= 0)
        return text;
    const int count = std::min(slack / spaceWidth, MostSpaces);
    const auto spaces = [](int n) { return QString(n, QLatin1Char(' ')); };
    if (alignment & Qt::AlignHCenter)
        return spaces(count / 2) + text + spaces(count / 2);
    const bool textLast = alignment.testFlag(Qt::AlignRight) != text.isRightToLeft();
    return textLast ? spaces(count) + text : text + spaces(count);
}

std::string BaseMapFile(const std::string& path)
{
    if (path.find(".yuv") == std::string::npos)
        return path;
    return path.substr(0, path.rfind('.')) + ".jpg";
}

} // namespace UICommonMdl::ScreenOverlay
