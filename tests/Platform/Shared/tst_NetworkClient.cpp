#include "LocalServer.h"
#include "Platform/Shared/NetworkClient.h"
#include "fakes/FakeClock.h"

#include <QSslCertificate>
#include <QSslKey>
#include <QtTest>

#include <optional>

using namespace fendrel;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

class NetworkClientTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void givesTheAnswerAsItIs_data();
    void givesTheAnswerAsItIs();
    void sendsWhatItIsGiven();
    void followsNoRedirect();
    void keepsNoCookies();
    void failsWithAReason_data();
    void failsWithAReason();
    void limitsTheUnpackedBody_data();
    void limitsTheUnpackedBody();
    void refusesWhatDoesNotUnpack();
    void endsAtTheDeadlineEvenIfDataTricklesIn();
    void distrustsUnknownCertificates();
    void droppedRequestIsAborted();
    void callbackMayDropEverything();

private:
    using Outcome = Result<HttpResponse, HttpError>;

    /// Sends and waits; also sees to it that the callback never comes from inside `send`.
    Outcome exchange(const HttpRequest& request) {
        std::optional<Outcome> outcome;
        QEventLoop loop;
        bool isSending = true;
        const auto handle = m_client->send(request, [&](const Outcome& answer) {
            outcome = answer;
            loop.exit(isSending ? 1 : 0);
        });
        isSending = false;
        if (outcome || loop.exec() != 0)
            qFatal("answered from inside send()");
        return *outcome;
    }

    FakeClock m_clock;
    std::optional<LocalServer> m_server;
    std::optional<NetworkClient> m_client;
};

