#include "Focus/FocusSession.h"
#include "Ports/SettingsStore.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeSettings.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class FocusSessionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void restoresWhatWasStored_data();
    void restoresWhatWasStored();
    void endsByItself();
    void startingAgainReplacesTheEnd();
    void aNewWallClockNeitherEndsNorProlongsIt_data();
    void aNewWallClockNeitherEndsNorProlongsIt();
};

namespace {

using Values = QHash<QString, StoredValue>;
const QString on = u"focusOn"_s;
const QString end = u"focusEndsAt"_s;

struct World {
    FakeSettings settings;
    FakeClock clock;
    QList<bool> told;
    std::optional<FocusSession> session;

    FocusSession& start() {
        session.emplace(settings, clock);
        session->onChange = [this](bool isOn) { told.append(isOn); };
        return *session;
    }
};

} // namespace

void FocusSessionTest::restoresWhatWasStored_data() {
    QTest::addColumn<Values>("stored");
    QTest::addColumn<bool>("isOn");
    QTest::addColumn<int>("seconds"); // left; 0 for no end
    const auto row = [](const char* name, const Values& stored, bool isOn, int seconds) {
        QTest::newRow(name) << stored << isOn << seconds;
    };
    const QDateTime now = toDateTime(FakeClock().now());
    row("nothing", {}, false, 0);
    row("open-ended", {{on, true}}, true, 0);
    row("a number", {{on, qint64{1}}}, true, 0);
    row("text", {{on, u"true"_s}}, false, 0);
    row("off", {{on, false}, {end, now.addSecs(60)}}, false, 0);
    row("timed", {{on, true}, {end, now.addSecs(60)}}, true, 60);
    row("in another time zone", {{on, true}, {end, now.addSecs(60).toOffsetFromUtc(-36000)}}, true, 60);
    row("over", {{on, true}, {end, now.addSecs(-60)}}, false, 0);
    row("over just now", {{on, true}, {end, now}}, false, 0);
    row("an end that is no date", {{on, true}, {end, u"soon"_s}}, true, 0);
    row("an invalid date", {{on, true}, {end, QDateTime()}}, true, 0);
}

void FocusSessionTest::restoresWhatWasStored() {
    QFETCH(const Values, stored);
    World world;
    world.settings.values = stored;
    const FocusSession& session = world.start();
    QTEST(session.isOn(), "isOn");
    QTEST(static_cast<int>(session.remaining().value_or(0s).count()), "seconds");
    if (!session.isOn() && world.settings.writes > 0)
        QVERIFY(world.settings.values == (Values{{on, false}})); // it is over for good
    QVERIFY(world.told.isEmpty());
}

void FocusSessionTest::endsByItself() {
    World world;
    FocusSession& session = world.start();
    session.stop();
    QCOMPARE(world.settings.writes, 0); // none was on
    session.start(Seconds(1500));
    QVERIFY(world.settings.values == (Values{{on, true}, {end, toDateTime(world.clock.now() + 25min)}}));
    world.clock.advance(25min - 1ms);
    QVERIFY(session.isOn());
    world.clock.advance(1ms);
    QVERIFY(!session.isOn() && !session.endsAt() && !session.remaining());
    QVERIFY(world.settings.values == (Values{{on, false}}));
    session.stop();
    QCOMPARE(world.told, (QList<bool>{true, false}));
}

void FocusSessionTest::startingAgainReplacesTheEnd() {
    World world;
    FocusSession& session = world.start();
    session.start(Seconds(600));
    session.start(Seconds(1200));
    world.clock.advance(15min);
    QVERIFY(session.isOn());
    session.start();
    QVERIFY(world.settings.values == (Values{{on, true}}));
    world.clock.advance(24h);
    session.start(Seconds(60));
    world.clock.advance(60s);
    QCOMPARE(world.told, (QList<bool>{true, true, true, true, false}));
}

using Steps = QList<std::pair<char, int>>; // s: set by these minutes, p: pass, z: sleep

void FocusSessionTest::aNewWallClockNeitherEndsNorProlongsIt_data() {
    QTest::addColumn<Steps>("steps"); // ten minutes into an hour's session
    QTest::addColumn<int>("left");    // minutes that it still lasts afterwards
    QTest::newRow("back") << Steps{{'s', -30}} << 50;
    QTest::newRow("back by days") << Steps{{'s', -5000}} << 50;
    QTest::newRow("forward, still before the end") << Steps{{'s', 30}} << 20;
    QTest::newRow("forward, past the end") << Steps{{'s', 120}} << 0;
    QTest::newRow("forward and put right") << Steps{{'s', 30}, {'p', 1}, {'s', -30}} << 49;
    QTest::newRow("back and put right") << Steps{{'s', -5000}, {'p', 1}, {'s', 5000}} << 49;
    QTest::newRow("asleep for a while") << Steps{{'z', 20}} << 30;
    QTest::newRow("asleep past the end") << Steps{{'z', 500}} << 0;
    QTest::newRow("asleep, then back") << Steps{{'z', 20}, {'s', -60}} << 30;
}

void FocusSessionTest::aNewWallClockNeitherEndsNorProlongsIt() {
    QFETCH(const Steps, steps);
    QFETCH(const int, left);
    World world;
    FocusSession& session = world.start();
    session.start(Seconds(3600));
    world.clock.advance(10min);
    for (const auto& [what, count] : steps) {
        const std::chrono::minutes minutes(count);
        if (what == 's')
            world.clock.setNow(world.clock.now() + minutes);
        else if (what == 'z')
            world.clock.sleep(minutes);
        else
            world.clock.advance(minutes);
    }
    if (left > 0) {
        QCOMPARE(session.remaining(), Seconds(std::chrono::minutes(left)));
        QCOMPARE(world.settings.read<QDateTime>(end), toDateTime(*session.endsAt())); // a restart keeps it
        world.clock.advance(std::chrono::minutes(left) - 1ms);
        QVERIFY(session.isOn());
        world.clock.advance(1ms);
    }
    world.clock.advance(0ms);
    QCOMPARE(world.told, (QList<bool>{true, false}));
}

QTEST_APPLESS_MAIN(FocusSessionTest)
#include "tst_FocusSession.moc"
