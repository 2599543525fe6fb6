#include "App/ControllerWorld.h"
#include "Files.h"
#include "Table.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

struct World : ControllerWorld {
    World() { launch(); }

    QString write() {
        std::optional<std::optional<QString>> told;
        const Handle waiting = controller->backup().write(file, [&](const auto& problem) { told = problem; });
        return QTest::qWaitFor([&] { return told.has_value(); }) ? told->value_or(QString()) : u"no answer"_s;
    }
    Result<Archive, QString> read() {
        std::optional<Result<Archive, QString>> told;
        const Handle waiting = controller->backup().read(file, [&](const auto& archive) { told = archive; });
        return QTest::qWaitFor([&] { return told.has_value(); }) ? *told
                                                                 : Result<Archive, QString>::failure(u"no answer"_s);
    }
    /// Everything that an import may change.
    auto all() { return std::tuple(controller->engine().modes(), fake.settings->values, classifier().answers()); }
    Classifier& classifier() { return controller->classifier(); }

    QString file = fake.home.filePath(u"taken out.json"_s);
};

const SiteSubject forum{.host = u"forum.org"_s};

/// A sound archive, with a member of it replaced.
QByteArray changed(const char* member, const QJsonValue& value) {
    QJsonObject object{{u"format"_s, u"Fendrel backup"_s},
                       {u"version"_s, 1},
                       {u"modes"_s, QJsonArray{QJsonObject{{u"id"_s, u"a"_s}, {u"name"_s, u"A"_s}}}},
                       {u"settings"_s, QJsonObject()},
                       {u"answers"_s, QJsonObject()}};
    object.insert(QString::fromLatin1(member), value);
    return QJsonDocument(object).toJson();
}

} // namespace

class BackupTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void bringsEverythingToAnotherComputer() {
        World old;
        Mode mode = old.controller->engine().modes().first();
        mode.name = u"Prose \"and\" more"_s;
        mode.tint = Tint::teal;
        mode.sites = {u"localhost"_s, u"xn--mnchen-3ya.de"_s};
        mode.entryDelay = Seconds(6.5);
        mode.widgets = {u"clock"_s};
        old.controller->engine().update(mode);
        Preferences& preferences = old.controller->preferences();
        preferences.setMagnify(false);
        preferences.setFocusShortcut({});
        preferences.setDockPosition(DockPosition::left);
        preferences.setAppearance(DockAppearance::preset(u"Graphite"_s).value());
        old.controller->widgetSizes().set(mode.id, DockWidget::clock, WidgetSize::medium);
        old.controller->widgets().ticker().setSymbols({u"AAPL"_s});
        const weather::Place place{.name = u"Oslo"_s, .latitude = 59.9, .longitude = 10.7};
        old.fake.settings->values.insert(WeatherFeed::settingKey, weather::encode(place));
        const auto shown = [](AppController& controller) {
            return std::tuple(controller.widgetSizes().items(controller.engine().modes().first()),
                              controller.widgets().ticker().symbols(), controller.widgets().weather().place());
        };
        old.classifier().correct(forum, u"social"_s);
        QCOMPARE(old.write(), QString());
        QCOMPARE(permissionsOf(old.file), 0600U);

        World fresh;
        fresh.controller->preferences().setSounds(true); // a default over there
        fresh.fake.settings->values.insert(u"weatherGuessedPlace"_s, QByteArray("here"));
        const auto shownBefore = shown(*fresh.controller);
        fresh.classifier().correct(SiteSubject{.host = u"gone.org"_s}, {});
        putFile(fresh.file, contentOf(old.file));
        const auto before = fresh.all();
        const auto archive = fresh.read();
        QVERIFY(archive);
        QCOMPARE(archive->skipped, 0);
        QVERIFY(fresh.all() == before); // looked at, not used
        fresh.controller->backup().use(*archive);
        QCOMPARE(fresh.controller->engine().modes(), old.controller->engine().modes());
        QCOMPARE(fresh.controller->preferences().values(), preferences.values());
        QCOMPARE(fresh.fake.settings->values.contains(u"sounds"_s), false);
        QCOMPARE(fresh.classifier().answers(), old.classifier().answers());
        QVERIFY(shown(*fresh.controller) == shown(*old.controller));
        QVERIFY(!contentOf(old.file).contains("weatherGuessedPlace"));

