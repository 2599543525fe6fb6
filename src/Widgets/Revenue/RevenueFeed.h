#pragma once

#include "Widgets/Feed.h"
#include "Widgets/Revenue/DodoClient.h"
#include "Widgets/Revenue/ExchangeRates.h"
#include "Widgets/Revenue/LemonSqueezy.h"
#include "Widgets/Revenue/RevenueDay.h"

#include <map>

namespace fendrel {

/// What was sold today, of every payment provider that has a key. Each of them fails for itself.
class RevenueFeed final : public Feed {
public:
    using Service = WidgetAccounts::Service;

    struct Outcome {
        QList<Sale> sales{};                 ///< what the last good answer of the day brought
        bool isCut{};                        ///< there are more of them
        std::optional<WallTime> updatedAt{}; ///< of that answer
        QString problem{};                   ///< what the card says beside them; empty: the last fetch went well
        bool operator==(const Outcome&) const = default;
    };

    RevenueFeed(WidgetAccounts& accounts, Clock& clock, HttpClient& http, SettingsStore& settings);

    QList<Service> connected() const; ///< in the order of all lists of services
    /// Of those that were asked. May still be yesterday's in the moments after midnight, which `today` leaves out.
    std::map<Service, Outcome> results() const;
    RevenueDay today() const;
    const Rates& rates() const { return m_rates.rates(); } ///< they need `ExchangeRates::source` beside them

protected:
    Handle fetch() override;
    QString text(const FetchFailure& failure) const override;

private:
    struct Round;
    struct Provider {
        Outcome outcome{};
        QByteArray keyDigest{};
        QDate day{};
        bool isUnreachable{};
        std::optional<ContinuousTime> notBefore{}; ///< it asked for a pause
    };

    void ask(const std::shared_ptr<Round>& round);
    Handle ask(Service service, const QString& key, WallTime since, FetchDone<revenue::Listed<Sale>> done);
    void forgetOthers(const Round& round);
    void store(Service service, const Fetched<revenue::Listed<Sale>>& fetched);
    void finish(QDate day);
    QDate day() const;

    WidgetAccounts& m_accounts;
    lemonsqueezy::Client m_lemonSqueezy;
    dodo::Client m_dodo;
    ExchangeRates m_rates;
    std::map<Service, Provider> m_providers;
    Handle m_midnight;
    /// What `today` came to, and the beginning of its day: views ask again and again.
    mutable std::optional<std::pair<WallTime, RevenueDay>> m_today;
};

} // namespace fendrel
