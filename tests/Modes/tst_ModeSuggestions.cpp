#include "Base/Worker.h"
#include "Modes/ModeEngine.h"
#include "Modes/ModeStore.h"
#include "Modes/ModeSuggestions.h"
#include "Table.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeIdleTime.h"
#include "fakes/FakeSettings.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Writing is the current mode; there is a calendar without events. Every switch is immediate but that to "slow".
struct World {
    Worker disk{u"disk"_s};
    ModeStore store{{}, disk};
    FakeSettings settings;
    FakeClock clock;
    FakeIdleTime idle;
    std::optional<ModeEngine> engine;
    std::optional<ModeSuggestions> suggestions;
    QList<ModeSuggestions::Call> calls;
    int readings = 0;
    bool mayPropose = true;

    World() {
        for (const char* flag : {"sitesSeeded", "widgetsSeeded", "budgetsSeeded"})
            settings.values.insert(QString::fromLatin1(flag), true);
        store.load();
        store.save({{.id = u"writing"_s, .apps = {u"notes"_s, u"both"_s}},
                    {.id = u"social"_s, .apps = {u"chat"_s, u"both"_s, u"files"_s}},
                    {.id = u"slow"_s, .apps = {u"game"_s}, .entryDelay = 60s},
                    {.id = u"meeting"_s}});
        ModeCatalog catalog = ModeCatalog::with({});
        catalog.sharedApps.insert(u"files"_s);
        engine.emplace(store, settings, clock, catalog, [](const QString&) { return false; });
        engine->entryDelay = [](const Mode& target) { return target.entryDelay; };
        suggestions.emplace(*engine, idle, clock);
        suggestions->hasCalendar = [] { return true; };
        suggestions->readCalendar = [this] { ++readings; };
        suggestions->calls = [this] { return calls; };
        suggestions->displayName = [](const QString& bundleID) { return bundleID.toUpper(); };
        suggestions->mayPropose = [this] { return mayPropose; };
        QObject::connect(&*engine, &ModeEngine::changed, &*suggestions, &ModeSuggestions::update);
        suggestions->update();
    }
    void bringCall(Clock::Duration ahead, const QString& host = {}) {
        calls = {{.title = u"Standup"_s,
                  .start = clock.now() + std::chrono::duration_cast<std::chrono::milliseconds>(ahead),
                  .host = host}};
        suggestions->update();
    }
    void enter(const QString& id) { engine->commit(Mode(*engine->mode(id))); }
    /// "mode: reason", or nothing.
    QString shown() const {
        const auto& now = suggestions->suggestion();
        return now ? now->mode.id + u": "_s + now->because : QString();
    }
};

} // namespace

using Prepare = std::function<void(World&)>;

class ModeSuggestionsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void stayingInAnotherModesApplication_data() {
        const Table<Prepare, QString> row("prepare", "shown");
        row(
            "another mode's", [](World&) {}, u"social: You opened CHAT."_s);
        row("of the current mode, too", [](World& world) { world.suggestions->frontChanged(u"both"_s); }, {});
        row("of all modes", [](World& world) { world.suggestions->frontChanged(u"files"_s); }, {});
        row("of none", [](World& world) { world.suggestions->frontChanged(u"unknown"_s); }, {});
        row("on the way there",
            [](World& world) {
                world.suggestions->frontChanged(u"game"_s);
                world.engine->requestSwitch(Mode(*world.engine->mode(u"slow"_s)));
            },
            {});
        row("nobody there", [](World& world) { world.idle.idle = 10min; }, {});
        row(
            "somebody there", [](World& world) { world.idle.idle = 10min - 1ms; }, u"social: You opened CHAT."_s);
        row("something else asks", [](World& world) { world.mayPropose = false; }, {});
    }

    void stayingInAnotherModesApplication() {
        QFETCH(const Prepare, prepare);
        QFETCH(const QString, shown);
        World world;
        world.suggestions->frontChanged(u"chat"_s);
        prepare(world);
        world.clock.advance(20s - 1ms);
        QCOMPARE(world.shown(), QString());
        world.clock.advance(1ms);
        QCOMPARE(world.shown(), shown);
    }

    void comesBackAfterHalfAnHour() {
        World world;
        world.suggestions->frontChanged(u"chat"_s);
        world.clock.advance(20s);
        world.suggestions->dismiss();
        world.clock.advance(30min - 1ms);
        QCOMPARE(world.shown(), QString());
        world.clock.advance(1ms);
        QCOMPARE(world.shown(), u"social: You opened CHAT."_s);
        // Another application of the same mode is another matter, and a mode that was just entered begins anew.
        world.suggestions->dismiss();
        world.enter(u"slow"_s);
        world.suggestions->frontChanged(u"both"_s);
        world.clock.advance(19s);
        world.enter(u"meeting"_s);
        world.clock.advance(19s);
        QCOMPARE(world.shown(), QString());
        world.clock.advance(1s);
        QCOMPARE(world.shown(), u"writing: You opened BOTH."_s);
    }

    void callsThatAreNear_data() {
        const Table<Clock::Duration, QString> row("ahead", "shown");
        row("too far", 300s + 1ms, {});
        row("near", 300s, u"meeting: Standup starts in 5 min."_s);
        row("minutes begun count", 250s, u"meeting: Standup starts in 5 min."_s);
        row("the last minute", 1s, u"meeting: Standup starts in 1 min."_s);
        row("now", 0s, u"meeting: Standup has started."_s);
        row("begun", -120s, u"meeting: Standup has started."_s);
        row("long begun", -120s - 1ms, {});
    }

    void callsThatAreNear() {
        QFETCH(const Clock::Duration, ahead);
        QFETCH(const QString, shown);
        World world;
        world.bringCall(ahead);
        QCOMPARE(world.shown(), shown);
    }

    void aCallComesBeforeAnApplicationAndStays() {
        World world;
        world.suggestions->frontChanged(u"chat"_s);
        world.clock.advance(10s);
        world.bringCall(310s);
        world.clock.advance(10s);
        QCOMPARE(world.shown(), u"meeting: Standup starts in 5 min."_s);
        world.clock.advance(1min);
        QCOMPARE(world.shown(), u"meeting: Standup starts in 4 min."_s);
        world.clock.advance(4min);
        QCOMPARE(world.shown(), u"meeting: Standup has started."_s);
        world.clock.advance(120s - 1ms);
        QCOMPARE(world.shown(), u"meeting: Standup has started."_s);
        world.clock.advance(1ms);
        QCOMPARE(world.shown(), u"social: You opened CHAT."_s); // which would have been due all the time
    }

    void aCallThatIsMovedOrCalledOff() {
        World world;
        world.bringCall(60s);
        world.bringCall(250s);
        QCOMPARE(world.shown(), u"meeting: Standup starts in 5 min."_s);
        world.bringCall(1h);
        QCOMPARE(world.shown(), QString());
    }

    void noCallIsProposedWhereItIsTaken() {
        World world;
        world.enter(u"meeting"_s);
        world.bringCall(60s);
        QCOMPARE(world.shown(), QString());
        world.enter(u"writing"_s);
        QCOMPARE(world.shown(), u"meeting: Standup starts in 1 min."_s);
        world.mayPropose = false;
        world.suggestions->update();
        QCOMPARE(world.shown(), QString());
        world.mayPropose = true; // nobody answered it
        world.suggestions->update();
        QCOMPARE(world.shown(), u"meeting: Standup starts in 1 min."_s);
        world.engine->deleteMode(u"meeting"_s);
        QCOMPARE(world.shown(), QString());
    }

    void knowsTheApplicationOfACall() {
        const std::pair<const char*, const char*> hosts[] = {
            {"zoom.us", "us.zoom.xos"}, {"acme.zoom.us", "us.zoom.xos"}, {"notzoom.us", ""}};
        for (const auto& [host, app] : hosts)
            QCOMPARE(ModeSuggestions::callApp(QString::fromLatin1(host)), QString::fromLatin1(app));
    }

    void hidesUnlessHovered() {
        World world;
        world.suggestions->frontChanged(u"chat"_s);
        world.clock.advance(20s + 30s - 1ms);
        QVERIFY(!world.shown().isEmpty());
        world.suggestions->setHovered(true);
        world.clock.advance(1h);
        QVERIFY(!world.shown().isEmpty());
        world.suggestions->setHovered(false);
        world.clock.advance(4s - 1ms);
        QVERIFY(!world.shown().isEmpty());
        world.clock.advance(1ms);
        QCOMPARE(world.shown(), QString());
    }

    void accepts() {
        World world;
        world.suggestions->frontChanged(u"game"_s);
        world.clock.advance(20s);
        world.suggestions->accept();
        QCOMPARE(world.engine->pending()->target.id, u"slow"_s); // as by any other wish, with its wait
        QCOMPARE(world.shown(), QString());
    }

    void sleepsWhenTimeAloneCanBringNothing() {
        World world;
        const auto timers = [&] { return static_cast<int>(world.clock.pending()); };
        world.clock.advance(10min);
        QCOMPARE(world.readings, 11); // once a minute
        world.idle.idle = 1h;
        world.clock.advance(10min);
        QCOMPARE(world.readings, 11);
        world.idle.idle = 0s;
        world.clock.advance(1min);
        QCOMPARE(world.readings, 12);

        world.suggestions->hasCalendar = [] { return false; };
        world.suggestions->update();
        QCOMPARE(timers(), 0);
        world.suggestions->frontChanged(u"chat"_s);
        QCOMPARE(timers(), 1);
        world.mayPropose = false;
        world.suggestions->update();
        QCOMPARE(timers(), 0);
    }
};

QTEST_GUILESS_MAIN(ModeSuggestionsTest)
#include "tst_ModeSuggestions.moc"
