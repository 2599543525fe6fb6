#include "Platform/Shared/SystemClock.h"

#include <QtTest>

#include <memory>

using namespace fendrel;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

class SystemClockTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void runsInOrderAndNeverEarly();
    void neverRunsInsideTheCall();
    void sharesOneWakeUp();
    void repeatsUntilDropped();
    void sleepsWhileNothingIsDue();
    void handlesMayOutliveTheClock();
    void tellsTheTime();

private:
    /// What the kernel's timers of this process wait for, one line each.
    static QStringList armedTimers();
};

QStringList SystemClockTest::armedTimers() {
    QStringList armed;
    for (const auto& name : QDir(u"/proc/self/fdinfo"_s).entryList(QDir::Files)) {
        QFile file(u"/proc/self/fdinfo/"_s + name);
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const auto lines = QString::fromUtf8(file.readAll()).split(u'\n');
        // CLOCK_BOOTTIME is 7; the watch on the wall clock is always armed.
        if (lines.contains(u"clockid: 7"_s) && !lines.contains(u"it_value: (0, 0)"_s))
            armed.append(lines.filter(u"it_value"_s));
    }
    return armed;
}

void SystemClockTest::runsInOrderAndNeverEarly() {
    SystemClock clock;
    const auto start = clock.continuousNow();
    QEventLoop loop;
    QStringList ran;
    const auto last = clock.after(30ms, [&] {
        ran.append(u"last"_s);
        loop.quit();
    });
    const auto second = clock.after(10ms, [&] { ran.append(u"second"_s); });
    const auto first = clock.after(-1s, [&] { ran.append(u"first"_s); });
    auto dropped = clock.after(20ms, [&] { ran.append(u"dropped"_s); });
    dropped.reset();
    loop.exec();
    QCOMPARE(ran, (QStringList{u"first"_s, u"second"_s, u"last"_s}));
    QVERIFY(clock.continuousNow() - start >= 30ms);
}

void SystemClockTest::neverRunsInsideTheCall() {
    SystemClock clock;
    QEventLoop loop;
    int depth = 0;
    int left = 3;
    Handle handle;
    std::function<void()> again = [&] {
        QCOMPARE(depth, 0);
        if (--left == 0)
            return loop.quit();
        ++depth;
        handle = clock.after({}, again);
        --depth;
    };
    ++depth;
    handle = clock.after({}, again);
    --depth;
    loop.exec();
    QCOMPARE(left, 0);
}

void SystemClockTest::sharesOneWakeUp() {
    SystemClock clock;
    const auto start = clock.continuousNow();
    QEventLoop loop;
    QList<ContinuousTime> ran;
    const auto lenient = clock.every(5ms, 10s, [&] { ran.append(clock.continuousNow()); });
    const auto strict = clock.after(40ms, [&] { loop.quit(); });
    loop.exec();
    QCOMPARE(ran.size(), 1);
    QVERIFY2(ran.first() - start >= 40ms, "it could have waited for the other timer");
}

void SystemClockTest::repeatsUntilDropped() {
    SystemClock clock;
    QEventLoop loop;
    int ran = 0;
    Handle handle;
    Handle end;
    handle = clock.every(2ms, {}, [&] {
        if (++ran < 5)
            return;
        handle.reset();
        end = clock.after(10ms, [&] { loop.quit(); });
    });
    loop.exec();
    QCOMPARE(ran, 5);
}

void SystemClockTest::sleepsWhileNothingIsDue() {
    SystemClock clock;
    QCOMPARE(armedTimers(), QStringList());
    {
        const auto handle = clock.after(1h, [] {});
        QCOMPARE(armedTimers().size(), 1);
    }
    QCOMPARE(armedTimers(), QStringList());
    QEventLoop loop;
    const auto once = clock.after(1ms, [&] { loop.quit(); });
    loop.exec();
    QCOMPARE(armedTimers(), QStringList());
}

void SystemClockTest::handlesMayOutliveTheClock() {
    auto clock = std::make_unique<SystemClock>();
    int ran = 0;
    auto timer = clock->after({}, [&] { ++ran; });
    auto listener = clock->onWallClockSet([&] { ++ran; });
    clock.reset();
    QCoreApplication::processEvents();
    QCOMPARE(ran, 0);
    timer.reset();
    listener.reset();
}

void SystemClockTest::tellsTheTime() {
    const SystemClock clock;
    const qint64 before = QDateTime::currentMSecsSinceEpoch();
    const qint64 now = clock.now().time_since_epoch().count();
    QVERIFY(before <= now && now <= QDateTime::currentMSecsSinceEpoch());
}

QTEST_GUILESS_MAIN(SystemClockTest)
#include "tst_SystemClock.moc"
