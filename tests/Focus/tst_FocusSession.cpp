#include "Focus/FocusSession.h"
#include "Ports/SettingsStore.h"
#include "Table.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeSettings.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

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

using Steps = QList<std::pair<char, int>>; // s: set by these minutes, p: pass, z: sleep

class FocusSessionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void restoresWhatWasStored() {
        const auto restored = [](const Values& stored) -> QByteArray {
            World world;
            world.settings.values = stored;
            const FocusSession& session = world.start();
            if (session.isOn())
                return session.remaining() ? QByteArray::number(session.remaining()->count()) : "on";
            world.clock.setNow(world.clock.now() - 1h);
            return world.start().isOn() ? "off for now" : "off";
        };
        const QDateTime now = toDateTime(FakeClock().now()), later = now.addSecs(60);
        QCOMPARE(restored({}), "off");
        QCOMPARE(restored({{on, true}}), "on");
        QCOMPARE(restored({{on, u"true"_s}}), "off");
        QCOMPARE(restored({{on, false}, {end, later}}), "off");
        QCOMPARE(restored({{on, true}, {end, later}}), "60");
        QCOMPARE(restored({{on, true}, {end, later.toOffsetFromUtc(-36000)}}), "60");
        QCOMPARE(restored({{on, true}, {end, now}}), "off"); // over just now, and for good
        QCOMPARE(restored({{on, true}, {end, u"no date"_s}}), "on");
    }

    void endsByItself() {
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

    void startingAgainReplacesTheEnd() {
        World world;
        FocusSession& session = world.start();
        session.start(Seconds(600));
        session.start();
        QVERIFY(world.settings.values == (Values{{on, true}}));
        world.clock.advance(24h);
        session.start(Seconds(60));
        world.clock.advance(60s);
        QCOMPARE(world.told, (QList<bool>{true, true, true, false}));
    }

    void aNewWallClockNeitherEndsNorProlongsIt_data() {
        // Ten minutes into an hour's session; and the minutes that it still lasts afterwards.
        const Table<Steps, int> row("steps", "left");
        row("back", {{'s', -30}}, 50);
        row("forward, still before the end", {{'s', 30}}, 20);
        row("forward, past the end", {{'s', 120}}, 0);
        row("forward and put right", {{'s', 30}, {'p', 1}, {'s', -30}}, 49);
        row("back by days and put right", {{'s', -5000}, {'p', 1}, {'s', 5000}}, 49);
        row("asleep for a while", {{'z', 20}}, 30);
        row("asleep past the end", {{'z', 500}}, 0);
        row("asleep, then back", {{'z', 20}, {'s', -60}}, 30);
    }

    void aNewWallClockNeitherEndsNorProlongsIt() {
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
};

QTEST_APPLESS_MAIN(FocusSessionTest)
#include "tst_FocusSession.moc"
