#include "App/ControllerWorld.h"
#include "Control/ControlServer.h"
#include "Control/Protocol.h"
#include "Files.h"

#include <QJsonDocument>
#include <QLocalSocket>
#include <QProcess>
#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

constexpr int deadline = 20'000; // milliseconds

struct World : ControllerWorld {
    QString folder = fake.home.filePath(u"Fendrel"_s);
    QString path = control::socketPath(folder);
    std::optional<control::ControlServer> server;

    World() {
        QDir().mkpath(folder);
        server.emplace(launch(), folder);
        if (!server->listen())
            qFatal("no control socket");
    }
};

void start(QProcess& process, const QString& words, const QString& dataHome) {
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_DATA_HOME"_s, dataHome);
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(FENDRELCTL), words.split(u' ', Qt::SkipEmptyParts));
}

/// What the program says, with its exit status: "STATUS out" or "STATUS error".
QByteArray fendrelctl(const QString& words, const QString& dataHome) {
    QProcess process;
    QSignalSpy ended(&process, &QProcess::finished);
    start(process, words, dataHome);
    ended.wait(deadline);
    return QByteArray::number(process.exitCode()) + ' ' + process.readAllStandardOutput() +
           process.readAllStandardError();
}

/// A program of another make at the socket.
struct Peer {
    QLocalSocket socket;

    explicit Peer(const World& world) {
        socket.connectToServer(world.path);
        if (!socket.waitForConnected(deadline))
            qFatal("not connected");
    }
    void say(const QByteArray& bytes) { socket.write(bytes); }
    /// The next line, or nothing when none comes.
    QByteArray next() {
        QSignalSpy spy(&socket, &QLocalSocket::readyRead);
        while (!socket.canReadLine()) {
            if (!spy.wait(deadline))
                return {};
        }
        return socket.readLine();
    }
    QJsonObject nextObject() { return QJsonDocument::fromJson(next()).object(); }
    bool isCutOff() {
        QSignalSpy spy(&socket, &QLocalSocket::disconnected);
        return socket.state() == QLocalSocket::UnconnectedState || spy.wait(deadline);
    }
};

const QByteArray watch = "{\"command\":\"watch\"}\n";
const QByteArray stop = "{\"command\":\"focus stop\"}\n";
const QByteArray done = "{\"result\":null}\n";

} // namespace

class ControlServerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fendrelctlAnswers() {
        World world;
        const auto answer = [&](const char* words) {
            return fendrelctl(QString::fromLatin1(words), world.fake.home.path());
        };
        QCOMPARE(answer("modes"), "0 writing\tWriting\t*\nbuilding\tBuilding\nsocial\tSocial\n");
        QCOMPARE(answer("settings get dockSize --json"), "0 \"medium\"\n");
        QCOMPARE(answer("settings get magnify"), "0 yes\n");
        QCOMPARE(answer("--json settings get magnify"), "0 true\n");
        QCOMPARE(answer("settings get focusShortcut"), "0 key: F\nkeyCode: 3\nmodifiers: 2048\n");
        QCOMPARE(answer("explain"), "0 because:\n  Nothing is in front.\nsubject: -\nverdict: -\n");
        QCOMPARE(answer("focus start --for 25m"), "0 ");
        QCOMPARE(answer("--version"), "0 fendrelctl " FENDREL_VERSION "\n");
        QCOMPARE(answer("switch nowhere"), "2 fendrelctl: unknown mode 'nowhere'\n");
        QCOMPARE(answer("gate stay"), "2 fendrelctl: the gate is closed\n");
        world.controller->bridge().onTab({.url = QUrl(u"https://a.example/"_s), .title = u"A page"_s});
        world.fake.clock->advance(std::chrono::minutes(2));
        world.commit(u"building"_s);
        QCOMPARE(answer("context list"), "0 writing\t2026-01-05T09:02:00.000Z\t-\thttps://a.example/\n");
    }

    void fendrelctlSaysWhenNothingRuns() {
        const QTemporaryDir home;
        const QByteArray nothing = "3 fendrelctl: Fendrel is not running\n";
        QCOMPARE(fendrelctl(u"status"_s, home.path()), nothing);
        putFile(control::socketPath(home.filePath(u"Fendrel"_s)), {}); // what a crash may leave
        QCOMPARE(fendrelctl(u"status"_s, home.path()), nothing);
        ControllerWorld world;
        control::ControlServer server(world.launch(), home.filePath(u"Fendrel"_s));
        QVERIFY(server.listen()); // in its place
        QVERIFY(fendrelctl(u"status"_s, home.path()).startsWith("0 "));
    }

    void streamsOneLineForEachChange() {
        World world;
        AppController& controller = *world.controller;
        Peer peer(world), other(world);
        const auto change = [&] { return peer.nextObject().keys().join(u' '); };
        peer.say(watch);
        QCOMPARE(
            change(),
            u"browsers budgets dock focus front gate judgement messages missing mode model offer onboarding pending suggestion time undo veils"_s);
        controller.focus().start();
        QCOMPARE(change(), u"focus time"_s);
        other.say(watch);
        QCOMPARE(other.nextObject()[u"focus"][u"on"], QJsonValue(true));
        world.front(world.run(world.chat)); // an activation with all that follows from it
        QCOMPARE(change(), u"front gate judgement time"_s);
        QCOMPARE(other.nextObject()[u"gate"][u"owner"], QJsonValue(u"social"_s));
        controller.drift().switchToOwner();
        QCOMPARE(change(), u"pending time"_s);
        controller.engine().cancelPending();
        controller.drift().switchToOwner(); // back and forth: the same wait again
        controller.drift().stay();
        QCOMPARE(change(), u"gate pending time"_s);
        world.fake.clock->advance(std::chrono::seconds(5));
        QCOMPARE(change(), u"budgets gate time"_s); // what was stopped is still in front after two seconds
        // What a command changes is told before it is answered.
        peer.say(stop);
        QCOMPARE(change(), u"focus gate time"_s);
        QCOMPARE(peer.next(), done);
    }

    void bearsNoise() {
        World world;
        Peer peer(world), other(world);
        QByteArray binary(100'000, '\0');
        for (qsizetype index = 0; index < binary.size(); ++index)
            binary[index] = static_cast<char>(index % 251 == '\n' ? 0 : index % 251);
        const QByteArray lines[] = {"",
                                    "GET / HTTP/1.1\r",
                                    binary,
                                    "{\"command\":\"status\"",
                                    "{\"command\":\"dance\"}",
                                    "{\"command\":{\"status\":1}}",
                                    QByteArray(500'000, '[')};
        for (const QByteArray& line : lines) {
            peer.say(line + '\n' + stop);
            QCOMPARE(peer.next(), QByteArray("{\"error\":\"that is no request\"}\n"));
            QCOMPARE(peer.next(), done); // the connection is still good
        }
        peer.say(stop + QByteArray(2'000'000, 'x'));
        QCOMPARE(peer.next(), done);
        QVERIFY(peer.isCutOff()); // a line without end
        other.say(stop);
        QCOMPARE(other.next(), done);
    }

    void cutsOffAWatcherThatNeverReads() {
        World world;
        const qint64 pid = world.run(u"org.other"_s);
        const auto window = world.fake.accessibility->addWindow(pid, {});
        world.front(pid);
        Peer stuck(world), reader(world), flood(world);
        for (Peer* peer : {&stuck, &reader}) {
            peer->say(watch);
            QVERIFY(!peer->next().isEmpty());
        }
        for (Peer* peer : {&stuck, &flood})
            peer->socket.setReadBufferSize(1);
        flood.say(QByteArray("{\"command\":\"settings list\"}\n").repeated(20'000));
        for (int change = 0; change < 60; ++change) {
            world.fake.accessibility->setTitle(window, QString::number(change).repeated(50'000));
            QVERIFY(reader.nextObject().contains(u"front"_s));
        }
        for (Peer* peer : {&stuck, &flood}) {
            peer->socket.setReadBufferSize(0);
            peer->socket.readAll();
            QVERIFY(peer->isCutOff());
        }
    }

    void forgetsAClientThatIsGone() {
        World world;
        for (int round = 0; round < 20; ++round) {
            auto peer = std::make_unique<Peer>(world);
            peer->say(stop.repeated(round) + watch + stop);
            QVERIFY(peer->socket.waitForBytesWritten(deadline));
            peer.reset();
            Peer other(world);
            other.say(stop);
            QCOMPARE(other.next(), done);
            world.controller->focus().start();
            QCoreApplication::sendPostedEvents();
        }
    }

    void isForTheOwnerOnly() {
        World world;
        QCOMPARE(permissionsOf(world.path) & 0077U, 0U);
        control::ControlServer tooDeep(*world.controller, world.fake.home.filePath(QString(120, u'x')));
        QVERIFY(!tooDeep.listen());
    }
};

QTEST_GUILESS_MAIN(ControlServerTest)
#include "tst_ControlServer.moc"
