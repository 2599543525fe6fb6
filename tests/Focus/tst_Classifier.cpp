#include "Base/Worker.h"
#include "Focus/Classifier.h"
#include "Focus/ModelQuestion.h"
#include "Modes/ModeEngine.h"
#include "Modes/ModeStore.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeLanguageModel.h"
#include "fakes/FakeSettings.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

class ClassifierTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void knowsByListsAndMemory_data();
    void knowsByListsAndMemory();
    void remembersTheModelsAnswer_data();
    void remembersTheModelsAnswer();
    void showsTheQuestionAndTheAnswer();
    void asksOnceForAllThatAskAtTheSameTime();
    void aCorrectionWinsOverTheAnswerUnderWay();
    void aListWinsOverTheAnswerUnderWay();
    void forgetsDeletedModes();
    void anUnavailableOrFailingModelGivesNoAnswer();
    void asksInTheseWords();
    void promptsWithTheBeginningOfTheTitle();
};

namespace {

const AppSubject player{.bundleID = u"org.player"_s, .name = u"Player"_s, .title = u"Song"_s};
const AppSubject otherWindow{.bundleID = u"org.player"_s, .name = u"Player"_s, .title = u"Other"_s};
const SiteSubject site{.host = u"shop.org"_s, .title = u"Socks"_s};
using Answered = std::optional<Verdict>;

Answered verdict(const std::optional<QString>& mode, Certainty certainty, const QString& what, Source source) {
    return Verdict{.modeID = mode, .certainty = certainty, .what = what, .source = source};
}

/// Three modes of which "building", the last, is current.
struct World {
    QTemporaryDir home;
    Worker disk{u"disk"_s};
    ModeStore store{{}, disk};
    FakeSettings settings;
    FakeClock clock;
    FakeLanguageModel model;
    std::optional<ModeEngine> engine;
    std::optional<Classifier> classifier;
    QList<Answered> answers;
    std::vector<Handle> handles;

    World() {
        settings.values = {
            {u"currentModeID"_s, u"building"_s}, {u"sitesSeeded"_s, true}, {u"budgetsSeeded"_s, true}};
        store.load();
        store.save(
            {{.id = u"writing"_s,
              .name = u"Writing"_s,
              .apps = {u"org.editor"_s, u"org.mail"_s, u"org.mozilla.firefox"_s},
              .sites = {u"docs.org"_s, u"both.org"_s, u"three.org"_s}},
             {.id = u"social"_s, .name = u"Social"_s, .apps = {u"org.mail"_s}, .sites = {u"three.org"_s}},
             {.id = u"building"_s,
              .name = u"Building"_s,
              .apps = {u"org.editor"_s, u"org.nameless"_s, u"org.builder"_s},
              .sites = {u"both.org"_s}}});
        engine.emplace(store, settings, clock, ModeCatalog::with({}), [](const QString&) { return true; });
        start();
    }
    /// As after a restart: with what is in the file.
    void start() {
        disk.flush();
        classifier.emplace(*engine, model, clock, VerdictCache(home.path(), disk), [](const QString& id) {
            return id == u"org.nameless"_s ? id : id.section(u'.', -1).toUpper();
        });
    }
    void judge(const Subject& subject) {
        handles.push_back(
            classifier->judge(subject, [this](const Answered& answered) { answers.append(answered); }));
    }
    bool answer(const QString& mode, const QString& certainty) {
        model.prepare({{u"mode"_s, mode}, {u"certainty"_s, certainty}, {u"what"_s, u"Thing"_s}});
        return model.answerNext();
    }
};

} // namespace

