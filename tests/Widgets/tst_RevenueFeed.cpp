#include "Files.h"
#include "Table.h"
#include "Widgets/Revenue/RevenueFeed.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeHttp.h"
#include "fakes/FakeSecretStore.h"
#include "fakes/FakeSettings.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

using Service = WidgetAccounts::Service;
using Answer = std::function<FakeHttp::Outcome(const HttpRequest&)>;

namespace {

QByteArray recorded(const QString& name) {
    return contentOf(QStringLiteral(TEST_DATA "/revenue/") + name);
}

FakeHttp::Outcome status(int status, const HttpHeaders& headers = {}) {
    return FakeHttp::answer("{}", status, headers);
}

/// A page of Stripe's with one sale at nine in the morning.
FakeHttp::Outcome stripeSold(int amount) {
    return FakeHttp::answer(R"({"data":[{"type":"charge","currency":"usd","created":1767600000,"amount":)" +
                            QByteArray::number(amount) + "}]}");
}

struct World {
    explicit World(const QHash<QString, QString>& keys) {
        store.secrets = keys;
        accounts.onChanged = [this](Service) { feed.refreshForNewKey(); };
        accounts.read();
        store.answer();
        answers[u"open.er-api.com"_s] = [](const auto&) { return FakeHttp::answer(recorded(u"rates.json"_s)); };
    }

    /// Whoever has no answer of the test's cannot be reached.
    void serve() {
        store.answer();
        http.serve(
            [this](const HttpRequest& request) {
                const auto found = answers.constFind(request.url.host());
                return found == answers.constEnd() ? FakeHttp::error() : (*found)(request);
            },
            1000);
    }
    void refresh() {
        feed.setActive(true);
        feed.refresh(true);
        serve();
    }
    qsizetype asked(const QString& part) const {
        return std::ranges::count_if(http.requests,
                                     [&](const auto& each) { return each.url.toString().contains(part); });
    }
    QString problem(Service service) const { return feed.results().at(service).problem; }
    qint64 sold() const { return feed.today().cumulative.last(); }

    FakeClock clock;
    FakeHttp http;
    FakeSettings settings;
    FakeSecretStore store;
    WidgetAccounts accounts{store};
    RevenueFeed feed{accounts, clock, http, settings};
    QHash<QString, Answer> answers; ///< by host
};

const QHash<QString, QString> allKeys{
    {u"stripe"_s, u"s"_s}, {u"lemonSqueezy"_s, u"l"_s}, {u"paddle"_s, u"p"_s}, {u"dodo"_s, u"d"_s}};

Answer constantly(const FakeHttp::Outcome& outcome) {
    return [outcome](const auto&) { return outcome; };
}

} // namespace

class RevenueFeedTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void eachFailsForItself() {
        World world(allKeys);
        world.feed.setActive(true);
        world.store.answer();
        QCOMPARE(world.http.waiting(), 4U);
        QVERIFY(world.feed.isLoading());
        world.answers[u"api.stripe.com"_s] = constantly(stripeSold(2000));
        world.answers[u"api.lemonsqueezy.com"_s] = constantly(status(204));
        world.answers[u"live.dodopayments.com"_s] = constantly(status(401));
        world.answers[u"test.dodopayments.com"_s] = constantly(status(403));
        world.serve();
        QVERIFY(!world.feed.isLoading());
        QVERIFY(world.feed.updatedAt());
        QCOMPARE(world.feed.error(), QString());
        QCOMPARE(world.problem(Service::stripe), QString());
        QCOMPARE(world.problem(Service::lemonSqueezy), u"Lemon Squeezy answered 204"_s);
        QCOMPARE(world.problem(Service::paddle), u"Couldn't reach Paddle"_s);
        QCOMPARE(world.problem(Service::dodo), u"Dodo Payments didn't accept the key"_s);
        QCOMPARE(world.sold(), 2000);
        world.answers.remove(u"api.stripe.com"_s);
        world.refresh();
        QCOMPARE(world.problem(Service::stripe), u"Couldn't reach Stripe"_s);
        QCOMPARE(world.sold(), 2000); // of this day
    }

    void everythingStartsAgainAtMidnight() {
        World world({{u"stripe"_s, u"s"_s}});
        world.answers[u"api.stripe.com"_s] = constantly(stripeSold(2000));
        world.feed.setActive(true);
        world.serve();
        world.clock.advance(13h + 55min); // ten minutes apart, less than that before the day's end
        world.serve();
        QCOMPARE(world.sold(), 2000);
        world.answers.clear();
        const auto before = world.http.requests.size();
        world.clock.advance(5min);
        QCOMPARE(world.sold(), 0); // before any answer
        world.serve();
        QVERIFY(world.http.requests[before].url.toString().contains(u"=1767654000"));
        QVERIFY(world.feed.results().at(Service::stripe).sales.isEmpty());
        world.feed.setActive(false);
        const auto after = world.http.requests.size();
        world.clock.advance(48h);
        QCOMPARE(world.http.requests.size(), after);
    }

    void aKeyThatChangesTakesItsSalesAlong() {
        World world({{u"stripe"_s, u"old"_s}});
        world.answers[u"api.stripe.com"_s] = constantly(stripeSold(2000));
        world.refresh();
        world.feed.refresh(true);
        world.store.answer();
        QCOMPARE(world.http.waiting(), 1U);
        world.accounts.save(u"new"_s, Service::stripe);
        world.store.answer();
        QCOMPARE(world.http.waiting(), 1U); // the answer to the old key no longer counts
        QCOMPARE(world.http.requests.last().headers.first().second, "Bearer new");
        QCOMPARE(world.sold(), 0);
        world.answers[u"api.stripe.com"_s] = constantly(status(401));
        world.serve();
        QCOMPARE(world.problem(Service::stripe), u"Stripe didn't accept the key"_s);
        QCOMPARE(world.sold(), 0);
        world.accounts.remove(Service::stripe);
        world.serve();
        QVERIFY(world.feed.results().empty());
        QVERIFY(world.feed.connected().isEmpty());
    }

    void listsEnd_data() {
        const Table<QString, QString, int> row("service", "host", "pages");
        row("Stripe", u"stripe"_s, u"api.stripe.com"_s, 10);
        row("Lemon Squeezy", u"lemonSqueezy"_s, u"api.lemonsqueezy.com"_s, 10);
        row("Paddle", u"paddle"_s, u"api.paddle.com"_s, 34);
        row("Dodo", u"dodo"_s, u"live.dodopayments.com"_s, 20); // payments and refunds
    }
    void listsEnd() {
        QFETCH(const QString, service);
        QFETCH(const QString, host);
        World world({{service, u"k"_s}});
        const QByteArray next = "https://" + host.toLatin1() + "/next";
        world.answers[host] =
            constantly(FakeHttp::answer(R"({"has_more":true,"data":[{"id":"x"}],"links":{"next":")" + next +
                                        R"("},"meta":{"pagination":{"has_more":true,"next":")" + next +
                                        R"("}},"items":[)" + QByteArray("{},").repeated(99) + "{}]}"));
        world.refresh();
        QTEST(static_cast<int>(world.asked(host)), "pages");
        QVERIFY(!world.feed.isLoading());
        QVERIFY(world.feed.today().isCut);
        world.clock.advance(24h);
        QVERIFY(!world.feed.today().isCut); // that was yesterday
    }

    void lemonSqueezyMayRefuseToSort() {
        World world({{u"lemonSqueezy"_s, u"k"_s}});
        world.answers[u"api.lemonsqueezy.com"_s] = [](const HttpRequest& request) {
            const bool isSorted = request.url.query().contains(u"sort");
            return isSorted ? status(400) : FakeHttp::answer(R"({"data":[]})");
        };
        world.refresh();
        world.refresh();
        QCOMPARE(world.asked(u"/orders"_s), 3);
        QCOMPARE(world.asked(u"sort="_s), 1);
        QCOMPARE(world.problem(Service::lemonSqueezy), QString());
        world.answers[u"api.lemonsqueezy.com"_s] = constantly(status(400));
        world.accounts.save(u"another"_s, Service::lemonSqueezy);
        world.serve();
        QCOMPARE(world.asked(u"sort="_s), 2);
        QCOMPARE(world.asked(u"/orders"_s), 5);
        QCOMPARE(world.problem(Service::lemonSqueezy), u"Lemon Squeezy answered 400"_s);
    }

    void dodoAsksTheTestHostAndEachSettlementOnce() {
        World world({{u"dodo"_s, u"k"_s}});
        bool isBusy = true;
        world.answers[u"live.dodopayments.com"_s] = constantly(status(401));
        world.answers[u"test.dodopayments.com"_s] = [&isBusy](const HttpRequest& request) {
            const QString path = request.url.path();
            if (path == u"/payments"_s)
                return FakeHttp::answer(recorded(u"dodo-payments.json"_s));
            if (path == u"/refunds"_s)
                return FakeHttp::answer(recorded(u"dodo-refunds.json"_s));
            if (path == u"/payments/pay_a"_s)
                return isBusy ? status(429) : FakeHttp::answer(recorded(u"dodo-settlement.json"_s));
            return status(404);
        };
        world.refresh();
        QCOMPARE(world.problem(Service::dodo), QString());
        QCOMPARE(world.feed.today().total.first(), (Money{.amount = 2500, .currency = u"EUR"_s}));
        isBusy = false;
        world.refresh();
        world.refresh();
        QCOMPARE(world.feed.today().total.last(), (Money{.amount = 2900, .currency = u"USD"_s}));
        QCOMPARE(world.asked(u"test.dodopayments.com/payments/pay_a"_s), 2);
        QCOMPARE(world.asked(u"test.dodopayments.com/payments/pay_b"_s), 1);
        QCOMPARE(world.asked(u"live.dodopayments.com/"_s), 3);
    }

    void looksUpFewSettlementsAtOnce() {
        World world({{u"dodo"_s, u"k"_s}});
        QByteArray items;
        for (int i = 0; i < 50; ++i)
            items +=
                QByteArray(
                    R"({"total_amount":1,"currency":"USD","created_at":"2026-01-05T08:00:00Z","payment_id":"pN"},)")
                    .replace("pN", "p" + QByteArray::number(i));
        world.feed.setActive(true);
        world.store.answer();
        world.http.answerNext(FakeHttp::answer(R"({"items":[)" + items.chopped(1) + "]}"));
        world.http.answerNext(FakeHttp::answer(R"({"items":[]})"));
        for (int i = 0; i < 50; ++i) {
            QVERIFY(world.http.waiting() <= 4U);
            QVERIFY(world.http.answerNext(status(200)));
        }
        QVERIFY(!world.feed.isLoading());
        QCOMPARE(world.sold(), 50);
    }

    void ratesAreAskedOnceADay() {
        World world({{u"stripe"_s, u"s"_s}});
        const auto dollars = stripeSold(1)->body;
        const auto euros = QByteArray(dollars).replace("usd", "eur");
        world.answers[u"api.stripe.com"_s] =
            constantly(FakeHttp::answer(dollars.chopped(2) + ',' + euros.sliced(euros.indexOf('[') + 1)));
        world.feed.setActive(true);
        world.store.answer();
        world.http.answerNext(world.answers[u"api.stripe.com"_s]({}));
        QVERIFY(!world.feed.today().combined);
        world.serve();
        QVERIFY(world.feed.today().combined);
        world.refresh();
        QCOMPARE(world.asked(u"open.er-api.com"_s), 1);
        QCOMPARE(world.settings.read<QString>(u"exchangeRatesDay"_s), u"2026-01-05"_s);
        QCOMPARE(world.settings.read<Rates>(u"exchangeRates"_s)->value(u"EUR"_s), 0.8);
        FakeSettings& settings = world.settings;
        ExchangeRates again(world.http, world.clock, settings);
        again.refresh(QDate(2026, 1, 5), [] {});
        QCOMPARE(world.asked(u"open.er-api.com"_s), 1);
        world.clock.advance(24h);
        world.answers[u"open.er-api.com"_s] = constantly(status(429, {{"retry-after", "1200"}}));
        world.refresh();
        world.refresh();
        QCOMPARE(world.asked(u"open.er-api.com"_s), 2);
        QCOMPARE(world.feed.rates().value(u"EUR"_s), 0.8);
        QCOMPARE(settings.read<QString>(u"exchangeRatesDay"_s), u"2026-01-05"_s);
    }

    void aProviderThatAsksForAPauseGetsIt() {
        World world({{u"stripe"_s, u"s"_s}, {u"paddle"_s, u"p"_s}});
        world.answers[u"api.stripe.com"_s] = constantly(stripeSold(1));
        world.answers[u"api.paddle.com"_s] = constantly(status(429, {{"retry-after", "60"}}));
        world.refresh();
        world.clock.advance(40s);
        world.refresh();
        QCOMPARE(world.asked(u"paddle"_s), 1);
        QCOMPARE(world.asked(u"stripe"_s), 2);
        QCOMPARE(world.problem(Service::paddle), u"Paddle answered 429"_s);
        world.http.setOnline(false);
        world.refresh();
        world.http.setOnline(true);
        world.refresh();
        QCOMPARE(world.asked(u"paddle"_s), 1);
        world.clock.advance(21s);
        world.refresh();
        QCOMPARE(world.asked(u"paddle"_s), 2);
    }

    void waitsForTheNetwork() {
        World world(allKeys);
        world.answers[u"api.stripe.com"_s] = constantly(stripeSold(7));
        world.http.setOnline(false);
        world.feed.setActive(true);
        world.serve();
        QCOMPARE(world.http.requests.size(), 0);
        QCOMPARE(world.problem(Service::paddle), u"Couldn't reach Paddle"_s);
        QVERIFY(world.feed.error().startsWith(u"Couldn't reach Stripe"_s));
        world.http.setOnline(true);
        world.serve();
        QCOMPARE(world.sold(), 7);
    }
};

QTEST_GUILESS_MAIN(RevenueFeedTest)
#include "tst_RevenueFeed.moc"
