#include "Messages/HeldMessages.h"
#include "Messages/Owner.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeLanguageModel.h"
#include "fakes/FakeNotificationLog.h"

#include <QTest>

#include <initializer_list>

using namespace fendrel;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// The service in the mode "work", beside "social", which takes 20 s to enter, and "play". A further mode tells when a
/// read is over: its own message is the last of each.
struct World {
    World() {
        model.setUnavailable(u"none"_s);
        log.add({.app = u"chat.app"_s, .title = u"from yesterday"_s});
        messages.emplace(log, model, clock, QSet<QString>{u"Shared.App"_s});
        messages->modes = [this] { return modes; };
        messages->current = [this] { return std::optional(current); };
        messages->entryDelay = [](const Mode& mode) { return mode.id == "social"_L1 ? Seconds(20) : Seconds(0); };
        messages->breakThrough = [] { return QStringList{u"urgent"_s}; };
        messages->onShow = [this] { ++shown; };
        messages->onSwitch = [this](const Mode& mode) { said.append(u"switch "_s + mode.id); };
        messages->onOpen = [this](const QString& app) { said.append(u"open "_s + app); };
    }

    /// What was in the log before the first read is never held.
    bool begin() {
        return QTest::qWaitFor([this] { return messages->canRead(); });
    }
    /// Adds and waits for the read by the timer.
    QList<qint64> arrive(std::initializer_list<FakeNotificationLog::Entry> entries) {
        QList<qint64> ids;
        for (const auto& entry : entries)
            ids.append(log.add(entry));
        log.add({.app = u"last.app"_s, .title = u"the last"_s, .date = 1e9});
        const auto before = messages->count(modes[3]);
        clock.advance(2s);
        if (!QTest::qWaitFor([&] { return messages->count(modes[3]) > before; }))
            return {};
        return ids;
    }
    QStringList held(const QString& mode) const {
        QStringList titles;
        for (const auto& message : messages->held().value(mode))
            titles.append(message.title);
        return titles;
    }
    void enter(qsizetype position) {
        current = modes[position];
        messages->modeChanged(current);
    }
    QString alert() const { return messages->alert() ? messages->alert()->why : QString(); }
    bool answer(const char* urgent, const QString& why) {
        return model.answerNext({{{u"urgent"_s, QString::fromLatin1(urgent)}, {u"why"_s, why}}});
    }

    QList<Mode> modes{{.id = u"work"_s, .apps = {u"work.app"_s}},
                      {.id = u"social"_s, .apps = {u"Chat.App"_s, u"work.app"_s, u"both.app"_s, u"shared.app"_s}},
                      {.id = u"play"_s, .apps = {u"game.app"_s, u"both.app"_s}},
                      {.id = u"last"_s, .apps = {u"last.app"_s}}};
    Mode current = modes[0];
    FakeNotificationLog log;
    FakeLanguageModel model;
    FakeClock clock;
    QStringList said;
    int shown = 0;
    std::optional<HeldMessages> messages;
};

} // namespace

