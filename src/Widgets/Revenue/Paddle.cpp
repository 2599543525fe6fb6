#include "Widgets/Revenue/Paddle.h"

#include "Widgets/Json.h"
#include "Widgets/Revenue/ProviderMoney.h"
#include "Widgets/Revenue/ProviderRequest.h"

namespace fendrel::paddle {

using namespace Qt::StringLiterals;

namespace {

constexpr int pageLimit = 34; // a page never holds more than 30, whatever is asked for

bool readSale(const QJsonObject& item, QList<Sale>& sales) {
    const auto money = providerMoney(item["details"_L1]["totals"_L1]["grand_total"_L1], item["currency_code"_L1]);
    if (!money)
        return true;
    const auto created = json::moment(item["created_at"_L1]);
    if (created)
        sales.append({.money = *money, .created = *created});
    return created.has_value();
}

} // namespace

HttpRequest transactionsRequest(const QString& key, WallTime since) {
    // A key says itself what it is for.
    const QString host = key.contains("_sdbx"_L1) ? u"sandbox-api.paddle.com"_s : u"api.paddle.com"_s;
    return revenue::get(
        revenue::address(u"https://%1/transactions"_s.arg(host), {{u"status"_s, u"completed"_s},
                                                                  {u"created_at[GTE]"_s, revenue::isoTime(since)},
                                                                  {u"per_page"_s, u"200"_s}}),
        key);
}

Fetched<revenue::Page<Sale>> readTransactions(const HttpResponse& response, const HttpRequest& request) {
    using Read = Fetched<revenue::Page<Sale>>;
    const auto body = revenue::body(response, u"Paddle"_s);
    if (!body)
        return Read::failure(body.error());
    const auto sales = revenue::readItems<Sale>(body->value("data"_L1), readSale);
    if (!sales)
        return Read::failure(sales.error());
    revenue::Page<Sale> page{.items = *sales};
    const auto pagination = body->value("meta"_L1)["pagination"_L1];
    if (pagination["has_more"_L1].toBool()) { // there is an address of a next page even after the last one
        page.next = revenue::following(request, pagination["next"_L1]);
        if (!page.next)
            return Read::failure(FetchFailure::undecodable());
    }
    return page;
}

Handle fetch(HttpClient& http, const QString& key, WallTime since, FetchDone<revenue::Listed<Sale>> done) {
    const auto first = transactionsRequest(key, since);
    return revenue::Pages<Sale>::fetch(
        http, first, pageLimit,
        [first](const HttpResponse& response, int) { return readTransactions(response, first); }, std::move(done));
}

} // namespace fendrel::paddle
