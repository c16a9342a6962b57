#pragma once

#include <QColor>
#include <QFontMetrics>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>
#include <UIComponentsExport.h>
#include <string>

namespace XCM {

/// The resource path ":/<application>/<first part of modulePath>/<skin>/<modulePath>/<file>" in the
/// current skin; the parts of @p modulePath are separated by "/".
UICOMPONENTS_EXPORT QString GetSkinPath(const QString& modulePath, const QString& file);

/// Reads the file @p path into @p out, each byte as one character (Latin-1).
/// @return false when the file cannot be opened; @p out is unchanged then
UICOMPONENTS_EXPORT bool loadStyleSheet(const QString& path, QString& out);

/// Small parsers, formatters and questions. All functions are for the GUI thread; none throws or logs.
class UICOMPONENTS_EXPORT QCommon
{
public:
    QCommon() = delete;

    /// @name Texts on the screen
    /// @{

    /// Shortens @p text to @p width pixels with "..." in its middle. A text that fits comes back
    /// unchanged; a width that has no room for more gives "..." alone. Kerning is not counted.
    /// @param out the result; may be the same object as @p text
    static void GetSuitableText(const QFontMetrics& fm, int width, const QString& text, QString& out);

    /// Shortens @p text to @p width pixels with "..." at its end, otherwise as GetSuitableText().
    static void GetSuitableTextEx(const QFontMetrics& fm, int width, const QString& text, QString& out);

    /// Shows the tool tip @p text at @p pos (on the screen) in the colour @p color and 11 points.
    /// Colour and size stay in force for all later tool tips of the application.
    static void ShowToolTip(const QPoint& pos, QString& text, QColor& color);

    /// The device pixel ratio of the primary screen, which is asked once; 1.0 until there is a screen.
    static double DevicePixelRatio();

    /// @}
    /// @name Parsers
    /// @{

    /// Reads "left,top,right,bottom", where right and bottom are coordinates: the rectangle is
    /// right - left wide and bottom - top high. A part that is no number counts as 0; blanks around the
    /// text are skipped. Another number of parts gives QRect(0, 0, 0, 0).
    static QRect StringToRect(QString text);

    /// Reads "width,height"; otherwise as StringToRect(), with QSize(0, 0).
    static QSize StringToSize(QString text);

    /// Reads "red,green,blue", each 0 to 255; otherwise as StringToRect(). Another number of parts, or a
    /// number out of range, gives an invalid colour.
    static QColor StringToColor(QString text);

    /// 0 when every character is a decimal digit (also when there is none), -1 otherwise.
    static int isDigitStr(QString s);

    /// The device id of a channel id: what is left without its last three "$"-separated fields;
    /// "A1B2$1$0$5" is a channel of the device "A1B2". Two "$" are enough: what stands before the second
    /// last is taken then.
    /// @param devId the device id; the channel id itself on failure
    /// @return 0, or -1 when there are fewer than two "$" or the device id is longer than 47 bytes
    static int GetDevIdByChnlId(const std::string& chnlId, std::string& devId);

    /// @}
    /// @name Formatters
    /// @{

    /// Writes @p ip as "a.b.c.d", the lowest byte first, which is the natural order of an address that
    /// lies in network order in the memory of a little-endian machine.
    /// @param bufLen size of @p buf in bytes; 16 hold every address. A longer text is cut and still ends
    ///        with a zero. Null or a length of 0 or less writes nothing.
    static void ConvertToIPStr(const unsigned int& ip, char* buf, int bufLen);

    /// Joins a folder and a file name with "/" unless the folder ends with one or is empty.
    static QString PatchPath(QString dir, QString file);

    /// The longest beginning of @p s with at most @p maxBytes bytes in UTF-8, as
    /// UICommonMdl::CommonFun::GetUtf8ValidByteLenString().
    static QString GetValidByteLenString(const QString& s, int maxBytes);

    /// The same in the local 8-bit encoding.
    static QString GetValidByteLenStringEx(const QString& s, int maxBytes);

    /// Writes the HA1 value of HTTP digest authentication, MD5 of "user:realm:password", as 32 lower-case
    /// hexadecimal digits. No terminating zero is written: pass a zero-filled buffer of 33 bytes.
    /// @param outLen size of @p out; below 32, or with a null @p out, nothing is written
    /// @param user, realm, password texts; null counts as empty
    static void GenerateHA1(char* out, int outLen, const char* user, const char* realm, const char* password);

    /// The name of the web pages' skin for a skin version: "light" for "White" in any case, else "black".
    static QString HostToWebSkinName(const QString& hostSkin);

    /// A key "a_b_n" whose n counts the keys of this process from 1 on.
    static QString CreateRecordMapKey(long long a, long long b);

    /// @}
    /// @name Questions
    /// @{

    /// True when the application handles daylight saving time itself: "enable" of section "DST" in
    /// "Localcfg.ini" in the current folder. Read once in the life of the process.
    static bool IsEnableDst();

    /// True when the application does not handle daylight saving time itself (see IsEnableDst()) and the
    /// time @p t, in seconds since 1970-01-01 UTC, is in daylight saving time here.
    static bool IsNeedAdjustDst(long long t);

    /// How often @p n can be divided by @p base (as integers) until it is smaller than @p base: the
    /// integer logarithm. 0 for a base below 2, which has no logarithm, and for a negative @p n.
    static int GetExtract(int base, int n);

    /// Number of bytes below 0x80 before the first zero byte.
    static int GetAsciiCharNum(const std::string& s);

    /// @}
};

} // namespace XCM
