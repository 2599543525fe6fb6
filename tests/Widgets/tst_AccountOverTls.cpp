#include "Files.h"
#include "Platform/Linux/Keyring/KeyringStore.h"
#include "Platform/Linux/KeyringSession.h"
#include "Platform/Null/NullCalendarStore.h"
#include "Platform/Shared/LocalServer.h"
#include "Platform/Shared/NetworkClient.h"
#include "Platform/Shared/TestAuthority.h"
#include "Platform/Shared/TlsTunnel.h"
#include "Table.h"
#include "UI/Widgets/Cards.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeSettings.h"

#include <QtTest>

using namespace fendrel;
using namespace std::chrono_literals;

using Service = WidgetAccounts::Service;

namespace {

const QString host = u"api.github.com"_s;
const QString key = u"ghp_secret"_s;

QByteArray answer(const QByteArray& head, const QByteArray& body) {
    return "HTTP/1.1 " + head + "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

QByteArray recorded() {
    return contentOf(QStringLiteral(TEST_DATA "/services/github.json"));
}

QByteArray zipped(const QByteArray& content) {
    QProcess gzip;
    gzip.start(u"gzip"_s, {u"--stdout"_s});
    gzip.write(content);
    gzip.closeWriteChannel();
    gzip.waitForFinished();
    return gzip.readAllStandardOutput();
}

/// The user's computer, from the keyring to the network's edge, and the only server that it reaches.
struct World {
    World(const TestAuthority& trusted, const QSslConfiguration& shown)
        : tunnel(new TlsTunnel(shown)),
          server(std::unique_ptr<QTcpServer>(tunnel)),
          http(clock, NetworkClient::Route{
                          .proxy = QNetworkProxy(QNetworkProxy::HttpProxy, u"127.0.0.1"_s, tunnel->serverPort()),
                          .security = trusted.trusted()}) {
        widgets.sync({.widgets = {u"github"_s}});
    }

    CardContent card() const { return cardContent(widgets, accounts, DockWidget::github, clock.now()); }

    TlsTunnel* tunnel;
    LocalServer server;
    FakeClock clock;
    FakeSettings settings;
    KeyringStore keyring;
    NetworkClient http;
    WidgetAccounts accounts{keyring};
    NullCalendarStore calendar;
    Widgets widgets{clock, http, settings, calendar, accounts, {}};
    GitHubFeed& github = widgets.github();
};

} // namespace

class AccountOverTlsTest : public QObject {
    Q_OBJECT

    std::unique_ptr<KeyringSession> m_session;
    const TestAuthority m_authority;
    const TestAuthority m_stranger;

private Q_SLOTS:
    void initTestCase() {
        m_session = std::make_unique<KeyringSession>();
        QVERIFY(m_session->isUp() && m_session->startKeyring());
    }
    void cleanupTestCase() { m_session.reset(); }
    void cleanup() {
        KeyringStore keyring;
        WidgetAccounts accounts(keyring);
        bool isRemoved = false;
        accounts.remove(Service::github, [&](auto) { isRemoved = true; });
        QTRY_VERIFY(isRemoved);
    }

    void aKeyComesAndGoes() {
        World world(m_authority, m_authority.certified(host));
        QTRY_VERIFY(world.accounts.isRead());
        QCOMPARE(world.card().state, CardContent::State::disconnected);
        QCOMPARE(world.server.connections, 0);

        world.server.answers = {answer("200 OK", recorded())};
        world.accounts.save(key, Service::github);
        QTRY_COMPARE(world.card().state, CardContent::State::ready);
        QCOMPARE(world.card().rows.size(), 4);
        QCOMPARE(world.server.requests.size(), 1);
        QVERIFY(world.server.requests.first().contains("\r\nAuthorization: Bearer " + key.toUtf8() + "\r\n"));
        QCOMPARE(KeyringSession::labels({.service = u"org.fendrel.Fendrel.widgets"_s, .account = u"github"_s}),
                 QStringList{u"Fendrel widget key"_s});

        World next(m_authority, m_authority.certified(host)); // after a restart
        next.server.answers = {answer("200 OK", recorded())};
        QTRY_COMPARE(next.card().state, CardContent::State::ready);
        next.accounts.remove(Service::github);
        QTRY_COMPARE(next.card().state, CardContent::State::disconnected);
        QVERIFY(next.card().rows.isEmpty() && next.card().problem.isEmpty());
        world.accounts.readAgain();
        QTRY_VERIFY(!world.github.value()); // it notices when it looks again
    }

    void trustsOnlyWhatItShould_data() {
        const Table<bool, QString, QByteArray, QString> row("isKnown", "certified", "answer", "says");
        row("zipped", true, host, answer("200 OK\r\nContent-Encoding: gzip", zipped(recorded())), {});
        row("of an unknown authority", false, host, answer("200 OK", recorded()), u"Couldn't reach GitHub"_s);
        row("of another host", true, u"example.org"_s, answer("200 OK", recorded()), u"Couldn't reach GitHub"_s);
        row("leads elsewhere", true, host, answer("307 Moved\r\nLocation: https://example.org/graphql", {}),
            u"GitHub answered 307"_s);
        row("too large", true, host, answer("200 OK\r\nContent-Encoding: gzip", zipped(QByteArray(9'000'000, ' '))),
            u"GitHub sent something unexpected"_s);
        row("stalls", true, host, "HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\n{", u"Couldn't reach GitHub"_s);
    }
    void trustsOnlyWhatItShould() {
        QFETCH(const bool, isKnown);
        QFETCH(const QString, certified);
        QFETCH(const QByteArray, answer);
        QFETCH(const QString, says);
        World world(m_authority, (isKnown ? m_authority : m_stranger).certified(certified));
        QTRY_VERIFY(world.accounts.isRead());
        world.server.answers = {answer};
        world.accounts.save(key, Service::github);
        const bool isStalling = answer.endsWith('{');
        if (isStalling) {
            QTRY_COMPARE(world.server.requests.size(), 1);
            world.clock.advance(60s);
        }
        QTRY_VERIFY(world.github.value() || !world.github.error().isEmpty());
        QCOMPARE(world.github.error(), says);
        QCOMPARE(world.github.value().has_value(), says.isEmpty());
        const bool isBelieved = isKnown && certified == host;
        QCOMPARE(world.server.requests.size(), isBelieved ? 1 : 0);
        for (const auto& head : world.tunnel->heads)
            QVERIFY2(head.startsWith("CONNECT " + host.toLatin1() + ":443 ") && !head.contains(key.toLatin1()), head);
    }
};

QTEST_GUILESS_MAIN(AccountOverTlsTest)
#include "tst_AccountOverTls.moc"
