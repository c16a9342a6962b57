#include "support/LocaleCodec.h"
#include "support/StrictMain.h"

#include <Common/ByteBudget.h>
#include <Common/CommonFun.h>
#include <Common/QCommon.h>
#include <QToolTip>
#include <QtTest>
#include <algorithm>
#include <climits>
#include <random>

using TestSupport::LocaleCodec;
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
    const QString units = QStringLiteral("aZ9 \n\u00E9\u00CA\u0304\u0416\u4E2D\u6587\u304B\u309A\uD55C\u0E01"
                                         "\u200B\u20AC\uFFFD\uFEFF\u0BC6\u3000\u0000");
    QString text;
    while (text.size() < size) {
        const auto kind = random() % 10;
        if (kind == 0)
            text += QStringLiteral("\U0001F600");
        else if (kind == 1)
            text += QChar(random() % 2 == 0 ? 0xD83D : 0xDE00);
        else
            text += units.at(static_cast<int>(random() % static_cast<unsigned>(units.size())));
    }
    return text;
}

/// Text of one character repeated, and what is left of it: how many before and after the "...".
struct Elided
{
    int before;
    int after;
};

Elided Measure(const QString& text)
{
    const int dots = text.indexOf(QStringLiteral("..."));
    return {dots, text.size() - dots - 3};
}

} // namespace

class TestStrings : public QObject
{
    Q_OBJECT

private slots:
    void ByteBudgets_data();
    void ByteBudgets();
    void ByteBudgetEqualsDropping_data();
    void ByteBudgetEqualsDropping();
    void ByteBudgetOfLongTexts_data();
    void ByteBudgetOfLongTexts();
    void ByteBudgetsFollowTheirEncoding();
    void Blanks_data();
    void Blanks();
    void ElidesInTheMiddle_data();
    void ElidesInTheMiddle();
    void ElidesAtTheEnd_data();
    void ElidesAtTheEnd();
    void ElidesAnything();
    void ToolTipKeepsItsLook();
    void Rectangles_data();
    void Rectangles();
    void Sizes_data();
    void Sizes();
    void Colours_data();
    void Colours();
    void Digits_data();
    void Digits();
    void DeviceIds_data();
    void DeviceIds();
    void IpAddressIsBounded_data();
    void IpAddressIsBounded();
    void PatchedPaths_data();
    void PatchedPaths();
    void Ha1();
    void Ha1WritesNothingIntoTooLittle();
    void Extracts_data();
    void Extracts();
    void WebSkinNames();
    void RecordKeysDiffer();
    void AsciiBytes();
};

void TestStrings::ByteBudgets_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("maxBytes");
    QTest::addColumn<QString>("cut");
    const QString han = QStringLiteral("ab\u4E2D");
    const QString face = QStringLiteral("ab\U0001F600");
    QTest::newRow("does not fit") << han << 4 << QStringLiteral("ab");
    QTest::newRow("just fits") << han << 5 << han;
    QTest::newRow("budget 0") << han << 0 << QString();
    QTest::newRow("negative budget") << han << -3 << QString();
    QTest::newRow("largest budget") << han << INT_MAX << han;
    QTest::newRow("pair just fits") << face << 6 << face;
    QTest::newRow("pair goes whole") << face << 5 << QStringLiteral("ab");
    // Half of the pair would be one "?" and would fit.
    QTest::newRow("pair torn by the count of units") << face << 3 << QStringLiteral("ab");
    QTest::newRow("nothing fits") << QStringLiteral("\u4E2D") << 2 << QString();
    QTest::newRow("empty") << QString() << 10 << QString();
}

/// Catches a budget that counts characters, is off by one, or tears a character.
void TestStrings::ByteBudgets()
{
    QFETCH(QString, text);
    QFETCH(int, maxBytes);
    QFETCH(QString, cut);
    QCOMPARE(CommonFun::GetUtf8ValidByteLenString(text, maxBytes), cut);
    QCOMPARE(QCommon::GetValidByteLenString(text, maxBytes), cut);
}

