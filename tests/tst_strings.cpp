#include "support/Columns.h"
#include "support/LocaleCodec.h"
#include "support/StrictMain.h"
#include "support/Text.h"

#include <Common/ByteBudget.h>
#include <Common/CommonFun.h>
#include <Common/QCommon.h>
#include <QScreen>
#include <QToolTip>
#include <QtTest>
#include <algorithm>
#include <climits>
#include <functional>
#include <random>

using namespace TestSupport;
using UICommonMdl::CommonFun;
using XCM::QCommon;

namespace {

int ByteLength(const QString& text, TextEncoding encoding)
{
    return encoding == TextEncoding::Utf8 ? text.toUtf8().size() : text.toLocal8Bit().size();
}

/// The rule as one would write it down: drop the last character and encode again.
QString CutByDropping(const QString& text, int maxBytes, TextEncoding encoding)
{
    QString cut = text.left(qMax(0, maxBytes));
    if (cut.size() < text.size() && cut.endsWith(QChar(0xD83D)) && text.at(cut.size()).isLowSurrogate())
        cut.chop(1);
    while (!cut.isEmpty() && ByteLength(cut, encoding) > maxBytes) {
        const int size = cut.size();
        const bool pair = size > 1 && cut.at(size - 1).isLowSurrogate() && cut.at(size - 2).isHighSurrogate();
        cut.chop(pair ? 2 : 1);
    }
    return cut;
}

/// ASCII, accents, marks, Han, kana, Hangul, Thai, invisible characters, pairs and torn pairs.
QString RandomText(std::mt19937& random, int size)
{
    const QString units = "aZ9 \n\u00E9\u00CA\u0304\u0416\u4E2D\u6587\u304B\u309A\uD55C\u0E01"
                          "\u200B\u20AC\uFFFD\uFEFF\u0BC6\u3000\u0000"_s;
    QString text;
    while (text.size() < size) {
        const auto kind = random() % 10;
        if (kind == 0)
            text += "\U0001F600"_s;
        else if (kind == 1)
            text += QChar(random() % 2 == 0 ? 0xD83D : 0xDE00);
        else
            text += units.at(static_cast<int>(random() % static_cast<unsigned>(units.size())));
    }
    return text;
}

/// Asked before there is a screen, of which a point is to have more than one pixel.
const double EarliestRatio = (qputenv("QT_SCALE_FACTOR", "1.5"), QCommon::DevicePixelRatio());

/// What a function makes of a text.
using Reading = std::function<QVariant(const QString&)>;

} // namespace

Q_DECLARE_METATYPE(Reading)

class TestStrings : public QObject
{
    Q_OBJECT

private slots:
    void ByteBudgetEqualsDropping_data()
    {
        QTest::addColumn<QByteArray>("codec");
        for (const char* codec :
             {"UTF-8", "GBK", "GB18030", "Big5-HKSCS", "Shift_JIS", "ISO-8859-1", "ISO-2022-JP", "UTF-16",
              "UTF-7", "TSCII"})
            Row(codec, QByteArray(codec));
    }