void ClassifierTest::knowsByListsAndMemory_data() {
    QTest::addColumn<Subject>("subject");
    QTest::addColumn<Answered>("expected");
    const auto row = [](const char* name, const Subject& subject, const Answered& expected) {
        QTest::newRow(name) << subject << expected;
    };
    const auto app = [](const QString& id) { return AppSubject{.bundleID = id, .name = u"Name"_s}; };
    const auto host = [](const QString& name) { return SiteSubject{.host = name, .title = u"Title"_s}; };
    const auto rule = [](const QString& mode, const QString& what) {
        return verdict(mode, Certainty::certain, what, Source::rule);
    };
    row("in the current mode too", app(u"org.editor"_s), rule(u"building"_s, u"Name"_s));
    row("in two others: the first", app(u"org.mail"_s), rule(u"writing"_s, u"Name"_s));
    row("belongs to all", app(u"org.mozilla.firefox"_s), {});
    row("remembered", app(u"org.cached"_s), verdict(u"social"_s, Certainty::certain, u"Name"_s, Source::you));
    row("the list before the memory", app(u"org.builder"_s), rule(u"building"_s, u"Name"_s));
    row("unknown", app(u"org.unknown"_s), {});
    row("site of the current mode too", host(u"both.org"_s), rule(u"building"_s, u"both.org"_s));
    row("site of two others: the first", host(u"three.org"_s), rule(u"writing"_s, u"three.org"_s));
    row("a subdomain", host(u"a.docs.org"_s), rule(u"writing"_s, u"a.docs.org"_s));
    row("unknown site", host(u"mydocs.org"_s), {});
}

void ClassifierTest::knowsByListsAndMemory() {
    QFETCH(const Subject, subject);
    QFETCH(const Answered, expected);
    World world;
    world.model.setUnavailable(u"none"_s);
    AppSubject corrected{.bundleID = u"org.cached"_s, .name = u"Name"_s};
    world.classifier->correct(corrected, u"social"_s);
    corrected.bundleID = u"org.builder"_s;
    world.classifier->correct(corrected, u"social"_s);
    world.start();
    world.judge(subject);
    QCOMPARE(world.answers, QList<Answered>{expected}); // at once
    const auto& front = world.classifier->front();
    QCOMPARE(front, expected ? std::optional(Judgement{subject, expected}) : std::nullopt);
}

void ClassifierTest::remembersTheModelsAnswer_data() {
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("certainty");
    QTest::addColumn<Answered>("expected");
    const auto row = [](const char* name, const QString& mode, const QString& said,
                        const std::optional<QString>& expected, Certainty certainty) {
        QTest::newRow(name) << mode << said << verdict(expected, certainty, u"Thing"_s, Source::model);
    };
    row("certain", u"writing"_s, u"certain"_s, u"writing"_s, Certainty::certain);
    row("likely", u"writing"_s, u"likely"_s, u"writing"_s, Certainty::likely);
    row("unsure", u"writing"_s, u"unsure"_s, u"writing"_s, Certainty::unsure);
    row("none", u"none"_s, u"certain"_s, {}, Certainty::certain);
    row("a mode that isn't one", u"Writing"_s, u"certain"_s, {}, Certainty::certain);
    row("an unknown certainty", u"writing"_s, u"very"_s, u"writing"_s, Certainty::unsure);
    row("nothing", {}, {}, {}, Certainty::unsure);
}

void ClassifierTest::remembersTheModelsAnswer() {
    QFETCH(const QString, mode);
    QFETCH(const QString, certainty);
    QFETCH(const Answered, expected);
    World world;
    world.judge(player);
    QVERIFY(world.answer(mode, certainty));
    QCOMPARE(world.answers, QList<Answered>{expected});
    world.start();
    world.judge(otherWindow);
    const bool isRemembered = expected->certainty != Certainty::unsure;
    QCOMPARE(world.model.waiting(), isRemembered ? 0 : 1);
    QCOMPARE(world.answers.size(), isRemembered ? 2 : 1);
    QCOMPARE(world.answers.last(), expected);
}