void TestStrings::ByteBudgetEqualsDropping_data()
{
    QTest::addColumn<QByteArray>("codec");
    for (const char* codec :
         {"UTF-8", "GBK", "GB18030", "Big5-HKSCS", "Shift_JIS", "ISO-8859-1", "ISO-2022-JP", "UTF-16",
          "UTF-7", "TSCII"})
        QTest::newRow(codec) << QByteArray(codec);
}

/// Catches every way in which counting in blocks can differ from encoding the whole again and again:
/// shift states, byte order marks, composed characters and pairs at the edge of a block.
void TestStrings::ByteBudgetEqualsDropping()
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
            const QByteArray failure = units.toHex(' ') + " to " + QByteArray::number(maxBytes) + " bytes: "
                + QByteArray::number(cut.size()) + " units for " + QByteArray::number(expected.size());
            QVERIFY2(cut == expected, failure.constData());
        }
    }
}

void TestStrings::ByteBudgetOfLongTexts_data()
{
    QTest::addColumn<QByteArray>("codec");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<int>("bytes");
    const QString han = QStringLiteral("\u4E2D");
    const QString face = QStringLiteral("\U0001F600");
    QTest::newRow("UTF-8, ASCII") << QByteArray("UTF-8") << QStringLiteral("a") << 1;
    QTest::newRow("UTF-8, Han") << QByteArray("UTF-8") << han << 3;
    QTest::newRow("UTF-8, pairs") << QByteArray("UTF-8") << face << 4;
    QTest::newRow("GBK, Han") << QByteArray("GBK") << han << 2;
    QTest::newRow("GB18030, pairs") << QByteArray("GB18030") << face << 4;
}

/// Catches a cut that takes quadratic time: it would not come back before the test's time limit.
void TestStrings::ByteBudgetOfLongTexts()
{
    QFETCH(QByteArray, codec);
    QFETCH(QString, unit);
    QFETCH(int, bytes);
    const LocaleCodec locale(codec);
    QVERIFY(locale.IsKnown());
    const int count = 1000000 / bytes;
    const QString text = unit.repeated(count);
    const int full = count * bytes;
    for (const int budget : {bytes, 1000, full / 2, full - 1, full}) {
        const QString cut = CommonFun::GetLocal8BitValidByteLenString(text, budget);
        QCOMPARE(cut.size(), budget / bytes * unit.size());
        QVERIFY(text.startsWith(cut));
    }
}

/// Catches a UTF-8 budget that follows the process codec, or a local one that does not.
void TestStrings::ByteBudgetsFollowTheirEncoding()
{
    const LocaleCodec locale("GBK");
    QVERIFY(locale.IsKnown());
    const QString text = QStringLiteral("\u4E2D\u6587\u4E2D");
    QCOMPARE(CommonFun::GetUtf8ValidByteLenString(text, 6), text.left(2));
    QCOMPARE(QCommon::GetValidByteLenString(text, 6), text.left(2));
    QCOMPARE(CommonFun::GetLocal8BitValidByteLenString(text, 6), text);
    QCOMPARE(QCommon::GetValidByteLenStringEx(text, 5), text.left(2));
}

void TestStrings::Blanks_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("blank");
    QTest::newRow("empty") << QString() << true;
    QTest::newRow("all three") << QStringLiteral(" \u3000\uFFFD ") << true;
    QTest::newRow("tab") << QStringLiteral(" \t") << false;
    QTest::newRow("newline") << QStringLiteral("\n") << false;
    QTest::newRow("no-break space") << QStringLiteral("\u00A0") << false;
    QTest::newRow("brackets") << QStringLiteral("[ ]") << false;
    QTest::newRow("text between") << QStringLiteral("  a ") << false;
}

