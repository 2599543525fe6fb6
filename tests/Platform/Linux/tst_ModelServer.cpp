#include "Platform/Linux/ModelServer/ModelServer.h"
#include "Table.h"
#include "fakes/FakeClock.h"

#include <QProcess>
#include <QtTest>

using namespace fendrel;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

Question verdict(const QString& prompt) {
    return {.instructions = u"You sort."_s,
            .prompt = prompt,
            .schemaName = u"Verdict"_s,
            .schema = {{.name = u"what"_s, .description = u"The kind of thing in 2 to 4 words"_s},
                       {.name = u"mode"_s,
                        .kind = SchemaProperty::Kind::choice,
                        .description = u"Where it belongs"_s,
                        .choices = {u"writing"_s, u"none"_s}}}};
}

/// The adapter and, on its machine, a stand-in for a model server.
struct World {
    FakeClock clock;
    QProcess server;
    QString address;
    ModelServer model;
    int changes = 0;
    QStringList answers; ///< in the order of their coming

    explicit World(const QStringList& options = {}) : model(clock, {u"127.0.0.1:1"_s}) {
        model.onAvailabilityChanged = [this] { ++changes; };
        start(options);
        clock.advance(1s); // when it looks for the first time
    }
    ~World() { stop(); }

    void start(const QStringList& options) {
        server.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        server.start(u"python3"_s, QStringList{QStringLiteral(MODEL_SERVER)} + options);
        QVERIFY(server.waitForReadyRead());
        address = QString::fromLocal8Bit(server.readLine().trimmed());
        model.choose({.server = address});
    }
    void stop() {
        server.kill();
        server.waitForFinished();
    }
    /// Time stands still, but for what is due at once.
    bool until(const std::function<bool()>& isSo, int milliseconds = 10'000) {
        return QTest::qWaitFor(
            [&] {
                clock.advance(0ns);
                return isSo();
            },
            milliseconds);
    }
    bool isReady() {
        return until([this] { return model.isAvailable(); });
    }
    Handle ask(const QString& prompt) {
        return model.ask(verdict(prompt), [this](const auto& answer) {
            answers.append(answer ? answer->value(u"what"_s) + u'/' + answer->value(u"mode"_s) : answer.error());
        });
    }
    QString answerTo(const QString& prompt) {
        answers.clear();
        const Handle asked = ask(prompt);
        return until([this] { return !answers.isEmpty(); }) ? answers.first() : u"(none)"_s;
    }
    QByteArray tell(const QByteArray& path, const std::optional<QByteArray>& body = {}) {
        std::optional<QByteArray> told;
        LocalHttp http(clock);
        const Handle sent = http.send({LocalHttpAddress::parse(address)->endpoints.first(), "/stand-in/" + path, body},
                                      [&told](const auto& outcome) { told = outcome ? outcome->body : "(nothing)"; });
        return until([&told] { return told.has_value(); }) ? *told : "(silence)";
    }
    /// Waits for so many requests, and gives the user's part of each; "aborted" for one that was given up.
    QStringList requests(int count) {
        QStringList prompts;
        for (const auto& entry : QJsonDocument::fromJson(tell("requests/" + QByteArray::number(count))).array()) {
            const auto messages = entry.toObject()["question"_L1].toObject()["messages"_L1].toArray();
            prompts.append(messages.isEmpty() ? u"aborted"_s : messages.last().toObject()["content"_L1].toString());
        }
        return prompts;
    }
};

} // namespace

class ModelServerTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

