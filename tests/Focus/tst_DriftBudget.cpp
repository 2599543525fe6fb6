#include "Focus/DriftBudget.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeIdleTime.h"
#include "fakes/FakeSettings.h"

#include <QtTest>

#include <ctime>

using namespace fendrel;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class DriftBudgetTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void countsWhatIsSpent();
    void countsNoMoreThanTenSecondsAtOnce();
    void anIdleUserSpendsNothing();
    void tellsOnceADayThatItIsUsedUp();
    void startsAnewAtLocalMidnight_data();
    void startsAnewAtLocalMidnight();
    void readsTheCountersOfTheSameDay();
};

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

void DriftBudgetTest::initTestCase() {
    qputenv("TZ", "Europe/Berlin");
    ::tzset();
}

void DriftBudgetTest::countsWhatIsSpent() {
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

void DriftBudgetTest::countsNoMoreThanTenSecondsAtOnce() {
    World world;
    world.clock.sleep(1h);
    QCOMPARE(world.used(), Seconds(10));
    world.clock.setNow(world.clock.now() + 2h); // setting the clock spends nothing
    world.clock.advance(5s);
    QCOMPARE(world.used(), Seconds(15));
}

void DriftBudgetTest::anIdleUserSpendsNothing() {
    World world;
    world.idle.idle = 119'999ms;
    world.clock.advance(10s);
    world.idle.idle = 120'000ms;
    world.clock.advance(10s);
    QCOMPARE(world.inMode(), Seconds(10));
    world.idle.idle.reset(); // the system doesn't tell; what was idle is not made up for
    world.clock.advance(5s);
    QCOMPARE(world.used(), Seconds(15));
}

void DriftBudgetTest::tellsOnceADayThatItIsUsedUp() {
    World world;
    world.clock.advance(10s);
    QCOMPARE(world.usedUp, 0);
    world.clock.advance(5s);
    QCOMPARE(world.usedUp, 1);
    world.start(); // a restart does not tell it again
    world.clock.advance(10min);
    QCOMPARE(world.usedUp, 1);
    world.clock.sleep(24h);
    QCOMPARE(world.budget->remaining(writing), Seconds(2)); // of 12, the first ten seconds of the day are gone
    world.clock.advance(1min);
    QCOMPARE(world.usedUp, 2);
}

void DriftBudgetTest::startsAnewAtLocalMidnight_data() {
    QTest::addColumn<QDate>("day");
    QTest::addColumn<int>("hours");
    QTest::newRow("summer") << QDate(2026, 7, 1) << 24;
    QTest::newRow("the clocks go forward") << QDate(2026, 3, 29) << 23;
    QTest::newRow("the clocks go back") << QDate(2026, 10, 25) << 25;
}

void DriftBudgetTest::startsAnewAtLocalMidnight() {
    QFETCH(const QDate, day);
    QFETCH(const int, hours);
    World world;
    world.clock.setNow(toWallTime(day.startOfDay()));
    world.start();
    world.clock.advance(std::chrono::hours(hours) - 5s);
    QCOMPARE(world.used(), Seconds(std::chrono::hours(hours) - 5s));
    world.clock.advance(5s); // midnight
    QCOMPARE(world.used(), Seconds(5));
    QCOMPARE(world.inMode(), Seconds(5));
}

void DriftBudgetTest::readsTheCountersOfTheSameDay() {
    const auto restarted = [](std::chrono::hours later, const QString& damagedKey = {}) {
        World world;
        world.clock.advance(10s);
        world.budget.reset();
        world.clock.advance(later);
        world.settings.values.insert(damagedKey, qint64{20260105});
        world.start();
        return std::pair(world.used().count(), world.inMode().count());
    };
    QVERIFY(restarted(10h) == std::pair(10.0, 10.0));
    QVERIFY(restarted(24h) == std::pair(0.0, 0.0));
    QVERIFY(restarted(0h, u"driftBudgetUsed"_s) == std::pair(0.0, 10.0));
    QVERIFY(restarted(0h, u"timeInModeToday"_s) == std::pair(10.0, 0.0));
    QVERIFY(restarted(0h, u"driftBudgetDay"_s) == std::pair(0.0, 0.0));
}

QTEST_APPLESS_MAIN(DriftBudgetTest)
#include "tst_DriftBudget.moc"
