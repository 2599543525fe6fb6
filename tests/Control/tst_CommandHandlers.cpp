#include "App/ControllerWorld.h"
#include "Control/CommandHandlers.h"
#include "Control/SettingsAccess.h"
#include "Control/Status.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

using namespace fendrel;
using namespace fendrel::control;
using namespace Qt::StringLiterals;

class CommandHandlersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyCommandHasAHandler();
    void refusesBadValues_data();
    void refusesBadValues();
    void doesWhatItIsTold_data();
    void doesWhatItIsTold();
    void setsEverySetting();
    void showsWhatGoesOn();
    void explains();
};

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
        return parsed.request ? handlers->run(*parsed.request)
                              : Result<QJsonValue, QString>::failure(parsed.error);
    }

    std::optional<CommandHandlers> handlers;
};

} // namespace

void CommandHandlersTest::everyCommandHasAHandler() {
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
        const auto answer = world.handlers->run({.command = command.name});
        const bool needsMore =
            std::ranges::count(command.parameters, Parameter::Count::one, &Parameter::count) > 0;
        QVERIFY2(needsMore == !answer, qPrintable(command.name));
    }
    QVERIFY(!world.handlers->run({.command = u"dance"_s}));
}

void CommandHandlersTest::refusesBadValues_data() {
    QTest::addColumn<QString>("error");
    const auto row = [](const char* words, const char* error) {
        QTest::newRow(words) << QString::fromUtf8(error);
    };
    row("switch nowhere", "unknown mode 'nowhere'");
    row("focus start --for soon", "'soon' is no duration: 25m or 1h30m is expected");
    row("gate maybe", "'maybe' is no answer: one of stay, switch, allow-once, add is expected");
    row("correct nowhere", "unknown mode 'nowhere'");
    row("mode add-app nowhere x", "unknown mode 'nowhere'");
    row("mode remove-app writing x", "writing has no application x");
    row("mode add-site writing http://", "'http://' names no web site");
    row("mode remove-site writing x.org", "writing has no site x.org");
    row("settings get color", "unknown setting 'color'");
    row("settings get showsDark", "unknown setting 'showsDark'");
    row("settings set color red", "unknown setting 'color'");
    row("settings set dockSize huge",
        "'huge' is no value for dockSize: one of small, medium, large is expected");
    row("settings set autoHide yes", "'yes' is no value for autoHide: true or false is expected");
    row("settings set modeModifiers hyper",
        "'hyper' is no value for modeModifiers: words such as control+option, or 0 is expected");
    row("settings set modeModifiers 1",
        "'1' is no value for modeModifiers: words such as control+option, or 0 is expected");
    row("settings set appearance Noon",
        "'Noon' is no value for appearance: a JSON object or the name of a preset is expected");
    row("settings set focusShortcut F5",
        R"('F5' is no value for focusShortcut: {"keyCode": ..., "modifiers": ..., "key": "..."} or none is expected)");
    row("settings open nowhere",
        "unknown pane 'nowhere': one of general, dock, appearance, widgets, modes, accounts, "
        "permissions, about is expected");
    row("onboarding finish writing nowhere", "unknown mode 'nowhere'");
}