private Q_SLOTS:
    void answers_data() {
        const Table<QStringList> row("options");
        row("chat completions", {});
        row("Ollama", {u"--protocol"_s, u"ollama"_s});
        row("a Unix socket", {u"--socket"_s, m_folder.path() + u"/model.sock"_s});
    }

    void answers() {
        // Neither may be asked on the way to this machine.
        qputenv("http_proxy", "http://127.0.0.1:9");
        qputenv("ALL_PROXY", "http://127.0.0.1:9");
        QFETCH(const QStringList, options);
        World world(options);
        QVERIFY(!world.model.isAvailable() && !world.model.unavailableReason().isEmpty());
        QVERIFY(world.isReady());
        QCOMPARE(world.model.unavailableReason(), QString());
        QCOMPARE(world.tell("answers", R"([{"if":"Window: Ode","answer":{"what":"Poem draft","mode":"none"}}])"), "1");
        QCOMPARE(world.answerTo(u"App: Pen\nWindow: Ode"_s), u"Poem draft/none"_s);
        QCOMPARE(world.answerTo(u"App: Pen"_s), u"something/writing"_s);
        QCOMPARE(world.changes, 1);
        world.model.prewarm({.instructions = u"You sort."_s});
        QCOMPARE(world.requests(3).size(), 3);
    }

    void aFailureIsOneAnswerOnly() {
        World world;
        QVERIFY(world.isReady());
        for (const char* behaviour : {"cut", "prose", "error", "close", "flood"}) {
            QCOMPARE(world.tell("behaviour", behaviour), "true");
            QVERIFY2(!world.answerTo(u"App: Pen"_s).contains(u'/') && world.answers.size() == 1, behaviour);
            QVERIFY(world.model.isAvailable());
            QCOMPARE(world.tell("behaviour", "well"), "true");
            QCOMPARE(world.answerTo(u"App: Pen"_s), u"something/writing"_s);
        }
    }

    void asksOneAtATimeAndTheNewestFirst() {
        World world({u"--behaviour"_s, u"late"_s});
        QVERIFY(world.isReady());
        Handle first = world.ask(u"1"_s);
        const Handle second = world.ask(u"2"_s);
        Handle third = world.ask(u"3"_s);
        const Handle fourth = world.ask(u"4"_s);
        QCOMPARE(world.requests(1), QStringList{u"1"_s});
        third.reset(); // waits
        first.reset(); // is being asked
        auto requests = world.requests(3);
        requests.removeOne(u"aborted"_s); // its place in the order is the system's affair
        QCOMPARE(requests, (QStringList{u"1"_s, u"4"_s}));
        world.clock.advance(20s);
        QCOMPARE(world.answers, QStringList{u"no answer in time"_s});
        requests = world.requests(5);
        QCOMPARE(requests.count(u"aborted"_s), 2);
        QVERIFY(requests.contains(u"2"_s));
        world.tell("release", "");
        QVERIFY(world.until([&] { return world.answers.size() == 2; }));
        QCOMPARE(world.answers.last(), u"something/writing"_s);
    }

    void noticesComingAndGoing() {
        World world({u"--behaviour"_s, u"loading"_s});
        QVERIFY(world.until([&] { return world.model.unavailableReason().contains(u"loading"_s); }));
        QVERIFY(world.answerTo(u"App: Pen"_s).contains(u"loading"_s));
        world.tell("behaviour", "well");
        world.clock.advance(30s);
        QVERIFY(world.isReady());
        world.model.choose({.server = world.address, .model = u"other"_s});
        QVERIFY(world.until([&] { return world.model.unavailableReason().contains(u"other"_s); }));
        world.model.choose({.server = world.address});
        QVERIFY(world.isReady());
        world.stop();
        world.answerTo(u"App: Pen"_s); // found out by the question, not by the next look
        QVERIFY(world.until([&] { return world.model.unavailableReason().contains(u"No model server answers"_s); }));
        world.start({});
        QVERIFY(world.isReady());
        world.stop();
        world.clock.advance(30s); // nobody asks
        QVERIFY(world.until([&] { return !world.model.isAvailable(); }));
        world.changes = 0;
        world.model.choose({.server = u"example.com:80"_s});
        QVERIFY(world.model.unavailableReason().contains(u"elsewhere"_s));
    }

    void aRealServerKeepsToTheSchema() {
        if (!qEnvironmentVariableIsSet("FENDREL_MODEL_SERVER"))
            QSKIP("FENDREL_MODEL_SERVER names no model server");
        FakeClock clock;
        ModelServer model(clock);
        model.choose({.server = qEnvironmentVariable("FENDREL_MODEL_SERVER")});
        clock.advance(1s);
        const auto until = [&clock](const auto& isSo) {
            return QTest::qWaitFor(
                [&] {
                    clock.advance(0ns);
                    return isSo();
                },
                110'000);
        };
        QVERIFY2(until([&] { return model.isAvailable(); }), qPrintable(model.unavailableReason()));
        std::optional<QString> failure;
        const Handle asked = model.ask(verdict(u"App: Pen\nWindow: Ode, third draft"_s),
                                       [&](const auto& answer) { failure = answer ? QString() : answer.error(); });
        QVERIFY(until([&] { return failure.has_value(); }));
        QCOMPARE(*failure, QString());
    }
};

QTEST_GUILESS_MAIN(ModelServerTest)
#include "tst_ModelServer.moc"
