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

namespace {

const AppSubject player{.bundleID = u"org.player"_s, .name = u"Player"_s, .title = u"Song"_s};
const AppSubject otherWindow{.bundleID = u"org.player"_s, .name = u"Player"_s, .title = u"Other"_s};
const AppSubject shared{.bundleID = u"org.mozilla.firefox"_s};
const SiteSubject site{.host = u"shop.org"_s, .title = u"Socks"_s};

/// "MODE CERTAINTY WHAT SOURCE", or "-".
QByteArray shown(const std::optional<Verdict>& verdict) {
    if (!verdict)
        return "-";
    return verdict->modeID.value_or(u"none"_s).toUtf8() + ' ' + enumKey(verdict->certainty) + ' ' +
           verdict->what.toUtf8() + ' ' + enumKey(verdict->source);
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
    QByteArrayList answers;
    std::vector<Handle> handles;

    World() {
        settings.values = {{u"currentModeID"_s, u"building"_s}, {u"sitesSeeded"_s, true}, {u"budgetsSeeded"_s, true}};
        const QStringList builds{u"org.editor"_s, u"org.nameless"_s, u"org.builder"_s};
        store.load();
        store.save(
            {{.id = u"writing"_s, .apps = {u"org.editor"_s, u"org.mail"_s, shared.bundleID}, .sites = {u"two.org"_s}},
             {.id = u"social"_s, .name = u"Social"_s, .apps = {u"org.mail"_s}, .sites = {u"two.org"_s}},
             {.id = u"building"_s, .name = u"Building"_s, .apps = builds, .sites = {u"both.org"_s}}});
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
        handles.push_back(classifier->judge(subject, [this](const auto& verdict) { answers.append(shown(verdict)); }));
    }
    /// What is answered at once.
    QByteArray judged(const Subject& subject) {
        answers.clear();
        judge(subject);
        return answers.value(0, "asks the model");
    }
    bool answer(const char* mode, const char* certainty) {
        return model.answerNext({{{u"mode"_s, QString::fromLatin1(mode)},
                                  {u"certainty"_s, QString::fromLatin1(certainty)},
                                  {u"what"_s, u"Thing"_s}}});
    }
    QByteArray front() const {
        const auto& front = classifier->front();
        return front ? shown(front->verdict) : "nothing";
    }
};

} // namespace

class ClassifierTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void knowsByListsAndMemory() {
        World world;
        world.model.setUnavailable(u"none"_s);
        const auto app = [](const char* id) {
            return AppSubject{.bundleID = QString::fromLatin1(id), .name = u"Name"_s};
        };
        world.classifier->correct(app("org.cached"), u"social"_s);
        world.classifier->correct(app("org.builder"), u"social"_s);
        world.start();
        QCOMPARE(world.judged(app("org.editor")), "building certain Name rule"); // the current mode first
        QCOMPARE(world.front(), "building certain Name rule");
        QCOMPARE(world.judged(app("org.mail")), "writing certain Name rule"); // of others the first
        QCOMPARE(world.judged(app("org.cached")), "social certain Name you");
        QCOMPARE(world.judged(app("org.builder")), "building certain Name rule"); // the list before the memory
        QCOMPARE(world.judged(SiteSubject{.host = u"m.two.org"_s}), "writing certain m.two.org rule");
        QCOMPARE(world.judged(shared), "-"); // belongs to all
        QCOMPARE(world.judged(SiteSubject{.host = u"nottwo.org"_s}), "-");
        QCOMPARE(world.front(), "nothing");
    }

    void remembersTheModelsAnswer() {
        const auto asked = [](const char* mode, const char* certainty) {
            World world;
            world.judge(player);
            world.answer(mode, certainty);
            const QByteArray first = world.answers.value(0);
            world.start();
            const QByteArray second = world.judged(otherWindow);
            return first + (second == first ? ", remembered" : ", " + second);
        };
        QCOMPARE(asked("writing", "likely"), "writing likely Thing model, remembered");
        QCOMPARE(asked("writing", "unsure"), "writing unsure Thing model, asks the model");
        QCOMPARE(asked("none", "certain"), "none certain Thing model, remembered");
        QCOMPARE(asked("Writing", "certain"), "none certain Thing model, remembered"); // no mode of that name
        QCOMPARE(asked("writing", "very"), "writing unsure Thing model, asks the model");
    }

    void showsTheQuestionAndTheAnswer() {
        World world;
        QCOMPARE(world.judged(shared), "-");
        QVERIFY(world.model.questions.isEmpty());
        world.judge(player);
        QCOMPARE(world.classifier->front(), (Judgement{.subject = player}));
        world.judge(otherWindow);
        QVERIFY(world.answer("social", "certain"));
        QCOMPARE(world.front(), "social certain Thing model");
        QVERIFY(world.classifier->front()->subject == Subject(otherWindow)); // as the window that it is now
        world.judge(site);
        world.classifier->clearFront();
        QVERIFY(world.answer("social", "certain"));
        QCOMPARE(world.front(), "nothing"); // it came too late
    }

    void asksOnceForAllThatAskAtTheSameTime() {
        World world;
        world.judge(player);
        world.handles.clear(); // does not want to know any more
        world.judge(otherWindow);
        // Whoever is told may ask again.
        const Handle again = world.classifier->judge(player, [&](const auto&) { world.judge(player); });
        world.judge(site);
        QCOMPARE(world.model.waiting(), std::size_t(2));
        QVERIFY(world.answer("social", "unsure"));
        QCOMPARE(world.answers.size(), 1);
        world.handles.clear();
        QVERIFY(world.answer("writing", "likely")); // nobody waits, yet it is remembered
        QCOMPARE(world.answers.size(), 1);
        QCOMPARE(world.judged(site), "writing likely Thing model");
        QCOMPARE(world.model.questions.size(), 3);
    }

    void whatIsKnownMeanwhileWinsOverTheModelsAnswer() {
        World world;
        world.judge(player);
        world.classifier->correct(player, u"building"_s);
        QCOMPARE(world.front(), "building certain Player you"); // does not wait for the model
        QVERIFY(world.answer("social", "certain"));
        QCOMPARE(world.answers.last(), "building certain Player you");
        QCOMPARE(world.judged(player), "building certain Player you");

        world.judge(site);
        QVERIFY(world.answer("social", "certain"));
        world.judge(player);
        world.classifier->correct(site, {});
        QCOMPARE(world.front(), "building certain Player you"); // something else is in front
        QCOMPARE(world.judged(site), "none certain Thing you"); // keeps what it is

        World listed;
        listed.judge(player);
        listed.engine->addApp(player.bundleID, u"building"_s);
        QVERIFY(listed.answer("social", "certain"));
        QCOMPARE(listed.answers.last(), "building certain Player rule");
        QCOMPARE(listed.front(), listed.answers.last());
    }

    void forgetsDeletedModes() {
        World world;
        world.classifier->correct(player, u"social"_s);
        world.classifier->correct(site, u"social"_s);
        QCOMPARE(world.classifier->modeID(site.host), u"social"_s);
        QCOMPARE(world.classifier->modeID(u"two.org"_s), u"writing"_s);
        world.engine->deleteMode(u"social"_s);
        QCOMPARE(world.classifier->modeID(site.host), std::nullopt);
        QCOMPARE(world.judged(player), "asks the model");
    }

    void anUnavailableOrFailingModelGivesNoAnswer() {
        World world;
        const QString instructions = world.model.prewarmed.value(0);
        world.judge(player);
        QCOMPARE(world.model.questions.last().instructions, instructions); // what was warmed up is what is asked
        QVERIFY(world.model.answerNext(FakeLanguageModel::Outcome::failure(u"out of memory"_s)));
        QCOMPARE(world.front(), "nothing");
        world.model.setUnavailable(u"loading"_s);
        QCOMPARE(world.judged(player), "-");
        QCOMPARE(world.model.waiting(), std::size_t(0));
        world.model.setUnavailable({});
        QCOMPARE(world.model.prewarmed.size(), 2);
        QCOMPARE(world.judged(player), "asks the model");
    }

    void asksWithTheModesAsTheyAre() {
        World world;
        QStringList apps{u"org.nameless"_s}, sites;
        for (int index = 0; index < 10; ++index) {
            apps.append(u"org.a%1"_s.arg(index));
            sites.append(u"s%1.org"_s.arg(index));
        }
        world.engine->addMode({.id = u"full"_s, .name = u"Full \"up\""_s, .apps = apps, .sites = sites});
        world.judge(player);
        const Question& question = world.model.questions.last();
        for (const QString& line :
             {u"- social (Social): Apps: MAIL. Sites: two.org"_s,
              u"- building (Building): Apps: EDITOR, BUILDER. Sites: both.org"_s, // what has no name stays out
              u"- full (Full \"up\"): Apps: A0, A1, A2, A3, A4, A5, A6, A7. Sites: s0.org, s1.org, s2.org, s3.org, "
              "s4.org, s5.org, s6.org, s7.org"_s})
            QVERIFY2(question.instructions.split(u'\n').contains(line), qPrintable(question.instructions));
        QStringList choices;
        for (const SchemaProperty& property : question.schema)
            choices.append(property.name + u": "_s + property.choices.join(u' '));
        QCOMPARE(choices.join(u", "),
                 u"what: , mode: writing social building full none, certainty: certain likely unsure"_s);
    }

    void promptsWithTheBeginningOfTheTitle() {
        const auto window = [](const std::optional<QString>& title) {
            return ModelQuestion::prompt(AppSubject{.bundleID = u"id"_s, .name = u"App"_s, .title = title});
        };
        const QString start = u"App: App\nWindow: "_s, letters(120, u'x');
        const QString characters = u"\U0001F468\u200D\U0001F469\u200D\U0001F467e\u0301"_s; // two, of nine units
        QCOMPARE(window({}), u"App: App"_s);
        QCOMPARE(window(letters + u'y'), start + letters);
        QCOMPARE(window(characters.repeated(61)), start + characters.repeated(60));
        QCOMPARE(ModelQuestion::prompt(SiteSubject{.host = u"x.org"_s, .title = letters + u'y'}),
                 u"Site: x.org\nTitle: "_s + letters);
    }
};

QTEST_APPLESS_MAIN(ClassifierTest)
#include "tst_Classifier.moc"
