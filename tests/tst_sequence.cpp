#include "support/StrictMain.h"

#include <Common/COperSequence.h>
#include <Common/CRecordColorManager.h>
#include <QtTest>
#include <atomic>
#include <thread>
#include <vector>

using UICommonMdl::COperSequence;

class TestSequence : public QObject
{
    Q_OBJECT

private slots:
    /// Catches an answer that removes another number or all equal ones at once, a number that stays
    /// outstanding after its answer, and a Clear() that leaves one behind.
    void AnswersAreExpectedOneByOne()
    {
        COperSequence sequence;
        sequence.ClearSeq(7);
        for (const int number : {4, 7, 7, 6, 7})
            sequence.InsertSeq(number);
        sequence.ClearSeq(7);
        for (const int number : {7, 6, 7})
            QVERIFY(sequence.HasSeqIn(number));
        QVERIFY(!sequence.HasSeqIn(7));
        sequence.InsertSeq(4);
        sequence.Clear();
        QVERIFY(!sequence.HasSeqIn(4));
    }

    /// Catches a find and remove in two steps: two threads would be told true for one request, or a number
    /// would be lost. The thread sanitizer sees an unlocked list here.
    void EachAnswerGoesToOneThread()
    {
        constexpr int kThreads = 4;
        constexpr int kNumbers = 1000;
        COperSequence sequence;
        std::atomic<int> expected{0};
        std::vector<std::thread> threads;
        threads.reserve(kThreads);
        for (int t = 0; t < kThreads; ++t) {
            threads.emplace_back([&sequence, &expected] {
                for (int i = 0; i < kNumbers; ++i) {
                    sequence.InsertSeq(i);
                    sequence.InsertSeq(-1 - i);
                    sequence.ClearSeq(-1 - i);
                    if (i % 2 == 0)
                        expected += sequence.HasSeqIn(i) ? 1 : 0;
                }
                for (int i = 0; i < kNumbers; ++i)
                    expected += sequence.HasSeqIn(i) ? 1 : 0;
            });
        }
        for (std::thread& thread : threads)
            thread.join();
        // A number may be asked for before another thread has noted it again; those are still here.
        int left = 0;
        for (int i = 0; i < kNumbers; ++i) {
            QVERIFY(!sequence.HasSeqIn(-1 - i));
            while (sequence.HasSeqIn(i))
                ++left;
        }
        QCOMPARE(expected + left, kThreads * kNumbers);
    }

    /// Catches a Clear() without the lock, which the thread sanitizer sees, and a number that is told of
    /// twice.
    void ClearsWhileOthersAnswer()
    {
        constexpr int kNumbers = 20000;
        COperSequence sequence;
        std::atomic<int> told{0};
        std::atomic<bool> done{false};
        std::thread clearing([&sequence, &done] {
            while (!done) {
                sequence.Clear();
                std::this_thread::yield();
            }
        });
        std::thread asking([&sequence, &told, &done] {
            while (!done)
                told += sequence.HasSeqIn(1) ? 1 : 0;
        });
        for (int i = 0; i < kNumbers; ++i)
            sequence.InsertSeq(1);
        done = true;
        clearing.join();
        asking.join();
        while (sequence.HasSeqIn(1))
            ++told;
        QVERIFY(told <= kNumbers);
    }

    /// Catches operators that are declared but not in the library.
    void RecordColoursAreAssigned()
    {
        XCM::CRecordColorManager one;
        XCM::CRecordColorManager other;
        QCOMPARE(&(one = other), &one);
        QCOMPARE(&(one = std::move(other)), &one);
    }
};

STRICT_TEST_MAIN(TestSequence)
#include "tst_sequence.moc"
