// What the office's plugin and its host tell each other, read without either.

#include "support/Columns.h"
#include "support/StrictMain.h"
#include "support/Text.h"

#include <Platform/Automation/Office/Host/RowRuns.h>
#include <Platform/Automation/Office/OfficeMessage.h>

#include <QtTest>

using namespace TestSupport;
using namespace Office;

namespace {

/// A result that holds the bytes of a value.
QByteArray ResultWith(const QByteArray& value)
{
    return QByteArray("\2\0", 2) + QByteArray(12, '\0') + value;
}

QByteArray Nested(int depth)
{
    QByteArray bytes;
    for (int i = 0; i < depth; ++i)
        bytes += QByteArray("\x0a\0\0\0\1", 5);
    return bytes + '\0';
}

QVariant ListIn(QVariant value, int depth)
{
    for (int i = 0; i < depth; ++i)
        value = QVariantList{value};
    return value;
}

} // namespace

class TestOfficeMessage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Values_data()
    {
        const QDateTime local(QDate(2026, 3, 14), QTime(10, 24, 36, 789));
        const QDateTime utc(QDate(2026, 3, 29), QTime(2, 30), Qt::UTC);
        Columns<QVariant, QVariant>("sent", "received");
        const auto same = [](const char* name, const QVariant& value) { Row(name, value, value); };
        same("nothing", QVariant());
        same("true", true);
        same("smallest", std::numeric_limits<qlonglong>::min());
        same("largest", std::numeric_limits<qulonglong>::max());
        same("double", -0.1);
        same("text", "\u4E2D \U0001F600 "_s + QString(QChar(0)) + QChar(0xD800));
        same("date", QDate(1900, 2, 28));
        same("moment", local);
        same("moment of UTC", utc);
        same("colour", QColor(1, 2, 3));
        same("block", QVariantList{QVariantList{QVariantList{1.5, QVariant()}, QVariantList{}}});
        Row("int", QVariant(-7), QVariant(qlonglong(-7)));
        Row("texts", QVariant(QStringList{"a"_s}), QVariant(QVariantList{"a"_s}));
        Row("bytes", QVariant(QByteArray("abc")), QVariant("abc"_s));
        Row("invalid colour", QVariant(QColor()), QVariant());
        Row("no value of cells", QVariant(QPoint(1, 2)), QVariant(QString()));
        Row("too deep", ListIn(1.0, 6), ListIn(QVariant(), 4));
    }

    // Catches a value that arrives as another, and one of a client's that the other end would refuse with the
    // whole message.
    void Values()
    {
        QFETCH(QVariant, sent);
        QFETCH(QVariant, received);
        Answer answer;
        answer.value = sent;
        FrameBuffer buffer;
        const QByteArray frame = ToFrame(answer);
        buffer.Add(frame.constData(), frame.size());
        const auto message = buffer.Take();
        QVERIFY(message);
        const auto again = ToAnswer(*message);
        QVERIFY(again);
        QCOMPARE(again->value.type(), received.type());
        QCOMPARE(again->value, received);
    }

    void RefusesWhatIsNoMessage_data()
    {
        QTest::addColumn<QByteArray>("message");
        Row("nothing", QByteArray());
        Row("cut", ResultWith("\5\0\0"));
        Row("more than one", ResultWith(QByteArray("\0\0", 2)));
        Row("unknown kind", ResultWith(QByteArray(1, '\0')).replace(0, 1, "\7"));
        Row("unknown status", ResultWith(QByteArray(1, '\0')).replace(1, 1, "\3"));
        Row("unknown request", ToFrame(Request()).mid(4).replace(0, 1, "\6"));
        Row("member without a name", QByteArray(7, '\0'));
        Row("arguments that are none", QByteArray(5, '\0') + QByteArray("\6\0\0\0\0\0", 6));
        Row("unknown value", ResultWith("\x0b"));
        Row("list without end", ResultWith("\x0a\xff\xff\xff\xff"));
        Row("text without end",
            ResultWith("\x06\x7f\xff\xff\xff"
                       "abcd"));
        Row("nested without end", ResultWith(Nested(100000)));
    }

    // Catches memory or stack that is taken for what a message only claims, and values outside of an
    // enumeration.
    void RefusesWhatIsNoMessage()
    {
        QFETCH(QByteArray, message);
        QVERIFY(!ToAnswer(message));
        QVERIFY(!ToRequest(message));
    }

    // Catches a frame that is lost between two pieces, and a wait for one that no end would send.
    void Frames()
    {
        Request request;
        request.kind = Request::Write;
        request.object = 3;
        request.member = "Name"_s;
        request.arguments = {"x"_s};
        const QByteArray frames = ToFrame(request) + ToFrame(Request());
        FrameBuffer buffer;
        QList<Request> requests;
        for (const char byte : frames) {
            buffer.Add(&byte, 1);
            while (const auto message = buffer.Take())
                requests << ToRequest(*message).value();
        }
        QCOMPARE(requests.size(), 2);
        QCOMPARE(requests.first().kind, Request::Write);
        QCOMPARE(requests.first().object, Handle(3));
        QCOMPARE(requests.first().member, request.member);
        QCOMPARE(requests.first().arguments, request.arguments);
        QVERIFY(!buffer.IsBroken());
        buffer.Add("\xff\xff\xff\xff", 4);
        QVERIFY(!buffer.Take());
        QVERIFY(buffer.IsBroken());
    }

    // Catches rows whose height the client has set among those that are measured, and rows that are missed.
    void GapsBetweenRows()
    {
        RowRuns runs;
        const auto gaps = [&runs](int last) {
            QString text;
            const auto found = runs.Gaps(last);
            for (const RowRuns::Run& gap : found)
                text += "%1-%2 "_s.arg(gap.first).arg(gap.last);
            return text;
        };
        QCOMPARE(gaps(3), "0-3 "_s);
        runs.Add(5, 6);
        runs.Add(1, 2);
        runs.Add(9, 9);
        QCOMPARE(gaps(10), "0-0 3-4 7-8 10-10 "_s);
        QCOMPARE(gaps(4), "0-0 3-4 "_s);
        runs.Add(2, 4); // touches two of them
        QCOMPARE(gaps(9), "0-0 7-8 "_s);
    }
};

STRICT_TEST_MAIN(TestOfficeMessage)
#include "tst_officemessage.moc"
