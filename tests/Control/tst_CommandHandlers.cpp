#include "App/ControllerWorld.h"
#include "Control/CommandHandlers.h"
#include "Control/SettingsAccess.h"
#include "Control/Status.h"
#include "Table.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

using namespace fendrel;
using namespace fendrel::control;
using namespace Qt::StringLiterals;

namespace {

/// A session is on, and Slack is in front and gated.
struct World : ControllerWorld {
    World() {
        launch().focus().start();
        front(run(notes));
        front(run(chat));
        handlers.emplace(*controller);
    }
    Result<QJsonValue, QString> say(const QString& words) {
        const Parsed parsed = parse(words.split(u' ', Qt::SkipEmptyParts));
        return parsed.request ? ask(*parsed.request) : Result<QJsonValue, QString>::failure(parsed.error);
    }
    Result<QJsonValue, QString> ask(const Request& request) {
        std::optional<Result<QJsonValue, QString>> said;
        handlers->run(request, [&](const auto& answer) { said = answer; });
        while (!said)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return *said;
    }

    std::optional<CommandHandlers> handlers;
};

} // namespace

using Holds = std::function<bool(World&)>;

class CommandHandlersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyCommandHasAHandler() {
        World world;
        QStringList names;
        for (const Command& command : commands())
            names.append(command.name);
        QStringList handled = world.handlers->names();
        names.sort();
        handled.sort();
        QCOMPARE(handled, names);
        for (const Command& command : commands()) {
            // What comes over the socket may lack what `fendrelctl` would ask for.
            const auto answer = world.ask({.command = command.name});
            if (std::ranges::count(command.parameters, Parameter::Count::one, &Parameter::count) > 0)
                QVERIFY2(!answer, qPrintable(command.name));
        }
        QVERIFY(!world.ask({.command = u"dance"_s}));
    }

    void refusesBadValues() {
        World world;
        const QJsonObject before = status(*world.controller, StatusForm::marker);
        const auto settings = world.fake.settings->values;
        for (const auto& [words, reason] : {
                 std::pair("switch nowhere", "unknown mode 'nowhere'"),
                 {"focus start --for soon", "'soon' is no duration: 25m or 1h30m is expected"},
                 {"gate maybe", "'maybe' is no answer: one of stay, switch, allow-once, add is expected"},
                 {"mode remove-app writing x", "writing has no application x"},
                 {"mode add-site writing http://", "'http://' names no web site"},
                 {"mode remove-site writing x.org", "writing has no site x.org"},
                 {"settings get showsDark", "unknown setting 'showsDark'"},
                 {"settings reset dock", "unknown setting 'dock'"},
                 {"settings set dockSize huge",
                  "'huge' is no value for dockSize: one of small, medium, large is expected"},
                 {"settings set autoHide yes", "'yes' is no value for autoHide: true or false is expected"},
                 {"settings set modeModifiers hyper",
                  "'hyper' is no value for modeModifiers: words such as control+option, or 0 is expected"},
                 {"settings set focusShortcut F5", "'F5' is no value for focusShortcut: {\"keyCode\": ..., "
                                                   "\"modifiers\": ..., \"key\": \"...\"} or none is expected"},
                 {"dock replace maybe", "'maybe' is neither on nor off"},
                 {"undo", "there is nothing to take back"},
                 {"suggestion maybe", "'maybe' is no answer: one of accept, dismiss is expected"},
                 {"suggestion accept", "nothing is suggested"},
                 {"context restore", "nothing is offered"},
                 {"context restore nowhere", "unknown mode 'nowhere'"},
                 {"context restore social", "nothing is remembered of social"},
                 {"context dismiss", "nothing is offered"},
                 {"context forget social", "nothing is remembered of social"},
                 {"context forget", "usage: context forget [--all] [MODE]"},
                 {"answers forget x.org", "nothing is remembered of 'x.org'"},
                 {"answers forget", "usage: answers forget [--all] [KEY]"},
                 {"answers forget --all x.org", "usage: answers forget [--all] [KEY]"},
                 {"import undo", "nothing was imported in this run"},
                 {"import /", "“/” could not be opened."},
                 {"onboarding finish study", "the first run is over"},
                 {"settings open nowhere", "unknown pane 'nowhere': one of general, dock, appearance, widgets, modes, "
                                           "accounts, permissions, about is expected"},
             }) {
            const auto answer = world.say(QString::fromLatin1(words));
            QVERIFY2(!answer, words);
            QCOMPARE(answer.error(), QString::fromUtf8(reason));
        }
        QCOMPARE(status(*world.controller, StatusForm::marker), before);
        QVERIFY(world.fake.settings->values == settings);
    }

    void doesWhatItIsTold_data() {
        const Table<Holds> row("holds");
        const auto mode = [](World& world, const char* id) {
            return *world.controller->engine().mode(QString::fromLatin1(id));
        };
        row("switch social", [](World& world) { return world.controller->engine().pending()->target.id == u"social"; });
        row("focus start --for 1h30m",
            [](World& world) { return world.controller->focus().remaining() == Seconds(5400); });
        row("gate add", [=](World& world) { return mode(world, "writing").apps.contains(world.chat); });
        row("gate allow-once", [](World& world) {
            return world.gated().isEmpty() && !world.say(u"gate stay"_s); // the gate is closed now
        });
        row("correct writing", [](World& world) { return world.gated().isEmpty(); });
        row("mode add-app writing x", [=](World& world) { return mode(world, "writing").apps.last() == u"x"; });
        row("mode remove-app writing md.obsidian", [=](World& world) { return mode(world, "writing").apps.isEmpty(); });
        row("mode add-site writing https://WWW.New.org/a",
            [=](World& world) { return mode(world, "writing").sites.last() == u"new.org"; });
        row("mode remove-site writing www.medium.com",
            [=](World& world) { return !mode(world, "writing").sites.contains(u"medium.com"_s); });
        row("settings open dock", [](World& world) { return world.shown.last() == u"settings dock"; });
        row("activate dock", [](World& world) { return world.shown.last() == u"settings dock"; });
        row("activate nonsense", [](World& world) { return world.shown.last() == u"attention"; });
        row("quit", [](World& world) { return world.shown.last() == u"quit"; });
    }

    void doesWhatItIsTold() {
        QFETCH(const Holds, holds);
        World world;
        const QString words = QString::fromLatin1(QTest::currentDataTag());
        const auto answer = world.say(words);
        QVERIFY2(answer, qPrintable(answer ? QString() : answer.error()));
        QVERIFY(answer->isNull());
        QVERIFY(holds(world));
    }

    void listsAndForgetsAnswers() {
        World world;
        QVERIFY(world.say(u"correct none"_s));
        world.controller->drift().correct(SiteSubject{.host = u"forum.org"_s}, u"social"_s);
        const QJsonArray found = world.say(u"answers FORUM soc"_s)->toArray();
        QCOMPARE(found.size(), 1);
        QCOMPARE(found[0][u"key"], QJsonValue(u"forum.org"_s));
        QCOMPARE(found[0][u"source"], QJsonValue(u"you"_s));
        QVERIFY(world.say(u"answers forget forum.org"_s));
        QCOMPARE(world.say(u"answers"_s)->toArray().size(), 1);
        const QString file = world.fake.home.filePath(u"file"_s);
        QVERIFY(world.say(u"export "_s + file));
        QVERIFY(world.say(u"answers forget --all"_s));
        QCOMPARE(world.say(u"answers"_s)->toArray().size(), 0);
        QCOMPARE(world.say(u"import "_s + file)->toObject()[u"answers"], QJsonValue(1));
        QCOMPARE(world.say(u"answers"_s)->toArray().size(), 1);
        QVERIFY(world.say(u"import undo"_s));
        QCOMPARE(world.say(u"answers"_s)->toArray().size(), 0);
    }

    void answersWhatIsProposed() {
        World world;
        const auto shown = [&](const QString& member) { return (*world.say(u"status"_s))[member]; };
        QVERIFY(world.say(u"gate allow-once"_s));
        world.fake.clock->advance(std::chrono::seconds(20));
        QVERIFY(shown(u"suggestion"_s).isNull()); // the user has just said so at the gate
        QVERIFY(world.say(u"focus stop"_s));
        QCOMPARE(shown(u"suggestion"_s)[u"because"], QJsonValue(u"You opened slackmacgap."_s));
        QVERIFY(world.say(u"suggestion dismiss"_s));
        QVERIFY(shown(u"suggestion"_s).isNull());
        world.fake.clock->advance(std::chrono::minutes(30));
        QVERIFY(world.say(u"suggestion accept"_s));
        QCOMPARE(shown(u"mode"_s)[u"id"], QJsonValue(u"social"_s));
        QVERIFY(world.say(u"switch writing"_s));
        QCOMPARE(shown(u"offer"_s)[u"apps"], (QJsonArray{world.notes}));
        QCOMPARE(world.say(u"context list"_s)->toArray(), QJsonArray{shown(u"offer"_s)});
        QVERIFY(world.say(u"context restore"_s));
        QVERIFY(shown(u"offer"_s).isNull());
        QVERIFY(world.say(u"context restore writing"_s));
        QVERIFY(world.say(u"context forget --all"_s));
        QVERIFY(world.say(u"context list"_s)->toArray().isEmpty());
    }

    void setsEverySetting() {
        const QString shortcut = uR"({"key":"G","keyCode":5,"modifiers":256})"_s;
        const QHash<QString, QString> typed{{u"dockSize"_s, u"large"_s},
                                            {u"dockPosition"_s, u"left"_s},
                                            {u"dockDisplay"_s, u"all"_s},
                                            {u"strictness"_s, u"strict"_s},
                                            {u"modeModifiers"_s, u"control+alt"_s},
                                            {u"appModifiers"_s, u"768"_s},
                                            {u"breakThrough"_s, u"fire, flood"_s},
                                            {u"focusShortcut"_s, shortcut},
                                            {u"dockShortcut"_s, u"none"_s},
                                            {u"appearance"_s, u"Graphite"_s}};
        FakeSettings settings;
        FakeLook look;
        Preferences preferences(settings, look);
        for (const QString& name : SettingsAccess::names(preferences)) {
            const QJsonValue before = SettingsAccess::get(preferences, name).value();
            const QString text = typed.value(name, before.toBool() ? u"off"_s : u"on"_s);
            QCOMPARE(SettingsAccess::set(preferences, name, text), std::nullopt);
            const QJsonValue now = SettingsAccess::get(preferences, name).value();
            QVERIFY2(now != before, qPrintable(name));
            FakeLook sameLook;
            QCOMPARE(SettingsAccess::get(Preferences(settings, sameLook), name), now); // it is stored
        }
        QCOMPARE(SettingsAccess::get(preferences, u"modeModifiers"_s), QJsonValue(6144));

        FakeSettings nothing;
        FakeLook sameLook;
        const Preferences fresh(nothing, sameLook);
        for (const QString& name : SettingsAccess::names(preferences)) {
            QCOMPARE(SettingsAccess::reset(preferences, name), std::nullopt);
            QCOMPARE(SettingsAccess::get(preferences, name), SettingsAccess::get(fresh, name));
        }
        QVERIFY(settings.values.isEmpty());
    }

    void showsWhatGoesOn() {
        World world;
        QVERIFY(world.say(u"gate switch"_s));
        world.fake.clock->advance(std::chrono::milliseconds(4040));
        const QJsonValue shown = *world.say(u"status"_s);
        QCOMPARE(shown[u"pending"], (QJsonObject{{u"id"_s, u"social"_s}, {u"secondsLeft"_s, 11}}));
        QCOMPARE(shown[u"gate"][u"secondsWaited"], QJsonValue(4));
        const QJsonObject marker = status(*world.controller, StatusForm::marker);
        world.fake.clock->advance(std::chrono::milliseconds(500)); // time alone is no change
        QCOMPARE(status(*world.controller, StatusForm::marker), marker);
    }

    void explains() {
        World world;
        const auto because = [&] {
            return QJsonDocument(world.say(u"explain"_s)->toObject()[u"because"].toArray())
                .toJson(QJsonDocument::Compact);
        };
        QVERIFY(because().contains("It belongs to Social, which lists it."));
        QVERIFY(because().contains("a focus session is on: it is stopped."));
        QVERIFY(world.say(u"gate allow-once"_s));
        QVERIFY(because().contains("You allowed it for this session."));
        QVERIFY(world.say(u"focus stop"_s));
        QVERIFY(because().contains("without a focus session nothing is stopped."));
        QVERIFY(world.say(u"correct none"_s));
        QVERIFY(because().contains("You said that it belongs to no mode."));
        world.front({});
        QVERIFY(because().contains("Nothing is in front."));
    }
};

QTEST_GUILESS_MAIN(CommandHandlersTest)
#include "tst_CommandHandlers.moc"