/// Catches a trim in place of the three blanks, and brackets taken for blanks.
void TestStrings::Blanks()
{
    QFETCH(QString, text);
    QFETCH(bool, blank);
    QCOMPARE(CommonFun::IsQStrEmpty(text), blank);
}

void TestStrings::ElidesInTheMiddle_data()
{
    QTest::addColumn<int>("characters");
    QTest::addColumn<int>("pixels");
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    // The room beside "..." is so many widths of the character and so many pixels.
    QTest::newRow("nothing but dots") << 0 << 0 << 0 << 0;
    QTest::newRow("less than the dots") << -1 << 0 << 0 << 0;
    QTest::newRow("half ends on a character") << 6 << 2 << 2 << 4;
    QTest::newRow("half ends behind a character") << 6 << 4 << 3 << 3;
    QTest::newRow("the one character tried stays counted") << 2 << 2 << 0 << 1;
}

/// Catches a side that is one character too long or short, and the width of a left part that is left out
/// but given to the right.
void TestStrings::ElidesInTheMiddle()
{
    QFETCH(int, characters);
    QFETCH(int, pixels);
    QFETCH(int, before);
    QFETCH(int, after);
    const QFontMetrics metrics(QApplication::font());
    const int unit = metrics.horizontalAdvance(QStringLiteral("x"));
    QVERIFY2(unit > 4, "the font is too small for the cases");
    const int width = metrics.horizontalAdvance(QStringLiteral("...")) + characters * unit + pixels;
    QString out;
    QCommon::GetSuitableText(metrics, width, QString(50, QLatin1Char('x')), out);
    QCOMPARE(Measure(out).before, before);
    QCOMPARE(Measure(out).after, after);
}

void TestStrings::ElidesAtTheEnd_data()
{
    QTest::addColumn<int>("characters");
    QTest::addColumn<int>("pixels");
    QTest::addColumn<int>("before");
    QTest::newRow("less than the dots") << -1 << 0 << 0;
    QTest::newRow("one character") << 1 << 2 << 1;
    QTest::newRow("ends on a character") << 3 << 1 << 2;
    QTest::newRow("ends behind a character") << 3 << 2 << 3;
}

/// Catches an end that is one character too long or short.
void TestStrings::ElidesAtTheEnd()
{
    QFETCH(int, characters);
    QFETCH(int, pixels);
    QFETCH(int, before);
    const QFontMetrics metrics(QApplication::font());
    const int unit = metrics.horizontalAdvance(QStringLiteral("x"));
    const int width = metrics.horizontalAdvance(QStringLiteral("...")) + characters * unit + pixels;
    QString out;
    QCommon::GetSuitableTextEx(metrics, width, QString(50, QLatin1Char('x')), out);
    QCOMPARE(Measure(out).before, before);
    QCOMPARE(Measure(out).after, 0);
}

/// Catches a crash or an endless walk on widths and texts that no layout has, a text that fits but is
/// changed, and a result that overwrites its own source.
void TestStrings::ElidesAnything()
{
    const QFontMetrics metrics(QApplication::font());
    std::mt19937 random(11);
    QString out;
    for (const int width : {INT_MIN, -1, 0, 1, 20, 50, 100}) {
        for (int size = 0; size < 20; ++size) {
            const QString text = RandomText(random, size);
            const bool fits = metrics.horizontalAdvance(text) <= width;
            QCommon::GetSuitableText(metrics, width, text, out);
            QVERIFY(fits ? out == text : out.contains(QStringLiteral("...")));
            QCommon::GetSuitableTextEx(metrics, width, text, out);
            QVERIFY(fits ? out == text : out.endsWith(QStringLiteral("...")));
        }
    }
    QString text(50, QLatin1Char('x'));
    QCommon::GetSuitableText(metrics, 100, text, out);
    QCommon::GetSuitableText(metrics, 100, text, text);
    QCOMPARE(text, out);
    QCommon::GetSuitableText(metrics, INT_MAX, text, out);
    QCOMPARE(out, text);
}

