#include "Widgets/Revenue/DodoPayments.h"

#include "Widgets/Json.h"
#include "Widgets/Revenue/ProviderMoney.h"
#include "Widgets/Revenue/ProviderRequest.h"

#include <algorithm>
#include <cmath>

namespace fendrel::dodo {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype pageSize = 100;

QString host(Mode mode) {
    return mode == Mode::live ? u"https://live.dodopayments.com"_s : u"https://test.dodopayments.com"_s;
}

HttpRequest listRequest(const QString& path, const QString& key, Mode mode, WallTime since, int page) {
    return revenue::get(revenue::address(host(mode) + path, {{u"created_at_gte"_s, revenue::isoTime(since)},
                                                             {u"status"_s, u"succeeded"_s},
                                                             {u"page_size"_s, QString::number(pageSize)},
                                                             {u"page_number"_s, QString::number(page)}}),
                        key);
}

bool readPayment(const QJsonObject& item, QList<Payment>& payments) {
    const auto money = providerMoney(item["total_amount"_L1], item["currency"_L1]);
    if (!money)
        return true;
    const auto created = json::moment(item["created_at"_L1]);
    if (created)
        payments.append(
            {.id = item["payment_id"_L1].toString(),
             .sale = {.money = *money, .created = *created, .customer = item["customer"_L1]["name"_L1].toString()}});
    return created.has_value();
}

bool readRefund(const QJsonObject& item, QList<Refund>& refunds) {
    const QString paymentId = item["payment_id"_L1].toString();
    const auto isMissing = [&item](QLatin1StringView name) { return item[name].isNull() || item[name].isUndefined(); };
    const bool isOfAll = (isMissing("amount"_L1) || isMissing("currency"_L1)) && !paymentId.isEmpty();
    const auto money = providerMoney(item["amount"_L1], item["currency"_L1]);
    if (!isOfAll && !money)
        return true;
    const auto created = json::moment(item["created_at"_L1]);
    if (created)
        refunds.append({.paymentId = paymentId, .money = money, .created = *created});
    return created.has_value();
}

template<class Item, class Read>
Fetched<revenue::Page<Item>> readList(const HttpResponse& response, const HttpRequest& next, const Read& read) {
    using Page = revenue::Page<Item>;
    const auto body = revenue::body(response, u"Dodo Payments"_s);
    if (!body)
        return Fetched<Page>::failure(body.error());
    const auto list = body->value("items"_L1);
    const auto items = revenue::readItems<Item>(list, read);
    if (!items)
        return Fetched<Page>::failure(items.error());
    const bool isFull = list.toArray().size() >= pageSize;
    return Page{.items = *items, .next = isFull ? std::optional(next) : std::nullopt};
}

Money paidBack(const Refund& refund, const Settlement& settlement) {
    Money whole = settlement.settled.value_or(settlement.paid);
    if (!refund.money)
        return whole;
    if (!settlement.settled || refund.money->currency != settlement.paid.currency || settlement.paid.amount <= 0)
        return *refund.money;
    const double share = static_cast<double>(refund.money->amount) / static_cast<double>(settlement.paid.amount);
    return {.amount = std::llround(static_cast<double>(whole.amount) * std::min(share, 1.0)),
            .currency = whole.currency};
}

} // namespace

HttpRequest paymentsRequest(const QString& key, Mode mode, WallTime since, int page) {
    return listRequest(u"/payments"_s, key, mode, since, page);
}

HttpRequest refundsRequest(const QString& key, Mode mode, WallTime since, int page) {
    return listRequest(u"/refunds"_s, key, mode, since, page);
}

std::optional<HttpRequest> settlementRequest(const QString& key, Mode mode, const QString& paymentId) {
    const auto isPlain = [](QChar c) { return c == u'_' || c == u'-' || (c.unicode() < 128 && c.isLetterOrNumber()); };
    if (paymentId.isEmpty() || !std::ranges::all_of(paymentId, isPlain))
        return {};
    return revenue::get(QUrl(host(mode) + u"/payments/"_s + paymentId), key);
}

Fetched<revenue::Page<Payment>> readPayments(const HttpResponse& response, const HttpRequest& next) {
    return readList<Payment>(response, next, readPayment);
}

Fetched<revenue::Page<Refund>> readRefunds(const HttpResponse& response, const HttpRequest& next) {
    return readList<Refund>(response, next, readRefund);
}

std::optional<Settlement> readSettlement(const HttpResponse& response) {
    const auto body = json::object(response.body);
    const auto paid = body ? providerMoney(body->value("total_amount"_L1), body->value("currency"_L1)) : std::nullopt;
    if (!paid)
        return {};
    const auto settled = providerMoney(body->value("settlement_amount"_L1), body->value("settlement_currency"_L1));
    return Settlement{.paid = *paid, .settled = settled};
}

QList<Sale> sales(const QList<Payment>& payments, const QList<Refund>& refunds,
                  const QHash<QString, std::optional<Settlement>>& settlements) {
    QList<Sale> sales;
    QHash<QString, Settlement> known;
    for (const auto& [id, settlement] : settlements.asKeyValueRange())
        if (settlement)
            known[id] = *settlement;
    for (const Payment& payment : payments) {
        const Settlement settlement = known.value(payment.id, {.paid = payment.sale.money});
        known[payment.id] = settlement;
        Sale sale = payment.sale;
        sale.money = settlement.settled.value_or(sale.money);
        sales.append(sale);
    }
    for (const Refund& refund : refunds) {
        const auto settlement = known.constFind(refund.paymentId);
        if (settlement == known.constEnd() && !refund.money)
            continue;
        const Money money = settlement == known.constEnd() ? *refund.money : paidBack(refund, *settlement);
        sales.append({.money = {.amount = -money.amount, .currency = money.currency}, .created = refund.created});
    }
    return sales;
}

} // namespace fendrel::dodo