class TestHeldMessages : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void holdsWhatBelongsElsewhere() {
        World world;
        QVERIFY(world.begin());
        world.arrive({{.app = u"chat.app"_s, .title = u"second"_s, .date = 20},
                      {.app = u"CHAT.APP"_s, .title = u"first"_s, .date = 10},
                      {.app = u"work.app"_s, .title = u"of the work at hand"_s},
                      {.app = u"shared.app"_s, .title = u"of every mode"_s},
                      {.app = u"stray.app"_s, .title = u"of no mode"_s},
                      {.app = u"chat.app"_s},
                      {.app = u"both.app"_s, .body = u"only a body"_s}});
        QCOMPARE(world.held(u"social"_s), QStringList({u"first"_s, u"second"_s, QString()}));
        QCOMPARE(world.held(u"play"_s), QStringList());
        QCOMPARE(world.messages->count(world.modes[1]), 3);
        QVERIFY(!world.messages->alert());
        QCOMPARE(toDateTime(world.messages->held()[u"social"_s][0].date).toString(Qt::ISODate),
                 u"2001-01-01T00:00:10Z"_s);
    }

    void leavesAloneWhatMayNotBeHeld() {
        World world;
        QVERIFY(world.begin());
        world.messages->passCritical = [] { return true; };
        world.arrive({{.app = u"chat.app"_s, .title = u"battery"_s, .isCritical = true}});
        QCOMPARE(world.held(u"social"_s), QStringList());

        bool wasAsked = false;
        world.messages->isQuiet = [&] { return wasAsked = true; };
        world.log.add({.app = u"chat.app"_s, .title = u"during the first run"_s});
        world.clock.advance(2s);
        QTRY_VERIFY(wasAsked);
        world.messages->isQuiet = [] { return false; };
        world.arrive({});
        QCOMPARE(world.held(u"social"_s), QStringList());
    }

    void wordsRaiseTheAlert() {
        World world;
        QVERIFY(world.begin());
        world.arrive({{.app = u"chat.app"_s, .title = u"Urgent: deploy"_s, .date = 1},
                      {.app = u"game.app"_s, .title = u"x"_s, .body = u"it is URGENT!"_s, .date = 2}});
        QCOMPARE(world.shown, 2);
        QCOMPARE(world.alert(), u"mentions urgent"_s);
        QCOMPARE(world.messages->alert()->wait, Seconds(0));
        QCOMPARE(world.messages->urgent().size(), 2);
        world.messages->dismissAlert();
        QVERIFY(!world.messages->alert());
    }

    void judgesTheNewestFirst() {
        World world;
        QVERIFY(world.begin());
        world.model.setUnavailable({});
        world.arrive({{.app = u"chat.app"_s, .title = u"a\nb"_s, .body = QString(500, u'é'), .date = 1},
                      {.app = u"chat.app"_s, .title = u"b"_s, .date = 2},
                      {.app = u"chat.app"_s, .title = u"c"_s, .date = 3},
                      {.app = u"game.app"_s, .title = u"released meanwhile"_s, .date = 4}});
        QCOMPARE(world.model.questions.size(), 1); // one at a time
        QCOMPARE(world.model.questions[0].prompt, u"From: a b\n\n"_s + QString(400, u'é'));
        QVERIFY(world.model.questions[0].schema[0].kind == SchemaProperty::Kind::boolean);
        world.enter(2);
        QVERIFY(world.answer("true", u"needs an answer"_s));
        QCOMPARE(world.alert(), u"needs an answer"_s);
        QCOMPARE(world.messages->alert()->wait, Seconds(20));
        QCOMPARE(world.shown, 0);
        QCOMPARE(world.model.questions[1].prompt, u"From: the last\n\n"_s);
        QVERIFY(world.model.answerNext(FakeLanguageModel::Outcome::failure(u"broken"_s)));
        QCOMPARE(world.model.questions[2].prompt, u"From: c\n\n"_s);
        QVERIFY(world.answer("false", {}));
        QCOMPARE(world.alert(), u"needs an answer"_s);
        world.enter(1); // b is not held any more, and not asked about
        QVERIFY(!world.messages->alert());
        QVERIFY(!world.answer("true", u"too late"_s) || !world.messages->alert());
        QCOMPARE(world.model.waiting(), 0U);
        QVERIFY(world.messages->urgent().isEmpty());
    }

    void digestOfTheStretch() {
        World world;
        QVERIFY(world.begin());
        world.arrive({{.app = u"chat.app"_s, .title = u"older, urgent"_s, .date = 1},
                      {.app = u"chat.app"_s, .title = u"newer"_s, .date = 2}});
        world.enter(2);
        QCOMPARE(world.messages->digest()->mode.id, u"work"_s);
        QCOMPARE(world.messages->digest()->messages.size(), 3);
        QCOMPARE(world.messages->digest()->messages[1].title, u"newer"_s);
        QCOMPARE(world.messages->digest()->urgent.values(), {u"from older, urgent"_s});
        world.clock.advance(14s);
        world.messages->setHidden(true); // under a gate
        world.clock.advance(60s);
        world.messages->setHidden(false);
        world.clock.advance(14s);
        world.messages->setHovered(true);
        world.clock.advance(60s);
        QVERIFY(world.messages->digest());
        world.messages->setHovered(false);
        world.clock.advance(3s);
        QVERIFY(world.messages->digest());
        world.clock.advance(1s);
        QVERIFY(!world.messages->digest());

        // What was held before stays held, but is not told again.
        world.enter(0);
        QVERIFY(!world.messages->digest());
        QCOMPARE(world.held(u"social"_s).size(), 2);
        world.enter(1);
        QCOMPARE(world.held(u"social"_s).size(), 0);
        QVERIFY(!world.messages->alert());
    }

    void goesToTheMessage() {
        World world;
        QVERIFY(world.begin());
        const auto goAndEnter = [&](bool isTakenBack) {
            world.arrive({{.app = u"chat.app"_s, .title = u"urgent"_s}});
            world.said.clear();
            world.messages->go();
            if (isTakenBack)
                world.messages->headingFor(u"work"_s);
            world.current = world.modes[1];
            const auto destination = world.messages->modeChanged(world.current);
            world.enter(0);
            return destination;
        };
        QCOMPARE(goAndEnter(false), u"chat.app"_s);
        QCOMPARE(world.said, {u"switch social"_s});
        QVERIFY(!goAndEnter(true));
    }

    void replacedMessagesAreHeldOnce() {
        World world;
        QVERIFY(world.begin());
        world.model.setUnavailable({});
        const auto ids = world.arrive({{.app = u"chat.app"_s, .title = u"1 urgent"_s}});
        QVERIFY(world.messages->alert());
        world.arrive({{.app = u"chat.app"_s, .title = u"2 new"_s, .replaces = ids[0]}});
        QCOMPARE(world.held(u"social"_s), {u"2 new"_s});
        QVERIFY(!world.messages->alert());
        QVERIFY(world.messages->urgent().isEmpty());
    }

    void modesThatAreGone() {
        World world;
        QVERIFY(world.begin());
        world.arrive({{.app = u"chat.app"_s, .title = u"urgent"_s}});
        world.modes.removeAt(1);
        world.messages->modesEdited();
        QVERIFY(!world.messages->alert());
        QVERIFY(world.held(u"social"_s).isEmpty());
    }

    void saysWhyItCannotRead() {
        World world;
        QVERIFY(world.begin());
        QVERIFY(world.messages->unavailableReason().isEmpty());
        world.log.reason = u"refused"_s;
        world.log.onChanged();
        QVERIFY(!world.messages->canRead());
        QCOMPARE(world.messages->unavailableReason(), u"refused"_s);
        world.log.reason.clear();
        world.log.removeFile();
        world.clock.advance(2s);
        QVERIFY(!world.messages->canRead());
        world.log.replaceFile();
        world.log.onChanged();
        QVERIFY(world.begin());
    }

    void restsWhileTheLogTells() {
        World world;
        world.log.tells = true;
        QVERIFY(world.begin());
        QCOMPARE(world.clock.pending(), 0U);
        world.log.removeFile(); // and nobody tells when it is back
        world.log.onChanged();
        QVERIFY(QTest::qWaitFor([&] { return !world.messages->canRead(); }));
        world.log.replaceFile();
        world.clock.advance(2s);
        QVERIFY(world.begin());
        QCOMPARE(world.clock.pending(), 0U);
    }
};

QTEST_GUILESS_MAIN(TestHeldMessages)
#include "tst_HeldMessages.moc"