void ClassifierTest::showsTheQuestionAndTheAnswer() {
    World world;
    const auto shared = AppSubject{.bundleID = u"org.mozilla.firefox"_s};
    world.judge(shared);
    QVERIFY(world.model.questions.isEmpty() && !world.classifier->front());
    world.judge(player);
    QCOMPARE(world.classifier->front(), (Judgement{.subject = player}));
    world.judge(otherWindow);
    QVERIFY(world.answer(u"social"_s, u"certain"_s));
    const Answered expected = verdict(u"social"_s, Certainty::certain, u"Thing"_s, Source::model);
    QCOMPARE(world.classifier->front(), (Judgement{otherWindow, expected})); // as the window that it is now

    world.judge(site);
    world.classifier->clearFront();
    QVERIFY(world.answer(u"social"_s, u"certain"_s));
    QVERIFY(!world.classifier->front()); // it came too late
}

void ClassifierTest::asksOnceForAllThatAskAtTheSameTime() {
    World world;
    world.judge(player);
    world.handles.clear(); // does not want to know any more
    world.judge(otherWindow);
    // Whoever is told may ask again.
    const Handle again = world.classifier->judge(player, [&](const Answered&) { world.judge(player); });
    world.judge(site);
    QCOMPARE(world.model.waiting(), 2);
    QVERIFY(world.answer(u"social"_s, u"unsure"_s));
    QCOMPARE(world.answers.size(), 1);
    world.handles.clear();
    QVERIFY(world.answer(u"writing"_s, u"likely"_s)); // nobody waits, yet it is remembered
    QCOMPARE(world.answers.size(), 1);
    world.judge(site);
    QCOMPARE(world.answers.last()->modeID, u"writing"_s);
    QCOMPARE(world.model.questions.size(), 3);
    QCOMPARE(world.model.cancelled(), 0);
}

void ClassifierTest::aCorrectionWinsOverTheAnswerUnderWay() {
    World world;
    world.judge(player);
    world.classifier->correct(player, u"building"_s);
    const Answered corrected = verdict(u"building"_s, Certainty::certain, u"Player"_s, Source::you);
    QCOMPARE(world.classifier->front()->verdict, corrected); // does not wait for the model
    QVERIFY(world.answer(u"social"_s, u"certain"_s));
    world.judge(player);
    QCOMPARE(world.answers, (QList<Answered>{corrected, corrected}));
    QCOMPARE(world.classifier->front()->verdict, corrected);

    world.judge(site);
    QVERIFY(world.answer(u"social"_s, u"certain"_s));
    world.judge(player);
    world.classifier->correct(site, {});
    QCOMPARE(world.classifier->front()->verdict, corrected); // something else is in front
    world.judge(site);
    QCOMPARE(world.answers.last(),
             verdict({}, Certainty::certain, u"Thing"_s, Source::you)); // keeps what it is
}

void ClassifierTest::aListWinsOverTheAnswerUnderWay() {
    World world;
    world.judge(player);
    world.engine->addApp(player.bundleID, u"building"_s);
    QVERIFY(world.answer(u"social"_s, u"certain"_s));
    QCOMPARE(world.answers.last()->modeID, u"building"_s);
    QCOMPARE(world.classifier->front()->verdict, world.answers.last());
}

void ClassifierTest::forgetsDeletedModes() {
    World world;
    world.classifier->correct(player, u"social"_s);
    world.classifier->correct(site, u"social"_s);
    QCOMPARE(world.classifier->modeID(site.host), u"social"_s);
    QCOMPARE(world.classifier->modeID(u"docs.org"_s), u"writing"_s);
    QCOMPARE(world.classifier->modeID(u"unknown.org"_s), std::nullopt);
    world.engine->deleteMode(u"social"_s);
    QCOMPARE(world.classifier->modeID(site.host), std::nullopt);
    world.judge(player);
    QVERIFY(world.answer(u"none"_s, u"certain"_s));
    world.judge(player);
    QCOMPARE(world.answers.size(), 2);
}

