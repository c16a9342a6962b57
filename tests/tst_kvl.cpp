#include "support/Columns.h"
#include "support/StrictMain.h"

#include <Common/Base64.h>
#include <Platform/kvl/DBase64.h>
#include <Platform/kvl/DMD5.h>
#include <Platform/kvl/DStr.h>
#include <QtTest>
#include <climits>
#include <random>

using namespace TestSupport;

namespace {

QByteArray Md5InPieces(const QByteArray& text, int piece)
{
    kvl::DMD5 md5;
    md5.Update("rest of an earlier text", 23);
    md5.Init();
    for (int i = 0; i < text.size(); i += piece) {
        const int size = qMin(piece, text.size() - i);
        md5.Update(text.constData() + i, static_cast<std::size_t>(size));
    }
    unsigned char digest[kvl::DMD5::kDigestSize] = {};
    md5.Final(digest);
    return QByteArray(reinterpret_cast<const char*>(digest), sizeof digest).toHex();
}

} // namespace

class TestKvl : public QObject
{
    Q_OBJECT

private slots:
    /// Catches pieces that are dropped or joined wrongly, and an Init() that keeps what was added before.
    void Md5()
    {
        // RFC 1321, appendix A.5: short texts, and one longer than a block
        const QByteArray cases[][2]
            = {{"", "d41d8cd98f00b204e9800998ecf8427e"},
               {"message digest", "f96b697d7cb7938d525a2f31aaf161d0"},
               {QByteArray("1234567890").repeated(8), "57edf4a22be3c955ac49da2e2107b67a"}};
        for (const auto& [text, digest] : cases) {
            for (const int piece : {7, 1000})
                QCOMPARE(Md5InPieces(text, piece), digest);
        }
    }

    void MalformedBase64_data()
    {
        QTest::addColumn<QByteArray>("text");
        Row("no padding", QByteArray("Zg"));
        Row("too little padding", QByteArray("Zg="));
        Row("too much padding", QByteArray("Z==="));
        Row("nothing but padding", QByteArray("===="));
        Row("padding inside", QByteArray("Zg==Zg=="));
        Row("padding before a digit", QByteArray("Zm=v"));
        Row("line break", QByteArray("Zm9v\nYmF"));
        Row("foreign character", QByteArray("Zm9-"));
        Row("behind the letters", QByteArray("Zm9~"));
        Row("byte above 0x7F", QByteArray("Zm9\xC3"));
        Row("zero byte", QByteArray("Zm9\0", 4));
        Row("stray bits", QByteArray("Zh=="));
    }

    /// Catches malformed text that is decoded to something, and a call that writes in spite of its error.
    void MalformedBase64()
    {
        QFETCH(QByteArray, text);
        QByteArray out(64, 'x');
        QVERIFY(Common::deBase64(text.toStdString(), out.data()) < 0);
        QCOMPARE(out, QByteArray(64, 'x'));
        QVERIFY(Common::deBase64(text.toStdString()).empty());
    }

    /// Catches a write past the buffer, and a buffer of exactly the needed size that is refused.
    void EncodingKeepsToItsBuffer()
    {
        QByteArray text(9, 'x');
        QCOMPARE(kvl::DBase64::Encode("foobar", 6, text.data(), 7), -1LL);
        QCOMPARE(kvl::DBase64::Encode("foobar", LLONG_MAX, text.data(), 9), -1LL);
        QCOMPARE(kvl::DBase64::Encode("foobar", -1, text.data(), 9), -1LL);
        QCOMPARE(text, QByteArray(9, 'x'));
        QCOMPARE(kvl::DBase64::Encode("foobar", 6, text.data(), 8), 8LL);
        QCOMPARE(text, QByteArray("Zm9vYmFyx"));
        QCOMPARE(kvl::DBase64::Encode("foobar", 6, text.data(), 9), 8LL);
        QCOMPARE(text, QByteArray("Zm9vYmFy\0", 9));
    }

    /// Catches the same of the other direction.
    void DecodingKeepsToItsBuffer()
    {
        QByteArray bytes(6, 'x');
        QCOMPARE(kvl::DBase64::Decode("Zm9vYmE=", 8, bytes.data(), 4), -1LL);
        QCOMPARE(bytes.at(4), 'x');
        QCOMPARE(kvl::DBase64::Decode("Zm9v", -4, bytes.data(), 6), -1LL);
        QCOMPARE(kvl::DBase64::Decode("Zm9vYmE=", 8, bytes.data(), 5), 5LL);
        QCOMPARE(bytes, QByteArray("foobax"));
    }

