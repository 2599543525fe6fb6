#include "Table.h"
#include "Widgets/AccountTest.h"
#include "fakes/FakeHttp.h"
#include "fakes/FakeSecretStore.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

using Service = WidgetAccounts::Service;

namespace {

const QString key = u"secret-key-1"_s;

struct World {
    World() {
        for (const auto& each : WidgetAccounts::all())
            store.secrets.insert(enumName(each.service), key);
    }
    [[nodiscard]] Handle test(Service service) {
        return testAccount(service, accounts, http, WallTime(std::chrono::days(20'000)),
                           [this](const auto& problem) { said.append(problem.value_or(u"works"_s)); });
    }

    FakeSecretStore store;
    WidgetAccounts accounts{store};
    FakeHttp http;
    QStringList said;
};

} // namespace

class AccountTestTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void asksTheServiceItself_data() {
        const Table<Service, QString, QByteArray> row("service", "host", "good");
        row("GitHub", Service::github, u"api.github.com"_s, R"({"data":{"viewer":{"pullRequests":{}},"search":{}}})");
        row("Stripe", Service::stripe, u"api.stripe.com"_s, R"({"data":[],"has_more":false})");
        row("Lemon Squeezy", Service::lemonSqueezy, u"api.lemonsqueezy.com"_s, R"({"data":[],"links":{}})");
        row("Paddle", Service::paddle, u"api.paddle.com"_s, R"({"data":[],"meta":{}})");
        row("Dodo Payments", Service::dodo, u"live.dodopayments.com"_s, R"({"items":[]})");
        row("Vercel", Service::vercel, u"api.vercel.com"_s, R"({"deployments":[]})");
        row("Linear", Service::linear, u"api.linear.app"_s, R"({"data":{"viewer":{"assignedIssues":{"nodes":[]}}}})");
        row("Sentry", Service::sentry, u"sentry.io"_s, R"([{"slug":"us"}])");
    }

    void asksTheServiceItself() {
        QFETCH(const Service, service);
        QFETCH(const QString, host);
        QFETCH(const QByteArray, good);
        const QString name = WidgetAccounts::description(service).name;
        const auto said = [&](const FakeHttp::Outcome& outcome) {
            World world;
            const Handle test = world.test(service);
            if (!world.said.isEmpty() || !world.http.requests.isEmpty())
                return u"too early"_s; // the keyring was not asked yet
            world.store.answer();
            world.http.serve([&](const HttpRequest& request) {
                return request.url.host() == host ? outcome : FakeHttp::answer({}, 401);
            });
            if (world.http.requests.size() > 3)
                return u"too much"_s;
            return world.said.join(u'|');
        };
        QCOMPARE(said(FakeHttp::answer(good)), u"works"_s);
        const QString refused =
            service == Service::github ? u"%1 didn't accept the token"_s : u"%1 didn't accept the key"_s;
        QCOMPARE(said(FakeHttp::answer(key.toUtf8(), 401)), refused.arg(name));
        QCOMPARE(said(FakeHttp::answer(key.toUtf8(), 500)), u"%1 answered 500"_s.arg(name));
        QCOMPARE(said(FakeHttp::answer("<html>")), u"%1 sent something unexpected"_s.arg(name));
        QCOMPARE(said(FakeHttp::error()), u"Couldn't reach %1"_s.arg(name));
    }

    void triesWhatTheFeedTries() {
        World world;
        const Handle personal = world.test(Service::linear);
        world.store.answer();
        world.http.answerNext(FakeHttp::answer("{}", 400));
        world.http.answerNext(FakeHttp::answer(R"({"data":{"viewer":{"assignedIssues":{"nodes":[]}}}})"));
        const Handle ofTestMode = world.test(Service::dodo);
        world.store.answer();
        world.http.answerNext(FakeHttp::answer("{}", 401));
        world.http.serve([](const HttpRequest&) { return FakeHttp::answer(R"({"items":[]})"); });
        QCOMPARE(world.said, (QStringList{u"works"_s, u"works"_s}));
        QCOMPARE(world.http.requests.last().url.host(), u"test.dodopayments.com"_s);
    }

    void tellsWhyNobodyWasAsked() {
        World world;
        world.store.secrets.remove(u"vercel"_s);
        const Handle none = world.test(Service::vercel);
        world.store.answer();
        world.store.problem = SecretStore::Problem::locked;
        const Handle locked = world.test(Service::github);
        world.store.answer();
        world.store.problem.reset();
        world.http.setOnline(false);
        const Handle offline = world.test(Service::github);
        world.store.answer();
        QCOMPARE(world.said, (QStringList{u"There is no key for it"_s, u"Your keyring is locked"_s,
                                          u"There is no network connection"_s}));
        QVERIFY(world.http.requests.isEmpty());
    }

    void aDroppedTestIsOver() {
        World world;
        Handle test = world.test(Service::sentry);
        test.reset();
        world.store.answer();
        QVERIFY(world.http.requests.isEmpty());
        test = world.test(Service::sentry);
        world.store.answer();
        world.http.answerNext(FakeHttp::answer(R"([{"slug":"us"}])"));
        QCOMPARE(world.http.waiting(), std::size_t{1}); // its second question
        test.reset();
        QCOMPARE(world.http.waiting(), std::size_t{0});
        QVERIFY(world.said.isEmpty());
    }
};

QTEST_APPLESS_MAIN(AccountTestTest)
#include "tst_AccountTest.moc"
