#include "fakes/FakeClock.h"

#include <QtTest>

using namespace fendrel;
using namespace std::chrono_literals;

class FakeClockTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void runsEachAtItsOwnMoment();
    void runsWhatCallbacksStart();
    void sleepRunsWhatWasMissedOnce();
    void settingTheWallClockLeavesTimersAlone();
};

void FakeClockTest::runsEachAtItsOwnMoment() {
    FakeClock clock;
    const auto start = clock.now();
    QList<WallTime> ran;
    const auto repeating = clock.every(10s, 5s, [&] { ran.append(clock.now()); });
    const auto once = clock.after(15s, [&] { ran.append(clock.now()); });
    clock.advance(20s - 1ns);
    QCOMPARE(ran, (QList{start + 10s, start + 15s}));
    QCOMPARE(*clock.untilNext(), 1ns);
    clock.advance(1ns);
    QCOMPARE(ran.size(), 3);
    QCOMPARE(clock.now(), start + 20s);
    QCOMPARE(clock.pending(), std::size_t(1));
}

void FakeClockTest::runsWhatCallbacksStart() {
    FakeClock clock;
    int ran = 0;
    Handle handle;
    std::function<void()> chain = [&] {
        if (++ran < 5)
            handle = clock.after(1s, chain);
    };
    handle = clock.after(1s, chain);
    clock.advance(4s);
    QCOMPARE(ran, 4);
}

void FakeClockTest::sleepRunsWhatWasMissedOnce() {
    FakeClock clock;
    const auto start = clock.continuousNow();
    QList<ContinuousTime> ran;
    const auto handle = clock.every(1s, {}, [&] { ran.append(clock.continuousNow()); });
    bool isTold = false;
    const auto wake = clock.onWallClockSet([&] { isTold = true; });
    clock.sleep(1h + 500ms);
    QCOMPARE(ran, QList{start + 1h + 500ms});
    QVERIFY(isTold);
    QCOMPARE(*clock.untilNext(), 500ms);
}

void FakeClockTest::settingTheWallClockLeavesTimersAlone() {
    FakeClock clock;
    const auto start = clock.now();
    int ran = 0;
    int told = 0;
    const auto handle = clock.after(10s, [&] { ++ran; });
    auto listener = clock.onWallClockSet([&] { ++told; });
    clock.setNow(start + 24h);
    QCOMPARE(ran, 0);
    QCOMPARE(told, 1);
    clock.advance(10s);
    QCOMPARE(ran, 1);
    QCOMPARE(clock.now(), start + 24h + 10s);
    listener.reset();
    clock.setNow(start);
    QCOMPARE(told, 1);
}

QTEST_APPLESS_MAIN(FakeClockTest)
#include "tst_FakeClock.moc"