    /// Catches every way in which counting in blocks can differ from encoding the whole again and again:
    /// shift states, byte order marks, composed characters and pairs at the edge of a block.
    void ByteBudgetEqualsDropping()
    {
        QFETCH(QByteArray, codec);
        const LocaleCodec locale(codec);
        QVERIFY2(locale.IsKnown(), "this Qt does not have the codec");
        std::mt19937 random(905);
        for (int round = 0; round < 2000; ++round) {
            const QString text = RandomText(random, static_cast<int>(random() % 100));
            const int maxBytes = static_cast<int>(random() % 256);
            const int block = 2 + static_cast<int>(random() % (round % 2 == 0 ? 7 : 60));
            for (const TextEncoding encoding : {TextEncoding::Utf8, TextEncoding::Local8Bit}) {
                const QString expected = CutByDropping(text, maxBytes, encoding);
                const QString cut = CutToByteBudget(text, maxBytes, encoding, block);
                const QByteArray units(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
                const QByteArray failure = units.toHex(' ') + " to " + QByteArray::number(maxBytes)
                    + " bytes: " + QByteArray::number(cut.size()) + " units for "
                    + QByteArray::number(expected.size());
                QVERIFY2(cut == expected, failure.constData());
            }
        }
    }

    /// Catches a UTF-8 budget that follows the process codec, or a local one that does not.
    void ByteBudgetsFollowTheirEncoding()
    {
        const LocaleCodec locale("GBK");
        QVERIFY(locale.IsKnown());
        const QString text = "\u4E2D\u6587\u4E2D"_s;
        QCOMPARE(CommonFun::GetUtf8ValidByteLenString(text, 6), text.left(2));
        QCOMPARE(QCommon::GetValidByteLenString(text, 6), text.left(2));
        QCOMPARE(CommonFun::GetLocal8BitValidByteLenString(text, 6), text);
        QCOMPARE(QCommon::GetValidByteLenStringEx(text, 5), text.left(2));
    }

    void Elides_data()
    {
        Columns<bool, int, int, int, int>("middle", "characters", "pixels", "before", "after");
        // The room beside "..." is so many widths of the character and so many pixels.
        Row("nothing but dots", true, 0, 0, 0, 0);
        Row("less than the dots", true, -1, 0, 0, 0);
        Row("half ends on a character", true, 6, 2, 2, 4);
        Row("half ends behind a character", true, 6, 4, 3, 3);
        Row("the one character tried stays counted", true, 2, 2, 0, 1);
        Row("at the end, less than the dots", false, -1, 0, 0, 0);
        Row("at the end, one character", false, 1, 2, 1, 0);
        Row("at the end, ends on a character", false, 3, 1, 2, 0);
        Row("at the end, ends behind a character", false, 3, 2, 3, 0);
    }

    /// Catches a side that is one character too long or short, and the width of a left part that is left out
    /// but given to the right.
    void Elides()
    {
        QFETCH(bool, middle);
        QFETCH(int, characters);
        QFETCH(int, pixels);
        const QFontMetrics metrics(QApplication::font());
        const int unit = metrics.horizontalAdvance("x"_s);
        QVERIFY2(unit > 4, "the font is too small for the cases");
        const int width = metrics.horizontalAdvance("..."_s) + characters * unit + pixels;
        const auto elide = middle ? &QCommon::GetSuitableText : &QCommon::GetSuitableTextEx;
        QString out;
        elide(metrics, width, QString(50, QLatin1Char('x')), out);
        const int dots = out.indexOf("..."_s);
        QTEST(dots, "before");
        QTEST(out.size() - dots - 3, "after");
    }

    /// Catches a crash or an endless walk on widths and texts that no layout has, a text that fits but is
    /// changed, and a result that overwrites its own source.
    void ElidesAnything()
    {
        const QFontMetrics metrics(QApplication::font());
        std::mt19937 random(11);
        QString out;
        for (const int width : {INT_MIN, -1, 0, 1, 20, 50, 100}) {
            for (int size = 0; size < 20; ++size) {
                const QString text = RandomText(random, size);
                const bool fits = metrics.horizontalAdvance(text) <= width;
                QCommon::GetSuitableText(metrics, width, text, out);
                QVERIFY(fits ? out == text : out.contains("..."_s));
                QCommon::GetSuitableTextEx(metrics, width, text, out);
                QVERIFY(fits ? out == text : out.endsWith("..."_s));
            }
        }
        QString text(50, QLatin1Char('x'));
        QCommon::GetSuitableText(metrics, 100, text, out);
        QCommon::GetSuitableText(metrics, 100, text, text);
        QCOMPARE(text, out);
        QCommon::GetSuitableText(metrics, INT_MAX, text, out);
        QCOMPARE(out, text);
        // Together wider than each by itself, by a fraction of a pixel.
        text.fill(QChar(0x0E01), 2000);
        QCommon::GetSuitableTextEx(metrics, metrics.horizontalAdvance(text) - 1, text, out);
        QVERIFY(out.endsWith("..."_s));
    }

    /// Catches a colour or size that is lost with the next tool tip.
    void ToolTipKeepsItsLook()
    {
        QString text = "Camera 1"_s;
        QColor colour(200, 40, 10);
        // The offscreen platform's, about any window that is raised.
        QTest::ignoreMessage(QtWarningMsg, "This plugin does not support raise()");
        QCommon::ShowToolTip(QPoint(20, 20), text, colour);
        QCOMPARE(QToolTip::text(), text);
        for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            QCOMPARE(QToolTip::palette().color(group, QPalette::ToolTipText), colour);
        QCOMPARE(QToolTip::font().pointSize(), 11);
        QToolTip::hideText();
    }

    /// Catches a ratio that is not the screen's, or kept from a time when there was none.
    void RatioIsTheScreens()
    {
        QCOMPARE(EarliestRatio, 1.0);
        QCOMPARE(QCommon::DevicePixelRatio(), 1.5);
        QCOMPARE(QCommon::DevicePixelRatio(), QGuiApplication::primaryScreen()->devicePixelRatio());
    }

    void WhatATextSays_data()
    {
        Columns<Reading, QString, QVariant>("read", "text", "said");
        const auto row = [](const Reading& read, const char* name, const QString& text,
                            const QVariant& said) { Row(name, read, text, said); };
        const Reading blank = [](const QString& text) { return CommonFun::IsQStrEmpty(text); };
        row(blank, "blank: empty", QString(), true);
        row(blank, "blank: all three", " \u3000\uFFFD "_s, true);
        row(blank, "blank: tab", " \t"_s, false);
        row(blank, "blank: newline", "\n"_s, false);
        row(blank, "blank: no-break space", "\u00A0"_s, false);
        row(blank, "blank: brackets", "[ ]"_s, false);
        row(blank, "blank: text between", "  a "_s, false);

        const auto bytes = [](int most) -> Reading {
            return [most](const QString& text) { return CommonFun::GetUtf8ValidByteLenString(text, most); };
        };
        const QString han = "ab\u4E2D"_s;
        const QString face = "ab\U0001F600"_s;
        row(bytes(4), "bytes: does not fit", han, "ab"_s);
        row(bytes(5), "bytes: just fits", han, han);
        row(bytes(0), "bytes: none", han, QString());
        row(bytes(-3), "bytes: negative", han, QString());
        row(bytes(INT_MAX), "bytes: most", han, han);
        row(bytes(6), "bytes: pair just fits", face, face);
        row(bytes(5), "bytes: pair goes whole", face, "ab"_s);
        // Half of the pair would be one "?" and would fit.
        row(bytes(3), "bytes: pair torn by the count of units", face, "ab"_s);
        row(bytes(2), "bytes: nothing fits", "\u4E2D"_s, QString());

        const Reading rect = [](const QString& text) { return QCommon::StringToRect(text); };
        row(rect, "rectangle: blanks around", " 10,20,110,70 "_s, QRect(10, 20, 100, 50));
        row(rect, "rectangle: negative", "-5,-6,5,6"_s, QRect(-5, -6, 10, 12));
        row(rect, "rectangle: backwards", "10,10,0,0"_s, QRect(10, 10, -10, -10));
        row(rect, "rectangle: unreadable part", "a,2,3,4"_s, QRect(0, 2, 3, 2));
        row(rect, "rectangle: empty parts", ",,,"_s, QRect(0, 0, 0, 0));
        row(rect, "rectangle: too few", "1,2,3"_s, QRect(0, 0, 0, 0));
        row(rect, "rectangle: too many", "1,2,3,4,"_s, QRect(0, 0, 0, 0));
        row(rect, "rectangle: number too large", "1,2,99999999999,4"_s, QRect(1, 2, -1, 2));
        row(rect, "rectangle: wider than an int", "-2000000000,0,2000000000,1"_s,
            QRect(-2000000000, 0, INT_MAX, 1));

        const Reading size = [](const QString& text) { return QCommon::StringToSize(text); };
        row(size, "size: blanks inside", " 640 , 480"_s, QSize(640, 480));
        row(size, "size: three", "640,480,1"_s, QSize(0, 0));

        const Reading colour = [](const QString& text) { return QCommon::StringToColor(text); };
        row(colour, "colour: good", "1,2,3"_s, QColor(1, 2, 3, 255));
        row(colour, "colour: with alpha", "1,2,3,4"_s, QColor());
        row(colour, "colour: out of range", "256,0,0"_s, QColor());
        row(colour, "colour: negative", "0,-1,0"_s, QColor());

        const Reading digits = [](const QString& text) { return QCommon::isDigitStr(text); };
        row(digits, "digits: empty", QString(), 0);
        row(digits, "digits: all", "0123456789"_s, 0);
        row(digits, "digits: letter behind", "12a"_s, -1);
        row(digits, "digits: sign", "-1"_s, -1);
        row(digits, "digits: other scripts", "\u0661\uFF11"_s, -1);
        row(digits, "digits: zero character", QString(QChar(0)), -1);

        const Reading ascii
            = [](const QString& text) { return QCommon::GetAsciiCharNum(text.toStdString()); };
        row(ascii, "ASCII: negative bytes", "a\u4E2D\u007F\u0080"_s, 2);
        row(ascii, "ASCII: up to a zero byte", "ab\0cd"_s.left(5), 2);

        const Reading patched = [](const QString& text) { return QCommon::PatchPath(text, "b.ini"_s); };
        row(patched, "path: slash added", "C:/a"_s, "C:/a/b.ini"_s);
        row(patched, "path: slash there", "C:/a/"_s, "C:/a/b.ini"_s);
        row(patched, "path: no folder", QString(), "b.ini"_s);
        row(patched, "path: back-slash", "C:\\"_s, "C:\\/b.ini"_s);
        row(patched, "path: place marks", "50%2%1"_s, "50%2%1/b.ini"_s);

        const Reading device = [](const QString& text) -> QVariant {
            std::string out = "before";
            const int result = QCommon::GetDevIdByChnlId(text.toStdString(), out);
            return QString::number(result) + QLatin1Char(' ') + QString::fromStdString(out);
        };
        const QString longest(47, QLatin1Char('d'));
        row(device, "device: good", "A1B2$1$0$5"_s, "0 A1B2"_s);
        row(device, "device: more fields", "A$B$1$0$5"_s, "0 A$B"_s);
        row(device, "device: two fields", "A1B2$1$0"_s, "0 A1B2"_s);
        row(device, "device: one field", "A1B2$1"_s, "-1 A1B2$1"_s);
        row(device, "device: no field", "A1B2"_s, "-1 A1B2"_s);
        row(device, "device: empty", QString(), "-1 "_s);
        row(device, "device: nothing before", "$1$0$5"_s, "0 "_s);
        row(device, "device: longest", longest + "$1$0$5"_s, "0 "_s + longest);
        row(device, "device: too long", longest + "d$1$0$5"_s, "-1 "_s + longest + "d$1$0$5"_s);

        const Reading webSkin = [](const QString& text) { return QCommon::HostToWebSkinName(text); };
        row(webSkin, "web skin: any case", "white"_s, "light"_s);
        row(webSkin, "web skin: a part", "White2"_s, "black"_s);
    }

    /// Catches: for blanks, a trim in their place and brackets that count; for bytes, a budget that counts
    /// characters, is off by one, or tears a character; for rectangles, sizes and colours, the third and
    /// fourth number taken for a size, forgiven counts, an overflow and a warning; for digits, other scripts
    /// and signs; for ASCII, bytes counted as unsigned or behind a zero; for paths, a folder taken for a
    /// format; for devices, a third field that must be there, an id cut off at its limit, and a failure that
    /// leaves the output as it was; for skins, a part for the whole.
    void WhatATextSays()
    {
        QFETCH(Reading, read);
        QFETCH(QString, text);
        QTEST(read(text), "said");
    }

    /// Catches the bytes in the wrong order, a write past the length and a missing terminator.
    void IpAddressIsBounded()
    {
        const unsigned int ip = 10U | 0U << 8 | 168U << 16 | 192U << 24;
        const auto written = [ip](int size) {
            QByteArray out(18, 'x');
            QCommon::ConvertToIPStr(ip, out.data(), size);
            return out;
        };
        for (const int size : {18, 13})
            QCOMPARE(written(size), QByteArray("10.0.168.192\0xxxxx", 18));
        QCOMPARE(written(6), QByteArray("10.0.\0xxxxxxxxxxxx", 18));
        for (const int size : {0, -1})
            QCOMPARE(written(size), QByteArray(18, 'x'));
        QCommon::ConvertToIPStr(ip, nullptr, 16);
    }

    /// Catches wrong separators, digits or texts cut short (the first value is that of RFC 2617, 3.5), and a
    /// part of the digits in a buffer that has no room for all.
    void Ha1()
    {
        QByteArray out(34, '\0');
        QCommon::GenerateHA1(out.data(), 33, "Mufasa", "testrealm@host.com", "Circle Of Life");
        QCOMPARE(out, QByteArray("939e7578ed9e3c518a452acee763bce9") + QByteArray(2, '\0'));
        const QByteArray longName(5000, 'n');
        QCommon::GenerateHA1(out.data(), 32, longName.constData(), "%s%n", nullptr);
        QCOMPARE(
            out.left(32), QCryptographicHash::hash(longName + ":%s%n:", QCryptographicHash::Md5).toHex());

        QByteArray small(40, 'x');
        QCommon::GenerateHA1(small.data(), 31, "a", "b", "c");
        QCommon::GenerateHA1(small.data(), -1, "a", "b", "c");
        QCommon::GenerateHA1(nullptr, 40, "a", "b", "c");
        QCOMPARE(small, QByteArray(40, 'x'));
        QCommon::GenerateHA1(small.data(), 32, "a", "b", "c");
        QCOMPARE(small.mid(32), QByteArray(8, 'x'));
    }

    /// Catches a loop without end for base 1, and an overflow for the largest number.
    void Extracts()
    {
        constexpr int Cases[][3]
            = {{10, 1000, 3}, {10, 999, 2}, {10, 9, 0}, {10, 0, 0},       {0, 5, 0},
               {-2, 5, 0},    {2, -8, 0},   {1, 5, 0},  {2, INT_MAX, 30}, {INT_MAX, INT_MAX, 1}};
        for (const auto& [base, number, count] : Cases)
            QCOMPARE(QCommon::GetExtract(base, number), count);
    }

    /// Catches numbers cut to 32 bits, and keys that repeat.
    void RecordKeysDiffer()
    {
        const QString first = QCommon::CreateRecordMapKey(LLONG_MIN, LLONG_MAX);
        QCOMPARE(first, "-9223372036854775808_9223372036854775807_1"_s);
        QVERIFY(QCommon::CreateRecordMapKey(LLONG_MIN, LLONG_MAX).endsWith("_2"_s));
    }
};

STRICT_TEST_MAIN(TestStrings)
#include "tst_strings.moc"
