#include "Widgets/Revenue/Stripe.h"

#include "Widgets/Json.h"
#include "Widgets/Revenue/ProviderMoney.h"
#include "Widgets/Revenue/ProviderRequest.h"

namespace fendrel::stripe {

using namespace Qt::StringLiterals;

namespace {

constexpr int pageLimit = 10;

bool readSale(const QJsonObject& item, QList<Sale>& sales) {
    const QString type = item["type"_L1].toString();
    const bool isSale = type == "charge"_L1 || type == "payment"_L1;
    const bool isRefund = type == "refund"_L1 || type == "payment_refund"_L1;
    const auto money = providerMoney(item["amount"_L1], item["currency"_L1], stripeDigits);
    if (!money || (!isSale && !isRefund))
        return true; // a payout, a fee
    const auto created = json::unixTime(item["created"_L1], std::chrono::seconds(1));
    if (created)
        sales.append({.money = *money, .created = *created});
    return created.has_value();
}

} // namespace

HttpRequest transactionsRequest(const QString& key, WallTime since, const QString& after) {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(since).time_since_epoch().count();
    revenue::Query query{{u"created[gte]"_s, QString::number(seconds)}, {u"limit"_s, u"100"_s}};
    if (!after.isEmpty())
        query.append({u"starting_after"_s, after});
    return revenue::get(revenue::address(u"https://api.stripe.com/v1/balance_transactions"_s, query), key);
}

Fetched<revenue::Page<Sale>> readTransactions(const HttpResponse& response, const QString& key, WallTime since) {
    using Read = Fetched<revenue::Page<Sale>>;
    const auto body = revenue::body(response, u"Stripe"_s);
    if (!body)
        return Read::failure(body.error());
    const auto list = body->value("data"_L1);
    const auto sales = revenue::readItems<Sale>(list, readSale);
    if (!sales)
        return Read::failure(sales.error());
    revenue::Page<Sale> page{.items = *sales};
    if (body->value("has_more"_L1).toBool()) {
        const QString last = list.toArray().last()["id"_L1].toString();
        if (last.isEmpty()) // there is more, and no way to get there: half a day's sum is a wrong one
            return Read::failure(FetchFailure::undecodable());
        page.next = transactionsRequest(key, since, last);
    }
    return page;
}

Handle fetch(HttpClient& http, const QString& key, WallTime since, FetchDone<revenue::Listed<Sale>> done) {
    return revenue::Pages<Sale>::fetch(
        http, transactionsRequest(key, since), pageLimit,
        [key, since](const HttpResponse& response, int) { return readTransactions(response, key, since); },
        std::move(done));
}

} // namespace fendrel::stripe
