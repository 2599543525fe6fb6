#include "Widgets/Revenue/RevenueDay.h"

#include <algorithm>

namespace fendrel {

namespace {

struct CurrencyDay {
    QList<qint64> hours{}; ///< what was sold in each
    qsizetype entries{};
};
using Amounts = std::map<QString, qint64>; ///< by currency

/// All in one currency; nothing where a rate is missing.
std::optional<qint64> combined(const Amounts& amounts, const QString& currency, const Rates& rates) {
    if (amounts.size() == 1 && amounts.contains(currency))
        return amounts.at(currency);
    double dollars = 0;
    for (const auto& [each, amount] : amounts) {
        const auto value = worth({.amount = amount, .currency = each}, rates);
        if (!value)
            return {};
        dollars += *value;
    }
    const auto rate = rates.constFind(currency);
    return rate == rates.constEnd() ? std::nullopt : std::optional(minorUnits(dollars * *rate, currency));
}

/// The one with the largest worth, or the first while nobody knows.
QString leading(const QList<Money>& total, const Rates& rates) {
    return std::ranges::max_element(total, {}, [&rates](const Money& each) { return worth(each, rates).value_or(0); })
        ->currency;
}

} // namespace

RevenueDay revenueDay(QDate day, const QTimeZone& zone, const QList<ServiceSale>& sales, const Rates& rates) {
    const WallTime start = toWallTime(day.startOfDay(zone));
    const WallTime end = toWallTime(day.addDays(1).startOfDay(zone));
    // Some clocks change by half an hour; and a calendar can skip the next day.
    const auto hours = std::clamp<qint64>(std::chrono::ceil<std::chrono::hours>(end - start).count(), 1, 26);

    RevenueDay result;
    std::map<QString, CurrencyDay> currencies;
    for (const ServiceSale& each : sales) {
        if (each.sale.created < start || each.sale.created >= end)
            continue;
        result.entries.append(each);
        result.sales += each.sale.money.amount < 0 ? 0 : 1;
        CurrencyDay& currency = currencies[each.sale.money.currency];
        currency.hours.resize(hours);
        qint64& hour = currency.hours[std::chrono::floor<std::chrono::hours>(each.sale.created - start).count()];
        hour = saturatingSum(hour, each.sale.money.amount);
        ++currency.entries;
    }
    std::ranges::stable_sort(result.entries, std::ranges::greater(),
                             [](const ServiceSale& each) { return each.sale.created; });
    result.cumulative.fill(0, hours + 1);
    if (currencies.empty())
        return result;

    for (const auto& [currency, amounts] : currencies) {
        qint64 sum = 0;
        for (const qint64 amount : amounts.hours)
            sum = saturatingSum(sum, amount);
        result.total.append({.amount = sum, .currency = currency});
    }
    Amounts upTo;
    for (const Money& each : result.total)
        upTo[each.currency] = each.amount;
    const QString lead = leading(result.total, rates);
    const auto all = combined(upTo, lead, rates);
    if (all)
        result.combined = {.money = {.amount = *all, .currency = lead}, .isConverted = upTo.size() > 1};
    result.cumulativeCurrency =
        all ? lead
            : std::ranges::max_element(currencies, {}, [](const auto& each) { return each.second.entries; })->first;

    for (auto& [currency, amount] : upTo)
        amount = 0;
    if (!all)
        upTo = {{result.cumulativeCurrency, 0}};
    for (qsizetype hour = 0; hour < hours; ++hour) {
        for (auto& [currency, amount] : upTo)
            amount = saturatingSum(amount, currencies[currency].hours[hour]);
        result.cumulative[hour + 1] = combined(upTo, result.cumulativeCurrency, rates).value_or(0);
    }
    return result;
}

} // namespace fendrel