void CommandHandlersTest::refusesBadValues() {
    World world;
    const QJsonObject before = status(*world.controller, StatusForm::marker);
    const auto settings = world.fake.settings->values;
    const auto answer = world.say(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(!answer);
    QTEST(answer.error(), "error");
    QCOMPARE(status(*world.controller, StatusForm::marker), before);
    QVERIFY(world.fake.settings->values == settings);
}

using Holds = std::function<bool(World&)>;

void CommandHandlersTest::doesWhatItIsTold_data() {
    QTest::addColumn<Holds>("holds");
    const auto row = [](const char* words, const Holds& holds) { QTest::newRow(words) << holds; };
    const auto mode = [](World& world, const char* id) {
        return *world.controller->engine().mode(QString::fromLatin1(id));
    };
    row("switch building", [](World& world) { return world.controller->engine().current().id == u"building"; });
    row("switch social",
        [](World& world) { return world.controller->engine().pending()->target.id == u"social"; });
    row("focus start --for 1h30m",
        [](World& world) { return world.controller->focus().remaining() == Seconds(5400); });
    row("focus start", [](World& world) { return !world.controller->focus().remaining(); });
    row("focus stop", [](World& world) { return !world.controller->focus().isOn(); });
    row("gate stay", [](World& world) { return world.gated().isEmpty(); });
    row("gate switch", [](World& world) { return world.controller->engine().pending().has_value(); });
    row("gate add", [=](World& world) { return mode(world, "writing").apps.contains(world.chat); });
    row("gate allow-once", [](World& world) {
        return world.gated().isEmpty() && !world.say(u"gate stay"_s); // the gate is closed now
    });
    row("correct writing", [](World& world) { return world.gated().isEmpty(); });
    row("correct none", [](World& world) { return !world.controller->classifier().front()->verdict->modeID; });
    row("mode add-app writing x", [=](World& world) { return mode(world, "writing").apps.last() == u"x"; });
    row("mode remove-app writing md.obsidian",
        [=](World& world) { return mode(world, "writing").apps.isEmpty(); });
    row("mode add-site writing https://WWW.New.org/a",
        [=](World& world) { return mode(world, "writing").sites.last() == u"new.org"; });
    row("mode remove-site writing www.medium.com",
        [=](World& world) { return !mode(world, "writing").sites.contains(u"medium.com"_s); });
    row("settings open dock", [](World& world) { return world.shown.last() == u"settings dock"; });
    row("onboarding finish study",
        [](World& world) { return world.controller->engine().current().id == u"study"; });
    row("activate", [](World& world) { return world.shown.last() == u"attention"; });
    row("activate dock", [](World& world) { return world.shown.last() == u"settings dock"; });
    row("activate nonsense", [](World& world) { return world.shown.last() == u"attention"; });
    row("quit", [](World& world) { return world.shown.last() == u"quit"; });
}

void CommandHandlersTest::doesWhatItIsTold() {
    QFETCH(const Holds, holds);
    World world;
    const QString words = QString::fromLatin1(QTest::currentDataTag());
    const auto answer = world.say(words);
    QVERIFY2(answer, qPrintable(answer ? QString() : answer.error()));
    QVERIFY(answer->isNull());
    QVERIFY(holds(world));
}

void CommandHandlersTest::setsEverySetting() {
    const QByteArray graphite = toJson(DockAppearance::preset(u"Graphite"_s).value());
    const QByteArray shortcut = R"({"key":"G","keyCode":5,"modifiers":256})";
    const QHash<QString, std::pair<QByteArray, QByteArray>> rows{
        // what is typed, and the value as JSON
        {u"dockSize"_s, {"large", R"("large")"}},
        {u"dockPosition"_s, {"left", R"("left")"}},
        {u"dockDisplay"_s, {"all", R"("all")"}},
        {u"strictness"_s, {"strict", R"("strict")"}},
        {u"autoHide"_s, {"on", "true"}},
        {u"focusGlow"_s, {"on", "true"}},
        {u"sounds"_s, {"on", "true"}},
        {u"clickToHide"_s, {"true", "true"}},
        {u"tidyOnSwitch"_s, {"on", "true"}},
        {u"crashReports"_s, {"on", "true"}},
        {u"matchSystem"_s, {"on", "true"}},
        {u"magnify"_s, {"false", "false"}},
        {u"claudePings"_s, {"off", "false"}},
        {u"modeModifiers"_s, {"control+alt", "6144"}},
        {u"appModifiers"_s, {"768", "768"}},
        {u"breakThrough"_s, {"fire, flood", R"("fire, flood")"}},
        {u"focusShortcut"_s, {shortcut, shortcut}},
        {u"appearance"_s, {"Graphite", graphite}}};
    FakeSettings settings;
    FakeLook look;
    Preferences preferences(settings, look);
    for (const QString& name : SettingsAccess::names(preferences)) {
        const auto& [typed, json] = rows[name];
        const QJsonValue expected = QJsonDocument::fromJson('[' + json + ']').array().first();
        QVERIFY2(SettingsAccess::get(preferences, name) != expected, qPrintable(name));
        QCOMPARE(SettingsAccess::set(preferences, name, QString::fromUtf8(typed)), std::nullopt);
        QCOMPARE(SettingsAccess::get(preferences, name), expected);
        FakeLook sameLook;
        QCOMPARE(SettingsAccess::get(Preferences(settings, sameLook), name), expected); // it is stored
    }
}

void CommandHandlersTest::showsWhatGoesOn() {
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

void CommandHandlersTest::explains() {
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

QTEST_GUILESS_MAIN(CommandHandlersTest)
#include "tst_CommandHandlers.moc"
