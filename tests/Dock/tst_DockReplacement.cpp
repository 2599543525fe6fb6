#include "Dock/DockReplacement.h"
#include "Dock/SavedDockSettings.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeDisplays.h"
#include "fakes/FakePointerGuard.h"
#include "fakes/FakeSettings.h"
#include "fakes/FakeSystemDock.h"

#include <QJsonDocument>
#include <QtTest>

using namespace fendrel;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

const QString dockID = u"dock"_s;

SystemDockSettings settings(std::optional<bool> autohide, std::optional<double> delay) {
    return {.autohide = autohide, .delay = delay, .dock = dockID};
}

struct World {
    FakeSystemDock dock;
    FakePointerGuard pointer;
    FakeDisplays displays;
    FakeSettings store;
    FakeClock clock;
    std::unique_ptr<DockReplacement> replacement;

    /// A new run of the program over the same system.
    void start() {
        replacement = std::make_unique<DockReplacement>(dock, pointer, displays, store, clock);
        replacement->settle();
        settle();
    }
    void settle() {
        for (int round = 0; round < 3; ++round) {
            dock.answerAll();
            store.finishWriting();
        }
    }
    void set(bool on) {
        replacement->set(on);
        settle();
    }
    /// Nothing more is heard of this run.
    void crash() { replacement.reset(); }
    bool hasRecord() const { return store.values.contains(u"savedDockSettings"_s); }
};

} // namespace

class DockReplacementTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void givesBackExactly_data() {
        QTest::addColumn<SystemDockSettings>("before");
        QTest::newRow("never set") << settings({}, {});
        QTest::newRow("hides by itself") << settings(true, 0.5);
        QTest::newRow("always there") << settings(false, {});
        QTest::newRow("delay alone") << settings({}, 2.0);
        auto detailed = settings(false, 0.0);
        detailed.details = QJsonDocument::fromJson(R"({"hide-mode": "'intelligent'", "delay": null})").object();
        QTest::newRow("with details") << detailed;
    }
    void givesBackExactly() {
        QFETCH(const SystemDockSettings, before);
        World world;
        world.dock.settings = before;
        world.start();
        QVERIFY(world.dock.log.isEmpty());
        world.set(true);
        QVERIFY(isHiding(world.dock.settings));
        QVERIFY(world.pointer.runs);
        world.set(false);
        QCOMPARE(world.dock.settings, before);
        QVERIFY(!world.pointer.runs);
        QVERIFY(!world.hasRecord());

        // At the end, and it is replaced again at the next start.
        world.set(true);
        bool isOver = false;
        world.replacement->stop([&] { isOver = true; });
        world.settle();
        QVERIFY(isOver);
        QCOMPARE(world.dock.settings, before);
        world.start();
        QVERIFY(isHiding(world.dock.settings));

        // After a crash, with the wish changed meanwhile or not.
        world.crash();
        world.start();
        world.set(false);
        QCOMPARE(world.dock.settings, before);
    }

    void hidesOnlyWhatIsWrittenDown() {
        World world;
        world.start();
        world.replacement->set(true);
        world.dock.answerAll();
        QVERIFY(!isHiding(world.dock.settings));
        world.store.finishWriting(false);
        world.settle();
        QVERIFY(!isHiding(world.dock.settings));
        QVERIFY(!world.hasRecord());
    }

    /// Whatever has been answered when the wish changes, in the end the dock is as it was.
    void changesItsMindAtAnyMoment() {
        for (int answers = 0; answers < 8; ++answers) {
            World world;
            world.dock.settings = settings(false, 0.2);
            world.start();
            for (const bool on : {true, false, true, false}) {
                world.replacement->set(on);
                for (int answer = 0; answer < answers; ++answer) {
                    if (world.dock.isAsked())
                        world.dock.answerOne();
                    else
                        world.store.finishWriting();
                }
            }
            world.settle();
            QCOMPARE(world.dock.settings, settings(false, 0.2));
            QVERIFY(!world.hasRecord());
        }
    }

    void startsAfterACrash() {
        World world;
        world.dock.settings = hidingSettings(dockID);
        world.start(); // off, without a record
        QCOMPARE(world.dock.settings, settings({}, {}));
        QCOMPARE(world.dock.log, (QStringList{u"give back"_s, u"restart"_s}));

        world.dock.log.clear();
        world.store.values.insert(u"savedDockSettings"_s, toJson(settings(true, 0.5)));
        world.dock.settings = settings(true, 0.5);
        world.start(); // given back already, only the record is left
        QVERIFY(world.dock.log.isEmpty());
        QVERIFY(!world.hasRecord());

        world.store.values.insert(u"savedDockSettings"_s, QByteArray("not a record"));
        world.set(true);
        world.set(false);
        QCOMPARE(world.dock.settings, settings(true, 0.5));
    }

    void restartsADockThatKeepsItsSpace() {
        World world;
        world.start();
        world.displays.displays[0].workArea.setBottom(1000);
        world.set(true);
        world.dock.log.clear();
        const auto restartsAfter = [&](Clock::Duration pause) {
            world.clock.advance(pause);
            world.settle();
            return world.dock.log.size();
        };
        QCOMPARE(restartsAfter(5s), 1);
        QCOMPARE(restartsAfter(14s), 1);
        QCOMPARE(restartsAfter(1s), 2);
        QCOMPARE(restartsAfter(30s), 3);
        QCOMPARE(restartsAfter(1h), 3);

        world.set(false);
        world.displays.displays[0].workArea = world.displays.displays[0].frame;
        world.set(true);
        world.dock.log.clear();
        QCOMPARE(restartsAfter(1h), 0); // it went
    }

    void followsTheDockThatRuns() {
        World world;
        world.dock.current.reset();
        world.start();
        world.set(true);
        QVERIFY(world.dock.log.isEmpty());
        world.dock.current = dockID;
        world.replacement->settle();
        world.settle();
        QVERIFY(isHiding(world.dock.settings));
        world.dock.current.reset(); // its program ended: it is not to stay away when it is started without us
        world.replacement->settle();
        world.settle();
        QCOMPARE(world.dock.settings, settings({}, {}));
    }

    /// What was hidden last cannot be given back, and another dock runs now.
    void aLostDockHoldsNobodyUp() {
        World world;
        auto lost = settings(false, 0.1);
        lost.dock = u"lost"_s;
        world.store.values.insert(u"savedDockSettings"_s, toJson(lost));
        world.store.values.insert(u"replaceDock"_s, true);
        world.dock.settings = settings(true, 0.5);
        world.start();
        QVERIFY(isHiding(world.dock.settings));
        world.set(false);
        QCOMPARE(world.dock.settings, settings(true, 0.5));

        world.dock.current = lost.dock; // it is back, and still hidden
        world.dock.settings = hidingSettings(lost.dock);
        world.replacement->settle();
        world.settle();
        QCOMPARE(world.dock.settings, lost);
        QVERIFY(!world.hasRecord());
    }

    void quitsThoughTheDockIsSilent() {
        World world;
        world.start();
        world.set(true);
        bool isOver = false;
        world.replacement->stop([&] { isOver = true; });
        world.replacement->settle(); // the desktop ends with us
        QVERIFY(!isOver);
        world.clock.advance(3s);
        QVERIFY(isOver);
        QVERIFY(world.hasRecord());
    }
};

QTEST_GUILESS_MAIN(DockReplacementTest)
#include "tst_DockReplacement.moc"
