#include "App/ControllerWorld.h"
#include "Files.h"
#include "Table.h"
#include "fakes/FakeSecretStore.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class AppControllerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void launchesInOrder() {
        ControllerWorld world;
        const Folders& folders = world.fake.platform.folders;
        putFile(folders.data + u"/Modes.store"_s, "no database");
        putFile(folders.crashes + u"/Fendrel-1.ips"_s, "a report");
        world.fake.settings->values = {{u"crashReports"_s, true}};
        world.launch(u"dock"_s);
        QCOMPARE(world.shown,
                 (QStringList{u"Fendrel couldn't read your modes"_s, u"Fendrel quit unexpectedly last time"_s,
                              u"onboarding"_s, u"docks"_s, u"settings dock"_s}));

        ControllerWorld plain;
        plain.front(plain.run(plain.code));
        plain.launch();
        QCOMPARE(plain.shown, QStringList{u"docks"_s});
        QCOMPARE(plain.controller->classifier().front()->verdict->modeID,
                 u"building"_s); // what is in front is judged
    }

    void judgesNothingBeforeOnboardingIsDone() {
        ControllerWorld world;
        world.fake.settings->values.clear();
        AppController& controller = world.launch();
        controller.focus().start();
        const qint64 chat = world.run(world.chat);
        world.front(world.run(u"org.other"_s));
        world.front(chat);
        world.fake.accessibility->addWindow(chat, u"News"_s);
        QVERIFY(!controller.classifier().front());
        QVERIFY(world.fake.languageModel->questions.isEmpty());
        QCOMPARE(world.gated(), QString());

        controller.startedAgain({}); // still asks for it
        controller.finishOnboarding({});
        QCOMPARE(world.gated(), world.chat);
        QCOMPARE(controller.titles().front()->title, u"News"_s);
        QCOMPARE(world.shown.count(u"onboarding"_s), 2);
    }

    void onboardingStartsWithTheChosenModes() {
        const auto modesAfter = [](const QStringList& chosen) {
            ControllerWorld world;
            world.fake.settings->values.clear();
            world.launch().finishOnboarding(chosen);
            world.launch(); // the next start knows them too
            QStringList ids{world.controller->engine().current().id + u':'};
            for (const Mode& mode : world.controller->engine().modes())
                ids.append(mode.id);
            return ids.join(u' ');
        };
        QCOMPARE(modesAfter({}), u"writing: writing building social"_s);
        QCOMPARE(modesAfter({u"nonsense"_s}), u"writing: writing building social"_s);
        QCOMPARE(modesAfter({u"study"_s, u"nonsense"_s, u"building"_s, u"study"_s}), u"building: building study"_s);

        ControllerWorld world;
        world.fake.settings->values.clear();
        AppController& controller = world.launch();
        controller.engine().addApp(u"org.own"_s, u"writing"_s);
        controller.finishOnboarding({u"writing"_s});
        controller.finishOnboarding({u"study"_s}); // it happens once
        QVERIFY(controller.engine().current().apps.contains(u"org.own"_s));
    }

    void judgesWindowsOfOthersAtOnce() {
        ControllerWorld world;
        AppController& controller = world.launch();
        const qint64 other = world.run(u"org.other"_s), chat = world.run(world.chat);
        const auto window = world.fake.accessibility->addWindow(other, u"Untitled"_s);
        world.front(other);
        world.fake.accessibility->setTitle(window, u"Cat videos"_s);
        QCOMPARE(world.fake.languageModel->questions.first().prompt, u"App: other\nWindow: Untitled"_s);
        world.front(chat);
        QCOMPARE(world.gated(), QString());
        controller.focus().start(Seconds(60)); // judges what is in front already
        QCOMPARE(world.gated(), world.chat);
        const qint64 self = QCoreApplication::applicationPid();
        world.fake.applications->launch({.pid = self, .bundleID = u"self"_s, .isRegular = true});
        world.front(self); // the gate's panel takes the keyboard
        QCOMPARE(world.gated(), world.chat);
        QCOMPARE(controller.titles().front()->bundleID, world.chat);
        world.front(chat);
        world.fake.clock->advance(60s);
        QCOMPARE(world.gated(), QString());
    }

    void anEditIsANewJudgement() {
        ControllerWorld world;
        AppController& controller = world.launch();
        world.front(world.run(world.chat));
        controller.focus().start();
        QCOMPARE(world.gated(), world.chat);
        controller.engine().addApp(world.chat, u"writing"_s);
        QCOMPARE(world.gated(), QString());
        controller.engine().removeApp(world.chat, u"writing"_s);
        QCOMPARE(world.gated(), world.chat);
        controller.engine().deleteMode(u"social"_s);
        QCOMPARE(world.gated(), QString());
    }

    void aStayGoesBackToTheCurrentModeOnly() {
        ControllerWorld world;
        AppController& controller = world.launch();
        world.front(world.run(world.notes));
        world.commit(u"building"_s);
        controller.focus().start();
        world.run(world.code);
        world.front(world.run(world.chat));
        world.takeRequests();
        controller.drift().stay();
        QCOMPARE(world.takeRequests(), QStringList{u"open "_s + world.code});
    }

    void theWaitFollowsSettingsAndAllowance() {
        ControllerWorld world;
        AppController& controller = world.launch();
        const Mode social = *controller.engine().mode(u"social"_s);
        const auto wait = [&] {
            controller.engine().requestSwitch(social);
            const Seconds remaining = controller.engine().pendingRemaining();
            world.commit(u"writing"_s);
            return remaining;
        };
        QCOMPARE(wait(), Seconds(0));
        controller.focus().start();
        QCOMPARE(wait(), Seconds(15));
        controller.preferences().setStrictness(Strictness::strict);
        QCOMPARE(wait(), Seconds(30));
        controller.focus().stop();
        world.commit(u"social"_s);
        world.front(world.run(world.code)); // spends the allowance of 15 minutes
        world.fake.clock->advance(15min);
        world.commit(u"writing"_s);
        QCOMPARE(wait(), Seconds(30));
        controller.engine().requestSwitch(social);
        controller.focus().start();
        controller.focus().stop();
        QVERIFY(!controller.engine().pending());
    }

    void countsWhatIsSpentElsewhere() {
        ControllerWorld world;
        AppController& controller = world.launch();
        world.commit(u"social"_s);
        const qint64 chat = world.run(world.chat), code = world.run(world.code), other = world.run(u"org.other"_s);
        const auto spent = [&](std::optional<qint64> pid) {
            const Seconds before = controller.budget().used(u"social"_s);
            world.front(pid);
            world.answer("writing", "likely");
            world.fake.clock->advance(10s);
            return controller.budget().used(u"social"_s) - before;
        };
        QCOMPARE(spent(chat), Seconds(0));
        QCOMPARE(spent(code), Seconds(10));
        QCOMPARE(spent(other), Seconds(0)); // only likely
        controller.drift().correctFront(u"building"_s);
        QCOMPARE(spent(other), Seconds(10));
        controller.engine().deleteMode(u"building"_s);
        QCOMPARE(spent(other), Seconds(0));
        QCOMPARE(spent({}), Seconds(0));
        QCOMPARE(controller.budget().inMode(u"social"_s), Seconds(60));
    }

    void aSwitchTidiesUpAndJudgesAgain() {
        ControllerWorld world;
        AppController& controller = world.launch();
        world.run(world.notes);
        const qint64 chat = world.run(world.chat);
        world.run(u"com.apple.finder"_s); // belongs to every mode
        world.run(world.chat);
        world.commit(u"social"_s);
        QCOMPARE(world.takeRequests(), QStringList()); // off unless the user wants it
        controller.preferences().setTidyOnSwitch(true);
        world.commit(u"writing"_s);
        QCOMPARE(world.takeRequests(), (QStringList{u"hide 1001"_s, u"hide 1003"_s}));
        world.commit(u"social"_s);
        QCOMPARE(world.takeRequests(), (QStringList{u"hide 1000"_s, u"unhide 1001"_s, u"unhide 1003"_s}));
        world.commit(u"social"_s);
        QVERIFY(!world.takeRequests().contains(u"unhide 1001"_s)); // what the user hides meanwhile stays hidden
        controller.focus().start();
        world.front(chat);
        world.commit(u"writing"_s); // what is in front does not belong here any more
        QCOMPARE(world.gated(), world.chat);
    }

    void remembersOnlyPagesThatTheUserLooksAt() {
        ControllerWorld world;
        AppController& controller = world.launch();
        const auto tell = [&](const char* url, bool isFocused, bool isPrivate) {
            controller.bridge().onTab({.url = QUrl(QString::fromLatin1(url)),
                                       .title = u"A page"_s,
                                       .isFocused = isFocused,
                                       .isPrivate = isPrivate});
        };
        tell("https://seen.example/", true, false);
        tell("https://private.example/", true, true);
        tell("https://behind.example/", false, false);
        world.fake.clock->advance(120s);
        world.commit(u"social"_s);
        const ModeSnapshot saved = controller.context().snapshots()[u"writing"_s];
        QCOMPARE(saved.titles, QStringList{u"A page"_s});
        QCOMPARE(saved.pages, (QList<ModeSnapshot::Page>{{u"https://seen.example/"_s, u"A page"_s}}));
    }

    void placesTheDocks() {
        ControllerWorld world;
        auto& displays = *world.fake.displays;
        displays.displays.append({.id = u"second"_s, .frame = {1920, 0, 1000, 1000}});
        AppController& controller = world.launch();
        const auto screens = [&] {
            QStringList ids;
            for (const auto& display : controller.dockScreens())
                ids.append(display.id);
            return ids.join(u' ');
        };
        QCOMPARE(screens(), u"first"_s);
        controller.preferences().setDockDisplay(DockDisplay::all);
        QCOMPARE(screens(), u"first second"_s);
        controller.preferences().setDockDisplay(DockDisplay::active);
        QCOMPARE(screens(), u"first"_s);

        const qint64 pid = world.run(world.notes);
        world.fake.accessibility->addWindow(pid, u"Draft"_s);
        world.fake.accessibility->windowList.last().frame = {2000, 10, 500, 500};
        world.shown.clear();
        world.front(pid);
        world.front(pid);
        QCOMPARE(screens(), u"second"_s);
        QCOMPARE(world.shown, QStringList{u"docks"_s}); // laid out once, not for every event
        displays.setDisplays(displays.displays.first(1));
        QCOMPARE(screens(), u"first"_s);
    }

    void replacesTheDockOfTheSystem() {
        ControllerWorld world;
        AppController& controller = world.launch();
        auto& dock = *world.fake.systemDock;
        const auto settle = [&] {
            dock.answerAll();
            world.fake.settings->finishWriting();
            dock.answerAll();
        };
        settle();
        controller.askToReplaceDock(true);
        QCOMPARE(world.shown.last(), u"Replace dock?"_s);
        world.lastAlert.answered(1);
        QVERIFY(!controller.replacement().isOn());
        controller.askToReplaceDock(true);
        world.lastAlert.answered(0);
        settle();
        QCOMPARE(dock.log.first(), u"hide"_s);
        QVERIFY(world.fake.pointerGuard->runs);

        controller.quit();
        QVERIFY(!world.shown.contains(u"quit"_s)); // not before it is given back
        QVERIFY(!world.fake.pointerGuard->runs);
        settle();
        QVERIFY(world.shown.contains(u"quit"_s));
        QCOMPARE(dock.settings.autohide, std::nullopt);
        QVERIFY(world.fake.settings->flag(u"replaceDock"_s));
    }

    void aKeyOnItsWayIsWaitedFor_data() {
        const Table<bool> row("keyringAnswers");
        row("a keyring that answers", true);
        row("one that waits for its user", false);
    }
    void aKeyOnItsWayIsWaitedFor() {
        QFETCH(const bool, keyringAnswers);
        ControllerWorld world;
        auto secrets = std::make_unique<FakeSecretStore>();
        FakeSecretStore* keyring = secrets.get();
        world.fake.platform.secrets = std::move(secrets);
        AppController& controller = world.launch();
        controller.accounts().save(u"ghp_1"_s, WidgetAccounts::Service::github);
        controller.quit();
        world.fake.systemDock->answerAll();
        QVERIFY(!world.shown.contains(u"quit"_s));
        if (keyringAnswers)
            keyring->answer();
        else
            world.fake.clock->advance(2s);
        QCOMPARE(world.shown.count(u"quit"_s), 1);
    }

    void theDockTimerRunsOnlyWhileNeeded() {
        ControllerWorld world;
        AppController& controller = world.launch();
        const QString dock = u"first"_s;
        const auto others = world.fake.clock->pending();
        const auto state = [&] {
            return std::pair(controller.isDockShown(dock), world.fake.clock->pending() > others);
        };
        constexpr std::pair shown(true, false), waiting(true, true), hidden(false, false);
        QVERIFY(state() == shown);
        controller.preferences().setAutoHide(true);
        QVERIFY(state() == waiting);
        world.fake.clock->advance(500ms);
        QVERIFY(state() == hidden);
        controller.dockHoldChanged(dock, true);
        controller.dockPointerChanged(dock, true);
        controller.dockPointerChanged(dock, false);
        QVERIFY(state() == shown);
        controller.dockHoldChanged(dock, false);
        QVERIFY(state() == waiting);
        controller.preferences().setAutoHide(false);
        QVERIFY(state() == shown);
        auto& displays = *world.fake.displays;
        displays.displays.first().isFullScreen = true;
        displays.setDisplays(displays.displays);
        QVERIFY(state() == hidden);
        controller.dockPointerChanged(dock, true);
        QVERIFY(state() == hidden);
        displays.displays.first().isFullScreen = false;
        displays.setDisplays(displays.displays);
        QVERIFY(state() == shown);
    }

    void leavesThePortsAloneAfterItsEnd() {
        ControllerWorld world;
        world.launch().focus().start(Seconds(60));
        world.controller->engine().requestSwitch(Mode(*world.controller->engine().mode(u"social"_s)));
        const qint64 chat = world.run(world.chat);
        const auto window = world.fake.accessibility->addWindow(chat, u"News"_s);
        world.front(world.run(u"org.other"_s)); // a question is under way
        world.controller.reset();
        world.front(chat);
        world.fake.accessibility->setTitle(window, u"More news"_s);
        world.fake.accessibility->setTrusted(false);
        world.fake.applications->onInstalledChanged();
        world.fake.displays->setDisplays({});
        world.fake.displays->onSpaceChanged();
        world.fake.look->setDark(true);
        world.fake.languageModel->setUnavailable(u"gone"_s);
        world.fake.clock->setNow({});
        QCOMPARE(world.fake.clock->pending(), std::size_t(0));
        QCOMPARE(world.fake.languageModel->waiting(), std::size_t(0));
    }
};

QTEST_GUILESS_MAIN(AppControllerTest)
#include "tst_AppController.moc"