        fresh.controller->backup().undo();
        QVERIFY(fresh.all() == before);
        QVERIFY(shown(*fresh.controller) == shownBefore);
        QVERIFY(fresh.controller->preferences().sounds());
        QVERIFY(!fresh.controller->backup().canUndo());
        fresh.fake.platform.disk->flush();
        QVERIFY(contentOf(fresh.fake.home.filePath(u"data/Before Import.json"_s)).contains("gone.org"));
    }

    void leavesOutWhatIsOfThisComputer() {
        World world;
        for (const QString& key : {u"savedDockSettings"_s, u"otherSavedDockSettings"_s, u"savedBanners"_s, u"apiKey"_s,
                                   u"driftBudgetUsed"_s, u"focusOn"_s, u"replaceDock"_s})
            world.fake.settings->values.insert(key, u"not for others"_s);
        QCOMPARE(world.write(), QString());
        const QByteArray file = contentOf(world.file);
        QVERIFY(!file.isEmpty() && !file.contains("not for others"));
        // Nor does a file from elsewhere bring it in.
        putFile(world.file, changed("settings", QJsonObject{{u"savedDockSettings"_s, u"theirs"_s},
                                                            {u"onboardingDone"_s, false},
                                                            {u"autoHide"_s, true}}));
        const auto archive = world.read();
        QCOMPARE(archive->settings.keys(), QStringList{u"autoHide"_s});
        QCOMPARE(archive->skipped, 2);
    }

    void refusesWhatIsNoBackup_data() {
        const Table<QByteArray, QString> row("file", "problem");
        const QByteArray whole = Archive{.modes = {Mode{.id = u"a"_s, .name = u"A"_s}}}.encode({});
        const QString damaged = u"This backup is damaged, and can't be read."_s;
        const QString foreign = u"This file is not a Fendrel backup."_s;
        row("cut off", whole.chopped(10), damaged);
        row("cut off early", whole.first(60), damaged);
        row("empty", "", foreign);
        row("picture", QByteArray("\x89PNG\r\n\x1a\n\0\0", 10), foreign);
        row("another program's", R"({"version":1,"modes":[]})", foreign);
        row("a list", "[1]", foreign);
        row("newer", changed("version", 2),
            u"This backup was made by a newer Fendrel. Update this one, then import it again."_s);
        row("no version", changed("version", u"1"_s), damaged);
        row("no modes", changed("modes", QJsonArray()), damaged);
        row("modes that are none", changed("modes", QJsonArray{7, QJsonObject{{u"id"_s, u"x"_s}}}), damaged);
        row("settings of a wrong type", changed("settings", QJsonArray()), damaged);
        row("no answers", changed("answers", QJsonValue()), damaged);
    }

    void refusesWhatIsNoBackup() {
        QFETCH(const QByteArray, file);
        QFETCH(const QString, problem);
        const auto archive = Archive::decode(file, {});
        QVERIFY(!archive);
        QCOMPARE(archive.error(), problem);
    }

    void skipsSingleEntries() {
        const QJsonObject sound{{u"certainty"_s, u"likely"_s}, {u"what"_s, u""_s}, {u"source"_s, u"you"_s}};
        const auto decode = [](const QByteArray& file) {
            const QHash<QString, StoredValue> known{{u"flag"_s, false}, {u"text"_s, QString()}};
            return *Archive::decode(file, known);
        };
        const Archive answers = decode(changed("answers", QJsonObject{{u"a"_s, sound}, {u"b"_s, 7}}));
        QCOMPARE(answers.answers.keys(), QStringList{u"a"_s});
        QCOMPARE(answers.skipped, 1);
        const Archive settings = decode(
            changed("settings", QJsonObject{{u"flag"_s, u"yes"_s}, {u"text"_s, QJsonValue()}, {u"strange"_s, true}}));
        QCOMPARE(settings.settings.keys(), QStringList{u"text"_s});
        QCOMPARE(settings.skipped, 2);
        const QJsonObject mode{{u"id"_s, u"a"_s},
                               {u"name"_s, u" A\n"_s},
                               {u"widgets"_s, QJsonArray{u"clock"_s, u"strange"_s}},
                               {u"sites"_s, QJsonArray{u"https://WWW.X.org/y"_s, u"x.org"_s, 3, u"http://"_s}},
                               {u"entryDelay"_s, -5},
                               {u"dailyBudget"_s, 1e99}};
        const Archive modes =
            decode(changed("modes", QJsonArray{mode, QJsonObject{{u"id"_s, u"a"_s}, {u"name"_s, u"B"_s}}}));
        QCOMPARE(modes.modes, (QList<Mode>{{.id = u"a"_s,
                                            .name = u"A"_s,
                                            .sites = {u"x.org"_s},
                                            .widgets = {u"clock"_s},
                                            .dailyBudget = Seconds(86'400)}}));
        QCOMPARE(modes.skipped, 4); // a widget, two sites, and the second mode
    }

    void keepsTheNewestOfTooManyAnswers() {
        Archive archive{.modes = {Mode{.id = u"a"_s, .name = u"A"_s}}};
        const auto count = Archive::mostAnswers + 100;
        for (qsizetype number = 0; number < count; ++number)
            archive.answers.insert(u"host%1.org"_s.arg(number),
                                   {.verdict = {.modeID = u"a"_s}, .date = WallTime(std::chrono::hours(number))});
        const auto decoded = Archive::decode(archive.encode({}), {});
        QVERIFY(decoded);
        QCOMPARE(decoded->answers.size(), Archive::mostAnswers);
        QCOMPARE(decoded->skipped, 100);
        QVERIFY(!decoded->answers.contains(u"host99.org"_s) && decoded->answers.contains(u"host100.org"_s));
    }

    void saysWhatTheDiskRefuses() {
        World world;
        QVERIFY(!world.read());
        world.file = world.fake.home.path(); // a folder
        QVERIFY(world.write().contains(world.file));
        QVERIFY(!world.read());
    }

    void forgettingJudgesTheFrontAnew() {
        World world;
        world.front(world.run(u"org.test.player"_s));
        world.controller->drift().correctFront(u"social"_s);
        QCOMPARE(world.classifier().front()->verdict->modeID, u"social"_s);
        world.classifier().forget({u"org.test.player"_s, u"nothing"_s});
        QVERIFY(!world.classifier().front()->verdict); // the model is asked
    }
};

QTEST_GUILESS_MAIN(BackupTest)
#include "tst_Backup.moc"