/// Catches a colour or size that is lost with the next tool tip.
void TestStrings::ToolTipKeepsItsLook()
{
    QString text = QStringLiteral("Camera 1");
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

void TestStrings::Rectangles_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QRect>("rect");
    QTest::newRow("blanks around") << QStringLiteral(" 10,20,110,70 ") << QRect(10, 20, 100, 50);
    QTest::newRow("negative") << QStringLiteral("-5,-6,5,6") << QRect(-5, -6, 10, 12);
    QTest::newRow("backwards") << QStringLiteral("10,10,0,0") << QRect(10, 10, -10, -10);
    QTest::newRow("unreadable part") << QStringLiteral("a,2,3,4") << QRect(0, 2, 3, 2);
    QTest::newRow("empty parts") << QStringLiteral(",,,") << QRect(0, 0, 0, 0);
    QTest::newRow("too few") << QStringLiteral("1,2,3") << QRect(0, 0, 0, 0);
    QTest::newRow("too many") << QStringLiteral("1,2,3,4,") << QRect(0, 0, 0, 0);
    QTest::newRow("empty") << QString() << QRect(0, 0, 0, 0);
    QTest::newRow("number too large") << QStringLiteral("1,2,99999999999,4") << QRect(1, 2, -1, 2);
    QTest::newRow("wider than an int")
        << QStringLiteral("-2000000000,0,2000000000,1") << QRect(-2000000000, 0, INT_MAX, 1);
}

/// Catches the third and fourth number taken for sizes, forgiven counts, and an overflow.
void TestStrings::Rectangles()
{
    QFETCH(QString, text);
    QFETCH(QRect, rect);
    QCOMPARE(QCommon::StringToRect(text), rect);
}

void TestStrings::Sizes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QSize>("size");
    QTest::newRow("good") << QStringLiteral("640,480") << QSize(640, 480);
    QTest::newRow("blanks inside") << QStringLiteral(" 640 , 480") << QSize(640, 480);
    QTest::newRow("one") << QStringLiteral("640") << QSize(0, 0);
    QTest::newRow("three") << QStringLiteral("640,480,1") << QSize(0, 0);
    QTest::newRow("empty") << QString() << QSize(0, 0);
}

/// Catches the invalid size in place of 0 by 0, and forgiven counts.
void TestStrings::Sizes()
{
    QFETCH(QString, text);
    QFETCH(QSize, size);
    QCOMPARE(QCommon::StringToSize(text), size);
}

void TestStrings::Colours_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("colour");
    QTest::newRow("good") << QStringLiteral("1,2,3") << QColor(1, 2, 3, 255);
    QTest::newRow("with alpha") << QStringLiteral("1,2,3,4") << QColor();
    QTest::newRow("out of range") << QStringLiteral("256,0,0") << QColor();
    QTest::newRow("negative") << QStringLiteral("0,-1,0") << QColor();
    QTest::newRow("empty") << QString() << QColor();
}

/// Catches colours in another order, and a warning or a wrapped number where a number is out of range.
void TestStrings::Colours()
{
    QFETCH(QString, text);
    QFETCH(QColor, colour);
    QCOMPARE(QCommon::StringToColor(text), colour);
}

void TestStrings::Digits_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("result");
    QTest::newRow("empty") << QString() << 0;
    QTest::newRow("digits") << QStringLiteral("0123456789") << 0;
    QTest::newRow("letter behind") << QStringLiteral("12a") << -1;
    QTest::newRow("sign") << QStringLiteral("-1") << -1;
    QTest::newRow("other digits") << QStringLiteral("\u0661\uFF11") << -1;
    QTest::newRow("zero character") << QString(QChar(0)) << -1;
}

/// Catches digits of other scripts that count, and signs that are forgiven.
void TestStrings::Digits()
{
    QFETCH(QString, text);
    QFETCH(int, result);
    QCOMPARE(QCommon::isDigitStr(text), result);
}

