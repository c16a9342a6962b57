#include <Platform/Automation/Office/Host/ExcelUnits.h>

#include <QDir>
#include <algorithm>
#include <unistd.h>

namespace Office {

namespace {

constexpr int HundredthsOfInch = 2540; // hundredths of a millimetre in an inch
constexpr int PointsOfInch = 72;
constexpr int PixelsOfInch = 96;
constexpr int DigitWidth = 7; // of the standard font, pixels
constexpr int ColumnPadding = 5; // pixels
constexpr int HighestRow = 409; // points
constexpr int WidestColumn = 255; // characters
constexpr int LongestSheetName = 31;

int Rounded(int value, int multiplier, int divisor) { return (value * multiplier + divisor / 2) / divisor; }

} // namespace

int FromPoints(int points)
{
    return Rounded(std::clamp(points, 0, HighestRow), HundredthsOfInch, PointsOfInch);
}

int FromCharacters(int characters)
{
    const int pixels = std::clamp(characters, 0, WidestColumn) * DigitWidth + ColumnPadding;
    return Rounded(pixels, HundredthsOfInch, PixelsOfInch);
}

QString MemberName(const QString& text) { return text.section(QLatin1Char('('), 0, 0).trimmed().toLower(); }

bool IsSheetName(const QString& name)
{
    const QString forbidden = QStringLiteral(":\\/?*[]");
    const QLatin1Char apostrophe('\'');
    return !name.isEmpty() && name.size() <= LongestSheetName && !name.startsWith(apostrophe)
        && !name.endsWith(apostrophe) && std::none_of(name.begin(), name.end(), [&](QChar c) {
               return forbidden.contains(c) || c < QLatin1Char(' ');
           });
}

QString ClientPath(const QString& nativePath)
{
    // Our own folder is the one that the client was in when it started us.
    const QFileInfo folder(QStringLiteral("/proc/%1/cwd").arg(getppid()));
    return QDir(folder.symLinkTarget()).absoluteFilePath(QDir::fromNativeSeparators(nativePath));
}

} // namespace Office
