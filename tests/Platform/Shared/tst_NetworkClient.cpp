#include "LocalServer.h"
#include "Platform/Shared/NetworkClient.h"
#include "TestAuthority.h"
#include "fakes/FakeClock.h"

#include <QtTest>

#include <optional>

using namespace fendrel;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

QByteArray answer(const QByteArray& head, const QByteArray& body) {
    return "HTTP/1.1 " + head + "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

QByteArray packed(const QByteArray& content) {
    return answer("200 OK\r\nContent-Encoding: deflate", qCompress(content).mid(4)); // without Qt's own length
}

QByteArray headerOf(const HttpResponse& response, const QByteArray& name) {
    for (const auto& [each, value] : response.headers) {
        if (each == name)
            return value;
    }
    return "(none)";
}

} // namespace

class NetworkClientTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_server.emplace();
        m_client.emplace(m_clock);
    }

    void givesTheAnswerAsItIs() {
        struct Row {
            QByteArray said{};
            int status{};
            QByteArray body{};
        };
        const QByteArray large(3'000'000, 'x'), chunks = "3\r\nabc\r\n2\r\nde\r\n0\r\n\r\n";
        QList<Row> rows{{"HTTP/1.1 204 No Content\r\n\r\n", 204, ""},
                        {answer("200 OK", large), 200, large},
                        {packed(large), 200, large},
                        {"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n" + chunks, 200, "abcde"},
                        {answer("401 No\r\nWWW-Authenticate: Basic realm=\"x\"", "who?"), 401, "who?"}};
        for (const int status : {400, 404, 429, 503, 599})
            rows.append({answer(QByteArray::number(status) + " Why", "reason"), status, "reason"});
        for (const auto& [said, status, body] : rows) {
            m_server->answers = {said};
            const auto outcome = exchange({.url = m_server->url(u"/"_s)});
            QVERIFY2(outcome, said.left(30));
            QCOMPARE(outcome->status, status);
            QCOMPARE(outcome->body, body);
            QCOMPARE(m_clock.pending(), std::size_t(0));
        }
    }

    void goesByTheSystemsProxy() {
        qputenv("http_proxy", m_server->url({}).toEncoded());
        const auto tidy = qScopeGuard([] { qunsetenv("http_proxy"); });
        m_server->answers = {answer("200 OK", "by proxy")};
        int answers = 0;
        m_client->send({.url = QUrl(u"http://dropped.invalid/"_s)}, [&](const auto&) { ++answers; }).reset();
        const auto outcome = exchange({.url = QUrl(u"http://service.invalid/a"_s)});
        QVERIFY(outcome);
        QCOMPARE(outcome->body, "by proxy");
        QVERIFY(m_server->requests.constFirst().startsWith("GET http://service.invalid/a HTTP/1.1\r\n"));
        QCOMPARE(answers, 0);
        QCOMPARE(m_clock.pending(), std::size_t(0));
    }

    void sendsWhatItIsGivenAndFollowsNoRedirect() {
        LocalServer other;
        for (const auto* status : {"301", "303", "308"}) {
            const QByteArray target = other.url(u"/stolen"_s).toEncoded();
            m_server->answers = {answer(QByteArray(status) + " Moved\r\nSet-Cookie: id=1\r\nLocation: " + target, "")};
            const auto outcome = exchange({.method = "POST",
                                           .url = m_server->url(u"/v1?a=%2B"_s),
                                           .headers = {{"Authorization", "Bearer key"}, {"Content-Type", "text/x"}},
                                           .body = "{\"q\":1}"});
            QVERIFY(outcome);
            QCOMPARE(outcome->status, QByteArray(status).toInt());
            QCOMPARE(headerOf(*outcome, "location"), target);
        }
        QCOMPARE(other.connections, 0);
        const QByteArray request = m_server->requests.value(2); // as asked for, and without the cookie
        QVERIFY(request.startsWith("POST /v1?a=%2B HTTP/1.1\r\n") && request.endsWith("\r\n\r\n{\"q\":1}"));
        QVERIFY(request.contains("\r\nAuthorization: Bearer key\r\n") && !request.toLower().contains("cookie"));
    }

    void failsWithAReason() {
        const auto reason = [this](const QUrl& url) {
            const auto outcome = exchange({.url = url, .headers = {{"Authorization", "secret"}}});
            return outcome ? u"answered"_s : u"%1 %2"_s.arg(int(outcome.error().kind)).arg(outcome.error().detail);
        };
        const QString unreachable = QString::number(int(HttpError::Kind::unreachable)) + u' ';
        QCOMPARE(reason(QUrl(u"file:///etc/hostname?secret"_s)), unreachable + u"neither http nor https"_s);
        QStringList reasons{reason(QUrl(u"http:///?key=secret"_s))};
        QTcpServer closed;
        closed.listen(QHostAddress::LocalHost);
        const QUrl refused(u"http://127.0.0.1:%1/?key=secret"_s.arg(closed.serverPort()));
        closed.close();
        reasons += reason(refused);
        for (const char* said : {"HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\nhalf", "nonsense\r\n\r\n"}) {
            init();
            m_server->answers = {said};
            m_server->onRequest = [this] { m_server->lastSocket->disconnectFromHost(); };
            reasons += reason(m_server->url(u"/?key=secret"_s));
        }
        for (const QString& each : reasons)
            QVERIFY2(each.startsWith(unreachable) && !each.contains(u"secret"_s), qPrintable(each));
    }

    void limitsTheUnpackedBody() {
        for (const int size : {100'000, 100'001, 50'000'000}) {
            const QByteArray content(size, 'x');
            for (const QByteArray& said : {answer("200 OK", content), packed(content)}) {
                init(); // the last one may still be talking
                m_server->answers = {said};
                const auto outcome = exchange({.url = m_server->url(u"/"_s), .sizeLimit = 100'000});
                QCOMPARE(bool(outcome), size == 100'000);
                QVERIFY(outcome ? outcome->body == content : outcome.error().kind == HttpError::Kind::tooLarge);
            }
        }
        m_server->answers = {answer("200 OK\r\nContent-Encoding: deflate", "does not unpack")};
        const auto outcome = exchange({.url = m_server->url(u"/"_s)});
        QVERIFY(!outcome);
        QCOMPARE(outcome.error().kind, HttpError::Kind::tooLarge);
    }

    void endsAtTheDeadlineEvenIfDataTricklesIn() {
        m_server->answers = {"HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\nhalf"};
        QEventLoop loop;
        std::optional<Outcome> outcome;
        const auto handle = m_client->send({.url = m_server->url(u"/"_s), .timeout = 10s}, [&](const Outcome& answer) {
            outcome = answer;
            loop.quit();
        });
        m_server->onRequest = [&] { loop.quit(); };
        m_server->onDisconnected = [&] { loop.quit(); };
        loop.exec();
        m_clock.advance(10s - 1ns);
        m_server->lastSocket->write("more");
        m_server->lastSocket->flush();
        QVERIFY(!outcome);
        m_clock.advance(1ns);
        QVERIFY(outcome && !*outcome);
        QCOMPARE(outcome->error().kind, HttpError::Kind::timedOut);
        loop.exec(); // the connection does not linger
        QVERIFY(!m_server->lastSocket || m_server->lastSocket->state() == QAbstractSocket::UnconnectedState);
    }

    void distrustsUnknownCertificates() {
        auto secure = std::make_unique<QSslServer>();
        secure->setSslConfiguration(TestAuthority().certified(u"localhost"_s));
        LocalServer server(std::move(secure));
        server.answers = {answer("200 OK", "believed")};
        const auto outcome =
            exchange({.url = server.url(u"/"_s, u"https"_s), .headers = {{"Authorization", "Bearer key"}}});
        QVERIFY(!outcome);
        QCOMPARE(outcome.error().kind, HttpError::Kind::unreachable);
        QVERIFY2(outcome.error().detail.contains(u"certificate"_s), qPrintable(outcome.error().detail));
        QCOMPARE(server.requests, QByteArrayList());
    }

    void droppedRequestIsAborted() {
        QEventLoop loop;
        bool isCalled = false;
        auto handle = m_client->send({.url = m_server->url(u"/"_s)}, [&](const auto&) { isCalled = true; });
        m_server->onRequest = [&] { handle.reset(); };
        m_server->onDisconnected = [&] { loop.quit(); };
        loop.exec();
        m_clock.advance(1h);
        QVERIFY(!isCalled);
        QCOMPARE(m_clock.pending(), std::size_t(0));

        // What is dropped before it was sent, and what outlives the client, is as quiet.
        m_client->send({.url = m_server->url(u"/"_s)}, [&](const auto&) { isCalled = true; }).reset();
        handle = m_client->send({.url = m_server->url(u"/"_s)}, [&](const auto&) { isCalled = true; });
        m_client.reset();
        QCoreApplication::processEvents();
        m_clock.advance(1h);
        handle.reset();
        QVERIFY(!isCalled);
    }

    void callbackMayDropEverything() {
        QEventLoop loop;
        int called = 0;
        Handle handle;
        const auto dropAll = [&](const auto&) {
            ++called;
            handle.reset();
            m_client.reset();
            loop.quit();
        };
        m_server->answers = {answer("200 OK", "a")};
        handle = m_client->send({.url = m_server->url(u"/"_s)}, dropAll);
        loop.exec();
        m_client.emplace(m_clock);
        handle = m_client->send({.url = m_server->url(u"/silence"_s), .timeout = 1s}, dropAll);
        m_clock.advance(1s);
        QCOMPARE(called, 2);
    }

private:
    using Outcome = Result<HttpResponse, HttpError>;

    /// Sends and waits; also sees to it that the callback never comes from inside `send`.
    Outcome exchange(const HttpRequest& request) {
        std::optional<Outcome> outcome;
        QEventLoop loop;
        const auto handle = m_client->send(request, [&](const Outcome& answer) {
            outcome = answer;
            loop.quit();
        });
        if (outcome)
            qFatal("answered from inside send()");
        QMetaObject::invokeMethod(
            &loop, [this] { m_clock.advance({}); }, Qt::QueuedConnection);
        loop.exec();
        return *outcome;
    }

    FakeClock m_clock;
    std::optional<LocalServer> m_server;
    std::optional<NetworkClient> m_client;
};

QTEST_GUILESS_MAIN(NetworkClientTest)
#include "tst_NetworkClient.moc"