void TestStrings::DeviceIds_data()
{
    QTest::addColumn<QByteArray>("channel");
    QTest::addColumn<int>("result");
    QTest::addColumn<QByteArray>("device");
    const QByteArray longest(47, 'd');
    QTest::newRow("good") << QByteArray("A1B2$1$0$5") << 0 << QByteArray("A1B2");
    QTest::newRow("more fields") << QByteArray("A$B$1$0$5") << 0 << QByteArray("A$B");
    QTest::newRow("two fields") << QByteArray("A1B2$1$0") << 0 << QByteArray("A1B2");
    QTest::newRow("one field") << QByteArray("A1B2$1") << -1 << QByteArray("A1B2$1");
    QTest::newRow("no field") << QByteArray("A1B2") << -1 << QByteArray("A1B2");
    QTest::newRow("empty") << QByteArray("") << -1 << QByteArray("");
    QTest::newRow("nothing before") << QByteArray("$1$0$5") << 0 << QByteArray("");
    QTest::newRow("longest") << longest + "$1$0$5" << 0 << longest;
    QTest::newRow("too long") << longest + "d$1$0$5" << -1 << longest + "d$1$0$5";
}

/// Catches a third field that must be there, a device id cut off at its limit, and a failure that leaves
/// the output as it was.
void TestStrings::DeviceIds()
{
    QFETCH(QByteArray, channel);
    QFETCH(int, result);
    QFETCH(QByteArray, device);
    std::string out = "before";
    QCOMPARE(QCommon::GetDevIdByChnlId(channel.toStdString(), out), result);
    QCOMPARE(QByteArray::fromStdString(out), device);
}

void TestStrings::IpAddressIsBounded_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<QByteArray>("buffer");
    QTest::newRow("room to spare") << 18 << QByteArray("10.0.168.192\0xxxxx", 18);
    QTest::newRow("just fits") << 13 << QByteArray("10.0.168.192\0xxxxx", 18);
    QTest::newRow("cut") << 6 << QByteArray("10.0.\0xxxxxxxxxxxx", 18);
    QTest::newRow("one byte") << 1 << QByteArray("\0xxxxxxxxxxxxxxxxx", 18);
    QTest::newRow("none") << 0 << QByteArray(18, 'x');
    QTest::newRow("negative") << -1 << QByteArray(18, 'x');
}

/// Catches the bytes in the wrong order, a write past the length and a missing terminator.
void TestStrings::IpAddressIsBounded()
{
    QFETCH(int, size);
    QFETCH(QByteArray, buffer);
    QByteArray out(18, 'x');
    const unsigned int ip = 10U | 0U << 8 | 168U << 16 | 192U << 24;
    QCommon::ConvertToIPStr(ip, out.data(), size);
    QCOMPARE(out, buffer);
    QCommon::ConvertToIPStr(ip, nullptr, 16);
}

void TestStrings::PatchedPaths_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("path");
    const QString file = QStringLiteral("b.ini");
    QTest::newRow("added") << QStringLiteral("C:/a") << file << QStringLiteral("C:/a/b.ini");
    QTest::newRow("there") << QStringLiteral("C:/a/") << file << QStringLiteral("C:/a/b.ini");
    QTest::newRow("no folder") << QString() << file << file;
    QTest::newRow("back-slash") << QStringLiteral("C:\\") << file << QStringLiteral("C:\\/b.ini");
    QTest::newRow("place marks") << QStringLiteral("50%2%1") << file << QStringLiteral("50%2%1/b.ini");
    QTest::newRow("no file") << QStringLiteral("C:/a") << QString() << QStringLiteral("C:/a/");
}

/// Catches a folder whose name is taken for a format.
void TestStrings::PatchedPaths()
{
    QFETCH(QString, folder);
    QFETCH(QString, file);
    QFETCH(QString, path);
    QCOMPARE(QCommon::PatchPath(folder, file), path);
}

