#pragma once

#include "Widgets/Revenue/Sale.h"
#include "Widgets/WidgetAccounts.h"

#include <QDate>
#include <QTimeZone>

namespace fendrel {

struct ServiceSale {
    WidgetAccounts::Service service{};
    Sale sale{};
    bool operator==(const ServiceSale&) const = default;
};

/// What a day brought, of all providers together.
struct RevenueDay {
    struct Combined {
        Money money{};
        bool isConverted{}; ///< by the rates, from several currencies
        bool operator==(const Combined&) const = default;
    };

    int sales{};          ///< without what was paid back
    QList<Money> total{}; ///< one for each currency, by its code
    /// In the currency with the largest worth of the day; nothing without sales, or without the rates that it needs.
    std::optional<Combined> combined{};
    /// What was sold up to each full hour since the day's beginning, and at last to its end: 25 points, one fewer or
    /// one more where clocks change. Without `combined` of the currency that has the most entries alone.
    QList<qint64> cumulative{};
    QString cumulativeCurrency{}; ///< empty without sales
    QList<ServiceSale> entries{}; ///< sales and refunds, the newest first
    bool isCut{};                 ///< there were more than a provider was asked for: all of this is "at least"

    QList<ServiceSale> latest(qsizetype count) const { return entries.first(std::min(count, entries.size())); }
    bool operator==(const RevenueDay&) const = default;
};

/// The sum of what was created on that day there. Others are left out.
RevenueDay revenueDay(QDate day, const QTimeZone& zone, const QList<ServiceSale>& sales, const Rates& rates);

} // namespace fendrel
