#include "Files.h"
#include "Platform/Shared/SystemClock.h"

#include <QtTest>

using namespace fendrel;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

/// How many of the kernel's timers are armed for this process.
int armedTimers() {
    int armed = 0;
    for (const auto& name : QDir(u"/proc/self/fdinfo"_s).entryList(QDir::Files)) {
        const QByteArray facts = contentOf(u"/proc/self/fdinfo/"_s + name);
        // CLOCK_BOOTTIME is 7; the watch on the wall clock is always armed.
        armed += facts.contains("clockid: 7\n") && !facts.contains("it_value: (0, 0)\n") ? 1 : 0;
    }
    return armed;
}

} // namespace

class SystemClockTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void runsInOrderAndNeverEarly() {
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
        clock.after(20ms, [&] { ran.append(u"dropped"_s); }).reset();
        loop.exec();
        QCOMPARE(ran, (QStringList{u"first"_s, u"second"_s, u"last"_s}));
        QVERIFY(clock.continuousNow() - start >= 30ms);
    }

    void neverRunsInsideTheCall() {
        SystemClock clock;
        QEventLoop loop;
        bool isCalling = false;
        int left = 3;
        Handle handle;
        std::function<void()> again = [&] {
            QVERIFY(!isCalling);
            if (--left == 0)
                return loop.quit();
            isCalling = true;
            handle = clock.after({}, again);
            isCalling = false;
        };
        again();
        loop.exec();
        QCOMPARE(left, 0);
    }

    void sleepsWhileNothingIsDue() {
        SystemClock clock;
        QCOMPARE(armedTimers(), 0);
        {
            const auto handle = clock.after(1h, [] {});
            QCOMPARE(armedTimers(), 1);
        }
        QCOMPARE(armedTimers(), 0);
        QEventLoop loop;
        const auto once = clock.after(1ms, [&] { loop.quit(); });
        loop.exec();
        QCOMPARE(armedTimers(), 0);
    }
};

QTEST_GUILESS_MAIN(SystemClockTest)
#include "tst_SystemClock.moc"