    /// Catches a wrong digit or wrong padding, and a text that ends at a zero byte.
    void RandomBytesSurviveBase64()
    {
        std::mt19937 random(4648);
        for (std::size_t size = 0; size < 300; ++size) {
            std::string bytes(size, '\0');
            std::generate(bytes.begin(), bytes.end(), [&random] { return static_cast<char>(random()); });
            const std::string text = Common::enBase64(bytes);
            QCOMPARE(text.size(), (size + 2) / 3 * 4);
            QCOMPARE(Common::deBase64(text), bytes);
            std::string out(size, 'x');
            QCOMPARE(Common::deBase64(text, &out[0]), static_cast<int>(size));
            QCOMPARE(out, bytes);
            QCOMPARE(QByteArray::fromStdString(text), QByteArray::fromStdString(bytes).toBase64());
        }
    }

    /// Catches a crash on null pointers and an error where there is just nothing to do.
    void Base64OfNothing()
    {
        QVERIFY(Common::enBase64(nullptr, 0).empty());
        QVERIFY(Common::enBase64(nullptr, 5).empty());
        QVERIFY(Common::enBase64("a", ULLONG_MAX).empty());
        QCOMPARE(Common::deBase64(std::string(), nullptr), 0);
        QVERIFY(Common::deBase64(std::string("Zm9v"), nullptr) < 0);
        QByteArray out(9, 'x');
        QCOMPARE(kvl::DBase64::Encode(nullptr, 3, out.data(), 9), -1LL);
        QCOMPARE(kvl::DBase64::Encode("foo", 3, nullptr, 9), -1LL);
        QCOMPARE(kvl::DBase64::Decode(nullptr, 4, out.data(), 9), -1LL);
        QCOMPARE(kvl::DBase64::Decode("Zm9v", 4, nullptr, 9), -1LL);
        QCOMPARE(kvl::DBase64::Encode(nullptr, 0, out.data(), 9), 0LL);
        QCOMPARE(kvl::DBase64::Decode(nullptr, 0, out.data(), 9), 0LL);
    }

    /// Catches a missing terminator and a write past the given size.
    void FormattingIsBounded()
    {
        const QByteArray buffers[]
            = {"xxxxxxxx",
               QByteArray("\0xxxxxxx", 8),
               QByteArray("1\0xxxxxx", 8),
               QByteArray("12\0xxxxx", 8),
               QByteArray("12-\0xxxx", 8),
               QByteArray("12-a\0xxx", 8),
               QByteArray("12-ab\0xx", 8),
               QByteArray("12-ab\0xx", 8)};
        for (int size = 0; size < 8; ++size) {
            QByteArray out(8, 'x');
            QCOMPARE(
                kvl::DStr::sprintf_x(out.data(), static_cast<std::size_t>(size), "%d-%s", 12, "ab"),
                qMin(size - 1, 5));
            QCOMPARE(out, buffers[size]);
        }
    }

    /// Catches a copy without a terminator and a cut that is not reported.
    void CopyingIsBounded()
    {
        QByteArray out(6, 'x');
        QVERIFY(kvl::DStr::strcpy_x(out.data(), 5, "wall"));
        QCOMPARE(out, QByteArray("wall\0x", 6));
        QVERIFY(!kvl::DStr::strcpy_x(out.data(), 4, "wall"));
        QCOMPARE(out, QByteArray("wal\0\0x", 6));
    }

    /// Catches a crash on a null buffer, source or digest.
    void NullBuffersAreLeftAlone()
    {
        QCOMPARE(kvl::DStr::sprintf_x(nullptr, 5, "%d", 1), -1);
        QByteArray wild(8, 'x');
        const char* noFormat = nullptr;
        QCOMPARE(kvl::DStr::sprintf_x(wild.data(), 8, noFormat, 1), -1);
        QCOMPARE(kvl::DStr::sprintf_x(wild.data(), 8, "%ls", L"\xD800"), -1); // half a character
        QCOMPARE(wild.at(0), '\0');
        QVERIFY(!kvl::DStr::strcpy_x(nullptr, 5, "a"));
        QByteArray out(2, 'x');
        QVERIFY(!kvl::DStr::strcpy_x(out.data(), 0, "a"));
        QVERIFY(!kvl::DStr::strcpy_x(out.data(), 2, nullptr));
        QCOMPARE(out, QByteArray("xx"));
        kvl::DMD5 md5;
        md5.Update(nullptr, 4);
        md5.Final(nullptr);
        QCOMPARE(Md5InPieces(QByteArray(), 1), QByteArray("d41d8cd98f00b204e9800998ecf8427e"));
    }
};

STRICT_TEST_MAIN(TestKvl)
#include "tst_kvl.moc"