void ClassifierTest::anUnavailableOrFailingModelGivesNoAnswer() {
    World world;
    const QString instructions = world.model.prewarmed.value(0);
    world.judge(player);
    QCOMPARE(world.model.questions.last().instructions,
             instructions); // what was warmed up is what is asked with
    world.model.prepareFailure(u"out of memory"_s);
    QVERIFY(world.model.answerNext());
    QVERIFY(!world.classifier->front());
    world.model.setUnavailable(u"loading"_s);
    QVERIFY(!world.classifier->isModelAvailable());
    world.judge(player);
    QCOMPARE(world.answers, (QList<Answered>{{}, {}}));
    QCOMPARE(world.model.waiting(), 0);
    world.model.setUnavailable({});
    QCOMPARE(world.model.prewarmed, (QStringList{instructions, instructions}));
    world.judge(player);
    QCOMPARE(world.model.waiting(), 1);
}

void ClassifierTest::asksInTheseWords() {
    World world;
    QStringList apps{u"org.nameless"_s}, sites;
    for (int index = 0; index < 10; ++index) {
        apps.append(u"org.a%1"_s.arg(index));
        sites.append(u"s%1.org"_s.arg(index));
    }
    world.engine->addMode({.id = u"full"_s, .name = u"Full \"up\""_s, .apps = apps, .sites = sites});
    world.judge(player);
    const Question& question = world.model.questions.last();
    QCOMPARE(
        question.instructions,
        uR"(You sort what's on a Mac screen into the user's modes. Judge the window title or page, not just the app.
Modes:
- writing (Writing): Apps: EDITOR, MAIL, FIREFOX. Sites: docs.org, both.org, three.org
- social (Social): Apps: MAIL. Sites: three.org
- building (Building): Apps: EDITOR, BUILDER. Sites: both.org
- full (Full "up"): Apps: A0, A1, A2, A3, A4, A5, A6, A7. Sites: s0.org, s1.org, s2.org, s3.org, s4.org, s5.org, s6.org, s7.org
Music, video, games and shopping are none unless a mode lists them.)"_s);
    QCOMPARE(question.prompt, u"App: Player\nWindow: Song"_s);
    QCOMPARE(question.schemaName, u"Verdict"_s);
    const QList<SchemaProperty> schema{
        {.name = u"what"_s,
         .description =
             u"The kind of thing on screen in 2 to 4 words, not the title itself. Examples: API docs, "
             "Video feed, Music player, Online shopping, Essay draft"_s},
        {.name = u"mode"_s,
         .typeName = u"ModeID"_s,
         .description = u"The id of the mode it belongs to, or none"_s,
         .choices = {u"writing"_s, u"social"_s, u"building"_s, u"full"_s, u"none"_s}},
        {.name = u"certainty"_s,
         .typeName = u"Certainty"_s,
         .description =
             u"certain: clearly belongs. likely: probably. unsure: could be several modes, or the title "
             "doesn't say"_s,
         .choices = {u"certain"_s, u"likely"_s, u"unsure"_s}}};
    QCOMPARE(question.schema, schema);
}

void ClassifierTest::promptsWithTheBeginningOfTheTitle() {
    const auto window = [](const std::optional<QString>& title) {
        return ModelQuestion::prompt(AppSubject{.bundleID = u"id"_s, .name = u"App"_s, .title = title});
    };
    const QString start = u"App: App\nWindow: "_s, letters(120, u'x');
    const QString characters = u"\U0001F468\u200D\U0001F469\u200D\U0001F467e\u0301"_s; // two, of nine units
    QCOMPARE(window({}), u"App: App"_s);
    QCOMPARE(window(u""_s), start);
    QCOMPARE(window(letters), start + letters);
    QCOMPARE(window(letters + u'y'), start + letters);
    QCOMPARE(window(characters.repeated(61)), start + characters.repeated(60));
    QCOMPARE(ModelQuestion::prompt(SiteSubject{.host = u"x.org"_s, .title = letters + u'y'}),
             u"Site: x.org\nTitle: "_s + letters);
}

QTEST_APPLESS_MAIN(ClassifierTest)
#include "tst_Classifier.moc"
