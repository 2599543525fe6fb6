#include "Files.h"
#include "Table.h"
#include "Widgets/Services/GitHub.h"
#include "Widgets/Services/Linear.h"
#include "Widgets/Services/Sentry.h"
#include "Widgets/Services/Vercel.h"
#include "fakes/FakeHttp.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

HttpResponse recorded(const QString& name, const HttpHeaders& headers = {}) {
    return {.status = 200, .headers = headers, .body = contentOf(QStringLiteral(TEST_DATA "/services/") + name)};
}

/// How a service's answer reads that brings nothing, in the words of its card.
using Reader = std::function<QString(const HttpResponse&)>;
template<class Read>
Reader sayings(Read read, const QString& service) {
    return [=](const HttpResponse& response) {
        const auto fetched = read(response);
        return fetched ? u"read"_s : message(fetched.error(), service);
    };
}

QJsonObject sentBody(const HttpRequest& request) {
    return QJsonDocument::fromJson(request.body).object();
}

} // namespace
Q_DECLARE_METATYPE(Reader)

class ServicesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void asksExactly() {
        const auto key = u"k"_s;
        const std::pair<QByteArray, QByteArray> authorized{"Authorization", "Bearer k"};
        const std::pair<QByteArray, QByteArray> json{"Content-Type", "application/json"};

        QCOMPARE(vercel::deploysRequest(key).url.toEncoded(), "https://api.vercel.com/v6/deployments?limit=10");
        QCOMPARE(vercel::deploysRequest(key).headers, HttpHeaders{authorized});

        const auto linear = linear::issuesRequest(key, linear::Authorization::bearer);
        QCOMPARE(linear.method, "POST");
        QCOMPARE(linear.headers, (HttpHeaders{authorized, json}));
        QCOMPARE(sentBody(linear),
                 (QJsonObject{
                     {u"query"_s,
                      u"query { viewer { assignedIssues(first: 50, orderBy: updatedAt, filter: { state: { type: { "
                      "nin: [\"completed\", \"canceled\"] } } }) {\n  nodes { identifier title url priority dueDate "
                      "state { name type } } } } }"_s}}));
        QCOMPARE(linear::issuesRequest(key, linear::Authorization::bare).headers.first().second, "k");

        const auto github = github::snapshotRequest(key);
        QCOMPARE(github.url.toEncoded(), "https://api.github.com/graphql");
        QCOMPARE(github.headers, (HttpHeaders{authorized, json}));
        const QString query = sentBody(github)["query"_L1].toString();
        QVERIFY(query.startsWith(u"query {\n  viewer {\n    login\n    pullRequests(states: OPEN, first: 10,"_s));
        QVERIFY(query.endsWith(u"\nfragment pr on PullRequest { title url number repository { nameWithOwner } }"_s));

