#include "UI/Widgets/CardText.h"
#include "UI/Widgets/Cards.h"
#include "Widgets/Revenue/ExchangeRates.h"

#include <QCoreApplication>

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

CardRow saleRow(const ServiceSale& entry, WallTime now) {
    const QString provider = WidgetAccounts::description(entry.service).name;
    const bool isRefund = entry.sale.money.amount < 0;
    const QString customer = entry.sale.customer.isEmpty() ? provider : entry.sale.customer;
    const QString kind = isRefund ? QCoreApplication::translate("Card", "Refund") : QString();
    return {.title = customer,
            .detail =
                card::joined({kind, customer == provider ? QString() : provider, card::age(entry.sale.created, now)}),
            .value = text(entry.sale.money),
            .symbol = isRefund ? u"arrow.uturn.backward"_s : QString(),
            .tone = isRefund ? CardContent::Tone::busy : CardContent::Tone::neutral};
}

} // namespace

QUrl salesPage(WidgetAccounts::Service service) {
    using enum WidgetAccounts::Service;
    switch (service) {
    case stripe:
        return QUrl(u"https://dashboard.stripe.com/payments"_s);
    case lemonSqueezy:
        return QUrl(u"https://app.lemonsqueezy.com/orders"_s);
    case paddle:
        return QUrl(u"https://vendors.paddle.com/transactions-v2"_s);
    case dodo:
        return QUrl(u"https://app.dodopayments.com/transactions/payments"_s);
    default:
        return {};
    }
}

void describe(CardContent& card, const RevenueDay& day, WallTime now) {
    if (day.entries.isEmpty()) {
        card.state = CardContent::State::empty;
        card.headline = QCoreApplication::translate("Card", "Nothing sold yet");
        return;
    }
    card.curve = card::dayCurve(day.cumulative);
    card.curveNow = card::shareOfDay(now);

    const auto shown = std::ranges::find(day.total, day.cumulativeCurrency, &Money::currency);
    const Money money = day.combined ? day.combined->money : shown == day.total.end() ? day.total.first() : *shown;
    card.headline = text(money);
    card.brief = shortText(money);
    card.tone = money.amount < 0 ? CardContent::Tone::bad : CardContent::Tone::good;
    card.caption = QCoreApplication::translate("Card", "%n sale(s)", nullptr, day.sales);
    if (day.isCut)
        card.caption = QCoreApplication::translate("Card", "at least, with %1").arg(card.caption);

    QStringList amounts;
    for (const Money& each : day.total) {
        amounts.append(text(each));
        if (!day.combined && each != money)
            card.rows.append(QVariant::fromValue(CardRow{.title = each.currency, .value = text(each)}));
    }
    if (day.combined && day.combined->isConverted) {
        card.note = amounts.join(u" + "_s);
        card.source = QCoreApplication::translate("Card", "Rates by Exchange Rate API");
        card.credit = u"Exchange Rate API"_s;
        card.sourceAddress = ExchangeRates::source();
    }
    for (const ServiceSale& each : day.latest(10))
        card.rows.append(QVariant::fromValue(saleRow(each, now)));
}

} // namespace fendrel
