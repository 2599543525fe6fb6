#include "Widgets/Revenue/LemonSqueezy.h"

#include "Widgets/Exchange.h"
#include "Widgets/Json.h"
#include "Widgets/Revenue/ProviderMoney.h"
#include "Widgets/Revenue/ProviderRequest.h"

#include <algorithm>

namespace fendrel::lemonsqueezy {

using namespace Qt::StringLiterals;

namespace {

constexpr int pageLimit = 10;

bool readOrder(const QJsonObject& item, WallTime since, QList<Sale>& sales) {
    const auto order = item["attributes"_L1];
    const QString status = order["status"_L1].toString();
    const auto total = providerMoney(order["total"_L1], order["currency"_L1]);
    if (!total || (status != "paid"_L1 && status != "refunded"_L1 && status != "partial_refund"_L1))
        return true;
    const auto created = json::moment(order["created_at"_L1]);
    if (!created)
        return false;
    if (*created < since)
        return true;
    const Sale sale{.money = *total, .created = *created, .customer = order["user_name"_L1].toString()};
    sales.append(sale);
    // A refund of a part leaves the status as it was.
    const auto refunded = providerMoney(order["refunded_amount"_L1], order["currency"_L1]);
    if (refunded && refunded->amount > 0)
        sales.append({.money = {.amount = -refunded->amount, .currency = refunded->currency},
                      .created = std::max(*created, json::moment(order["refunded_at"_L1]).value_or(*created)),
                      .customer = sale.customer});
    return true;
}

/// Whether no page after this one can hold an order of the day. Only a list in order tells.
bool reaches(WallTime since, const QJsonArray& list) {
    std::optional<WallTime> last;
    for (const auto& each : list) {
        const auto created = json::moment(each["attributes"_L1]["created_at"_L1]);
        if (!created || (last && *created > *last))
            return false;
        last = created;
    }
    return last && *last < since;
}

} // namespace

HttpRequest ordersRequest(const QString& key, bool isSorted) {
    revenue::Query query{{u"page[size]"_s, u"100"_s}};
    if (isSorted)
        query.append({u"sort"_s, u"-created_at"_s});
    return revenue::get(revenue::address(u"https://api.lemonsqueezy.com/v1/orders"_s, query), key,
                        "application/vnd.api+json");
}

Fetched<revenue::Page<Sale>> readOrders(const HttpResponse& response, const HttpRequest& request, WallTime since) {
    using Read = Fetched<revenue::Page<Sale>>;
    const auto body = revenue::body(response, u"Lemon Squeezy"_s);
    if (!body)
        return Read::failure(body.error());
    const auto list = body->value("data"_L1);
    const auto sales = revenue::readItems<Sale>(
        list, [since](const QJsonObject& item, QList<Sale>& read) { return readOrder(item, since, read); });
    if (!sales)
        return Read::failure(sales.error());
    revenue::Page<Sale> page{.items = *sales};
    const auto next = body->value("links"_L1)["next"_L1];
    if (next.isString() && !reaches(since, list.toArray())) {
        page.next = revenue::following(request, next);
        if (!page.next)
            return Read::failure(FetchFailure::undecodable());
    }
    return page;
}

Handle Client::fetch(const QString& key, WallTime since, FetchDone<revenue::Listed<Sale>> done) {
    const bool isSorted = *m_unsortedKey != digest(key);
    const auto first = ordersRequest(key, isSorted);
    auto read = [=, unsortedKey = m_unsortedKey, isRetried = false](const HttpResponse& response,
                                                                    int position) mutable {
        if (isSorted && position == 0 && response.status == 400) {
            isRetried = true;
            return Fetched<revenue::Page<Sale>>(revenue::Page<Sale>{.next = ordersRequest(key, false)});
        }
        if (isRetried && response.status == 200)
            *unsortedKey = digest(key);
        return readOrders(response, first, since);
    };
    return revenue::Pages<Sale>::fetch(m_http, first, pageLimit, std::move(read), std::move(done));
}

} // namespace fendrel::lemonsqueezy
