#include "Focus/DriftBudget.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeIdleTime.h"
#include "fakes/FakeSettings.h"

#include <QtTest>

#include <ctime>

using namespace fendrel;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const Mode writing{.id = u"writing"_s, .dailyBudget = 12s};
const Mode open{.id = u"open"_s};

struct World {
    FakeSettings settings;
    FakeClock clock;
    FakeIdleTime idle;
    std::optional<DriftBudget> budget;
    std::optional<Mode> current = writing;
    std::optional<Mode> spending = writing;
    int usedUp = 0;

    World() { start(); }
    void start() {
        budget.emplace(settings, clock, idle);
        budget->current = [this] { return current; };
        budget->spending = [this] { return spending; };
        budget->onUsedUp = [this](const Mode&) { ++usedUp; };
    }
    Seconds used() const { return budget->used(writing.id); }
    Seconds inMode() const { return budget->inMode(writing.id); }
};

} // namespace

class DriftBudgetTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        qputenv("TZ", "Europe/Berlin");
        ::tzset();
    }

    void countsWhatIsSpent() {
        World world;
        const QSignalSpy changes(&*world.budget, &DriftBudget::changed);
        world.clock.advance(5s);
        world.spending.reset();
        world.clock.advance(10s);
        world.current = world.spending = open; // has no allowance to spend
        world.clock.advance(5s);
        world.current.reset();
        world.spending = writing;
        world.clock.advance(5s);
        QCOMPARE(world.inMode(), Seconds(15));
        QCOMPARE(world.used(), Seconds(5));
        QCOMPARE(world.budget->inMode(open.id), Seconds(5));
        QCOMPARE(world.budget->used(open.id), Seconds(0));
        QCOMPARE(changes.count(), 4);
    }

    void countsNeitherSleepNorIdleTime() {
        World world;
        world.clock.sleep(1h);
        QCOMPARE(world.used(), Seconds(10)); // never more at once
        world.clock.setNow(world.clock.now() + 2h);
        world.idle.idle = 119'999ms;
        world.clock.advance(5s);
        QCOMPARE(world.used(), Seconds(15));
        world.idle.idle = 120'000ms;
        world.clock.advance(10s);
        world.idle.idle.reset(); // the system doesn't tell; what was idle is not made up for
        world.clock.advance(5s);
        QCOMPARE(world.used(), Seconds(20));
    }

    void tellsOnceADayThatItIsUsedUp() {
        World world;
        world.clock.advance(10s);
        QCOMPARE(world.usedUp, 0);
        world.clock.advance(5s);
        QCOMPARE(world.usedUp, 1);
        world.start(); // a restart does not tell it again
        world.clock.advance(10min);
        QCOMPARE(world.usedUp, 1);
        world.clock.sleep(24h);
        QCOMPARE(world.budget->remaining(writing), Seconds(2)); // of 12: ten seconds of the day are gone
        world.clock.advance(1min);
        QCOMPARE(world.usedUp, 2);
    }

    void startsAnewAtLocalMidnight() {
        // An ordinary day; the clocks go forward; they go back.
        for (const auto& [day, length] : {std::pair(QDate(2026, 7, 1), 24h), std::pair(QDate(2026, 3, 29), 23h),
                                          std::pair(QDate(2026, 10, 25), 25h)}) {
            World world;
            world.clock.setNow(toWallTime(day.startOfDay()));
            world.start();
            world.clock.advance(length - 5s);
            QCOMPARE(world.used(), Seconds(length - 5s));
            world.clock.advance(5s); // midnight
            QCOMPARE(world.used(), Seconds(5));
            QCOMPARE(world.inMode(), Seconds(5));
        }
    }

    void readsTheCountersOfTheSameDay() {
        const auto restarted = [](std::chrono::hours later, const QString& damagedKey) {
            World world;
            world.clock.advance(10s);
            world.budget.reset();
            world.clock.advance(later);
            world.settings.values.insert(damagedKey, qint64{20260105});
            world.start();
            return u"%1 %2"_s.arg(world.used().count()).arg(world.inMode().count());
        };
        QCOMPARE(restarted(10h, {}), u"10 10"_s);
        QCOMPARE(restarted(24h, {}), u"0 0"_s);
        QCOMPARE(restarted(0h, u"driftBudgetUsed"_s), u"0 10"_s);
        QCOMPARE(restarted(0h, u"timeInModeToday"_s), u"10 0"_s);
        QCOMPARE(restarted(0h, u"driftBudgetDay"_s), u"0 0"_s);
    }
};

QTEST_APPLESS_MAIN(DriftBudgetTest)
#include "tst_DriftBudget.moc"