namespace {

QByteArray answer(const QByteArray& head, const QByteArray& body) {
    return "HTTP/1.1 " + head + "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

void appendLittleEndian(QByteArray& bytes, quint32 number) {
    for (int shift = 0; shift < 32; shift += 8)
        bytes.append(char(number >> shift));
}

QByteArray gzip(const QByteArray& content) {
    quint32 checksum = 0xffffffff;
    for (const char byte : content) {
        checksum ^= quint8(byte);
        for (int bit = 0; bit < 8; ++bit)
            checksum = (checksum >> 1) ^ ((checksum & 1) != 0 ? 0xedb88320 : 0);
    }
    const QByteArray compressed =
        qCompress(content); // 4 bytes of length and 2 of head, data, 4 of another checksum
    QByteArray packed("\x1f\x8b\x08\0\0\0\0\0\0\xff", 10);
    packed += compressed.mid(6, compressed.size() - 10);
    appendLittleEndian(packed, ~checksum);
    appendLittleEndian(packed, quint32(content.size()));
    return packed;
}

QByteArray headerOf(const HttpResponse& response, const QByteArray& name) {
    for (const auto& [each, value] : response.headers) {
        if (each == name)
            return value;
    }
    return "(none)";
}

} // namespace

void NetworkClientTest::init() {
    m_server.emplace();
    m_client.emplace(m_clock);
}

void NetworkClientTest::givesTheAnswerAsItIs_data() {
    QTest::addColumn<QByteArray>("said");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("body");
    const QByteArray large(3'000'000, 'x');
    QTest::newRow("plain") << answer("200 OK", "hello") << 200 << QByteArray("hello");
    QTest::newRow("empty") << QByteArray("HTTP/1.1 204 No Content\r\n\r\n") << 204 << QByteArray();
    QTest::newRow("large") << answer("200 OK", large) << 200 << large;
    QTest::newRow("gzip") << answer("200 OK\r\nContent-Encoding: gzip", gzip("unpacked")) << 200
                          << QByteArray("unpacked");
    QTest::newRow("large gzip") << answer("200 OK\r\nContent-Encoding: gzip", gzip(large)) << 200 << large;
    QTest::newRow("chunked")
        << QByteArray("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n3\r\nabc\r\n2\r\nde\r\n0\r\n\r\n")
        << 200 << QByteArray("abcde");
    for (const int status : {400, 401, 403, 404, 409, 418, 429, 500, 503, 599}) {
        QTest::addRow("%d", status) << answer(QByteArray::number(status) + " Why", "reason") << status
                                    << QByteArray("reason");
    }
    QTest::newRow("asks for a password")
        << answer("401 No\r\nWWW-Authenticate: Basic realm=\"x\"", "who?") << 401 << QByteArray("who?");
}

void NetworkClientTest::givesTheAnswerAsItIs() {
    QFETCH(QByteArray, said);
    QFETCH(int, status);
    QFETCH(QByteArray, body);
    m_server->answers = {said};
    const auto outcome = exchange({.url = m_server->url(u"/"_s)});
    QVERIFY(outcome);
    QCOMPARE(outcome->status, status);
    QCOMPARE(outcome->body, body);
    QCOMPARE(m_clock.pending(), std::size_t(0));
}

void NetworkClientTest::sendsWhatItIsGiven() {
    m_server->answers = {answer("200 OK\r\nX-Rate-LIMIT: 5", "{}")};
    const auto outcome =
        exchange({.method = "POST",
                  .url = m_server->url(u"/v1?a=%2B"_s),
                  .headers = {{"Authorization", "Bearer key"}, {"Content-Type", "application/json"}},
                  .body = "{\"q\":1}"});
    QVERIFY(outcome);
    QCOMPARE(headerOf(*outcome, "x-rate-limit"), "5");
    const QByteArray request = m_server->requests.value(0);
    QVERIFY(request.startsWith("POST /v1?a=%2B HTTP/1.1\r\n"));
    QVERIFY(request.contains("\r\nAuthorization: Bearer key\r\n"));
    QVERIFY(request.contains("\r\nContent-Type: application/json\r\n"));
    QVERIFY(request.endsWith("\r\n\r\n{\"q\":1}"));
}

void NetworkClientTest::followsNoRedirect() {
    LocalServer other;
    for (const auto* status : {"301", "302", "303", "307", "308"}) {
        const QByteArray target = other.url(u"/stolen"_s).toEncoded();
        m_server->answers = {answer(QByteArray(status) + " Moved\r\nLocation: " + target, "")};
        const auto outcome =
            exchange({.url = m_server->url(u"/"_s), .headers = {{"Authorization", "Bearer key"}}});
        QVERIFY(outcome);
        QCOMPARE(outcome->status, QByteArray(status).toInt());
        QCOMPARE(headerOf(*outcome, "location"), target);
    }
    QCOMPARE(other.connections, 0);
}

void NetworkClientTest::keepsNoCookies() {
    const auto setting = answer("200 OK\r\nSet-Cookie: id=1\r\nCache-Control: max-age=600", "a");
    m_server->answers = {setting, setting};
    for (int count = 0; count < 2; ++count)
        QVERIFY(exchange({.url = m_server->url(u"/"_s)}));
    QCOMPARE(m_server->requests.size(), 2);
    QVERIFY(!m_server->requests.last().toLower().contains("cookie"));
}

void NetworkClientTest::failsWithAReason_data() {
    QTest::addColumn<QUrl>("url");
    QTest::addColumn<QByteArray>("said");
    QTcpServer closed;
    closed.listen(QHostAddress::LocalHost);
    const QUrl refused(u"http://127.0.0.1:%1/?key=secret"_s.arg(closed.serverPort()));
    QTest::newRow("refused") << refused << QByteArray();
    QTest::newRow("file") << QUrl(u"file:///etc/hostname?secret"_s) << QByteArray();
    QTest::newRow("data") << QUrl(u"data:text/plain,secret"_s) << QByteArray();
    QTest::newRow("no address") << QUrl() << QByteArray();
    QTest::newRow("no host") << QUrl(u"http:///?key=secret"_s) << QByteArray();
    QTest::newRow("cut off") << QUrl() << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\nhalf");
    QTest::newRow("nonsense") << QUrl() << QByteArray("hello\r\n\r\n");
}

void NetworkClientTest::failsWithAReason() {
    QFETCH(QUrl, url);
    QFETCH(QByteArray, said);
    if (!said.isEmpty()) {
        url = m_server->url(u"/?key=secret"_s);
        m_server->answers = {said};
        m_server->onRequest = [this] { m_server->lastSocket->disconnectFromHost(); };
    }
    std::optional<Outcome> outcome;
    QEventLoop loop;
    const auto handle =
        m_client->send({.url = url, .headers = {{"Authorization", "secret"}}}, [&](const auto& answer) {
            outcome = answer;
            loop.quit();
        });
    QVERIFY2(!outcome, "answered from inside send()");
    QMetaObject::invokeMethod(
        &loop, [this] { m_clock.advance({}); }, Qt::QueuedConnection);
    loop.exec();
    QVERIFY(!*outcome);
    QCOMPARE(outcome->error().kind, HttpError::Kind::unreachable);
    QCOMPARE(outcome->error().detail.contains(u"neither http nor https"_s),
             !url.scheme().startsWith(u"http"_s));
    QVERIFY2(!outcome->error().detail.contains(u"secret"_s), qPrintable(outcome->error().detail));
}

void NetworkClientTest::limitsTheUnpackedBody_data() {
    QTest::addColumn<bool>("isPacked");
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("fits");
    for (const bool isPacked : {false, true}) {
        QTest::addRow("up to the limit, %d", isPacked) << isPacked << 100'000 << true;
        QTest::addRow("one byte more, %d", isPacked) << isPacked << 100'001 << false;
        QTest::addRow("much more, %d", isPacked) << isPacked << 50'000'000 << false;
    }
}

void NetworkClientTest::limitsTheUnpackedBody() {
    QFETCH(bool, isPacked);
    QFETCH(int, size);
    QFETCH(bool, fits);
    const QByteArray content(size, 'x');
    m_server->answers = {isPacked ? answer("200 OK\r\nContent-Encoding: gzip", gzip(content))
                                  : answer("200 OK", content)};
    const auto outcome = exchange({.url = m_server->url(u"/"_s), .sizeLimit = 100'000});
    QCOMPARE(bool(outcome), fits);
    if (fits)
        QCOMPARE(outcome->body, content);
    else
        QCOMPARE(outcome.error().kind, HttpError::Kind::tooLarge);
}

void NetworkClientTest::refusesWhatDoesNotUnpack() {
    m_server->answers = {answer("200 OK\r\nContent-Encoding: gzip", "no gzip at all")};
    const auto outcome = exchange({.url = m_server->url(u"/"_s)});
    QVERIFY(!outcome);
    QCOMPARE(outcome.error().kind, HttpError::Kind::tooLarge);
}

void NetworkClientTest::endsAtTheDeadlineEvenIfDataTricklesIn() {
    m_server->answers = {"HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\nhalf"};
    QEventLoop loop;
    std::optional<Outcome> outcome;
    const auto handle =
        m_client->send({.url = m_server->url(u"/"_s), .timeout = 10s}, [&](const Outcome& answer) {
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

void NetworkClientTest::distrustsUnknownCertificates() {
    QFile file(QStringLiteral(TEST_DATA "/tls/self-signed.pem"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray pem = file.readAll();
    QSslConfiguration configuration;
    configuration.setPrivateKey(QSslKey(pem, QSsl::Ec));
    configuration.setLocalCertificate(QSslCertificate(pem));
    auto secure = std::make_unique<QSslServer>();
    secure->setSslConfiguration(configuration);
    LocalServer server(std::move(secure));
    server.answers = {answer("200 OK", "believed")};
    const auto outcome =
        exchange({.url = server.url(u"/"_s, u"https"_s), .headers = {{"Authorization", "Bearer key"}}});
    QVERIFY(!outcome);
    QCOMPARE(outcome.error().kind, HttpError::Kind::unreachable);
    QVERIFY2(outcome.error().detail.contains(u"certificate"_s), qPrintable(outcome.error().detail));
    QCOMPARE(server.requests, QByteArrayList());
}

void NetworkClientTest::droppedRequestIsAborted() {
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

void NetworkClientTest::callbackMayDropEverything() {
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

QTEST_GUILESS_MAIN(NetworkClientTest)
#include "tst_NetworkClient.moc"
