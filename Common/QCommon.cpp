#include <Common/QCommon.h>

#include <Common/ByteBudget.h>
#include <Common/ElidedText.h>
#include <Common/QIniFile.h>
#include <Platform/BasicUIComponents/KvDir.h>
#include <Platform/BasicUIComponents/SkinPath.h>
#include <Platform/kvl/DMD5.h>
#include <Platform/kvl/DStr.h>
#include <QGuiApplication>
#include <QPalette>
#include <QScreen>
#include <QStringList>
#include <QToolTip>
#include <algorithm>
#include <cstring>
#include <ctime>
#include <limits>
#include <vector>

namespace XCM {

namespace {

constexpr int kToolTipPointSize = 11;
constexpr int kHa1Length = 32; ///< hexadecimal digits
constexpr std::size_t kLongestDeviceId = 47; ///< bytes

/// The numbers of a comma-separated text; empty unless there are exactly @p count parts.
QList<int> ReadNumbers(const QString& text, int count)
{
    const QStringList parts = text.trimmed().split(QLatin1Char(','));
    QList<int> numbers;
    if (parts.size() != count)
        return numbers;
    for (const QString& part : parts)
        numbers.append(part.toInt(nullptr, 10));
    return numbers;
}

/// The inclusive last coordinate of a span from @p begin to @p end (exclusive), kept where the span's
/// length is an int.
int LastCoordinate(int begin, int end)
{
    constexpr qint64 kMax = std::numeric_limits<int>::max();
    constexpr qint64 kMin = std::numeric_limits<int>::min();
    const qint64 length = qBound(-kMax, qint64(end) - begin, kMax);
    return static_cast<int>(qBound(kMin, begin + length - 1, kMax));
}

/// Cuts @p text before its last "$"; false when there is none.
bool CutLastField(std::string& text)
{
    const std::size_t position = text.rfind('$');
    if (position == std::string::npos)
        return false;
    text.resize(position);
    return true;
}

/// Writes the digest as lower-case hexadecimal digits; nothing when @p out is null or they do not fit.
void WriteHex(const unsigned char* digest, char* out, int outLen)
{
    if (out == nullptr || outLen < kHa1Length)
        return;
    constexpr char kDigits[] = "0123456789abcdef";
    for (std::size_t i = 0; i < kvl::DMD5::kDigestSize; ++i) {
        *out++ = kDigits[digest[i] >> 4];
        *out++ = kDigits[digest[i] & 15];
    }
}

const char* TextOrEmpty(const char* text) { return text != nullptr ? text : ""; }

bool ReadDstEnabled()
{
    QIniFile file(KvGUI::KvDir::GetCurrentPath() + QLatin1String("Localcfg.ini"));
    const QVariant value = file.ReadValue(QStringLiteral("DST"), QStringLiteral("enable"));
    return value.isValid() && value.toBool();
}

bool ToLocalTime(std::time_t time, std::tm& local)
{
#ifdef Q_OS_WIN
    return localtime_s(&local, &time) == 0;
#else
    return localtime_r(&time, &local) != nullptr;
#endif
}

} // namespace

QString GetSkinPath(const QString& modulePath, const QString& file)
{
    return SkinResourcePath(FirstSegment(modulePath), modulePath, file);
}

bool loadStyleSheet(const QString& path, QString& out) { return ReadLatin1File(path, out); }

void QCommon::GetSuitableText(const QFontMetrics& fm, int width, const QString& text, QString& out)
{
    out = ElidedInTheMiddle(fm, width, text);
}

void QCommon::GetSuitableTextEx(const QFontMetrics& fm, int width, const QString& text, QString& out)
{
    out = ElidedAtTheEnd(fm, width, text);
}

void QCommon::ShowToolTip(const QPoint& pos, QString& text, QColor& color)
{
    QPalette palette;
    palette.setColor(QPalette::ToolTipText, color);
    QToolTip::setPalette(palette);
    QFont font = QToolTip::font();
    font.setPointSize(kToolTipPointSize);
    QToolTip::setFont(font);
    QToolTip::showText(pos, text, nullptr);
}

double QCommon::DevicePixelRatio()
{
    static double ratio = 1.0;
    static bool known = false;
    const QScreen* screen = known ? nullptr : QGuiApplication::primaryScreen();
    if (screen != nullptr) {
        ratio = screen->devicePixelRatio();
        known = true;
    }
    return ratio;
}

// Several functions take their texts by value because that is the interface that client applications
// were built against.
// NOLINTBEGIN(performance-unnecessary-value-param)
QRect QCommon::StringToRect(QString text)
{
    const QList<int> numbers = ReadNumbers(text, 4);
    if (numbers.isEmpty())
        return {0, 0, 0, 0};
    const QPoint topLeft(numbers.at(0), numbers.at(1));
    return {
        topLeft,
        QPoint(LastCoordinate(topLeft.x(), numbers.at(2)), LastCoordinate(topLeft.y(), numbers.at(3)))};
}

QSize QCommon::StringToSize(QString text)
{
    const QList<int> numbers = ReadNumbers(text, 2);
    return numbers.isEmpty() ? QSize(0, 0) : QSize(numbers.at(0), numbers.at(1));
}

QColor QCommon::StringToColor(QString text)
{
    const QList<int> numbers = ReadNumbers(text, 3);
    if (numbers.isEmpty())
        return {};
    const QColor colour(numbers.at(0), numbers.at(1), numbers.at(2));
    return colour.isValid() ? colour : QColor();
}

int QCommon::isDigitStr(QString s)
{
    const bool digits = std::all_of(
        s.begin(), s.end(), [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); });
    return digits ? 0 : -1;
}

