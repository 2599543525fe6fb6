#include "App/ControllerWorld.h"
#include "Table.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using drift::Decision;

namespace {

/// A focus session is on, and three applications run: one elsewhere, one here, and one that no list names.
struct World : ControllerWorld {
    World() {
        engine.addApp(u"second"_s, u"writing"_s);
        controller->focus().start();
    }
    Decision decision() {
        return drift.decide(controller->classifier().front()->verdict.value(),
                            AppSubject{.bundleID = fake.applications->frontmost()->bundleID});
    }

    AppController& started = launch();
    ModeEngine& engine = controller->engine();
    FocusSession& focus = controller->focus();
    Gate& gate = controller->gate();
    DriftHandling& drift = controller->drift();
    const qint64 elsewhere = run(chat), here = run(notes), unknown = run(u"unknown"_s);
};

using Do = std::function<void(World&)>;

} // namespace

class DriftHandlingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void stopsOnlyWhatCertainlyBelongsElsewhere_data() {
        const Table<Decision, Do> row("decision", "happens");
        const auto modelSays = [](const char* mode, const char* certainty) {
            return [=](World& world) {
                world.front(world.unknown);
                QVERIFY(world.answer(mode, certainty));
            };
        };
        const auto userSays = [](const std::optional<QString>& mode) {
            return [=](World& world) {
                world.controller->classifier().correct(AppSubject{.bundleID = u"unknown"_s}, mode);
                world.front(world.unknown);
            };
        };
        row("listed elsewhere", Decision::gate, [](World& world) { world.front(world.elsewhere); });
        row("the model is certain", Decision::gate, modelSays("social", "certain"));
        row("the user said so", Decision::gate, userSays(u"building"_s));
        row("listed here", Decision::currentMode, [](World& world) { world.front(world.here); });
        row("the model thinks so", Decision::notCertain, modelSays("social", "likely"));
        row("the model says here", Decision::currentMode, modelSays("writing", "certain"));
        row("the user said none", Decision::noMode, userSays({}));
        row("no session", Decision::noFocus, [](World& world) {
            world.focus.stop();
            world.front(world.elsewhere);
        });
        row("allowed once", Decision::allowedOnce, [](World& world) {
            world.front(world.elsewhere);
            world.drift.allowOnce();
            world.front(world.elsewhere);
        });
        row("added to the mode", Decision::currentMode, [](World& world) {
            world.front(world.elsewhere);
            world.drift.addToMode();
            world.front(world.elsewhere);
        });
    }

    void stopsOnlyWhatCertainlyBelongsElsewhere() {
        QFETCH(const Do, happens);
        QFETCH(const Decision, decision);
        World world;
        happens(world);
        QCOMPARE(world.decision(), decision);
        QCOMPARE(world.gated().isEmpty(), decision != Decision::gate);
    }

    void looksAgainWhenTheAnswerComes() {
        const std::pair<const char*, Do> meanwhiles[]{
            {"something else is in front", [](World& world) { world.front(world.here); }},
            {"nothing is in front", [](World& world) { world.front({}); }},
            {"the front changed unnoticed", [](World& world) { world.fake.applications->front = world.here; }},
            {"the session ended", [](World& world) { world.focus.stop(); }},
            {"the mode was deleted", [](World& world) { world.engine.deleteMode(u"social"_s); }},
            {"the mode is the current one", [](World& world) { world.commit(u"social"_s); }},
            {"the user corrected it", [](World& world) { world.drift.correctFront(u"writing"_s); }},
            {"a list names it", [](World& world) { world.engine.addApp(u"unknown"_s, u"writing"_s); }}};
        for (const auto& [name, meanwhile] : meanwhiles) {
            World world;
            world.front(world.unknown);
            meanwhile(world);
            QVERIFY2(world.answer("social", "certain"), name);
            QVERIFY2(world.gated().isEmpty(), name);
        }
    }

    void stayGoesBack_data() {
        const Table<QStringList, Do, QStringList> table("requests", "before", "later"); // after a second
        const auto row = [&](const char* name, const char* request, const Do& before, const QStringList& later = {}) {
            table(name, {QString::fromLatin1(request)}, before, later);
        };
        const auto end = [](World& world) { world.fake.applications->end(world.here); };
        row("where the user was", "activate 1001", [](World& world) { world.front(world.here); });
        row("where the user was last", "activate 1003", [](World& world) {
            world.front(world.run(u"second"_s));
            world.front(world.unknown);
        });
        row("it ended: to another of the mode", "open second", [=](World& world) {
            world.front(world.here);
            world.run(u"second"_s);
            end(world);
        });
        row("to the first of the mode that runs", "open md.obsidian", [](World&) {});
        row("to what belongs to all", "open com.apple.finder", [=](World& world) {
            end(world);
            world.run(u"com.apple.finder"_s);
        });
        row("not to what was stopped itself", "open md.obsidian", [](World& world) {
            world.commit(u"social"_s);
            world.front(world.elsewhere); // belongs there
            world.commit(u"writing"_s);
        });
        row("there is no file manager", "hide 1000", end);
        row("nothing of the mode runs", "hide 1000",
            [=](World& world) {
                end(world);
                world.fake.applications->fileManagerID = u"files"_s;
            },
            {u"open files"_s});
    }

    void stayGoesBack() {
        QFETCH(const Do, before);
        World world;
        before(world);
        world.front(world.elsewhere);
        QCOMPARE(world.gated(), world.chat);
        world.takeRequests();
        world.drift.stay();
        QCOMPARE(world.gated(), QString());
        QTEST(world.takeRequests(), "requests");
        world.front({});
        world.fake.clock->advance(999ms);
        QCOMPARE(world.takeRequests(), QStringList());
        world.fake.clock->advance(5s);
        QTEST(world.takeRequests(), "later");
        QCOMPARE(world.gated(), QString());
    }

    void stayBearsTheWindowManagersDetour() {
        World world;
        world.front(world.here);
        world.front(world.elsewhere);
        world.drift.stay();
        world.front(world.elsewhere); // the panel went, so its keyboard passed to the window below
        QCOMPARE(world.gated(), QString());
        world.front(world.here);      // as was asked for
        world.front(world.elsewhere); // this is the user
        QCOMPARE(world.gated(), world.chat);

        world.drift.stay();
        world.front(world.elsewhere);
        world.fake.clock->advance(2s); // what was asked to come forward never came
        QCOMPARE(world.gated(), world.chat);
        world.drift.stay();
        world.focus.stop();
        world.fake.clock->advance(2s);
        QCOMPARE(world.gated(), QString());
    }

    void switchesWhenTheWaitIsOver() {
        World world;
        world.front(world.elsewhere);
        world.takeRequests();
        world.drift.switchToOwner();
        QCOMPARE(world.gated(), world.chat); // up while the wait lasts
        world.fake.clock->advance(5s);
        QCOMPARE(world.gate.waited(), Seconds(5));
        world.drift.switchToOwner();
        world.drift.switchToOwner();
        QCOMPARE(world.engine.pendingRemaining(), Seconds(4));
        world.fake.clock->advance(4s);
        QCOMPARE(world.engine.current().id, u"social"_s);
        QCOMPARE(world.gated(), QString());
        QCOMPARE(world.takeRequests(), QStringList{u"activate 1000"_s});
    }

    void anotherAnswerEndsTheWait() {
        const std::pair<const char*, Do> answers[]{
            {"stay", [](World& world) { world.drift.stay(); }},
            {"allow once", [](World& world) { world.drift.allowOnce(); }},
            {"add to the mode", [](World& world) { world.drift.addToMode(); }},
            {"a correction", [](World& world) { world.drift.correctFront(u"writing"_s); }},
            {"the session ends", [](World& world) { world.focus.stop(); }},
            {"its mode is deleted", [](World& world) {
                 world.engine.deleteMode(u"social"_s);
                 world.drift.switchToOwner();
             }}};
        for (const auto& [name, answer] : answers) {
            World world;
            world.front(world.elsewhere);
            world.drift.switchToOwner();
            answer(world);
            world.front(world.here);
            world.fake.clock->advance(1min);
            QVERIFY2(world.engine.current().id == u"writing", name);
            // With the gate closed, no answer does anything any more.
            world.takeRequests();
            world.drift.stay();
            world.drift.switchToOwner();
            world.drift.allowOnce();
            world.drift.addToMode();
            QVERIFY2(world.takeRequests().isEmpty() && !world.engine.pending(), name);
        }
    }

    void whatIsAllowedOnceIsAllowedForTheSession() {
        World world;
        world.front(world.elsewhere);
        world.takeRequests();
        world.drift.allowOnce();
        QCOMPARE(world.takeRequests(), QStringList{u"activate 1000"_s});
        world.front(world.here);
        world.focus.start(Seconds(60)); // the same session, with an end now
        world.front(world.elsewhere);
        QCOMPARE(world.gated(), QString());
        world.fake.clock->advance(1min);
        world.focus.start();
        QCOMPARE(world.gated(), world.chat);
    }

    void theGateFollowsWhatItCovers() {
        World world;
        const QSignalSpy attention(&world.gate, &Gate::attentionAsked);
        const qint64 third = world.run(world.code), second = world.run(world.chat);
        world.front(world.elsewhere);
        world.gate.setReason(u"a message"_s);
        world.fake.clock->advance(3s);
        world.front({});              // between two windows
        world.front(world.elsewhere); // a click on what is covered
        world.front(second);          // another process of it
        QCOMPARE(attention.count(), 3);
        QCOMPARE(world.gate.reason(), u"a message"_s);
        QCOMPARE(world.gate.waited(), Seconds(3));
        world.front(third);
        QCOMPARE(world.gated(), world.code);
        QCOMPARE(world.gate.reason(), QString());
        QCOMPARE(world.gate.waited(), Seconds(0));
        world.front(world.here);
        QCOMPARE(world.gated(), QString());

        world.front(world.elsewhere);
        world.fake.applications->end(world.here);
        world.fake.applications->end(second);
        QCOMPARE(world.gated(), world.chat);
        world.takeRequests();
        world.fake.applications->end(world.elsewhere);
        QCOMPARE(world.gated(), QString());
        QCOMPARE(world.takeRequests(), QStringList());
    }

    void aModeChangeLetsThroughWhatFits() {
        const auto isThroughIn = [](const QString& mode) {
            World world;
            world.engine.addMode({.id = u"third"_s});
            world.front(world.elsewhere);
            world.engine.addApp(world.chat, u"building"_s);
            world.takeRequests();
            world.commit(mode);
            return world.gated().isEmpty() && world.takeRequests() == QStringList{u"activate 1000"_s};
        };
        QVERIFY(isThroughIn(u"social"_s));   // its own
        QVERIFY(isThroughIn(u"building"_s)); // lists it too
        QVERIFY(!isThroughIn(u"third"_s));
        QVERIFY(!isThroughIn(u"writing"_s)); // as before
    }

    void aCorrectionToTheCurrentModeLetsThrough() {
        World world;
        world.front(world.unknown);
        QVERIFY(world.answer("social", "certain"));
        QCOMPARE(world.gate.blocked()->note, u"Chatter"_s);
        world.drift.correctFront(u"building"_s);
        QCOMPARE(world.gated(), u"unknown"_s);
        world.drift.correctFront(u"writing"_s);
        QCOMPARE(world.gated(), QString());
        world.front({});
        world.drift.correctFront(u"social"_s); // nothing is in front
        world.front(world.unknown);
        QCOMPARE(world.decision(), Decision::currentMode);
    }
};

QTEST_GUILESS_MAIN(DriftHandlingTest)
#include "tst_DriftHandling.moc"