        QCOMPARE(sentry::organizationsRequest(key).url.toEncoded(), "https://sentry.io/api/0/organizations/");
    }

    void asksSentryOnlyAtHome_data() {
        const Table<QString, QByteArray> row("region", "host");
        row("none", {}, "sentry.io");
        row("a region", u"https://de.sentry.io"_s, "de.sentry.io");
        row("without encryption", u"http://de.sentry.io"_s, {});
        row("somebody else's", u"https://sentry.io.example.org"_s, {});
        row("one that ends alike", u"https://notsentry.io"_s, {});
        row("another port", u"https://de.sentry.io:8443"_s, {});
        row("no address", u"::"_s, {});
    }
    void asksSentryOnlyAtHome() {
        QFETCH(QString, region);
        QFETCH(QByteArray, host);
        const auto request = sentry::issuesRequest(u"k"_s, {.slug = u"a/b"_s, .region = QUrl(region)});
        QCOMPARE(request.has_value(), !host.isEmpty());
        if (request)
            QCOMPARE(request->url.toEncoded(), "https://" + host +
                                                   "/api/0/organizations/a%2Fb/issues/"
                                                   "?query=is%3Aunresolved&statsPeriod=24h&sort=freq&limit=5");
    }

    void readsWhatIsThere() {
        const auto deploys = vercel::readDeploys(recorded(u"vercel.json"_s));
        QVERIFY(deploys);
        QCOMPARE(deploys->size(), 4);
        using vercel::State;
        const QList<State> states{State::building, State::queued, State::building, State::error};
        for (qsizetype i = 0; i < states.size(); ++i)
            QCOMPARE(deploys->at(i).state, states[i]);
        QCOMPARE(deploys->first().commitMessage, u"Mend the cart"_s);
        QVERIFY(deploys->last().inspector.isEmpty());

        const auto issues = linear::readIssues(recorded(u"linear.json"_s));
        QVERIFY(issues);
        QStringList order;
        for (const auto& issue : *issues)
            order.append(issue.identifier);
        QCOMPARE(order, (QStringList{u"ENG-3"_s, u"ENG-4"_s, u"ENG-2"_s, u"ENG-1"_s}));
        QCOMPARE(issues->at(2).dueDate, QDate(2026, 2, 3));
        QVERIFY(!issues->first().dueDate.isValid());

        const auto organization = sentry::readOrganization(recorded(u"sentry-organizations.json"_s));
        QCOMPARE(*organization, (sentry::Organization{.slug = u"acme"_s, .region = QUrl(u"https://de.sentry.io"_s)}));
        const auto errors = sentry::readIssues(recorded(u"sentry-issues.json"_s, {{"x-hits", "37"}}));
        QVERIFY(errors);
        QCOMPARE(errors->total, 37);
        QCOMPARE(errors->issues.size(), 2);
        QCOMPARE(errors->issues.first().events, 1204);
        QCOMPARE(sentry::readIssues(recorded(u"sentry-issues.json"_s))->total, 2);

        const auto snapshot = github::readSnapshot(recorded(u"github.json"_s));
        QVERIFY(snapshot);
        QCOMPARE(snapshot->own.size(), 3);
        QCOMPARE(snapshot->ownCount, 12);
        QCOMPARE(snapshot->reviews.size(), 1);
        QCOMPARE(snapshot->reviewCount, 25);
        QVERIFY(!snapshot->own[1].ci);
        QCOMPARE(snapshot->ci(), github::CI::failing);
    }

    void saysWhatIsWrong_data() {
        const Table<Reader, int, QByteArray, QString> row("read", "status", "body", "says");
        const auto vercel = sayings(vercel::readDeploys, u"Vercel"_s);
        const auto linear = sayings(linear::readIssues, u"Linear"_s);
        const auto organizations = sayings(sentry::readOrganization, u"Sentry"_s);
        const auto errors = sayings(sentry::readIssues, u"Sentry"_s);
        const auto github = sayings(github::readSnapshot, u"GitHub"_s);
        row("vercel: a refused key", vercel, 403, "{}", u"Vercel didn't accept the key"_s);
        row("vercel: only 200 is good", vercel, 204, {}, u"Vercel answered 204"_s);
        row("vercel: a redirect", vercel, 302, {}, u"Vercel answered 302"_s);
        row("vercel: no list", vercel, 200, "{}", u"Vercel sent something unexpected"_s);
        row("linear: errors only", linear, 200, R"({"errors":[{}]})", u"Linear sent no data"_s);
        row("linear: data is null", linear, 200, R"({"data":null})", u"Linear sent no data"_s);
        row("linear: no list", linear, 200, R"({"data":{"viewer":null}})", u"Linear sent something unexpected"_s);
        row("sentry: none", organizations, 200, "[]", u"No Sentry organization"_s);
        row("sentry: an object", errors, 200, "{}", u"Sentry sent something unexpected"_s);
        row("github: revoked", github, 401, "{}", u"GitHub didn't accept the token"_s);
        row("github: forbidden", github, 403, "{}", u"GitHub answered 403"_s);
        row("github: out of quota", github, 200, R"({"errors":[{"type":"RATE_LIMITED"}]})", u"GitHub sent no data"_s);
        row("github: all null", github, 200, R"({"data":{"viewer":null,"search":null}})", u"GitHub sent no data"_s);
    }
    void saysWhatIsWrong() {
        QFETCH(Reader, read);
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        QTEST(read({.status = status, .body = body}), "says");
    }

    void theBareKeyIsTriedOnceAndRemembered() {
        FakeHttp http;
        linear::Client client(http);
        QStringList told;
        const auto fetch = [&](const QString& key) {
            return client.fetch(key, [&](const auto& fetched) {
                told.append(fetched ? u"read"_s : message(fetched.error(), u"Linear"_s));
            });
        };
        const auto good = FakeHttp::answer(recorded(u"linear.json"_s).body);
        const auto sent = [&] { return http.requests.last().headers.first().second; };

        auto handle = fetch(u"a"_s);
        http.answerNext(FakeHttp::answer("{}", 400));
        QCOMPARE(sent(), "a");
        http.answerNext(good);
        handle = fetch(u"a"_s);
        QCOMPARE(sent(), "a");
        http.answerNext(good);
        handle = fetch(u"b"_s); // another key is another question
        QCOMPARE(sent(), "Bearer b");
        http.answerNext(FakeHttp::answer("{}", 401));
        QCOMPARE(told, (QStringList{u"read"_s, u"read"_s, u"Linear didn't accept the key"_s}));

        handle = fetch(u"c"_s);
        http.answerNext(FakeHttp::answer("{}", 400));
        handle.reset(); // in the middle of it
        QCOMPARE(http.waiting(), 0U);
        QCOMPARE(told.size(), 3);
    }
};

QTEST_GUILESS_MAIN(ServicesTest)
#include "tst_Services.moc"