QString QCommon::PatchPath(QString dir, QString file)
{
    const bool complete = dir.isEmpty() || dir.endsWith(QLatin1Char('/'));
    return QStringLiteral("%1%2").arg(complete ? dir : dir + QLatin1Char('/'), file);
}
// NOLINTEND(performance-unnecessary-value-param)

int QCommon::GetDevIdByChnlId(const std::string& chnlId, std::string& devId)
{
    std::string device = chnlId;
    bool isChannel = CutLastField(device);
    isChannel = isChannel && CutLastField(device);
    // The first of the three fields may be missing.
    CutLastField(device);
    if (!isChannel || device.size() > kLongestDeviceId) {
        devId = chnlId;
        return -1;
    }
    devId = device;
    return 0;
}

void QCommon::ConvertToIPStr(const unsigned int& ip, char* buf, int bufLen)
{
    if (buf == nullptr || bufLen <= 0)
        return;
    kvl::DStr::sprintf_x(
        buf, static_cast<std::size_t>(bufLen), "%u.%u.%u.%u", ip & 255U, (ip >> 8) & 255U, (ip >> 16) & 255U,
        (ip >> 24) & 255U);
}

QString QCommon::GetValidByteLenString(const QString& s, int maxBytes)
{
    return CutToByteBudget(s, maxBytes, TextEncoding::Utf8);
}

QString QCommon::GetValidByteLenStringEx(const QString& s, int maxBytes)
{
    return CutToByteBudget(s, maxBytes, TextEncoding::Local8Bit);
}

void QCommon::GenerateHA1(char* out, int outLen, const char* user, const char* realm, const char* password)
{
    user = TextOrEmpty(user);
    realm = TextOrEmpty(realm);
    password = TextOrEmpty(password);
    // Two colons and the terminating zero.
    std::vector<char> text(std::strlen(user) + std::strlen(realm) + std::strlen(password) + 3);
    kvl::DStr::sprintf_x(text.data(), text.size(), "%s:%s:%s", user, realm, password);

    unsigned char digest[kvl::DMD5::kDigestSize] = {};
    kvl::DMD5 md5;
    md5.Init();
    md5.Update(text.data(), text.size() - 1);
    md5.Final(digest);
    WriteHex(digest, out, outLen);
}

QString QCommon::HostToWebSkinName(const QString& hostSkin)
{
    const bool white = hostSkin.compare(QLatin1String("White"), Qt::CaseInsensitive) == 0;
    return white ? QStringLiteral("light") : QStringLiteral("black");
}

QString QCommon::CreateRecordMapKey(long long a, long long b)
{
    static long long nextNumber = 1;
    return QStringLiteral("%1_%2_%3")
        .arg(QString::number(a), QString::number(b), QString::number(nextNumber++));
}

bool QCommon::IsEnableDst()
{
    static const bool enabled = ReadDstEnabled();
    return enabled;
}

bool QCommon::IsNeedAdjustDst(long long t)
{
    std::tm local = {};
    return !IsEnableDst() && ToLocalTime(static_cast<std::time_t>(t), local) && local.tm_isdst == 1;
}

int QCommon::GetExtract(int base, int n)
{
    if (base < 2)
        return 0;
    int count = 0;
    for (; n >= base; n /= base)
        ++count;
    return count;
}

int QCommon::GetAsciiCharNum(const std::string& s)
{
    const auto end = std::find(s.begin(), s.end(), '\0');
    return static_cast<int>(
        std::count_if(s.begin(), end, [](char byte) { return static_cast<signed char>(byte) >= 0; }));
}

} // namespace XCM
