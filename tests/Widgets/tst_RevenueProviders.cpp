#include "Files.h"
#include "Table.h"
#include "Widgets/Revenue/DodoPayments.h"
#include "Widgets/Revenue/ExchangeRates.h"
#include "Widgets/Revenue/LemonSqueezy.h"
#include "Widgets/Revenue/Paddle.h"
#include "Widgets/Revenue/ProviderMoney.h"
#include "Widgets/Revenue/Stripe.h"

#include <QtTest>

#include <limits>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

constexpr WallTime since = WallTime(std::chrono::seconds(1'767'567'600)); // 2026-01-05, midnight in Berlin
const QString key = u"k"_s;

HttpResponse answer(const QByteArray& body, int status = 200) {
    return {.status = status, .body = body};
}

QByteArray recorded(const QString& name) {
    return contentOf(QStringLiteral(TEST_DATA "/revenue/") + name);
}

QString line(const Sale& sale) {
    return u"%1 %2 %3 %4"_s.arg(toDateTime(sale.created).toString(u"hh:mm"_s))
        .arg(sale.money.amount)
        .arg(sale.money.currency, sale.customer)
        .trimmed();
}

QStringList lines(const QList<Sale>& sales) {
    QStringList lines;
    for (const Sale& sale : sales)
        lines.append(line(sale));
    return lines;
}

/// What a provider's page says: its sales and its next address, or why there are none.
using Reader = std::function<QStringList(const HttpResponse&)>;

template<class Item>
QStringList told(const Fetched<revenue::Page<Item>>& page) {
    if (!page)
        return {message(page.error(), u"X"_s)};
    QStringList told;
    if constexpr (std::is_same_v<Item, Sale>)
        told = lines(page->items);
    if (page->next)
        told.append(QString::fromLatin1(page->next->url.toEncoded()));
    return told;
}

const Reader stripePage = [](const auto& response) { return told(stripe::readTransactions(response, key, since)); };
const Reader lemonPage = [](const auto& response) {
    return told(lemonsqueezy::readOrders(response, lemonsqueezy::ordersRequest(key, true), since));
};
const Reader paddlePage = [](const auto& response) {
    return told(paddle::readTransactions(response, paddle::transactionsRequest(key, since)));
};
const Reader dodoPage = [](const auto& response) {
    return told(dodo::readPayments(response, dodo::paymentsRequest(key, dodo::Mode::live, since, 1)));
};

} // namespace
Q_DECLARE_METATYPE(Reader)
Q_DECLARE_METATYPE(HttpRequest)

class RevenueProvidersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void asksExactly_data() {
        const Table<HttpRequest, QByteArray, QByteArray> row("request", "url", "accept");
        const QByteArray json = "application/json";
        const QByteArray stripeUrl =
            "https://api.stripe.com/v1/balance_transactions?created%5Bgte%5D=1767567600&limit=100";
        row("Stripe", stripe::transactionsRequest(key, since), stripeUrl, json);
        row("Stripe, onward", stripe::transactionsRequest(key, since, u"a+b&c"_s),
            stripeUrl + "&starting_after=a%2Bb%26c", json);
        const QByteArray lemonUrl = "https://api.lemonsqueezy.com/v1/orders?page%5Bsize%5D=100";
        const QByteArray lemonType = "application/vnd.api+json";
        row("Lemon Squeezy", lemonsqueezy::ordersRequest(key, true), lemonUrl + "&sort=-created_at", lemonType);
        row("Lemon Squeezy, unsorted", lemonsqueezy::ordersRequest(key, false), lemonUrl, lemonType);
        row("Paddle", paddle::transactionsRequest(key, since),
            "https://api.paddle.com/transactions?status=completed&created_at%5BGTE%5D=2026-01-04T23%3A00%3A00Z"
            "&per_page=200",
            json);
        const QByteArray dodoQuery =
            "?created_at_gte=2026-01-04T23%3A00%3A00Z&status=succeeded&page_size=100&page_number=";
        row("Dodo", dodo::paymentsRequest(key, dodo::Mode::live, since, 0),
            "https://live.dodopayments.com/payments" + dodoQuery + "0", json);
        row("Dodo, refunds", dodo::refundsRequest(key, dodo::Mode::test, since, 2),
            "https://test.dodopayments.com/refunds" + dodoQuery + "2", json);
        row("Dodo, settlement", *dodo::settlementRequest(key, dodo::Mode::live, u"pay_a-1"_s),
            "https://live.dodopayments.com/payments/pay_a-1", json);
    }
    void asksExactly() {
        QFETCH(const HttpRequest, request);
        QFETCH(const QByteArray, accept);
        QCOMPARE(request.method, "GET");
        QCOMPARE(request.headers, (HttpHeaders{{"Authorization", "Bearer k"}, {"Accept", accept}}));
        QCOMPARE(request.timeout, std::chrono::seconds(60));
        QTEST(request.url.toEncoded(), "url");
    }

    void keysStayWhereTheyBelong() {
        QCOMPARE(paddle::transactionsRequest(u"pdl_sdbx_apikey_1"_s, since).url.host(), u"sandbox-api.paddle.com"_s);
        for (const auto& id : {u"../refunds"_s, u"a/b"_s, u"a?b"_s, u"é"_s, u""_s})
            QVERIFY(!dodo::settlementRequest(key, dodo::Mode::live, id));
        QVERIFY(ratesRequest().headers.size() == 1 && ratesRequest().headers.first().first == "Accept");
    }

    void reads_data() {
        const Table<Reader, QByteArray, QStringList> row("read", "body", "expected");
        const auto unexpected = QStringList{u"X sent something unexpected"_s};
        const auto badDate = QStringList{u"Bad date"_s};

        row("Stripe", stripePage, recorded(u"stripe.json"_s),
            {u"14:10 -2000 USD"_s, u"13:10 1234 JPY"_s, u"08:00 2000 USD"_s,
             QString::fromLatin1(stripe::transactionsRequest(key, since, u"txn_1"_s).url.toEncoded())});
        row("Stripe, the last page", stripePage, R"({"data":[],"has_more":false})", {});
        row("Stripe, more but no way", stripePage, R"({"data":[{}],"has_more":true})", unexpected);
        row("Stripe, bad date", stripePage, R"({"data":[{"type":"charge","amount":1,"currency":"usd","created":"x"}]})",
            badDate);

        row("Lemon Squeezy", lemonPage, recorded(u"lemonsqueezy.json"_s),
            {u"09:45 1199 USD Darlene Daugherty"_s, u"10:30 -100 USD Darlene Daugherty"_s, u"08:00 500 EUR Ada"_s,
             u"08:00 -500 EUR Ada"_s, u"06:00 300 EUR"_s,
             u"https://api.lemonsqueezy.com/v1/orders?page%5Bnumber%5D=2&page%5Bsize%5D=100&sort=-createdAt"_s});
        const auto orders = [](const QByteArrayList& dates, const QByteArray& next) {
            QByteArrayList list;
            for (const auto& date : dates)
                list.append(
                    QByteArray(R"({"attributes":{"status":"paid","total":1,"currency":"USD","created_at":"DATE"}})")
                        .replace("DATE", date));
            return QByteArray(R"({"data":[LIST],"links":{"next":"NEXT"}})")
                .replace("LIST", list.join(','))
                .replace("NEXT", next);
        };
        const QByteArray next = "https://api.lemonsqueezy.com/v1/orders?page%5Bnumber%5D=2";
        row("past the day", lemonPage, orders({"2026-01-04T23:00:00Z", "2026-01-04T22:59:59Z"}, next),
            {u"23:00 1 USD"_s});
        row("past the day, in no order", lemonPage, orders({"2026-01-04T22:00:00Z", "2026-01-04T23:00:00Z"}, next),
            {u"23:00 1 USD"_s, QString::fromLatin1(next)});
        const QByteArray today = "2026-01-05T08:00:00Z";
        for (const QByteArray address : {"http://api.lemonsqueezy.com/v1/orders", "https://example.com/v1/orders",
                                         "https://api.lemonsqueezy.com@x/", "https://me@api.lemonsqueezy.com/",
                                         "https://api.lemonsqueezy.com:8443/", "/v1/orders", ""})
            row(("not to " + address).constData(), lemonPage, orders({today}, address), unexpected);
        row("Lemon Squeezy, bad date", lemonPage, orders({"yesterday"}, next), badDate);

        const auto sandboxed = recorded(u"paddle.json"_s).replace("//api.paddle", "//sandbox-api.paddle");
        row("Paddle", paddlePage, recorded(u"paddle.json"_s),
            {u"10:18 32662 USD"_s, u"09:18 1250000 HUF"_s,
             u"https://api.paddle.com/transactions?after=txn_4&per_page=30"_s});
        row("Paddle, the last page", paddlePage, recorded(u"paddle.json"_s).replace("true", "false"),
            {u"10:18 32662 USD"_s, u"09:18 1250000 HUF"_s});
        row("Paddle, to the other host", paddlePage, sandboxed, unexpected);
        row("Paddle, bad date", paddlePage, recorded(u"paddle.json"_s).replace("+02:00", "x"), badDate);

        const QByteArray items = QByteArray("{},").repeated(99);
        row("Dodo, a full page", dodoPage, R"({"items":[)" + items + "{}]}",
            {QString::fromLatin1(dodo::paymentsRequest(key, dodo::Mode::live, since, 1).url.toEncoded())});
        row("Dodo, a short page", dodoPage, R"({"items":[)" + items.chopped(1) + "]}", {});
        row("Dodo, bad date", dodoPage, R"({"items":[{"total_amount":1,"currency":"USD"}]})", badDate);
    }
    void reads() {
        QFETCH(const Reader, read);
        QFETCH(const QByteArray, body);
        QTEST(read(answer(body)), "expected");
    }

    void settles() {
        using Payments = QList<dodo::Payment>;
        using Refunds = QList<dodo::Refund>;
        const auto next = dodo::paymentsRequest(key, dodo::Mode::live, since, 1);
        const Payments payments = dodo::readPayments(answer(recorded(u"dodo-payments.json"_s)), next)->items;
        const Refunds refunds = dodo::readRefunds(answer(recorded(u"dodo-refunds.json"_s)), next)->items;
        QCOMPARE(lines(dodo::sales(payments, refunds, {})),
                 (QStringList{u"10:00 5000 EUR Grace"_s, u"09:00 1000 INR"_s, u"11:00 -2500 EUR"_s,
                              u"12:00 -1000 INR"_s})); // nobody knows what was paid for the third
        const auto settlement = dodo::readSettlement(answer(recorded(u"dodo-settlement.json"_s)));
        const auto older =
            dodo::readSettlement(answer(R"({"total_amount":70,"currency":"USD","settlement_amount":null})"));
        QCOMPARE(lines(dodo::sales(payments, refunds, {{u"pay_a"_s, settlement}, {u"pay_x"_s, older}})),
                 (QStringList{u"10:00 5800 USD Grace"_s, u"09:00 1000 INR"_s, u"11:00 -2900 USD"_s,
                              u"12:00 -1000 INR"_s, u"12:00 -70 USD"_s}));
    }

    void money_data() {
        const Table<QByteArray, QString, ProviderDigits, QString> row("amount", "currency", "digits", "expected");
        row("two digits", "1999", u"usd"_s, isoDigits, u"1999 USD"_s);
        row("as text", "\"-1999\"", u"EUR"_s, isoDigits, u"-1999 EUR"_s);
        row("none here, none there", "500", u"JPY"_s, isoDigits, u"500 JPY"_s);
        row("three", "1500", u"KWD"_s, stripeDigits, u"1500 KWD"_s);
        row("the provider has two, the system none", "12350", u"ISK"_s, stripeDigits, u"124 ISK"_s);
        row("given back", "-12350", u"ISK"_s, stripeDigits, u"-124 ISK"_s);
        row("the standard has none", "12350", u"ISK"_s, isoDigits, u"12350 ISK"_s);
        row("the standard has two, the system none", "12349", u"ALL"_s, isoDigits, u"123 ALL"_s);
        row("the standard has three, the system none", "1500", u"IQD"_s, isoDigits, u"2 IQD"_s);
        row("nobody knows it", "12", u"QQQ"_s, isoDigits, u"12 QQQ"_s);
        row("too large", "1000000000000001", u"USD"_s, isoDigits, {});
        row("the smallest", "-9223372036854775808", u"USD"_s, isoDigits, {});
        row("a fraction", "1.5", u"USD"_s, isoDigits, {});
        row("no amount", "null", u"USD"_s, isoDigits, {});
        row("no currency", "1", u"US"_s, isoDigits, {});
        row("no code", "1", u"U$D"_s, isoDigits, {});
    }
    void money() {
        QFETCH(const QByteArray, amount);
        QFETCH(const QString, currency);
        QFETCH(const ProviderDigits, digits);
        const auto object = QJsonDocument::fromJson("{\"a\":" + amount + '}').object();
        const auto money = providerMoney(object[u"a"_s], currency, digits);
        QTEST(money ? u"%1 %2"_s.arg(money->amount).arg(money->currency) : QString(), "expected");
    }

    void amountsKeepWithinTheType() {
        constexpr auto most = std::numeric_limits<qint64>::max();
        constexpr auto least = std::numeric_limits<qint64>::min();
        QCOMPARE(saturatingSum(most - 1, 2), most);
        QCOMPARE(saturatingSum(least, -1), least);
        QCOMPARE(saturatingSum(most, least), -1);
        QCOMPARE(minorUnits(1e300, u"USD"_s), most);
        QCOMPARE(minorUnits(-1e300, u"USD"_s), least);
        QCOMPARE(minorUnits(std::numeric_limits<double>::quiet_NaN(), u"USD"_s), 0);
        QCOMPARE(minorUnits(-0.125, u"USD"_s), -13);
    }

    void showsAmounts() {
        const auto plain = [](QString text) { return text.replace(QChar::Nbsp, u' '); };
        QCOMPARE(text({.amount = 123'456, .currency = u"EUR"_s}, QLocale(u"en_US"_s)), u"€1,234.56"_s);
        QCOMPARE(plain(text({.amount = -123'456, .currency = u"EUR"_s}, QLocale(u"de_DE"_s))), u"-1.234,56 €"_s);
        QCOMPARE(text({.amount = 1234, .currency = u"JPY"_s}, QLocale(u"en_US"_s)), u"¥1,234"_s);
        QCOMPARE(plain(text({.amount = std::numeric_limits<qint64>::max(), .currency = u"QQQ"_s}, QLocale::c())),
                 u"QQQ 92,233,720,368,547,758.07"_s);
    }

    void readsRates_data() {
        const Table<QByteArray, Rates> row("body", "expected");
        row("recorded", recorded(u"rates.json"_s), {{u"USD"_s, 1}, {u"EUR"_s, 0.8}, {u"JPY"_s, 160}, {u"HUF"_s, 320}});
        row("against another", R"({"rates":{"USD":1.1,"EUR":1}})", {});
        row("an error", R"({"result":"error","error-type":"quota-reached"})", {});
    }
    void readsRates() {
        QFETCH(const QByteArray, body);
        const auto rates = readRates(answer(body));
        QTEST(rates ? *rates : Rates(), "expected");
    }
};

QTEST_GUILESS_MAIN(RevenueProvidersTest)
#include "tst_RevenueProviders.moc"
