#include "Base/Worker.h"
#include "Modes/EntryDelay.h"
#include "Modes/ModeEngine.h"
#include "Modes/ModeStore.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeSettings.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

QList<Mode> fiveModes() {
    return {{.id = u"a"_s, .apps = {u"shared"_s, u"x"_s, u"y"_s}, .sites = {u"x.org"_s}},
            {.id = u"b"_s, .apps = {u"shared"_s, u"b1"_s}, .sites = {u"sub.x.org"_s}},
            {.id = u"c"_s, .apps = {u"shared"_s, u"c1"_s}, .entryDelay = 15s},
            {.id = u"d"_s, .entryDelay = 6s},
            {.id = u"e"_s, .apps = {u"y"_s}}};
}

/// The engine over a store in memory, so that a restart finds what was saved. Every mode waits its own delay.
struct World {
    Worker disk{u"disk"_s};
    ModeStore store{{}, disk};
    FakeSettings settings;
    FakeClock clock;
    ModeCatalog catalog = ModeCatalog::with({});
    QSet<QString> installed;
    std::optional<ModeEngine> engine;
    QStringList commits;

    explicit World(const QList<Mode>& modes = fiveModes(), bool isMigrated = true) {
        for (const char* flag : {"sitesSeeded", "widgetsSeeded", "budgetsSeeded"})
            settings.values.insert(QString::fromLatin1(flag), isMigrated);
        store.load();
        store.save(modes);
        start();
    }
    ModeEngine& start() {
        engine.emplace(store, settings, clock, catalog, [this](const QString& id) { return installed.contains(id); });
        engine->entryDelay = [](const Mode& target) { return target.entryDelay; };
        engine->onCommit = [this](const Mode& mode) { commits.append(mode.id); };
        return *engine;
    }
    void request(const QString& id) { engine->requestSwitch(Mode(*engine->mode(id))); }
    QString ids() const {
        QString all;
        for (const Mode& mode : engine->modes())
            all += mode.id;
        return all;
    }
};

} // namespace

class ModeEngineTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void waitsAsTheRulesSay() {
        using enum preferences::Strictness;
        const auto wait = [](int delay, bool isSpent, bool isFocusOn, Strictness strictness) {
            return entryDelay({.entryDelay = Seconds(delay)}, isSpent, isFocusOn, strictness);
        };
        QCOMPARE(wait(15, false, true, gentle), Seconds(0));
        QCOMPARE(wait(5, false, true, balanced), Seconds(5));
        QCOMPARE(wait(5, false, true, strict), Seconds(30));
        QCOMPARE(wait(45, false, true, strict), Seconds(45));
        QCOMPARE(wait(0, false, true, strict), Seconds(0));
        QCOMPARE(wait(0, true, false, gentle), Seconds(30)); // spent: focus or not
    }

    void commitsWhenTheWaitIsOver() {
        World world;
        world.request(u"b"_s); // takes no wait
        world.request(u"c"_s);
        world.clock.advance(14999ms);
        QCOMPARE(world.commits, QStringList{u"b"_s});
        QCOMPARE(world.engine->pendingRemaining(), Seconds(0.001));
        world.clock.advance(1ms);
        QCOMPARE(world.commits, (QStringList{u"b"_s, u"c"_s}));
        QCOMPARE(world.start().current().id, u"c"_s);
        world.settings.values.insert(u"currentModeID"_s, u"deleted since"_s);
        QCOMPARE(world.start().current().id, u"a"_s);
        QCOMPARE(world.commits.size(), 2); // starting is no switch
    }

    void everyFurtherRequestCutsTheWait() {
        World world;
        for (int press = 0; press < 4; ++press)
            world.request(u"c"_s);
        QCOMPARE(world.engine->pendingRemaining(), Seconds(6));
        world.clock.advance(4s);
        world.request(u"c"_s); // 2 s were left
        QCOMPARE(world.commits, QStringList{u"c"_s});
        for (int press = 0; press < 3; ++press)
            world.request(u"d"_s); // 0 s are left
        QCOMPARE(world.commits, (QStringList{u"c"_s, u"d"_s}));
        QCOMPARE(world.clock.pending(), std::size_t(0));
    }

    void anotherRequestReplacesOrCancelsTheWait() {
        World world;
        world.request(u"c"_s);
        world.clock.advance(10s);
        world.request(u"d"_s);
        world.clock.advance(5999ms); // the first wait would be over
        QVERIFY(world.commits.isEmpty());
        world.clock.advance(1ms);
        QCOMPARE(world.commits, QStringList{u"d"_s});
        world.request(u"c"_s);
        world.request(u"d"_s); // the current one
        QVERIFY(!world.engine->pending());
        world.request(u"c"_s);
        world.request(u"e"_s); // enters at once
        world.clock.advance(1min);
        QCOMPARE(world.commits, (QStringList{u"d"_s, u"e"_s}));
    }

    void neitherSleepNorANewWallClockChangesTheWait() {
        World world;
        world.request(u"c"_s);
        world.clock.setNow(world.clock.now() + 24h);
        world.clock.setNow(world.clock.now() - 72h);
        world.clock.sleep(10s);
        QCOMPARE(world.engine->pendingRemaining(), Seconds(5));
        QVERIFY(world.commits.isEmpty());
        world.clock.sleep(8h);
        QCOMPARE(world.commits, QStringList{u"c"_s});
    }

    void editsReachThePendingAndTheCurrentMode() {
        World world;
        ModeEngine& engine = *world.engine;
        world.request(u"c"_s);
        Mode edited = *engine.mode(u"c"_s);
        edited.name = u"Renamed"_s;
        engine.update(edited);
        world.clock.advance(15s);
        QCOMPARE(engine.current(), edited);
        edited.name = u"Once more"_s;
        engine.update(edited);
        QCOMPARE(engine.current(), edited);
        world.request(u"d"_s);
        engine.deleteMode(u"d"_s);
        world.clock.advance(1min);
        engine.deleteMode(u"c"_s);
        engine.replaceModes({});
        engine.replaceModes({{.id = u"new"_s}});
        engine.deleteMode(u"new"_s); // the last one stays
        QCOMPARE(world.commits, (QStringList{u"c"_s, u"a"_s, u"new"_s}));
        QCOMPARE(world.ids(), u"new"_s);
    }

    void theCurrentModeIsPreferredWhereverItStands() {
        World world;
        ModeEngine& engine = *world.engine;
        const auto listing = [&] {
            const Mode* app = engine.listing(u"shared"_s);
            const Mode* site = engine.listingSite(u"m.sub.x.org"_s);
            return u"%1 %2"_s.arg(app ? app->id : u"-"_s, site ? site->id : u"-"_s);
        };
        QCOMPARE(listing(), u"a a"_s);
        world.request(u"b"_s);
        QCOMPARE(listing(), u"b b"_s);
        engine.moveModes({4}, 0);
        QCOMPARE(listing(), u"b b"_s);
        engine.deleteMode(u"a"_s);
        QCOMPARE(listing(), u"b b"_s);
        engine.removeApp(u"shared"_s, u"b"_s);
        engine.removeSite(u"sub.x.org"_s, u"b"_s);
        QCOMPARE(listing(), u"c -"_s);
        world.request(u"e"_s);
        engine.addApp(u"shared"_s, u"e"_s);
        engine.addSite(u"org"_s, u"c"_s);
        QCOMPARE(listing(), u"e c"_s);
        QCOMPARE(engine.owner(u"shared"_s)->id, u"e"_s);
    }

    void editsTheLists() {
        // The applications of mode a afterwards; and what a seeding keeps although it isn't installed.
        const auto after = [](const std::function<void(ModeEngine&)>& edit) {
            World world;
            edit(*world.engine);
            const QString apps = world.engine->current().apps.join(u' ');
            const QString kept = world.settings.read<QStringList>(u"addedApps"_s).value_or(QStringList()).join(u' ');
            const bool isStored = world.start().current().apps.join(u' ') == apps && world.ids() == u"abcde";
            return apps + u", "_s + (isStored ? kept : u"not stored"_s);
        };
        const auto added = [&](const QString& app, const QString& mode) {
            return after([&](ModeEngine& engine) { engine.addApp(app, mode); });
        };
        const auto moved = [&](const QString& app, const QString& neighbour, bool isAfter) {
            return after([&](ModeEngine& engine) { engine.moveApp(app, neighbour, isAfter, u"a"_s); });
        };
        QCOMPARE(added(u"z"_s, u"a"_s), u"shared x y z, z"_s);
        QCOMPARE(added(u"y"_s, u"a"_s), u"shared x y, y"_s);
        QCOMPARE(added(u"z"_s, u"nobody"_s), u"shared x y, "_s);
        QCOMPARE(moved(u"y"_s, u"shared"_s, false), u"y shared x, "_s);
        QCOMPARE(moved(u"shared"_s, u"x"_s, true), u"x shared y, "_s);
        QCOMPARE(moved(u"x"_s, u"x"_s, true), u"shared x y, "_s);
        QCOMPARE(moved(u"b1"_s, u"x"_s, true), u"shared x y, "_s); // a stranger
        QCOMPARE(after([](ModeEngine& engine) { engine.removeApp(u"x"_s, u"a"_s); }), u"shared y, "_s);
        QCOMPARE(after([](ModeEngine& engine) { engine.addMode({.id = u"a"_s}); }), u"shared x y, "_s); // it is taken
        QCOMPARE(after([](ModeEngine& engine) { engine.addMode({}); }), u"shared x y, "_s);
    }

    void movesModes() {
        const auto moved = [](const QList<qsizetype>& positions, qsizetype target) {
            World world;
            world.engine->moveModes(positions, target);
            world.start();
            return world.ids();
        };
        QCOMPARE(moved({0}, 2), u"bacde"_s);
        QCOMPARE(moved({0}, 5), u"bcdea"_s);
        QCOMPARE(moved({4, 1}, 3), u"acbed"_s); // in their own order
        QCOMPARE(moved({-1, 9}, 99), u"abcde"_s);
    }

    void seedsANewUser() {
        World world(QList<Mode>{});
        world.store.save({});
        world.installed = {u"md.obsidian"_s, u"com.microsoft.VSCode"_s, u"com.microsoft.Word"_s};
        world.settings.values.insert(u"addedApps"_s, QStringList{u"com.apple.Terminal"_s});
        ModeEngine& engine = world.start();
        QCOMPARE(engine.modes().size(), 3);
        QCOMPARE(engine.current().apps, (QStringList{u"md.obsidian"_s, u"com.microsoft.Word"_s}));
        QCOMPARE(engine.mode(u"building"_s)->apps, (QStringList{u"com.microsoft.VSCode"_s, u"com.apple.Terminal"_s}));
        QCOMPARE(engine.mode(u"social"_s)->dailyBudget, Seconds(900));
        engine.removeApp(u"md.obsidian"_s, u"writing"_s);
        QCOMPARE(world.start().current().apps, QStringList{u"com.microsoft.Word"_s}); // only a new user is seeded
    }

    void fillsInMissingPartsOnce() {
        const QList<Mode> old{{.id = u"1"_s, .name = u"Social"_s},
                              {.id = u"2"_s, .name = u"Writing"_s, .sites = {u"mine.org"_s}, .dailyBudget = 60s},
                              {.id = u"social"_s, .name = u"My own"_s}};
        World world(old, false);
        Mode social = old[0], writing = old[1];
        social.sites = world.catalog.templates[2].sites;
        social.widgets = world.catalog.templates[2].widgets;
        social.dailyBudget = Seconds(900);
        writing.widgets = world.catalog.templates[0].widgets;
        QCOMPARE(world.engine->modes(), (QList<Mode>{social, writing, old[2]}));
        world.engine->update(old[0]);
        world.engine->update(old[1]);
        QCOMPARE(world.start().modes(), old); // what the user takes away does not come back
    }
};

QTEST_APPLESS_MAIN(ModeEngineTest)
#include "tst_ModeEngine.moc"