/// Catches wrong separators, digits or texts cut short. The first value is that of RFC 2617, 3.5.
void TestStrings::Ha1()
{
    QByteArray out(34, '\0');
    QCommon::GenerateHA1(out.data(), 33, "Mufasa", "testrealm@host.com", "Circle Of Life");
    QCOMPARE(out, QByteArray("939e7578ed9e3c518a452acee763bce9") + QByteArray(2, '\0'));
    const QByteArray longName(5000, 'n');
    QCommon::GenerateHA1(out.data(), 32, longName.constData(), "%s%n", nullptr);
    QCOMPARE(out.left(32), QCryptographicHash::hash(longName + ":%s%n:", QCryptographicHash::Md5).toHex());
}

/// Catches a part of the digits in a buffer that has no room for all, and a crash without a buffer.
void TestStrings::Ha1WritesNothingIntoTooLittle()
{
    QByteArray out(40, 'x');
    QCommon::GenerateHA1(out.data(), 31, "a", "b", "c");
    QCommon::GenerateHA1(out.data(), -1, "a", "b", "c");
    QCommon::GenerateHA1(nullptr, 40, "a", "b", "c");
    QCOMPARE(out, QByteArray(40, 'x'));
    QCommon::GenerateHA1(out.data(), 32, "a", "b", "c");
    QCOMPARE(out.mid(32), QByteArray(8, 'x'));
}

void TestStrings::Extracts_data()
{
    QTest::addColumn<int>("base");
    QTest::addColumn<int>("n");
    QTest::addColumn<int>("result");
    QTest::newRow("exact power") << 10 << 1000 << 3;
    QTest::newRow("just below") << 10 << 999 << 2;
    QTest::newRow("below the base") << 10 << 9 << 0;
    QTest::newRow("zero") << 10 << 0 << 0;
    QTest::newRow("base 0") << 0 << 5 << 0;
    QTest::newRow("negative base") << -2 << 5 << 0;
    QTest::newRow("negative number") << 2 << -8 << 0;
    QTest::newRow("base 1") << 1 << 5 << 0;
    QTest::newRow("largest") << 2 << INT_MAX << 30;
    QTest::newRow("largest base") << INT_MAX << INT_MAX << 1;
}

/// Catches a loop without end for base 1, and an overflow for the largest number.
void TestStrings::Extracts()
{
    QFETCH(int, base);
    QFETCH(int, n);
    QFETCH(int, result);
    QCOMPARE(QCommon::GetExtract(base, n), result);
}

/// Catches a comparison that minds the case or takes a part for the whole.
void TestStrings::WebSkinNames()
{
    QCOMPARE(QCommon::HostToWebSkinName(QStringLiteral("white")), QStringLiteral("light"));
    QCOMPARE(QCommon::HostToWebSkinName(QStringLiteral("White2")), QStringLiteral("black"));
    QCOMPARE(QCommon::HostToWebSkinName(QString()), QStringLiteral("black"));
}

/// Catches numbers cut to 32 bits, and keys that repeat.
void TestStrings::RecordKeysDiffer()
{
    const QString first = QCommon::CreateRecordMapKey(LLONG_MIN, LLONG_MAX);
    QCOMPARE(first, QStringLiteral("-9223372036854775808_9223372036854775807_1"));
    QVERIFY(QCommon::CreateRecordMapKey(LLONG_MIN, LLONG_MAX).endsWith(QStringLiteral("_2")));
}

/// Catches bytes counted as unsigned, and counting behind a zero byte.
void TestStrings::AsciiBytes()
{
    QCOMPARE(QCommon::GetAsciiCharNum("a\xE4\xB8\xAD\x7F\x80"), 2);
    QCOMPARE(QCommon::GetAsciiCharNum(std::string("ab\0cd", 5)), 2);
    QCOMPARE(QCommon::GetAsciiCharNum(std::string()), 0);
}

STRICT_TEST_MAIN(TestStrings)
#include "tst_strings.moc"
